#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "results/frmAnteprimaTesto.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr QSize misuraTesto{960, 460};
constexpr int passoTab = 2;  ///< characters

class Vista final : public VistaFinestra {
public:
    Vista(frmAnteprimaTesto& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(0);
        destra()->setSpacing(misura::spazio);
        auto* percorso = collega(f.lblPercorso, corpo());
        percorso->setFont(dati(punti::nota));
        percorso->setTextInteractionFlags(Qt::TextSelectableByMouse);
        percorso->setWordWrap(true);
        destra()->addWidget(testo(f), 1);
        destra()->addWidget(percorso);
        alPiede(collega(f.cmdCopia, this));
        auto* chiudi = qobject_cast<QPushButton*>(collega(f.cmdChiudi, this));
        chiudi->setDefault(true);
        alPiede(chiudi);
        chiudiDisposizione();
    }
    bool ridimensionabile() const override { return true; }

private:
    QWidget* testo(frmAnteprimaTesto& f) {
        auto* foglio = new QPlainTextEdit(corpo());
        foglio->setReadOnly(true);
        foglio->setLineWrapMode(QPlainTextEdit::NoWrap);
        foglio->setFont(fisso(punti::nota));
        foglio->setTabStopDistance(QFontMetricsF(foglio->font()).horizontalAdvance(QLatin1Char(' ')) * passoTab);
        foglio->setTabChangesFocus(true);
        foglio->setMinimumSize(misuraTesto);
        auto* legame = new Legame(f.txtTesto, *foglio);
        legame->mostra([&f, foglio] { foglio->setPlainText(q(f.txtTesto.testo())); });
        return foglio;
    }
};

}  // namespace

VistaFinestra* vista_frmAnteprimaTesto(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmAnteprimaTesto&>(finestra), genitore);
}

}  // namespace kelvo::ui
