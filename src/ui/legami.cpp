#include "ui/legami.h"

#include <QtCore/QEvent>
#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTimeEdit>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>

#include "ui/SegnoErrore.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double corpo = 10.0;
const QString formatoOra = QStringLiteral("HH:mm");
const QString formatoGiorno = QStringLiteral("dd/MM/yyyy");

/// Shows the failed state, which the style sheet paints.
void mostraFallito(QWidget& widget, bool fallito) {
    if (widget.property("fallito").toBool() != fallito) {
        widget.setProperty("fallito", fallito);
        widget.style()->unpolish(&widget);
        widget.style()->polish(&widget);
        QEvent mutato(QEvent::StyleChange);
        QApplication::sendEvent(&widget, &mutato);  // pickers and lists give their text its new place
        auto* segno = widget.findChild<SegnoErrore*>();
        (segno == nullptr ? new SegnoErrore(widget) : segno)->setVisible(fallito);
    }
}

void preparaCampo(QWidget& widget) {
    widget.setFont(dati(corpo));
    widget.setMinimumHeight(misura::campo);
    widget.setFocusPolicy(Qt::StrongFocus);
}

QWidget* collegaRiga(tBox& campo, QWidget* genitore) {
    auto* riga = new QLineEdit(genitore);
    preparaCampo(*riga);
    if (campo.regole().numerico) {
        riga->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    auto* legame = new Legame(campo, *riga);
    legame->diRiga([&campo] { return campo.annulla(); });
    legame->mostra([&campo, riga] {
        if (riga->text() != q(campo.testo())) {
            const int cursore = riga->cursorPosition();
            riga->setText(q(campo.testo()));
            riga->setCursorPosition(cursore);
        }
        riga->setReadOnly(campo.solaLettura());
        mostraFallito(*riga, campo.fallito());
    });
    QObject::connect(riga, &QLineEdit::textEdited, legame, [&campo, riga](const QString& testo) {
        campo.scrivi(s(testo));
        if (riga->text() != q(campo.testo())) {
            // What the field does not take falls out, the cursor stays behind what was typed.
            const auto persi = testo.size() - q(campo.testo()).size();
            const auto cursore = riga->cursorPosition() - static_cast<int>(persi);
            riga->setText(q(campo.testo()));
            riga->setCursorPosition(cursore);
        }
    });
    return riga;
}

/// The rows of a list as they are shown. A text that is none of them, where none may be typed, stands behind them: it
/// is shown and cannot be picked.
QStringList vociMostrate(const tBox& campo) {
    QStringList voci;
    for (const std::string& voce : campo.voci()) {
        voci << q(voce);
    }
    if (!campo.digitabile && campo.scelta() < 0 && !campo.testo().empty()) {
        voci << q(campo.testo());
    }
    return voci;
}

void mostraElenco(const tBox& campo, QComboBox& elenco) {
    const QSignalBlocker zitto(&elenco);
    const QStringList voci = vociMostrate(campo);
    QStringList presenti;
    for (int i = 0; i < elenco.count(); ++i) {
        presenti << elenco.itemText(i);
    }
    if (voci != presenti) {
        elenco.clear();
        elenco.addItems(voci);
        auto* righe = qobject_cast<QStandardItemModel*>(elenco.model());
        for (int i = static_cast<int>(campo.voci().size()); righe != nullptr && i < elenco.count(); ++i) {
            righe->item(i)->setEnabled(false);
        }
    }
    const auto indice = static_cast<int>(voci.indexOf(q(campo.testo())));
    if (elenco.currentIndex() != indice) {
        elenco.setCurrentIndex(indice);
    }
    if (elenco.isEditable() && elenco.currentText() != q(campo.testo())) {
        elenco.setEditText(q(campo.testo()));
    }
    mostraFallito(elenco, campo.fallito());
}

QWidget* collegaElenco(tBox& campo, QWidget* genitore) {
    auto* elenco = new QComboBox(genitore);
    preparaCampo(*elenco);
    elenco->setEditable(campo.digitabile);
    elenco->setInsertPolicy(QComboBox::NoInsert);
    if (campo.digitabile) {
        elenco->setCompleter(nullptr);
    }
    auto* legame = new Legame(campo, *elenco);
    legame->diRiga([&campo] { return campo.annulla(); });
    legame->mostra([&campo, elenco] { mostraElenco(campo, *elenco); });
    QObject::connect(elenco, &QComboBox::currentTextChanged, legame, [&campo, elenco](const QString& testo) {
        campo.scrivi(s(testo));
        if (elenco->currentText() != q(campo.testo())) {
            mostraElenco(campo, *elenco);  // what the field does not take falls out
        }
    });
    return elenco;
}

/// A picker that the Tab key leaves at once: the arrows go through its parts.
template <class Campo>
class Selettore final : public Campo {
public:
    using Campo::Campo;

protected:
    bool focusNextPrevChild(bool avanti) override { return QWidget::focusNextPrevChild(avanti); }
};

/// A picker of a time of day, or of a day.
QWidget* collegaOra(tBox& campo, QWidget* genitore) {
    QDateTimeEdit* ora = campo.giorno ? static_cast<QDateTimeEdit*>(new Selettore<QDateEdit>(genitore))
                                      : new Selettore<QTimeEdit>(genitore);
    const QString formato = campo.giorno ? formatoGiorno : formatoOra;
    preparaCampo(*ora);
    ora->setDisplayFormat(formato);
    ora->setCalendarPopup(campo.giorno);
    auto* legame = new Legame(campo, *ora);
    legame->diRiga([&campo] { return campo.annulla(); });
    legame->mostra([&campo, ora, formato] {
        const QSignalBlocker zitto(ora);
        if (ora->text() != q(campo.testo())) {
            if (campo.giorno) {
                ora->setDate(QDate::fromString(q(campo.testo()), formato));
            } else {
                ora->setTime(QTime::fromString(q(campo.testo()), formato));
            }
        }
        ora->setReadOnly(campo.solaLettura());
        mostraFallito(*ora, campo.fallito());
    });
    QObject::connect(ora, &QDateTimeEdit::dateTimeChanged, legame,
                     [&campo, formato](const QDateTime& valore) { campo.scrivi(s(valore.toString(formato))); });
    return ora;
}

}  // namespace

QString q(const std::string& testo) {
    return QString::fromStdString(testo);
}

std::string s(const QString& testo) {
    return testo.toStdString();
}

QWidget* collega(tBox& campo, QWidget* genitore) {
    switch (campo.faccia()) {
        case tBox::combobox:
            return collegaElenco(campo, genitore);
        case tBox::dtpicker:
            return collegaOra(campo, genitore);
        case tBox::textbox:
        case tBox::maskedit:
        case tBox::objSmartTextBox:
            break;
    }
    return collegaRiga(campo, genitore);
}

QPlainTextEdit* collega(AreaTesto& area, QWidget* genitore) {
    auto* testo = new QPlainTextEdit(genitore);
    testo->setFont(dati(corpo));
    testo->setTabChangesFocus(true);
    auto* legame = new Legame(area, *testo);
    legame->mostra([&area, testo] {
        if (testo->toPlainText() != q(area.testo())) {
            const QSignalBlocker zitto(testo);
            testo->setPlainText(q(area.testo()));
        }
    });
    QObject::connect(testo, &QPlainTextEdit::textChanged, legame,
                     [&area, testo] { area.scrivi(s(testo->toPlainText())); });
    return testo;
}

QLabel* collega(Etichetta& etichetta, QWidget* genitore) {
    auto* label = new QLabel(genitore);
    label->setFont(leggero(corpo));
    auto* legame = new Legame(etichetta, *label);
    legame->mostra([&etichetta, label] {
        label->setText(q(etichetta.testo()));
        const Colore colore = etichetta.aspetto().inchiostro;
        const bool proprio = colore != colori::nero;
        const QString foglio =
            proprio ? QStringLiteral("color: %1").arg(qcolore(inchiostroLeggibile(colore, colori::bianco)).name())
                    : QString{};
        if (label->styleSheet() != foglio) {
            const QFont carattere = label->font();
            label->setStyleSheet(foglio);
            label->setFont(carattere);  // a new sheet undoes the font that a view gave the label
        }
    });
    return label;
}

QAbstractButton* collega(Bottone& bottone, QWidget* genitore) {
    auto* pulsante = new QPushButton(genitore);
    pulsante->setFont(dati(corpo));
    pulsante->setMinimumHeight(misura::bottone);
    pulsante->setAutoDefault(false);
    auto* legame = new Legame(bottone, *pulsante);
    legame->mostra([&bottone, pulsante] { pulsante->setText(q(bottone.testo())); });
    QObject::connect(pulsante, &QPushButton::clicked, legame, [&bottone] { bottone.premi(); });
    return pulsante;
}

QAbstractButton* collega(Casella& casella, QWidget* genitore) {
    QAbstractButton* pulsante = nullptr;
    if (casella.forma() == Casella::casella) {
        pulsante = new QCheckBox(genitore);
        pulsante->setMinimumHeight(misura::spunta);
    } else {
        pulsante = new QPushButton(genitore);
        pulsante->setCheckable(true);
        pulsante->setMinimumHeight(misura::bottone);
    }
    auto* legame = new Legame(casella, *pulsante);
    legame->mostra([&casella, pulsante] {
        const QSignalBlocker zitto(pulsante);
        pulsante->setText(q(casella.testo()));
        pulsante->setChecked(casella.spuntata());
    });
    QObject::connect(pulsante, &QAbstractButton::clicked, legame, [&casella, pulsante] {
        const QSignalBlocker zitto(pulsante);
        pulsante->setChecked(casella.spuntata());
        casella.clicca();
    });
    return pulsante;
}

QSpinBox* collega(Spin& spin, QWidget* genitore) {
    auto* numero = new QSpinBox(genitore);
    preparaCampo(*numero);
    numero->setRange(spin.minimo(), spin.massimo());
    auto* legame = new Legame(spin, *numero);
    legame->mostra([&spin, numero] {
        const QSignalBlocker zitto(numero);
        numero->setValue(spin.valore());
    });
    QObject::connect(numero, &QSpinBox::valueChanged, legame, [&spin](int valore) { spin.imposta(valore); });
    return numero;
}

QLabel* collega(Immagine& figura, QWidget* genitore) {
    auto* label = new QLabel(genitore);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumSize(misura::figura, misura::figura);
    auto* legame = new Legame(figura, *label);
    legame->mostra([&figura, label] {
        label->setPixmap(immagine(figura.risorsa(), QSize(misura::figura, misura::figura), label->devicePixelRatioF()));
    });
    return label;
}

QProgressBar* collega(BarraProgresso& barra, QWidget* genitore) {
    auto* avanzamento = new QProgressBar(genitore);
    avanzamento->setRange(barra.minimo(), barra.massimo());
    avanzamento->setTextVisible(false);
    auto* legame = new Legame(barra, *avanzamento);
    legame->mostra([&barra, avanzamento] { avanzamento->setValue(barra.valore()); });
    return avanzamento;
}

QTreeWidget* collega(ElencoColonne& elenco, QWidget* genitore) {
    auto* righe = new QTreeWidget(genitore);
    righe->setRootIsDecorated(false);
    righe->setUniformRowHeights(true);
    righe->setFont(dati(corpo));
    QStringList titoli;
    for (const std::string& titolo : elenco.intestazioni()) {
        titoli << q(titolo);
    }
    righe->setHeaderLabels(titoli);
    auto* legame = new Legame(elenco, *righe);
    legame->mostra([&elenco, righe] {
        righe->clear();
        for (const ElencoColonne::Riga& riga : elenco.righe()) {
            QStringList celle;
            for (const std::string& cella : riga.celle) {
                celle << q(cella);
            }
            auto* voce = new QTreeWidgetItem(righe, celle);
            voce->setData(0, Qt::UserRole, q(riga.chiave));
            for (int c = 0; riga.evidente && c < righe->columnCount(); ++c) {
                voce->setFont(c, forte(corpo));
            }
        }
        for (int c = 0; c < righe->columnCount(); ++c) {
            righe->resizeColumnToContents(c);
        }
    });
    // Queued: what a row leads to hides the window that it stands in.
    QObject::connect(
        righe, &QTreeWidget::itemActivated, legame,
        [&elenco](QTreeWidgetItem* voce) { elenco.attiva(s(voce->data(0, Qt::UserRole).toString())); },
        Qt::QueuedConnection);
    return righe;
}

QToolBar* collega(BarraStrumenti& barra, QWidget* genitore, int lato, bool conTesto) {
    auto* strumenti = new QToolBar(genitore);
    strumenti->setIconSize({lato, lato});
    strumenti->setMovable(false);
    strumenti->setToolButtonStyle(conTesto ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    auto* legame = new Legame(barra, *strumenti);
    for (const BarraStrumenti::Tasto& tasto : barra.tasti()) {
        if (tasto.chiave.empty()) {
            strumenti->addSeparator();
            continue;
        }
        QAction* azione = strumenti->addAction(icona(tasto.icona, true), q(tasto.testo));
        azione->setObjectName(q(tasto.chiave));
        azione->setToolTip(q(tasto.suggerimento));
        QObject::connect(azione, &QAction::triggered, legame, [&barra, chiave = tasto.chiave] { barra.premi(chiave); });
        if (QWidget* bottone = strumenti->widgetForAction(azione)) {
            bottone->setFocusPolicy(Qt::TabFocus);
            bottone->setFont(dati(9.5));
        }
    }
    legame->mostra([&barra, strumenti] {
        for (const BarraStrumenti::Tasto& tasto : barra.tasti()) {
            if (auto* azione = strumenti->findChild<QAction*>(q(tasto.chiave))) {
                azione->setEnabled(tasto.abilitato);
            }
        }
    });
    return strumenti;
}

}  // namespace kelvo::ui
