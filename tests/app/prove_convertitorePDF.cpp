#include <gtest/gtest.h>

#include <filesystem>

#include "app/convertitorePDF.h"
#include "comune/cartella.h"
#include "comune/processiFinti.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;
using Fine = EsitoProcesso::Fine;

class ProveConvertitore : public testing::Test {
protected:
    ProveConvertitore() {
        scriviContenuto(documento, "PK documento");
        fs::create_directory(percorsoDaTesto(lavoro));
        processi.presente = "soffice";
        // The office program writes beside its output folder what it was told to convert.
        processi.recita = [this](const std::vector<std::string>& parole) {
            letto = contenuto(parole.at(7));
            scriviContenuto(parole.at(6) + "/documento.pdf", "%PDF-1.7 pagine");
        };
    }
    std::string converti(const std::function<void()>& intanto = {}) {
        return convertitore.converti(documento, pdf, intanto);
    }
    bool lavoroVuoto() const { return fs::is_empty(percorsoDaTesto(lavoro)); }

    CartellaTemporanea cartella;
    std::string documento = cartella.file("Relazione è.docx");
    std::string pdf = cartella.file("Relazione è.pdf");
    std::string lavoro = cartella.file("lavoro è");
    ProcessiFinti processi;
    ConvertitoreUfficio convertitore{processi, sistemaFileStandard(), lavoro, std::chrono::seconds(7)};
    std::string letto;
};

TEST_F(ProveConvertitore, ThePdfOfTheDocumentStandsWhereItIsAskedFor) {
    int giri = 0;
    EXPECT_EQ(converti([&] { ++giri; }), "");
    EXPECT_EQ(contenuto(pdf), "%PDF-1.7 pagine");
    EXPECT_EQ(letto, "PK documento");
    EXPECT_EQ(giri, 1);
    EXPECT_TRUE(lavoroVuoto()) << "profile and copies are gone";
}

TEST_F(ProveConvertitore, TheProgramHasAProfileOfItsOwnAndNoWindow) {
    EXPECT_EQ(converti(), "");
    EXPECT_EQ(processi.eseguiti, std::vector<std::string>{"/usr/bin/soffice"});
    EXPECT_EQ(processi.limiteDato, std::chrono::seconds(7));
    ASSERT_EQ(processi.parole.size(), 8U);
    const std::string& dentro = processi.parole[6];
    EXPECT_EQ(percorsoDaTesto(dentro).parent_path(), percorsoDaTesto(lavoro));
    EXPECT_EQ(percorsoDaTesto(dentro).filename().string().substr(0, 4), "pdf-");
    EXPECT_EQ(processi.parole[0], "-env:UserInstallation=" + indirizzoFile(dentro + "/profilo"));
    EXPECT_NE(processi.parole[0].find("/lavoro%20%C3%A8/pdf-"), std::string::npos) << processi.parole[0];
    EXPECT_EQ(processi.parole[1], "--headless");
    EXPECT_EQ(processi.parole[3], "--convert-to");
    EXPECT_EQ(processi.parole[4], "pdf");
    EXPECT_EQ(processi.parole[5], "--outdir");
    EXPECT_EQ(percorsoDaTesto(processi.parole[7]), percorsoDaTesto(dentro + "/documento.docx"));
}

TEST_F(ProveConvertitore, TheOtherNameOfTheProgramIsTriedToo) {
    processi.presente = "libreoffice";
    EXPECT_EQ(convertitore.impedimento(), "");
    EXPECT_EQ(processi.cercati, (std::vector<std::string>{"soffice", "libreoffice"}));
    EXPECT_EQ(converti(), "");
    EXPECT_EQ(processi.eseguiti, std::vector<std::string>{"/usr/bin/libreoffice"});
}

TEST_F(ProveConvertitore, WithoutAProgramItSaysWhatToDo) {
    processi.presente.clear();
    EXPECT_EQ(convertitore.impedimento(),
              "non c'è un programma d'ufficio che lo faccia (LibreOffice). Installarlo, oppure aprire la relazione e "
              "salvarla come PDF");
    EXPECT_EQ(converti(), convertitore.impedimento());
    EXPECT_TRUE(processi.eseguiti.empty());
    EXPECT_FALSE(fs::exists(percorsoDaTesto(pdf)));
}

TEST_F(ProveConvertitore, WhateverGoesWrongIsToldAndLeavesTheOldFile) {
    struct Caso {
        EsitoProcesso esito;
        std::string parole;
    };
    scriviContenuto(pdf, "vecchio");
    for (const Caso& caso :
         {Caso{{Fine::uscito, 77}, "il programma /usr/bin/soffice è terminato con il codice 77"},
          Caso{{Fine::interrotto, 0}, "il programma /usr/bin/soffice si è interrotto"},
          Caso{{Fine::scaduto, 0}, "il programma /usr/bin/soffice non ha finito entro 7 secondi ed è stato fermato"},
          Caso{{Fine::nonAvviato, 0}, "il programma /usr/bin/soffice non si avvia"}}) {
        processi.esito = caso.esito;
        EXPECT_EQ(converti(), caso.parole);
        EXPECT_EQ(contenuto(pdf), "vecchio");
        EXPECT_TRUE(lavoroVuoto());
    }
}

TEST_F(ProveConvertitore, ASuccessWithoutASoundFileIsNone) {
    const std::string parole = "il programma /usr/bin/soffice non ha scritto alcun PDF";
    processi.recita = nullptr;
    EXPECT_EQ(converti(), parole);
    processi.recita = [](const std::vector<std::string>& detti) {
        scriviContenuto(detti.at(6) + "/documento.pdf", "rotto");
    };
    EXPECT_EQ(converti(), parole);
    EXPECT_FALSE(fs::exists(percorsoDaTesto(pdf)));
    EXPECT_TRUE(lavoroVuoto());
}

TEST_F(ProveConvertitore, ATargetThatCannotBeWrittenAndADocumentThatIsGoneAreTold) {
    fs::create_directory(percorsoDaTesto(pdf));
    EXPECT_NE(converti(), "");
    EXPECT_TRUE(fs::is_directory(percorsoDaTesto(pdf)));
    fs::remove(percorsoDaTesto(documento));
    EXPECT_EQ(converti().substr(0, 31), "il documento non è leggibile (");
    EXPECT_TRUE(lavoroVuoto());
}

TEST_F(ProveConvertitore, AFolderThatCannotBeMadeIsTold) {
    ConvertitoreUfficio altro{processi, sistemaFileStandard(), documento};
    EXPECT_EQ(altro.converti(documento, pdf, {}).substr(0, 51), "la cartella dei file temporanei non è scrivibile (");
    EXPECT_TRUE(processi.eseguiti.empty());
}

TEST(PercorsoPDF, StandsBesideTheDocumentUnderItsName) {
    EXPECT_EQ(percorsoPDF("/a b/Nodo 1.2.docx"), "/a b/Nodo 1.2.pdf");
    EXPECT_EQ(percorsoPDF("Nodo"), "Nodo.pdf");
}

TEST(IndirizzoFile, WritesWhatIsNotPlainByItsBytes) {
    EXPECT_EQ(indirizzoFile("/tmp/a b%/città.txt"), "file:///tmp/a%20b%25/citt%C3%A0.txt");
    EXPECT_EQ(indirizzoFile("C:/Dati"), "file:///C:/Dati");
}

}  // namespace
}  // namespace kelvo::prove
