#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/ComposizioneTraffico.h"
#include "model/campiKlv.h"
#include "results/tipiProgetto.h"

/// What a person calls the properties of the project file, in its order.
namespace kelvo {

/// The kind of study that reads a datum.
enum class UsoDato {
    sempre,     ///< not tied to one kind
    curva,      ///< demand by curves
    tabella,    ///< demand by segments
    quote,      ///< one composition for the whole window
    categorie,  ///< composition by segments
};

struct NomeDato {
    std::string_view campo;
    std::string_view nome;  ///< with its unit; empty for what another property tells as well
    UsoDato uso = UsoDato::sempre;
    std::string (*parole)(std::int16_t) = nullptr;  ///< of a choice that is kept as a number
};

inline constexpr std::array<NomeDato, klv::rotonda::campi.size()> nomiProgetto{{
    {"StatoAvanzamento", "Stato di avanzamento"},
    {"Localita", "Località"},
    {"Comune", "Comune"},
    {"Provincia", "Provincia"},
    {"NomeFile", "Nome del progetto"},
    {"ValorePercentile", "Percentile della coda [%]"},
    {"UsaPercentile", "Percentile modificabile"},
    {"OttimizzazioneGeometrica", "Analisi marginale disponibile"},
    {"CondizioniNotturne", "Condizioni notturne"},
    {"TipoFlusso", "Composizione del traffico", UsoDato::sempre, &paroleComposizione},
    {"TipoMatriceSvolte", "Matrice delle svolte", UsoDato::sempre, &paroleMatrice},
    {"TipoAnalisi", "Tipo di analisi", UsoDato::sempre, &paroleAnalisi},
    {"EMailProfessionista", "Professionista: e-mail"},
    {"TelefonoProfessionista", "Professionista: telefono"},
    {"CittaProfessionista", "Professionista: città"},
    {"CAPProfessionista", "Professionista: CAP"},
    {"IndirizzoProfessionista", "Professionista: indirizzo"},
    {"NomeProfessionista", "Professionista: nome"},
    {"ProvinciaProfessionista", "Professionista: provincia"},
    {"SegmentoTempo", "Segmento di tempo [hh:mm]"},
    {"TempoFinale", "Tempo finale"},
    {"TempoIniziale", "Tempo iniziale"},
    {"Note", "Note"},
    {"Data", "Data"},
    {"Titolo", "Titolo"},
    {"NumeroRami", "Numero rami"},
}};

inline constexpr std::array<NomeDato, klv::ramo::campi.size()> nomiRamo{{
    {"Descrizione", "Nome"},
    {"LarghezzaIngresso", "Larghezza ingresso e [m]"},
    {"SemiLarghezza", "Semilarghezza accesso v [m]"},
    {"LunghezzaSvasatura", "Lunghezza svasatura l' [m]"},
    {"AngoloConflitto", "Angolo conflitto φ [°]"},
    {"RaggioIngresso", "Raggio curvatura ingresso r [m]"},
    {"DiametroInscritto", "Diametro inscritto D [m]"},
    {"AttraversamentoPedonale", "Attraversamento pedonale"},
}};

inline constexpr std::array<NomeDato, klv::traffico::campi.size()> nomiTraffico{{
    {"NumSegmentiTempo", "Numero segmenti di tempo"},
    {"FlussoMedio", "Flusso medio [veic/min]"},
    {"FlussoOrario", "Flusso orario [veic/h]"},
    {"FlussoTotale", "Flusso totale [veic]"},
    {"FlussoTempo3", "Flusso q3 [veic/min]", UsoDato::curva},
    {"FlussoTempo2", "Flusso q2 [veic/min]", UsoDato::curva},
    {"FlussoTempo1", "Flusso q1 [veic/min]", UsoDato::curva},
    {"Tempo3", "Tempo t3", UsoDato::curva},
    {"Tempo2", "Tempo t2", UsoDato::curva},
    {"Tempo1", "Tempo t1", UsoDato::curva},
}};

inline constexpr std::array<NomeDato, klv::composizione::campi.size()> nomiComposizione{{
    {"NumSegmentiTempo", ""},  // that of the demand
    {"VEAutovetture", "Veicoli equivalenti, autovetture"},
    {"VEVeicoliDueRuote", "Veicoli equivalenti, veicoli a due ruote"},
    {"VERoulotte", "Veicoli equivalenti, roulotte"},
    {"VECamper", "Veicoli equivalenti, camper"},
    {"VEPullman", "Veicoli equivalenti, pullman"},
    {"VEAutotreni", "Veicoli equivalenti, autotreni"},
    {"VEAutoarticolati", "Veicoli equivalenti, autoarticolati"},
    {"Autovetture", "Autovetture [%]", UsoDato::quote},
    {"VeicoliDueRuote", "Veicoli a due ruote [%]", UsoDato::quote},
    {"Roulotte", "Roulotte [%]", UsoDato::quote},
    {"Camper", "Camper [%]", UsoDato::quote},
    {"Pullman", "Pullman [%]", UsoDato::quote},
    {"Autotreni", "Autotreni [%]", UsoDato::quote},
    {"Autoarticolati", "Autoarticolati [%]", UsoDato::quote},
}};

inline constexpr std::array<NomeDato, klv::analisi::campi.size()> nomiAnalisi{{
    {"DescrizioneCondizioniEsterne", "Condizioni esterne, descrizione"},
    {"CondizioniEsterne", "Condizioni esterne [%]"},
    {"UsaCondizioniEsterne", "Condizioni esterne modificabili"},
    {"AttraversamentoPedonale", "Incidenza dei pedoni sulla capacità [%]"},
    {"UsaSemiLarghezza", "Analisi marginale di v"},
    {"UsaRaggioCurvatura", "Analisi marginale di r"},
    {"UsaLunghezzaSvasatura", "Analisi marginale di l'"},
    {"UsaLarghezzaIngresso", "Analisi marginale di e"},
    {"UsaDiametroInscritto", "Analisi marginale di D"},
    {"UsaAngoloConflitto", "Analisi marginale di φ"},
    {"LarghezzaIngresso", "Step di e [m]"},
    {"SemiLarghezza", "Step di v [m]"},
    {"LungSvasatura", "Step di l' [m]"},
    {"AngoloConflitto", "Step di φ [°]"},
    {"RaggioCurvatura", "Step di r [m]"},
    {"DiametroInscritto", "Step di D [m]"},
}};

/// The vehicle classes in the order of their table.
inline constexpr std::array<std::string_view, numeroClassi> nomiClassi{
    "Autoarticolati", "Autotreni", "Pullman", "Camper", "Roulotte", "Veicoli a due ruote", "Autovetture"};

/// True if the names are those of the properties, one for one.
template <class O, std::size_t N>
constexpr bool nomina(const std::array<NomeDato, N>& nomi, const std::array<klv::Campo<O>, N>& campi) {
    for (std::size_t i = 0; i < N; ++i) {
        if (nomi[i].campo != campi[i].nome) {
            return false;
        }
    }
    return true;
}
static_assert(nomina(nomiProgetto, klv::rotonda::campi));
static_assert(nomina(nomiRamo, klv::ramo::campi));
static_assert(nomina(nomiTraffico, klv::traffico::campi));
static_assert(nomina(nomiComposizione, klv::composizione::campi));
static_assert(nomina(nomiAnalisi, klv::analisi::campi));

}  // namespace kelvo
