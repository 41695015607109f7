#pragma once

#include "base/file.h"

namespace kelvo {

/// The file system of a POSIX system. `FileInScrittura::sincronizza` and `sincronizzaCartella` hand what was written
/// to the disk itself; the other operations leave that to the system.
class SistemaFileLinux final : public SistemaFile {
public:
    /// Makes the file in one step (O_EXCL): it never follows a link, and of two processes that make the same name at
    /// the same instant one fails.
    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override;
    std::int64_t dimensione(const std::string& percorso) override;
    std::string rinomina(const std::string& da, const std::string& a) override;
    void elimina(const std::string& percorso) override;
    void sincronizzaCartella(const std::string& percorso) override;
};

}  // namespace kelvo
