#include "input/frmDatiTrafficoST.h"

#include <fmt/format.h>

#include <optional>
#include <utility>

#include "base/date.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "calc/totaliTraffico.h"
#include "input/frmImportaCSV.h"
#include "input/istogrammaTraffico.h"
#include "input/recuperoTraffico.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/incolla.h"
#include "shell/servizi/pelle.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Dati di traffico";
constexpr const char* valoriGrafico = "Inserisci valori grafico";
constexpr const char* tempo = "Tempo";
constexpr const char* flusso = "Flusso [veicoli]";
constexpr const char* veicoli = "[veicoli]";
constexpr const char* motivoNumero = "Scrivere un numero.";
constexpr const char* motivoGrande = "Il numero è troppo grande.";
// Of a cell that was pasted.
constexpr const char* negativo = "è minore di 0";
constexpr const char* grande = "è troppo grande";
constexpr const char* senzaConteggi = "Scrivere nella tabella i veicoli contati in ogni segmento di tempo.";
constexpr const char* senzaSegmenti = "Nessun segmento di tempo: impostare prima i tempi di modellazione dello studio.";
}  // namespace testi

/// Handler of what is done when a cell is left.
constexpr const char* metodoCella = "frmMatriceSvolte:Immagini";
constexpr const char* metodoSalva = "frmDatiTrafficoST:SaveData";
constexpr const char* paginaConteggi = "FlussoSegmento.htm";
constexpr int colonnaTempo = 0;
constexpr int colonnaFlusso = 1;
constexpr int larghezzaTempo = 1900;  // twips
constexpr int larghezzaFlusso = 1800;
constexpr double minutiAlGiorno = 1440.0;

/// Start and end of a segment, from 0, on either side of `fra`.
std::string etichetta(DataOra inizio, int indice, int minuti, std::string_view fra) {
    return fmt::format("{}{}{}", testoHHNN(inizio + indice * minuti / minutiAlGiorno), fra,
                       testoHHNN(inizio + (indice + 1) * minuti / minutiAlGiorno));
}

bool nelSingolo(double valore) {
    return leggiSingolo(testoNumero(valore)).has_value();
}

}  // namespace

using F = frmDatiTrafficoST;
using D = DatiTraffico;
const std::array<frmDatiTrafficoST::LegameNumero, 3> frmDatiTrafficoST::legamiNumeri{{
    {&F::txtFlussoTotale, &D::FlussoTotale, &D::FlussoTotale},
    {&F::txtFlussoMedio, &D::FlussoMedio, &D::FlussoMedio},
    {&F::txtFlussoOrario, &D::FlussoOrario, &D::FlussoOrario},
}};

frmDatiTrafficoST::frmDatiTrafficoST(const Contorno& contorno, DialogoAnteprima* dialogo)
    : FinestraRamo(contorno, "frmDatiTrafficoST", testi::didascalia),
      cmdImportaCSV("cmdImportaCSV", bottoneImportaCSV),
      Check1("Check1", testi::valoriGrafico) {
    cmdImportaCSV.visibile(dialogo != nullptr);
    cmdImportaCSV.allaPressione = [this, dialogo] {
        importaCSV(this->contorno(), *dialogo,
                   {.tipo = "DatiTraffico",
                    .didascalia = "Importa i flussi da CSV",
                    .griglia = ctlGrid,
                    .colonne = {{testi::flusso, colonnaFlusso, {"Flusso", "Veicoli"}}}});
    };
    ordina({&ctlGrid, &cmdImportaCSV, &txtDescrizioneRamo, &txtIntervalloTempo, &txtFlussoTotale, &txtFlussoMedio,
            &txtFlussoOrario, &Check1, &ctlChart});
    for (const Riga& riga : righe()) {
        riga.campo->solaLettura(true);
    }
    txtDescrizioneRamo.paginaAiuto = "DenominazioneRamo.htm";
    txtIntervalloTempo.paginaAiuto = "IntervalloTempo.htm";
    txtFlussoTotale.paginaAiuto = "FlussoTotale.htm";
    txtFlussoMedio.paginaAiuto = "FlussoMedio.htm";
    txtFlussoOrario.paginaAiuto = "FlussoOrario.htm";
    Check1.alClic = [this] { DoTheChart(); };
    preparaGriglia();
}

void frmDatiTrafficoST::preparaGriglia() {
    ctlGrid.versoInvio = Griglia::Verso::giu;
    ctlGrid.colonna(colonnaTempo, {.allineamento = AllineamentoCella::centro});
    ctlGrid.colonna(colonnaFlusso, {.regole = {.caratteri = "0123456789,", .esclusoChiude = true}});
    ctlGrid.modificabile = [](Posto p) { return p.colonna == colonnaFlusso; };
    ctlGrid.allaConferma = [this](Posto /*posto*/, std::string& testo) { return confermaCella(testo); };
    ctlGrid.allIncolla = [this](std::vector<TestoCella>& celle) { return esaminaBlocco(celle); };
    ctlGrid.dopoModifica = [this](const std::vector<Posto>& /*posti*/) {
        DatiAllineati(!ctlGrid.modificata());
        cellaLasciata();
    };
    ctlGrid.alMovimento = [this](Posto /*posto*/) { cellaLasciata(); };
}

std::array<frmDatiTrafficoST::Riga, 5> frmDatiTrafficoST::righe() {
    return {{{"Denominazione ramo:", &txtDescrizioneRamo, ""},
             {"Intervallo di tempo", &txtIntervalloTempo, "[min]"},
             {"Flusso Totale Ingresso", &txtFlussoTotale, testi::veicoli},
             {"Flusso Medio", &txtFlussoMedio, "[veicoli/min]"},
             {"Flusso Orario", &txtFlussoOrario, "[veicoli/h]"}}};
}

void frmDatiTrafficoST::entrato(Controllo& campo) {
    FinestraRamo::entrato(campo);
    if (&campo == &ctlGrid) {
        ctlHelp.pagina(paginaConteggi);
    }
}

void frmDatiTrafficoST::legata() {
    if (indiceRamo() != mostrato_) {
        ctlGrid.tabella({});  // the cursor starts anew
        mostrato_ = indiceRamo();
    }
}

void frmDatiTrafficoST::attivata() {
    Check1.spuntata(false);
    FinestraRamo::attivata();
    mostraDaCapo();
    ReadBackUpData();
}

void frmDatiTrafficoST::ReadBackUpData() {
    const auto conteggi = conteggiRecuperabili(app().theRotonda(), indiceRamo());
    if (!conteggi || !chiediRecupero(app(), indiceRamo(), DatoTraffico::conteggi)) {
        return;
    }
    std::vector<TestoCella> celle;
    for (int r = 1; r < ctlGrid.tabella().righe(); ++r) {
        if (const auto& valore = (*conteggi)[static_cast<std::size_t>(r) - 1]) {
            celle.push_back({{r, colonnaFlusso}, testoNumero(*valore)});
        }
    }
    ctlGrid.inserisci(celle);
}

void frmDatiTrafficoST::rileggi() {
    ReadData();
    mostraDaCapo();
}

void frmDatiTrafficoST::mostraDaCapo() {
    flussi_.clear();  // those of the leg that was shown before
    etichette_.clear();
    totale_ = 0.0F;
    gestisci("frmDatiTrafficoST:ReadData", [this] { leggiBarre(); });
    DoTheChart();
}

int frmDatiTrafficoST::minutiSegmento() const {
    return minutoCampo(app().theRotonda().SegmentoTempo());
}

void frmDatiTrafficoST::ReadData() {
    txtDescrizioneRamo.testo(ramo().Descrizione());
    for (const LegameNumero& legame : legamiNumeri) {
        (this->*legame.campo).testo(testoNumero((dati().*legame.leggi)()));
    }
    txtIntervalloTempo.testo(fmt::format("{:02}", minutiSegmento()));
    ctlGrid.tabella(tabellaConteggi());
    DatiAllineati(true);
}

Tabella frmDatiTrafficoST::tabellaConteggi() const {
    const DataOra inizio = app().theRotonda().TempoIniziale();
    const int righe = dati().NumSegmentiTempo();
    Tabella tabella(righe + 1, 2);
    tabella.larghezze = {larghezzaTempo, larghezzaFlusso};
    tabella.cella(0, colonnaTempo) = {testi::tempo, colori::intestazione, colori::bianco, true};
    tabella.cella(0, colonnaFlusso) = {testi::flusso, colori::intestazione, colori::bianco, true};
    for (int r = 1; r <= righe; ++r) {
        tabella.cella(r, colonnaTempo) = {etichetta(inizio, r - 1, minutiSegmento(), " - "), colori::nomeIngresso,
                                          colori::bianco, false};
        tabella.cella(r, colonnaFlusso).testo = testoNumero(dati().FlussoSegmento(static_cast<std::int16_t>(r - 1), 0));
    }
    return tabella;
}

float frmDatiTrafficoST::valore(int riga) const {
    return leggiSingolo(ctlGrid.testo(riga, colonnaFlusso)).value_or(0.0F);
}

EsitoUscita frmDatiTrafficoST::confermaCella(std::string& testo) {
    const std::string_view scritto = rifila(testo);
    if (scritto.empty() || scritto == ",") {
        testo = "0";
        return EsitoUscita::bene();
    }
    const std::optional<double> numero = leggiNumero(scritto);
    if (!numero) {
        return EsitoUscita::rifiuto(std::string{testi::motivoNumero});
    }
    if (!nelSingolo(*numero)) {
        return EsitoUscita::rifiuto(std::string{testi::motivoGrande});
    }
    testo = testoNumero(*numero);
    return EsitoUscita::bene();
}

EsitoUscita frmDatiTrafficoST::esaminaBlocco(std::vector<TestoCella>& celle) const {
    for (TestoCella& cella : celle) {
        const std::optional<double> numero = numeroIncollato(cella.testo);
        if (!numero) {
            return rifiutoBlocco(ctlGrid, cella, motivoNonNumero(cella.testo));
        }
        if (*numero < 0.0) {
            return rifiutoBlocco(ctlGrid, cella, testi::negativo);
        }
        if (!nelSingolo(*numero)) {
            return rifiutoBlocco(ctlGrid, cella, testi::grande);
        }
        cella.testo = testoNumero(*numero);
    }
    return EsitoUscita::bene();
}

void frmDatiTrafficoST::cellaLasciata() {
    gestisci(metodoCella, [this] { AggiornaTotali(); });
    DoTheChart();
}

bool frmDatiTrafficoST::leggiBarre() {
    const Rotonda& r = app().theRotonda();
    const int n = segmentiTra(r.TempoIniziale(), r.TempoFinale(), minutiSegmento());
    if (n == 0) {
        return false;
    }
    flussi_.clear();
    etichette_.clear();
    totale_ = 0.0F;
    const int righe = ctlGrid.tabella().righe() - 1;
    for (int i = 0; i < n; ++i) {
        const float flusso = i < righe ? valore(i + 1) : 0.0F;
        etichette_.push_back(etichetta(r.TempoIniziale(), i, minutiSegmento(), "-"));
        flussi_.push_back(flusso);
        totale_ = aSingolo(static_cast<double>(totale_) + static_cast<double>(flusso),
                           [this] { return ramo().Descrizione(); });
    }
    return true;
}

void frmDatiTrafficoST::AggiornaTotali() {
    if (!leggiBarre()) {
        return;
    }
    const Rotonda& r = app().theRotonda();
    TotaliTraffico totali;
    scriviTotali(totali, totale_, static_cast<double>(minutiTra(r.TempoIniziale(), r.TempoFinale())));
    txtFlussoTotale.modifica(totali.FlussoTotale);
    txtFlussoMedio.modifica(totali.FlussoMedio);
    txtFlussoOrario.modifica(totali.FlussoOrario);
}

void frmDatiTrafficoST::SaveData() {
    salva(false);
}

void frmDatiTrafficoST::aggiornaDati() {
    salva(true);
}

void frmDatiTrafficoST::salva(bool sempre) {
    gestisci(metodoSalva, [&] {
        if (!ctlGrid.lascia()) {
            stato().convalidaFallita = true;
            return;
        }
        if (sempre || ctlGrid.modificata()) {
            gestisci(metodoSalva, [this] { AggiornaTotali(); });  // counts are kept whatever becomes of their totals
            scriviRamo();
            DoTheChart();
        }
        DatiAllineati(true);
    });
}

void frmDatiTrafficoST::scriviRamo() {
    for (const LegameNumero& legame : legamiNumeri) {
        tBox& campo = this->*legame.campo;
        if (campo.testo() != testoNumero((dati().*legame.leggi)())) {
            (dati().*legame.scrivi)(singoloDi(campo));
        }
        campo.salvato();
    }
    // A count that was not touched stays as the leg has it, which may be more than its text holds.
    for (int r = 1; r < ctlGrid.tabella().righe(); ++r) {
        if (ctlGrid.modificata({r, colonnaFlusso})) {
            dati().FlussoSegmento(valore(r), static_cast<std::int16_t>(r - 1), 0);
        }
    }
    ctlGrid.salvata();
}

void frmDatiTrafficoST::DoTheChart() {
    gestisci(" - RefreshGraph", [this] { RefreshGraph(); });
}

void frmDatiTrafficoST::RefreshGraph() {
    std::vector<std::string> valori;
    for (const float flusso : flussi_) {
        valori.push_back(testoNumero(flusso));
    }
    Grafico::Contenuto contenuto = istogrammaTraffico({.etichette = testoGrafico(etichette_),
                                                       .valori = testoGrafico(valori),
                                                       .unita = testi::veicoli,
                                                       .colore = colorePannello(app().configurazione.LayoutPannello),
                                                       .mostraValori = Check1.spuntata()});
    contenuto.serie.at(0).testi = valori;  // counts as the cells show them
    if (ctlGrid.tabella().righe() <= ctlGrid.righeFisse()) {
        contenuto.nota = testi::senzaSegmenti;
    } else if (totale_ == 0.0F) {
        contenuto.nota = testi::senzaConteggi;
    }
    ctlChart.contenuto(contenuto);
}

}  // namespace kelvo
