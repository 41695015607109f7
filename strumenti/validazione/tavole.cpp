#include "validazione/tavole.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <vector>

#include "app/nuovoProgetto.h"
#include "base/date.h"
#include "calc/modCalcolo.h"
#include "results/livelloServizio.h"
#include "validazione/CasoNoto.h"

namespace kelvo::validazione {

namespace {

/// A message of the engine ends the run: a case that faults has nothing to compare.
class MessaggiFatali final : public FinestraMessaggi {
public:
    Risposta mostra(const std::string& testo, const std::string&, Icona, Pulsanti) override {
        throw std::runtime_error(testo);
    }
};

/// A project of three legs with its engine.
struct Banco {
    Banco() {
        app.configurazione.coefficienti(coefficientiDiFabbrica);
        creaProgetto(app, 3);
    }
    Rotonda& rotonda() { return app.theRotonda(); }
    Ramo& ramo(std::int16_t numero) { return rotonda().Ramo(numero); }
    void finestra(int minuti, int segmenti, std::int16_t segmentiRecord) {
        rotonda().TempoIniziale(oraDelGiorno(8, 0));
        rotonda().TempoFinale(oraDelGiorno(8, minuti * segmenti));
        rotonda().SegmentoTempo(oraDelGiorno(0, minuti));
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            DatiTraffico& traffico = ramo(i).theDatiTraffico();
            traffico.NumSegmentiTempo(segmentiRecord);
            ramo(i).theComposizioneTraffico().NumSegmentiTempo(segmentiRecord);
            traffico.Tempo1(oraDelGiorno(8, 0));
            traffico.Tempo2(oraDelGiorno(8, minuti * segmenti / 2));
            traffico.Tempo3(oraDelGiorno(8, minuti * segmenti));
        }
    }

    MessaggiFatali messaggi;
    OrologioSistema orologio;
    Applicazione app{".", ".", {messaggi, orologio, sistemaFileStandard()}};
    modCalcolo motore{app};
};

/// A figure with a decimal comma.
std::string cifra(double valore, int decimali) {
    std::string testo = fmt::format("{:.{}f}", valore == 0.0 ? 0.0 : valore, decimali);
    std::replace(testo.begin(), testo.end(), '.', ',');
    return testo;
}

/// Writes the tables and keeps the account.
class Foglio {
public:
    explicit Foglio(Tavole& tavole) : tavole_(tavole) {}

    void apri(const std::string& titolo) {
        tavole_.testo += fmt::format("\n### {}\n\n", titolo);
        tavole_.testo += "| Caso | Fonte | Grandezza | Atteso | Trovato | Differenza | Tolleranza | Esito |\n";
        tavole_.testo += "|---|:-:|---|---:|---:|---:|---:|:-:|\n";
    }
    /// One figure of a case. Tolerance: half a unit of the last digit that the case prints, or as many units as it
    /// tells.
    void confronta(const CasoNoto& caso, const std::string& chiave, const std::string& grandezza, double trovato) {
        const int stampate = decimali(caso, chiave);
        const double atteso = numero(caso, chiave);
        const double unita = caso.contains("tolleranza") ? numero(caso, "tolleranza") : 0.5;
        const double tolleranza = unita * std::pow(10.0, -stampate);
        const double differenza = std::fabs(trovato - atteso);
        riga(caso, grandezza,
             {cifra(atteso, stampate), cifra(trovato, stampate + 2), cifra(differenza, stampate + 2),
              cifra(tolleranza, stampate + 1)},
             differenza <= tolleranza);
    }
    /// One text of a case.
    void confronta(const CasoNoto& caso, const std::string& grandezza, const std::string& atteso,
                   const std::string& trovato) {
        riga(caso, grandezza, {atteso, trovato, "–", "–"}, atteso == trovato);
    }
    std::string fonti() const {
        std::string testo;
        for (std::size_t i = 0; i < fonti_.size(); ++i) {
            testo += fmt::format("- [{}] {}.\n", i + 1, fonti_[i]);
        }
        return testo;
    }

private:
    std::size_t numeroFonte(const std::string& fonte) {
        const auto trovata = std::find(fonti_.begin(), fonti_.end(), fonte);
        const auto posto = static_cast<std::size_t>(trovata - fonti_.begin());
        if (trovata == fonti_.end()) {
            fonti_.push_back(fonte);
        }
        return posto + 1;
    }
    void riga(const CasoNoto& caso, const std::string& grandezza, const std::array<std::string, 4>& celle, bool entro) {
        ++tavole_.confronti;
        tavole_.fuori += entro ? 0 : 1;
        tavole_.testo += fmt::format("| {} | [{}] | {} | {} | {} | {} | {} | {} |\n", caso.at("titolo"),
                                     numeroFonte(caso.at("fonte")), grandezza, celle[0], celle[1], celle[2], celle[3],
                                     entro ? "conforme" : "**NON CONFORME**");
    }
    Tavole& tavole_;
    std::vector<std::string> fonti_;
};

template <class F>
void perOgniCaso(const std::string& cartella, const std::string& inizio, F&& lavoro) {
    const std::vector<std::string> file = fileDeiCasi(cartella, inizio);
    if (file.empty()) {
        throw std::runtime_error(cartella + ": nessun caso " + inizio);
    }
    for (const std::string& percorso : file) {
        lavoro(leggiCaso(percorso));
    }
}

void parametri(Foglio& foglio, const CasoNoto& caso) {
    Banco banco;
    const Ramo& ramo = banco.ramo(1);
    applica(banco.ramo(1), caso);
    banco.motore.Calcola_Parametri();
    foglio.confronta(caso, "k", "k", ramo.K());
    foglio.confronta(caso, "tD", "t<sub>D</sub>", ramo.Td());
    foglio.confronta(caso, "S", "S", ramo.S());
    foglio.confronta(caso, "x2", "x<sub>2</sub> (m)", ramo.X2());
    foglio.confronta(caso, "F", "F (veic/h)", ramo.F());
    foglio.confronta(caso, "Fc", "F<sub>c</sub>", ramo.Fc());
}

void retta(Foglio& foglio, const CasoNoto& caso) {
    Banco banco;
    const Ramo& ramo = banco.ramo(1);
    applica(banco.ramo(1), caso);
    banco.motore.Calcola_Parametri();
    foglio.confronta(caso, "intercetta", "F (veic/h)", ramo.F());
    foglio.confronta(caso, "pendenza", "F<sub>c</sub>", ramo.Fc());
    foglio.confronta(caso, "Qe_500", "Q<sub>e</sub> con Q<sub>c</sub> = 500 (veic/h)", ramo.F() - ramo.Fc() * 500.0);
    foglio.confronta(caso, "Qe_1000", "Q<sub>e</sub> con Q<sub>c</sub> = 1000 (veic/h)", ramo.F() - ramo.Fc() * 1000.0);
}

/// The published junction: all of A goes to B, half of B to A past the entry of C, all of C to A.
void esempio(Foglio& foglio, const CasoNoto& caso) {
    constexpr std::int16_t segmenti = 4;
    Banco banco;
    banco.finestra(15, segmenti, segmenti);
    const std::array<std::string, 3> bracci{"A", "B", "C"};
    for (std::int16_t i = 1; i <= 3; ++i) {
        applica(banco.ramo(i), caso);
        const double orario = numero(caso, "flusso_" + bracci[static_cast<std::size_t>(i) - 1]);
        for (std::int16_t k = 0; k < segmenti; ++k) {
            banco.ramo(i).theDatiTraffico().FlussoSegmento(static_cast<float>(orario / segmenti), k, 0);
        }
    }
    banco.rotonda().MatriceSvolte(misura(caso, "flusso_A"), 1, 2);
    banco.rotonda().MatriceSvolte(misura(caso, "Qc"), 2, 1);
    banco.rotonda().MatriceSvolte(misura(caso, "flusso_B") - misura(caso, "Qc"), 2, 3);
    banco.rotonda().MatriceSvolte(misura(caso, "flusso_C"), 3, 1);
    banco.motore.Calcola_Tempo_Flusso_ST("0");
    const Ramo& ramo = banco.ramo(3);
    const Iterazione record = ramo.theDatiTraffico().GetIterazione(2);
    const auto capacita = static_cast<double>(record.Capacita);
    foglio.confronta(caso, "intercetta_stampata", "F (veic/h), da misure ricostruite", ramo.F());
    foglio.confronta(caso, "pendenza_stampata", "F<sub>c</sub>, da misure ricostruite", ramo.Fc());
    foglio.confronta(caso, "Qc", "Q<sub>c</sub> davanti a C (veic/h)", (ramo.F() - capacita) / ramo.Fc());
    foglio.confronta(caso, "capacita_C", "capacità di C (veic/h)", capacita);
    foglio.confronta(caso, "rapporto_C", "coefficiente di saturazione di C", static_cast<double>(record.Coeff_Sat));
}

/// Flat demand on an entry that its external condition brings to the capacity of the case.
void coda(Foglio& foglio, const CasoNoto& caso) {
    constexpr int segmenti = 4;
    Banco banco;
    Ramo& ramo = banco.ramo(1);
    banco.finestra(static_cast<int>(numero(caso, "T")), segmenti, segmenti + 1);
    banco.motore.Calcola_Parametri();
    ramo.theAnalisiMarginale().CondizioniEsterne(100.0 - numero(caso, "c") / ramo.F() * 100.0);
    banco.rotonda().ValorePercentile(misura(caso, "percentile"));
    ramo.theDatiTraffico().FlussoTempo1(misura(caso, "f"));
    ramo.theDatiTraffico().FlussoTempo2(misura(caso, "f"));
    ramo.theDatiTraffico().FlussoTempo3(misura(caso, "f"));
    banco.motore.Calcola_Tempo_Flusso("0");
    const Iterazione record = ramo.theDatiTraffico().GetIterazione(2);
    foglio.confronta(caso, "c", "capacità (veic/h), imposta", static_cast<double>(record.Capacita));
    foglio.confronta(caso, "x", "coefficiente di saturazione", static_cast<double>(record.Coeff_Sat));
    foglio.confronta(caso, "coda", "coda (veic)", static_cast<double>(record.Coda));
    foglio.confronta(caso, "ritardo", "ritardo (s/veic)", static_cast<double>(record.Ritardo));
}

/// Each band at its upper bound, which belongs to it, and a tenth of a second past it.
void livelli(Foglio& foglio, const CasoNoto& caso) {
    constexpr std::array<std::string_view, 6> lettere{"A", "B", "C", "D", "E", "F"};
    for (std::size_t i = 0; i + 1 < lettere.size(); ++i) {
        const double limite = numero(caso, std::string(lettere[i]));
        for (const std::size_t oltre : {std::size_t{0}, std::size_t{1}}) {
            const double ritardo = limite + 0.1 * static_cast<double>(oltre);
            foglio.confronta(caso, fmt::format("livello con ritardo {} s/veic", cifra(ritardo, 1)),
                             std::string(lettere[i + oltre]),
                             std::string(livelloDiRitardo(static_cast<float>(ritardo))));
        }
    }
}

}  // namespace

Tavole tavole(const std::string& cartellaCasi) {
    Tavole fatte;
    Foglio foglio(fatte);
    foglio.apri("Parametri di capacità");
    perOgniCaso(cartellaCasi, "parametri-", [&](const CasoNoto& caso) { parametri(foglio, caso); });
    foglio.apri("Rette di capacità");
    perOgniCaso(cartellaCasi, "retta-", [&](const CasoNoto& caso) { retta(foglio, caso); });
    foglio.apri("Esempio pubblicato");
    perOgniCaso(cartellaCasi, "esempio-", [&](const CasoNoto& caso) { esempio(foglio, caso); });
    foglio.apri("Coda e ritardo");
    perOgniCaso(cartellaCasi, "coda-", [&](const CasoNoto& caso) { coda(foglio, caso); });
    foglio.apri("Livello di servizio");
    perOgniCaso(cartellaCasi, "livelli-", [&](const CasoNoto& caso) { livelli(foglio, caso); });
    fatte.testo = fmt::format("Confronti: {}; entro la tolleranza: {}; fuori: {}.\n\nFonti dei valori attesi:\n\n{}{}",
                              fatte.confronti, fatte.confronti - fatte.fuori, fatte.fuori, foglio.fonti(), fatte.testo);
    return fatte;
}

}  // namespace kelvo::validazione
