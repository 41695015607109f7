#include "disegno/AmbienteDisegno.h"

#include <QtCore/QString>
#include <QtGui/QGuiApplication>
#include <array>
#include <clocale>

#include "disegno/caratteri.h"

namespace kelvo::disegno {

namespace {

/// The toolkit's own remarks reach nobody: what fails is told by whoever asked for a drawing.
void taci(QtMsgType /*tipo*/, const QMessageLogContext& /*contesto*/, const QString& /*testo*/) {}

}  // namespace

struct AmbienteDisegno::Interno {
    // The toolkit keeps references to its arguments and may change them.
    std::string programma = "kelvo";
    std::string opzione = "-platform";
    std::string piattaforma = "offscreen";
    std::array<char*, 4> parole{programma.data(), opzione.data(), piattaforma.data(), nullptr};
    int quante = 3;
    QtMessageHandler prima = qInstallMessageHandler(&taci);
    QGuiApplication qt{quante, parole.data()};
};

AmbienteDisegno::AmbienteDisegno(const std::string& cartellaCaratteri) : interno_(std::make_unique<Interno>()) {
    // The toolkit sets the system's locale: numbers in files would carry its comma.
    std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe): nothing else runs yet
    caricaCaratteri(QString::fromStdString(cartellaCaratteri));
}

AmbienteDisegno::~AmbienteDisegno() {
    const QtMessageHandler prima = interno_->prima;
    interno_.reset();
    qInstallMessageHandler(prima);
}

}  // namespace kelvo::disegno
