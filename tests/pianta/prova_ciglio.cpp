// One side of a leg: widths, curve, flare.

#include "pianta/ciglio.h"

#include <gtest/gtest.h>

#include <cmath>

#include "progetti.h"

namespace kelvo::pianta {
namespace {

const Ipotesi ipotesi;

RichiestaCiglio usuale() {
    return {.R = 20, .settore = pi / 4, .semi = 3.75, .larghezza = 5, .svasatura = 20, .raggio = 25, .profondita = 59};
}

TEST(Ciglio, TheEntryWidthIsMeasuredSquareToTheKerb) {
    const Ciglio c = ciglioIngresso(usuale(), ipotesi);
    EXPECT_NEAR(c.larghezza, 5, 1e-9);
    EXPECT_NEAR(norma(c.piede - c.angolo), 5, 1e-9);
    // By brute force over the drawn kerb; its chain is finer than a micrometre.
    const auto catena = spezzata(tracciatoCiglio(c, 60), false, 1e-4);
    EXPECT_NEAR(prove::distanza(c.angolo, catena), 5, 1e-6);
}

TEST(Ciglio, TheCurveTouchesTheCircleFromOutsideAndTheKerb) {
    const Ciglio c = ciglioIngresso(usuale(), ipotesi);
    EXPECT_EQ(c.raggio, 25);
    EXPECT_NEAR(norma(c.centro), 45, 1e-9);
    EXPECT_NEAR(c.centro.x - c.raggio, c.semiCurva, 1e-9);
    const Tracciato via = tracciatoCiglio(c, 60);
    EXPECT_NEAR(norma(via.back().p), 20, 1e-9);
    // The tangent point lies on the line of the centres.
    EXPECT_NEAR(vettoriale(via.back().p, c.centro), 0, 1e-6);
    const Cerchio arco = cerchioDi(via[via.size() - 2].p, via.back().p, via[via.size() - 2].bombatura);
    EXPECT_NEAR(arco.raggio, 25, 1e-6);
    EXPECT_NEAR(norma(arco.centro - c.centro), 0, 1e-6);
}

TEST(Ciglio, TheKerbRunsWithoutKinks) {
    const Tracciato via = tracciatoCiglio(ciglioIngresso(usuale(), ipotesi), 60);
    const auto catena = spezzata(via, false, 0.01);
    for (std::size_t i = 1; i + 1 < catena.size(); ++i) {
        const Punto prima = versore(catena[i] - catena[i - 1]);
        const Punto dopo = versore(catena[i + 1] - catena[i]);
        EXPECT_LT(std::abs(vettoriale(prima, dopo)), 0.02) << i;
    }
}

TEST(Ciglio, TheFlareEndsAtTheApproachHalfWidth) {
    const Ciglio c = ciglioIngresso(usuale(), ipotesi);
    EXPECT_EQ(c.svasatura, 20);
    EXPECT_NEAR(c.inizioSvasatura, -c.piede.y + 20, 1e-9);
    const Tracciato via = tracciatoCiglio(c, 60);
    EXPECT_NEAR(ascissa(via, -c.inizioSvasatura - 1).value_or(0), 3.75, 1e-12);
    EXPECT_GT(ascissa(via, -c.fineSvasatura).value_or(0), 3.75);
}

TEST(Ciglio, ANarrowerEntryHasAWiderIsland) {
    RichiestaCiglio stretta = usuale();
    stretta.larghezza = 3.6;
    const Ciglio c = ciglioIngresso(stretta, ipotesi);
    EXPECT_NEAR(c.larghezza, 3.6, 1e-9);
    EXPECT_EQ(c.semiCurva, 3.75);  // nothing to flare
    EXPECT_GT(c.angolo.x, ciglioIngresso(usuale(), ipotesi).angolo.x);
}

TEST(Ciglio, AWideEntryMovesTheKerb) {
    RichiestaCiglio larga = usuale();
    larga.larghezza = 9;
    const Ciglio c = ciglioIngresso(larga, ipotesi);
    EXPECT_NEAR(c.larghezza, 9, 1e-9);
    EXPECT_GT(c.semiCurva, 3.75 + 1);
    EXPECT_NEAR(c.angolo.x, 0.5, 1e-9);  // the narrowest island
}

TEST(Ciglio, AnApproachWiderThanTheEntryIsDrawnAsItIs) {
    RichiestaCiglio rovescia = usuale();
    rovescia.semi = 8;
    rovescia.larghezza = 4;
    const Ciglio c = ciglioIngresso(rovescia, ipotesi);
    EXPECT_EQ(c.semi, 8);
    EXPECT_NEAR(c.larghezza, 4, 1e-9);
}

TEST(Ciglio, AHugeRadiusIsDrawnAsLargeAsTheLegAllows) {
    RichiestaCiglio grande = usuale();
    grande.raggio = 5000;
    const Ciglio c = ciglioIngresso(grande, ipotesi);
    EXPECT_LT(c.raggio, 5000);
    EXPECT_GT(c.raggio, 25);
    EXPECT_LE(c.inizioCurva, grande.profondita + 1e-9);
    EXPECT_LE(azimut(c.piede), grande.settore);
    EXPECT_NEAR(c.larghezza, 5, 1e-9);
}

TEST(Ciglio, AHalfWidthTooWideForItsSectorIsCut) {
    RichiestaCiglio larga = usuale();
    larga.R = 6.75;
    larga.semi = 12.5;
    const Ciglio c = ciglioIngresso(larga, ipotesi);
    EXPECT_NEAR(c.semi, 0.8 * 6.75 * std::sin(pi / 4), 1e-9);
}

TEST(Ciglio, TheExitCurveEndsWithinItsSector) {
    for (const double settore : {pi / 7, pi / 5, pi / 3}) {
        RichiestaCiglio uscita = usuale();
        uscita.settore = settore;
        uscita.larghezza = 4.5;
        const Ciglio c = ciglioUscita(uscita, 1.5, ipotesi);
        EXPECT_LE(c.fineCurva, settore + 1e-9);
        EXPECT_NEAR(norma(c.centro), c.R + c.raggio, 1e-9);
    }
}

}  // namespace
}  // namespace kelvo::pianta
