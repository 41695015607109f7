#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "comune/fileDifettosi.h"
#include "modelloProva.h"
#include "reports/xml.h"

namespace kelvo::prove {
namespace {

using ooxml::Voce;

/// The parts with one of them changed; an empty text takes it away.
std::vector<Voce> conParte(std::vector<Voce> voci, const std::string& nome, const std::string& dati) {
    std::erase_if(voci, [&](const Voce& voce) { return voce.nome == nome; });
    if (!dati.empty()) {
        voci.push_back({nome, dati});
    }
    return voci;
}

std::string perche(const std::string& dati) {
    const std::string parole =
        paroleDi([&] { documentoDaContenuto(dati, "m.dotx"); }, NumeroGuasto::operazioneImpossibile);
    const std::string testa = "Il modello \"m.dotx\" non può essere usato: ";
    return parole.rfind(testa, 0) == 0 ? parole.substr(testa.size()) : parole;
}

TEST(Modelli, ATemplateBecomesADocument) {
    const auto doc = conCorpo(p("x"));
    const Letto letto(*doc);
    EXPECT_NE(letto.parte("[Content_Types].xml").find("wordprocessingml.document.main+xml"), std::string::npos);
    EXPECT_EQ(letto.parte("[Content_Types].xml").find("template"), std::string::npos);
    EXPECT_EQ(letto.voci().size(), parti("").size());
    EXPECT_EQ(letto.voci().front().nome, "[Content_Types].xml");
    EXPECT_EQ(letto.parte("word/styles.xml"), stiliW);
    EXPECT_EQ(letto.errori(), "");
    // What was written can be a template again, and is written alike.
    const std::string prima = doc->Contenuto();
    EXPECT_EQ(documentoDaContenuto(prima, "q")->Contenuto(), prima);
}

TEST(Modelli, SchemasAreAtHand) {
    if (!haSchemi()) {
        GTEST_SKIP() << "senza gli schemi del formato o xmllint i documenti non sono verificati";
    }
    const Letto sbagliato(*conCorpo("<w:p><w:r/><w:pPr/></w:p>"));
    EXPECT_NE(sbagliato.errori(), "") << "the check finds what is wrong";
}

TEST(Modelli, ATemplateIsFoundWhateverItsNameAndExtension) {
    const CartellaTemporanea cartella;
    std::filesystem::create_directories(cartella.file("Modelli"));
    for (const char* nome : {"Modelli/RelazioneMasterIN.dotx", "Modelli/Grafico.docx", "Modelli/vecchio.dot",
                             "Modelli/altro.rtf", "Modelli/due.dotx", "Modelli/due.docx", "Modelli/due.dot"}) {
        scriviContenuto(cartella.file(nome), "x");
    }
    const auto trovato = [&](const std::string& nome) {
        const std::string percorso = trovaModello(cartella.percorso(), nome);
        return percorso.empty() ? percorso : percorso.substr(cartella.percorso().size() + 1);
    };
    EXPECT_EQ(trovato("\\modelli\\RelazioneMasterIN"), "Modelli/RelazioneMasterIN.dotx");
    EXPECT_EQ(trovato("\\Modelli\\relazionemasterin.dot"), "Modelli/RelazioneMasterIN.dotx");
    EXPECT_EQ(trovato("Modelli/Grafico.dot"), "Modelli/Grafico.docx");
    EXPECT_EQ(trovato("Modelli/vecchio"), "Modelli/vecchio.dot");
    EXPECT_EQ(trovato("Modelli/Altro.dot"), "Modelli/altro.rtf");
    EXPECT_EQ(trovato("Modelli/due.docx"), "Modelli/due.docx");
    EXPECT_EQ(trovato("Modelli/due.dot"), "Modelli/due.dotx");
    EXPECT_EQ(trovato("Modelli/manca"), "");
    EXPECT_EQ(trovato("Modelli"), "");
}

TEST(Modelli, AFileIsOpenedByItsName) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("Prova.dotx"), archivio(parti(p("%A%"))));
    const auto doc = documentoDaModello(cartella.percorso(), "prova.dot");
    EXPECT_EQ(doc->Sostituisci("%a%", "x"), 1);
    const std::string manca =
        paroleDi([&] { documentoDaModello(cartella.percorso(), "Manca.dot"); }, NumeroGuasto::fileNonTrovato);
    EXPECT_EQ(manca, "Il modello \"Manca.dot\" non esiste nella cartella " + cartella.percorso());
}

TEST(Modelli, WhatIsNoTemplateIsRefusedWithItsReason) {
    const std::vector<Voce> buone = parti(p("x"));
    const std::string tipi = buone[0].dati;
    const auto conTipo = [&](const std::string& quale) {
        return archivio(conParte(buone, "[Content_Types].xml", conCambio(tipi, "", "template.main", quale)));
    };
    EXPECT_EQ(perche(""), "non è un documento .docx o .dotx");
    EXPECT_EQ(perche("{\\rtf1 testo}"), "non è un documento .docx o .dotx");
    EXPECT_EQ(perche("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1 testo"),
              "è nel vecchio formato binario o protetto da una parola d'ordine: va salvato come .dotx");
    EXPECT_EQ(perche(archivio({{"a.txt", "x"}})), "non è un documento .docx o .dotx");
    EXPECT_EQ(perche(archivio(conParte(buone, "_rels/.rels", ""))), "non è un documento .docx o .dotx");
    EXPECT_EQ(perche(archivio(conParte(buone, "_rels/.rels", "<a"))), "manca il testo del documento");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/document.xml", ""))), "manca il testo del documento");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/document.xml", "<w:document " + spaziW + "/>"))),
              "manca il testo del documento");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/document.xml", "<w:document"))), "una parte non è XML corretto");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/header1.xml", "niente"))), "una parte non è XML corretto");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/styles.xml", "<a\xFF/>"))), "una parte non è testo valido");
    EXPECT_EQ(perche(conTipo("template.macroEnabledTemplate.main")), "contiene macro: va salvato come .dotx");
    EXPECT_EQ(perche(conTipo("glossary.main")), "non è un documento di testo");
    const std::string strict =
        conCambio(documentoXml(p("x")), "", "http://schemas.openxmlformats.org/wordprocessingml/2006/main",
                  "http://purl.oclc.org/ooxml/wordprocessingml/main");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/document.xml", strict))),
              "è in una variante del formato che non è gestita: va salvato come .dotx");
}

TEST(Modelli, PartsThatMayLackMayLack) {
    std::vector<Voce> voci = parti(p("%A%"));
    for (const char* nome : {"word/header1.xml", "word/footer1.xml", "word/footnotes.xml", "word/styles.xml"}) {
        voci = conParte(voci, nome, "");
    }
    EXPECT_EQ(documento(voci)->Sostituisci("%A%", "x"), 1);
    EXPECT_EQ(documento(conParte(voci, "word/_rels/document.xml.rels", ""))->Sostituisci("%A%", "x"), 1);
}

TEST(Modelli, AbsurdSizesAreRefused) {
    const std::vector<Voce> buone = parti(p("x"));
    std::string profondo;
    for (int i = 0; i < 100000; ++i) {
        profondo += "<w:smartTag>";
    }
    const std::string chiuso = [] {
        std::string fini;
        for (int i = 0; i < 100000; ++i) {
            fini += "</w:smartTag>";
        }
        return fini;
    }();
    EXPECT_EQ(perche(archivio(conParte(buone, "word/document.xml", documentoXml(profondo + chiuso)))),
              "una parte ha una struttura non ammessa");
    EXPECT_EQ(
        perche(archivio(conParte(buone, "word/document.xml", documentoXml(p(std::string(ooxml::massimoXml, 'a')))))),
        "una parte è troppo grande");
    EXPECT_EQ(perche(archivio(conParte(buone, "word/bomba.bin", std::string(ooxml::massimoVoce + 1, '\0')))),
              "il contenuto è troppo grande");
    std::vector<Voce> grandi = buone;
    for (int i = 0; i < 4; ++i) {
        grandi.push_back({"g" + std::to_string(i), std::string(ooxml::massimoVoce - 1, '\0')});
    }
    EXPECT_EQ(perche(archivio(grandi)), "il contenuto è troppo grande");
    std::vector<Voce> molte = buone;
    for (std::size_t i = 0; i < ooxml::massimeVoci; ++i) {
        molte.push_back({"v" + std::to_string(i), ""});
    }
    EXPECT_EQ(perche(archivio(molte)), "ha troppe parti");
    const std::string tipo = "<!DOCTYPE a [<!ENTITY b \"c\">]>";
    EXPECT_EQ(perche(archivio(conParte(buone, "word/header1.xml", tipo + "<w:hdr " + spaziW + "><w:p/></w:hdr>"))),
              "una parte ha una struttura non ammessa");
    std::vector<Voce> fuori = buone;
    fuori.push_back({"../fuori.xml", "x"});
    EXPECT_EQ(perche(archivio(fuori)), "ha parti con nomi non validi");
    std::vector<Voce> doppie = buone;
    doppie.push_back({"WORD/document.xml", "x"});
    EXPECT_EQ(perche(archivio(doppie)), "ha parti con nomi non validi");
}

TEST(Modelli, ADamagedArchiveIsRefusedOrReadWhole) {
    const std::string buono = archivio(parti(p("testo abbastanza lungo da essere compresso, testo abbastanza lungo")));
    for (const std::size_t taglio : {buono.size() / 4, buono.size() / 2, buono.size() - 1}) {
        EXPECT_NE(perche(buono.substr(0, taglio)), "nessun guasto");
    }
}

TEST(Modelli, ASavedDocumentStandsThereWholeOrNotAtAll) {
    const auto doc = conCorpo(p("nuovo"));
    for (const PassoFile passo : {PassoFile::crea, PassoFile::scrivi, PassoFile::sincronizza, PassoFile::chiudi,
                                  PassoFile::dimensione, PassoFile::rinomina}) {
        const CartellaTemporanea cartella;
        const std::string percorso = cartella.file("Relazione.docx");
        scriviContenuto(percorso, "vecchio");
        FileDifettosi rotto(sistemaFileStandard(), passo, Incidente::errore);
        const std::string parole = paroleDi([&] { doc->Salva(rotto, percorso); }, NumeroGuasto::accessoPercorso);
        EXPECT_EQ(parole.rfind("Il documento non è stato salvato: ", 0), 0U) << parole;
        EXPECT_EQ(contenuto(percorso), "vecchio");
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella.percorso()), {}), 1);
    }
    const CartellaTemporanea cartella;
    doc->Salva(sistemaFileStandard(), cartella.file("Relazione.docx"));
    EXPECT_EQ(Letto(contenuto(cartella.file("Relazione.docx"))).blocchi(), std::vector<std::string>{"nuovo"});
    EXPECT_EQ(paroleDi([&] { doc->Salva(sistemaFileStandard(), cartella.file("manca/x.docx")); },
                       NumeroGuasto::accessoPercorso),
              "Il documento non è stato salvato: percorso non trovato");
}

}  // namespace
}  // namespace kelvo::prove
