#include "calc/ricercaCurva.h"

#include <cmath>

#include "base/guasto.h"
#include "base/numeri.h"
#include "calc/spezzata.h"

namespace kelvo {

namespace {

constexpr double passoPicco = 0.01;  ///< veic/min
constexpr double scartoAmmesso = 0.01;
constexpr double flussoBasso = 1.0;  ///< below it q3 starts nearer to q1
constexpr double distanzaBassa = 0.3;
constexpr double distanzaAlta = 3.0;

double letto(const std::string& testo) {
    return leggiNumero(testo).value_or(0.0);
}

/// The field of a flow: its number, and whether it still shows the very text of q1.
struct Campo {
    double valore = 0.0;
    bool comeQ1 = false;
};

class Ricerca {
public:
    Ricerca(const RichiestaRicerca& richiesta, double q1, const std::function<void(int)>& alPasso)
        : richiesta_(richiesta), q1_(q1), alPasso_(alPasso), forma_(spezzata::formaDi(richiesta.dati)) {
        q2_ = {q1, true};
        q3_ = {spezzata::comeTesto(q1 + (q1 < flussoBasso ? distanzaBassa : distanzaAlta)), false};
    }

    EsitoRicerca cerca() {
        for (;;) {
            costruisci();
            if (const auto fine = avvicina()) {
                return *fine;
            }
            alPasso_(passiMassimiRicerca);
            if (q3_.valore < q2_.valore) {
                return EsitoRicerca::trovata;
            }
            q3_ = {q1_, true};
        }
    }

    int passi() const { return passi_; }
    std::string q2() const { return testo(q2_); }
    std::string q3() const { return testo(q3_); }
    /// The parameters that the curve was last built with.
    DatiCurva costruiti() const {
        DatiCurva dati = richiesta_.dati;
        dati.q1 = q1_;
        dati.q2 = q2Costruito_;
        dati.q3 = q3_.valore;
        return dati;
    }

private:
    /// Moves the peak until the target is met; an outcome if the search ends before.
    std::optional<EsitoRicerca> avvicina() {
        double d = distanza();
        do {
            q2_ = {spezzata::comeTesto(q2_.valore + (d >= 0.0 ? passoPicco : -passoPicco)), false};
            if (d < 0.0 && (q2_.valore <= 0.0 || q1_ > q2_.valore)) {
                return EsitoRicerca::fallita;
            }
            costruisci();
            alPasso_(++passi_);
            if (passi_ >= passiMassimiRicerca) {
                return EsitoRicerca::passiEsauriti;
            }
            d = distanza();
        } while (std::fabs(d) >= scartoAmmesso);
        return std::nullopt;
    }

    /// Total and q3 as CostruisciCurva leaves them.
    void costruisci() {
        q2Costruito_ = q2_.valore;
        if (forma_.piatto) {
            q3_ = q2_;
        }
        if (forma_.costruibile()) {
            const spezzata::Rette rette = spezzata::retteDi(forma_, q1_, q2_.valore, q3_.valore);
            totale_ = spezzata::arrotondato(spezzata::percorri(forma_, rette, [](int, float) {}));
        }
    }

    double distanza() const { return richiesta_.obiettivo - totale_; }
    std::string testo(const Campo& campo) const { return campo.comeQ1 ? richiesta_.q1 : testoNumero(campo.valore); }

    const RichiestaRicerca& richiesta_;
    double q1_;
    const std::function<void(int)>& alPasso_;
    spezzata::Forma forma_;
    Campo q2_;
    Campo q3_;
    double q2Costruito_ = 0.0;
    double totale_ = 0.0;  ///< vehicles, rounded as their field shows them
    int passi_ = 0;
};

}  // namespace

RisultatoRicerca cercaCurva(const RichiestaRicerca& richiesta, CurvaTraffico& curva,
                            const std::function<void(int)>& alPasso) {
    const auto q1 = leggiNumero(richiesta.q1);
    if (!q1) {
        throw Guasto(NumeroGuasto::tipoNonCorrispondente, "q1 '" + richiesta.q1 + "'");
    }
    curva.TotaleArrotondato.clear();
    Ricerca ricerca(richiesta, *q1, alPasso);
    const EsitoRicerca esito = ricerca.cerca();
    CostruisciCurva(ricerca.costruiti(), curva);
    return {.esito = esito, .q2 = ricerca.q2(), .q3 = ricerca.q3(), .passi = ricerca.passi()};
}

bool piccoAnomalo(double q1, double q2) {
    return q2 - q1 > differenzaAnomala;
}

std::optional<double> approssimazione(const std::string& totaleEsatto, double obiettivo) {
    if (obiettivo == 0.0) {
        return std::nullopt;
    }
    return -(100.0 - letto(totaleEsatto) / obiettivo * 100.0);
}

}  // namespace kelvo
