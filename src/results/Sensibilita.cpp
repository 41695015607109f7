#include "results/Sensibilita.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "results/calcoloIpotesi.h"

namespace kelvo {

namespace {

constexpr Colore tintaNonValido{190, 100, 100};
constexpr Colore tintaRiferimento{164, 196, 0};

constexpr int rigaPassi = 0;
constexpr int rigaMisure = 1;
constexpr int primaRiga = 2;  ///< of the figures
constexpr int righePerPrestazione = 2;
constexpr int righe = primaRiga + righePerPrestazione * static_cast<int>(prestazioni.size());
constexpr int colonnaRiferimento = 1 + passiPerParte;
constexpr Formato formatoPasso = "#+0.00";
constexpr Formato formatoMisura = "#0.00";

constexpr std::array<VocePrestazione, prestazioni.size()> voci{{
    {"Capacità [veic/h]", "Variazione Capacità", "#0.00", "CAPACITA'", "Capacità", "[veic/h]", "Capacità",
     &Iterazione::Capacita},
    {"Coda [veic]", "Variazione coda", "#0.0", "LUNGHEZZA CODA ", "Coda", "[veic]", "Lunghezza coda",
     &Iterazione::Coda},
    {"Ritardo [s/veic]", "Variazione ritardo", "#0.0", "RITARDO", "Ritardo", "[s/veic]", "Ritardo",
     &Iterazione::Ritardo},
}};

void colora(Cella& cella, Colore sfondo, Colore inchiostro = colori::nero) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

void intitola(Tabella& tabella, int riga, std::string_view nome) {
    tabella.cella(riga, 0).testo = nome;
    colora(tabella.cella(riga, 0), colori::intestazione, colori::bianco);
}

/// Ground of a cell that no mark stands on.
void colora(Tabella& tabella, int riga, int colonna) {
    const bool riferimento = colonna == colonnaRiferimento;
    if (riga == rigaPassi && !riferimento) {
        colora(tabella.cella(riga, colonna), colori::intestazione, colori::bianco);
    } else {
        colora(tabella.cella(riga, colonna), riferimento ? tintaRiferimento : colori::dati);
    }
}

/// A number in a pattern; empty for one past the singles.
std::string testoEntroSingolo(double valore, Formato formato) {
    return finito(static_cast<double>(static_cast<float>(valore))) ? formatta(valore, formato) : std::string{};
}

/// The capacity that a balancing left, as a record holds it; false where it does not fit, which is reported.
bool leggiCapacita(Applicazione& app, const Ramo& ingresso, Iterazione& record) {
    const auto capacita = static_cast<float>(ingresso.CapacitaUltima());
    if (!finito(static_cast<double>(capacita))) {
        const Guasto guasto(NumeroGuasto::overflow, ingresso.Descrizione() + ", capacità ultima");
        app.comune.erroreLog(guasto.codice(), "Calcola_Bilanciamento", guasto.descrizione(), true);
        return false;
    }
    record.Capacita = capacita;
    return true;
}

}  // namespace

const VocePrestazione& voce(Prestazione quale) {
    return voci.at(static_cast<std::size_t>(quale));
}

Iterazione recordDiPunta(const DatiTraffico& traffico) {
    Iterazione punta{};
    for (std::int16_t k = 1; k <= traffico.NumSegmentiTempo(); ++k) {
        const Iterazione r = traffico.GetIterazione(k);
        if (r.Flusso > punta.Flusso) {
            punta = r;
        }
    }
    return punta;
}

std::string variazioneSensibilita(const std::string& valore, const std::string& riferimento) {
    const auto v = leggiNumero(valore);
    const auto r = leggiNumero(riferimento);
    if (!v || !r || *r == 0.0) {
        return {};
    }
    return formatta((*v - *r) / *r, "#0.00%");
}

int TabellaSensibilita::riga(Prestazione quale) {
    return primaRiga + righePerPrestazione * static_cast<int>(quale);
}

TabellaSensibilita::TabellaSensibilita(std::size_t parametro) : indice_(parametro), tabella_(righe, 1 + numeroPassi) {
    constexpr int larghezzaNomi = 2050;
    constexpr int larghezzaPasso = 1000;
    tabella_.larghezze.assign(1 + numeroPassi, larghezzaPasso);
    tabella_.larghezze[0] = larghezzaNomi;
    intitola(tabella_, rigaPassi, "Step ->");
    intitola(tabella_, rigaMisure, this->parametro().nome);
    for (const Prestazione p : prestazioni) {
        intitola(tabella_, riga(p), voce(p).riga);
        intitola(tabella_, riga(p) + 1, voce(p).rigaVariazione);
    }
    svuota();
}

void TabellaSensibilita::svuota() {
    for (int c = 1; c < tabella_.colonne(); ++c) {
        for (int r = 0; r < tabella_.righe(); ++r) {
            colora(tabella_, r, c);
            if (r >= primaRiga) {
                tabella_.cella(r, c).testo.clear();
            }
        }
        PassoSensibilita& passo = passi_.at(static_cast<std::size_t>(c - 1));
        passo.calcolato = false;
        passo.risultato = {};
    }
    calcolata_ = false;
}

void TabellaSensibilita::imposta(const Ramo& ramo) {
    const auto riferimento = static_cast<double>(geometriaDi(ramo).*parametro().misura);
    const double passo = (ramo.theAnalisiMarginale().*parametro().passo)();
    const float minimo = limitiGeometria.at(indice_).minimo;
    svuota();
    for (int i = -passiPerParte; i <= passiPerParte; ++i) {
        const int colonna = colonnaRiferimento + i;
        tabella_.cella(rigaPassi, colonna).testo = testoEntroSingolo(i * passo, formatoPasso);
        std::string& mostrata = tabella_.cella(rigaMisure, colonna).testo;
        mostrata = testoEntroSingolo(riferimento + i * passo, formatoMisura);
        PassoSensibilita& p = passi_.at(static_cast<std::size_t>(colonna - 1));
        const auto letta = leggiSingolo(mostrata);
        p.misura = letta.value_or(0.0F);
        p.valido = letta && *letta >= minimo;
    }
}

void TabellaSensibilita::calcola(Applicazione& app, modCalcolo& motore, std::int16_t ramo) {
    const Ramo& ingresso = app.theRotonda().Ramo(ramo);
    const bool soloCapacita = app.theRotonda().TipoAnalisi() == analisi::saturazione;
    svuota();
    for (int colonna = 1; colonna < tabella_.colonne(); ++colonna) {
        PassoSensibilita& p = passi_.at(static_cast<std::size_t>(colonna - 1));
        if (p.valido) {
            Geometria misure = geometriaDi(ingresso);
            misure.*parametro().misura = p.misura;
            p.calcolato = calcolaIpotesi(app, motore, ramo, misure);
        }
        if (p.calcolato && soloCapacita) {
            p.calcolato = leggiCapacita(app, ingresso, p.risultato);
        } else if (p.calcolato) {
            p.risultato = recordDiPunta(ingresso.theDatiTraffico());
        }
        scriviPasso(colonna, soloCapacita);
    }
    scriviVariazioni();
    calcolata_ = true;
}

void TabellaSensibilita::scriviPasso(int colonna, bool soloCapacita) {
    const PassoSensibilita& p = passi_.at(static_cast<std::size_t>(colonna - 1));
    for (const Prestazione quale : prestazioni) {
        if (soloCapacita && quale != Prestazione::capacita) {
            continue;
        }
        Cella& cella = tabella_.cella(riga(quale), colonna);
        if (!p.valido) {
            cella.testo = "0";
            colora(cella, tintaNonValido);
        } else if (p.calcolato) {
            cella.testo = formatta(p.risultato.*voce(quale).campo, voce(quale).formato);
        }
    }
}

void TabellaSensibilita::scriviVariazioni() {
    for (const Prestazione quale : prestazioni) {
        const std::string& riferimento = tabella_.testo(riga(quale), colonnaRiferimento);
        for (int colonna = 1; colonna < tabella_.colonne(); ++colonna) {
            if (passi_.at(static_cast<std::size_t>(colonna - 1)).valido) {
                tabella_.cella(riga(quale) + 1, colonna).testo =
                    variazioneSensibilita(tabella_.testo(riga(quale), colonna), riferimento);
            }
        }
    }
}

bool TabellaSensibilita::senzaRisultati() const {
    return tabella_.testo(primaRiga, 1).empty();
}

std::string TabellaSensibilita::testo(const Rotonda& rotonda, DataOra momento) const {
    Tabella scritta = tabella_;
    for (int r = 0; r < scritta.righe(); ++r) {
        std::string& testo = scritta.cella(r, colonnaRiferimento).testo;
        testo += testo.empty() ? "" : "*";
    }
    const auto rigaVuota = [](const Tabella&, int r) { return r == rigaMisure || (r >= primaRiga && r % 2 == 0); };
    std::string testo = fmt::format("Risultati: Ottimizzazione Geometrica *** {}", parametro().nome);
    testo.append(fineRiga).append(fineRiga);
    testo.append(testoTabella(scritta, {.allineamento = Allineamento::destra, .rigaVuotaPrima = rigaVuota}));
    testo.append(fineRiga).append(fineRiga);
    testo.append("==========================================================").append(fineRiga);
    testo.append(fineRiga).append("(*) Valore iniziale di riferimento").append(fineRiga);
    return testo.append(righeDiChiusura(momento, rotonda.NomeFile()));
}

Sensibilita::Sensibilita()
    : tabelle_{TabellaSensibilita{0}, TabellaSensibilita{1}, TabellaSensibilita{2},
               TabellaSensibilita{3}, TabellaSensibilita{4}, TabellaSensibilita{5}} {}

void Sensibilita::imposta(const Rotonda& rotonda, std::int16_t ramo) {
    const Ramo& ingresso = rotonda.Ramo(ramo);
    ramo_ = ramo;
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        attivi_.at(i) = (ingresso.theAnalisiMarginale().*parametriGeometrici.at(i).usa)();
        tabelle_.at(i).imposta(ingresso);
    }
}

bool Sensibilita::nessunoAttivo() const {
    return std::none_of(attivi_.begin(), attivi_.end(), [](bool attivo) { return attivo; });
}

void Sensibilita::calcola(Applicazione& app) {
    modCalcolo motore(app, Racconto::unaVolta);
    const bool pronta = preparaIpotesi(app, motore);
    for (std::size_t i = 0; i < numeroParametri; ++i) {
        if (!attivi_.at(i)) {
            continue;
        }
        if (pronta) {
            tabelle_.at(i).calcola(app, motore, ramo_);
        } else {
            tabelle_.at(i).svuota();
        }
    }
}

void Sensibilita::calcola(Applicazione& app, std::size_t parametro) {
    modCalcolo motore(app, Racconto::unaVolta);
    TabellaSensibilita& tabella = tabelle_.at(parametro);
    if (preparaIpotesi(app, motore)) {
        tabella.calcola(app, motore, ramo_);
    } else {
        tabella.svuota();
    }
}

}  // namespace kelvo
