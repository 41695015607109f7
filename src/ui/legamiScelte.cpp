#include "ui/legamiScelte.h"

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFrame>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>
#include <algorithm>

#include "ui/VistaFinestra.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double corpo = 10.0;
constexpr int pagineScorrimento = 10;

/// The buttons of an option group: one of them is a stop of the Tab key, the arrows walk between them.
class BottoniOpzione final : public QWidget {
public:
    BottoniOpzione(GruppoOpzioni& gruppo, QWidget* genitore, Qt::Orientation verso)
        : QWidget(genitore), gruppo_(gruppo) {
        setFocusPolicy(Qt::StrongFocus);
        setProperty("sporgente", true);
        auto* piano = new QBoxLayout(QBoxLayout::TopToBottom, this);
        piano->setContentsMargins(0, 0, 0, 0);
        for (int i = 0; i < static_cast<int>(gruppo_.opzioni().size()); ++i) {
            auto* bottone = new QRadioButton(this);
            bottone->setObjectName(q(gruppo_.opzione(i).nome));
            bottone->setFont(leggero(corpo));
            bottone->setMinimumHeight(misura::spunta);
            bottone->setAutoExclusive(false);  // the group itself says which one is chosen
            bottone->installEventFilter(this);
            connect(bottone, &QRadioButton::clicked, this, [this, i] {
                gruppo_.clicca(i);
                mostra();
            });
            piano->addWidget(bottone, 0, Qt::AlignLeft);
            bottoni_.push_back(bottone);
        }
        disponi(*this, verso);
    }

    static void disponi(QWidget& gruppo, Qt::Orientation verso) {
        auto* piano = qobject_cast<QBoxLayout*>(gruppo.layout());
        piano->setDirection(verso == Qt::Vertical ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
        piano->setSpacing(verso == Qt::Vertical ? 0 : misura::margine);
    }

    const std::vector<QRadioButton*>& bottoni() const { return bottoni_; }

    void mostra() {
        QRadioButton* fermata = nullptr;
        for (std::size_t i = 0; i < bottoni_.size(); ++i) {
            const GruppoOpzioni::Opzione& opzione = gruppo_.opzioni()[i];
            const bool scelta = static_cast<int>(i) == gruppo_.scelta();
            QRadioButton* bottone = bottoni_[i];
            bottone->setText(testoBottone(*bottone, opzione.testo));
            bottone->setVisible(opzione.visibile);
            bottone->setEnabled(opzione.abilitata);
            bottone->setChecked(scelta);
            if (opzione.abilitata && opzione.visibile && (fermata == nullptr || scelta)) {
                fermata = bottone;
            }
        }
        for (QRadioButton* bottone : bottoni_) {
            bottone->setFocusPolicy(bottone == fermata ? Qt::StrongFocus : Qt::ClickFocus);
        }
        setFocusProxy(fermata);
    }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::KeyPress) {
            const int tasto = static_cast<QKeyEvent*>(evento)->key();
            const bool avanti = tasto == Qt::Key_Down || tasto == Qt::Key_Right;
            if (avanti || tasto == Qt::Key_Up || tasto == Qt::Key_Left) {
                gruppo_.sposta(avanti);
                if (focusProxy() != nullptr) {
                    focusProxy()->setFocus(Qt::OtherFocusReason);
                }
                return true;
            }
        }
        return QWidget::eventFilter(oggetto, evento);
    }

private:
    GruppoOpzioni& gruppo_;
    std::vector<QRadioButton*> bottoni_;
};

/// Puts lines in a list unless they stand there.
void mettiRighe(QListWidget& lista, const QStringList& righe) {
    QStringList presenti;
    for (int i = 0; i < lista.count(); ++i) {
        presenti << lista.item(i)->text();
    }
    if (presenti != righe) {
        lista.clear();
        lista.addItems(righe);
    }
}

QString senzaMnemonico(const std::string& testo) {
    return q(testo).replace(QLatin1Char('&'), QStringLiteral("&&"));
}

void mostraSpunte(const ElencoSpunte& elenco, QListWidget& lista) {
    const QSignalBlocker zitto(&lista);
    QStringList righe;
    for (const ElencoSpunte::Voce& voce : elenco.voci()) {
        righe << q(voce.testo);
    }
    mettiRighe(lista, righe);
    for (int i = 0; i < lista.count(); ++i) {
        QListWidgetItem* riga = lista.item(i);
        riga->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        riga->setCheckState(elenco.spuntata(i) ? Qt::Checked : Qt::Unchecked);
    }
    if (elenco.quanteSpuntate() == 1 && !lista.hasFocus()) {
        lista.setCurrentRow(elenco.primaSpuntata());  // who comes by key starts there
    }
}

/// Ticks a line wherever it is clicked.
class RigaSpuntabile final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool editorEvent(QEvent* evento, QAbstractItemModel* modello, const QStyleOptionViewItem& opzione,
                     const QModelIndex& posto) override {
        switch (evento->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
                return false;
            case QEvent::MouseButtonRelease: {
                const auto* clic = static_cast<QMouseEvent*>(evento);
                const bool dentro = opzione.rect.contains(clic->position().toPoint());
                if (clic->button() != Qt::LeftButton || !dentro || !posto.flags().testFlag(Qt::ItemIsEnabled)) {
                    return false;
                }
                const bool spuntata = posto.data(Qt::CheckStateRole).toInt() == Qt::Checked;
                return modello->setData(posto, spuntata ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
            }
            default:
                return QStyledItemDelegate::editorEvent(evento, modello, opzione, posto);
        }
    }
};

/// A list that shows all its lines.
class ListaSpunte final : public QListWidget {
public:
    explicit ListaSpunte(QWidget* genitore) : QListWidget(genitore) {
        setItemDelegate(new RigaSpuntabile(this));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setProperty("spunte", true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    QSize sizeHint() const override {
        const int bordi = 2 * frameWidth();
        const int alta = std::max(sizeHintForRow(0), misura::spunta) * count();
        return {sizeHintForColumn(0) + bordi, alta + bordi};
    }
    QSize minimumSizeHint() const override { return {misura::campoCorto, sizeHint().height()}; }
};

void mostraSchede(const Schede& schede, QTabWidget& linguette) {
    const QSignalBlocker zitto(&linguette);
    for (int i = 0; i < linguette.count(); ++i) {
        const Schede::Scheda& scheda = schede.scheda(i);
        linguette.setTabText(i, senzaMnemonico(schede.testo(i)));
        linguette.setTabEnabled(i, scheda.abilitata);
        const QIcon disegno = scheda.icona.empty() ? QIcon{} : icona(scheda.icona, false);
        linguette.setTabIcon(i, disegno.isNull() && !scheda.icona.empty() ? segno(scheda.icona) : disegno);
    }
    linguette.setCurrentIndex(schede.corrente());
}

}  // namespace

QWidget* collega(GruppoOpzioni& gruppo, QWidget* genitore, Qt::Orientation verso) {
    auto* bottoni = new BottoniOpzione(gruppo, genitore, verso);
    auto* legame = new Legame(gruppo, *bottoni);
    for (QRadioButton* bottone : bottoni->bottoni()) {
        legame->parte(*bottone);
    }
    legame->mostra([bottoni] { bottoni->mostra(); });
    return bottoni;
}

void verso(QWidget& gruppo, Qt::Orientation orientamento) {
    BottoniOpzione::disponi(gruppo, orientamento);
}

QListWidget* collega(Elenco& elenco, QWidget* genitore) {
    auto* lista = new QListWidget(genitore);
    lista->setFont(dati(corpo));
    auto* legame = new Legame(elenco, *lista);
    legame->mostra([&elenco, lista] {
        const QSignalBlocker zitto(lista);
        QStringList righe;
        for (const std::string& voce : elenco.voci()) {
            righe << q(voce);
        }
        mettiRighe(*lista, righe);
        lista->setCurrentRow(elenco.scelta());
    });
    QObject::connect(lista, &QListWidget::currentRowChanged, legame, [&elenco](int riga) { elenco.scegli(riga); });
    return lista;
}

QListWidget* collega(ElencoSpunte& elenco, QWidget* genitore, FormaElenco forma) {
    auto* lista = new ListaSpunte(genitore);
    lista->setProperty("piatto", forma == FormaElenco::piatto);
    lista->setProperty("sporgente", forma == FormaElenco::piatto);
    lista->setFont(leggero(corpo));
    auto* legame = new Legame(elenco, *lista);
    legame->mostra([&elenco, lista] { mostraSpunte(elenco, *lista); });
    QObject::connect(lista, &QListWidget::itemChanged, legame, [&elenco, lista](QListWidgetItem* riga) {
        elenco.clicca(lista->row(riga));
        mostraSpunte(elenco, *lista);
    });
    return lista;
}

QSlider* collega(Scorrimento& scorrimento, QWidget* genitore) {
    auto* cursore = new QSlider(Qt::Horizontal, genitore);
    cursore->setFocusPolicy(Qt::StrongFocus);
    auto* legame = new Legame(scorrimento, *cursore);
    legame->mostra([&scorrimento, cursore] {
        const QSignalBlocker zitto(cursore);
        cursore->setRange(scorrimento.minimo(), scorrimento.massimo());
        cursore->setSingleStep(scorrimento.passo());
        const int pagina = (scorrimento.massimo() - scorrimento.minimo()) / pagineScorrimento;
        cursore->setPageStep(std::max(scorrimento.passo(), pagina));
        cursore->setValue(scorrimento.valore());
    });
    QObject::connect(cursore, &QSlider::valueChanged, legame,
                     [&scorrimento](int valore) { scorrimento.imposta(valore); });
    return cursore;
}

QTabWidget* collega(Schede& schede, const std::vector<QWidget*>& pagine, QWidget* genitore) {
    auto* linguette = new QTabWidget(genitore);
    linguette->setFont(leggero(corpo));
    linguette->setDocumentMode(false);
    for (QWidget* pagina : pagine) {
        linguette->addTab(pagina, QString{});
    }
    auto* legame = new Legame(schede, *linguette);
    legame->parte(*linguette->tabBar());
    legame->mostra([&schede, linguette] { mostraSchede(schede, *linguette); });
    QObject::connect(linguette, &QTabWidget::currentChanged, legame, [&schede, linguette](int indice) {
        schede.scegli(indice);
        mostraSchede(schede, *linguette);
    });
    return linguette;
}

QFrame* collega(CampioneColore& campione, QWidget* genitore) {
    auto* riquadro = new QFrame(genitore);
    riquadro->setMinimumSize(misura::campo, misura::campo);
    auto* legame = new Legame(campione, *riquadro);
    legame->mostra([&campione, riquadro] {
        riquadro->setStyleSheet(QStringLiteral("background: %1; border: 1px solid %2; border-radius: 2px;")
                                    .arg(qcolore(campione.colore()).name(), qcolore(tinta::bordoCampo).name()));
    });
    return riquadro;
}

Pannello* collega(Riquadro& riquadro, QWidget* genitore) {
    auto* pannello = new Pannello(q(riquadro.titolo()), genitore);
    auto* legame = new Legame(riquadro, *pannello);
    legame->mostra({});
    return pannello;
}

}  // namespace kelvo::ui
