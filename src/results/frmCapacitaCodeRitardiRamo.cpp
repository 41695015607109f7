#include "results/frmCapacitaCodeRitardiRamo.h"

#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"
#include "results/inVigore.h"
#include "results/tabellaRamo.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Risultati: Verifiche prestazionali";
constexpr const char* legenda = "Premi tasto Dx del Mouse per visualizzare legenda valori e colori.";
constexpr const char* valori = "Valori riassuntivi";
constexpr const char* grandezza = "Grandezza";
constexpr const char* unita = "Unità";
constexpr const char* grafici = "Grafici";
constexpr const char* voceLegenda = "Legenda valori e colori";
}  // namespace testi

constexpr const char* chiaveVisualizza = "Visualizza";
constexpr const char* chiaveAggiuntivi = "Aggiuntivi";
constexpr const char* chiaveLegenda = "mnuXLegenda";
constexpr const char* metodoGrafici = "frmCapacitaCodeRitardiRamo:DoTheChart";
constexpr std::size_t graficoLOS = 4;
constexpr int formaLinee = 0;
constexpr int formaBarre = 1;

/// Controls and format of what the right column tells of a chart.
struct VoceRiassunto {
    const char* minimo = "";
    const char* massimo = "";
    const char* medio = "";
    const char* unita = "";
    Formato formato = "#0";
};
constexpr std::array<VoceRiassunto, frmCapacitaCodeRitardiRamo::numeroGrafici> vociRiassunto{{
    {"txtMIN", "txtMAX", "txtMEDIA", "[veic./h]", "#0.00"},
    {"txtMIN2", "txtMAX2", "txtMEDIA2", "", "#0.000"},
    {"txtMIN3", "txtMAX3", "txtMEDIA3", "[veic.]", "#0.0"},
    {"txtMIN4", "txtMAX4", "txtMEDIA4", "[s/veic.]", "#0.0"},
    {"txtminLOS", "txtmaxLOS", "txtmedLOS", "", "#0"},
}};

template <std::size_t... I>
std::array<frmCapacitaCodeRitardiRamo::Riassunto, sizeof...(I)> creaRiassunti(std::index_sequence<I...> /*indici*/) {
    return {frmCapacitaCodeRitardiRamo::Riassunto{
        tBox{vociRiassunto[I].minimo, tBox::textbox}, tBox{vociRiassunto[I].massimo, tBox::textbox},
        tBox{vociRiassunto[I].medio, tBox::textbox},
        Etichetta{"lblUnita" + std::to_string(I + 1), vociRiassunto[I].unita, "GREY"}}...};
}

std::vector<std::string> titoliSchede() {
    std::vector<std::string> titoli{"Risultati"};
    for (const GraficoGrandezza& grafico : graficiGrandezze) {
        titoli.emplace_back(grafico.titolo);
    }
    titoli.emplace_back(titoloLivelli);
    return titoli;
}

}  // namespace

frmCapacitaCodeRitardiRamo::frmCapacitaCodeRitardiRamo(const Contorno& contorno, const ServiziRisultati& servizi)
    : FinestraRisultati(contorno, servizi, "frmCapacitaCodeRitardiRamo", testi::didascalia),
      ctlToolbar2("ctlToolbar2", {{.chiave = chiaveVisualizza,
                                   .testo = "Visualizza",
                                   .suggerimento = "Colora i valori oltre le soglie",
                                   .icona = "Visualizza",
                                   .abilitato = false,
                                   .scorciatoia = "F8"},
                                  {.chiave = chiaveAggiuntivi,
                                   .testo = "Aggiuntivi",
                                   .suggerimento = "Apre i dati riassuntivi e le soglie dell'ingresso",
                                   .icona = "Aggiuntivi",
                                   .abilitato = false,
                                   .scorciatoia = "F7"}}),
      ctlTab("ctlTab", titoliSchede()),
      lblLegenda("lblLegenda", testi::legenda, "GREY"),
      grafici{Grafico{std::string{graficiGrandezze[0].nome}}, Grafico{std::string{graficiGrandezze[1].nome}},
              Grafico{std::string{graficiGrandezze[2].nome}}, Grafico{std::string{graficiGrandezze[3].nome}},
              Grafico{"ctlChartLOS"}},
      frVALORI("frVALORI", testi::valori, {}),
      lblMINIMO("lblMINIMO", "MINIMO"),
      lblMASSIMO("lblMASSIMO", "MASSIMO"),
      lblMEDIO("lblMEDIO", "MEDIO"),
      riassunti(creaRiassunti(std::make_index_sequence<numeroGrafici>())),
      cmdRIASSUNTO("cmdRIASSUNTO", "Dati Riassuntivi ingresso", Casella::bottone),
      cmdMARKER("cmdMARKER", "Visualizzatore Marker", Casella::bottone),
      chkValori("chkValori", "Inserisci valori grafico"),
      opzForma("opzForma",
               {{.nome = "optLINEE", .testo = "Grafico a LINEE"}, {.nome = "optBARRE", .testo = "Grafico a BARRE"}},
               formaBarre),
      legenda(contorno),
      aggiuntiva(contorno, servizi) {
    chkValori.spuntata(true);
    ordinaControlli();
    collega();
}

frmCapacitaCodeRitardiRamo::~frmCapacitaCodeRitardiRamo() {
    servizi().finestre.dimentica(legenda);
}

void frmCapacitaCodeRitardiRamo::ordinaControlli() {
    std::vector<Controllo*> controlli{&ctlTab, &ctlGrid, &lblLegenda};
    for (Grafico& grafico : grafici) {
        controlli.push_back(&grafico);
    }
    controlli.insert(controlli.end(), {&frVALORI, &lblMINIMO, &lblMASSIMO, &lblMEDIO});
    for (Riassunto& r : riassunti) {
        for (tBox* campo : {&r.minimo, &r.massimo, &r.medio}) {
            campo->solaLettura(true);
            controlli.push_back(campo);
        }
        controlli.push_back(&r.unita);
    }
    controlli.insert(controlli.end(), {&cmdRIASSUNTO, &cmdMARKER, &chkValori, &opzForma});
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
}

void frmCapacitaCodeRitardiRamo::collega() {
    ctlToolbar2.allaPressione = [this](const std::string& chiave) { premuto2(chiave); };
    ctlTab.alCambio = [this](int /*scheda*/) { mostraScheda(); };
    ctlGrid.alTastoDestro = [this](Posto /*posto*/) { mostraLegenda(); };
    menuTabella.aggiungiMenu("mnuXTabella", {});
    menuTabella.aggiungi({.padre = "mnuXTabella", .testo = testi::voceLegenda, .chiave = chiaveLegenda});
    menuTabella.alClic = [this](const std::string& /*chiave*/) { mostraLegenda(); };
    ctlGrid.menuContesto = &menuTabella;
    ctlGrid.colonna(0, {.allineamento = AllineamentoCella::centro});
    ctlGrid.colonna(colonnaLivello, {.allineamento = AllineamentoCella::centro});
    ctlGrid.ornamento = [this](Posto posto) { return ornamentoRamo(ctlGrid.tabella(), statistiche_, posto); };
    cmdMARKER.alClic = [this] { legenda.mostraColori(cmdMARKER.spuntata()); };
    chkValori.alClic = [this] { ridisegna(); };
    opzForma.alCambio = [this](int /*scelta*/) { ridisegna(); };
    legenda.allaChiusura = [this] { servizi().finestre.chiudi(legenda); };
    legenda.mostraColori(false);
    aggiuntiva.alRitorno = [this](bool visualizza) { tornato(visualizza); };
    mostraScheda();
}

void frmCapacitaCodeRitardiRamo::attivata() {
    if (ritorno_) {
        ritorno_ = false;
        primoFuoco();
        return;
    }
    const std::string chiave = navigazione().chiaveCorrente();
    const int cifra = chiave.empty() ? 0 : chiave.back() - '0';
    if (cifra < 1 || cifra > rotonda().NumeroRami()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome() + ", nodo '" + chiave + "'");
    }
    const bool altro = cifra != indice_;
    indice_ = static_cast<std::int16_t>(cifra);
    app().theRamoCorrente = &rotonda().Ramo(indice_);
    sottotitolo.testo(ramo().Descrizione());
    if (altro || !conFigure()) {
        svuota();
    }
    ctlToolbar2.abilita(chiaveVisualizza, false);
    ctlToolbar2.abilita(chiaveAggiuntivi, false);
    FinestraRisultati::attivata();
    primoFuoco();
}

/// The keyboard starts where the work is: on the table or chart in view, or on the button that fills it.
void frmCapacitaCodeRitardiRamo::primoFuoco() {
    if (ctlTab.corrente() != 0) {
        fuocoSu(grafici[static_cast<std::size_t>(ctlTab.corrente()) - 1]);
    } else if (!fuocoSu(cmdCalcola)) {
        fuocoSu(ctlGrid);
    }
}

void frmCapacitaCodeRitardiRamo::nascosta() {
    servizi().finestre.chiudi(legenda);
}

void frmCapacitaCodeRitardiRamo::svuota() {
    senzaFigure();
    statistiche_ = {};
    ctlGrid.tabella(impostaTabellaRamo(rotonda()));
    mostraRiassunti();
    disegna(0);
}

void frmCapacitaCodeRitardiRamo::mostraScheda() {
    const int scheda = ctlTab.corrente();
    if (scheda != 0) {
        servizi().finestre.chiudi(legenda);  // it tells the table
    }
    ctlGrid.visibile(scheda == 0);
    lblLegenda.visibile(scheda == 0);
    for (Controllo* c : std::initializer_list<Controllo*>{&frVALORI, &lblMINIMO, &lblMASSIMO, &lblMEDIO}) {
        c->visibile(scheda != 0);
    }
    for (std::size_t i = 0; i < numeroGrafici; ++i) {
        const bool suo = scheda == static_cast<int>(i) + 1;
        grafici[i].visibile(suo);
        for (Controllo* c : std::initializer_list<Controllo*>{&riassunti[i].minimo, &riassunti[i].massimo,
                                                              &riassunti[i].medio, &riassunti[i].unita}) {
            c->visibile(suo);
        }
    }
}

void frmCapacitaCodeRitardiRamo::mostraRiassunti() {
    const StatisticheIngresso& s = statistiche_;
    for (std::size_t i = 0; i < graficiGrandezze.size(); ++i) {
        const auto q = static_cast<std::size_t>(graficiGrandezze[i].colonna) - 1;
        const auto testo = [&](double v) { return s.presenti ? formatta(v, vociRiassunto[i].formato) : std::string{}; };
        riassunti[i].minimo.testo(testo(s.ValoriMinimi[q]));
        riassunti[i].massimo.testo(testo(s.ValoriMassimi[q]));
        riassunti[i].medio.testo(testo(s.ValoriMedi[q]));
    }
    riassunti[graficoLOS].minimo.testo(s.livelloMinimo);
    riassunti[graficoLOS].massimo.testo(s.livelloMassimo);
    riassunti[graficoLOS].medio.testo(s.livelloMedio);
}

void frmCapacitaCodeRitardiRamo::disegna(int segmenti) {
    traccia(metodoGrafici, [&] {
        const Tabella& tabella = ctlGrid.tabella();
        for (std::size_t i = 0; i < numeroGrafici; ++i) {
            Grafico::Contenuto contenuto =
                i == graficoLOS ? graficoLivelli(rotonda(), tabella, segmenti, opzioni())
                                : graficoValori(rotonda(), tabella, graficiGrandezze[i], segmenti, opzioni());
            contenuto.titolo += " - " + ramo().Descrizione();
            grafici[i].contenuto(std::move(contenuto));
        }
    });
}

void frmCapacitaCodeRitardiRamo::ridisegna() {
    for (Grafico& grafico : grafici) {
        grafico.mostraValori(opzioni().valori);
        grafico.forma(opzioni().forma);
    }
}

OpzioniGrafici frmCapacitaCodeRitardiRamo::opzioni() const {
    return {opzForma.scelta() == formaLinee ? Grafico::Forma::linee : Grafico::Forma::barre, chkValori.spuntata()};
}

void frmCapacitaCodeRitardiRamo::calcola() {
    simula();
    Tabella tabella = impostaTabellaRamo(rotonda());
    statistiche_ = riempiTabellaRamo(ramo(), tabella);
    app().risultati.statistiche = statistiche_;
    ctlGrid.tabella(std::move(tabella));
    figureDi(rotonda().timbro());
    mostraRiassunti();
    disegna(ramo().theDatiTraffico().NumSegmentiTempo());
    ctlToolbar2.abilita(chiaveAggiuntivi, true);
}

std::string frmCapacitaCodeRitardiRamo::testoAnteprima() {
    return testoRamo(ctlGrid.tabella(), ramo(), rotonda(), app().orologio.adesso());
}

std::string frmCapacitaCodeRitardiRamo::motivoFlussi() const {
    return figureDelProgetto() ? notaFlussi(app(), indice_) : std::string{};
}

DocumentoPagine::Tabella frmCapacitaCodeRitardiRamo::riassuntiSuCarta() const {
    using D = DocumentoPagine;
    D::Tabella tabella{.colonne = {{testi::grandezza, 3.0, AllineamentoCella::sinistra},
                                   {lblMINIMO.testo(), 1.0},
                                   {lblMASSIMO.testo(), 1.0},
                                   {lblMEDIO.testo(), 1.0},
                                   {testi::unita, 1.0, AllineamentoCella::sinistra}},
                       .righe = {}};
    for (std::size_t i = 0; i < riassunti.size(); ++i) {
        const Riassunto& r = riassunti[i];
        tabella.righe.push_back({{.testo = ctlTab.scheda(static_cast<int>(i) + 1).titolo},
                                 {.testo = r.minimo.testo()},
                                 {.testo = r.massimo.testo()},
                                 {.testo = r.medio.testo()},
                                 {.testo = r.unita.testo()}});
    }
    return tabella;
}

FinestraRisultati::Blocchi frmCapacitaCodeRitardiRamo::figureSuCarta() const {
    using D = DocumentoPagine;
    Blocchi blocchi{D::Titolo{ctlTab.scheda(0).titolo, 1}, tabellaSuCarta(ctlGrid), D::Titolo{testi::valori, 1},
                    riassuntiSuCarta(), D::Titolo{testi::grafici, 1}};
    for (const Grafico& grafico : grafici) {
        blocchi.emplace_back(kelvo::figuraSuCarta(grafico.contenuto()));
    }
    return blocchi;
}

void frmCapacitaCodeRitardiRamo::premuto2(const std::string& chiave) {
    if (!lasciaFuoco()) {
        return;
    }
    const std::string metodo = nome() + ":" + chiave;
    gestisci(metodo.c_str(), [&] {
        if (chiave == chiaveVisualizza) {
            Visualizza();
        } else {
            Aggiuntivi();
        }
    });
}

void frmCapacitaCodeRitardiRamo::Visualizza() {
    ctlGrid.modifica([this](Tabella& tabella) { segnaSoglie(ramo(), indice_, app().risultati.marker, tabella); });
}

void frmCapacitaCodeRitardiRamo::Aggiuntivi() {
    aggiuntiva.prepara({.ramo = indice_, .riassunto = cmdRIASSUNTO.spuntata(), .marker = cmdMARKER.spuntata()});
    servizi().finestre.mostra(aggiuntiva);
}

void frmCapacitaCodeRitardiRamo::tornato(bool visualizza) {
    ritorno_ = true;
    if (servizi().finestre.mostra(*this)) {
        ctlToolbar2.abilita(chiaveVisualizza, visualizza);
    }
    ritorno_ = false;
}

void frmCapacitaCodeRitardiRamo::mostraLegenda() {
    legenda.mostraColori(cmdMARKER.spuntata());
    servizi().finestre.affianca(legenda);
}

}  // namespace kelvo
