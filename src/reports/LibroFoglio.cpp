#include "reports/LibroFoglio.h"

#include <fmt/format.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <ctime>

#include "base/guasto.h"
#include "base/testo.h"
#include "shell/servizi/tinte.h"

namespace kelvo::foglio {

namespace {

constexpr std::size_t massimoNome = 31;      // of a sheet, in units of UTF-16
constexpr std::size_t massimoTesto = 32767;  // of a cell, the same
constexpr std::string_view vietati = "[]:*?/\\";
constexpr std::string_view sottolineatura = "_x005F_";  // '_' by its code
constexpr std::string_view sostituto = "\xEF\xBF\xBD";

/// Units of UTF-16 of a character.
std::size_t unita(std::string_view carattere) {
    return carattere.size() == 4 ? 2 : 1;
}

bool scrivibile(std::string_view carattere) {
    // U+FFFE and U+FFFF are no characters of XML.
    return carattere != "\xEF\xBF\xBE" && carattere != "\xEF\xBF\xBF";
}

/// As much of a text as fits.
std::string entro(std::string_view testo, std::size_t massimo) {
    std::string uscita;
    std::size_t usate = 0;
    for (const std::string& carattere : caratteri(testo)) {
        usate += unita(carattere);
        if (usate > massimo) {
            break;
        }
        const bool controllo = carattere.size() == 1 && static_cast<unsigned char>(carattere[0]) < ' ';
        uscita += controllo ? " " : scrivibile(carattere) ? carattere : std::string{sostituto};
    }
    return uscita;
}

/// A text begins with what a cell holds for a character by its code: "_x0041_".
bool cominciaCodice(std::string_view testo) {
    constexpr std::string_view cifre = "0123456789abcdefABCDEF";
    constexpr std::size_t lungo = 7;
    return testo.size() >= lungo && testo.substr(0, 2) == "_x" && testo[lungo - 1] == '_' &&
           testo.substr(2, 4).find_first_not_of(cifre) == std::string_view::npos;
}

std::uint8_t posa(Aspetto::Posa posa) {
    switch (posa) {
        case Aspetto::Posa::centro:
            return LXW_ALIGN_CENTER;
        case Aspetto::Posa::destra:
            return LXW_ALIGN_RIGHT;
        case Aspetto::Posa::sinistra:
            break;
    }
    return LXW_ALIGN_LEFT;
}

std::string parole(int esito) {
    if (esito == LXW_ERROR_CREATING_TMPFILE || esito == LXW_ERROR_CREATING_XLSX_FILE || esito == LXW_ERROR_ZIP_CLOSE ||
        esito == LXW_ERROR_ZIP_FILE_ADD || esito == LXW_ERROR_ZIP_FILE_OPERATION) {
        return "la cartella dei file temporanei non può essere scritta o è piena";
    }
    if (esito == LXW_ERROR_MEMORY_MALLOC_FAILED) {
        return "memoria insufficiente";
    }
    return fmt::format("errore {} della libreria", esito);
}

lxw_row_t riga(int r) {
    return static_cast<lxw_row_t>(r);
}
lxw_col_t colonna(int c) {
    return static_cast<lxw_col_t>(c);
}

}  // namespace

std::string testoPulito(std::string_view testo) {
    return std::string{rifila(entro(testo, massimoTesto))};
}

std::string testoCella(std::string_view testo) {
    const std::string pulito = testoPulito(testo);
    std::string uscita;
    std::size_t usate = 0;
    std::string_view resto = pulito;
    for (const std::string& carattere : caratteri(pulito)) {
        const bool codice = cominciaCodice(resto);
        usate += codice ? sottolineatura.size() : unita(carattere);
        if (usate > massimoTesto) {
            break;
        }
        uscita += codice ? std::string{sottolineatura} : carattere;
        resto.remove_prefix(carattere.size());
    }
    return uscita;
}

std::string nomeFoglioIngresso(int ramo, std::string_view descrizione) {
    const std::string lettera(1, static_cast<char>('A' + ramo - 1));
    std::string pulita = entro(descrizione, massimoNome);
    std::replace_if(
        pulita.begin(), pulita.end(), [](char c) { return vietati.find(c) != std::string_view::npos; }, '_');
    const std::string_view resto = rifila(pulita);
    if (resto.empty()) {
        return "Ingresso " + lettera;
    }
    std::string nome = entro(lettera + " - " + std::string{resto}, massimoNome);
    while (nome.back() == '\'' || nome.back() == ' ') {
        nome.pop_back();
    }
    return nome;
}

void fatto(int esito) {
    if (esito != LXW_NO_ERROR) {
        throw Guasto::conParole(NumeroGuasto::operazioneImpossibile,
                                "Il foglio di calcolo non può essere composto: " + parole(esito));
    }
}

unsigned colore(Colore colore) {
    return static_cast<unsigned>(colore.rosso) << 16U | static_cast<unsigned>(colore.verde) << 8U |
           static_cast<unsigned>(colore.blu);
}

// The C library's locale is that of the one thread that writes.
// NOLINTBEGIN(concurrency-mt-unsafe)
NumeriConPunto::NumeriConPunto() : prima_(std::setlocale(LC_NUMERIC, nullptr)) {
    std::setlocale(LC_NUMERIC, "C");
}

NumeriConPunto::~NumeriConPunto() {
    std::setlocale(LC_NUMERIC, prima_.c_str());
}
// NOLINTEND(concurrency-mt-unsafe)

Libro::Libro(const std::string& percorso, const std::string& cartella) : cartella_(cartella) {
    lxw_workbook_options opzioni{};
    opzioni.tmpdir = cartella_.data();
    libro_ = workbook_new_opt(percorso.c_str(), &opzioni);
    fatto(libro_ == nullptr ? LXW_ERROR_MEMORY_MALLOC_FAILED : LXW_NO_ERROR);
}

Libro::~Libro() {
    if (libro_ != nullptr) {
        lxw_workbook_free(libro_);
    }
}

void Libro::chiudi() {
    lxw_workbook* libro = libro_;
    libro_ = nullptr;  // the library frees it whatever comes
    fatto(workbook_close(libro));
}

lxw_worksheet* Libro::foglio(const std::string& nome) {
    lxw_worksheet* nuovo = workbook_add_worksheet(libro_, nome.c_str());
    fatto(nuovo == nullptr ? LXW_ERROR_PARAMETER_VALIDATION : LXW_NO_ERROR);
    return nuovo;
}

lxw_chart* Libro::istogramma() {
    lxw_chart* nuovo = workbook_add_chart(libro_, LXW_CHART_COLUMN);
    fatto(nuovo == nullptr ? LXW_ERROR_MEMORY_MALLOC_FAILED : LXW_NO_ERROR);
    return nuovo;
}

lxw_format* Libro::formato(const Aspetto& aspetto) {
    for (const auto& [quale, formato] : formati_) {
        if (quale == aspetto) {
            return formato;
        }
    }
    lxw_format* nuovo = workbook_add_format(libro_);
    fatto(nuovo == nullptr ? LXW_ERROR_MEMORY_MALLOC_FAILED : LXW_NO_ERROR);
    if (aspetto.sfondo != colori::bianco) {
        format_set_bg_color(nuovo, colore(aspetto.sfondo));
    }
    format_set_font_color(nuovo, colore(inchiostroLeggibile(aspetto.inchiostro, aspetto.sfondo)));
    format_set_font_size(nuovo, aspetto.punti);
    if (aspetto.grassetto) {
        format_set_bold(nuovo);
    }
    if (!aspetto.formato.empty()) {
        format_set_num_format(nuovo, aspetto.formato.c_str());
    }
    if (aspetto.bordi) {
        format_set_border(nuovo, LXW_BORDER_THIN);
        format_set_border_color(nuovo, colore(tinta::bordo));
    }
    if (aspetto.aCapo) {
        format_set_text_wrap(nuovo);
    }
    format_set_align(nuovo, posa(aspetto.posa));
    format_set_align(nuovo, LXW_ALIGN_VERTICAL_CENTER);
    formati_.emplace_back(aspetto, nuovo);
    return nuovo;
}

void Libro::proprieta(const std::string& titolo, const std::string& autore, DataOra momento) {
    const PartiData parti = partiDi(momento);
    std::tm locale{};
    locale.tm_year = parti.anno - 1900;
    locale.tm_mon = parti.mese - 1;
    locale.tm_mday = parti.giorno;
    locale.tm_hour = parti.ora;
    locale.tm_min = parti.minuto;
    locale.tm_sec = parti.secondo;
    locale.tm_isdst = -1;
    std::array<std::string, 3> testi{testoPulito(titolo), testoPulito(autore), "Kelvo"};
    lxw_doc_properties proprieta{};
    proprieta.title = testi[0].data();
    proprieta.author = testi[1].data();
    proprieta.comments = testi[2].data();
    proprieta.created = std::mktime(&locale);
    fatto(workbook_set_properties(libro_, &proprieta));
}

void Libro::testo(lxw_worksheet* foglio, int r, int c, std::string_view testo, const Aspetto& aspetto) {
    const std::string pulito = testoCella(testo);
    lxw_format* formato = this->formato(aspetto);
    fatto(pulito.empty() ? worksheet_write_blank(foglio, riga(r), colonna(c), formato)
                         : worksheet_write_string(foglio, riga(r), colonna(c), pulito.c_str(), formato));
}

void Libro::testoLargo(lxw_worksheet* foglio, int r, int colonne, std::string_view testo, const Aspetto& aspetto) {
    if (colonne < 2) {
        this->testo(foglio, r, 0, testo, aspetto);
        return;
    }
    const std::string pulito = testoCella(testo);
    fatto(worksheet_merge_range(foglio, riga(r), 0, riga(r), colonna(colonne - 1), pulito.c_str(), formato(aspetto)));
}

void Libro::numero(lxw_worksheet* foglio, int r, int c, double valore, const Aspetto& aspetto) {
    fatto(worksheet_write_number(foglio, riga(r), colonna(c), valore, formato(aspetto)));
}

void Libro::formula(lxw_worksheet* foglio, int r, int c, const std::string& formula, double valore,
                    const Aspetto& aspetto) {
    fatto(worksheet_write_formula_num(foglio, riga(r), colonna(c), formula.c_str(), formato(aspetto), valore));
}

void Libro::larghezza(lxw_worksheet* foglio, int c, double caratteri) {
    fatto(worksheet_set_column(foglio, colonna(c), colonna(c), caratteri, nullptr));
}

void Libro::altezza(lxw_worksheet* foglio, int r, double punti) {
    fatto(worksheet_set_row(foglio, riga(r), punti, nullptr));
}

}  // namespace kelvo::foglio
