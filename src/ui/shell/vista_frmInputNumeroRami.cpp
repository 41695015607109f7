#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
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
    Vista(frmInputNumeroRami& f, QWidget* genitore) : VistaFinestra(f, genitore, misuraVista) {
        auto* tutto = colonna({0, 0, misuraVista.W, misuraVista.H});
        auto* dati = new Pannello({}, corpo());
        dati->riga(f.lblNumeroRami, collega(f.txtNumeroRami, dati));
        dati->larga(collega(f.ctlPicture, dati));
        auto* attenzione = collega(f.lblAttenzione, dati);
        dati->larga(attenzione);
        attenzione->setFont(forte(10.5));  // a new parent would undo it
        auto* avvertenza = collega(f.lblAvvertenza, dati);
        avvertenza->setWordWrap(true);
        dati->larga(avvertenza);
        tutto->addWidget(dati);
        auto* pulsanti = new QHBoxLayout;
        pulsanti->addStretch(1);
        auto* ok = qobject_cast<QPushButton*>(collega(f.cmdOk, corpo()));
        ok->setDefault(true);
        pulsanti->addWidget(ok);
        pulsanti->addWidget(collega(f.cmdCancel, corpo()));
        tutto->addLayout(pulsanti);
        tutto->addStretch(1);
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
