// What the templates of the program say: a chapter, a formula or a limit of the method that is lost is found here.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "progettoProva.h"

namespace kelvo::prove {
namespace {

using Testi = std::vector<std::string>;

/// A chapter by its marks: bookmarks, placeholders, and pieces of its text.
struct Capitolo {
    Testi segnalibri;
    Testi segnaposto;
    Testi frasi;
};

const Capitolo anagrafica{
    {},
    {"%LocalitaProgetto%", "%ComuneProgetto%", "%ProvinciaProgetto%", "%StatoProgetto%", "%DataProgetto%",
     "%NomefileProgetto%", "%NomeProfessionista%", "%IndirizzoProfessionista%", "%CapProfessionista%",
     "%ComuneProfessionista%", "%ProvinciaProfessionista%", "%TelefonoProfessionista%", "%EmailProfessionista%"},
    {"Rotatoria stradale", "timbro e firma"}};

const Capitolo premessa{{},
                        {"%TitoloProgetto%", "%NumeroRami%", "%DenominazioneProgetto%", "%VersioneKelvo%",
                         "%DataRelazione%", "%TipoAnalisi%"},
                        {"Indice", "in senso antiorario, che è quello di marcia"}};

const Capitolo ingressi{{"ToponomasticaIngressi", "GeometriaIngressi", "ParagrafoPianta", "Pianta"},
                        {},
                        {"la lunghezza media efficace l della svasatura", "ricavata su 86 rotatorie aperte al traffico",
                         "Fuori dal campo delle misure di quelle rotatorie è un'estrapolazione.",
                         "Fonte: M. Rogers, Highway Engineering, capitolo 5, dalla norma britannica TA 23/81."}};

const Capitolo traffico{
    {"ParagrafoDatiTraffico", "SenzaDatiTraffico", "DatiTraffico", "ParagrafoDatiTrafficoST", "SenzaDatiTrafficoST",
     "DatiTrafficoST", "MatriceSvoltePerc", "ParagrafoMatriceSvolte", "MatriceSvolte", "TotaliMatriceSvolte",
     "ParagrafoComposizioneTraffico", "ComposizioneTraffico", "ParagrafoComposizioneTrafficoST",
     "ComposizioneTrafficoST", "CondizioniEsterne"},
    {"%TMTI%", "%TMIT%", "%TMTF%", "%VE1%", "%VE2%", "%VE3%", "%VE4%", "%VE5%", "%VE6%", "%VE7%", "%CN%",
     "%IncidenzaNotte%"},
    {"è una spezzata di due tratti", "cala fino a q3, che il calcolo raggiunge un segmento prima del tempo t3",
     "La domanda di un segmento è quella che la spezzata ha al suo inizio.",
     "sotto l'intestazione «[veicoli/min]» i valori della tabella sono conteggi, in veicoli per segmento",
     "sotto l'intestazione «TIPO [%]» i valori delle tabelle sono conteggi, in veicoli per segmento",
     "G = Σ VEj cj / Σ cj", "nel calcolo contano le proporzioni", "Se la matrice è assegnata in percentuale",
     "è ridotta, in percentuale, dalle condizioni notturne"}};

const Capitolo capacita{
    {"CapacitaUltima"},
    {},
    {"TRRL Laboratory Report 942, 1980", "Qe = k (F − fc Qc)", "k = 1 − 0,00347 (φ − 30) − 0,978 (1/r − 0,05)",
     "F = 303 x2", "fc = 0,210 tD (1 + 0,2 x2)", "tD = 1 + 0,5 / (1 + exp((D − 60) / 10))",
     "x2 = v + (e − v) / (1 + 2 S)", "S = 1,6 (e − v) / l", "il flusso che ne entra nell'anello",
     "è il rapporto fra la somma dei flussi orari degli ingressi e quella delle capacità ultime",
     "I flussi orari di questo rapporto sono in veicoli"}};

const Capitolo verifiche{
    {"SenzaCapacitaCodeRitardi", "CapacitaCodeRitardi"},
    {"%Percentile%"},
    {"TRRL Laboratory Report 909, 1979", "x = 60 f / c", "w = 1 − p / 100", "cT = T c / 60",
     "coda = (cT / 4) { (x − 1) + √[ (1 − x)2 − (8 x / cT) ln w ] }", "A = 2 + cT − x cT", "c1 = c / 60",
     "ritardo = 60 { 1 / c1 + [ √(A2 + 8 cT x) − A ] / (4 c1) }",
     "L'intervallo T è il tempo di modellazione diviso per il numero dei segmenti meno uno",
     "T è di 60 / (4 − 1) = 20 minuti", "0,85 è il massimo da accettare in pratica", "Il livello segue il solo ritardo",
     "Limiti del metodo", "La relazione di capacità è empirica", "Ogni segmento di tempo sta a sé",
     "L'intervallo T delle formule è più lungo del segmento", "i flussi dei due soli ingressi che lo precedono",
     "Il ritardo è un valore medio e la coda un percentile di un comportamento variabile"}};

const Capitolo corsie{{"ParagrafoCorsiaDX", "SenzaCorsiaDX", "IpotesiCorsiaDX", "CorsiaDX"},
                      {"%Ipotesi1%", "%Ipotesi2%", "%Ipotesi3%", "%Ipotesi4%"},
                      {"la media al minuto è tolta dalla domanda al minuto",
                       "la stessa media al minuto è tolta dal conteggio dell'intero segmento",
                       "è un solo valore per tutti i segmenti", "il segno «-» indica una svolta senza corsia"}};

const Capitolo grafico{{"Contenuto"},
                       {"%TitoloGrafico%", "%SottotitoloGrafico%", "%TitoloProgetto%"},
                       {"TRRL LR942 (Kimber, 1980)", "LR909 (Kimber e Hollis, 1979)", "secondo il solo ritardo",
                        "Ogni segmento di tempo sta a sé: la coda di uno non passa al successivo."}};

const Capitolo sensibilita{
    {"Contenuto"},
    {"%TitoloGrafico%", "%SottotitoloGrafico%", "%TitoloProgetto%"},
    {"TRRL LR942 (Kimber, 1980)", "LR909 (Kimber e Hollis, 1979)", "da −3 a +3",
     "del segmento di tempo con il flusso più grande (nella sola saturazione: la capacità ultima)",
     "è un'estrapolazione"}};

const std::vector<const Capitolo*> tutti{&anagrafica, &premessa, &ingressi, &traffico,   &capacita,
                                         &verifiche,  &corsie,   &grafico,  &sensibilita};

struct Modello {
    std::string nome;
    std::vector<const Capitolo*> capitoli;
};
const std::vector<Modello> modelli{
    {"RelazioneMasterIN", {&anagrafica, &premessa, &ingressi, &traffico}},
    {"RelazioneMasterOUT", {&anagrafica, &premessa, &capacita, &verifiche}},
    {"RelazioneMasterIN-OUT", {&anagrafica, &premessa, &ingressi, &traffico, &capacita, &verifiche}},
    {"RelazioneMasterTOT", {&anagrafica, &premessa, &ingressi, &traffico, &capacita, &verifiche, &corsie}},
    {"Grafico", {&anagrafica, &grafico}},
    {"Grafico_AM", {&anagrafica, &sensibilita}},
};

Letto leggi(const std::string& nome) {
    return Letto(contenuto(KELVO_CARTELLA "/Modelli/" + nome + ".dotx"));
}

TEST(ContenutoModelli, EachTemplateHasItsChaptersWithAllTheirBookmarksTokensAndKeySentences) {
    for (const Modello& modello : modelli) {
        const Letto letto = leggi(modello.nome);
        const std::string testo = Letto::testo(letto.corpo());
        for (const Capitolo* capitolo : modello.capitoli) {
            for (const std::string& nome : capitolo->segnalibri) {
                EXPECT_TRUE(haSegnalibro(letto, nome)) << modello.nome << ": " << nome;
            }
            for (const Testi* attesi : {&capitolo->segnaposto, &capitolo->frasi}) {
                for (const std::string& pezzo : *attesi) {
                    EXPECT_NE(testo.find(pezzo), std::string::npos) << modello.nome << ": " << pezzo;
                }
            }
        }
    }
}

TEST(ContenutoModelli, NoTemplateHasTheSectionsOfAnotherKindOfReport) {
    for (const Modello& modello : modelli) {
        const Letto letto = leggi(modello.nome);
        Testi suoi;
        for (const Capitolo* capitolo : modello.capitoli) {
            suoi.insert(suoi.end(), capitolo->segnalibri.begin(), capitolo->segnalibri.end());
        }
        for (const Capitolo* capitolo : tutti) {
            for (const std::string& nome : capitolo->segnalibri) {
                const bool suo = std::find(suoi.begin(), suoi.end(), nome) != suoi.end();
                EXPECT_EQ(haSegnalibro(letto, nome), suo) << modello.nome << ": " << nome;
            }
        }
    }
}

TEST(ContenutoModelli, TheRangesOfTheMeasuresStandWithTheInput) {
    const Celle2D attese{{"Misura", "Simbolo", "Campo dei dati", "Campo raccomandato"},
                         {"Larghezza dell'ingresso", "e", "3,6 - 16,5 m", "4,0 - 15,0 m"},
                         {"Semilarghezza dell'accesso", "v", "1,9 - 12,5 m", "2,0 - 7,3 m"},
                         {"Lunghezza media efficace della svasatura", "l", "da 1 m", "1 - 100 m"},
                         {"Acutezza della svasatura", "S", "0 - 2,9", "-"},
                         {"Diametro inscritto", "D", "13,5 - 171,6 m", "15 - 100 m"},
                         {"Angolo di conflitto", "φ", "0 - 77°", "10 - 60°"},
                         {"Raggio di curvatura dell'ingresso", "r", "da 3,4 m", "6 - 100 m"}};
    for (const char* nome : {"RelazioneMasterIN", "RelazioneMasterIN-OUT", "RelazioneMasterTOT"}) {
        EXPECT_EQ(tabellaDopo(leggi(nome), "Campo delle misure da cui è ricavata la relazione e campo raccomandato"),
                  attese)
            << nome;
    }
}

TEST(ContenutoModelli, TheBandsOfTheLevelsStandWithTheResults) {
    const Celle2D attese{{"Livello", "A", "B", "C", "D", "E", "F"},
                         {"Ritardo", "fino a 10", "fino a 15", "fino a 25", "fino a 35", "fino a 50", "oltre 50"}};
    for (const char* nome : {"RelazioneMasterOUT", "RelazioneMasterIN-OUT", "RelazioneMasterTOT"}) {
        EXPECT_EQ(tabellaDopo(leggi(nome), "Livelli di servizio, ritardo in s/veic"), attese) << nome;
    }
}

}  // namespace
}  // namespace kelvo::prove
