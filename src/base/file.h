#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

namespace kelvo {

/// The path of a text in UTF-8, and its text. A system whose paths are bytes keeps any bytes; on one whose paths are
/// characters, what is no UTF-8 becomes U+FFFD.
std::filesystem::path percorsoDaTesto(std::string_view testo);
std::string testoDaPercorso(const std::filesystem::path& percorso);

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

    /// Makes the file, empty; null with `errore` set if that fails. What stands under that name, a link included, is
    /// neither replaced nor followed: it is a failure.
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

/// The file that a link leads to, also where it does not stand yet, or the path itself.
std::string fileDelCollegamento(const std::string& percorso);

/// Replaces the file by `dati` so that at any instant the old or the new content stands there, never a torn one:
/// writes a temporary file beside it, checks the size written, flushes it to the disk and renames it. The temporary is
/// called after the file, with eight random digits and ".tmp~" behind it, so that two processes that save the same
/// file never meet: the last to rename wins. One that a killed process left stays there. The new file has
/// the permissions of the old one; where `percorso` is a link, the file that it leads to is replaced. A read-only file
/// and what is no regular file are refused.
/// Answers an empty text, or in Italian why it failed; the old file then stands untouched and no temporary is left.
std::string scriviFileSicuro(SistemaFile& sistema, const std::string& percorso, std::string_view dati);

/// Whole path of `nome` below `cartella`, looked up without regard to (ASCII) case. `nome` is a relative path; '/' and
/// '\\' both separate its components. Each component is taken as it stands where it exists, else under the name of the
/// first entry, in alphabetical order, that differs from it in case alone, else as it stands: a new file goes to the
/// folder that is there.
std::string percorsoSenzaMaiuscole(const std::string& cartella, std::string_view nome);

/// Reads a whole regular file of at most `massimo` bytes into `dati`.
/// Answers an empty text, or in Italian why it failed.
std::string leggiFile(const std::string& percorso, std::uint64_t massimo, std::string& dati);

}  // namespace kelvo
