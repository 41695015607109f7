// The rules on the geometry of the entries, on both sides of each bound.

#include <cmath>

#include "scenaControllo.h"

namespace kelvo::prove {
namespace {

float sotto(float valore) {
    return std::nextafter(valore, 0.0F);
}

float sopra(float valore) {
    return std::nextafter(valore, 1e9F);
}

const std::string limiteMinimo =
    "Y Geometria Ingresso:Ramo 'Est', Diametro rotatoria non compatibile con D.M. 19.04.06 [14m<D<50m]- inferiore "
    "limite minimo.";
const std::string limiteMassimo =
    "Y Geometria Ingresso:Ramo 'Est', Diametro rotatoria non compatibile con D.M. 19.04.06 [14m<D<50m]- superiore "
    "limite massimo.";
const std::string insufficiente =
    "Y Geometria ingresso:Sono presenti dei mezzi pesanti sul Ramo 'Est',diametro insufficiente.";
const std::string isolaValicabile =
    "Y Geometria ingresso:Sono presenti dei mezzi pesanti sul Ramo 'Est',predisporre isola centrale completamente "
    "valicabile come previsto dal D.M. 19.04.06";
const std::string fasciaValicabile =
    "Y Geometria ingresso:Sono presenti dei mezzi pesanti sul Ramo 'Est',predisporre fascia valicabile sull'isola "
    "centrale come previsto dal D.M. 19.04.06";
const std::string fasciaLeggibile =
    "Y Geometria ingresso:Sono presenti dei mezzi pesanti sul Ramo 'Est',predisporre fascia valicabile sull'isola "
    "centrale ai soli fini di leggibilità della traettoria di attraversamento (non richiesto dal D.M. 19.04.06)";

struct RegoleGeometria : ScenaControllo {
    /// Findings on the geometry of the second leg alone.
    Testi geometria() {
        errori.svuota();
        errori.INPUT_Geometria();
        Testi testi;
        for (const Riscontro& r : errori.ctlTreeAnalizzatore.riscontri) {
            if (r.testo.find("'Est'") != std::string::npos) {
                testi.push_back(r.chiave.substr(0, 1) + " " + r.testo);
                ultima = r.meta;
            }
        }
        return testi;
    }
    Testi conDiametro(float d) {
        ramo(2).DiametroInscritto(d);
        return geometria();
    }
    Meta ultima;
};

TEST_F(RegoleGeometria, TheDiameterAloneHasALowerAndAnUpperLimit) {
    EXPECT_EQ(conDiametro(13.0F), Testi{limiteMinimo});
    EXPECT_EQ(conDiametro(14.0F), Testi{limiteMinimo});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtDiametroInscritto", 2}));
    EXPECT_EQ(conDiametro(sopra(14.0F)), Testi{});
    EXPECT_EQ(conDiametro(30.0F), Testi{});
    EXPECT_EQ(conDiametro(50.0F), Testi{});
    EXPECT_EQ(conDiametro(sopra(50.0F)), Testi{limiteMassimo});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtDiametroInscritto", 2}));
}

TEST_F(RegoleGeometria, HeavyVehiclesHaveTheirBandsAndTheGapsBetweenThem) {
    composizione(2).Autoarticolati(1.0F);
    EXPECT_EQ(conDiametro(14.0F), (Testi{limiteMinimo, insufficiente}));
    EXPECT_EQ(conDiametro(sopra(14.0F)), Testi{isolaValicabile});
    EXPECT_EQ(conDiametro(18.0F), Testi{isolaValicabile});
    EXPECT_EQ(conDiametro(sopra(18.0F)), Testi{});
    EXPECT_EQ(conDiametro(sotto(19.0F)), Testi{});
    EXPECT_EQ(conDiametro(19.0F), Testi{fasciaValicabile});
    EXPECT_EQ(conDiametro(25.0F), Testi{fasciaValicabile});
    EXPECT_EQ(conDiametro(sopra(25.0F)), Testi{});
    EXPECT_EQ(conDiametro(sotto(26.0F)), Testi{});
    EXPECT_EQ(conDiametro(26.0F), Testi{fasciaLeggibile});
    EXPECT_EQ(conDiametro(40.0F), Testi{fasciaLeggibile});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtDiametroInscritto", 2}));
    EXPECT_EQ(conDiametro(sopra(40.0F)), Testi{});
    EXPECT_EQ(conDiametro(50.0F), Testi{});
    EXPECT_EQ(conDiametro(sopra(50.0F)), Testi{limiteMassimo});
}

TEST_F(RegoleGeometria, HeavyVehiclesAreLorriesOfBothKindsAndNothingElse) {
    ramo(2).DiametroInscritto(30.0F);
    EXPECT_EQ(geometria(), Testi{});
    composizione(2).Autotreni(0.5F);
    EXPECT_EQ(geometria(), Testi{fasciaLeggibile});
    composizione(2).Autotreni(0.0F);
    composizione(2).Pullman(50.0F);
    composizione(2).Camper(50.0F);
    EXPECT_EQ(geometria(), Testi{});
    composizione(1).Autoarticolati(5.0F);
    EXPECT_EQ(geometria(), Testi{});
}

TEST_F(RegoleGeometria, AnEntryIsTooNarrowBelowThreeAndAHalf) {
    ramo(2).LarghezzaIngresso(sotto(3.5F));
    EXPECT_EQ(geometria(),
              Testi{"Y Geometria Ingresso:Ramo 'Est', Larghezza ingresso non compatibile con D.M. 19.04.06 "
                    "[Li<3.50m]- inferiore limite minimo."});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtLarghezzaIngresso", 2}));
    ramo(2).LarghezzaIngresso(3.5F);
    EXPECT_EQ(geometria(), Testi{});
}

TEST_F(RegoleGeometria, AnEntryIsTooWideAboveTen) {
    ramo(2).LarghezzaIngresso(10.0F);
    EXPECT_EQ(geometria(), Testi{});
    ramo(2).LarghezzaIngresso(sopra(10.0F));
    EXPECT_EQ(geometria(), Testi{"R Geometria Ingresso:Ramo 'Est', Larghezza ingresso eccessiva. Scarsa leggibilità "
                                 "dell'accesso. Verificare dati di input."});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtLarghezzaIngresso", 2}));
}

TEST_F(RegoleGeometria, AFlareIsTooLongAboveThirty) {
    ramo(2).LunghezzaSvasatura(30.0F);
    EXPECT_EQ(geometria(), Testi{});
    ramo(2).LunghezzaSvasatura(sopra(30.0F));
    EXPECT_EQ(geometria(), Testi{"R Geometria Ingresso:Ramo 'Est', Lunghezza svasatura superiore a 30m. Scarso aumento "
                                 "di capacità. Verificare dati di input"});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtLungSvasatura", 2}));
}

TEST_F(RegoleGeometria, AnApproachIsTooWideAboveTenAndAHalf) {
    ramo(2).SemiLarghezza(10.5F);
    EXPECT_EQ(geometria(), Testi{});
    ramo(2).SemiLarghezza(sopra(10.5F));
    EXPECT_EQ(geometria(),
              Testi{"R Geometria Ingresso:Ramo 'Est', SemiLarghezza accesso > 10.50m. Se sono presenti più "
                    "di 2 corsie in ingresso, condizione critica e non compatibile con D.M. 19.04.06."});
    EXPECT_EQ(ultima, (Meta{"keyRamo2", "txtSemiLarghezza", 2}));
}

TEST_F(RegoleGeometria, DifferentDiametersAreToldOnceAndFirst) {
    ramo(3).DiametroInscritto(sopra(45.0F));
    ramo(4).DiametroInscritto(46.0F);
    ramo(1).LarghezzaIngresso(11.0F);
    EXPECT_EQ(trova(), (Testi{"Y Geometria Ingresso:Diametri differenti per ingresso = rotatoria non "
                              "circolare.Verificare inserimento dati input",
                              "R Geometria Ingresso:Ramo 'Nord', Larghezza ingresso eccessiva. Scarsa leggibilità "
                              "dell'accesso. Verificare dati di input."}));
    EXPECT_EQ(meta(), (Meta{"keyRamo3", "txtDiametroInscritto", 3}));
    for (std::int16_t i = 1; i <= 4; ++i) {
        ramo(i).DiametroInscritto(46.0F);
        ramo(i).LarghezzaIngresso(5.0F);
    }
    EXPECT_EQ(trova(), Testi{});
}

TEST_F(RegoleGeometria, ALegRunsThroughAllRulesBeforeTheNext) {
    for (std::int16_t i = 1; i <= 4; ++i) {
        ramo(i).DiametroInscritto(14.0F);
        ramo(i).LunghezzaSvasatura(31.0F);
    }
    const Testi tutti = trova();
    ASSERT_EQ(tutti.size(), 8U);
    for (std::size_t i = 0; i < 8; ++i) {
        EXPECT_NE(tutti[i].find(i % 2 == 0 ? "limite minimo" : "svasatura"), std::string::npos) << tutti[i];
        EXPECT_NE(tutti[i].find(std::string{"Ramo '"} + std::array{"Nord", "Est", "Sud", "Ovest"}.at(i / 2) + "'"),
                  std::string::npos)
            << tutti[i];
    }
}

TEST_F(RegoleGeometria, TheNameOfALegIsTakenAsItStands) {
    ramo(2).Descrizione("{v} <leg> 'Est'");
    ramo(2).LunghezzaSvasatura(31.0F);
    EXPECT_EQ(geometria(), Testi{"R Geometria Ingresso:Ramo '{v} <leg> 'Est'', Lunghezza svasatura superiore a 30m. "
                                 "Scarso aumento di capacità. Verificare dati di input"});
}

}  // namespace
}  // namespace kelvo::prove
