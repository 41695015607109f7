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
    explicit ComandoVerifica(CLI::App& radice) {
        app_ = radice.add_subcommand("verifica", "Controlla che i file di progetto si leggano e siano coerenti");
        aggiungiFile();
    }

private:
    bool serveConfigurazione() const override { return false; }

    bool tratta(Contesto& contesto, const std::string& file) override {
        if (!contesto.carica(file)) {
            return false;
        }
        const Rotonda& rotonda = contesto.app().theRotonda();
        std::vector<std::string> avvisi;
        const auto prova = [&](auto controllo) {
            try {
                controllo(rotonda, avvisi);
            } catch (const Guasto& guasto) {
                avvisi.push_back(guasto.descrizione());
            }
        };
        prova(controllaScelte);
        prova(controllaSegmenti);
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            prova([i](const Rotonda& r, std::vector<std::string>& a) { controllaTotali(r, r.Ramo(i), a); });
        }
        stampa(fmt::format("{}: si legge, {}\n", file,
                           avvisi.empty() ? "nessun avviso" : fmt::format("avvisi: {}", avvisi.size())));
        for (const std::string& avviso : avvisi) {
            stampa(fmt::format("  attenzione: {}\n", avviso));
        }
        return true;
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
