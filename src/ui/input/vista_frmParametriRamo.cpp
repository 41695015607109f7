#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmParametriRamo.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaPianta.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaFinestra {
public:
    Vista(frmParametriRamo& f, QWidget* genitore) : VistaFinestra(f, genitore), f_(f) {
        auto* nome = new Pannello({}, corpo());
        nome->riga(f.lblDescrizioneRamo, collega(f.txtDescrizioneRamo, nome));
        colonna()->addWidget(nome);
        colonna()->addWidget(misure());
        colonna()->addWidget(flussi());
        colonna()->addWidget(capacita());
        auto* aiuto = aggiungiAiuto(q(f.frDescrizione.titolo()));
        aiuto->segui(f.ctlPicture);
        aiuto->sopra(collega(f.ctlPianta, corpo()));
        chiudiDisposizione();
    }

private:
    QWidget* misure() {
        Pannello* pannello = collega(f_.frParametri, corpo());
        const auto campi = f_.campi();
        for (std::size_t i = 0; i < campi.size(); ++i) {
            const CampoNumerico& campo = misureIngresso[i].campo;
            pannello->riga(f_.lblMisure[i], collega(*campi[i], pannello), q("[" + std::string{campo.unita} + "]"),
                           q(intervalloAmmesso(campo)));
            pannello->sotto(f_.lblNote[i]);
        }
        return pannello;
    }

    QWidget* flussi() {
        Pannello* pannello = collega(f_.frFlussi, corpo());
        auto* riga = new QWidget(pannello);
        auto* piano = new QHBoxLayout(riga);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->addWidget(collega(f_.chkAttraversamentoPedonale, riga));
        piano->addStretch(1);
        piano->addWidget(collega(f_.cmdDM, riga));
        pannello->larga(riga);
        return pannello;
    }

    /// Three columns of names and figures.
    QWidget* capacita() {
        Pannello* pannello = collega(f_.frCapacita, corpo());
        pannello->nota(f_.lblUnita);
        auto* tabella = new QWidget(pannello);
        auto* piano = new QGridLayout(tabella);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::spazio);
        piano->setVerticalSpacing(0);
        constexpr int righe = 3;
        constexpr int parti = 3;  // of a column: name, figure, room
        for (int i = 0; i < static_cast<int>(f_.valori.size()); ++i) {
            frmParametriRamo::Valore& valore = f_.valori[static_cast<std::size_t>(i)];
            auto* nome = new QLabel(q(std::string{valore.nome}), tabella);
            nome->setProperty("quieta", true);
            nome->setFont(dati(punti::nota));
            auto* figura = collega(valore.etichetta, tabella);
            figura->setFont(dati(punti::corpo));
            figura->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            piano->addWidget(nome, i % righe, i / righe * parti);
            piano->addWidget(figura, i % righe, i / righe * parti + 1);
            const bool ultima = i / righe == static_cast<int>(f_.valori.size()) / righe - 1;
            piano->setColumnStretch(i / righe * parti + 2, ultima ? 0 : 1);
        }
        pannello->larga(tabella);
        return pannello;
    }

    frmParametriRamo& f_;
};

}  // namespace

VistaFinestra* vista_frmParametriRamo(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmParametriRamo&>(finestra), genitore);
}

}  // namespace kelvo::ui
