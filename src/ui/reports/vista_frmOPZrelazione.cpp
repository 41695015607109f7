#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include "reports/frmOPZrelazione.h"
#include "ui/RiquadroAiuto.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/reports/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int larghezzaBottoni = 540;
constexpr int altezzaBottone = 68;

/// Number, icon and two lines: a report. Alt and its number make it from anywhere in the window.
class BottoneRelazione final : public QPushButton {
public:
    BottoneRelazione(Bottone& bottone, const VoceRelazione& voce, QWidget* genitore) : QPushButton(genitore) {
        const QString cifra = q(std::string{voce.nome.back()});
        setProperty("relazione", true);
        setFixedHeight(altezzaBottone);
        setAutoDefault(true);  // Enter presses the button that has the keyboard
        setAccessibleName(q(bottone.testo()).replace(QLatin1Char('\n'), QLatin1Char(' ')));
        auto* riga = new QHBoxLayout(this);
        riga->setContentsMargins(misura::margineDialogo, 0, misura::margine, 0);
        riga->setSpacing(misura::margine);
        riga->addWidget(numero(cifra));
        auto* disegno = faccia();
        riga->addWidget(disegno);
        auto* parole = new QVBoxLayout;
        parole->setSpacing(0);
        parole->addStretch(1);
        parole->addWidget(parola(voce.titolo, forte(punti::gruppo)));
        parole->addWidget(parola(voce.sottotitolo, dati(punti::corpo)));
        parole->addStretch(1);
        riga->addLayout(parole, 1);
        auto* legame = new Legame(bottone, *this);
        legame->mostra([&bottone, &voce, disegno] {
            const auto modo = bottone.abilitato() ? QIcon::Normal : QIcon::Disabled;
            const QSize lato(misura::segno, misura::segno);
            const QIcon suo = icona(std::string{voce.icona}, false);
            disegno->setPixmap(suo.pixmap(lato, disegno->devicePixelRatioF(), modo));
        });
        QObject::connect(this, &QPushButton::clicked, legame, [&bottone] { bottone.premi(); });
        auto* scorciatoia = new QShortcut(QKeySequence::fromString(QStringLiteral("Alt+") + cifra), this);
        QObject::connect(scorciatoia, &QShortcut::activated, legame, [&bottone] { bottone.premi(); });
    }

private:
    QLabel* faccia() {
        auto* label = new QLabel(this);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        return label;
    }

    QLabel* numero(const QString& cifra) {
        QLabel* label = faccia();
        QFont carattere = dati(punti::gruppo);
        carattere.setUnderline(true);
        label->setFont(carattere);
        label->setText(cifra);
        label->setProperty("quieta", true);
        return label;
    }

    QLabel* parola(std::string_view testo, const QFont& carattere) {
        QLabel* label = faccia();
        label->setFont(carattere);
        label->setText(q(std::string{testo}));
        label->setWordWrap(true);
        return label;
    }
};

class Vista final : public VistaFinestra {
public:
    Vista(frmOPZrelazione& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        larghezzaColonna(larghezzaBottoni);
        colonna()->setSpacing(misura::spazioStretto);
        QLabel* titolo = collega(f.lblTitolo, corpo());
        titolo->setFont(leggero(punti::titolo));
        titolo->setProperty("titoloPagina", true);
        titolo->setWordWrap(true);
        colonna()->addWidget(titolo);
        for (std::size_t i = 0; i < f.cmd.size(); ++i) {
            colonna()->addWidget(new BottoneRelazione(f.cmd.at(i), vociRelazione.at(i), corpo()));
        }
        QLabel* motivo = collega(f.lblSaturazione, corpo());
        motivo->setFont(dati(punti::nota));
        motivo->setWordWrap(true);
        colonna()->addWidget(motivo);
        colonna()->addWidget(modelli(f));
        colonna()->addWidget(pdf(f));
        aggiungiAiuto(QStringLiteral("Che cosa contiene"))->soloPagina();
        chiudiDisposizione();
    }

private:
    /// Which templates are used, and the buttons that change them.
    QWidget* modelli(frmOPZrelazione& f) {
        auto* fila = new QWidget(corpo());
        auto* riga = new QHBoxLayout(fila);
        riga->setContentsMargins(0, 0, 0, 0);
        riga->setSpacing(misura::spazio);
        QLabel* quale = collega(f.lblModello, fila);
        quale->setFont(dati(punti::corpo));
        quale->setWordWrap(true);
        quale->setContentsMargins(misura::sporgenza, 0, 0, 0);  // in line with the sign of the tick
        riga->addWidget(quale, 1);
        riga->addWidget(collega(f.cmdModello, fila));
        riga->addWidget(collega(f.cmdModelloKelvo, fila));
        return fila;
    }

    /// The tick for a PDF, and why it is closed.
    QWidget* pdf(frmOPZrelazione& f) {
        auto* fila = new QWidget(corpo());
        auto* riga = new QHBoxLayout(fila);
        riga->setContentsMargins(0, 0, 0, 0);
        riga->setSpacing(misura::spazio);
        riga->addWidget(collega(f.chkPDF, fila));
        QLabel* motivo = collega(f.lblPDF, fila);
        motivo->setFont(dati(punti::nota));
        motivo->setWordWrap(true);
        riga->addWidget(motivo, 1);
        return fila;
    }
};

}  // namespace

VistaFinestra* vista_frmOPZrelazione(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmOPZrelazione&>(finestra), genitore);
}

}  // namespace kelvo::ui
