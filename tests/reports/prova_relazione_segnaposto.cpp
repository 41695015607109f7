#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "base/testo.h"
#include "base/versione.h"
#include "progettoProva.h"
#include "reports/segnaposto.h"

namespace kelvo::prove {
namespace {

/// The tokens that are left in any text of a document.
std::vector<std::string> rimasti(const Letto& letto) {
    const std::regex forma("%[A-Za-z][A-Za-z0-9]*%");
    std::vector<std::string> trovati;
    for (const char* parte : {"document", "header1", "footer1"}) {
        const std::string testo = letto.testoParte(parte);
        for (auto uno = std::sregex_iterator(testo.begin(), testo.end(), forma); uno != std::sregex_iterator(); ++uno) {
            trovati.push_back(uno->str());
        }
    }
    return trovati;
}

/// The five reports.
const std::vector<std::pair<std::string, EsitoRelazione (*)(modStampaRelazione&)>> relazioni{
    {"ingresso", [](modStampaRelazione& m) { return m.compilaRelazioneWord("RelazioneMasterIN"); }},
    {"risultati", [](modStampaRelazione& m) { return m.compilaAllegatiWord("RelazioneMasterOUT"); }},
    {"completa", [](modStampaRelazione& m) { return m.compilaRelazioneWord("RelazioneMasterIN-OUT.dot"); }},
    {"totale", [](modStampaRelazione& m) { return m.compilaRelazioneWord("RelazioneMasterTOT.dot"); }},
    {"grafici", [](modStampaRelazione& m) { return m.compilaGrafici(); }},
};

TEST(Segnaposto, NoneIsLeftInAnyReportOfAnyProjectAndEveryReportIsValid) {
    for (const std::int16_t rami : std::initializer_list<std::int16_t>{3, 4, 7}) {
        for (const std::int16_t analisi : std::initializer_list<std::int16_t>{0, 1, 2}) {
            for (const std::int16_t modi : std::initializer_list<std::int16_t>{0, 1}) {
                Scena scena({.rami = rami, .analisi = analisi, .flusso = modi, .matrice = modi});
                for (const auto& [nome, compila] : relazioni) {
                    auto modulo = scena.modulo();
                    if (nome == "grafici" && analisi == 0) {
                        EXPECT_EQ(compila(modulo), EsitoRelazione::fallita);
                        scena.errori.clear();
                        continue;
                    }
                    const std::string dove = nome + std::to_string(rami) + std::to_string(analisi);
                    ASSERT_EQ(compila(modulo), EsitoRelazione::fatta) << dove;
                    EXPECT_TRUE(scena.errori.empty()) << dove;
                    const Letto letto = scena.letto();
                    EXPECT_EQ(rimasti(letto), std::vector<std::string>{}) << dove;
                    if (rami != 4) {
                        EXPECT_EQ(letto.errori(), "") << dove;
                    }
                }
            }
        }
    }
}

TEST(Segnaposto, EveryTokenOfTheTemplatesIsKnown) {
    const std::set<std::string_view> noti(segnaposto::tutti.begin(), segnaposto::tutti.end());
    EXPECT_EQ(noti.size(), segnaposto::tutti.size());
    int modelli = 0;
    for (const auto& voce : std::filesystem::directory_iterator(KELVO_CARTELLA "/Modelli")) {
        ++modelli;
        const Letto letto(contenuto(voce.path().string()));
        EXPECT_EQ(letto.errori(), "") << voce.path();
        const std::vector<std::string> suoi = rimasti(letto);
        EXPECT_FALSE(suoi.empty());
        for (const std::string& uno : suoi) {
            EXPECT_EQ(noti.count(uno), 1U) << uno;
        }
    }
    EXPECT_EQ(modelli, 6);
}

TEST(Segnaposto, ValuesOfTheProjectStandWhereTheirTokensStood) {
    Scena scena;
    Rotonda& r = scena.app.theRotonda();
    r.Comune("Portolungo");
    r.Provincia("FE");
    r.StatoAvanzamento("Progetto Definitivo");
    r.NomeProfessionista("Ing. Anna Bellini");
    r.IndirizzoProfessionista("Via dei Mulini 14");
    r.CAPProfessionista("46030");
    r.CittaProfessionista("Borgoforte");
    r.ProvinciaProfessionista("MN");
    r.TelefonoProfessionista("0300000000");
    r.EMailProfessionista("studio@esempio.it");
    r.Data(giornoCalendario(2026, 2, 3));
    r.CondizioniNotturne(true);
    r.ValorePercentile(92.5F);
    scena.app.theAmbiente.PercentualeNotturna(15);
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN-OUT.dot");
    const Letto letto = scena.letto();
    std::vector<std::string> scheda;
    for (const pugi::xml_node tabella : letto.corpo().children("w:tbl")) {
        for (const auto& riga : celleDi(tabella)) {
            if (riga.size() == 2) {
                scheda.push_back(riga[0] + "=" + riga[1]);
            }
        }
    }
    for (const char* attesa :
         {"Località=Borgo", "Comune=Portolungo", "Provincia=FE", "Stato di avanzamento=Progetto Definitivo",
          "Data del progetto=03/02/2026", "File di progetto=Rotatoria_prova", "Progettista=Ing. Anna Bellini",
          "Indirizzo=Via dei Mulini 14", "CAP e città=46030 Borgoforte", "Provincia=MN", "Telefono=0300000000",
          "Posta elettronica=studio@esempio.it", "Autoarticolati=2,50", "Autotreni=2,00", "Autobus=1,80", "Camper=1,40",
          "Roulotte=1,20", "Veicoli a due ruote=0,80", "Autovetture=1,00"}) {
        EXPECT_EQ(std::count(scheda.begin(), scheda.end(), attesa), 1) << attesa;
    }
    const std::string testo = Letto::testo(letto.corpo());
    for (const char* frase : {"dalle ore 08:00 alle ore 09:00, diviso in segmenti di tempo di 15 minuti",
                              "Condizioni notturne: sì; incidenza sulla capacità del nodo: 15 per cento",
                              "in questo studio 92,5 per cento", "rotatoria a 4 rami", "il 21/11/2026"}) {
        EXPECT_NE(testo.find(frase), std::string::npos) << frase;
    }
    EXPECT_EQ(letto.testoParte("header1"), "Nodo di prova\tIng. Anna Bellini");
    EXPECT_EQ(letto.testoParte("footer1"),
              "Kelvo " + std::string(versione()) + " - Rotatoria_prova - 21/11/2026\tpagina 2 di 2");
}

TEST(Segnaposto, ATitleStandsInASentenceThatReadsWellWithoutItToo) {
    Scena scena;
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    EXPECT_NE(Letto::testo(scena.letto().corpo()).find("a 4 rami, nel progetto denominato «Nodo di prova». I rami"),
              std::string::npos);
    scena.app.theRotonda().Titolo("");
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    EXPECT_NE(Letto::testo(scena.letto().corpo()).find("una rotatoria a 4 rami. I rami"), std::string::npos);
}

TEST(Segnaposto, ASegmentOfAWholeHourReadsAsTheFormatHasIt) {
    Scena scena;
    scena.app.theRotonda().SegmentoTempo(oraDelGiorno(1, 0));
    scena.app.theRotonda().TempoFinale(oraDelGiorno(12, 0));
    scena.modulo().compilaRelazioneWord("RelazioneMasterIN");
    EXPECT_NE(Letto::testo(scena.letto().corpo()).find("alle ore 12:00, diviso in segmenti di tempo di 00 minuti"),
              std::string::npos);
}

TEST(Segnaposto, HostileNamesStandAsTheyAre) {
    const std::string nome = "Via <Rossi> & \"Figli\" 'è' – %TMTI% 🚗";
    Scena scena({.rami = 7, .flusso = 1});
    scena.corsia.reset();
    Rotonda& r = scena.app.theRotonda();
    r.Titolo(nome);
    r.Localita("%ComuneProgetto%");
    r.Comune("Comune & C.");
    for (std::int16_t i = 1; i <= 7; ++i) {
        r.Ramo(i).Descrizione(nome);
        r.Ramo(i).theAnalisiMarginale().DescrizioneCondizioniEsterne("a\r\nb\x01\xFF");
    }
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterIN-OUT.dot"), EsitoRelazione::fatta);
    EXPECT_TRUE(scena.errori.empty());
    const Letto letto = scena.letto();
    EXPECT_EQ(letto.errori(), "");
    EXPECT_EQ(tabellaDi(letto, "ToponomasticaIngressi")[1][0], "Località %ComuneProgetto%");
    EXPECT_EQ(tabellaDi(letto, "ToponomasticaIngressi")[3][1], nome);
    EXPECT_EQ(tabellaDi(letto, "CondizioniEsterne")[1][1], "a\nb\xEF\xBF\xBD");
    EXPECT_EQ(letto.testoParte("header1").substr(0, nome.size()), nome);
}

TEST(Segnaposto, IdentifiersAreNotUsedTwice) {
    Scena scena({.rami = 7});
    scena.modulo().compilaGrafici();
    const Letto letto = scena.letto();
    for (const char* cosa : {"//w:bookmarkStart/@w:id", "//wp:docPr/@id", "//w:bookmarkStart/@w:name"}) {
        std::set<std::string> visti;
        for (const auto& uno : letto.corpo().select_nodes(cosa)) {
            EXPECT_TRUE(visti.insert(uno.attribute().value()).second) << cosa << uno.attribute().value();
        }
        EXPECT_FALSE(visti.empty()) << cosa;
    }
    EXPECT_EQ(letto.conta("w:drawing"), 35);
    std::set<std::string> tipi;
    for (const ooxml::Voce& voce : letto.voci()) {
        if (voce.nome.rfind("word/media/", 0) == 0) {
            EXPECT_TRUE(tipi.insert(voce.nome).second);
        }
    }
    EXPECT_EQ(letto.parte("[Content_Types].xml").find("Extension=\"png\"") != std::string::npos, true);
}

TEST(Segnaposto, ALargeReportHoldsEveryRowOfItsTables) {
    Scena scena({.rami = 7, .analisi = 2, .flusso = 1, .segmenti = 72});
    EXPECT_EQ(scena.modulo().compilaRelazioneWord("RelazioneMasterTOT"), EsitoRelazione::fatta);
    EXPECT_TRUE(scena.errori.empty());
    const Letto letto = scena.letto();
    EXPECT_EQ(letto.errori(), "");
    // Counts of all entries, composition and results of each.
    EXPECT_GE(letto.conta("w:tr"), 72 + 7 * 72 + 7 * 72);
}

}  // namespace
}  // namespace kelvo::prove
