#include <optional>

#include "Comando.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "impedimenti.h"
#include "json.h"
#include "results/livelloServizio.h"
#include "results/sintesiNodo.h"
#include "results/tabellaVerifiche.h"

namespace kelvo::cli {

namespace {

class ComandoSintesi final : public ComandoSuFile {
public:
    explicit ComandoSintesi(CLI::App& radice)
        : ComandoSuFile(radice, "sintesi",
                        "Trova l'ora di punta degli ingressi e del nodo: riserva, saturazione, ritardo, livello",
                        "  kelvo-cli sintesi Rotatoria.klv\n"
                        "  kelvo-cli sintesi --json *.klv > sintesi.jsonl") {
        aggiungiComuni();
    }

private:
    Impedimento impedimento(const Rotonda& rotonda) const override { return {.motivo = impedimentoSintesi(rotonda)}; }

    bool tratta(Contesto& contesto, const std::string& file) override {
        std::optional<SintesiNodo> sintesi;
        if (prepara(contesto, file)) {
            sintesi = calcola(contesto);
        }
        const bool riuscito = contesto.errori().empty();
        if (comuni_.json) {
            stampa(riga(json(contesto, file, riuscito ? sintesi : std::nullopt)));
        } else if (riuscito) {
            const Rotonda& rotonda = contesto.app().theRotonda();
            stampa(testoSintesi(tabellaSintesi(rotonda, *sintesi), paroleSintesi(rotonda, *sintesi), rotonda.NomeFile(),
                                contesto.app().orologio.adesso()));
        }
        return riuscito;
    }

    static std::optional<SintesiNodo> calcola(Contesto& contesto) {
        const Rotonda& rotonda = contesto.app().theRotonda();
        modCalcolo motore(contesto.app());
        const std::string modo = testoNumero(rotonda.TipoFlusso());
        if (rotonda.TipoAnalisi() == 1) {
            motore.Calcola_Tempo_Flusso(modo);
        } else {
            motore.Calcola_Tempo_Flusso_ST(modo);
        }
        try {
            return sintesiNodo(rotonda);
        } catch (const Guasto& guasto) {
            contesto.app().comune.erroreLog(guasto.codice(), "sintesi", guasto.descrizione(), false);
        }
        return std::nullopt;
    }

    static Json json(Contesto& contesto, const std::string& file, const std::optional<SintesiNodo>& sintesi) {
        Json uscita = {{"file", file}};
        if (contesto.caricato()) {
            const Rotonda& rotonda = contesto.app().theRotonda();
            uscita["NomeFile"] = rotonda.NomeFile();
            uscita["TipoAnalisi"] = rotonda.TipoAnalisi();
            uscita["TipoFlusso"] = rotonda.TipoFlusso();
            if (sintesi) {
                uscita["minutiSegmento"] = sintesi->minutiSegmento;
                uscita["segmentiOra"] = sintesi->segmentiOra;
                uscita["ingressi"] = ingressiJson(rotonda, *sintesi);
                uscita["nodo"] = nodoJson(rotonda, sintesi->nodo);
                uscita["tabella"] = tabellaJson(tabellaSintesi(rotonda, *sintesi));
            }
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }

    static Json voceJson(const Rotonda& rotonda, const VoceSintesi& voce) {
        const auto oNulla = [](bool presente, auto valore) { return presente ? valore() : Json(nullptr); };
        const bool ora = voce.segmento > 0;
        return {{"oraDiPunta", oNulla(ora, [&] { return Json(testoOra(rotonda, voce.segmento, voce.segmenti)); })},
                {"Flusso", numero(voce.Flusso)},
                {"Capacita", oNulla(ora, [&] { return numero(voce.Capacita); })},
                {"riserva", oNulla(voce.riserva.has_value(), [&] { return numero(*voce.riserva); })},
                {"riservaVeicoli", oNulla(ora, [&] { return numero(voce.riservaVeicoli); })},
                {"Coeff_Sat", numero(voce.Coeff_Sat)},
                {"segmentoSat",
                 oNulla(voce.segmentoSat > 0, [&] { return Json(testoIntervallo(rotonda, voce.segmentoSat)); })},
                {"saturazioneAlta", voce.saturazioneAlta},
                {"Ritardo", oNulla(ora, [&] { return numero(voce.Ritardo); })},
                {"LOS", voce.livello}};
    }

    static Json ingressiJson(const Rotonda& rotonda, const SintesiNodo& sintesi) {
        Json uscita = Json::array();
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            const Ramo& ramo = rotonda.Ramo(i);
            Json ingresso = {{"Key", ramo.Key()}, {"Descrizione", ramo.Descrizione()}};
            ingresso.update(voceJson(rotonda, sintesi.ingressi[static_cast<std::size_t>(i) - 1]));
            Json livelli = Json::array();
            for (std::int16_t s = 1; s <= ramo.theDatiTraffico().NumSegmentiTempo(); ++s) {
                livelli.push_back(livelloDiRitardo(ramo.theDatiTraffico().GetIterazione(s).Ritardo));
            }
            ingresso["livelli"] = livelli;
            uscita.push_back(ingresso);
        }
        return uscita;
    }

    static Json nodoJson(const Rotonda& rotonda, const VoceSintesi& nodo) {
        Json uscita = voceJson(rotonda, nodo);
        uscita["ingressoPeggiore"] = nodo.ingressoSat > 0 ? Json(rotonda.Ramo(nodo.ingressoSat).Key()) : Json(nullptr);
        return uscita;
    }
};

}  // namespace

std::unique_ptr<Comando> comandoSintesi(CLI::App& radice) {
    return std::make_unique<ComandoSintesi>(radice);
}

}  // namespace kelvo::cli
