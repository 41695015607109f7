#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <memory>
#include <vector>

#include "Comando.h"
#include "base/versione.h"
#include "errori.h"

namespace {

using namespace kelvo::cli;

int esegui(int argc, char** argv) {
    CLI::App radice{"Kelvo: progetto e verifica di rotatorie", "kelvo-cli"};
    italiano(radice);
    radice.set_version_flag("--version", fmt::format("Kelvo {}", kelvo::versione()), "Mostra la versione");
    radice.require_subcommand(1);

    std::vector<std::unique_ptr<Comando>> comandi;
    for (const auto crea : {comandoCalcola, comandoCapacitaUltima, comandoNuovo, comandoMostra, comandoVerifica}) {
        comandi.push_back(crea(radice));
    }
    try {
        radice.parse(argc, argv);
    } catch (const CLI::ParseError& errore) {
        return chiudi(radice, errore);
    }
    int uscita = uscitaUsoErrato;
    for (const auto& comando : comandi) {
        if (comando->opzioni().parsed()) {
            uscita = comando->esegui();
        }
    }
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        avvisa("impossibile scrivere il risultato");
        return uscitaFallito;
    }
    return uscita;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return esegui(argc, argv);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "kelvo-cli: errore imprevisto: %s\n", errore.what());
        return uscitaFallito;
    }
}
