#include <algorithm>
#include <utility>

#include "base/testo.h"
#include "shell/servizi/Griglia.h"

namespace kelvo {

namespace {

constexpr const char* nonAmmesso = "Il testo incollato ha caratteri che la cella non ammette.";

}  // namespace

void Griglia::apri(Editor editor) {
    editor_ = std::move(editor);
    ancora_ = corrente_;
    estremo_ = corrente_;
    cambiato().emit();
}

void Griglia::chiudi() {
    if (editor_) {
        editor_.reset();
        fallita_ = false;
        cambiato().emit();
    }
}

void Griglia::giudica(const EsitoUscita& esito) {
    if (custode() != nullptr) {
        custode()->giudicato(*this, esito);
    }
}

void Griglia::rimetti(const EsitoUscita& esito) {
    if (editor_ && esito.rimesso) {
        editor_->testo = *esito.rimesso;
        editor_->tutto = true;
        fallita_ = false;
        cambiato().emit();
    }
}

bool Griglia::conferma() {
    if (!editor_) {
        return true;
    }
    if (inConferma_) {
        return false;  // the hook shows a message: the text is already being looked at
    }
    const Posto dove = corrente_;
    std::string testo = editor_->testo;
    if (testo == this->testo(dove.riga, dove.colonna)) {
        chiudi();  // looking at a cell changes nothing
        return true;
    }
    EsitoUscita esito;
    inConferma_ = true;
    try {
        esito = allaConferma ? allaConferma(dove, testo) : EsitoUscita::bene();
    } catch (...) {
        inConferma_ = false;
        throw;
    }
    inConferma_ = false;
    if (!editor_) {
        return true;  // the hook put another table there
    }
    if (!esito.accettato) {
        fallita_ = true;
        cambiato().emit();  // the place is marked before the message comes up
        giudica(esito);
        rimetti(esito);
        return false;
    }
    chiudi();
    scriviCelle({{dove, testo}});
    giudica(esito);
    return true;
}

bool Griglia::lascia() {
    if (!raggiungibile()) {
        chiudi();
        return true;
    }
    return conferma();
}

bool Griglia::convalida() {
    if (!editor_ || editor_->testo == testo(corrente_.riga, corrente_.colonna)) {
        return true;
    }
    std::string testo = editor_->testo;
    const EsitoUscita esito = allaConferma ? allaConferma(corrente_, testo) : EsitoUscita::bene();
    if (fallita_ == esito.accettato) {
        fallita_ = !esito.accettato;
        cambiato().emit();
    }
    giudica(esito);
    if (!esito.accettato) {
        rimetti(esito);
    }
    return esito.accettato;
}

bool Griglia::ammette(std::string_view carattere) const {
    const std::string& caratteri = colonna(corrente_.colonna).regole.caratteri;
    return caratteri.empty() || caratteri.find(carattere) != std::string::npos;
}

std::size_t Griglia::lunghezzaAmmessa() const {
    const std::size_t massima = colonna(corrente_.colonna).regole.lunghezzaMassima;
    return massima == 0 ? 0 : std::max(massima, lunghezza(testo(corrente_.riga, corrente_.colonna)));
}

void Griglia::batti(const std::string& carattere) {
    const RegoleCella& regole = colonna(corrente_.colonna).regole;
    if (!ammette(carattere)) {
        if (editor_ && regole.esclusoChiude && conferma()) {
            avanza(versoInvio, true, false);
        }
        return;
    }
    fallita_ = false;
    if (!editor_ || editor_->tutto) {
        apri({.testo = carattere, .tutto = false, .cursore = editor_ && editor_->cursore});
    } else if (regole.lunghezzaMassima == 0 || lunghezza(editor_->testo) < regole.lunghezzaMassima) {
        editor_->testo += carattere;
        cambiato().emit();
    }
}

void Griglia::scrivi(std::string_view testo) {
    for (const std::string& carattere : caratteri(testo)) {
        if (!raggiungibile()) {
            return;
        }
        if (puoModificare(corrente_)) {
            batti(carattere);
        } else if (carattere == " " && fermata(corrente_) && alClic) {
            alClic(corrente_);
        }
    }
}

void Griglia::correggi(std::string_view testo) {
    if (!editor_ || !raggiungibile()) {
        return;
    }
    const std::size_t massima = lunghezzaAmmessa();
    // What stood in the cell may stay, each character as often as it stood there.
    std::vector<std::string> stavano = caratteri(this->testo(corrente_.riga, corrente_.colonna));
    const auto resta = [&](const std::string& carattere) {
        const auto posto = std::find(stavano.begin(), stavano.end(), carattere);
        if (posto == stavano.end()) {
            return false;
        }
        stavano.erase(posto);
        return true;
    };
    const std::vector<std::string> nuovi = caratteri(testo);
    const bool ammesso = (massima == 0 || nuovi.size() <= massima) &&
                         std::all_of(nuovi.begin(), nuovi.end(), [&](const std::string& carattere) {
                             return ammette(carattere) || resta(carattere);
                         });
    std::string nuovo{testo};
    // Keys are looked at one by one: more than that was pasted, and a number without its sign is another number.
    if (!ammesso && !traduci(nuovo)) {
        cambiato().emit();
        return;
    }
    fallita_ = false;
    editor_->testo = nuovo;
    editor_->tutto = false;
    cambiato().emit();
}

bool Griglia::traduci(std::string& testo) {
    std::vector<TestoCella> celle{{corrente_, testo}};
    const bool intero = editor_->tutto || editor_->testo.empty();
    const EsitoUscita esito = intero && allIncolla ? allIncolla(celle) : EsitoUscita::rifiuto(std::string{nonAmmesso});
    giudica(esito);
    if (esito.accettato) {
        testo = celle.front().testo;
    }
    return esito.accettato;
}

bool Griglia::premiConEditor(Tasto tasto, bool estendi) {
    switch (tasto) {
        case Tasto::esc:
            chiudi();
            return true;
        case Tasto::f2:
            editor_->cursore = true;
            return true;
        case Tasto::indietro:
            correggi(editor_->tutto ? std::string{} : senzaUltimi(editor_->testo, 1));
            return true;
        case Tasto::invio:
            return !conferma() || avanza(versoInvio, !estendi, false);
        case Tasto::tab:
        case Tasto::tabIndietro:
            return !conferma() || avanza(Verso::destra, tasto == Tasto::tab, true);
        case Tasto::su:
        case Tasto::giu:
        case Tasto::paginaSu:
        case Tasto::paginaGiu:
            return !conferma() || muovi(tasto, false);
        case Tasto::sinistra:
        case Tasto::destra:
        case Tasto::inizio:
        case Tasto::fine:
            // In a text that was opened to be mended these keys walk in it: that is the view's.
            return !editor_->cursore && !estendi && (!conferma() || muovi(tasto, false));
        default:
            return false;
    }
}

bool Griglia::premiSulleCelle(Tasto tasto, bool estendi) {
    switch (tasto) {
        case Tasto::invio:
            return avanza(versoInvio, !estendi, false);
        case Tasto::tab:
        case Tasto::tabIndietro:
            return avanza(Verso::destra, tasto == Tasto::tab, true);
        case Tasto::esc: {
            const bool molte = !(ancora_ == estremo_);
            seleziona(corrente_, corrente_);
            return molte;
        }
        case Tasto::f2:
        case Tasto::indietro:
            if (!puoModificare(corrente_)) {
                return false;
            }
            apri({.testo = tasto == Tasto::f2 ? testo(corrente_.riga, corrente_.colonna) : std::string{},
                  .tutto = tasto == Tasto::f2,
                  .cursore = tasto == Tasto::f2});
            return true;
        default:
            return muovi(tasto, estendi) || comanda(tasto);
    }
}

bool Griglia::premiTasto(Tasto tasto, bool estendi) {
    if (!raggiungibile() || !fermata(corrente_)) {
        return false;
    }
    return editor_ ? premiConEditor(tasto, estendi) : premiSulleCelle(tasto, estendi);
}

}  // namespace kelvo
