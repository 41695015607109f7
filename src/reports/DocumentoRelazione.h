#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/file.h"
#include "base/guasto.h"

namespace kelvo {

/// A text to be found and what takes its place.
struct Sostituzione {
    std::string cercato;
    std::string nuovo;
};

/// A paragraph put into the report. `stile` is the name or the identifier of a style of the document; one that the
/// document does not have is left out.
struct ParagrafoRelazione {
    std::string testo;
    std::string stile;
    bool conSeguente = false;    ///< on the page of the paragraph behind it
    bool nuovaPagina = false;    ///< begins a page
    std::string etichetta = {};  ///< of a caption ("Figura"): its number and ". " stand before the text
};

enum class AllineamentoTesto { sinistra, centro, destra };

struct ColonnaRelazione {
    double larghezzaMm = 0.0;
    AllineamentoTesto allineamento = AllineamentoTesto::sinistra;
};

/// A cell of a made table. Colours are six hexadecimal digits "RRGGBB", or empty for those of the style.
struct CellaRelazione {
    std::string testo;
    int colonne = 1;  ///< columns that it spans
    std::string sfondo = {};
    std::string inchiostro = {};
};

/// A table made by the program. A row that has fewer cells than columns is filled up with empty ones.
struct TabellaRelazione {
    std::string stile;                        ///< of the table; without it in the document, thin lines
    std::string stileTesto = {};              ///< of the paragraphs in its cells
    std::string stileIntestazione = {};       ///< of those of the heading rows
    std::vector<ColonnaRelazione> colonne{};  ///< 1 to 63
    std::size_t righeIntestazione = 1;        ///< first rows, repeated on each page
    bool insieme = false;                     ///< on one page, where it is no longer than one
    std::vector<std::vector<CellaRelazione>> righe{};
};

/// A picture in a paragraph of its own. Height 0: as the proportions of the picture have it.
struct ImmagineRelazione {
    std::string png;           ///< bytes of a PNG file
    double larghezzaMm = 0.0;  ///< up to 1000
    double altezzaMm = 0.0;    ///< up to 1000
    std::string testoAlternativo = {};
    std::string stile = {};   ///< of its paragraph
    bool conSeguente = true;  ///< on the page of the paragraph behind it: its caption
};

/// Fault 5 of a bookmark that the document does not have.
class SegnalibroMancante : public Guasto {
public:
    explicit SegnalibroMancante(std::string_view parole)
        : Guasto(Guasto::conParole(NumeroGuasto::chiamataNonValida, parole)) {}
};

/// The operations of a word processor that a report needs, on one document.
///
/// Texts are UTF-8. In them a line break (CR LF, LF or CR) becomes a line break of the paragraph and a tab a tab; what
/// no document can hold (control characters) is dropped, bytes that are no UTF-8 become U+FFFD. Text that came in by
/// any of these operations is never searched again: a value that looks like a placeholder stays as it is.
///
/// Names of bookmarks and styles are looked up without regard to case. What cannot be done raises a fault with Italian
/// words of its own and leaves the document as it was.
class DocumentoRelazione {
public:
    DocumentoRelazione() = default;
    DocumentoRelazione(const DocumentoRelazione&) = delete;
    DocumentoRelazione& operator=(const DocumentoRelazione&) = delete;
    virtual ~DocumentoRelazione() = default;

    /// Replaces every occurrence of `cercato`, in any case of its letters (ASCII and the accented ones of Latin-1), in
    /// the body with its tables and text boxes, headers, footers, footnotes and endnotes, also where it is split into
    /// pieces of different format: the value takes the format of the first. Answers the number of occurrences; an
    /// empty `cercato` has none.
    virtual int Sostituisci(std::string_view cercato, std::string_view nuovo) = 0;
    /// The same for many at once, in one pass; where two begin at one place the longer is taken.
    virtual int Sostituisci(std::span<const Sostituzione> coppie) = 0;
    /// Takes away what no step has filled: every occurrence of the texts of `elenco`.
    virtual int Sbianca(std::span<const std::string_view> elenco) = 0;

    virtual bool HaSegnalibro(std::string_view nome) const = 0;
    /// Selects what a bookmark spans. A SegnalibroMancante if there is none of that name.
    virtual void SelezionaSegnalibro(std::string_view nome) = 0;
    /// Puts the selection behind the last paragraph of the body.
    virtual void SelezionaFine() = 0;

    /// True if the selection stands in a cell of a table, or at its side between two cells.
    virtual bool SelezioneInTabella() const = 0;
    /// Selects the next cell of the table that the selection stands in: along the row, then the first of the next
    /// row; behind the last cell a new row comes, with the formats of the last one and without its content. A merged
    /// cell is one cell; a table inside a cell is no part of the walk. Fault 5 outside a table.
    virtual void CellaSuccessiva() = 0;
    /// Writes at the selection. In a selected cell, and over a bookmark inside one paragraph, the text takes the place
    /// of what stood there; at a bookmark that spans more it goes to its beginning. The format is that of what was
    /// replaced, else of what stands beside it, else of the paragraph. Further texts come behind the first. Fault 5 if
    /// nothing is selected.
    virtual void ScriviTesto(std::string_view testo) = 0;
    /// Deletes what is selected: of a bookmark its paragraphs, tables and section breaks with it; a paragraph that it
    /// empties goes too. Of a table that lies in it in part, the rows that it touches go; cells of one row are emptied.
    /// The last paragraph of a cell, of a header or of the body stays, and so do the last section's settings. A
    /// bookmark that spans nothing deletes nothing. Fault 5 if nothing is selected.
    virtual void EliminaSelezione() = 0;

    /// These put a block at the selection, each behind the one before: in the place of the selected paragraph if it is
    /// empty, else behind it. Two tables never touch: an empty paragraph comes between. Fault 5 if nothing is selected,
    /// for a table without columns, with more than 63 or with a row wider than them, for a picture that is no PNG or
    /// of no sound size.
    virtual void InserisciParagrafo(const ParagrafoRelazione& paragrafo) = 0;
    virtual void InserisciTabella(const TabellaRelazione& tabella) = 0;
    virtual void InserisciImmagine(const ImmagineRelazione& immagine) = 0;

    /// The document as the bytes of a .docx file. Captions are numbered in the order in which they stand; nothing is
    /// selected afterwards.
    virtual std::string Contenuto() = 0;
    /// Writes them to a file, safely. Fault 75 with the reason in words: the old file then stands untouched.
    virtual void Salva(SistemaFile& sistema, const std::string& percorso) = 0;
};

/// Whole path of the template `nome` (a name, or a relative path with '/' or '\\') in `cartella`, without regard to
/// case and whatever its extension: a name that ends in ".dotx" or ".docx" as it stands, else the first that there is
/// of its stem with ".dotx", ".docx", the name as it stands, its stem with any extension, in alphabetical order. A stem
/// is a name less ".dot", ".dotx", ".doc" or ".docx". Empty if there is none.
std::string trovaModello(const std::string& cartella, std::string_view nome);

/// A new document from the template `nome` of `cartella`. Fault 53 if there is none, fault 17 with the reason in words
/// if it cannot be taken: no .docx or .dotx, damaged, with macros, past the limits.
std::unique_ptr<DocumentoRelazione> documentoDaModello(const std::string& cartella, std::string_view nome);
/// A new document from the bytes of a template; `nome` is for the words of a fault.
std::unique_ptr<DocumentoRelazione> documentoDaContenuto(const std::string& dati, std::string_view nome);

}  // namespace kelvo
