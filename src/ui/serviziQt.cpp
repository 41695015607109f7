#include "ui/serviziQt.h"

#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtGui/QClipboard>
#include <QtGui/QDesktopServices>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGridLayout>
#include <algorithm>

#include "app/titoli.h"
#include "shell/servizi/pelle.h"
#include "ui/DialogoMessaggio.h"
#include "ui/VistaFinestra.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// "Words (*.klv)|*.klv|..." as the toolkit wants it, one pair a line.
QString filtroQt(const std::string& filtro) {
    const QStringList pezzi = q(filtro).split(QLatin1Char('|'));
    QStringList coppie;
    for (qsizetype i = 0; i + 1 < pezzi.size(); i += 2) {
        QString parole = pezzi[i];
        parole.remove(QRegularExpression(QStringLiteral("\\s*\\([^)]*\\)\\s*$")));
        // "*.*" leaves out files without a point in their name.
        const QString modello = pezzi[i + 1] == QStringLiteral("*.*") ? QStringLiteral("*") : pezzi[i + 1];
        coppie << QStringLiteral("%1 (%2)").arg(parole, modello);
    }
    return coppie.join(QStringLiteral(";;"));
}

void prepara(QFileDialog& dialogo, const RichiestaFile& richiesta) {
    dialogo.setObjectName(QStringLiteral("dialogoFile"));
    dialogo.setNameFilters(filtroQt(richiesta.filtro).split(QStringLiteral(";;")));
    dialogo.setDefaultSuffix(q(richiesta.estensione));
    if (!richiesta.cartella.empty()) {
        dialogo.setDirectory(q(richiesta.cartella));
    }
    if (!richiesta.nome.empty()) {
        dialogo.selectFile(q(richiesta.nome));
    }
}

std::optional<std::string> scelto(QFileDialog& dialogo) {
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return s(QDir::toNativeSeparators(dialogo.selectedFiles().constFirst()));
}

/// The path with the default extension unless it ends as the chosen filter wants it: of itself the toolkit adds it to
/// names without a dot alone.
QString conEstensione(const QString& percorso, const QFileDialog& dialogo) {
    const QString filtro = dialogo.selectedNameFilter();
    const QString dentro = filtro.mid(filtro.lastIndexOf(QLatin1Char('(')) + 1).remove(QLatin1Char(')'));
    const QStringList modelli = dentro.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const bool come = std::any_of(modelli.begin(), modelli.end(), [&](const QString& modello) {
        return percorso.endsWith(modello.mid(1), Qt::CaseInsensitive);  // "*" takes any name
    });
    return come || modelli.isEmpty() || dialogo.defaultSuffix().isEmpty()
               ? percorso
               : percorso + QLatin1Char('.') + dialogo.defaultSuffix();
}

/// Part of the screen that a dialogue takes at most.
constexpr double parteSchermo = 0.92;

/// The dialogue that a window stands in: it follows the selection, and is asked before the dialogue closes.
class DialogoConAnteprima final : public QFileDialog {
public:
    DialogoConAnteprima(const RichiestaFile& richiesta, FinestraAnteprima& anteprima, QWidget* genitore)
        : QFileDialog(genitore), anteprima_(anteprima) {
        setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::ReadOnly);
        setFileMode(QFileDialog::ExistingFile);
        setAcceptMode(QFileDialog::AcceptOpen);
        setViewMode(QFileDialog::List);
        setWindowTitle(q(anteprima.didascalia()));
        prepara(*this, richiesta);
        vesti(anteprima, 0);
        auto* piano = qobject_cast<QGridLayout*>(layout());
        QWidget* vista = creaVista(anteprima, this);
        if (piano != nullptr && vista != nullptr) {
            piano->setHorizontalSpacing(misura::spazio);
            piano->addWidget(vista, 0, piano->columnCount(), piano->rowCount(), 1);
        }
        const QSize spazio = screen()->availableSize() * parteSchermo;
        const QSize voluta = QSize(misura::dialogoAnteprima, misura::altezzaAnteprima).boundedTo(spazio);
        if (vista != nullptr) {
            vista->setMinimumWidth(std::min(misura::anteprima, voluta.width() - misura::elencoFile));
        }
        QObject::connect(this, &QFileDialog::currentChanged, this, [this](const QString& percorso) {
            anteprima_.selezionato(s(QDir::toNativeSeparators(percorso)));
        });
        anteprima_.allaConferma = [this] { accept(); };
        resize(voluta);
    }
    void keyPressEvent(QKeyEvent* evento) override {
        if (evento->key() == Qt::Key_F1) {
            anteprima_.chiediAiuto();
            return;
        }
        QFileDialog::keyPressEvent(evento);
    }
    ~DialogoConAnteprima() override { anteprima_.allaConferma = {}; }
    DialogoConAnteprima(const DialogoConAnteprima&) = delete;
    DialogoConAnteprima& operator=(const DialogoConAnteprima&) = delete;

protected:
    void done(int esito) override {
        const QStringList scelti = selectedFiles();
        if (esito != QDialog::Accepted ||
            (!scelti.isEmpty() && anteprima_.conferma(s(QDir::toNativeSeparators(scelti.constFirst()))))) {
            QFileDialog::done(esito);
        }
    }

private:
    FinestraAnteprima& anteprima_;
};

/// Ends a wait at a key or a click.
class Interruttore final : public QObject {
public:
    explicit Interruttore(QEventLoop& ciclo) : ciclo_(ciclo) { qApp->installEventFilter(this); }
    bool premuto() const { return premuto_; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::KeyPress || evento->type() == QEvent::MouseButtonPress) {
            premuto_ = true;
            ciclo_.quit();
        }
        return QObject::eventFilter(oggetto, evento);
    }

private:
    QEventLoop& ciclo_;
    bool premuto_ = false;
};

}  // namespace

Risposta MessaggiQt::mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) {
    DialogoMessaggio dialogo(testo, titolo, icona, pulsanti, QApplication::activeWindow());
    dialogo.exec();
    return dialogo.risposta();
}

Risposta MessaggiQt::mostraSopra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) {
    DialogoMessaggio dialogo(testo, titolo, icona, pulsanti, QApplication::activeWindow());
    dialogo.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialogo.exec();
    return dialogo.risposta();
}

std::optional<std::string> DialogoFileQt::apri(const RichiestaFile& richiesta,
                                               const std::function<void(const std::string&)>& alCambio) {
    QFileDialog dialogo(QApplication::activeWindow());
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setAcceptMode(QFileDialog::AcceptOpen);
    prepara(dialogo, richiesta);
    if (alCambio) {
        QObject::connect(&dialogo, &QFileDialog::currentChanged, &dialogo,
                         [&alCambio](const QString& percorso) { alCambio(s(percorso)); });
    }
    return scelto(dialogo);
}

bool DialogoAnteprimaQt::apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) {
    DialogoConAnteprima dialogo(richiesta, anteprima, QApplication::activeWindow());
    return dialogo.exec() == QDialog::Accepted;
}

std::optional<std::string> DialogoFileQt::salva(const RichiestaFile& richiesta) {
    QFileDialog dialogo(QApplication::activeWindow());
    dialogo.setFileMode(QFileDialog::AnyFile);
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    prepara(dialogo, richiesta);
    while (const std::optional<std::string> percorso = scelto(dialogo)) {
        std::string intero = s(conEstensione(q(*percorso), dialogo));
        // The dialogue has asked about the name that was typed, not about this one.
        if (intero == *percorso || !QFileInfo::exists(q(intero)) ||
            MessaggiQt{}.mostra("Il file esiste già:\r\n" + intero + "\r\nSostituirlo?", titoli::attenzione,
                                Icona::esclamazione, Pulsanti::siNo) == Risposta::si) {
            return intero;
        }
    }
    return std::nullopt;
}

bool ApriDocumentiQt::apri(const std::string& percorso) {
    if (percorso.rfind("https://", 0) == 0 || percorso.rfind("http://", 0) == 0) {
        return QDesktopServices::openUrl(QUrl::fromEncoded(QByteArray::fromStdString(percorso)));
    }
    const QString file = q(percorso).remove(QLatin1Char('"'));
    return QFileInfo::exists(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool ApriDocumentiQt::avvia(const std::string& programma, const std::string& argomento) {
    QString nome = q(programma);
    nome.remove(QLatin1Char('"'));
    return QProcess::startDetached(nome, argomento.empty() ? QStringList{} : QStringList{q(argomento)});
}

void ImpostazioniQt::scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                            const std::string& valore) {
    QSettings impostazioni(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Kelvo"), q(applicazione));
    impostazioni.setValue(q(sezione + "/" + chiave), q(valore));
}

std::string ImpostazioniQt::leggi(const std::string& applicazione, const std::string& sezione,
                                  const std::string& chiave) const {
    const QSettings impostazioni(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Kelvo"), q(applicazione));
    return s(impostazioni.value(q(sezione + "/" + chiave)).toString());
}

bool AttesaQt::pausa(int millisecondi) {
    QEventLoop ciclo;
    const Interruttore interruttore(ciclo);
    QTimer::singleShot(millisecondi, &ciclo, &QEventLoop::quit);
    ciclo.exec();
    return interruttore.premuto();
}

void AttesaQt::eventi() {
    // What the user does meanwhile waits: a menu or a field must not change the project below the work.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

CronometroQt::CronometroQt() : tempo_(std::make_unique<QTimer>()) {
    QObject::connect(tempo_.get(), &QTimer::timeout, tempo_.get(), [this] {
        const std::function<void()> questa = cosa_;  // it may ask for another one while it runs
        questa();
    });
}

CronometroQt::~CronometroQt() = default;

void CronometroQt::ogni(int millisecondi, const std::function<void()>& cosa) {
    cosa_ = cosa;
    tempo_->start(millisecondi);
}

void CronometroQt::ferma() {
    tempo_->stop();
}

void AppuntiQt::scrivi(const std::string& testo) {
    QGuiApplication::clipboard()->setText(q(testo));
}

bool AppuntiImmaginiQt::scrivi(const std::string& png) {
    const QImage immagine = QImage::fromData(QByteArray::fromStdString(png), "PNG");
    if (!immagine.isNull()) {
        QGuiApplication::clipboard()->setImage(immagine);
    }
    return !immagine.isNull();
}

std::string AppuntiQt::leggi() const {
    return s(QGuiApplication::clipboard()->text());
}

}  // namespace kelvo::ui
