#pragma once

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <string>

namespace kelvo::ui {

/// The drawings of the program, found below one folder of pictures.
void cartellaImmagini(const std::string& cartella);

/// Icon of a key, with its disabled drawing; `suBlu` for bars in the main colour. Empty for a key without drawing.
QIcon icona(const std::string& chiave, bool suBlu);

/// A picture of the program by its resource name ("4RAMI"), drawn at a size in logical pixels for a screen of
/// `rapporto` device pixels a logical pixel. Empty if there is none.
QPixmap immagine(const std::string& risorsa, QSize misura, double rapporto);

}  // namespace kelvo::ui
