#include "Comando.h"
#include "app/percorsi.h"
#include "checkup/modERRORI.h"
#include "json.h"

namespace kelvo::cli {

namespace {

class ComandoControllo final : public ComandoSuFile {
public:
    explicit ComandoControllo(CLI::App& radice)
        : ComandoSuFile(radice, "controllo",
                        "Controlla i dati di un progetto ed elenca errori, verifiche, informazioni",
                        "  kelvo-cli controllo Rotatoria.klv\n"
                        "  kelvo-cli controllo --json *.klv > controllo.jsonl") {
        aggiungiIni(comuni_);
        aggiungiJson();
    }

    int esegui() override {
        const int uscita = ComandoSuFile::esegui();
        return errore_ ? uscitaErroriProgetto : uscita;
    }

private:
    /// A coefficient of 0 is a finding here.
    Configurazione configurazione() const override { return Configurazione::letta; }

    bool tratta(Contesto& contesto, const std::string& file) override {
        Applicazione& app = contesto.app();
        modERRORI errori(app);
        if (prepara(contesto, file)) {
            // A project is called by its file, as the desktop calls it.
            app.theRotonda().NomeFile(nomeProgetto(file));
            errori.svuota();
            errori.AnalisiProgetto();
            for (const Riscontro& riscontro : errori.ctlTreeAnalizzatore.riscontri) {
                errore_ = errore_ || riscontro.livello == Livello::Red;
            }
        }
        if (comuni_.json) {
            stampa(riga(json(contesto, file, errori.ctlTreeAnalizzatore)));
        } else if (contesto.caricato()) {
            stampa(testoReport(errori.ctlTreeAnalizzatore, app.orologio.adesso(), app.theRotonda().NomeFile()));
        }
        return contesto.errori().empty();
    }

    static Json json(Contesto& contesto, const std::string& file, const AlberoRiscontri& albero) {
        Json uscita = {{"file", file}};
        if (contesto.caricato()) {
            Json riscontri = Json::array();
            for (const Riscontro& riscontro : albero.riscontri) {
                riscontri.push_back(json(riscontro));
            }
            uscita["NomeFile"] = contesto.app().theRotonda().NomeFile();
            uscita["riscontri"] = riscontri;
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }

    static Json json(const Riscontro& riscontro) {
        Json meta = {{"chiave", riscontro.meta.chiave}, {"campo", riscontro.meta.campo}};
        if (riscontro.meta.ramo > 0) {
            meta["ramo"] = riscontro.meta.ramo;
        }
        if (riscontro.meta.riga > 0) {
            meta["riga"] = riscontro.meta.riga;
        }
        return {{"livello", nomeLivello(riscontro.livello)},
                {"titolo", titoloRiscontro(riscontro.testo)},
                {"testo", messaggioRiscontro(riscontro.testo)},
                {"meta", meta}};
    }

    bool errore_ = false;  ///< a project has a finding of the level of errors
};

}  // namespace

std::unique_ptr<Comando> comandoControllo(CLI::App& radice) {
    return std::make_unique<ComandoControllo>(radice);
}

}  // namespace kelvo::cli
