#include "platform/Piattaforma.h"
#include "platform/linux/AutomazioneLinux.h"
#include "platform/linux/ProcessiLinux.h"
#include "platform/linux/ServiziLinux.h"
#include "platform/linux/SistemaFileLinux.h"
#include "platform/linux/cartelle.h"

namespace kelvo {

namespace {

class PiattaformaLinux final : public Piattaforma {
public:
    SistemaFile& file() override { return file_; }
    IstanzaUnica& istanza() override { return istanza_; }
    LocaleUtente& locale() override { return locale_; }
    Processi& processi() override { return processi_; }
    RegistroMacchina& registro() override { return registro_; }
    AutomazioneCAD& cad() override { return cad_; }
    ImpostazioniUtente* impostazioni() override { return nullptr; }
    ApriDocumenti* documenti() override { return nullptr; }

    std::string cartellaProgramma() const override { return cartellaEseguibile(); }
    std::string cartellaTemporanea() const override { return lavoro_; }
    std::string cartellaDati() const override { return cartellaDatiUtente(); }
    std::string cartellaCopia() const override {
        const std::string dati = percorsoDatiUtente();
        return dati.empty() || cartellaScrivibile(cartellaEseguibile()) ? std::string{} : dati + "/Prog/Kelvo";
    }

    std::vector<std::string> argomenti(int argc, char** argv) const override {
        return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>{};
    }
    /// Bytes pass as they are.
    void preparaUscite() const override {}

private:
    std::string lavoro_ = kelvo::cartellaTemporanea();
    SistemaFileLinux file_;
    IstanzaLinux istanza_{lavoro_};
    LocaleLinux locale_;
    ProcessiLinux processi_;
    RegistroLinux registro_;
    AutomazioneLinux cad_;
};

}  // namespace

std::unique_ptr<Piattaforma> creaPiattaforma() {
    return std::make_unique<PiattaformaLinux>();
}

}  // namespace kelvo
