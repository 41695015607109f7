#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QVBoxLayout>

#include "input/frmDatiTraffico.h"
#include "ui/RiquadroAiuto.h"
#include "ui/input/pannelloIstogramma.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Rows of the window's list of fields.
enum Righe : std::size_t { ramo = 0, tempi = 2, flussi = 5, totali = 8, fine = 11 };
constexpr int puntiCurva = 3;

QLabel* unita(std::string_view testo, QWidget* genitore) {
    auto* parola = new QLabel(q(std::string{testo}), genitore);
    parola->setObjectName(QStringLiteral("unita"));
    parola->setFont(dati(punti::corpo));
    return parola;
}

class Vista final : public VistaFinestra {
public:
    Vista(frmDatiTraffico& f, QWidget* genitore) : VistaFinestra(f, genitore), f_(f), righe_(f.righe()) {
        auto* ingresso = new Pannello({}, corpo());
        righe(*ingresso, ramo, tempi);
        colonna()->addWidget(ingresso);
        colonna()->addWidget(curva());
        auto* somme = new Pannello({}, corpo());
        righe(*somme, totali, fine);
        colonna()->addWidget(somme);
        colonna()->addWidget(ricerca());
        destra()->addWidget(pannelloIstogramma(f.ctlChart, f.Check1, corpo()), 1);
        RiquadroAiuto* aiuto = aggiungiAiuto(QStringLiteral("Descrizione del parametro"));
        aiuto->soloPagina();
        destra()->setStretchFactor(aiuto, 0);
        chiudiDisposizione();
    }

private:
    void righe(Pannello& pannello, std::size_t da, std::size_t a) {
        for (std::size_t i = da; i < a; ++i) {
            const frmDatiTraffico::Riga& riga = righe_[i];
            pannello.riga(std::string{riga.etichetta}, collega(*riga.campo, &pannello), q(std::string{riga.unita}));
        }
    }

    /// One line a point of the curve: its time, its flow.
    QWidget* curva() {
        auto* pannello = new Pannello(QStringLiteral("Curva tempo/flusso"), corpo());
        auto* tavola = new QWidget(pannello);
        auto* piano = new QGridLayout(tavola);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::spazio);
        piano->setVerticalSpacing(misura::spazioRighe);
        constexpr int celle = 4;  // of a field: label, field, unit, room
        const auto metti = [&](int linea, int colonna, const frmDatiTraffico::Riga& riga) {
            auto* nome = new QLabel(q(std::string{riga.etichetta}), tavola);
            nome->setFont(leggero(punti::corpo));
            QWidget* campo = collega(*riga.campo, tavola);
            campo->setFixedWidth(misura::campoCorto);
            nome->setBuddy(campo);
            piano->addWidget(nome, linea, colonna);
            piano->addWidget(campo, linea, colonna + 1);
            piano->addWidget(unita(riga.unita, tavola), linea, colonna + 2);
        };
        for (int i = 0; i < puntiCurva; ++i) {
            metti(i, 0, righe_[tempi + static_cast<std::size_t>(i)]);
            metti(i, celle, righe_[flussi + static_cast<std::size_t>(i)]);
        }
        piano->setColumnStretch(celle - 1, 1);
        pannello->larga(tavola);
        return pannello;
    }

    /// What is hidden while the curve is typed takes no room.
    QWidget* ricerca() {
        auto* pannello = new Pannello({}, corpo());
        pannello->larga(collega(f_.Check2, pannello));
        auto* interno = new QWidget(pannello);
        auto* piano = new QVBoxLayout(interno);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setSpacing(misura::spazioRighe);
        auto* spiegazione = collega(f_.lblTarget, interno);
        spiegazione->setWordWrap(true);
        piano->addWidget(spiegazione);
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::spazio);
        QWidget* obiettivo = collega(f_.txtTarget, interno);
        obiettivo->setFixedWidth(misura::campoCorto);
        spiegazione->setBuddy(obiettivo);
        riga->addWidget(obiettivo);
        auto* veicoli = collega(f_.lblUnitaTarget, interno);
        veicoli->setFont(dati(punti::corpo));
        veicoli->setProperty("quieta", true);
        riga->addWidget(veicoli);
        riga->addStretch(1);
        riga->addWidget(collega(f_.Command1, interno));
        piano->addLayout(riga);
        piano->addWidget(collega(f_.prgCurva, interno));
        auto* esito = collega(f_.lblApprox, interno);
        esito->setFont(dati(punti::corpo));
        piano->addWidget(esito);
        pannello->larga(interno);
        return pannello;
    }

    frmDatiTraffico& f_;
    std::vector<frmDatiTraffico::Riga> righe_;
};

}  // namespace

VistaFinestra* vista_frmDatiTraffico(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmDatiTraffico&>(finestra), genitore);
}

}  // namespace kelvo::ui
