// kelvo-misure-desktop: how long the desktop takes to start and to switch windows, and what memory it holds.
//
// Without arguments it starts itself once for every repeat, as a process of its own, and prints the tables. The
// program under measure is the desktop whole; a timer beside it ends the splash with a key, as a person may do, and
// notes when the main window stands.

#include <fmt/format.h>

#include <QtCore/QAbstractItemModel>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QTreeWidgetItemIterator>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "platform/linux/ServiziLinux.h"
#include "platform/linux/SistemaFileLinux.h"
#include "platform/linux/cartelle.h"
#include "ui/Desktop.h"

namespace {

constexpr int ripetizioni = 50;
constexpr int scambiLunghi = 500;
constexpr int scambiTanti = 5000;  ///< shows that what grows comes to its bound
constexpr double milione = 1'000'000.0;

/// Nanoseconds of a clock that all processes of the machine share.
double adesso() {
    timespec t{};
    ::clock_gettime(CLOCK_MONOTONIC, &t);
    return static_cast<double>(t.tv_sec) * 1e9 + static_cast<double>(t.tv_nsec);
}

/// A figure of /proc/self/status, MiB.
double memoria(const std::string& voce) {
    std::ifstream stato("/proc/self/status");
    for (std::string riga; std::getline(stato, riga);) {
        if (riga.rfind(voce + ":", 0) == 0) {
            return std::strtod(riga.c_str() + voce.size() + 1, nullptr) / 1024.0;
        }
    }
    return 0.0;
}

/// What a measured process is asked for.
struct Incarico {
    double partenza = 0.0;  ///< when its parent started it
    std::string compito;    ///< "avvio", "scambi", "tasti", "calcolo" or "cursore": what comes after the start
};
Incarico incarico;  // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): read before any object

QMainWindow* principale() {
    for (QWidget* finestra : QApplication::topLevelWidgets()) {
        auto* cornice = qobject_cast<QMainWindow*>(finestra);
        if (cornice != nullptr && cornice->isVisible() && QApplication::activeModalWidget() == nullptr) {
            return cornice;
        }
    }
    return nullptr;
}

QTreeWidgetItem* nodo(const QTreeWidget& albero, const char* chiave) {
    for (QTreeWidgetItemIterator it(const_cast<QTreeWidget*>(&albero)); *it != nullptr; ++it) {
        if ((*it)->data(0, Qt::UserRole).toString() == QLatin1String(chiave)) {
            return *it;
        }
    }
    return nullptr;
}

/// Lets everything that waits happen, painting included.
void esaurisci(QWidget& finestra) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    finestra.repaint();
}

/// Click on a node to the window painted, milliseconds.
double scambio(QMainWindow& finestra, QTreeWidget& albero, const char* chiave) {
    QTreeWidgetItem* riga = nodo(albero, chiave);
    albero.scrollToItem(riga);
    QElapsedTimer tempo;
    tempo.start();
    QTest::mouseClick(albero.viewport(), Qt::LeftButton, {}, albero.visualItemRect(riga).center());
    esaurisci(finestra);
    return static_cast<double>(tempo.nsecsElapsed()) / milione;
}

void misuraScambi(QMainWindow& finestra) {
    auto& albero = *finestra.findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
    constexpr std::array chiavi{"keyAnagraficaRotonda",
                                "keyAnagraficaProfessionista",
                                "keyTempoModellazione",
                                "keyMyProject",
                                "keyToponomasticaIntersezione",
                                "keyRamo1",
                                "keyRamo2",
                                "keyOpzioni"};
    albero.expandAll();
    QElapsedTimer tempo;
    const auto giri = [&](int quanti, const auto& dopo) {
        for (int i = 0; i < quanti; ++i) {
            const char* chiave = chiavi[static_cast<std::size_t>(i) % chiavi.size()];
            const double durata = scambio(finestra, albero, chiave);
            const QList<QTreeWidgetItem*> scelti = albero.selectedItems();
            if (scelti.size() != 1 || scelti.constFirst() != nodo(albero, chiave)) {
                std::cout << "guasto " << chiave << std::endl;
                std::_Exit(1);
            }
            dopo(durata);
        }
    };
    giri(1 * static_cast<int>(chiavi.size()), [](double d) { std::cout << "primo " << d << "\n"; });
    giri(ripetizioni, [&](double d) {
        std::cout << "scambio " << d << "\n";
        tempo.start();
        esaurisci(finestra);
        std::cout << "vuoto " << static_cast<double>(tempo.nsecsElapsed()) / milione << "\n";
    });
    const auto stato = [&](const char* quando) {
        std::cout << quando << "_oggetti " << finestra.findChildren<QObject*>().size() << "\n"
                  << quando << "_rss " << memoria("VmRSS") << "\n";
    };
    stato("prima");
    giri(scambiLunghi, [](double) {});
    stato("dopo");
    giri(scambiTanti - scambiLunghi, [](double) {});
    stato("ancora");
}

/// Notes that a widget was painted.
class Dipinto final : public QObject {
public:
    explicit Dipinto(QWidget& oggetto) { oggetto.installEventFilter(this); }
    bool avvenuto = false;

protected:
    bool eventFilter(QObject* /*oggetto*/, QEvent* evento) override {
        avvenuto = avvenuto || evento->type() == QEvent::Paint;
        return false;
    }
};

/// A key typed into a measure of a leg to the figures shown and the plan painted.
void misuraTasti(QMainWindow& finestra) {
    constexpr QSize schermo(1366, 768);
    finestra.resize(schermo);
    auto& albero = *finestra.findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
    QTreeWidgetItem* riga = nodo(albero, "keyRamo1");
    for (QTreeWidgetItem* padre = riga->parent(); padre != nullptr; padre = padre->parent()) {
        padre->setExpanded(true);
    }
    albero.scrollToItem(riga);
    esaurisci(finestra);
    scambio(finestra, albero, "keyRamo1");
    auto* campo = finestra.findChild<QLineEdit*>(QStringLiteral("txtLarghezzaIngresso"));
    auto* pianta = finestra.findChild<QWidget*>(QStringLiteral("ctlPianta"));
    auto* figura = finestra.findChild<QLabel*>(QStringLiteral("lblQ0"));
    if (campo == nullptr || pianta == nullptr || figura == nullptr) {
        std::cout << "guasto keyRamo1" << std::endl;
        std::_Exit(1);
    }
    campo->setFocus(Qt::TabFocusReason);
    Dipinto dipinto(*pianta);
    QElapsedTimer tempo;
    for (int i = 0; i < ripetizioni + 1; ++i) {
        campo->selectAll();
        esaurisci(finestra);
        const QString prima = figura->text();
        dipinto.avvenuto = false;
        tempo.start();
        QTest::keyClick(campo, i % 2 == 0 ? Qt::Key_7 : Qt::Key_8);
        while (!dipinto.avvenuto) {
            QCoreApplication::processEvents();
        }
        const double durata = static_cast<double>(tempo.nsecsElapsed()) / milione;
        if (figura->text() == prima) {
            std::cout << "guasto figure" << std::endl;
            std::_Exit(1);
        }
        if (i > 0) {
            std::cout << "tasto " << durata << "\n";
        }
    }
    QTest::keyClick(campo, Qt::Key_Escape);
}

/// The key that calculates to the table of all entries painted with its figures, and a page of that table down and up.
void misuraCalcolo(QMainWindow& finestra) {
    constexpr QSize schermo(1366, 768);
    finestra.resize(schermo);
    auto& albero = *finestra.findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
    albero.expandAll();
    esaurisci(finestra);
    scambio(finestra, albero, "keyCodeRitardi_Out");
    auto* vista = finestra.findChild<QWidget*>(QStringLiteral("frmCapacitaCodeRitardi"));
    auto* griglia = vista == nullptr ? nullptr : vista->findChild<QTableView*>(QStringLiteral("ctlGrid"));
    auto* calcola = vista == nullptr ? nullptr : vista->findChild<QAction*>(QStringLiteral("keyCalcola"));
    if (griglia == nullptr || calcola == nullptr || !griglia->isVisible()) {
        std::cout << "guasto keyCodeRitardi_Out" << std::endl;
        std::_Exit(1);
    }
    const auto durata = [&](const auto& gesto) {
        QElapsedTimer tempo;
        tempo.start();
        gesto();
        esaurisci(finestra);
        return static_cast<double>(tempo.nsecsElapsed()) / milione;
    };
    for (int i = 0; i < ripetizioni + 1; ++i) {
        const double d = durata([calcola] { calcola->trigger(); });
        if (i > 0) {
            std::cout << "calcolo " << d << "\n";
        }
    }
    const QAbstractItemModel& celle = *griglia->model();
    if (celle.index(celle.rowCount() - 1, celle.columnCount() - 1).data().toString().isEmpty()) {
        std::cout << "guasto figure" << std::endl;
        std::_Exit(1);
    }
    QScrollBar& barra = *griglia->verticalScrollBar();
    for (int i = 0; i < ripetizioni; ++i) {
        const bool giu = i % 10 < 5;
        std::cout << "pagina " << durata([&] {
            barra.triggerAction(giu ? QAbstractSlider::SliderPageStepAdd : QAbstractSlider::SliderPageStepSub);
        }) << "\nintera "
                  << durata([] {}) << "\n";
    }
}

/// The slider of the comparison moved by one instant to chart, plan and table painted, in each of its variables.
void misuraCursore(QMainWindow& finestra) {
    constexpr QSize schermo(1366, 768);
    finestra.resize(schermo);
    auto& albero = *finestra.findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
    albero.expandAll();
    esaurisci(finestra);
    scambio(finestra, albero, "keyConfronti");
    auto* cursore = finestra.findChild<QSlider*>(QStringLiteral("Slider1"));
    auto* variabili = finestra.findChild<QComboBox*>(QStringLiteral("txtTipoVariabile"));
    auto* pianta = finestra.findChild<QWidget*>(QStringLiteral("ctlPianta"));
    auto* grafico = finestra.findChild<QWidget*>(QStringLiteral("ctlChartConfronti"));
    if (cursore == nullptr || variabili == nullptr || pianta == nullptr || grafico == nullptr) {
        std::cout << "guasto keyConfronti" << std::endl;
        std::_Exit(1);
    }
    Dipinto dipinta(*pianta);
    Dipinto dipinto(*grafico);
    for (int variabile = 0; variabile < variabili->count(); ++variabile) {
        variabili->setCurrentIndex(variabile);
        cursore->setValue(cursore->minimum());
        esaurisci(finestra);
        QElapsedTimer tempo;
        for (int i = 0; i < ripetizioni; ++i) {
            dipinta.avvenuto = false;
            dipinto.avvenuto = false;
            const std::clock_t processore = std::clock();
            tempo.start();
            cursore->setValue(cursore->value() + 1);
            while (!dipinta.avvenuto || !dipinto.avvenuto) {
                QCoreApplication::processEvents();
            }
            std::cout << "cursore " << static_cast<double>(tempo.nsecsElapsed()) / milione << "\ncursore_processore "
                      << static_cast<double>(std::clock() - processore) * 1000.0 / CLOCKS_PER_SEC << "\n";
        }
    }
}

/// Runs as soon as the application object stands, before anything is shown.
void comincia() {
    auto* orologio = new QTimer(QCoreApplication::instance());
    QObject::connect(orologio, &QTimer::timeout, orologio, [orologio] {
        QWidget* modale = QApplication::activeModalWidget();
        if (modale != nullptr && modale->objectName() == QStringLiteral("frmSplash") && modale->isVisible()) {
            QTest::keyClick(modale, Qt::Key_Space);
            return;
        }
        QMainWindow* finestra = modale == nullptr ? principale() : nullptr;
        auto* albero = finestra == nullptr ? nullptr : finestra->findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
        if (albero == nullptr || !albero->isVisible() || nodo(*albero, "keyMyProject") == nullptr) {
            return;
        }
        orologio->stop();
        esaurisci(*finestra);
        std::cout << "processore " << static_cast<double>(std::clock()) * 1000.0 / CLOCKS_PER_SEC << "\navvio "
                  << (adesso() - incarico.partenza) / milione << "\nrss " << memoria("VmRSS") << "\npicco "
                  << memoria("VmHWM") << "\n";
        if (incarico.compito == "scambi") {
            misuraScambi(*finestra);
        } else if (incarico.compito == "tasti") {
            misuraTasti(*finestra);
        } else if (incarico.compito == "calcolo") {
            misuraCalcolo(*finestra);
        } else if (incarico.compito == "cursore") {
            misuraCursore(*finestra);
        }
        std::cout << std::flush;
        std::_Exit(0);
    });
    orologio->start(0);
}

using Figure = std::map<std::string, std::vector<double>>;

/// The figures that a measured process prints, added to `figure`; false if it failed.
bool misura(const QString& programma, const QString& progetto, const char* compito, Figure& figure) {
    QProcess processo;
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start(programma, {QStringLiteral("--misurato"), QString::number(adesso(), 'f', 0),
                               QString::fromLatin1(compito), progetto});
    constexpr int pazienza = 300'000;
    if (!processo.waitForFinished(pazienza) || processo.exitStatus() != QProcess::NormalExit ||
        processo.exitCode() != 0) {
        return false;
    }
    for (const QByteArray& riga : processo.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> parti = riga.split(' ');
        if (parti.size() == 2) {
            figure[parti[0].toStdString()].push_back(parti[1].toDouble());
        }
    }
    return true;
}

double percentile(std::vector<double> valori, double quota) {
    std::sort(valori.begin(), valori.end());
    const auto posto = static_cast<std::size_t>(std::lround(quota * static_cast<double>(valori.size() - 1)));
    return valori.at(posto);
}

void riga(const char* nome, const std::vector<double>& valori, const char* limite) {
    fmt::print("| {} | {:.1f} | {:.1f} | {} |\n", nome, percentile(valori, 0.5), percentile(valori, 0.95), limite);
}

int tabella(const char* programma, const QString& progetto) {
    Figure figure;
    for (int i = 0; i < ripetizioni + 1; ++i) {
        if (!misura(QString::fromLocal8Bit(programma), progetto, "avvio", figure)) {
            std::cerr << "kelvo-misure-desktop: l'avvio non riesce\n";
            return 1;
        }
        if (i == 0) {
            figure.clear();  // reads the files into memory
        }
    }
    if (!misura(QString::fromLocal8Bit(programma), progetto, "tasti", figure)) {
        std::cerr << "kelvo-misure-desktop: la scrittura di una misura non riesce\n";
        return 1;
    }
    if (!misura(QString::fromLocal8Bit(programma), progetto, "calcolo", figure)) {
        std::cerr << "kelvo-misure-desktop: il calcolo non riesce\n";
        return 1;
    }
    if (!misura(QString::fromLocal8Bit(programma), progetto, "cursore", figure)) {
        std::cerr << "kelvo-misure-desktop: lo spostamento dell'istante non riesce\n";
        return 1;
    }
    if (!misura(QString::fromLocal8Bit(programma), progetto, "scambi", figure)) {
        std::cerr << "kelvo-misure-desktop: lo scambio delle finestre non riesce\n";
        return 1;
    }
    fmt::print("| run | median | 95th percentile | bound |\n|---|---:|---:|---:|\n");
    riga("start to usable main window, ms", figure.at("avvio"), "400");
    riga("processor time of that, ms", figure.at("processore"), "");
    riga("resident memory then, MiB", figure.at("rss"), "90");
    riga("peak of resident memory till then, MiB", figure.at("picco"), "");
    riga("switch of windows, ms", figure.at("scambio"), "50");
    riga("empty repaint, ms", figure.at("vuoto"), "");
    riga("first showing of a window, ms", figure.at("primo"), "");
    riga("key to redrawn plan and figures, ms", figure.at("tasto"), "16");
    riga("Calcola to the painted table of all entries, ms", figure.at("calcolo"), "80");
    riga("page of that table scrolled and the whole window painted, ms", figure.at("pagina"), "");
    riga("the same window painted without a change, ms", figure.at("intera"), "");
    riga("instant of the comparison moved to all painted, ms", figure.at("cursore"), "16");
    riga("processor time of that, ms", figure.at("cursore_processore"), "");
    fmt::print("\nobjects of the main window: {:.0f}, after {} switches {:.0f}, after {} {:.0f}\n",
               figure.at("prima_oggetti").at(0), scambiLunghi, figure.at("dopo_oggetti").at(0), scambiTanti,
               figure.at("ancora_oggetti").at(0));
    fmt::print("resident memory, MiB: {:.1f}, after {} switches {:.1f}, after {} {:.1f}\n",
               figure.at("prima_rss").at(0), scambiLunghi, figure.at("dopo_rss").at(0), scambiTanti,
               figure.at("ancora_rss").at(0));
    return 0;
}

/// The program under measure.
int misurato(char** argv) {
    incarico = {std::strtod(argv[2], nullptr), argv[3]};
    qAddPreRoutine(comincia);
    kelvo::SistemaFileLinux file;
    const std::string lavoro = kelvo::cartellaTemporanea();
    kelvo::IstanzaLinux istanza(lavoro);
    kelvo::LocaleLinux locale;
    int argomenti = 2;
    std::array<char*, 3> riga{argv[0], argv[4], nullptr};
    return kelvo::ui::avviaDesktop(argomenti, riga.data(),
                                   {.file = file,
                                    .istanza = istanza,
                                    .locale = locale,
                                    .cartellaProgramma = KELVO_CARTELLA,
                                    .cartellaLavoro = lavoro,
                                    .cartellaRecupero = lavoro + "/Recupero"});
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 5 && std::string{argv[1]} == "--misurato") {
        return misurato(argv);
    }
    if (argc != 2) {
        std::cerr << "uso: kelvo-misure-desktop PROGETTO\n";
        return 2;
    }
    return tabella(argv[0], QString::fromLocal8Bit(argv[1]));
}
