#include "errori.h"

#include <fmt/format.h>

#include <memory>
#include <string_view>
#include <vector>

#include "Contesto.h"
#include "argomenti.h"

namespace kelvo::cli {

namespace {

/// The command that was being read, or the program itself.
const CLI::App& comandoLetto(const CLI::App& radice) {
    const auto letti = radice.get_subcommands();
    return letti.empty() ? radice : *letti.back();
}

std::string descriviIgnoti(const CLI::App& radice) {
    const std::vector<std::string> primaDelComando = radice.remaining(false);
    if (!primaDelComando.empty()) {
        const std::string& primo = primaDelComando.front();
        return primo.starts_with('-')
                   ? fmt::format("opzione non riconosciuta: {} (le opzioni seguono il comando)", citato(primo))
                   : fmt::format("comando non riconosciuto: {}", citato(primo));
    }
    std::string elenco;
    const std::vector<std::string> ignoti = radice.remaining(true);
    for (const std::string& ignoto : ignoti) {
        elenco += (elenco.empty() ? "" : " ") + citato(ignoto);
    }
    return ignoti.size() == 1 ? fmt::format("argomento non riconosciuto: {}", elenco)
                              : fmt::format("argomenti non riconosciuti: {}", elenco);
}

std::string descriviMancante(const CLI::App& comando) {
    if (comando.get_parent() == nullptr) {
        return "manca il comando";
    }
    for (const CLI::Option* opzione : comando.get_options()) {
        if (opzione->get_required() && opzione->count() == 0) {
            return opzione->get_positional() ? opzione->get_name() == "USCITA" ? "manca il nome del file da scrivere"
                                                                               : "manca il nome del file di progetto"
                                             : fmt::format("manca l'opzione {}", opzione->get_name());
        }
    }
    return "manca un'opzione";
}

/// The option that the reader's message begins with, its dashes written or not.
const CLI::Option* opzioneNominata(const CLI::App& comando, std::string_view messaggio) {
    const std::string_view nome = messaggio.substr(0, messaggio.find_first_of(" :="));
    const CLI::Option* opzione = comando.get_option_no_throw(std::string{nome});
    return opzione != nullptr ? opzione : comando.get_option_no_throw(fmt::format("--{}", nome));
}

std::string descriviValori(const CLI::App& comando, std::string_view messaggio) {
    const CLI::Option* opzione = opzioneNominata(comando, messaggio);
    if (opzione == nullptr) {
        return "un'opzione ha un numero di valori sbagliato";
    }
    if (opzione->get_expected_max() == 0) {
        return fmt::format("{}: è un'opzione senza valore", opzione->get_name());
    }
    return opzione->count() > 1 ? fmt::format("{}: l'opzione è data più volte", opzione->get_name())
                                : fmt::format("{}: manca il valore", opzione->get_name());
}

}  // namespace

void italiano(CLI::App& radice) {
    constexpr std::size_t larghezzaNomi = 28;
    radice.option_defaults()->group("Opzioni");
    radice.set_help_flag("-h,--help", "Mostra questo aiuto");
    const auto modello = std::make_shared<CLI::Formatter>();
    modello->column_width(larghezzaNomi);
    modello->label("Usage", "Uso");
    modello->label("OPTIONS", "OPZIONI");
    modello->label("SUBCOMMAND", "COMANDO");
    modello->label("Positionals", "Argomenti");
    modello->label("REQUIRED", "(obbligatorio)");
    radice.formatter(modello);
}

std::string descriviErrore(const CLI::App& radice, const CLI::ParseError& errore) {
    const CLI::App& comando = comandoLetto(radice);
    const bool mancante = dynamic_cast<const CLI::RequiredError*>(&errore) != nullptr;
    // An argument that nobody knows is the likelier slip where another seems to be missing.
    if (dynamic_cast<const CLI::ExtrasError*>(&errore) != nullptr || (mancante && !radice.remaining(true).empty())) {
        return descriviIgnoti(radice);
    }
    if (mancante) {
        return descriviMancante(comando);
    }
    if (dynamic_cast<const CLI::ValidationError*>(&errore) != nullptr) {
        return errore.what();  // our own words
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&errore) != nullptr ||
        dynamic_cast<const CLI::ConversionError*>(&errore) != nullptr) {
        return descriviValori(comando, errore.what());
    }
    return "riga di comando non valida";
}

int chiudi(const CLI::App& radice, const CLI::ParseError& errore) {
    if (dynamic_cast<const CLI::CallForVersion*>(&errore) != nullptr) {
        stampa(fmt::format("{}\n", errore.what()));
        return uscitaFatto;
    }
    if (errore.get_exit_code() == 0) {
        stampa(radice.help());
        return uscitaFatto;
    }
    return usoErrato(comandoLetto(radice), descriviErrore(radice, errore));
}

int usoErrato(const CLI::App& comando, const std::string& testo) {
    avvisa(testo);
    const bool radice = comando.get_parent() == nullptr;
    fmt::print(stderr, "Per l'aiuto: kelvo-cli {}{}--help\n", radice ? "" : comando.get_name(), radice ? "" : " ");
    return uscitaUsoErrato;
}

}  // namespace kelvo::cli
