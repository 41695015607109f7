#include "platform/windows/RegistroWindows.h"

#include <array>
#include <optional>
#include <string_view>

#include "base/guasto.h"
#include "platform/vedute.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

/// Names of keys have at most 255 characters.
constexpr DWORD massimoNome = 256;
/// What programs of 32 bits have installed on a system of 64 stands in the second.
constexpr std::array<REGSAM, 2> vedute{KEY_WOW64_64KEY, KEY_WOW64_32KEY};

bool manca(LSTATUS esito) {
    return esito == ERROR_FILE_NOT_FOUND || esito == ERROR_PATH_NOT_FOUND;
}

[[noreturn]] void rifiuta(LSTATUS esito, const std::string& dove) {
    const auto numero = static_cast<unsigned long>(esito);
    const auto quale =
        numero == ERROR_ACCESS_DENIED ? NumeroGuasto::autorizzazioneNegata : NumeroGuasto::accessoPercorso;
    throw Guasto(quale, "registro di sistema, " + dove + ": " + paroleErroreWindows(numero));
}

/// An open key; none where it does not stand.
class Chiave {
public:
    Chiave(const std::string& nome, REGSAM veduta) {
        const LSTATUS esito =
            RegOpenKeyExW(HKEY_LOCAL_MACHINE, testoLargo(nome).c_str(), 0, KEY_READ | veduta, &chiave_);
        if (esito != ERROR_SUCCESS) {
            chiave_ = nullptr;
            if (!manca(esito)) {
                rifiuta(esito, nome);
            }
        }
    }
    Chiave(const Chiave&) = delete;
    Chiave& operator=(const Chiave&) = delete;
    ~Chiave() {
        if (chiave_ != nullptr) {
            RegCloseKey(chiave_);
        }
    }
    HKEY maniglia() const { return chiave_; }

private:
    HKEY chiave_ = nullptr;
};

void aggiungiSottochiavi(HKEY aperta, const std::string& chiave, std::vector<std::string>& nomi) {
    std::array<wchar_t, massimoNome> nome{};
    for (DWORD i = 0;; ++i) {
        DWORD lungo = massimoNome;
        const LSTATUS esito = RegEnumKeyExW(aperta, i, nome.data(), &lungo, nullptr, nullptr, nullptr, nullptr);
        if (esito == ERROR_NO_MORE_ITEMS) {
            return;
        }
        if (esito != ERROR_SUCCESS) {
            rifiuta(esito, chiave);
        }
        nomi.push_back(testoStretto(std::wstring_view(nome.data(), lungo)));
    }
}

LSTATUS leggiTesto(HKEY aperta, const std::wstring& nome, std::wstring& testo) {
    DWORD byte = 0;
    LSTATUS esito = RegGetValueW(aperta, nullptr, nome.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &byte);
    if (esito == ERROR_SUCCESS) {
        testo.assign(byte / sizeof(wchar_t) + 1, L'\0');
        byte = static_cast<DWORD>(testo.size() * sizeof(wchar_t));
        esito = RegGetValueW(aperta, nullptr, nome.c_str(), RRF_RT_REG_SZ, nullptr, testo.data(), &byte);
    }
    return esito;
}

/// The text of a value in one view; nothing where key or value does not stand.
std::optional<std::string> testoDi(const std::string& chiave, const std::string& nome, REGSAM veduta) {
    const Chiave aperta(chiave, veduta);
    if (aperta.maniglia() == nullptr) {
        return std::nullopt;
    }
    std::wstring testo;
    const LSTATUS esito = leggiTesto(aperta.maniglia(), testoLargo(nome), testo);
    if (esito == ERROR_SUCCESS) {
        return testoStretto(std::wstring_view(testo).substr(0, testo.find(L'\0')));
    }
    const std::string dove = chiave + ", " + nome;
    if (esito == ERROR_UNSUPPORTED_TYPE) {
        throw Guasto(NumeroGuasto::tipoNonCorrispondente, "registro di sistema, " + dove);
    }
    if (!manca(esito)) {
        rifiuta(esito, dove);
    }
    return std::nullopt;
}

}  // namespace

std::vector<std::string> RegistroWindows::sottochiavi(const std::string& chiave) const {
    return LetturaVedute(vedute).nomi([&](REGSAM veduta, std::vector<std::string>& nomi) {
        const Chiave aperta(chiave, veduta);
        if (aperta.maniglia() != nullptr) {
            aggiungiSottochiavi(aperta.maniglia(), chiave, nomi);
        }
    });
}

std::string RegistroWindows::valore(const std::string& chiave, const std::string& nome) const {
    return LetturaVedute(vedute).valore([&](REGSAM veduta) { return testoDi(chiave, nome, veduta); });
}

}  // namespace kelvo
