#include "platform/windows/AutomazioneWindows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/guasto.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo::prove {
namespace {

// The interfaces of the system have no virtual destructor: their objects end by Release.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// A program with the operations of a CAD program, in this process: writes down what it is asked.
class CadProva final : public IDispatch {
public:
    virtual ~CadProva() = default;
    CadProva() = default;
    CadProva(const CadProva&) = delete;
    CadProva& operator=(const CadProva&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID quale, void** oggetto) override {
        if (quale == IID_IUnknown || quale == IID_IDispatch) {
            *oggetto = static_cast<IDispatch*>(this);
            AddRef();
            return S_OK;
        }
        *oggetto = nullptr;
        return E_NOINTERFACE;
    }
    // It lives as long as its test.
    ULONG STDMETHODCALLTYPE AddRef() override { return ++riferimenti; }
    ULONG STDMETHODCALLTYPE Release() override { return --riferimenti; }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* quanti) override {
        *quanti = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* nomi, UINT, LCID, DISPID* numeri) override {
        if (const HRESULT rinvio = prossimo(rinviiNomi); rinvio != S_OK) {
            return rinvio;
        }
        const auto trovato = std::find(operazioni.begin(), operazioni.end(), testoStretto(nomi[0]));
        numeri[0] =
            trovato == operazioni.end() ? DISPID_UNKNOWN : static_cast<DISPID>(trovato - operazioni.begin()) + 1;
        return trovato == operazioni.end() ? DISP_E_UNKNOWNNAME : S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID numero, REFIID, LCID, WORD modo, DISPPARAMS* parametri, VARIANT* risposta,
                                     EXCEPINFO* rifiuto, UINT*) override {
        if (const HRESULT rinvio = prossimo(rinvii); rinvio != S_OK) {
            return rinvio;
        }
        const std::string operazione = operazioni.at(static_cast<std::size_t>(numero) - 1);
        passi.push_back(operazione + modoDi(modo, *parametri) + argomento(*parametri));
        if (operazione == rifiutata) {
            if (parole.empty()) {
                return E_FAIL;
            }
            rifiuto->bstrDescription = SysAllocString(testoLargo(parole).c_str());
            return DISP_E_EXCEPTION;
        }
        if (operazione == "HWND" && risposta != nullptr) {
            risposta->vt = VT_I4;
            risposta->lVal = 0;
        }
        return S_OK;
    }

    std::vector<std::string> operazioni{"Visible", "Activate", "LoadDVB", "RunMacro"};
    std::string rifiutata;            ///< the operation that fails
    std::string parole;               ///< with these words; empty: with a bare number
    std::vector<HRESULT> rinviiNomi;  ///< answers to the first questions for a name, instead of the number
    std::vector<HRESULT> rinvii;      ///< answers to the first calls, which are not carried out
    std::vector<std::string> passi;
    ULONG riferimenti = 1;

private:
    static HRESULT prossimo(std::vector<HRESULT>& attesi) {
        if (attesi.empty()) {
            return S_OK;
        }
        const HRESULT esito = attesi.front();
        attesi.erase(attesi.begin());
        return esito;
    }
    static std::string modoDi(WORD modo, const DISPPARAMS& parametri) {
        const bool scrive = parametri.cNamedArgs == 1 && parametri.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
        return modo == DISPATCH_PROPERTYPUT && scrive ? "=" : modo == DISPATCH_METHOD ? "()" : "?";
    }
    static std::string argomento(const DISPPARAMS& parametri) {
        if (parametri.cArgs != 1) {
            return parametri.cArgs == 0 ? "" : " too many";
        }
        const VARIANT& dato = parametri.rgvarg[0];
        if (dato.vt == VT_BOOL) {
            return dato.boolVal == VARIANT_TRUE ? " true" : " false";
        }
        return dato.vt == VT_BSTR ? " " + testoStretto(dato.bstrVal) : " of another kind";
    }
};

/// Hands the one program out.
class FabbricaProva final : public IClassFactory {
public:
    explicit FabbricaProva(CadProva& cad) : cad_(cad) {}
    virtual ~FabbricaProva() = default;
    FabbricaProva(const FabbricaProva&) = delete;
    FabbricaProva& operator=(const FabbricaProva&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID quale, void** oggetto) override {
        if (quale == IID_IUnknown || quale == IID_IClassFactory) {
            *oggetto = static_cast<IClassFactory*>(this);
            return S_OK;
        }
        *oggetto = nullptr;
        return E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* fuori, REFIID quale, void** oggetto) override {
        return fuori == nullptr ? cad_.QueryInterface(quale, oggetto) : CLASS_E_NOAGGREGATION;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

private:
    CadProva& cad_;
};

#pragma GCC diagnostic pop

/// An automation name of its own among the machine's, which leads to the program of this process.
struct ProveAutomazione : testing::Test {
    ProveAutomazione() {
        EXPECT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
        EXPECT_TRUE(SUCCEEDED(CoCreateGuid(&classe)));
        std::array<wchar_t, 64> testo{};
        EXPECT_GT(StringFromGUID2(classe, testo.data(), static_cast<int>(testo.size())), 0);
        progID = "Kelvo.Prova." + testoStretto(testo.data()).substr(1, 8);
        const std::wstring guid = testo.data();
        EXPECT_EQ(RegSetKeyValueW(HKEY_CLASSES_ROOT, (radice() + L"\\CLSID").c_str(), nullptr, REG_SZ, guid.c_str(),
                                  static_cast<DWORD>((guid.size() + 1) * sizeof(wchar_t))),
                  ERROR_SUCCESS);
    }
    ProveAutomazione(const ProveAutomazione&) = delete;
    ProveAutomazione& operator=(const ProveAutomazione&) = delete;
    ~ProveAutomazione() override {
        if (registrata != 0) {
            CoRevokeClassObject(registrata);
        }
        if (attiva != 0) {
            RevokeActiveObject(attiva, nullptr);
        }
        RegDeleteTreeW(HKEY_CLASSES_ROOT, radice().c_str());
        CoUninitialize();
    }
    std::wstring radice() const { return testoLargo(progID); }
    /// The program can be started.
    void installa() {
        ASSERT_TRUE(
            SUCCEEDED(CoRegisterClassObject(classe, &fabbrica, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &registrata)));
    }
    /// An instance of it runs; false where the system's table of running objects cannot be reached.
    bool avvia() {
        const HRESULT esito = RegisterActiveObject(&cad, classe, ACTIVEOBJECT_STRONG, &attiva);
        EXPECT_TRUE(SUCCEEDED(esito) || esito == HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE)) << esito;
        return SUCCEEDED(esito);
    }
    template <class Chiamata>
    static std::string guasto(Chiamata chiamata) {
        try {
            chiamata();
        } catch (const Guasto& g) {
            return std::to_string(g.codice()) + " " + g.descrizione();
        }
        return {};
    }

    CLSID classe{};
    std::string progID;
    CadProva cad;
    FabbricaProva fabbrica{cad};
    DWORD registrata = 0;
    DWORD attiva = 0;
    AutomazioneWindows automazione;
};

TEST_F(ProveAutomazione, AProgramThatIsNotThereAnswersCleanly) {
    EXPECT_EQ(automazione.impedimento(), "");
    const std::string nessuno = "Kelvo.NessunProgramma.17.2";
    EXPECT_EQ(automazione.inCorso(nessuno), nullptr);
    EXPECT_EQ(guasto([&] { automazione.crea(nessuno); }),
              "429 Il componente ActiveX non può creare l'oggetto (Kelvo.NessunProgramma.17.2)");
}

TEST_F(ProveAutomazione, ANameWithoutAProgramBehindItAnswersCleanly) {
    EXPECT_EQ(automazione.inCorso(progID), nullptr);
    const std::string detto = guasto([&] { automazione.crea(progID); });
    EXPECT_EQ(detto.substr(0, 4), "429 ") << detto;
    EXPECT_NE(detto.find(progID + ", codice 0x80040154"), std::string::npos) << detto;
}

TEST_F(ProveAutomazione, AProgramIsStartedAndAskedByTheNamesOfItsOperations) {
    installa();
    const auto programma = automazione.crea(progID);
    ASSERT_NE(programma, nullptr);
    programma->Visible(true);
    programma->Visible(false);
    programma->Activate();
    programma->LoadDVB("C:\\Città\\KelvoCAD2008.dvb");
    programma->RunMacro("C:\\Città\\KelvoCAD2008.dvb!Module1.LeggiDatiKlvFromKELVO");
    EXPECT_EQ(cad.passi, (std::vector<std::string>{
                             "Visible= true", "Visible= false", "Activate()", "LoadDVB() C:\\Città\\KelvoCAD2008.dvb",
                             "RunMacro() C:\\Città\\KelvoCAD2008.dvb!Module1.LeggiDatiKlvFromKELVO"}));
}

TEST_F(ProveAutomazione, TheInstanceThatRunsIsFoundByItsName) {
    EXPECT_EQ(automazione.inCorso(progID), nullptr);
    if (!avvia()) {
        GTEST_SKIP() << "the service that keeps the running objects is not there";
    }
    {
        const auto programma = automazione.inCorso(progID);
        ASSERT_NE(programma, nullptr);
        programma->Visible(true);
    }
    EXPECT_EQ(cad.passi, std::vector<std::string>{"Visible= true"});
}

TEST_F(ProveAutomazione, WhatTheProgramRefusesIsAFaultInItsWords) {
    installa();
    const auto programma = automazione.crea(progID);
    cad.rifiutata = "LoadDVB";
    cad.parole = "Il file non è un progetto";
    EXPECT_EQ(guasto([&] { programma->LoadDVB("a.dvb"); }),
              "440 Errore di automazione (LoadDVB: Il file non è un progetto)");
    cad.parole.clear();
    EXPECT_EQ(guasto([&] { programma->LoadDVB("a.dvb"); }), "440 Errore di automazione (LoadDVB: codice 0x80004005)");
}

TEST_F(ProveAutomazione, AProgramThatIsBusyIsCalledAgain) {
    installa();
    const auto programma = automazione.crea(progID);
    cad.rinviiNomi = {RPC_E_CALL_REJECTED, RPC_E_SERVERCALL_RETRYLATER};
    EXPECT_EQ(guasto([&] { programma->LoadDVB("a.dvb"); }), "");
    EXPECT_EQ(cad.passi, std::vector<std::string>{"LoadDVB() a.dvb"}) << "once, when it is taken";
    EXPECT_TRUE(cad.rinviiNomi.empty());
    cad.rinvii = {RPC_E_SERVERCALL_RETRYLATER, RPC_E_CALL_REJECTED};
    EXPECT_EQ(guasto([&] { programma->RunMacro("a!b"); }), "");
    EXPECT_EQ(cad.passi, (std::vector<std::string>{"LoadDVB() a.dvb", "RunMacro() a!b"}));
    EXPECT_TRUE(cad.rinvii.empty());
}

TEST_F(ProveAutomazione, AnyOtherRefusalStandsAtOnce) {
    installa();
    const auto programma = automazione.crea(progID);
    cad.rinvii = {RPC_E_DISCONNECTED};
    EXPECT_EQ(guasto([&] { programma->LoadDVB("a.dvb"); }), "440 Errore di automazione (LoadDVB: codice 0x80010108)");
    cad.rinviiNomi = {RPC_E_DISCONNECTED};
    EXPECT_EQ(guasto([&] { programma->RunMacro("a!b"); }), "440 Errore di automazione (RunMacro: codice 0x80010108)");
    EXPECT_TRUE(cad.passi.empty());
}

TEST_F(ProveAutomazione, WhatTheProgramDoesNotKnowIsAFault) {
    installa();
    const auto programma = automazione.crea(progID);
    cad.operazioni = {"Visible"};
    EXPECT_EQ(guasto([&] { programma->RunMacro("a!b"); }),
              "438 Proprietà o metodo non supportati dall'oggetto (RunMacro)");
}

TEST_F(ProveAutomazione, AProgramWithoutAnOperationForItComesToTheFrontByItsWindow) {
    installa();
    const auto programma = automazione.crea(progID);
    cad.operazioni = {"Visible", "HWND"};
    EXPECT_EQ(guasto([&] { programma->Activate(); }), "");
    EXPECT_EQ(cad.passi, std::vector<std::string>{"HWND?"});
    cad.operazioni = {"Visible"};
    EXPECT_EQ(guasto([&] { programma->Activate(); }), "") << "there is nothing to bring it there by";
}

TEST_F(ProveAutomazione, EveryReferenceIsGivenBack) {
    installa();
    const ULONG prima = cad.riferimenti;
    { const auto programma = automazione.crea(progID); }
    EXPECT_EQ(cad.riferimenti, prima);
}

}  // namespace
}  // namespace kelvo::prove
