#include "errori.h"

#include <fmt/format.h>

#include <array>
#include <string>
#include <string_view>

#include "Contesto.h"

namespace kelvo::cli {

namespace {

/// Words of the option reader and what they say in Italian.
struct Parole {
    std::string_view inglese;
    std::string_view italiano;
};

constexpr std::array traduzioni{
    Parole{"The following argument was not expected:", "argomento non riconosciuto:"},
    Parole{"The following arguments were not expected:", "argomenti non riconosciuti:"},
    Parole{"A subcommand is required", "manca il comando"},
    Parole{" is required", ": manca"},
    Parole{"Could not convert:", "non è un numero ammesso:"},
    Parole{" required TEXT missing", " valore mancante"},
    Parole{" required missing", " valore mancante"},
    Parole{" not in range ", " fuori dall'intervallo "},
    Parole{"Value ", "il valore "},
    Parole{" to ", " - "},
};

std::string traduci(std::string testo) {
    for (const Parole& p : traduzioni) {
        const auto posizione = testo.find(p.inglese);
        if (posizione != std::string::npos) {
            testo.replace(posizione, p.inglese.size(), p.italiano);
        }
    }
    return testo;
}

}  // namespace

void italiano(CLI::App& radice) {
    radice.set_help_flag("-h,--help", "Mostra questo aiuto");
    const auto modello = std::make_shared<CLI::Formatter>();
    modello->label("Usage", "Uso");
    modello->label("OPTIONS", "OPZIONI");
    modello->label("SUBCOMMAND", "COMANDO");
    modello->label("SUBCOMMANDS", "COMANDI");
    modello->label("Options", "Opzioni");
    modello->label("Subcommands", "Comandi");
    modello->label("Positionals", "Argomenti");
    modello->label("REQUIRED", "(obbligatorio)");
    radice.formatter(modello);
}

int chiudi(const CLI::App& radice, const CLI::ParseError& errore) {
    if (errore.get_exit_code() == 0) {
        return radice.exit(errore);
    }
    avvisa(traduci(errore.what()));
    fmt::print(stderr, "Con --help l'elenco dei comandi e delle opzioni.\n");
    return uscitaUsoErrato;
}

}  // namespace kelvo::cli
