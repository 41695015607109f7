#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include "base/numeri.h"
#include "results/frmCapacitaCodeRitardi.h"
#include "results/frmCapacitaCodeRitardiRamo.h"
#include "schermate/Giro.h"

namespace kelvo::schermate {

namespace {

/// Thresholds that some segments of every example pass: the middle of what was calculated.
void impostaSoglie(frmRAMO_AGGIUNTIVA& finestra, const StatisticheIngresso& statistiche) {
    constexpr std::size_t capacita = 1;
    constexpr std::size_t ritardo = 4;
    for (const std::size_t q : {capacita, ritardo}) {
        frmRAMO_AGGIUNTIVA::Soglia& soglia = finestra.soglie[q];
        const double quarto = (statistiche.ValoriMassimi[q] - statistiche.ValoriMinimi[q]) / 4.0;
        soglia.spunta.clicca();
        soglia.minimo.scrivi(formatta(statistiche.ValoriMinimi[q] + quarto, vociSoglia[q].formato));
        soglia.massimo.scrivi(formatta(statistiche.ValoriMassimi[q] - quarto, vociSoglia[q].formato));
    }
}

}  // namespace

void Giro::calcolata(Finestra& finestra, const std::string& nome) {
    auto* risultati = dynamic_cast<FinestraRisultati*>(&finestra);
    if (risultati == nullptr) {
        return;
    }
    risultati->ctlToolbar.premi("keyCalcola");
    fotografo_.scatta(vista_, "calcolata-" + nome);
    risultati->cmdInVigore.clicca();
    fotografo_.scatta(vista_, "in-vigore-" + nome);
    risultati->cmdInVigore.clicca();
    if (auto* ingresso = dynamic_cast<frmCapacitaCodeRitardiRamo*>(&finestra)) {
        ingressoCalcolato(*ingresso, nome);
    } else if (auto* tutti = dynamic_cast<frmCapacitaCodeRitardi*>(&finestra)) {
        ingressiCalcolati(*tutti, nome);
    }
}

void Giro::ingressiCalcolati(frmCapacitaCodeRitardi& finestra, const std::string& nome) {
    for (int scheda = 1; scheda < static_cast<int>(finestra.ctlTab.schede().size()); ++scheda) {
        finestra.ctlTab.scegli(scheda);
        fotografo_.scatta(vista_, "scheda" + std::to_string(scheda + 1) + "-" + nome);
    }
    finestra.ctlTab.scegli(0);
}

void Giro::ingressoCalcolato(frmCapacitaCodeRitardiRamo& finestra, const std::string& nome) {
    for (int scheda = 1; scheda < static_cast<int>(finestra.ctlTab.schede().size()); ++scheda) {
        finestra.ctlTab.scegli(scheda);
        fotografo_.scatta(vista_, "scheda" + std::to_string(scheda + 1) + "-" + nome);
    }
    finestra.opzForma.clicca(0);
    fotografo_.scatta(vista_, "linee-" + nome);
    finestra.opzForma.clicca(1);
    finestra.ctlTab.scegli(0);
    finestra.ctlGrid.tastoDestro(1, 1);
    fotografo_.scatta(vista_, "legenda-" + nome);
    finestra.cmdRIASSUNTO.clicca();
    finestra.cmdMARKER.clicca();
    fotografo_.scatta(vista_, "legenda-marker-" + nome);
    finestra.ctlToolbar2.premi("Aggiuntivi");
    impostaSoglie(finestra.aggiuntiva, finestra.statistiche());
    fotografo_.scatta(vista_, "frmRAMO_AGGIUNTIVA-" + nome);
    finestra.aggiuntiva.ctlToolbar.premi("Ritorno");
    finestra.ctlToolbar2.premi("Visualizza");
    fotografo_.scatta(vista_, "soglie-" + nome);
    app_.risultati.marker.azzera(finestra.indiceRamo());
    anteprimaTesto(finestra, nome);
}

void Giro::anteprimaTesto(FinestraRisultati& finestra, const std::string& nome) {
    // No program opens documents here: the text comes up in a window of ours, until somebody closes it.
    QTimer::singleShot(0, &vista_, [&] {
        if (auto* aperto = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            fotografo_.scatta(*aperto, "frmAnteprimaTesto-" + nome);
            aperto->reject();
        }
    });
    finestra.ctlToolbar.premi("keyAnteprima");
}

}  // namespace kelvo::schermate
