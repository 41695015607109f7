#include "ui/icone.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <map>
#include <string_view>
#include <utility>

namespace kelvo::ui {

namespace {

QString& radice() {
    static QString cartella;
    return cartella;
}

/// Path of a drawing, found without regard to case; empty if there is none.
QString disegno(const QString& cartella, const std::string& nome) {
    const QDir dove(radice() + QLatin1Char('/') + cartella);
    const QString cercato = QString::fromStdString(nome) + QStringLiteral(".svg");
    for (const QString& file : dove.entryList({QStringLiteral("*.svg")}, QDir::Files)) {
        if (file.compare(cercato, Qt::CaseInsensitive) == 0) {
            return dove.filePath(file);
        }
    }
    return {};
}

/// "4RAMI" and "RAMI4" are one drawing.
std::string nomeFigura(const std::string& risorsa) {
    constexpr std::string_view rami = "RAMI";
    if (risorsa.size() == rami.size() + 1 && risorsa.ends_with(rami)) {
        return std::string{rami} + risorsa.front();
    }
    return risorsa;
}

}  // namespace

void cartellaImmagini(const std::string& cartella) {
    radice() = QString::fromStdString(cartella);
}

QString cartellaSegni() {
    return radice() + QStringLiteral("/segni");
}

QIcon segno(const std::string& nome) {
    for (const char* cartella : {"icone/livelli", "segni"}) {
        const QString file = disegno(QString::fromLatin1(cartella), nome);
        if (!file.isEmpty()) {
            return QIcon(file);
        }
    }
    return {};
}

bool esisteImmagine(const std::string& risorsa) {
    return !disegno(QStringLiteral("figure"), nomeFigura(risorsa)).isEmpty();
}

namespace {

QIcon leggiIcona(const std::string& chiave, bool suBlu) {
    const QString abilitata =
        disegno(suBlu ? QStringLiteral("icone/su-blu") : QStringLiteral("icone/abilitate"), chiave);
    if (abilitata.isEmpty()) {
        return {};
    }
    QIcon icona(abilitata);
    const QString spenta =
        disegno(suBlu ? QStringLiteral("icone/su-blu-disabilitate") : QStringLiteral("icone/disabilitate"), chiave);
    if (!spenta.isEmpty()) {
        icona.addFile(spenta, {}, QIcon::Disabled);
    }
    return icona;
}

}  // namespace

QIcon icona(const std::string& chiave, bool suBlu) {
    // Menus and tree ask for the same few drawings again and again.
    static std::map<std::pair<std::string, bool>, QIcon> lette;
    const auto [voce, nuova] = lette.try_emplace({chiave, suBlu});
    if (nuova) {
        voce->second = leggiIcona(chiave, suBlu);
    }
    return voce->second;
}

QPixmap immagine(const std::string& risorsa, QSize misura, double rapporto) {
    const QString file = disegno(QStringLiteral("figure"), nomeFigura(risorsa));
    if (file.isEmpty() || misura.isEmpty()) {
        return {};
    }
    QSvgRenderer disegnatore(file);
    if (!disegnatore.isValid()) {
        return {};
    }
    disegnatore.setAspectRatioMode(Qt::KeepAspectRatio);
    QPixmap figura(misura * rapporto);
    figura.setDevicePixelRatio(rapporto);
    figura.fill(Qt::transparent);
    QPainter pennello(&figura);
    pennello.setRenderHint(QPainter::Antialiasing);
    disegnatore.render(&pennello, QRectF(QPointF(0, 0), QSizeF(misura)));
    return figura;
}

}  // namespace kelvo::ui
