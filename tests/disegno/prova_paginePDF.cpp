#include "scenaPaginePDF.h"

namespace kelvo::disegno {
namespace {

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

}  // namespace
}  // namespace kelvo::disegno
