#include "results/frmCapacitaCodeRitardi.h"

#include <array>
#include <filesystem>
#include <initializer_list>
#include <utility>

#include "base/file.h"
#include "base/guasto.h"
#include "results/grandezze.h"
#include "results/inVigore.h"
#include "results/livelloServizio.h"
#include "results/risultatiProgetto.h"
#include "results/sintesiNodo.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Risultati: Verifiche prestazionali";
constexpr const char* primaCalcola = "Disponibile dopo Calcola";
constexpr const char* fileSintesi = "Sintesi.txt";
constexpr const char* scegliCella = "Il livello di servizio di ogni ingresso, segmento per segmento.";
}  // namespace testi

constexpr std::array pagineAiuto{"SintesiNodo.htm", "MappaLivelli.htm"};
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
      ctlTab("ctlTab", {"Risultati", "Sintesi nodo", "Mappa dei livelli"}),
      Cmd_EXCEL("Cmd_EXCEL", "Excel"),
      lblExcel("lblExcel", testi::primaCalcola, "GREY"),
      lblSaturazione("lblSaturazione", {}, "ROSSO"),
      lblPeggiore("lblPeggiore"),
      lblOra("lblOra", {}, "GREY"),
      lblFigure("lblFigure", std::string{notaFigureSintesi}, "GREY"),
      cmdAnteprimaSintesi("cmdAnteprimaSintesi", "Anteprima della sintesi"),
      lblCella("lblCella") {
    std::vector<Controllo*> controlli{&ctlTab,     &ctlGrid,        &Cmd_EXCEL,   &lblExcel,
                                      &ctlSintesi, &lblSaturazione, &lblPeggiore, &cmdAnteprimaSintesi,
                                      &lblOra,     &lblFigure,      &ctlMappa,    &lblCella};
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
    ctlToolbar.aggiungi({.chiave = chiaveFoglio,
                         .testo = "Excel",
                         .suggerimento = "Porta la tabella in un foglio di calcolo",
                         .icona = "Excel",
                         .abilitato = false,
                         .nota = lblExcel.testo()});
    Cmd_EXCEL.abilitato(false);
    cmdAnteprimaSintesi.abilitato(false);
    collega();
}

void frmCapacitaCodeRitardi::collega() {
    Cmd_EXCEL.allaPressione = [this] { esportaFoglio(); };
    cmdAnteprimaSintesi.allaPressione = [this] { anteprimaSintesi(); };
    ctlGrid.ornamento = [this](Posto posto) { return ornamento(ctlGrid.tabella(), posto); };
    ctlSintesi.ornamento = [this](Posto posto) { return ornamentoSintesi(ctlSintesi.tabella(), posto); };
    for (Griglia* griglia : {&ctlGrid, &ctlSintesi, &ctlMappa}) {
        griglia->colonna(0, {.allineamento = AllineamentoCella::sinistra});
    }
    ctlMappa.alMovimento = [this](Posto /*posto*/) { mostraCella(); };
    ctlTab.alCambio = [this](int /*scheda*/) { mostraScheda(); };
    mostraScheda();
}

void frmCapacitaCodeRitardi::mostraScheda() {
    const int scheda = ctlTab.corrente();
    const auto mostra = [](bool valore, std::initializer_list<Controllo*> controlli) {
        for (Controllo* c : controlli) {
            c->visibile(valore);
        }
    };
    mostra(scheda == 0, {&ctlGrid, &Cmd_EXCEL, &lblExcel});
    mostra(scheda == 1, {&ctlSintesi, &lblPeggiore, &lblOra, &lblFigure, &cmdAnteprimaSintesi});
    lblSaturazione.visibile(scheda == 1 && !lblSaturazione.testo().empty());
    mostra(scheda == 2, {&ctlMappa, &lblCella});
    ctlHelp.visibile(scheda != 0);
    ctlHelp.pagina(scheda == 2 ? pagineAiuto[1] : pagineAiuto[0]);
}

void frmCapacitaCodeRitardi::attivata() {
    if (!conFigure()) {
        ctlGrid.tabella(tabellaVerificheVuota(rotonda()));
        svuotaSchede();
    }
    FinestraRisultati::attivata();
}

void frmCapacitaCodeRitardi::svuotaSchede() {
    ctlSintesi.tabella(tabellaSintesiVuota(rotonda()));
    ore_ = oreMappa(rotonda());
    ctlMappa.tabella(mappaLivelliVuota(rotonda()));
    cmdAnteprimaSintesi.abilitato(false);
    parole_.clear();
    for (Etichetta* parola : {&lblSaturazione, &lblPeggiore, &lblOra}) {
        parola->testo({});
    }
    mostraCella();
    mostraScheda();
}

void frmCapacitaCodeRitardi::riempiSchede() {
    svuotaSchede();
    const SintesiNodo sintesi = sintesiNodo(rotonda());
    Tabella mappa = mappaLivelli(rotonda());
    ctlSintesi.tabella(tabellaSintesi(rotonda(), sintesi));
    ctlMappa.tabella(std::move(mappa));
    cmdAnteprimaSintesi.abilitato(true);
    parole_ = paroleSintesi(rotonda(), sintesi);
    lblSaturazione.testo(avvisoSaturazione(rotonda(), sintesi));
    lblPeggiore.testo(ingressoPeggiore(rotonda(), sintesi));
    lblOra.testo(notaOraDiPunta(sintesi));
    mostraCella();
    mostraScheda();
}

std::string frmCapacitaCodeRitardi::parolaCella(Posto cella) const {
    const std::string parola = parolaMappa(ctlMappa.tabella(), cella);
    if (parola.empty()) {
        return parola;
    }
    // The table holds the delay that the level was read from: an interval is a band row and a row for each entry.
    const int riga = (cella.colonna - 1) * ctlMappa.tabella().righe() + cella.riga + 1;
    return parola + ", ritardo " + ctlGrid.testo(riga, colonnaRitardo) + " s/veic, saturazione " +
           ctlGrid.testo(riga, colonnaSaturazione);
}

void frmCapacitaCodeRitardi::mostraCella() {
    const std::string parola = parolaCella(ctlMappa.corrente());
    lblCella.testo(parola.empty() ? testi::scegliCella : parola);
}

void frmCapacitaCodeRitardi::calcola() {
    simula();
    Tabella tabella = impostaTabellaVerifiche(rotonda());
    riempiTabellaVerifiche(rotonda(), tabella);
    ctlGrid.tabella(std::move(tabella));
    figureDi(rotonda().timbro());
    Cmd_EXCEL.abilitato(true);
    lblExcel.testo({});
    ctlToolbar.abilita(chiaveFoglio, true);
    ctlToolbar.annota(chiaveFoglio, {});
    riempiSchede();
}

std::string frmCapacitaCodeRitardi::testoAnteprima() {
    return testoVerifiche(ctlGrid.tabella(), rotonda(), app().orologio.adesso());
}

std::string frmCapacitaCodeRitardi::motivoFlussi() const {
    return figureDelProgetto() ? notaFlussi(app()) : std::string{};
}

FinestraRisultati::Blocchi frmCapacitaCodeRitardi::figureSuCarta() const {
    using D = DocumentoPagine;
    const auto titolo = [this](int scheda) { return D::Titolo{ctlTab.scheda(scheda).titolo, 1}; };
    Blocchi blocchi{titolo(0), tabellaSuCarta(ctlGrid), titolo(1), tabellaSuCarta(ctlSintesi)};
    if (!lblSaturazione.testo().empty()) {
        blocchi.emplace_back(D::Paragrafo{.testo = lblSaturazione.testo(), .segno = D::Segno::verifica});
    }
    blocchi.emplace_back(D::Paragrafo{lblPeggiore.testo()});
    for (const Etichetta* nota : {&lblOra, &lblFigure}) {
        blocchi.emplace_back(D::Paragrafo{.testo = nota->testo(), .quieto = true});
    }
    D::Tabella mappa = tabellaSuCarta(ctlMappa);
    for (std::size_t c = 1; c < mappa.colonne.size(); ++c) {
        mappa.colonne[c].allineamento = AllineamentoCella::centro;
    }
    blocchi.insert(blocchi.end(), {titolo(2), std::move(mappa)});
    std::string fasce;
    for (const FasciaLivello& fascia : fasceLivelli) {
        fasce += (fasce.empty() ? "" : "; ") + std::string{fascia.livello} + " " + std::string{fascia.ritardo};
    }
    blocchi.emplace_back(D::Paragrafo{.testo = std::string{titoloFasce} + ": " + fasce, .quieto = true});
    return blocchi;
}

void frmCapacitaCodeRitardi::altroTasto(const std::string& chiave) {
    if (chiave == chiaveFoglio) {
        esportaFoglio();
    }
}

void frmCapacitaCodeRitardi::anteprimaSintesi() {
    apriTesto(testi::fileSintesi,
              testoSintesi(ctlSintesi.tabella(), parole_, rotonda().NomeFile(), app().orologio.adesso()));
}

void frmCapacitaCodeRitardi::esportaFoglio() {
    traccia(metodoFoglio, [this] { apriFoglio(); });
}

/// What is exported are the figures of the project as it stands: those that are not are calculated first. A study that
/// is no study over time has none: its table is empty, whatever the window still shows.
void frmCapacitaCodeRitardi::apriFoglio() {
    const bool nelTempo = analisiNelTempo(rotonda());
    if (nelTempo && !motivoVecchi().empty()) {
        calcola();
        aggiornaNote();
        if (!motore().riuscita()) {
            return;
        }
    }
    const std::string percorso = app().theAmbiente.PercorsoProgramma(fileFoglio);
    std::error_code ignorato;  // a folder that cannot be made is told by the file that cannot be written
    std::filesystem::create_directories(percorsoDaTesto(percorso).parent_path(), ignorato);
    const Tabella tabella = nelTempo ? ctlGrid.tabella() : tabellaVerificheVuota(rotonda());
    scriviEsportazione(app(), percorso, testoScambio(tabella, rotonda(), app().orologio.adesso()));
    servizi().foglio(percorso);
}

}  // namespace kelvo
