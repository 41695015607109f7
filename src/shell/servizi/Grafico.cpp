#include "shell/servizi/Grafico.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

namespace {

void controllaSerie(const Grafico::Serie& serie, const std::string& nome) {
    const std::size_t quanti = serie.valori.size();
    const auto torna = [quanti](std::size_t altri) { return altri == 0 || altri == quanti; };
    if (!torna(serie.testi.size()) || !torna(serie.ascisse.size()) || !torna(serie.colori.size())) {
        throw Guasto(NumeroGuasto::chiamataNonValida, nome + ", serie '" + serie.nome + "'");
    }
    const auto finiti = [](const std::vector<double>& valori) {
        return std::all_of(valori.begin(), valori.end(), [](double v) { return std::isfinite(v); });
    };
    if (!finiti(serie.valori) || !finiti(serie.ascisse)) {
        throw Guasto(NumeroGuasto::overflow, nome + ", serie '" + serie.nome + "'");
    }
}

void controllaAsse(const Grafico::Asse& asse, const std::string& nome) {
    if (!std::isfinite(asse.minimo) || !std::isfinite(asse.massimo) || !std::isfinite(asse.passiPerEtichetta)) {
        throw Guasto(NumeroGuasto::overflow, nome + ", asse '" + asse.titolo + "'");
    }
    if (asse.massimo < asse.minimo || asse.tacche < 0 || !(asse.passiPerEtichetta >= 0.0)) {
        throw Guasto(NumeroGuasto::chiamataNonValida, nome + ", asse '" + asse.titolo + "'");
    }
}

/// A value as its label says it, else in its plain form.
std::string detto(const Grafico::Serie& serie, std::size_t i) {
    return serie.testi.empty() ? testoNumero(serie.valori[i]) : serie.testi[i];
}

std::string inParole(const Grafico::Contenuto& contenuto, const Grafico::Serie& serie) {
    const auto estremo = [&](const char* nome, std::vector<double>::const_iterator quale) {
        const auto i = static_cast<std::size_t>(quale - serie.valori.begin());
        const std::string dove = Grafico::luogo(contenuto, serie, i);
        return std::string(nome) + detto(serie, i) + (dove.empty() ? "" : " (" + dove + ")");
    };
    const auto minimo = std::min_element(serie.valori.begin(), serie.valori.end());
    const auto massimo = std::max_element(serie.valori.begin(), serie.valori.end());
    return (serie.nome.empty() ? "" : serie.nome + ": ") + std::to_string(serie.valori.size()) +
           (serie.valori.size() == 1 ? " valore" : " valori") + estremo(", minimo ", minimo) +
           estremo(", massimo ", massimo);
}

}  // namespace

void Grafico::contenuto(Contenuto nuovo) {
    controllaAsse(nuovo.x, nome());
    controllaAsse(nuovo.y, nome());
    for (const Serie& serie : nuovo.serie) {
        controllaSerie(serie, nome());
    }
    for (const Soglia& soglia : nuovo.soglie) {
        if (!std::isfinite(soglia.valore)) {
            throw Guasto(NumeroGuasto::overflow, nome() + ", soglia '" + soglia.testo + "'");
        }
    }
    if (!(nuovo == contenuto_)) {
        contenuto_ = std::move(nuovo);
        cambiato().emit();
    }
}

void Grafico::svuota() {
    cambia(contenuto_.serie, std::vector<Serie>{});
}

void Grafico::mostraValori(bool valore) {
    cambia(contenuto_.valori, valore);
}

void Grafico::forma(Forma valore) {
    std::vector<Serie> nuove = contenuto_.serie;
    for (Serie& serie : nuove) {
        if (serie.forma != Forma::torta && serie.forma != Forma::tornado) {
            serie.forma = valore;
        }
    }
    cambia(contenuto_.serie, nuove);
}

bool Grafico::vuoto() const {
    return std::all_of(contenuto_.serie.begin(), contenuto_.serie.end(),
                       [](const Serie& serie) { return serie.valori.empty(); });
}

double Grafico::massimo() const {
    double trovato = 0.0;
    bool primo = true;
    for (const Serie& serie : contenuto_.serie) {
        for (const double valore : serie.valori) {
            trovato = primo ? valore : std::max(trovato, valore);
            primo = false;
        }
    }
    return trovato;
}

double Grafico::minimo() const {
    double trovato = 0.0;
    bool primo = true;
    for (const Serie& serie : contenuto_.serie) {
        for (const double valore : serie.valori) {
            trovato = primo ? valore : std::min(trovato, valore);
            primo = false;
        }
    }
    return trovato;
}

std::string Grafico::luogo(const Contenuto& contenuto, const Serie& serie, std::size_t valore) {
    if (!serie.ascisse.empty()) {
        return testoNumero(serie.ascisse[valore]);
    }
    const Asse& x = contenuto.x;
    const bool unaPerValore =
        x.etichette.size() == serie.valori.size() && (x.passiPerEtichetta == 1.0 || x.passiPerEtichetta == 0.0);
    return unaPerValore ? x.etichette[valore] : std::string{};
}

std::string Grafico::descrizione() const {
    std::string testo;
    for (const Serie& serie : contenuto_.serie) {
        if (!serie.valori.empty()) {
            testo += (testo.empty() ? "" : "; ") + inParole(contenuto_, serie);
        }
    }
    return testo.empty() ? contenuto_.invito : testo;
}

}  // namespace kelvo
