// kelvo-figure: the pictures of the measures of an entry, painted from one typical leg.

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtSvg/QSvgGenerator>
#include <algorithm>
#include <array>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>

#include "disegno/AmbienteDisegno.h"
#include "disegno/caratteri.h"
#include "disegno/pittorePianta.h"
#include "pianta/Pianta.h"
#include "shell/servizi/tinte.h"

namespace {

using kelvo::pianta::Misura;
using kelvo::pianta::Pianta;
using kelvo::pianta::Quota;

constexpr double larga = 440.0;  ///< twice the width that they are shown at
constexpr double alta = 380.0;
constexpr double tratto = 2.2;       ///< pens, over those of a screen
constexpr double corpo = 40.0;       ///< size of the symbol
constexpr double altezzaQuota = 24;  ///< size that arrows and ticks follow

/// A picture and the measure that it shows.
struct Figura {
    const char* nome = "";
    std::optional<Misura> misura{};
};
constexpr std::array figure{
    Figura{"LARGHEZZA_INGRESSO", Misura::larghezzaIngresso},
    Figura{"LARGHEZZA_APPROCCIO", Misura::semiLarghezza},
    Figura{"LUNGHEZZA_SVASATURA", Misura::lunghezzaSvasatura},
    Figura{"ANGOLO_CONFLITTO", Misura::angoloConflitto},
    Figura{"RAGGIO_INGRESSO", Misura::raggioIngresso},
    Figura{"DIAMETRO_INSCRITTO", Misura::diametro},
    Figura{"VUOTA", std::nullopt},
};

kelvo::pianta::DatiRamo tipico() {
    return {.larghezzaIngresso = 6.5,
            .semiLarghezza = 3.75,
            .lunghezzaSvasatura = 18.0,
            .angoloConflitto = 35.0,
            .raggioIngresso = 20.0,
            .diametroInscritto = 40.0};
}

/// The plan with the one dimension of the picture: its symbol alone stands at it.
Pianta pianta(const Figura& figura) {
    kelvo::pianta::OpzioniPianta opzioni{.vista = kelvo::pianta::Vista::primoPiano,
                                         .ramo = 1,
                                         .misura = figura.misura,
                                         .rapporto = larga / alta,
                                         .altezzaTesto = 0.02,
                                         .nomi = false,
                                         .lettere = false,
                                         .note = false};
    const kelvo::pianta::DatiPianta dati{.rami = {4, tipico()}, .ipotesi = {}};
    Pianta disegno = kelvo::pianta::costruisci(dati, opzioni);
    std::erase_if(disegno.quote, [](const Quota& q) { return !q.evidenziata; });
    for (Quota& q : disegno.quote) {
        q.altezza = altezzaQuota / alta * disegno.vista.altezza();
    }
    return disegno;
}

/// The symbol of a dimension, as a shape, so that it needs no face where it is shown.
void simbolo(QPainter& pennello, const Pianta& disegno, const Quota& quota) {
    const double scala = std::min(larga / disegno.vista.larghezza(), alta / disegno.vista.altezza());
    const double x = (quota.testo.x - disegno.vista.minimo.x) * scala;
    const double y = (disegno.vista.massimo.y - quota.testo.y) * scala;
    QPainterPath via;
    const auto& voce = kelvo::pianta::vociMisure[static_cast<std::size_t>(quota.misura)];
    via.addText(x, y + corpo * 0.3, kelvo::disegno::forte(corpo), QString::fromUtf8(voce.breve.data()));
    pennello.fillPath(via, kelvo::disegno::qcolore(kelvo::tinta::titolo));
}

QByteArray svg(const Figura& figura) {
    const Pianta disegno = pianta(figura);
    QByteArray byte;
    QBuffer memoria(&byte);
    memoria.open(QIODevice::WriteOnly);
    QSvgGenerator generatore;
    generatore.setOutputDevice(&memoria);
    generatore.setSize(QSize(static_cast<int>(larga), static_cast<int>(alta)));
    generatore.setViewBox(QRectF(0, 0, larga, alta));
    generatore.setTitle(QString::fromLatin1(figura.nome));
    generatore.setDescription(QStringLiteral("Kelvo"));
    QPainter pennello(&generatore);
    kelvo::disegno::dipingiPianta(pennello, disegno, QRectF(0, 0, larga, alta), {.tratto = tratto, .testi = false});
    for (const Quota& quota : disegno.quote) {
        simbolo(pennello, disegno, quota);
    }
    pennello.end();
    return byte;
}

bool scrivi(const std::string& cartella) {
    for (const Figura& figura : figure) {
        QFile file(QString::fromStdString(cartella + "/" + figura.nome + ".svg"));
        const QByteArray byte = svg(figura);
        if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size()) {
            std::fprintf(stderr, "kelvo-figure: '%s' non si lascia scrivere\n", qPrintable(file.fileName()));
            return false;
        }
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("uso: kelvo-figure CARTELLA\n", stderr);
        return 2;
    }
    try {
        const kelvo::disegno::AmbienteDisegno ambiente(KELVO_CARTELLA "/Caratteri");
        return scrivi(argv[1]) ? 0 : 1;
    } catch (const std::exception& guasto) {
        std::fprintf(stderr, "kelvo-figure: %s\n", guasto.what());
        return 1;
    }
}
