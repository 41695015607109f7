#include "shell/Main.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"
#include "base/guasto.h"
#include "shell/frmSplash.h"
#include "shell/gestore.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr const char* metodoAvvio = "modCommonModule:InitEnvironment()";
constexpr std::int16_t ramiAllAvvio = 4;

constexpr const char* filmatoIntroduttivo = "\\UserGuide\\KelvoSUITE2014_INTRO.exe";
constexpr const char* presentazione = "\\UserGuide\\KelvoSUITE2014_INTRO.htm";

bool manca(const std::string& percorso) {
    std::error_code errore;
    return !fs::is_regular_file(percorsoDaTesto(percorso), errore);
}

/// Clears the read-only attribute. Fault 53 if the file is not there, fault 75 if the system refuses.
void rendiScrivibile(const std::string& percorso) {
    std::error_code errore;
    const fs::file_status stato = fs::status(percorsoDaTesto(percorso), errore);
    if (stato.type() == fs::file_type::not_found) {
        throw Guasto(NumeroGuasto::fileNonTrovato, percorso);
    }
    if ((stato.permissions() & fs::perms::owner_write) == fs::perms::none) {
        fs::permissions(percorsoDaTesto(percorso), fs::perms::owner_write, fs::perm_options::add, errore);
    }
    if (errore) {
        throw Guasto(NumeroGuasto::accessoPercorso, percorso);
    }
}

}  // namespace

bool modMain::Main(const std::string& rigaComando) {
    impostazioni_ = servizi_.locale.leggi();
    if (!adeguaLocale() || !InitEnvironment()) {
        return false;
    }
    cornice_.InitGraphics();
    cornice_.alloScarico = [this] { RipristinaLocale(); };
    cornice_.Load();
    cornice_.superficie().mostraCornice();
    mostraSplash();
    avviaFilmato();
    apriProgetto(rigaComando);
    return true;
}

bool modMain::adeguaLocale() {
    if (impostazioni_.decimale == "," && impostazioni_.migliaia == ".") {
        return true;
    }
    const Risposta risposta = app_.messaggi.mostra(
        "Attenzione! Le opzioni internazionali e della lingua non sono valide. Per il corretto funzionamento "
        "dell'applicazione è necessario  impostare la modalità su [Italiano (Italia)]. Aggiornare subito le opzioni "
        "internazionali e della lingua?",
        "KELVO 2014 - Impostazioni internazionali", Icona::esclamazione, Pulsanti::siNo);
    if (risposta != Risposta::si) {
        return false;
    }
    ripristina_ = true;
    servizi_.locale.scriviSeparatori(",", ".");
    return true;
}

void modMain::RipristinaLocale() {
    if (ripristina_) {
        servizi_.locale.scriviSeparatori(impostazioni_.decimale, impostazioni_.migliaia);
    }
}

bool modMain::InitEnvironment() {
    servizi_.istanza.creaMutex("Kelvo");
    stato_.ProgettoAperto = false;
    stato_.convalidaFallita = false;
    stato_.opzioniModificate = false;
    stato_.statoProgetto = StatoProgetto::NessunProgetto;
    app_.theRotonda().Data(std::floor(app_.orologio.adesso()));
    app_.theRotonda().NumeroRami(ramiAllAvvio);
    if (!leggiConfigurazione()) {
        return false;
    }
    cancellaLog();
    if (servizi_.istanza.altraIstanza()) {
        app_.messaggi.mostra("Attenzione, c'è già un'istanza di Kelvo attualmente in esecuzione.", titoli::attenzione,
                             Icona::critica, Pulsanti::ok);
        return false;
    }
    return true;
}

bool modMain::leggiConfigurazione() {
    const auto registra = [&](const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), metodoAvvio, guasto.descrizione(), true);
    };
    try {
        rendiScrivibile(app_.theAmbiente.PercorsoIni());
    } catch (const Guasto& guasto) {
        registra(guasto);
    }
    if (app_.theAmbiente.LeggiIni("FILE_LOG", "PathError", app_.theAmbiente.PercorsoIni()).empty()) {
        app_.messaggi.mostra("Manca il path del file di log dell'errore!\nIl processo non verrà portato a termine!",
                             "KELVO 2014 - Errore Irreversibile!", Icona::critica, Pulsanti::ok);
        return false;
    }
    app_.comune.LeggiConfigurazione(registra);
    return true;
}

void modMain::cancellaLog() {
    // The name as it stands, from the working folder; who writes the log joins it to the program's folder.
    const fs::path log = percorsoDaTesto(app_.configurazione.PathErrore);
    std::error_code errore;
    if (fs::is_regular_file(log, errore)) {
        fs::permissions(log, fs::perms::owner_write, fs::perm_options::add, errore);
        fs::remove(log, errore);
        if (errore) {
            app_.comune.erroreLog(static_cast<int>(NumeroGuasto::accessoPercorso), metodoAvvio,
                                  Guasto(NumeroGuasto::accessoPercorso, app_.configurazione.PathErrore).descrizione(),
                                  true);
        }
    }
}

void modMain::mostraSplash() {
    frmSplash splash(cornice_.contorno());
    cornice_.superficie().apriSopra(splash);
    splash.esegui(servizi_.attesa);
    cornice_.superficie().chiudiSopra(splash);
    servizi_.attesa.eventi();
}

void modMain::avviaFilmato() {
    gestisci(app_, "modCommonModule:Main()", [&] {
        app_.comune.LeggiAvvioFilmato();
        if (app_.configurazione.AvvioFilmato != 0) {
            return;
        }
        const std::string filmato = app_.theAmbiente.PercorsoProgramma(filmatoIntroduttivo);
        const std::string pagine = app_.theAmbiente.PercorsoProgramma(presentazione);
        // The film is a program of its own; where it was not delivered, or does not run, its place is taken by pages.
        const bool conPagine = !manca(pagine);
        const bool avviato = (!conPagine || !manca(filmato)) && servizi_.documenti.avvia("\"" + filmato + "\"", {});
        if (!avviato && !(conPagine && servizi_.documenti.apri("\"" + pagine + "\""))) {
            cornice_.avviso("Impossibile avviare il filmato introduttivo");
        }
    });
}

void modMain::apriProgetto(const std::string& rigaComando) {
    const bool recuperato = cornice_.offriRecupero();
    if (rigaComando.empty()) {
        return;
    }
    std::string percorso = rigaComando;
    std::erase(percorso, '"');
    percorso = percorsoDaIndirizzo(percorso);
    if (recuperato) {
        cornice_.avviso("Aperto il progetto recuperato, non " + percorso);
        return;
    }
    cornice_.LoadRotonda(percorso);
}

}  // namespace kelvo
