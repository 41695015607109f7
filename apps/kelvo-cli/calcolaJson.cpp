#include "calcolaJson.h"

#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"

namespace kelvo::cli {

namespace {

Json ambienteJson(Applicazione& app) {
    Json coefficienti = Json::object();
    const CoefficientiVeicoli valori = app.configurazione.coefficienti();
    for (std::size_t i = 0; i < valori.size(); ++i) {
        coefficienti[std::string{chiaviCoefficienti[i]}] = numero(valori[i]);
    }
    return {{"coefficienti", coefficienti},
            {"ValorePercentile", numero(app.theRotonda().ValorePercentile())},
            {"notte", app.theRotonda().CondizioniNotturne() ? app.theAmbiente.PercentualeNotturna() : 0}};
}

Json iterazioniJson(const Rotonda& rotonda, const DatiTraffico& traffico) {
    Json iterazioni = Json::array();
    for (std::int16_t k = 1; k <= traffico.IterazioniScritte(); ++k) {
        const Iterazione r = traffico.GetIterazione(k);
        iterazioni.push_back({{"intervallo", testoIntervallo(rotonda, k)},
                              {"Flusso", numero(r.Flusso)},
                              {"Capacita", numero(r.Capacita)},
                              {"Coeff_Sat", numero(r.Coeff_Sat)},
                              {"Coda", numero(r.Coda)},
                              {"Ritardo", numero(r.Ritardo)},
                              {"LOS", livelloDiRitardo(r.Ritardo)}});
    }
    return iterazioni;
}

Json ramoJson(const Rotonda& rotonda, const Ramo& ramo) {
    return {{"Key", ramo.Key()},
            {"Descrizione", ramo.Descrizione()},
            {"K", numero(ramo.K())},
            {"Td", numero(ramo.Td())},
            {"S", numero(ramo.S())},
            {"X2", numero(ramo.X2())},
            {"F", numero(ramo.F())},
            {"Fc", numero(ramo.Fc())},
            {"CapacitaUltima", numero(ramo.CapacitaUltima())},
            {"iterazioni", iterazioniJson(rotonda, ramo.theDatiTraffico())}};
}

}  // namespace

Json calcolaJson(Contesto& contesto, const std::string& file, const Json& premessa) {
    const Rotonda& rotonda = contesto.app().theRotonda();
    Json uscita = {{"file", file}};
    if (contesto.caricato()) {
        uscita["NomeFile"] = rotonda.NomeFile();
        uscita["TipoAnalisi"] = rotonda.TipoAnalisi();
        uscita["TipoFlusso"] = rotonda.TipoFlusso();
        uscita["NumeroRami"] = rotonda.NumeroRami();
        uscita["ambiente"] = ambienteJson(contesto.app());
        uscita.update(premessa);
        Json rami = Json::array();
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            rami.push_back(ramoJson(rotonda, rotonda.Ramo(i)));
        }
        uscita["rami"] = rami;
    }
    uscita["errori"] = erroriJson(contesto);
    return uscita;
}

}  // namespace kelvo::cli
