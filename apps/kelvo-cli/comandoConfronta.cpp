#include <optional>
#include <variant>

#include "Comando.h"
#include "argomenti.h"
#include "base/guasto.h"
#include "json.h"
#include "results/risultatiProgetto.h"
#include "results/varianti.h"

namespace kelvo::cli {

namespace {

Json valoreJson(const ValoreDato& valore) {
    struct Scrittura {
        Json operator()(float v) const { return numero(v); }
        Json operator()(double v) const { return numero(v); }
        Json operator()(const std::string& v) const { return v; }
        Json operator()(bool v) const { return v; }
        Json operator()(std::int16_t v) const { return v; }
    };
    return std::visit(Scrittura{}, valore);
}

Json valoreJson(const std::optional<ValoreDato>& valore) {
    return valore ? valoreJson(*valore) : Json(nullptr);
}

/// One of the two projects.
struct Variante {
    std::string file{};
    Contesto contesto{};
    std::optional<EsitiVariante> esiti{};
};

class ComandoConfronta final : public Comando {
public:
    explicit ComandoConfronta(CLI::App& radice)
        : Comando(radice, "confronta", "Confronta due varianti di un progetto: dati di ingresso e risultati",
                  "  kelvo-cli confronta Stato_di_fatto.klv Progetto.klv\n"
                  "  kelvo-cli confronta --json Stato_di_fatto.klv Progetto.klv > confronto.json") {
        aggiungiTesto(*app_, "A", fileA_, "file di progetto .klv della prima variante")->required()->type_name("");
        aggiungiTesto(*app_, "B", fileB_, "file di progetto .klv della seconda, confrontata con la prima")
            ->required()
            ->type_name("");
        aggiungiIni(comuni_);
        aggiungiNotte(comuni_);
        aggiungiJson("una riga di JSON, con i numeri a piena precisione");
    }

    int esegui() override {
        Variante a{.file = fileA_};
        Variante b{.file = fileB_};
        if (!inizia(a.contesto) || !inizia(b.contesto)) {
            return uscitaUsoErrato;
        }
        calcola(a);
        calcola(b);
        std::optional<ConfrontoVarianti> confronto;
        if (a.contesto.caricato() && b.contesto.caricato()) {
            confronto.emplace(ConfrontoVarianti{.a = a.contesto.app().theRotonda(),
                                                .b = b.contesto.app().theRotonda(),
                                                .nomeA = a.file,
                                                .nomeB = b.file});
            confronta(a, b, *confronto);
        }
        if (comuni_.json) {
            stampa(riga(json(a, b, confronto)));
        } else if (confronto) {
            // What differs in the input is told even where a calculation failed; the exit code tells of that.
            stampa(testoVarianti(*confronto, a.contesto.app().orologio.adesso()));
        }
        return a.contesto.errori().empty() && b.contesto.errori().empty() ? uscitaFatto : uscitaFallito;
    }

private:
    Impedimento impedimento(const Rotonda& rotonda) const override { return {.motivo = impedimentoAnalisi(rotonda)}; }

    void calcola(Variante& variante) const {
        Applicazione& app = variante.contesto.app();
        if (!prepara(variante.contesto, variante.file) || !assicuraRisultati(app)) {
            return;
        }
        try {
            variante.esiti = esitiVariante(app.theRotonda());
        } catch (const Guasto& guasto) {
            app.comune.erroreLog(guasto.codice(), "confronta", guasto.descrizione(), false);
        }
    }

    static void confronta(Variante& a, const Variante& b, ConfrontoVarianti& confronto) {
        confronto.differenze = differenze(confronto.a, confronto.b);
        if (a.esiti && b.esiti) {
            confronto.esiti = confrontaEsiti(*a.esiti, *b.esiti);
        }
    }

    static Json varianteJson(Variante& variante) {
        Json uscita = {{"file", variante.file}};
        if (variante.contesto.caricato()) {
            Applicazione& app = variante.contesto.app();
            const Rotonda& rotonda = app.theRotonda();
            uscita["NomeFile"] = rotonda.NomeFile();
            uscita["TipoAnalisi"] = rotonda.TipoAnalisi();
            uscita["TipoFlusso"] = rotonda.TipoFlusso();
            uscita["NumeroRami"] = rotonda.NumeroRami();
            uscita["notte"] = rotonda.CondizioniNotturne() ? app.theAmbiente.PercentualeNotturna() : 0;
        }
        uscita["errori"] = erroriJson(variante.contesto);
        return uscita;
    }

    static Json differenzeJson(const DifferenzeProgetti& differenze) {
        Json uscita = Json::array();
        for (const Differenza& d : differenze.dati) {
            uscita.push_back({{"campo", d.campo},
                              {"ramo", d.ramo > 0 ? Json(d.ramo) : Json(nullptr)},
                              {"nome", d.nome},
                              {"A", valoreJson(d.a)},
                              {"B", valoreJson(d.b)},
                              {"differenza", valoreJson(d.scarto)},
                              {"inUsoA", d.usoA},
                              {"inUsoB", d.usoB}});
        }
        return uscita;
    }

    static Json grandezzeJson(const std::vector<RigaVarianti>& righe) {
        Json uscita = Json::object();
        for (const RigaVarianti& r : righe) {
            const std::string_view giudizio = parolaGiudizio(r.giudizio);
            uscita[std::string{r.grandezza->chiave}] = {
                {"A", valoreJson(r.a.valore)},
                {"B", valoreJson(r.b.valore)},
                {"differenza", valoreJson(r.scarto)},
                {"giudizio", giudizio.empty() ? Json(nullptr) : Json(giudizio)}};
        }
        return uscita;
    }

    static Json risultatiJson(const ConfrontoVarianti& confronto) {
        Json ingressi = Json::array();
        std::int16_t ramo = 0;
        for (const std::vector<RigaVarianti>& righe : confronto.esiti->ingressi) {
            ++ramo;
            const auto nome = [ramo](const Rotonda& rotonda) {
                return ramo <= rotonda.NumeroRami() ? Json(rotonda.Ramo(ramo).Descrizione()) : Json(nullptr);
            };
            ingressi.push_back({{"ramo", ramo},
                                {"DescrizioneA", nome(confronto.a)},
                                {"DescrizioneB", nome(confronto.b)},
                                {"grandezze", grandezzeJson(righe)}});
        }
        return {{"ingressi", ingressi}, {"nodo", grandezzeJson(confronto.esiti->nodo)}};
    }

    static Json json(Variante& a, Variante& b, const std::optional<ConfrontoVarianti>& confronto) {
        Json uscita = {{"A", varianteJson(a)}, {"B", varianteJson(b)}};
        if (confronto) {
            uscita["identici"] = confronto->differenze.identici();
            uscita["note"] = confronto->differenze.note;
            uscita["dati"] = differenzeJson(confronto->differenze);
            if (confronto->esiti) {
                uscita["risultati"] = risultatiJson(*confronto);
            }
        }
        return uscita;
    }

    std::string fileA_;
    std::string fileB_;
};

}  // namespace

std::unique_ptr<Comando> comandoConfronta(CLI::App& radice) {
    return std::make_unique<ComandoConfronta>(radice);
}

}  // namespace kelvo::cli
