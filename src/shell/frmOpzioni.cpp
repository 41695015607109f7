#include "shell/frmOpzioni.h"

#include <algorithm>
#include <utility>

#include "base/guasto.h"
#include "shell/servizi/pelle.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Opzioni";
constexpr const char* suggerimentoNotte = "Incidenza percentuale capacità nodo";
constexpr const char* notteSenzaIncidenza = "L'incidenza è 0: la capacità non viene ridotta.";
constexpr const char* errore = "KELVO 2014 - Errore";
constexpr const char* nonScritto = "Impossibile registrare le impostazioni del programma in Kelvo.ini: ";
constexpr const char* contaComunque = "Il valore conta nel calcolo anche senza la spunta.";
}  // namespace testi

constexpr std::array relazioni{"Ipotesi progettuali (solo dati di input)", "Verifiche prestazionali (solo risultati)",
                               "Relazione di calcolo COMPLETA"};
constexpr std::size_t cifreNotte = 3;
constexpr const char* metodoLettura = "frmOpzioni:ReadData";

template <std::size_t... I>
std::array<tBox, 7> caselleVeicoli(std::index_sequence<I...> /*indici*/) {
    return {tBox{std::string{coefficientiMostrati[I].controllo}, tBox::maskedit, tagNumerico(campoCoefficiente)}...};
}

/// One tick in the list: where a click has made it two, the clicked row keeps it alone; the last tick stays.
void unaSpunta(ElencoSpunte& elenco, int riga) {
    if (elenco.quanteSpuntate() != 1) {
        elenco.azzera();
        elenco.spunta(riga, true);
    }
}

/// The option of a number that the project holds; none for a number outside the group.
int posizione(const GruppoOpzioni& gruppo, std::int16_t valore) {
    return valore >= 0 && valore < static_cast<std::int16_t>(gruppo.opzioni().size()) ? valore : -1;
}

}  // namespace

frmOpzioni::frmOpzioni(const Contorno& contorno)
    : FinestraDati(contorno, "frmOpzioni", testi::didascalia),
      frDatiTraffico("frDatiTraffico", "Dati di traffico", {&grpTipoAnalisi}),
      grpTipoAnalisi("grpTipoAnalisi", {{.nome = "optSaturazione", .testo = "Saturazione"},
                                        {.nome = "optCurvaTempoFlusso", .testo = "Curva tempo/flusso"},
                                        {.nome = "optSegmentiTempo", .testo = "Segmenti di tempo"}}),
      frComposizioneTraffico("frComposizioneTraffico", "Composizione del traffico", {&grpTipoFlusso}),
      grpTipoFlusso("grpTipoFlusso", {{.nome = "optCostante", .testo = "Costante"},
                                      {.nome = "optSegmentiTempo2", .testo = "Segmenti di tempo"}}),
      frMatriceSvolte("frMatriceSvolte", "Matrice delle svolte", {&grpTipoMatrice}),
      grpTipoMatrice("grpTipoMatrice",
                     {{.nome = "optVeicoli", .testo = "Veicoli"}, {.nome = "optPercentuale", .testo = "Percentuale"}}),
      frAnalisi("frAnalisi", "Analisi", {}),
      chkCondizioniNotturne("chkCondizioniNotturne", "Condizioni ambientali"),
      txtCondizioniNotturne("txtCondizioniNotturne", tBox::maskedit, tagNumerico(campoNotte)),
      chkPercentile("chkPercentile", "Percentile"),
      txtPercentile("txtPercentile", tBox::maskedit, tagNumerico(campoPercentile)),
      chkOttimizzazioneGeometrica("chkOttimizzazioneGeometrica", "Ottimizzazione Geometrica"),
      frVeicoli("frVeicoli", "Veicoli equivalenti", {}),
      txtVeicoli(caselleVeicoli(std::make_index_sequence<7>())),
      cmdDEFAULT("cmdDEFAULT", "Valori predefiniti"),
      frLayout("frLayout", "Layout", {&ctlLIST, &ctlCampione}),
      frRelazione("frRelazione", "Relazione", {&ctlLISTopz}),
      frProgramma("frProgramma", "Programma", {&ckTREE, &ckMENU, &ckFILMATO}),
      ckTREE("ckTREE", "Raggruppa l'albero per tipo"),
      ckMENU("ckMENU", "Disattiva menu"),
      ckFILMATO("ckFILMATO", "Filmato introduttivo all'avvio") {
    std::vector<Controllo*> controlli{&frDatiTraffico,
                                      &grpTipoAnalisi,
                                      &frComposizioneTraffico,
                                      &grpTipoFlusso,
                                      &frMatriceSvolte,
                                      &grpTipoMatrice,
                                      &frAnalisi,
                                      &chkCondizioniNotturne,
                                      &txtCondizioniNotturne,
                                      &lblCondizioniNotturne,
                                      &chkPercentile,
                                      &txtPercentile,
                                      &lblPercentile,
                                      &chkOttimizzazioneGeometrica,
                                      &frVeicoli};
    for (tBox& casella : txtVeicoli) {
        controlli.push_back(&casella);
    }
    for (Controllo* c : std::initializer_list<Controllo*>{&cmdDEFAULT, &frLayout, &ctlLIST, &ctlCampione, &frRelazione,
                                                          &ctlLISTopz, &frProgramma, &ckTREE, &ckMENU, &ckFILMATO}) {
        controlli.push_back(c);
    }
    ordina(controlli);
    std::vector<std::string> colori;
    colori.reserve(coloriPannello.size());
    for (const ColorePannello& colore : coloriPannello) {
        colori.emplace_back(colore.nome);
    }
    ctlLIST.voci(colori);
    ctlLISTopz.voci({relazioni.begin(), relazioni.end()});
    ctlToolbar.premetti({"Restore", "Valori predefiniti", "Ripristina i veicoli equivalenti", "Restore", true});
    collegaOpzioni();
    collegaAspetto();
}

void frmOpzioni::collegaOpzioni() {
    // Saturation only was never among the options that raise the flag.
    grpTipoAnalisi.alCambio = [this](int scelta) {
        if (scelta != 0) {
            opzioneCliccata();
        }
        abilita();
        confronta();
    };
    grpTipoFlusso.alCambio = [this](int) { opzioneCliccata(); };
    grpTipoMatrice.alCambio = [this](int) { opzioneCliccata(); };
    chkCondizioniNotturne.alClic = [this] {
        scartaNonAmmesso(chkCondizioniNotturne, txtCondizioniNotturne);
        abilita();
        confronta();
    };
    chkPercentile.alClic = [this] {
        scartaNonAmmesso(chkPercentile, txtPercentile);
        abilita();
        confronta();
    };
    chkOttimizzazioneGeometrica.alClic = [this] { confronta(); };
    preparaNumerico(txtCondizioniNotturne, campoNotte);
    txtCondizioniNotturne.caratteriAmmessi = "0123456789";
    txtCondizioniNotturne.lunghezzaMassima = cifreNotte;
    txtCondizioniNotturne.suggerimento = testi::suggerimentoNotte;
    txtCondizioniNotturne.dopoTasto = [this] { notteScritta(); };
    preparaNumerico(txtPercentile, campoPercentile);
    txtPercentile.dopoTasto = [this] { abilita(); };
    txtPercentile.dopoUscita = [this] { confronta(); };
    for (std::size_t i = 0; i < txtVeicoli.size(); ++i) {
        preparaNumerico(txtVeicoli[i], campoCoefficiente);
        txtVeicoli[i].nomeCampo = coefficientiMostrati[i].nome;
        txtVeicoli[i].dopoUscita = [this] { confronta(); };
    }
    cmdDEFAULT.allaPressione = [this] { ripristina(); };
}

void frmOpzioni::collegaAspetto() {
    ctlLIST.alClic = [this](int riga) { coloreCliccato(riga); };
    ctlLISTopz.alClic = [this](int riga) {
        unaSpunta(ctlLISTopz, riga);
        stato().formaRelazione = static_cast<std::int16_t>(ctlLISTopz.primaSpuntata());
    };
    ckTREE.alClic = [this] {
        gestisci("frmOpzioni:ckTREE", [this] {
            annota(app().comune.ScriviOpzExplorer(ckTREE.spuntata() ? 1 : 0));
            ckTREE.spuntata(app().configurazione.OpzExplorer != 0);
            alberoDaRifare_ = true;
            DatiAllineati(false);
            avvisaIni();
        });
    };
    ckMENU.alClic = [this] {
        gestisci("frmOpzioni:ckMENU", [this] {
            annota(app().comune.ScriviOpzMenu(ckMENU.spuntata() ? 1 : 0));
            ckMENU.spuntata(app().configurazione.OpzMenu != 0);
            cornice().mostraMenu(app().configurazione.OpzMenu == 0);
            avvisaIni();
        });
    };
    ckFILMATO.alClic = [this] { DatiAllineati(false); };
}

void frmOpzioni::opzioneCliccata() {
    stato().opzioniModificate = true;
    confronta();
}

void frmOpzioni::abilita() {
    const bool composizione = grpTipoAnalisi.scelta() != 0;
    frComposizioneTraffico.abilitaContenuto(composizione);
    frComposizioneTraffico.mostraContenuto(composizione);
    grpTipoFlusso.abilita(0, composizione);
    const bool notte = chkCondizioniNotturne.spuntata();
    txtCondizioniNotturne.abilitato(notte);
    const bool nessunaIncidenza = notte && app().theAmbiente.PercentualeNotturna() == 0;
    lblCondizioniNotturne.testo(nessunaIncidenza ? testi::notteSenzaIncidenza : "");
    lblCondizioniNotturne.visibile(nessunaIncidenza);
    txtPercentile.abilitato(chkPercentile.spuntata());
    const float percentile =
        txtPercentile.modificato() ? singoloDi(txtPercentile) : app().theRotonda().ValorePercentile();
    const bool conta = !chkPercentile.spuntata() && percentile != 0.0F;
    lblPercentile.testo(conta ? testi::contaComunque : "");
    lblPercentile.visibile(conta);
}

void frmOpzioni::scartaNonAmmesso(const Casella& spunta, tBox& campo) {
    // A closed field is asked nothing any more: what it would have refused gives way to what stood there.
    std::string numero = campo.testo();
    std::replace(numero.begin(), numero.end(), ',', '.');
    if (!spunta.spuntata() && !campo.regole().ammette(numero)) {
        campo.annulla();
    }
}

void frmOpzioni::notteScritta() {
    const std::string& testo = txtCondizioniNotturne.testo();
    if (testo.empty() || txtCondizioniNotturne.regole().ammette(testo)) {
        app().theAmbiente.PercentualeNotturna(aIntero16(static_cast<double>(singoloDi(txtCondizioniNotturne))));
    }
    abilita();
}

void frmOpzioni::leggiOpzioni() {
    const Rotonda& r = rotonda();
    grpTipoAnalisi.scelta(posizione(grpTipoAnalisi, r.TipoAnalisi()));
    grpTipoFlusso.scelta(posizione(grpTipoFlusso, r.TipoFlusso()));
    grpTipoMatrice.scelta(posizione(grpTipoMatrice, r.TipoMatriceSvolte()));
    chkCondizioniNotturne.spuntata(r.CondizioniNotturne());
    txtCondizioniNotturne.testo(testoNumero(static_cast<int>(app().theAmbiente.PercentualeNotturna())));
    chkPercentile.spuntata(r.UsaPercentile());
    txtPercentile.testo(testoNumero(r.ValorePercentile()));
    chkOttimizzazioneGeometrica.spuntata(r.OttimizzazioneGeometrica());
}

void frmOpzioni::leggiConfigurazione() {
    const CoefficientiVeicoli valori = app().configurazione.coefficienti();
    for (std::size_t i = 0; i < txtVeicoli.size(); ++i) {
        txtVeicoli[i].testo(testoNumero(valori[coefficientiMostrati[i].posto]));
    }
    const int colore = app().configurazione.LayoutPannello - 1;
    ctlLIST.azzera();
    mostraColore(colore >= 0 && colore < static_cast<int>(coloriPannello.size()) ? colore : 0);
    ctlLISTopz.azzera();
    ctlLISTopz.spunta(stato().formaRelazione, true);
    // A wrong key of the file keeps nobody from the others.
    gestisci(metodoLettura, [this] {
        app().comune.LeggiAvvioFilmato();
        ckFILMATO.spuntata(app().configurazione.AvvioFilmato == 0);
    });
    gestisci(metodoLettura, [this] { ckTREE.spuntata(app().comune.LeggiOpzExplorer() != 0); });
    gestisci(metodoLettura, [this] { ckMENU.spuntata(app().comune.LeggiOpzMenu() != 0); });
}

void frmOpzioni::ReadData() {
    leggiOpzioni();
    abilita();
    leggiConfigurazione();
    DatiAllineati(true);
}

void frmOpzioni::mostraColore(int riga) {
    ctlLIST.spunta(riga, true);
    ctlCampione.colore(coloriPannello[static_cast<std::size_t>(riga)].colore);
}

void frmOpzioni::coloreCliccato(int riga) {
    unaSpunta(ctlLIST, riga);
    ctlCampione.colore(coloriPannello[static_cast<std::size_t>(riga)].colore);
    DatiAllineati(false);
}

void frmOpzioni::ripristina() {
    for (std::size_t i = 0; i < txtVeicoli.size(); ++i) {
        txtVeicoli[i].modifica(testoNumero(coefficientiDiFabbrica[coefficientiMostrati[i].posto]));
    }
    confronta();
}

void frmOpzioni::confronta() {
    const Rotonda& r = rotonda();
    bool uguali = grpTipoAnalisi.scelta() == posizione(grpTipoAnalisi, r.TipoAnalisi()) &&
                  grpTipoFlusso.scelta() == posizione(grpTipoFlusso, r.TipoFlusso()) &&
                  grpTipoMatrice.scelta() == posizione(grpTipoMatrice, r.TipoMatriceSvolte()) &&
                  chkCondizioniNotturne.spuntata() == r.CondizioniNotturne() &&
                  chkPercentile.spuntata() == r.UsaPercentile() && !txtPercentile.modificato() &&
                  chkOttimizzazioneGeometrica.spuntata() == r.OttimizzazioneGeometrica();
    for (const tBox& casella : txtVeicoli) {
        uguali = uguali && !casella.modificato();
    }
    if (!uguali) {
        DatiAllineati(false);
    }
}

void frmOpzioni::scriviProgetto() {
    Rotonda& r = rotonda();
    const auto scelta = [](const GruppoOpzioni& gruppo, std::int16_t ora) {
        return gruppo.scelta() < 0 ? ora : static_cast<std::int16_t>(gruppo.scelta());
    };
    r.TipoAnalisi(scelta(grpTipoAnalisi, r.TipoAnalisi()));
    r.TipoFlusso(scelta(grpTipoFlusso, r.TipoFlusso()));
    r.CondizioniNotturne(chkCondizioniNotturne.spuntata());
    r.UsaPercentile(chkPercentile.spuntata());
    if (txtPercentile.modificato()) {
        r.ValorePercentile(singoloDi(txtPercentile));
    }
    txtPercentile.testo(testoNumero(r.ValorePercentile()));
    r.OttimizzazioneGeometrica(chkOttimizzazioneGeometrica.spuntata());
    r.TipoMatriceSvolte(scelta(grpTipoMatrice, r.TipoMatriceSvolte()));
}

CoefficientiVeicoli frmOpzioni::coefficientiScritti() const {
    // What was not typed stays as it is, which may be more than its text shows.
    CoefficientiVeicoli valori = app().configurazione.coefficienti();
    for (std::size_t i = 0; i < txtVeicoli.size(); ++i) {
        if (txtVeicoli[i].modificato()) {
            valori[coefficientiMostrati[i].posto] = singoloDi(txtVeicoli[i]);
        }
    }
    return valori;
}

bool frmOpzioni::coefficientiMutati() const {
    return std::any_of(txtVeicoli.begin(), txtVeicoli.end(), [](const tBox& casella) { return casella.modificato(); });
}

bool frmOpzioni::scriviCoefficienti(const CoefficientiVeicoli& valori) {
    app().configurazione.coefficienti(valori);
    const std::string motivo = app().comune.ScriviVeicoliEquivalenti(valori);
    annota(motivo);
    for (tBox& casella : txtVeicoli) {
        if (motivo.empty()) {
            casella.salvato();
        }
    }
    return motivo.empty();
}

bool frmOpzioni::aspettoScritto() const {
    const int colore = app().configurazione.LayoutPannello - 1;
    const bool noto = colore >= 0 && colore < static_cast<int>(coloriPannello.size());
    return ctlLIST.primaSpuntata() == (noto ? colore : 0) &&
           ckFILMATO.spuntata() == (app().configurazione.AvvioFilmato == 0) && !alberoDaRifare_;
}

void frmOpzioni::annota(const std::string& motivo) {
    motivoIni_ = motivoIni_.empty() ? motivo : motivoIni_;
}

void frmOpzioni::avvisaIni() {
    if (!motivoIni_.empty()) {
        const std::string testo = std::string{testi::nonScritto} + motivoIni_;
        motivoIni_.clear();
        messaggio(testo, testi::errore, Icona::critica);
    }
}

void frmOpzioni::scriviTutto() {
    gestisci("frmOpzioni:SaveData", [this] {
        if (!convalida()) {
            return;
        }
        scriviProgetto();
        const bool scritti = !coefficientiMutati() || scriviCoefficienti(coefficientiScritti());
        DatiAllineati(scritti && aspettoScritto());
        cornice().SetUpOpzioni();
    });
}

void frmOpzioni::SaveData() {
    scriviTutto();
    avvisaIni();
}

void frmOpzioni::aggiornaDati() {
    if (!convalida()) {
        return;
    }
    const bool mutati = coefficientiMutati();
    const CoefficientiVeicoli valori = coefficientiScritti();
    scriviTutto();
    annota(app().comune.ScriviCustomPanel(static_cast<std::int16_t>(ctlLIST.primaSpuntata() + 1)));
    vesti(*this, app().configurazione.LayoutPannello);
    cornice().LoadTreeView();
    alberoDaRifare_ = false;
    annota(app().comune.ScriviAvvioFilmato(ckFILMATO.spuntata() ? 0 : 1));
    annota(app().comune.ScriviOpzExplorer(ckTREE.spuntata() ? 1 : 0));
    if (mutati) {
        annota(app().comune.ScriviVeicoliEquivalenti(valori));
    }
    DatiAllineati(motivoIni_.empty());
    avvisaIni();
}

void frmOpzioni::altroTasto(const std::string& chiave) {
    if (chiave == "Restore") {
        ripristina();
    }
}

}  // namespace kelvo
