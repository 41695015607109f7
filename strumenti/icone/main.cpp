// kelvo-icona DRAWING SIDE PICTURE: a square picture (PNG) of a drawing (SVG), so many pixels on each side.

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
    constexpr int latoMassimo = 4096;
    const int lato = argc == 4 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;
    if (lato < 1 || lato > latoMassimo) {
        std::fputs("uso: kelvo-icona DISEGNO.svg LATO IMMAGINE.png\n", stderr);
        return 2;
    }
    const QString uscita = QString::fromLocal8Bit(argv[3]);
    QSvgRenderer disegno(QString::fromLocal8Bit(argv[1]));
    QImage immagine(lato, lato, QImage::Format_ARGB32_Premultiplied);
    immagine.fill(Qt::transparent);
    if (disegno.isValid()) {
        QPainter pittore(&immagine);
        pittore.setRenderHint(QPainter::Antialiasing);
        disegno.render(&pittore);
    }
    const bool scritta = disegno.isValid() && QDir().mkpath(QFileInfo(uscita).path()) && immagine.save(uscita, "PNG");
    if (!scritta) {
        std::fprintf(stderr, "kelvo-icona: %s non si legge o %s non si scrive\n", argv[1], argv[3]);
    }
    return scritta ? 0 : 1;
}
