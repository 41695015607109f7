#include "ui/legami.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QAction>
#include <QtGui/QPalette>
#include <QtGui/QStandardItemModel>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QTimeEdit>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolButton>

#include "ui/Figura.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr double corpo = punti::corpo;
constexpr const char* proprietaMnemonico = "mnemonico";
const QString formatoOra = QStringLiteral("HH:mm");
const QString formatoGiorno = QStringLiteral("dd/MM/yyyy");

/// A text with the mnemonic of its widget marked.
QString marcato(const QWidget& widget, QString testo) {
    testo.replace(QLatin1Char('&'), QStringLiteral("&&"));
    const QString lettera = widget.property(proprietaMnemonico).toString();
    const auto posto = lettera.isEmpty() ? qsizetype{-1} : testo.indexOf(lettera, 0, Qt::CaseInsensitive);
    return posto < 0 ? testo : testo.insert(posto, QLatin1Char('&'));
}

/// A label's text with its mnemonic marked; only a label that leads to a field has one.
QString conMnemonico(const QLabel& etichetta, const QString& testo) {
    return etichetta.buddy() == nullptr ? testo : marcato(etichetta, testo);
}

void preparaCampo(QWidget& widget) {
    widget.setFont(dati(corpo));
    widget.setFixedHeight(misura::campo);
    widget.setFocusPolicy(Qt::StrongFocus);
}

/// What the field tells the mouse, and whoever is read to.
void suggerisci(const tBox& campo, QWidget& widget) {
    widget.setToolTip(q(campo.suggerimento));
    widget.setAccessibleDescription(q(campo.suggerimento));
}

/// The text of a field in the colour that its window tells.
void inchiostra(QLineEdit& riga, Colore colore) {
    QPalette tavolozza = riga.palette();
    const bool proprio = colore != colori::nero;
    const QColor voluto = qcolore(proprio ? inchiostroLeggibile(colore, colori::bianco) : tinta::inchiostro);
    if (tavolozza.color(QPalette::Active, QPalette::Text) != voluto) {
        tavolozza.setColor(QPalette::Active, QPalette::Text, voluto);
        tavolozza.setColor(QPalette::Inactive, QPalette::Text, voluto);
        riga.setPalette(tavolozza);
    }
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
        inchiostra(*riga, campo.aspetto().inchiostro);
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
    elenco->setItemDelegate(new QStyledItemDelegate(elenco));  // the rows of the list follow the style sheet
    elenco->setEditable(campo.digitabile);
    if (QLineEdit* riga = elenco->lineEdit()) {
        riga->setFont(dati(corpo));
        riga->setCompleter(nullptr);
    }
    elenco->setInsertPolicy(QComboBox::NoInsert);
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
    if (QCalendarWidget* calendario = ora->calendarWidget()) {
        // Red is for what is wrong: a Sunday is not.
        QTextCharFormat festivo;
        festivo.setForeground(qcolore(tinta::secondario));
        calendario->setWeekdayTextFormat(Qt::Saturday, festivo);
        calendario->setWeekdayTextFormat(Qt::Sunday, festivo);
        calendario->setFont(dati(corpo));
    }
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
    QWidget* widget = nullptr;
    switch (campo.faccia()) {
        case tBox::combobox:
            widget = collegaElenco(campo, genitore);
            break;
        case tBox::dtpicker:
            widget = collegaOra(campo, genitore);
            break;
        case tBox::textbox:
        case tBox::maskedit:
        case tBox::objSmartTextBox:
            widget = collegaRiga(campo, genitore);
            break;
    }
    suggerisci(campo, *widget);
    return widget;
}

QPlainTextEdit* collega(AreaTesto& area, QWidget* genitore) {
    auto* testo = new QPlainTextEdit(genitore);
    testo->setFont(dati(corpo));
    testo->document()->setDocumentMargin(misura::bordoTesto);
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

void mnemonico(QLabel& etichetta, QChar lettera) {
    etichetta.setProperty(proprietaMnemonico, QString(lettera));
    etichetta.setText(conMnemonico(etichetta, etichetta.text()));
}

void mnemonico(QAbstractButton& bottone, QChar lettera) {
    const std::string testo = s(bottone.text().replace(QStringLiteral("&&"), QStringLiteral("&")));
    bottone.setProperty(proprietaMnemonico, QString(lettera));
    bottone.setText(testoBottone(bottone, testo));
}

QString testoBottone(const QAbstractButton& bottone, const std::string& testo) {
    return marcato(bottone, q(testo));
}

QLabel* collega(Etichetta& etichetta, QWidget* genitore) {
    auto* label = new QLabel(genitore);
    label->setTextFormat(Qt::PlainText);
    label->setFont(leggero(corpo));
    auto* legame = new Legame(etichetta, *label);
    legame->mostra([&etichetta, label] {
        label->setText(conMnemonico(*label, q(etichetta.testo())));
        const Colore colore = etichetta.aspetto().inchiostro;
        const bool proprio = colore != colori::nero;
        QPalette tavolozza = label->palette();
        tavolozza.setColor(QPalette::WindowText,
                           qcolore(proprio ? inchiostroLeggibile(colore, colori::bianco) : tinta::inchiostro));
        label->setPalette(tavolozza);
    });
    return label;
}

QAbstractButton* collega(Bottone& bottone, QWidget* genitore) {
    auto* pulsante = new QPushButton(genitore);
    pulsante->setFont(dati(corpo));
    pulsante->setFixedHeight(misura::bottone);
    pulsante->setAutoDefault(true);  // Enter presses the button that has the keyboard
    auto* legame = new Legame(bottone, *pulsante);
    legame->mostra([&bottone, pulsante] { pulsante->setText(testoBottone(*pulsante, bottone.testo())); });
    QObject::connect(pulsante, &QPushButton::clicked, legame, [&bottone] { bottone.premi(); });
    return pulsante;
}

QAbstractButton* collega(Casella& casella, QWidget* genitore) {
    QAbstractButton* pulsante = nullptr;
    if (casella.forma() == Casella::casella) {
        pulsante = new QCheckBox(genitore);
        pulsante->setMinimumHeight(misura::spunta);
        pulsante->setProperty("sporgente", true);
    } else {
        pulsante = new QPushButton(genitore);
        pulsante->setCheckable(true);
        pulsante->setMinimumHeight(misura::bottone);
    }
    auto* legame = new Legame(casella, *pulsante);
    legame->mostra([&casella, pulsante] {
        const QSignalBlocker zitto(pulsante);
        pulsante->setText(testoBottone(*pulsante, casella.testo()));
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
    numero->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* legame = new Legame(spin, *numero);
    legame->mostra([&spin, numero] {
        const QSignalBlocker zitto(numero);
        numero->setValue(spin.valore());
    });
    QObject::connect(numero, &QSpinBox::valueChanged, legame, [&spin](int valore) { spin.imposta(valore); });
    return numero;
}

QLabel* collega(Immagine& figura, QWidget* genitore) {
    auto* disegno = new Figura(genitore);
    auto* legame = new Legame(figura, *disegno);
    legame->mostra([&figura, disegno] { disegno->risorsa(figura.risorsa()); });
    return disegno;
}

QProgressBar* collega(BarraProgresso& barra, QWidget* genitore) {
    auto* avanzamento = new QProgressBar(genitore);
    avanzamento->setRange(barra.minimo(), barra.massimo());
    avanzamento->setTextVisible(false);
    auto* legame = new Legame(barra, *avanzamento);
    legame->mostra([&barra, avanzamento] { avanzamento->setValue(barra.valore()); });
    return avanzamento;
}

QToolBar* collega(BarraStrumenti& barra, QWidget* genitore, int lato, bool conTesto, FondoBarra fondo) {
    auto* strumenti = new QToolBar(genitore);
    strumenti->setProperty("chiara", fondo == FondoBarra::chiaro);
    strumenti->setIconSize({lato, lato});
    strumenti->setMovable(false);
    strumenti->setToolButtonStyle(conTesto ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    auto* legame = new Legame(barra, *strumenti);
    for (const BarraStrumenti::Tasto& tasto : barra.tasti()) {
        QAction* azione = strumenti->addAction(icona(tasto.icona, fondo == FondoBarra::blu), q(tasto.testo));
        azione->setObjectName(q(tasto.chiave));
        QObject::connect(azione, &QAction::triggered, legame, [&barra, chiave = tasto.chiave] { barra.premi(chiave); });
        if (QWidget* bottone = strumenti->widgetForAction(azione)) {
            bottone->setFocusPolicy(Qt::TabFocus);
            bottone->setFont(dati(punti::barra));
            bottone->setAccessibleName(q(tasto.testo.empty() ? tasto.suggerimento : tasto.testo));
        }
        if (tasto.separatoreDopo) {
            strumenti->addSeparator();
        }
    }
    legame->mostra([&barra, strumenti] {
        for (const BarraStrumenti::Tasto& tasto : barra.tasti()) {
            if (auto* azione = strumenti->findChild<QAction*>(q(tasto.chiave))) {
                azione->setEnabled(tasto.abilitato);
                azione->setToolTip(q(barra.spiegazione(tasto.chiave)));
            }
        }
    });
    return strumenti;
}

}  // namespace kelvo::ui
