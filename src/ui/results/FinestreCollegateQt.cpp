#include "ui/results/FinestreCollegateQt.h"

#include <QtCore/QEvent>
#include <QtGui/QShortcut>
#include <algorithm>

#include "shell/MDI_Form.h"
#include "shell/servizi/pelle.h"
#include "ui/VistaFinestra.h"
#include "ui/shell/VistaMDI_Form.h"
#include "ui/stile.h"

namespace kelvo::ui {

FinestreCollegateQt::FinestreCollegateQt(VistaMDI_Form& vista) : vista_(vista) {
    vista_.area().installEventFilter(this);
}

FinestreCollegateQt::~FinestreCollegateQt() = default;

bool FinestreCollegateQt::mostra(Finestra& finestra) {
    return cornice_->gestione.ShowForm(&finestra);
}

void FinestreCollegateQt::affianca(Finestra& finestra) {
    QPointer<VistaFinestra>& vista = accanto_[&finestra];
    if (vista.isNull()) {
        vesti(finestra, cornice_->contorno().app.configurazione.LayoutPannello);
        vista = creaVista(finestra, &vista_.area());
        if (vista.isNull()) {
            return;
        }
        vista->setProperty("accanto", true);
        vista->setAttribute(Qt::WA_StyledBackground);
        vista->setContentsMargins(1, 1, 1, 1);
        auto* uscita = new QShortcut(QKeySequence(Qt::Key_Escape), vista.data());
        QObject::connect(uscita, &QShortcut::activated, vista.data(), [this, &finestra] { chiudi(finestra); });
        vista->installEventFilter(this);
    }
    colloca(*vista);
    vista->show();
    vista->raise();
}

void FinestreCollegateQt::sovrapponi(Finestra& finestra) {
    vista_.mostraModale(finestra);
}

void FinestreCollegateQt::chiudi(Finestra& finestra) {
    togli(finestra);
    vista_.chiudiSopra(finestra);
}

void FinestreCollegateQt::dimentica(Finestra& finestra) {
    togli(finestra);
    vista_.chiudiSopra(finestra);
    vista_.dimentica(finestra);
}

void FinestreCollegateQt::togli(Finestra& finestra) {
    const auto trovata = accanto_.find(&finestra);
    if (trovata == accanto_.end()) {
        return;
    }
    const QPointer<VistaFinestra> vista = trovata->second;
    accanto_.erase(trovata);
    if (!vista.isNull()) {
        vista->hide();
        vista->setParent(nullptr);
        vista->deleteLater();
    }
}

/// At the right edge, its foot in line with the panels of the window beside it.
void FinestreCollegateQt::colloca(QWidget& vista) const {
    const QSize area = vista_.area().size();
    constexpr int m = misura::margine;
    const int larga = misura::colonnaRisultati;
    const int alta = std::max(vista.sizeHint().height(), vista.heightForWidth(larga));
    const int sopra = std::max(misura::fasciaTitolo, area.height() - alta - m);
    vista.setGeometry(std::max(0, area.width() - larga - m), sopra, larga, std::min(alta, area.height() - sopra));
}

bool FinestreCollegateQt::eventFilter(QObject* oggetto, QEvent* evento) {
    const bool misure = evento->type() == QEvent::Resize && oggetto == &vista_.area();
    if (misure || evento->type() == QEvent::LayoutRequest) {
        for (const auto& voce : accanto_) {
            if (!voce.second.isNull() && (misure || oggetto == voce.second)) {
                colloca(*voce.second);
            }
        }
    }
    return QObject::eventFilter(oggetto, evento);
}

}  // namespace kelvo::ui
