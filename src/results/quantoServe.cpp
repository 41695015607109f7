#include "results/quantoServe.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "base/numeri.h"
#include "results/calcoloIpotesi.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

constexpr double centesimi = 100.0;
constexpr double senzaLimite = 1e6;  ///< an upper limit from here on is none

/// First and last measure of the search, in hundredths.
struct Campo {
    std::int64_t minimo = 0;
    std::int64_t massimo = 0;
};

/// The first hundredth at or above a measure, and the last at or below it; what lies within the rounding of a single
/// counts as the hundredth itself.
constexpr double tolleranza = 1e-4;
constexpr double ultimo = 1e12;  ///< hundredths past every limit
std::int64_t daSotto(float misura) {
    const double centesimo = std::ceil(static_cast<double>(misura) * centesimi - tolleranza);
    return static_cast<std::int64_t>(std::clamp(centesimo, -ultimo, ultimo));
}
std::int64_t daSopra(float misura) {
    const double centesimo = std::floor(static_cast<double>(misura) * centesimi + tolleranza);
    return static_cast<std::int64_t>(std::clamp(centesimo, -ultimo, ultimo));
}

/// The limits of the measure, within which the entry stays wider than its approach.
Campo campoDi(const Geometria& misure, std::size_t parametro) {
    const Limiti& limiti = limitiGeometria.at(parametro);
    Campo campo{daSotto(limiti.minimo), daSopra(limiti.massimo)};
    const float Geometria::*misura = parametriGeometrici.at(parametro).misura;
    if (misura == &Geometria::e) {
        campo.minimo = std::max(campo.minimo, daSopra(misure.v) + 1);
    } else if (misura == &Geometria::v) {
        campo.massimo = std::min(campo.massimo, daSotto(misure.e) - 1);
    }
    return campo;
}

float misuraDi(std::int64_t centesimo) {
    return static_cast<float>(static_cast<double>(centesimo) / centesimi);
}

std::string testoObiettivo(const Obiettivo& obiettivo) {
    return obiettivo.livello.empty()
               ? fmt::format("un coefficiente di saturazione di {}", formatta(obiettivo.saturazione, "#0.00"))
               : fmt::format("il livello di servizio {}", obiettivo.livello);
}

}  // namespace

StatoIngresso statoDi(const DatiTraffico& traffico) {
    StatoIngresso stato;
    for (std::int16_t k = 1; k <= traffico.NumSegmentiTempo(); ++k) {
        const Iterazione r = traffico.GetIterazione(k);
        stato.saturazione = std::max(stato.saturazione, static_cast<double>(r.Coeff_Sat));
        stato.ritardo = std::max(stato.ritardo, static_cast<double>(r.Ritardo));
        stato.conFlusso = stato.conFlusso || r.Flusso > 0.0F;
        stato.regolare = stato.regolare && (!(r.Flusso > 0.0F) || r.Capacita > 0.0F);
    }
    return stato;
}

bool raggiunto(const StatoIngresso& stato, const Obiettivo& obiettivo) {
    if (!stato.regolare) {
        return false;
    }
    if (obiettivo.livello.empty()) {
        return stato.saturazione <= obiettivo.saturazione;
    }
    return codiceLivello(livelloDiRitardo(static_cast<float>(stato.ritardo))) <= codiceLivello(obiettivo.livello);
}

std::optional<std::int64_t> cercaVerso(std::int64_t origine, std::int64_t limite, int verso,
                                       const std::function<bool(std::int64_t)>& raggiunge) {
    const std::int64_t lontano = verso > 0 ? limite - origine : origine - limite;
    if (lontano < 1) {
        return std::nullopt;
    }
    std::int64_t fuori = 0;  // the farthest distance so far that does not reach it
    std::int64_t dentro = 1;
    while (!raggiunge(origine + verso * dentro)) {
        if (dentro == lontano) {
            return std::nullopt;
        }
        fuori = dentro;
        const auto crescita = static_cast<std::int64_t>(static_cast<double>(dentro) * crescitaRicerca);
        dentro = std::min(lontano, dentro + std::max<std::int64_t>(1, crescita));
    }
    while (dentro - fuori > 1) {
        const std::int64_t mezzo = fuori + (dentro - fuori) / 2;
        (raggiunge(origine + verso * mezzo) ? dentro : fuori) = mezzo;
    }
    return origine + verso * dentro;
}

namespace {

/// The runs of one search.
class Ricerca {
public:
    Ricerca(Applicazione& app, std::int16_t ramo, std::size_t parametro, const Obiettivo& obiettivo)
        : app_(app),
          ramo_(app.theRotonda().Ramo(ramo)),
          numero_(ramo),
          misura_(parametriGeometrici.at(parametro).misura),
          obiettivo_(obiettivo),
          base_(geometriaDi(ramo_)),
          campo_(campoDi(base_, parametro)),
          muto_(app, Racconto::mai) {}

    QuantoServe cerca() {
        QuantoServe r;
        r.attuale = static_cast<double>(base_.*misura_);
        r.misura = r.attuale;
        r.minimo = static_cast<double>(campo_.minimo) / centesimi;
        r.massimo = static_cast<double>(campo_.massimo) / centesimi;
        r.esito = cercaEsito(r);
        r.prove = prove_;
        return r;
    }

private:
    EsitoQuantoServe cercaEsito(QuantoServe& r) {
        if (app_.theRotonda().TipoAnalisi() != analisi::curva && app_.theRotonda().TipoAnalisi() != analisi::tabella) {
            return EsitoQuantoServe::senzaDomanda;
        }
        modCalcolo motore(app_);
        if (!preparaIpotesi(app_, motore)) {
            return EsitoQuantoServe::interrotto;
        }
        if (app_.theRotonda().TipoAnalisi() == analisi::curva) {
            r.saturazioneVerifiche = statoDi(ramo_.theDatiTraffico()).saturazione;
        }
        if (!calcolaIpotesi(app_, motore, numero_, base_)) {
            return EsitoQuantoServe::interrotto;
        }
        ++prove_;
        r.prima = statoDi(ramo_.theDatiTraffico());
        r.dopo = r.prima;
        if (!r.prima.conFlusso) {
            return EsitoQuantoServe::senzaFlusso;
        }
        if (raggiunto(r.prima, obiettivo_)) {
            return EsitoQuantoServe::giaRaggiunto;
        }
        const auto centesimo = vicino();
        if (!centesimo) {
            return EsitoQuantoServe::nessuno;
        }
        prova(*centesimo);
        r.misura = static_cast<double>(*centesimo) / centesimi;
        r.dopo = statoDi(ramo_.theDatiTraffico());
        return EsitoQuantoServe::trovato;
    }

    /// The nearer of what the two sides give.
    std::optional<std::int64_t> vicino() {
        const auto raggiunge = [this](std::int64_t centesimo) {
            return prova(centesimo) && raggiunto(statoDi(ramo_.theDatiTraffico()), obiettivo_);
        };
        const float attuale = base_.*misura_;
        const auto su = cercaVerso(std::max(daSopra(attuale), campo_.minimo - 1), campo_.massimo, 1, raggiunge);
        const auto giu = cercaVerso(std::min(daSotto(attuale), campo_.massimo + 1), campo_.minimo, -1, raggiunge);
        if (!su || !giu) {
            return su ? su : giu;
        }
        const double mezzo = static_cast<double>(attuale) * centesimi;
        return static_cast<double>(*su) - mezzo <= mezzo - static_cast<double>(*giu) + tolleranza ? su : giu;
    }

    bool prova(std::int64_t centesimo) {
        ++prove_;
        Geometria misure = base_;
        misure.*misura_ = misuraDi(centesimo);
        return calcolaIpotesi(app_, muto_, numero_, misure);
    }

    Applicazione& app_;
    const Ramo& ramo_;
    std::int16_t numero_;
    float Geometria::*misura_;
    const Obiettivo& obiettivo_;
    Geometria base_;
    Campo campo_;
    modCalcolo muto_;
    int prove_ = 0;
};

/// Where the run of the checks differs from the what-if run of the entry as it stands, as both are shown.
std::string notaVerifiche(const QuantoServe& r) {
    constexpr const char* formato = "#0.00";
    if (!r.saturazioneVerifiche) {
        return {};
    }
    const std::string verifiche = formatta(*r.saturazioneVerifiche, formato);
    return verifiche == formatta(r.prima.saturazione, formato)
               ? std::string{}
               : fmt::format(
                     ". Nelle verifiche l'ingresso com'è raggiunge {}: l'analisi di ipotesi semplifica la curva di "
                     "domanda.",
                     verifiche);
}

std::string testoLimiti(const QuantoServe& r, const std::string& unita) {
    return r.massimo >= senzaLimite ? fmt::format("da {}{} in su", formatta(r.minimo, "#0.00"), unita)
                                    : fmt::format("tra {}{} e {}{}", formatta(r.minimo, "#0.00"), unita,
                                                  formatta(r.massimo, "#0.00"), unita);
}

}  // namespace

QuantoServe cercaQuantoServe(Applicazione& app, std::int16_t ramo, std::size_t parametro, const Obiettivo& obiettivo) {
    return Ricerca(app, ramo, parametro, obiettivo).cerca();
}

std::string paroleQuantoServe(const QuantoServe& risposta, std::size_t parametro, const Obiettivo& obiettivo) {
    const ParametroGeometrico& p = parametriGeometrici.at(parametro);
    const std::string unita = p.unita == "m" ? " m" : std::string{p.unita};
    const std::string meta = testoObiettivo(obiettivo);
    switch (risposta.esito) {
        case EsitoQuantoServe::giaRaggiunto:
            return fmt::format("L'ingresso raggiunge già {}", meta);
        case EsitoQuantoServe::trovato:
            return fmt::format("{}: da {}{} a {}{} ({}{}) per {}", p.nome, formatta(risposta.attuale, "#0.00"), unita,
                               formatta(risposta.misura, "#0.00"), unita, formatta(risposta.variazione(), "#+0.00"),
                               unita, meta);
        case EsitoQuantoServe::nessuno:
            if (risposta.minimo > risposta.massimo) {
                return fmt::format("{}: con le altre misure dell'ingresso nessun valore è ammesso", p.nome);
            }
            return fmt::format("{}: nessun valore {} porta l'ingresso {}", p.nome, testoLimiti(risposta, unita),
                               obiettivo.livello.empty() ? "a " + meta : "al" + meta.substr(2));  // "il livello ..."
        case EsitoQuantoServe::senzaDomanda:
            return "L'analisi della sola saturazione non ha una domanda nel tempo: non c'è un obiettivo da raggiungere";
        case EsitoQuantoServe::senzaFlusso:
            return "L'ingresso non ha flussi nel tempo: non c'è un obiettivo da raggiungere";
        case EsitoQuantoServe::interrotto:
            return "Il calcolo del progetto così com'è non riesce";
    }
    return {};
}

std::string effettoQuantoServe(const QuantoServe& risposta) {
    const bool trovato = risposta.esito == EsitoQuantoServe::trovato;
    const bool calcolato =
        trovato || risposta.esito == EsitoQuantoServe::giaRaggiunto || risposta.esito == EsitoQuantoServe::nessuno;
    if (!calcolato) {
        return {};
    }
    const auto tratto = [trovato](const std::string& prima, const std::string& dopo) {
        return trovato ? fmt::format("da {} a {}", prima, dopo) : prima;
    };
    const auto livello = [](const StatoIngresso& stato) {
        return std::string{livelloDiRitardo(static_cast<float>(stato.ritardo))};
    };
    const StatoIngresso& p = risposta.prima;
    const StatoIngresso& d = risposta.dopo;
    return fmt::format("Coefficiente di saturazione massimo {}; ritardo massimo {} s/veic (livello di servizio {}){}",
                       tratto(formatta(p.saturazione, "#0.00"), formatta(d.saturazione, "#0.00")),
                       tratto(formatta(p.ritardo, "#0.0"), formatta(d.ritardo, "#0.0")), tratto(livello(p), livello(d)),
                       notaVerifiche(risposta));
}

}  // namespace kelvo
