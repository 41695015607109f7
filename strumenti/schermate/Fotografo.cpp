#include "schermate/Fotografo.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

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

void Fotografo::scatta(QWidget& oggetto, const std::string& nome) {
    oggetto.activateWindow();  // no window manager gives it the keyboard back
    lasciaCorrere();
    scrivi(oggetto.grab(), nome);
}

void Fotografo::scatta(QWidget& oggetto, QWidget& sopra, QPoint posto, const std::string& nome) {
    lasciaCorrere();
    QPixmap immagine = oggetto.grab();
    QPainter pennello(&immagine);
    pennello.drawPixmap(posto, sopra.grab());
    pennello.end();
    scrivi(immagine, nome);
}

void Fotografo::scrivi(const QPixmap& immagine, const std::string& nome) {
    const std::filesystem::path file = cartella_ / (nome + ".png");
    constexpr int piuStretto = 0;  // the smallest file
    const QImage opaca = immagine.toImage().convertToFormat(QImage::Format_RGB888);
    if (opaca.save(QString::fromStdString(file.string()), "PNG", piuStretto)) {
        ++scritte_;
    } else {
        fallite_ += (fallite_.empty() ? "" : ", ") + file.string();
    }
}

}  // namespace kelvo::schermate
