#include "reports/frmRelazioneProgressBar.h"

#include <fmt/format.h>

#include <algorithm>

namespace kelvo {

namespace {

constexpr const char* titoloFinestra = "KELVO 2014";
constexpr int interoPercorso = 100;

}  // namespace

frmRelazioneProgressBar::frmRelazioneProgressBar(const Contorno& contorno)
    : Finestra(contorno, "frmRelazioneProgressBar", titoloFinestra),
      lblAvanzamento("lblAvanzamento"),
      ctlProgressBar("ctlProgressBar", 0, interoPercorso) {
    ordina({&lblAvanzamento, &ctlProgressBar});
}

void frmRelazioneProgressBar::inizia(int totale) {
    totale_ = std::max(1, totale);
    lblAvanzamento.testo({});
    ctlProgressBar.valore(0);
}

void frmRelazioneProgressBar::avanza(int n) {
    lblAvanzamento.testo(fmt::format("Passo {} di {}", n, totale_));
    ctlProgressBar.valore(interoPercorso * n / totale_);
}

}  // namespace kelvo
