#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "comune/appunti.h"
#include "shell/servizi/Griglia.h"

namespace kelvo::prove {

/// The window of a grid: its clipboard, and what the checks said.
class CustodeGriglia final : public CustodeCampi {
public:
    void entrato(Controllo& /*campo*/) override {}
    void giudicato(Controllo& /*campo*/, const EsitoUscita& esito) override { esiti.push_back(esito); }
    Appunti* appunti() override { return &blocco; }

    AppuntiFinti blocco;
    std::vector<EsitoUscita> esiti;
};

/// A table of 3 x 3 numbers, "11" to "33" by row and column, under a heading row and beside a heading column. All of
/// them may be typed into: digits and comma, four characters at most.
struct ProveGriglia : testing::Test {
    CustodeGriglia custode;
    Griglia griglia{"ctlGrid"};

    ProveGriglia() {
        griglia.custode(&custode);
        griglia.modificabile = [](Posto) { return true; };
        for (int c = 0; c < 4; ++c) {
            griglia.colonna(c, {.regole = {.caratteri = "0123456789,", .lunghezzaMassima = 4}});
        }
        griglia.tabella(numeri());
    }

    static Tabella numeri() {
        Tabella tabella(4, 4);
        for (int r = 0; r < 4; ++r) {
            for (int c = 0; c < 4; ++c) {
                tabella.cella(r, c).testo = r == 0   ? "C" + std::to_string(c)
                                            : c == 0 ? "R" + std::to_string(r)
                                                     : std::to_string(r) + std::to_string(c);
            }
        }
        return tabella;
    }

    void premi(std::initializer_list<Griglia::Tasto> tasti) {
        for (const Griglia::Tasto tasto : tasti) {
            griglia.premiTasto(tasto);
        }
    }
    const std::string& testo(int riga, int colonna) const { return griglia.testo(riga, colonna); }
};

}  // namespace kelvo::prove
