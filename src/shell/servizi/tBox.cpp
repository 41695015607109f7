#include "shell/servizi/tBox.h"

#include <fmt/format.h>

#include <algorithm>
#include <limits>

#include "app/titoli.h"
#include "base/date.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "shell/servizi/controlli.h"

namespace kelvo {

namespace {

constexpr const char* motivoNumero = "Scrivere un numero.";
constexpr const char* motivoMassimo = "Il valore massimo ammesso è {}.";
constexpr const char* motivoMinimo = "Il valore minimo ammesso è {}.";

/// Cuts the part in front of the first `separatore` off `resto`.
std::string_view taglia(std::string_view& resto, char separatore) {
    const auto fine = resto.find(separatore);
    const std::string_view parte = resto.substr(0, fine);
    resto.remove_prefix(fine == std::string_view::npos ? resto.size() : fine + 1);
    return parte;
}

std::string_view senzaBianchiDavanti(std::string_view testo) {
    testo.remove_prefix(std::min(testo.find_first_not_of(" \t"), testo.size()));
    return testo;
}

}  // namespace

double numeroIniziale(std::string_view testo) {
    testo = senzaBianchiDavanti(testo);
    std::size_t fine = 0;
    if (fine < testo.size() && (testo[fine] == '-' || testo[fine] == '+')) {
        ++fine;
    }
    bool punto = false;
    while (fine < testo.size() && ((testo[fine] >= '0' && testo[fine] <= '9') || (testo[fine] == '.' && !punto))) {
        punto = punto || testo[fine] == '.';
        ++fine;
    }
    testo = testo.substr(0, fine);
    const auto letto = leggiNumero(testo, Separatore::virgolaOPunto);
    if (!letto && testo.find_first_of("0123456789") != std::string_view::npos) {
        // More digits than a double holds: no limit lies beyond it.
        constexpr double estremo = std::numeric_limits<double>::max();
        return testo.starts_with('-') ? -estremo : estremo;
    }
    return letto.value_or(0.0);
}

RegoleCampo RegoleCampo::daTag(std::string_view tag) {
    RegoleCampo regole;
    while (!tag.empty()) {
        std::string_view parte = taglia(tag, ';');
        if (parte.find(':') == std::string_view::npos) {
            continue;  // no pair
        }
        const std::string_view chiave = rifila(taglia(parte, ':'));
        const std::string_view valore = rifila(parte);
        if (chiave == "Type") {
            regole.numerico = regole.numerico || valore == "Numeric";
        } else if (chiave == "ValueMin") {
            regole.minimo = std::max(regole.minimo.value_or(numeroIniziale(valore)), numeroIniziale(valore));
        } else if (chiave == "ValueMax") {
            regole.massimo = std::min(regole.massimo.value_or(numeroIniziale(valore)), numeroIniziale(valore));
        }
    }
    return regole;
}

std::string RegoleCampo::motivo(std::string_view testo) const {
    if (numerico && !testo.empty() && !leggiNumero(testo, Separatore::virgolaOPunto)) {
        return motivoNumero;
    }
    const double valore = numeroIniziale(testo);
    if (massimo && valore > *massimo) {
        return fmt::format(motivoMassimo, testoNumero(*massimo));
    }
    if (minimo && valore < *minimo) {
        return fmt::format(motivoMinimo, testoNumero(*minimo));
    }
    return {};
}

tBox::tBox(std::string nome, Faccia faccia, std::string tag)
    : Controllo(std::move(nome), std::move(tag)), faccia_(faccia), regole_(RegoleCampo::daTag(this->tag())) {}

void tBox::metti(const std::string& testo) {
    const bool mutato = fallito_ || testo_ != testo;
    fallito_ = false;
    testo_ = testo;
    if (mutato) {
        cambiato().emit();
    }
}

void tBox::testo(const std::string& valore) {
    messo_ = valore;
    allEntrata_ = valore;
    metti(valore);
}

void tBox::modifica(const std::string& valore) {
    metti(valore);
}

void tBox::voci(const std::vector<std::string>& valori) {
    cambia(voci_, valori);
}

int tBox::scelta() const {
    const auto trovata = std::find(voci_.begin(), voci_.end(), testo_);
    return trovata == voci_.end() ? -1 : static_cast<int>(trovata - voci_.begin());
}

void tBox::scelta(int indice) {
    if (indice < 0 || indice >= static_cast<int>(voci_.size())) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome() + ", voce " + std::to_string(indice));
    }
    testo(voci_[static_cast<std::size_t>(indice)]);
}

void tBox::entra() {
    if (!raggiungibile()) {
        return;
    }
    if (!fallito_) {
        allEntrata_ = testo_;  // a refused field that gets the focus back still knows what stood there before
    }
    if (custode() != nullptr) {
        if (PannelloAiuto* aiuto = custode()->aiuto()) {
            aiuto->pagina(paginaAiuto.empty() ? std::string{paginaAiutoVuota} : paginaAiuto);
        }
    }
    Controllo::entra();
}

bool tBox::prende(const std::string& testo) const {
    if (faccia_ == combobox && !digitabile) {
        return std::find(voci_.begin(), voci_.end(), testo) != voci_.end();
    }
    if (faccia_ == dtpicker) {
        return (giorno ? leggiData(testo) : leggiHHNN(testo)).has_value();
    }
    return true;
}

std::string tBox::filtrato(std::string_view testo) const {
    std::string nuovo;
    std::size_t presi = 0;
    for (std::string& carattere : caratteri(testo)) {
        if ((regole_.numerico || virgola) && carattere == ".") {
            carattere = ",";  // seen at once: the decimal comma is shown in its place
        }
        const bool ammesso = caratteriAmmessi.empty() || caratteriAmmessi.find(carattere) != std::string::npos;
        if (ammesso && (lunghezzaMassima == 0 || presi < lunghezzaMassima)) {
            nuovo += carattere;
            ++presi;
        }
    }
    return nuovo;
}

void tBox::digita(const std::string& testo) {
    if (!prende(testo)) {
        cambiato().emit();  // the view shows again what stands there
        return;
    }
    cambia(testo_, testo);
    if (dopoTasto) {
        dopoTasto();
    }
}

void tBox::scrivi(std::string_view testo) {
    if (!raggiungibile() || solaLettura_) {
        return;
    }
    const std::string nuovo = filtrato(testo);
    if (tuttoONiente && nuovo != testo) {
        cambiato().emit();  // the view shows again what stands there
        return;
    }
    const bool unTasto = nuovo.size() == testo_.size() + 1;
    if (unaVirgola && unTasto && std::count(testo_.begin(), testo_.end(), ',') == 1 &&
        std::count(nuovo.begin(), nuovo.end(), ',') == 2) {
        cambiato().emit();  // the view shows again what stands there
        return;
    }
    digita(nuovo);
}

void tBox::scegli(int indice) {
    if (raggiungibile() && !solaLettura_ && indice >= 0 && indice < static_cast<int>(voci_.size())) {
        digita(voci_[static_cast<std::size_t>(indice)]);
    }
}

EsitoUscita tBox::rifiutato(std::string motivo) const {
    if (rifiuto.empty()) {
        return EsitoUscita::rifiuto(std::move(motivo));
    }
    EsitoUscita esito = EsitoUscita::rifiuto(MessaggioCampo{rifiuto, titoli::attenzione, Icona::esclamazione});
    esito.motivo = nomeCampo.empty() ? rifiuto : nomeCampo + ": " + rifiuto;
    return esito;
}

EsitoUscita tBox::esamina() {
    std::string numero = testo_;
    if (virgola) {
        std::replace(numero.begin(), numero.end(), ',', '.');
        numero = numero == "." ? std::string{} : numero;  // a lone comma is an empty mask
    }
    if (std::string motivo = regole_.motivo(numero); !motivo.empty()) {
        return rifiutato(std::move(motivo));
    }
    return controllo ? controllo() : EsitoUscita::bene();
}

bool tBox::convalida() {
    const EsitoUscita esito = esamina();
    const bool prima = fallito_;
    fallito_ = !esito.accettato;
    if (prima != fallito_) {
        cambiato().emit();
    }
    const bool rimette = !esito.accettato && esito.rimesso;
    if (rimette && esito.rimessoPrima) {
        testo(*esito.rimesso);
    }
    if (custode() != nullptr) {
        custode()->giudicato(*this, esito);
    }
    if (rimette && !esito.rimessoPrima) {
        testo(*esito.rimesso);
    }
    return esito.accettato;
}

bool tBox::lascia() {
    if (!raggiungibile()) {
        return true;  // nothing to answer for
    }
    if (!convalida()) {
        return false;
    }
    Aspetto pulito = aspetto();
    pulito.sfondo = colori::bianco;
    aspetto(pulito);
    if (dopoUscita) {
        dopoUscita();
    }
    return true;
}

bool tBox::annulla() {
    const bool mutato = testo_ != allEntrata_;
    const bool rifiutato = fallito_;
    if (!raggiungibile() || (!mutato && !rifiutato)) {
        return false;
    }
    metti(allEntrata_);
    if (rifiutato && custode() != nullptr) {
        custode()->giudicato(*this, EsitoUscita::bene());  // the reason goes with the refused text
    }
    if (mutato && dopoTasto) {
        dopoTasto();
    }
    return true;
}

}  // namespace kelvo
