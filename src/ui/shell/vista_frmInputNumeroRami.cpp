#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmInputNumeroRami.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr Misura misuraVista{432, 420};

class Vista final : public VistaFinestra {
public:
    Vista(frmInputNumeroRami& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        auto* dati = new Pannello({}, corpo());
        dati->setMinimumWidth(misura::avanzamento);
        dati->riga(f.lblNumeroRami, collega(f.txtNumeroRami, dati), {}, QStringLiteral("3 ÷ 7"));
        auto* figura = collega(f.ctlPicture, dati);
        figura->setFixedHeight(misura::figura);
        dati->larga(figura);
        auto* attenzione = collega(f.lblAttenzione, dati);
        attenzione->setFont(forte(punti::gruppo));
        dati->larga(attenzione);
        attenzione->setFont(forte(10.5));  // a new parent would undo it
        auto* avvertenza = collega(f.lblAvvertenza, dati);
        avvertenza->setWordWrap(true);
        dati->larga(avvertenza);
        colonna()->addWidget(dati);
        auto* ok = qobject_cast<QPushButton*>(collega(f.cmdOk, this));
        ok->setDefault(true);
        alPiede(ok);
        alPiede(collega(f.cmdCancel, this));
        chiudiDisposizione();
        chiusura_ = f.chiusura().connect([this] { window()->close(); });
    }
    ~Vista() override { chiusura_.disconnect(); }
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;

private:
    sigc::connection chiusura_;
};

}  // namespace

VistaFinestra* vista_frmInputNumeroRami(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmInputNumeroRami&>(finestra), genitore);
}

}  // namespace kelvo::ui
