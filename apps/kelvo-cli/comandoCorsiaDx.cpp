#include <fmt/format.h>

#include "Comando.h"
#include "argomenti.h"
#include "base/guasto.h"
#include "impedimenti.h"
#include "json.h"
#include "results/corsiaDestra.h"

namespace kelvo::cli {

namespace {

class ComandoCorsiaDx final : public ComandoSuFile {
public:
    explicit ComandoCorsiaDx(CLI::App& radice)
        : ComandoSuFile(radice, "corsia-dx", "Confronta gli ingressi con e senza corsie di svolta a destra",
                        "  kelvo-cli corsia-dx --posizioni 1,3 Rotatoria.klv > RisultatiDX.txt\n"
                        "  kelvo-cli corsia-dx --posizioni 2 --json *.klv") {
        aggiungiComuni();
        aggiungiTesto(*app_, "--posizioni", posizioni_,
                      "le svolte a destra con corsia: posizioni da 1 a 4, separate da virgole")
            ->type_name("POSIZIONI")
            ->required();
    }

private:
    std::string usoSbagliato() override {
        const auto lette = leggiCorsie(posizioni_);
        if (!lette) {
            return fmt::format("--posizioni: servono posizioni da 1 a 4, separate da virgole, non {}",
                               citato(posizioni_));
        }
        corsie_ = *lette;
        return {};
    }
    Impedimento impedimento(const Rotonda& rotonda) const override { return {.motivo = impedimentoCorsie(rotonda)}; }

    bool tratta(Contesto& contesto, const std::string& file) override {
        ConfrontoCorsie confronto;
        std::string testo;
        if (prepara(contesto, file)) {
            calcola(contesto, confronto, testo);
        }
        const bool riuscito = contesto.errori().empty();
        if (comuni_.json) {
            stampa(riga(json(contesto, file, confronto)));
        } else if (riuscito) {
            stampa(testo);
        }
        return riuscito;
    }

    void calcola(Contesto& contesto, ConfrontoCorsie& confronto, std::string& testo) const {
        const Rotonda& rotonda = contesto.app().theRotonda();
        confronto.calcola(contesto.app(), corsie_);
        try {
            testo = confronto.testo(rotonda, corsie_, contesto.app().orologio.adesso());
        } catch (const Guasto& guasto) {
            contesto.app().comune.erroreLog(guasto.codice(), std::string{testiDX::metodoAnteprima},
                                            guasto.descrizione(), false);
        }
    }

    Json json(Contesto& contesto, const std::string& file, const ConfrontoCorsie& confronto) const {
        Json uscita = {{"file", file}};
        if (contesto.caricato()) {
            const Rotonda& rotonda = contesto.app().theRotonda();
            uscita["NomeFile"] = rotonda.NomeFile();
            uscita["TipoAnalisi"] = rotonda.TipoAnalisi();
            uscita["TipoFlusso"] = rotonda.TipoFlusso();
            if (confronto.calcolato()) {
                uscita["corsie_dx"] = corsieJson(rotonda);
                uscita["rami"] = ramiJson(rotonda, confronto);
                uscita["tabella"] = tabellaJson(confronto.tabella());
            }
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }

    Json corsieJson(const Rotonda& rotonda) const {
        Matrice quote;
        rotonda.GetMatriceSvoltePercentuale(quote);
        Json uscita = Json::array();
        for (std::size_t k = 0; k < corsie_.size(); ++k) {
            if (corsie_[k]) {
                const PosizioneDX& p = posizioniDX[k];
                const auto o = static_cast<std::size_t>(p.origine - 1);
                const auto d = static_cast<std::size_t>(p.destinazione - 1);
                uscita.push_back({{"posizione", k + 1},
                                  {"origine", p.origine},
                                  {"destinazione", p.destinazione},
                                  {"quota", numero(quote[o][d])}});
            }
        }
        return uscita;
    }

    static Json totaliJson(const TotaliIngresso& t, const std::string& livello) {
        return {{"Flusso", numero(t.Flusso)}, {"Capacita", numero(t.Capacita)}, {"Coeff_Sat", numero(t.Coeff_Sat)},
                {"Coda", numero(t.Coda)},     {"Ritardo", numero(t.Ritardo)},   {"LOS", livello}};
    }

    static Json ramiJson(const Rotonda& rotonda, const ConfrontoCorsie& confronto) {
        Json uscita = Json::array();
        for (std::size_t i = 0; i < confronto.senza().size(); ++i) {
            const Ramo& ramo = rotonda.Ramo(static_cast<std::int16_t>(i + 1));
            uscita.push_back({{"Key", ramo.Key()},
                              {"Descrizione", ramo.Descrizione()},
                              {"senza", totaliJson(confronto.senza()[i], confronto.livello(false, i))},
                              {"con", totaliJson(confronto.con()[i], confronto.livello(true, i))}});
        }
        return uscita;
    }

    std::string posizioni_;
    CorsieDestra corsie_{};
};

}  // namespace

std::unique_ptr<Comando> comandoCorsiaDx(CLI::App& radice) {
    return std::make_unique<ComandoCorsiaDx>(radice);
}

}  // namespace kelvo::cli
