#include <fmt/format.h>

#include <algorithm>
#include <optional>

#include "Comando.h"
#include "argomenti.h"
#include "base/guasto.h"
#include "base/testo.h"
#include "impedimenti.h"
#include "json.h"
#include "pianta/ipotesi.h"
#include "results/Sensibilita.h"

namespace kelvo::cli {

namespace {

/// The words of the measures on the command line, in the order of the project.
constexpr auto& parole = pianta::vociMisure;
static_assert(parole.size() == numeroParametri);

std::string elencoParole() {
    std::string elenco;
    for (const pianta::VoceMisura& voce : parole) {
        elenco += fmt::format("{}{}", elenco.empty() ? "" : ", ", voce.argomento);
    }
    return elenco;
}

std::optional<std::size_t> parametroDi(const std::string& parola) {
    const auto trovata =
        std::find_if(parole.begin(), parole.end(), [&](const pianta::VoceMisura& v) { return v.argomento == parola; });
    return trovata == parole.end() ? std::nullopt : std::optional{static_cast<std::size_t>(trovata - parole.begin())};
}

class ComandoSensibilita final : public ComandoSuFile {
public:
    explicit ComandoSensibilita(CLI::App& radice)
        : ComandoSuFile(radice, "sensibilita", "Mostra l'effetto delle misure di un ingresso, passo per passo",
                        "  kelvo-cli sensibilita --ramo 2 Rotatoria.klv\n"
                        "  kelvo-cli sensibilita --ramo 2 --parametro larghezza Rotatoria.klv\n"
                        "  kelvo-cli sensibilita --ramo 1 --json *.klv > passi.jsonl") {
        aggiungiComuni();
        aggiungiIntero(*app_, "--ramo", ramo_, {.minimo = 1, .massimo = massimoRami},
                       fmt::format("numero del ramo, da 1 a {}", massimoRami))
            ->required();
        aggiungiTesto(*app_, "--parametro", parola_,
                      "una sola misura: " + elencoParole() + " (se manca: quelle scelte nel progetto)")
            ->type_name("PARAMETRO");
    }

private:
    std::string usoSbagliato() override {
        if (app_->count("--parametro") == 0) {
            return {};
        }
        scelto_ = parametroDi(parola_);
        return scelto_ ? std::string{}
                       : fmt::format("--parametro: serve uno tra {}, non {}", elencoParole(), citato(parola_));
    }

    Impedimento impedimento(const Rotonda& rotonda) const override {
        if (const std::string motivo = impedimentoAnalisi(rotonda); !motivo.empty()) {
            return {.motivo = motivo};
        }
        if (Impedimento no = impedimentoRamo(rotonda, ramo_); scelto_ || !no.motivo.empty()) {
            return no;
        }
        Sensibilita misure;
        misure.imposta(rotonda, ramo_);
        return {.motivo = misure.nessunoAttivo() ? fmt::format("{}: il progetto non ha misure scelte per l'analisi, se "
                                                               "ne può indicare una con --parametro",
                                                               rotonda.Ramo(ramo_).Descrizione())
                                                 : std::string{}};
    }

    bool tratta(Contesto& contesto, const std::string& file) override {
        Sensibilita sensibilita;
        if (prepara(contesto, file)) {
            calcola(contesto, sensibilita);
        }
        const bool riuscito = contesto.errori().empty();
        if (comuni_.json) {
            stampa(riga(json(contesto, file, sensibilita)));
        } else {
            // What a fault in one step leaves is still a result; the exit code tells of the fault.
            stampa(testo(contesto, sensibilita));
        }
        return riuscito;
    }

    void calcola(Contesto& contesto, Sensibilita& sensibilita) const {
        sensibilita.imposta(contesto.app().theRotonda(), ramo_);
        if (scelto_) {
            sensibilita.calcola(contesto.app(), *scelto_);
        } else {
            sensibilita.calcola(contesto.app());
        }
    }

    static std::string testo(Contesto& contesto, const Sensibilita& sensibilita) {
        std::string tutto;
        for (const TabellaSensibilita& tabella : sensibilita.tabelle()) {
            if (tabella.calcolata()) {
                tutto.append(tutto.empty() ? "" : fineRiga);
                tutto.append(tabella.testo(contesto.app().theRotonda(), contesto.app().orologio.adesso()));
            }
        }
        return tutto;
    }

    Json json(Contesto& contesto, const std::string& file, const Sensibilita& sensibilita) const {
        Json uscita = {{"file", file}};
        if (contesto.caricato()) {
            const Rotonda& rotonda = contesto.app().theRotonda();
            uscita["NomeFile"] = rotonda.NomeFile();
            uscita["TipoAnalisi"] = rotonda.TipoAnalisi();
            uscita["TipoFlusso"] = rotonda.TipoFlusso();
            if (ramo_ <= rotonda.NumeroRami()) {
                uscita["Key"] = rotonda.Ramo(ramo_).Key();
                uscita["Descrizione"] = rotonda.Ramo(ramo_).Descrizione();
                uscita["parametri"] = parametriJson(rotonda, sensibilita);
            }
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }

    Json parametriJson(const Rotonda& rotonda, const Sensibilita& sensibilita) const {
        Json uscita = Json::array();
        for (std::size_t i = 0; i < numeroParametri; ++i) {
            const TabellaSensibilita& tabella = sensibilita.tabella(i);
            if (!tabella.calcolata()) {
                continue;
            }
            const AnalisiMarginale& marginale = rotonda.Ramo(ramo_).theAnalisiMarginale();
            uscita.push_back({{"parametro", parole[i].argomento},
                              {"nome", parametriGeometrici[i].nome},
                              {"unita", parametriGeometrici[i].unita},
                              {"passo", numero((marginale.*parametriGeometrici[i].passo)())},
                              {"passi", passiJson(tabella, rotonda.TipoAnalisi() == 0)},
                              {"tabella", tabellaJson(tabella.tabella())}});
        }
        return uscita;
    }

    static Json passiJson(const TabellaSensibilita& tabella, bool soloCapacita) {
        Json uscita = Json::array();
        int i = -passiPerParte;
        for (const PassoSensibilita& p : tabella.passi()) {
            Json passo = {{"i", i++}, {"misura", numero(p.misura)}, {"valido", p.valido}};
            if (p.calcolato) {
                passo["Capacita"] = numero(p.risultato.Capacita);
            }
            if (p.calcolato && !soloCapacita) {
                passo["Coda"] = numero(p.risultato.Coda);
                passo["Ritardo"] = numero(p.risultato.Ritardo);
            }
            uscita.push_back(passo);
        }
        return uscita;
    }

    std::int16_t ramo_ = 0;
    std::string parola_;
    std::optional<std::size_t> scelto_;
};

}  // namespace

std::unique_ptr<Comando> comandoSensibilita(CLI::App& radice) {
    return std::make_unique<ComandoSensibilita>(radice);
}

}  // namespace kelvo::cli
