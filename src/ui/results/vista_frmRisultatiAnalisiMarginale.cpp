#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include "results/frmRisultatiAnalisiMarginale.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGrafico.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/results/VistaRisultati.h"
#include "ui/results/tabellaIntera.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Width of the names of the measures in their list.
constexpr int larghezzaGrandezza = 240;
/// Height of the window from which on there is room for the help.
constexpr int altezzaConAiuto = 720;

/// A tab for the table of each measure and one for the summary; below them the chart of the tab in view and what it
/// shows.
class Vista final : public VistaRisultati {
public:
    Vista(frmRisultatiAnalisiMarginale& f, QWidget* genitore) : VistaRisultati(f, genitore), f_(f) {
        std::vector<QWidget*> pagine;
        for (Griglia& griglia : f.griglie) {
            pagine.push_back(pagina(griglia));
        }
        pagine.push_back(riepilogo());
        QTabWidget* schede = collega(f.ctlTab, pagine, corpo());
        schede->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Maximum);
        schede->setUsesScrollButtons(true);
        figure()->addWidget(schede);
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::margine);
        auto* grafico = collega(f.ctlChartLA, corpo());
        VistaGrafico* linea = collega(f.RMChartX1, grafico);
        gioco(*linea);
        grafico->larga(linea);
        riga->addWidget(grafico, 1);
        riga->addWidget(scelte());
        figure()->addLayout(riga, 1);
        chiudi();
        scorciatoia(Qt::CTRL | Qt::Key_Tab, true);
        scorciatoia(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, false);
        scorciatoia(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, false);
    }

protected:
    void resizeEvent(QResizeEvent* evento) override {
        VistaRisultati::resizeEvent(evento);
        aiuto_->setVisible(height() >= altezzaConAiuto);
    }

private:
    void scorciatoia(QKeyCombination tasti, bool avanti) {
        auto* passo = new QShortcut(QKeySequence(tasti), this);
        QObject::connect(passo, &QShortcut::activated, this, [this, avanti] { f_.ctlTab.sposta(avanti); });
    }

    QWidget* pagina(Griglia& griglia) {
        auto* foglio = new QWidget(corpo());
        auto* piano = new QVBoxLayout(foglio);
        piano->setContentsMargins(misura::spazioStretto, misura::spazioStretto, misura::spazioStretto,
                                  misura::spazioStretto);
        VistaGriglia* vista = tabella(griglia, foglio);
        tieniIntera(*vista, griglia, true);
        piano->addWidget(vista);
        piano->addStretch(1);
        return foglio;
    }

    /// The question at the left, its answer at the right.
    QWidget* riepilogo() {
        auto* foglio = new QWidget(corpo());
        auto* piano = new QHBoxLayout(foglio);
        piano->setContentsMargins(misura::spazioStretto, misura::spazioStretto, misura::spazioStretto,
                                  misura::spazioStretto);
        piano->setSpacing(misura::margine);
        auto* domanda = collega(f_.frQUANTOSERVE, foglio);
        auto* campi = new QWidget(domanda);
        auto* tavola = new QGridLayout(campi);
        tavola->setContentsMargins(0, 0, 0, 0);
        tavola->setHorizontalSpacing(misura::margine);
        tavola->setVerticalSpacing(misura::spazioRighe);
        auto* nome = new QLabel(QStringLiteral("Grandezza"), campi);
        nome->setFont(leggero(punti::corpo));
        QWidget* grandezza = collega(f_.txtGrandezza, campi);
        grandezza->setMinimumWidth(larghezzaGrandezza);
        nome->setBuddy(grandezza);
        tavola->addWidget(nome, 0, 0);
        tavola->addWidget(grandezza, 0, 1, 1, 2);
        QWidget* obiettivo = collega(f_.opzOBIETTIVO, campi);
        tavola->addWidget(obiettivo, 1, 0, 2, 2);
        int riga = 1;
        for (tBox* campo : {&f_.txtSaturazione, &f_.txtLivello}) {
            QWidget* casella = collega(*campo, campi);
            casella->setFixedWidth(misura::campoBreve);
            casella->setAccessibleName(q(f_.opzOBIETTIVO.opzione(riga - 1).testo));
            tavola->addWidget(casella, riga++, 2, Qt::AlignRight);
        }
        tavola->addWidget(collega(f_.cmdQuantoServe, campi), riga, 2, Qt::AlignRight);
        domanda->larga(campi);
        piano->addWidget(domanda);
        auto* risposta = new QVBoxLayout;
        risposta->setSpacing(misura::spazio);
        QLabel* detto = collega(f_.lblQuantoServe, foglio);
        detto->setFont(forte(punti::gruppo));
        QLabel* effetto = collega(f_.lblEffetto, foglio);
        effetto->setFont(dati(punti::corpo));
        QLabel* nota = collega(f_.lblSoloLettura, foglio);
        nota->setFont(dati(punti::nota));
        for (QLabel* parole : {detto, effetto, nota}) {
            parole->setWordWrap(true);
            risposta->addWidget(parole);
        }
        risposta->addStretch(1);
        piano->addLayout(risposta, 1);
        return foglio;
    }

    /// What the chart shows; below it, where the window is high enough, the page of the help.
    QWidget* scelte() {
        auto* insieme = new QWidget(corpo());
        insieme->setFixedWidth(misura::colonnaRisultati);
        auto* piano = new QVBoxLayout(insieme);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setSpacing(misura::margine);
        auto* variabile = collega(f_.frVARIABILE, insieme);
        variabile->larga(collega(f_.opzVARIABILE, variabile));
        variabile->larga(collega(f_.Command1, variabile));
        piano->addWidget(variabile);
        aiuto_ = new RiquadroAiuto(f_.ctlHelp, QStringLiteral("Descrizione"), insieme);
        aiuto_->soloPagina();
        aiuto_->setMinimumWidth(0);
        aiuto_->hide();
        piano->addWidget(aiuto_, 1);
        piano->addStretch(0);
        return insieme;
    }

    frmRisultatiAnalisiMarginale& f_;
    RiquadroAiuto* aiuto_ = nullptr;
};

}  // namespace

VistaFinestra* vista_frmRisultatiAnalisiMarginale(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmRisultatiAnalisiMarginale&>(finestra), genitore);
}

}  // namespace kelvo::ui
