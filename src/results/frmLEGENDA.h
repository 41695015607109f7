#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "results/grandezze.h"
#include "shell/servizi/CellaGriglia.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/scelte.h"

namespace kelvo {

/// A level of service in the legend.
struct RigaLegenda {
    std::string_view testo;  ///< the row as a whole
    std::string_view lettera;
    std::string_view limiti;  ///< of the delay, s/veic
};

/// A colour of the table and what it says.
struct ChiaveLegenda {
    std::string_view testo;
    std::string_view esempio;  ///< what the sample reads; may be empty
    Colore sfondo{};
    Colore inchiostro{};
    OrnamentoCella::Segno segno = OrnamentoCella::Segno::nessuno;
};

inline constexpr std::array<RigaLegenda, 6> righeLegenda{{
    {"A           = 10", "A", "= 10"},
    {"B         10 ÷ 15", "B", "10 ÷ 15"},
    {"C         15 ÷ 25", "C", "15 ÷ 25"},
    {"D         25 ÷ 35", "D", "25 ÷ 35"},
    {"E         35 ÷ 50", "E", "35 ÷ 50"},
    {"F           > 50", "F", "> 50"},
}};

inline constexpr std::array<ChiaveLegenda, 5> chiaviLegenda{{
    {"Valore MINIMO", "3,4", colori::estremo, colori::minimo, OrnamentoCella::Segno::minimo},
    {"Valore MASSIMO", "71,4", colori::estremo, colori::massimo, OrnamentoCella::Segno::massimo},
    {"Valore INFERIORE", "", colori::sottoSoglia, colori::nero},
    {"Valore SUPERIORE", "", colori::sopraSoglia, colori::nero},
    {"Valore CRITICO", "F", colori::estremo, colori::critico},
}};

/// Legend of the per-entry table: levels of service, and the colour keys while the thresholds are in view.
class frmLEGENDA final : public Finestra {
public:
    explicit frmLEGENDA(const Contorno& contorno);

    Etichetta lblLOS;                         ///< heading of the levels
    std::array<Etichetta, 6> lblLivelli;      ///< in the order of `righeLegenda`
    std::array<Etichetta, 5> lblColori;       ///< in the order of `chiaviLegenda`
    std::array<CampioneColore, 5> ctlColori;  ///< their grounds
    Bottone cmdChiudi;
    /// The user closes the window; set by whoever shows it.
    std::function<void()> allaChiusura;

    /// Shows or hides the colour keys.
    void mostraColori(bool valore);
};

}  // namespace kelvo
