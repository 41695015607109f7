#include "results/frmRisultatiAnalisiMarginale.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"
#include "results/calcoloIpotesi.h"
#include "results/graficiSensibilita.h"
#include "results/inVigore.h"
#include "results/livelloServizio.h"
#include "results/relazioneSensibilita.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* vecchie = "I dati sono cambiati dopo il calcolo di questa tabella.";
constexpr const char* vecchioRiepilogo =
    "I dati sono cambiati dopo il calcolo di almeno una delle grandezze del riepilogo.";
constexpr const char* didascalia = "Risultati: Ottimizzazione Geometrica";
constexpr const char* riepilogo = "Riepilogo";
constexpr const char* variabile = "Variabile prestazionale";
constexpr const char* calcolaScheda = "Calcola la scheda";
constexpr const char* quantoServe = "Quanto serve";
constexpr const char* cerca = "Cerca";
constexpr const char* soloLettura = "La geometria del progetto non viene modificata.";
constexpr const char* soloSaturazione =
    "Analisi di sola saturazione: ogni passo ha la capacità, senza code e ritardi (Opzioni).";
constexpr const char* nessunaGrandezza =
    "Nessuna grandezza da variare: spuntarne almeno una in Opzioni Analisi Marginale.";
constexpr const char* datiCambiati =
    "I dati sono cambiati dopo il calcolo: le cifre non sono più quelle del progetto. Premere Calcola (F9).";
constexpr const char* schedaDiGrandezza = "Scegliere la scheda di una grandezza";
constexpr const char* scegliVariabile = "Selezionare una variabile prestazionale";
constexpr const char* senzaRisposta = "Scegliere grandezza e obiettivo e premere Cerca.";
/// What the note on the flows says where no plain calculation stands: that of this window is none.
constexpr std::string_view senzaCalcolo = "il calcolo con questi dati non è stato eseguito o non è riuscito.";
constexpr const char* soloSpuntate = "Mostrate le grandezze spuntate in Opzioni Analisi Marginale";
}  // namespace testi

constexpr const char* paginaMetodo = "SensibilitaGeometrica.htm";
constexpr const char* paginaQuantoServe = "QuantoServe.htm";
constexpr const char* metodoScheda = "frmRisultatiAnalisiMarginale:Command1";
constexpr const char* metodoCerca = "frmRisultatiAnalisiMarginale:cmdQuantoServe";
constexpr int obiettivoSaturazione = 0;
/// Levels that can be asked for: any but "-" and the last one.
constexpr std::size_t primoLivello = 1;
constexpr std::size_t quantiLivelli = livelliServizio.size() - 2;
constexpr std::size_t livelloIniziale = 3;  ///< "C"

std::vector<std::string> titoliSchede() {
    std::vector<std::string> titoli;
    for (const ParametroGeometrico& p : parametriGeometrici) {
        titoli.emplace_back(p.nome);
    }
    titoli.emplace_back(testi::riepilogo);
    return titoli;
}

std::vector<GruppoOpzioni::Opzione> opzioniVariabile() {
    constexpr std::array<const char*, prestazioni.size()> nomi{"OptCAPACITA", "OptCODA", "OptRITARDO"};
    std::vector<GruppoOpzioni::Opzione> opzioni;
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        opzioni.push_back({.nome = nomi[i], .testo = std::string{voce(prestazioni[i]).opzione}});
    }
    return opzioni;
}

template <std::size_t... I>
std::array<Griglia, sizeof...(I)> creaGriglie(std::index_sequence<I...> /*indici*/) {
    return {Griglia{"ctlGrid" + std::to_string(I + 1)}...};
}

}  // namespace

frmRisultatiAnalisiMarginale::frmRisultatiAnalisiMarginale(const Contorno& contorno, const ServiziRisultati& servizi)
    : FinestraRisultati(contorno, servizi, "frmRisultatiAnalisiMarginale", testi::didascalia),
      ctlTab("ctlTab", titoliSchede()),
      griglie(creaGriglie(std::make_index_sequence<numeroParametri>())),
      frVARIABILE("frVARIABILE", testi::variabile, {&opzVARIABILE}),
      opzVARIABILE("opzVARIABILE", opzioniVariabile()),
      Command1("Command1", testi::calcolaScheda),
      ctlChartLA("ctlChartLA", {}, {&RMChartX1}),
      frQUANTOSERVE("frQUANTOSERVE", testi::quantoServe,
                    {&txtGrandezza, &opzOBIETTIVO, &txtSaturazione, &txtLivello, &cmdQuantoServe, &lblQuantoServe,
                     &lblEffetto, &lblSoloLettura}),
      opzOBIETTIVO("opzOBIETTIVO",
                   {{.nome = "optSATURAZIONE", .testo = "Coefficiente di saturazione"},
                    {.nome = "optLIVELLO", .testo = "Livello di servizio"}},
                   obiettivoSaturazione),
      txtSaturazione("txtSaturazione", tBox::maskedit, tagNumerico(campoSaturazione)),
      cmdQuantoServe("cmdQuantoServe", testi::cerca),
      lblSoloLettura("lblSoloLettura", testi::soloLettura, "GREY") {
    ordinaControlli();
    preparaQuantoServe();
    collega();
    mostraTabelle();
    mostraScheda();
}

void frmRisultatiAnalisiMarginale::ordinaControlli() {
    std::vector<Controllo*> controlli{&ctlTab};
    for (Griglia& griglia : griglie) {
        controlli.push_back(&griglia);
    }
    controlli.push_back(&frQUANTOSERVE);
    controlli.insert(controlli.end(), frQUANTOSERVE.contenuto().begin(), frQUANTOSERVE.contenuto().end());
    controlli.insert(controlli.end(), {&ctlChartLA, &RMChartX1, &frVARIABILE, &opzVARIABILE, &Command1});
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
}

void frmRisultatiAnalisiMarginale::collega() {
    ctlTab.alCambio = [this](int /*scheda*/) { mostraScheda(); };
    opzVARIABILE.alCambio = [this](int /*scelta*/) { disegna(); };
    Command1.allaPressione = [this] {
        if (lasciaFuoco()) {
            gestisci(metodoScheda, [this] { calcolaScheda(); });
        }
    };
    cmdQuantoServe.allaPressione = [this] {
        if (lasciaFuoco()) {
            gestisci(metodoCerca, [this] { cerca(); });
        }
    };
    opzOBIETTIVO.alCambio = [this](int /*scelta*/) {
        mostraObiettivo();
        scordaRisposta();
    };
}

void frmRisultatiAnalisiMarginale::preparaQuantoServe() {
    std::vector<std::string> grandezze;
    for (const ParametroGeometrico& p : parametriGeometrici) {
        grandezze.emplace_back(p.nome);
    }
    txtGrandezza.voci(grandezze);
    txtGrandezza.scelta(0);
    std::vector<std::string> livelli;
    for (std::size_t i = primoLivello; i < primoLivello + quantiLivelli; ++i) {
        livelli.emplace_back(livelliServizio.at(i));
    }
    txtLivello.voci(livelli);
    txtLivello.testo(std::string{livelliServizio.at(livelloIniziale)});
    preparaNumerico(txtSaturazione, campoSaturazione);
    mostraNumero(txtSaturazione, saturazioneObiettivo, campoSaturazione.formato);
    txtSaturazione.dopoUscita = [this] {
        if (const auto scritto = leggiNumero(txtSaturazione.testo())) {
            txtSaturazione.modifica(formatta(*scritto, campoSaturazione.formato));
        }
    };
    for (tBox* campo : {&txtGrandezza, &txtSaturazione, &txtLivello}) {
        campo->paginaAiuto = paginaQuantoServe;
        campo->dopoTasto = [this] { scordaRisposta(); };
    }
    mostraObiettivo();
    scordaRisposta();
}

void frmRisultatiAnalisiMarginale::attivata() {
    const std::string chiave = navigazione().chiaveCorrente();
    const int cifra = chiave.empty() ? 0 : chiave.back() - '0';
    if (cifra < 1 || cifra > rotonda().NumeroRami()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome() + ", nodo '" + chiave + "'");
    }
    const bool altro = cifra != indice_;
    indice_ = static_cast<std::int16_t>(cifra);
    app().theRamoCorrente = &rotonda().Ramo(indice_);
    sottotitolo.testo(ramo().Descrizione());
    if (altro) {
        scordaRisposta();
    }
    rileggi(altro);
    ctlHelp.pagina(paginaMetodo);
    FinestraRisultati::attivata();
}

void frmRisultatiAnalisiMarginale::rileggi(bool comunque) {
    Sensibilita nuova;
    nuova.imposta(rotonda(), indice_);
    if (!comunque && stessiDati(nuova)) {
        return;
    }
    analisi_ = std::move(nuova);
    timbri_ = {};
    senzaFigure();
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        ctlTab.abilita(static_cast<int>(i), analisi_.attivo(i));
    }
    if (!ctlTab.scheda(ctlTab.corrente()).abilitata) {
        int prima = 0;
        while (!ctlTab.scheda(prima).abilitata) {
            ++prima;  // the summary is always open
        }
        ctlTab.corrente(prima);
    }
    mostraTabelle();
    mostraScheda();
}

bool frmRisultatiAnalisiMarginale::stessiDati(const Sensibilita& altra) const {
    constexpr int righeDate = 2;  // steps and measures
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        if (analisi_.attivo(i) != altra.attivo(i)) {
            return false;
        }
        const Tabella& mia = analisi_.tabella(i).tabella();
        const Tabella& sua = altra.tabella(i).tabella();
        for (int c = 1; c < mia.colonne(); ++c) {
            for (int r = 0; r < righeDate; ++r) {
                if (mia.testo(r, c) != sua.testo(r, c)) {
                    return false;
                }
            }
        }
    }
    return true;
}

void frmRisultatiAnalisiMarginale::mostraTabelle() {
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        griglie.at(i).tabella(analisi_.tabella(i).tabella());
        griglie.at(i).righeVisibili = griglie.at(i).tabella().righe();
    }
}

void frmRisultatiAnalisiMarginale::mostraScheda() {
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        griglie.at(i).visibile(static_cast<int>(i) == ctlTab.corrente());
    }
    frQUANTOSERVE.mostraContenuto(inRiepilogo());
    lblEffetto.visibile(inRiepilogo() && !lblEffetto.testo().empty());
    apriTasti();
    disegna();
    aggiornaNote();
}

void frmRisultatiAnalisiMarginale::apriTasti() {
    const bool grandezza = !inRiepilogo();
    const std::string soloGrandezze = grandezza ? "" : testi::schedaDiGrandezza;
    ctlToolbar.abilita("keyCalcola", !analisi_.nessunoAttivo());
    ctlToolbar.annota("keyCalcola", analisi_.nessunoAttivo() ? testi::nessunaGrandezza : "");
    ctlToolbar.abilita("keyAnteprima", grandezza);
    ctlToolbar.annota("keyAnteprima", soloGrandezze);
    ctlToolbar.abilita("keyRelazione", grandezza);
    ctlToolbar.annota("keyRelazione", soloGrandezze);
    Command1.abilitato(grandezza && analisi_.attivo(static_cast<std::size_t>(ctlTab.corrente())));
}

void frmRisultatiAnalisiMarginale::disegna() {
    if (!inRiepilogo()) {
        RMChartX1.contenuto(graficoSensibilita(inVista(), variabile()));
        return;
    }
    Grafico::Contenuto contenuto;
    if (variabile()) {
        contenuto = graficoTornado(analisi_, *variabile());
    } else {
        contenuto.titolo = titoloSenzaVariabile;
        contenuto.invito = testi::scegliVariabile;
    }
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        if (!analisi_.attivo(i)) {
            contenuto.nota = testi::soloSpuntate;
        }
    }
    RMChartX1.contenuto(std::move(contenuto));
}

std::optional<Prestazione> frmRisultatiAnalisiMarginale::variabile() const {
    const int scelta = opzVARIABILE.scelta();
    return scelta < 0 ? std::nullopt : std::optional{prestazioni.at(static_cast<std::size_t>(scelta))};
}

bool frmRisultatiAnalisiMarginale::chiediVariabile() {
    if (variabile()) {
        return true;
    }
    fuocoSu(opzVARIABILE);
    avverti(testiSensibilita::nessunaVariabile);
    return false;
}

void frmRisultatiAnalisiMarginale::avverti(const MessaggioUtente& detto) {
    messaggio(std::string{detto.testo}, std::string{detto.titolo}, detto.icona);
}

bool frmRisultatiAnalisiMarginale::ammette(const std::string& chiave) {
    const bool conVariabile = chiave == "keyCalcola" || chiave == "keyRelazione";
    if (conVariabile && !chiediVariabile()) {
        return false;
    }
    if (chiave != "keyCalcola" && inVista().senzaRisultati()) {
        avverti(testiSensibilita::nessunRisultato);
        return false;
    }
    return true;
}

Timbro frmRisultatiAnalisiMarginale::momento() const {
    return {FormaCalcolo::ipotesi, app().theRotonda().revisione().calcolo, app().ambienteCalcolo()};
}

void frmRisultatiAnalisiMarginale::calcola() {
    rileggi(false);
    analisi_.calcola(app());
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        if (analisi_.attivo(i)) {
            calcolata(i);
        }
    }
    mostraTabelle();
    disegna();
}

void frmRisultatiAnalisiMarginale::calcolaScheda() {
    if (!chiediVariabile()) {
        return;
    }
    rileggi(false);
    const auto scheda = static_cast<std::size_t>(ctlTab.corrente());
    analisi_.calcola(app(), scheda);
    calcolata(scheda);
    mostraTabelle();
    disegna();
    aggiornaNote();
}

void frmRisultatiAnalisiMarginale::calcolata(std::size_t parametro) {
    timbri_.at(parametro) = analisi_.tabella(parametro).calcolata() ? std::optional{momento()} : std::nullopt;
    const bool figure = std::any_of(timbri_.begin(), timbri_.end(), [](const auto& t) { return t.has_value(); });
    if (figure) {
        figureDi(momento());
    } else {
        senzaFigure();
    }
}

void frmRisultatiAnalisiMarginale::relazione() {
    const auto scheda = static_cast<std::size_t>(ctlTab.corrente());
    if (superato(timbri_.at(scheda))) {
        calcolaScheda();
        if (!timbri_.at(scheda)) {
            return;  // the engine has told why
        }
    }
    servizi().relazioneGrafica(relazioneSensibilita(inVista(), *variabile(), ramo()));
}

std::string frmRisultatiAnalisiMarginale::testoAnteprima() {
    return inVista().testo(rotonda(), app().orologio.adesso());
}

void frmRisultatiAnalisiMarginale::anteprimaFallita(const Guasto& guasto) {
    tracciaGuasto(std::string{testiSensibilita::metodoAnteprima}, guasto);
}

void frmRisultatiAnalisiMarginale::aggiornaNote() {
    FinestraRisultati::aggiornaNote();
    const bool vuota = inRiepilogo() ? !conFigure() : !inVista().calcolata();
    cmdCalcola.visibile(vuota && !analisi_.nessunoAttivo());
    if (superato(timbroRisposta_)) {
        scordaRisposta();
    }
}

bool frmRisultatiAnalisiMarginale::superato(const std::optional<Timbro>& timbro) const {
    return timbro && *timbro != momento();
}

bool frmRisultatiAnalisiMarginale::unaSuperata() const {
    return std::any_of(timbri_.begin(), timbri_.end(), [this](const auto& timbro) { return superato(timbro); });
}

std::string frmRisultatiAnalisiMarginale::motivoVecchi() const {
    if (indice_ == 0) {
        return {};
    }
    if (analisi_.nessunoAttivo()) {
        return testi::nessunaGrandezza;
    }
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        const bool mostrata = inRiepilogo() || static_cast<int>(i) == ctlTab.corrente();
        if (mostrata && superato(timbri_.at(i))) {
            return testi::datiCambiati;
        }
    }
    return {};
}

/// All tables go on paper, whichever tab is in view.
std::string frmRisultatiAnalisiMarginale::vecchiSuCarta() const {
    return unaSuperata() ? testi::datiCambiati : motivoVecchi();
}

std::string frmRisultatiAnalisiMarginale::motivoFlussi() const {
    if (app().theRotonda().TipoAnalisi() == analisi::saturazione) {
        return testi::soloSaturazione;
    }
    std::string nota = notaFlussi(app(), indice_);
    // Figures of the data as they stand come of a run that did succeed; what else the note says stays.
    if (const auto posto = nota.find(testi::senzaCalcolo); posto != std::string::npos && motivoVecchi().empty()) {
        nota.erase(0, std::min(nota.size(), posto + testi::senzaCalcolo.size() + 1));
    }
    return nota;
}

void frmRisultatiAnalisiMarginale::entrato(Controllo& campo) {
    FinestraRisultati::entrato(campo);
    if (dynamic_cast<tBox*>(&campo) == nullptr) {
        ctlHelp.pagina(&campo == &opzOBIETTIVO || &campo == &cmdQuantoServe ? paginaQuantoServe : paginaMetodo);
    }
}

FinestraRisultati::Blocchi frmRisultatiAnalisiMarginale::figureSuCarta() const {
    using D = DocumentoPagine;
    Blocchi blocchi;
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        if (!analisi_.tabella(i).calcolata()) {
            continue;
        }
        blocchi.emplace_back(D::Titolo{ctlTab.scheda(static_cast<int>(i)).titolo, 1});
        // Each table has an age of its own.
        if (superato(timbri_.at(i))) {
            blocchi.emplace_back(D::Paragrafo{.testo = testi::vecchie, .segno = D::Segno::verifica});
        }
        blocchi.emplace_back(tabellaSuCarta(griglie.at(i)));
        if (variabile()) {
            blocchi.emplace_back(kelvo::figuraSuCarta(graficoSensibilita(analisi_.tabella(i), variabile())));
        }
    }
    blocchi.emplace_back(D::Titolo{ctlTab.scheda(schedaRiepilogo).titolo, 1});
    if (unaSuperata()) {
        blocchi.emplace_back(D::Paragrafo{.testo = testi::vecchioRiepilogo, .segno = D::Segno::verifica});
    }
    if (variabile()) {
        blocchi.emplace_back(kelvo::figuraSuCarta(graficoTornado(analisi_, *variabile())));
    }
    if (risposta_) {
        blocchi.emplace_back(
            D::Paragrafo{.testo = lblQuantoServe.testo(), .inizio = std::string{testi::quantoServe} + ": "});
        if (!lblEffetto.testo().empty()) {
            blocchi.emplace_back(D::Paragrafo{lblEffetto.testo()});
        }
    }
    blocchi.emplace_back(D::Paragrafo{.testo = lblSoloLettura.testo(), .quieto = true});
    return blocchi;
}

void frmRisultatiAnalisiMarginale::mostraObiettivo() {
    const bool saturazione = opzOBIETTIVO.scelta() == obiettivoSaturazione;
    txtSaturazione.abilitato(saturazione);
    txtLivello.abilitato(!saturazione);
}

Obiettivo frmRisultatiAnalisiMarginale::obiettivo() const {
    if (opzOBIETTIVO.scelta() == obiettivoSaturazione) {
        return {.saturazione = leggiNumero(txtSaturazione.testo()).value_or(saturazioneObiettivo)};
    }
    return {.livello = livelliServizio.at(primoLivello + static_cast<std::size_t>(txtLivello.scelta()))};
}

void frmRisultatiAnalisiMarginale::cerca() {
    const auto grandezza = static_cast<std::size_t>(txtGrandezza.scelta());
    const Obiettivo meta = obiettivo();
    risposta_ = cercaQuantoServe(app(), indice_, grandezza, meta);
    timbroRisposta_ = momento();
    lblQuantoServe.testo(paroleQuantoServe(*risposta_, grandezza, meta));
    lblEffetto.testo(effettoQuantoServe(*risposta_));
    lblEffetto.visibile(!lblEffetto.testo().empty());
}

void frmRisultatiAnalisiMarginale::scordaRisposta() {
    risposta_.reset();
    timbroRisposta_.reset();
    lblQuantoServe.testo(testi::senzaRisposta);
    lblEffetto.testo({});
    lblEffetto.visibile(false);
}

}  // namespace kelvo
