#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

#include "checkup/frmANALIZZATORE.h"
#include "shell/servizi/scorciatoie.h"
#include "ui/VistaGriglia.h"
#include "ui/checkup/VistaRiscontri.h"
#include "ui/checkup/viste.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// A button that shows its picture in place of its words.
class Freccia final : public QPushButton {
public:
    Freccia(Bottone& bottone, Immagine& figura, QWidget* genitore) : QPushButton(genitore) {
        setProperty("freccia", true);
        setFixedHeight(misura::bottone);
        setAutoDefault(true);
        auto* faccia = new QLabel(this);
        faccia->setAttribute(Qt::WA_TransparentForMouseEvents);
        faccia->setAlignment(Qt::AlignCenter);
        auto* dentro = new QHBoxLayout(this);
        dentro->setContentsMargins(0, 0, 0, 0);
        dentro->addWidget(faccia);
        auto* disegno = new Legame(figura, *faccia);
        disegno->mostra([&figura, faccia] {
            const auto modo = figura.abilitato() ? QIcon::Normal : QIcon::Disabled;
            const QSize lato(misura::icona, misura::icona);
            faccia->setPixmap(icona(figura.risorsa(), false).pixmap(lato, faccia->devicePixelRatioF(), modo));
        });
        auto* legame = new Legame(bottone, *this);
        legame->mostra({});
        QObject::connect(this, &QPushButton::clicked, legame, [&bottone] { bottone.premi(); });
    }
};

class Vista final : public VistaFinestra {
public:
    Vista(frmANALIZZATORE& f, QWidget* genitore) : VistaFinestra(f, genitore), f_(f) {
        auto* tutto = new QWidget(corpo());
        colloca(tutto, {0.0, 0.0, disegnoFinestra.W, disegnoFinestra.H});
        auto* righe = new QVBoxLayout(tutto);
        righe->setContentsMargins(0, 0, 0, 0);
        righe->addWidget(collega(f.TabStrip2, {paginaReport(tutto), paginaCheckList(tutto)}, tutto), 1);
        chiudiDisposizione();
    }

private:
    static QVBoxLayout* piano(QWidget* pagina) {
        auto* righe = new QVBoxLayout(pagina);
        constexpr int m = misura::spazioStretto;
        righe->setContentsMargins(m, m, m, m);
        righe->setSpacing(misura::spazio);
        return righe;
    }

    QWidget* paginaReport(QWidget* genitore) {
        auto* pagina = new QWidget(genitore);
        std::vector<QWidget*> fogli;
        for (Albero* albero : {&f_.ctlTreeAnalizzatore, &f_.ctlTreeGREEN, &f_.ctlTreeYELLOW, &f_.ctlTreeRED}) {
            auto* foglio = new QWidget(pagina);
            auto* righe = new QVBoxLayout(foglio);
            righe->setContentsMargins(1, 1, 1, 1);
            auto* vista = collegaRiscontri(*albero, q(std::string{testoNessunRiscontro}), foglio);
            QObject::connect(vista, &VistaRiscontri::scelto, this,
                             [this, albero](const QString& chiave) { f_.clicRiscontro(*albero, s(chiave)); });
            QObject::connect(vista, &VistaRiscontri::invio, this,
                             [this, albero](const QString& chiave) { f_.invioRiscontro(*albero, s(chiave)); });
            righe->addWidget(vista);
            fogli.push_back(foglio);
        }
        piano(pagina)->addWidget(collega(f_.TabStrip1, fogli, pagina));
        return pagina;
    }

    QWidget* paginaCheckList(QWidget* genitore) {
        auto* pagina = new QWidget(genitore);
        QVBoxLayout* righe = piano(pagina);
        auto* testa = new QHBoxLayout;
        testa->setSpacing(misura::spazio);
        auto* sezione = collega(f_.lblSezione, pagina);
        sezione->setFont(forte(punti::gruppo));
        testa->addWidget(sezione, 1);
        testa->addWidget(freccia(f_.cmdINDIETROsezione, f_.ImageINDIETRO, frmANALIZZATORE::tastoINDIETRO, pagina));
        testa->addWidget(freccia(f_.cmdAVANTIsezione, f_.ImageAVANTI, frmANALIZZATORE::tastoAVANTI, pagina));
        righe->addLayout(testa);
        auto* griglia = collega(f_.ctlGrid, pagina);
        griglia->caselle([this](Posto posto) { return f_.casella(posto); });
        righe->addWidget(griglia, 1);
        righe->addWidget(piede(pagina));
        return pagina;
    }

    /// A button with its picture on it; its words and its shortcut are told by the mouse, and to whoever is read to.
    static QWidget* freccia(Bottone& bottone, Immagine& figura, std::string_view tasti, QWidget* genitore) {
        auto* pulsante = new Freccia(bottone, figura, genitore);
        const QString parole = q(bottone.testo());
        pulsante->setAccessibleName(parole);
        pulsante->setToolTip(QStringLiteral("%1 (%2)").arg(parole, q(nomeTasti(tasti))));
        auto* scorciatoia = new QShortcut(QKeySequence::fromString(q(std::string{tasti})), pulsante);
        QObject::connect(scorciatoia, &QShortcut::activated, pulsante, [&bottone] { bottone.premi(); });
        return pulsante;
    }

    /// Index, and below it the cover or the level with what it means.
    QWidget* piede(QWidget* genitore) {
        auto* riquadro = new QFrame(genitore);
        riquadro->setObjectName(QStringLiteral("pannelloIndice"));
        auto* righe = new QVBoxLayout(riquadro);
        righe->setContentsMargins(misura::margine, misura::spazio, misura::margine, misura::spazio);
        righe->setSpacing(misura::canale);
        auto* linea = new QHBoxLayout;
        linea->setSpacing(0);
        auto* indice = collega(f_.lblIndice, riquadro);
        indice->setFont(forte(punti::gruppo));
        linea->addWidget(indice);
        linea->addSpacing(misura::margine);
        for (Etichetta& livello : f_.lblLivello) {
            auto* nome = collega(livello, riquadro);
            nome->setFont(forte(punti::gruppo));
            linea->addWidget(nome);
        }
        linea->addWidget(quieta(f_.lblSenzaLivello, riquadro));
        linea->addStretch(1);
        linea->addWidget(quieta(f_.lblCopertina, riquadro));
        righe->addLayout(linea);
        auto* commento = collega(f_.lblCommento, riquadro);
        commento->setFont(dati(punti::corpo));
        commento->setWordWrap(true);
        commento->setTextInteractionFlags(Qt::TextSelectableByMouse);
        righe->addWidget(commento);
        return riquadro;
    }

    static QLabel* quieta(Etichetta& etichetta, QWidget* genitore) {
        QLabel* parola = collega(etichetta, genitore);
        parola->setFont(dati(punti::corpo));
        parola->setProperty("quieta", true);
        return parola;
    }

    frmANALIZZATORE& f_;
};

}  // namespace

VistaFinestra* vista_frmANALIZZATORE(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmANALIZZATORE&>(finestra), genitore);
}

}  // namespace kelvo::ui
