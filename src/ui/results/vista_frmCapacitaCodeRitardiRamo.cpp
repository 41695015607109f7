#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include "results/frmCapacitaCodeRitardiRamo.h"
#include "ui/VistaGrafico.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/results/VistaRisultati.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Room of the widest unit: the fields stay where they are from chart to chart.
constexpr int unitaLarga = 56;

/// Tabs at the left: the table with its hint, a chart each; at the right what the chart in view adds up to, the buttons
/// and the options of the charts.
class Vista final : public VistaRisultati {
public:
    Vista(frmCapacitaCodeRitardiRamo& f, QWidget* genitore) : VistaRisultati(f, genitore), f_(f) {
        secondaBarra(f.ctlToolbar2);
        std::vector<QWidget*> pagine{pagina()};
        for (Grafico& grafico : f.grafici) {
            pagine.push_back(foglio(collega(grafico, corpo())));
        }
        figure()->addWidget(collega(f.ctlTab, pagine, corpo()), 1);
        lato()->addWidget(riassunti());
        lato()->addWidget(bottoni());
        lato()->addWidget(opzioni());
        chiudi();
        scorciatoieSchede(f.ctlTab);
    }

private:
    QWidget* foglio(QWidget* contenuto) {
        auto* foglio = new QWidget(corpo());
        auto* piano = new QVBoxLayout(foglio);
        piano->setContentsMargins(misura::spazioStretto, misura::spazio, misura::spazioStretto, misura::canale);
        piano->setSpacing(misura::canale);
        piano->addWidget(contenuto, 1);
        return foglio;
    }

    QWidget* pagina() {
        QWidget* pagina = foglio(tabella(f_.ctlGrid, corpo()));
        QLabel* legenda = collega(f_.lblLegenda, pagina);
        legenda->setFont(dati(punti::nota));
        legenda->setProperty("quieta", true);
        pagina->layout()->addWidget(legenda);
        return pagina;
    }

    /// The fields of all charts stand in the same three rows: those of one of them are shown.
    QWidget* riassunti() {
        Pannello* pannello = collega(f_.frVALORI, corpo());
        auto* tavola = new QWidget(pannello);
        auto* piano = new QGridLayout(tavola);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::spazio);
        piano->setVerticalSpacing(misura::spazioRighe);
        piano->setColumnStretch(0, 1);
        piano->setColumnMinimumWidth(2, unitaLarga);
        struct Riga {
            Etichetta& nome;
            tBox frmCapacitaCodeRitardiRamo::Riassunto::*campo;
        };
        using Riassunto = frmCapacitaCodeRitardiRamo::Riassunto;
        int posto = 0;
        for (const Riga& riga : {Riga{f_.lblMINIMO, &Riassunto::minimo}, Riga{f_.lblMASSIMO, &Riassunto::massimo},
                                 Riga{f_.lblMEDIO, &Riassunto::medio}}) {
            piano->addWidget(collega(riga.nome, tavola), posto, 0);
            for (Riassunto& valori : f_.riassunti) {
                QWidget* campo = collega(valori.*riga.campo, tavola);
                campo->setFixedWidth(misura::campoValore);
                campo->setFont(forte(punti::corpo));
                if (auto* valore = qobject_cast<QLineEdit*>(campo)) {
                    valore->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
                }
                campo->setAccessibleName(q(riga.nome.testo()));
                piano->addWidget(campo, posto, 1);
                QLabel* unita = collega(valori.unita, tavola);
                unita->setFont(dati(punti::corpo));
                piano->addWidget(unita, posto, 2);
            }
            ++posto;
        }
        pannello->larga(tavola);
        return pannello;
    }

    QWidget* bottoni() {
        auto* pannello = new Pannello({}, corpo());
        for (Casella* casella : {&f_.cmdRIASSUNTO, &f_.cmdMARKER}) {
            QAbstractButton* bottone = collega(*casella, pannello);
            bottone->setProperty("aSinistra", true);
            pannello->larga(bottone);
        }
        return pannello;
    }

    QWidget* opzioni() {
        auto* pannello = new Pannello({}, corpo());
        pannello->fitto();
        pannello->larga(collega(f_.chkValori, pannello));
        pannello->larga(collega(f_.opzForma, pannello));
        return pannello;
    }

    frmCapacitaCodeRitardiRamo& f_;
};

}  // namespace

VistaFinestra* vista_frmCapacitaCodeRitardiRamo(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmCapacitaCodeRitardiRamo&>(finestra), genitore);
}

}  // namespace kelvo::ui
