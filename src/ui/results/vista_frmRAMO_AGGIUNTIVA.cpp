#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include "results/frmRAMO_AGGIUNTIVA.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGriglia.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Lets a table be as high as its rows.
void intera(VistaGriglia& tabella, int righe) {
    tabella.setFixedHeight(righe * (QFontMetrics(dati(punti::corpo)).height() + misura::spazioRighe));
}

class Vista final : public VistaFinestra {
public:
    Vista(frmRAMO_AGGIUNTIVA& f, QWidget* genitore) : VistaFinestra(f, genitore), f_(f) {
        larghezzaColonna(misura::colonnaMatrice);
        colonna()->addWidget(riassunto());
        colonna()->addWidget(inVigore());
        colonna()->addWidget(soglie());
        if (RiquadroAiuto* aiuto = aggiungiAiuto(QStringLiteral("Descrizione del parametro"))) {
            aiuto->soloPagina();
        }
        chiudiDisposizione();
    }

private:
    QWidget* riassunto() {
        Pannello* pannello = collega(f_.frRIASSUNTO, corpo());
        VistaGriglia* tabella = collega(f_.ctlGRID1, pannello);
        constexpr int righe = 7;
        intera(*tabella, righe);
        pannello->larga(tabella);
        auto* livelli = new QWidget(pannello);
        auto* riga = new QHBoxLayout(livelli);
        riga->setContentsMargins(0, 0, 0, 0);
        riga->setSpacing(misura::spazio);
        for (const auto& [etichetta, campo] :
             {std::pair{&f_.lblMinLOS, &f_.txtminLOS}, std::pair{&f_.lblMaxLOS, &f_.txtmaxLOS}}) {
            QLabel* nome = collega(*etichetta, livelli);
            QWidget* letto = collega(*campo, livelli);
            letto->setFixedWidth(misura::campoBreve);
            nome->setBuddy(letto);
            riga->addWidget(nome);
            riga->addWidget(letto);
            riga->addSpacing(misura::margine);
        }
        riga->addStretch(1);
        pannello->larga(livelli);
        return pannello;
    }

    QWidget* inVigore() {
        QLabel* riga = collega(f_.lblInVigore, corpo());
        riga->setFont(dati(punti::nota));
        riga->setProperty("quieta", true);
        riga->setWordWrap(true);
        riga->setContentsMargins(misura::sporgenza, 0, 0, 0);
        return riga;
    }

    /// One line a quantity: its tick, its lower and its upper value.
    QWidget* soglie() {
        Pannello* pannello = collega(f_.frMARKER, corpo());
        auto* tavola = new QWidget(pannello);
        tavola->setProperty("sporgente", true);
        auto* piano = new QGridLayout(tavola);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::margine);
        piano->setVerticalSpacing(misura::canale);
        piano->setColumnStretch(3, 1);
        int linea = 0;
        int posto = 1;
        for (Etichetta* testa : {&f_.lblInferiore, &f_.lblSuperiore}) {
            QLabel* parola = collega(*testa, tavola);
            parola->setFont(dati(punti::nota));
            parola->setProperty("quieta", true);
            piano->addWidget(parola, linea, posto++, Qt::AlignRight);
        }
        for (frmRAMO_AGGIUNTIVA::Soglia& soglia : f_.soglie) {
            ++linea;
            piano->addWidget(collega(soglia.spunta, tavola), linea, 0);
            posto = 1;
            for (const auto& [campo, testa] :
                 {std::pair{&soglia.minimo, &f_.lblInferiore}, std::pair{&soglia.massimo, &f_.lblSuperiore}}) {
                QWidget* valore = collega(*campo, tavola);
                valore->setFixedWidth(misura::campoCorto);
                if (auto* numero = qobject_cast<QLineEdit*>(valore)) {
                    numero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
                }
                valore->setAccessibleName(q(soglia.spunta.testo() + ", " + testa->testo()));
                piano->addWidget(valore, linea, posto++);
            }
        }
        constexpr int ultima = 4;
        piano->addWidget(collega(f_.cmdAzzera, tavola), linea, ultima, Qt::AlignRight);
        pannello->larga(tavola);
        pannello->avviso(f_.lblSenzaSoglie);
        pannello->avviso(f_.lblProgetto);
        return pannello;
    }

    frmRAMO_AGGIUNTIVA& f_;
};

}  // namespace

VistaFinestra* vista_frmRAMO_AGGIUNTIVA(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmRAMO_AGGIUNTIVA&>(finestra), genitore);
}

}  // namespace kelvo::ui
