#include "results/frmLEGENDA.h"

#include <string>
#include <utility>

namespace kelvo {

namespace {

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichetteLivelli(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{"lblLivello" + std::string{righeLegenda[I].lettera}, std::string{righeLegenda[I].testo}}...};
}

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichetteColori(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{"lblColore" + std::to_string(I + 1), std::string{chiaviLegenda[I].testo}}...};
}

template <std::size_t... I>
std::array<CampioneColore, sizeof...(I)> campioni(std::index_sequence<I...> /*indici*/) {
    return {CampioneColore{"ctlColore" + std::to_string(I + 1), chiaviLegenda[I].sfondo}...};
}

}  // namespace

frmLEGENDA::frmLEGENDA(const Contorno& contorno)
    : Finestra(contorno, "frmLEGENDA", "KELVO 2014"),
      lblLOS("lblLOS", "LOS   [sec/veicolo]"),
      lblLivelli(etichetteLivelli(std::make_index_sequence<righeLegenda.size()>())),
      lblColori(etichetteColori(std::make_index_sequence<chiaviLegenda.size()>())),
      ctlColori(campioni(std::make_index_sequence<chiaviLegenda.size()>())),
      cmdChiudi("cmdChiudi", "Chiudi") {
    std::vector<Controllo*> controlli{&lblLOS};
    for (Etichetta& riga : lblLivelli) {
        controlli.push_back(&riga);
    }
    for (std::size_t i = 0; i < lblColori.size(); ++i) {
        controlli.push_back(&ctlColori[i]);
        controlli.push_back(&lblColori[i]);
    }
    controlli.push_back(&cmdChiudi);
    ordina(controlli);
    cmdChiudi.allaPressione = [this] {
        if (allaChiusura) {
            allaChiusura();
        }
    };
}

void frmLEGENDA::mostraColori(bool valore) {
    for (std::size_t i = 0; i < lblColori.size(); ++i) {
        lblColori[i].visibile(valore);
        ctlColori[i].visibile(valore);
    }
}

}  // namespace kelvo
