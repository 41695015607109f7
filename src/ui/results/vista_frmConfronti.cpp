#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QSlider>
#include <QtWidgets/QVBoxLayout>
#include <array>

#include "results/frmConfronti.h"
#include "ui/VistaGrafico.h"
#include "ui/VistaGriglia.h"
#include "ui/VistaPianta.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/results/VistaRisultati.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Vista final : public VistaRisultati {
public:
    Vista(frmConfronti& f, QWidget* genitore) : VistaRisultati(f, genitore), f_(f) {
        titolo();
        auto* figure = new QHBoxLayout;
        figure->setSpacing(misura::margine);
        constexpr int parteGrafico = 11;
        constexpr int partePianta = 9;
        figure->addWidget(collega(f.ctlChartConfronti, corpo()), parteGrafico);
        figure->addWidget(pianta(), partePianta);
        this->figure()->addLayout(figure, 1);
        cursore();
        auto* griglia = tabella(f.ctlGrid, corpo());
        constexpr int righe = 9;  // headings, seven entries, the bar that scrolls
        constexpr int perRiga = 6;
        griglia->setFixedHeight(righe * (griglia->fontMetrics().height() + perRiga));
        this->figure()->addWidget(griglia);
        lato()->addWidget(variabile());
        lato()->addWidget(simulazione());
        constexpr int tutto = 100;
        lato()->addWidget(istante(), tutto);
        chiudi();
    }
    ~Vista() override { legameStati_.disconnect(); }
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;

private:
    void titolo() {
        auto* testo = collega(f_.txtdescrizioneGRAFICO, corpo());
        testo->setFont(dati(punti::nota));
        testo->setProperty("quieta", true);
        testo->setMinimumWidth(0);
        testo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        figure()->addWidget(testo);
    }

    QWidget* pianta() {
        VistaPianta* vista = collega(f_.ctlPianta, corpo());
        legameStati_ = f_.ctlPianta.statiMutati().connect([this, vista] {
            vista->aggiornaStati();
            vista->setAccessibleDescription(q(f_.ctlPianta.descrizione()));
        });
        return vista;
    }

    void cursore() {
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::spazioStretto);
        auto* istante = collega(f_.txtIstanteTEMPO, corpo());
        istante->setFont(forte(punti::pannello));
        riga->addWidget(istante);
        QSlider* slider = collega(f_.Slider1, corpo());
        slider->setAccessibleName(q(f_.frISTANTE.titolo()));
        riga->addWidget(slider, 1);
        auto* variabile = collega(f_.txtVARselezionata, corpo());
        variabile->setFont(forte(punti::corpo));
        riga->addWidget(variabile);
        figure()->addLayout(riga);
    }

    QWidget* variabile() {
        Pannello* pannello = collega(f_.frVARIABILE, corpo());
        pannello->nota(f_.lblUnita);
        QWidget* lista = collega(f_.txtTipoVariabile, pannello);
        lista->setAccessibleName(q(f_.frVARIABILE.titolo()));
        pannello->larga(lista);
        pannello->larga(collega(f_.opzUnita, pannello, Qt::Horizontal));
        return pannello;
    }

    /// A button, with its picture as a button of its own in front, which the keyboard passes over.
    struct Coppia {
        Bottone& figura;
        Bottone& parola;
        const char* icona;
    };

    QWidget* simulazione() {
        Pannello* pannello = collega(f_.frSIMULAZIONE, corpo());
        auto* tavola = new QWidget(pannello);
        auto* piano = new QGridLayout(tavola);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::canale);
        piano->setVerticalSpacing(misura::spazioRighe);
        const std::array coppie{Coppia{f_.ImagePLAY, f_.cmdPLAY, "Play"}, Coppia{f_.ImageSTOP, f_.Command1, "Stop"},
                                Coppia{f_.ImagePIU, f_.Command3, "Avanti"},
                                Coppia{f_.ImageMENO, f_.Command4, "Indietro"}};
        int riga = 0;
        for (const Coppia& coppia : coppie) {
            QAbstractButton* figura = collega(coppia.figura, tavola);
            figura->setIcon(icona(coppia.icona, false));
            figura->setIconSize({misura::icona, misura::icona});
            figura->setStyleSheet(QStringLiteral("min-width: %1px; max-width: %1px; padding: 0").arg(misura::bottone));
            figura->setFocusPolicy(Qt::NoFocus);
            figura->setToolTip(q(coppia.parola.testo()));
            figura->setAccessibleName(q(coppia.parola.testo()));
            piano->addWidget(figura, riga, 0);
            piano->addWidget(collega(coppia.parola, tavola), riga, 1);
            ++riga;
        }
        piano->setColumnStretch(1, 1);
        pannello->larga(tavola);
        auto* stato = new QWidget(pannello);
        auto* linea = new QHBoxLayout(stato);
        linea->setContentsMargins(0, 0, 0, 0);
        linea->setSpacing(misura::spazio);
        linea->addWidget(collega(f_.lblPausa, stato));
        linea->addStretch(1);
        linea->addWidget(collega(f_.lblSIM, stato));
        auto* posizione = collega(f_.txtSIM, stato);
        posizione->setFont(forte(punti::corpo));
        linea->addWidget(posizione);
        pannello->larga(stato);
        return pannello;
    }

    QWidget* istante() {
        Pannello* pannello = collega(f_.frISTANTE, corpo());
        QListWidget* lista = collega(f_.listTEMPO, pannello);
        lista->setAccessibleName(q(f_.frISTANTE.titolo()));
        lista->setMinimumHeight(misura::rigaAlbero);
        pannello->larga(lista);
        return pannello;
    }

    frmConfronti& f_;
    sigc::connection legameStati_;
};

}  // namespace

VistaFinestra* vista_frmConfronti(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmConfronti&>(finestra), genitore);
}

}  // namespace kelvo::ui
