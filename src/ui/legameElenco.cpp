// The binder of a list with columns.

#include <QtCore/QSignalBlocker>
#include <QtGui/QShortcut>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTreeWidget>
#include <algorithm>
#include <vector>

#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr int bordoCella = 16;     ///< at the sides of a heading
constexpr int altoTestata = 1000;  ///< more than any heading is high
constexpr int verticaleTestata = 8;

std::string chiaveDi(const QTreeWidgetItem& voce) {
    return s(voce.data(0, Qt::UserRole).toString());
}

/// A list whose columns take the room of their texts and share what there is where it is not enough.
class ListaColonne final : public QTreeWidget {
public:
    ListaColonne(const ElencoColonne& elenco, QWidget* genitore) : QTreeWidget(genitore), elenco_(elenco) {
        QStringList titoli;
        for (const std::string& titolo : elenco.intestazioni()) {
            titoli << q(titolo);
        }
        setHeaderLabels(titoli);
        header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        for (int c = 0; c < columnCount(); ++c) {
            if (numerica(c)) {
                headerItem()->setData(c, Qt::TextAlignmentRole,
                                      static_cast<int>(Qt::AlignRight | Qt::AlignVCenter) | Qt::TextWordWrap);
            }
        }
    }

    void mostra() {
        const QSignalBlocker zitto(this);
        if (mostrate_ != elenco_.righe()) {
            mostrate_ = elenco_.righe();
            riempi();
        }
        if (elenco_.sceglie) {
            segna();
        }
    }

    void spartisci() {
        const int spazio = viewport()->width();
        std::vector<int> larghezze;
        int chiesto = 0;
        for (int c = 0; c < columnCount(); ++c) {
            const bool ultima = c == columnCount() - 1;
            // What is left goes to the last column of texts, or to the first one before numbers.
            larghezze.push_back(ultima && !numerica(c) ? misura::campoCorto
                                                       : std::max(sizeHintForColumn(c), larghezzaTestata(c)));
            chiesto += larghezze.back();
        }
        const bool basta = chiesto <= spazio || spazio <= 0;
        for (int c = 0; c < columnCount(); ++c) {
            const int voluta = larghezze[static_cast<std::size_t>(c)];
            const int resto = basta && c == 0 && numerica(columnCount() - 1) ? std::max(0, spazio - chiesto) : 0;
            header()->resizeSection(c, basta ? voluta + resto : voluta * spazio / chiesto);
        }
        if (numerica(columnCount() - 1)) {
            header()->setFixedHeight(altezzaTestata());
        }
    }

protected:
    void resizeEvent(QResizeEvent* evento) override {
        QTreeWidget::resizeEvent(evento);
        spartisci();
    }
    void showEvent(QShowEvent* evento) override {
        QTreeWidget::showEvent(evento);
        spartisci();
    }

private:
    bool numerica(int colonna) const { return static_cast<std::size_t>(colonna) >= elenco_.numericheDa; }

    /// A heading over numbers is broken between its words.
    int larghezzaTestata(int colonna) const {
        if (!numerica(colonna)) {
            return header()->sectionSizeHint(colonna);
        }
        int larga = 0;
        for (const QString& parola : headerItem()->text(colonna).split(QLatin1Char(' '))) {
            larga = std::max(larga, header()->fontMetrics().horizontalAdvance(parola));
        }
        return larga + bordoCella + 1;
    }

    int altezzaTestata() const {
        int alta = 0;
        for (int c = 0; c < columnCount(); ++c) {
            const QRect spazio(0, 0, std::max(1, header()->sectionSize(c) - bordoCella), altoTestata);
            const int modo = numerica(c) ? Qt::TextWordWrap : Qt::TextSingleLine;
            alta = std::max(alta, header()->fontMetrics().boundingRect(spazio, modo, headerItem()->text(c)).height());
        }
        return alta + verticaleTestata;
    }

    void riempi() {
        clear();
        for (const ElencoColonne::Riga& riga : mostrate_) {
            auto* voce = new QTreeWidgetItem(this);
            voce->setData(0, Qt::UserRole, q(riga.chiave));
            for (int c = 0; c < columnCount() && c < static_cast<int>(riga.celle.size()); ++c) {
                const QString cella = q(riga.celle[static_cast<std::size_t>(c)]);
                voce->setText(c, cella);
                voce->setToolTip(c, cella);
                if (numerica(c)) {
                    voce->setTextAlignment(c, Qt::AlignRight | Qt::AlignVCenter);
                }
                if (riga.evidente) {
                    voce->setFont(c, forte(punti::corpo));
                }
            }
        }
        spartisci();
    }

    /// Marks the row that the list has marked.
    void segna() {
        for (int i = 0; i < topLevelItemCount(); ++i) {
            if (chiaveDi(*topLevelItem(i)) == elenco_.selezionata()) {
                setCurrentItem(topLevelItem(i));
                return;
            }
        }
        clearSelection();
    }

    const ElencoColonne& elenco_;
    std::vector<ElencoColonne::Riga> mostrate_;
};

void collegaGesti(ElencoColonne& elenco, ListaColonne& righe, Legame& legame) {
    const auto apri = [&elenco](QTreeWidgetItem* voce) { elenco.attiva(chiaveDi(*voce)); };
    if (elenco.sceglie) {
        QObject::connect(&righe, &QTreeWidget::itemSelectionChanged, &legame, [&elenco, &righe] {
            const QList<QTreeWidgetItem*> scelte = righe.selectedItems();
            elenco.clicca(scelte.isEmpty() ? std::string{} : chiaveDi(*scelte.constFirst()));
        });
    }
    // Queued: what a row leads to hides the window that it stands in.
    QObject::connect(&righe, elenco.sceglie ? &QTreeWidget::itemDoubleClicked : &QTreeWidget::itemClicked, &legame,
                     apri, Qt::QueuedConnection);
    for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* invio = new QShortcut(QKeySequence(tasto), &righe, nullptr, nullptr, Qt::WidgetShortcut);
        QObject::connect(
            invio, &QShortcut::activated, &legame,
            [&elenco, &righe, apri] {
                // A row may be current without having been chosen: the keyboard has only come to the list.
                QTreeWidgetItem* voce = righe.currentItem();
                if (voce != nullptr && (!elenco.sceglie || voce->isSelected())) {
                    apri(voce);
                }
            },
            Qt::QueuedConnection);
    }
}

}  // namespace

QTreeWidget* collega(ElencoColonne& elenco, QWidget* genitore) {
    auto* righe = new ListaColonne(elenco, genitore);
    righe->setRootIsDecorated(false);
    righe->header()->setStretchLastSection(true);
    righe->setUniformRowHeights(true);
    righe->setMinimumWidth(misura::elenco);
    righe->setFrameShape(QFrame::NoFrame);
    righe->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    righe->setFont(dati(punti::corpo));
    righe->header()->setFont(forte(punti::barra));
    righe->header()->setSectionsClickable(false);
    righe->header()->setMinimumSectionSize(misura::campoCorto / 2);
    if (!elenco.sceglie) {
        righe->viewport()->setCursor(Qt::PointingHandCursor);
    }
    righe->setMouseTracking(true);
    auto* legame = new Legame(elenco, *righe);
    righe->setProperty("elenco", true);
    legame->mostra([righe] { righe->mostra(); });
    collegaGesti(elenco, *righe, *legame);
    return righe;
}

}  // namespace kelvo::ui
