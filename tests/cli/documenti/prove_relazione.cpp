// relazione: the reports of a project.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <regex>

#include "cli/processo.h"
#include "comune/cartella.h"
#include "comune/strumenti.h"
#include "reports/DocumentoRelazione.h"
#include "reports/zip.h"

namespace kelvo::prove {

namespace {

const std::string stazione = "Rotatoria_Viale_della_Stazione";
const std::string saturazione = "Rotatoria_Piazza_Italia";

class ComandoRelazione : public testing::Test {
protected:
    std::string file(const std::string& nome) const { return cartella_.file(nome); }
    Esito relazione(const std::string& tipo, const std::string& progetto, const std::string& uscita,
                    const std::vector<std::string>& altri = {}) const {
        std::vector<std::string> argomenti{"relazione", "--tipo", tipo, "-o", uscita, progetto};
        argomenti.insert(argomenti.end(), altri.begin(), altri.end());
        return kelvoCli(argomenti);
    }
    /// The document that was written.
    std::unique_ptr<DocumentoRelazione> scritto(const std::string& nome) const {
        return documentoDaContenuto(contenuto(file(nome)), nome);
    }
    CartellaTemporanea cartella_;
};

TEST_F(ComandoRelazione, WritesEachKindOfReport) {
    struct Caso {
        const char* tipo;
        bool dati;
        bool risultati;
        bool corsie;
    };
    for (const Caso& caso : {Caso{"ingresso", true, false, false}, Caso{"risultati", false, true, false},
                             Caso{"completa", true, true, false}, Caso{"totale", true, true, true}}) {
        const Esito esito = relazione(caso.tipo, esempio(stazione), file("r.docx"), {"--notte", "15"});
        ASSERT_EQ(esito.codice, 0) << caso.tipo << esito.errori;
        EXPECT_EQ(esito.uscita, "");
        EXPECT_EQ(esito.errori, "");
        const auto documento = scritto("r.docx");
        EXPECT_EQ(documento->HaSegnalibro("GeometriaIngressi"), caso.dati) << caso.tipo;
        EXPECT_EQ(documento->HaSegnalibro("CapacitaUltima"), caso.risultati) << caso.tipo;
        EXPECT_EQ(documento->HaSegnalibro("ParagrafoCorsiaDX"), caso.corsie) << caso.tipo;
        EXPECT_EQ(documento->Sostituisci("Castelnovo di Ripa", "x"), 1);
        EXPECT_EQ(documento->Sostituisci("%ComuneProgetto%", "x"), 0);
    }
}

TEST_F(ComandoRelazione, EveryExampleHasItsWholeReport) {
    for (const std::string& nome : esempi()) {
        const Esito esito = relazione("completa", esempio(nome), file(nome + ".docx"));
        EXPECT_EQ(esito.codice, 0) << nome << esito.errori;
        EXPECT_TRUE(scritto(nome + ".docx")->HaSegnalibro("CapacitaUltima")) << nome;
    }
}

TEST_F(ComandoRelazione, ReplacesAFileAndLeavesNothingElse) {
    scriviContenuto(file("r.docx"), "vecchio");
    EXPECT_EQ(relazione("ingresso", esempio(stazione), file("r.docx")).codice, 0);
    EXPECT_EQ(contenuto(file("r.docx")).substr(0, 2), "PK");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella_.percorso()), {}), 1);
}

TEST_F(ComandoRelazione, AWrongUseIsRefusedWithWords) {
    const Esito tipo = relazione("tutto", esempio(stazione), file("r.docx"));
    EXPECT_EQ(tipo.codice, 2);
    EXPECT_NE(tipo.errori.find("ingresso, risultati, completa, totale, grafici"), std::string::npos) << tipo.errori;
    const Esito nome = relazione("ingresso", esempio(stazione), file("r.doc"));
    EXPECT_EQ(nome.codice, 2);
    EXPECT_NE(nome.errori.find(".docx"), std::string::npos) << nome.errori;
    EXPECT_EQ(kelvoCli({"relazione", "--tipo", "ingresso", esempio(stazione)}).codice, 2);
    EXPECT_FALSE(std::filesystem::exists(file("r.docx")));
}

TEST_F(ComandoRelazione, WhatFailsLeavesNoFile) {
    EXPECT_EQ(relazione("ingresso", file("manca.klv"), file("r.docx")).codice, 1);
    EXPECT_EQ(relazione("ingresso", esempio(stazione), file("manca/r.docx")).codice, 1);
    EXPECT_EQ(relazione("ingresso", esempio(stazione), file("r.docx"), {"--modello", file("manca.dotx")}).codice, 1);
    // The entry radius of 0 divides the calculation by zero; the input alone is reported all the same.
    scriviContenuto(file("zero.klv"), conCambio(contenuto(esempio(stazione)), "\"Rami\"", "\"RaggioIngresso\": 20",
                                                "\"RaggioIngresso\": 0"));
    const Esito esito = relazione("completa", file("zero.klv"), file("r.docx"));
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("Divisione per zero"), std::string::npos) << esito.errori;
    EXPECT_FALSE(std::filesystem::exists(file("r.docx")));
    EXPECT_EQ(relazione("ingresso", file("zero.klv"), file("r.docx")).codice, 0);
}

TEST_F(ComandoRelazione, ATemplateOfOnesOwnTakesThePlaceOfTheMaster) {
    ASSERT_EQ(relazione("ingresso", esempio(stazione), file("prima.docx")).codice, 0);
    // A finished report is a template without placeholders, whose tables are filled over again.
    std::filesystem::rename(file("prima.docx"), file("mio.docx"));
    const Esito esito = relazione("risultati", esempio(stazione), file("r.docx"), {"--modello", file("mio.docx")});
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_NE(esito.errori.find("riempiCapacitaUltima"), std::string::npos) << "what it lacks is told";
    EXPECT_TRUE(scritto("r.docx")->HaSegnalibro("GeometriaIngressi"));
}

TEST_F(ComandoRelazione, TheTemplateIsNotReplacedByItsReport) {
    ASSERT_EQ(relazione("ingresso", esempio(stazione), file("mio.docx")).codice, 0);
    const std::string prima = contenuto(file("mio.docx"));
    std::filesystem::create_directories(file("sotto"));
    std::filesystem::create_symlink(file("mio.docx"), file("altro.docx"));
    const std::vector<std::pair<std::string, std::string>> coppie{
        {"mio.docx", "mio.docx"}, {"sotto/../mio.docx", "./mio.docx"}, {"altro.docx", "mio.docx"}, {"mio", "mio.docx"}};
    for (const auto& [modello, uscita] : coppie) {
        const Esito esito = relazione("ingresso", esempio(stazione), file(uscita), {"--modello", file(modello)});
        EXPECT_EQ(esito.codice, 2) << modello;
        EXPECT_NE(esito.errori.find("è il modello"), std::string::npos) << esito.errori;
        EXPECT_EQ(contenuto(file("mio.docx")), prima) << modello;
    }
    // Another file is replaced as ever.
    scriviContenuto(file("r.docx"), "vecchio");
    EXPECT_EQ(relazione("ingresso", esempio(stazione), file("r.docx"), {"--modello", file("mio.docx")}).codice, 0);
    EXPECT_EQ(contenuto(file("r.docx")).substr(0, 2), "PK");
    EXPECT_EQ(contenuto(file("mio.docx")), prima);
}

TEST_F(ComandoRelazione, ASectionThatATemplateOfOnesOwnCannotTakeIsAFailure) {
    ASSERT_EQ(relazione("risultati", esempio(stazione), file("prima.docx")).codice, 0);
    // The bookmark of the table of ultimate capacities stands in front of everything, outside any table.
    std::vector<ooxml::Voce> voci;
    ASSERT_EQ(ooxml::leggiArchivio(contenuto(file("prima.docx")), voci), "");
    for (ooxml::Voce& voce : voci) {
        if (voce.nome == "word/document.xml") {
            voce.dati = conCambio(voce.dati, "", "w:name=\"CapacitaUltima\"", "w:name=\"Altrove\"");
            voce.dati = conCambio(voce.dati, "", "<w:body>",
                                  "<w:body><w:p><w:bookmarkStart w:id=\"9999\" w:name=\"CapacitaUltima\"/>"
                                  "<w:bookmarkEnd w:id=\"9999\"/></w:p>");
        }
    }
    std::string dati;
    ASSERT_EQ(ooxml::scriviArchivio(voci, dati), "");
    scriviContenuto(file("mio.docx"), dati);
    const Esito esito = relazione("risultati", esempio(stazione), file("r.docx"), {"--modello", file("mio.docx")});
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("La selezione non sta in una tabella"), std::string::npos) << esito.errori;
    EXPECT_EQ(contenuto(file("r.docx")).substr(0, 2), "PK") << "the other sections are there";
}

TEST_F(ComandoRelazione, TheProjectIsNotReplacedByItsReport) {
    const std::string prima = contenuto(esempio(stazione));
    scriviContenuto(file("p.docx"), prima);
    std::filesystem::create_directories(file("sotto"));
    std::filesystem::create_symlink(file("p.docx"), file("altro.docx"));
    const std::vector<std::pair<std::string, std::string>> coppie{
        {"p.docx", "p.docx"}, {"p.docx", "sotto/../p.docx"}, {"altro.docx", "./p.docx"}, {"p.docx", "altro.docx"}};
    for (const auto& [progetto, uscita] : coppie) {
        const Esito esito = relazione("ingresso", file(progetto), file(uscita));
        EXPECT_EQ(esito.codice, 2) << uscita;
        EXPECT_NE(esito.errori.find("è il progetto, che la relazione sostituirebbe"), std::string::npos)
            << esito.errori;
        EXPECT_EQ(contenuto(file("p.docx")), prima) << uscita;
    }
}

TEST_F(ComandoRelazione, AStudyOfSaturationAloneHasNoCharts) {
    const Esito esito = relazione("grafici", esempio(saturazione), file("r.docx"));
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("sola saturazione"), std::string::npos) << esito.errori;
    EXPECT_FALSE(std::filesystem::exists(file("r.docx")));
}

/// Runs of the program that find these programs alone.
class ComandoRelazionePDF : public ComandoRelazione {
protected:
    ComandoRelazionePDF() {
        if (const char* prima = std::getenv("PATH")) {
            percorsi_ = prima;
        }
        std::filesystem::create_directory(file("programmi"));
        setenv("PATH", file("programmi").c_str(), 1);
    }
    ~ComandoRelazionePDF() override { setenv("PATH", percorsi_.c_str(), 1); }
    void programma(const std::string& nome, const std::string& righe) const {
        const std::string percorso = file("programmi/" + nome);
        scriviContenuto(percorso, "#!/bin/sh\n" + righe);
        std::filesystem::permissions(percorso, std::filesystem::perms::owner_all);
    }
    Esito conPDF() const {
        return relazione("ingresso", esempio(stazione), file("r 1.docx"), {"--pdf", "--notte", "15"});
    }
    const std::string& percorsi() const { return percorsi_; }

private:
    std::string percorsi_;
};

TEST_F(ComandoRelazionePDF, ThePdfStandsBesideTheDocument) {
    programma("soffice",
              "printf '%%PDF-1.7 di ' > \"$7/documento.pdf\"\n/usr/bin/head -c 2 \"$8\" >> \"$7/documento.pdf\"\n");
    const Esito esito = conPDF();
    EXPECT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(esito.errori, "");
    EXPECT_EQ(contenuto(file("r 1.pdf")), "%PDF-1.7 di PK");
    EXPECT_EQ(contenuto(file("r 1.docx")).substr(0, 2), "PK");
}

TEST_F(ComandoRelazionePDF, WithoutAnOfficeProgramTheDocumentStaysAndItIsTold) {
    const Esito esito = conPDF();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("Il PDF non è stato fatto: non c'è un programma d'ufficio che lo faccia"),
              std::string::npos)
        << esito.errori;
    EXPECT_EQ(contenuto(file("r 1.docx")).substr(0, 2), "PK");
    EXPECT_FALSE(std::filesystem::exists(file("r 1.pdf")));
}

TEST_F(ComandoRelazionePDF, AProgramThatFailsIsTold) {
    programma("libreoffice", "exit 3\n");
    const Esito esito = conPDF();
    EXPECT_EQ(esito.codice, 1);
    EXPECT_NE(esito.errori.find("libreoffice è terminato con il codice 3"), std::string::npos) << esito.errori;
    EXPECT_FALSE(std::filesystem::exists(file("r 1.pdf")));
}

/// Blanks, tabs and line ends in a row are one blank.
std::string conUnoSpazio(const std::string& testo) {
    static const std::regex vuoto("[ \\t\\r\\n\\f]+");
    return std::regex_replace(testo, vuoto, " ");
}

TEST_F(ComandoRelazionePDF, TheOfficeProgramOfTheMachineMakesSoundPages) {
    setenv("PATH", percorsi().c_str(), 1);
    if (!std::filesystem::exists("/usr/bin/soffice")) {
        GTEST_SKIP() << "no office program on this machine";
    }
    const Esito esito = relazione("completa", esempio(stazione), file("r.docx"), {"--pdf", "--notte", "15"});
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    const std::string pdf = contenuto(file("r.pdf"));
    EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
    EXPECT_GT(pdf.size(), 50000U);
    if (!conStrumento("pdftotext", "poppler-utils")) {
        GTEST_SKIP() << "nothing on this machine reads the words of a PDF";
    }
    const std::string comando = "pdftotext -layout '" + file("r.pdf") + "' '" + file("r.txt") + "'";
    ASSERT_EQ(std::system(comando.c_str()), 0);
    const std::string letto = conUnoSpazio(contenuto(file("r.txt")));
    for (const char* parole : {"Riqualificazione del nodo di Viale della Stazione", "Ing. Anna Bellini",
                               "Castelnovo di Ripa", "Premessa", "Misure geometriche degli ingressi",
                               "Condizioni notturne: sì; incidenza sulla capacità del nodo: 15 per cento",
                               "Limiti del metodo", "pagina 2 di"}) {
        EXPECT_NE(letto.find(parole), std::string::npos) << parole;
    }
    EXPECT_EQ(letto.find("%T"), std::string::npos) << "a placeholder was left";
    // Every row of the results as the calculation prints it: flow, capacity, saturation, queue, delay, level.
    static const std::regex riga(R"(\t([0-9,\t]+\t[A-F])\t)");
    const std::string calcolo = std::regex_replace(kelvoCli({"calcola", "--notte", "15", esempio(stazione)}).uscita,
                                                   std::regex{" +"}, std::string{});
    int righe = 0;
    for (std::sregex_iterator i(calcolo.begin(), calcolo.end(), riga); i != std::sregex_iterator{}; ++i) {
        const std::string valori = conUnoSpazio((*i)[1]);
        EXPECT_NE(letto.find(valori), std::string::npos) << valori;
        ++righe;
    }
    EXPECT_EQ(righe, 4 * 8) << "legs by segments";
}

#ifdef KELVO_CON_DISEGNO
TEST_F(ComandoRelazione, ReportsHoldTheirPictures) {
    const Esito esito = relazione("grafici", esempio(stazione), file("g.docx"));
    ASSERT_EQ(esito.codice, 0) << esito.errori;
    EXPECT_EQ(scritto("g.docx")->Sostituisci("Capacità - Ingresso ", "x"), 4);
    EXPECT_GT(contenuto(file("g.docx")).size(), 200000U) << "twenty pictures at the resolution of print";
    ASSERT_EQ(relazione("ingresso", esempio(stazione), file("i.docx")).codice, 0);
    EXPECT_TRUE(scritto("i.docx")->HaSegnalibro("ParagrafoPianta"));
}
#endif

}  // namespace

}  // namespace kelvo::prove
