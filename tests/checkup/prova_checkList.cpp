// The check list: its rows one by one, sections, bands.

#include "checkup/checkList.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace kelvo::prove {
namespace {

struct Domanda {
    int riga;
    const char* testo;
    int si;
    int no;
};

constexpr std::array domande{
    Domanda{
        3,
        "- La posizione della rotatoria garantisce una buona individuazione dell'incrocio sia di giorno che di notte?",
        6, -8},
    Domanda{4,
            "- E' garantita la visibilità sul alto sinistro per gli utenti in avvicinamento all'isola "
            "centrale(principiio di visibilità del 1/4 dell'anello)?",
            3, -2},
    Domanda{5,
            "- L'organizzazione dell'isola centrale, in particolare riferimento alle sistemazioni a verde, permette di "
            "disporre di una corretta visuale costantemente libera per i veicoli in circolo sulla corona giratoria?",
            1, -1},
    Domanda{6,
            "- E' sempre garantito e rispettato per ogni ingresso lo spazio libero da qualunque impedimento visivo tra "
            "il veicolo in avvicinamento e la line del 'dare precedenza' (distanza di visibilità per l'arresto)?",
            5, -3},
    Domanda{7,
            "- E' stata garantita la visibilità delle fasce di rispetto e del triangolo di visibilità come previsto "
            "dal Codice della Strada(Principio di visibilità elle fasce di rispetto)?",
            3, -2},
    Domanda{8,
            "- E' stata eseguita una verifica illumminotecnica per assicurare un buon livello di illuminamento "
            "dell'intersezione?",
            2, -1},
    Domanda{12, "- L'isola centrale risulta ben centrata rispetto agli assi degli accessi entranti in rotatoria?", 7,
            -8},
    Domanda{13, "- Gli accessi e le uscite sono dotati di isole spartitraffico ?", 5, -6},
    Domanda{14,
            "- La geometria del ramo di ingresso in approccio alla rotatoria, permette un'adeguato controllo della "
            "velocita'?",
            5, -2},
    Domanda{15,
            "- Sono stati inseriti elementi di disturbo sugli accessi e sulle uscite della rotatoria ( fermate BUS, "
            "ingressi/uscite parcheggi,…)?",
            3, -1},
    Domanda{16,
            "- I rami confluenti nel nodo sono stati dotati di sistemi di moderazione del traffico e della "
            "velocità(dossi artificiali, bande rumorose, aree rialzate,…)?",
            3, -6},
    Domanda{17,
            "- La conformazione dell'isola centrale consente la manovra dei mezzi pesanti senza ostacoli ( fascie "
            "parzialmente o totalmente valicabili)?",
            4, -1},
    Domanda{18,
            "- Il numero di corsie presenti a monte della rotatoria viene correttamente inserito e/o riportato in "
            "anello senza riduzioni e/o restringimenti improvvisi?",
            1, -2},
    Domanda{19,
            "- E' stata considerata l'incidenza delle svolte a destra sulla matrice di Origine-Destinazione e quinidi "
            "la reativa organizzazione della geometria generale della rotatoria ( corsie svolte preferenziali, "
            "allargamento ingresso,…)?",
            1, -1},
    Domanda{20,
            "- E' stato redatto uno studio dedicato sulla sistemazione dell'isola centrale e degli spazi limitrofi "
            "alla rotatoria ( essenze sistemazione a verde, arredo urbano, …)?",
            1, -1},
    Domanda{21,
            "- Sono stati definiti nel dettaglio tutti i particolari costruttivi degli elementi costitnuenti la "
            "rotatoria(isole spartitraffico, pozzetti, caditoie, segnaletica, sesti di impianto,…)?",
            1, -1},
    Domanda{
        25,
        "- La rotatoria è dotata di tutta la segnaletica verticale ed orizzontale richiesta dal Codice della Strada?",
        6, -8},
    Domanda{26, "- La segnaletica presente garantisce la leggibilità e la percezione dell'intersezione a rotatoria?", 4,
            -4},
    Domanda{27,
            "- E' stata prevista una segnaletica specifica per regolamentare la velocità in aproccio e in uscita dalla "
            "rotatoria(banchine colorate, segnaletica luminosa,…)?",
            2, -1},
    Domanda{28,
            "- La segnaletica direzionale e di preavviso permette una facile ed inequivocabile interpretazione delle "
            "svolte da parte dell'utente stradale?",
            3, -1},
    Domanda{
        32,
        "- La rotatoria è dotata di un impianto correttamente dimensionato per lo smatimento delle acque meteoriche?",
        6, -3},
    Domanda{33,
            "- La rotatoria è dotata di un impianto per l'irrigazione degli spazi verdi (isola centrale, "
            "spartitraffici, area adiacenti,...)?",
            3, -1},
    Domanda{34, "- La rotatoria è dotata di un impianto per la video sorveglianza e controllo del traffico?", 2, -1},
    Domanda{35,
            "- L'impianto di illuminazione della rotatoria garantisce una corretta leggibilità degli ostacoli quali "
            "isole divisionali e traiettorie di attraversamento del nodo?",
            4, -1},
    Domanda{39,
            "- Gli attraversamenti sono stati correttamente dimensionati e risultano chiaramente percepiti dall'utenza "
            "debole  (pedoni, ciclisti,…)?",
            7, -1},
    Domanda{40,
            "- E' stata considerata la differenza di velocità tra i flussi di traffico circolanti e l'utenza debole "
            "presente nell'intersezione(ambito urbano, extraurbano,…)?",
            3, -1},
    Domanda{41,
            "- La pavimentazione stradale  e i materiali utilizzati ( bitume, autobloccanti, pietra, cls,…)  offrono "
            "un buon livello di sicurezza per la rotatoria (aderenza, regolarità,….)?",
            4, -1},
    Domanda{42,
            "- E' stata eseguita una verifica grafica per assicurare la svolta e le manovre sull'area di intersezione "
            "dei mezzi pesanti?",
            5, -1},
    Domanda{43,
            "- Si è verificato che l'isola centrale non contenga ostacoli che possano aggravare le conseguenze  di una "
            "eventuale fuoriuscita di un mezzo dalla carreggiata?",
            1, -1},
};

struct Sezione {
    int riga;  ///< of the description
    const char* descrizione;
    const char* intestazione;
};

constexpr std::array sezioni{
    Sezione{0,
            "Il set di domande permette di analizzare un'aspetto fondamentale della progettazione stradale: la "
            "visibilità degli utenti e la leggibilità del tracciato. La rotatoria dovrà rispettare le condizioni di "
            "visibilità previste dalle normative e garantire una buona leggibilità di tutti i suoi componenti.",
            "VISIBILITA' E LEGGIBILITA'"},
    Sezione{9,
            "Nel delineare il progetto geometrico dell'intersezione, non ci si dovrebbe limitare al razionale "
            "'assemblaggio' delle isole di canalizzazione e dei vari componenti costituenti, ma bisognerebbe seguire "
            "criteri oggettivi e comportamentali che completano e verificano il progetto complessivo dell'incrocio "
            "sotto molteplici aspetti.",
            "PROGETTAZIONE E GEOMETRIA"},
    Sezione{22,
            "L'importanza di una corretta progettazione e realizzazione della segnaletica stradale risulta essere "
            "fondamentale per garantire un buon livello di sicurezza all'utente. La segnaletica stradale rappresenta "
            "il dispositivo principale di informazione che l'automobilista possieda sulla strada.",
            "SEGNALETICA"},
    Sezione{29,
            "Il corretto inserimento e dimensionamento dei vari impianti accessori alla rotatoria, consente di "
            "migliorare le prestazioni globali dell'intersezione.",
            "IMPIANTI ACCESSORI"},
    Sezione{36,
            "L'applicazione della soluzione a rotatoria, soprattutto in un contesto urbano, deve tenere conto anche "
            "dei flussi ciclo-pedonali ovvero dell'utenza della strada definita 'debole' che, a causa dell'elevata "
            "esposizione di rischio, rappresenta una problematica fondamentale.",
            "INTERFERENZA UTENZA DEBOLE E SICUREZZA GENERALE"},
};

const RigaCheckList& riga(int indice) {
    return righeCheckList.at(static_cast<std::size_t>(indice));
}

TEST(CheckList, EveryQuestionHasItsRowItsTextAndItsWeights) {
    ASSERT_EQ(domande.size(), 29U);
    int si = 0;
    for (const Domanda& d : domande) {
        EXPECT_EQ(riga(d.riga).genere, GenereRiga::BIANCO) << d.riga;
        EXPECT_EQ(riga(d.riga).testo, d.testo);
        EXPECT_EQ(riga(d.riga).si, d.si) << d.riga;
        EXPECT_EQ(riga(d.riga).no, d.no) << d.riga;
        si += riga(d.riga).si;
    }
    EXPECT_EQ(si, 101);
    EXPECT_EQ(std::count_if(righeCheckList.begin(), righeCheckList.end(),
                            [](const RigaCheckList& r) { return r.genere == GenereRiga::BIANCO; }),
              29);
}

TEST(CheckList, ASectionIsItsDescriptionItsHeaderTheHeadingsItsQuestions) {
    for (const Sezione& s : sezioni) {
        EXPECT_EQ(riga(s.riga).genere, GenereRiga::DESCRIZIONE);
        EXPECT_EQ(riga(s.riga).testo, s.descrizione);
        EXPECT_EQ(riga(s.riga + 1).genere, GenereRiga::GRIGIO);
        EXPECT_EQ(riga(s.riga + 1).testo, s.intestazione);
        EXPECT_EQ(riga(s.riga + 2).genere, GenereRiga::GRIGIO);
        EXPECT_EQ(riga(s.riga + 2).testo, "");
        EXPECT_EQ(riga(s.riga + 3).genere, GenereRiga::BIANCO);
    }
    EXPECT_EQ(righeCheckList.size(), 44U);
    EXPECT_GE(righeVuote, 10);
}

TEST(CheckList, TheNavigatorHasFiveTopRowsWithTheirTitles) {
    struct Attesa {
        int riga;
        const char* titolo;
    };
    constexpr std::array attese{
        Attesa{0, "Analisi Check List Progetto - Visibilità e Accessibilità"},
        Attesa{8, "Analisi Check List Progetto - Progettazione e Geometria"},
        Attesa{21, "Analisi Check List Progetto - Segnaletica"},
        Attesa{28, "Analisi Check List Progetto - Impianti accessori"},
        Attesa{34, "Analisi Check List Progetto - Interferenza utenza debole e sicurezza generale"},
    };
    ASSERT_EQ(sezioniCheckList.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) {
        EXPECT_EQ(sezioniCheckList[i].rigaAlta, attese[i].riga);
        EXPECT_EQ(sezioniCheckList[i].titolo, attese[i].titolo);
    }
}

TEST(CheckList, TheNavigatorStepsFromTopRowToTopRowAndStaysAtTheEnds) {
    EXPECT_EQ(rigaSezione(0, true), 8);
    EXPECT_EQ(rigaSezione(8, true), 21);
    EXPECT_EQ(rigaSezione(21, true), 28);
    EXPECT_EQ(rigaSezione(28, true), 34);
    EXPECT_EQ(rigaSezione(34, true), 34);
    EXPECT_EQ(rigaSezione(34, false), 28);
    EXPECT_EQ(rigaSezione(28, false), 21);
    EXPECT_EQ(rigaSezione(21, false), 8);
    EXPECT_EQ(rigaSezione(8, false), 0);
    EXPECT_EQ(rigaSezione(0, false), 0);
}

TEST(CheckList, FromAnyOtherRowTheNavigatorGoesToTheNextTopRowOrTheOneBefore) {
    EXPECT_EQ(rigaSezione(1, true), 8);
    EXPECT_EQ(rigaSezione(7, false), 0);
    EXPECT_EQ(rigaSezione(9, true), 21);
    EXPECT_EQ(rigaSezione(9, false), 8);
    EXPECT_EQ(rigaSezione(33, true), 34);
    EXPECT_EQ(rigaSezione(33, false), 28);
    EXPECT_EQ(rigaSezione(40, true), 40);
    EXPECT_EQ(rigaSezione(40, false), 34);
    EXPECT_EQ(sezioneDiRiga(20), 1U);
    EXPECT_EQ(sezioneDiRiga(21), 2U);
    EXPECT_EQ(sezioneDiRiga(59), 4U);
}

TEST(CheckList, TheBandsLeaveOutFiftyAndWhatIsAboveAHundred) {
    struct Attesa {
        int indice;
        int fascia;  ///< from 1; 0 for none
    };
    for (const Attesa& a : {Attesa{-71, 1}, Attesa{0, 1}, Attesa{49, 1}, Attesa{50, 0}, Attesa{51, 2}, Attesa{60, 2},
                            Attesa{61, 3}, Attesa{70, 3}, Attesa{71, 4}, Attesa{80, 4}, Attesa{81, 5}, Attesa{90, 5},
                            Attesa{91, 6}, Attesa{95, 6}, Attesa{96, 7}, Attesa{100, 7}, Attesa{101, 0}}) {
        EXPECT_EQ(fasciaDiIndice(a.indice), a.fascia - 1) << a.indice;
    }
}

TEST(CheckList, EveryBandHasANameAndAParagraphOfItsOwn) {
    std::set<std::string_view> nomi;
    std::set<std::string_view> commenti;
    for (const FasciaIndice& fascia : fasceIndice) {
        nomi.insert(fascia.nome);
        commenti.insert(fascia.commento);
        EXPECT_TRUE(std::all_of(fascia.nome.begin(), fascia.nome.end(), [](char c) { return c >= 'A' && c <= 'Z'; }));
        EXPECT_GT(fascia.commento.size(), 250U) << fascia.nome;
        EXPECT_EQ(fascia.commento.back(), '.') << fascia.nome;
        EXPECT_EQ(fascia.commento.find("  "), std::string_view::npos) << fascia.nome;
    }
    EXPECT_EQ(nomi.size(), 7U);
    EXPECT_EQ(commenti.size(), 7U);
}

TEST(CheckList, TheCommentsSpeakOfShortcomingsAndNameThem) {
    // "No" to disturbing elements is no shortcoming, and the points of a question are not shown.
    for (const FasciaIndice& fascia : fasceIndice) {
        for (const char* parola : {"negativ", "peso"}) {
            EXPECT_EQ(fascia.commento.find(parola), std::string_view::npos) << fascia.nome << " " << parola;
        }
    }
    // A single "No" to one of these is enough for the band: 14, 15, 11 and 14 points less than 101.
    for (const int indice : {101 - 14, 101 - 15, 101 - 11}) {
        ASSERT_EQ(fasciaDiIndice(indice), 4);
    }
    // 12 and 3, or 3 and 13 and 25, put a design here.
    ASSERT_EQ(fasciaDiIndice(101 - 29), 3);
    ASSERT_EQ(fasciaDiIndice(101 - 39), 2);
    for (const int fascia : {2, 3, 4}) {
        for (const char* aspetto :
             {"individuazione dell'incrocio", "centratura dell'isola", "isole spartitraffico", "segnaletica"}) {
            EXPECT_NE(fasceIndice.at(static_cast<std::size_t>(fascia)).commento.find(aspetto), std::string_view::npos)
                << fascia << aspetto;
        }
    }
    // 6, 39 and 32 alone: 8, 8 and 9 points.
    ASSERT_EQ(fasciaDiIndice(101 - 8), 5);
    ASSERT_EQ(fasciaDiIndice(101 - 9), 5);
    for (const char* aspetto : {"visibilità per l'arresto", "attraversamenti", "smaltimento delle acque"}) {
        EXPECT_NE(fasceIndice[5].commento.find(aspetto), std::string_view::npos) << aspetto;
    }
}

}  // namespace
}  // namespace kelvo::prove
