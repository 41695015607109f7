#include <fmt/format.h>

#include "base/numeri.h"
#include "checkup/checkList.h"
#include "checkup/frmANALIZZATORE.h"

namespace kelvo {

namespace {

constexpr int colonne = 5;
// Widths of the columns, twips.
constexpr int larghezzaTesto = 13500;
constexpr int larghezzaRisposta = 900;

const char* nomeGenere(GenereRiga genere) {
    switch (genere) {
        case GenereRiga::GRIGIO:
            return "GRIGIO";
        case GenereRiga::BIANCO:
            return "BIANCO";
        case GenereRiga::DESCRIZIONE:
            return "DESCRIZIONE";
        case GenereRiga::VUOTA:
            break;
    }
    return "";
}

bool domanda(int riga) {
    return riga >= 0 && static_cast<std::size_t>(riga) < righeCheckList.size() &&
           righeCheckList[static_cast<std::size_t>(riga)].genere == GenereRiga::BIANCO;
}

bool risposta(int colonna) {
    return colonna == frmANALIZZATORE::colonnaSI || colonna == frmANALIZZATORE::colonnaNO;
}

/// First question of the section that a top row belongs to: above its header stands the end of the one before.
int primaDomanda(int rigaAlta) {
    int riga = rigaAlta;
    const auto genere = [](int r) { return righeCheckList[static_cast<std::size_t>(r)].genere; };
    const auto fine = static_cast<int>(righeCheckList.size());
    while (riga < fine && genere(riga) != GenereRiga::GRIGIO) {
        ++riga;
    }
    while (riga < fine && !domanda(riga)) {
        ++riga;
    }
    return riga < fine ? riga : -1;
}

/// Adds a row to the table: its kind gives texts and colours of its cells.
void componiRiga(Tabella& t, int riga, const RigaCheckList& voce) {
    const bool intestazione = voce.genere == GenereRiga::GRIGIO;
    const bool bianca = voce.genere == GenereRiga::BIANCO;
    for (int c = 0; c < colonne; ++c) {
        Cella& cella = t.cella(riga, c);
        cella.sfondo = intestazione ? colori::intestazione : frmANALIZZATORE::fondoChiuso;
        cella.inchiostro = intestazione ? colori::bianco : colori::nero;
        cella.grassetto = intestazione;
        if (bianca) {
            cella.sfondo = c == frmANALIZZATORE::colonnaTesto ? colori::nomeIngresso : colori::bianco;
        }
    }
    t.cella(riga, frmANALIZZATORE::colonnaTesto).testo = voce.testo;
    t.cella(riga, frmANALIZZATORE::colonnaGenere).testo = nomeGenere(voce.genere);
    if (bianca) {
        t.cella(riga, frmANALIZZATORE::colonnaSI).testo = frmANALIZZATORE::casellaVuota;
        t.cella(riga, frmANALIZZATORE::colonnaNO).testo = frmANALIZZATORE::casellaVuota;
    } else if (intestazione && voce.testo.empty()) {
        t.cella(riga, frmANALIZZATORE::colonnaSI).testo = "SI";
        t.cella(riga, frmANALIZZATORE::colonnaNO).testo = "NO";
    }
}

Tabella tabellaDi(int righe) {
    Tabella t(righe, colonne);
    t.larghezze = {larghezzaTesto, larghezzaRisposta, larghezzaRisposta, 0, 0};
    for (int r = 0; r < righe; ++r) {
        const auto posto = static_cast<std::size_t>(r);
        componiRiga(t, r, posto < righeCheckList.size() ? righeCheckList[posto] : RigaCheckList{});
    }
    return t;
}

}  // namespace

void frmANALIZZATORE::preparaCheckList() {
    ctlGrid.salta = [](Posto posto) { return !domanda(posto.riga) || !risposta(posto.colonna); };
    ctlGrid.versoInvio = Griglia::Verso::giu;
    ctlGrid.letturaFuori = [this](Posto posto) -> std::optional<std::string> {
        const auto spuntata = casella(posto);
        return spuntata ? std::optional<std::string>(*spuntata ? "X" : "") : std::nullopt;
    };
    ctlGrid.alClic = [this](Posto posto) { cliccata(posto); };
    ctlGrid.alloScorrimento = [this](int /*riga*/) { aggiornaSezione(); };
    ctlGrid.colonna(colonnaTesto, {.allineamento = AllineamentoCella::sinistra, .aCapo = true});
    ctlGrid.colonna(colonnaSI, {.allineamento = AllineamentoCella::centro});
    ctlGrid.colonna(colonnaNO, {.allineamento = AllineamentoCella::centro});
    ctlGrid.colonna(colonnaPunti, {.nascosta = true});
    ctlGrid.colonna(colonnaGenere, {.nascosta = true});
    ctlGrid.tabella(tabellaDi(static_cast<int>(righeCheckList.size()) + righeVuote));
    cmdAVANTIsezione.allaPressione = [this] { portaSezione(true); };
    cmdINDIETROsezione.allaPressione = [this] { portaSezione(false); };
    aggiornaSezione();
    aggiornaIndice();
}

void frmANALIZZATORE::cliccata(Posto posto) {
    const bool chiusa = ctlGrid.tabella().cella(posto.riga, posto.colonna).sfondo == fondoChiuso;
    if (chiusa || !domanda(posto.riga) || !risposta(posto.colonna)) {
        return;
    }
    const RigaCheckList& voce = righeCheckList[static_cast<std::size_t>(posto.riga)];
    const bool si = posto.colonna == colonnaSI;
    ctlGrid.modifica([&](Tabella& t) {
        t.cella(posto.riga, posto.colonna).testo = casellaSpuntata;
        t.cella(posto.riga, si ? colonnaNO : colonnaSI).testo = casellaVuota;
        t.cella(posto.riga, colonnaPunti).testo = testoNumero(si ? voce.si : voce.no);
    });
    aggiornaIndice();
}

std::optional<bool> frmANALIZZATORE::casella(Posto posto) const {
    if (!domanda(posto.riga) || !risposta(posto.colonna)) {
        return std::nullopt;
    }
    return ctlGrid.testo(posto.riga, posto.colonna) == casellaSpuntata;
}

int frmANALIZZATORE::domande() {
    return numeroDomande();
}

int frmANALIZZATORE::risposte() const {
    int quante = 0;
    for (int r = 0; r < ctlGrid.tabella().righe(); ++r) {
        quante += ctlGrid.testo(r, colonnaPunti).empty() ? 0 : 1;
    }
    return quante;
}

int frmANALIZZATORE::indice() const {
    double somma = 0.0;
    for (int r = 0; r < ctlGrid.tabella().righe(); ++r) {
        somma += leggiNumero(ctlGrid.testo(r, colonnaPunti)).value_or(0.0);
    }
    return static_cast<int>(somma);
}

void frmANALIZZATORE::aggiornaIndice() {
    lblIndice.testo(testoIndice(risposte(), indice()));
    mostraLivello();
}

void frmANALIZZATORE::mostraLivello() {
    const bool pagina = TabStrip2.corrente() == 1;
    const bool completa = risposte() == domande();
    const int fascia = completa ? fasciaDiIndice(indice()) : -1;
    for (std::size_t i = 0; i < lblLivello.size(); ++i) {
        const bool sua = static_cast<int>(i) == fascia;
        lblLivello[i].testo(sua ? fmt::format(" LIVELLO {}: ", fasceIndice[i].nome) : std::string{});
    }
    lblCommento.testo(fascia < 0 ? std::string{} : std::string{fasceIndice[static_cast<std::size_t>(fascia)].commento});
    lblSenzaLivello.testo(fascia < 0 ? testoSenzaLivello(indice()) : std::string{});
    lblCopertina.visibile(pagina && !completa);
    frLivello.mostraContenuto(pagina && completa);
}

/// A high window needs more empty rows for the last sections to stand on top.
void frmANALIZZATORE::allunga(int righe) {
    const Tabella& prima = ctlGrid.tabella();
    if (prima.righe() >= righe) {
        return;
    }
    Tabella lunga = tabellaDi(righe);
    for (int r = 0; r < prima.righe(); ++r) {
        for (int c = 0; c < colonne; ++c) {
            lunga.cella(r, c) = prima.cella(r, c);
        }
    }
    ctlGrid.tabella(std::move(lunga));
}

void frmANALIZZATORE::portaSezione(bool avanti) {
    const int meta = rigaSezione(ctlGrid.rigaAlta(), avanti);
    allunga(meta + ctlGrid.righeVisibili);
    // Who goes on by the keyboard answers the first question of the section. Its cell may lie below what a low window
    // shows, which scrolls to it: the top row comes last.
    const int prima = primaDomanda(meta);
    if (prima >= 0 && ctlGrid.corrente().riga >= 0) {
        ctlGrid.corrente({prima, ctlGrid.corrente().colonna});
    }
    ctlGrid.rigaAlta(meta);
    aggiornaSezione();
}

void frmANALIZZATORE::aggiornaSezione() {
    const int alta = ctlGrid.rigaAlta();
    lblSezione.testo(std::string{sezioniCheckList[sezioneDiRiga(alta)].titolo});
    const bool prima = alta > sezioniCheckList.front().rigaAlta;
    const bool dopo = alta < sezioniCheckList.back().rigaAlta;
    cmdINDIETROsezione.abilitato(prima);
    ImageINDIETRO.abilitato(prima);
    cmdAVANTIsezione.abilitato(dopo);
    ImageAVANTI.abilitato(dopo);
}

}  // namespace kelvo
