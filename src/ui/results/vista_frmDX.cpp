#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

#include "results/frmDX.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGriglia.h"
#include "ui/VistaPianta.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/results/VistaRisultati.h"
#include "ui/results/tabellaIntera.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Width of the column of what is compared.
constexpr int colonnaScelta = 400;
/// Names of two entries stand in a row.
constexpr int nomiPerRiga = 2;
/// Height of the window from which on there is room for the help below the whole table.
constexpr int altezzaConAiuto = 860;
/// Of the height the table takes what it needs, the help what is left.
constexpr int primaLaTabella = 100;

/// At the left the lanes with what turns right, the names of the entries and the plan; at the right the comparison and,
/// where the window is high enough, the page of the help.
class Vista final : public VistaRisultati {
public:
    Vista(frmDX& f, QWidget* genitore) : VistaRisultati(f, genitore), f_(f) {
        auto* avviso = collega(f.frameAVVISO, corpo());
        avviso->larga(collega(f.lblAVVISO, avviso));
        figure()->addWidget(avviso, 0, Qt::AlignTop);
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::margine);
        riga->addWidget(scelta());
        auto* fianco = new QVBoxLayout;
        fianco->setSpacing(misura::spazio);
        VistaGriglia* confronto = tabella(f.ctlGrid, corpo());
        tieniIntera(*confronto, f.ctlGrid, false);
        fianco->addWidget(confronto, primaLaTabella);
        QLabel* legenda = collega(f.lblLegenda, corpo());
        legenda->setFont(dati(punti::nota));
        legenda->setWordWrap(true);
        fianco->addWidget(legenda);
        aiuto_ = new RiquadroAiuto(f.ctlHelp, QStringLiteral("Descrizione"), corpo());
        aiuto_->soloPagina();
        aiuto_->setMinimumWidth(0);
        aiuto_->hide();
        fianco->addWidget(aiuto_, 1);
        fianco->addStretch(0);
        riga->addLayout(fianco, 1);
        figure()->addLayout(riga, 1);
        chiudi();
    }
    ~Vista() override { legamePianta_.disconnect(); }
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;

protected:
    /// What was changed elsewhere meanwhile: measures of the legs, flows of the turns.
    void showEvent(QShowEvent* evento) override {
        VistaRisultati::showEvent(evento);
        pianta_->aggiorna();
        mostraAiuto();
    }
    void resizeEvent(QResizeEvent* evento) override {
        VistaRisultati::resizeEvent(evento);
        mostraAiuto();
    }

private:
    void mostraAiuto() { aiuto_->setVisible(height() >= altezzaConAiuto && corsieDisponibili(f_.rotondaMostrata())); }

    QWidget* scelta() {
        auto* pannello = collega(f_.frSCELTA, corpo());
        pannello->setFixedWidth(colonnaScelta);
        pannello->larga(corsie(pannello));
        pannello->larga(nomi(pannello));
        pannello->larga(collega(f_.chkStampaDX, pannello));
        pianta_ = collega(f_.ctlPianta, pannello);
        legamePianta_ = f_.listDX.cambiato().connect([this] { pianta_->aggiorna(); });
        gioco(*pianta_);
        pannello->larga(pianta_);
        // What is left of the height goes to the rows of the panel, of which the plan alone grows.
        if (auto* dentro = qobject_cast<QBoxLayout*>(pianta_->parentWidget()->layout())) {
            dentro->setStretch(dentro->count() - 1, 1);
        }
        return pannello;
    }

    /// Each lane with the flow of its turn on the same line.
    QWidget* corsie(QWidget* genitore) {
        auto* insieme = new QWidget(genitore);
        auto* riga = new QHBoxLayout(insieme);
        riga->setContentsMargins(0, 0, 0, 0);
        riga->setSpacing(misura::spazio);
        riga->addWidget(collega(f_.listDX, insieme, FormaElenco::piatto), 1);
        auto* flussi = new QVBoxLayout;
        flussi->setSpacing(0);
        for (Etichetta& flusso : f_.flussi) {
            QLabel* parole = collega(flusso, insieme);
            parole->setFont(dati(punti::corpo));
            parole->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            parole->setFixedHeight(misura::spunta);
            flussi->addWidget(parole);
        }
        riga->addLayout(flussi);
        insieme->setProperty("sporgente", true);
        insieme->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        return insieme;
    }

    QWidget* nomi(QWidget* genitore) {
        auto* insieme = new QWidget(genitore);
        auto* piano = new QGridLayout(insieme);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::spazio);
        piano->setVerticalSpacing(misura::spazioRighe);
        for (int i = 0; i < static_cast<int>(f_.txtIngresso.size()); ++i) {
            auto* lettera = new QLabel(QString(QChar(u'A' + i)), insieme);
            lettera->setFont(leggero(punti::corpo));
            QWidget* nome = collega(f_.txtIngresso[static_cast<std::size_t>(i)], insieme);
            nome->setAccessibleName(QStringLiteral("Ramo %1").arg(lettera->text()));
            piano->addWidget(lettera, i / nomiPerRiga, i % nomiPerRiga * 2);
            piano->addWidget(nome, i / nomiPerRiga, i % nomiPerRiga * 2 + 1);
            piano->setColumnStretch(i % nomiPerRiga * 2 + 1, 1);
        }
        insieme->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        return insieme;
    }

    frmDX& f_;
    VistaPianta* pianta_ = nullptr;
    RiquadroAiuto* aiuto_ = nullptr;
    sigc::connection legamePianta_;
};

}  // namespace

VistaFinestra* vista_frmDX(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmDX&>(finestra), genitore);
}

}  // namespace kelvo::ui
