#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "Comando.h"
#include "base/versione.h"
#include "errori.h"
#include "platform/Piattaforma.h"

namespace {

using namespace kelvo::cli;

constexpr const char* piede =
    "Esempi:\n"
    "  kelvo-cli nuovo --rami 4 Rotatoria.klv\n"
    "  kelvo-cli calcola Rotatoria.klv\n"
    "  kelvo-cli calcola --help\n"
    "\n"
    "Codice di uscita: 0 fatto; 1 il calcolo o un file non è riuscito; 2 uso errato o configurazione inutilizzabile; "
    "3 il controllo ha trovato errori nel progetto";

int esegui(std::vector<std::string> argomenti) {
    CLI::App radice{"Kelvo: progetto e verifica di rotatorie", "kelvo-cli"};
    italiano(radice);
    radice.set_version_flag("--version", fmt::format("Kelvo {}", kelvo::versione()), "Mostra la versione");
    radice.require_subcommand(1);
    radice.footer(piede);

    std::vector<std::unique_ptr<Comando>> comandi;
    for (const auto crea :
         {comandoCalcola, comandoCapacitaUltima, comandoNuovo, comandoMostra, comandoVerifica, comandoCurva,
          comandoCorsiaDx, comandoSensibilita, comandoSintesi, comandoControllo, comandoDxf, comandoConfronta}) {
        comandi.push_back(crea(radice));
    }
    for (auto& comando : comandiDocumenti(radice)) {
        comandi.push_back(std::move(comando));
    }
    for (auto& comando : comandiDisegno(radice)) {
        comandi.push_back(std::move(comando));
    }
    try {
        // The library takes them from the last to the first.
        std::reverse(argomenti.begin(), argomenti.end());
        radice.parse(std::move(argomenti));
    } catch (const CLI::ParseError& errore) {
        return chiudi(radice, errore);
    }
    int uscita = uscitaUsoErrato;
    for (const auto& comando : comandi) {
        if (comando->opzioni().parsed()) {
            uscita = comando->esegui();
        }
    }
    return uscita;
}

/// A result that did not reach its reader whole is a failure.
int conRisultatoScritto(int uscita) {
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        avvisa("impossibile scrivere il risultato");
        return uscita == uscitaFatto ? uscitaFallito : uscita;
    }
    return uscita;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const auto sistema = kelvo::creaPiattaforma();
        sistema->preparaUscite();
        return conRisultatoScritto(esegui(sistema->argomenti(argc, argv)));
    } catch (const std::bad_alloc&) {
        std::fputs("kelvo-cli: memoria insufficiente\n", stderr);
        return uscitaFallito;
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "kelvo-cli: errore imprevisto: %s\n", errore.what());
        return uscitaFallito;
    }
}
