#include <fmt/format.h>

#include "Comando.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/totaliTraffico.h"
#include "results/tabellaVerifiche.h"

namespace kelvo::cli {

namespace {

constexpr int analisiCurva = 1;
constexpr int analisiTabella = 2;

class ComandoVerifica final : public ComandoSuFile {
public:
    explicit ComandoVerifica(CLI::App& radice)
        : ComandoSuFile(radice, "verifica", "Controlla che i file di progetto si leggano e siano coerenti",
                        "  kelvo-cli verifica *.klv") {}

private:
    Configurazione configurazione() const override { return Configurazione::nessuna; }

    bool tratta(Contesto& contesto, const std::string& file) override {
        if (!prepara(contesto, file)) {
            return false;
        }
        const Rotonda& rotonda = contesto.app().theRotonda();
        const std::vector<std::string> avvisi = avvisiDi(rotonda);
        stampa(fmt::format("{}: si legge, {}\n", file,
                           avvisi.empty() ? "nessun avviso" : fmt::format("avvisi: {}", avvisi.size())));
        for (const std::string& avviso : avvisi) {
            stampa(fmt::format("  attenzione: {}\n", avviso));
        }
        return true;
    }

    static std::vector<std::string> avvisiDi(const Rotonda& rotonda) {
        std::vector<std::string> avvisi;
        controllaScelte(rotonda, avvisi);
        try {
            controllaSegmenti(rotonda, avvisi);
        } catch (const Guasto& guasto) {
            avvisi.push_back(fmt::format("finestra di modellazione: {}", guasto.descrizione()));
            return avvisi;  // nothing else can be worked out
        }
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            const Ramo& ramo = rotonda.Ramo(i);
            try {
                controllaTotali(rotonda, ramo, avvisi);
            } catch (const Guasto& guasto) {
                avvisi.push_back(fmt::format("{}: {}", ramo.Descrizione(), guasto.descrizione()));
            }
        }
        return avvisi;
    }

    static void controllaScelte(const Rotonda& rotonda, std::vector<std::string>& avvisi) {
        const auto fuori = [&](const char* nome, int valore, int massimo) {
            if (valore < 0 || valore > massimo) {
                avvisi.push_back(fmt::format("{} vale {}: sono previsti i valori da 0 a {}", nome, valore, massimo));
            }
        };
        fuori("TipoAnalisi", rotonda.TipoAnalisi(), 2);
        fuori("TipoFlusso", rotonda.TipoFlusso(), 1);
        fuori("TipoMatriceSvolte", rotonda.TipoMatriceSvolte(), 1);
    }

    static void controllaSegmenti(const Rotonda& rotonda, std::vector<std::string>& avvisi) {
        const int intervalli = numeroIntervalli(rotonda);
        if (intervalli <= 0) {
            avvisi.emplace_back("la finestra di modellazione non ha segmenti di tempo");
        }
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            const int segmenti = rotonda.Ramo(i).theDatiTraffico().NumSegmentiTempo();
            if (segmenti != intervalli) {
                avvisi.push_back(fmt::format("{}: {} segmenti di tempo, la finestra ne ha {}",
                                             rotonda.Ramo(i).Descrizione(), segmenti, intervalli));
            }
        }
    }

    static void controllaTotali(const Rotonda& rotonda, const Ramo& ramo, std::vector<std::string>& avvisi) {
        std::optional<TotaliTraffico> attesi;
        if (rotonda.TipoAnalisi() == analisiCurva) {
            attesi = totaliCurva(rotonda, ramo);
            if (!attesi) {
                avvisi.push_back(
                    fmt::format("{}: la curva di traffico non si può costruire, un suo tratto non ha segmenti di tempo",
                                ramo.Descrizione()));
            }
        } else if (rotonda.TipoAnalisi() == analisiTabella) {
            attesi = totaliTabella(rotonda, ramo);
        }
        if (!attesi) {
            return;
        }
        const TotaliTraffico conservati = totaliConservati(ramo);
        const auto confronta = [&](const char* nome, const std::string& conservato, const std::string& atteso) {
            if (conservato != atteso) {
                avvisi.push_back(fmt::format("{}: {} nel file {}, dai dati di traffico {}", ramo.Descrizione(), nome,
                                             conservato, atteso));
            }
        };
        confronta("flusso totale", conservati.FlussoTotale, attesi->FlussoTotale);
        confronta("flusso medio", conservati.FlussoMedio, attesi->FlussoMedio);
        confronta("flusso orario", conservati.FlussoOrario, attesi->FlussoOrario);
    }
};

}  // namespace

std::unique_ptr<Comando> comandoVerifica(CLI::App& radice) {
    return std::make_unique<ComandoVerifica>(radice);
}

}  // namespace kelvo::cli
