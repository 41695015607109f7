#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/numeri.h"
#include "base/testo.h"
#include "pianta/costruzione.h"

namespace kelvo::pianta {

namespace {

void allarga(Riquadro& vista, Punto minimo, Punto massimo) {
    vista.minimo = {std::min(vista.minimo.x, minimo.x), std::min(vista.minimo.y, minimo.y)};
    vista.massimo = {std::max(vista.massimo.x, massimo.x), std::max(vista.massimo.y, massimo.y)};
}

void allarga(Riquadro& vista, Punto testo, Allineamento allineamento, double larga, double alta) {
    const double sinistra = allineamento == Allineamento::sinistra ? 0 : allineamento == Allineamento::destra ? 1 : 0.5;
    allarga(vista, testo + Punto{-sinistra * larga, -alta / 2}, testo + Punto{(1 - sinistra) * larga, alta / 2});
}

/// A name on one line, or on two where it is long; what does not fit on two is left out.
std::vector<std::string> righeNome(const std::string& nome) {
    constexpr std::size_t breve = 22;
    const std::vector<std::string> segni = caratteri(utf8Valido(nome));
    const auto tratto = [&](std::size_t da, std::size_t a) {
        std::string testo;
        for (std::size_t k = da; k < a; ++k) {
            testo += segni[k];
        }
        return testo;
    };
    if (segni.size() <= breve) {
        return {tratto(0, segni.size())};
    }
    // The blank that leaves two lines of about the same length.
    std::size_t taglio = breve;
    const auto mezzo = static_cast<std::ptrdiff_t>(std::min(segni.size() / 2, breve));
    for (std::size_t k = 1; k <= breve && k < segni.size(); ++k) {
        const auto scarto = [&](std::size_t dove) { return std::abs(static_cast<std::ptrdiff_t>(dove) - mezzo); };
        if (segni[k] == " " && (segni[taglio] != " " || scarto(k) < scarto(taglio))) {
            taglio = k;
        }
    }
    const std::size_t dopo = segni[taglio] == " " ? taglio + 1 : taglio;
    const std::size_t fine = std::min(segni.size(), dopo + breve);
    return {tratto(0, taglio), tratto(dopo, fine) + (fine < segni.size() ? "…" : "")};
}

/// Letter in its disc beyond the end of a leg, and the name beyond it.
void scriviRamo(Costruzione& opera, std::size_t i) {
    Pianta& pianta = opera.pianta;
    const double h = pianta.altezzaTesto;
    const double raggio = 1.35 * h;
    const Punto fuori = ruotato(Punto{0, -1}, opera.angolo(i));
    const Punto posto = fuori * (pianta.lunghezzaRami + 1.4 * raggio);
    const int ramo = static_cast<int>(i) + 1;
    double oltre = 0.3 * h;
    if (opera.opzioni.lettere) {
        pianta.testi.push_back({.ruolo = Ruolo::lettera,
                                .ramo = ramo,
                                .testo = std::string(1, lettera(ramo)),
                                .punto = posto,
                                .altezza = 1.45 * h,
                                .disco = raggio,
                                .corrente = opera.corrente(i) || opera.nelMovimento(i)});
        allarga(pianta.vista, posto - Punto{raggio, raggio}, posto + Punto{raggio, raggio});
        oltre += raggio;
    }
    if (!opera.opzioni.nomi || opera.dati.rami[i].nome.empty()) {
        return;
    }
    constexpr double quasiDritto = 0.35;
    const std::vector<std::string> righe = righeNome(opera.dati.rami[i].nome);
    const double riga = 1.25 * h;
    const auto n = static_cast<double>(righe.size());
    const Allineamento lato = fuori.x > quasiDritto    ? Allineamento::sinistra
                              : fuori.x < -quasiDritto ? Allineamento::destra
                                                       : Allineamento::centro;
    const double segno = fuori.x > 0 ? 1 : -1;
    const Punto centro =
        posto + (lato == Allineamento::centro ? Punto{0, (fuori.y > 0 ? 1 : -1) * (oltre + n * riga / 2)}
                                              : Punto{segno * (oltre + 0.15 * h), 0});
    for (std::size_t k = 0; k < righe.size(); ++k) {
        const Punto punto = centro + Punto{0, ((n - 1) / 2 - static_cast<double>(k)) * riga};
        pianta.testi.push_back({.ruolo = Ruolo::nome,
                                .ramo = ramo,
                                .testo = righe[k],
                                .punto = punto,
                                .altezza = h,
                                .allineamento = lato,
                                .corrente = opera.corrente(i)});
        allarga(pianta.vista, punto, lato, larghezzaStimata(righe[k], h), riga);
    }
}

/// What of the measures is not drawn true: "misure non in scala: A e, r; C v".
void raccogliNote(Costruzione& opera) {
    Pianta& pianta = opera.pianta;
    pianta.note.emplace_back(marchio);
    std::string fuori;
    bool diametri = false;
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        std::string sue;
        for (std::size_t m = 0; m < numeroMisure; ++m) {
            if (pianta.rami[i].inScala[m]) {
                continue;
            }
            if (m == static_cast<std::size_t>(Misura::diametro)) {
                diametri = true;
            } else {
                sue += (sue.empty() ? "" : ", ") + std::string(vociMisure[m].breve);
            }
        }
        if (!sue.empty()) {
            fuori += fmt::format("{}{} {}", fuori.empty() ? "" : "; ", lettera(static_cast<int>(i) + 1), sue);
        }
    }
    if (opera.conFlussi) {
        pianta.note.emplace_back("flussi: larghezza in proporzione al valore, colore del ramo di origine");
    }
    if (!fuori.empty()) {
        pianta.note.push_back("misure non in scala: " + fuori);
    }
    if (diametri) {
        pianta.note.push_back("diametri diversi tra i rami: disegnato D = " + formatta(2 * pianta.R, "#0.00") + " m");
    }
}

void scriviNote(Costruzione& opera) {
    Pianta& pianta = opera.pianta;
    const double h = 0.8 * pianta.altezzaTesto;
    const double riga = 1.4 * h;
    Riquadro& vista = pianta.vista;
    const double margine = 0.6 * h;
    const double alto = vista.minimo.y - margine;
    const double sinistra = vista.minimo.x + margine;
    double y = alto - riga / 2;
    for (const std::string& nota : pianta.note) {
        const Punto punto{sinistra, y};
        pianta.testi.push_back({.ruolo = Ruolo::nota,
                                .testo = nota,
                                .punto = punto,
                                .altezza = h,
                                .allineamento = Allineamento::sinistra});
        allarga(vista, punto, Allineamento::sinistra, larghezzaStimata(nota, h) + margine, riga);
        y -= riga;
    }
    vista.minimo.y -= margine / 2;
    if (opera.opzioni.vista == Vista::primoPiano) {
        pianta.fascia = Riquadro{{vista.minimo.x, vista.minimo.y}, {vista.massimo.x, alto + margine}};
    }
}

void comprendiQuote(Pianta& pianta) {
    for (const Quota& q : pianta.quote) {
        const double larga = std::max(larghezzaStimata(q.nome, q.altezza), larghezzaStimata(q.valore, q.altezza));
        allarga(pianta.vista, q.testo + Punto{0, -0.7 * q.altezza}, q.allineamento, larga, 2.6 * q.altezza);
    }
}

/// Close-up of the leg at hand: from within the ring to before the flare, its texts on the right.
void scegliPrimoPiano(Costruzione& opera) {
    Pianta& pianta = opera.pianta;
    const auto i = static_cast<std::size_t>(opera.opzioni.ramo) - 1;
    const RamoDisegnato& ramo = pianta.rami[i];
    const double R = pianta.R;
    // The angle is drawn in the ring: all of its width is in sight then.
    constexpr double usuale = 16.0;
    const bool angolo = opera.opzioni.misura == Misura::angoloConflitto;
    const double dentro = angolo ? std::max(usuale, 1.1 * pianta.anello) : usuale;
    constexpr double dopoSvasatura = 4.0;
    const double dopoNaso = 8.5 * opera.grandezza();
    const bool tutto = opera.opzioni.misura == Misura::diametro;
    const double alto = tutto ? 1.15 * R : -std::max((angolo ? 0.1 : 0.26) * R, R - dentro);
    const double basso = tutto ? -1.5 * R : -std::max(ramo.naso + dopoNaso, ramo.ingresso.profondita() + dopoSvasatura);
    const double rapporto = std::clamp(opera.opzioni.rapporto, 0.4, 4.0);
    // The column of the texts keeps clear of the entry, as far as a view of reasonable size goes.
    const double testo = opera.opzioni.altezzaTesto * (larghezzaStimata(vociMisure[4].nome, 1.0) + 2.5);
    constexpr double centro = 0.38;
    constexpr double massimo = 1.3;
    const double strada = tutto ? R : ramo.ingresso.piede.x + 2.0;
    const double sinistra = tutto ? 1.1 * R : std::max(-ramo.uscita.piede.x, ramo.uscita.semi) + 2.0;
    const double alta = alto - basso;
    const double comoda =
        std::max(strada / std::max(0.05, rapporto * (1 - centro) - testo), sinistra / (rapporto * centro));
    const double scelta = std::clamp(comoda, alta, massimo * alta);
    const double larga = scelta * rapporto;
    pianta.altezzaTesto = scelta * opera.opzioni.altezzaTesto;
    pianta.vista = {{-larga * centro, alto - scelta}, {larga * (1 - centro), alto}};
    pianta.lunghezzaRami =
        std::max(pianta.lunghezzaRami, std::hypot(larga, std::max(scelta - alto, std::abs(alto)) + 2.0));
}

}  // namespace

double larghezzaStimata(std::string_view testo, double altezza) {
    constexpr double media = 0.58;
    return static_cast<double>(lunghezza(testo)) * media * altezza;
}

void scegliVista(Costruzione& opera) {
    if (opera.opzioni.vista == Vista::primoPiano) {
        scegliPrimoPiano(opera);
        return;
    }
    Pianta& pianta = opera.pianta;
    constexpr double contorno = 2.4;
    pianta.altezzaTesto = opera.opzioni.altezzaTesto * contorno * pianta.lunghezzaRami;
    pianta.vista = {{-pianta.R, -pianta.R}, {pianta.R, pianta.R}};
    for (std::size_t i = 0; i < opera.numero(); ++i) {
        const Punto destra = ruotato(Punto{pianta.rami[i].ingresso.semi, -pianta.lunghezzaRami}, opera.angolo(i));
        const Punto sinistra = ruotato(Punto{-pianta.rami[i].uscita.semi, -pianta.lunghezzaRami}, opera.angolo(i));
        allarga(pianta.vista, destra, destra);
        allarga(pianta.vista, sinistra, sinistra);
    }
}

void aggiungiScritte(Costruzione& opera) {
    raccogliNote(opera);
    const bool intera = opera.opzioni.vista == Vista::intera;
    if (intera) {
        for (std::size_t i = 0; i < opera.numero(); ++i) {
            scriviRamo(opera, i);
        }
        comprendiQuote(opera.pianta);
    }
    if (opera.opzioni.note) {
        scriviNote(opera);
    }
    if (intera) {
        const double margine = 0.6 * opera.pianta.altezzaTesto;
        Riquadro& vista = opera.pianta.vista;
        const double sotto = opera.opzioni.note ? 0 : margine;
        allarga(vista, vista.minimo - Punto{margine, sotto}, vista.massimo + Punto{margine, margine});
    }
}

}  // namespace kelvo::pianta
