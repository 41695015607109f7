#include "shell/disposizioniAlbero.h"

#include <fmt/format.h>

#include <array>
#include <vector>

namespace kelvo {

namespace {

constexpr bool x = true;     // expanded
constexpr bool ramo = true;  // once a leg

// depth, key, text, picture, expanded, once a leg
constexpr std::array tavolaPerTipo{
    RigaAlbero{0, "keyMyProject", "Progetto", "Progetto", x},
    RigaAlbero{1, "keyRotonda", "Intersezione", "Progetto", x},
    RigaAlbero{2, "keyAnagraficaRotonda", "Anagrafica intersezione", "Progetto"},
    RigaAlbero{2, "keyAnagraficaProfessionista", "Anagrafica professionista", "Progetto"},
    RigaAlbero{1, "keyTempoModellazione", "Tempi di modellazione", "TempoModellazione"},
    RigaAlbero{1, "keyRami", "Geometria", "GeometriaFolder", x},
    RigaAlbero{2, "keyToponomasticaIntersezione", "Toponomastica Intersezione", "Geometria"},
    RigaAlbero{2, "keyRamo", "", "Geometria", false, ramo},
    RigaAlbero{1, "keyDatiTraffico", "Dati di traffico", "DatiTrafficoFolder", x},
    RigaAlbero{2, "keyDatiTraffico", "", "DatiTraffico", false, ramo},
    RigaAlbero{1, "keyMatriceSvolte", "Matrice delle svolte", "MatriceSvolte"},
    RigaAlbero{1, "keyComposizioneTraffico", "Composizione del traffico", "ComposizioneTrafficoFolder", x},
    RigaAlbero{2, "keyComposizioneTraffico", "", "ComposizioneTraffico", false, ramo},
    RigaAlbero{1, "keyOpzioni", "Opzioni", "Opzioni"},
    RigaAlbero{2, "keyAnalisiMarginale", "", "Opzioni1", false, ramo},
    RigaAlbero{1, "keyRisultati", "Risultati", "RisultatiFolder", x},
    RigaAlbero{2, "keyCodeRitardi_Out", "Verifiche prestazionali", "RisultatiFolder", x},
    RigaAlbero{3, "keyCodeRitardi_Out", "", "Risultati", false, ramo},
    RigaAlbero{2, "keyOttimizzazioneGeometrica", "Ottimizzazione Geometrica", "RisultatiFolder", x},
    RigaAlbero{3, "keyOttimizzazioneGeometrica", "", "Risultati", false, ramo},
    RigaAlbero{2, "keyCapacitaUltima_Out", "Capacità ultima", "Risultati"},
    RigaAlbero{1, "keyStrumenti", "Strumenti", "strumenti", x},
    RigaAlbero{2, "keyConfronti", "Analizzatore", "analizzatore"},
    RigaAlbero{2, "keyCorsiaDX", "Corsia preferenziale", "dx"},
    RigaAlbero{2, "keyAnalizzatore", "CheckUp Rotatoria", "check"},
    RigaAlbero{2, "keyterra", "Localizzazione geografica", "terra"},
};

constexpr std::array tavolaPerRamo{
    RigaAlbero{0, "keyMyProject", "Progetto", "Progetto", x},
    RigaAlbero{1, "keyRotonda", "Intersezione", "Progetto", x},
    RigaAlbero{2, "keyAnagraficaRotonda", "Anagrafica intersezione", "Progetto"},
    RigaAlbero{2, "keyAnagraficaProfessionista", "Anagrafica professionista", "Progetto"},
    RigaAlbero{1, "keyTempoModellazione", "Tempi di modellazione", "TempoModellazione"},
    RigaAlbero{1, "keyToponomasticaIntersezione", "Toponomastica Intersezione", "GeometriaFolder"},
    RigaAlbero{1, "keyRami", "", "GeometriaFolder", false, ramo},
    RigaAlbero{2, "keyRamo", "Geometria", "Geometria", false, ramo},
    RigaAlbero{2, "keyDatiTraffico", "Dati di traffico", "DatiTraffico", false, ramo},
    // The word stands misspelt in this layout alone, as users have always read it.
    RigaAlbero{2, "keyComposizioneTraffico", "Composizone traffico", "ComposizioneTraffico", false, ramo},
    RigaAlbero{2, "keyAnalisiMarginale", "Opzioni Analisi Marginale", "Opzioni1", false, ramo},
    RigaAlbero{1, "keyMatriceSvolte", "Matrice delle svolte", "MatriceSvolte"},
    RigaAlbero{1, "keyRisultati", "Risultati", "RisultatiFolder", x},
    RigaAlbero{2, "keyCodeRitardi_Out", "Verifiche prestazionali", "RisultatiFolder", x},
    RigaAlbero{3, "keyCodeRitardi_Out", "", "Risultati", false, ramo},
    RigaAlbero{2, "keyOttimizzazioneGeometrica", "Ottimizzazione Geometrica", "RisultatiFolder", x},
    RigaAlbero{3, "keyOttimizzazioneGeometrica", "", "Risultati", false, ramo},
    RigaAlbero{2, "keyCapacitaUltima_Out", "Capacità ultima", "Risultati"},
    RigaAlbero{1, "keyOpzioni", "Opzioni", "Opzioni"},
    RigaAlbero{1, "keyStrumenti", "Strumenti", "strumenti", x},
    RigaAlbero{2, "keyConfronti", "Analizzatore", "analizzatore"},
    RigaAlbero{2, "keyCorsiaDX", "Corsia preferenziale", "dx"},
    RigaAlbero{2, "keyAnalizzatore", "CheckUp Rotatoria", "check"},
    RigaAlbero{2, "keyterra", "Localizzazione geografica", "terra"},
};

/// Appends the rows of one build; the keys of the open ancestors stand in `antenati`, one a level.
void aggiungiNodo(Albero& albero, const RigaAlbero& riga, std::int16_t numero, const Rotonda& rotonda,
                  std::vector<std::string>& antenati) {
    const auto livello = static_cast<std::size_t>(riga.livello);
    antenati.resize(livello);
    const std::string chiave = numero == 0 ? std::string{riga.chiave} : fmt::format("{}{}", riga.chiave, numero);
    const std::string testo = riga.testo.empty() ? rotonda.Ramo(numero).Descrizione() : std::string{riga.testo};
    albero.aggiungi(livello == 0 ? std::string{} : antenati.back(), chiave, testo, std::string{riga.immagine},
                    riga.espanso);
    antenati.push_back(chiave);
}

}  // namespace

std::span<const RigaAlbero> alberoPerTipo() {
    return tavolaPerTipo;
}

std::span<const RigaAlbero> alberoPerRamo() {
    return tavolaPerRamo;
}

void costruisciAlbero(Albero& albero, std::span<const RigaAlbero> righe, const Rotonda& rotonda) {
    std::vector<std::string> antenati;
    for (std::size_t i = 0; i < righe.size();) {
        // A row of a leg is repeated with all that hangs on it.
        std::size_t fine = i + 1;
        while (righe[i].perRamo && fine < righe.size() && righe[fine].livello > righe[i].livello) {
            ++fine;
        }
        const std::int16_t ultimo = righe[i].perRamo ? rotonda.NumeroRami() : std::int16_t{0};
        for (std::int16_t numero = righe[i].perRamo ? 1 : 0; numero <= ultimo; ++numero) {
            for (const RigaAlbero& riga : righe.subspan(i, fine - i)) {
                aggiungiNodo(albero, riga, numero, rotonda, antenati);
            }
        }
        i = fine;
    }
}

void rinominaRamo(Albero& albero, std::span<const RigaAlbero> righe, char cifra, const std::string& nome) {
    for (const RigaAlbero& riga : righe) {
        const std::string chiave = std::string{riga.chiave} + cifra;
        if (riga.perRamo && riga.testo.empty() && albero.contiene(chiave)) {
            albero.testo(chiave, nome);
        }
    }
}

}  // namespace kelvo
