// The command lines of docs/batch.md, run as they stand there.

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "comune/cartella.h"
#include "comune/strumenti.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

/// A block of the page that is to be run, with the tools that it needs.
struct Riquadro {
    std::vector<std::string> strumenti;
    std::string comandi;
};

/// The blocks that begin with "```sh esegui" and the tools.
std::vector<Riquadro> riquadri() {
    std::vector<Riquadro> tutti;
    std::istringstream pagina(contenuto(KELVO_SORGENTI "/docs/batch.md"));
    bool dentro = false;
    for (std::string riga; std::getline(pagina, riga);) {
        if (dentro && riga == "```") {
            dentro = false;
        } else if (dentro) {
            tutti.back().comandi += riga + "\n";
        } else if (riga.starts_with("```sh esegui")) {
            dentro = true;
            Riquadro& nuovo = tutti.emplace_back();
            std::istringstream parole(riga.substr(std::string{"```sh esegui"}.size()));
            for (std::string parola; parole >> parola;) {
                nuovo.strumenti.push_back(parola);
            }
        }
    }
    return tutti;
}

/// Runs the blocks of the page, one behind the other in one folder with the example projects, as its reader would.
class Batch : public testing::Test {
protected:
    Batch() {
        fs::create_directory(cartella.file("progetti"));
        for (const std::string& nome : esempi()) {
            fs::copy_file(esempio(nome), cartella.file("progetti/" + nome + ".klv"));
        }
    }
    void eseguiTutti() {
        for (const Riquadro& riquadro : riquadri()) {
            bool tutti = true;
            for (const std::string& strumento : riquadro.strumenti) {
                // Of those that are packages each has the name of its own.
                if (!conStrumento(strumento, strumento)) {
                    mancanti_.insert(strumento);
                    tutti = false;
                }
            }
            if (!tutti) {
                continue;
            }
            const Esito esito =
                esegui({"/bin/bash", "-c", "set -eo pipefail\nPATH=\"" KELVO_CARTELLA ":$PATH\"\n" + riquadro.comandi},
                       cartella.percorso());
            EXPECT_EQ(esito.codice, 0) << riquadro.comandi << esito.errori;
            ++eseguiti_;
        }
    }
    bool scritto(const std::string& nome) const { return fs::exists(cartella.file("uscita/" + nome)); }
    std::string uscita(const std::string& nome) const { return contenuto(cartella.file("uscita/" + nome)); }
    /// The names of the projects of a file of one line of JSON each.
    std::set<std::string> progetti(const std::string& nome) const {
        std::set<std::string> nomi;
        for (const std::string& riga : righe(uscita(nome))) {
            const Json json = Json::parse(riga);
            EXPECT_TRUE(json["errori"].empty()) << riga;
            nomi.insert(json["NomeFile"].get<std::string>());
        }
        return nomi;
    }
    CartellaTemporanea cartella;
    std::set<std::string> mancanti_;
    int eseguiti_ = 0;
};

TEST_F(Batch, EveryBlockOfThePageRuns) {
    ASSERT_GE(riquadri().size(), 10U);
#ifndef KELVO_CON_DISEGNO
    GTEST_SKIP() << "this build writes no documents";
#endif
    eseguiTutti();
    const std::vector<std::string> nomi = esempi();
    const std::set<std::string> tutti(nomi.begin(), nomi.end());
    EXPECT_EQ(progetti("risultati.jsonl"), tutti);
    for (const std::string& nome : nomi) {
        EXPECT_EQ(uscita(nome + ".xlsx").substr(0, 2), "PK") << nome;
        EXPECT_EQ(uscita(nome + ".docx").substr(0, 2), "PK") << nome;
    }
    if (!mancanti_.contains("jq")) {
        // A line for each entry below the headings, whatever the tool that counted them.
        std::size_t ingressi = 0;
        for (const std::string& riga : righe(uscita("risultati.jsonl"))) {
            ingressi += Json::parse(riga)["rami"].size();
        }
        const std::vector<std::string> csv = righe(uscita("ingressi.csv"));
        EXPECT_EQ(csv.size(), ingressi + 1);
        EXPECT_TRUE(csv.front().starts_with("progetto;ingresso;saturazione massima;"));
        EXPECT_NE(uscita("ingressi.csv").find("\nRotatoria_Via_dei_Mulini;SP 57 nord;0,486"), std::string::npos);
        EXPECT_EQ(uscita("non_riusciti.txt"), "");
        EXPECT_EQ(righe(uscita("varianti.tsv")).size(), tutti.size());
        EXPECT_NE(uscita("varianti.tsv").find("Rotatoria_Viale_della_Stazione.klv\t"), std::string::npos);
        std::set<std::string> rossi;
        for (const std::string& riga : righe(uscita("da_correggere.txt"))) {
            rossi.insert(riga);
        }
        for (const std::string& nome : nomi) {
            const std::string file = "progetti/" + nome + ".klv";
            const bool conErrori = kelvoCli({"controllo", file}, cartella.percorso()).codice == 3;
            EXPECT_EQ(rossi.contains(file), conErrori) << nome;
        }
    }
    if (!mancanti_.contains("parallel")) {
        EXPECT_EQ(progetti("parallel.jsonl"), tutti);
        EXPECT_EQ(righe(uscita("lavori.txt")).size(), tutti.size() + 1);
    }
    if (!mancanti_.contains("make")) {
        for (const std::string& nome : nomi) {
            EXPECT_EQ(Json::parse(uscita(nome + ".json"))["NomeFile"], nome);
            EXPECT_FALSE(scritto(nome + ".json.parte"));
        }
    }
    if (!mancanti_.contains("awk")) {
        EXPECT_EQ(progetti("compiti.jsonl"), tutti);
        EXPECT_EQ(righe(uscita("compito.0.jsonl")).size() + righe(uscita("compito.1.jsonl")).size() +
                      righe(uscita("compito.2.jsonl")).size(),
                  tutti.size());
    }
    EXPECT_GT(eseguiti_, 0);
    if (!mancanti_.empty()) {
        std::string elenco;
        for (const std::string& strumento : mancanti_) {
            elenco += " " + strumento;
        }
        GTEST_SKIP() << "not on this machine:" << elenco;
    }
}

TEST_F(Batch, AProjectThatFailsIsToldAndTheOthersAreThere) {
    scriviContenuto(cartella.file("progetti/rotto.klv"), "{}");
    const Riquadro primo = riquadri().at(0);
    const Esito esito =
        esegui({"/bin/bash", "-c", "set -o pipefail\nPATH=\"" KELVO_CARTELLA ":$PATH\"\n" + primo.comandi},
               cartella.percorso());
    EXPECT_NE(esito.errori.find("progetti/rotto.klv: "), std::string::npos) << esito.errori;
    EXPECT_EQ(righe(uscita("risultati.jsonl")).size(), esempi().size() + 1);
    const Esito xargs = esegui(
        {"/bin/bash", "-c", "PATH=\"" KELVO_CARTELLA ":$PATH\"\nls progetti/*.klv | xargs kelvo-cli calcola --json"},
        cartella.percorso());
    EXPECT_EQ(xargs.codice, 123);
}

TEST_F(Batch, DocumentsWrittenAtOnceUnderOneNameStayWhole) {
#ifndef KELVO_CON_DISEGNO
    GTEST_SKIP() << "this build writes no documents";
#endif
    const Esito esito =
        esegui({"/bin/bash", "-c",
                "set -eo pipefail\nPATH=\"" KELVO_CARTELLA ":$PATH\"\nmkdir uscita\n"
                "ls progetti/*.klv progetti/*.klv | xargs -n 1 -P 6 kelvo-cli esporta --xlsx uscita/uno.xlsx"},
               cartella.percorso());
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    const std::string foglio = uscita("uno.xlsx");
    EXPECT_EQ(foglio.substr(0, 2), "PK");
    EXPECT_NE(foglio.rfind("PK\005\006"), std::string::npos) << "the archive has no end";
    for (const auto& voce : fs::directory_iterator(cartella.file("uscita"))) {
        EXPECT_EQ(voce.path().filename(), "uno.xlsx");
    }
}

}  // namespace

}  // namespace kelvo::prove
