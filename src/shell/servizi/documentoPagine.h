#pragma once

#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "shell/servizi/CellaGriglia.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/disegnatore.h"

namespace kelvo {

/// A document for paper: what stands in it, in its order. Where its pages end is the business of whoever lays it out. A
/// part, from a title of level 1 or a new page to the next, lies on the long side of its pages where a table of it is
/// too wide for them as they stand.
struct DocumentoPagine {
    /// Heading; 1 opens a part of the document, 2 stands inside one. It never stands alone at the foot of a page.
    struct Titolo {
        std::string testo;
        int livello = 1;
    };
    /// Sign in front of a paragraph: told apart by its form, so that no colour is needed.
    enum class Segno { nessuno, informazione, verifica, errore };
    /// Words that go on in lines below, and over the end of a page.
    struct Paragrafo {
        std::string testo;
        std::string inizio{};  ///< stands before `testo` with nothing between them, in the strong face
        Segno segno = Segno::nessuno;
        bool quieto = false;  ///< a remark: smaller, in the colour of remarks
    };
    struct Colonna {
        std::string titolo;
        double peso = 1.0;  ///< share of the width, above 0
        AllineamentoCella allineamento = AllineamentoCella::destra;
    };
    struct Cella {
        std::string testo;
        std::optional<bool> casella{};  ///< a box, ticked or not, in place of the text
        bool grassetto = false;
        std::optional<Colore> fondo{};
        std::optional<Colore>
            inchiostro{};  ///< as far as it can be read on the ground; that of texts where none is told
    };
    /// Its headings stand again on each page that it goes on to. A row that fits on a page is not parted. What is too
    /// wide for a page stands in bands of columns, one below the other.
    struct Tabella {
        std::vector<Colonna> colonne;
        std::vector<std::vector<Cella>> righe;  ///< as many cells as columns in each
        std::size_t guida = 0;                  ///< columns, from the first on, that stand again in each band
        std::vector<std::size_t> capi{};        ///< rows that do not stand last on a page: they head those behind them
    };
    /// The plan of the roundabout; both parts are there.
    struct Pianta {
        std::shared_ptr<const pianta::DatiPianta> dati;
        std::shared_ptr<const pianta::OpzioniPianta> opzioni;
    };
    /// Content of a PNG file.
    struct Immagine {
        std::string png;
    };
    /// A picture, never parted; what is larger than a page is made smaller.
    struct Figura {
        std::variant<Grafico::Contenuto, Pianta, Immagine> contenuto;
        double larghezza = 1.0;  ///< share of the width of the page, above 0, 1 at most
        double forma = 0.6;      ///< height for a width of 1, above 0
        std::string didascalia{};
    };
    struct NuovaPagina {};
    using Blocco = std::variant<Titolo, Paragrafo, Tabella, Figura, NuovaPagina>;

    std::string titolo;         ///< of the document: on top of the first page, and its name as a file
    std::string progetto;       ///< stands at the head of every page
    std::string progettista{};  ///< the same; empty for none
    std::string chiusura{};     ///< stands at the foot of every page, beside its number
    bool orizzontale = false;   ///< all pages lie on their long side
    std::vector<Blocco> blocchi{};
};

/// How a print ended.
struct EsitoStampa {
    bool annullata = false;  ///< the user thought better of it
    std::string errore{};    ///< in Italian; empty: all is well
};

/// Brings documents to paper or to PDF, on pages of A4.
class StampaPagine {
public:
    StampaPagine() = default;
    StampaPagine(const StampaPagine&) = delete;
    StampaPagine& operator=(const StampaPagine&) = delete;
    virtual ~StampaPagine() = default;

    /// The document as a PDF file.
    virtual EsitoDisegno pdf(const DocumentoPagine& documento) = 0;
    /// Asks for a printer and prints.
    virtual EsitoStampa stampa(const DocumentoPagine& documento) = 0;
};

}  // namespace kelvo
