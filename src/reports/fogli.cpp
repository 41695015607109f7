#include "reports/fogli.h"

#include <fmt/format.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"
#include "shell/servizi/tinte.h"

namespace kelvo::foglio {

namespace {

constexpr double altezzaTestata = 32.0;      // points
constexpr double twipsPerCarattere = 105.0;  // of the type of the cells
constexpr double minimaLarghezza = 9.0;      // of a column, characters
constexpr double massimaLarghezza = 50.0;
constexpr std::size_t margine = 2;
constexpr double altezzaRiga = 15.0;           // points
constexpr std::size_t massimoNomePagina = 60;  // in header and footer, characters
constexpr std::array<double, colonneIngresso> larghezzeIngresso{8, 8, 12, 12, 13, 11, 12, 9, 9};
constexpr const char* notaLivelli = "L.O.S. (Level of service) - HCM Americano";
constexpr const char* soloSaturazione =
    "L'analisi del progetto è di sola saturazione: non ci sono risultati nel tempo.";

/// The pattern of a number in the words of the format, "0.00".
std::string modello(int decimali, bool percento = false) {
    std::string testo = "0";
    if (decimali > 0) {
        testo += "." + std::string(static_cast<std::size_t>(decimali), '0');
    }
    return percento ? testo + "%" : testo;
}

/// A text with the codes of header and footer taken for what they are.
std::string perPagina(std::string_view testo) {
    std::string uscita;
    for (const char c : testoPulito(accorciato(testo, massimoNomePagina))) {
        uscita += c == '&' ? "&&" : std::string(1, c);
    }
    return uscita;
}

/// A number that stands in a table as text.
struct Cifra {
    double valore = 0.0;
    std::string formato;
};
std::optional<Cifra> cifra(std::string_view testo) {
    const bool percento = !testo.empty() && testo.back() == '%';
    const std::string_view numero = percento ? testo.substr(0, testo.size() - 1) : testo;
    const std::optional<double> valore = leggiNumero(numero);
    if (!valore || (percento && numero.find(' ') != std::string_view::npos)) {
        return {};
    }
    const std::size_t virgola = numero.find(',');
    const int decimali = virgola == std::string_view::npos ? 0 : static_cast<int>(numero.size() - virgola - 1);
    return Cifra{percento ? *valore / 100.0 : *valore, modello(decimali, percento)};
}

Aspetto diCella(const Cella& cella, Aspetto::Posa posa) {
    return {.sfondo = cella.sfondo, .inchiostro = cella.inchiostro, .grassetto = cella.grassetto, .posa = posa};
}

/// Width that the longest text of a column asks for, and the longest word of its heading, in characters; texts that are
/// longer still wrap.
double larghezzaTesti(const Tabella& tabella, int colonna) {
    std::size_t massima = 0;
    for (int r = 1; r < tabella.righe(); ++r) {
        massima = std::max(massima, lunghezza(tabella.testo(r, colonna)));
    }
    const std::string& titolo = tabella.testo(0, colonna);
    for (std::size_t da = 0; da < titolo.size();) {
        const std::size_t fine = std::min(titolo.find(' ', da), titolo.size());
        massima = std::max(massima, lunghezza(titolo.substr(da, fine - da)));
        da = fine + 1;
    }
    return std::min(massimaLarghezza, static_cast<double>(massima + margine));
}

/// Answers the width of all columns, in characters.
double rigaDiTestata(Libro& libro, lxw_worksheet* foglio, const Tabella& tabella) {
    double tutte = 0.0;
    for (int c = 0; c < tabella.colonne(); ++c) {
        libro.testo(foglio, rigaTestata, c, tabella.testo(0, c), aspettoTestata());
        const int twips = tabella.larghezze.empty() ? 0 : tabella.larghezze[static_cast<std::size_t>(c)];
        const double larghezza = std::max({minimaLarghezza, twips / twipsPerCarattere, larghezzaTesti(tabella, c)});
        libro.larghezza(foglio, c, larghezza);
        tutte += larghezza;
    }
    return tutte;
}

/// Texts below a table, each as wide as the table is, in as many lines as it takes.
void paroleSotto(Libro& libro, lxw_worksheet* foglio, const Tabella& tabella, double larghezza,
                 const std::vector<std::string>& parole) {
    int riga = rigaTestata + tabella.righe() + 1;
    for (const std::string& testo : parole) {
        const double righe = std::ceil(static_cast<double>(lunghezza(testo)) / larghezza);
        libro.altezza(foglio, riga, altezzaRiga * std::max(1.0, righe));
        libro.testoLargo(foglio, riga, tabella.colonne(), testo,
                         {.inchiostro = tinta::inchiostro, .bordi = false, .aCapo = true});
        ++riga;
    }
}

/// The figures of an entry in a segment, both from 1, from a column on; its level behind them.
void scriviRecord(Libro& libro, lxw_worksheet* foglio, int riga, int colonna, const Iterazione& record) {
    for (const Grandezza& grandezza : grandezze) {
        libro.numero(foglio, riga, colonna++, valoreCella(record.*grandezza.campo),
                     aspettoNumero(modello(grandezza.formato.decimali)));
    }
    const std::string_view livello = livelloDiRitardo(record.Ritardo);
    libro.testo(foglio, riga, colonna, livello, aspettoLivello(livello));
}

/// Fault 9 for an entry with more segments than its window has intervals: the table has no rows for them.
void controllaSegmenti(const Rotonda& rotonda, int intervalli) {
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        const int segmenti = rotonda.Ramo(i).theDatiTraffico().NumSegmentiTempo();
        if (segmenti > intervalli) {
            throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                         fmt::format("ingresso {}: {} segmenti, la finestra di modellazione ha {} intervalli",
                                     static_cast<char>('A' + i - 1), segmenti, intervalli));
        }
    }
}

/// Headings of the sheet of an entry, in their order.
std::vector<std::string> intestazioniIngresso() {
    std::vector<std::string> testi{"Inizio", "Fine"};
    for (const Grandezza& grandezza : grandezze) {
        testi.emplace_back(grandezza.intestazione);
    }
    testi.emplace_back(intestazioneLivello);
    testi.emplace_back("Codice L.O.S.");
    return testi;
}

/// A table of the spreadsheet program: its rows are sorted and filtered by its headings.
void comeElenco(Libro& libro, lxw_worksheet* foglio, int ramo, int segmenti) {
    std::vector<std::string> testi = intestazioniIngresso();
    std::vector<lxw_table_column> colonne(testi.size());
    std::vector<lxw_table_column*> puntatori;
    for (std::size_t c = 0; c < testi.size(); ++c) {
        colonne[c].header = testi[c].data();
        colonne[c].header_format = libro.formato(aspettoTestata());
        puntatori.push_back(&colonne[c]);
    }
    puntatori.push_back(nullptr);
    std::string nome = fmt::format("Ingresso_{}", static_cast<char>('A' + ramo - 1));
    lxw_table_options opzioni{};
    opzioni.name = nome.data();
    opzioni.style_type = LXW_TABLE_STYLE_TYPE_LIGHT;
    opzioni.style_type_number = 0;
    opzioni.no_banded_rows = 1;
    opzioni.columns = puntatori.data();
    fatto(worksheet_add_table(foglio, rigaTestata, 0, static_cast<lxw_row_t>(rigaTestata + segmenti),
                              colonneIngresso - 1, &opzioni));
}

/// A function over the figures of each quantity.
struct Riassunto {
    const char* nome;
    const char* funzione;
    double (*valore)(const std::vector<double>&);
};
constexpr std::array<Riassunto, 3> riassunti{{
    {"Minimo", "MIN", [](const std::vector<double>& v) { return *std::min_element(v.begin(), v.end()); }},
    {"Massimo", "MAX", [](const std::vector<double>& v) { return *std::max_element(v.begin(), v.end()); }},
    {"Medio", "AVERAGE",
     [](const std::vector<double>& v) {
         double somma = 0.0;
         for (const double x : v) {
             somma += x;
         }
         return somma / static_cast<double>(v.size());
     }},
}};

/// Smallest, largest and mean value of each quantity, an empty row below the table; answers the row behind them.
int scriviRiassunti(Libro& libro, lxw_worksheet* foglio, const DatiTraffico& traffico) {
    const int segmenti = traffico.NumSegmentiTempo();
    int riga = primaRiga + segmenti + 1;
    for (const Riassunto& riassunto : riassunti) {
        const Aspetto nome{.sfondo = colori::nomeIngresso, .inchiostro = colori::bianco};
        libro.testo(foglio, riga, 0, riassunto.nome, nome);
        libro.testo(foglio, riga, 1, {}, nome);
        for (std::size_t q = 0; q < grandezze.size(); ++q) {
            std::vector<double> valori;
            for (std::int16_t s = 1; s <= segmenti; ++s) {
                valori.push_back(valoreCella(traffico.GetIterazione(s).*grandezze[q].campo));
            }
            const int colonna = primaGrandezza + static_cast<int>(q);
            const char lettera = static_cast<char>('A' + colonna);
            Aspetto aspetto = aspettoNumero(modello(grandezze[q].formato.decimali));
            aspetto.sfondo = colori::dati;
            libro.formula(foglio, riga, colonna,
                          fmt::format("={}({}{}:{}{})", riassunto.funzione, lettera, primaRiga + 1, lettera,
                                      primaRiga + segmenti),
                          riassunto.valore(valori), aspetto);
        }
        ++riga;
    }
    return riga;
}

}  // namespace

Aspetto aspettoTestata() {
    return {.sfondo = colori::intestazione,
            .inchiostro = colori::bianco,
            .grassetto = true,
            .posa = Aspetto::Posa::centro,
            .aCapo = true};
}

Aspetto aspettoNome() {
    return {.sfondo = colori::nomeIngresso, .inchiostro = colori::bianco};
}

Aspetto aspettoNumero(std::string formato) {
    return {.posa = Aspetto::Posa::destra, .formato = std::move(formato)};
}

Aspetto aspettoLivello(std::string_view livello) {
    const Distintivo distintivo = distintivoLivello(livello);
    return {.sfondo = distintivo.fondo,
            .inchiostro = distintivo.testo,
            .grassetto = livello != "-",
            .posa = Aspetto::Posa::centro};
}

double valoreCella(float valore) {
    return leggiNumero(testoNumero(valore)).value_or(0.0);
}

lxw_worksheet* nuovoFoglio(Libro& libro, const std::string& nome, const Testata& testata) {
    lxw_worksheet* foglio = libro.foglio(nome);
    libro.testo(foglio, 0, 0, testata.titolo,
                {.inchiostro = tinta::titolo, .grassetto = true, .bordi = false, .punti = 14});
    libro.testo(foglio, 1, 0, "Nome Progetto: " + testata.progetto, {.inchiostro = tinta::secondario, .bordi = false});
    libro.altezza(foglio, 0, 22.0);
    libro.altezza(foglio, rigaTestata, altezzaTestata);
    constexpr std::uint8_t a4 = 9;
    worksheet_set_paper(foglio, a4);
    worksheet_fit_to_pages(foglio, 1, 0);
    fatto(worksheet_repeat_rows(foglio, rigaTestata, rigaTestata));
    const std::string piede = "&L" + perPagina(testata.progetto) + "&CPagina &P di &N&RKelvo";
    fatto(worksheet_set_footer(foglio, piede.c_str()));
    return foglio;
}

void foglioVerifiche(Libro& libro, const Rotonda& rotonda, bool conRecord) {
    lxw_worksheet* foglio = nuovoFoglio(libro, "Verifiche", {"Risultati: Verifiche prestazionali", rotonda.NomeFile()});
    const Tabella tabella = tabellaVerificheVuota(rotonda);
    rigaDiTestata(libro, foglio, tabella);
    const int perIntervallo = rotonda.NumeroRami() + 1;
    if (conRecord) {
        controllaSegmenti(rotonda, (tabella.righe() - 1) / perIntervallo);
    }
    for (int r = 1; r < tabella.righe(); ++r) {
        const int ramo = (r - 1) % perIntervallo;
        const auto segmento = static_cast<std::int16_t>((r - 1) / perIntervallo + 1);
        const int riga = rigaTestata + r;
        Aspetto nome = diCella(tabella.cella(r, 0), Aspetto::Posa::sinistra);
        nome.grassetto = ramo == 0;
        nome.aCapo = true;
        libro.testo(foglio, riga, 0, tabella.testo(r, 0), nome);
        if (conRecord && ramo > 0) {
            const DatiTraffico& traffico = rotonda.Ramo(static_cast<std::int16_t>(ramo)).theDatiTraffico();
            if (segmento <= traffico.NumSegmentiTempo()) {
                scriviRecord(libro, foglio, riga, 1, traffico.GetIterazione(segmento));
                continue;
            }
        }
        for (int c = 1; c < tabella.colonne(); ++c) {
            libro.testo(foglio, riga, c, {}, diCella(tabella.cella(r, c), Aspetto::Posa::centro));
        }
    }
    const std::string nota = conRecord ? notaLivelli : soloSaturazione;
    libro.testo(foglio, rigaTestata + tabella.righe() + 1, 0, nota, {.inchiostro = tinta::secondario, .bordi = false});
    worksheet_freeze_panes(foglio, primaRiga, 1);
}

void foglioIngresso(Libro& libro, const Rotonda& rotonda, std::int16_t ramo) {
    const Ramo& suo = rotonda.Ramo(ramo);
    const DatiTraffico& traffico = suo.theDatiTraffico();
    const int segmenti = traffico.NumSegmentiTempo();
    const std::string nome = nomeFoglioIngresso(ramo, suo.Descrizione());
    const char lettera = static_cast<char>('A' + ramo - 1);
    lxw_worksheet* foglio = nuovoFoglio(
        libro, nome,
        {fmt::format("Verifiche prestazionali - Ingresso {}: {}", lettera, suo.Descrizione()), rotonda.NomeFile()});
    const std::vector<std::string> intestazioni = intestazioniIngresso();
    for (std::size_t c = 0; c < intestazioni.size(); ++c) {
        libro.testo(foglio, rigaTestata, static_cast<int>(c), intestazioni[c], aspettoTestata());
        libro.larghezza(foglio, static_cast<int>(c), larghezzeIngresso.at(c));
    }
    Aspetto ora = aspettoNome();
    ora.posa = Aspetto::Posa::centro;
    for (std::int16_t s = 1; s <= segmenti; ++s) {
        const int riga = rigaTestata + s;
        const std::string intervallo = testoIntervallo(rotonda, s);
        libro.testo(foglio, riga, colonnaInizio, intervallo.substr(0, 5), ora);
        libro.testo(foglio, riga, colonnaFine, ultimiCaratteri(intervallo, 5), ora);
        const Iterazione record = traffico.GetIterazione(s);
        scriviRecord(libro, foglio, riga, primaGrandezza, record);
        Aspetto codice = aspettoNumero("0");
        codice.inchiostro = tinta::secondario;
        libro.numero(foglio, riga, colonnaCodice, codiceLivello(livelloDiRitardo(record.Ritardo)), codice);
    }
    int sotto = primaRiga + 1;
    if (segmenti > 0) {
        comeElenco(libro, foglio, ramo, segmenti);
        sotto = scriviRiassunti(libro, foglio, traffico) + 1;
        graficiIngresso(libro, foglio, nome, rotonda, ramo);
    }
    libro.testo(foglio, sotto, 0, notaLivelli, {.inchiostro = tinta::secondario, .bordi = false});
    worksheet_freeze_panes(foglio, primaRiga, primaGrandezza);
    worksheet_set_landscape(foglio);
    worksheet_set_tab_color(foglio, colore(colori::nomeIngresso));
}

void foglioTabella(Libro& libro, const std::string& nome, const Testata& testata, const Tabella& tabella,
                   const std::vector<std::string>& parole) {
    lxw_worksheet* foglio = nuovoFoglio(libro, nome, testata);
    const double larghezza = rigaDiTestata(libro, foglio, tabella);
    for (int r = 1; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            const Cella& cella = tabella.cella(r, c);
            const int riga = rigaTestata + r;
            const std::optional<Cifra> numero = c == 0 ? std::optional<Cifra>{} : cifra(cella.testo);
            if (numero) {
                Aspetto aspetto = diCella(cella, Aspetto::Posa::destra);
                aspetto.formato = numero->formato;
                libro.numero(foglio, riga, c, numero->valore, aspetto);
            } else if (tabella.testo(0, c) == intestazioneLivello) {
                libro.testo(foglio, riga, c, cella.testo, aspettoLivello(cella.testo));
            } else {
                Aspetto aspetto = diCella(cella, c == 0 ? Aspetto::Posa::sinistra : Aspetto::Posa::centro);
                aspetto.aCapo = c == 0 || tabella.colonne() <= 3;
                libro.testo(foglio, riga, c, cella.testo, aspetto);
            }
        }
    }
    paroleSotto(libro, foglio, tabella, larghezza, parole);
    worksheet_freeze_panes(foglio, primaRiga, 1);
    worksheet_set_landscape(foglio);
}

}  // namespace kelvo::foglio
