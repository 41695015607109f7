#include "schermate/Fotografo.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>
#include <utility>

namespace kelvo::schermate {

Fotografo::Fotografo(const std::string& cartella) : cartella_(cartella) {
    std::filesystem::create_directories(cartella_);
}

void lasciaCorrere() {
    constexpr int giri = 6;
    for (int i = 0; i < giri; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

void Fotografo::solo(std::map<std::string, Parte> elenco, const QWidget& principale, std::function<QRect()> finestra) {
    tutte_ = false;
    principale_ = &principale;
    elenco_ = std::move(elenco);
    finestra_ = std::move(finestra);
}

bool Fotografo::voluta(const std::string& nome) const {
    return tutte_ || elenco_.count(nome) != 0;
}

void Fotografo::scatta(QWidget& oggetto, const std::string& nome) {
    if (!voluta(nome)) {
        return;
    }
    oggetto.activateWindow();  // no window manager gives it the keyboard back
    lasciaCorrere();
    scrivi(oggetto.grab(), nome, oggetto);
}

void Fotografo::scatta(QWidget& oggetto, QWidget& sopra, QPoint posto, const std::string& nome) {
    if (!voluta(nome)) {
        return;
    }
    lasciaCorrere();
    QPixmap immagine = oggetto.grab();
    QPainter pennello(&immagine);
    pennello.drawPixmap(posto, sopra.grab());
    pennello.end();
    scrivi(immagine, nome, oggetto);
}

void Fotografo::scrivi(const QPixmap& immagine, const std::string& nome, const QWidget& oggetto) {
    const std::filesystem::path file = cartella_ / (nome + ".png");
    constexpr int piuStretto = 0;  // the smallest file
    constexpr int piuRapido = 80;  // of a picture that is an errand of the build
    QImage opaca = immagine.toImage().convertToFormat(QImage::Format_RGB888);
    if (const auto voce = elenco_.find(nome);
        &oggetto == principale_ && voce != elenco_.end() && voce->second == Parte::finestra) {
        const double scala = immagine.devicePixelRatio();
        const QRect dove = finestra_();
        opaca = opaca.copy(
            QRectF(dove.x() * scala, dove.y() * scala, dove.width() * scala, dove.height() * scala).toAlignedRect());
    }
    if (opaca.save(QString::fromStdString(file.string()), "PNG", tutte_ ? piuStretto : piuRapido)) {
        ++scritte_;
    } else {
        fallite_ += (fallite_.empty() ? "" : ", ") + file.string();
    }
}

}  // namespace kelvo::schermate
