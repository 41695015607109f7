#include "results/frmDX.h"

#include <memory>
#include <utility>

#include "base/guasto.h"
#include "pianta/Pianta.h"
#include "results/calcoloIpotesi.h"
#include "results/inVigore.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* nelleCifre = "Corsie di svolta a destra: ";
constexpr const char* didascalia = "Analisi e Simulazione: Corsia preferenziale svolta in destra";
constexpr const char* scelta = "Scegliere corsia di svolta a destra da verificare:";
constexpr const char* stampa = "Inserisci il confronto nella relazione";
constexpr const char* legenda =
    "(*) Valore dovuto all'introduzione della corsia preferenziale di svolta in destra. Una variazione positiva è una "
    "diminuzione.";
constexpr const char* soloSaturazione =
    "Il confronto richiede una domanda nel tempo: l'analisi è di sola saturazione (Opzioni).";
constexpr const char* tralasciato = "\r\nLa relazione lo tralascia.";
constexpr const char* svolteNelleCifre = "Svolte a destra delle corsie del confronto";
constexpr const char* altreCorsie = "Le corsie scelte non sono quelle del confronto mostrato. Premere Calcola (F9).";
constexpr const char* interrotto = "Il calcolo si è interrotto: le cifre non sono complete.";
}  // namespace testi

constexpr const char* paginaCorsie = "CorsiaDX.htm";
constexpr std::array tastiConCorsie{"keyCalcola", "keyAnteprima", "keyRelazione"};
/// Rows of the level of service: without and with the lanes.
constexpr int righeLivello = 2;

template <std::size_t... I>
std::array<tBox, sizeof...(I)> creaNomi(std::index_sequence<I...> /*indici*/) {
    return {tBox{"txtIngresso" + std::to_string(I + 1), tBox::textbox}...};
}

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> creaFlussi(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{std::string{posizioniDX[I].etichetta}}...};
}

}  // namespace

frmDX::frmDX(const Contorno& contorno, const ServiziRisultati& servizi)
    : FinestraRisultati(contorno, servizi, "frmDX", testi::didascalia),
      frameAVVISO("frameAVVISO", std::string{testiDX::titoloAvviso}, {&lblAVVISO}),
      lblAVVISO("lblAVVISO", std::string{testiDX::avviso}),
      frSCELTA("frSCELTA", testi::scelta, {}),
      txtIngresso(creaNomi(std::make_index_sequence<ramiConCorsie>())),
      flussi(creaFlussi(std::make_index_sequence<posizioniDX.size()>())),
      chkStampaDX("chkStampaDX", testi::stampa),
      ctlPianta("ctlPianta",
                [this] {
                    return corsieDisponibili(rotondaMostrata())
                               ? piantaDaMostrare(pianta::datiPianta(rotondaMostrata()),
                                                  pianta::OpzioniPianta{.nomi = false, .flussi = svolteScelte()})
                               : DocumentoPagine::Pianta{};
                }),
      lblLegenda("lblLegenda", testi::legenda, "GREY") {
    std::vector<std::string> voci;
    for (const PosizioneDX& posizione : posizioniDX) {
        voci.emplace_back(posizione.testo);
    }
    listDX.voci(voci);
    listDX.alClic = [this](int /*voce*/) { aggiornaNote(); };
    for (tBox& nome : txtIngresso) {
        nome.solaLettura(true);
        nome.paginaAiuto = paginaCorsie;
    }
    // The levels stand in boxes of their own, as in the other tables.
    ctlGrid.ornamento = [this](Posto posto) {
        OrnamentoCella ornamento;
        const bool livello = posto.colonna > 0 && posto.riga >= ctlGrid.tabella().righe() - righeLivello;
        if (livello && !ctlGrid.tabella().testo(posto.riga, posto.colonna).empty()) {
            ornamento.distintivo = distintivoLivello(ctlGrid.tabella().testo(posto.riga, posto.colonna));
        }
        return ornamento;
    };
    ordinaControlli();
    riempi();
}

void frmDX::ordinaControlli() {
    std::vector<Controllo*> controlli{&frameAVVISO, &lblAVVISO, &frSCELTA, &listDX};
    for (std::size_t i = 0; i < txtIngresso.size(); ++i) {
        controlli.push_back(&txtIngresso[i]);
        controlli.push_back(&flussi[i]);
    }
    controlli.insert(controlli.end(), {&chkStampaDX, &ctlPianta, &ctlGrid, &lblLegenda});
    for (Controllo* c : comuni()) {
        controlli.push_back(c);
    }
    ordina(controlli);
}

void frmDX::attivata() {
    // The number of legs is settled for as long as the window lives.
    if (!corsieDisponibili(rotonda())) {
        for (Controllo* c : ordine()) {
            c->visibile(false);
        }
        frameAVVISO.mostraContenuto(true);
        for (const char* tasto : tastiConCorsie) {
            ctlToolbar.abilita(tasto, false);
            ctlToolbar.annota(tasto, std::string{testiDX::avviso});
        }
        return;
    }
    frameAVVISO.mostraContenuto(false);
    ctlHelp.pagina(paginaCorsie);
    for (std::size_t i = 0; i < posizioniDX.size(); ++i) {
        txtIngresso[i].testo(rotonda().Ramo(static_cast<std::int16_t>(i + 1)).Descrizione());
        flussi[i].testo(flussoSvolta(rotonda(), i));
    }
    FinestraRisultati::attivata();
}

CorsieDestra frmDX::corsie() const {
    CorsieDestra scelte{};
    for (std::size_t i = 0; i < scelte.size(); ++i) {
        scelte[i] = listDX.spuntata(static_cast<int>(i));
    }
    return scelte;
}

std::vector<std::vector<float>> frmDX::svolteScelte() const {
    return svolte(corsie());
}

std::vector<std::vector<float>> frmDX::svolte(const CorsieDestra& quali) const {
    if (!corsieDisponibili(app().theRotonda()) || !almenoUnaCorsia(quali)) {
        return {};
    }
    Matrice tutte;
    app().theRotonda().GetMatriceSvolte(tutte);
    std::vector<std::vector<float>> scelte(tutte.size(), std::vector<float>(tutte.size(), 0.0F));
    for (std::size_t i = 0; i < posizioniDX.size(); ++i) {
        if (quali[i]) {
            const auto da = static_cast<std::size_t>(posizioniDX[i].origine - 1);
            const auto a = static_cast<std::size_t>(posizioniDX[i].destinazione - 1);
            scelte[da][a] = tutte[da][a];
        }
    }
    return scelte;
}

bool frmDX::nelTempo() const {
    const std::int16_t tipo = app().theRotonda().TipoAnalisi();
    return tipo == analisi::curva || tipo == analisi::tabella;
}

bool frmDX::ammette(const std::string& /*chiave*/) {
    if (almenoUnaCorsia(corsie())) {
        return true;
    }
    fuocoSu(listDX);
    messaggio(std::string{testiDX::nessunaPosizione.testo}, std::string{testiDX::nessunaPosizione.titolo},
              testiDX::nessunaPosizione.icona);
    return false;
}

void frmDX::riempi() {
    ctlGrid.tabella(confronto_.tabella());
    ctlGrid.righeVisibili = ctlGrid.tabella().righe();
}

void frmDX::calcola() {
    confronto_.calcola(app(), corsie());
    if (nelTempo()) {
        calcolate_ = corsie();
        figureDi(rotonda().timbro());
    }
    riempi();
}

std::string frmDX::testoAnteprima() {
    calcola();
    aggiornaNote();
    if (!confronto_.calcolato()) {
        throw Guasto::conParole(NumeroGuasto::chiamataNonValida,
                                nelTempo() ? testi::interrotto : testi::soloSaturazione);
    }
    return confronto_.testo(rotonda(), calcolate_, app().orologio.adesso());
}

void frmDX::anteprimaFallita(const Guasto& guasto) {
    tracciaGuasto(std::string{testiDX::metodoAnteprima}, guasto);
}

std::string frmDX::motivoVecchi() const {
    if (!nelTempo()) {
        return testi::soloSaturazione;
    }
    if (conFigure() && !confronto_.calcolato()) {
        return testi::interrotto;
    }
    const std::string motivo = FinestraRisultati::motivoVecchi();
    return motivo.empty() && conFigure() && calcolate_ != corsie() ? testi::altreCorsie : motivo;
}

std::string frmDX::motivoFlussi() const {
    return notaFlussi(app());
}

/// The lanes named and drawn are those of the figures.
FinestraRisultati::Blocchi frmDX::figureSuCarta() const {
    using D = DocumentoPagine;
    constexpr double quota = 0.55;  // on one page with the table
    std::string scelte;
    for (std::size_t i = 0; i < calcolate_.size(); ++i) {
        if (calcolate_[i]) {
            scelte += (scelte.empty() ? "" : "; ") + std::string{posizioniDX[i].testo};
        }
    }
    const D::Pianta disegno = piantaDaMostrare(pianta::datiPianta(app().theRotonda()),
                                               pianta::OpzioniPianta{.nomi = false, .flussi = svolte(calcolate_)});
    return {D::Paragrafo{.testo = scelte + ".", .inizio = testi::nelleCifre},
            D::Figura{.contenuto = disegno, .larghezza = quota, .forma = 1.0, .didascalia = testi::svolteNelleCifre},
            tabellaSuCarta(ctlGrid), D::Paragrafo{.testo = lblLegenda.testo(), .quieto = true}};
}

void frmDX::relazione() {
    if (!chkStampaDX.spuntata()) {
        FinestraRisultati::relazione();
        return;
    }
    if (nelTempo() && (!conFigure() || !motivoVecchi().empty())) {
        calcola();
        aggiornaNote();
        if (!confronto_.calcolato()) {
            return;  // the engine has told why
        }
    }
    if (!nelTempo()) {
        messaggio(std::string{testi::soloSaturazione} + testi::tralasciato,
                  std::string{testiDX::nessunaPosizione.titolo}, Icona::esclamazione);
    }
    servizi().relazioneTotale();
}

std::optional<AnalisiCorsiaDX> frmDX::perRelazione() {
    if (!chkStampaDX.spuntata() || !corsieDisponibili(rotonda()) || !almenoUnaCorsia(corsie()) || !conFigure()) {
        return std::nullopt;
    }
    if (!motivoVecchi().empty()) {
        calcola();
        aggiornaNote();
        if (!confronto_.calcolato() || !motivoVecchi().empty()) {
            return std::nullopt;
        }
    }
    return AnalisiCorsiaDX{.corsie = corsie(), .tabella = confronto_.tabella()};
}

}  // namespace kelvo
