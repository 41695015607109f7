#include "disegno/testiGrafico.h"

#include <algorithm>

#include "disegno/caratteri.h"

namespace kelvo::disegno {

namespace {

/// Lines filled word by word; false where a single word is too wide or they are too many.
bool riempite(const QString& parole, double larga, int massime, Tipo tipo, QStringList& righe) {
    righe.clear();
    for (const QString& parola : parole.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString prova = righe.isEmpty() ? parola : righe.back() + QLatin1Char(' ') + parola;
        if (!righe.isEmpty() && larghezza(prova, tipo) <= larga) {
            righe.back() = prova;
        } else {
            righe << parola;
        }
    }
    return righe.size() <= massime &&
           std::all_of(righe.begin(), righe.end(), [&](const QString& r) { return larghezza(r, tipo) <= larga; });
}

}  // namespace

QFont carattere(Tipo tipo) {
    return tipo.forte ? forte(tipo.altezza) : dati(tipo.altezza);
}

double larghezza(const QString& parole, Tipo tipo) {
    return QFontMetricsF(carattere(tipo)).horizontalAdvance(parole);
}

double altezzaRiga(Tipo tipo) {
    return QFontMetricsF(carattere(tipo)).height();
}

QString qtesto(const std::string& testo) {
    return QString::fromStdString(testo);
}

QStringList inRighe(const QString& parole, double larga, int massime, Tipo tipo) {
    if (larghezza(parole, tipo) <= larga) {
        return {parole};
    }
    QStringList righe;
    if (riempite(parole, larga, massime, tipo, righe)) {
        return righe;
    }
    // Too much: what is behind the last line goes into it, then each line is shortened.
    while (righe.size() > massime) {
        const QString ultima = righe.takeLast();
        righe.back() += QLatin1Char(' ') + ultima;
    }
    for (QString& riga : righe) {
        riga = accorciato(riga, larga, tipo);
    }
    return righe;
}

QString accorciato(const QString& parole, double larga, Tipo tipo) {
    if (larghezza(parole, tipo) <= larga) {
        return parole;
    }
    constexpr int almeno = 3;
    constexpr int tentativi = 4;
    const QFontMetricsF metrica(carattere(tipo));
    for (int i = 0; i < tentativi; ++i) {
        // What the toolkit shortens may come out a little wider than it was asked for: kerning across the dots.
        const QString corto = metrica.elidedText(parole, Qt::ElideMiddle, larga - i);
        if (corto.size() < almeno || larghezza(corto, tipo) <= larga) {
            return corto.size() < almeno ? QString() : corto;
        }
    }
    return {};
}

Disposizione::Testo testoPresso(Disposizione::Testi ruolo, const QString& parole, QPointF punto, QPointF parte,
                                Tipo tipo) {
    const QSizeF misura(larghezza(parole, tipo), altezzaRiga(tipo));
    const QPointF angolo = punto - QPointF(parte.x() * misura.width(), parte.y() * misura.height());
    return {
        .ruolo = ruolo, .parole = parole, .dove = QRectF(angolo, misura), .altezza = tipo.altezza, .forte = tipo.forte};
}

bool pallido(Colore colore) {
    constexpr double visibile = 3.0;
    return contrasto(colore, colori::bianco) < visibile;
}

}  // namespace kelvo::disegno
