// A run of the engine allocates nothing per segment: with six times the segments it allocates as often.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/nuovoProgetto.h"
#include "base/date.h"
#include "calc/modCalcolo.h"
#include "comune/finti.h"
#include "conteggio.h"

namespace kelvo::prove {
namespace {

constexpr int minutiSegmento = 5;

/// A study of `segmenti` segments with demand of both kinds and compositions of both kinds on every leg.
class Studio {
public:
    Studio(std::int16_t rami, std::int16_t segmenti) {
        creaProgetto(finta.app, rami);
        Rotonda& rotonda = finta.app.theRotonda();
        rotonda.TempoIniziale(oraDelGiorno(8, 0));
        rotonda.TempoFinale(oraDelGiorno(8, segmenti * minutiSegmento));
        rotonda.SegmentoTempo(oraDelGiorno(0, minutiSegmento));
        rotonda.CondizioniNotturne(true);
        for (std::int16_t i = 1; i <= rami; ++i) {
            riempi(rotonda.Ramo(i), segmenti);
            for (std::int16_t j = 1; j <= rami; ++j) {
                rotonda.MatriceSvolte(i == j ? 0.0F : 50.0F, i, j);
            }
        }
    }

    AppFinta finta;
    modCalcolo motore{finta.app};

    std::size_t conta(const std::function<void(modCalcolo&)>& corsa) {
        const std::size_t prima = allocazioni();
        corsa(motore);
        return allocazioni() - prima;
    }
    float ultimoFlusso(int segmenti) {
        const DatiTraffico& traffico = finta.app.theRotonda().Ramo(1).theDatiTraffico();
        return traffico.GetIterazione(static_cast<std::int16_t>(segmenti - 1)).Flusso;
    }

private:
    static void riempi(Ramo& ramo, std::int16_t segmenti) {
        DatiTraffico& traffico = ramo.theDatiTraffico();
        ComposizioneTraffico& composizione = ramo.theComposizioneTraffico();
        traffico.NumSegmentiTempo(segmenti);
        composizione.NumSegmentiTempo(segmenti);
        traffico.Tempo1(oraDelGiorno(8, 0));
        traffico.Tempo2(oraDelGiorno(8, segmenti / 2 * minutiSegmento));
        traffico.Tempo3(oraDelGiorno(8, segmenti * minutiSegmento));
        traffico.FlussoTempo1(3.0F);
        traffico.FlussoTempo2(7.0F);
        traffico.FlussoTempo3(2.0F);
        traffico.FlussoTotale(60.0F);
        for (std::int16_t k = 0; k < segmenti; ++k) {
            traffico.FlussoSegmento(20.0F + static_cast<float>(k % 7), k, 0);
            composizione.CategoriaSegmento(2.0F, k, 0);
            composizione.CategoriaSegmento(18.0F, k, 6);
        }
    }
};

struct Forma {
    std::string nome;
    std::int16_t rami;
    std::function<void(modCalcolo&)> corsa;
};

std::vector<Forma> forme() {
    const Geometria g{6.5F, 3.5F, 20.0F, 30.0F, 20.0F, 45.0F};
    const CorsieDestra corsie{true, false, true, true};
    std::vector<Forma> tutte;
    for (const std::string modo : {"0", "1"}) {
        const auto aggiungi = [&](const std::string& nome, std::int16_t rami, std::function<void(modCalcolo&)> corsa) {
            tutte.push_back({fmt::format("{}, modo {}", nome, modo), rami, std::move(corsa)});
        };
        aggiungi("curve", 7, [=](modCalcolo& m) { m.Calcola_Tempo_Flusso(modo); });
        aggiungi("curve, what-if", 7, [=](modCalcolo& m) { m.Calcola_Tempo_Flusso(2, g, modo); });
        aggiungi("curve, right turn", 4, [=](modCalcolo& m) { m.Calcola_Tempo_Flusso_DX(modo, corsie); });
        aggiungi("table", 7, [=](modCalcolo& m) { m.Calcola_Tempo_Flusso_ST(modo); });
        aggiungi("table, what-if", 7, [=](modCalcolo& m) { m.Calcola_Tempo_Flusso_ST(2, g, modo); });
        aggiungi("table, right turn", 4, [=](modCalcolo& m) { m.Calcola_Tempo_Flusso_ST_DX(modo, corsie); });
    }
    tutte.push_back({"balancing", 7, [](modCalcolo& m) { m.Calcola_Bilanciamento(); }});
    tutte.push_back({"balancing, what-if", 7, [=](modCalcolo& m) { m.Calcola_Bilanciamento(2, g); }});
    return tutte;
}

class Allocazioni : public testing::Test {
protected:
    void SetUp() override {
        if (!std::string_view(KELVO_SANITIZZATORI).empty()) {
            GTEST_SKIP() << "memory is counted in a build without sanitizers alone";
        }
    }
};

}  // namespace

TEST_F(Allocazioni, AreCounted) {
    const std::size_t prima = allocazioni();
    const auto uno = std::make_unique<int>(1);
    const std::vector<double> due(static_cast<std::size_t>(*uno) * 10);
    EXPECT_EQ(allocazioni() - prima, 2U) << due.size();
}

TEST_F(Allocazioni, DoNotGrowWithTheSegments) {
    for (const Forma& forma : forme()) {
        std::vector<std::size_t> contate;
        for (const std::int16_t segmenti : {std::int16_t{12}, std::int16_t{72}}) {
            Studio studio(forma.rami, segmenti);
            forma.corsa(studio.motore);  // warms the engine and the records
            contate.push_back(studio.conta(forma.corsa));
            EXPECT_TRUE(studio.finta.messaggi.mostrati.empty()) << forma.nome;
            EXPECT_EQ(studio.ultimoFlusso(segmenti) > 0.0F, forma.nome.rfind("balancing", 0) != 0) << forma.nome;
        }
        EXPECT_EQ(contate[1], contate[0]) << forma.nome;
    }
}

TEST_F(Allocazioni, OfASecondRunAreNoMoreThanOfTheFirst) {
    for (const Forma& forma : forme()) {
        Studio studio(forma.rami, 72);
        const std::size_t prima = studio.conta(forma.corsa);
        const std::size_t seconda = studio.conta(forma.corsa);
        EXPECT_LE(seconda, prima) << forma.nome;
        EXPECT_TRUE(studio.finta.messaggi.mostrati.empty()) << forma.nome;
    }
}

}  // namespace kelvo::prove
