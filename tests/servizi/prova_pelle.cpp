#include "shell/servizi/pelle.h"

#include <gtest/gtest.h>

#include "finestraProva.h"

namespace kelvo::prove {
namespace {

/// A window with a label of each tag.
class FinestraColori final : public Finestra {
public:
    FinestraColori(const Contorno& contorno, const std::string& nome) : Finestra(contorno, nome, "Colori") {
        ordina({&nessuno, &grigia, &rossa, &campo});
    }
    Etichetta nessuno{"lblNessuno", "x"};
    Etichetta grigia{"lblGrigia", "x", "GREY"};
    Etichetta rossa{"lblRossa", "x", "ROSSO"};
    tBox campo{"txtCampo", tBox::textbox, "ROSSO"};
};

struct ProvePelle : testing::Test, ScenaFinestre {};

TEST_F(ProvePelle, TheMainColourIsBlue) {
    EXPECT_EQ(colorePrincipale, (Colore{0, 114, 198}));
}

TEST_F(ProvePelle, ControlsGetTheFontOnWhite) {
    FinestraColori finestra(contorno(), "frmColori");
    vesti(finestra, 1);
    for (const Controllo* c : finestra.ordine()) {
        EXPECT_EQ(c->aspetto().carattere, "Segoe UI Semilight") << c->nome();
        EXPECT_EQ(c->aspetto().sfondo, (Colore{255, 255, 255})) << c->nome();
    }
}

TEST_F(ProvePelle, TagsColourLabelsAndNothingElse) {
    FinestraColori finestra(contorno(), "frmColori");
    vesti(finestra, 1);
    EXPECT_EQ(finestra.nessuno.aspetto().inchiostro, colori::nero);
    EXPECT_EQ(finestra.grigia.aspetto().inchiostro, (Colore{128, 128, 128}));
    EXPECT_EQ(finestra.rossa.aspetto().inchiostro, (Colore{255, 0, 0}));
    EXPECT_EQ(finestra.campo.aspetto().inchiostro, colori::nero);
}

TEST_F(ProvePelle, TheLabelsOfTheEmptyWindowAreLeftAlone) {
    FinestraColori vuota(contorno(), "frmEmptyForm");
    vesti(vuota, 2);
    EXPECT_EQ(vuota.grigia.aspetto(), Aspetto{});
    EXPECT_EQ(vuota.nessuno.aspetto(), Aspetto{});
    EXPECT_EQ(vuota.campo.aspetto().carattere, "Segoe UI Semilight");
    EXPECT_EQ(vuota.pannello.aspetto().sfondo, (Colore{192, 0, 0}));
}

TEST_F(ProvePelle, TheToolbarIsWhiteOnTheMainColour) {
    FinestraProva finestra(contorno());
    vesti(finestra, 1);
    EXPECT_EQ(finestra.ctlToolbar.aspetto().sfondo, (Colore{0, 114, 198}));
    EXPECT_EQ(finestra.ctlToolbar.aspetto().inchiostro, (Colore{255, 255, 255}));
    EXPECT_EQ(finestra.ctlHelp.aspetto().carattere, "Segoe UI Semilight");
}

TEST_F(ProvePelle, TheCaptionPanelTakesTheColourOfThePosition) {
    constexpr std::array<ColorePannello, 7> attesi{{{"Grigio", {123, 123, 123}},
                                                    {"Granata", {192, 0, 0}},
                                                    {"Blu", {0, 0, 192}},
                                                    {"Verde", {0, 128, 0}},
                                                    {"Sfumato verde", {0, 128, 128}},
                                                    {"Arancio", {255, 128, 0}},
                                                    {"Rosa", {255, 128, 255}}}};
    FinestraColori finestra(contorno(), "frmColori");
    for (std::int16_t i = 1; i <= 7; ++i) {
        const auto& atteso = attesi[static_cast<std::size_t>(i) - 1];
        vesti(finestra, i);
        EXPECT_EQ(coloriPannello[static_cast<std::size_t>(i) - 1].nome, atteso.nome);
        EXPECT_EQ(finestra.pannello.aspetto().sfondo, atteso.colore) << i;
    }
    for (const std::int16_t fuori : {std::int16_t{0}, std::int16_t{8}, std::int16_t{-1}}) {
        vesti(finestra, fuori);
        EXPECT_EQ(finestra.pannello.aspetto().sfondo, (Colore{123, 123, 123})) << fuori;
    }
}

TEST_F(ProvePelle, ShowingAWindowDressesItInTheColourOfTheConfiguration) {
    app.configurazione.LayoutPannello = 4;
    FinestraProva finestra(contorno());
    gestione.ShowForm(&finestra);
    EXPECT_EQ(finestra.pannello.aspetto().sfondo, (Colore{0, 128, 0}));
    EXPECT_EQ(finestra.pannello.testo(), "Prova");
    gestione.chiudiCorrente();
}

}  // namespace
}  // namespace kelvo::prove
