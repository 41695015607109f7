#include "reports/frmOPZrelazione.h"

#include <fmt/format.h>

#include <filesystem>
#include <system_error>
#include <utility>

#include "base/guasto.h"
#include "results/calcoloIpotesi.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Compila relazione";
constexpr const char* nomeProgetto = "Nome Progetto: ";
constexpr const char* modelliKelvo = "Modelli: quelli di Kelvo";
constexpr const char* modelloProprio = "Modello: {}";
constexpr const char* modelloPerso = "Modello: {} (il file non c'è più)";
constexpr const char* scegli = "Scegli un modello...";
constexpr const char* torna = "Usa i modelli di Kelvo";
constexpr const char* senzaGrafici =
    "L'analisi è di sola saturazione: non ci sono grandezze nel tempo da rappresentare.";
constexpr const char* anchePDF = "Salva anche in PDF";
constexpr const char* nientePDF = "PDF: {}.";
constexpr const char* senzaConvertitore = "qui nessun programma lo può fare";
constexpr const char* filtroModelli = "Modello di relazione (*.dotx)|*.dotx|Documento (*.docx)|*.docx";
}  // namespace testi

constexpr const char* paginaModello = "ModelloRelazione.htm";
constexpr const char* carattereTitolo = "Segoe UI Semilight";
// Where the template of the user's own is kept from run to run.
constexpr const char* applicazione = "Kelvo";
constexpr const char* sezioneRelazione = "Relazione";
constexpr const char* chiaveModello = "Modello";
constexpr const char* chiavePDF = "PDF";
constexpr std::size_t vociConModello = 4;  ///< the reports that are made from a master template

template <std::size_t... I>
std::array<Bottone, sizeof...(I)> bottoni(std::index_sequence<I...> /*indici*/) {
    return {Bottone{std::string{vociRelazione[I].nome},
                    fmt::format("{}\n{}", vociRelazione[I].titolo, vociRelazione[I].sottotitolo)}...};
}

bool eFile(const std::string& percorso) {
    std::error_code errore;
    return std::filesystem::is_regular_file(percorsoDaTesto(percorso), errore);
}

}  // namespace

frmOPZrelazione::frmOPZrelazione(const Contorno& contorno, const ServiziOPZrelazione& servizi)
    : Finestra(contorno, "frmOPZrelazione", testi::didascalia),
      lblTitolo("lblTitolo"),
      cmd(bottoni(std::make_index_sequence<vociRelazione.size()>{})),
      lblSaturazione("lblSaturazione", testi::senzaGrafici, "GREY"),
      lblModello("lblModello", testi::modelliKelvo),
      cmdModello("cmdModello", testi::scegli),
      cmdModelloKelvo("cmdModelloKelvo", testi::torna),
      chkPDF("chkPDF", testi::anchePDF),
      lblPDF("lblPDF", {}, "GREY"),
      avanzamento(contorno),
      servizi_(servizi),
      passi_(*this) {
    lblTitolo.aspetto({.carattere = carattereTitolo, .sfondo = colori::bianco});
    std::vector<Controllo*> controlli{&lblTitolo};
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        cmd.at(i).allaPressione = [this, i] { compila(i); };
        controlli.push_back(&cmd.at(i));
    }
    cmdModello.allaPressione = [this] { scegliModello(); };
    cmdModelloKelvo.allaPressione = [this] { modello({}); };
    chkPDF.alClic = [this] { sceltoPDF(); };
    for (Controllo* c : std::initializer_list<Controllo*>{&lblSaturazione, &lblModello, &cmdModello, &cmdModelloKelvo,
                                                          &chkPDF, &lblPDF}) {
        controlli.push_back(c);
    }
    ordina(controlli);
    cmdModello.visibile(this->contorno().servizi.dialogo != nullptr);
    ctlHelp.pagina(std::string{vociRelazione.front().pagina});
}

frmOPZrelazione::~frmOPZrelazione() {
    servizi_.finestre.dimentica(avanzamento);
}

std::vector<SuggerimentoTasto> frmOPZrelazione::suggerimenti() const {
    return {{"Alt+1 ... 5", "scelta diretta"}, {"Invio", "compila"}};
}

void frmOPZrelazione::entrato(Controllo& campo) {
    Finestra::entrato(campo);
    if (&campo == &cmdModello || &campo == &cmdModelloKelvo) {
        ctlHelp.pagina(paginaModello);
    }
    for (std::size_t i = 0; i < cmd.size(); ++i) {
        if (&campo == &cmd.at(i)) {
            ctlHelp.pagina(std::string{vociRelazione.at(i).pagina});
        }
    }
}

void frmOPZrelazione::attivata() {
    lblTitolo.testo(testi::nomeProgetto + rotonda().NomeFile());
    const std::int16_t tipo = rotonda().TipoAnalisi();
    const bool nelTempo = tipo == analisi::curva || tipo == analisi::tabella;
    lblSaturazione.visibile(!nelTempo);
    aggiornaModello();
    aggiornaPDF();
    if (!inCorso_) {
        abilita(true);
        // The report that the options offer first: input, results, all of it.
        constexpr std::array<std::size_t, 3> prima{0, 1, 3};
        const auto forma = static_cast<std::size_t>(stato().formaRelazione);
        fuocoSu(cmd.at(forma < prima.size() ? prima.at(forma) : prima.back()));
    }
}

void frmOPZrelazione::abilita(bool valore) {
    for (Bottone& bottone : cmd) {
        bottone.abilitato(valore);
    }
    cmdModello.abilitato(valore);
    cmdModelloKelvo.abilitato(valore);
    chkPDF.abilitato(valore && puoPDF_);
    if (lblSaturazione.visibile()) {
        cmd.back().abilitato(false);
    }
}

void frmOPZrelazione::compila(std::size_t quale) {
    corri([&](modStampaRelazione& modulo) {
        switch (quale) {
            case 0:
                modulo.compilaRelazioneWord("RelazioneMasterIN");
                break;
            case 1:
                modulo.compilaAllegatiWord("RelazioneMasterOUT");
                break;
            case 2:
                modulo.compilaRelazioneWord("RelazioneMasterIN-OUT.dot");
                break;
            case vociConModello - 1:
                modulo.compilaRelazioneWord("RelazioneMasterTOT.dot");
                break;
            default:
                modulo.compilaGrafici(servizi_.grafici ? servizi_.grafici() : OpzioniGrafici{});
                break;
        }
    });
}

void frmOPZrelazione::compilaTotale() {
    corri([](modStampaRelazione& modulo) { modulo.compilaRelazioneWord("RelazioneMasterTOT"); });
}

void frmOPZrelazione::compilaGrafico(const RelazioneGrafica& relazione) {
    corri([&](modStampaRelazione& modulo) { modulo.compilaGrafico(relazione); });
}

void frmOPZrelazione::corri(const std::function<void(modStampaRelazione&)>& procedura) {
    if (inCorso_) {
        return;
    }
    inCorso_ = true;
    aggiornaPDF();  // the window may never have been shown
    Controllo* prima = fuoco();
    abilita(false);
    gestisci("frmOPZrelazione:compila", [&] {
        ServiziRelazione servizi{.messaggi = app().messaggi};
        servizi.dialogo = contorno().servizi.dialogo;
        servizi.documenti = &servizi_.documenti;
        servizi.avanzamento = &passi_;
        servizi.disegnatore = contorno().servizi.disegnatore;
        servizi.corsiaDX = servizi_.corsiaDX;
        servizi.modelloProprio = modello();
        servizi.pdf = puoPDF_ && chkPDF.spuntata() ? servizi_.pdf : nullptr;
        modStampaRelazione modulo(app(), servizi);
        procedura(modulo);
    });
    inCorso_ = false;
    abilita(true);
    if (prima != nullptr) {
        fuocoSu(*prima);
    }
}

void frmOPZrelazione::Passi::mostra(int totale) {
    finestra_.avanzamento.inizia(totale);
    finestra_.servizi_.finestre.affianca(finestra_.avanzamento);
    aperta_ = true;
}

void frmOPZrelazione::Passi::passo(int n) {
    finestra_.avanzamento.avanza(n);
    if (finestra_.servizi_.attesa != nullptr) {
        finestra_.servizi_.attesa->eventi();
    }
}

void frmOPZrelazione::Passi::attende() {
    if (finestra_.servizi_.attesa != nullptr) {
        finestra_.servizi_.attesa->eventi();
    }
}

void frmOPZrelazione::Passi::chiudi() {
    if (aperta_) {
        finestra_.servizi_.finestre.chiudi(finestra_.avanzamento);
        aperta_ = false;
    }
}

void frmOPZrelazione::scegliModello() {
    RichiestaFile richiesta{.estensione = "dotx", .filtro = testi::filtroModelli, .cartella = {}, .nome = {}};
    const std::string scelto = modello();
    richiesta.cartella = scelto.empty() ? app().theAmbiente.PercorsoProgramma("Modelli")
                                        : testoDaPercorso(percorsoDaTesto(scelto).parent_path());
    const std::optional<std::string> percorso = contorno().servizi.dialogo->apri(richiesta, {});
    if (!percorso || percorso->empty()) {
        return;
    }
    // A template that cannot be taken is refused here, with its reason, and not at each report.
    gestisci("frmOPZrelazione:cmdModello", [&] {
        const std::filesystem::path file = percorsoDaTesto(*percorso);
        documentoDaModello(testoDaPercorso(file.parent_path()), testoDaPercorso(file.filename()));
        modello(*percorso);
    });
}

std::string frmOPZrelazione::modello() {
    const ImpostazioniUtente* impostazioni = contorno().servizi.impostazioni;
    return impostazioni == nullptr ? modello_ : impostazioni->leggi(applicazione, sezioneRelazione, chiaveModello);
}

void frmOPZrelazione::modello(const std::string& percorso) {
    modello_ = percorso;
    if (ImpostazioniUtente* impostazioni = contorno().servizi.impostazioni; impostazioni != nullptr) {
        impostazioni->scrivi(applicazione, sezioneRelazione, chiaveModello, percorso);
    }
    aggiornaModello();
}

/// The office program may have been installed or taken away since.
void frmOPZrelazione::aggiornaPDF() {
    const std::string motivo = servizi_.pdf == nullptr ? testi::senzaConvertitore : servizi_.pdf->impedimento();
    puoPDF_ = motivo.empty();
    lblPDF.testo(puoPDF_ ? std::string{} : fmt::format(testi::nientePDF, motivo));
    lblPDF.visibile(!puoPDF_);
    const ImpostazioniUtente* impostazioni = contorno().servizi.impostazioni;
    if (impostazioni != nullptr) {
        chkPDF.spuntata(impostazioni->leggi(applicazione, sezioneRelazione, chiavePDF) == "1");
    }
}

void frmOPZrelazione::sceltoPDF() {
    if (ImpostazioniUtente* impostazioni = contorno().servizi.impostazioni; impostazioni != nullptr) {
        impostazioni->scrivi(applicazione, sezioneRelazione, chiavePDF, chkPDF.spuntata() ? "1" : "0");
    }
}

void frmOPZrelazione::aggiornaModello() {
    const std::string percorso = modello();
    if (percorso.empty()) {
        lblModello.testo(testi::modelliKelvo);
    } else {
        const std::string nome = testoDaPercorso(percorsoDaTesto(percorso).filename());
        lblModello.testo(eFile(percorso) ? fmt::format(testi::modelloProprio, nome)
                                         : fmt::format(testi::modelloPerso, nome));
    }
    cmdModelloKelvo.visibile(!percorso.empty());
}

}  // namespace kelvo
