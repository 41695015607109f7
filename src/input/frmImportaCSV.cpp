#include "input/frmImportaCSV.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "app/percorsi.h"
#include "base/file.h"
#include "base/numeri.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* attenzione = "KELVO 2014 - Attenzione";
constexpr const char* scegli = "Selezionare un file CSV per vederne il contenuto.";
constexpr const char* nessuna = "(nessuna)";
constexpr const char* vuoto = "Il file non contiene righe di dati.";
constexpr const char* nessunaScelta = "Scegliere almeno una colonna da importare.";
constexpr const char* nulla = "Non è stato importato nulla.";
}  // namespace testi

namespace pagina {
constexpr const char* file = "ImportaCSV.htm";
constexpr const char* separatore = "SeparatoreCSV.htm";
constexpr const char* colonna = "ColonnaCSV.htm";
}  // namespace pagina

constexpr int righeTestate = 2;

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichette(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{"lblColonna" + std::to_string(I + 1)}...};
}

template <std::size_t... I>
std::array<tBox, sizeof...(I)> caselle(std::index_sequence<I...> /*indici*/) {
    return {tBox{"txtColonna" + std::to_string(I + 1), tBox::combobox}...};
}

constexpr auto indici = std::make_index_sequence<frmImportaCSV::massime>();

std::string quante(std::size_t numero, const char* una, const char* molte) {
    return std::to_string(numero) + " " + (numero == 1 ? una : molte);
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
                         .filtro = "File CSV o di testo (*.csv;*.txt)|*.csv *.CSV *.txt *.TXT|All Files (*.*)|*.*",
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
        lblColonna[i].testo(usata ? bersaglio_.colonne[i].titolo + ":" : std::string{});
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
    chkIntestazioni.alClic = [this] {
        scelta_.intestazioni = chkIntestazioni.spuntata();
        scelta_.colonne = colonneProposte(righe_, scelta_.intestazioni, bersaglio_.colonne);
        mostraScelta();
    };
    for (std::size_t i = 0; i < massime; ++i) {
        txtColonna[i].dopoTasto = [this, i] {
            if (i < scelta_.colonne.size()) {
                scelta_.colonne[i] = txtColonna[i].scelta() - 1;
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
    if (!percorso_.empty()) {
        viste_[percorso_] = scelta_;
    }
    percorso_.clear();
    svuota(testi::scegli);
    gestisci("frmImportaCSV:selezionato", [&] {
        TestoCSV letto = leggiTestoCSV(percorso);
        if (!letto.errore.empty()) {
            svuota(letto.errore);
            return;
        }
        percorso_ = percorso;
        testo_ = std::move(letto);
        proponi();
    });
}

void frmImportaCSV::proponi() {
    const auto vista = viste_.find(percorso_);
    const auto nota =
        vista != viste_.end() ? std::optional{vista->second} : memoria_.adatta(testo_.testo, bersaglio_.colonne.size());
    if (nota) {
        scelta_ = *nota;
        righe_ = celleCSV(testo_.testo, scelta_.separatore).righe;
        mostraScelta();
        return;
    }
    scelta_.separatore = separatoreProbabile(testo_.testo);
    rileggi();
}

void frmImportaCSV::rileggi() {
    const CelleCSV celle = celleCSV(testo_.testo, scelta_.separatore);
    righe_ = celle.righe;
    scelta_.intestazioni = primaRigaDiTesti(righe_);
    scelta_.colonne = colonneProposte(righe_, scelta_.intestazioni, bersaglio_.colonne);
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

std::string frmImportaCSV::nomeColonna(int colonna) const {
    const std::string intestazione = scelta_.intestazioni ? cella(0, colonna) : std::string{};
    return "Colonna " + std::to_string(colonna + 1) + (intestazione.empty() ? "" : ": " + intestazione);
}

int frmImportaCSV::bersaglioDi(int colonna) const {
    const auto trovato = std::find(scelta_.colonne.begin(), scelta_.colonne.end(), colonna);
    return trovato == scelta_.colonne.end() ? -1 : static_cast<int>(trovato - scelta_.colonne.begin());
}

std::string frmImportaCSV::cella(std::size_t riga, int colonna) const {
    const auto c = static_cast<std::size_t>(colonna);
    return riga < righe_.size() && colonna >= 0 && c < righe_[riga].size() ? righe_[riga][c] : std::string{};
}

void frmImportaCSV::intesta(Tabella& tabella, int quante) const {
    for (int c = 0; c <= quante; ++c) {
        const int quale = c == 0 ? -1 : bersaglioDi(c - 1);
        const std::string destinazione =
            quale < 0 ? std::string{} : "→ " + bersaglio_.colonne[static_cast<std::size_t>(quale)].titolo;
        const std::string intestazione = scelta_.intestazioni ? cella(0, c - 1) : std::string{};
        tabella.cella(0, c).testo = c == 0 ? "Riga" : intestazione.empty() ? std::to_string(c) : intestazione;
        tabella.cella(1, c).testo = destinazione;
        for (int r = 0; r < righeTestate; ++r) {
            tabella.cella(r, c).sfondo = colori::intestazione;
            tabella.cella(r, c).inchiostro = colori::bianco;
            tabella.cella(r, c).grassetto = true;
        }
    }
}

void frmImportaCSV::mostraAnteprima() {
    const auto quante = static_cast<int>(colonneCSV(righe_));
    const auto mostrate = static_cast<int>(std::min(righeDati(), righeTesta));
    if (quante == 0) {
        ctlGrid.tabella({});
        return;
    }
    Tabella tabella(mostrate + righeTestate, quante + 1);
    intesta(tabella, quante);
    for (int r = 0; r < mostrate; ++r) {
        const std::size_t riga = static_cast<std::size_t>(r) + primaDiDati();
        const bool dentro = static_cast<std::size_t>(r) < righeTabella();
        Cella& numero = tabella.cella(r + righeTestate, 0);
        numero.testo = std::to_string(riga + 1);
        numero.sfondo = colori::dati;
        for (int c = 0; c < quante; ++c) {
            Cella& posta = tabella.cella(r + righeTestate, c + 1);
            const bool presa = dentro && bersaglioDi(c) >= 0;
            posta.testo = cella(riga, c);
            posta.sfondo = !presa ? tinta::barra : motivoCella(riga, c).empty() ? colori::bianco : tinta::fondoErrore;
            posta.inchiostro = presa ? tinta::inchiostro : tinta::secondario;
        }
    }
    ctlGrid.tabella(std::move(tabella));
}

std::string frmImportaCSV::motivoCella(std::size_t riga, int colonna) const {
    const int quale = bersaglioDi(colonna);
    const int rigaTabella = bersaglio_.primaRiga + static_cast<int>(riga - primaDiDati());
    const std::string testo = cella(riga, colonna);
    // What a cell that takes nothing would get is not looked at.
    if (quale < 0 ||
        !bersaglio_.griglia.puoModificare({rigaTabella, bersaglio_.colonne[static_cast<std::size_t>(quale)].colonna})) {
        return {};
    }
    const LetturaCSV letta = leggiCellaCSV(testo);
    if (letta.numero) {
        return {};
    }
    return "Il testo '" + testo + "' (riga " + std::to_string(riga + 1) + ", '" + nomeColonna(colonna) + "') " +
           (letta.ambigua ? "si può leggere in due modi, con o senza decimali." : "non è un numero.");
}

std::string frmImportaCSV::primoErrore() const {
    const std::size_t fine = primaDiDati() + std::min(righeDati(), righeTabella());
    for (std::size_t r = primaDiDati(); r < fine; ++r) {
        for (int c = 0; c < static_cast<int>(colonneCSV(righe_)); ++c) {
            if (std::string motivo = motivoCella(r, c); !motivo.empty()) {
                return motivo;
            }
        }
    }
    return {};
}

std::string frmImportaCSV::parole() const {
    const std::size_t dati = righeDati();
    const std::size_t tabella = righeTabella();
    std::string testo = quante(dati, "riga di dati", "righe di dati");
    if (testo_.daWindows1252) {
        testo += " (testo Windows-1252)";
    }
    if (dati > tabella) {
        return testo + ": la tabella ne ha " + std::to_string(tabella) + ", le ultime " +
               std::to_string(dati - tabella) + " del file non verranno importate.";
    }
    if (dati < tabella) {
        return testo + ": la tabella ne ha " + std::to_string(tabella) + ", le altre resteranno come sono.";
    }
    return testo + ", quante ne ha la tabella.";
}

void frmImportaCSV::mostraAvviso() {
    if (righeDati() == 0) {
        lblAvviso.testo(testi::vuoto);
        return;
    }
    const std::string errore = primoErrore();
    lblAvviso.testo(errore.empty() ? parole() : errore);
}

std::string frmImportaCSV::motivoRifiuto() const {
    if (percorso_.empty() || righeDati() == 0) {
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
    return errore.empty() ? errore : errore + "\n" + testi::nulla;
}

std::vector<TestoCella> frmImportaCSV::celleScelte() const {
    std::vector<TestoCella> celle;
    for (std::size_t r = 0; r < std::min(righeDati(), righeTabella()); ++r) {
        for (std::size_t i = 0; i < scelta_.colonne.size(); ++i) {
            if (scelta_.colonne[i] >= 0) {
                const LetturaCSV letta = leggiCellaCSV(cella(r + primaDiDati(), scelta_.colonne[i]));
                celle.push_back({{bersaglio_.primaRiga + static_cast<int>(r), bersaglio_.colonne[i].colonna},
                                 testoNumero(letta.numero.value_or(0.0))});
            }
        }
    }
    return celle;
}

bool frmImportaCSV::conferma(const std::string& percorso) {
    if (percorso != percorso_) {
        const bool vista = viste_.contains(percorso);
        selezionato(percorso);  // a name that was typed
        if (!vista && percorso == percorso_ && righeDati() > 0) {
            return false;  // its columns have not been seen yet
        }
    }
    if (const std::string motivo = motivoRifiuto(); !motivo.empty()) {
        messaggio(motivo, testi::attenzione, Icona::esclamazione);
        return false;
    }
    if (righeDati() > righeTabella() &&
        app().messaggi.mostra("Il file ha " + parole(), testi::attenzione, Icona::esclamazione, Pulsanti::okAnnulla) !=
            Risposta::ok) {
        return false;
    }
    if (!bersaglio_.griglia.riempi(celleScelte())) {
        return false;
    }
    memoria_.ricorda(scelta_, righe_);
    memoria_.cartella(testoDaPercorso(percorsoDaTesto(percorso_).parent_path()));
    return true;
}

}  // namespace kelvo
