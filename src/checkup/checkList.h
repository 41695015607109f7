#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kelvo {

/// Kinds of the rows of the check list.
enum class GenereRiga {
    DESCRIZIONE,  ///< what the section is about
    GRIGIO,       ///< header of a section, and below it the headings of the answers
    BIANCO,       ///< a question
    VUOTA,        ///< nothing: lets the last section stand on top
};

/// A row of the check list; a question with the points of its two answers.
struct RigaCheckList {
    GenereRiga genere = GenereRiga::VUOTA;
    std::string_view testo;
    int si = 0;
    int no = 0;
};

/// Stands for the row of the headings.
inline constexpr std::string_view nessunTesto;

/// The rows from 0 on. The points belong to the row numbers: no row may come between.
inline constexpr std::array righeCheckList{
    RigaCheckList{
        GenereRiga::DESCRIZIONE,
        "Il set di domande permette di analizzare un'aspetto fondamentale della progettazione stradale: la visibilità "
        "degli utenti e la leggibilità del tracciato. La rotatoria dovrà rispettare le condizioni di visibilità "
        "previste dalle normative e garantire una buona leggibilità di tutti i suoi componenti."},
    RigaCheckList{GenereRiga::GRIGIO, "VISIBILITA' E LEGGIBILITA'"},
    RigaCheckList{GenereRiga::GRIGIO, nessunTesto},
    RigaCheckList{
        GenereRiga::BIANCO,
        "- La posizione della rotatoria garantisce una buona individuazione dell'incrocio sia di giorno che di notte?",
        6, -8},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' garantita la visibilità sul alto sinistro per gli utenti in avvicinamento all'isola "
                  "centrale(principiio di visibilità del 1/4 dell'anello)?",
                  3, -2},
    RigaCheckList{
        GenereRiga::BIANCO,
        "- L'organizzazione dell'isola centrale, in particolare riferimento alle sistemazioni a verde, permette di "
        "disporre di una corretta visuale costantemente libera per i veicoli in circolo sulla corona giratoria?",
        1, -1},
    RigaCheckList{
        GenereRiga::BIANCO,
        "- E' sempre garantito e rispettato per ogni ingresso lo spazio libero da qualunque impedimento visivo tra il "
        "veicolo in avvicinamento e la line del 'dare precedenza' (distanza di visibilità per l'arresto)?",
        5, -3},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stata garantita la visibilità delle fasce di rispetto e del triangolo di visibilità come "
                  "previsto dal Codice della Strada(Principio di visibilità elle fasce di rispetto)?",
                  3, -2},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stata eseguita una verifica illumminotecnica per assicurare un buon livello di illuminamento "
                  "dell'intersezione?",
                  2, -1},
    RigaCheckList{GenereRiga::DESCRIZIONE,
                  "Nel delineare il progetto geometrico dell'intersezione, non ci si dovrebbe limitare al razionale "
                  "'assemblaggio' delle isole di canalizzazione e dei vari componenti costituenti, ma bisognerebbe "
                  "seguire criteri oggettivi e comportamentali che completano e verificano il progetto complessivo "
                  "dell'incrocio sotto molteplici aspetti."},
    RigaCheckList{GenereRiga::GRIGIO, "PROGETTAZIONE E GEOMETRIA"},
    RigaCheckList{GenereRiga::GRIGIO, nessunTesto},
    RigaCheckList{GenereRiga::BIANCO,
                  "- L'isola centrale risulta ben centrata rispetto agli assi degli accessi entranti in rotatoria?", 7,
                  -8},
    RigaCheckList{GenereRiga::BIANCO, "- Gli accessi e le uscite sono dotati di isole spartitraffico ?", 5, -6},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La geometria del ramo di ingresso in approccio alla rotatoria, permette un'adeguato controllo "
                  "della velocita'?",
                  5, -2},
    RigaCheckList{GenereRiga::BIANCO,
                  "- Sono stati inseriti elementi di disturbo sugli accessi e sulle uscite della rotatoria ( fermate "
                  "BUS, ingressi/uscite parcheggi,…)?",
                  3, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- I rami confluenti nel nodo sono stati dotati di sistemi di moderazione del traffico e della "
                  "velocità(dossi artificiali, bande rumorose, aree rialzate,…)?",
                  3, -6},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La conformazione dell'isola centrale consente la manovra dei mezzi pesanti senza ostacoli ( "
                  "fascie parzialmente o totalmente valicabili)?",
                  4, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- Il numero di corsie presenti a monte della rotatoria viene correttamente inserito e/o riportato "
                  "in anello senza riduzioni e/o restringimenti improvvisi?",
                  1, -2},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stata considerata l'incidenza delle svolte a destra sulla matrice di Origine-Destinazione e "
                  "quinidi la reativa organizzazione della geometria generale della rotatoria ( corsie svolte "
                  "preferenziali, allargamento ingresso,…)?",
                  1, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stato redatto uno studio dedicato sulla sistemazione dell'isola centrale e degli spazi "
                  "limitrofi alla rotatoria ( essenze sistemazione a verde, arredo urbano, …)?",
                  1, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- Sono stati definiti nel dettaglio tutti i particolari costruttivi degli elementi costitnuenti la "
                  "rotatoria(isole spartitraffico, pozzetti, caditoie, segnaletica, sesti di impianto,…)?",
                  1, -1},
    RigaCheckList{GenereRiga::DESCRIZIONE,
                  "L'importanza di una corretta progettazione e realizzazione della segnaletica stradale risulta "
                  "essere fondamentale per garantire un buon livello di sicurezza all'utente. La segnaletica stradale "
                  "rappresenta il dispositivo principale di informazione che l'automobilista possieda sulla strada."},
    RigaCheckList{GenereRiga::GRIGIO, "SEGNALETICA"},
    RigaCheckList{GenereRiga::GRIGIO, nessunTesto},
    RigaCheckList{
        GenereRiga::BIANCO,
        "- La rotatoria è dotata di tutta la segnaletica verticale ed orizzontale richiesta dal Codice della Strada?",
        6, -8},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La segnaletica presente garantisce la leggibilità e la percezione dell'intersezione a rotatoria?",
                  4, -4},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stata prevista una segnaletica specifica per regolamentare la velocità in aproccio e in uscita "
                  "dalla rotatoria(banchine colorate, segnaletica luminosa,…)?",
                  2, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La segnaletica direzionale e di preavviso permette una facile ed inequivocabile interpretazione "
                  "delle svolte da parte dell'utente stradale?",
                  3, -1},
    RigaCheckList{GenereRiga::DESCRIZIONE,
                  "Il corretto inserimento e dimensionamento dei vari impianti accessori alla rotatoria, consente di "
                  "migliorare le prestazioni globali dell'intersezione."},
    RigaCheckList{GenereRiga::GRIGIO, "IMPIANTI ACCESSORI"},
    RigaCheckList{GenereRiga::GRIGIO, nessunTesto},
    RigaCheckList{
        GenereRiga::BIANCO,
        "- La rotatoria è dotata di un impianto correttamente dimensionato per lo smatimento delle acque meteoriche?",
        6, -3},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La rotatoria è dotata di un impianto per l'irrigazione degli spazi verdi (isola centrale, "
                  "spartitraffici, area adiacenti,...)?",
                  3, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La rotatoria è dotata di un impianto per la video sorveglianza e controllo del traffico?", 2, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- L'impianto di illuminazione della rotatoria garantisce una corretta leggibilità degli ostacoli "
                  "quali isole divisionali e traiettorie di attraversamento del nodo?",
                  4, -1},
    RigaCheckList{GenereRiga::DESCRIZIONE,
                  "L'applicazione della soluzione a rotatoria, soprattutto in un contesto urbano, deve tenere conto "
                  "anche dei flussi ciclo-pedonali ovvero dell'utenza della strada definita 'debole' che, a causa "
                  "dell'elevata esposizione di rischio, rappresenta una problematica fondamentale."},
    RigaCheckList{GenereRiga::GRIGIO, "INTERFERENZA UTENZA DEBOLE E SICUREZZA GENERALE"},
    RigaCheckList{GenereRiga::GRIGIO, nessunTesto},
    RigaCheckList{GenereRiga::BIANCO,
                  "- Gli attraversamenti sono stati correttamente dimensionati e risultano chiaramente percepiti "
                  "dall'utenza debole  (pedoni, ciclisti,…)?",
                  7, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stata considerata la differenza di velocità tra i flussi di traffico circolanti e l'utenza "
                  "debole presente nell'intersezione(ambito urbano, extraurbano,…)?",
                  3, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- La pavimentazione stradale  e i materiali utilizzati ( bitume, autobloccanti, pietra, cls,…)  "
                  "offrono un buon livello di sicurezza per la rotatoria (aderenza, regolarità,….)?",
                  4, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- E' stata eseguita una verifica grafica per assicurare la svolta e le manovre sull'area di "
                  "intersezione dei mezzi pesanti?",
                  5, -1},
    RigaCheckList{GenereRiga::BIANCO,
                  "- Si è verificato che l'isola centrale non contenga ostacoli che possano aggravare le conseguenze  "
                  "di una eventuale fuoriuscita di un mezzo dalla carreggiata?",
                  1, -1},
};

/// Empty rows behind them at least.
inline constexpr int righeVuote = 16;

/// A section as the navigator has it.
struct SezioneCheckList {
    int rigaAlta = 0;  ///< row that it brings to the top
    std::string_view titolo;
};

inline constexpr std::array sezioniCheckList{
    SezioneCheckList{0, "Analisi Check List Progetto - Visibilità e Accessibilità"},
    SezioneCheckList{8, "Analisi Check List Progetto - Progettazione e Geometria"},
    SezioneCheckList{21, "Analisi Check List Progetto - Segnaletica"},
    SezioneCheckList{28, "Analisi Check List Progetto - Impianti accessori"},
    SezioneCheckList{34, "Analisi Check List Progetto - Interferenza utenza debole e sicurezza generale"},
};

/// A band of the index, both ends in it, with its name and what it means for the design.
struct FasciaIndice {
    int da = 0;
    int a = 0;
    std::string_view nome;
    std::string_view commento;
};

/// Between the bands, at 50, and above the last one no level is told.
extern const std::array<FasciaIndice, 7> fasceIndice;

/// Position of the band of an index, from 0; -1 for none.
int fasciaDiIndice(int indice);

/// Stands in place of the level until all questions are answered.
inline constexpr std::string_view testoCopertina = "Il livello compare quando si è risposto a tutte le domande.";
/// Number of the questions.
int numeroDomande();
/// How many questions were answered, of how many, and the index.
std::string testoIndice(int risposte, int indice);
/// Says that an index is in no band.
std::string testoSenzaLivello(int indice);

/// Position of the section of a top row: the last one that begins there or above.
std::size_t sezioneDiRiga(int rigaAlta);
/// Top row of the next section (or of the one before); the row itself where there is none.
int rigaSezione(int rigaAlta, bool avanti);

}  // namespace kelvo
