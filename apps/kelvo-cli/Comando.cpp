#include "Comando.h"

#include "argomenti.h"
#include "errori.h"

namespace kelvo::cli {

Comando::Comando(CLI::App& radice, const std::string& nome, const std::string& descrizione, const std::string& esempi)
    : app_(radice.add_subcommand(nome, descrizione)) {
    app_->group("Comandi");
    app_->get_help_ptr()->group("Opzioni");
    app_->footer("Esempi:\n" + esempi);
}

void Comando::aggiungiIni(OpzioniComuni& comuni) {
    aggiungiTesto(*app_, "--ini", comuni.ini,
                  "file di configurazione (se manca: Kelvo.ini della copia dell'utente, se c'è, o del programma)")
        ->type_name("FILE");
}

void Comando::aggiungiNotte(OpzioniComuni& comuni) {
    constexpr Estremi percento{.minimo = 0, .massimo = 100};
    aggiungiIntero(
        *app_, "--notte", comuni.notte, percento,
        "riduzione della capacità di notte, da 0 a 100 per cento; vale per i progetti in condizioni notturne");
}

void Comando::avvisaNotte(Contesto& contesto, const OpzioniComuni& comuni) const {
    const bool notturno = contesto.app().theRotonda().CondizioniNotturne();
    if (comuni.notte > 0 && !notturno) {
        contesto.attenzione("--notte non ha effetto: il progetto non è in condizioni notturne");
    }
    if (notturno && app_->count("--notte") == 0) {
        contesto.attenzione("il progetto è in condizioni notturne: senza --notte la riduzione vale 0");
    }
}

void Comando::aggiungiJson(const std::string& descrizione) {
    app_->add_flag("--json", comuni_.json, descrizione)->disable_flag_override();
}

bool Comando::inizia(Contesto& contesto) {
    if (const std::string errore = usoSbagliato(); !errore.empty()) {
        usoErrato(*app_, errore);
        return false;
    }
    const Configurazione serve = configurazione();
    return serve == Configurazione::nessuna || contesto.configura(comuni_, serve == Configurazione::perCalcolare);
}

bool Comando::prepara(Contesto& contesto, const std::string& file) const {
    if (!contesto.carica(file)) {
        return false;
    }
    if (const Impedimento no = impedimento(contesto.app().theRotonda()); !no.motivo.empty()) {
        contesto.segnala(static_cast<int>(no.numero), app_->get_name(), no.motivo);
        return false;
    }
    if (app_->get_option_no_throw("--notte") != nullptr) {
        avvisaNotte(contesto, comuni_);
    }
    return true;
}

ComandoSuFile::ComandoSuFile(CLI::App& radice, const std::string& nome, const std::string& descrizione,
                             const std::string& esempi, Quanti quanti)
    : Comando(radice, nome, descrizione, esempi) {
    if (quanti == Quanti::uno) {
        aggiungiTesto(*app_, "FILE", file_.emplace_back(), "file di progetto .klv")->required()->type_name("");
    } else {
        app_->add_option("FILE", file_, "file di progetto .klv, uno o più")->required()->type_name("");
    }
}

void ComandoSuFile::aggiungiComuni() {
    aggiungiIni(comuni_);
    aggiungiNotte(comuni_);
    aggiungiJson();
}

void ComandoSuFile::aggiungiJson() {
    Comando::aggiungiJson("una riga di JSON per file, con i numeri a piena precisione");
}

int ComandoSuFile::esegui() {
    Contesto contesto;
    if (!inizia(contesto)) {
        return uscitaUsoErrato;
    }
    int uscita = uscitaFatto;
    for (const std::string& file : file_) {
        if (!tratta(contesto, file)) {
            uscita = uscitaFallito;
        }
    }
    return uscita;
}

}  // namespace kelvo::cli
