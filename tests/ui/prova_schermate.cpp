#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/processo.h"
#include "comune/cartella.h"
#include "comune/fintiShell.h"
#include "shell/registroFinestre.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

Esito schermate(const std::vector<std::string>& argomenti) {
    std::vector<std::string> comando{KELVO_SCHERMATE};
    comando.insert(comando.end(), argomenti.begin(), argomenti.end());
    return esegui(comando);
}

struct Misure {
    std::uint32_t larghezza = 0;
    std::uint32_t altezza = 0;
    friend bool operator==(const Misure&, const Misure&) = default;
};

/// Size that the header of a PNG file tells; 0 x 0 for a file that is none.
Misure misurePng(const std::string& file) {
    const std::string byte = contenuto(file);
    constexpr std::size_t firmaEIntestazione = 24;
    if (byte.size() < firmaEIntestazione || byte.substr(0, 8) != "\x89PNG\r\n\x1a\n" || byte.substr(12, 4) != "IHDR") {
        return {};
    }
    const auto intero = [&](std::size_t posto) {
        std::uint32_t valore = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            valore = valore << 8U | static_cast<unsigned char>(byte[posto + i]);
        }
        return valore;
    };
    return {intero(16), intero(20)};
}

std::vector<std::string> finestreRegistrate() {
    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre finestre;
    registraFinestre(finestre, servizi.servizi());
    return finestre.nomi();
}

/// The pictures of a window, by their names.
std::vector<std::string> immaginiDi(const std::string& finestra, const std::string& cartella) {
    std::vector<std::string> trovate;
    for (const auto& voce : fs::directory_iterator(cartella)) {
        const std::string nome = voce.path().stem().string();
        if (nome == finestra || nome.rfind(finestra + "-", 0) == 0) {
            trovate.push_back(voce.path().string());
        }
    }
    return trovate;
}

constexpr std::uintmax_t byteDiUnVuoto = 2000;  ///< a single colour of this size is packed into less

TEST(Schermate, EveryRegisteredWindowComesAsAPictureOfTheSizeAskedFor) {
    const CartellaTemporanea cartella;
    const std::string progetto = "Rotatoria_Viale_della_Stazione";
    const Esito esito =
        schermate({cartella.file("immagini"), "--scala", "2", "--misura", "1366x768", "--progetto", esempio(progetto)});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    ASSERT_GE(finestreRegistrate().size(), 5U);
    for (const std::string& finestra : finestreRegistrate()) {
        const std::vector<std::string> immagini = immaginiDi(finestra, cartella.file("immagini"));
        ASSERT_EQ(immagini.size(), 1U) << finestra;
        EXPECT_GT(fs::file_size(immagini.front()), byteDiUnVuoto) << finestra;
        const Misure misure = misurePng(immagini.front());
        if (fs::path(immagini.front()).stem() == finestra) {
            // A dialogue is as large as what it shows, at twice the pixels.
            EXPECT_GT(misure.larghezza, 400U) << finestra;
            EXPECT_GT(misure.altezza, 200U) << finestra;
            EXPECT_LT(misure.larghezza, 2732U) << finestra;
        } else {
            EXPECT_EQ(misure, (Misure{2732, 1536})) << finestra;
        }
    }
}

TEST(Schermate, AListTakesItsPicturesAloneAndCutsThemToTheWindowOfTheWorkArea) {
    const CartellaTemporanea cartella;
    const std::string progetto = "Rotatoria_Viale_della_Stazione";
    scriviContenuto(cartella.file("elenco.txt"), "frmTempoModellazione-" + progetto + " finestra\nsenza-progetto\n" +
                                                     "frmINFO finestra\nnon-esiste finestra\n");
    const Esito esito = schermate({cartella.file("immagini"), "--misura", "1366x768", "--progetto", esempio(progetto),
                                   "--elenco", cartella.file("elenco.txt")});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    int quante = 0;
    for ([[maybe_unused]] const auto& voce : fs::directory_iterator(cartella.file("immagini"))) {
        ++quante;
    }
    EXPECT_EQ(quante, 3);
    EXPECT_EQ(misurePng(cartella.file("immagini/senza-progetto.png")), (Misure{1366, 768}));
    const Misure finestra = misurePng(cartella.file("immagini/frmTempoModellazione-" + progetto + ".png"));
    EXPECT_GT(finestra.larghezza, 600U);
    EXPECT_LT(finestra.larghezza, 1200U);
    EXPECT_LT(finestra.altezza, 700U);
    EXPECT_GT(misurePng(cartella.file("immagini/frmINFO.png")).larghezza, 200U);  // a dialogue is never cut
    EXPECT_EQ(schermate({cartella.file("altre"), "--elenco", cartella.file("manca.txt")}).codice, 1);
}

TEST(Schermate, WithoutAProjectNamedAllExamplesAreOpened) {
    const CartellaTemporanea cartella;
    const Esito esito = schermate({cartella.percorso(), "--misura=1024x640"});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    ASSERT_GE(esempi().size(), 6U);
    for (const std::string& nome : esempi()) {
        EXPECT_EQ(misurePng(cartella.file("frmEmptyForm-" + nome + ".png")), (Misure{1024, 640})) << nome;
    }
    constexpr std::array altre{"senza-progetto",  "campo-non-valido",  "albero-per-tipo",
                               "albero-per-ramo", "menu-mnuFile",      "frmSplash",
                               "frmINFO",         "messaggio-critica", "messaggio-domanda"};
    for (const char* nome : altre) {
        EXPECT_GT(misurePng(cartella.file(std::string{nome} + ".png")).altezza, 0U) << nome;
    }
    // What is laid over the window is seen: no two of these are the same picture.
    EXPECT_NE(contenuto(cartella.file("albero-per-tipo.png")), contenuto(cartella.file("albero-per-ramo.png")));
    EXPECT_NE(contenuto(cartella.file("menu-mnuFile.png")), contenuto(cartella.file("menu-mnuDati.png")));
    const auto quante = std::distance(fs::directory_iterator(cartella.percorso()), fs::directory_iterator());
    EXPECT_NE(esito.uscita.find("Scritte " + std::to_string(quante) + " immagini"), std::string::npos) << esito.uscita;
}

TEST(Schermate, WrongUseIsToldInItalianAndWritesNothing) {
    struct Caso {
        std::vector<std::string> argomenti;
        std::string parole;
    };
    const CartellaTemporanea cartella;
    const std::string dove = cartella.file("immagini");
    const std::vector<Caso> casi{
        {{}, "manca la cartella"},
        {{dove, "altra"}, "'altra' è di troppo"},
        {{dove, "--scala", "3"}, "scala '3' non prevista"},
        {{dove, "--scala"}, "manca il valore"},
        {{dove, "--misura", "1366"}, "misura '1366' non valida"},
        {{dove, "--misura", "1366x768px"}, "non valida"},
        {{dove, "--misura", "640x480"}, "fuori dai limiti"},
        {{dove, "--colore", "blu"}, "opzione '--colore' sconosciuta"},
    };
    for (const Caso& caso : casi) {
        const Esito esito = schermate(caso.argomenti);
        EXPECT_EQ(esito.codice, 2) << caso.parole;
        EXPECT_NE(esito.errori.find(caso.parole), std::string::npos) << esito.errori;
        EXPECT_NE(esito.errori.find("Uso: kelvo-schermate"), std::string::npos);
    }
    EXPECT_FALSE(fs::exists(dove));
}

TEST(Schermate, AProjectThatDoesNotOpenIsToldAndTheRestIsDone) {
    const CartellaTemporanea cartella;
    const std::string rotto = cartella.file("rotto.klv");
    scriviContenuto(rotto, "{ non un progetto");
    const std::string dove = cartella.file("immagini");
    const Esito manca = schermate({dove, "--progetto", cartella.file("manca.klv")});
    EXPECT_EQ(manca.codice, 1);
    EXPECT_NE(manca.errori.find("non c'è"), std::string::npos) << manca.errori;
    EXPECT_FALSE(fs::exists(dove));
    const Esito esito = schermate({dove, "--progetto", rotto, "--progetto", esempio("Rotatoria_Via_dei_Mulini")});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("rotto.klv' non si apre"), std::string::npos) << esito.errori;
    EXPECT_TRUE(fs::exists(dove + "/frmEmptyForm-Rotatoria_Via_dei_Mulini.png"));
}

}  // namespace
}  // namespace kelvo::prove
