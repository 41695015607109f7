#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace kelvo {

/// Why an operation of the system failed, in Italian.
std::string paroleErrore(const std::error_code& errore);

/// A file open for writing. Every operation answers an empty text, or in Italian why it failed.
class FileInScrittura {
public:
    FileInScrittura() = default;
    FileInScrittura(const FileInScrittura&) = delete;
    FileInScrittura& operator=(const FileInScrittura&) = delete;
    virtual ~FileInScrittura() = default;

    virtual std::string scrivi(std::string_view dati) = 0;
    /// Hands what was written to the disk itself.
    virtual std::string sincronizza() = 0;
    virtual std::string chiudi() = 0;
};

/// What a safe write asks of the file system. Every operation answers an empty text, or in Italian why it failed.
class SistemaFile {
public:
    SistemaFile() = default;
    SistemaFile(const SistemaFile&) = delete;
    SistemaFile& operator=(const SistemaFile&) = delete;
    virtual ~SistemaFile() = default;

    /// Makes the file, empty, in the place of a file or link of that name; null with `errore` set if that fails.
    virtual std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) = 0;
    /// Size in bytes, or -1.
    virtual std::int64_t dimensione(const std::string& percorso) = 0;
    /// Puts `da` in the place of `a` in one step.
    virtual std::string rinomina(const std::string& da, const std::string& a) = 0;
    virtual void elimina(const std::string& percorso) = 0;
    /// Hands the entry of the folder of `percorso` to the disk; nothing where the system has no such call.
    virtual void sincronizzaCartella(const std::string& percorso) = 0;
};

/// The file system by the means of the standard library alone.
SistemaFile& sistemaFileStandard();

/// Replaces the file by `dati` so that at any instant the old or the new content stands there, never a torn one:
/// writes a temporary file beside it, checks the size written, flushes it to the disk and renames it. The new file has
/// the permissions of the old one; where `percorso` is a link, the file that it leads to is replaced. A read-only file
/// and what is no regular file are refused.
/// Answers an empty text, or in Italian why it failed; the old file then stands untouched and no temporary is left.
std::string scriviFileSicuro(SistemaFile& sistema, const std::string& percorso, std::string_view dati);

/// Reads a whole regular file of at most `massimo` bytes into `dati`.
/// Answers an empty text, or in Italian why it failed.
std::string leggiFile(const std::string& percorso, std::uint64_t massimo, std::string& dati);

}  // namespace kelvo
