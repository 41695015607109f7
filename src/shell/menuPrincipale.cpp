#include "shell/menuPrincipale.h"

#include <fmt/format.h>

#include <string>

#include "shell/icone.h"

namespace kelvo {

namespace {

using enum TipoRiga;

// menu, level, kind, caption, key, picture, shortcut, mnemonic
constexpr std::array tavolaFile{
    RigaMenu{"mnuFile", 0, voce, "Nuovo...", "mnuNuovo", "Nuovo", "Ctrl+N", "N"},
    RigaMenu{"mnuFile", 0, voce, "Apri...", "mnuApri", "Apri", "Ctrl+O", "A"},
    RigaMenu{"mnuFile", 0, voce, "Salva...", "mnuSalva", "Salva", "Ctrl+S", "S"},
    RigaMenu{"mnuFile", 0, voce, "Chiudi", "mnuChiudi", "Chiudi", "Ctrl+W", "C"},
    RigaMenu{"mnuFile", 0, separatore, "-", "", "", "", ""},
    RigaMenu{"mnuFile", 0, voce, "Esci", "mnuEsci", "Esci", "Ctrl+Q", "E"},
};

constexpr std::array tavolaPerTipo{
    RigaMenu{"mnuDati", 0, sottomenu, "Progetto", "", "Progetto", "", "P"},
    RigaMenu{"mnuDati", 1, voce, "Anagrafica rotonda", "keyAnagraficaRotonda", "Progetto", "", ""},
    RigaMenu{"mnuDati", 1, voce, "Anagrafica professionista", "keyAnagraficaProfessionista", "Progetto", "", ""},
    RigaMenu{"mnuDati", 1, voce, "Tempi di modellazione", "keyTempoModellazione", "TempoModellazione", "", ""},
    RigaMenu{"mnuDati", 0, sottomenu, "Geometria", "", "GeometriaFolder", "", "G"},
    RigaMenu{"mnuDati", 1, voce, "Intersezione", "keyToponomasticaIntersezione", "Geometria", "", ""},
    RigaMenu{"mnuDati", 1, vocePerRamo, "", "keyRamo", "Geometria", "", ""},
    RigaMenu{"mnuDati", 0, sottomenu, "Dati di traffico", "", "DatiTrafficoFolder", "", "D"},
    RigaMenu{"mnuDati", 1, vocePerRamo, "", "keyDatiTraffico", "DatiTraffico", "", ""},
    RigaMenu{"mnuDati", 0, voce, "Matrice delle svolte", "keyMatriceSvolte", "MatriceSvolte", "", "M"},
    RigaMenu{"mnuDati", 0, sottomenu, "Composizione del traffico", "", "ComposizioneTrafficoFolder", "", "C"},
    RigaMenu{"mnuDati", 1, vocePerRamo, "", "keyComposizioneTraffico", "ComposizioneTraffico", "", ""},
    RigaMenu{"mnuOpzioni", 0, voce, "Generale", "keyOpzioni", "Opzioni", "", "G"},
    RigaMenu{"mnuOpzioni", 0, vocePerRamo, "", "keyAnalisiMarginale", "Opzioni1", "", ""},
    RigaMenu{"mnuRisultati", 0, sottomenu, "Capacità, code e ritardi", "", "RisultatiFolder", "", "C"},
    RigaMenu{"mnuRisultati", 1, voce, "Intersezione", "keyCodeRitardi_Out", "Risultati", "", ""},
    RigaMenu{"mnuRisultati", 1, vocePerRamo, "", "keyCodeRitardi_Out", "Risultati", "", ""},
    RigaMenu{"mnuRisultati", 0, sottomenu, "Ottimizzazione Geometrica", "", "RisultatiFolder", "", "O"},
    RigaMenu{"mnuRisultati", 1, vocePerRamo, "", "keyOttimizzazioneGeometrica", "Risultati", "", ""},
    RigaMenu{"mnuRisultati", 0, voce, "Capacità ultima", "keyCapacitaUltima_Out", "", "", "u"},
};

constexpr std::array tavolaPerRamo{
    RigaMenu{"mnuDati", 0, sottomenu, "Progetto", "", "Progetto", "", "P"},
    RigaMenu{"mnuDati", 1, voce, "Anagrafica rotonda", "keyAnagraficaRotonda", "Progetto", "", ""},
    RigaMenu{"mnuDati", 1, voce, "Anagrafica professionista", "keyAnagraficaProfessionista", "Progetto", "", ""},
    RigaMenu{"mnuDati", 1, voce, "Tempi di modellazione", "keyTempoModellazione", "TempoModellazione", "", ""},
    RigaMenu{"mnuDati", 1, voce, "Toponomastica intersezione", "keyToponomasticaIntersezione", "Geometria", "", ""},
    RigaMenu{"mnuDati", 0, sottomenuPerRamo, "", "", "GeometriaFolder", "", ""},
    RigaMenu{"mnuDati", 1, vocePerRamo, "Geometria", "keyRamo", "Geometria", "", ""},
    RigaMenu{"mnuDati", 1, vocePerRamo, "Dati Traffico", "keyDatiTraffico", "DatiTraffico", "", ""},
    RigaMenu{"mnuDati", 1, vocePerRamo, "Composizione traffico", "keyComposizioneTraffico", "ComposizioneTraffico", "",
             ""},
    RigaMenu{"mnuDati", 1, vocePerRamo, "Opzioni Analisi Marginale", "keyAnalisiMarginale", "Opzioni1", "", ""},
    RigaMenu{"mnuDati", 0, voce, "Matrice delle svolte", "keyMatriceSvolte", "MatriceSvolte", "", "M"},
    RigaMenu{"mnuOpzioni", 0, voce, "Generale", "keyOpzioni", "Opzioni", "", "G"},
    RigaMenu{"mnuRisultati", 0, sottomenu, "Capacità, code e ritardi", "", "RisultatiFolder", "", "C"},
    RigaMenu{"mnuRisultati", 1, voce, "Intersezione", "keyCodeRitardi_Out", "Risultati", "", ""},
    RigaMenu{"mnuRisultati", 1, vocePerRamo, "", "keyCodeRitardi_Out", "Risultati", "", ""},
    RigaMenu{"mnuRisultati", 0, sottomenu, "Ottimizzazione Geometrica", "", "RisultatiFolder", "", "O"},
    RigaMenu{"mnuRisultati", 1, vocePerRamo, "", "keyOttimizzazioneGeometrica", "Risultati", "", ""},
    RigaMenu{"mnuRisultati", 0, voce, "Capacità ultima", "keyCapacitaUltima_Out", "", "", "u"},
};

constexpr std::array tavolaCoda{
    RigaMenu{"mnuStrumenti", 0, voce, "Analizzatore", "keyConfronti", "Analizzatore", "", "A"},
    RigaMenu{"mnuStrumenti", 0, voce, "Corsia preferenziale", "keyCorsiaDX", "Dx", "", "C"},
    RigaMenu{"mnuStrumenti", 0, voce, "Check Rotatoria", "keyAnalizzatore", "Check", "", "R"},
    RigaMenu{"mnuStrumenti", 0, voce, "Localizzazione geografica", "keyterra", "terra", "", "L"},
    RigaMenu{"mnuRisultati", 0, separatore, "-", "", "", "", ""},
    RigaMenu{"mnuRisultati", 0, voce, "Compila relazione", "mnuCompilaRelazione", "", "", "r"},
    RigaMenu{"mnuKelvoCAD", 0, voce, "KelvoCAD", "mnuKelvoCAD2", "KelvoCAD", "", "K"},
    RigaMenu{"mnuHelp", 0, voce, "Guida in linea", "mnuGuidaInLinea", "Help", "Shift+F1", "G"},
    RigaMenu{"mnuHelp", 0, sottomenu, "Vaq on Line", "", "", "", "V"},
    RigaMenu{"mnuHelp", 1, voce, "Home", "mnuHome", "Help", "", "H"},
    RigaMenu{"mnuHelp", 1, voce, "Altri prodotti", "mnuAltriProdotti", "Help", "", "A"},
    RigaMenu{"mnuHelp", 0, separatore, "-", "", "", "", ""},
    RigaMenu{"mnuHelp", 0, voce, "Informazioni sul programma", "mnuInfoSulProgramma", "", "", "I"},
};

constexpr std::array tavolaPropria{
    RigaMenu{"mnuKelvoCAD", 0, separatore, "-", "mnuXSeparatoreCAD", "", "", ""},
    RigaMenu{"mnuKelvoCAD", 0, voce, "Collegamento AutoCAD...", "mnuXCollegamentoAutoCAD", "", "", "C"},
    RigaMenu{"mnuKelvoCAD", 0, voce, "Informazioni su KelvoCAD", "mnuXInformazioniKelvoCAD", "", "", "I"},
    RigaMenu{"mnuKelvoCAD", 0, voce, "Esporta DXF...", "mnuXEsportaDXF", "", "", "E"},
};

/// Appends the rows of one build to their menus.
class Costruttore {
public:
    Costruttore(MenuChiavi& menu, const Rotonda& rotonda) : menu_(menu), rotonda_(rotonda) {}

    void aggiungi(std::span<const RigaMenu> righe) {
        while (!righe.empty()) {
            const RigaMenu& riga = righe.front();
            std::size_t figlie = 1;
            while (figlie < righe.size() && righe[figlie].livello > riga.livello) {
                ++figlie;
            }
            const std::span<const RigaMenu> contenuto = righe.subspan(1, figlie - 1);
            if (riga.tipo == sottomenuPerRamo) {
                for (std::int16_t ramo = 1; ramo <= rotonda_.NumeroRami(); ++ramo) {
                    const std::string chiave = una(std::string{riga.menu}, riga, ramo);
                    for (const RigaMenu& figlia : contenuto) {
                        una(chiave, figlia, ramo);
                    }
                }
            } else {
                const std::string chiave = alLivello(std::string{riga.menu}, riga);
                for (const RigaMenu& figlia : contenuto) {
                    alLivello(chiave, figlia);
                }
            }
            righe = righe.subspan(figlie);
        }
    }

private:
    /// Appends a row, once or for every leg; answers the key of the last entry.
    std::string alLivello(const std::string& padre, const RigaMenu& riga) {
        if (riga.tipo != vocePerRamo) {
            return una(padre, riga, 0);
        }
        std::string chiave;
        for (std::int16_t ramo = 1; ramo <= rotonda_.NumeroRami(); ++ramo) {
            chiave = una(padre, riga, ramo);
        }
        return chiave;
    }

    /// Appends one entry, of a leg or, with 0, of none.
    std::string una(const std::string& padre, const RigaMenu& riga, std::int16_t ramo) {
        MenuChiavi::Voce v;
        v.padre = padre;
        v.testo = ramo != 0 && riga.testo.empty() ? rotonda_.Ramo(ramo).Descrizione() : std::string{riga.testo};
        v.chiave =
            ramo != 0 && !riga.chiave.empty() ? fmt::format("{}{}", riga.chiave, ramo) : std::string{riga.chiave};
        v.icona = riga.icona.empty() ? -1 : plGetIconIndex(riga.icona);
        v.scorciatoia = riga.scorciatoia;
        v.mnemonico = riga.mnemonico;
        return menu_.aggiungi(v);
    }

    MenuChiavi& menu_;
    const Rotonda& rotonda_;
};

}  // namespace

std::span<const RigaMenu> righeFile() {
    return tavolaFile;
}

std::span<const RigaMenu> righePerTipo() {
    return tavolaPerTipo;
}

std::span<const RigaMenu> righePerRamo() {
    return tavolaPerRamo;
}

std::span<const RigaMenu> righeCoda() {
    return tavolaCoda;
}

std::span<const RigaMenu> righePropriePerProgetto() {
    return tavolaPropria;
}

std::string_view scorciatoiaDiVoce(std::string_view chiave) {
    for (const std::span<const RigaMenu> righe : {righeFile(), righePerTipo(), righePerRamo(), righeCoda()}) {
        for (const RigaMenu& riga : righe) {
            if (!chiave.empty() && riga.chiave == chiave) {
                return riga.scorciatoia;
            }
        }
    }
    return {};
}

void aggiungiMenuPrincipali(MenuChiavi& menu) {
    for (const MenuPrincipale& m : menuPrincipali) {
        menu.aggiungiMenu(std::string{m.chiave}, std::string{m.testo});
        menu.mnemonico(m.chiave, std::string{m.mnemonico});
    }
}

void aggiungiRighe(MenuChiavi& menu, std::span<const RigaMenu> righe, const Rotonda& rotonda) {
    Costruttore(menu, rotonda).aggiungi(righe);
}

}  // namespace kelvo
