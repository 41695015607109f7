#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/Tabella.h"
#include "model/Rotonda.h"
#include "reports/DocumentoRelazione.h"

namespace kelvo {

/// Fills a table cell by cell, from the one behind a bookmark on.
class Celle {
public:
    /// Fault 5 if there is no such bookmark.
    Celle(DocumentoRelazione& documento, std::string_view segnalibro) : documento_(documento) {
        documento_.SelezionaSegnalibro(segnalibro);
    }
    /// Fault 5 outside a table.
    void scrivi(std::string_view testo) {
        documento_.CellaSuccessiva();
        documento_.ScriviTesto(testo);
    }
    void riga(std::initializer_list<std::string_view> testi) {
        for (const std::string_view testo : testi) {
            scrivi(testo);
        }
    }

private:
    DocumentoRelazione& documento_;
};

/// "Ingresso A" for leg 1.
std::string nomeIngresso(std::int16_t ramo);

/// Looks that the tables of reports share.
namespace tabellaRapporto {
inline constexpr const char* stile = "TabellaKelvo";
inline constexpr const char* testo = "TestoTabella";
inline constexpr const char* intestazione = "IntestazioneTabella";
inline constexpr const char* didascalia = "caption";
inline constexpr const char* etichettaTabella = "Tabella";
inline constexpr const char* etichettaFigura = "Figura";
inline constexpr double larghezzaMm = 170.0;  ///< of the text on a page
}  // namespace tabellaRapporto

/// An empty table with `colonne` columns to the right of a first one for names; no wider than the text.
TabellaRelazione nuovaTabella(std::size_t colonne, double nomiMm, double massimaMm);
/// A heading cell in the green of headings, its unit on a line of its own; the name of a row in a pale green.
CellaRelazione cellaIntestazione(const std::string& testo, int colonne = 1);
CellaRelazione cellaNome(const std::string& testo);
/// A level of service in its colours.
CellaRelazione cellaLivello(const std::string& livello);
/// A table of a window with its colours; widths in proportion to those of its grid.
TabellaRelazione comeTabella(const Tabella& tabella);
/// Puts a caption and below it a table at the selection; a short table stays on one page.
void inserisciConDidascalia(DocumentoRelazione& documento, const std::string& didascalia, TabellaRelazione tabella);

}  // namespace kelvo
