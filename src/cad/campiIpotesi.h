#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cad/disegnoDxf.h"
#include "pianta/ipotesi.h"

namespace kelvo::dxf {

/// An assumption that the user may set: its words, its limits, both included, and where it stands.
struct CampoIpotesi {
    std::string_view nome;       ///< "Larghezza minima"
    std::string_view gruppo;     ///< "Anello e isola centrale"
    std::string_view controllo;  ///< name of its field
    std::string_view argomento;  ///< of command lines: "anello-minimo"
    std::string_view spiega;     ///< of command lines: "larghezza minima dell'anello"
    std::string_view unita;      ///< empty for a ratio
    double minimo = 0.0;
    double massimo = 0.0;
    double pianta::Ipotesi::*valore;
    std::string_view pagina;  ///< of the help
};

/// The ranges of a least and a largest value meet in one point, so that no pair stands the wrong way round.
inline constexpr std::array campiIpotesi{
    CampoIpotesi{"Larghezza minima", "Anello e isola centrale", "txtAnelloMinimo", "anello-minimo",
                 "larghezza minima dell'anello", "m", 4.0, 20.0, &pianta::Ipotesi::anelloMinimo, "DXFAnello.htm"},
    CampoIpotesi{"Rapporto con l'ingresso più largo", "Anello e isola centrale", "txtAnelloSuIngresso",
                 "anello-su-ingresso", "larghezza dell'anello sull'ingresso più largo", "", 1.0, 2.0,
                 &pianta::Ipotesi::anelloSuIngresso, "DXFAnello.htm"},
    CampoIpotesi{"Corona sormontabile", "Anello e isola centrale", "txtCorona", "corona",
                 "larghezza della corona sormontabile", "m", 0.0, 6.0, &pianta::Ipotesi::corona, "DXFCorona.htm"},
    CampoIpotesi{"Lunghezza minima", "Isole divisionali", "txtIsolaMinima", "isola-minima",
                 "lunghezza minima delle isole divisionali", "m", 2.0, 15.0, &pianta::Ipotesi::isolaMinima,
                 "DXFIsole.htm"},
    CampoIpotesi{"Lunghezza massima", "Isole divisionali", "txtIsolaMassima", "isola-massima",
                 "lunghezza massima delle isole divisionali", "m", 15.0, 60.0, &pianta::Ipotesi::isolaMassima,
                 "DXFIsole.htm"},
    CampoIpotesi{"Larghezza minima", "Uscite", "txtUscitaMinima", "uscita-minima", "larghezza minima delle uscite", "m",
                 3.5, 10.0, &pianta::Ipotesi::uscitaMinima, "DXFUscite.htm"},
    CampoIpotesi{"Raggio minimo", "Uscite", "txtRaggioUscitaMinimo", "raggio-uscita-minimo",
                 "raggio minimo delle uscite", "m", 8.0, 25.0, &pianta::Ipotesi::raggioUscitaMinimo, "DXFUscite.htm"},
    CampoIpotesi{"Raggio massimo", "Uscite", "txtRaggioUscitaMassimo", "raggio-uscita-massimo",
                 "raggio massimo delle uscite", "m", 25.0, 200.0, &pianta::Ipotesi::raggioUscitaMassimo,
                 "DXFUscite.htm"},
    CampoIpotesi{"Lunghezza minima oltre il cerchio", "Rami e attraversamenti", "txtRamoMinimo", "rami-minimo",
                 "lunghezza minima dei rami oltre il cerchio inscritto", "m", 10.0, 200.0, &pianta::Ipotesi::ramoMinimo,
                 "DXFRami.htm"},
    CampoIpotesi{"Attraversamento dal cerchio", "Rami e attraversamenti", "txtAttraversamentoDa", "attraversamento-da",
                 "distanza dell'attraversamento dal cerchio inscritto", "m", 1.0, 20.0,
                 &pianta::Ipotesi::attraversamentoDa, "DXFRami.htm"},
    CampoIpotesi{"Profondità attraversamento", "Rami e attraversamenti", "txtAttraversamento", "attraversamento",
                 "profondità dell'attraversamento", "m", 2.0, 8.0, &pianta::Ipotesi::attraversamento, "DXFRami.htm"},
};

/// A group that may be left out.
struct VoceGruppo {
    Gruppo gruppo = Gruppo::quote;
    std::string_view nome;       ///< of its check box
    std::string_view controllo;  ///< name of that
    std::string_view argomento;  ///< of command lines: --senza-...
    std::string_view contenuto;  ///< what it is, for command lines
};
inline constexpr std::array vociGruppo{
    VoceGruppo{Gruppo::segnaletica, "Segnaletica", "chkSegnaletica", "segnaletica",
               "linee di precedenza, assi, attraversamenti e frecce"},
    VoceGruppo{Gruppo::superfici, "Superfici (layer spenti)", "chkSuperfici", "superfici",
               "corsie, anello e carreggiata come linee chiuse, sui layer spenti"},
    VoceGruppo{Gruppo::campiture, "Campiture", "chkCampiture", "campiture", "campiture di isole e segnaletica"},
    VoceGruppo{Gruppo::quote, "Quote", "chkQuote", "quote", "quote delle misure di ogni ingresso"},
    VoceGruppo{Gruppo::testi, "Lettere e nomi dei rami", "chkTesti", "testi", "lettere e nomi dei rami"},
    VoceGruppo{Gruppo::cartiglio, "Cartiglio", "chkCartiglio", "cartiglio", "cartiglio con titolo, progettista e data"},
};

/// Bearings at equal angles, degrees.
std::vector<double> direzioniUguali(std::size_t rami);
/// Why bearings cannot be drawn, in words for the user; empty if they can. They are those of `Ipotesi::direzioni`.
std::string difettoDirezioni(const std::vector<double>& direzioni);

}  // namespace kelvo::dxf
