#include "platform/windows/ServiziWindows.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "base/testo.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

/// The key of the user's own below which each application has one.
constexpr std::wstring_view radiceImpostazioni = L"Software\\Kelvo\\";
/// The settings of the companion, which its macros read where their language keeps the settings of applications.
constexpr std::string_view applicazioneMacro = "KelvoCAD 2014";
constexpr std::wstring_view radiceMacro = L"Software\\VB and VBA Program Settings\\";

std::string voceLocale(LCTYPE voce) {
    constexpr int caratteri = 99;
    std::array<wchar_t, caratteri> letti{};
    if (GetLocaleInfoW(LOCALE_USER_DEFAULT, voce, letti.data(), caratteri) == 0) {
        return {};
    }
    const std::wstring_view tutti(letti.data(), letti.size());
    return testoStretto(tutti.substr(0, tutti.find(L'\0')));
}

std::wstring chiaveRegistro(const std::string& applicazione, const std::string& sezione) {
    const std::wstring_view radice = applicazione == applicazioneMacro ? radiceMacro : radiceImpostazioni;
    return std::wstring(radice) + testoLargo(applicazione) + L"\\" + testoLargo(sezione);
}

bool apriColSistema(const std::wstring& cosa, const wchar_t* argomenti) {
    constexpr std::intptr_t massimoErrore = 32;
    const HINSTANCE esito = ShellExecuteW(nullptr, L"open", cosa.c_str(), argomenti, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<std::intptr_t>(esito) > massimoErrore;
}

}  // namespace

void IstanzaWindows::Chiude::operator()(void* maniglia) const {
    CloseHandle(maniglia);
}

void IstanzaWindows::creaMutex(const std::string& nome) {
    const HANDLE mutex = CreateMutexW(nullptr, FALSE, testoLargo(nome).c_str());
    const DWORD errore = GetLastError();
    mutex_.reset(mutex);
    // One that somebody else made and closed to us is refused, but stands.
    altra_ = mutex != nullptr ? errore == ERROR_ALREADY_EXISTS : errore == ERROR_ACCESS_DENIED;
}

ImpostazioniInternazionali LocaleWindows::leggi() const {
    return {.valuta = voceLocale(LOCALE_SCURRENCY),
            .valutaInternazionale = voceLocale(LOCALE_SINTLSYMBOL),
            .decimale = voceLocale(LOCALE_SDECIMAL),
            .migliaia = voceLocale(LOCALE_STHOUSAND),
            .decimaleValuta = voceLocale(LOCALE_SMONDECIMALSEP),
            .migliaiaValuta = voceLocale(LOCALE_SMONTHOUSANDSEP)};
}

void LocaleWindows::scriviSeparatori(const std::string& decimale, const std::string& migliaia) {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, testoLargo(decimale).c_str());
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, testoLargo(migliaia).c_str());
}

void ImpostazioniWindows::scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                                 const std::string& valore) {
    const std::wstring testo = testoLargo(valore);
    const auto byte = static_cast<DWORD>((testo.size() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(HKEY_CURRENT_USER, chiaveRegistro(applicazione, sezione).c_str(), testoLargo(chiave).c_str(),
                    REG_SZ, testo.c_str(), byte);
}

std::string ImpostazioniWindows::leggi(const std::string& applicazione, const std::string& sezione,
                                       const std::string& chiave) const {
    const std::wstring cartella = chiaveRegistro(applicazione, sezione);
    const std::wstring nome = testoLargo(chiave);
    DWORD byte = 0;
    if (RegGetValueW(HKEY_CURRENT_USER, cartella.c_str(), nome.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &byte) !=
        ERROR_SUCCESS) {
        return {};
    }
    std::wstring testo(byte / sizeof(wchar_t) + 1, L'\0');
    byte = static_cast<DWORD>(testo.size() * sizeof(wchar_t));
    if (RegGetValueW(HKEY_CURRENT_USER, cartella.c_str(), nome.c_str(), RRF_RT_REG_SZ, nullptr, testo.data(), &byte) !=
        ERROR_SUCCESS) {
        return {};
    }
    return testoStretto(std::wstring_view(testo).substr(0, testo.find(L'\0')));
}

bool ApriDocumentiWindows::apri(const std::string& percorso) {
    if (percorso.starts_with("https://") || percorso.starts_with("http://")) {
        return apriColSistema(testoLargo(percorso), nullptr);
    }
    std::string file = percorso;
    std::erase(file, '"');
    const DWORD attributi = GetFileAttributesW(percorsoLargo(file).c_str());
    return attributi != INVALID_FILE_ATTRIBUTES && apriColSistema(testoLargo(file), nullptr);
}

bool ApriDocumentiWindows::avvia(const std::string& programma, const std::string& argomento) {
    std::string nome = programma;
    std::erase(nome, '"');
    const std::wstring riga = testoLargo(argomento);
    return apriColSistema(testoLargo(rifila(nome)), riga.empty() ? nullptr : riga.c_str());
}

}  // namespace kelvo
