#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/processo.h"
#include "comune/cartella.h"
#include "guida/fonti.h"
#include "guida/testo.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

const std::string cartellaGuida = std::string{KELVO_CARTELLA} + "/UserGuide/";
const std::string fileGuida = cartellaGuida + "UserGuide.pdf";
const std::string fileDecreto = cartellaGuida + "DM19-04-06.pdf";
const std::string fileCAD = std::string{KELVO_CARTELLA} + "/Support/SW_KelvoCAD_2010.pdf";

/// A test that reads the files with a program of another hand.
class FileLetto : public testing::Test {
protected:
    void SetUp() override {
        for (const char* programma : {"pdfinfo", "pdftotext", "pdfimages"}) {
            if (fs::exists(std::string{"/usr/bin/"} + programma)) {
                continue;
            }
            // Where its package can be had, the reader belongs to what the tests ask for.
            if (fs::exists("/usr/bin/dpkg")) {
                FAIL() << programma << " is not installed: strumenti/pacchetti.txt lists poppler-utils";
            }
            GTEST_SKIP() << programma << " is not installed";
        }
    }
};

/// What a program for PDF files tells, its arguments behind its name.
Esito chiedi(std::vector<std::string> parole) {
    parole.front() = "/usr/bin/" + parole.front();
    Esito esito = esegui(parole);
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    return esito;
}

QStringList pagine(const std::string& testo) {
    QStringList tutte = QString::fromStdString(testo).split(QLatin1Char('\f'));
    tutte.removeLast();
    return tutte;
}

int numeroPagine(const std::string& notizie) {
    static const QRegularExpression quante(QStringLiteral(R"(Pages:\s+(\d+))"));
    return quante.match(QString::fromStdString(notizie)).captured(1).toInt();
}

TEST(FilePDF, TheyStandWhereTheProgramOpensThem) {
    for (const std::string& file : {fileGuida, fileDecreto, fileCAD}) {
        ASSERT_TRUE(fs::exists(file)) << file;
        EXPECT_EQ(contenuto(file).substr(0, 5), "%PDF-") << file;
    }
}

TEST_F(FileLetto, TheGuideTellsItsTitleAuthorAndLanguageAndHasAFewDozenPages) {
    const Esito notizie = chiedi({"pdfinfo", fileGuida});
    EXPECT_NE(notizie.uscita.find("Kelvo – Guida per l'utente"), std::string::npos);
    EXPECT_NE(notizie.uscita.find("Author:          Kelvo"), std::string::npos);
    EXPECT_NE(notizie.uscita.find("(A4)"), std::string::npos);
    EXPECT_GE(numeroPagine(notizie.uscita), 40);
    EXPECT_LE(numeroPagine(notizie.uscita), 90);
    EXPECT_NE(contenuto(fileGuida).find("/Lang <feff00690074002d00490054>"), std::string::npos);  // it-IT
}

TEST_F(FileLetto, SheetsHaveTheirFewPages) {
    const Esito decreto = chiedi({"pdfinfo", fileDecreto});
    EXPECT_GE(numeroPagine(decreto.uscita), 2);
    EXPECT_LE(numeroPagine(decreto.uscita), 4);
    const Esito cad = chiedi({"pdfinfo", fileCAD});
    EXPECT_GE(numeroPagine(cad.uscita), 1);
    EXPECT_LE(numeroPagine(cad.uscita), 2);
}

TEST_F(FileLetto, EveryPageBehindTheTitleTellsItsNumber) {
    const Esito testo = chiedi({"pdftotext", "-layout", fileGuida, "-"});
    const QStringList tutte = pagine(testo.uscita);
    ASSERT_GE(tutte.size(), 40);
    for (qsizetype i = 1; i < tutte.size(); ++i) {
        EXPECT_TRUE(tutte[i].contains(QStringLiteral("Pagina %1 di %2").arg(i + 1).arg(tutte.size()))) << i + 1;
    }
    EXPECT_FALSE(tutte.front().contains(QStringLiteral("Pagina")));
}

TEST_F(FileLetto, EveryHeadingStandsInTheTextAndInTheContentsWithItsPage) {
    const Esito letto = chiedi({"pdftotext", "-layout", fileGuida, "-"});
    const QStringList tutte = pagine(letto.uscita);
    const QString indice = tutte.mid(1, 5).join(QLatin1Char('\n'));
    int titoli = 0;
    for (const guida::Blocco& blocco : documento(QStringLiteral("UserGuide.md")).blocchi) {
        const auto* titolo = std::get_if<guida::Titolo>(&blocco);
        if (titolo == nullptr || titolo->livello > 2) {
            continue;
        }
        ++titoli;
        const QString parole = guida::senzaMarche(titolo->testo);
        const QRegularExpression riga(QRegularExpression::escape(titolo->numero) + QStringLiteral(R"(\s+)") +
                                      QRegularExpression::escape(parole) + QStringLiteral(R"(\s+(\d+)\s)"));
        const auto trovata = riga.match(indice);
        ASSERT_TRUE(trovata.hasMatch()) << parole.toStdString();
        const qsizetype pagina = trovata.captured(1).toInt();
        ASSERT_LE(pagina, tutte.size());
        EXPECT_TRUE(tutte[pagina - 1].contains(parole)) << parole.toStdString() << ", page " << pagina;
    }
    EXPECT_GE(titoli, 60);
}

TEST_F(FileLetto, NothingIsLeftOfPlaceholdersAndMarks) {
    for (const std::string& file : {fileGuida, fileDecreto, fileCAD}) {
        const Esito letto = chiedi({"pdftotext", file, "-"});
        for (const char* resto : {"{{", "}}", "**", "](", "@tavola", "@uscita", "finestra="}) {
            EXPECT_EQ(letto.uscita.find(resto), std::string::npos) << file << ": " << resto;
        }
        EXPECT_EQ(letto.uscita.find("\xef\xac\x81"), std::string::npos)
            << file << ": words with a ligature are not found";
    }
}

TEST_F(FileLetto, PicturesOfTheProgramStandInTheGuide) {
    const Esito elenco = chiedi({"pdfimages", "-list", fileGuida});
    const auto righe = std::count(elenco.uscita.begin(), elenco.uscita.end(), '\n');
    EXPECT_GE(righe, 45);
}

TEST(FilePDF, LinksLeadToPagesOfTheFileAlone) {
    const std::string byte = contenuto(fileGuida);
    // The last word on an object holds: what is appended puts links to anchors right.
    const auto aggiunta = byte.find("%%EOF");
    ASSERT_NE(aggiunta, std::string::npos);
    const std::string dopo = byte.substr(aggiunta);
    const auto conta = [](const std::string& testo, const std::string& parola) {
        std::size_t quante = 0;
        for (auto qui = testo.find(parola); qui != std::string::npos; qui = testo.find(parola, qui + 1)) {
            ++quante;
        }
        return quante;
    };
    EXPECT_GE(conta(dopo, "/Subtype /Link"), 150U);
    EXPECT_EQ(conta(dopo, "/Subtype /Link"), conta(byte.substr(0, aggiunta), "/URI (#"));
    EXPECT_EQ(conta(dopo, "/URI"), 0U);
    EXPECT_GE(conta(dopo, "/Title <feff"), 60U);
}

TEST(FilePDF, TheSameSourcesGiveTheSameBytes) {
    const CartellaTemporanea cartella;
    const Esito esito =
        esegui({KELVO_GUIDA, fonte(QStringLiteral("DM19-04-06.md")).toStdString(), cartella.file("altro.pdf")});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_TRUE(contenuto(cartella.file("altro.pdf")) == contenuto(fileDecreto)) << "other bytes";
}

TEST(FilePDF, ASourceThatCannotBeReadLeavesNoFile) {
    const CartellaTemporanea cartella;
    for (const char* testo : {"titolo: x\n---\n{{manca}}\n", "titolo: x\n---\n[qui](#nulla)\n",
                              "titolo: x\n---\n![niente](niente)\n", "titolo: x\n---\n$$ \\frac{a}{\n"}) {
        scriviContenuto(cartella.file("rotto.md"), testo);
        const Esito esito =
            esegui({KELVO_GUIDA, cartella.file("rotto.md"), cartella.file("rotto.pdf"), cartella.percorso()});
        EXPECT_EQ(esito.codice, 1) << testo;
        EXPECT_NE(esito.errori.find("kelvo-guida: "), std::string::npos);
        EXPECT_FALSE(fs::exists(cartella.file("rotto.pdf")));
    }
    EXPECT_EQ(esegui({KELVO_GUIDA}).codice, 2);
}

}  // namespace
}  // namespace kelvo::prove
