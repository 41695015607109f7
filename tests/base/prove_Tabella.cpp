#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "base/Tabella.h"
#include "base/guasto.h"
#include "base/versione.h"

namespace kelvo {
namespace {

template <class F>
int guastoDi(const F& azione) {
    try {
        azione();
    } catch (const Guasto& guasto) {
        return guasto.codice();
    }
    return 0;
}

Tabella tabellaDi(const std::vector<std::vector<std::string>>& righe) {
    Tabella tabella(static_cast<int>(righe.size()), righe.empty() ? 0 : static_cast<int>(righe.front().size()));
    for (int r = 0; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            tabella.cella(r, c).testo = righe[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
        }
    }
    return tabella;
}

TEST(TabellaProva, FreshCellsAreEmptyBlackOnWhite) {
    const Tabella tabella(2, 3);
    EXPECT_EQ(tabella.righe(), 2);
    EXPECT_EQ(tabella.colonne(), 3);
    EXPECT_EQ(tabella.larghezze, (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(tabella.altezzaRiga, 300);
    for (int r = 0; r < 2; ++r) {
        for (int c = 0; c < 3; ++c) {
            const Cella& cella = tabella.cella(r, c);
            EXPECT_EQ(cella.testo, "");
            EXPECT_EQ(cella.sfondo, (Colore{255, 255, 255}));
            EXPECT_EQ(cella.inchiostro, (Colore{0, 0, 0}));
            EXPECT_FALSE(cella.grassetto);
        }
    }
}

TEST(TabellaProva, EachCellIsItsOwn) {
    Tabella tabella(3, 4);
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 4; ++c) {
            tabella.cella(r, c).testo = std::to_string(r * 10 + c);
        }
    }
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 4; ++c) {
            EXPECT_EQ(tabella.testo(r, c), std::to_string(r * 10 + c));
        }
    }
}

TEST(TabellaProva, OutsideIsFaultNine) {
    Tabella tabella(2, 3);
    const Tabella& costante = tabella;
    const std::vector<std::pair<int, int>> fuori{{-1, 0},
                                                 {0, -1},
                                                 {2, 0},
                                                 {0, 3},
                                                 {2, 3},
                                                 {1, 3},
                                                 {std::numeric_limits<int>::max(), 0},
                                                 {0, std::numeric_limits<int>::min()}};
    for (const auto& [riga, colonna] : fuori) {
        EXPECT_EQ(guastoDi([&, r = riga, c = colonna] { tabella.cella(r, c); }), 9) << riga << ", " << colonna;
        EXPECT_EQ(guastoDi([&, r = riga, c = colonna] { costante.cella(r, c); }), 9) << riga << ", " << colonna;
        EXPECT_EQ(guastoDi([&, r = riga, c = colonna] { costante.testo(r, c); }), 9) << riga << ", " << colonna;
    }
    EXPECT_EQ(guastoDi([] { Tabella().cella(0, 0); }), 9);
    EXPECT_EQ(guastoDi([] { Tabella(-1, 2); }), 9);
    EXPECT_EQ(guastoDi([] { Tabella(2, -1); }), 9);
}

TEST(TabellaProva, TheFaultNamesTheCell) {
    const Tabella tabella(2, 3);
    try {
        tabella.cella(2, 1);
        ADD_FAILURE();
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.descrizione(), "Indice non compreso nell'intervallo (cella 2, 1 di una tabella 2 x 3)");
    }
}

TEST(TabellaProva, SharedColoursAreThoseOfTheWindows) {
    EXPECT_EQ(colori::intestazione, (Colore{0, 98, 0}));
    EXPECT_EQ(colori::nomeIngresso, (Colore{164, 196, 0}));
    EXPECT_EQ(colori::dati, (Colore{220, 220, 220}));
    EXPECT_EQ(colori::livelloF, (Colore{255, 0, 0}));
    EXPECT_EQ(colori::evidenza, (Colore{244, 237, 90}));
}

TEST(LarghezzeTesto, AreTheLongestTextOfTheColumnPlusTwo) {
    const Tabella tabella = tabellaDi({{"", "Flusso", "1"}, {"Via Roma", "12,50", ""}, {"Via Po", "3", ""}});
    EXPECT_EQ(larghezzeTesto(tabella), (std::vector<std::size_t>{10, 8, 3}));
}

TEST(LarghezzeTesto, OfEmptyColumnsAreTwo) {
    EXPECT_EQ(larghezzeTesto(Tabella(2, 2)), (std::vector<std::size_t>{2, 2}));
    EXPECT_EQ(larghezzeTesto(Tabella(0, 2)), (std::vector<std::size_t>{2, 2}));
    EXPECT_TRUE(larghezzeTesto(Tabella()).empty());
}

TEST(LarghezzeTesto, CountAccentsAsOneCharacter) {
    EXPECT_EQ(larghezzeTesto(tabellaDi({{"Capacit\xC3\xA0"}, {"1234567"}})), (std::vector<std::size_t>{10}));
}

TEST(TestoTabella, AlignsToTheRightWithATabBehindEachCell) {
    const Tabella tabella = tabellaDi({{"", "Flusso"}, {"Via Po", "1,5"}});
    EXPECT_EQ(testoTabella(tabella, {}),
              "        \t  Flusso\t\r\n"
              "  Via Po\t     1,5\t\r\n");
}

TEST(TestoTabella, AlignsToTheLeftWithATabBehindEachCell) {
    const Tabella tabella = tabellaDi({{"", "Flusso"}, {"Via Po", "1,5"}});
    EXPECT_EQ(testoTabella(tabella, {.allineamento = Allineamento::sinistra, .rigaVuotaPrima = {}}),
              "        \tFlusso  \t\r\n"
              "Via Po  \t1,5     \t\r\n");
}

TEST(TestoTabella, PadsByCharactersAndNotBytes) {
    const Tabella tabella = tabellaDi({{"Capacit\xC3\xA0"}, {"12345678"}, {"\xF0\x9F\x98\x80"}, {"Citt\xE0"}});
    EXPECT_EQ(testoTabella(tabella, {}),
              "  Capacit\xC3\xA0\t\r\n"
              "  12345678\t\r\n"
              "         \xF0\x9F\x98\x80\t\r\n"
              "     Citt\xE0\t\r\n");
}

TEST(TestoTabella, AnEmptyLineStandsBeforeTheChosenRows) {
    Tabella tabella = tabellaDi({{"a"}, {"b"}, {"c"}});
    tabella.cella(0, 0).sfondo = colori::intestazione;
    tabella.cella(2, 0).sfondo = colori::intestazione;
    const auto fascia = [](const Tabella& t, int riga) { return t.cella(riga, 0).sfondo == colori::intestazione; };
    EXPECT_EQ(testoTabella(tabella, {.allineamento = Allineamento::destra, .rigaVuotaPrima = fascia}),
              "\r\n  a\t\r\n  b\t\r\n\r\n  c\t\r\n");
}

TEST(TestoTabella, OfAnEmptyTableIsEmpty) {
    EXPECT_EQ(testoTabella(Tabella(), {}), "");
    EXPECT_EQ(testoTabella(Tabella(0, 3), {}), "");
    EXPECT_EQ(testoTabella(Tabella(2, 0), {}), "\r\n\r\n");
    EXPECT_EQ(testoTabella(Tabella(1, 2), {}), "  \t  \t\r\n");
}

TEST(TestoTabella, EveryRowHasTheSameNumberOfCharacters) {
    const Tabella tabella = tabellaDi({{"Perch\xC3\xA9", "1"}, {"x", "Capacit\xC3\xA0 [veic/h]"}, {"", ""}});
    for (const Allineamento allineamento : {Allineamento::sinistra, Allineamento::destra}) {
        const std::string testo = testoTabella(tabella, {.allineamento = allineamento, .rigaVuotaPrima = {}});
        std::vector<std::size_t> lunghe;
        std::size_t conto = 0;
        for (const char c : testo) {
            // Bytes that go on with a character do not count.
            conto += (static_cast<unsigned char>(c) & 0xC0U) == 0x80U ? 0 : 1;
            if (c == '\n') {
                lunghe.push_back(conto);
                conto = 0;
            }
        }
        EXPECT_EQ(lunghe, (std::vector<std::size_t>{8 + 1 + 19 + 1 + 2, 8 + 1 + 19 + 1 + 2, 8 + 1 + 19 + 1 + 2}));
    }
}

TEST(RigheDiChiusura, NameVersionMomentAndProject) {
    const DataOra momento = giornoCalendario(2026, 11, 21) + oraDelGiorno(8, 5, 9);
    EXPECT_EQ(righeDiChiusura(momento, "Rotatoria di Citt\xC3\xA0"),
              "Output creato con Kelvo V1.0.0 il 21/11/2026 08:05:09\r\n"
              "Nome Progetto: Rotatoria di Citt\xC3\xA0\r\n");
    EXPECT_EQ(righeDiChiusura(momento, ""),
              "Output creato con Kelvo V1.0.0 il 21/11/2026 08:05:09\r\nNome Progetto: \r\n");
}

TEST(Versione, IsThatOfTheBuild) {
    EXPECT_EQ(versione(), "1.0.0");
}

}  // namespace
}  // namespace kelvo
