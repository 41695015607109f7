#include <fmt/format.h>

#include <array>
#include <charconv>
#include <optional>
#include <string_view>

#include "Comando.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "json.h"
#include "results/TabellaCapacitaUltima.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"

namespace kelvo::cli {

namespace {

constexpr int guastoIndice = 9;
constexpr int guastoChiamata = 5;

std::vector<std::string> parti(std::string_view testo, char separatore) {
    std::vector<std::string> pezzi;
    for (;;) {
        const auto fine = testo.find(separatore);
        pezzi.emplace_back(testo.substr(0, fine));
        if (fine == std::string_view::npos) {
            return pezzi;
        }
        testo.remove_prefix(fine + 1);
    }
}

/// "e,v,l,phi,r,D" with points as decimal separators, or the same with semicolons and commas.
std::optional<Geometria> leggiGeometria(const std::string& testo) {
    const char separatore = testo.find(';') == std::string::npos ? ',' : ';';
    const std::vector<std::string> pezzi = parti(testo, separatore);
    std::array<float, 6> misure{};
    if (pezzi.size() != misure.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < misure.size(); ++i) {
        const auto misura = leggiSingolo(pezzi[i], Separatore::virgolaOPunto);
        if (!misura) {
            return std::nullopt;
        }
        misure[i] = *misura;
    }
    return Geometria{.e = misure[0], .v = misure[1], .l = misure[2], .phi = misure[3], .r = misure[4], .D = misure[5]};
}

std::optional<CorsieDestra> leggiCorsie(const std::string& testo) {
    CorsieDestra corsie{};
    for (const std::string& pezzo : parti(testo, ',')) {
        if (pezzo.size() != 1 || pezzo[0] < '1' || pezzo[0] > '4') {
            return std::nullopt;
        }
        corsie[static_cast<std::size_t>(pezzo[0] - '1')] = true;
    }
    return corsie;
}

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

class ComandoCalcola final : public ComandoSuFile {
public:
    explicit ComandoCalcola(CLI::App& radice) {
        app_ = radice.add_subcommand("calcola", "Calcola capacità, saturazione, code, ritardi e livelli di servizio");
        aggiungiFile();
        aggiungiComuni();
        app_->add_option("--ramo", ramo_, "dopo il calcolo, ricalcola con altre misure per questo ramo")
            ->type_name("N")
            ->check(CLI::Range(1, static_cast<int>(massimoRami)));
        app_->add_option("--geometria", geometriaScritta_,
                         "le misure del ramo: e,v,l,phi,r,D con il punto decimale, o separate da ';' con la virgola")
            ->type_name("MISURE");
        app_->add_option("--corsie-dx", corsieScritte_, "calcola con le corsie di svolta a destra: posizioni da 1 a 4")
            ->type_name("1,3");
    }

private:
    bool opzioniCoerenti() override {
        const bool ipotesi = app_->count("--ramo") > 0;
        const bool corsie = app_->count("--corsie-dx") > 0;
        if (ipotesi != (app_->count("--geometria") > 0)) {
            avvisa("le opzioni --ramo e --geometria vanno date insieme");
            return false;
        }
        if (ipotesi && corsie) {
            avvisa("--corsie-dx non si usa con --ramo e --geometria");
            return false;
        }
        if (ipotesi && !(geometria_ = leggiGeometria(geometriaScritta_))) {
            avvisa(fmt::format("--geometria '{}': servono sei numeri: e,v,l,phi,r,D", geometriaScritta_));
            return false;
        }
        if (corsie && !(corsie_ = leggiCorsie(corsieScritte_))) {
            avvisa(fmt::format("--corsie-dx '{}': servono posizioni da 1 a 4, separate da virgole", corsieScritte_));
            return false;
        }
        return true;
    }

    bool tratta(Contesto& contesto, const std::string& file) override {
        bool riuscito = contesto.carica(file);
        if (riuscito) {
            calcola(contesto);
            riuscito = contesto.errori().empty();
        }
        if (comuni_.json) {
            stampa(riga(json(contesto, file)));
        } else if (riuscito) {
            riuscito = stampaTesto(contesto);
        }
        return riuscito;
    }

    void calcola(Contesto& contesto) {
        Rotonda& rotonda = contesto.app().theRotonda();
        if (corsie_ && rotonda.TipoAnalisi() != 1 && rotonda.TipoAnalisi() != 2) {
            contesto.segnala(guastoChiamata, "calcola",
                             "le corsie di svolta a destra non hanno effetto su un'analisi della sola saturazione");
            return;
        }
        if (geometria_ && ramo_ > rotonda.NumeroRami()) {
            contesto.segnala(
                guastoIndice, "calcola",
                fmt::format("il ramo {} non esiste: la rotatoria ha {} rami", ramo_, rotonda.NumeroRami()));
            return;
        }
        modCalcolo motore(contesto.app());
        const std::string modo = testoNumero(rotonda.TipoFlusso());
        if (corsie_) {
            calcolaCorsie(motore, rotonda.TipoAnalisi(), modo);
            return;
        }
        calcolaPiano(motore, rotonda.TipoAnalisi(), modo);
        if (geometria_ && contesto.errori().empty()) {
            calcolaIpotesi(motore, rotonda.TipoAnalisi(), modo);
        }
    }

    static void calcolaPiano(modCalcolo& motore, int analisi, const std::string& modo) {
        if (analisi == 1) {
            motore.Calcola_Tempo_Flusso(modo);
        } else if (analisi == 2) {
            motore.Calcola_Tempo_Flusso_ST(modo);
        } else {
            motore.Calcola_Bilanciamento();
        }
    }

    void calcolaIpotesi(modCalcolo& motore, int analisi, const std::string& modo) const {
        if (analisi == 1) {
            motore.Calcola_Tempo_Flusso(ramo_, *geometria_, modo);
        } else if (analisi == 2) {
            motore.Calcola_Tempo_Flusso_ST(ramo_, *geometria_, modo);
        } else {
            motore.Calcola_Bilanciamento(ramo_, *geometria_);
        }
    }

    void calcolaCorsie(modCalcolo& motore, int analisi, const std::string& modo) const {
        if (analisi == 1) {
            motore.Calcola_Tempo_Flusso_DX(modo, *corsie_);
        } else {
            motore.Calcola_Tempo_Flusso_ST_DX(modo, *corsie_);
        }
    }

    static bool stampaTesto(Contesto& contesto) {
        const Rotonda& rotonda = contesto.app().theRotonda();
        const DataOra momento = contesto.app().orologio.adesso();
        try {
            if (rotonda.TipoAnalisi() == 1 || rotonda.TipoAnalisi() == 2) {
                Tabella tabella = impostaTabellaVerifiche(rotonda);
                riempiTabellaVerifiche(rotonda, tabella);
                stampa(testoVerifiche(tabella, rotonda, momento));
            } else {
                // Without demand over time the table of the entries is empty: the capacities are the result.
                TabellaCapacitaUltima tabella;
                tabella.riempi(rotonda);
                stampa(tabella.testo(rotonda, momento));
            }
        } catch (const Guasto& guasto) {
            contesto.segnala(guasto.codice(), "frmCapacitaCodeRitardi:Calcola", guasto.descrizione());
            return false;
        }
        return true;
    }

    static Json json(Contesto& contesto, const std::string& file) {
        const Rotonda& rotonda = contesto.app().theRotonda();
        Json uscita = {{"file", file}};
        if (contesto.caricato()) {
            uscita["NomeFile"] = rotonda.NomeFile();
            uscita["TipoAnalisi"] = rotonda.TipoAnalisi();
            uscita["TipoFlusso"] = rotonda.TipoFlusso();
            uscita["NumeroRami"] = rotonda.NumeroRami();
            uscita["ambiente"] = ambienteJson(contesto.app());
            Json rami = Json::array();
            for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
                rami.push_back(ramoJson(rotonda, rotonda.Ramo(i)));
            }
            uscita["rami"] = rami;
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }

    std::int16_t ramo_ = 0;
    std::string geometriaScritta_;
    std::string corsieScritte_;
    std::optional<Geometria> geometria_;
    std::optional<CorsieDestra> corsie_;
};

}  // namespace

std::unique_ptr<Comando> comandoCalcola(CLI::App& radice) {
    return std::make_unique<ComandoCalcola>(radice);
}

}  // namespace kelvo::cli
