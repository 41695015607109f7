#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmMatriceSvolte.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaPianta.h"
#include "ui/input/QuadroMatrice.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmMatriceSvolte& f, QWidget* genitore) : VistaFinestra(f, genitore), f_(f) {
        larghezzaColonna(misura::colonnaMatrice);
        auto* nomi = new Pannello({}, corpo());
        nomi->fitto();
        for (std::size_t i = 0; i < f.txtIngresso.size(); ++i) {
            nomi->riga(f.lblIngresso[i], collega(f.txtIngresso[i], nomi));
        }
        colonna()->addWidget(nomi);
        auto* valori = new Pannello({}, corpo());
        auto* percento = collega(f.lblPercentualeROSSO, valori);
        percento->setFont(forte(punti::gruppo));
        valori->larga(percento);
        valori->larga(new QuadroMatrice(f, valori));
        colonna()->addWidget(valori);
        colonna()->addWidget(collega(f.cmdImportaCSV, corpo()), 0, Qt::AlignLeft);
        aggiungiAiuto(QStringLiteral("Svolta e flussi"))->alPosto(pianta());
        chiudiDisposizione();
    }

private:
    /// The plan below a line with the movement in words and the button of the flows.
    QWidget* pianta() {
        auto* insieme = new QWidget(corpo());
        auto* piano = new QVBoxLayout(insieme);
        piano->setContentsMargins(0, 0, 0, 0);
        auto* riga = new QHBoxLayout;
        auto* parole = collega(f_.lblMovimento, insieme);
        parole->setFont(dati(punti::corpo));
        riga->addWidget(parole, 1);
        riga->addWidget(collega(f_.chkFlussi, insieme));
        piano->addLayout(riga);
        piano->addWidget(collega(f_.ctlPianta, insieme), 1);
        return insieme;
    }

    frmMatriceSvolte& f_;
};

}  // namespace

VistaFinestra* vista_frmMatriceSvolte(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmMatriceSvolte&>(finestra), genitore);
}

}  // namespace kelvo::ui
