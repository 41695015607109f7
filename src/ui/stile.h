#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>

#include "shell/servizi/tinte.h"

class QApplication;

/// The look of the program on widgets: faces, measures, style sheet; its colours are those of `tinta`.
namespace kelvo::ui {

/// Logical pixels at 100 %.
namespace misura {
inline constexpr int larghezzaMinima = 960;  ///< of the main window
inline constexpr int altezzaMinima = 600;
inline constexpr int finestraStretta = 1400;  ///< a window below this has headings in smaller type
inline constexpr int margine = 16;
inline constexpr int margineVerticale = 14;
inline constexpr int rigaCampo = 32;
inline constexpr int campo = 26;
inline constexpr int bottone = 30;
inline constexpr int spunta = 28;
inline constexpr int sporgenza = 6;  ///< of the focus ring of a check box, left of its sign
inline constexpr int rientro = 24;   ///< from the sign of a check box to its words
inline constexpr int rigaAlbero = 24;
inline constexpr int fasciaTitolo = 40;
inline constexpr int barraPrincipale = 48;
inline constexpr int menu = 28;
inline constexpr int barraStato = 26;
inline constexpr int canale = 4;
inline constexpr int iconaPrincipale = 28;
inline constexpr int icona = 20;
inline constexpr int figura = 240;
inline constexpr int figuraAccanto = 220;  ///< beside a page of the help pane
inline constexpr int pianta = 320;
inline constexpr int testoPianta = 14;  ///< type of the live plan
inline constexpr int anteprima = 760;   ///< beside the files of a dialogue
inline constexpr int dialogoAnteprima = 1240;
inline constexpr int elencoFile = 400;
inline constexpr int altezzaAnteprima = 560;
inline constexpr int figuraMinima = 144;  ///< on a low window
inline constexpr int colonna = 432;       ///< column of panels of a data window
inline constexpr int colonnaLarga = 520;  ///< of a window of texts
inline constexpr int colonnaStretta = 336;
inline constexpr int colonnaMinima = 272;
inline constexpr int colonnaMatrice = 548;    ///< of the matrix with its totals
inline constexpr int anteprimaMatrice = 220;  ///< height of a matrix beside the files of a dialogue
inline constexpr int elenco = 376;            ///< least width of a list with columns
inline constexpr int campoCorto = 96;         ///< field of a number or a time
inline constexpr int campoBreve = 68;         ///< of a number of few digits
inline constexpr int aiuto = 112;             ///< text of the help pane
inline constexpr int paginaSola = 92;         ///< the same without a picture
inline constexpr int aiutoLargo = 272;        ///< least width of the help pane
inline constexpr int barraAlbero = 3;         ///< mark of the selected node
inline constexpr int rientroAlbero = 16;
inline constexpr int aggiuntaAlbero = 24;  ///< beside the widest row
inline constexpr int bordoTesto = 2;
inline constexpr int margineDialogo = 24;
inline constexpr int piedeVerticale = 12;
inline constexpr int segno = 32;        ///< sign of a message
inline constexpr int segnoErrore = 14;  ///< sign in a field
inline constexpr int bordoSegno = 6;    ///< from the left edge of a refused field to its triangle
inline constexpr int testoMessaggio = 460;
inline constexpr int riquadroVuoto = 360;
inline constexpr int spazio = 8;
inline constexpr int spazioStretto = 12;  ///< between panels of a low window
inline constexpr int spazioRighe = 6;
inline constexpr int spazioSpunte = 2;  ///< between rows of check boxes with a field
inline constexpr int lineaRamo = 18;    ///< between title and leg in the caption panel
inline constexpr int avanzamento = 360;
inline constexpr int note = 84;
inline constexpr int barraSeconda = 38;
inline constexpr int colonnaRisultati = 240;  ///< at the right of the figures
inline constexpr int inVigore = 200;          ///< height of what is in force, once it is asked for
inline constexpr int grafico = 480;           ///< usual width of a chart; 5 wide to 3 high
inline constexpr int graficoMinimo = 240;
}  // namespace misura

/// Sizes of the type, points.
namespace punti {
inline constexpr double corpo = 10.0;
inline constexpr double barra = 9.5;
inline constexpr double nota = 9.0;
inline constexpr double gruppo = 10.5;
inline constexpr double pannello = 13.0;
inline constexpr double titolo = 18.0;
}  // namespace punti

QColor qcolore(Colore colore);

/// Faces of the type, with their fallbacks.
QFont leggero(double punti);
QFont dati(double punti);
QFont forte(double punti);

/// Loads the faces from the program's folder or the system and dresses the application.
void applicaStile(QApplication& applicazione, const QString& cartellaCaratteri);

}  // namespace kelvo::ui
