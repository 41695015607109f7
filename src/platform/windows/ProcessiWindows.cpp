#include "platform/windows/ProcessiWindows.h"

#include <array>
#include <cstddef>
#include <memory>

#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

struct ChiudeManiglia {
    void operator()(void* maniglia) const { CloseHandle(maniglia); }
};
using Maniglia = std::unique_ptr<void, ChiudeManiglia>;

bool eFile(const std::wstring& percorso) {
    const DWORD attributi = GetFileAttributesW(percorso.c_str());
    return attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

std::wstring variabile(const wchar_t* nome) {
    std::wstring valore(GetEnvironmentVariableW(nome, nullptr, 0), L'\0');
    valore.resize(GetEnvironmentVariableW(nome, valore.data(), static_cast<DWORD>(valore.size())));
    return valore;
}

/// A job that ends all that runs in it when it is closed.
Maniglia lavoroChiuso() {
    Maniglia lavoro(CreateJobObjectW(nullptr, nullptr));
    if (lavoro) {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limiti{};
        limiti.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(lavoro.get(), JobObjectExtendedLimitInformation, &limiti, sizeof limiti);
    }
    return lavoro;
}

}  // namespace

std::wstring argomentoWindows(const std::wstring& argomento) {
    if (!argomento.empty() && argomento.find_first_of(L" \t\"") == std::wstring::npos) {
        return argomento;
    }
    std::wstring scritto = L"\"";
    std::size_t barre = 0;
    for (const wchar_t c : argomento) {
        if (c == L'\\') {
            ++barre;
        } else {
            // Backslashes count twice before a quote alone.
            if (c == L'"') {
                scritto.append(barre + 1, L'\\');
            }
            barre = 0;
        }
        scritto += c;
    }
    scritto.append(barre, L'\\');
    return scritto + L"\"";
}

std::string ProcessiWindows::trova(const std::string& nome) const {
    const std::wstring file = testoLargo(nome) + L".exe";
    constexpr DWORD lunghezza = 32768;
    std::wstring trovato(lunghezza, L'\0');
    const std::wstring cartelle = variabile(L"PATH");
    const DWORD n = SearchPathW(cartelle.empty() ? L";" : cartelle.c_str(), file.c_str(), nullptr, lunghezza,
                                trovato.data(), nullptr);
    if (n > 0 && n < lunghezza) {
        return testoStretto(std::wstring_view(trovato).substr(0, n));
    }
    for (const wchar_t* radice : std::array{L"ProgramFiles", L"ProgramW6432", L"ProgramFiles(x86)"}) {
        const std::wstring cartella = variabile(radice);
        const std::wstring percorso = cartella + L"\\LibreOffice\\program\\" + file;
        if (!cartella.empty() && eFile(percorso)) {
            return testoStretto(percorso);
        }
    }
    return {};
}

EsitoProcesso ProcessiWindows::esegui(const std::string& programma, const std::vector<std::string>& argomenti,
                                      std::chrono::milliseconds limite, const std::function<void()>& intanto) {
    std::wstring riga = argomentoWindows(testoLargo(programma));
    for (const std::string& argomento : argomenti) {
        riga += L" " + argomentoWindows(testoLargo(argomento));
    }
    Maniglia lavoro = lavoroChiuso();
    STARTUPINFOW inizio{};
    inizio.cb = sizeof inizio;
    PROCESS_INFORMATION figlio{};
    // It begins to run once it is in its job.
    if (CreateProcessW(testoLargo(programma).c_str(), riga.data(), nullptr, nullptr, FALSE,
                       CREATE_SUSPENDED | CREATE_NO_WINDOW, nullptr, nullptr, &inizio, &figlio) == 0) {
        return {EsitoProcesso::Fine::nonAvviato, 0};
    }
    const Maniglia processo(figlio.hProcess);
    const Maniglia filo(figlio.hThread);
    if (lavoro) {
        AssignProcessToJobObject(lavoro.get(), processo.get());
    }
    ResumeThread(filo.get());
    constexpr DWORD giro = 50;
    const ULONGLONG fine = GetTickCount64() + static_cast<ULONGLONG>(limite.count());
    while (WaitForSingleObject(processo.get(), giro) == WAIT_TIMEOUT) {
        if (GetTickCount64() >= fine) {
            TerminateProcess(processo.get(), 1);
            return {EsitoProcesso::Fine::scaduto, 0};
        }
        if (intanto) {
            intanto();
        }
    }
    DWORD codice = 0;
    GetExitCodeProcess(processo.get(), &codice);
    return {EsitoProcesso::Fine::uscito, static_cast<int>(codice)};
}

}  // namespace kelvo
