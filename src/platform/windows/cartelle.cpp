#include "platform/windows/cartelle.h"

#include <memory>

#include "app/copiaUtente.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

std::string senzaBarra(std::string cartella) {
    while (!cartella.empty() && (cartella.back() == '\\' || cartella.back() == '/')) {
        cartella.pop_back();
    }
    return cartella;
}

/// Makes the folder where it is missing; false for what is no folder.
bool prendi(const std::string& cartella) {
    const std::wstring largo = percorsoLargo(cartella);
    if (CreateDirectoryW(largo.c_str(), nullptr) != FALSE) {
        return true;
    }
    const DWORD attributi = GetFileAttributesW(largo.c_str());
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

std::string cartellaEseguibile() {
    constexpr std::size_t massimo = 32768;  // the longest path of the system
    std::wstring percorso(massimo, L'\0');
    percorso.resize(GetModuleFileNameW(nullptr, percorso.data(), static_cast<DWORD>(percorso.size())));
    const std::size_t barra = percorso.find_last_of(L"\\/");
    return barra == std::wstring::npos ? std::string{"."} : testoStretto(percorso.substr(0, barra));
}

bool cartellaScrivibile(const std::string& cartella) {
    const std::wstring segno = percorsoLargo(cartella + "\\" + segnoDiSistema);
    if (GetFileAttributesW(segno.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return false;
    }
    void* const maniglia = CreateFileW(percorsoLargo(cartella).c_str(), FILE_ADD_FILE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (maniglia == INVALID_HANDLE_VALUE) {  // NOLINT: the system's own value
        return false;
    }
    CloseHandle(maniglia);
    return true;
}

std::string cartellaTemporanea() {
    constexpr std::size_t massimo = MAX_PATH + 2;
    std::wstring comune(massimo, L'\0');
    const DWORD lungo = GetTempPathW(static_cast<DWORD>(comune.size()), comune.data());
    if (lungo == 0 || lungo >= comune.size()) {
        return ".";
    }
    comune.resize(lungo);
    const std::string base = senzaBarra(testoStretto(comune));
    std::string cartella = base + "\\Kelvo";
    return prendi(cartella) ? cartella : base;
}

std::string cartellaDatiUtente() {
    wchar_t* trovata = nullptr;
    const HRESULT esito = SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_CREATE, nullptr, &trovata);
    const std::unique_ptr<wchar_t, void (*)(void*)> memoria(trovata, CoTaskMemFree);
    if (FAILED(esito)) {
        return ".";
    }
    std::string cartella = senzaBarra(testoStretto(trovata)) + "\\Kelvo";
    return prendi(cartella) ? cartella : std::string{"."};
}

}  // namespace kelvo
