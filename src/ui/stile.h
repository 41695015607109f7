#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>

#include "shell/servizi/tinte.h"

class QApplication;

/// The look of the program on widgets: faces, measures, style sheet; its colours are those of `tinta`.
namespace kelvo::ui {

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
}  // namespace misura

QColor qcolore(Colore colore);

/// Faces of the type, with their fallbacks.
QFont leggero(double punti);
QFont dati(double punti);
QFont forte(double punti);

/// Loads the faces from the program's folder or the system and dresses the application.
void applicaStile(QApplication& applicazione, const QString& cartellaCaratteri);

}  // namespace kelvo::ui
