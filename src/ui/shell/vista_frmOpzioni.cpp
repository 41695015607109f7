#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmOpzioni.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Widths of the three columns of panels in the design; what is left of it goes between them.
constexpr int colonnaProgetto = 388;
constexpr int colonnaVeicoli = 288;
constexpr int colonnaProgramma = 244;
/// Below this height the short option groups stand in one line.
constexpr int altezzaBassa = 720;

QString unita(const CampoNumerico& campo) {
    return QStringLiteral("[%1]").arg(q(std::string{campo.unita}));
}

/// Three columns: how the study is computed; the equivalents and the report; how the program looks.
class Vista final : public VistaFinestra {
public:
    Vista(frmOpzioni& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        larghezzaColonna(colonnaProgetto);
        auto* fianco = new QHBoxLayout;
        fianco->setSpacing(misura::margine);
        fianco->addLayout(mezzo_, colonnaVeicoli);
        fianco->addLayout(ultima_, colonnaProgramma);
        destra()->addLayout(fianco);
        progetto(f);
        veicoli(f);
        programma(f);
        mezzo_->addStretch(1);
        ultima_->addStretch(1);
        chiudiDisposizione();
    }

protected:
    void resizeEvent(QResizeEvent* evento) override {
        VistaFinestra::resizeEvent(evento);
        const bool basso = height() < altezzaBassa;
        for (QVBoxLayout* piano : {colonna(), mezzo_, ultima_}) {
            piano->setSpacing(basso ? misura::spazioStretto : misura::margine);
        }
        for (QWidget* gruppo : {flusso_, matrice_}) {
            verso(*gruppo, basso ? Qt::Horizontal : Qt::Vertical);
        }
    }

private:
    QWidget* opzioni(Riquadro& riquadro, GruppoOpzioni& gruppo) {
        auto* pannello = collega(riquadro, corpo());
        auto* bottoni = collega(gruppo, pannello);
        pannello->larga(bottoni);
        colonna()->addWidget(pannello);
        return bottoni;
    }

    void progetto(frmOpzioni& f) {
        opzioni(f.frDatiTraffico, f.grpTipoAnalisi);
        flusso_ = opzioni(f.frComposizioneTraffico, f.grpTipoFlusso);
        matrice_ = opzioni(f.frMatriceSvolte, f.grpTipoMatrice);
        auto* analisi = collega(f.frAnalisi, corpo());
        analisi->fitto();
        auto* notte = collega(f.txtCondizioniNotturne, analisi);
        analisi->riga(collega(f.chkCondizioniNotturne, analisi), notte, unita(campoNotte),
                      q(intervalloAmmesso(campoNotte)));
        analisi->avviso(f.lblCondizioniNotturne);
        auto* percentile = collega(f.txtPercentile, analisi);
        analisi->riga(collega(f.chkPercentile, analisi), percentile, unita(campoPercentile),
                      q(intervalloAmmesso(campoPercentile)));
        analisi->avviso(f.lblPercentile);
        analisi->larga(collega(f.chkOttimizzazioneGeometrica, analisi));
        for (QWidget* campo : {notte, percentile}) {
            campo->setFixedWidth(misura::campoBreve);
        }
        colonna()->addWidget(analisi);
    }

    void veicoli(frmOpzioni& f) {
        auto* pannello = collega(f.frVeicoli, corpo());
        pannello->nota(q(intervalloAmmesso(campoCoefficiente)));
        for (std::size_t i = 0; i < f.txtVeicoli.size(); ++i) {
            auto* campo = collega(f.txtVeicoli[i], pannello);
            pannello->riga(std::string{coefficientiMostrati[i].nome}, campo, unita(campoCoefficiente));
            campo->setFixedWidth(misura::campoBreve);
        }
        auto* predefiniti = collega(f.cmdDEFAULT, pannello);
        predefiniti->setIcon(icona("Restore", false));
        pannello->larga(predefiniti, Qt::AlignRight);
        mezzo_->addWidget(pannello);
        auto* relazione = collega(f.frRelazione, corpo());
        relazione->larga(collega(f.ctlLISTopz, relazione, FormaElenco::piatto));
        mezzo_->addWidget(relazione);
    }

    void programma(frmOpzioni& f) {
        auto* aspetto = collega(f.frLayout, corpo());
        auto* affiancati = new QWidget(aspetto);
        auto* riga = new QHBoxLayout(affiancati);
        riga->setContentsMargins(0, 0, 0, 0);
        riga->setSpacing(misura::margine);
        riga->addWidget(collega(f.ctlLIST, affiancati), 2);
        riga->addWidget(collega(f.ctlCampione, affiancati), 1);
        aspetto->larga(affiancati);
        ultima_->addWidget(aspetto);
        auto* spunte = collega(f.frProgramma, corpo());
        spunte->fitto();
        for (Casella* casella : {&f.ckTREE, &f.ckMENU, &f.ckFILMATO}) {
            spunte->larga(collega(*casella, spunte));
        }
        ultima_->addWidget(spunte);
    }

    QVBoxLayout* mezzo_ = new QVBoxLayout;
    QVBoxLayout* ultima_ = new QVBoxLayout;
    QWidget* flusso_ = nullptr;
    QWidget* matrice_ = nullptr;
};

}  // namespace

VistaFinestra* vista_frmOpzioni(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmOpzioni&>(finestra), genitore);
}

}  // namespace kelvo::ui
