#include "platform/windows/AutomazioneWindows.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include "base/guasto.h"
#include "platform/insisti.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

/// A reference to an object of the system, given back at the end.
template <class T>
class Riferimento {
public:
    Riferimento() = default;
    explicit Riferimento(T* oggetto) : oggetto_(oggetto) {}
    Riferimento(Riferimento&& altro) noexcept : oggetto_(std::exchange(altro.oggetto_, nullptr)) {}
    Riferimento& operator=(Riferimento&&) = delete;
    Riferimento(const Riferimento&) = delete;
    Riferimento& operator=(const Riferimento&) = delete;
    ~Riferimento() {
        if (oggetto_ != nullptr) {
            oggetto_->Release();
        }
    }
    T* operator->() const { return oggetto_; }
    explicit operator bool() const { return oggetto_ != nullptr; }
    T** posto() { return &oggetto_; }

private:
    T* oggetto_ = nullptr;
};

/// A value as automation passes it.
class Valore {
public:
    Valore() { VariantInit(&valore_); }
    explicit Valore(bool vero) : Valore() {
        valore_.vt = VT_BOOL;
        valore_.boolVal = vero ? VARIANT_TRUE : VARIANT_FALSE;
    }
    explicit Valore(const std::string& testo) : Valore() {
        valore_.vt = VT_BSTR;
        valore_.bstrVal = SysAllocString(testoLargo(testo).c_str());
    }
    Valore(const Valore&) = delete;
    Valore& operator=(const Valore&) = delete;
    ~Valore() { VariantClear(&valore_); }
    VARIANT* posto() { return &valore_; }
    const VARIANT& dato() const { return valore_; }

private:
    VARIANT valore_{};
};

std::string testoBSTR(BSTR testo) {
    return testo == nullptr ? std::string{} : testoStretto(std::wstring_view(testo, SysStringLen(testo)));
}

std::string paroleEsito(HRESULT esito) {
    std::string numero(8, '0');
    auto resto = static_cast<std::uint32_t>(esito);
    constexpr std::string_view cifre = "0123456789ABCDEF";
    for (auto posto = numero.rbegin(); posto != numero.rend(); ++posto, resto >>= 4U) {
        *posto = cifre[resto & 0xFU];
    }
    return "codice 0x" + numero;
}

/// What the program itself said of a refusal, else the number of the system.
std::string paroleRifiuto(EXCEPINFO& rifiuto, HRESULT esito) {
    if (rifiuto.pfnDeferredFillIn != nullptr) {
        rifiuto.pfnDeferredFillIn(&rifiuto);
    }
    std::string parole = testoBSTR(rifiuto.bstrDescription);
    SysFreeString(rifiuto.bstrDescription);
    SysFreeString(rifiuto.bstrSource);
    SysFreeString(rifiuto.bstrHelpFile);
    return parole.empty() ? paroleEsito(rifiuto.scode != 0 ? rifiuto.scode : esito) : parole;
}

/// A program that still starts, or is busy, turns a call away and is to be called again.
bool rimandata(HRESULT esito) {
    return esito == RPC_E_CALL_REJECTED || esito == RPC_E_SERVERCALL_RETRYLATER;
}

/// Calls until the program takes the call: for about a minute, then its refusal stands.
template <class Chiamata>
HRESULT richiama(Chiamata chiamata) {
    constexpr int tentativi = 240;
    constexpr DWORD pausa = 250;  // ms
    return insisti(tentativi, chiamata, rimandata, [] { Sleep(pausa); });
}

class ProgrammaWindows final : public ProgrammaCAD {
public:
    explicit ProgrammaWindows(Riferimento<IDispatch> oggetto) : oggetto_(std::move(oggetto)) {}

    void Visible(bool valore) override {
        Valore argomento(valore);
        chiama("Visible", DISPATCH_PROPERTYPUT, &argomento);
    }
    /// Where the program has no operation of that name, by its window.
    void Activate() override {
        DISPID numero = 0;
        if (conosce("Activate", numero)) {
            chiama("Activate", DISPATCH_METHOD, nullptr);
        } else if (conosce("HWND", numero)) {
            Valore finestra;
            chiama("HWND", DISPATCH_PROPERTYGET, nullptr, &finestra);
            if (SUCCEEDED(VariantChangeType(finestra.posto(), finestra.posto(), 0, VT_I8))) {
                SetForegroundWindow(reinterpret_cast<HWND>(static_cast<std::intptr_t>(finestra.dato().llVal)));
            }
        }
    }
    void LoadDVB(const std::string& percorso) override {
        Valore argomento(percorso);
        chiama("LoadDVB", DISPATCH_METHOD, &argomento);
    }
    void RunMacro(const std::string& nome) override {
        Valore argomento(nome);
        chiama("RunMacro", DISPATCH_METHOD, &argomento);
    }

private:
    bool conosce(const std::string& operazione, DISPID& numero) const {
        std::wstring nome = testoLargo(operazione);
        LPOLESTR parola = nome.data();
        const HRESULT esito =
            richiama([&] { return oggetto_->GetIDsOfNames(IID_NULL, &parola, 1, LOCALE_USER_DEFAULT, &numero); });
        if (FAILED(esito) && esito != DISP_E_UNKNOWNNAME) {
            throw guastoAutomazione(erroreAutomazione, operazione + ": " + paroleEsito(esito));
        }
        return SUCCEEDED(esito);
    }

    void chiama(const std::string& operazione, WORD modo, Valore* argomento, Valore* risposta = nullptr) const {
        DISPID numero = 0;
        if (!conosce(operazione, numero)) {
            throw guastoAutomazione(proprietaNonSupportata, operazione);
        }
        DISPID scrittura = DISPID_PROPERTYPUT;
        DISPPARAMS parametri{};
        if (argomento != nullptr) {
            parametri.rgvarg = argomento->posto();
            parametri.cArgs = 1;
        }
        if (modo == DISPATCH_PROPERTYPUT) {
            parametri.rgdispidNamedArgs = &scrittura;
            parametri.cNamedArgs = 1;
        }
        Valore perso;
        EXCEPINFO rifiuto{};
        VARIANT* const esce =
            modo == DISPATCH_PROPERTYPUT ? nullptr : (risposta != nullptr ? *risposta : perso).posto();
        const HRESULT esito = richiama([&] {
            return oggetto_->Invoke(numero, IID_NULL, LOCALE_USER_DEFAULT, modo, &parametri, esce, &rifiuto, nullptr);
        });
        if (esito == DISP_E_MEMBERNOTFOUND) {
            throw guastoAutomazione(proprietaNonSupportata, operazione);
        }
        if (FAILED(esito)) {
            throw guastoAutomazione(erroreAutomazione, operazione + ": " + paroleRifiuto(rifiuto, esito));
        }
    }

    Riferimento<IDispatch> oggetto_;
};

bool classeDi(const std::string& nome, CLSID& classe) {
    return SUCCEEDED(CLSIDFromProgID(testoLargo(nome).c_str(), &classe));
}

}  // namespace

AutomazioneWindows::~AutomazioneWindows() {
    if (daChiudere_) {
        CoUninitialize();
    }
}

void AutomazioneWindows::prepara() {
    if (!preparata_) {
        preparata_ = true;
        // Refused where the thread has been made ready in another way before: then it is ready.
        daChiudere_ = SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    }
}

std::unique_ptr<ProgrammaCAD> AutomazioneWindows::inCorso(const std::string& nome) {
    prepara();
    CLSID classe{};
    Riferimento<IUnknown> trovato;
    Riferimento<IDispatch> oggetto;
    if (!classeDi(nome, classe) || FAILED(GetActiveObject(classe, nullptr, trovato.posto())) ||
        FAILED(trovato->QueryInterface(IID_PPV_ARGS(oggetto.posto())))) {
        return nullptr;
    }
    return std::make_unique<ProgrammaWindows>(std::move(oggetto));
}

std::unique_ptr<ProgrammaCAD> AutomazioneWindows::crea(const std::string& nome) {
    prepara();
    CLSID classe{};
    Riferimento<IDispatch> oggetto;
    if (!classeDi(nome, classe)) {
        throw guastoAutomazione(componenteActiveX, nome);
    }
    const HRESULT esito = CoCreateInstance(classe, nullptr, CLSCTX_SERVER, IID_PPV_ARGS(oggetto.posto()));
    if (FAILED(esito)) {
        throw guastoAutomazione(componenteActiveX, nome + ", " + paroleEsito(esito));
    }
    return std::make_unique<ProgrammaWindows>(std::move(oggetto));
}

}  // namespace kelvo
