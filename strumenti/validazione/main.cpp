// Prints the tables of the validation report. Exit code 1 if a figure is out of tolerance or a case cannot be computed.

#include <cstdio>
#include <exception>

#include "validazione/tavole.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("uso: kelvo-validazione CARTELLA_DEI_CASI\n", stderr);
        return 2;
    }
    try {
        const kelvo::validazione::Tavole fatte = kelvo::validazione::tavole(argv[1]);
        std::fputs(fatte.testo.c_str(), stdout);
        return fatte.fuori == 0 ? 0 : 1;
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return 1;
    }
}
