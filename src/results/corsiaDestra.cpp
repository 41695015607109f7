#include "results/corsiaDestra.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

constexpr std::int16_t analisiCurva = 1;
constexpr std::int16_t analisiTabella = 2;
constexpr std::int16_t matricePercento = 1;

namespace tinteDX {
constexpr Colore corsia{250, 254, 216};
constexpr Colore testoCorsia{200, 100, 100};
}  // namespace tinteDX

/// A quantity of the comparison: heading, figure, format. Its three rows stand together: without, with, variation.
struct Grandezza {
    std::string_view nome;
    double TotaliIngresso::*campo;
    Formato formato;
};
constexpr std::array<Grandezza, 5> grandezze{{
    {"Flusso Tot[veic.eq]", &TotaliIngresso::Flusso, "#0.00"},
    {"Capacità [veic/h]", &TotaliIngresso::Capacita, "#0.00"},
    {"Coeff. saturazione", &TotaliIngresso::Coeff_Sat, "#0.00"},
    {"Coda [veic]", &TotaliIngresso::Coda, "#0.0"},
    {"Ritardo [s/veic]", &TotaliIngresso::Ritardo, "#0.0"},
}};
constexpr std::string_view nomeVariazione = "Variazione %";
constexpr std::string_view nomeLivello = "L.O.S.";
constexpr std::string_view segnoCorsia = "(*)";
constexpr std::array<std::string_view, ramiConCorsie> colonne{"RAMO A", "RAMO B", "RAMO C", "RAMO D"};

constexpr int righePerGrandezza = 3;
constexpr int rigaLivello = 1 + righePerGrandezza * static_cast<int>(grandezze.size());
constexpr int righeTabella = rigaLivello + 2;
constexpr int larghezzaNomi = 2400;
constexpr int larghezzaRamo = 1100;

int rigaDi(std::size_t grandezza, bool corsia) {
    return 1 + righePerGrandezza * static_cast<int>(grandezza) + (corsia ? 1 : 0);
}

void colora(Cella& cella, Colore sfondo, Colore inchiostro = colori::nero) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

void vestiRiga(Tabella& tabella, int riga, std::string nome, bool corsia) {
    tabella.cella(riga, 0).testo = std::move(nome);
    colora(tabella.cella(riga, 0), colori::intestazione, colori::bianco);
    for (int c = 1; c < tabella.colonne(); ++c) {
        if (corsia) {
            colora(tabella.cella(riga, c), tinteDX::corsia, tinteDX::testoCorsia);
        } else {
            colora(tabella.cella(riga, c), colori::dati);
        }
    }
}

/// The percentage of a share that was rounded to a single when it was divided: of those that give this very share the
/// one with the fewest decimals, the one that was written.
float percentoDi(float quota) {
    constexpr int decimaliMassimi = 9;
    const double cento = static_cast<double>(quota) * 100.0;
    double scala = 1.0;
    for (int decimali = 0; decimali <= decimaliMassimi; ++decimali) {
        const float percento = aSingolo(std::round(cento * scala) / scala);
        if (aSingolo(static_cast<double>(percento) / 100.0) == quota) {
            return percento;
        }
        scala *= 10.0;
    }
    return aSingolo(cento);
}

std::string conSegno(std::string_view nome) {
    return fmt::format("{}{}", nome, segnoCorsia);
}

}  // namespace

bool corsieDisponibili(const Rotonda& rotonda) {
    return rotonda.NumeroRami() == ramiConCorsie;
}

bool almenoUnaCorsia(const CorsieDestra& corsie) {
    return std::any_of(corsie.begin(), corsie.end(), [](bool accesa) { return accesa; });
}

std::string flussoSvolta(const Rotonda& rotonda, std::size_t posizione) {
    const PosizioneDX& svolta = posizioniDX.at(posizione);
    if (std::max(svolta.origine, svolta.destinazione) > rotonda.NumeroRami()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, svolta.testo);
    }
    Matrice matrice;
    const bool percento = rotonda.TipoMatriceSvolte() == matricePercento;
    if (percento) {
        rotonda.GetMatriceSvoltePercentuale(matrice);
    } else {
        rotonda.GetMatriceSvolte(matrice);
    }
    const float valore =
        matrice[static_cast<std::size_t>(svolta.origine - 1)][static_cast<std::size_t>(svolta.destinazione - 1)];
    if (!percento) {
        return testoNumero(valore) + " [veic.]";
    }
    return testoNumero(percentoDi(valore)) + " [%]";
}

TotaliDX totaliDX(const Rotonda& rotonda) {
    const double minuti = minutoCampo(rotonda.SegmentoTempo());
    TotaliDX totali{};
    for (std::int16_t i = 1; i <= ramiConCorsie; ++i) {
        const DatiTraffico& traffico = rotonda.Ramo(i).theDatiTraffico();
        TotaliIngresso& t = totali.at(static_cast<std::size_t>(i - 1));
        for (std::int16_t k = 1; k <= traffico.NumSegmentiTempo(); ++k) {
            const Iterazione r = traffico.GetIterazione(k);
            t.Flusso += static_cast<double>(r.Flusso) * minuti;
            t.Capacita = std::max(t.Capacita, static_cast<double>(r.Capacita));
            t.Coeff_Sat = std::max(t.Coeff_Sat, static_cast<double>(r.Coeff_Sat));
            t.Coda = std::max(t.Coda, static_cast<double>(r.Coda));
            t.Ritardo = std::max(t.Ritardo, static_cast<double>(r.Ritardo));
        }
    }
    return totali;
}

std::string variazioneDX(const std::string& senza, const std::string& con) {
    const auto prima = leggiNumero(senza);
    const auto dopo = leggiNumero(con);
    if (!prima || !dopo) {
        return {};
    }
    if (*prima == 0.0) {
        return *dopo == 0.0 ? "0%" : "n.d.";
    }
    const std::string tonda = formatta((*prima - *dopo) / *prima * 100.0, "#0.00");
    return testoNumero(leggiNumero(tonda).value_or(0.0)) + "%";
}

ConfrontoCorsie::ConfrontoCorsie() : tabella_(righeTabella, 1 + ramiConCorsie) {
    tabella_.larghezze.assign(1 + ramiConCorsie, larghezzaRamo);
    tabella_.larghezze[0] = larghezzaNomi;
    vestiRiga(tabella_, 0, {}, false);
    for (std::size_t c = 0; c < colonne.size(); ++c) {
        Cella& cella = tabella_.cella(0, static_cast<int>(c) + 1);
        cella.testo = colonne[c];
        colora(cella, colori::intestazione, colori::bianco);
    }
    for (std::size_t g = 0; g < grandezze.size(); ++g) {
        vestiRiga(tabella_, rigaDi(g, false), std::string{grandezze[g].nome}, false);
        vestiRiga(tabella_, rigaDi(g, true), conSegno(grandezze[g].nome), true);
        vestiRiga(tabella_, rigaDi(g, true) + 1, std::string{nomeVariazione}, false);
    }
    vestiRiga(tabella_, rigaLivello, std::string{nomeLivello}, false);
    vestiRiga(tabella_, rigaLivello + 1, conSegno(nomeLivello), true);
}

void ConfrontoCorsie::scriviRighe(bool corsia, const TotaliDX* totali) {
    for (std::size_t i = 0; i < colonne.size(); ++i) {
        const int c = static_cast<int>(i) + 1;
        for (std::size_t g = 0; g < grandezze.size(); ++g) {
            tabella_.cella(rigaDi(g, corsia), c).testo =
                totali == nullptr ? "" : formatta((*totali)[i].*grandezze[g].campo, grandezze[g].formato);
        }
        // The level follows the delay as the table shows it.
        const auto ritardo = leggiNumero(tabella_.testo(rigaDi(grandezze.size() - 1, corsia), c));
        tabella_.cella(rigaLivello + (corsia ? 1 : 0), c).testo = ritardo ? livelloServizio(*ritardo) : "";
    }
}

void ConfrontoCorsie::scriviVariazioni() {
    for (int c = 1; c < tabella_.colonne(); ++c) {
        for (std::size_t g = 0; g < grandezze.size(); ++g) {
            const int senza = rigaDi(g, false);
            const int con = rigaDi(g, true);
            tabella_.cella(con + 1, c).testo = variazioneDX(tabella_.testo(senza, c), tabella_.testo(con, c));
        }
    }
}

const std::string& ConfrontoCorsie::livello(bool corsia, std::size_t ingresso) const {
    return tabella_.testo(rigaLivello + (corsia ? 1 : 0), static_cast<int>(ingresso) + 1);
}

void ConfrontoCorsie::calcola(Applicazione& app, const CorsieDestra& corsie) {
    const Rotonda& rotonda = app.theRotonda();
    const std::int16_t analisi = rotonda.TipoAnalisi();
    if (analisi != analisiCurva && analisi != analisiTabella) {
        return;
    }
    const std::string modo = testoNumero(rotonda.TipoFlusso());
    modCalcolo motore(app, Racconto::unaVolta);
    const auto corri = [&](bool corsia, TotaliDX& totali) {
        if (analisi == analisiCurva) {
            corsia ? motore.Calcola_Tempo_Flusso_DX(modo, corsie) : motore.Calcola_Tempo_Flusso(modo);
        } else {
            corsia ? motore.Calcola_Tempo_Flusso_ST_DX(modo, corsie) : motore.Calcola_Tempo_Flusso_ST(modo);
        }
        totali = motore.riuscita() ? totaliDX(rotonda) : TotaliDX{};
        scriviRighe(corsia, motore.riuscita() ? &totali : nullptr);
        return motore.riuscita();
    };
    // The plain run comes last: it leaves the records of the project as they were.
    const bool riuscitaCon = corri(true, con_);
    const bool riuscitaSenza = corri(false, senza_);
    calcolato_ = riuscitaCon && riuscitaSenza;
    scriviVariazioni();
}

std::string ConfrontoCorsie::testo(const Rotonda& rotonda, const CorsieDestra& corsie, DataOra momento) const {
    constexpr std::string_view linea = "---------------";
    std::string testo;
    const auto riga = [&testo](std::string_view parole) { testo.append(parole).append(fineRiga); };
    riga("ANALISI CORSIA PREFERENZIALE SVOLTA IN DESTRA: ");
    riga("");
    riga("IPOTESI:");
    for (std::size_t k = 0; k < posizioniDX.size(); ++k) {
        if (corsie[k]) {
            riga(fmt::format("{} ==> {}", posizioniDX[k].testo, flussoSvolta(rotonda, k)));
        }
    }
    riga("");
    riga("CONFRONTO VALORI PRESTAZIONALI");
    riga("");
    testo.append(testoTabella(tabella_, {.allineamento = Allineamento::destra, .rigaVuotaPrima = {}}));
    riga("");
    riga(linea);
    riga("L.O.S. (Level of service) - HCM Americano");
    riga("(*) Valore dovuto all'introduzione della corsia preferenziale di svolta in destra");
    riga(linea);
    return testo.append(righeDiChiusura(momento, rotonda.NomeFile()));
}

}  // namespace kelvo
