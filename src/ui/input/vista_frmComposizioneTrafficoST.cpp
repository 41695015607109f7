#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/categorieTraffico.h"
#include "input/frmComposizioneTrafficoST.h"
#include "ui/FasciaColonne.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The table takes the whole width: the locks over their columns, below it how the totals stand to the flows.
class Vista final : public VistaFinestra {
public:
    Vista(frmComposizioneTrafficoST& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        larghezzaColonna(static_cast<int>(disegnoFinestra.W));
        colonna()->setSpacing(misura::canale);
        auto* griglia = collega(f.ctlGrid, corpo());
        auto* fascia = new FasciaColonne(*griglia, corpo());
        blocchi(f, *fascia);
        colonna()->addWidget(fascia);
        constexpr int tutto = 100;  // of the height that is left
        colonna()->addWidget(griglia, tutto);
        esito(f);
        auto* aiuto = new RiquadroAiuto(f.ctlHelp, QStringLiteral("Descrizione della colonna"), corpo());
        aiuto->soloPagina();
        aiuto->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        colonna()->addSpacing(misura::spazio);
        colonna()->addWidget(aiuto);
        chiudiDisposizione();
    }

private:
    static void blocchi(frmComposizioneTrafficoST& f, FasciaColonne& fascia) {
        fascia.inTesta(collega(f.lblBlocca, &fascia));
        for (std::size_t i = 0; i < f.chkLock.size(); ++i) {
            auto* casella = collega(f.chkLock[i], &fascia);
            casella->setAccessibleName(q(f.lblBlocca.testo() + " " + std::string{categorieTraffico[i].intestazione}));
            fascia.sopra(static_cast<int>(i), casella);
        }
    }

    void esito(frmComposizioneTrafficoST& f) {
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::margine);
        QLabel* segmento = collega(f.lblSegmento, corpo());
        segmento->setFont(dati(punti::corpo));
        riga->addWidget(segmento);
        riga->addStretch(1);
        for (Etichetta* testo : {&f.lblStato, &f.lblErroreStato}) {
            QLabel* stato = collega(*testo, corpo());
            stato->setFont(forte(punti::corpo));
            riga->addWidget(stato);
        }
        riga->addWidget(collega(f.cmdImportaCSV, corpo()));
        colonna()->addLayout(riga);
    }
};

}  // namespace

VistaFinestra* vista_frmComposizioneTrafficoST(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmComposizioneTrafficoST&>(finestra), genitore);
}

}  // namespace kelvo::ui
