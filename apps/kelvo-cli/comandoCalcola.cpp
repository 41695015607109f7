#include <fmt/format.h>

#include <optional>

#include "Comando.h"
#include "argomenti.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "calcolaJson.h"
#include "impedimenti.h"
#include "results/TabellaCapacitaUltima.h"
#include "results/tabellaVerifiche.h"

namespace kelvo::cli {

namespace {

constexpr const char* esempi =
    "  kelvo-cli calcola Rotatoria.klv > Risultati.txt\n"
    "  kelvo-cli calcola --json *.klv > risultati.jsonl\n"
    "  kelvo-cli calcola --notte 20 Rotatoria.klv\n"
    "  kelvo-cli calcola --ramo 2 --geometria 4.5,3.5,12,30,20,45 Rotatoria.klv\n"
    "  kelvo-cli calcola --corsie-dx 1,3 Rotatoria.klv";

class ComandoCalcola final : public ComandoSuFile {
public:
    explicit ComandoCalcola(CLI::App& radice)
        : ComandoSuFile(radice, "calcola", "Calcola capacità, saturazione, code, ritardi e livelli di servizio",
                        esempi) {
        constexpr Estremi rami{.minimo = 1, .massimo = massimoRami};
        aggiungiComuni();
        aggiungiIntero(*app_, "--ramo", ramo_, rami, "dopo il calcolo, ricalcola con altre misure per questo ramo");
        aggiungiTesto(*app_, "--geometria", geometriaScritta_,
                      "le misure del ramo: e,v,l,phi,r,D con il punto decimale, o separate da ';' anche con la virgola")
            ->type_name("MISURE");
        aggiungiTesto(*app_, "--corsie-dx", corsieScritte_,
                      "calcola con le corsie di svolta a destra: posizioni da 1 a 4, separate da virgole")
            ->type_name("POSIZIONI");
    }

private:
    std::string usoSbagliato() override {
        const bool ipotesi = app_->count("--ramo") > 0;
        const bool corsie = app_->count("--corsie-dx") > 0;
        if (ipotesi != (app_->count("--geometria") > 0)) {
            return "le opzioni --ramo e --geometria vanno date insieme";
        }
        if (ipotesi && corsie) {
            return "--corsie-dx non si usa con --ramo e --geometria";
        }
        if (ipotesi && !(geometria_ = leggiGeometria(geometriaScritta_))) {
            return fmt::format("--geometria: servono sei numeri, e,v,l,phi,r,D, non {}", citato(geometriaScritta_));
        }
        if (corsie && !(corsie_ = leggiCorsie(corsieScritte_))) {
            return fmt::format("--corsie-dx: servono posizioni da 1 a 4, separate da virgole, non {}",
                               citato(corsieScritte_));
        }
        return {};
    }

    bool tratta(Contesto& contesto, const std::string& file) override {
        if (prepara(contesto, file)) {
            calcola(contesto);
        }
        bool riuscito = contesto.errori().empty();
        if (comuni_.json) {
            stampa(riga(calcolaJson(contesto, file, premessaJson())));
        } else if (riuscito) {
            riuscito = stampaTesto(contesto);
        }
        return riuscito;
    }

    Impedimento impedimento(const Rotonda& rotonda) const override {
        const std::string motivo = corsie_ ? impedimentoCorsie(rotonda) : impedimentoAnalisi(rotonda);
        return motivo.empty() && geometria_ ? impedimentoRamo(rotonda, ramo_) : Impedimento{.motivo = motivo};
    }

    void calcola(Contesto& contesto) {
        Rotonda& rotonda = contesto.app().theRotonda();
        modCalcolo motore(contesto.app());
        const std::string modo = testoNumero(rotonda.TipoFlusso());
        if (corsie_) {
            calcolaCorsie(motore, rotonda.TipoAnalisi(), modo);
            return;
        }
        calcolaPiano(motore, rotonda.TipoAnalisi(), modo);
        if (geometria_ && contesto.errori().empty()) {
            calcolaIpotesi(motore, rotonda.TipoAnalisi(), modo);
        }
    }

    static void calcolaPiano(modCalcolo& motore, int analisi, const std::string& modo) {
        if (analisi == 1) {
            motore.Calcola_Tempo_Flusso(modo);
        } else if (analisi == 2) {
            motore.Calcola_Tempo_Flusso_ST(modo);
        } else {
            motore.Calcola_Bilanciamento();
        }
    }

    void calcolaIpotesi(modCalcolo& motore, int analisi, const std::string& modo) const {
        if (analisi == 1) {
            motore.Calcola_Tempo_Flusso(ramo_, *geometria_, modo);
        } else if (analisi == 2) {
            motore.Calcola_Tempo_Flusso_ST(ramo_, *geometria_, modo);
        } else {
            motore.Calcola_Bilanciamento(ramo_, *geometria_);
        }
    }

    void calcolaCorsie(modCalcolo& motore, int analisi, const std::string& modo) const {
        if (analisi == 1) {
            motore.Calcola_Tempo_Flusso_DX(modo, *corsie_);
        } else {
            motore.Calcola_Tempo_Flusso_ST_DX(modo, *corsie_);
        }
    }

    /// What tells figures of another form from the project's own, in front of them; empty for the project's own.
    std::string premessa(const Rotonda& rotonda) const {
        if (corsie_) {
            return fmt::format("Con corsie preferenziali di svolta a destra: posizioni {}\r\n\r\n", corsieScritte_);
        }
        if (geometria_) {
            const Geometria& g = *geometria_;
            return fmt::format("Ipotesi: {} con e {}, v {}, l' {}, phi {}, r {}, D {}\r\n\r\n",
                               rotonda.Ramo(ramo_).Descrizione(), testoNumero(g.e), testoNumero(g.v), testoNumero(g.l),
                               testoNumero(g.phi), testoNumero(g.r), testoNumero(g.D));
        }
        return {};
    }

    Json premessaJson() const {
        Json premessa = Json::object();
        if (corsie_) {
            Json posizioni = Json::array();
            for (std::size_t i = 0; i < corsie_->size(); ++i) {
                if ((*corsie_)[i]) {
                    posizioni.push_back(i + 1);
                }
            }
            premessa["corsie_dx"] = posizioni;
        } else if (geometria_) {
            const Geometria& g = *geometria_;
            premessa["ipotesi"] = {{"ramo", ramo_},        {"e", numero(g.e)}, {"v", numero(g.v)}, {"l", numero(g.l)},
                                   {"phi", numero(g.phi)}, {"r", numero(g.r)}, {"D", numero(g.D)}};
        }
        return premessa;
    }

    bool stampaTesto(Contesto& contesto) const {
        const Rotonda& rotonda = contesto.app().theRotonda();
        const DataOra momento = contesto.app().orologio.adesso();
        try {
            if (rotonda.TipoAnalisi() == 1 || rotonda.TipoAnalisi() == 2) {
                Tabella tabella = impostaTabellaVerifiche(rotonda);
                riempiTabellaVerifiche(rotonda, tabella);
                stampa(premessa(rotonda) + testoVerifiche(tabella, rotonda, momento));
            } else {
                // Without demand over time the table of the entries is empty: the capacities are the result.
                TabellaCapacitaUltima tabella;
                tabella.riempi(rotonda);
                stampa(premessa(rotonda) + tabella.testo(rotonda, momento));
            }
        } catch (const Guasto& guasto) {
            contesto.app().comune.erroreLog(guasto.codice(), "frmCapacitaCodeRitardi:Calcola", guasto.descrizione(),
                                            false);
            return false;
        }
        return true;
    }

    std::int16_t ramo_ = 0;
    std::string geometriaScritta_;
    std::string corsieScritte_;
    std::optional<Geometria> geometria_;
    std::optional<CorsieDestra> corsie_;
};

}  // namespace

std::unique_ptr<Comando> comandoCalcola(CLI::App& radice) {
    return std::make_unique<ComandoCalcola>(radice);
}

}  // namespace kelvo::cli
