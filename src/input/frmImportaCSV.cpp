#include "input/frmImportaCSV.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"
#include "base/numeri.h"
#include "shell/servizi/incolla.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* scegli = "Selezionare un file CSV per vederne il contenuto.";
constexpr const char* nessuna = "(nessuna)";
constexpr const char* nessunaScelta = "Scegliere almeno una colonna da importare.";
constexpr const char* nulla = "Non è stato importato nulla.";
constexpr std::string_view incollato = "incollato";
constexpr std::string_view importato = "importato";
constexpr const char* nullaImportato = ": non è stato importato nulla.";
}  // namespace testi

namespace pagina {
constexpr const char* file = "ImportaCSV.htm";
constexpr const char* separatore = "SeparatoreCSV.htm";
constexpr const char* colonna = "ColonnaCSV.htm";
}  // namespace pagina

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichette(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{"lblColonna" + std::to_string(I + 1)}...};
}

template <std::size_t... I>
std::array<tBox, sizeof...(I)> caselle(std::index_sequence<I...> /*indici*/) {
    return {tBox{"txtColonna" + std::to_string(I + 1), tBox::combobox}...};
}

constexpr auto indici = std::make_index_sequence<frmImportaCSV::massime>();

/// Why the grid refuses a cell of a block: the words between the place that it names and its end. Nothing where its
/// message has another form.
std::string motivoDelRifiuto(const Griglia& griglia, const TestoCella& cella, const std::string& messaggio) {
    constexpr std::string_view segno = "<motivo>";
    const std::string forma = rifiutoBlocco(griglia, cella, segno).messaggio.value_or(MessaggioCampo{}).testo;
    const std::size_t taglio = forma.rfind(segno);
    if (taglio == std::string::npos) {
        return {};
    }
    const std::string_view prima = std::string_view{forma}.substr(0, taglio);
    const std::string_view dopo = std::string_view{forma}.substr(taglio + segno.size());
    const bool uguale =
        messaggio.size() > prima.size() + dopo.size() && messaggio.starts_with(prima) && messaggio.ends_with(dopo);
    return uguale ? messaggio.substr(prima.size(), messaggio.size() - prima.size() - dopo.size()) : std::string{};
}

}  // namespace

bool importaCSV(const Contorno& contorno, DialogoAnteprima& dialogo, const BersaglioCSV& bersaglio) {
    if (!bersaglio.griglia.lascia()) {
        return false;
    }
    frmImportaCSV anteprima(contorno, bersaglio);
    const std::string ultima = MemoriaCSV(contorno.servizi.impostazioni, bersaglio.tipo).cartella();
    std::error_code errore;
    const bool esiste = !ultima.empty() && std::filesystem::is_directory(percorsoDaTesto(ultima), errore);
    return dialogo.apri({.estensione = "csv",
                         .filtro = "File CSV o di testo (*.csv;*.txt)|*.csv *.CSV *.txt *.TXT|Tutti i files(*.*)|*.*",
                         .cartella = esiste ? ultima : cartellaProgetti(contorno.app.theAmbiente),
                         .nome = {}},
                        anteprima);
}

frmImportaCSV::frmImportaCSV(const Contorno& contorno, const BersaglioCSV& bersaglio)
    : FinestraAnteprima(contorno, "frmImportaCSV", bersaglio.didascalia),
      frFile("frFile", "File", {}),
      lblSeparatore("lblSeparatore", "Separatore:"),
      chkIntestazioni("chkIntestazioni", "La prima riga contiene le intestazioni"),
      frAnteprima("frAnteprima", "Contenuto del file", {}),
      frColonne("frColonne", "Colonne da importare", {}),
      lblColonna(etichette(indici)),
      txtColonna(caselle(indici)),
      bersaglio_(bersaglio),
      memoria_(contorno.servizi.impostazioni, bersaglio.tipo) {
    std::vector<Controllo*> controlli{&frAnteprima,   &ctlGrid,         &frFile,   &lblSeparatore,
                                      &txtSeparatore, &chkIntestazioni, &frColonne};
    bersaglio_.colonne.resize(std::min(bersaglio_.colonne.size(), massime));
    for (std::size_t i = 0; i < massime; ++i) {
        const bool usata = i < bersaglio_.colonne.size();
        lblColonna[i].testo(usata ? testoBreveCSV(bersaglio_.colonne[i].titolo) + ":" : std::string{});
        lblColonna[i].visibile(usata);
        txtColonna[i].visibile(usata);
        txtColonna[i].paginaAiuto = pagina::colonna;
        controlli.push_back(&lblColonna[i]);
        controlli.push_back(&txtColonna[i]);
    }
    controlli.push_back(&lblAvviso);
    controlli.push_back(&ctlHelp);
    ordina(controlli);
    collega();
    svuota(testi::scegli);
}

void frmImportaCSV::collega() {
    std::vector<std::string> nomi;
    for (const VoceSeparatoreCSV& voce : vociSeparatoreCSV) {
        nomi.emplace_back(voce.nome);
    }
    txtSeparatore.voci(nomi);
    txtSeparatore.paginaAiuto = pagina::separatore;
    txtSeparatore.dopoTasto = [this] {
        const int quale = txtSeparatore.scelta();
        if (quale >= 0 && !percorso_.empty()) {
            scelta_.separatore = vociSeparatoreCSV.at(static_cast<std::size_t>(quale)).separatore;
            rileggi();
        }
    };
    chkIntestazioni.alClic = [this] { cambiaIntestazioni(); };
    for (std::size_t i = 0; i < massime; ++i) {
        txtColonna[i].dopoTasto = [this, i] {
            if (i < scelta_.colonne.size()) {
                scelta_.colonne[i] = txtColonna[i].scelta() - 1;
                aMano_[i] = true;
                mostraAnteprima();
                mostraAvviso();
            }
        };
    }
    for (int c = 0; c <= static_cast<int>(limiteCSV::colonne); ++c) {
        ctlGrid.colonna(c, {.allineamento = AllineamentoCella::destra});
    }
    ctlGrid.ornamento = [this](Posto p) {
        OrnamentoCella ornato;
        if (p.riga >= righeTestate && ctlGrid.tabella().cella(p.riga, p.colonna).sfondo == tinta::fondoErrore) {
            ornato.segno = OrnamentoCella::Segno::attenzione;
        }
        return ornato;
    };
}

void frmImportaCSV::svuota(const std::string& motivo) {
    righe_.clear();
    testo_ = {};
    scelta_ = {};
    aMano_.clear();
    txtSeparatore.testo({});
    txtSeparatore.abilitato(false);
    chkIntestazioni.spuntata(false);
    chkIntestazioni.abilitato(false);
    for (tBox& campo : txtColonna) {
        campo.voci({});
        campo.testo({});
        campo.abilitato(false);
    }
    ctlGrid.tabella({});
    lblAvviso.testo(motivo);
    ctlHelp.pagina(pagina::file);
}

void frmImportaCSV::selezionato(const std::string& percorso) {
    std::error_code errore;
    if (percorso.empty() || std::filesystem::is_directory(percorsoDaTesto(percorso), errore)) {
        return;  // a folder on the way to a file
    }
    if (!percorso_.empty() && !righe_.empty()) {
        viste_[percorso_] = {.scelta = scelta_, .aMano = aMano_};
    }
    percorso_.clear();
    svuota(testi::scegli);
    bool mostrato = false;
    gestisci("frmImportaCSV:selezionato", [&] {
        TestoCSV letto = leggiTestoCSV(percorso);
        if (!letto.errore.empty()) {
            svuota(letto.errore);
        } else {
            percorso_ = percorso;
            testo_ = std::move(letto);
            proponi();
        }
        mostrato = true;
    });
    if (!mostrato) {
        percorso_.clear();  // a choice that is half made is none
        svuota(testi::scegli);
    }
}

void frmImportaCSV::proponi() {
    const auto vista = viste_.find(percorso_);
    if (vista != viste_.end() && riprendi(vista->second)) {
        return;
    }
    viste_.erase(percorso_);  // what stands in it now has not been seen
    const auto nota = memoria_.adatta(testo_.testo, bersaglio_.colonne.size());
    if (nota && riprendi({.scelta = *nota, .aMano = std::vector<bool>(nota->colonne.size(), true)})) {
        return;
    }
    scelta_.separatore = separatoreProbabile(testo_.testo);
    rileggi();
}

bool frmImportaCSV::riprendi(const Vista& vista) {
    CelleCSV celle = celleCSV(testo_.testo, vista.scelta.separatore);
    const auto quante = static_cast<int>(colonneCSV(celle.righe));
    const std::vector<int>& colonne = vista.scelta.colonne;
    if (!celle.errore.empty() || std::any_of(colonne.begin(), colonne.end(), [&](int c) { return c >= quante; })) {
        return false;
    }
    scelta_ = vista.scelta;
    aMano_ = vista.aMano;
    righe_ = std::move(celle.righe);
    mostraScelta();
    return true;
}

void frmImportaCSV::cambiaIntestazioni() {
    scelta_.intestazioni = chkIntestazioni.spuntata();
    scelta_.colonne =
        colonneRiproposte(scelta_.colonne, aMano_, colonneProposte(righe_, scelta_.intestazioni, bersaglio_.colonne));
    mostraScelta();
}

void frmImportaCSV::rileggi() {
    const CelleCSV celle = celleCSV(testo_.testo, scelta_.separatore);
    righe_ = celle.righe;
    scelta_.intestazioni = primaRigaDiTesti(righe_);
    scelta_.colonne = colonneProposte(righe_, scelta_.intestazioni, bersaglio_.colonne);
    aMano_.assign(scelta_.colonne.size(), false);
    mostraScelta();
    if (!celle.errore.empty()) {
        lblAvviso.testo(celle.errore);
    }
}

void frmImportaCSV::mostraScelta() {
    const auto quante = static_cast<int>(colonneCSV(righe_));
    std::vector<std::string> nomi{testi::nessuna};
    for (int c = 0; c < quante; ++c) {
        nomi.push_back(nomeColonna(c));
    }
    txtSeparatore.scelta(static_cast<int>(scelta_.separatore));
    txtSeparatore.abilitato(true);
    chkIntestazioni.spuntata(scelta_.intestazioni);
    chkIntestazioni.abilitato(!righe_.empty());
    for (std::size_t i = 0; i < scelta_.colonne.size(); ++i) {
        if (!accolta(i)) {
            scelta_.colonne[i] = -1;
        }
        txtColonna[i].voci(nomi);
        txtColonna[i].scelta(scelta_.colonne[i] + 1);
        txtColonna[i].abilitato(accolta(i) && quante > 0);
    }
    mostraAnteprima();
    mostraAvviso();
}

std::size_t frmImportaCSV::righeDati() const {
    return righe_.size() - std::min(righe_.size(), primaDiDati());
}

bool frmImportaCSV::accolta(std::size_t colonna) const {
    const int dove = bersaglio_.colonne[colonna].colonna;
    for (int r = bersaglio_.primaRiga; r < bersaglio_.griglia.tabella().righe(); ++r) {
        if (bersaglio_.griglia.puoModificare({r, dove})) {
            return true;
        }
    }
    return false;
}

std::size_t frmImportaCSV::righeTabella() const {
    for (int r = bersaglio_.griglia.tabella().righe() - 1; r >= bersaglio_.primaRiga; --r) {
        const bool prende = std::any_of(bersaglio_.colonne.begin(), bersaglio_.colonne.end(), [&](const ColonnaCSV& c) {
            return bersaglio_.griglia.puoModificare({r, c.colonna});
        });
        if (prende) {
            return static_cast<std::size_t>(r - bersaglio_.primaRiga) + 1;
        }
    }
    return 0;
}

std::string frmImportaCSV::motivoRifiuto() const {
    if (percorso_.empty() || righeDati() == 0 || righeTabella() == 0) {
        return lblAvviso.testo();
    }
    std::vector<int> scelte = scelta_.colonne;
    scelte.erase(std::remove(scelte.begin(), scelte.end(), -1), scelte.end());
    std::sort(scelte.begin(), scelte.end());
    if (scelte.empty()) {
        return testi::nessunaScelta;
    }
    if (const auto doppia = std::adjacent_find(scelte.begin(), scelte.end()); doppia != scelte.end()) {
        return "La '" + nomeColonna(*doppia) + "' del file è scelta due volte.";
    }
    const std::string errore = primoErrore();
    return errore.empty() ? rifiutoTabella(celleScelte()) : errore + "\n" + testi::nulla;
}

std::vector<frmImportaCSV::CellaScelta> frmImportaCSV::celleScelte() const {
    std::vector<CellaScelta> celle;
    const std::size_t prese = righePrese();
    for (std::size_t r = 0; r < prese; ++r) {
        for (std::size_t i = 0; i < scelta_.colonne.size(); ++i) {
            const Posto posto{bersaglio_.primaRiga + static_cast<int>(r), bersaglio_.colonne[i].colonna};
            if (scelta_.colonne[i] >= 0 && bersaglio_.griglia.puoModificare(posto)) {
                const std::size_t riga = r + primaDiDati();
                const LetturaCSV letta = leggiCellaCSV(cella(riga, scelta_.colonne[i]), scelta_.separatore);
                celle.push_back({.cella = {posto, testoNumero(letta.numero.value_or(0.0))},
                                 .riga = riga,
                                 .colonna = scelta_.colonne[i]});
            }
        }
    }
    return celle;
}

std::string frmImportaCSV::rifiutoTabella(const std::vector<CellaScelta>& scelte) const {
    if (!bersaglio_.griglia.allIncolla || scelte.empty()) {
        return {};
    }
    std::vector<TestoCella> tutte;
    for (const CellaScelta& scelta : scelte) {
        tutte.push_back(scelta.cella);
    }
    const auto giudizio = [&](std::size_t da, std::size_t a) {
        std::vector<TestoCella> celle(tutte.begin() + static_cast<std::ptrdiff_t>(da),
                                      tutte.begin() + static_cast<std::ptrdiff_t>(a));
        const EsitoUscita esito = bersaglio_.griglia.allIncolla(celle);
        const std::string testo = esito.messaggio ? esito.messaggio->testo : esito.motivo;
        return esito.accettato ? std::string{} : testo;
    };
    std::string detto = giudizio(0, tutte.size());
    if (detto.empty()) {
        return detto;
    }
    // The first cell that is refused ends the shortest block that is.
    std::size_t bene = 0;
    std::size_t male = tutte.size();
    while (male - bene > 1) {
        const std::size_t mezzo = bene + (male - bene) / 2;
        (giudizio(0, mezzo).empty() ? bene : male) = mezzo;
    }
    const CellaScelta& prima = scelte[bene];
    const std::string motivo = motivoDelRifiuto(bersaglio_.griglia, prima.cella, giudizio(bene, male));
    if (!motivo.empty()) {
        return luogo(prima.riga, prima.colonna, motivo + testi::nullaImportato);
    }
    if (const std::size_t dove = detto.rfind(testi::incollato); dove != std::string::npos) {
        detto.replace(dove, testi::incollato.size(), testi::importato);
    }
    return detto;
}

bool frmImportaCSV::conferma(const std::string& percorso) {
    if (percorso != percorso_) {
        selezionato(percorso);  // a name that was typed
        if (!viste_.contains(percorso) && percorso == percorso_ && righeDati() > 0) {
            return false;  // its columns have not been seen yet
        }
    }
    if (const std::string motivo = motivoRifiuto(); !motivo.empty()) {
        messaggio(motivo, titoli::attenzione, Icona::esclamazione);
        return false;
    }
    if (righeDati() > righeTabella() &&
        app().messaggi.mostra("Il file ha " + parole(), titoli::attenzione, Icona::esclamazione, Pulsanti::okAnnulla) !=
            Risposta::ok) {
        return false;
    }
    std::vector<TestoCella> celle;
    for (const CellaScelta& scelta : celleScelte()) {
        celle.push_back(scelta.cella);
    }
    if (!bersaglio_.griglia.riempi(std::move(celle))) {
        return false;
    }
    memoria_.ricorda(scelta_, righe_);
    memoria_.cartella(testoDaPercorso(percorsoDaTesto(percorso_).parent_path()));
    return true;
}

}  // namespace kelvo
