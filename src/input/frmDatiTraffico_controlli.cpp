// Leaving of the fields of the demand curve.

#include <fmt/format.h>

#include "app/titoli.h"
#include "base/date.h"
#include "base/numeri.h"
#include "input/frmDatiTraffico.h"
#include "shell/servizi/campiNumerici.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* fuoriModellazione =
    "Il parametro 't{}' deve essere compreso nel  tempo di modellazione [{}],[{}]";
constexpr const char* intervallo = "Indicare dei tempi che rispettino l'intervallo di tempo indicato";
constexpr const char* tempo2 = "Il parametro 't2' deve essere compreso tra i valori di 't1' [{}] e di 't3' [{}]";
constexpr const char* tempo3 = "Il parametro 't3' deve essere maggiore del parametro 't2' [{}].";
constexpr const char* motivoTempo1 = "Il tempo t1 non può essere successivo a t2.";
constexpr const char* motivoNumero = "Scrivere un numero.";
}  // namespace testi

std::int64_t minutiDelGiorno(DataOra ora) {
    return minutiTra(0.0, ora);
}

/// False where a length is no whole number of segments; one of no minutes is for the construction to refuse.
bool intera(std::int64_t durata, int segmento) {
    return segmento == 0 || durata % segmento == 0;
}

EsitoUscita avviso(const std::string& testo, bool rimessoPrima) {
    EsitoUscita esito = EsitoUscita::rifiuto(MessaggioCampo{testo, titoli::attenzione, Icona::esclamazione});
    esito.rimessoPrima = rimessoPrima;
    return esito;
}

}  // namespace

EsitoUscita frmDatiTraffico::controllaNumero(const tBox& campo) const {
    if (mascheraVuota(campo) || leggiSingolo(campo.testo())) {
        return EsitoUscita::bene();
    }
    return EsitoUscita::rifiuto(std::string{testi::motivoNumero});
}

EsitoUscita frmDatiTraffico::controllaTempo(std::size_t quale) {
    const tBox& campo = this->*legamiTempi[quale].campo;
    if (segnalato_[quale] && !campo.modificato()) {
        return EsitoUscita::bene();  // else a leg whose times lie outside the window could never be left again
    }
    switch (quale) {
        case 0:
            return rifiutaTempo(quale, esaminaTempo1());
        case 1:
            return rifiutaTempo(quale, esaminaTempo2());
        default:
            return rifiutaTempo(quale, esaminaTempo3());
    }
}

EsitoUscita frmDatiTraffico::rifiutaTempo(std::size_t quale, EsitoUscita esito) {
    if (!esito.accettato) {
        const tBox& campo = this->*legamiTempi[quale].campo;
        segnalato_[quale] = !campo.modificato();
        esito.rimesso = testoHHNN((dati().*legamiTempi[quale].leggi)());
    }
    return esito;
}

EsitoUscita frmDatiTraffico::esaminaTempo1() const {
    const Rotonda& r = app().theRotonda();
    const std::int64_t t1 = minutiDelGiorno(tempo(0));
    const std::int64_t t2 = minutiDelGiorno(tempo(1));
    if (t1 > t2) {
        return EsitoUscita::rifiuto(std::string{testi::motivoTempo1});
    }
    if (t1 < minutiDelGiorno(r.TempoIniziale())) {
        return avviso(
            fmt::format(testi::fuoriModellazione, 1, testoHHNN(r.TempoIniziale()), testoHHNN(r.TempoFinale())), false);
    }
    return intera(t2 - t1, minutiSegmento()) ? EsitoUscita::bene() : avviso(testi::intervallo, true);
}

EsitoUscita frmDatiTraffico::esaminaTempo2() const {
    const std::int64_t t1 = minutiDelGiorno(tempo(0));
    const std::int64_t t2 = minutiDelGiorno(tempo(1));
    if (t2 > minutiDelGiorno(tempo(2)) || t1 > t2) {
        return avviso(fmt::format(testi::tempo2, txtTempo1.testo(), txtTempo3.testo()), true);
    }
    return intera(t2 - t1, minutiSegmento()) ? EsitoUscita::bene() : avviso(testi::intervallo, true);
}

EsitoUscita frmDatiTraffico::esaminaTempo3() const {
    const Rotonda& r = app().theRotonda();
    const std::int64_t t2 = minutiDelGiorno(tempo(1));
    const std::int64_t t3 = minutiDelGiorno(tempo(2));
    if (t3 < t2) {
        return avviso(fmt::format(testi::tempo3, txtTempo2.testo()), false);
    }
    if (t3 > minutiDelGiorno(r.TempoFinale())) {
        return avviso(
            fmt::format(testi::fuoriModellazione, 3, testoHHNN(r.TempoIniziale()), testoHHNN(r.TempoFinale())), false);
    }
    return intera(t3 - t2, minutiSegmento()) ? EsitoUscita::bene() : avviso(testi::intervallo, true);
}

void frmDatiTraffico::dopoFlusso(const tBox& campo) {
    if (campo.testo() != ",") {
        dopoTempo();
    }
}

void frmDatiTraffico::dopoTempo() {
    gestisci("frmDatiTraffico:Controlli", [this] { confronta(); });
    CostruisciCurva();
    DoTheChart();
}

void frmDatiTraffico::confronta() {
    bool uguali = true;
    for (const LegameNumero& legame : legamiNumeri) {
        const tBox& campo = this->*legame.campo;
        if (!campo.solaLettura() && campo.modificato()) {
            uguali = uguali && singoloDi(campo) == (dati().*legame.leggi)();
        }
    }
    for (const LegameTempo& legame : legamiTempi) {
        const tBox& campo = this->*legame.campo;
        uguali = uguali && (!campo.modificato() || campo.testo() == testoHHNN((dati().*legame.leggi)()));
    }
    if (!uguali) {
        DatiAllineati(false);
    }
}

}  // namespace kelvo
