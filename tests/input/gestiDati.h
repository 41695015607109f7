#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

#include "app/Applicazione.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/tBox.h"

namespace kelvo::prove {

/// Types into a field as a person does; true if it could be left.
inline bool scriviIn(Finestra& finestra, tBox& campo, const std::string& testo) {
    finestra.fuocoSu(campo);
    campo.scrivi(testo);
    const bool lasciato = finestra.lasciaFuoco();
    finestra.scordaFuoco();
    return lasciato;
}

/// Saves the project at hand; the content of its file.
inline std::string testoSalvato(Applicazione& app, const std::string& percorso) {
    std::string messaggio;
    bool esito = true;
    app.theRotonda().Save(percorso, messaggio, esito);
    EXPECT_TRUE(esito) << messaggio;
    std::ifstream file(percorso, std::ios::binary);
    std::ostringstream testo;
    testo << file.rdbuf();
    return testo.str();
}

}  // namespace kelvo::prove
