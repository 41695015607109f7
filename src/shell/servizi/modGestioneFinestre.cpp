#include "shell/servizi/modGestioneFinestre.h"

#include "app/titoli.h"
#include "base/guasto.h"
#include "shell/servizi/pelle.h"

namespace kelvo {

namespace {

constexpr const char* nomeSenzaPosto = "frmLEGENDA";
constexpr double margineDestro = 140.0;

}  // namespace

Rettangolo postoFinestra(const Rettangolo& albero, double larghezzaInterna) {
    return {.L = albero.L + albero.W, .T = albero.T, .W = larghezzaInterna - albero.W - margineDestro, .H = albero.H};
}

bool modGestioneFinestre::lasciaCorrente() {
    if (corrente_ == nullptr) {
        return true;
    }
    stato_.convalidaFallita = false;
    const bool bene = corrente_->convalida();
    if (bene && !stato_.convalidaFallita && corrente_->haSaveData()) {
        corrente_->SaveData();
    }
    if (!bene || stato_.convalidaFallita) {
        stato_.convalidaFallita = false;
        return false;
    }
    chiudiCorrente();
    return true;
}

void modGestioneFinestre::avvisaOpzioni() {
    if (stato_.opzioniModificate) {
        app_.messaggi.mostra(
            "Attenzione! Sono state modificate delle opzioni: verificare con attenzione i dati precedentemente "
            "inseriti.",
            titoli::attenzione, Icona::esclamazione, Pulsanti::ok);
        stato_.opzioniModificate = false;
    }
}

bool modGestioneFinestre::ShowForm(Finestra* finestra) {
    if (finestra == nullptr) {
        return true;
    }
    bool scambiata = false;
    try {
        if (!lasciaCorrente()) {
            return false;
        }
        avvisaOpzioni();
        area_.mostra(*finestra);
        corrente_ = finestra;
        if (finestra->nome() != nomeSenzaPosto) {
            area_.colloca(*finestra, postoFinestra(area_.albero(), area_.larghezzaInterna()));
        }
        vesti(*finestra, app_.configurazione.LayoutPannello);
        area_.vestiBarra(*finestra);
        area_.ridimensiona(*finestra);
        scambiata = true;
        finestra->attivata();
        return true;
    } catch (const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), "modGestioneFinestre.ShowForm()", guasto.descrizione(), true);
        return scambiata;
    }
}

void modGestioneFinestre::chiudiCorrente() {
    if (corrente_ != nullptr) {
        area_.nascondi(*corrente_);
        corrente_->scordaFuoco();
        corrente_->nascosta();
        corrente_ = nullptr;
    }
}

}  // namespace kelvo
