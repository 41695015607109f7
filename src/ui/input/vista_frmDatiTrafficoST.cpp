#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmDatiTrafficoST.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGriglia.h"
#include "ui/input/pannelloIstogramma.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Rows of the window's list of fields.
constexpr std::size_t primoTotale = 2;

class Vista final : public VistaFinestra {
public:
    Vista(frmDatiTrafficoST& f, QWidget* genitore) : VistaFinestra(f, genitore), righe_(f.righe()) {
        larghezzaColonna(misura::colonnaStretta);
        auto* ingresso = new Pannello({}, corpo());
        for (std::size_t i = 0; i < primoTotale; ++i) {
            ingresso->riga(std::string{righe_[i].etichetta}, collega(*righe_[i].campo, ingresso),
                           q(std::string{righe_[i].unita}));
        }
        colonna()->addWidget(ingresso);
        colonna()->addWidget(collega(f.ctlGrid, corpo()), parteTabella);
        colonna()->addWidget(collega(f.cmdImportaCSV, corpo()), 0, Qt::AlignLeft);
        destra()->addWidget(totali());
        destra()->addWidget(pannelloIstogramma(f.ctlChart, f.Check1, corpo()), 1);
        RiquadroAiuto* aiuto = aggiungiAiuto(QStringLiteral("Descrizione del parametro"));
        aiuto->soloPagina();
        destra()->setStretchFactor(aiuto, 0);
        chiudiDisposizione();
    }

private:
    static constexpr int parteTabella = 1000;  ///< of the column, which ends in room that gives way

    /// The totals side by side, each below its name.
    QWidget* totali() {
        auto* pannello = new Pannello({}, corpo());
        auto* tavola = new QWidget(pannello);
        auto* piano = new QGridLayout(tavola);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::spazio);
        piano->setVerticalSpacing(misura::canale);
        constexpr int celle = 3;  // of a total: field, unit, room
        int colonna = 0;
        for (std::size_t i = primoTotale; i < righe_.size(); ++i, colonna += celle) {
            const frmDatiTrafficoST::Riga& riga = righe_[i];
            auto* nome = new QLabel(q(std::string{riga.etichetta}), tavola);
            nome->setFont(leggero(punti::corpo));
            QWidget* campo = collega(*riga.campo, tavola);
            campo->setFixedWidth(misura::campoCorto);
            nome->setBuddy(campo);
            auto* unita = new QLabel(q(std::string{riga.unita}), tavola);
            unita->setObjectName(QStringLiteral("unita"));
            unita->setFont(dati(punti::corpo));
            piano->addWidget(nome, 0, colonna, 1, 2);
            piano->addWidget(campo, 1, colonna);
            piano->addWidget(unita, 1, colonna + 1);
            piano->setColumnStretch(colonna + 2, i + 1 < righe_.size() ? 1 : 0);
        }
        pannello->larga(tavola);
        return pannello;
    }

    std::array<frmDatiTrafficoST::Riga, 5> righe_;
};

}  // namespace

VistaFinestra* vista_frmDatiTrafficoST(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmDatiTrafficoST&>(finestra), genitore);
}

}  // namespace kelvo::ui
