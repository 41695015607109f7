#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "app/convertitorePDF.h"
#include "app/processi.h"
#include "comune/cartella.h"

namespace kelvo::prove {

/// Starts nothing: writes down what it is asked and plays a program.
class ProcessiFinti final : public Processi {
public:
    std::string trova(const std::string& nome) const override {
        cercati.push_back(nome);
        return nome == presente ? "/usr/bin/" + nome : std::string{};
    }
    EsitoProcesso esegui(const std::string& programma, const std::vector<std::string>& argomenti,
                         std::chrono::milliseconds limite, const std::function<void()>& intanto) override {
        eseguiti.push_back(programma);
        parole = argomenti;
        limiteDato = limite;
        if (intanto) {
            intanto();
        }
        if (recita) {
            recita(argomenti);
        }
        return esito;
    }

    std::string presente;  ///< the one program that there is; empty for none
    EsitoProcesso esito{EsitoProcesso::Fine::uscito, 0};
    std::function<void(const std::vector<std::string>&)> recita;
    mutable std::vector<std::string> cercati;
    std::vector<std::string> eseguiti;
    std::vector<std::string> parole;
    std::chrono::milliseconds limiteDato{0};
};

/// Converts nothing: every PDF reads "pagine".
class ConvertitoreFinto final : public ConvertitorePDF {
public:
    std::string impedimento() const override { return manca; }
    std::string converti(const std::string& documento, const std::string& pdf,
                         const std::function<void()>& intanto) override {
        fatti.emplace_back(documento, pdf);
        if (intanto) {
            intanto();
        }
        if (errore.empty()) {
            scriviContenuto(pdf, "pagine");
        }
        return errore;
    }

    std::string manca;   ///< why there is no program; empty where there is
    std::string errore;  ///< why it fails; empty: all is well
    std::vector<std::pair<std::string, std::string>> fatti;
};

}  // namespace kelvo::prove
