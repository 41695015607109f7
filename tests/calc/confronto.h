#pragma once

#include <string>
#include <vector>

#include "calc/modCalcolo.h"
#include "comune/finti.h"
#include "oracolo.h"

namespace kelvo::prove {

/// The operations of the engine.
enum class Operazione { bilanciamento, bilanciamentoIpotesi, curva, tabella };

/// One call of the engine.
struct Corsa {
    Operazione operazione = Operazione::bilanciamento;
    oracolo::Richiesta richiesta;  ///< of a simulation; the what-if balancing reads its `ipotesi`
    std::string nome() const;
    /// Label under which the engine reports a fault of this call.
    std::string metodo() const;
};

Corsa bilancia();
Corsa bilanciaIpotesi(int indice, const oracolo::Misure& misure);
Corsa curva(const std::string& modo);
Corsa curvaIpotesi(int indice, const oracolo::Misure& misure, const std::string& modo);
Corsa curvaDX(const std::string& modo, const std::array<bool, 4>& corsie);
Corsa tabella(const std::string& modo);
Corsa tabellaIpotesi(int indice, const oracolo::Misure& misure, const std::string& modo);
Corsa tabellaDX(const std::string& modo, const std::array<bool, 4>& corsie);

/// A project in a program of its own, with the engine; the faults are logged to a file.
class Banco {
public:
    /// A fresh project of `rami` legs in the window 08:00-09:00 by 15 minutes.
    explicit Banco(int rami = 4);

    AppFinta finta;
    modCalcolo motore{finta.app};

    Rotonda& rotonda() { return finta.app.theRotonda(); }
    Ramo& ramo(int numero) { return rotonda().Ramo(static_cast<std::int16_t>(numero)); }
    Iterazione record(int numeroRamo, int numero) {
        return ramo(numeroRamo).theDatiTraffico().GetIterazione(static_cast<std::int16_t>(numero));
    }
    /// Drops the project and makes a fresh one.
    void nuovo(int rami);
    /// Window and segments of all legs, which lose their tables and records.
    void finestra(DataOra inizio, DataOra fine, int minuti, int segmenti);

    /// Runs the engine alone.
    void esegui(const Corsa& corsa);
    /// A block of the log.
    struct Blocco {
        int numero = 0;
        std::string riga;  ///< its line with label and description
    };
    /// What the last run wrote to the log.
    std::vector<Blocco> blocchi;
    /// Number, label and description of the fault of the last run; 0 and empty texts if it had none.
    int guasto = 0;
    std::string metodo;
    std::string descrizione;

    /// Runs engine and oracle on the same project and says where they first differ: results of the legs, records,
    /// shares of the lanes, fault, stamp. Empty if nowhere.
    std::string confronta(const Corsa& corsa);
    /// How the oracle ended in the last comparison.
    oracolo::Esito atteso;

private:
    std::string confrontaGuasto(const Corsa& corsa) const;
    std::string confrontaLog() const;
};

}  // namespace kelvo::prove
