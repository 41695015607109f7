// The curve of the demand window: its bars, and the search of its peak.

#include "app/titoli.h"
#include "base/date.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "input/frmDatiTraffico.h"
#include "input/istogrammaTraffico.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/pelle.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* errore = "KELVO 2014 - Errore";
constexpr const char* informazione = "KELVO 2014 - Informazione";
constexpr const char* incoerente =
    "Attezione!\r- Impostare un valore di flusso totale coerente\r- Inserire un valore q1>0";
constexpr const char* elevato =
    "Attezione!\rValore apparentemente elevato. [Flusso totale ingresso > 5000 veicoli]\rControllare i dati immessi.";
constexpr const char* anomalo =
    "Attenzione!\rI valori calcolati presentano una differenza anomala tra il valore di picco q2 e q1.\rSi suggerisce "
    "di modificare il valore q1 e ricalcolare la curva di traffico.";
constexpr const char* fallita =
    "Attenzione!\rSi è verificato un errore nella costruzione della curva di traffico.\rSi suggerisce di: \r- "
    "Controllare i valori inseriti\r - Ridurre il valore assegnato a q1\re ricalcolare la curva di traffico.";
constexpr const char* approssimazione = "Approssimazione applicata :  ";
constexpr const char* asse = "[veicoli]/[min]";
constexpr const char* senzaFlussi =
    "Scrivere i flussi q1, q2 e q3, oppure scrivere q1 e far calcolare la curva da un flusso totale.";
constexpr const char* nonCostruibile =
    "La curva non si può costruire: serve almeno un segmento di tempo tra t1 e t2 e tra t2 e t3.";
}  // namespace testi

constexpr Colore rosso{255, 0, 0};

void inchiostro(tBox& campo, Colore colore) {
    Aspetto nuovo = campo.aspetto();
    nuovo.inchiostro = colore;
    campo.aspetto(nuovo);
}

}  // namespace

double frmDatiTraffico::flusso(const tBox& campo) const {
    if (mascheraVuota(campo)) {
        return 0.0;
    }
    const auto valore = leggiNumero(campo.testo());
    if (!valore) {
        throw Guasto(NumeroGuasto::tipoNonCorrispondente, campo.nome() + " '" + campo.testo() + "'");
    }
    return *valore;
}

DataOra frmDatiTraffico::tempo(std::size_t quale) const {
    // What was not changed is taken from the leg, which may hold more than the field shows.
    const tBox& campo = this->*legamiTempi[quale].campo;
    return campo.modificato() ? leggiHHNN(campo.testo()).value_or(0.0) : (dati().*legamiTempi[quale].leggi)();
}

int frmDatiTraffico::minutiSegmento() const {
    return minutoCampo(app().theRotonda().SegmentoTempo());
}

DatiCurva frmDatiTraffico::datiMostrati() const {
    return {.q1 = flusso(txtFlussoTempo1),
            .q2 = flusso(txtFlussoTempo2),
            .q3 = flusso(txtFlussoTempo3),
            .t1 = tempo(0),
            .t2 = tempo(1),
            .t3 = tempo(2),
            .minuti = minutiSegmento()};
}

void frmDatiTraffico::CostruisciCurva() {
    costruita_ = false;
    gestisci("frmDatiTraffico:CostruisciCurva", [this] {
        costruita_ = kelvo::CostruisciCurva(datiMostrati(), curva_);
        txtTempo3.abilitato(!curva_.piatto || soloTempo3Riapre());
        if (curva_.piatto) {
            txtFlussoTempo3.abilitato(false);
            txtFlussoTempo3.modifica(txtFlussoTempo2.testo());
        }
        if (costruita_) {
            mostraTotali();
        }
    });
}

bool frmDatiTraffico::soloTempo3Riapre() const {
    // With t2 as early as it can stand the curve would still be flat.
    return segmentiTra(tempo(0), tempo(2), minutiSegmento(), -1) <= 1 ||
           minutiTra(app().theRotonda().TempoFinale(), tempo(2)) > 0;
}

void frmDatiTraffico::mostraTotali() {
    txtFlussoTotale.modifica(curva_.totali.FlussoTotale);
    txtFlussoMedio.modifica(curva_.totali.FlussoMedio);
    txtFlussoOrario.modifica(curva_.totali.FlussoOrario);
}

void frmDatiTraffico::DoTheChart() {
    gestisci(" - RefreshGraph", [this] { disegna(); });
}

void frmDatiTraffico::disegna() {
    std::vector<std::string> valori;
    for (const float flusso : curva_.FlussiSegmento) {
        valori.push_back(testoNumero(flusso));
    }
    Grafico::Contenuto contenuto = istogrammaTraffico({.etichette = testoGrafico(curva_.EtichetteSegmento),
                                                       .valori = testoGrafico(valori),
                                                       .unita = testi::asse,
                                                       .colore = colorePannello(app().configurazione.LayoutPannello),
                                                       .mostraValori = Check1.spuntata()});
    if (!costruita_) {
        contenuto.nota = testi::nonCostruibile;
    } else if (curva_.totale == 0.0F) {
        contenuto.nota = testi::senzaFlussi;
    }
    ctlChart.contenuto(contenuto);
}

void frmDatiTraffico::cambiaModo() {
    const bool cercata = Check2.spuntata();
    for (Controllo* c :
         std::initializer_list<Controllo*>{&lblTarget, &txtTarget, &lblUnitaTarget, &Command1, &lblApprox}) {
        c->visibile(cercata);
    }
    Command1.abilitato(cercata);
    if (cercata) {
        txtTarget.testo({});
    }
    txtFlussoTempo2.abilitato(!cercata);
    txtFlussoTempo3.abilitato(!cercata);
    inchiostro(txtFlussoTempo1, cercata ? rosso : colori::nero);
    prgCurva.visibile(false);
}

void frmDatiTraffico::messaggioSopra(const char* testo, const char* titolo, Icona icona) {
    app().messaggi.mostraSopra(testo, titolo, icona, Pulsanti::ok);
}

void frmDatiTraffico::CalcolaCurva() {
    const bool daTasto = fuoco() == &Command1;
    bool cercata = true;
    gestisci("frmDatiTraffico:CalcolaCurva", [&] { cercata = cerca(); });
    Command1.abilitato(true);  // after a fault too
    if (daTasto && cercata) {
        scordaFuoco();  // closed for the while, the button has let the keyboard go
        fuocoSu(Command1);
    }
}

/// False where a figure is missing: its field has the focus.
bool frmDatiTraffico::cerca() {
    Command1.abilitato(false);
    curva_.TotaleArrotondato.clear();
    prgCurva.visibile(true);
    if (flusso(txtFlussoTempo1) == 0.0 || mascheraVuota(txtTarget)) {
        fuocoSu(mascheraVuota(txtTarget) ? txtTarget : txtFlussoTempo1);  // marked before the box comes up
        messaggioSopra(testi::incoerente, testi::errore, Icona::critica);
        return false;
    }
    const double obiettivo = flusso(txtTarget);
    if (obiettivo > obiettivoElevato) {
        messaggioSopra(testi::elevato, titoli::attenzione, Icona::esclamazione);
        Command1.abilitato(true);
    }
    const RisultatoRicerca risultato =
        cercaCurva({.dati = datiMostrati(), .q1 = txtFlussoTempo1.testo(), .obiettivo = obiettivo}, curva_,
                   [this](int passo) { prgCurva.valore(passo); });
    txtFlussoTempo2.modifica(risultato.q2);
    txtFlussoTempo3.modifica(risultato.q3);
    if (!curva_.TotaleArrotondato.empty()) {
        mostraTotali();
    }
    if (risultato.esito == EsitoRicerca::passiEsauriti) {
        mostraApprossimazione();
        CostruisciCurva();
        DoTheChart();
        Command1.abilitato(true);
        apriFlussi();
    } else {
        conclusa(risultato);
    }
    confronta();
    return true;
}

void frmDatiTraffico::conclusa(const RisultatoRicerca& risultato) {
    if (risultato.esito == EsitoRicerca::trovata) {
        if (piccoAnomalo(flusso(txtFlussoTempo1), flusso(txtFlussoTempo2))) {
            messaggioSopra(testi::anomalo, testi::informazione, Icona::informazione);
        }
        dopoFlusso(txtFlussoTempo2);
    } else {
        messaggioSopra(testi::fallita, testi::errore, Icona::critica);
    }
    apriFlussi();
    Command1.abilitato(true);
    CostruisciCurva();
    DoTheChart();
    mostraApprossimazione();
}

void frmDatiTraffico::apriFlussi() {
    txtFlussoTempo2.abilitato(true);
    txtFlussoTempo3.abilitato(true);
    inchiostro(txtFlussoTempo1, colori::nero);
}

void frmDatiTraffico::mostraApprossimazione() {
    const auto scarto = approssimazione(curva_.TotaleEsatto, flusso(txtTarget));
    lblApprox.testo(scarto ? testi::approssimazione + formatta(*scarto, "0.0000") + "%" : std::string{});
}

}  // namespace kelvo
