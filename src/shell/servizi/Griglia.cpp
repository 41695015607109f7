#include "shell/servizi/Griglia.h"

#include <algorithm>
#include <utility>

#include "base/guasto.h"

namespace kelvo {

bool Griglia::dentro(Posto posto) const {
    return posto.riga >= 0 && posto.riga < tabella_.righe() && posto.colonna >= 0 && posto.colonna < tabella_.colonne();
}

bool Griglia::buona(Posto posto, Meta meta) const {
    if (!dentro(posto) || posto.riga < righeFisse_ || posto.colonna < colonneFisse_ || !visibile(posto.colonna)) {
        return false;
    }
    return meta == Meta::selezione || (!(salta && salta(posto)) && (meta == Meta::cursore || puoModificare(posto)));
}

bool Griglia::puoModificare(Posto posto) const {
    return fermata(posto) && modificabile && modificabile(posto);
}

void Griglia::segna() {
    ++versione_;
    cambiato().emit();
}

std::vector<std::string> Griglia::testi() const {
    std::vector<std::string> tutti;
    tutti.reserve(static_cast<std::size_t>(tabella_.righe()) * static_cast<std::size_t>(tabella_.colonne()));
    for (int r = 0; r < tabella_.righe(); ++r) {
        for (int c = 0; c < tabella_.colonne(); ++c) {
            tutti.push_back(tabella_.testo(r, c));
        }
    }
    return tutti;
}

void Griglia::tabella(Tabella nuova) {
    tabella_ = std::move(nuova);
    messi_ = testi();
    fatti_.clear();
    disfatti_.clear();
    editor_.reset();
    fallita_ = false;
    if (!fermata(corrente_)) {
        corrente_ = primo(Meta::cursore);
        rigaAlta_ = 0;
    }
    ancora_ = corrente_;
    estremo_ = corrente_;
    segna();
}

void Griglia::modifica(const std::function<void(Tabella&)>& come) {
    come(tabella_);
    segna();
}

void Griglia::testo(Posto posto, const std::string& valore) {
    std::string& testo = tabella_.cella(posto.riga, posto.colonna).testo;
    if (testo != valore) {
        testo = valore;
        segna();
    }
}

const ColonnaGriglia& Griglia::colonna(int indice) const {
    static const ColonnaGriglia comune;
    const bool nota = indice >= 0 && static_cast<std::size_t>(indice) < colonne_.size();
    return nota ? colonne_[static_cast<std::size_t>(indice)] : comune;
}

void Griglia::colonna(int indice, const ColonnaGriglia& valore) {
    if (indice < 0) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome() + ", colonna " + std::to_string(indice));
    }
    const auto posto = static_cast<std::size_t>(indice);
    if (posto >= colonne_.size()) {
        colonne_.resize(posto + 1);
    }
    colonne_[posto] = valore;
    segna();
}

bool Griglia::modificata() const {
    return testi() != messi_;
}

bool Griglia::modificata(Posto posto) const {
    const auto indice = static_cast<std::size_t>(posto.riga) * static_cast<std::size_t>(tabella_.colonne()) +
                        static_cast<std::size_t>(posto.colonna);
    return testo(posto.riga, posto.colonna) != messi_[indice];
}

void Griglia::salvata() {
    messi_ = testi();
}

bool Griglia::corrente(Posto posto) {
    if (!fermata(posto)) {
        return false;
    }
    chiudi();
    vai(posto);
    return true;
}

AreaCelle Griglia::selezione() const {
    return {.da = {std::min(ancora_.riga, estremo_.riga), std::min(ancora_.colonna, estremo_.colonna)},
            .a = {std::max(ancora_.riga, estremo_.riga), std::max(ancora_.colonna, estremo_.colonna)}};
}

int Griglia::rigaAlta() const {
    return std::clamp(rigaAlta_, std::min(righeFisse_, tabella_.righe()), std::max(righeFisse_, tabella_.righe() - 1));
}

void Griglia::rigaAlta(int riga) {
    const int prima = rigaAlta();
    rigaAlta_ = riga;
    if (rigaAlta() != prima) {
        cambiato().emit();
    }
}

void Griglia::scorri(int riga) {
    const int prima = rigaAlta();
    rigaAlta_ = riga;
    if (rigaAlta() != prima && alloScorrimento) {
        alloScorrimento(rigaAlta());
    }
}

void Griglia::seleziona(Posto da, Posto a) {
    if (!(ancora_ == da) || !(estremo_ == a)) {
        ancora_ = da;
        estremo_ = a;
        cambiato().emit();
    }
}

void Griglia::vai(Posto posto) {
    const bool mosso = !(posto == corrente_);
    corrente_ = posto;
    seleziona(posto, posto);
    if (mosso && alMovimento) {
        alMovimento(posto);
    }
}

std::optional<Posto> Griglia::cerca(Posto da, Verso verso, bool avanti, Meta meta) const {
    const int lunga = verso == Verso::destra ? tabella_.colonne() : tabella_.righe();
    const int totale = tabella_.righe() * tabella_.colonne();
    int indice = verso == Verso::destra ? da.riga * lunga + da.colonna : da.colonna * lunga + da.riga;
    for (indice += avanti ? 1 : -1; indice >= 0 && indice < totale; indice += avanti ? 1 : -1) {
        const Posto posto =
            verso == Verso::destra ? Posto{indice / lunga, indice % lunga} : Posto{indice % lunga, indice / lunga};
        if (buona(posto, meta)) {
            return posto;
        }
    }
    return std::nullopt;
}

std::optional<Posto> Griglia::accanto(Posto da, int righe, int colonne, Meta meta) const {
    for (Posto p{da.riga + righe, da.colonna + colonne}; dentro(p); p.riga += righe, p.colonna += colonne) {
        if (buona(p, meta)) {
            return p;
        }
    }
    return std::nullopt;
}

Posto Griglia::primo(Meta meta) const {
    return cerca({0, -1}, Verso::destra, true, meta).value_or(Posto{});
}

Posto Griglia::ultimo(Meta meta) const {
    return cerca({tabella_.righe(), 0}, Verso::destra, false, meta).value_or(Posto{});
}

bool Griglia::avanza(Verso verso, bool avanti, bool lasciaAllaFine) {
    const bool scrivibile = buona(primo(Meta::modifica), Meta::modifica);
    if (lasciaAllaFine && !scrivibile) {
        return false;
    }
    if (const auto posto = cerca(corrente_, verso, avanti, scrivibile ? Meta::modifica : Meta::cursore)) {
        vai(*posto);
        return true;
    }
    return !lasciaAllaFine;
}

Posto Griglia::meta(Tasto tasto, Posto da, Meta meta) const {
    const auto spostata = [&](int righe, int colonne, int volte) {
        Posto arrivo = da;
        for (int i = 0; i < volte; ++i) {
            arrivo = accanto(arrivo, righe, colonne, meta).value_or(arrivo);
        }
        return arrivo;
    };
    const int pagina = std::max(1, righeVisibili - 1);
    switch (tasto) {
        case Tasto::su:
            return spostata(-1, 0, 1);
        case Tasto::giu:
            return spostata(1, 0, 1);
        case Tasto::sinistra:
            return spostata(0, -1, 1);
        case Tasto::destra:
            return spostata(0, 1, 1);
        case Tasto::paginaSu:
            return spostata(-1, 0, pagina);
        case Tasto::paginaGiu:
            return spostata(1, 0, pagina);
        case Tasto::inizio:
            return spostata(0, -1, tabella_.colonne());
        case Tasto::fine:
            return spostata(0, 1, tabella_.colonne());
        case Tasto::inizioTabella:
            return primo(meta);
        case Tasto::fineTabella:
            return ultimo(meta);
        default:
            return Posto{};
    }
}

bool Griglia::muovi(Tasto tasto, bool estendi) {
    const Posto arrivo = estendi ? meta(tasto, estremo_, Meta::selezione) : meta(tasto, corrente_, Meta::cursore);
    if (!dentro(arrivo)) {
        return false;
    }
    if (estendi) {
        seleziona(corrente_, arrivo);
    } else {
        vai(arrivo);
    }
    return true;
}

bool Griglia::clic(int riga, int colonna, bool estendi) {
    const Posto posto{riga, colonna};
    if (!raggiungibile() || !dentro(posto)) {
        return false;
    }
    if (editor_ && posto == corrente_) {
        return true;
    }
    if (!conferma()) {
        return false;
    }
    if (estendi && buona(posto, Meta::selezione)) {
        seleziona(corrente_, posto);
    } else if (!estendi && fermata(posto)) {
        vai(posto);
    }
    if (!estendi && alClic) {
        alClic(posto);
    }
    return true;
}

void Griglia::doppioClic(int riga, int colonna) {
    if (clic(riga, colonna) && !editor_ && corrente_ == Posto{riga, colonna} && puoModificare(corrente_)) {
        apri({.testo = testo(riga, colonna), .tutto = true, .cursore = true});
    }
}

bool Griglia::tastoDestro(int riga, int colonna) {
    const Posto posto{riga, colonna};
    if (!raggiungibile() || !dentro(posto) || (editor_ && posto == corrente_ && !alTastoDestro) || !conferma()) {
        return false;
    }
    if (!selezione().contiene(posto) && fermata(posto)) {
        vai(posto);
    }
    if (!alTastoDestro) {
        return false;
    }
    alTastoDestro(posto);
    return true;
}

}  // namespace kelvo
