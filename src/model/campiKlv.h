#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "base/date.h"
#include "model/Rotonda.h"

/// Layout of the project file, for its reader, its writer and whoever compares two projects.
namespace kelvo::klv {

inline constexpr std::string_view nomeFormato = "Kelvo";
inline constexpr std::int16_t versioneFormato = 1;

/// Largest file, in bytes.
inline constexpr std::size_t massimoByte = 4UL * 1024UL * 1024UL;
/// Largest number of time segments of an entry.
inline constexpr std::int16_t massimoSegmenti = 300;

/// How a value stands in the file.
enum class Forma { testo, logico, intero, singolo, doppio, ora, giorno };

/// The two accessors of a property.
template <class O, class V, Forma F>
struct Accesso {
    V (O::*leggi)() const;
    void (O::*scrivi)(V);
};
template <class O>
using Testo = Accesso<O, const std::string&, Forma::testo>;
template <class O>
using Logico = Accesso<O, bool, Forma::logico>;
template <class O>
using Intero = Accesso<O, std::int16_t, Forma::intero>;
template <class O>
using Singolo = Accesso<O, float, Forma::singolo>;
template <class O>
using Doppio = Accesso<O, double, Forma::doppio>;
template <class O>
using Ora = Accesso<O, DataOra, Forma::ora>;
template <class O>
using Giorno = Accesso<O, DataOra, Forma::giorno>;

/// One property of an object: its key and its accessors.
template <class O>
struct Campo {
    std::string_view nome;
    std::variant<Testo<O>, Logico<O>, Intero<O>, Singolo<O>, Doppio<O>, Ora<O>, Giorno<O>> accesso;
};

// Keys of what is no plain property.
inline constexpr std::string_view chiaveFormato = "formato";
inline constexpr std::string_view chiaveVersione = "versione";
inline constexpr std::string_view chiaveMatrice = "MatriceSvolte";
inline constexpr std::string_view chiaveRami = "Rami";
inline constexpr std::string_view chiaveKey = "Key";
inline constexpr std::string_view chiaveTraffico = "theDatiTraffico";
inline constexpr std::string_view chiaveComposizione = "theComposizioneTraffico";
inline constexpr std::string_view chiaveAnalisi = "theAnalisiMarginale";
inline constexpr std::string_view chiaveFlussi = "FlussoSegmento";
inline constexpr std::string_view chiaveCategorie = "CategoriaSegmento";
inline constexpr std::string_view chiaveNumeroRami = "NumeroRami";
inline constexpr std::string_view chiaveSegmenti = "NumSegmentiTempo";

namespace rotonda {
using O = Rotonda;
inline constexpr std::array campi{
    Campo<O>{"StatoAvanzamento", Testo<O>{&O::StatoAvanzamento, &O::StatoAvanzamento}},
    Campo<O>{"Localita", Testo<O>{&O::Localita, &O::Localita}},
    Campo<O>{"Comune", Testo<O>{&O::Comune, &O::Comune}},
    Campo<O>{"Provincia", Testo<O>{&O::Provincia, &O::Provincia}},
    Campo<O>{"NomeFile", Testo<O>{&O::NomeFile, &O::NomeFile}},
    Campo<O>{"ValorePercentile", Singolo<O>{&O::ValorePercentile, &O::ValorePercentile}},
    Campo<O>{"UsaPercentile", Logico<O>{&O::UsaPercentile, &O::UsaPercentile}},
    Campo<O>{"OttimizzazioneGeometrica", Logico<O>{&O::OttimizzazioneGeometrica, &O::OttimizzazioneGeometrica}},
    Campo<O>{"CondizioniNotturne", Logico<O>{&O::CondizioniNotturne, &O::CondizioniNotturne}},
    Campo<O>{"TipoFlusso", Intero<O>{&O::TipoFlusso, &O::TipoFlusso}},
    Campo<O>{"TipoMatriceSvolte", Intero<O>{&O::TipoMatriceSvolte, &O::TipoMatriceSvolte}},
    Campo<O>{"TipoAnalisi", Intero<O>{&O::TipoAnalisi, &O::TipoAnalisi}},
    Campo<O>{"EMailProfessionista", Testo<O>{&O::EMailProfessionista, &O::EMailProfessionista}},
    Campo<O>{"TelefonoProfessionista", Testo<O>{&O::TelefonoProfessionista, &O::TelefonoProfessionista}},
    Campo<O>{"CittaProfessionista", Testo<O>{&O::CittaProfessionista, &O::CittaProfessionista}},
    Campo<O>{"CAPProfessionista", Testo<O>{&O::CAPProfessionista, &O::CAPProfessionista}},
    Campo<O>{"IndirizzoProfessionista", Testo<O>{&O::IndirizzoProfessionista, &O::IndirizzoProfessionista}},
    Campo<O>{"NomeProfessionista", Testo<O>{&O::NomeProfessionista, &O::NomeProfessionista}},
    Campo<O>{"ProvinciaProfessionista", Testo<O>{&O::ProvinciaProfessionista, &O::ProvinciaProfessionista}},
    Campo<O>{"SegmentoTempo", Ora<O>{&O::SegmentoTempo, &O::SegmentoTempo}},
    Campo<O>{"TempoFinale", Ora<O>{&O::TempoFinale, &O::TempoFinale}},
    Campo<O>{"TempoIniziale", Ora<O>{&O::TempoIniziale, &O::TempoIniziale}},
    Campo<O>{"Note", Testo<O>{&O::Note, &O::Note}},
    Campo<O>{"Data", Giorno<O>{&O::Data, &O::Data}},
    Campo<O>{"Titolo", Testo<O>{&O::Titolo, &O::Titolo}},
    Campo<O>{chiaveNumeroRami, Intero<O>{&O::NumeroRami, &O::NumeroRami}},
};
inline constexpr std::array altre{chiaveFormato, chiaveVersione, chiaveMatrice, chiaveRami};
}  // namespace rotonda

namespace ramo {
using O = Ramo;
inline constexpr std::array campi{
    Campo<O>{"Descrizione", Testo<O>{&O::Descrizione, &O::Descrizione}},
    Campo<O>{"LarghezzaIngresso", Singolo<O>{&O::LarghezzaIngresso, &O::LarghezzaIngresso}},
    Campo<O>{"SemiLarghezza", Singolo<O>{&O::SemiLarghezza, &O::SemiLarghezza}},
    Campo<O>{"LunghezzaSvasatura", Singolo<O>{&O::LunghezzaSvasatura, &O::LunghezzaSvasatura}},
    Campo<O>{"AngoloConflitto", Singolo<O>{&O::AngoloConflitto, &O::AngoloConflitto}},
    Campo<O>{"RaggioIngresso", Singolo<O>{&O::RaggioIngresso, &O::RaggioIngresso}},
    Campo<O>{"DiametroInscritto", Singolo<O>{&O::DiametroInscritto, &O::DiametroInscritto}},
    Campo<O>{"AttraversamentoPedonale", Logico<O>{&O::AttraversamentoPedonale, &O::AttraversamentoPedonale}},
};
inline constexpr std::array altre{chiaveKey, chiaveTraffico, chiaveComposizione, chiaveAnalisi};
}  // namespace ramo

namespace traffico {
using O = DatiTraffico;
inline constexpr std::array campi{
    Campo<O>{chiaveSegmenti, Intero<O>{&O::NumSegmentiTempo, &O::NumSegmentiTempo}},
    Campo<O>{"FlussoMedio", Singolo<O>{&O::FlussoMedio, &O::FlussoMedio}},
    Campo<O>{"FlussoOrario", Singolo<O>{&O::FlussoOrario, &O::FlussoOrario}},
    Campo<O>{"FlussoTotale", Singolo<O>{&O::FlussoTotale, &O::FlussoTotale}},
    Campo<O>{"FlussoTempo3", Singolo<O>{&O::FlussoTempo3, &O::FlussoTempo3}},
    Campo<O>{"FlussoTempo2", Singolo<O>{&O::FlussoTempo2, &O::FlussoTempo2}},
    Campo<O>{"FlussoTempo1", Singolo<O>{&O::FlussoTempo1, &O::FlussoTempo1}},
    Campo<O>{"Tempo3", Ora<O>{&O::Tempo3, &O::Tempo3}},
    Campo<O>{"Tempo2", Ora<O>{&O::Tempo2, &O::Tempo2}},
    Campo<O>{"Tempo1", Ora<O>{&O::Tempo1, &O::Tempo1}},
};
inline constexpr std::array altre{chiaveFlussi};
}  // namespace traffico

namespace composizione {
using O = ComposizioneTraffico;
inline constexpr std::array campi{
    Campo<O>{chiaveSegmenti, Intero<O>{&O::NumSegmentiTempo, &O::NumSegmentiTempo}},
    Campo<O>{"VEAutovetture", Singolo<O>{&O::VEAutovetture, &O::VEAutovetture}},
    Campo<O>{"VEVeicoliDueRuote", Singolo<O>{&O::VEVeicoliDueRuote, &O::VEVeicoliDueRuote}},
    Campo<O>{"VERoulotte", Singolo<O>{&O::VERoulotte, &O::VERoulotte}},
    Campo<O>{"VECamper", Singolo<O>{&O::VECamper, &O::VECamper}},
    Campo<O>{"VEPullman", Singolo<O>{&O::VEPullman, &O::VEPullman}},
    Campo<O>{"VEAutotreni", Singolo<O>{&O::VEAutotreni, &O::VEAutotreni}},
    Campo<O>{"VEAutoarticolati", Singolo<O>{&O::VEAutoarticolati, &O::VEAutoarticolati}},
    Campo<O>{"Autovetture", Singolo<O>{&O::Autovetture, &O::Autovetture}},
    Campo<O>{"VeicoliDueRuote", Singolo<O>{&O::VeicoliDueRuote, &O::VeicoliDueRuote}},
    Campo<O>{"Roulotte", Singolo<O>{&O::Roulotte, &O::Roulotte}},
    Campo<O>{"Camper", Singolo<O>{&O::Camper, &O::Camper}},
    Campo<O>{"Pullman", Singolo<O>{&O::Pullman, &O::Pullman}},
    Campo<O>{"Autotreni", Singolo<O>{&O::Autotreni, &O::Autotreni}},
    Campo<O>{"Autoarticolati", Singolo<O>{&O::Autoarticolati, &O::Autoarticolati}},
};
inline constexpr std::array altre{chiaveCategorie};
}  // namespace composizione

namespace analisi {
using O = AnalisiMarginale;
inline constexpr std::array campi{
    Campo<O>{"DescrizioneCondizioniEsterne",
             Testo<O>{&O::DescrizioneCondizioniEsterne, &O::DescrizioneCondizioniEsterne}},
    Campo<O>{"CondizioniEsterne", Doppio<O>{&O::CondizioniEsterne, &O::CondizioniEsterne}},
    Campo<O>{"UsaCondizioniEsterne", Logico<O>{&O::UsaCondizioniEsterne, &O::UsaCondizioniEsterne}},
    Campo<O>{"AttraversamentoPedonale", Doppio<O>{&O::AttraversamentoPedonale, &O::AttraversamentoPedonale}},
    Campo<O>{"UsaSemiLarghezza", Logico<O>{&O::UsaSemiLarghezza, &O::UsaSemiLarghezza}},
    Campo<O>{"UsaRaggioCurvatura", Logico<O>{&O::UsaRaggioCurvatura, &O::UsaRaggioCurvatura}},
    Campo<O>{"UsaLunghezzaSvasatura", Logico<O>{&O::UsaLunghezzaSvasatura, &O::UsaLunghezzaSvasatura}},
    Campo<O>{"UsaLarghezzaIngresso", Logico<O>{&O::UsaLarghezzaIngresso, &O::UsaLarghezzaIngresso}},
    Campo<O>{"UsaDiametroInscritto", Logico<O>{&O::UsaDiametroInscritto, &O::UsaDiametroInscritto}},
    Campo<O>{"UsaAngoloConflitto", Logico<O>{&O::UsaAngoloConflitto, &O::UsaAngoloConflitto}},
    Campo<O>{"LarghezzaIngresso", Doppio<O>{&O::LarghezzaIngresso, &O::LarghezzaIngresso}},
    Campo<O>{"SemiLarghezza", Doppio<O>{&O::SemiLarghezza, &O::SemiLarghezza}},
    Campo<O>{"LungSvasatura", Doppio<O>{&O::LungSvasatura, &O::LungSvasatura}},
    Campo<O>{"AngoloConflitto", Doppio<O>{&O::AngoloConflitto, &O::AngoloConflitto}},
    Campo<O>{"RaggioCurvatura", Doppio<O>{&O::RaggioCurvatura, &O::RaggioCurvatura}},
    Campo<O>{"DiametroInscritto", Doppio<O>{&O::DiametroInscritto, &O::DiametroInscritto}},
};
inline constexpr std::array<std::string_view, 0> altre{};
}  // namespace analisi

}  // namespace kelvo::klv
