#include <fmt/format.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "base/date.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "reports/fogli.h"
#include "results/graficiRamo.h"
#include "results/grandezze.h"
#include "results/livelloServizio.h"
#include "shell/servizi/tinte.h"

namespace kelvo::foglio {

namespace {

// Two charts side by side, right of the table: cells of the default size of 64 x 20 pixels.
constexpr int primaColonnaGrafici = colonneIngresso + 1;
constexpr int primaRigaGrafici = 1;
constexpr int colonnePerGrafico = 11;
constexpr int righePerGrafico = 16;
constexpr double larghezzaDisegno = 672.0 / 480.0;  // of the library's default
constexpr double altezzaDisegno = 300.0 / 288.0;
constexpr std::size_t massimoTitolo = 60;  // characters of a name in a title
constexpr int massimiValori = 24;          // more values than these are not labelled

/// Where the figures of a chart stand.
struct Origine {
    std::string foglio;
    std::string titolo;
    int colonna = 0;
    int segmenti = 0;
    int perEtichetta = 1;  ///< segments of an hour
};

/// Both ends of an axis of values.
struct Estremi {
    double fondo = 0.0;
    double cima = 0.0;
};

lxw_chart_font tipo(double punti, Colore tinta, bool forte = false) {
    lxw_chart_font font{};
    font.size = punti;
    font.color = static_cast<lxw_color_t>(colore(tinta));
    font.bold = forte ? LXW_TRUE : LXW_EXPLICIT_FALSE;
    return font;
}

void vestiAssi(lxw_chart* grafico, const std::string& titoloY, const Estremi& estremi, const Origine& origine) {
    lxw_chart_axis* x = chart_axis_get(grafico, LXW_CHART_AXIS_TYPE_X);
    lxw_chart_axis* y = chart_axis_get(grafico, LXW_CHART_AXIS_TYPE_Y);
    lxw_chart_font parole = tipo(9, tinta::secondario);
    lxw_chart_line rete{};
    rete.color = static_cast<lxw_color_t>(colore(tinta::griglia));
    rete.width = 0.75F;
    lxw_chart_line asse = rete;
    asse.color = static_cast<lxw_color_t>(colore(tinta::grafite));
    for (lxw_chart_axis* quale : {x, y}) {
        chart_axis_set_name_font(quale, &parole);
        chart_axis_set_num_font(quale, &parole);
        chart_axis_set_line(quale, &asse);
    }
    chart_axis_set_name(x, "ora");
    chart_axis_set_name(y, titoloY.c_str());
    chart_axis_set_interval_unit(x, static_cast<std::uint16_t>(origine.perEtichetta));
    chart_axis_set_interval_tick(x, static_cast<std::uint16_t>(origine.perEtichetta));
    chart_axis_set_min(y, estremi.fondo);
    chart_axis_set_max(y, estremi.cima);
    chart_axis_major_gridlines_set_line(y, &rete);
}

/// A chart with its one series, without what depends on the quantity.
lxw_chart_series* serie(Libro& libro, lxw_chart*& grafico, const Origine& origine, Colore tintaSerie) {
    grafico = libro.istogramma();
    const auto ultima = static_cast<lxw_row_t>(rigaTestata + origine.segmenti);
    lxw_chart_series* serie = chart_add_series(grafico, nullptr, nullptr);
    chart_series_set_categories(serie, origine.foglio.c_str(), primaRiga, colonnaInizio, ultima, colonnaInizio);
    chart_series_set_values(serie, origine.foglio.c_str(), primaRiga, static_cast<lxw_col_t>(origine.colonna), ultima,
                            static_cast<lxw_col_t>(origine.colonna));
    lxw_chart_fill fondo{};
    fondo.color = static_cast<lxw_color_t>(colore(tintaSerie));
    chart_series_set_fill(serie, &fondo);
    chart_title_set_name(grafico, origine.titolo.c_str());
    lxw_chart_font titolo = tipo(12, tinta::inchiostro, true);
    chart_title_set_name_font(grafico, &titolo);
    chart_legend_set_position(grafico, LXW_CHART_LEGEND_NONE);
    chart_set_series_gap(grafico, 38);  // bars of 72 % of their step
    return serie;
}

void posa(lxw_worksheet* foglio, lxw_chart* grafico, int quale, const std::string& descrizione) {
    std::string parole = descrizione;
    lxw_chart_options opzioni{};
    opzioni.x_scale = larghezzaDisegno;
    opzioni.y_scale = altezzaDisegno;
    opzioni.description = parole.data();
    fatto(worksheet_insert_chart_opt(foglio, static_cast<lxw_row_t>(primaRigaGrafici + quale / 2 * righePerGrafico),
                                     static_cast<lxw_col_t>(primaColonnaGrafici + quale % 2 * colonnePerGrafico),
                                     grafico, &opzioni));
}

/// The axis of values of a quantity: it spans the figures as the tables show them, and 0.
Estremi estremiAsse(const DatiTraffico& traffico, const Grandezza& grandezza, int colonna) {
    double minimo = 0.0;
    double massimo = 0.0;
    for (std::int16_t s = 1; s <= traffico.NumSegmentiTempo(); ++s) {
        const std::string mostrato = formatta(traffico.GetIterazione(s).*grandezza.campo, grandezza.formato);
        const double valore = leggiNumero(mostrato).value_or(0.0);
        minimo = std::min(minimo, valore);
        massimo = std::max(massimo, valore);
    }
    return {.fondo = std::floor(minimo), .cima = cimaAsse(colonna, massimo)};
}

void graficoValori(Libro& libro, lxw_worksheet* foglio, int quale, const Origine& origine,
                   const DatiTraffico& traffico) {
    const GraficoGrandezza& disegno = graficiGrandezze.at(static_cast<std::size_t>(quale));
    const Grandezza& grandezza = grandezze.at(static_cast<std::size_t>(disegno.colonna) - 1);
    lxw_chart* grafico = nullptr;
    lxw_chart_series* valori = serie(libro, grafico, origine, disegno.colore);
    vestiAssi(grafico, std::string{disegno.etichettaY}, estremiAsse(traffico, grandezza, disegno.colonna), origine);
    if (origine.segmenti <= massimiValori) {
        lxw_chart_font etichette = tipo(8, tinta::inchiostro);
        etichette.rotation = origine.segmenti > massimiValori / 2 ? -90.0 : 0.0;
        chart_series_set_labels(valori);
        chart_series_set_labels_font(valori, &etichette);
        const std::string formato = grandezza.formato.decimali == 0
                                        ? "0"
                                        : "0." + std::string(static_cast<std::size_t>(grandezza.formato.decimali), '0');
        chart_series_set_labels_num_format(valori, formato.c_str());
    }
    posa(foglio, grafico, quale, origine.titolo);
}

/// Bars by the code of the level, each in its colour with its letter on top.
void graficoLivelli(Libro& libro, lxw_worksheet* foglio, int quale, const Origine& origine,
                    const DatiTraffico& traffico) {
    lxw_chart* grafico = nullptr;
    lxw_chart_series* codici = serie(libro, grafico, origine, tinta::serieLOS);
    vestiAssi(grafico, "L.O.S.", {.fondo = 0.0, .cima = static_cast<double>(codiceLivello("F"))}, origine);
    lxw_chart_axis* y = chart_axis_get(grafico, LXW_CHART_AXIS_TYPE_Y);
    chart_axis_set_major_unit(y, passoCodici);
    chart_axis_set_label_position(y, LXW_CHART_AXIS_LABEL_POSITION_NONE);
    const auto n = static_cast<std::size_t>(origine.segmenti);
    std::vector<lxw_chart_fill> tinte(n);
    std::vector<lxw_chart_point> punti(n);
    std::vector<std::string> lettere(n);
    std::vector<lxw_chart_data_label> parole(n);
    std::vector<lxw_chart_point*> deiPunti;
    std::vector<lxw_chart_data_label*> delleParole;
    for (std::size_t s = 0; s < n; ++s) {
        lettere[s] = livelloDiRitardo(traffico.GetIterazione(static_cast<std::int16_t>(s + 1)).Ritardo);
        tinte[s].color = static_cast<lxw_color_t>(colore(distintivoLivello(lettere[s]).fondo));
        punti[s].fill = &tinte[s];
        parole[s].value = lettere[s].data();
        deiPunti.push_back(&punti[s]);
        delleParole.push_back(&parole[s]);
    }
    deiPunti.push_back(nullptr);
    delleParole.push_back(nullptr);
    fatto(chart_series_set_points(codici, deiPunti.data()));
    lxw_chart_font tipoLettere = tipo(8, tinta::inchiostro);
    chart_series_set_labels(codici);
    chart_series_set_labels_font(codici, &tipoLettere);
    fatto(chart_series_set_labels_custom(codici, delleParole.data()));
    posa(foglio, grafico, quale, origine.titolo);
}

}  // namespace

void graficiIngresso(Libro& libro, lxw_worksheet* foglio, const std::string& nome, const Rotonda& rotonda,
                     std::int16_t ramo) {
    const Ramo& suo = rotonda.Ramo(ramo);
    const DatiTraffico& traffico = suo.theDatiTraffico();
    const int passo = std::max(1, minutoCampo(rotonda.SegmentoTempo()));
    const std::string ingresso = " - Ingresso " + testoPulito(accorciato(suo.Descrizione(), massimoTitolo));
    Origine origine{
        .foglio = nome, .titolo = {}, .segmenti = traffico.NumSegmentiTempo(), .perEtichetta = std::max(1, 60 / passo)};
    int quale = 0;
    for (const GraficoGrandezza& disegno : graficiGrandezze) {
        origine.titolo = std::string{disegno.titolo} + ingresso;
        origine.colonna = primaGrandezza + disegno.colonna - 1;
        graficoValori(libro, foglio, quale++, origine, traffico);
    }
    origine.titolo = std::string{titoloLivelli} + ingresso;
    origine.colonna = colonnaCodice;
    graficoLivelli(libro, foglio, quale, origine, traffico);
}

}  // namespace kelvo::foglio
