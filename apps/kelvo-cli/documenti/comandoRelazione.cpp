#include <fmt/format.h>

#include <array>
#include <filesystem>
#include <functional>

#include "Pittore.h"
#include "app/convertitorePDF.h"
#include "argomenti.h"
#include "base/file.h"
#include "base/guasto.h"
#include "base/testo.h"
#include "documenti/documenti.h"
#include "impedimenti.h"
#include "platform/Piattaforma.h"
#include "reports/modStampaRelazione.h"

namespace kelvo::cli {

namespace {

/// The reports by the name that the command line gives them.
struct Tipo {
    std::string_view nome;
    bool conRisultati;
    EsitoRelazione (*compila)(modStampaRelazione& modulo);
};
constexpr std::array<Tipo, 5> tipi{{
    {"ingresso", false, [](modStampaRelazione& m) { return m.compilaRelazioneWord("RelazioneMasterIN"); }},
    {"risultati", true, [](modStampaRelazione& m) { return m.compilaAllegatiWord("RelazioneMasterOUT"); }},
    {"completa", true, [](modStampaRelazione& m) { return m.compilaRelazioneWord("RelazioneMasterIN-OUT.dot"); }},
    {"totale", true, [](modStampaRelazione& m) { return m.compilaRelazioneWord("RelazioneMasterTOT.dot"); }},
    {"grafici", true, [](modStampaRelazione& m) { return m.compilaGrafici(); }},
}};

std::string nomiTipi() {
    std::string nomi;
    for (const Tipo& tipo : tipi) {
        nomi += (nomi.empty() ? "" : ", ") + std::string{tipo.nome};
    }
    return nomi;
}

/// True if the file `uscita` is the template that `modello` names, however either is spelled.
bool eIlModello(const std::string& uscita, const std::string& modello) {
    if (modello.empty()) {
        return false;
    }
    const std::filesystem::path scelto = percorsoDaTesto(modello);
    const std::string trovato = trovaModello(testoDaPercorso(scelto.parent_path()), testoDaPercorso(scelto.filename()));
    return !trovato.empty() && stessoFile(uscita, trovato);
}

class ComandoRelazione final : public ComandoSuFile {
public:
    explicit ComandoRelazione(CLI::App& radice)
        : ComandoSuFile(radice, "relazione", "Compila una relazione del progetto in un documento .docx",
                        "  kelvo-cli relazione --tipo completa -o Relazione.docx Rotatoria.klv\n"
                        "  kelvo-cli relazione --tipo ingresso --modello Studio.dotx -o Ipotesi.docx Rotatoria.klv\n"
                        "  kelvo-cli relazione --tipo totale --pdf -o Relazione.docx Rotatoria.klv",
                        Quanti::uno) {
        app_->add_option_function<std::string>(
                "--tipo",
                [this](const std::string& testo) {
                    for (const Tipo& tipo : tipi) {
                        tipo_ = tipo.nome == testo ? &tipo : tipo_;
                    }
                    if (tipo_ == nullptr) {
                        throw CLI::ValidationError("--tipo",
                                                   fmt::format("serve uno di {}, non {}", nomiTipi(), citato(testo)));
                    }
                },
                "quale relazione: " + nomiTipi())
            ->type_name("TIPO")
            ->required();
        aggiungiTesto(*app_, "-o,--uscita", uscita_, "documento .docx da scrivere; se esiste viene sostituito")
            ->type_name("FILE")
            ->required();
        aggiungiTesto(*app_, "--modello", modello_,
                      "modello .dotx proprio, al posto di quello di Kelvo; non vale per i grafici")
            ->type_name("FILE");
        app_->add_flag("--pdf", pdf_,
                       "scrive accanto al documento anche il suo PDF, che sostituisce quello che c'è; serve un "
                       "programma d'ufficio (LibreOffice)");
        aggiungiIni(comuni_);
        aggiungiNotte(comuni_);
    }

private:
    std::string usoSbagliato() override {
        if (maiuscoleAscii(ultimiCaratteri(uscita_, 5)) != ".DOCX") {
            return fmt::format("{}: serve un nome che finisce con .docx", citato(uscita_));
        }
        if (eIlModello(uscita_, modello_)) {
            return fmt::format("{}: è il modello, che la relazione sostituirebbe", citato(uscita_));
        }
        return stessoFile(uscita_, file_.front())
                   ? fmt::format("{}: è il progetto, che la relazione sostituirebbe", citato(uscita_))
                   : std::string{};
    }

    Impedimento impedimento(const Rotonda& rotonda) const override {
        return {.motivo = tipo_->conRisultati ? impedimentoAnalisi(rotonda) : std::string{}};
    }

    bool tratta(Contesto& contesto, const std::string& file) override {
        return prepara(contesto, file) && compila(contesto);
    }

    bool compila(Contesto& contesto) const {
        const auto pittore = creaPittore(contesto.app().theAmbiente.PercorsoProgramma("Caratteri"));
        ServiziRelazione servizi{.messaggi = contesto};
        servizi.disegnatore = pittore ? &pittore->disegnatore() : nullptr;
        servizi.percorso = uscita_;
        servizi.modelloProprio = modello_;
        const auto sistema = creaPiattaforma();
        ConvertitoreUfficio convertitore(sistema->processi(), sistema->file(), sistema->cartellaTemporanea());
        servizi.pdf = pdf_ ? &convertitore : nullptr;
        modStampaRelazione modulo(contesto.app(), servizi);
        const EsitoRelazione esito = tipo_->compila(modulo);
        // What a template of one's own leaves out has been told and is no failure; anything else is.
        const bool intera = contesto.errori().size() == static_cast<std::size_t>(modulo.sezioniMancanti());
        return esito == EsitoRelazione::fatta && intera;
    }

    const Tipo* tipo_ = nullptr;
    std::string uscita_;
    std::string modello_;
    bool pdf_ = false;
};

}  // namespace

std::unique_ptr<Comando> comandoRelazione(CLI::App& radice) {
    return std::make_unique<ComandoRelazione>(radice);
}

}  // namespace kelvo::cli
