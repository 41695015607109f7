#include "checkup/checkList.h"

#include <algorithm>
#include <limits>

namespace kelvo {

const std::array<FasciaIndice, 7> fasceIndice{{
    {std::numeric_limits<int>::min(), 49, "CRITICO",
     "Le risposte negative sono molte o toccano gli aspetti di maggior peso: l'individuazione dell'incrocio da "
     "lontano, la centratura dell'isola, le isole spartitraffico, la moderazione della velocità sui rami, la "
     "segnaletica obbligatoria. Il progetto non va portato avanti com'è. Riprendere l'impianto planimetrico prima di "
     "ogni verifica di capacità: posizione del centro rispetto agli assi dei rami, diametro, angoli e raggi di "
     "ingresso, visibilità per l'arresto e sul quarto di anello a sinistra. Ripetere poi la check list sulla nuova "
     "soluzione."},
    {51, 60, "INSUFFICIENTE",
     "L'impianto è riconoscibile, ma le carenze sono troppe o riguardano requisiti principali: costruita così, la "
     "rotatoria esporrebbe gli utenti a velocità eccessive o a manovre inattese. Partire dalle risposte negative di "
     "maggior peso nelle sezioni di visibilità, geometria e segnaletica e correggere il disegno, senza affidare il "
     "rimedio alla sola segnaletica. Dopo la correzione aggiornare le misure degli ingressi nel progetto, rifare il "
     "calcolo delle prestazioni e la check list; a questo livello la soluzione non è ancora matura per l'esame "
     "dell'ente gestore."},
    {61, 70, "SUFFICIENTE",
     "I requisiti principali sono in buona parte presenti, ma restano carenze che in esercizio si traducono in "
     "incertezza degli utenti o in velocità di ingresso poco controllate. Il progetto regge un confronto preliminare "
     "fra alternative, non ancora una progettazione definitiva. Per ogni risposta negativa indicare nella relazione la "
     "causa e il rimedio previsto, cominciando da moderazione della velocità sui rami, visibilità per l'arresto e "
     "attraversamenti; dove il contesto non permette di rimediare, motivarlo e prevedere misure compensative."},
    {71, 80, "DISCRETO",
     "La rotatoria è impostata correttamente e le carenze rimaste sono circoscritte. È il momento di chiuderle, perché "
     "in progetto definitivo correggerle costa ancora poco: verificare con il grafico delle fasce di ingombro le "
     "svolte "
     "dei mezzi pesanti, la continuità delle corsie fra rami e anello, l'illuminazione e lo smaltimento delle acque. "
     "Controllare che ogni correzione della geometria sia riportata nei dati degli ingressi, dai quali dipendono "
     "capacità e livelli di servizio."},
    {81, 90, "BUONO",
     "Il progetto soddisfa i requisiti di visibilità, geometria e segnaletica, salvo pochi aspetti. Può passare alla "
     "fase successiva insieme all'elenco dei punti aperti: per ciascuno stabilire chi lo risolve e in quale elaborato, "
     "per esempio la verifica illuminotecnica, i particolari costruttivi o la sistemazione dell'isola centrale. Se fra "
     "le risposte negative ve n'è una di peso elevato, come il dimensionamento degli attraversamenti o la segnaletica "
     "richiesta dal Codice della Strada, risolverla prima di procedere."},
    {91, 95, "OTTIMO",
     "La soluzione è ben sviluppata in tutte le sezioni: restano aspetti secondari o uno di peso medio. Si può "
     "procedere con il progetto esecutivo: riportare le ultime osservazioni negli elaborati e nel capitolato, e "
     "conservare le risposte della check list come traccia delle verifiche fatte. Resta utile un controllo di "
     "sicurezza da parte di un tecnico che non abbia preso parte al progetto, in particolare sui percorsi di pedoni e "
     "ciclisti."},
    {96, 100, "ECCELLENTE",
     "Gli aspetti che più incidono sulla sicurezza e sull'esercizio sono stati considerati e risolti; restano al più "
     "uno o due punti di peso minore, da chiudere negli elaborati esecutivi senza modificare l'impianto. Curare che in "
     "cantiere le scelte di progetto non vadano perse, specie per raggi e larghezze di ingresso, quote dell'anello e "
     "posizione della segnaletica, e prevedere dopo l'apertura un rilievo di velocità e flussi che confermi le ipotesi "
     "del calcolo."},
}};

int fasciaDiIndice(int indice) {
    const auto* const trovata = std::find_if(fasceIndice.begin(), fasceIndice.end(), [&](const FasciaIndice& fascia) {
        return indice >= fascia.da && indice <= fascia.a;
    });
    return trovata == fasceIndice.end() ? -1 : static_cast<int>(trovata - fasceIndice.begin());
}

std::size_t sezioneDiRiga(int rigaAlta) {
    std::size_t sezione = 0;
    while (sezione + 1 < sezioniCheckList.size() && sezioniCheckList[sezione + 1].rigaAlta <= rigaAlta) {
        ++sezione;
    }
    return sezione;
}

int rigaSezione(int rigaAlta, bool avanti) {
    const std::size_t sezione = sezioneDiRiga(rigaAlta);
    if (avanti) {
        return sezione + 1 < sezioniCheckList.size() ? sezioniCheckList[sezione + 1].rigaAlta : rigaAlta;
    }
    // From between two top rows back to the one above.
    if (rigaAlta > sezioniCheckList[sezione].rigaAlta) {
        return sezioniCheckList[sezione].rigaAlta;
    }
    return sezione > 0 ? sezioniCheckList[sezione - 1].rigaAlta : rigaAlta;
}

}  // namespace kelvo
