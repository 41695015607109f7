#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Tabella.h"

struct lxw_workbook;
struct lxw_worksheet;
struct lxw_format;
struct lxw_chart;

namespace kelvo::foglio {

/// How a cell looks.
struct Aspetto {
    enum class Posa { sinistra, centro, destra };
    Colore sfondo = colori::bianco;
    Colore inchiostro = colori::nero;
    bool grassetto = false;
    Posa posa = Posa::sinistra;
    std::string formato{};  ///< of a number, "0.00"; empty for a text
    bool bordi = true;
    bool aCapo = false;
    int punti = 10;
    friend bool operator==(const Aspetto&, const Aspetto&) = default;
};

/// A text without what the format cannot hold: blanks for control characters, none at its ends, U+FFFD for wrong bytes,
/// cut where it is longer than a cell takes.
std::string testoPulito(std::string_view testo);
/// The same as a cell is written: "_x0041_" would be read there as the character of that code.
std::string testoCella(std::string_view testo);

/// Name of the sheet of an entry, from 1: its letter and its name, without what such a name may not hold and no longer
/// than it may be. Two entries never have the same.
std::string nomeFoglioIngresso(int ramo, std::string_view descrizione);

/// A workbook that is being made. What the library refuses is fault 17 with Italian words.
class Libro {
public:
    /// Begins the workbook of a file, which is written by `chiudi`; parts wait in `cartella` until then.
    Libro(const std::string& percorso, const std::string& cartella);
    Libro(const Libro&) = delete;
    Libro& operator=(const Libro&) = delete;
    ~Libro();

    lxw_worksheet* foglio(const std::string& nome);
    lxw_format* formato(const Aspetto& aspetto);
    lxw_chart* istogramma();
    /// Title, author and time of making.
    void proprieta(const std::string& titolo, const std::string& autore, DataOra momento);
    /// Writes the file.
    void chiudi();

    // Rows and columns from 0.
    void testo(lxw_worksheet* foglio, int riga, int colonna, std::string_view testo, const Aspetto& aspetto);
    /// A text over the first `colonne` columns as if they were one.
    void testoLargo(lxw_worksheet* foglio, int riga, int colonne, std::string_view testo, const Aspetto& aspetto);
    void numero(lxw_worksheet* foglio, int riga, int colonna, double valore, const Aspetto& aspetto);
    /// A formula with the value that it has.
    void formula(lxw_worksheet* foglio, int riga, int colonna, const std::string& formula, double valore,
                 const Aspetto& aspetto);
    void larghezza(lxw_worksheet* foglio, int colonna, double caratteri);
    void altezza(lxw_worksheet* foglio, int riga, double punti);

private:
    lxw_workbook* libro_ = nullptr;
    std::string cartella_;
    std::vector<std::pair<Aspetto, lxw_format*>> formati_;
};

/// Raises the fault for an answer of the library other than 0.
void fatto(int esito);

/// While it lives, numbers of the C library have a decimal point: those in the files of a workbook.
class NumeriConPunto {
public:
    NumeriConPunto();
    NumeriConPunto(const NumeriConPunto&) = delete;
    NumeriConPunto& operator=(const NumeriConPunto&) = delete;
    ~NumeriConPunto();

private:
    std::string prima_;
};

/// A colour as the library takes it.
unsigned colore(Colore colore);

}  // namespace kelvo::foglio
