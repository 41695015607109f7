#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmAnalisiMarginale.h"
#include "ui/RiquadroAiuto.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"

namespace kelvo::ui {

namespace {

QString fraParentesi(std::string_view unita) {
    return QStringLiteral("[%1]").arg(q(std::string{unita}));
}

class Vista final : public VistaFinestra {
public:
    Vista(frmAnalisiMarginale& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        auto* parametri = new Pannello(QStringLiteral("Parametri da variare e passo di variazione"), corpo());
        for (std::size_t i = 0; i < f.passi.size(); ++i) {
            parametri->riga(collega(f.passi[i].chk, parametri), collega(f.passi[i].txt, parametri),
                            fraParentesi(campiPasso[i].unita), q(intervalloAmmesso(campiPasso[i])));
        }
        colonna()->addWidget(parametri);
        auto* pedoni = collega(f.frAttraversamenti, corpo());
        pedoni->riga(f.lblAttraversamentoPedonale, collega(f.txtAttraversamentoPedonale, pedoni),
                     fraParentesi(campoAttraversamento.unita), q(intervalloAmmesso(campoAttraversamento)));
        pedoni->avviso(f.lblSenzaAttraversamento);
        colonna()->addWidget(pedoni);
        auto* esterne = new Pannello({}, corpo());
        esterne->riga(collega(f.chkCondizioniEsterne, esterne), collega(f.txtCondizioniEsterne, esterne),
                      fraParentesi(campoCondizioni.unita), q(intervalloAmmesso(campoCondizioni)));
        esterne->avviso(f.lblCondizioniEsterne);
        esterne->riga(f.lblDescrizioneCondizioniEsterne, collega(f.txtDescrizioneCondizioniEsterne, esterne));
        colonna()->addWidget(esterne);
        aggiungiAiuto(QStringLiteral("Descrizione del parametro"))->segui(f.ctlPicture);
        chiudiDisposizione();
    }
};

}  // namespace

VistaFinestra* vista_frmAnalisiMarginale(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmAnalisiMarginale&>(finestra), genitore);
}

}  // namespace kelvo::ui
