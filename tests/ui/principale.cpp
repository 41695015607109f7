// The test program of the windows: one application object for all tests, folders of the user's own below a temporary
// one.

#include <gtest/gtest.h>

#include <QtCore/QByteArray>
#include <QtCore/QLocale>
#include <clocale>
#include <filesystem>

#include "comune/cartella.h"
#include "ui/ApplicazioneQt.h"
#include "ui/icone.h"
#include "ui/stile.h"

namespace {

/// A folder that belongs to nobody else, told to what runs here and to its children.
void cartellaPropria(const kelvo::prove::CartellaTemporanea& radice, const char* variabile, const char* nome) {
    const std::string cartella = radice.file(nome);
    std::filesystem::create_directory(cartella);
    std::filesystem::permissions(cartella, std::filesystem::perms::owner_all);
    qputenv(variabile, QByteArray::fromStdString(cartella));
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();  // whoever only asks for the names may have no platform to show windows on
    }
    const kelvo::prove::CartellaTemporanea radice;
    cartellaPropria(radice, "XDG_RUNTIME_DIR", "sessione");
    cartellaPropria(radice, "XDG_DATA_HOME", "dati");
    cartellaPropria(radice, "XDG_CONFIG_HOME", "impostazioni");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    kelvo::ui::ApplicazioneQt applicazione(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QApplication::setQuitOnLastWindowClosed(false);  // every test closes windows, none ends the program
    kelvo::ui::cartellaImmagini(KELVO_CARTELLA "/Immagini");
    kelvo::ui::applicaStile(applicazione, QStringLiteral(KELVO_CARTELLA "/Caratteri"));
    return RUN_ALL_TESTS();
}
