#pragma once

#include <functional>
#include <string>

#include "comune/fintiFinestre.h"
#include "shell/servizi/tBox.h"

namespace kelvo::prove {

/// A data window of three fields that counts what happens to it.
class FinestraProva final : public FinestraDati {
public:
    explicit FinestraProva(const Contorno& contorno, const std::string& nome = "frmProva")
        : FinestraDati(contorno, nome, "Prova") {
        ordina({&lblUno, &txtUno, &txtDue, &txtTre, &cmdFine});
    }
    Etichetta lblUno{"lblUno", "Uno", "GREY"};
    tBox txtUno{"txtUno", tBox::textbox, "Type:Numeric;ValueMin:1;ValueMax:10"};
    tBox txtDue{"txtDue", tBox::textbox};
    tBox txtTre{"txtTre", tBox::textbox};
    Bottone cmdFine{"cmdFine", "Fine"};

    void ReadData() override {
        ++letture;
        if (allaLettura) {
            allaLettura();
        }
    }
    void SaveData() override {
        ++scritture;
        if (allaScrittura) {
            allaScrittura();
        }
    }
    void nascosta() override { ++nascoste; }

    int letture = 0;
    int scritture = 0;
    int nascoste = 0;
    std::function<void()> allaLettura;
    std::function<void()> allaScrittura;
};

}  // namespace kelvo::prove
