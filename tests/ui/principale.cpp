// The test program of the windows: one application object for all tests.

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtWidgets/QApplication>
#include <clocale>

#include "ui/stile.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();  // whoever only asks for the names may have no platform to show windows on
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication applicazione(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QApplication::setQuitOnLastWindowClosed(false);
    kelvo::ui::applicaStile(applicazione, QStringLiteral(KELVO_CARTELLA "/Caratteri"));
    return RUN_ALL_TESTS();
}
