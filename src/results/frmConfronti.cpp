#include "results/frmConfronti.h"

#include <algorithm>
#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"
#include "results/calcoloIpotesi.h"
#include "results/inVigore.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Analizzatore";
constexpr const char* grafico = "Grafico Confronto Rami:                                    ";
constexpr const char* simulazione = "Simulazione Confronto Rami:                                    ";
constexpr const char* inSimulazione = " - simulazione";
constexpr const char* variabile =
    "Grandezza in cui si confrontano gli ingressi.\nL'asse dei valori è fissato sul valore più grande di tutti gli "
    "ingressi e di tutto il periodo.";
constexpr const char* senzaGrandezze =
    "L'analisi del progetto è di sola saturazione: non ci sono grandezze nel tempo da rappresentare.";
}  // namespace testi

constexpr const char* metodoSimulazione = "frmConfronti:cmdPLAY";

/// The unit options: their button, its words, and what a click on it shows.
struct VoceUnita {
    const char* nome = "";
    const char* testo = "";
    const char* mostrata = "";
};
constexpr std::array unita{VoceUnita{"Option1veich", "[veic./h]", "[veic/h]"},
                           VoceUnita{"Option2veicmin", "[veic./min]", "[veic/min]"}};

std::vector<std::string> nomiVariabili(UnitaFlussi unitaFlussi) {
    std::vector<std::string> nomi;
    for (int v = 0; v < static_cast<int>(variabiliConfronto.size()); ++v) {
        nomi.push_back(nomeVariabile({v, unitaFlussi}));
    }
    return nomi;
}

}  // namespace

frmConfronti::frmConfronti(const Contorno& contorno, const ServiziRisultati& servizi, Cronometro& cronometro)
    : FinestraRisultati(contorno, servizi, "frmConfronti", testi::didascalia),
      frVARIABILE("frVARIABILE", "Variabile prestazionale", {}),
      opzUnita("opzUnita", {{unita[0].nome, unita[0].testo}, {unita[1].nome, unita[1].testo}}, 0),
      frISTANTE("frISTANTE", "Istante", {}),
      frSIMULAZIONE("frSIMULAZIONE", "Simulazione", {}),
      cmdPLAY("cmdPLAY", "Avvia"),
      Command1("Command1", "Ferma"),
      Command3("Command3", "Più veloce"),
      Command4("Command4", "Più lento"),
      lblSIM("lblSIM", "Posizione"),
      cronometro_(cronometro) {
    tempoTrascorso = [] {
        const auto adesso = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::milliseconds>(adesso);
    };
    txtTipoVariabile.suggerimento = testi::variabile;
    txtTipoVariabile.voci(nomiVariabili(UnitaFlussi::ora));
    lblUnita.testo(unita[0].mostrata);
    ctlGrid.colonna(0, {.allineamento = AllineamentoCella::sinistra});
    ordinaControlli();
    collega();
    collegaSimulazione();
    pausa(0);
}

frmConfronti::~frmConfronti() {
    if (inSimulazione_) {
        cronometro_.ferma();
    }
}

void frmConfronti::ordinaControlli() {
    // The keyboard starts on the slider. The pictures of the buttons are for the mouse alone.
    std::vector<Controllo*> controlli{&txtdescrizioneGRAFICO,
                                      &Slider1,
                                      &ctlChartConfronti,
                                      &ctlPianta,
                                      &txtVARselezionata,
                                      &txtIstanteTEMPO,
                                      &ctlGrid,
                                      &frVARIABILE,
                                      &lblUnita,
                                      &txtTipoVariabile,
                                      &opzUnita,
                                      &frSIMULAZIONE,
                                      &cmdPLAY,
                                      &Command1,
                                      &Command3,
                                      &Command4,
                                      &lblPausa,
                                      &lblSIM,
                                      &txtSIM,
                                      &frISTANTE,
                                      &listTEMPO};
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
}

void frmConfronti::collega() {
    txtTipoVariabile.dopoTasto = [this] { mostraVariabile(); };
    opzUnita.alCambio = [this](int /*scelta*/) { cambiaUnita(); };
    listTEMPO.alCambio = [this](int indice) { scelto(indice + 1); };
    Slider1.alCambio = [this](int valore) { scelto(valore); };
    ctlGrid.alMovimento = [this](Posto posto) {
        if (posto.colonna != posizione_) {
            if (inSimulazione_) {
                fine();  // who looks at another instant has seen enough of the playback
            }
            scelto(posto.colonna);
        }
    };
    ctlGrid.ornamento = [this](Posto posto) {
        OrnamentoCella ornamento;
        if (conFigure() && scelta().variabile == variabileLivello && posto.riga > 0 && posto.colonna > 0) {
            ornamento.distintivo = distintivoLivello(ctlGrid.testo(posto.riga, posto.colonna));
            ornamento.allineamento = AllineamentoCella::centro;
        }
        return ornamento;
    };
}

void frmConfronti::collegaSimulazione() {
    for (Bottone* bottone : {&cmdPLAY, &ImagePLAY}) {
        bottone->allaPressione = [this] { gestisci(metodoSimulazione, [this] { play(); }); };
    }
    for (Bottone* bottone : {&Command1, &ImageSTOP}) {
        bottone->allaPressione = [this] { fine(); };
    }
    for (Bottone* bottone : {&Command3, &ImagePIU}) {
        bottone->allaPressione = [this] { pausa(-passoPausa); };
    }
    for (Bottone* bottone : {&Command4, &ImageMENO}) {
        bottone->allaPressione = [this] { pausa(passoPausa); };
    }
}

SceltaConfronto frmConfronti::scelta() const {
    return {std::max(0, txtTipoVariabile.scelta()), opzUnita.scelta() == 1 ? UnitaFlussi::minuto : UnitaFlussi::ora};
}

bool frmConfronti::recordScartati() const {
    const Rotonda& r = app().theRotonda();
    for (std::int16_t i = 1; i <= r.Rami().Count(); ++i) {
        if (r.Ramo(i).theDatiTraffico().IterazioniScritte() == 0) {
            return true;
        }
    }
    return false;
}

void frmConfronti::attivata() {
    if (!conFigure()) {
        txtTipoVariabile.scelta(0);
        posizione_ = 0;
    }
    if (!conFigure() || recordScartati()) {
        gestisci("frmConfronti:keyCalcola", [this] { calcola(); });
    } else {
        riprendiFigure(rotonda().timbroRecord());
        leggi();
    }
    FinestraRisultati::attivata();
}

void frmConfronti::nascosta() {
    if (inSimulazione_) {
        fine();
    }
}

void frmConfronti::calcola() {
    if (inSimulazione_) {
        fine();
    }
    simula();
    figureDi(rotonda().timbroRecord());
    titolo_ = Titolo::variabile;
    leggi();
}

/// Takes the records over and draws; the instant in view stays as far as there still is one.
void frmConfronti::leggi() {
    confronto_ = Confronto(rotonda());
    listTEMPO.voci(confronto_.istanti());
    Slider1.limiti(1, std::max(1, confronto_.segmenti()));
    ctlPianta.dati(pianta::datiPianta(rotonda()));
    posizione_ = std::clamp(posizione_, std::min(1, confronto_.segmenti()), confronto_.segmenti());
    mostraVariabile();
}

void frmConfronti::cambiaUnita() {
    const int posizione = txtTipoVariabile.scelta();
    txtTipoVariabile.voci(nomiVariabili(scelta().unita));
    txtTipoVariabile.scelta(std::max(0, posizione));
    lblUnita.testo(unita.at(static_cast<std::size_t>(opzUnita.scelta())).mostrata);
    mostraVariabile();
}

/// Draws another variable: its table and the top of its axis hold for all instants.
void frmConfronti::mostraVariabile() {
    txtVARselezionata.testo(nomeVariabile(scelta()));
    MassimoGrafico_ = kelvo::MassimoGrafico(scelta().variabile, confronto_.massimo(scelta()));
    ctlGrid.tabella(tabellaConfronto(confronto_, scelta(), conFigure()));
    mostraIstante(posizione_);
    disegna();
}

void frmConfronti::mostraIstante(int posizione) {
    posizione_ = posizione;
    const bool presente = posizione_ > 0;
    Slider1.valore(posizione_);
    listTEMPO.scelta(posizione_ - 1);
    txtSIM.testo(presente ? testoNumero(posizione_) : std::string{});
    txtIstanteTEMPO.testo(presente ? confronto_.istanti()[static_cast<std::size_t>(posizione_) - 1] : std::string{});
    if (presente) {
        const int riga = std::max(1, ctlGrid.corrente().riga);
        ctlGrid.corrente({std::min(riga, ctlGrid.tabella().righe() - 1), posizione_});
    }
}

/// The user moved to an instant.
void frmConfronti::scelto(int posizione) {
    titolo_ = Titolo::istante;
    mostraIstante(std::min(posizione, confronto_.segmenti()));
    disegna();
}

void frmConfronti::disegna() {
    const bool simulazione = titolo_ == Titolo::simulazione;
    Grafico::Contenuto contenuto =
        graficoConfronto(confronto_, scelta(), conFigure() ? posizione_ : 0, MassimoGrafico_);
    contenuto.titolo = (simulazione ? testi::simulazione : testi::grafico) + nomeVariabile(scelta());
    if (titolo_ == Titolo::istante && posizione_ > 0) {
        contenuto.titolo += " - " + txtIstanteTEMPO.testo();
    }
    txtdescrizioneGRAFICO.testo(contenuto.titolo + (simulazione ? testi::inSimulazione : ""));
    ctlChartConfronti.contenuto(std::move(contenuto));
    aggiornaPianta();
}

void frmConfronti::aggiornaPianta() {
    std::vector<pianta::StatoIngresso> stati;
    for (int i = 1; posizione_ > 0 && conFigure() && i <= confronto_.ingressi(); ++i) {
        const Iterazione& r = confronto_.record(i, posizione_);
        stati.push_back({std::string{livelloDiRitardo(r.Ritardo)}, static_cast<double>(r.Coda)});
    }
    ctlPianta.stati(std::move(stati));
}

void frmConfronti::play() {
    if (inSimulazione_ || posizione_ == 0 || !conFigure()) {
        return;
    }
    inSimulazione_ = true;
    // The keyboard goes where it is of use next, before its button closes.
    fuocoSu(Command1);
    abilitaPannello(false);
    fotogramma(1);
}

/// Draws an instant and waits; what comes next is asked when the pause is over.
void frmConfronti::fotogramma(int posizione) {
    titolo_ = Titolo::simulazione;
    mostraIstante(posizione);
    disegna();
    disegnato_ = tempoTrascorso();
    attendi();
}

/// Waits for what is left of the pause of the instant in view.
void frmConfronti::attendi() {
    const std::chrono::milliseconds resto =
        std::chrono::milliseconds(PausaSimulazione_) + disegnato_ - tempoTrascorso();
    cronometro_.ogni(static_cast<int>(std::max<std::int64_t>(0, resto.count())), [this] { rintocco(); });
}

void frmConfronti::rintocco() {
    bool bene = false;
    gestisci(metodoSimulazione, [&] {
        if (posizione_ < confronto_.segmenti()) {
            fotogramma(posizione_ + 1);
            bene = true;
        }
    });
    if (!bene) {
        fine();
    }
}

/// Ends a playback, if there is one, and shows the instant at which it stands.
void frmConfronti::fine() {
    if (inSimulazione_) {
        cronometro_.ferma();
        inSimulazione_ = false;
        abilitaPannello(true);
        if (haFuoco(Command1)) {
            fuocoSu(cmdPLAY);
        }
    }
    titolo_ = Titolo::istante;
    mostraIstante(posizione_);
    disegna();
}

void frmConfronti::pausa(int aggiunta) {
    const int nuova = std::clamp<int>(PausaSimulazione_ + aggiunta, pausaMinima, pausaMassima);
    const bool mutata = nuova != PausaSimulazione_;
    PausaSimulazione_ = static_cast<std::int16_t>(nuova);
    lblPausa.testo("Pausa " + formatta(PausaSimulazione_ / 1000.0, "#0.0") + " s");
    if (inSimulazione_ && mutata) {
        attendi();
    }
}

void frmConfronti::abilitaPannello(bool valore) {
    for (Controllo* c :
         std::initializer_list<Controllo*>{&cmdPLAY, &ImagePLAY, &txtTipoVariabile, &opzUnita, &listTEMPO, &Slider1}) {
        c->abilitato(valore);
    }
}

std::string frmConfronti::testoAnteprima() {
    return testoConfronto(tabellaConfronto(confronto_, scelta(), conFigure()), scelta(), app().orologio.adesso(),
                          rotonda().NomeFile());
}

std::string frmConfronti::motivoFlussi() const {
    return figureDelProgetto() ? notaFlussi(app()) : std::string{};
}

FinestraRisultati::Blocchi frmConfronti::figureSuCarta() const {
    using D = DocumentoPagine;
    constexpr double quota = 0.65;  // below the chart on the same page
    Blocchi blocchi{D::Titolo{txtVARselezionata.testo() + " - " + txtIstanteTEMPO.testo(), 1},
                    kelvo::figuraSuCarta(ctlChartConfronti.contenuto())};
    if (!ctlPianta.dati().rami.empty()) {
        blocchi.emplace_back(D::Figura{.contenuto = ctlPianta.soggetto(),
                                       .larghezza = quota,
                                       .forma = 1.0,
                                       .didascalia = txtIstanteTEMPO.testo() + ": " + ctlPianta.descrizione()});
    }
    blocchi.insert(blocchi.end(), {D::Titolo{nomeVariabile(scelta()), 1}, tabellaSuCarta(ctlGrid)});
    return blocchi;
}

void frmConfronti::relazione() {
    if (inSimulazione_) {
        fine();
    }
    const std::int16_t tipo = rotonda().TipoAnalisi();
    if ((tipo != analisi::curva && tipo != analisi::tabella) || posizione_ == 0) {
        throw Guasto::conParole(NumeroGuasto::operazioneImpossibile, testi::senzaGrandezze);
    }
    if (!app().risultatiAttuali()) {
        calcola();
        aggiornaNote();
        if (!motore().riuscita()) {
            return;  // the engine has told why
        }
    }
    servizi().relazioneGrafica(perRelazione());
}

RelazioneGrafica frmConfronti::perRelazione() const {
    return relazioneConfronto(scelta(), txtIstanteTEMPO.testo(), ctlChartConfronti.contenuto());
}

}  // namespace kelvo
