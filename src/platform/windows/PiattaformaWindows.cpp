#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "platform/Piattaforma.h"
#include "platform/windows/AutomazioneWindows.h"
#include "platform/windows/ProcessiWindows.h"
#include "platform/windows/RegistroWindows.h"
#include "platform/windows/ServiziWindows.h"
#include "platform/windows/SistemaFileWindows.h"
#include "platform/windows/cartelle.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo {

namespace {

class PiattaformaWindows final : public Piattaforma {
public:
    SistemaFile& file() override { return file_; }
    IstanzaUnica& istanza() override { return istanza_; }
    LocaleUtente& locale() override { return locale_; }
    Processi& processi() override { return processi_; }
    RegistroMacchina& registro() override { return registro_; }
    AutomazioneCAD& cad() override { return cad_; }
    ImpostazioniUtente* impostazioni() override { return &impostazioni_; }
    ApriDocumenti* documenti() override { return &documenti_; }

    std::string cartellaProgramma() const override { return cartellaEseguibile(); }
    std::string cartellaTemporanea() const override { return kelvo::cartellaTemporanea(); }
    std::string cartellaDati() const override { return cartellaDatiUtente(); }
    std::string cartellaCopia() const override {
        return cartellaScrivibile(cartellaEseguibile()) ? std::string{} : cartellaDatiUtente() + "\\Prog\\Kelvo";
    }

    /// From the system: what `main` is given is not in UTF-8.
    std::vector<std::string> argomenti(int /*argc*/, char** /*argv*/) const override {
        int quante = 0;
        wchar_t** const parole = CommandLineToArgvW(GetCommandLineW(), &quante);
        std::vector<std::string> trovate;
        for (int i = 1; parole != nullptr && i < quante; ++i) {
            trovate.push_back(testoStretto(parole[i]));
        }
        LocalFree(parole);
        return trovate;
    }
    void preparaUscite() const override {
        _setmode(_fileno(stdout), _O_BINARY);
        _setmode(_fileno(stderr), _O_BINARY);
        SetConsoleOutputCP(CP_UTF8);
    }

private:
    SistemaFileWindows file_;
    IstanzaWindows istanza_;
    LocaleWindows locale_;
    ProcessiWindows processi_;
    RegistroWindows registro_;
    AutomazioneWindows cad_;
    ImpostazioniWindows impostazioni_;
    ApriDocumentiWindows documenti_;
};

}  // namespace

std::unique_ptr<Piattaforma> creaPiattaforma() {
    return std::make_unique<PiattaformaWindows>();
}

}  // namespace kelvo
