#pragma once

#include <string>
#include <vector>

#include "app/serviziSistema.h"
#include "shell/servizi/disegnatore.h"

namespace kelvo::prove {

/// A clipboard for pictures in memory.
class ImmaginiFinte final : public AppuntiImmagini {
public:
    bool scrivi(const std::string& nuova) override {
        if (riesce) {
            png = nuova;
        }
        return riesce;
    }

    bool riesce = true;
    std::string png;
};

/// Draws nothing: every drawing reads "disegno".
class DisegnatoreFinto final : public Disegnatore {
public:
    EsitoDisegno pianta(const pianta::DatiPianta& /*dati*/, const pianta::OpzioniPianta& /*opzioni*/,
                        FormatoDisegno formato, const MisuraDisegno& /*misura*/) override {
        return fatto(formato);
    }
    EsitoDisegno grafico(const Grafico::Contenuto& contenuto, FormatoDisegno formato,
                         const MisuraDisegno& /*misura*/) override {
        ultimo = contenuto;
        return fatto(formato);
    }

    std::string errore;  ///< why nothing can be drawn; empty: all is well
    std::vector<FormatoDisegno> disegnati;
    Grafico::Contenuto ultimo;

private:
    EsitoDisegno fatto(FormatoDisegno formato) {
        disegnati.push_back(formato);
        return {.dati = errore.empty() ? "disegno" : "", .errore = errore};
    }
};

}  // namespace kelvo::prove
