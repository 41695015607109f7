#include "ui/shell/menuQt.h"

#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include "shell/icone.h"
#include "shell/servizi/scorciatoie.h"
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

void riempi(MenuChiavi& menu, const std::string& padre, QMenu& tendina, QObject& contesto);

void aggiungi(MenuChiavi& menu, const MenuChiavi::Voce& voce, QMenu& tendina, QObject& contesto) {
    // The shortcut is shown only: the main window binds all of them in one place.
    const QString tasti = voce.scorciatoia.empty() ? QString{} : QLatin1Char('\t') + q(nomeTasti(voce.scorciatoia));
    QAction* azione = tendina.addAction(iconaVoce(voce), conMnemonico(voce) + tasti);
    azione->setObjectName(q(voce.chiave));
    azione->setEnabled(voce.abilitata);
    azione->setCheckable(voce.spuntata);
    azione->setChecked(voce.spuntata);
    // Without words of its own an entry would show its caption once more.
    azione->setToolTip(voce.nota.empty() ? QStringLiteral(" ") : q(voce.nota));
    // Queued: what the entry does may rebuild the menu that it stands in.
    QObject::connect(
        azione, &QAction::triggered, &contesto, [&menu, chiave = voce.chiave] { menu.premi(chiave); },
        Qt::QueuedConnection);
}

void riempi(MenuChiavi& menu, const std::string& padre, QMenu& tendina, QObject& contesto) {
    tendina.setToolTipsVisible(true);
    for (const MenuChiavi::Voce* voce : menu.figli(padre)) {
        if (voce->testo == "-") {
            tendina.addSeparator();
        } else if (!menu.figli(voce->chiave).empty()) {
            QMenu* sotto = tendina.addMenu(iconaVoce(*voce), conMnemonico(*voce));
            sotto->setEnabled(voce->abilitata);
            riempi(menu, voce->chiave, *sotto, contesto);
        } else {
            aggiungi(menu, *voce, tendina, contesto);
        }
    }
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
        for (QAction* azione : barra_.actions()) {
            if (QMenu* tendina = azione->menu()) {
                tendina->deleteLater();  // the bar only drops its entry
            }
        }
        barra_.clear();
        for (const MenuChiavi::Voce* voce : menu_.figli({})) {
            QMenu* tendina = barra_.addMenu(conMnemonico(*voce));
            tendina->menuAction()->setObjectName(q(voce->chiave));
            tendina->setEnabled(voce->abilitata);
            tendina->menuAction()->setVisible(voce->visibile);
            riempi(menu_, voce->chiave, *tendina, *this);
        }
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

void mostraContesto(MenuChiavi& menu, QWidget& oggetto, QPoint dove) {
    const auto radici = menu.figli({});
    if (radici.empty() || !menu.visibile() || !menu.abilitato() || menu.figli(radici.front()->chiave).empty()) {
        return;
    }
    auto* tendina = new QMenu(&oggetto);
    tendina->setObjectName(q(menu.nome()));
    tendina->setAttribute(Qt::WA_DeleteOnClose);
    // The entries are told after the menu has gone: the widget outlives it.
    riempi(menu, radici.front()->chiave, *tendina, oggetto);
    tendina->popup(oggetto.mapToGlobal(dove));
}

}  // namespace kelvo::ui
