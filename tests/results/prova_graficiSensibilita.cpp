#include <gtest/gtest.h>

#include "base/numeri.h"
#include "progettoAnalisi.h"
#include "results/graficiSensibilita.h"

namespace kelvo {
namespace {

using prove::AppFinta;
using Contenuto = Grafico::Contenuto;

constexpr std::size_t larghezza = 0;
constexpr std::size_t angolo = 3;
constexpr std::size_t diametro = 5;

class GraficiSensibilita : public testing::Test {
protected:
    GraficiSensibilita() { prove::creaStudio(finta, 4, 1); }
    Ramo& ramo() { return finta.app.theRotonda().Ramo(2); }
    const TabellaSensibilita& calcola(std::size_t parametro) {
        analisi.imposta(finta.app.theRotonda(), 2);
        analisi.calcola(finta.app, parametro);
        return analisi.tabella(parametro);
    }
    AppFinta finta;
    Sensibilita analisi;
};

TEST_F(GraficiSensibilita, WithoutAChosenFigureTheSampleIsDrawn) {
    const Contenuto c = graficoSensibilita(analisi.tabella(0), std::nullopt);
    EXPECT_EQ(c.titolo, "SELEZIONARE UNA VARIABILE");
    ASSERT_EQ(c.serie.size(), 1U);
    EXPECT_EQ(c.serie[0].ascisse, (std::vector<double>{20, 30, 60, 70, 90}));
    EXPECT_EQ(c.serie[0].valori, (std::vector<double>{40, 20, 70, 10, 60}));
    EXPECT_TRUE(c.serie[0].testi.empty());
    EXPECT_EQ(c.x.minimo, 20.0);
    EXPECT_EQ(c.x.massimo, 90.0);
    EXPECT_EQ(c.y.minimo, 10.0);
    EXPECT_EQ(c.y.massimo, 70.0);
}

TEST_F(GraficiSensibilita, TitlesNameTheMeasureAndTheFigureWithTheirUnits) {
    calcola(larghezza);
    const Contenuto capacita = graficoSensibilita(analisi.tabella(larghezza), Prestazione::capacita);
    EXPECT_EQ(capacita.titolo, "Relazione tra Larghezza Ingresso e Capacità");
    EXPECT_EQ(capacita.x.titolo, "Larghezza Ingresso [m]");
    EXPECT_EQ(capacita.y.titolo, "Capacità [veic/h]");
    const Contenuto coda = graficoSensibilita(calcola(angolo), Prestazione::coda);
    EXPECT_EQ(coda.titolo, "Relazione tra Angolo di Conflitto e Coda");
    EXPECT_EQ(coda.x.titolo, "Angolo di Conflitto [°]");
    EXPECT_EQ(coda.y.titolo, "Coda [veic]");
    const Contenuto ritardo = graficoSensibilita(calcola(diametro), Prestazione::ritardo);
    EXPECT_EQ(ritardo.titolo, "Relazione tra Diametro inscritto e Ritardo");
    EXPECT_EQ(ritardo.y.titolo, "Ritardo [s/veic]");
}

TEST_F(GraficiSensibilita, TheSeriesAreTheShownFiguresOfTheValidSteps) {
    ramo().LarghezzaIngresso(3.2F);
    ramo().SemiLarghezza(3.0F);
    const TabellaSensibilita& t = calcola(larghezza);
    const SerieSensibilita serie = serieSensibilita(t, Prestazione::capacita);
    EXPECT_EQ(serie.x, "3.10*3.15*3.20*3.25*3.30*3.35");
    std::string attesi;
    for (int c = 2; c < 8; ++c) {
        std::string testo = t.tabella().testo(2, c);
        testo.replace(testo.find(','), 1, ".");
        attesi += (attesi.empty() ? "" : "*") + testo;
    }
    EXPECT_EQ(serie.y, attesi);
    const Contenuto c = graficoSensibilita(t, Prestazione::capacita);
    ASSERT_EQ(c.serie.size(), 1U);
    EXPECT_EQ(c.serie[0].forma, Grafico::Forma::linee);
    EXPECT_EQ(c.serie[0].ascisse, (std::vector<double>{3.1, 3.15, 3.2, 3.25, 3.3, 3.35}));
    ASSERT_EQ(c.serie[0].valori.size(), 6U);
    EXPECT_EQ(c.serie[0].valori[0], leggiNumero(t.tabella().testo(2, 2)).value());
    EXPECT_EQ(c.serie[0].testi[5], t.tabella().testo(2, 7));
    EXPECT_EQ(c.x.minimo, 3.1);
    EXPECT_EQ(c.x.massimo, 3.35);
    EXPECT_EQ(c.y.minimo, c.serie[0].valori.front());
    EXPECT_EQ(c.y.massimo, c.serie[0].valori.back());
    EXPECT_TRUE(c.nota.empty());
}

TEST_F(GraficiSensibilita, ARowWithoutFiguresIsALineOfZerosWithAWordWhy) {
    analisi.imposta(finta.app.theRotonda(), 2);
    const TabellaSensibilita& vuota = analisi.tabella(larghezza);
    EXPECT_EQ(serieSensibilita(vuota, Prestazione::coda),
              (SerieSensibilita{"4.35*4.40*4.45*4.50*4.55*4.60*4.65", "0*0*0*0*0*0*0*"}));
    const Contenuto prima = graficoSensibilita(vuota, Prestazione::coda);
    EXPECT_EQ(prima.titolo, "Relazione tra Larghezza Ingresso e Coda");
    EXPECT_EQ(prima.serie.at(0).valori, std::vector<double>(7, 0.0));
    EXPECT_EQ(prima.serie.at(0).ascisse.size(), 7U);
    EXPECT_FALSE(prima.valori);
    EXPECT_EQ(prima.nota, "Nessun risultato: premere Calcola");
    finta.app.theRotonda().TipoAnalisi(0);
    calcola(larghezza);
    EXPECT_EQ(graficoSensibilita(vuota, Prestazione::ritardo).nota,
              "Ritardo: nessun valore nell'analisi della sola saturazione");
    EXPECT_EQ(graficoSensibilita(vuota, Prestazione::capacita).nota, "");
    ramo().LarghezzaIngresso(1.0F);
    calcola(larghezza);
    EXPECT_EQ(graficoSensibilita(vuota, Prestazione::capacita).nota, "Nessun passo ha un risultato");
}

TEST_F(GraficiSensibilita, TheTornadoHasTheLargestChangeFirst) {
    AnalisiMarginale& m = ramo().theAnalisiMarginale();
    m.UsaLarghezzaIngresso(true);
    m.UsaAngoloConflitto(true);
    m.UsaDiametroInscritto(true);
    m.AngoloConflitto(20.0);
    analisi.imposta(finta.app.theRotonda(), 2);
    analisi.calcola(finta.app);
    for (const Prestazione quale : prestazioni) {
        const std::vector<VoceTornado> voci = tornado(analisi, quale);
        ASSERT_EQ(voci.size(), 3U);
        EXPECT_EQ(voci[0].parametro, angolo);
        EXPECT_EQ(voci[1].parametro, larghezza);
        EXPECT_EQ(voci[2].parametro, diametro);
        EXPECT_GE(voci[0].ampiezza(), voci[1].ampiezza());
        EXPECT_GE(voci[1].ampiezza(), voci[2].ampiezza());
        const int riga = TabellaSensibilita::riga(quale);
        const auto figura = [&](int colonna) {
            return leggiNumero(analisi.tabella(angolo).tabella().testo(riga, colonna)).value();
        };
        EXPECT_EQ(voci[0].giu.value(), figura(3) - figura(4));
        EXPECT_EQ(voci[0].su.value(), figura(5) - figura(4));
        EXPECT_EQ(voci[0].passo, 20.0);
    }
    const std::vector<VoceTornado> capacita = tornado(analisi, Prestazione::capacita);
    EXPECT_GT(capacita[0].giu.value(), 0.0);
    EXPECT_LT(capacita[0].su.value(), 0.0);
}

TEST_F(GraficiSensibilita, StepsThatAreNotValidHaveNoChange) {
    ramo().LarghezzaIngresso(3.1F);
    ramo().SemiLarghezza(3.0F);
    calcola(larghezza);
    std::vector<VoceTornado> voci = tornado(analisi, Prestazione::capacita);
    ASSERT_EQ(voci.size(), 1U);
    EXPECT_FALSE(voci[0].giu);
    EXPECT_TRUE(voci[0].su);
    EXPECT_EQ(graficoTornado(analisi, Prestazione::capacita).serie.at(0).testi, std::vector<std::string>{"n.d."});
    ramo().LarghezzaIngresso(3.0F);
    calcola(larghezza);
    EXPECT_TRUE(tornado(analisi, Prestazione::capacita).empty());
}

TEST_F(GraficiSensibilita, TheTornadoIsTwoSeriesOfLyingBars) {
    EXPECT_TRUE(graficoTornado(analisi, Prestazione::coda).serie.empty());
    EXPECT_EQ(graficoTornado(analisi, Prestazione::coda).invito, "Nessun risultato: premere Calcola");
    calcola(angolo);
    const Contenuto c = graficoTornado(analisi, Prestazione::capacita);
    EXPECT_EQ(c.titolo, "Capacità: variazione per un passo di ogni grandezza");
    EXPECT_EQ(c.y.titolo, "Variazione Capacità [veic/h]");
    EXPECT_EQ(c.x.etichette, std::vector<std::string>{"Angolo di conflitto ±5,00°"});
    ASSERT_EQ(c.serie.size(), 2U);
    const VoceTornado voce = tornado(analisi, Prestazione::capacita).at(0);
    EXPECT_EQ(c.serie[0].nome, "un passo in meno");
    EXPECT_EQ(c.serie[0].valori, std::vector<double>{*voce.giu});
    EXPECT_EQ(c.serie[0].testi, std::vector<std::string>{"+" + formatta(*voce.giu, "#0.00")});
    EXPECT_EQ(c.serie[1].nome, "un passo in più");
    EXPECT_EQ(c.serie[1].valori, std::vector<double>{*voce.su});
    EXPECT_EQ(c.serie[1].testi, std::vector<std::string>{formatta(*voce.su, "#0.00")});
    EXPECT_EQ(c.serie[0].forma, Grafico::Forma::tornado);
    EXPECT_TRUE(c.legenda);
}

}  // namespace
}  // namespace kelvo
