#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/linux/SistemaFileLinux.h"
#include "schermate/Giro.h"
#include "schermate/Installazione.h"
#include "schermate/Richiesta.h"
#include "ui/Desktop.h"

namespace {

using kelvo::schermate::Richiesta;

constexpr int fatto = 0;
constexpr int nonRiuscito = 1;
constexpr int usoErrato = 2;

/// A screen without a display on which the main window has room at its size; what the user sets himself holds.
void preparaSchermo(const Richiesta& richiesta, const QTemporaryDir& cartella) {
    constexpr int margine = 200;
    qputenv("QT_SCALE_FACTOR", richiesta.scala.c_str());
    const QByteArray voluta = qgetenv("QT_QPA_PLATFORM");
    if (!voluta.isEmpty() && voluta != "offscreen") {
        return;
    }
    const double scala = QString::fromStdString(richiesta.scala).toDouble();
    const auto pixel = [scala](int logici) { return static_cast<int>(std::ceil((logici + margine) * scala)); };
    QFile file(cartella.filePath(QStringLiteral("schermo.json")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QStringLiteral(R"({"screens":[{"name":"schermo","x":0,"y":0,"width":%1,"height":%2,)"
                                  R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
                       .arg(pixel(richiesta.larghezza))
                       .arg(pixel(richiesta.altezza))
                       .toUtf8());
    }
    qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + file.fileName()).toUtf8());
}

/// Checks what can be checked before anything is opened; empty if all is well.
std::string mancante(const Richiesta& richiesta) {
    for (const std::string& progetto : richiesta.progetti) {
        if (!std::filesystem::is_regular_file(progetto)) {
            return "il progetto '" + progetto + "' non c'è";
        }
    }
    if (!richiesta.elenco.empty() && !std::filesystem::is_regular_file(richiesta.elenco)) {
        return "l'elenco '" + richiesta.elenco + "' non c'è";
    }
    if (std::filesystem::exists(richiesta.cartella) && !std::filesystem::is_directory(richiesta.cartella)) {
        return "'" + richiesta.cartella + "' non è una cartella";
    }
    return {};
}

int esegui(const Richiesta& richiesta, int argc, char** argv) {
    const QTemporaryDir cartella;
    preparaSchermo(richiesta, cartella);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const QApplication qt(argc, argv);
    const kelvo::schermate::Installazione installazione(KELVO_CARTELLA);
    kelvo::ui::preparaApplicazione(installazione.programma());
    kelvo::SistemaFileLinux file;
    kelvo::schermate::Giro giro(richiesta, installazione, file);
    const std::string errori = giro.percorri();
    std::fputs(errori.c_str(), stderr);
    std::printf("Scritte %d immagini in %s\n", giro.scritte(), richiesta.cartella.c_str());
    return errori.empty() ? fatto : nonRiuscito;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto lettura = kelvo::schermate::leggiRichiesta({argv + 1, argv + argc});
        if (!lettura.richiesta) {
            std::fprintf(stderr, "kelvo-schermate: %s\n%s", lettura.errore.c_str(), kelvo::schermate::uso);
            return usoErrato;
        }
        if (lettura.richiesta->aiuto) {
            std::fputs(kelvo::schermate::uso, stdout);
            return fatto;
        }
        if (const std::string errore = mancante(*lettura.richiesta); !errore.empty()) {
            std::fprintf(stderr, "kelvo-schermate: %s\n", errore.c_str());
            return nonRiuscito;
        }
        return esegui(*lettura.richiesta, argc, argv);
    } catch (const std::exception& guasto) {
        std::fprintf(stderr, "kelvo-schermate: %s\n", guasto.what());
        return nonRiuscito;
    }
}
