#include "checkup/checkList.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

namespace kelvo {

const std::array<FasciaIndice, 7> fasceIndice{{
    {std::numeric_limits<int>::min(), 49, "CRITICO",
     "Le carenze sono molte o toccano gli aspetti da cui dipende il funzionamento dell'incrocio: la sua individuazione "
     "da lontano, la centratura dell'isola, le isole spartitraffico, la moderazione della velocità sui rami, la "
     "segnaletica obbligatoria. Così com'è, il progetto non va portato avanti. Riprendere l'impianto planimetrico "
     "prima di ogni verifica di capacità: posizione del centro rispetto agli assi dei rami, diametro, angoli e raggi "
     "di ingresso, visibilità per l'arresto e sul quarto di anello a sinistra. Ripetere poi la check list sulla nuova "
     "soluzione."},
    {51, 60, "INSUFFICIENTE",
     "L'impianto a rotatoria ha carenze troppo numerose o che riguardano requisiti principali: costruito così, "
     "potrebbe esporre gli utenti a velocità eccessive o a manovre inattese. Partire da individuazione dell'incrocio, "
     "centratura dell'isola, isole spartitraffico, moderazione della velocità e segnaletica obbligatoria e correggere "
     "il disegno, senza affidare il rimedio alla sola segnaletica. Dopo la correzione aggiornare le misure degli "
     "ingressi nel progetto, rifare il calcolo delle prestazioni e la check list; a questo livello la soluzione non è "
     "ancora matura per l'esame dell'ente proprietario o gestore della strada."},
    {61, 70, "SUFFICIENTE",
     "Accanto ai requisiti soddisfatti restano carenze che in esercizio possono tradursi in incertezza degli utenti o "
     "in velocità di ingresso poco controllate, e qualcuna può riguardare l'impianto stesso. Il progetto regge un "
     "confronto preliminare fra alternative, non ancora una progettazione definitiva. Per ogni carenza indicare nella "
     "relazione la causa e il rimedio previsto, cominciando da individuazione dell'incrocio, centratura dell'isola, "
     "isole spartitraffico e segnaletica obbligatoria, e proseguendo con moderazione della velocità sui rami, "
     "visibilità per l'arresto e attraversamenti; dove il contesto non permette di rimediare, motivarlo e prevedere "
     "misure compensative."},
    {71, 80, "DISCRETO",
     "Buona parte dei requisiti è soddisfatta; le carenze rimaste possono essere diffuse e circoscritte, oppure poche "
     "e sostanziali. Se fra esse vi sono l'individuazione dell'incrocio, la centratura dell'isola, le isole "
     "spartitraffico o la segnaletica richiesta dal Codice della Strada, rivedere l'impianto prima di ogni altra cosa. "
     "Le altre vanno chiuse ora, perché nel progetto definitivo correggerle costa ancora poco: controllare mediante la "
     "verifica grafica delle fasce d'ingombro le svolte dei mezzi pesanti, poi la continuità delle corsie fra rami e "
     "anello, l'illuminazione e lo smaltimento delle acque. Riportare ogni correzione della geometria nei dati degli "
     "ingressi, dai quali dipendono capacità e livelli di servizio."},
    {81, 90, "BUONO",
     "Il progetto soddisfa la maggior parte dei requisiti di visibilità, geometria e segnaletica. Se una carenza "
     "riguarda individuazione dell'incrocio, centratura dell'isola, isole spartitraffico, segnaletica richiesta dal "
     "Codice della Strada, visibilità per l'arresto o attraversamenti, risolverla prima di procedere. Per il resto si "
     "può passare alla fase successiva con l'elenco dei punti aperti: per ciascuno stabilire chi lo risolve e in "
     "quale elaborato, per esempio la verifica illuminotecnica, i particolari costruttivi o la sistemazione dell'isola "
     "centrale."},
    {91, 95, "OTTIMO",
     "La soluzione è ben sviluppata e le carenze sono poche. Se una carenza riguarda visibilità per l'arresto, "
     "controllo della velocità, percezione dell'incrocio, attraversamenti o smaltimento delle acque, risolverla prima "
     "di procedere. Si può poi passare al progetto esecutivo: riportare le ultime osservazioni negli elaborati e nel "
     "capitolato, e conservare le risposte della check list come traccia delle verifiche fatte. Resta utile un "
     "controllo di sicurezza da parte di un tecnico che non abbia preso parte al progetto, in particolare sui percorsi "
     "di pedoni e ciclisti."},
    {96, 100, "ECCELLENTE",
     "Gli aspetti che più incidono sulla sicurezza e sull'esercizio sono stati considerati e risolti; restano uno o "
     "due punti, da chiudere negli elaborati esecutivi. Se uno riguarda la visibilità, controllarlo sulla planimetria "
     "prima di procedere. Curare che in cantiere le scelte di progetto non vadano perse, specie per raggi e larghezze "
     "di ingresso, quote dell'anello e posizione della segnaletica, e prevedere dopo l'apertura un rilievo di velocità "
     "e flussi che verifichi le ipotesi del calcolo."},
}};

int fasciaDiIndice(int indice) {
    const auto* const trovata = std::find_if(fasceIndice.begin(), fasceIndice.end(), [&](const FasciaIndice& fascia) {
        return indice >= fascia.da && indice <= fascia.a;
    });
    return trovata == fasceIndice.end() ? -1 : static_cast<int>(trovata - fasceIndice.begin());
}

int numeroDomande() {
    return static_cast<int>(std::count_if(righeCheckList.begin(), righeCheckList.end(),
                                          [](const RigaCheckList& voce) { return voce.genere == GenereRiga::BIANCO; }));
}

std::string testoIndice(int risposte, int indice) {
    return fmt::format("Risposte inserite: {} di {}   -   Indice: {}", risposte, numeroDomande(), indice);
}

std::string testoSenzaLivello(int indice) {
    return fmt::format("L'indice {} non rientra in alcun livello.", indice);
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
