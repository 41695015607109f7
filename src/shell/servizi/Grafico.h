#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

class MenuChiavi;

/// The values of a text "1.5*2*3": parted by "*", with a decimal point or comma; what is no number counts as 0.
/// An empty text has none.
std::vector<double> valoriDaTesto(std::string_view testo);
/// The words of a text "A*B*C"; an empty text has none.
std::vector<std::string> etichetteDaTesto(std::string_view testo);

/// What a chart shows; a painter makes a picture of it.
class Grafico final : public Controllo {
public:
    /// `tornado`: bars that lie, to both sides of 0, one row a value named by the labels of `x`; the axis of `y` lies
    /// below them. Not to be mixed with the others.
    enum class Forma { barre, linee, torta, tornado };

    /// How the labels of an axis stand, and what becomes of them where they do not fit.
    enum class Posa {
        tacca,   ///< at a longer tick at the beginning of their steps; thinned out
        centro,  ///< in the middle of their steps; thinned out
        nome     ///< in the middle of their steps; all are shown, in more lines or shortened
    };

    /// An axis from `minimo` to `massimo`, with the values at its ticks or with labels. Where the two are equal it runs
    /// as far as the series do: an axis of values from 0 on, one of steps over all of them. An axis of bars always
    /// holds 0, one of steps all steps.
    struct Asse {
        std::string titolo{};
        double minimo = 0.0;
        double massimo = 0.0;
        /// Ticks at equal distances, the first at the beginning, the last at the end. 0: at round values on an axis
        /// that shows values, else at the labels alone.
        int tacche = 0;
        std::vector<std::string> etichette{};  ///< empty for the values at the ticks
        /// Steps of the series from one label to the next, the first at the beginning of the axis; 0 for labels at
        /// equal distances from the beginning to the end.
        double passiPerEtichetta = 0.0;
        Posa posa = Posa::tacca;  ///< on the X axis
        friend bool operator==(const Asse&, const Asse&) = default;
    };

    /// Values in the order of the X axis, drawn alike.
    struct Serie {
        std::string nome{};
        Forma forma = Forma::barre;
        Colore colore{};
        std::vector<double> valori{};
        std::vector<std::string> testi{};  ///< labels of the values; as many as values, or empty for no labels
        std::vector<double> ascisse{};     ///< places on the X axis; empty for one step of 1 a value, from 0 on
        /// A colour for each value (bars and slices). Empty: bars have the one above, slices those of the categories.
        std::vector<Colore> colori{};
        friend bool operator==(const Serie&, const Serie&) = default;
    };

    /// A value that the eye shall compare with: a dashed line across, with its text at its end.
    struct Soglia {
        std::string testo{};
        double valore = 0.0;
        Colore colore = tinta::errore;
        friend bool operator==(const Soglia&, const Soglia&) = default;
    };

    /// All that is shown. Slices are of the first series that has that form; their names are the labels of `x`.
    struct Contenuto {
        std::string titolo{};
        std::string nota{};  ///< stands below the chart
        Asse x{};
        Asse y{};
        std::vector<Serie> serie{};
        bool valori = false;   ///< the labels of the values are shown
        bool legenda = false;  ///< the names of the series are shown; those of slices always are
        std::vector<Soglia> soglie{};
        std::string invito = "Nessun dato";  ///< stands in the middle of a chart without values
        friend bool operator==(const Contenuto&, const Contenuto&) = default;
    };

    explicit Grafico(std::string nome) : Controllo(std::move(nome)) {}
    /// What the menu key and the right button bring up; null for nothing of its own.
    MenuChiavi* menuContesto = nullptr;
    /// The window's: appends what it has for every chart.
    std::function<MenuChiavi&()> menuCompleto;
    /// What is brought up: the entries of its own and behind them those of the window; null for nothing.
    MenuChiavi* menu() const { return menuCompleto ? &menuCompleto() : menuContesto; }
    /// It takes the keyboard for its menu.
    bool prendeFuoco() const override { return raggiungibile(); }

    const Contenuto& contenuto() const { return contenuto_; }
    /// Fault 5 where a series has other labels, places or colours than values, or an axis ends before it begins;
    /// fault 6 for a value or a threshold that is no finite number.
    void contenuto(Contenuto nuovo);
    /// Takes the series and their labels away; titles and axes stay.
    void svuota();
    /// Shows or hides the labels of the values.
    void mostraValori(bool valore);
    /// Draws all series as bars or as lines. Slices stay slices, lying bars stay lying.
    void forma(Forma valore);

    /// True where there is no value to draw.
    bool vuoto() const;
    /// The largest (smallest) value of all series; 0 where there is none.
    double massimo() const;
    double minimo() const;
    /// The chart in words, for who does not see it: number of values, the first of the smallest and of the largest with
    /// their labels.
    std::string descrizione() const;
    /// What stands on the X axis at a value of a series: its label, or its place where places are told; empty where
    /// nothing does.
    static std::string luogo(const Contenuto& contenuto, const Serie& serie, std::size_t valore);

private:
    Contenuto contenuto_;
};

}  // namespace kelvo
