#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmImportaCSV.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmImportaCSV& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(QWIDGETSIZE_MAX);
        destra()->parentWidget()->hide();
        corpo()->layout()->setContentsMargins(0, 0, 0, 0);
        colonna()->setSpacing(misura::spazioStretto);
        colonna()->addWidget(contenuto(f), 1);
        auto* sotto = new QHBoxLayout;
        sotto->setSpacing(misura::margine);
        sotto->addWidget(file(f), 1);
        sotto->addWidget(colonne(f), 1);
        colonna()->addLayout(sotto);
        chiudiDisposizione();
    }

private:
    QWidget* contenuto(frmImportaCSV& f) {
        Pannello* pannello = collega(f.frAnteprima, corpo());
        VistaGriglia* griglia = collega(f.ctlGrid, pannello);
        griglia->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        griglia->setMinimumHeight(misura::note);
        pannello->larga(griglia);
        auto* avviso = collega(f.lblAvviso, pannello);
        avviso->setFont(dati(punti::corpo));
        avviso->setWordWrap(true);
        pannello->larga(avviso);
        return pannello;
    }
    QWidget* file(frmImportaCSV& f) {
        auto* lato = new QWidget(corpo());
        auto* piano = new QVBoxLayout(lato);
        piano->setContentsMargins(0, 0, 0, 0);
        Pannello* pannello = collega(f.frFile, lato);
        pannello->riga(f.lblSeparatore, collega(f.txtSeparatore, pannello));
        pannello->larga(collega(f.chkIntestazioni, pannello));
        piano->addWidget(pannello);
        auto* aiuto = new RiquadroAiuto(f.ctlHelp, QStringLiteral("Descrizione"), lato);
        aiuto->soloPagina();
        piano->addWidget(aiuto, 1);
        return lato;
    }
    QWidget* colonne(frmImportaCSV& f) {
        Pannello* pannello = collega(f.frColonne, corpo());
        for (std::size_t i = 0; i < f.txtColonna.size(); ++i) {
            if (f.txtColonna.at(i).visibile()) {
                pannello->riga(f.lblColonna.at(i), collega(f.txtColonna.at(i), pannello));
            }
        }
        auto* resto = new QWidget(pannello);
        resto->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
        pannello->larga(resto);
        return pannello;
    }
};

}  // namespace

VistaFinestra* vista_frmImportaCSV(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmImportaCSV&>(finestra), genitore);
}

}  // namespace kelvo::ui
