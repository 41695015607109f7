#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QString>
#include <QTranslator>
#include <clocale>
#include <string>

#include "app/Applicazione.h"
#include "platform/linux/ServiziLinux.h"
#include "platform/linux/SistemaFileLinux.h"
#include "platform/linux/cartelle.h"
#include "shell/Main.h"
#include "shell/registroFinestre.h"
#include "ui/icone.h"
#include "ui/serviziQt.h"
#include "ui/shell/VistaMDI_Form.h"
#include "ui/stile.h"

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

int main(int argc, char** argv) {
    using namespace kelvo;
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
    const std::string cartella = cartellaEseguibile();
    ui::applicaStile(qt, QString::fromStdString(cartella + "/Caratteri"));
    ui::cartellaImmagini(cartella + "/Immagini");

    ui::MessaggiQt messaggi;
    OrologioSistema orologio;
    SistemaFileLinux file;
    ui::DialogoFileQt dialogo;
    ui::ApriDocumentiQt documenti;
    ui::ImpostazioniQt impostazioni;
    ui::CronometroQt cronometro;
    ui::AttesaQt attesa;
    IstanzaLinux istanza(cartellaTemporanea());
    LocaleLinux locale;

    Applicazione app(cartella, cartellaTemporanea(), {messaggi, orologio, file});
    StatoFinestre stato;
    ui::VistaMDI_Form vista;
    MDI_Form cornice(app, stato,
                     {vista, dialogo, documenti, impostazioni, cronometro, cartellaDatiUtente() + "/Recupero"});
    registraFinestre(cornice.finestre);
    vista.collegaA(cornice);
    modMain avvio(app, stato, cornice, {locale, istanza, documenti, attesa});
    if (!avvio.Main(rigaComando(argc, argv))) {
        return 1;
    }
    return QApplication::exec();
}
