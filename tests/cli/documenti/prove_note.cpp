// The notes below the tables of a report on the pages of an office program.

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "cli/processo.h"
#include "comune/cartella.h"
#include "comune/strumenti.h"

namespace kelvo::prove {

namespace {

namespace fs = std::filesystem;

/// The words of each page of a document; empty where this machine has nothing that lays it out, or reads it.
std::vector<std::string> pagine(const CartellaTemporanea& cartella, const std::string& documento) {
    if (!fs::exists("/usr/bin/soffice") || !conStrumento("pdftotext", "poppler-utils")) {
        return {};
    }
    const Esito pdf = esegui({"/usr/bin/soffice", "-env:UserInstallation=file://" + cartella.file("profilo"),
                              "--headless", "--convert-to", "pdf", "--outdir", cartella.percorso(), documento});
    EXPECT_EQ(pdf.codice, 0) << pdf.errori;
    const std::string base = cartella.file(fs::path(documento).stem().string());
    EXPECT_EQ(esegui({"/usr/bin/pdftotext", "-layout", base + ".pdf", base + ".txt"}).codice, 0);
    std::vector<std::string> tutte;
    std::istringstream testo(contenuto(base + ".txt"));
    for (std::string pagina; std::getline(testo, pagina, '\f');) {
        tutte.push_back(pagina);
    }
    return tutte;
}

/// The source of a template: tables with a note, each further down on its page than the one before, so that some reach
/// its foot.
std::string tabelleConNota(int prima, int dopo) {
    std::ostringstream testo;
    for (int blocco = prima; blocco < dopo; ++blocco) {
        testo << "@pagina\nInizio " << blocco << ".\n\n";
        for (int riga = 1; riga < blocco; ++riga) {
            testo << "Riga " << riga << ".\n\n";
        }
        testo << "@tabella\ndidascalia Prova\ncolonne 60 60\nallinea s c\ntestata Misura | Valore\n";
        for (int riga = 1; riga <= 7; ++riga) {
            testo << "riga misura " << riga << " | " << blocco << "\n";
        }
        testo << "@fine\n\n[Nota] Fonte: blocco " << blocco << ".\n\nDopo il blocco.\n\n";
    }
    return testo.str();
}

TEST(NoteDiTabella, NeverStandWithoutTheirTable) {
    const CartellaTemporanea cartella;
    constexpr int prima = 18;
    constexpr int dopo = 44;
    fs::create_directory_symlink(KELVO_SORGENTI "/assets/Modelli/parti", cartella.file("parti"));
    scriviContenuto(cartella.file("prova.modello"), tabelleConNota(prima, dopo));
    const Esito modello = esegui(
        {KELVO_COSTRUZIONE "/strumenti/kelvo-modelli", cartella.file("prova.modello"), cartella.file("prova.dotx")});
    ASSERT_EQ(modello.codice, 0) << modello.errori;
    const std::vector<std::string> tutte = pagine(cartella, cartella.file("prova.dotx"));
    if (tutte.empty()) {
        GTEST_SKIP() << "no office program on this machine, or nothing that reads its pages";
    }
    int note = 0;
    int passate = 0;
    for (const std::string& pagina : tutte) {
        for (std::size_t i = pagina.find("Fonte: blocco "); i != std::string::npos; i = pagina.find("Fonte: ", i + 1)) {
            ++note;
            const std::string quale = pagina.substr(i + 14, 2);
            EXPECT_NE(pagina.find("misura 7"), std::string::npos) << "block " << quale;
            passate += pagina.find("Inizio " + quale) == std::string::npos ? 1 : 0;
        }
    }
    EXPECT_EQ(note, dopo - prima);
    // Some stood at the foot of a page and went on to the next with their table.
    EXPECT_GT(passate, 2);
    EXPECT_LT(passate, dopo - prima);
}

TEST(NoteDiTabella, TheReportsOfTheExamplesKeepTheirs) {
    const CartellaTemporanea cartella;
    for (const std::string& nome : esempi()) {
        const std::string file = cartella.file(nome + ".docx");
        ASSERT_EQ(kelvoCli({"relazione", "--tipo", "completa", "-o", file, "--notte", "15", esempio(nome)}).codice, 0);
        const std::vector<std::string> tutte = pagine(cartella, file);
        if (tutte.empty()) {
            GTEST_SKIP() << "no office program on this machine, or nothing that reads its pages";
        }
        bool fonte = false;
        bool livelli = false;
        for (const std::string& pagina : tutte) {
            if (pagina.find("Fonte: M. Rogers") != std::string::npos) {
                fonte = true;
                EXPECT_NE(pagina.find("Raggio di curvatura dell'ingresso"), std::string::npos) << nome;
            }
            if (pagina.find("Il livello segue il solo ritardo") != std::string::npos) {
                livelli = true;
                EXPECT_NE(pagina.find("oltre 50"), std::string::npos) << nome;
            }
        }
        EXPECT_TRUE(fonte) << nome;
        EXPECT_TRUE(livelli) << nome;
    }
}

}  // namespace

}  // namespace kelvo::prove
