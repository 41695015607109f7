#pragma once

#include "base/file.h"

namespace kelvo {

/// The file system of Windows. Paths are UTF-8, of any length, with '/' or '\\'. `FileInScrittura::sincronizza` and
/// `rinomina` hand what was written to the disk itself.
class SistemaFileWindows final : public SistemaFile {
public:
    /// Makes the file in one step: it never follows a link, and of two processes that make the same name at the same
    /// instant one fails. Others may read the file meanwhile, not write it.
    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override;
    std::int64_t dimensione(const std::string& percorso) override;
    /// One step of the file system, written through; the call that would keep the access list of the replaced file
    /// has an instant at which neither stands there. The file has the access list of its folder. What another program
    /// holds for an instant (a scanner, an indexer) is waited for, a tenth of a second in all.
    std::string rinomina(const std::string& da, const std::string& a) override;
    /// Also a read-only one; never a folder.
    void elimina(const std::string& percorso) override;
    /// Nothing: `rinomina` has done it.
    void sincronizzaCartella(const std::string& /*percorso*/) override {}
};

}  // namespace kelvo
