#pragma once

#include "base/file.h"

namespace kelvo {

/// The file system of a POSIX system: what it writes stands on the disk itself when it answers.
class SistemaFileLinux final : public SistemaFile {
public:
    /// Never follows a link and never writes into a file that another process made at the same instant.
    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override;
    std::int64_t dimensione(const std::string& percorso) override;
    std::string rinomina(const std::string& da, const std::string& a) override;
    void elimina(const std::string& percorso) override;
    void sincronizzaCartella(const std::string& percorso) override;
};

}  // namespace kelvo
