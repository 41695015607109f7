#include "platform/windows/SistemaFileWindows.h"

#include <algorithm>
#include <limits>

#include "platform/insisti.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

std::string esitoDi(BOOL risposta) {
    return risposta != FALSE ? std::string{} : paroleErroreWindows(GetLastError());
}

class FileWindows final : public FileInScrittura {
public:
    explicit FileWindows(HANDLE file) : file_(file) {}
    FileWindows(const FileWindows&) = delete;
    FileWindows& operator=(const FileWindows&) = delete;
    ~FileWindows() override { chiudi(); }

    std::string scrivi(std::string_view dati) override {
        constexpr std::size_t massimo = std::numeric_limits<DWORD>::max();
        while (!dati.empty()) {
            DWORD scritti = 0;
            const auto byte = static_cast<DWORD>(std::min(dati.size(), massimo));
            if (WriteFile(file_, dati.data(), byte, &scritti, nullptr) == FALSE) {
                return esitoDi(FALSE);
            }
            if (scritti == 0) {
                return "la scrittura è incompleta";
            }
            dati.remove_prefix(scritti);
        }
        return {};
    }
    std::string sincronizza() override { return esitoDi(FlushFileBuffers(file_)); }
    std::string chiudi() override {
        if (file_ == INVALID_HANDLE_VALUE) {
            return {};
        }
        const BOOL risposta = CloseHandle(file_);
        file_ = INVALID_HANDLE_VALUE;
        return esitoDi(risposta);
    }

private:
    HANDLE file_;
};

/// True for what a moment later may have passed: another program has the file open.
bool passeggero(DWORD errore) {
    return errore == ERROR_SHARING_VIOLATION || errore == ERROR_LOCK_VIOLATION || errore == ERROR_ACCESS_DENIED;
}

}  // namespace

std::unique_ptr<FileInScrittura> SistemaFileWindows::crea(const std::string& percorso, std::string& errore) {
    const HANDLE file = CreateFileW(percorsoLargo(percorso).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        errore = esitoDi(FALSE);
        return nullptr;
    }
    return std::make_unique<FileWindows>(file);
}

std::int64_t SistemaFileWindows::dimensione(const std::string& percorso) {
    const HANDLE file = CreateFileW(percorsoLargo(percorso).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return -1;
    }
    BY_HANDLE_FILE_INFORMATION stato{};
    const bool regolare = GetFileType(file) == FILE_TYPE_DISK && GetFileInformationByHandle(file, &stato) != FALSE &&
                          (stato.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    CloseHandle(file);
    constexpr int bitBassi = 32;
    return regolare ? (std::int64_t{stato.nFileSizeHigh} << bitBassi) | std::int64_t{stato.nFileSizeLow} : -1;
}

std::string SistemaFileWindows::rinomina(const std::string& da, const std::string& a) {
    constexpr int tentativi = 6;
    constexpr DWORD pausaMs = 20;
    const std::wstring origine = percorsoLargo(da);
    const std::wstring meta = percorsoLargo(a);
    const auto sposta = [&]() -> DWORD {
        constexpr DWORD modo = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        return MoveFileExW(origine.c_str(), meta.c_str(), modo) != FALSE ? DWORD{ERROR_SUCCESS} : GetLastError();
    };
    const DWORD errore = insisti(tentativi, sposta, passeggero, [] { Sleep(pausaMs); });
    return errore == ERROR_SUCCESS ? std::string{} : paroleErroreWindows(errore);
}

void SistemaFileWindows::elimina(const std::string& percorso) {
    const std::wstring largo = percorsoLargo(percorso);
    if (DeleteFileW(largo.c_str()) != FALSE || GetLastError() != ERROR_ACCESS_DENIED) {
        return;
    }
    const DWORD attributi = GetFileAttributesW(largo.c_str());
    if (attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
        (attributi & FILE_ATTRIBUTE_READONLY) != 0) {
        SetFileAttributesW(largo.c_str(), attributi & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
        DeleteFileW(largo.c_str());
    }
}

}  // namespace kelvo
