#include <fmt/format.h>

#include <optional>
#include <vector>

#include "argomenti.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/curvaTraffico.h"
#include "disegno/disegni.h"
#include "impedimenti.h"
#include "input/istogrammaTraffico.h"

namespace kelvo::cli {

namespace {

constexpr std::int16_t analisiSaturazione = 0;
constexpr std::int16_t analisiTabella = 2;
constexpr double minutiGiorno = 1440.0;

/// What stands over the segments of the time of modelling.
struct Barre {
    std::vector<std::string> etichette;
    std::vector<float> valori;
    const char* unita = "";
    bool conteggi = false;  ///< counts, whose figures stand as they are
};

/// The bars of the curve of a leg; nothing where it cannot be built.
std::optional<Barre> barreCurva(const Rotonda& rotonda, const Ramo& ramo) {
    CurvaTraffico curva;
    if (!CostruisciCurva(datiCurvaDi(rotonda, ramo), curva)) {
        return std::nullopt;
    }
    return Barre{.etichette = curva.EtichetteSegmento, .valori = curva.FlussiSegmento, .unita = "[veicoli]/[min]"};
}

/// The counts of a leg; nothing where the time of modelling has no segment.
std::optional<Barre> barreTabella(const Rotonda& rotonda, const Ramo& ramo) {
    const DataOra inizio = rotonda.TempoIniziale();
    const int minuti = minutoCampo(rotonda.SegmentoTempo());
    const std::int16_t segmenti = segmentiTra(inizio, rotonda.TempoFinale(), minuti);
    if (segmenti <= 0) {
        return std::nullopt;
    }
    Barre barre{.etichette = {}, .valori = {}, .unita = "[veicoli]", .conteggi = true};
    for (std::int16_t i = 0; i < segmenti; ++i) {
        barre.etichette.push_back(testoHHNN(inizio + i * minuti / minutiGiorno) + "-" +
                                  testoHHNN(inizio + (i + 1) * minuti / minutiGiorno));
        barre.valori.push_back(ramo.theDatiTraffico().FlussoSegmento(i, 0));
    }
    return barre;
}

class ComandoGrafico final : public ComandoSuFile {
public:
    explicit ComandoGrafico(CLI::App& radice)
        : ComandoSuFile(radice, "grafico", "Disegna la domanda di traffico di un ramo in un file PNG, SVG o PDF",
                        "  kelvo-cli grafico --ramo 2 -o DomandaB.png Rotatoria.klv\n"
                        "  kelvo-cli grafico --ramo 2 --valori --larghezza 1600 -o DomandaB.svg Rotatoria.klv",
                        Quanti::uno) {
        constexpr std::int16_t ultimo = massimoRami;
        aggiungiIntero(*app_, "--ramo", ramo_, {.minimo = 1, .massimo = ultimo},
                       fmt::format("numero del ramo, da 1 a {}", ultimo))
            ->required();
        aggiungiTesto(*app_, "-o,--uscita", uscita_, "file da scrivere, .png, .svg o .pdf; se esiste viene sostituito")
            ->required()
            ->type_name("FILE");
        app_->add_flag("--valori", valori_, "scrive il valore sopra ogni barra");
        constexpr Estremi larghezza{.minimo = MisuraDisegno::minimaLarghezza,
                                    .massimo = MisuraDisegno::massimaLarghezza};
        aggiungiIntero(*app_, "--larghezza", larghezza_, larghezza,
                       fmt::format("larghezza del disegno in pixel, da {} a {} (se manca: 1200)", larghezza.minimo,
                                   larghezza.massimo));
    }

private:
    std::string usoSbagliato() override { return usoDisegno(uscita_); }
    Configurazione configurazione() const override { return Configurazione::nessuna; }
    Impedimento impedimento(const Rotonda& rotonda) const override { return impedimentoRamo(rotonda, ramo_); }

    bool tratta(Contesto& contesto, const std::string& file) override {
        if (!prepara(contesto, file)) {
            return false;
        }
        const Rotonda& rotonda = contesto.app().theRotonda();
        const auto contenuto = grafico(contesto, rotonda, rotonda.Ramo(ramo_));
        return contenuto && scriviDisegno(contesto, uscita_, [&](Disegnatore& disegnatore, FormatoDisegno formato) {
                   return disegnatore.grafico(*contenuto, formato, {.larghezza = larghezza_});
               });
    }

    /// The chart; nothing, with a word on why, where the leg has none.
    std::optional<Grafico::Contenuto> grafico(Contesto& contesto, const Rotonda& rotonda, const Ramo& ramo) const {
        const bool tabella = rotonda.TipoAnalisi() == analisiTabella;
        if (rotonda.TipoAnalisi() == analisiSaturazione) {
            contesto.attenzione("il progetto non calcola con le curve di traffico");
        }
        try {
            const auto barre = tabella ? barreTabella(rotonda, ramo) : barreCurva(rotonda, ramo);
            if (barre) {
                return istogramma(*barre, ramo.Descrizione());
            }
            avvisa(fmt::format(
                "{}: {}: {}", file_.front(), ramo.Descrizione(),
                tabella ? "il tempo di modellazione non ha segmenti" : "la curva di traffico non si può costruire"));
        } catch (const Guasto& guasto) {
            avvisa(fmt::format("{}: {}", file_.front(), guasto.descrizione()));
        }
        return std::nullopt;
    }

    Grafico::Contenuto istogramma(const Barre& barre, const std::string& titolo) const {
        std::vector<std::string> valori;
        for (const float valore : barre.valori) {
            valori.push_back(testoNumero(valore));
        }
        Grafico::Contenuto contenuto = istogrammaTraffico({.etichette = testoGrafico(barre.etichette),
                                                           .valori = testoGrafico(valori),
                                                           .unita = barre.unita,
                                                           .colore = tinta::principale,
                                                           .mostraValori = valori_});
        if (barre.conteggi) {
            contenuto.serie.at(0).testi = valori;
        }
        contenuto.titolo = titolo;
        return contenuto;
    }

    std::int16_t ramo_ = 0;
    std::int16_t larghezza_ = 1200;
    bool valori_ = false;
    std::string uscita_;
};

}  // namespace

std::unique_ptr<Comando> comandoGrafico(CLI::App& radice) {
    return std::make_unique<ComandoGrafico>(radice);
}

}  // namespace kelvo::cli
