#include "checkup/frmANALIZZATORE.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/file.h"
#include "base/guasto.h"
#include "checkup/checkList.h"
#include "checkup/stampaControllo.h"
#include "shell/servizi/stampaDocumento.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascaliaReport = "Check Up Rotatoria: Analisi Report Progetto";
constexpr const char* didascaliaCheckList = "Check Up Rotatoria: Analisi Check List Progetto";
constexpr const char* paginaReport = "Analisi Report Progetto";
constexpr const char* paginaCheckList = "Analisi Check List Progetto";
constexpr const char* documentoCheckList = "Check list del progetto";
constexpr const char* livello = "Livello del progetto";
constexpr const char* cambiato = "Il progetto è cambiato dopo l'analisi";
constexpr const char* informazione = "KELVO 2014 - Informazione";
}  // namespace testi

constexpr std::array<const char*, 4> titoliSchede{"Report", "Messaggi di informazione", "Messaggi di verifica",
                                                  "Messaggi di errore"};
constexpr const char* fileReport = "Report.txt";
/// The export of the table of one entry has the same label.
constexpr const char* metodoAnteprima = "frmCapacitaCodeRitardiRamo:Anteprima";

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichetteLivelli(std::index_sequence<I...> /*posti*/) {
    return {Etichetta{fmt::format("lblLivello{}", I + 1)}...};
}

}  // namespace

frmANALIZZATORE::frmANALIZZATORE(const Contorno& contorno, Servizi servizi)
    : Finestra(contorno, "frmANALIZZATORE", testi::didascaliaReport),
      TabStrip2("TabStrip2", {testi::paginaReport, testi::paginaCheckList}),
      TabStrip1("TabStrip1", {titoliSchede.begin(), titoliSchede.end()}),
      lblCopertina("lblCopertina", std::string{testoCopertina}),
      lblLivello(etichetteLivelli(std::make_index_sequence<7>{})),
      frLivello("frLivello", testi::livello,
                {&lblSenzaLivello, &lblLivello[0], &lblLivello[1], &lblLivello[2], &lblLivello[3], &lblLivello[4],
                 &lblLivello[5], &lblLivello[6], &lblCommento}),
      ctlToolbar("ctlToolbar", {{"keyAnalizza", "Analizza", "Controlla di nuovo i dati del progetto", "Analizza"},
                                {"keyAnteprima", "Anteprima", "Scrive i messaggi in un testo e lo apre", "Anteprima"},
                                {"keyXStampa", "Stampa", "Stampa la pagina mostrata: messaggi o check list", "Stampa"},
                                {"keyXPDF", "PDF", "Salva la pagina mostrata in un file PDF", "PDF"}}),
      servizi_(std::move(servizi)),
      errori_(contorno.app, {&contorno.cornice, servizi_.campi}) {
    ordina({&TabStrip2,       &TabStrip1,     &ctlTreeAnalizzatore, &ctlTreeGREEN,  &ctlTreeYELLOW,
            &ctlTreeRED,      &lblSezione,    &cmdINDIETROsezione,  &ImageINDIETRO, &cmdAVANTIsezione,
            &ImageAVANTI,     &ctlGrid,       &lblIndice,           &lblCopertina,  &frLivello,
            &lblSenzaLivello, &lblLivello[0], &lblLivello[1],       &lblLivello[2], &lblLivello[3],
            &lblLivello[4],   &lblLivello[5], &lblLivello[6],       &lblCommento});
    segno.testo(testi::cambiato);
    for (const Livello livello : livelli) {
        TabStrip1.icona(static_cast<int>(livello) + 1, std::string{nomeLivello(livello)});
    }
    TabStrip2.alCambio = [this](int pagina) { mostraPagina(pagina); };
    TabStrip1.alCambio = [this](int scheda) { mostraAlbero(scheda); };
    ctlToolbar.allaPressione = [this](const std::string& chiave) { premuto(chiave); };
    for (const char* chiave : {"keyXStampa", "keyXPDF"}) {
        ctlToolbar.abilita(chiave, servizi_.stampa != nullptr);
    }
    preparaCheckList();
    mostraPagina(0);
}

void frmANALIZZATORE::premuto(const std::string& chiave) {
    if (chiave == "keyAnalizza") {
        Analizza();
    } else if (chiave == "keyAnteprima") {
        Anteprima();
    } else if (chiave == "keyXStampa") {
        gestisci("frmANALIZZATORE:Stampa", [this] { stampaDocumento(contorno(), *servizi_.stampa, documento()); });
    } else {
        gestisci("frmANALIZZATORE:PDF", [this] { salvaPDF(contorno(), *servizi_.stampa, documento()); });
    }
}

void frmANALIZZATORE::attivata() {
    if (!analizzato_) {
        Analizza();
        fuocoSu(ctlTreeAnalizzatore);  // the findings are what one comes for
    }
    segno.visibile(rotonda().revisione().tutto != revisioneAnalizzata_ ||
                   app().configurazione.coefficienti() != coefficientiAnalizzati_);
}

void frmANALIZZATORE::mostraPagina(int pagina) {
    const bool report = pagina == 0;
    pannello.testo(report ? testi::didascaliaReport : testi::didascaliaCheckList);
    TabStrip1.visibile(report);
    for (Controllo* c : std::initializer_list<Controllo*>{&lblSezione, &cmdINDIETROsezione, &ImageINDIETRO,
                                                          &cmdAVANTIsezione, &ImageAVANTI, &ctlGrid, &lblIndice}) {
        c->visibile(!report);
    }
    mostraAlbero(TabStrip1.corrente());
    mostraLivello();
}

void frmANALIZZATORE::mostraAlbero(int scheda) {
    const bool report = TabStrip2.corrente() == 0;
    int posto = 0;
    for (Albero* albero : alberi()) {
        albero->visibile(report && posto == scheda);
        ++posto;
    }
}

const AlberoRiscontri& frmANALIZZATORE::elenco(std::size_t scheda) const {
    return scheda == 0 ? errori_.ctlTreeAnalizzatore : errori_.perLivello[scheda - 1];
}

void frmANALIZZATORE::Analizza() {
    gestisci("frmANALIZZATORE:Analizza", [this] {
        errori_.svuota();
        errori_.AnalisiProgetto();
        errori_.DistribuisciMessaggi();
        const std::array<Albero*, 4> tutti = alberi();
        for (std::size_t i = 0; i < tutti.size(); ++i) {
            Albero& albero = *tutti[i];
            const std::string radice{chiaveRadice};
            albero.svuota();
            albero.aggiungi({}, radice, elenco(i).radice, std::string{immagineRadice}, true);
            for (const Riscontro& r : elenco(i).riscontri) {
                albero.aggiungi(radice, r.chiave, r.testo, std::string{nomeLivello(r.livello)}, false);
            }
            TabStrip1.conteggio(static_cast<int>(i), static_cast<int>(elenco(i).riscontri.size()));
        }
        analizzato_ = true;
        revisioneAnalizzata_ = rotonda().revisione().tutto;
        coefficientiAnalizzati_ = app().configurazione.coefficienti();
        segno.visibile(false);
        TabStrip2.corrente(0);
        TabStrip1.corrente(0);
        mostraPagina(0);
    });
}

const Riscontro* frmANALIZZATORE::riscontro(const Albero& albero, std::string_view chiave) const {
    const std::array<const Albero*, 4> tutti{&ctlTreeAnalizzatore, &ctlTreeGREEN, &ctlTreeYELLOW, &ctlTreeRED};
    const auto scheda = static_cast<std::size_t>(std::find(tutti.begin(), tutti.end(), &albero) - tutti.begin());
    if (scheda == tutti.size()) {
        return nullptr;
    }
    const auto& riscontri = elenco(scheda).riscontri;
    const auto trovato =
        std::find_if(riscontri.begin(), riscontri.end(), [&](const Riscontro& r) { return r.chiave == chiave; });
    return trovato == riscontri.end() ? nullptr : &*trovato;
}

void frmANALIZZATORE::clicRiscontro(const Albero& albero, std::string_view chiave) {
    const Riscontro* trovato = riscontro(albero, chiave);
    if (trovato == nullptr) {
        return;
    }
    frmCheckUpMessaggio finestra(contorno(), *trovato);
    const Meta meta = trovato->meta;
    if (servizi_.mostraMessaggio) {
        servizi_.mostraMessaggio(finestra);
    }
    if (finestra.vaiAlCampo()) {
        vai(meta);
    }
}

void frmANALIZZATORE::invioRiscontro(const Albero& albero, std::string_view chiave) {
    if (const Riscontro* trovato = riscontro(albero, chiave)) {
        vai(Meta{trovato->meta});
    }
}

void frmANALIZZATORE::vai(const Meta& meta) {
    if (!meta.chiave.empty() && navigazione().mostra(meta.chiave) && servizi_.campi != nullptr) {
        servizi_.campi->fuocoSu(meta.campo, meta.riga);
    }
}

DocumentoPagine frmANALIZZATORE::documento() const {
    if (TabStrip2.corrente() == 0) {
        const auto scheda = static_cast<std::size_t>(TabStrip1.corrente());
        return documentoReport(documentoDiProgetto(app(), titoliSchede.at(scheda)), elenco(scheda),
                               segno.visibile() ? segno.testo() : std::string{});
    }
    RisposteCheckList date;
    for (int r = 0; r < static_cast<int>(righeCheckList.size()); ++r) {
        const bool si = casella({r, colonnaSI}).value_or(false);
        if (si || casella({r, colonnaNO}).value_or(false)) {
            date.emplace(r, si);
        }
    }
    return documentoCheckList(documentoDiProgetto(app(), testi::documentoCheckList), date);
}

void frmANALIZZATORE::Anteprima() {
    gestisci(metodoAnteprima, [this] { esporta(); });
}

void frmANALIZZATORE::esporta() {
    const std::string percorso = app().theAmbiente.CartellaLavoro() + fileReport;
    const std::string testo = testoReport(elenco(static_cast<std::size_t>(TabStrip1.corrente())),
                                          app().orologio.adesso(), rotonda().NomeFile());
    const std::string errore = scriviFileSicuro(app().file, percorso, testo);
    if (!errore.empty()) {
        throw Guasto::conParole(NumeroGuasto::accessoPercorso,
                                fmt::format("Impossibile scrivere '{}': {}", percorso, errore));
    }
    if (servizi_.documenti.apri(percorso)) {
        return;
    }
    if (servizi_.mostraTesto) {
        servizi_.mostraTesto(percorso, testo);
    } else {
        messaggio(fmt::format("Il report è stato scritto in '{}', ma nessun programma lo ha aperto.", percorso),
                  testi::informazione, Icona::informazione);
    }
}

}  // namespace kelvo
