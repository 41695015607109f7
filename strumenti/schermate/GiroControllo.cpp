#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include "checkup/frmANALIZZATORE.h"
#include "schermate/Giro.h"

namespace kelvo::schermate {

namespace {

constexpr int rigaDiMezzo = 20;

/// Answers the questions down to a row: yes, but for every third one.
void rispondi(frmANALIZZATORE& finestra, int fino) {
    for (int r = 0; r < fino; ++r) {
        finestra.ctlGrid.clic(r, r % 3 == 0 ? frmANALIZZATORE::colonnaNO : frmANALIZZATORE::colonnaSI);
    }
}

}  // namespace

void Giro::controllata(Finestra& finestra, const std::string& nome) {
    auto* controllo = dynamic_cast<frmANALIZZATORE*>(&finestra);
    if (controllo == nullptr) {
        return;
    }
    controllo->TabStrip1.scegli(2);
    fotografo_.scatta(vista_, "verifiche-" + nome);
    controllo->TabStrip1.scegli(0);
    const Albero& albero = controllo->ctlTreeAnalizzatore;
    if (albero.chiavi().size() > 1) {
        QTimer::singleShot(0, &vista_, [&] {
            if (auto* aperto = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                fotografo_.scatta(*aperto, "frmCheckUpMessaggio-" + nome);
                aperto->reject();
            }
        });
        controllo->clicRiscontro(albero, albero.chiavi().back());
    }
    controllo->TabStrip2.scegli(1);
    controllo->fuocoSu(controllo->ctlGrid);
    rispondi(*controllo, rigaDiMezzo);
    fotografo_.scatta(vista_, "checklist-" + nome);
    rispondi(*controllo, controllo->ctlGrid.tabella().righe());
    controllo->cmdAVANTIsezione.premi();
    fotografo_.scatta(vista_, "checklist-livello-" + nome);
    controllo->TabStrip2.scegli(0);
}

}  // namespace kelvo::schermate
