#pragma once

#include <array>
#include <string_view>

namespace kelvo {

/// The placeholders that a report fills, wherever they stand in a template. What no step has filled is taken away
/// before the report is saved.
namespace segnaposto {
inline constexpr std::array<std::string_view, 14> anagrafica{
    "%ComuneProgetto%",       "%ProvinciaProgetto%",       "%LocalitaProgetto%",        "%StatoProgetto%",
    "%TitoloProgetto%",       "%NomeProfessionista%",      "%IndirizzoProfessionista%", "%CapProfessionista%",
    "%ComuneProfessionista%", "%ProvinciaProfessionista%", "%TelefonoProfessionista%",  "%EmailProfessionista%",
    "%DataProgetto%",         "%NomefileProgetto%"};
inline constexpr std::string_view tempoIniziale = "%TMTI%";
inline constexpr std::string_view intervallo = "%TMIT%";
inline constexpr std::string_view tempoFinale = "%TMTF%";
inline constexpr std::array<std::string_view, 7> veicoliEquivalenti{"%VE1%", "%VE2%", "%VE3%", "%VE4%",
                                                                    "%VE5%", "%VE6%", "%VE7%"};
inline constexpr std::string_view condizioniNotturne = "%CN%";
inline constexpr std::array<std::string_view, 4> ipotesi{"%Ipotesi1%", "%Ipotesi2%", "%Ipotesi3%", "%Ipotesi4%"};
// What the program adds: of the calculation, of the document, of a report of charts.
/// Names the project within a sentence, comma included; nothing where it has no title.
inline constexpr std::string_view denominazione = "%DenominazioneProgetto%";
inline constexpr std::string_view numeroRami = "%NumeroRami%";
inline constexpr std::string_view tipoAnalisi = "%TipoAnalisi%";
inline constexpr std::string_view percentile = "%Percentile%";
inline constexpr std::string_view incidenzaNotte = "%IncidenzaNotte%";
inline constexpr std::string_view versioneKelvo = "%VersioneKelvo%";
inline constexpr std::string_view dataRelazione = "%DataRelazione%";
inline constexpr std::string_view titoloGrafico = "%TitoloGrafico%";
inline constexpr std::string_view sottotitoloGrafico = "%SottotitoloGrafico%";

/// All of them.
inline constexpr auto tutti = [] {
    std::array<std::string_view, 38> elenco{
        tempoIniziale,  intervallo,    tempoFinale,   condizioniNotturne, numeroRami,         tipoAnalisi,  percentile,
        incidenzaNotte, versioneKelvo, dataRelazione, titoloGrafico,      sottotitoloGrafico, denominazione};
    std::size_t posto = 13;
    for (const auto nome : anagrafica) {
        elenco[posto++] = nome;
    }
    for (const auto nome : veicoliEquivalenti) {
        elenco[posto++] = nome;
    }
    for (const auto nome : ipotesi) {
        elenco[posto++] = nome;
    }
    return elenco;
}();
}  // namespace segnaposto

/// The bookmarks of the sections. Where the table of a section is filled cell by cell, its bookmark stands in the cell
/// in front of the first value.
namespace segnalibro {
inline constexpr std::string_view toponomasticaIngressi = "ToponomasticaIngressi";
inline constexpr std::string_view geometriaIngressi = "GeometriaIngressi";
inline constexpr std::string_view datiTraffico = "DatiTraffico";
inline constexpr std::string_view datiTrafficoST = "DatiTrafficoST";
inline constexpr std::string_view matriceSvoltePerc = "MatriceSvoltePerc";
inline constexpr std::string_view matriceSvolte = "MatriceSvolte";
inline constexpr std::string_view totaliMatriceSvolte = "TotaliMatriceSvolte";
inline constexpr std::string_view composizioneTraffico = "ComposizioneTraffico";
inline constexpr std::string_view composizioneTrafficoST = "ComposizioneTrafficoST";
inline constexpr std::string_view condizioniEsterne = "CondizioniEsterne";
inline constexpr std::string_view capacitaUltima = "CapacitaUltima";
inline constexpr std::string_view capacitaCodeRitardi = "CapacitaCodeRitardi";
inline constexpr std::string_view corsiaDX = "CorsiaDX";
// Sections that are taken away whole.
inline constexpr std::string_view paragrafoMatriceSvolte = "ParagrafoMatriceSvolte";
inline constexpr std::string_view paragrafoDatiTraffico = "ParagrafoDatiTraffico";
inline constexpr std::string_view paragrafoDatiTrafficoST = "ParagrafoDatiTrafficoST";
inline constexpr std::string_view paragrafoComposizioneTraffico = "ParagrafoComposizioneTraffico";
inline constexpr std::string_view paragrafoComposizioneTrafficoST = "ParagrafoComposizioneTrafficoST";
inline constexpr std::string_view paragrafoCorsiaDX = "ParagrafoCorsiaDX";
// What the program adds, each only where a template has it: the plan and its section, the content of a report of
// charts, and what stands in for a section that is left unfilled.
inline constexpr std::string_view pianta = "Pianta";
inline constexpr std::string_view paragrafoPianta = "ParagrafoPianta";
inline constexpr std::string_view contenuto = "Contenuto";
inline constexpr std::string_view senzaDatiTraffico = "SenzaDatiTraffico";
inline constexpr std::string_view senzaDatiTrafficoST = "SenzaDatiTrafficoST";
inline constexpr std::string_view senzaCapacitaCodeRitardi = "SenzaCapacitaCodeRitardi";
inline constexpr std::string_view senzaCorsiaDX = "SenzaCorsiaDX";
inline constexpr std::string_view ipotesiCorsiaDX = "IpotesiCorsiaDX";  ///< goes where `senzaCorsiaDX` stays
}  // namespace segnalibro

}  // namespace kelvo
