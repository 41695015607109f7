#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>

#include "base/Tabella.h"

class QApplication;

/// The look of the program in one place: colours, faces, measures, style sheet.
namespace kelvo::ui {

namespace tinta {
inline constexpr Colore principale{0, 114, 198};
inline constexpr Colore principaleScuro{0, 90, 158};
inline constexpr Colore principalePremuto{0, 69, 122};
inline constexpr Colore titolo{0, 86, 143};
inline constexpr Colore inchiostro{32, 32, 32};
inline constexpr Colore secondario{90, 96, 104};
inline constexpr Colore spento{110, 117, 124};
inline constexpr Colore grafite{64, 72, 80};
inline constexpr Colore bordoCampo{124, 133, 141};
inline constexpr Colore bordo{195, 200, 205};
inline constexpr Colore bordoSpento{211, 215, 218};
inline constexpr Colore fondo{246, 248, 250};
inline constexpr Colore barra{240, 242, 244};
inline constexpr Colore scelto{204, 227, 243};
inline constexpr Colore sfiorato{229, 241, 250};
inline constexpr Colore errore{176, 0, 32};
inline constexpr Colore fondoErrore{255, 240, 240};
inline constexpr Colore rigaPannello{225, 228, 231};
}  // namespace tinta

/// Logical pixels at 100 %.
namespace misura {
inline constexpr int margine = 16;
inline constexpr int margineVerticale = 14;
inline constexpr int rigaCampo = 32;
inline constexpr int campo = 26;
inline constexpr int bottone = 30;
inline constexpr int spunta = 28;
inline constexpr int rigaAlbero = 24;
inline constexpr int fasciaTitolo = 40;
inline constexpr int barraPrincipale = 48;
inline constexpr int menu = 28;
inline constexpr int barraStato = 26;
inline constexpr int canale = 4;
inline constexpr int iconaPrincipale = 28;
inline constexpr int icona = 20;
inline constexpr int figura = 240;
inline constexpr int segnoErrore = 14;
inline constexpr int bordoSegno = 6;  ///< from the left edge of a refused field to its triangle
}  // namespace misura

QColor qcolore(Colore colore);

/// Faces of the type, with their fallbacks.
QFont leggero(double punti);
QFont dati(double punti);
QFont forte(double punti);

/// `testo` on `sfondo` so that it can be read: unchanged from a contrast of 4.5 on; else a grey becomes ink on a light
/// ground, any other hue goes darker (or lighter, on a dark ground) in steps of 5 % until 4.5 is reached.
Colore inchiostroLeggibile(Colore testo, Colore sfondo);
/// Contrast ratio of two colours, 1 to 21 (WCAG 2.1, relative luminance).
double contrasto(Colore a, Colore b);
/// Black or white, whichever contrasts more.
Colore neroOBianco(Colore sfondo);

/// Loads the faces from the folder or the system and dresses the application. The arrows of lists and numbers stand in
/// Immagini/frecce beside that folder.
void applicaStile(QApplication& applicazione, const QString& cartellaCaratteri);

}  // namespace kelvo::ui
