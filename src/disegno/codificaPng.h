#pragma once

#include <QtCore/QByteArray>
#include <QtGui/QImage>

namespace kelvo::disegno {

/// Furthest that a channel of a pixel may move when a picture is given a palette, of 255.
inline constexpr int scartoTavolozza = 6;

/// The picture with a palette of at most 256 colours. The most frequent colours stay as they are; a rarer one, a shade
/// at the edge of a letter, takes the nearest of them. A null image where one would move by more than
/// `scartoTavolozza`. Only for a picture without transparency, of format RGB32.
QImage conTavolozza(const QImage& immagine);

/// The picture as the bytes of a PNG file, with a palette where its colours allow; empty if it cannot be written.
QByteArray codificaPng(const QImage& immagine);

}  // namespace kelvo::disegno
