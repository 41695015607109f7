#include "pianta/Pianta.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/guasto.h"
#include "model/Rotonda.h"
#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

constexpr std::array<std::string_view, 24> nomiRuolo{"carreggiata",
                                                     "anello",
                                                     "corona",
                                                     "isola",
                                                     "ingresso",
                                                     "uscita",
                                                     "isolaDivisionale",
                                                     "cordolo",
                                                     "cerchioInscritto",
                                                     "lineaDarePrecedenza",
                                                     "dentiPrecedenza",
                                                     "asse",
                                                     "attraversamento",
                                                     "freccia",
                                                     "frecciaAnello",
                                                     "percorso",
                                                     "flusso",
                                                     "lettera",
                                                     "nome",
                                                     "nota",
                                                     "coda",
                                                     "taglioCoda",
                                                     "livello",
                                                     "oltreCoda"};

/// What a measure may be for a plan at all; beyond, it is drawn at the bound.
struct Limiti {
    double minimo = 0.0;
    double massimo = 0.0;
};

constexpr std::array<Limiti, numeroMisure> limiti{Limiti{0.5, 100.0}, Limiti{0.5, 100.0},   Limiti{0.1, 10000.0},
                                                  Limiti{0.0, 90.0},  Limiti{0.5, 10000.0}, Limiti{6.0, 1000.0}};

std::vector<double> direzioni(const DatiPianta& dati) {
    const std::size_t n = dati.rami.size();
    const std::vector<double>& date = dati.ipotesi.direzioni;
    bool buone = date.size() == n && date.front() == 0;
    for (std::size_t i = 0; buone && i < n; ++i) {
        const double prossima = i + 1 < n ? date[i + 1] : 360.0;
        buone = prossima - date[i] >= dati.ipotesi.distaccoMinimo;
    }
    std::vector<double> angoli(n);
    for (std::size_t i = 0; i < n; ++i) {
        angoli[i] = buone ? radianti(date[i]) : 2 * pi * static_cast<double>(i) / static_cast<double>(n);
    }
    return angoli;
}

bool uguali(double a, double b) {
    return std::abs(a - b) <= 1e-6;
}

/// Depth of the nose of the splitter island: where the entry curve starts, in reason to the island's head.
double naso(const RamoDisegnato& ramo, const Ipotesi& ipotesi) {
    const double profonda = std::max(-ramo.ingresso.angolo.y, -ramo.uscita.angolo.y);
    // An island with a wide head is long enough for its edges to keep clear of the head, which bends towards the nose.
    const auto lunga = [&](Punto angolo) {
        const double libero = pi / 2 - radianti(ipotesi.angoloTesta) - azimut(angolo);
        return angolo.x * std::max(ipotesi.isolaSuTesta, 1 / std::tan(libero));
    };
    const double testa = std::max(lunga(ramo.ingresso.angolo), lunga(ramo.uscita.angolo));
    return std::clamp(ramo.ingresso.inizioCurva, profonda + std::max(ipotesi.isolaMinima, testa),
                      profonda + std::max(ipotesi.isolaMassima, testa));
}

/// Azimuth at which the lane of a side ends at the circle: where the kerb comes close to it.
double fineCorsia(const Ciglio& ciglio, double settore, const Ipotesi& ipotesi) {
    const double cuneo = std::min(ipotesi.cuneoPrecedenza, ipotesi.cuneoSuRaggio * ciglio.R);
    const Tracciato via = tracciatoCiglio(ciglio, ciglio.profondita() + ciglio.R);
    const double vicina = bisezione(azimut(via.front().p), ciglio.fineCurva, [&](double angolo) {
        const auto dove = incontro(via, angolo);
        return dove ? norma(puntoIn(via, *dove)) - ciglio.R - cuneo : -1.0;
    });
    const double massima = std::max(azimut(ciglio.piede), ipotesi.piedeSuSettore * settore);
    return std::min({std::max(vicina, azimut(ciglio.piede)), massima, ciglio.fineCurva});
}

}  // namespace

std::string_view nomeRuolo(Ruolo ruolo) {
    return nomiRuolo[static_cast<std::size_t>(ruolo)];
}

char lettera(int ramo) {
    return static_cast<char>('A' + ramo - 1);
}

double disegnabile(const DatiRamo& ramo, Misura quale) {
    const Limiti& l = limiti[static_cast<std::size_t>(quale)];
    const double valore = ramo.misura(quale);
    return std::isfinite(valore) ? std::clamp(valore, l.minimo, l.massimo) : l.minimo;
}

std::string conLettera(std::string_view parola, std::size_t i) {
    return std::string(parola) + " " + lettera(static_cast<int>(i) + 1);
}

double DatiRamo::misura(Misura quale) const {
    const std::array valori{larghezzaIngresso, semiLarghezza,  lunghezzaSvasatura,
                            angoloConflitto,   raggioIngresso, diametroInscritto};
    return valori[static_cast<std::size_t>(quale)];
}

DatiPianta datiPianta(const Rotonda& rotonda) {
    DatiPianta dati;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        const Ramo& ramo = rotonda.Ramo(i);
        dati.rami.push_back({.nome = ramo.Descrizione(),
                             .larghezzaIngresso = ramo.LarghezzaIngresso(),
                             .semiLarghezza = ramo.SemiLarghezza(),
                             .lunghezzaSvasatura = ramo.LunghezzaSvasatura(),
                             .angoloConflitto = ramo.AngoloConflitto(),
                             .raggioIngresso = ramo.RaggioIngresso(),
                             .diametroInscritto = ramo.DiametroInscritto(),
                             .attraversamentoPedonale = ramo.AttraversamentoPedonale()});
    }
    return dati;
}

double Costruzione::distacco(std::size_t i) const {
    const double prossima = i + 1 < numero() ? pianta.rami[i + 1].direzione : 2 * pi;
    return prossima - pianta.rami[i].direzione;
}

Tracciato Costruzione::ciglioIngresso(std::size_t i) const {
    return tracciatoCiglio(pianta.rami[i].ingresso, pianta.lunghezzaRami);
}

Tracciato Costruzione::ciglioUscita(std::size_t i) const {
    return tracciatoCiglio(pianta.rami[i].uscita, pianta.lunghezzaRami);
}

double Costruzione::raggioIsola() const {
    return raggioCorona() - std::min(ipotesi().corona, ipotesi().coronaSuRaggio * pianta.R);
}

double Costruzione::grandezza() const {
    constexpr double usuale = 20.0;
    return std::clamp(pianta.R / usuale, 0.6, 2.0);
}

void Costruzione::area(Ruolo ruolo, std::size_t i, const std::string& nome, const Tracciato& contorno) {
    pianta.aree.push_back({.ruolo = ruolo,
                           .ramo = static_cast<int>(i) + 1,
                           .nome = nome,
                           .contorno = ruotato(contorno, angolo(i)),
                           .corrente = corrente(i)});
}

namespace {

void disponiRamo(Costruzione& opera, std::size_t i) {
    const Ipotesi& ipotesi = opera.ipotesi();
    const DatiRamo& dati = opera.dati.rami[i];
    const std::size_t prima = (i + opera.numero() - 1) % opera.numero();
    const double massimo = radianti(ipotesi.semisettoreMassimo);
    const double destra = std::min(opera.distacco(i) / 2, massimo);
    const double sinistra = std::min(opera.distacco(prima) / 2, massimo);
    const double R = opera.pianta.R;
    constexpr double margine = 6.0;
    const double profondita = std::max(ipotesi.ramoMassimoSuRaggio * R, R + ipotesi.ramoMassimo) - margine;
    const double e = disegnabile(dati, Misura::larghezzaIngresso);
    const double v = disegnabile(dati, Misura::semiLarghezza);
    const double l = disegnabile(dati, Misura::lunghezzaSvasatura);
    const double r = disegnabile(dati, Misura::raggioIngresso);
    RamoDisegnato& ramo = opera.pianta.rami[i];
    ramo.ingresso = ciglioIngresso(
        {.R = R, .settore = destra, .semi = v, .larghezza = e, .svasatura = l, .raggio = r, .profondita = profondita},
        ipotesi);
    ramo.uscita = ciglioUscita({.R = R,
                                .settore = sinistra,
                                .semi = v,
                                .larghezza = std::max(ipotesi.uscitaMinima, ipotesi.uscitaSuSemilarghezza * v),
                                .svasatura = ipotesi.svasaturaUscita,
                                .raggio = std::clamp(ipotesi.raggioUscitaSuIngresso * r, ipotesi.raggioUscitaMinimo,
                                                     ipotesi.raggioUscitaMassimo),
                                .profondita = profondita},
                               ramo.ingresso.angolo.x, ipotesi);
    ramo.naso = naso(ramo, ipotesi);
    ramo.fineIngresso = fineCorsia(ramo.ingresso, destra, ipotesi);
    ramo.fineUscita = fineCorsia(ramo.uscita, sinistra, ipotesi);
    ramo.inScala = {uguali(ramo.ingresso.larghezza, dati.larghezzaIngresso),
                    uguali(ramo.ingresso.semi, dati.semiLarghezza),
                    uguali(ramo.ingresso.svasatura, dati.lunghezzaSvasatura),
                    uguali(disegnabile(dati, Misura::angoloConflitto), dati.angoloConflitto),
                    uguali(ramo.ingresso.raggio, dati.raggioIngresso),
                    uguali(2 * R, dati.diametroInscritto)};
}

}  // namespace

void disponiRami(Costruzione& opera) {
    const Ipotesi& ipotesi = opera.ipotesi();
    Pianta& pianta = opera.pianta;
    const double R = pianta.R;
    pianta.lunghezzaRami = std::max(ipotesi.ramoSuRaggio * R, R + ipotesi.ramoMinimo);
    double larga = 0;
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        disponiRamo(opera, i);
        const RamoDisegnato& ramo = pianta.rami[i];
        constexpr double dopoSvasatura = 5.0;
        constexpr double dopoNaso = 9.0;
        pianta.lunghezzaRami =
            std::max({pianta.lunghezzaRami, ramo.ingresso.profondita() + dopoSvasatura,
                      ramo.uscita.profondita() + dopoSvasatura, ramo.naso + dopoNaso * opera.grandezza()});
        larga = std::max(larga, ramo.ingresso.larghezza);
    }
    pianta.anello =
        std::min(std::max(ipotesi.anelloMinimo, ipotesi.anelloSuIngresso * larga), ipotesi.anelloSuRaggio * R);
}

Pianta costruisci(const DatiPianta& dati, const OpzioniPianta& opzioni) {
    const std::size_t n = dati.rami.size();
    if (n < minimoRami || n > massimoRami || opzioni.ramo < 0 || opzioni.ramo > static_cast<int>(n)) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "pianta della rotatoria");
    }
    OpzioniPianta scelte = opzioni;
    if (scelte.vista == Vista::primoPiano && scelte.ramo == 0) {
        scelte.ramo = 1;
    }
    Pianta pianta;
    const std::size_t primo = scelte.ramo == 0 ? 0 : static_cast<std::size_t>(scelte.ramo) - 1;
    pianta.R = disegnabile(dati.rami[primo], Misura::diametro) / 2;
    for (const double direzione : direzioni(dati)) {
        pianta.rami.push_back({.direzione = direzione});
    }
    Costruzione opera{.dati = dati, .opzioni = scelte, .pianta = pianta};
    opera.svolta = scelte.vista == Vista::primoPiano ? -pianta.rami[primo].direzione : 0.0;
    disponiRami(opera);
    scegliVista(opera);
    opera.conFlussi = aggiungiFlussi(opera);
    aggiungiCarreggiata(opera);
    aggiungiSegnaletica(opera);
    aggiungiQuote(opera);
    aggiungiScritte(opera);
    if (scelte.vista == Vista::intera && !scelte.stati.empty()) {
        comprendiStati(opera);
        mostraStati(pianta, scelte.stati);
    }
    pianta.nomeAccessibile = fmt::format("Rotatoria a {} rami", n);
    return pianta;
}

double parteVista(const Pianta& pianta) {
    return pianta.fascia ? 1.0 - pianta.fascia->altezza() / pianta.vista.altezza() : 1.0;
}

}  // namespace kelvo::pianta
