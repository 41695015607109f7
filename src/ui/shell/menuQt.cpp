#include "ui/shell/menuQt.h"

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include "shell/icone.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"

namespace kelvo::ui {

namespace {

/// The caption with its mnemonic marked, and with what would be one by chance made plain.
QString conMnemonico(const MenuChiavi::Voce& voce) {
    QString testo = q(voce.testo);
    testo.replace(QLatin1Char('&'), QStringLiteral("&&"));
    const auto posto =
        voce.mnemonico.empty() ? qsizetype{-1} : testo.indexOf(q(voce.mnemonico), 0, Qt::CaseInsensitive);
    if (posto >= 0) {
        testo.insert(posto, QLatin1Char('&'));
    }
    return testo;
}

QIcon iconaVoce(const MenuChiavi::Voce& voce) {
    const bool nota = voce.icona >= 0 && static_cast<std::size_t>(voce.icona) < ImageList2014.size();
    return nota ? icona(std::string{ImageList2014[static_cast<std::size_t>(voce.icona)]}, false) : QIcon{};
}

class Specchio final : public QObject {
public:
    Specchio(MenuChiavi& menu, QMenuBar& barra) : QObject(&barra), menu_(menu), barra_(barra) {}

    /// A build of the menu changes it entry by entry: it is shown once, when all is said.
    void prenota() {
        if (versione_ != menu_.versione() && !prenotato_) {
            prenotato_ = true;
            QTimer::singleShot(0, this, [this] { aggiorna(); });
        }
    }

private:
    void aggiorna() {
        prenotato_ = false;
        versione_ = menu_.versione();
        barra_.clear();
        for (const MenuChiavi::Voce* voce : menu_.figli({})) {
            QMenu* tendina = barra_.addMenu(conMnemonico(*voce));
            tendina->menuAction()->setObjectName(q(voce->chiave));
            tendina->setEnabled(voce->abilitata);
            tendina->menuAction()->setVisible(voce->visibile);
            riempi(*tendina, voce->chiave);
        }
    }

    void riempi(QMenu& tendina, const std::string& padre) {
        tendina.setToolTipsVisible(true);
        for (const MenuChiavi::Voce* voce : menu_.figli(padre)) {
            if (voce->testo == "-") {
                tendina.addSeparator();
            } else if (!menu_.figli(voce->chiave).empty()) {
                QMenu* sotto = tendina.addMenu(iconaVoce(*voce), conMnemonico(*voce));
                sotto->setEnabled(voce->abilitata);
                riempi(*sotto, voce->chiave);
            } else {
                aggiungi(tendina, *voce);
            }
        }
    }

    void aggiungi(QMenu& tendina, const MenuChiavi::Voce& voce) {
        QAction* azione = tendina.addAction(iconaVoce(voce), conMnemonico(voce));
        azione->setObjectName(q(voce.chiave));
        azione->setEnabled(voce.abilitata);
        azione->setCheckable(voce.spuntata);
        azione->setChecked(voce.spuntata);
        azione->setToolTip(q(voce.nota));
        azione->setShortcut(QKeySequence::fromString(q(voce.scorciatoia)));
        // Queued: what the entry does may rebuild the menu that it stands in.
        connect(
            azione, &QAction::triggered, this, [this, chiave = voce.chiave] { menu_.premi(chiave); },
            Qt::QueuedConnection);
    }

    MenuChiavi& menu_;
    QMenuBar& barra_;
    unsigned versione_ = 0;
    bool prenotato_ = false;
};

}  // namespace

void collega(MenuChiavi& menu, QMenuBar& barra) {
    auto* specchio = new Specchio(menu, barra);
    auto* legame = new Legame(menu, barra);
    legame->mostra([specchio] { specchio->prenota(); });
}

}  // namespace kelvo::ui
