#include "ui/Desktop.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QString>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <clocale>
#include <optional>

#include "app/Applicazione.h"
#include "app/convertitorePDF.h"
#include "app/copiaUtente.h"
#include "app/titoli.h"
#include "disegno/DisegnatoreQt.h"
#include "reports/modEXCEL.h"
#include "shell/CampiFinestre.h"
#include "shell/Main.h"
#include "shell/registroFinestre.h"
#include "ui/ApplicazioneQt.h"
#include "ui/StampaQt.h"
#include "ui/VistaPagina.h"
#include "ui/icone.h"
#include "ui/legami.h"
#include "ui/results/FinestreCollegateQt.h"
#include "ui/serviziQt.h"
#include "ui/shell/VistaMDI_Form.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The words of the command line as one text, less what the toolkit took for itself.
std::string rigaComando() {
    return s(QApplication::arguments().mid(1).join(QLatin1Char(' ')));
}

/// An installation that is not to be written: the user's own copy of the parts that are written takes their place.
void usaCopia(Applicazione& app, const std::string& copia) {
    if (copia.empty()) {
        return;
    }
    const EsitoCopia esito = aggiornaCopiaUtente(app.file, app.theAmbiente.CartellaProgramma(), copia);
    app.theAmbiente.CartellaScritta(esito.cartella);
    if (!esito.problemi.empty()) {
        std::string testo = "Attenzione, alcune parti della copia personale di Kelvo non sono a posto:";
        for (const std::string& problema : esito.problemi) {
            testo += "\r\n- " + problema;
        }
        app.messaggi.mostra(testo, titoli::attenzione, Icona::esclamazione, Pulsanti::ok);
    }
}

}  // namespace

void preparaApplicazione(const std::string& cartellaProgramma) {
    // The toolkit sets the system's locale: numbers in files would carry its comma.
    std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe): one thread
    QApplication::setApplicationName(QStringLiteral("Kelvo"));
    // A desktop finds name and icon of the windows by its entry.
    QGuiApplication::setDesktopFileName(QStringLiteral("kelvo"));
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* traduttore = new QTranslator(qApp);
    if (traduttore->load(QStringLiteral("qtbase_it"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(traduttore);
    }
    cartellaImmagini(cartellaProgramma + "/Immagini");
    cartellaAiuto(cartellaProgramma + "/Support");
    QApplication::setWindowIcon(segno("Kelvo"));
    applicaStile(*qApp, q(cartellaProgramma + "/Caratteri"));
}

int avviaDesktop(int argc, char** argv, const Piattaforma& piattaforma) {
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    ApplicazioneQt qt(argc, argv);
    preparaApplicazione(piattaforma.cartellaProgramma);

    MessaggiQt messaggi;
    OrologioSistema orologio;
    DialogoFileQt dialogo;
    DialogoAnteprimaQt anteprima;
    ApriDocumentiQt documentiQt;
    ImpostazioniQt impostazioniQt;
    ApriDocumenti& documenti = piattaforma.documenti != nullptr ? *piattaforma.documenti : documentiQt;
    ImpostazioniUtente& impostazioni = piattaforma.impostazioni != nullptr ? *piattaforma.impostazioni : impostazioniQt;
    CronometroQt cronometro;
    CronometroQt simulazione;
    AttesaQt attesa;
    Applicazione app(piattaforma.cartellaProgramma, piattaforma.cartellaLavoro, {messaggi, orologio, piattaforma.file});
    try {
        usaCopia(app, piattaforma.cartellaCopia);
    } catch (const Guasto& guasto) {
        app.comune.erroreLog(guasto.codice(), "Kelvo", guasto.descrizione(), true);
    }
    qt.alGuasto = [&app](const Guasto& guasto) {
        app.comune.erroreLog(guasto.codice(), "Kelvo", guasto.descrizione(), true);
    };
    AppuntiQt appunti;
    app.appunti = &appunti;
    AppuntiImmaginiQt immagini;
    disegno::DisegnatoreQt disegnatore;
    StatoFinestre stato;
    VistaMDI_Form vista;
    FinestreCollegateQt collegate(vista);
    MDI_Form cornice(app, stato,
                     {vista, dialogo, documenti, impostazioni, cronometro, piattaforma.cartellaRecupero, &disegnatore,
                      &immagini, piattaforma.registro, piattaforma.cad});
    CampiFinestre campi(cornice.finestre, cornice.gestione);
    StampaQt stampa;
    std::optional<ConvertitoreUfficio> pdf;
    if (piattaforma.processi != nullptr) {
        pdf.emplace(*piattaforma.processi, piattaforma.file, piattaforma.cartellaLavoro);
    }
    const auto foglio = [&](const std::string& /*scambio*/) {
        modEXCEL(app, {.messaggi = messaggi, .documenti = &documenti}).compilaRelazioneExcel();
    };
    registraFinestre(cornice.finestre, {.documenti = documenti,
                                        .anteprima = anteprima,
                                        .collegate = collegate,
                                        .cronometro = simulazione,
                                        .foglio = foglio,
                                        .campi = &campi,
                                        .stampa = &stampa,
                                        .attesa = &attesa,
                                        .pdf = pdf ? &*pdf : nullptr});
    collegate.collegaA(cornice);
    vista.collegaA(cornice);
    modMain avvio(app, stato, cornice, {piattaforma.locale, piattaforma.istanza, documenti, attesa});
    if (!avvio.Main(rigaComando())) {
        return 1;
    }
    return cornice.scaricata() ? 0 : QApplication::exec();
}

}  // namespace kelvo::ui
