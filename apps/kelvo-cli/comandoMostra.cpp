#include <fmt/format.h>

#include <array>
#include <string_view>

#include "Comando.h"
#include "base/Tabella.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "results/tipiProgetto.h"

namespace kelvo::cli {

namespace {

void rigaDati(std::string& testo, std::string_view etichetta, const std::string& valore) {
    if (!valore.empty()) {
        testo += fmt::format("{:<24}{}\n", fmt::format("{}:", etichetta), valore);
    }
}

/// A table without tabs, for the screen.
std::string testoSchermo(const Tabella& tabella) {
    const std::vector<std::size_t> larghezze = larghezzeTesto(tabella);
    std::string testo;
    for (int r = 0; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            const std::string& cella = tabella.testo(r, c);
            const std::string vuoto(larghezze[static_cast<std::size_t>(c)] - lunghezza(cella), ' ');
            testo += c == 0 ? cella + vuoto : vuoto + cella;
        }
        testo += '\n';
    }
    return testo;
}

/// A column of the leg table.
struct ColonnaRami {
    std::string_view titolo;
    std::string (*valore)(const Ramo&);
};

constexpr std::array colonneRami{
    ColonnaRami{"Ramo", [](const Ramo& r) { return r.Descrizione(); }},
    ColonnaRami{"e [m]", [](const Ramo& r) { return formatta(r.LarghezzaIngresso(), "#0.00"); }},
    ColonnaRami{"v [m]", [](const Ramo& r) { return formatta(r.SemiLarghezza(), "#0.00"); }},
    ColonnaRami{"l' [m]", [](const Ramo& r) { return formatta(r.LunghezzaSvasatura(), "#0.00"); }},
    ColonnaRami{"phi [°]", [](const Ramo& r) { return formatta(r.AngoloConflitto(), "#0.00"); }},
    ColonnaRami{"r [m]", [](const Ramo& r) { return formatta(r.RaggioIngresso(), "#0.00"); }},
    ColonnaRami{"D [m]", [](const Ramo& r) { return formatta(r.DiametroInscritto(), "#0.00"); }},
    ColonnaRami{"pedoni", [](const Ramo& r) { return std::string{r.AttraversamentoPedonale() ? "sì" : "no"}; }},
    ColonnaRami{"veicoli", [](const Ramo& r) { return formatta(r.theDatiTraffico().FlussoTotale(), "#0"); }},
    ColonnaRami{"veic/h", [](const Ramo& r) { return formatta(r.theDatiTraffico().FlussoOrario(), "#0.00"); }},
};

std::string tabellaRami(const Rotonda& rotonda) {
    Tabella tabella(rotonda.NumeroRami() + 1, static_cast<int>(colonneRami.size()));
    for (std::size_t c = 0; c < colonneRami.size(); ++c) {
        tabella.cella(0, static_cast<int>(c)).testo = colonneRami[c].titolo;
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            tabella.cella(i, static_cast<int>(c)).testo = colonneRami[c].valore(rotonda.Ramo(i));
        }
    }
    return testoSchermo(tabella);
}

std::string tabellaMatrice(const Rotonda& rotonda) {
    const int n = rotonda.NumeroRami();
    Tabella tabella(n + 1, n + 1);
    tabella.cella(0, 0).testo = "da \\ a";
    for (int i = 1; i <= n; ++i) {
        const auto ramo = static_cast<std::int16_t>(i);
        tabella.cella(i, 0).testo = rotonda.Ramo(ramo).Descrizione();
        tabella.cella(0, i).testo = fmt::format("{}", static_cast<char>('A' + i - 1));
        for (int j = 1; j <= n; ++j) {
            tabella.cella(i, j).testo = testoNumero(rotonda.MatriceSvolte(ramo, static_cast<std::int16_t>(j)));
        }
    }
    return testoSchermo(tabella);
}

std::string riassunto(const Rotonda& rotonda) {
    std::string testo;
    rigaDati(testo, "Nome progetto", rotonda.NomeFile());
    rigaDati(testo, "Titolo", rotonda.Titolo());
    rigaDati(testo, "Data", testoData(rotonda.Data()));
    rigaDati(testo, "Stato", rotonda.StatoAvanzamento());
    rigaDati(testo, "Località", rotonda.Localita());
    rigaDati(testo, "Comune", rotonda.Comune());
    rigaDati(testo, "Provincia", rotonda.Provincia());
    rigaDati(testo, "Professionista", rotonda.NomeProfessionista());
    rigaDati(testo, "Finestra",
             fmt::format("{} - {}, segmenti di {} minuti", testoHHNN(rotonda.TempoIniziale()),
                         testoHHNN(rotonda.TempoFinale()), minutoCampo(rotonda.SegmentoTempo())));
    rigaDati(testo, "Analisi", paroleAnalisi(rotonda.TipoAnalisi()));
    rigaDati(testo, "Composizione", paroleComposizione(rotonda.TipoFlusso()));
    rigaDati(testo, "Percentile della coda", testoNumero(rotonda.ValorePercentile()) + " %");
    rigaDati(testo, "Condizioni notturne", rotonda.CondizioniNotturne() ? "sì" : "no");
    rigaDati(testo, "Note", rotonda.Note());
    testo += fmt::format("\nRami: {}\n{}", rotonda.NumeroRami(), tabellaRami(rotonda));
    testo += fmt::format("\nMatrice delle svolte, {}\n{}", paroleMatrice(rotonda.TipoMatriceSvolte()),
                         tabellaMatrice(rotonda));
    return testo;
}

class ComandoMostra final : public ComandoSuFile {
public:
    explicit ComandoMostra(CLI::App& radice)
        : ComandoSuFile(radice, "mostra", "Mostra i dati principali di un progetto",
                        "  kelvo-cli mostra Rotatoria.klv") {}

private:
    Configurazione configurazione() const override { return Configurazione::nessuna; }
    bool tratta(Contesto& contesto, const std::string& file) override {
        if (!prepara(contesto, file)) {
            return false;
        }
        stampa((primo_ ? "" : "\n") + riassunto(contesto.app().theRotonda()));
        primo_ = false;
        return true;
    }
    bool primo_ = true;
};

}  // namespace

std::unique_ptr<Comando> comandoMostra(CLI::App& radice) {
    return std::make_unique<ComandoMostra>(radice);
}

}  // namespace kelvo::cli
