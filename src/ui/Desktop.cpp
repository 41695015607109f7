#include "ui/Desktop.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <clocale>

#include "app/Applicazione.h"
#include "shell/Main.h"
#include "shell/registroFinestre.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/serviziQt.h"
#include "ui/shell/VistaMDI_Form.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The words of the command line as one text.
std::string rigaComando(int argc, char** argv) {
    std::string riga;
    for (int i = 1; i < argc; ++i) {
        riga += (riga.empty() ? "" : " ") + std::string{argv[i]};
    }
    return riga;
}

}  // namespace

int avviaDesktop(int argc, char** argv, const Piattaforma& piattaforma) {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication qt(argc, argv);
    // The toolkit sets the system's locale: numbers in files would carry its comma.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setApplicationName(QStringLiteral("Kelvo"));
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    QTranslator traduttore;
    if (traduttore.load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&traduttore);
    }
    applicaStile(qt, q(piattaforma.cartellaProgramma + "/Caratteri"));
    cartellaImmagini(piattaforma.cartellaProgramma + "/Immagini");

    MessaggiQt messaggi;
    OrologioSistema orologio;
    DialogoFileQt dialogo;
    ApriDocumentiQt documenti;
    ImpostazioniQt impostazioni;
    CronometroQt cronometro;
    AttesaQt attesa;
    Applicazione app(piattaforma.cartellaProgramma, piattaforma.cartellaLavoro, {messaggi, orologio, piattaforma.file});
    StatoFinestre stato;
    VistaMDI_Form vista;
    MDI_Form cornice(app, stato, {vista, dialogo, documenti, impostazioni, cronometro, piattaforma.cartellaRecupero});
    registraFinestre(cornice.finestre);
    vista.collegaA(cornice);
    modMain avvio(app, stato, cornice, {piattaforma.locale, piattaforma.istanza, documenti, attesa});
    if (!avvio.Main(rigaComando(argc, argv))) {
        return 1;
    }
    return cornice.scaricata() ? 0 : QApplication::exec();
}

}  // namespace kelvo::ui
