// Documents for paper: where their pages end, head and foot, tables over several pages, the file and its words.

#include "disegno/paginePDF.h"

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "comune/cartella.h"
#include "disegno/AmbienteDisegno.h"
#include "disegno/graficiDiProva.h"
#include "pianta/Pianta.h"

namespace kelvo::disegno {
namespace {

using D = DocumentoPagine;

constexpr double larghezzaA4 = 210.0 / 25.4 * 72.0 * punto;
constexpr double altezzaA4 = 297.0 / 25.4 * 72.0 * punto;

class Pagine : public testing::Test {
protected:
    static void SetUpTestSuite() { ambiente_ = std::make_unique<AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    static void TearDownTestSuite() { ambiente_.reset(); }

    static D vuoto() {
        return {.titolo = "Documento di prova",
                .progetto = "Rotatoria",
                .progettista = "Ing. Bianchi",
                .chiusura = "Kelvo 1.0.0"};
    }
    /// The words of a run of lines.
    static std::string parole(const PaginaImpaginata::Brano& brano) {
        const QTextLine prima = brano.testo->lineAt(brano.da);
        const QTextLine ultima = brano.testo->lineAt(brano.a - 1);
        const int fine = ultima.textStart() + ultima.textLength();
        return brano.testo->text().mid(prima.textStart(), fine - prima.textStart()).trimmed().toStdString();
    }
    static std::vector<std::string> parole(const PaginaImpaginata& pagina) {
        std::vector<std::string> tutte;
        for (const PaginaImpaginata::Brano& brano : pagina.brani) {
            tutte.push_back(parole(brano));
        }
        return tutte;
    }
    static bool contiene(const PaginaImpaginata& pagina, const std::string& cercata) {
        const auto tutte = parole(pagina);
        return std::find(tutte.begin(), tutte.end(), cercata) != tutte.end();
    }
    static D::Tabella tabella(int righe) {
        D::Tabella t{.colonne = {{"Segmento", 2.0, AllineamentoCella::sinistra}, {"Flusso", 1.0}, {"Ritardo", 1.0}},
                     .righe = {}};
        for (int r = 1; r <= righe; ++r) {
            t.righe.push_back({{.testo = "riga " + std::to_string(r)}, {.testo = "12,5"}, {.testo = "3,0"}});
        }
        return t;
    }
    /// Nothing stands outside the margins of its page, and no run of lines on another one.
    static void ordinate(const Impaginato& impaginato) {
        for (const PaginaImpaginata& pagina : impaginato.pagine) {
            for (const PaginaImpaginata::Brano& brano : pagina.brani) {
                const QTextLine ultima = brano.testo->lineAt(brano.a - 1);
                const double alta = ultima.y() + ultima.height() - brano.testo->lineAt(brano.da).y();
                EXPECT_GE(brano.posto.y(), 0.0);
                EXPECT_LE(brano.posto.y() + alta, pagina.foglio.height()) << parole(brano);
                EXPECT_GE(brano.posto.x(), 500.0) << parole(brano);
                EXPECT_LE(brano.posto.x() + ultima.width(), pagina.foglio.width() - 500.0) << parole(brano);
            }
        }
    }
    /// Pages of a PDF file, by their objects.
    static int pagineDi(const std::string& pdf) {
        int quante = 0;
        for (std::size_t i = pdf.find("/Type /Page\n"); i != std::string::npos; i = pdf.find("/Type /Page\n", i + 1)) {
            ++quante;
        }
        return quante;
    }

private:
    static inline std::unique_ptr<AmbienteDisegno> ambiente_;
};

TEST_F(Pagine, AnEmptyDocumentIsOnePageWithHeadAndFoot) {
    const D documento = vuoto();
    const Impaginato impaginato = impagina(documento);
    ASSERT_EQ(impaginato.pagine.size(), 1U);
    EXPECT_NEAR(impaginato.pagine[0].foglio.width(), larghezzaA4, 1.0);
    EXPECT_NEAR(impaginato.pagine[0].foglio.height(), altezzaA4, 1.0);
    for (const char* parola : {"Documento di prova", "Rotatoria", "Ing. Bianchi", "Kelvo 1.0.0", "Pagina 1 di 1"}) {
        EXPECT_TRUE(contiene(impaginato.pagine[0], parola)) << parola;
    }
    ordinate(impaginato);
}

TEST_F(Pagine, TheNumberOfPagesStandsOnEachOfThem) {
    D documento = vuoto();
    for (int i = 0; i < 120; ++i) {
        documento.blocchi.emplace_back(D::Paragrafo{"Un paragrafo di poche parole."});
    }
    const Impaginato impaginato = impagina(documento);
    ASSERT_GT(impaginato.pagine.size(), 2U);
    for (std::size_t i = 0; i < impaginato.pagine.size(); ++i) {
        EXPECT_TRUE(contiene(impaginato.pagine[i],
                             "Pagina " + std::to_string(i + 1) + " di " + std::to_string(impaginato.pagine.size())));
        EXPECT_TRUE(contiene(impaginato.pagine[i], "Rotatoria"));
        EXPECT_EQ(contiene(impaginato.pagine[i], "Documento di prova"), i == 0) << i;
    }
    ordinate(impaginato);
}

TEST_F(Pagine, ALongParagraphGoesOnWithoutLosingAWord) {
    D documento = vuoto();
    std::string lungo;
    for (int i = 0; i < 1500; ++i) {
        lungo += "parola" + std::to_string(i) + " ";
    }
    documento.blocchi.emplace_back(D::Paragrafo{.testo = lungo, .inizio = "Inizio:", .segno = D::Segno::errore});
    const Impaginato impaginato = impagina(documento);
    ASSERT_GT(impaginato.pagine.size(), 1U);
    std::string letto;
    for (const PaginaImpaginata& pagina : impaginato.pagine) {
        for (const PaginaImpaginata::Brano& brano : pagina.brani) {
            if (brano.testo->text().startsWith(QStringLiteral("Inizio:"))) {
                letto += parole(brano) + " ";
            }
        }
    }
    EXPECT_EQ(letto, "Inizio:" + lungo);
    EXPECT_EQ(impaginato.pagine[0].segni.size(), 1U) << "the sign stands at the first line alone";
    EXPECT_TRUE(impaginato.pagine[1].segni.empty());
    ordinate(impaginato);
}

TEST_F(Pagine, ATitleNeverStandsAloneAtTheFoot) {
    for (int sopra = 30; sopra < 60; ++sopra) {
        D documento = vuoto();
        for (int i = 0; i < sopra; ++i) {
            documento.blocchi.emplace_back(D::Paragrafo{"Riga."});
        }
        documento.blocchi.emplace_back(D::Titolo{"Un titolo", 1});
        documento.blocchi.emplace_back(D::Titolo{"Sotto il titolo", 2});
        documento.blocchi.emplace_back(D::Paragrafo{"Quello che segue."});
        for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
            EXPECT_EQ(contiene(pagina, "Un titolo"), contiene(pagina, "Quello che segue.")) << sopra;
            EXPECT_EQ(contiene(pagina, "Un titolo"), contiene(pagina, "Sotto il titolo")) << sopra;
        }
    }
}

TEST_F(Pagine, ATitleStaysWithTheHeadingsAndTheWholeFirstRowOfATable) {
    for (int sopra = 25; sopra < 45; ++sopra) {
        D documento = vuoto();
        for (int i = 0; i < sopra; ++i) {
            documento.blocchi.emplace_back(D::Paragrafo{"Riga."});
        }
        documento.blocchi.emplace_back(D::Titolo{"Un titolo", 1});
        D::Tabella alta = tabella(1);
        alta.righe[0][0].testo = "uno\ndue\ntre\nquattro\ncinque\nsei";
        documento.blocchi.emplace_back(alta);
        for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
            EXPECT_EQ(contiene(pagina, "Un titolo"), contiene(pagina, "12,5")) << sopra;
            EXPECT_EQ(contiene(pagina, "Un titolo"), contiene(pagina, "Segmento")) << sopra;
        }
    }
}

TEST_F(Pagine, ATitleStaysWithTheBeginningOfARowHigherThanAPage) {
    D::Tabella alta = tabella(1);
    alta.righe[0][0].testo = "voce0";
    for (int i = 1; i < 200; ++i) {
        alta.righe[0][0].testo += "\nvoce" + std::to_string(i);
    }
    for (int sopra = 25; sopra < 45; ++sopra) {
        D documento = vuoto();
        for (int i = 0; i < sopra; ++i) {
            documento.blocchi.emplace_back(D::Paragrafo{"Riga."});
        }
        documento.blocchi.emplace_back(D::Titolo{"Un titolo", 1});
        documento.blocchi.emplace_back(alta);
        for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
            bool comincia = false;
            for (const PaginaImpaginata::Brano& brano : pagina.brani) {
                comincia = comincia || (brano.da == 0 && brano.testo->text().startsWith(QStringLiteral("voce0")));
            }
            EXPECT_EQ(contiene(pagina, "Un titolo"), comincia) << sopra;
        }
    }
}

TEST_F(Pagine, ThreeLinesAreNotParted) {
    // Paragraphs of two sizes above it bring its first line to any place of the page.
    for (int sopra = 28; sopra < 36; ++sopra) {
        for (int quieti = 0; quieti < 12; ++quieti) {
            D documento = vuoto();
            for (int i = 0; i < sopra + quieti; ++i) {
                documento.blocchi.emplace_back(D::Paragrafo{.testo = "Riga.", .quieto = i < quieti});
            }
            documento.blocchi.emplace_back(D::Paragrafo{"uno\ndue\ntre"});
            int volte = 0;
            for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
                for (const PaginaImpaginata::Brano& brano : pagina.brani) {
                    if (brano.testo->text().startsWith(QStringLiteral("uno"))) {
                        EXPECT_EQ(brano.a - brano.da, 3) << sopra << " " << quieti;
                        ++volte;
                    }
                }
            }
            EXPECT_EQ(volte, 1) << sopra << " " << quieti;
        }
    }
}

TEST_F(Pagine, TheHeadingsOfATableStandOnEachOfItsPages) {
    D documento = vuoto();
    documento.blocchi.emplace_back(tabella(120));
    const Impaginato impaginato = impagina(documento);
    ASSERT_GT(impaginato.pagine.size(), 1U);
    int righe = 0;
    for (const PaginaImpaginata& pagina : impaginato.pagine) {
        EXPECT_TRUE(contiene(pagina, "Segmento"));
        EXPECT_TRUE(contiene(pagina, "Ritardo"));
        for (const std::string& parola : parole(pagina)) {
            righe += parola.starts_with("riga ") ? 1 : 0;
        }
    }
    EXPECT_EQ(righe, 120);
    ordinate(impaginato);
}

TEST_F(Pagine, ARowHigherThanAPageGoesOnBelowTheHeadings) {
    D documento = vuoto();
    D::Tabella alta = tabella(1);
    std::string lungo;
    for (int i = 0; i < 3000; ++i) {
        lungo += "voce" + std::to_string(i) + " ";
    }
    alta.righe[0][0].testo = lungo;
    documento.blocchi.emplace_back(alta);
    const Impaginato impaginato = impagina(documento);
    ASSERT_GT(impaginato.pagine.size(), 1U);
    std::string letto;
    for (const PaginaImpaginata& pagina : impaginato.pagine) {
        EXPECT_TRUE(contiene(pagina, "Segmento"));
        for (const PaginaImpaginata::Brano& brano : pagina.brani) {
            letto += brano.testo->text().startsWith(QStringLiteral("voce0")) ? parole(brano) + " " : std::string{};
        }
    }
    EXPECT_EQ(letto, lungo);
    ordinate(impaginato);
}

TEST_F(Pagine, ManyColumnsAreSetSmallerUntilTheirWordsFit) {
    D documento = vuoto();
    D::Tabella larga;
    for (int c = 0; c < 11; ++c) {
        larga.colonne.push_back({"Ramo " + std::to_string(c), 1.0});
    }
    larga.righe.emplace_back(11, D::Cella{.testo = "12345,67"});
    documento.blocchi.emplace_back(larga);
    const Impaginato impaginato = impagina(documento);
    double piccolo = 1000.0;
    for (const PaginaImpaginata::Brano& brano : impaginato.pagine.at(0).brani) {
        if (parole(brano) == "12345,67") {
            EXPECT_EQ(brano.a - brano.da, 1);
            piccolo = std::min(piccolo, static_cast<double>(brano.testo->font().pixelSize()));
        }
    }
    EXPECT_LT(piccolo, 9.0 * punto);
    EXPECT_GE(piccolo, 6.0 * punto);
    ordinate(impaginato);
}

TEST_F(Pagine, BoxesStandInTheirCells) {
    D documento = vuoto();
    D::Tabella t{.colonne = {{"Domanda", 8.0, AllineamentoCella::sinistra}, {"SI", 1.0}, {"NO", 1.0}}, .righe = {}};
    t.righe.push_back({{.testo = "Una domanda?"}, {.testo = {}, .casella = true}, {.testo = {}, .casella = false}});
    documento.blocchi.emplace_back(t);
    const Impaginato impaginato = impagina(documento);
    const auto& caselle = impaginato.pagine.at(0).caselle;
    ASSERT_EQ(caselle.size(), 2U);
    EXPECT_TRUE(caselle[0].spuntata);
    EXPECT_FALSE(caselle[1].spuntata);
    EXPECT_LT(caselle[0].dove.right(), caselle[1].dove.left());
}

TEST_F(Pagine, AFigureIsNeverPartedAndKeepsItsTitle) {
    D documento = vuoto();
    for (int i = 0; i < 3; ++i) {
        documento.blocchi.emplace_back(D::Titolo{"Figura " + std::to_string(i), 2});
        documento.blocchi.emplace_back(
            D::Figura{.contenuto = prove::prestazioni(prove::ritardi, 10), .didascalia = "Ritardi"});
    }
    const Impaginato impaginato = impagina(documento);
    std::size_t figure = 0;
    for (const PaginaImpaginata& pagina : impaginato.pagine) {
        for (const PaginaImpaginata::Figura& figura : pagina.figure) {
            EXPECT_LE(figura.dove.bottom(), altezzaA4 - 300.0);
            EXPECT_NEAR(figura.dove.height() / figura.dove.width(), 0.6, 1e-6);
            EXPECT_TRUE(contiene(pagina, "Figura " + std::to_string(figure)));
            ++figure;
        }
    }
    EXPECT_EQ(figure, 3U);
    EXPECT_EQ(impaginato.pagine.size(), 2U);
}

TEST_F(Pagine, ATallFigureIsMadeSmallerUntilItFits) {
    D documento = vuoto();
    documento.blocchi.emplace_back(D::Figura{.contenuto = D::Immagine{}, .forma = 5.0, .didascalia = "Alta"});
    const Impaginato impaginato = impagina(documento);
    ASSERT_EQ(impaginato.pagine.size(), 2U) << "below the title there is no room for it";
    const QRectF dove = impaginato.pagine[1].figure.at(0).dove;
    EXPECT_NEAR(dove.height() / dove.width(), 5.0, 1e-6);
    EXPECT_LT(dove.bottom(), altezzaA4 - 300.0);
    EXPECT_TRUE(contiene(impaginato.pagine[1], "Alta"));
}

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

TEST_F(Pagine, CellsStandInOneLineWhereThereIsRoomForIt) {
    D documento = vuoto();
    D::Tabella t{.colonne = {{"Ingresso", 1.0, AllineamentoCella::sinistra}, {"Ora", 1.0}}, .righe = {}};
    for (int c = 0; c < 6; ++c) {
        t.colonne.push_back({"Riserva di capacità [veic/h]", 1.0});
    }
    std::vector<D::Cella> riga(8, D::Cella{.testo = "1234,56"});
    riga[0].testo = "Strada Provinciale 9";
    riga[1].testo = "08:00 - 09:00";
    t.righe.push_back(riga);
    documento.blocchi.emplace_back(t);
    const Impaginato impaginato = impagina(documento);
    EXPECT_TRUE(contiene(impaginato.pagine[0], "Strada Provinciale 9"));
    for (const PaginaImpaginata::Brano& brano : impaginato.pagine[0].brani) {
        const QString testo = brano.testo->text();
        if (testo.startsWith(QStringLiteral("Strada")) || testo.startsWith(QStringLiteral("08:00"))) {
            EXPECT_EQ(brano.a - brano.da, 1) << testo.toStdString();
        }
        if (testo.startsWith(QStringLiteral("Riserva"))) {
            const QTextLine ultima = brano.testo->lineAt(brano.a - 1);
            EXPECT_EQ(testo.mid(ultima.textStart(), ultima.textLength()).trimmed(), QStringLiteral("[veic/h]"))
                << "a unit is not broken at its stroke";
        }
    }
    ordinate(impaginato);
}

TEST_F(Pagine, ABandThatFitsOnAPageIsNotParted) {
    D documento = vuoto();
    documento.blocchi.emplace_back(larga(72, 12, "1234,56"));
    for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
        EXPECT_EQ(contiene(pagina, "ingresso1"), contiene(pagina, "ingresso12"));
    }
}

TEST_F(Pagine, ARowThatHeadsOthersNeverStandsLast) {
    for (int sopra = 0; sopra < 40; ++sopra) {
        D documento = vuoto();
        D::Tabella t = tabella(0);
        for (int r = 0; r < sopra; ++r) {
            t.righe.push_back({{.testo = "riga"}, {}, {}});
        }
        for (int g = 0; g < 12; ++g) {
            t.capi.push_back(t.righe.size());
            t.righe.push_back({{.testo = "capo" + std::to_string(g)}, {}, {}});
            t.righe.push_back({{.testo = "segue" + std::to_string(g)}, {}, {}});
        }
        documento.blocchi.emplace_back(t);
        for (const PaginaImpaginata& pagina : impagina(documento).pagine) {
            for (int g = 0; g < 12; ++g) {
                EXPECT_EQ(contiene(pagina, "capo" + std::to_string(g)), contiene(pagina, "segue" + std::to_string(g)))
                    << sopra;
            }
        }
    }
}

TEST_F(Pagine, TheInkOfACellIsItsOwnAsFarAsItCanBeRead) {
    D documento = vuoto();
    D::Tabella t = tabella(1);
    t.righe[0][0] = {.testo = "rosso", .inchiostro = colori::livelloF};
    t.righe[0][1] = {.testo = "bianco", .inchiostro = colori::bianco};
    t.righe[0][2] = {.testo = "chiaro", .fondo = colori::intestazione, .inchiostro = colori::bianco};
    documento.blocchi.emplace_back(t);
    const Impaginato impaginato = impagina(documento);
    const auto colore = [&](const char* parola) {
        for (const PaginaImpaginata::Brano& brano : impaginato.pagine[0].brani) {
            if (parole(brano) == parola) {
                return brano.testo->formats().at(0).format.foreground().color();
            }
        }
        return QColor();
    };
    EXPECT_EQ(colore("chiaro"), QColor(Qt::white));
    EXPECT_GT(colore("rosso").red(), colore("rosso").green() + 100);
    EXPECT_LT(qGray(colore("bianco").rgb()), 128) << "white on white would not be read";
}

TEST_F(Pagine, ChartsAndPlansOfAPdfAreNoBitmaps) {
    D documento = vuoto();
    documento.blocchi.emplace_back(D::Figura{.contenuto = prove::prestazioni(prove::ritardi, 10)});
    EXPECT_EQ(pdfPagine(documento).dati.find("/Subtype /Image"), std::string::npos);
}

/// A document with everything.
D campione() {
    D documento{.titolo = "Documento di prova",
                .progetto = "Rotatoria",
                .progettista = "Ing. Bianchi",
                .chiusura = "Kelvo 1.0.0"};
    documento.blocchi.emplace_back(D::Titolo{"Messaggi", 1});
    for (const auto segno : {D::Segno::errore, D::Segno::verifica, D::Segno::informazione}) {
        documento.blocchi.emplace_back(
            D::Paragrafo{.testo = "Lunghezza svasatura superiore a 30m.", .inizio = "Geometria:", .segno = segno});
    }
    documento.blocchi.emplace_back(D::Paragrafo{.testo = "Una nota in piccolo.", .quieto = true});
    D::Tabella t{.colonne = {{"Domanda", 8.0, AllineamentoCella::sinistra},
                             {"SI", 1.0, AllineamentoCella::centro},
                             {"NO", 1.0, AllineamentoCella::centro}},
                 .righe = {}};
    t.righe.push_back(
        {{.testo = "L'isola centrale è centrata?"}, {.testo = {}, .casella = true}, {.testo = {}, .casella = false}});
    t.righe.push_back({{.testo = "Totale", .grassetto = true, .fondo = colori::dati}, {.testo = "1"}, {.testo = "0"}});
    documento.blocchi.emplace_back(t);
    documento.blocchi.emplace_back(
        D::Figura{.contenuto = prove::prestazioni(prove::ritardi, 10), .larghezza = 0.6, .didascalia = "Ritardi"});
    const auto ramo = pianta::DatiRamo{.nome = {},
                                       .larghezzaIngresso = 5,
                                       .semiLarghezza = 3.75,
                                       .lunghezzaSvasatura = 20,
                                       .angoloConflitto = 25,
                                       .raggioIngresso = 25,
                                       .diametroInscritto = 40,
                                       .attraversamentoPedonale = true};
    documento.blocchi.emplace_back(
        D::Figura{.contenuto = D::Pianta{std::make_shared<pianta::DatiPianta>(pianta::DatiPianta{
                                             .rami = std::vector<pianta::DatiRamo>(4, ramo), .ipotesi = {}}),
                                         std::make_shared<pianta::OpzioniPianta>()},
                  .larghezza = 0.4,
                  .forma = 1.0});
    return documento;
}

TEST_F(Pagine, ThePdfHasAsManyPages) {
    D documento = campione();
    documento.blocchi.emplace_back(tabella(100));
    const EsitoDisegno esito = pdfPagine(documento);
    EXPECT_EQ(esito.errore, "");
    EXPECT_TRUE(esito.dati.starts_with("%PDF-1."));
    EXPECT_EQ(pagineDi(esito.dati), static_cast<int>(impagina(documento).pagine.size()));
}

TEST_F(Pagine, TheWordsOfThePdfCanBeReadBack) {
    if (std::system("command -v pdftotext > /dev/null 2>&1") != 0) {
        GTEST_SKIP() << "pdftotext is not installed";
    }
    prove::CartellaTemporanea cartella;
    prove::scriviContenuto(cartella.file("prova.pdf"), pdfPagine(campione()).dati);
    const std::string comando =
        "pdftotext -layout '" + cartella.file("prova.pdf") + "' '" + cartella.file("prova.txt") + "'";
    ASSERT_EQ(std::system(comando.c_str()), 0);
    const std::string testo = prove::contenuto(cartella.file("prova.txt"));
    for (const char* parola : {"Documento di prova", "Rotatoria", "Ing. Bianchi", "Pagina 1 di", "Geometria:Lunghezza",
                               "L'isola centrale è centrata?", "Ritardi"}) {
        EXPECT_NE(testo.find(parola), std::string::npos) << parola << "\n" << testo;
    }
}

/// A page at two pixels to the point, and places on it.
class Foto {
public:
    Foto(const Impaginato& impaginato, std::size_t pagina)
        : scala_(lunga / impaginato.pagine.at(pagina).foglio.height()),
          immagine_(static_cast<int>(impaginato.pagine.at(pagina).foglio.width() * scala_), static_cast<int>(lunga),
                    QImage::Format_RGB32) {
        immagine_.fill(Qt::white);
        QPainter pennello(&immagine_);
        dipingiPagina(pennello, impaginato, pagina,
                      QRectF(QPointF(0.0, 0.0), impaginato.pagine[pagina].foglio * scala_));
    }
    /// At a place of a square that is told from 0 to 1.
    QColor in(const QRectF& quadro, double x, double y) const {
        return immagine_.pixelColor(static_cast<int>((quadro.left() + x * quadro.width()) * scala_),
                                    static_cast<int>((quadro.top() + y * quadro.height()) * scala_));
    }
    /// Dark pixels in a rectangle.
    int scuri(const QRectF& dove) const {
        int quanti = 0;
        for (auto y = static_cast<int>(dove.top() * scala_); y < static_cast<int>(dove.bottom() * scala_); ++y) {
            for (auto x = static_cast<int>(dove.left() * scala_); x < static_cast<int>(dove.right() * scala_); ++x) {
                quanti += qGray(immagine_.pixel(x, y)) < 128 ? 1 : 0;
            }
        }
        return quanti;
    }

private:
    static constexpr double lunga = 1684.0;
    double scala_;
    QImage immagine_;
};

void simile(const QColor& trovato, const QColor& atteso, const char* dove) {
    constexpr int scarto = 24;
    EXPECT_LT(std::abs(trovato.red() - atteso.red()), scarto) << dove << " " << trovato.name().toStdString();
    EXPECT_LT(std::abs(trovato.green() - atteso.green()), scarto) << dove << " " << trovato.name().toStdString();
    EXPECT_LT(std::abs(trovato.blue() - atteso.blue()), scarto) << dove << " " << trovato.name().toStdString();
}

TEST_F(Pagine, EachSignIsPaintedWhereItStands) {
    const D documento = campione();
    const Impaginato impaginato = impagina(documento);
    const auto& segni = impaginato.pagine.at(0).segni;
    ASSERT_EQ(segni.size(), 3U);
    const Foto foto(impaginato, 0);
    // The ground beside the stroke, the stroke, the paper in the corner.
    simile(foto.in(segni[0].dove, 0.5, 0.15), QColor(176, 0, 32), "errore");
    simile(foto.in(segni[0].dove, 0.5, 0.5), QColor(255, 255, 255), "errore, croce");
    simile(foto.in(segni[1].dove, 0.27, 0.85), QColor(255, 210, 77), "verifica");
    EXPECT_LT(foto.in(segni[1].dove, 0.5, 0.5).lightness(), 100) << "verifica, punto esclamativo";
    simile(foto.in(segni[1].dove, 0.08, 0.2), QColor(255, 255, 255), "verifica, fuori");
    simile(foto.in(segni[2].dove, 0.2, 0.5), QColor(0, 98, 0), "informazione");
    simile(foto.in(segni[2].dove, 0.5, 0.6), QColor(255, 255, 255), "informazione, lettera");
}

TEST_F(Pagine, ATickedBoxIsPaintedWithItsTickAndAnEmptyOneWithout) {
    const D documento = campione();
    const Impaginato impaginato = impagina(documento);
    const auto& caselle = impaginato.pagine.at(0).caselle;
    ASSERT_EQ(caselle.size(), 2U);
    ASSERT_TRUE(caselle[0].spuntata);
    ASSERT_FALSE(caselle[1].spuntata);
    const Foto foto(impaginato, 0);
    for (const PaginaImpaginata::Casella& casella : caselle) {
        const double bordo = casella.dove.width() * 0.15;
        const QRectF dentro = casella.dove.adjusted(bordo, bordo, -bordo, -bordo);
        const QRectF fuori = casella.dove.adjusted(-bordo, -bordo, bordo, bordo);
        if (casella.spuntata) {
            EXPECT_GT(foto.scuri(dentro), 15);
        } else {
            EXPECT_EQ(foto.scuri(dentro), 0);
        }
        // 18 pixels a side.
        EXPECT_GT(foto.scuri(fuori) - foto.scuri(dentro), 36);
    }
}

TEST_F(Pagine, APageLooksAsItDid) {
    const D documento = campione();
    const Impaginato impaginato = impagina(documento);
    QImage immagine(496, 702, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pennello(&immagine);
    dipingiPagina(pennello, impaginato, 0, QRectF(0, 0, 496, 702));
    pennello.end();
    const QString file = QStringLiteral(KELVO_SORGENTI "/tests/disegno/attesi/Pagina.png");
    if (std::getenv("KELVO_RISCRIVI_FIGURE") != nullptr) {
        ASSERT_TRUE(immagine.save(file));
    }
    const QImage attesa = QImage(file).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(attesa.size(), immagine.size()) << file.toStdString();
    int diversi = 0;
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            diversi += std::abs(qGray(immagine.pixel(x, y)) - qGray(attesa.pixel(x, y))) > 64 ? 1 : 0;
        }
    }
    EXPECT_LT(diversi, immagine.width() * immagine.height() / 200);
}

}  // namespace
}  // namespace kelvo::disegno
