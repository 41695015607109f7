#include <algorithm>
#include <utility>

#include "input/frmImportaCSV.h"
#include "shell/servizi/tinte.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* vuoto = "Il file non contiene righe di dati.";
constexpr const char* senzaRighe = "Nessun segmento di tempo";
}  // namespace testi

std::string quante(std::size_t numero, const char* una, const char* molte) {
    return std::to_string(numero) + " " + (numero == 1 ? una : molte);
}

}  // namespace

std::string frmImportaCSV::nomeColonna(int colonna) const {
    const std::string intestazione = scelta_.intestazioni ? testoBreveCSV(cella(0, colonna)) : std::string{};
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
            quale < 0 ? std::string{}
                      : "→ " + testoBreveCSV(bersaglio_.colonne[static_cast<std::size_t>(quale)].titolo);
        const std::string intestazione = scelta_.intestazioni ? testoBreveCSV(cella(0, c - 1)) : std::string{};
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
    const std::size_t prese = righePrese();
    Tabella tabella(mostrate + righeTestate, quante + 1);
    intesta(tabella, quante);
    for (int r = 0; r < mostrate; ++r) {
        const std::size_t riga = static_cast<std::size_t>(r) + primaDiDati();
        const bool dentro = static_cast<std::size_t>(r) < prese;
        Cella& numero = tabella.cella(r + righeTestate, 0);
        numero.testo = std::to_string(riga + 1);
        numero.sfondo = colori::dati;
        for (int c = 0; c < quante; ++c) {
            Cella& posta = tabella.cella(r + righeTestate, c + 1);
            const bool presa = dentro && bersaglioDi(c) >= 0;
            posta.testo = testoBreveCSV(cella(riga, c));
            posta.sfondo = !presa ? tinta::barra : motivoCella(riga, c).empty() ? colori::bianco : tinta::fondoErrore;
            posta.inchiostro = presa ? tinta::inchiostro : tinta::secondario;
        }
    }
    ctlGrid.tabella(std::move(tabella));
}

std::string frmImportaCSV::luogo(std::size_t riga, int colonna, const std::string& motivo) const {
    return "Il testo '" + testoBreveCSV(cella(riga, colonna)) + "' (riga " + std::to_string(riga + 1) + ", '" +
           nomeColonna(colonna) + "') " + motivo;
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
    const LetturaCSV letta = leggiCellaCSV(testo, scelta_.separatore);
    if (letta.numero) {
        return {};
    }
    return luogo(riga, colonna,
                 letta.ambigua ? "si può leggere in due modi, con o senza decimali." : "non è un numero.");
}

std::string frmImportaCSV::primoErrore() const {
    const std::size_t fine = primaDiDati() + righePrese();
    const auto quante = static_cast<int>(colonneCSV(righe_));
    for (std::size_t r = primaDiDati(); r < fine; ++r) {
        for (int c = 0; c < quante; ++c) {
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
        const std::size_t oltre = dati - tabella;
        return testo + ": la tabella ne ha " + std::to_string(tabella) +
               (oltre == 1 ? ", l'ultima riga del file non verrà importata."
                           : ", le ultime " + std::to_string(oltre) + " del file non verranno importate.");
    }
    if (dati < tabella) {
        return testo + ": la tabella ne ha " + std::to_string(tabella) +
               (tabella - dati == 1 ? ", l'altra resterà com'è." : ", le altre resteranno come sono.");
    }
    return testo + ", quante ne ha la tabella.";
}

void frmImportaCSV::mostraAvviso() {
    if (righeDati() == 0) {
        lblAvviso.testo(testi::vuoto);
        return;
    }
    if (righeTabella() == 0) {
        lblAvviso.testo(testi::senzaRighe);
        return;
    }
    const std::string errore = primoErrore();
    lblAvviso.testo(errore.empty() ? parole() : errore);
}

}  // namespace kelvo
