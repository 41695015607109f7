#include "cad/disegnoDxf.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/testo.h"
#include "base/versione.h"
#include "model/Rotonda.h"
#include "pianta/curve.h"

namespace kelvo::dxf {

namespace {

using pianta::Ruolo;

/// Capitals over the size of the type.
constexpr double maiuscole = 0.7;

const VoceLayer& voce(NomeLayer nome) {
    return vociLayer.at(static_cast<std::size_t>(nome));
}

std::string_view nome(NomeLayer quale) {
    return voce(quale).layer.nome;
}

/// Layer of a shape by its role; nothing for what is no part of a drawing.
std::optional<NomeLayer> layerDi(Ruolo ruolo) {
    switch (ruolo) {
        case Ruolo::carreggiata:
            return NomeLayer::carreggiata;
        case Ruolo::anello:
            return NomeLayer::anello;
        case Ruolo::corona:
            return NomeLayer::corona;
        case Ruolo::isola:
            return NomeLayer::isolaCentrale;
        case Ruolo::ingresso:
            return NomeLayer::ingressi;
        case Ruolo::uscita:
            return NomeLayer::uscite;
        case Ruolo::isolaDivisionale:
            return NomeLayer::isoleDivisionali;
        case Ruolo::cordolo:
            return NomeLayer::cordoli;
        case Ruolo::cerchioInscritto:
            return NomeLayer::cerchioInscritto;
        case Ruolo::lineaDarePrecedenza:
        case Ruolo::dentiPrecedenza:
            return NomeLayer::darePrecedenza;
        case Ruolo::asse:
            return NomeLayer::assi;
        case Ruolo::attraversamento:
            return NomeLayer::attraversamenti;
        case Ruolo::freccia:
            return NomeLayer::frecce;
        case Ruolo::frecciaAnello:
            return NomeLayer::frecceAnello;
        case Ruolo::lettera:
            return NomeLayer::lettere;
        case Ruolo::nome:
            return NomeLayer::nomi;
        case Ruolo::nota:
            return NomeLayer::note;
        default:
            return std::nullopt;
    }
}

/// Layer of the fill of an area; nothing where it has none.
std::optional<NomeLayer> riempimento(Ruolo ruolo) {
    switch (ruolo) {
        case Ruolo::corona:
        case Ruolo::isola:
        case Ruolo::isolaDivisionale:
            return NomeLayer::campitureIsole;
        case Ruolo::dentiPrecedenza:
        case Ruolo::attraversamento:
        case Ruolo::freccia:
        case Ruolo::frecciaAnello:
            return NomeLayer::campitureSegnaletica;
        default:
            return std::nullopt;
    }
}

/// The drawing in the making.
class Disegnatore {
public:
    Disegnatore(const Scelte& scelte, Documento& documento) : scelte_(scelte), documento_(documento) {}

    void aree(const pianta::Pianta& pianta) {
        for (const pianta::Area& area : pianta.aree) {
            const auto layer = riempimento(area.ruolo);
            if (layer && scelte_.contiene(Gruppo::campiture) && mostrata(area.ruolo)) {
                Campitura campitura{.layer = nome(*layer), .contorni = {area.contorno}};
                if (!area.foro.empty()) {
                    campitura.contorni.push_back(area.foro);
                }
                documento_.entita.emplace_back(campitura);
            }
        }
        for (const pianta::Area& area : pianta.aree) {
            contorno(area.ruolo, area.contorno, true);
            // The inner border of the apron is the central island's own.
            if (area.ruolo != Ruolo::corona) {
                contorno(area.ruolo, area.foro, true);
            }
        }
    }

    void linee(const pianta::Pianta& pianta) {
        for (const pianta::Linea& linea : pianta.linee) {
            contorno(linea.ruolo, linea.tracciato, linea.chiusa);
        }
    }

    void testi(const pianta::Pianta& pianta) {
        for (const pianta::Testo& testo : pianta.testi) {
            if (!mostrata(testo.ruolo)) {
                continue;
            }
            const std::string_view layer = nome(*layerDi(testo.ruolo));
            documento_.entita.emplace_back(Scritta{.layer = layer,
                                                   .testo = testo.testo,
                                                   .punto = testo.punto,
                                                   .altezza = maiuscole * testo.altezza,
                                                   .allineamento = testo.allineamento});
            if (testo.disco > 0) {
                documento_.entita.emplace_back(Polilinea{
                    .layer = layer, .tracciato = pianta::circonferenza(testo.punto, testo.disco), .chiusa = true});
            }
        }
    }

    /// A box below the plan, as wide as its words ask.
    void cartiglio(const Cartiglio& parole, double altezza) {
        const std::vector<std::string> righe = righeCartiglio(parole);
        const double h = altezza;
        const double riga = 1.9 * h;
        const double margine = 1.2 * h;
        pianta::Riquadro& estensione = documento_.estensione;
        const Punto alto = estensione.minimo + Punto{margine, -margine};
        double larga = 0;
        double y = alto.y - margine - h / 2;
        for (const std::string& testo : righe) {
            documento_.entita.emplace_back(Scritta{.layer = nome(NomeLayer::cartiglio),
                                                   .testo = testo,
                                                   .punto = {alto.x + margine, y},
                                                   .altezza = h,
                                                   .allineamento = Allineamento::sinistra});
            constexpr double lettera = 0.85;  // width of a letter over the height of the capitals, at most, about
            larga = std::max(larga, lettera * h * static_cast<double>(lunghezza(testo)));
            y -= riga;
        }
        const Punto basso{alto.x + larga + 2 * margine, y + riga - margine - h / 2};
        documento_.entita.emplace_back(
            Polilinea{.layer = nome(NomeLayer::cartiglio),
                      .tracciato = {{alto, 0}, {{basso.x, alto.y}, 0}, {basso, 0}, {{alto.x, basso.y}, 0}},
                      .chiusa = true});
        estensione.minimo.y = basso.y - margine;
        estensione.massimo.x = std::max(estensione.massimo.x, basso.x + margine);
    }

private:
    static std::vector<std::string> righeCartiglio(const Cartiglio& parole) {
        std::vector<std::string> righe;
        const auto riga = [&](const char* voce, const std::string& testo) {
            constexpr std::size_t massimo = 90;
            if (!rifila(testo).empty()) {
                righe.push_back(fmt::format("{}{}", voce, accorciato(rifila(testo), massimo)));
            }
        };
        riga("", parole.titolo);
        riga("Luogo: ", parole.luogo);
        riga("Progettista: ", parole.progettista);
        riga("Data: ", parole.data);
        riga("", fmt::format("Kelvo {} - unità di misura: metri", versione()));
        return righe;
    }

    bool mostrata(Ruolo ruolo) const {
        const auto layer = layerDi(ruolo);
        return layer && scelte_.contiene(voce(*layer).gruppo);
    }

    void contorno(Ruolo ruolo, const Tracciato& tracciato, bool chiuso) {
        if (!tracciato.empty() && mostrata(ruolo)) {
            documento_.entita.emplace_back(
                Polilinea{.layer = nome(*layerDi(ruolo)), .tracciato = tracciato, .chiusa = chiuso});
        }
    }

    const Scelte& scelte_;
    Documento& documento_;
};

/// Texts beyond the plan may be the dimensions' own.
void comprendi(pianta::Riquadro& estensione, const Quotatura& quota, double altezza) {
    const double mezza = altezza * static_cast<double>(lunghezza(quota.testo) + 4) / 2;
    for (const Punto p : {quota.testoA - Punto{mezza, mezza}, quota.testoA + Punto{mezza, mezza}}) {
        estensione.minimo = {std::min(estensione.minimo.x, p.x), std::min(estensione.minimo.y, p.y)};
        estensione.massimo = {std::max(estensione.massimo.x, p.x), std::max(estensione.massimo.y, p.y)};
    }
}

}  // namespace

double altezzaQuote(double R) {
    constexpr double suRaggio = 0.03;
    return std::clamp(suRaggio * R, 0.35, 1.5);
}

bool contieneProgetto(const std::string& percorso) {
    Rotonda progetto;
    std::string ignorato;
    bool letto = false;
    progetto.Load(percorso, ignorato, letto);
    return letto;
}

Cartiglio cartiglioDi(const Rotonda& rotonda) {
    std::string luogo;
    for (const std::string& parte : {rotonda.Localita(), rotonda.Comune()}) {
        luogo += (luogo.empty() || parte.empty() ? "" : ", ") + parte;
    }
    if (!rotonda.Provincia().empty()) {
        luogo += fmt::format("{}({})", luogo.empty() ? "" : " ", rotonda.Provincia());
    }
    return {.titolo = rotonda.Titolo().empty() ? rotonda.NomeFile() : rotonda.Titolo(),
            .luogo = luogo,
            .progettista = rotonda.NomeProfessionista(),
            .data = testoData(rotonda.Data())};
}

Documento disegno(const pianta::DatiPianta& dati, const Cartiglio& cartiglio, const Scelte& scelte) {
    const bool conTesti = scelte.contiene(Gruppo::testi);
    constexpr double testo = 0.02;
    const pianta::Pianta pianta =
        pianta::costruisci(dati, {.altezzaTesto = testo, .nomi = conTesti, .lettere = conTesti});
    Documento documento;
    for (const VoceLayer& v : vociLayer) {
        const bool diSegnaletica = &v == &voce(NomeLayer::campitureSegnaletica);
        if (scelte.contiene(v.gruppo) && (!diSegnaletica || scelte.contiene(Gruppo::segnaletica))) {
            documento.layer.push_back(v.layer);
        }
    }
    const double altezza = altezzaQuote(pianta.R);
    documento.stile = {.altezzaTesto = altezza, .freccia = altezza};
    documento.estensione = pianta.vista;
    Disegnatore disegnatore(scelte, documento);
    disegnatore.aree(pianta);
    disegnatore.linee(pianta);
    if (scelte.contiene(Gruppo::quote)) {
        documento.quote = quotature(dati, pianta, altezza);
        for (const Quotatura& quota : documento.quote) {
            comprendi(documento.estensione, quota, altezza);
        }
    }
    disegnatore.testi(pianta);
    if (scelte.contiene(Gruppo::cartiglio)) {
        disegnatore.cartiglio(cartiglio, maiuscole * pianta.altezzaTesto);
    }
    return documento;
}

}  // namespace kelvo::dxf
