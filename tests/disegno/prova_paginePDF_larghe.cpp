#include "scenaPaginePDF.h"

namespace kelvo::disegno {
namespace {

TEST_F(Pagine, PagesMayLieOnTheirLongSide) {
    D documento = vuoto();
    documento.orizzontale = true;
    EXPECT_NEAR(impagina(documento).pagine[0].foglio.width(), altezzaA4, 1.0);
    const std::string pdf = pdfPagine(documento).dati;
    EXPECT_NE(pdf.find("/MediaBox [0 0 842"), std::string::npos) << pdf.substr(pdf.find("/MediaBox"), 40);
}

/// A table of many columns: "Ramo" and `colonne` more, each of `cifra` in `righe` rows.
D::Tabella larga(int colonne, int righe, const std::string& cifra) {
    D::Tabella t{.colonne = {{"Ramo", 1.0, AllineamentoCella::sinistra}}, .righe = {}, .guida = 1};
    for (int c = 1; c <= colonne; ++c) {
        t.colonne.push_back({"c" + std::to_string(c), 1.0});
    }
    for (int r = 1; r <= righe; ++r) {
        std::vector<D::Cella> riga{{.testo = "ingresso" + std::to_string(r)}};
        riga.resize(static_cast<std::size_t>(colonne) + 1, D::Cella{.testo = cifra});
        t.righe.push_back(riga);
    }
    return t;
}

bool giace(const PaginaImpaginata& pagina) {
    return pagina.foglio.width() > pagina.foglio.height();
}

TEST_F(Pagine, APartWithAWideTableLiesAndTheOthersStand) {
    D documento = vuoto();
    documento.blocchi = {D::Titolo{"Prima", 1},        D::Paragrafo{"Poche parole."}, D::Titolo{"Larga", 1},
                         D::Titolo{"Di essa", 2},      larga(14, 3, "1234,56"),       D::Titolo{"Ancora di essa", 2},
                         D::Paragrafo{"Sta con lei."}, D::Titolo{"Dopo", 1},          tabella(3)};
    const Impaginato impaginato = impagina(documento);
    ASSERT_EQ(impaginato.pagine.size(), 3U);
    EXPECT_FALSE(giace(impaginato.pagine[0]));
    EXPECT_TRUE(giace(impaginato.pagine[1]));
    EXPECT_FALSE(giace(impaginato.pagine[2]));
    EXPECT_TRUE(contiene(impaginato.pagine[0], "Prima"));
    for (const char* parola : {"Larga", "Di essa", "c14", "Sta con lei.", "Pagina 2 di 3", "Ing. Bianchi"}) {
        EXPECT_TRUE(contiene(impaginato.pagine[1], parola)) << parola;
    }
    EXPECT_TRUE(contiene(impaginato.pagine[2], "riga 3"));
    ordinate(impaginato);
    const std::string pdf = pdfPagine(documento).dati;
    EXPECT_EQ(pagineDi(pdf), 3);
    EXPECT_NE(pdf.find("/MediaBox [0 0 842"), std::string::npos);
    EXPECT_NE(pdf.find("/MediaBox [0 0 595"), std::string::npos);
}

TEST_F(Pagine, ADocumentThatBeginsWithAWideTableLiesFromItsTitleOn) {
    D documento = vuoto();
    documento.blocchi = {larga(14, 3, "1234,56"), D::NuovaPagina{}, D::Paragrafo{"Poche parole."}};
    const Impaginato impaginato = impagina(documento);
    ASSERT_EQ(impaginato.pagine.size(), 2U);
    EXPECT_TRUE(giace(impaginato.pagine[0]));
    EXPECT_TRUE(contiene(impaginato.pagine[0], "Documento di prova"));
    EXPECT_FALSE(giace(impaginato.pagine[1]));
    EXPECT_TRUE(contiene(impaginato.pagine[1], "Poche parole."));
}

TEST_F(Pagine, AWarningBeforeAWidePartLiesWithIt) {
    D documento = vuoto();
    documento.blocchi = {D::Paragrafo{.testo = "I dati sono cambiati.", .segno = D::Segno::verifica},
                         D::Titolo{"Larga", 1}, larga(14, 3, "1234,56"), D::Titolo{"Dopo", 1}, tabella(3)};
    const Impaginato impaginato = impagina(documento);
    ASSERT_EQ(impaginato.pagine.size(), 2U);
    EXPECT_TRUE(giace(impaginato.pagine[0]));
    for (const char* parola : {"Documento di prova", "I dati sono cambiati.", "Larga", "c14"}) {
        EXPECT_TRUE(contiene(impaginato.pagine[0], parola)) << parola;
    }
    EXPECT_FALSE(giace(impaginato.pagine[1]));
    documento.blocchi.erase(documento.blocchi.begin() + 1, documento.blocchi.begin() + 3);
    EXPECT_FALSE(giace(impagina(documento).pagine[0])) << "the first part does not lie";
}

TEST_F(Pagine, WhatIsTooWideEvenSoStandsInBandsWithItsFirstColumn) {
    D documento = vuoto();
    documento.blocchi.emplace_back(larga(72, 7, "1234,56"));
    const Impaginato impaginato = impagina(documento);
    int nomi = 0;
    int cifre = 0;
    std::vector<bool> viste(73, false);
    for (const PaginaImpaginata& pagina : impaginato.pagine) {
        EXPECT_TRUE(giace(pagina));
        for (const PaginaImpaginata::Brano& brano : pagina.brani) {
            const std::string parola = parole(brano);
            nomi += parola == "ingresso7" ? 1 : 0;
            cifre += parola == "1234,56" ? 1 : 0;
            if (parola == "1234,56") {
                EXPECT_EQ(brano.a - brano.da, 1) << "a figure is never broken";
                EXPECT_GE(brano.testo->font().pixelSize(), 7.0 * punto) << "it reads without a glass";
            }
            if (parola.size() > 1 && parola[0] == 'c' && std::isdigit(parola[1]) != 0) {
                viste.at(static_cast<std::size_t>(std::stoi(parola.substr(1)))) = true;
            }
        }
    }
    EXPECT_GE(nomi, 4);
    EXPECT_LE(nomi, 8);
    EXPECT_EQ(cifre, 72 * 7);
    EXPECT_EQ(std::count(viste.begin(), viste.end(), true), 72);
    EXPECT_LE(impaginato.pagine.size(), 3U);
    ordinate(impaginato);
}

TEST_F(Pagine, ABandThatFitsOnAPageIsNotParted) {
    D documento = vuoto();
    documento.blocchi.emplace_back(larga(72, 12, "1234,56"));
    for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
        EXPECT_EQ(contiene(pagina, "ingresso1"), contiene(pagina, "ingresso12"));
    }
}

}  // namespace
}  // namespace kelvo::disegno
