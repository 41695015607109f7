#pragma once

#include <QtCore/QString>
#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <string>

namespace kelvo::ui {

/// The drawings of the program, found below one folder of pictures.
void cartellaImmagini(const std::string& cartella);

/// Folder of the small signs (arrows, ticks) that the style sheet shows.
QString cartellaSegni();

/// Icon of a key, with its disabled drawing; `suBlu` for bars in the main colour. Empty for a key without drawing.
QIcon icona(const std::string& chiave, bool suBlu);

/// A sign of the levels ("Red", "Yellow", "Green"), a small sign ("errore"), or the sign of the program ("Kelvo").
/// Empty for a name without drawing.
QIcon segno(const std::string& nome);

/// True if there is a picture of this resource name.
bool esisteImmagine(const std::string& risorsa);

/// A picture of the program by its resource name ("4RAMI"), drawn at a size in logical pixels for a screen of
/// `rapporto` device pixels a logical pixel. Empty if there is none.
QPixmap immagine(const std::string& risorsa, QSize misura, double rapporto);

}  // namespace kelvo::ui
