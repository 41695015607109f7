#include "ui/DialogoMessaggio.h"

#include <QtGui/QScreen>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <array>

#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The sign of a message; a question has the drawing of the help.
struct Segno {
    Icona icona;
    const char* livello;
};
constexpr std::array segni{Segno{Icona::critica, "Red"}, Segno{Icona::esclamazione, "Yellow"},
                           Segno{Icona::informazione, "Green"}};

QIcon disegno(Icona icona) {
    const auto* trovato = std::find_if(segni.begin(), segni.end(), [&](const Segno& s) { return s.icona == icona; });
    if (trovato != segni.end()) {
        return segno(trovato->livello);
    }
    return icona == Icona::domanda ? ui::icona("Help", false) : QIcon{};
}

/// The answers in their order, the default one first.
struct Risposte {
    Pulsanti pulsanti;
    std::array<Risposta, 3> date;
    std::size_t quante;
    Risposta innocua;
};
constexpr std::array risposte{
    Risposte{Pulsanti::ok, {Risposta::ok}, 1, Risposta::ok},
    Risposte{Pulsanti::okAnnulla, {Risposta::ok, Risposta::annulla}, 2, Risposta::annulla},
    Risposte{Pulsanti::siNo, {Risposta::si, Risposta::no}, 2, Risposta::no},
    Risposte{Pulsanti::siNoAnnulla, {Risposta::si, Risposta::no, Risposta::annulla}, 3, Risposta::annulla},
};

struct Parola {
    Risposta risposta;
    const char* testo;
    const char* nome;
};
constexpr std::array parole{
    Parola{Risposta::ok, "OK", "cmdOk"},
    Parola{Risposta::annulla, "&Annulla", "cmdAnnulla"},
    Parola{Risposta::si, "&Sì", "cmdSi"},
    Parola{Risposta::no, "&No", "cmdNo"},
};

}  // namespace

DialogoMessaggio::DialogoMessaggio(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti,
                                   QWidget* genitore)
    : QDialog(genitore), icona_(icona), soloPulsanti_(pulsanti == Pulsanti::siNo) {
    setObjectName(QStringLiteral("messaggio"));
    setWindowTitle(q(titolo));
    auto* piano = new QVBoxLayout(this);
    piano->setContentsMargins(0, 0, 0, 0);
    piano->setSpacing(0);
    piano->setSizeConstraint(QLayout::SetFixedSize);
    piano->addWidget(corpo(testo, icona));
    piano->addWidget(piede(pulsanti));
    // A title tells where a fault came from: there is room for it, with the system's buttons beside it.
    const QFontMetrics metrica(forte(punti::corpo));
    const int titoloLargo = metrica.horizontalAdvance(windowTitle() + QStringLiteral("MMMMMMMM"));
    piano->addSpacerItem(new QSpacerItem(std::min(titoloLargo, screen()->availableSize().width() / 2), 0));
}

void DialogoMessaggio::reject() {
    if (!soloPulsanti_) {
        QDialog::reject();
    }
}

QWidget* DialogoMessaggio::corpo(const std::string& testo, Icona icona) {
    auto* corpo = new QWidget(this);
    auto* riga = new QHBoxLayout(corpo);
    constexpr int margine = misura::margineDialogo;
    riga->setContentsMargins(margine, margine, margine, margine);
    riga->setSpacing(misura::margine);
    const QIcon sign = disegno(icona);
    if (!sign.isNull()) {
        auto* segno = new QLabel(corpo);
        segno->setPixmap(sign.pixmap(QSize(misura::segno, misura::segno), devicePixelRatioF()));
        riga->addWidget(segno, 0, Qt::AlignTop);
    }
    QString scritto = q(testo);
    scritto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\r'), QLatin1Char('\n'));
    auto* parole = new QLabel(scritto, corpo);
    parole->setObjectName(QStringLiteral("testoMessaggio"));
    parole->setTextFormat(Qt::PlainText);
    parole->setFont(dati(punti::corpo));
    parole->setTextInteractionFlags(Qt::TextSelectableByMouse);
    parole->setWordWrap(true);
    const int lunga = parole->fontMetrics().size(0, scritto).width() + misura::spazio;
    const int larga = std::clamp(lunga, misura::figura, misura::testoMessaggio);
    parole->setFixedSize(larga, std::max(misura::segno, parole->heightForWidth(larga)));
    parole->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // What is too long for the screen is read by scrolling: the answers below it stay in sight.
    const int massima = screen()->availableSize().height() / 2;
    if (parole->height() <= massima) {
        riga->addWidget(parole, 1);
        return corpo;
    }
    auto* scorre = new QScrollArea(corpo);
    scorre->setFrameShape(QFrame::NoFrame);
    scorre->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scorre->setWidget(parole);
    scorre->setFixedSize(larga + scorre->verticalScrollBar()->sizeHint().width(), massima);
    riga->addWidget(scorre, 1);
    return corpo;
}

QWidget* DialogoMessaggio::piede(Pulsanti pulsanti) {
    auto* piede = new QWidget(this);
    piede->setObjectName(QStringLiteral("piede"));
    piede->setAttribute(Qt::WA_StyledBackground);
    auto* riga = new QHBoxLayout(piede);
    riga->setContentsMargins(misura::margineDialogo, misura::piedeVerticale, misura::margine, misura::piedeVerticale);
    riga->setSpacing(misura::spazio);
    riga->addStretch(1);
    const auto* voce =
        std::find_if(risposte.begin(), risposte.end(), [&](const Risposte& r) { return r.pulsanti == pulsanti; });
    risposta_ = voce->innocua;
    for (std::size_t i = 0; i < voce->quante; ++i) {
        const Risposta quale = voce->date[i];
        const auto* parola =
            std::find_if(parole.begin(), parole.end(), [&](const Parola& p) { return p.risposta == quale; });
        auto* bottone = new QPushButton(QString::fromUtf8(parola->testo), piede);
        bottone->setObjectName(QString::fromLatin1(parola->nome));
        bottone->setFont(dati(punti::corpo));
        bottone->setDefault(i == 0);
        bottone->setAutoDefault(true);
        QObject::connect(bottone, &QPushButton::clicked, this, [this, quale] {
            risposta_ = quale;
            accept();
        });
        riga->addWidget(bottone);
    }
    return piede;
}

}  // namespace kelvo::ui
