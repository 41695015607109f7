#include "Comando.h"
#include "base/guasto.h"
#include "calc/modCalcolo.h"
#include "json.h"
#include "results/TabellaCapacitaUltima.h"

namespace kelvo::cli {

namespace {

class ComandoCapacitaUltima final : public ComandoSuFile {
public:
    explicit ComandoCapacitaUltima(CLI::App& radice)
        : ComandoSuFile(radice, "capacita-ultima", "Calcola la capacità ultima e l'indice di saturazione",
                        "  kelvo-cli capacita-ultima Rotatoria.klv\n"
                        "  kelvo-cli capacita-ultima --json *.klv > capacita.jsonl") {
        aggiungiComuni();
    }

private:
    bool tratta(Contesto& contesto, const std::string& file) override {
        TabellaCapacitaUltima tabella;
        if (prepara(contesto, file)) {
            modCalcolo(contesto.app()).Calcola_Bilanciamento();
            riempi(contesto, tabella);
        }
        const bool riuscito = contesto.errori().empty();
        if (comuni_.json) {
            stampa(riga(json(contesto, file, tabella)));
        } else if (riuscito) {
            stampa(tabella.testo(contesto.app().theRotonda(), contesto.app().orologio.adesso()));
        }
        return riuscito;
    }

    static void riempi(Contesto& contesto, TabellaCapacitaUltima& tabella) {
        try {
            tabella.riempi(contesto.app().theRotonda());
        } catch (const Guasto& guasto) {
            contesto.app().comune.erroreLog(guasto.codice(), "frmCapacitaUltima:Calcola", guasto.descrizione(), false);
        }
    }

    static Json json(const Contesto& contesto, const std::string& file, const TabellaCapacitaUltima& tabella) {
        Json uscita = {{"file", file}};
        if (contesto.caricato()) {
            uscita["SC"] = numero(tabella.SC());
            uscita["SF"] = numero(tabella.SF());
            uscita["ISR"] = numero(tabella.ISR());
            uscita["tabella"] = tabellaJson(tabella.tabella());
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }
};

}  // namespace

std::unique_ptr<Comando> comandoCapacitaUltima(CLI::App& radice) {
    return std::make_unique<ComandoCapacitaUltima>(radice);
}

}  // namespace kelvo::cli
