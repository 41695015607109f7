// Times of the engine beside a bare run of the same arithmetic, in one program: median and 95th percentile of 50
// repeats. Prints a table that docs/prestazioni.md takes as it is.

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "calc/modCalcolo.h"
#include "platform/Piattaforma.h"
#include "progetti.h"
#include "results/Sensibilita.h"
#include "ricerca.h"

namespace {

using namespace kelvo;
using namespace kelvo::misure;

class MessaggiMuti final : public FinestraMessaggi {
public:
    Risposta mostra(const std::string& testo, const std::string&, Icona, Pulsanti) override {
        throw std::runtime_error(testo);  // a measured run must not fail
    }
};

/// A project with its engine and the bare run of the same numbers.
struct Banco {
    Banco(std::int16_t rami, Domanda domanda, bool perSegmento)
        : app(".", ".", {messaggi, orologio, sistema}), motore(app) {
        riempiProgetto(app, rami);
        nucleo = nucleoDi(app, domanda, perSegmento);
    }
    MessaggiMuti messaggi;
    OrologioSistema orologio;
    std::unique_ptr<Piattaforma> piattaforma = creaPiattaforma();
    SistemaFile& sistema = piattaforma->file();
    Applicazione app;
    modCalcolo motore;
    Nucleo nucleo;
};

/// Stops the program unless the bare run gives the figures of the engine: a kernel of other arithmetic proves nothing.
void confronta(const Banco& banco, const char* nome) {
    const Nucleo& nucleo = banco.nucleo;
    for (int s = 0; s < nucleo.K; ++s) {
        for (int i = 0; i < nucleo.n; ++i) {
            const Iterazione r = banco.app.theRotonda()
                                     .Ramo(static_cast<std::int16_t>(i + 1))
                                     .theDatiTraffico()
                                     .GetIterazione(static_cast<std::int16_t>(s + 1));
            const float veri[] = {r.Flusso, r.Capacita, r.Coeff_Sat, r.Coda, r.Ritardo};
            const float* nudi = nucleo.record.data() + static_cast<std::ptrdiff_t>(s * nucleo.n + i) * 5;
            for (int c = 0; c < 5; ++c) {
                const double scarto = std::fabs(static_cast<double>(veri[c]) - static_cast<double>(nudi[c]));
                if (scarto > 1e-4 * std::max(1.0, std::fabs(static_cast<double>(veri[c])))) {
                    throw std::runtime_error(fmt::format("{}: ramo {}, segmento {}, campo {}: {} contro {}", nome,
                                                         i + 1, s + 1, c, veri[c], nudi[c]));
                }
            }
        }
    }
}

struct Passo {
    float Geometria::*misura;
    float passo;
};
constexpr Passo passi[] = {{&Geometria::e, 0.05F},  {&Geometria::v, 0.05F}, {&Geometria::l, 0.5F},
                           {&Geometria::phi, 5.0F}, {&Geometria::r, 1.0F},  {&Geometria::D, 1.0F}};
template <class F>
void perOgniPasso(const Geometria& base, F&& corsa) {
    for (const Passo& passo : passi) {
        for (int i = -passiPerParte; i <= passiPerParte; ++i) {
            Geometria g = base;
            g.*passo.misura += static_cast<float>(i) * passo.passo;
            corsa(g);
        }
    }
}

/// A run with its bare companion.
struct Coppia {
    std::string nome;
    std::function<void()> corsa;
    std::function<void()> nuda;
};

void registra(const Coppia& coppia) {
    const auto aggiungi = [](const std::string& nome, const std::function<void()>& lavoro) {
        benchmark::RegisterBenchmark(nome.c_str(),
                                     [lavoro](benchmark::State& stato) {
                                         for (auto _ : stato) {
                                             lavoro();
                                             benchmark::ClobberMemory();
                                         }
                                     })
            ->Unit(benchmark::kMicrosecond)
            ->MinTime(0.01)
            ->Repetitions(50)
            ->ReportAggregatesOnly(false);
    };
    aggiungi(coppia.nome, coppia.corsa);
    aggiungi(coppia.nome + "/nucleo", coppia.nuda);
}

/// Keeps the times of all repeats.
class Raccolta final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& corse) override {
        for (const Run& corsa : corse) {
            if (corsa.run_type == Run::RT_Iteration) {
                tempi[corsa.run_name.function_name].push_back(corsa.GetAdjustedRealTime());
            }
        }
    }
    double quantile(const std::string& nome, double q) {
        std::vector<double>& serie = tempi.at(nome);
        std::sort(serie.begin(), serie.end());
        return serie[static_cast<std::size_t>(q * static_cast<double>(serie.size() - 1))];
    }
    std::map<std::string, std::vector<double>> tempi;
};

void stampaTabella(const std::vector<Coppia>& coppie, Raccolta& raccolta) {
    fmt::print("| run | median µs | p95 µs | bare median µs | bare p95 µs | ratio of medians |\n");
    fmt::print("|---|---:|---:|---:|---:|---:|\n");
    for (const Coppia& c : coppie) {
        const std::string nuda = c.nome + "/nucleo";
        if (!raccolta.tempi.contains(c.nome) || !raccolta.tempi.contains(nuda)) {
            continue;  // left out by a filter
        }
        fmt::print("| {} | {:.1f} | {:.1f} | {:.1f} | {:.1f} | {:.2f} |\n", c.nome, raccolta.quantile(c.nome, 0.5),
                   raccolta.quantile(c.nome, 0.95), raccolta.quantile(nuda, 0.5), raccolta.quantile(nuda, 0.95),
                   raccolta.quantile(c.nome, 0.5) / raccolta.quantile(nuda, 0.5));
    }
}

void pretendi(bool vero, const std::string& parole) {
    if (!vero) {
        throw std::runtime_error(parole);
    }
}

const CorsieDestra corsieAccese{true, false, true, false};

/// The projects of the measured runs, each with its bare companion.
struct Banchi {
    Banco curva{7, Domanda::curva, false};
    Banco destra{4, Domanda::curva, false};
    Banco tabella{7, Domanda::tabella, true};
    Banco ipotesi{7, Domanda::curva, false};
    Sensibilita sensibilita;  ///< of the first leg of `ipotesi`, all six measures
};

/// The lanes of the right-turn run take their share of the entry's vehicles a minute.
void preparaDestra(Banco& banco) {
    banco.motore.Calcola_Tempo_Flusso_DX("0", corsieAccese);
    for (std::size_t i = 0; i < corsieAccese.size(); ++i) {
        const Ramo& ramo = banco.app.theRotonda().Ramo(static_cast<std::int16_t>(i + 1));
        const ComposizioneTraffico& c = ramo.theComposizioneTraffico();
        const double G = (2.5 * static_cast<double>(c.Autoarticolati()) +
                          0.8 * static_cast<double>(c.VeicoliDueRuote()) + static_cast<double>(c.Autovetture())) /
                         100.0;
        banco.nucleo.quota[i] = banco.motore.QuoteSvoltaDX()[i] *
                                static_cast<double>(ramo.theDatiTraffico().FlussoTotale()) / 100.0 / (5.0 * 72.0) * G;
    }
}

/// A what-if run goes on with the capacities of the last plain one, in double precision, and its curve ends at t3.
void preparaIpotesi(Banco& banco) {
    banco.motore.Calcola_Tempo_Flusso("0");
    banco.nucleo.doppio = true;
    banco.nucleo.capacitaTenute = true;
    for (std::size_t i = 0; i < static_cast<std::size_t>(banco.nucleo.n); ++i) {
        banco.nucleo.t[i][2] = 360;
        banco.nucleo.CU[i] = banco.app.theRotonda().Ramo(static_cast<std::int16_t>(i + 1)).CapacitaUltima();
    }
}

/// The analysis takes all six measures of the first leg.
void preparaSensibilita(Banchi& banchi) {
    const Rotonda& rotonda = banchi.ipotesi.app.theRotonda();
    AnalisiMarginale& marginale = rotonda.Ramo(1).theAnalisiMarginale();
    marginale.UsaLarghezzaIngresso(true);
    marginale.UsaSemiLarghezza(true);
    marginale.UsaLunghezzaSvasatura(true);
    marginale.UsaAngoloConflitto(true);
    marginale.UsaRaggioCurvatura(true);
    marginale.UsaDiametroInscritto(true);
    banchi.sensibilita.imposta(rotonda, 1);
}

void corriIpotesi(Banco& banco, const Geometria& g) {
    banco.motore.Calcola_Tempo_Flusso(1, g, "0");
}

void corriNuda(Banco& banco, const Geometria& g) {
    banco.nucleo.geometria[0] = {g.e, g.v, g.l, g.phi, g.r, g.D};
    banco.nucleo.esegui();
}

std::vector<Coppia> coppieMotore(Banchi& banchi) {
    const Geometria base = geometriaDi(banchi.ipotesi.app.theRotonda().Ramo(1));
    const auto quarantadue = [&banco = banchi.ipotesi, base] {
        perOgniPasso(base, [&](const Geometria& g) { corriIpotesi(banco, g); });
    };
    const auto quarantadueNude = [&banco = banchi.ipotesi, base] {
        perOgniPasso(base, [&](const Geometria& g) { corriNuda(banco, g); });
    };
    return {{"time-flow, 7 legs x 72", [&banco = banchi.curva] { banco.motore.Calcola_Tempo_Flusso("0"); },
             [&banco = banchi.curva] { banco.nucleo.esegui(); }},
            {"right-turn lanes, 4 legs x 72",
             [&banco = banchi.destra] { banco.motore.Calcola_Tempo_Flusso_DX("0", corsieAccese); },
             [&banco = banchi.destra] { banco.nucleo.esegui(); }},
            {"segment table, 7 legs x 72", [&banco = banchi.tabella] { banco.motore.Calcola_Tempo_Flusso_ST("1"); },
             [&banco = banchi.tabella] { banco.nucleo.esegui(); }},
            {"42 what-if runs, 7 legs x 72", quarantadue, quarantadueNude},
            {"sensitivity of six measures with its tables, 7 legs x 72 (bare: 42 runs)",
             [&banchi] { banchi.sensibilita.calcola(banchi.ipotesi.app); }, quarantadueNude}};
}

/// Every bare run against its engine run; each of the what-if runs of its own.
void confrontaTutti(Banchi& banchi, const std::vector<Coppia>& coppie) {
    for (const Coppia& c : coppie) {
        c.corsa();
        c.nuda();
    }
    // The last to run was the sensitivity: both stand at the last step of the last measure.
    confronta(banchi.ipotesi, "sensitivity");
    for (const TabellaSensibilita& tabella : banchi.sensibilita.tabelle()) {
        for (const PassoSensibilita& passo : tabella.passi()) {
            pretendi(passo.calcolato, "un passo della sensibilità non è calcolato");
        }
    }
    confronta(banchi.curva, "time-flow");
    confronta(banchi.destra, "right-turn");
    confronta(banchi.tabella, "segment table");
    perOgniPasso(geometriaDi(banchi.ipotesi.app.theRotonda().Ramo(1)), [&](const Geometria& g) {
        corriIpotesi(banchi.ipotesi, g);
        corriNuda(banchi.ipotesi, g);
        confronta(banchi.ipotesi, "what-if");
    });
}

/// A folder of its own for the measured files, removed at the end.
class CartellaMisure {
public:
    CartellaMisure() {
        std::random_device caso;
        percorso_ = std::filesystem::temp_directory_path() / ("kelvo-misure-" + std::to_string(caso()));
        std::filesystem::create_directories(percorso_);
    }
    CartellaMisure(const CartellaMisure&) = delete;
    CartellaMisure& operator=(const CartellaMisure&) = delete;
    ~CartellaMisure() {
        std::error_code ignorato;
        std::filesystem::remove_all(percorso_, ignorato);
    }
    std::string file(const std::string& nome) const { return (percorso_ / nome).string(); }

private:
    std::filesystem::path percorso_;
};

/// The bare companion of a save: the bytes are at hand, the steps on the disk are the same.
void salvaNudo(SistemaFile& sistema, const std::string& percorso, const std::string& testo) {
    const std::string temporaneo = percorso + ".tmp~";
    std::string errore;
    {
        const auto file = sistema.crea(temporaneo, errore);
        pretendi(file != nullptr, errore);
        errore = file->scrivi(testo);
        errore += file->sincronizza();
        errore += file->chiudi();
    }
    errore += sistema.rinomina(temporaneo, percorso);
    sistema.sincronizzaCartella(percorso);
    pretendi(errore.empty(), errore);
}

std::vector<Coppia> coppieFile(Banco& banco, Rotonda& altra, const CartellaMisure& cartella) {
    const std::string pieno = cartella.file("pieno.klv");
    const std::string nudo = cartella.file("nudo.klv");
    Rotonda& rotonda = banco.app.theRotonda();
    const std::string testo = rotonda.TestoFile();
    const auto salva = [&rotonda, pieno] {
        std::string messaggio;
        bool esito = false;
        rotonda.Save(pieno, messaggio, esito);
        pretendi(esito, messaggio);
    };
    const auto carica = [&altra, pieno] {
        std::string messaggio;
        bool esito = false;
        altra.Load(pieno, messaggio, esito);
        pretendi(esito, messaggio);
    };
    salva();
    carica();
    pretendi(altra.TestoFile() == testo, "il progetto riletto non è quello salvato");
    const nlohmann::json albero = nlohmann::json::parse(testo);
    return {
        {"load, full project (bare: parse to a tree)", carica,
         [testo] { benchmark::DoNotOptimize(nlohmann::json::parse(testo)); }},
        {"text of a full project (bare: dump of a tree)", [&rotonda] { benchmark::DoNotOptimize(rotonda.TestoFile()); },
         [albero] { benchmark::DoNotOptimize(albero.dump(2)); }},
        {"save, full project (bare: create, write, sync, close, rename)", salva,
         [&sistema = banco.sistema, nudo, testo] { salvaNudo(sistema, nudo, testo); }}};
}

void misura() {
    Banchi banchi;
    preparaDestra(banchi.destra);
    preparaIpotesi(banchi.ipotesi);
    preparaSensibilita(banchi);
    std::vector<Coppia> coppie = coppieMotore(banchi);
    confrontaTutti(banchi, coppie);
    RicercaLunga ricerca;
    coppie.push_back({"search of a peak, 20,000 steps on 72 bars (bare: the sums)", [&ricerca] { ricerca.cerca(); },
                      [&ricerca] { ricerca.nuda(); }});
    ricerca.cerca();
    ricerca.nuda();
    pretendi(ricerca.difetto().empty(), ricerca.difetto());

    const CartellaMisure cartella;
    Rotonda altra;
    for (const Coppia& c : coppieFile(banchi.tabella, altra, cartella)) {
        coppie.push_back(c);
    }
    for (const Coppia& c : coppie) {
        registra(c);
    }
    Raccolta raccolta;
    benchmark::RunSpecifiedBenchmarks(&raccolta);
    stampaTabella(coppie, raccolta);
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    try {
        misura();
        return 0;
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return 1;
    }
}
