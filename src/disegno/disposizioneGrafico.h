#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPolygonF>
#include <vector>

#include "shell/servizi/Grafico.h"

namespace kelvo::disegno {

/// What stands where in a chart, in logical pixels at 100 % from the top left corner. The painter paints exactly this.
struct Disposizione {
    enum class Testi { titolo, titoloX, titoloY, etichettaX, etichettaY, valore, nota, legenda, soglia, fetta, invito };
    enum class Forme { griglia, asse, tacca, barra, campione };

    /// Words of one line, in a box as wide as they are and as high as their type.
    struct Testo {
        Testi ruolo = Testi::titolo;
        QString parole{};
        QRectF dove{};
        int altezza = 12;  ///< of the type
        bool forte = false;
        Colore colore = tinta::inchiostro;
        bool alone = false;  ///< white around the letters, where they stand on lines
    };

    /// A filled rectangle; its edges come to stand on whole pixels of a screen.
    struct Riquadro {
        Forme ruolo = Forme::griglia;
        QRectF dove{};
        Colore colore{};
        bool contorno = false;  ///< a thin line around, for a colour that is pale on white
    };

    /// A line through points, each of which may bear a hollow circle.
    struct Linea {
        QPolygonF punti{};
        double spessore = tratto::serie;
        double raggio = 0.0;  ///< of the circles; 0 for none
        Colore colore{};
        bool tratteggiata = false;
        bool dietro = false;     ///< stands below bars and other lines
        bool ritagliata = true;  ///< what lies outside the plot is not shown
    };

    struct Fetta {
        QPointF centro{};
        double raggio = 0.0;
        double da = 0.0;    ///< degrees from the top, clockwise
        double gira = 0.0;  ///< degrees, clockwise; 360 for all of the pie
        Colore colore{};
        bool contorno = false;
    };

    QRectF campo{};  ///< the plot between the axes, or the room of the pie
    std::vector<Testo> testi{};
    std::vector<Riquadro> riquadri{};
    std::vector<Linea> linee{};
    std::vector<Fetta> fette{};
};

/// Lays a chart out in a room of this size. Words that do not fit are thinned out, broken or shortened, never laid over
/// one another; in a very small room title, note and legend are left out first.
Disposizione disponi(const Grafico::Contenuto& contenuto, QSizeF misura);

}  // namespace kelvo::disegno
