#pragma once

#include <gtest/gtest.h>

#include <string>

#include "comune/finti.h"
#include "model/Rotonda.h"
#include "proprieta.h"

namespace kelvo::prove {

/// A whole project file with a value of its own in every place.
inline const std::string& testoCompleto() {
    static const std::string testo = contenuto(KELVO_SORGENTI "/tests/model/dati/completo.klv");
    return testo;
}

/// The least file that is a project.
inline std::string testoMinimo(const std::string& altro = {}, const std::string& rami = "{}, {}, {}") {
    return R"({"formato": "Kelvo", "versione": 1, "Rami": [)" + rami + "]" + (altro.empty() ? "" : ", " + altro) + "}";
}

/// `testo` with its first `da` replaced.
inline std::string sostituito(std::string testo, const std::string& da, const std::string& a) {
    const auto posto = testo.find(da);
    EXPECT_NE(posto, std::string::npos) << da;
    return posto == std::string::npos ? testo : testo.replace(posto, da.size(), a);
}

struct EsitoLettura {
    bool esito = false;
    std::string messaggio;
};

inline EsitoLettura carica(Rotonda& rotonda, std::string_view testo) {
    EsitoLettura letto;
    letto.messaggio = "?";
    rotonda.LoadTesto(testo, letto.messaggio, letto.esito);
    return letto;
}

/// Message of a text that is refused; "" if it is read.
inline std::string rifiuto(std::string_view testo) {
    Rotonda rotonda;
    const EsitoLettura letto = carica(rotonda, testo);
    EXPECT_EQ(letto.esito, letto.messaggio.empty());
    return letto.messaggio;
}

}  // namespace kelvo::prove
