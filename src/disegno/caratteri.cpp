#include "disegno/caratteri.h"

#include <QtCore/QDir>
#include <QtCore/QStringList>
#include <QtGui/QFontDatabase>
#include <algorithm>
#include <cmath>

#include "shell/servizi/tinte.h"

namespace kelvo::disegno {

namespace {

template <class Nomi>
QFont famiglie(const Nomi& nomi, double pixel) {
    QStringList elenco;
    for (const char* nome : nomi) {
        elenco << QString::fromLatin1(nome);
    }
    QFont carattere;
    carattere.setFamilies(elenco);
    carattere.setPixelSize(std::max(1, static_cast<int>(std::lround(pixel))));
    return carattere;
}

}  // namespace

bool caricaCaratteri(const QString& cartella) {
    const QDir dove(cartella);
    bool trovati = false;
    for (const QString& file : dove.entryList({QStringLiteral("*.ttf")}, QDir::Files)) {
        trovati = QFontDatabase::addApplicationFont(dove.filePath(file)) >= 0 || trovati;
    }
    return trovati;
}

QFont dati(double pixel) {
    return famiglie(famiglia::dati, pixel);
}

QFont forte(double pixel) {
    return famiglie(famiglia::forte, pixel);
}

QColor qcolore(Colore colore) {
    return {colore.rosso, colore.verde, colore.blu};
}

}  // namespace kelvo::disegno
