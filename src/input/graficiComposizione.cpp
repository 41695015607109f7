#include "input/graficiComposizione.h"

#include "base/numeri.h"

namespace kelvo {

namespace {

Grafico::Contenuto contenuto(const std::string& valori, Grafico::Forma forma) {
    Grafico::Contenuto grafico;
    Grafico::Serie serie{.forma = forma, .valori = valoriDaTesto(valori)};
    for (const double valore : serie.valori) {
        serie.testi.push_back(formatta(valore, "#0.00"));
    }
    serie.colori.assign(tinta::categorie.begin(), tinta::categorie.end());
    serie.colori.resize(serie.valori.size(), tinta::principale);
    grafico.x = {.etichette = etichetteDaTesto(nomiCategorie), .passiPerEtichetta = 1.0, .posa = Grafico::Posa::nome};
    grafico.serie = {serie};
    grafico.valori = true;
    return grafico;
}

}  // namespace

Grafico::Contenuto tortaComposizione(const std::string& valori) {
    Grafico::Contenuto torta = contenuto(valori, Grafico::Forma::torta);
    torta.titolo = "Composizione del traffico [%]";
    return torta;
}

Grafico::Contenuto barreComposizione(const std::string& valori) {
    Grafico::Contenuto barre = contenuto(valori, Grafico::Forma::barre);
    barre.y = {.titolo = "[%]"};
    return barre;
}

}  // namespace kelvo
