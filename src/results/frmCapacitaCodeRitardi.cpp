#include "results/frmCapacitaCodeRitardi.h"

#include <filesystem>

#include "base/file.h"
#include "base/guasto.h"
#include "results/grandezze.h"
#include "results/inVigore.h"
#include "results/livelloServizio.h"
#include "results/tabellaVerifiche.h"
#include "shell/servizi/nonAncora.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Risultati: Verifiche prestazionali";
constexpr const char* primaCalcola = "Disponibile dopo Calcola";
}  // namespace testi

constexpr const char* chiaveFoglio = "keyExcel";
constexpr const char* metodoFoglio = "Esporta dati XLS:";
constexpr const char* fileFoglio = "xls\\Risultati.txt";
/// The level is told in red on white, not by a ground of its own.
constexpr Distintivo critico{colori::bianco, colori::livelloF, colori::livelloF};

/// Badge of a level, in the middle of its column.
OrnamentoCella ornamento(const Tabella& tabella, Posto posto) {
    OrnamentoCella ornamento;
    if (posto.colonna == colonnaLivello) {
        ornamento.allineamento = AllineamentoCella::centro;
        const std::string& livello = tabella.testo(posto.riga, posto.colonna);
        if (posto.riga > 0 && !livello.empty()) {
            ornamento.distintivo = livello == "F" ? critico : distintivoLivello(livello);
        }
    }
    return ornamento;
}

}  // namespace

frmCapacitaCodeRitardi::frmCapacitaCodeRitardi(const Contorno& contorno, const ServiziRisultati& servizi)
    : FinestraRisultati(contorno, servizi, "frmCapacitaCodeRitardi", testi::didascalia),
      Cmd_EXCEL("Cmd_EXCEL", "Excel") {
    std::vector<Controllo*> controlli{&ctlGrid, &Cmd_EXCEL};
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
    ctlToolbar.aggiungi({.chiave = chiaveFoglio,
                         .testo = "Excel",
                         .suggerimento = "Porta la tabella in un foglio di calcolo",
                         .icona = "Excel",
                         .abilitato = false,
                         .nota = servizi.foglio ? testi::primaCalcola : std::string{notaNonAncora}});
    Cmd_EXCEL.abilitato(false);
    Cmd_EXCEL.allaPressione = [this] { esportaFoglio(); };
    ctlGrid.ornamento = [this](Posto posto) { return ornamento(ctlGrid.tabella(), posto); };
}

void frmCapacitaCodeRitardi::attivata() {
    if (!conFigure()) {
        ctlGrid.tabella(tabellaVerificheVuota(rotonda()));
    }
    FinestraRisultati::attivata();
}

void frmCapacitaCodeRitardi::calcola() {
    simula();
    Tabella tabella = impostaTabellaVerifiche(rotonda());
    riempiTabellaVerifiche(rotonda(), tabella);
    ctlGrid.tabella(std::move(tabella));
    figureDi(rotonda().timbro());
    if (servizi().foglio) {
        Cmd_EXCEL.abilitato(true);
        ctlToolbar.abilita(chiaveFoglio, true);
        ctlToolbar.annota(chiaveFoglio, {});
    }
}

std::string frmCapacitaCodeRitardi::testoAnteprima() {
    return testoVerifiche(ctlGrid.tabella(), rotonda(), app().orologio.adesso());
}

std::string frmCapacitaCodeRitardi::motivoFlussi() const {
    return figureDelProgetto() ? notaFlussi(app()) : std::string{};
}

void frmCapacitaCodeRitardi::altroTasto(const std::string& chiave) {
    if (chiave == chiaveFoglio) {
        esportaFoglio();
    }
}

void frmCapacitaCodeRitardi::esportaFoglio() {
    traccia(metodoFoglio, [this] { apriFoglio(); });
}

void frmCapacitaCodeRitardi::apriFoglio() {
    const std::string percorso = app().theAmbiente.PercorsoProgramma(fileFoglio);
    std::error_code ignorato;  // a folder that cannot be made is told by the file that cannot be written
    std::filesystem::create_directories(percorsoDaTesto(percorso).parent_path(), ignorato);
    scriviEsportazione(app(), percorso, testoAnteprima());
    servizi().foglio(percorso);
}

}  // namespace kelvo
