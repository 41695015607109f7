#include "shell/servizi/scelte.h"

#include <algorithm>
#include <cstdint>

#include "base/guasto.h"

namespace kelvo {

namespace {

template <class T>
bool contiene(const std::vector<T>& voci, int indice) {
    return indice >= 0 && static_cast<std::size_t>(indice) < voci.size();
}

/// The entry at a position; fault 9 with the control's name outside.
template <class Voci>
auto& voceDi(Voci& voci, int indice, const std::string& nome) {
    if (!contiene(voci, indice)) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome + ", voce " + std::to_string(indice));
    }
    return voci[static_cast<std::size_t>(indice)];
}

/// The next position after `da`, round `quanti`, for which `va` holds; `da` itself if there is no other.
template <class Prova>
int prossimo(int da, int quanti, bool avanti, const Prova& va) {
    int i = da;
    for (int giri = 0; giri < quanti; ++giri) {
        i = avanti ? (i + 1) % quanti : (i <= 0 ? quanti : i) - 1;
        if (va(i)) {
            return i;
        }
    }
    return da;
}

}  // namespace

GruppoOpzioni::GruppoOpzioni(std::string nome, std::vector<Opzione> opzioni, int scelta)
    : Controllo(std::move(nome)), opzioni_(std::move(opzioni)) {
    this->scelta(scelta);
}

const GruppoOpzioni::Opzione& GruppoOpzioni::opzione(int indice) const {
    return voceDi(opzioni_, indice, nome());
}

GruppoOpzioni::Opzione& GruppoOpzioni::cerca(int indice) {
    return voceDi(opzioni_, indice, nome());
}

void GruppoOpzioni::abilita(int indice, bool valore) {
    cambia(cerca(indice).abilitata, valore);
}

void GruppoOpzioni::mostra(int indice, bool valore) {
    cambia(cerca(indice).visibile, valore);
}

void GruppoOpzioni::testo(int indice, const std::string& valore) {
    cambia(cerca(indice).testo, valore);
}

void GruppoOpzioni::scelta(int indice) {
    if (indice != -1) {
        cerca(indice);
    }
    cambia(scelta_, indice);
}

bool GruppoOpzioni::libera(int indice) const {
    return contiene(opzioni_, indice) && opzione(indice).abilitata && opzione(indice).visibile;
}

void GruppoOpzioni::clicca(int indice) {
    if (!raggiungibile() || indice == scelta_ || !libera(indice)) {
        return;
    }
    scelta(indice);
    if (alCambio) {
        alCambio(indice);
    }
}

void GruppoOpzioni::sposta(bool avanti) {
    clicca(prossimo(scelta_, static_cast<int>(opzioni_.size()), avanti, [this](int i) { return libera(i); }));
}

bool GruppoOpzioni::prendeFuoco() const {
    return raggiungibile() &&
           std::any_of(opzioni_.begin(), opzioni_.end(), [](const Opzione& o) { return o.abilitata && o.visibile; });
}

void Elenco::voci(const std::vector<std::string>& valori) {
    if (voci_ == valori) {
        return;
    }
    voci_ = valori;
    if (!contiene(voci_, scelta_)) {
        scelta_ = -1;
    }
    cambiato().emit();
}

void Elenco::scelta(int indice) {
    if (indice != -1) {
        voceDi(voci_, indice, nome());
    }
    cambia(scelta_, indice);
}

void Elenco::scegli(int indice) {
    if (!raggiungibile() || indice == scelta_ || !contiene(voci_, indice)) {
        return;
    }
    scelta(indice);
    if (alCambio) {
        alCambio(indice);
    }
}

void ElencoSpunte::voci(const std::vector<std::string>& testi) {
    std::vector<Voce> nuove;
    for (const std::string& testo : testi) {
        nuove.push_back({.testo = testo, .spuntata = false});
    }
    cambia(voci_, nuove);
}

bool ElencoSpunte::spuntata(int indice) const {
    return voceDi(voci_, indice, nome()).spuntata;
}

void ElencoSpunte::spunta(int indice, bool valore) {
    cambia(voceDi(voci_, indice, nome()).spuntata, valore);
}

void ElencoSpunte::azzera() {
    std::vector<Voce> nuove = voci_;
    for (Voce& voce : nuove) {
        voce.spuntata = false;
    }
    cambia(voci_, nuove);
}

int ElencoSpunte::quanteSpuntate() const {
    return static_cast<int>(std::count_if(voci_.begin(), voci_.end(), [](const Voce& v) { return v.spuntata; }));
}

int ElencoSpunte::primaSpuntata() const {
    const auto prima = std::find_if(voci_.begin(), voci_.end(), [](const Voce& v) { return v.spuntata; });
    return prima == voci_.end() ? -1 : static_cast<int>(prima - voci_.begin());
}

void ElencoSpunte::clicca(int indice) {
    if (!raggiungibile() || !contiene(voci_, indice)) {
        return;
    }
    spunta(indice, !spuntata(indice));
    if (alClic) {
        alClic(indice);
    }
}

Scorrimento::Scorrimento(std::string nome, int minimo, int massimo, int passo)
    : Controllo(std::move(nome)),
      minimo_(minimo),
      massimo_(std::max(minimo, massimo)),
      passo_(std::max(1, passo)),
      valore_(minimo) {}

int Scorrimento::ammesso(int valore) const {
    const std::int64_t passo = passo_;
    const std::int64_t distanza = std::int64_t{std::clamp(valore, minimo_, massimo_)} - minimo_;
    const std::int64_t ultimo = (std::int64_t{massimo_} - minimo_) / passo;
    return static_cast<int>(minimo_ + passo * std::min(ultimo, (distanza + passo / 2) / passo));
}

void Scorrimento::valore(int nuovo) {
    cambia(valore_, ammesso(nuovo));
}

void Scorrimento::limiti(int minimo, int massimo) {
    massimo = std::max(minimo, massimo);
    if (minimo_ == minimo && massimo_ == massimo) {
        return;
    }
    minimo_ = minimo;
    massimo_ = massimo;
    valore_ = ammesso(valore_);
    cambiato().emit();
}

void Scorrimento::imposta(int nuovo) {
    if (!raggiungibile()) {
        return;
    }
    const int prima = valore_;
    valore(nuovo);
    if (valore_ == prima) {
        cambiato().emit();  // the view goes back to where the value is
    } else if (alCambio) {
        alCambio(valore_);
    }
}

Schede::Schede(std::string nome, const std::vector<std::string>& titoli) : Controllo(std::move(nome)) {
    for (const std::string& titolo : titoli) {
        schede_.push_back({.titolo = titolo});
    }
}

const Schede::Scheda& Schede::scheda(int indice) const {
    return voceDi(schede_, indice, nome());
}

Schede::Scheda& Schede::cerca(int indice) {
    return voceDi(schede_, indice, nome());
}

std::string Schede::testo(int indice) const {
    const Scheda& s = scheda(indice);
    return s.conteggio ? "[" + std::to_string(*s.conteggio) + "] " + s.titolo : s.titolo;
}

void Schede::titolo(int indice, const std::string& valore) {
    cambia(cerca(indice).titolo, valore);
}

void Schede::conteggio(int indice, std::optional<int> valore) {
    cambia(cerca(indice).conteggio, valore);
}

void Schede::icona(int indice, const std::string& valore) {
    cambia(cerca(indice).icona, valore);
}

void Schede::abilita(int indice, bool valore) {
    cambia(cerca(indice).abilitata, valore);
}

void Schede::corrente(int indice) {
    cerca(indice);
    cambia(corrente_, indice);
}

void Schede::scegli(int indice) {
    if (!raggiungibile() || indice == corrente_ || !contiene(schede_, indice) || !scheda(indice).abilitata) {
        return;
    }
    corrente(indice);
    if (alCambio) {
        alCambio(indice);
    }
}

void Schede::sposta(bool avanti) {
    scegli(
        prossimo(corrente_, static_cast<int>(schede_.size()), avanti, [this](int i) { return scheda(i).abilitata; }));
}

}  // namespace kelvo
