#include <QtWidgets/QLabel>

#include "ui/cad/viste.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

QLabel* paragrafoCAD(Etichetta& testo, const QFont& carattere, QWidget* genitore) {
    auto* parola = new QLabel(genitore);
    parola->setFont(carattere);
    parola->setTextFormat(Qt::PlainText);
    parola->setWordWrap(true);
    parola->setFixedWidth(misura::testoMessaggio);
    auto* legame = new Legame(testo, *parola);
    legame->mostra([&testo, parola] {
        QString scritto = q(testo.testo());
        for (const QLatin1Char separatore : {QLatin1Char('/'), QLatin1Char('\\')}) {
            scritto.replace(separatore, QString(separatore) + QChar(0x200B));
        }
        parola->setText(scritto);
    });
    return parola;
}

}  // namespace kelvo::ui
