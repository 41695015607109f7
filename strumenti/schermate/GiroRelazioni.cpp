#include "reports/frmOPZrelazione.h"
#include "schermate/Giro.h"

namespace kelvo::schermate {

namespace {

constexpr const char* finestraRelazioni = "frmOPZrelazione";
constexpr int passoDiMezzo = 7;

}  // namespace

void Giro::relazioni(const std::string& progetto) {
    if (!cornice_.mostraFinestra(finestraRelazioni)) {
        return;
    }
    mostrate_.insert(finestraRelazioni);
    fotografo_.scatta(vista_, finestraRelazioni + ("-" + progetto));
    auto& finestra = dynamic_cast<frmOPZrelazione&>(*cornice_.finestre.viva(finestraRelazioni));
    finestra.avanzamento.inizia(modStampaRelazione::passiRelazione);
    finestra.avanzamento.avanza(passoDiMezzo);
    collegate_.affianca(finestra.avanzamento);
    fotografo_.scatta(vista_, "frmRelazioneProgressBar-" + progetto);
    collegate_.chiudi(finestra.avanzamento);
}

}  // namespace kelvo::schermate
