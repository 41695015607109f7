#include "results/frmRAMO_AGGIUNTIVA.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "app/titoli.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "results/grandezze.h"
#include "results/inVigore.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Dati Riassuntivi ingresso";
constexpr const char* marker = "Marker controllo risultati";
constexpr const char* titolo = "KELVO 2014";
constexpr const char* soloNumeri = "Attenzione! Inserire solo valori numerici";
constexpr const char* ammessi = "Attenzione! valori ammessi";
constexpr const char* coppia = "Attenzione! valore MASSIMO < valore MINIMO  ";
constexpr const char* livelli = "Selezionare un LOS coerente!";
constexpr const char* livelloMancante = "Attenzione! Selezionare un valore corretto per i livelli di servizio (L.O.S.)";
constexpr const char* azzera = "Azzera soglie";
constexpr const char* inferiore = "Valore INFERIORE";
constexpr const char* superiore = "Valore SUPERIORE";
constexpr const char* senzaSoglie = "Questo ingresso non può avere soglie: sono previste per gli ingressi da 1 a {}.";
}  // namespace testi

constexpr std::size_t postoLivello = 5;
constexpr std::string_view nessunLivello = "-";
constexpr const char* cifre = "0123456789,";
constexpr const char* metodoApertura = "frmRAMO_AGGIUNTIVA:Form_Load";
constexpr const char* metodoAnteprima = "frmRAMO_AGGIUNTIVA:Anteprima";

template <std::size_t... I>
std::array<frmRAMO_AGGIUNTIVA::Soglia, sizeof...(I)> creaSoglie(std::index_sequence<I...> /*indici*/) {
    const auto faccia = [](std::size_t i) { return i == postoLivello ? tBox::combobox : tBox::maskedit; };
    return {frmRAMO_AGGIUNTIVA::Soglia{Casella{std::string{vociSoglia[I].spunta}, std::string{vociSoglia[I].etichetta}},
                                       tBox{std::string{vociSoglia[I].minimo}, faccia(I)},
                                       tBox{std::string{vociSoglia[I].massimo}, faccia(I)}}...};
}

std::string testoLimiti(double minimo, double massimo) {
    return ": MINIMO = " + testoNumero(minimo) + "; MASSIMO = " + testoNumero(massimo);
}

/// Tells in which project thresholds were set: the one at hand or another one.
std::string testoProgetto(const std::string& nome, bool altro) {
    if (nome.empty()) {
        return altro ? "Soglie impostate in un altro progetto, senza nome." : "Soglie impostate in questo progetto.";
    }
    return fmt::format("Soglie impostate in {}\"{}\".", altro ? "un altro progetto: " : "", nome);
}

}  // namespace

const std::array<VoceSoglia, 6> vociSoglia{{
    {"chFLUSSO", "txtvalMIN1", "txtvalMAX1", "Flusso [veic./min]", "#0.00", "Attenzione! valori ammessi per il FLUSSO",
     "Attenzione! valore MASSIMO FLUSSO non coerente con valore MINIMO", "SogliaFlusso.htm"},
    {"chCAPACITA", "txtvalMIN2", "txtvalMAX2", "Capacità [veic./h]", "#0.00",
     "Attenzione! valori ammessi per la CAPACITA'",
     "Attenzione! valore MASSIMO CAPACITA non coerente con valore MINIMO", "SogliaCapacita.htm"},
    {"chSATURAZIONE", "txtvalMIN3", "txtvalMAX3", "Coeff. Saturazione", "#0.000",
     "Attenzione! valori ammessi per il COEFF. SATURAZIONE",
     "Attenzione! valore MASSIMO non coerente con valore MINIMO", "SogliaSaturazione.htm"},
    {"chCODA", "txtvalMIN4", "txtvalMAX4", "Coda  [veic.]", "#0.0", "Attenzione! valori ammessi per la CODA",
     "Attenzione! valore MASSIMO non coerente con valore MINIMO", "SogliaCoda.htm"},
    {"chRITARDO", "txtvalMIN5", "txtvalMAX5", "Ritardo [sec./veic.]", "#0.0",
     "Attenzione! valori ammessi per il RITARDO", "Attenzione! valore MASSIMO non coerente con valore MINIMO",
     "SogliaRitardo.htm"},
    {"chLOS", "comboLOSmin", "comboLOSmax", "L.O.S.", "#0", "", "", "SogliaLivello.htm"},
}};

frmRAMO_AGGIUNTIVA::frmRAMO_AGGIUNTIVA(const Contorno& contorno, const ServiziRisultati& servizi)
    : Finestra(contorno, "frmRAMO_AGGIUNTIVA", testi::didascalia),
      ctlToolbar("ctlToolbar", {{.chiave = "Anteprima",
                                 .testo = "Anteprima",
                                 .suggerimento = "Scrive la tabella in un file di testo e lo apre",
                                 .icona = "Anteprima",
                                 .scorciatoia = "Ctrl+P"},
                                {.chiave = "Ritorno",
                                 .testo = "Ritorno",
                                 .suggerimento = "Registra le soglie e torna ai risultati dell'ingresso",
                                 .icona = "Ritorno",
                                 .scorciatoia = "Ctrl+Enter"}}),
      frRIASSUNTO("frRIASSUNTO", testi::didascalia, {&ctlGRID1, &lblMinLOS, &txtminLOS, &lblMaxLOS, &txtmaxLOS}),
      lblMinLOS("lblMinLOS", "L.O.S. minimo"),
      lblMaxLOS("lblMaxLOS", "L.O.S. massimo"),
      lblInVigore("lblInVigore", {}, "GREY"),
      frMARKER("frMARKER", testi::marker, {}),
      lblInferiore("lblInferiore", testi::inferiore, "GREY"),
      lblSuperiore("lblSuperiore", testi::superiore, "GREY"),
      soglie(creaSoglie(std::make_index_sequence<6>())),
      cmdAzzera("cmdAzzera", testi::azzera),
      servizi_(servizi),
      anteprima_(contorno, servizi_.finestre, servizi_.documenti) {
    std::vector<Controllo*> controlli{&frRIASSUNTO, &ctlGRID1,    &lblMinLOS, &txtminLOS,    &lblMaxLOS,
                                      &txtmaxLOS,   &lblInVigore, &frMARKER,  &lblInferiore, &lblSuperiore};
    for (Soglia& soglia : soglie) {
        controlli.insert(controlli.end(), {&soglia.spunta, &soglia.minimo, &soglia.massimo});
    }
    controlli.insert(controlli.end(), {&lblProgetto, &cmdAzzera, &lblSenzaSoglie});
    ordina(controlli);
    txtminLOS.paginaAiuto = "LivelloMinimo.htm";
    txtmaxLOS.paginaAiuto = "LivelloMassimo.htm";
    txtminLOS.solaLettura(true);
    txtmaxLOS.solaLettura(true);
    ctlToolbar.allaPressione = [this](const std::string& chiave) { premuto(chiave); };
    for (std::size_t i = 0; i < soglie.size(); ++i) {
        collega(i);
    }
    cmdAzzera.allaPressione = [this] {
        app().risultati.marker.azzera(apertura_.ramo);
        leggiSoglie();
    };
    fuocoMutato().connect([this] {
        for (const Soglia& soglia : soglie) {
            if (fuoco() == &soglia.minimo || fuoco() == &soglia.massimo) {
                lasciati_ = {soglia.minimo.testo(), soglia.massimo.testo()};
            }
        }
    });
    ctlGRID1.colonna(0, {.allineamento = AllineamentoCella::sinistra});
    ctlGRID1.ornamento = [this](Posto posto) {
        OrnamentoCella ornamento;
        const std::string& testo = ctlGRID1.testo(posto.riga, posto.colonna);
        if (posto.riga == colonnaLivello && posto.colonna > 0 && !testo.empty()) {
            ornamento.distintivo = distintivoLivello(testo);
        }
        return ornamento;
    };
}

frmRAMO_AGGIUNTIVA::~frmRAMO_AGGIUNTIVA() {
    servizi_.finestre.dimentica(*this);
}

void frmRAMO_AGGIUNTIVA::collega(std::size_t posto) {
    Soglia& soglia = soglie[posto];
    soglia.minimo.paginaAiuto = vociSoglia[posto].pagina;
    soglia.massimo.paginaAiuto = vociSoglia[posto].pagina;
    soglia.spunta.alClic = [this] { abilita(); };
    if (posto == postoLivello) {
        std::vector<std::string> voci(livelliServizio.begin(), livelliServizio.end());
        soglia.minimo.voci(voci);
        soglia.massimo.voci(voci);
        soglia.massimo.dopoTasto = [this] { controllaLivelli(); };
        return;
    }
    for (tBox* campo : {&soglia.minimo, &soglia.massimo}) {
        campo->caratteriAmmessi = cifre;
        campo->tuttoONiente = true;
        campo->nomeCampo = vociSoglia[posto].etichetta;
        campo->controllo = [campo] {
            return leggiNumero(campo->testo())
                       ? EsitoUscita::bene()
                       : EsitoUscita::rifiuto(MessaggioCampo{testi::soloNumeri, testi::titolo, Icona::esclamazione});
        };
        campo->dopoUscita = [this, posto] { controllaCoppia(posto); };
    }
}

void frmRAMO_AGGIUNTIVA::attivata() {
    sottotitolo.testo(ramo().Descrizione());
    ctlHelp.pagina("DatiRiassuntivi.htm");
    riempiRiassunto();
    lblInVigore.testo(rigaInVigore(app()));
    frRIASSUNTO.mostraContenuto(apertura_.riassunto || !apertura_.marker);
    try {
        leggiSoglie();
    } catch (const Guasto& guasto) {
        chiudiSoglie();
        // Whoever did not ask for thresholds is not stopped by a box.
        app().comune.erroreLog(guasto.codice(), metodoApertura, guasto.descrizione(), apertura_.marker);
    }
}

void frmRAMO_AGGIUNTIVA::riempiRiassunto() {
    const StatisticheIngresso& s = app().risultati.statistiche;
    Tabella tabella = tabellaRiassunto();
    riempiTabellaRiassunto(s, tabella);
    ctlGRID1.tabella(std::move(tabella));
    txtminLOS.testo(s.livelloMinimo);
    txtmaxLOS.testo(s.livelloMassimo);
}

void frmRAMO_AGGIUNTIVA::leggiSoglie() {
    lblSenzaSoglie.visibile(false);
    frMARKER.visibile(apertura_.marker);
    const Marker& m = app().risultati.marker;
    for (std::size_t i = 0; i < soglie.size(); ++i) {
        const int q = static_cast<int>(i) + 1;
        const bool attiva = m.MarkerAttivo(apertura_.ramo, q) != 0.0;
        const auto testo = [&](double v) {
            return i == postoLivello ? std::string{livelloDiCodice(static_cast<int>(v))}
                                     : formatta(v, vociSoglia[i].formato);
        };
        soglie[i].spunta.abilitato(true);
        soglie[i].spunta.spuntata(attiva);
        soglie[i].minimo.testo(testo(m.MarkerMinimo(apertura_.ramo, q)));
        soglie[i].massimo.testo(testo(m.MarkerMassimo(apertura_.ramo, q)));
    }
    livelloMassimo_ = soglie[postoLivello].massimo.testo();
    abilita();
    mostraProgetto();
}

void frmRAMO_AGGIUNTIVA::chiudiSoglie() {
    frRIASSUNTO.mostraContenuto(true);
    for (Soglia& soglia : soglie) {
        soglia.spunta.spuntata(false);
        soglia.spunta.abilitato(false);
        soglia.minimo.testo({});
        soglia.massimo.testo({});
    }
    abilita();
    lblProgetto.visibile(false);
    cmdAzzera.visibile(false);
    lblSenzaSoglie.testo(fmt::format(testi::senzaSoglie, TabellaMarker::ingressi));
    lblSenzaSoglie.visibile(apertura_.marker);
}

void frmRAMO_AGGIUNTIVA::abilita() {
    for (Soglia& soglia : soglie) {
        const bool riga = apertura_.marker;
        soglia.spunta.visibile(riga);
        soglia.minimo.visibile(riga);
        soglia.massimo.visibile(riga);
        const bool accesa = soglia.spunta.spuntata();
        // A closed field is asked nothing any more: what it would have refused gives way to what stood there.
        for (tBox* campo : {&soglia.minimo, &soglia.massimo}) {
            if (!accesa && campo->fallito()) {
                campo->annulla();
            }
            campo->abilitato(accesa);
        }
    }
}

void frmRAMO_AGGIUNTIVA::mostraProgetto() {
    const Marker& m = app().risultati.marker;
    const bool attivi = m.attivi(apertura_.ramo);
    const Marker::Progetto& progetto = m.progetto[static_cast<std::size_t>(apertura_.ramo) - 1];
    const bool altro = progetto.numero != app().numeroProgetto();
    // A project that was given another name since is still the same one.
    lblProgetto.testo(attivi ? testoProgetto(altro ? progetto.nome : app().theRotonda().NomeFile(), altro)
                             : std::string{});
    lblProgetto.visibile(attivi && apertura_.marker);
    cmdAzzera.visibile(apertura_.marker);
    cmdAzzera.abilitato(attivi);
}

double frmRAMO_AGGIUNTIVA::valore(const tBox& campo, double conservato) const {
    return campo.modificato() ? leggiNumero(campo.testo()).value_or(0.0) : conservato;
}

double frmRAMO_AGGIUNTIVA::minimo(std::size_t posto) const {
    const tBox& campo = soglie[posto].minimo;
    return posto == postoLivello
               ? codiceLivello(campo.testo())
               : valore(campo, app().risultati.marker.MarkerMinimo(apertura_.ramo, static_cast<int>(posto) + 1));
}

double frmRAMO_AGGIUNTIVA::massimo(std::size_t posto) const {
    const tBox& campo = soglie[posto].massimo;
    return posto == postoLivello
               ? codiceLivello(campo.testo())
               : valore(campo, app().risultati.marker.MarkerMassimo(apertura_.ramo, static_cast<int>(posto) + 1));
}

void frmRAMO_AGGIUNTIVA::controllaCoppia(std::size_t posto) {
    const Soglia& soglia = soglie[posto];
    coppiaRifiutata_ = false;
    if (lasciati_ == std::array{soglia.minimo.testo(), soglia.massimo.testo()}) {
        return;  // nothing was confirmed
    }
    lasciati_ = {soglia.minimo.testo(), soglia.massimo.testo()};
    const StatisticheIngresso& s = app().risultati.statistiche;
    const auto fuori = [&](double v) { return v < s.ValoriMinimi[posto] || v > s.ValoriMassimi[posto]; };
    std::string motivo;
    if (fuori(minimo(posto)) || fuori(massimo(posto))) {
        motivo = testi::ammessi + testoLimiti(s.ValoriMinimi[posto], s.ValoriMassimi[posto]);
    } else if (massimo(posto) < minimo(posto)) {
        motivo = testi::coppia + soglia.massimo.testo() + " < " + soglia.minimo.testo();
    }
    if (!motivo.empty()) {
        coppiaRifiutata_ = true;
        messaggio(motivo, titoli::attenzione, Icona::esclamazione);
    }
}

void frmRAMO_AGGIUNTIVA::controllaLivelli() {
    Soglia& soglia = soglie[postoLivello];
    const std::string scelto = soglia.massimo.testo();
    const int sopra = codiceLivello(scelto);
    const int sotto = codiceLivello(soglia.minimo.testo());
    if (sopra != 0 && sotto != 0 && sopra < sotto) {
        soglia.massimo.modifica(livelloMassimo_);
        messaggio(testi::livelli, testi::titolo, Icona::critica);
        return;
    }
    livelloMassimo_ = scelto;
}

std::optional<std::string> frmRAMO_AGGIUNTIVA::esamina(std::size_t posto) const {
    if (!soglie[posto].spunta.spuntata()) {
        return std::nullopt;
    }
    if (posto == postoLivello) {
        const bool manca =
            soglie[posto].minimo.testo() == nessunLivello || soglie[posto].massimo.testo() == nessunLivello;
        return manca ? std::optional<std::string>{testi::livelloMancante} : std::nullopt;
    }
    const StatisticheIngresso& s = app().risultati.statistiche;
    const auto fuori = [&](double v) { return v < s.ValoriMinimi[posto] || v > s.ValoriMassimi[posto]; };
    if (fuori(minimo(posto)) || fuori(massimo(posto))) {
        return std::string{vociSoglia[posto].fuoriIntervallo} +
               testoLimiti(s.ValoriMinimi[posto], s.ValoriMassimi[posto]);
    }
    return massimo(posto) < minimo(posto) ? std::optional{std::string{vociSoglia[posto].incoerente}} : std::nullopt;
}

std::optional<std::string> frmRAMO_AGGIUNTIVA::primoErrore() const {
    for (std::size_t i = 0; i < soglie.size(); ++i) {
        if (auto motivo = esamina(i)) {
            return motivo;
        }
    }
    return std::nullopt;
}

bool frmRAMO_AGGIUNTIVA::nessunaSpunta() const {
    return std::none_of(soglie.begin(), soglie.end(), [](const Soglia& s) { return s.spunta.spuntata(); });
}

void frmRAMO_AGGIUNTIVA::Ritorno() {
    if (!apertura_.marker || nessunaSpunta()) {
        torna(false);
        return;
    }
    if (const auto motivo = primoErrore()) {
        messaggio(*motivo, testi::titolo, Icona::esclamazione);
        return;
    }
    registra();
    torna(true);
}

void frmRAMO_AGGIUNTIVA::registra() {
    Marker& m = app().risultati.marker;
    for (std::size_t i = 0; i < soglie.size(); ++i) {
        const int q = static_cast<int>(i) + 1;
        const double sopra = massimo(i);
        const double sotto = minimo(i);
        m.MarkerAttivo(apertura_.ramo, q) = soglie[i].spunta.spuntata() ? 1.0 : 0.0;
        m.MarkerMassimo(apertura_.ramo, q) = sopra;
        m.MarkerMinimo(apertura_.ramo, q) = sotto;
    }
    m.progetto[static_cast<std::size_t>(apertura_.ramo) - 1] = {app().numeroProgetto(), rotonda().NomeFile()};
}

void frmRAMO_AGGIUNTIVA::torna(bool visualizza) {
    if (alRitorno) {
        alRitorno(visualizza);
    }
}

void frmRAMO_AGGIUNTIVA::anteprima() {
    try {
        anteprima_.apri("Risultati2.txt",
                        testoRiassunto(ctlGRID1.tabella(), ramo(), rotonda(), app().orologio.adesso()));
    } catch (const Guasto& guasto) {
        app().comune.traceLog(fmt::format("{} {} : {}", metodoAnteprima, guasto.codice(), guasto.descrizione()));
        cornice().avviso(guasto.descrizione());
    }
}

void frmRAMO_AGGIUNTIVA::premuto(const std::string& chiave) {
    coppiaRifiutata_ = false;
    if (!lasciaFuoco()) {
        return;
    }
    cornice().avviso({});
    if (chiave == "Anteprima") {
        anteprima();
        return;
    }
    if (!coppiaRifiutata_) {  // one box is enough
        gestisci("frmRAMO_AGGIUNTIVA:Ritorno", [this] { Ritorno(); });
    }
}

}  // namespace kelvo
