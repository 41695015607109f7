#include <algorithm>
#include <array>
#include <cmath>

#include "cad/scrittoreDxf.h"
#include "pianta/curve.h"

namespace kelvo::dxf {

namespace {

struct VoceLinea {
    std::string_view nome;
    std::string_view descrizione;
    std::array<double, 4> tratti;  ///< dashes, and gaps below 0; in metres
    int quanti = 0;
};

/// In the order of `TipoLinea`.
constexpr std::array tipiLinea{
    VoceLinea{"Continuous", "", {}, 0},
    VoceLinea{"KELVO-TRATTEGGIATA", "__ __ __", {1.5, -1.5, 0, 0}, 2},
    VoceLinea{"KELVO-TRATTO-PUNTO", "____ . ____", {3.0, -0.75, 0.25, -0.75}, 4},
};

/// The section in the making.
class Tavole {
public:
    Tavole(Scrittore& file, const Documento& documento, const std::vector<QuotaScritta>& quote)
        : corpo_(file), documento_(documento), quote_(quote) {}

    void scrivi() {
        corpo_.apri("TABLES");
        vista();
        linee();
        layer();
        stili();
        tavola("VIEW", Maniglia::tavolaVedute, 0);
        fineTavola();
        tavola("UCS", Maniglia::tavolaSistemi, 0);
        fineTavola();
        tavola("APPID", Maniglia::tavolaApplicazioni, 1);
        voce("APPID", corpo_.nuova(), Maniglia::tavolaApplicazioni, "AcDbRegAppTableRecord", "ACAD");
        fineTavola();
        stiliQuote();
        recordBlocchi();
        corpo_.chiudi();
    }

private:
    void tavola(std::string_view nome, Maniglia maniglia, std::size_t voci) {
        corpo_.gruppo(0, "TABLE");
        corpo_.gruppo(2, nome);
        corpo_.gruppo(5, maniglia);
        corpo_.gruppo(330, Maniglia::nessuna);
        corpo_.gruppo(100, "AcDbSymbolTable");
        corpo_.gruppo(70, static_cast<int>(voci));
    }

    void voce(std::string_view tipo, Maniglia maniglia, Maniglia tavola, std::string_view classe,
              std::string_view nome) {
        corpo_.gruppo(0, tipo);
        corpo_.gruppo(tipo == "DIMSTYLE" ? 105 : 5, maniglia);
        corpo_.gruppo(330, tavola);
        corpo_.gruppo(100, "AcDbSymbolTableRecord");
        corpo_.gruppo(100, classe);
        corpo_.gruppo(2, nome);
        if (tipo != "BLOCK_RECORD") {
            corpo_.gruppo(70, 0);
        }
    }

    void fineTavola() { corpo_.gruppo(0, "ENDTAB"); }

    /// All of the drawing in sight when the file is opened.
    void vista() {
        const pianta::Riquadro& e = documento_.estensione;
        constexpr double schermo = 1.6;
        constexpr double aria = 1.05;
        tavola("VPORT", Maniglia::tavolaViste, 1);
        voce("VPORT", corpo_.nuova(), Maniglia::tavolaViste, "AcDbViewportTableRecord", "*Active");
        corpo_.punto2d(10, {0, 0});
        corpo_.punto2d(11, {1, 1});
        corpo_.punto2d(12, (e.minimo + e.massimo) * 0.5);
        corpo_.punto2d(13, {0, 0});
        corpo_.punto2d(14, {1, 1});
        corpo_.punto2d(15, {1, 1});
        corpo_.gruppo(16, 0.0);
        corpo_.gruppo(26, 0.0);
        corpo_.gruppo(36, 1.0);
        corpo_.punto(17, {});
        corpo_.gruppo(40, aria * std::max({1.0, e.altezza(), e.larghezza() / schermo}));
        corpo_.gruppo(41, schermo);
        corpo_.gruppo(42, 50.0);
        corpo_.gruppo(43, 0.0);
        corpo_.gruppo(44, 0.0);
        corpo_.gruppo(50, 0.0);
        corpo_.gruppo(51, 0.0);
        constexpr std::array interi{std::pair{71, 0}, std::pair{72, 1000}, std::pair{73, 1}, std::pair{74, 3},
                                    std::pair{75, 0}, std::pair{76, 0},    std::pair{77, 0}, std::pair{78, 0}};
        for (const auto& [codice, valore] : interi) {
            corpo_.gruppo(codice, valore);
        }
        fineTavola();
    }

    void linee() {
        tavola("LTYPE", Maniglia::tavolaLinee, tipiLinea.size() + 2);
        const auto una = [&](const VoceLinea& linea) {
            voce("LTYPE", corpo_.nuova(), Maniglia::tavolaLinee, "AcDbLinetypeTableRecord", linea.nome);
            corpo_.gruppo(3, linea.descrizione);
            corpo_.gruppo(72, 65);
            corpo_.gruppo(73, linea.quanti);
            double lunga = 0;
            for (const double tratto : linea.tratti) {
                lunga += std::abs(tratto);
            }
            corpo_.gruppo(40, lunga);
            for (int k = 0; k < linea.quanti; ++k) {
                corpo_.gruppo(49, linea.tratti.at(static_cast<std::size_t>(k)));
                corpo_.gruppo(74, 0);
            }
        };
        una({"ByBlock", "", {}, 0});
        una({"ByLayer", "", {}, 0});
        for (const VoceLinea& linea : tipiLinea) {
            una(linea);
        }
        fineTavola();
    }

    void layer() {
        tavola("LAYER", Maniglia::tavolaLayer, documento_.layer.size() + 2);
        const auto uno = [&](const Layer& l, bool stampato) {
            voce("LAYER", corpo_.nuova(), Maniglia::tavolaLayer, "AcDbLayerTableRecord", l.nome);
            corpo_.gruppo(62, l.spento ? -l.colore : l.colore);
            corpo_.gruppo(6, tipiLinea.at(static_cast<std::size_t>(l.linea)).nome);
            if (!stampato) {
                corpo_.gruppo(290, 0);
            }
            corpo_.gruppo(370, l.centesimi);
            corpo_.gruppo(390, Maniglia::stampaNormale);
        };
        constexpr int spessoreUsuale = -3;
        uno({.nome = "0", .centesimi = spessoreUsuale}, true);
        uno({.nome = layerPunti, .centesimi = spessoreUsuale}, false);
        for (const Layer& l : documento_.layer) {
            uno(l, true);
        }
        fineTavola();
    }

    void stili() {
        tavola("STYLE", Maniglia::tavolaStili, 2);
        const auto uno = [&](std::string_view nome, Maniglia maniglia) {
            voce("STYLE", maniglia, Maniglia::tavolaStili, "AcDbTextStyleTableRecord", nome);
            corpo_.gruppo(40, 0.0);
            corpo_.gruppo(41, 1.0);
            corpo_.gruppo(50, 0.0);
            corpo_.gruppo(71, 0);
            corpo_.gruppo(42, documento_.stile.altezzaTesto);
            corpo_.gruppo(3, "arial.ttf");
            corpo_.gruppo(4, "");
        };
        uno("Standard", corpo_.nuova());
        uno(stileTesto, Maniglia::stileDelTesto);
        fineTavola();
    }

    void stiliQuote() {
        tavola("DIMSTYLE", Maniglia::tavolaQuote, 2);
        corpo_.gruppo(100, "AcDbDimStyleTable");
        corpo_.gruppo(71, 0);
        const StileQuote& s = documento_.stile;
        const auto uno = [&](std::string_view nome, Maniglia maniglia) {
            voce("DIMSTYLE", maniglia, Maniglia::tavolaQuote, "AcDbDimStyleTableRecord", nome);
            corpo_.gruppo(40, 1.0);
            corpo_.gruppo(41, s.freccia);
            corpo_.gruppo(42, 0.3 * s.altezzaTesto);
            corpo_.gruppo(44, 0.5 * s.altezzaTesto);
            corpo_.gruppo(140, s.altezzaTesto);
            corpo_.gruppo(144, 1.0);
            corpo_.gruppo(147, 0.5 * s.altezzaTesto);
            // Texts along their lines, two decimals after a comma, with their zeros.
            constexpr std::array interi{std::pair{73, 0},  std::pair{74, 0},  std::pair{77, 0},  std::pair{78, 0},
                                        std::pair{79, 0},  std::pair{172, 1}, std::pair{178, 0}, std::pair{179, 2},
                                        std::pair{271, 2}, std::pair{275, 0}, std::pair{277, 2}, std::pair{278, 44},
                                        std::pair{279, 2}, std::pair{289, 3}};
            for (const auto& [codice, valore] : interi) {
                corpo_.gruppo(codice, valore);
            }
            corpo_.gruppo(340, Maniglia::stileDelTesto);
        };
        uno("Standard", corpo_.nuova());
        uno(stileQuote, Maniglia::stileDelleQuote);
        fineTavola();
    }

    void recordBlocchi() {
        tavola("BLOCK_RECORD", Maniglia::tavolaBlocchi, quote_.size() + 2);
        const auto uno = [&](std::string_view nome, Maniglia maniglia, Maniglia presentazione) {
            voce("BLOCK_RECORD", maniglia, Maniglia::tavolaBlocchi, "AcDbBlockTableRecord", nome);
            corpo_.gruppo(340, presentazione);
            corpo_.gruppo(70, 6);
            corpo_.gruppo(280, 1);
            corpo_.gruppo(281, 0);
        };
        uno("*Model_Space", Maniglia::bloccoModello, Maniglia::presentazioneModello);
        uno("*Paper_Space", Maniglia::bloccoCarta, Maniglia::presentazioneCarta);
        for (const QuotaScritta& q : quote_) {
            uno(q.blocco, q.record, Maniglia::nessuna);
        }
        fineTavola();
    }

    Scrittore& corpo_;
    const Documento& documento_;
    const std::vector<QuotaScritta>& quote_;
};

}  // namespace

void scriviTavole(Scrittore& file, const Documento& documento, const std::vector<QuotaScritta>& quote) {
    Tavole(file, documento, quote).scrivi();
}

}  // namespace kelvo::dxf
