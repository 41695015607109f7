#pragma once

#include <gtest/gtest.h>

#include <string>

#include "comune/finti.h"
#include "model/Rotonda.h"
#include "proprieta.h"

namespace kelvo::prove {

/// A whole project file with a value of its own in every place.
inline const std::string& testoCompleto() {
    static const std::string testo = contenuto(KELVO_SORGENTI "/tests/model/dati/completo.klv");
    return testo;
}

/// The least file that is a project.
inline std::string testoMinimo(const std::string& altro = {}, const std::string& rami = "{}, {}, {}") {
    return R"({"formato": "Kelvo", "versione": 1, "Rami": [)" + rami + "]" + (altro.empty() ? "" : ", " + altro) + "}";
}

/// `testo` with its first `da` replaced.
inline std::string sostituito(std::string testo, const std::string& da, const std::string& a) {
    const auto posto = testo.find(da);
    EXPECT_NE(posto, std::string::npos) << da;
    return posto == std::string::npos ? testo : testo.replace(posto, da.size(), a);
}

/// A good project with one text in the place of another.
inline std::string con(const std::string& da, const std::string& a) {
    return sostituito(testoCompleto(), da, a);
}

struct EsitoLettura {
    bool esito = false;
    std::string messaggio;
};

inline EsitoLettura carica(Rotonda& rotonda, std::string_view testo) {
    EsitoLettura letto;
    letto.messaggio = "?";
    rotonda.LoadTesto(testo, letto.messaggio, letto.esito);
    return letto;
}

/// Message of a text that is refused; "" if it is read.
inline std::string rifiuto(std::string_view testo) {
    Rotonda rotonda;
    const EsitoLettura letto = carica(rotonda, testo);
    EXPECT_EQ(letto.esito, letto.messaggio.empty());
    return letto.messaggio;
}

template <class O>
void confrontaProprieta(const O& a, const O& b) {
    perOgniProprieta(&a, [&](const auto& p) { EXPECT_EQ((a.*p.leggi)(), (b.*p.leggi)()) << p.nome; });
}

/// Expects every property of the two projects to be the same.
inline void confronta(const Rotonda& a, const Rotonda& b) {
    confrontaProprieta(a, b);
    ASSERT_EQ(a.NumeroRami(), b.NumeroRami());
    ASSERT_EQ(a.Rami().Count(), b.Rami().Count());
    Matrice matriceA;
    Matrice matriceB;
    a.GetMatriceSvolte(matriceA);
    b.GetMatriceSvolte(matriceB);
    EXPECT_EQ(matriceA, matriceB);
    for (std::int16_t i = 1; i <= a.Rami().Count(); ++i) {
        SCOPED_TRACE(i);
        const Ramo& ra = a.Ramo(i);
        const Ramo& rb = b.Ramo(i);
        EXPECT_EQ(ra.Key(), rb.Key());
        confrontaProprieta(ra, rb);
        confrontaProprieta(ra.theDatiTraffico(), rb.theDatiTraffico());
        confrontaProprieta(ra.theComposizioneTraffico(), rb.theComposizioneTraffico());
        confrontaProprieta(ra.theAnalisiMarginale(), rb.theAnalisiMarginale());
        ASSERT_EQ(ra.theDatiTraffico().NumSegmentiTempo(), rb.theDatiTraffico().NumSegmentiTempo());
        for (std::int16_t s = 0; s < ra.theDatiTraffico().NumSegmentiTempo(); ++s) {
            EXPECT_EQ(ra.theDatiTraffico().FlussoSegmento(s, 0), rb.theDatiTraffico().FlussoSegmento(s, 0));
        }
        TabellaCategorie tabellaA;
        TabellaCategorie tabellaB;
        ra.theComposizioneTraffico().GetCategorieSegmenti(tabellaA);
        rb.theComposizioneTraffico().GetCategorieSegmenti(tabellaB);
        EXPECT_EQ(tabellaA, tabellaB);
    }
}

}  // namespace kelvo::prove
