#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Controllo.h"

namespace kelvo {

/// The values of a text "1.5*2*3": parted by "*", with a decimal point or comma; what is no number counts as 0.
/// An empty text has none.
std::vector<double> valoriDaTesto(std::string_view testo);
/// The words of a text "A*B*C"; an empty text has none.
std::vector<std::string> etichetteDaTesto(std::string_view testo);

/// What a chart shows; a painter makes a picture of it.
class Grafico final : public Controllo {
public:
    enum class Forma { barre, linee, torta };

    /// An axis: values from `minimo` to `massimo`, or labels.
    struct Asse {
        std::string titolo{};
        double minimo = 0.0;
        double massimo = 0.0;
        int tacche = 0;  ///< ticks at equal distances, the first at the beginning, the last at the end; 0 for none
        std::vector<std::string> etichette{};  ///< empty for the values at the ticks
        /// Steps of the series from one label to the next, the first at the beginning of the axis; 0 for labels at
        /// equal distances from the beginning to the end.
        double passiPerEtichetta = 0.0;
        friend bool operator==(const Asse&, const Asse&) = default;
    };

    /// Values in the order of the X axis, drawn alike.
    struct Serie {
        std::string nome{};
        Forma forma = Forma::barre;
        Colore colore{};
        std::vector<double> valori{};
        std::vector<std::string> testi{};  ///< labels of the values; as many as values, or empty for no labels
        std::vector<double> ascisse{};     ///< places on the X axis; empty for one step a value
        std::vector<Colore> colori{};      ///< a colour for each value (bars and slices); empty for the one above
        friend bool operator==(const Serie&, const Serie&) = default;
    };

    /// All that is shown.
    struct Contenuto {
        std::string titolo{};
        std::string nota{};  ///< stands below the chart
        Asse x{};
        Asse y{};
        std::vector<Serie> serie{};
        bool valori = false;   ///< the labels of the values are shown
        bool legenda = false;  ///< the names of the series are shown
        friend bool operator==(const Contenuto&, const Contenuto&) = default;
    };

    explicit Grafico(std::string nome) : Controllo(std::move(nome)) {}
    const Contenuto& contenuto() const { return contenuto_; }
    /// Fault 5 where a series has other labels, places or colours than values, or an axis ends before it begins;
    /// fault 6 for a value that is no finite number.
    void contenuto(Contenuto nuovo);
    /// Takes the series and their labels away; titles and axes stay.
    void svuota();
    /// Shows or hides the labels of the values.
    void mostraValori(bool valore);
    /// Draws all series as bars or as lines. Slices stay slices.
    void forma(Forma valore);

    /// True where there is no value to draw.
    bool vuoto() const;
    /// The largest (smallest) value of all series; 0 where there is none.
    double massimo() const;
    double minimo() const;

private:
    Contenuto contenuto_;
};

}  // namespace kelvo
