#include "progetti.h"

#include <algorithm>

#include "base/date.h"

namespace kelvo::prove {

double Caso::unita() {
    // xorshift64*
    stato_ ^= stato_ >> 12U;
    stato_ ^= stato_ << 25U;
    stato_ ^= stato_ >> 27U;
    const std::uint64_t valore = stato_ * 2685821657736338717ULL;
    return static_cast<double>(valore >> 11U) / 9007199254740992.0;
}

int Caso::intero(int minimo, int massimo) {
    return minimo + static_cast<int>(unita() * (massimo - minimo + 1));
}

namespace {

void matrice(Banco& banco, const Varieta& varieta, Caso& caso) {
    Rotonda& rotonda = banco.rotonda();
    rotonda.TipoMatriceSvolte(varieta.percento ? 1 : 0);
    for (int o = 1; o <= varieta.rami; ++o) {
        for (int c = 1; c <= varieta.rami; ++c) {
            const bool vuota = (o == c && caso.volte(0.7)) || caso.volte(0.1);
            const double tetto = varieta.percento ? 160.0 / varieta.rami : 350.0;
            const int numero = caso.intero(0, static_cast<int>(tetto));
            rotonda.MatriceSvolte(vuota ? 0.0F : static_cast<float>(numero), static_cast<std::int16_t>(o),
                                  static_cast<std::int16_t>(c));
        }
    }
}

void geometria(Ramo& ramo, Caso& caso) {
    ramo.SemiLarghezza(caso.singolo(2.5, 7.3));
    ramo.LarghezzaIngresso(caso.volte(0.15) ? caso.singolo(2.5, 4.0) : caso.singolo(4.0, 12.0));
    ramo.LunghezzaSvasatura(caso.singolo(5.0, 60.0));
    ramo.AngoloConflitto(caso.singolo(5.0, 65.0));
    ramo.RaggioIngresso(caso.singolo(6.0, 80.0));
    ramo.DiametroInscritto(caso.singolo(18.0, 110.0));
}

void condizioni(Ramo& ramo, Caso& caso) {
    ramo.AttraversamentoPedonale(caso.volte(0.5));
    ramo.theAnalisiMarginale().AttraversamentoPedonale(caso.tra(0.0, 25.0));
    ramo.theAnalisiMarginale().CondizioniEsterne(caso.volte(0.3) ? 0.0 : caso.tra(-20.0, 30.0));
    ramo.theAnalisiMarginale().UsaCondizioniEsterne(caso.volte(0.5));
}

void composizione(ComposizioneTraffico& mezzi, Caso& caso) {
    mezzi.Autoarticolati(caso.singolo(0.0, 8.0));
    mezzi.Autotreni(caso.singolo(0.0, 8.0));
    mezzi.Pullman(caso.singolo(0.0, 6.0));
    mezzi.Camper(caso.singolo(0.0, 6.0));
    mezzi.Roulotte(caso.singolo(0.0, 4.0));
    mezzi.VeicoliDueRuote(caso.singolo(0.0, 12.0));
    mezzi.Autovetture(caso.singolo(55.0, 75.0));
    for (std::int16_t k = 0; k < mezzi.NumSegmentiTempo(); ++k) {
        const bool vuota = caso.volte(0.1);
        for (std::int16_t j = 0; j < numeroClassi; ++j) {
            const double tetto = j == 6 ? 200.0 : 15.0;
            mezzi.CategoriaSegmento(vuota ? 0.0F : static_cast<float>(caso.intero(0, static_cast<int>(tetto))), k, j);
        }
    }
}

void domanda(DatiTraffico& traffico, const Varieta& varieta, Caso& caso) {
    traffico.FlussoTempo1(caso.singolo(0.0, 9.0 * varieta.domanda));
    traffico.FlussoTempo2(caso.singolo(2.0, 16.0 * varieta.domanda));
    traffico.FlussoTempo3(caso.singolo(0.0, 9.0 * varieta.domanda));
    traffico.FlussoTotale(caso.singolo(0.0, 1500.0 * varieta.domanda));
    for (std::int16_t k = 0; k < traffico.NumSegmentiTempo(); ++k) {
        const float veicoli = static_cast<float>(caso.tra(0.0, 150.0 * varieta.domanda));
        traffico.FlussoSegmento(caso.volte(0.1) ? 0.0F : veicoli, k, 0);
    }
}

void tempi(DatiTraffico& traffico, const Varieta& varieta, Caso& caso, int inizio, int fine, int passo) {
    const auto ora = [](int minuto) { return oraDelGiorno(0, minuto); };
    if (varieta.tempiStrani) {
        const int lontano = 4 * passo;
        traffico.Tempo1(ora(caso.intero(inizio - lontano, fine + lontano)));
        traffico.Tempo2(ora(caso.intero(inizio - lontano, fine + lontano)));
        traffico.Tempo3(ora(caso.intero(inizio - lontano, fine + lontano)));
        return;
    }
    const int segmenti = (fine - inizio) / passo;
    const int picco = caso.intero(1, std::max(1, segmenti - 2));
    const int primo = caso.intero(0, picco - 1);
    const int ultimo = caso.intero(std::min(picco + 2, segmenti), segmenti);
    traffico.Tempo1(ora(inizio + primo * passo));
    traffico.Tempo2(ora(inizio + picco * passo));
    traffico.Tempo3(ora(inizio + ultimo * passo));
}

}  // namespace

void riempi(Banco& banco, const Varieta& varieta, Caso& caso) {
    banco.nuovo(varieta.rami);
    constexpr std::array passi{5, 7, 10, 15, 20, 30, 45};
    const int passo = passi[static_cast<std::size_t>(caso.intero(0, static_cast<int>(passi.size()) - 1))];
    const int segmenti = caso.intero(4, 20);
    const int inizio = caso.intero(300, 600);
    const int avanzo = caso.volte(0.2) ? caso.intero(1, passo - 1) : 0;
    const int fine = inizio + passo * segmenti + avanzo;
    const int scarto = varieta.segmentiDiversi ? caso.intero(-3, 4) : 0;
    banco.finestra(oraDelGiorno(0, inizio), oraDelGiorno(0, fine), passo, segmenti + scarto);
    matrice(banco, varieta, caso);
    for (int i = 1; i <= varieta.rami; ++i) {
        Ramo& ramo = banco.ramo(i);
        geometria(ramo, caso);
        condizioni(ramo, caso);
        composizione(ramo.theComposizioneTraffico(), caso);
        domanda(ramo.theDatiTraffico(), varieta, caso);
        tempi(ramo.theDatiTraffico(), varieta, caso, inizio, fine, passo);
    }
    banco.rotonda().ValorePercentile(caso.volte(0.5) ? 95.0F : caso.singolo(40.0, 99.5));
    banco.rotonda().UsaPercentile(caso.volte(0.5));
    banco.rotonda().CondizioniNotturne(caso.volte(0.5));
    banco.finta.app.theAmbiente.PercentualeNotturna(static_cast<std::int16_t>(caso.intero(0, 20)));
    CoefficientiVeicoli coefficienti = coefficientiDiFabbrica;
    if (caso.volte(0.5)) {
        for (float& valore : coefficienti) {
            valore = caso.singolo(0.3, 3.5);
        }
    }
    banco.finta.app.configurazione.coefficienti(coefficienti);
}

void progettoOrdinato(Banco& banco, int rami) {
    banco.nuovo(rami);
    banco.finestra(oraDelGiorno(7, 30), oraDelGiorno(9, 30), 15, 8);
    Rotonda& rotonda = banco.rotonda();
    for (int o = 1; o <= rami; ++o) {
        for (int c = 1; c <= rami; ++c) {
            const float veicoli = o == c ? 0.0F : static_cast<float>(40 + 17 * ((2 * o + 3 * c) % 7));
            rotonda.MatriceSvolte(veicoli, static_cast<std::int16_t>(o), static_cast<std::int16_t>(c));
        }
        Ramo& ramo = banco.ramo(o);
        const auto passo = static_cast<float>(o);
        ramo.LarghezzaIngresso(5.5F + 0.5F * passo);
        ramo.SemiLarghezza(3.25F + 0.25F * passo);
        ramo.LunghezzaSvasatura(12.0F + 2.0F * passo);
        ramo.AngoloConflitto(26.0F + 3.0F * passo);
        ramo.RaggioIngresso(14.0F + 4.0F * passo);
        ramo.DiametroInscritto(44.0F);
        DatiTraffico& traffico = ramo.theDatiTraffico();
        traffico.Tempo1(oraDelGiorno(7, 45));
        traffico.Tempo2(oraDelGiorno(8, 30));
        traffico.Tempo3(oraDelGiorno(9, 30));
        traffico.FlussoTempo1(3.5F + 0.25F * passo);
        traffico.FlussoTempo2(7.25F + 0.5F * passo);
        traffico.FlussoTempo3(4.25F);
        traffico.FlussoTotale(600.0F + 30.0F * passo);
        for (std::int16_t k = 0; k < 8; ++k) {
            traffico.FlussoSegmento(70.0F + 9.0F * static_cast<float>((5 * k + o) % 7), k, 0);
            ramo.theComposizioneTraffico().CategoriaSegmento(90.0F, k, 6);
            ramo.theComposizioneTraffico().CategoriaSegmento(static_cast<float>((k + o) % 5), k, 1);
        }
    }
}

oracolo::Misure misureDi(Banco& banco, int numero) {
    const Ramo& ramo = banco.ramo(numero);
    return {ramo.LarghezzaIngresso(), ramo.SemiLarghezza(),  ramo.LunghezzaSvasatura(),
            ramo.AngoloConflitto(),   ramo.RaggioIngresso(), ramo.DiametroInscritto()};
}

}  // namespace kelvo::prove
