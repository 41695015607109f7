#include "progetti.h"

#include "app/nuovoProgetto.h"
#include "base/date.h"

namespace kelvo::misure {

namespace {

constexpr std::int16_t segmenti = 72;
constexpr int minutiSegmento = 5;

void riempiRamo(Rotonda& rotonda, std::int16_t i) {
    Ramo& ramo = rotonda.Ramo(i);
    const auto passo = static_cast<float>(i);
    ramo.LarghezzaIngresso(6.0F + 0.25F * passo);
    ramo.AngoloConflitto(25.0F + passo);
    ramo.DiametroInscritto(70.0F);
    ramo.AttraversamentoPedonale(i % 2 == 0);
    ramo.theAnalisiMarginale().AttraversamentoPedonale(6.0);
    DatiTraffico& traffico = ramo.theDatiTraffico();
    traffico.Tempo1(oraDelGiorno(8, 0));
    traffico.Tempo2(oraDelGiorno(11, 0));
    traffico.Tempo3(oraDelGiorno(14, 0));
    traffico.FlussoTempo1(3.0F);
    traffico.FlussoTempo2(7.0F + 0.3F * passo);
    traffico.FlussoTempo3(2.5F);
    traffico.FlussoTotale(1800.0F);
    ComposizioneTraffico& composizione = ramo.theComposizioneTraffico();
    composizione.Autoarticolati(4.0F);
    composizione.VeicoliDueRuote(6.0F);
    composizione.Autovetture(90.0F);
    for (std::int16_t k = 0; k < segmenti; ++k) {
        traffico.FlussoSegmento(20.0F + static_cast<float>(k % 17) + passo, k, 0);
        composizione.CategoriaSegmento(2.0F, k, 0);
        composizione.CategoriaSegmento(1.0F, k, 5);
        composizione.CategoriaSegmento(17.0F + static_cast<float>(k % 17) + passo, k, 6);
    }
}

}  // namespace

void riempiProgetto(Applicazione& app, std::int16_t rami) {
    app.configurazione.coefficienti(coefficientiDiFabbrica);
    app.theAmbiente.PercentualeNotturna(4);
    creaProgetto(app, rami);
    Rotonda& rotonda = app.theRotonda();
    rotonda.TempoIniziale(oraDelGiorno(8, 0));
    rotonda.TempoFinale(oraDelGiorno(14, 0));
    rotonda.SegmentoTempo(oraDelGiorno(0, minutiSegmento));
    rotonda.CondizioniNotturne(true);
    for (std::int16_t i = 1; i <= rami; ++i) {
        rotonda.Ramo(i).theDatiTraffico().NumSegmentiTempo(segmenti);
        rotonda.Ramo(i).theComposizioneTraffico().NumSegmentiTempo(segmenti);
        riempiRamo(rotonda, i);
        for (std::int16_t j = 1; j <= rami; ++j) {
            rotonda.MatriceSvolte(i == j ? 0.0F : 40.0F + static_cast<float>((i * j) % 11), i, j);
        }
    }
}

Nucleo nucleoDi(const Applicazione& app, Domanda domanda, bool perSegmento) {
    const Rotonda& rotonda = app.theRotonda();
    Nucleo nucleo;
    nucleo.n = rotonda.NumeroRami();
    nucleo.K = segmenti;
    nucleo.m = minutiSegmento;
    nucleo.segmentiRecord = segmenti;
    nucleo.tabella = domanda == Domanda::tabella;
    nucleo.perSegmento = perSegmento;
    nucleo.percentile = static_cast<double>(rotonda.ValorePercentile());
    nucleo.notte = app.theAmbiente.PercentualeNotturna();
    nucleo.VE = app.configurazione.coefficienti();
    Matrice p;
    rotonda.GetMatriceSvoltePercentuale(p);
    for (const auto& riga : p) {
        nucleo.p.insert(nucleo.p.end(), riga.begin(), riga.end());
    }
    for (int i = 0; i < nucleo.n; ++i) {
        const auto z = static_cast<std::size_t>(i);
        const Ramo& ramo = rotonda.Ramo(static_cast<std::int16_t>(i + 1));
        const Geometria g = geometriaDi(ramo);
        const DatiTraffico& t = ramo.theDatiTraffico();
        const ComposizioneTraffico& c = ramo.theComposizioneTraffico();
        nucleo.geometria[z] = {g.e, g.v, g.l, g.phi, g.r, g.D};
        nucleo.percentuali[z] = {c.Autoarticolati(), c.Autotreni(),       c.Pullman(),    c.Camper(),
                                 c.Roulotte(),       c.VeicoliDueRuote(), c.Autovetture()};
        nucleo.q[z] = {t.FlussoTempo1(), t.FlussoTempo2(), t.FlussoTempo3()};
        nucleo.t[z] = {0, 180, 360 - minutiSegmento};
        nucleo.ped[z] = ramo.AttraversamentoPedonale() ? ramo.theAnalisiMarginale().AttraversamentoPedonale() : 0.0;
    }
    for (std::int16_t k = 0; k <= segmenti; ++k) {
        for (std::int16_t i = 1; i <= nucleo.n; ++i) {
            nucleo.flussi.push_back(rotonda.Ramo(i).theDatiTraffico().FlussoSegmento(k, 0));
            for (std::int16_t j = 0; j < numeroClassi; ++j) {
                nucleo.categorie.push_back(rotonda.Ramo(i).theComposizioneTraffico().CategoriaSegmento(k, j));
            }
        }
    }
    nucleo.prepara();
    return nucleo;
}

}  // namespace kelvo::misure
