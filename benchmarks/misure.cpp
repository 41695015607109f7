// Times of the engine beside a bare run of the same arithmetic, in one program: median and 95th percentile of 50
// repeats. Prints a table that docs/prestazioni.md takes as it is.

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "calc/modCalcolo.h"
#include "platform/linux/SistemaFileLinux.h"
#include "progetti.h"

namespace {

using namespace kelvo;
using namespace kelvo::misure;

class MessaggiMuti final : public FinestraMessaggi {
public:
    Risposta mostra(const std::string& testo, const std::string&, Icona, Pulsanti) override {
        std::fprintf(stderr, "%s\n", testo.c_str());
        std::exit(1);  // a measured run must not fail
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
    SistemaFileLinux sistema;
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
            const float* nudi = nucleo.record.data() + (s * nucleo.n + i) * 5;
            for (int c = 0; c < 5; ++c) {
                const double scarto = std::fabs(static_cast<double>(veri[c]) - static_cast<double>(nudi[c]));
                if (scarto > 1e-4 * std::max(1.0, std::fabs(static_cast<double>(veri[c])))) {
                    fmt::print(stderr, "{}: ramo {}, segmento {}, campo {}: {} contro {}\n", nome, i + 1, s + 1, c,
                               veri[c], nudi[c]);
                    std::exit(1);
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
constexpr int passiPerParte = 3;

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

std::vector<Coppia> coppieMotore(Banco& curva, Banco& destra, Banco& tabella, Banco& ipotesi) {
    const Geometria base = geometriaDi(ipotesi.app.theRotonda().Ramo(1));
    const auto quarantadue = [&ipotesi, base] {
        perOgniPasso(base, [&](const Geometria& g) { ipotesi.motore.Calcola_Tempo_Flusso(1, g, "0"); });
    };
    const auto quarantadueNude = [&ipotesi, base] {
        perOgniPasso(base, [&](const Geometria& g) {
            ipotesi.nucleo.geometria[0] = {g.e, g.v, g.l, g.phi, g.r, g.D};
            ipotesi.nucleo.esegui();
        });
    };
    return {{"time-flow, 7 legs x 72", [&] { curva.motore.Calcola_Tempo_Flusso("0"); }, [&] { curva.nucleo.esegui(); }},
            {"right-turn lanes, 4 legs x 72",
             [&] {
                 destra.motore.Calcola_Tempo_Flusso_DX("0", {true, false, true, false});
             },
             [&] { destra.nucleo.esegui(); }},
            {"segment table, 7 legs x 72", [&] { tabella.motore.Calcola_Tempo_Flusso_ST("1"); },
             [&] { tabella.nucleo.esegui(); }},
            {"42 what-if runs, 7 legs x 72", quarantadue, quarantadueNude}};
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    Banco curva(7, Domanda::curva, false);
    Banco destra(4, Domanda::curva, false);
    Banco tabella(7, Domanda::tabella, true);
    Banco ipotesi(7, Domanda::curva, false);
    ipotesi.nucleo.doppio = true;
    ipotesi.motore.Calcola_Tempo_Flusso("0");

    std::vector<Coppia> coppie = coppieMotore(curva, destra, tabella, ipotesi);
    // The lanes of the right-turn run take their share of the entry's vehicles a minute.
    destra.motore.Calcola_Tempo_Flusso_DX("0", {true, false, true, false});
    for (std::size_t i = 0; i < 4; ++i) {
        const DatiTraffico& t = destra.app.theRotonda().Ramo(static_cast<std::int16_t>(i + 1)).theDatiTraffico();
        const ComposizioneTraffico& c =
            destra.app.theRotonda().Ramo(static_cast<std::int16_t>(i + 1)).theComposizioneTraffico();
        const double G = (2.5 * static_cast<double>(c.Autoarticolati()) +
                          0.8 * static_cast<double>(c.VeicoliDueRuote()) + static_cast<double>(c.Autovetture())) /
                         100.0;
        destra.nucleo.quota[i] =
            destra.motore.QuoteSvoltaDX()[i] * static_cast<double>(t.FlussoTotale()) / 100.0 / (5.0 * 72.0) * G;
    }
    for (const Coppia& c : coppie) {
        c.corsa();
        c.nuda();
    }
    confronta(curva, "time-flow");
    confronta(destra, "right-turn");
    confronta(tabella, "segment table");

    const std::string file = (std::filesystem::temp_directory_path() / "kelvo-misura.klv").string();
    const std::string testo = tabella.app.theRotonda().TestoFile();
    std::string messaggio;
    bool esito = false;
    tabella.app.theRotonda().Save(file, messaggio, esito);
    Rotonda altra;
    coppie.push_back({"load, full project (bare: parse to a tree)", [&] { altra.Load(file, messaggio, esito); },
                      [&] { benchmark::DoNotOptimize(nlohmann::json::parse(testo)); }});
    coppie.push_back({"save, full project (bare: write and sync the bytes)",
                      [&] { tabella.app.theRotonda().Save(file, messaggio, esito); },
                      [&] {
                          std::string errore;
                          const auto nudo = tabella.sistema.crea(file + ".nudo", errore);
                          benchmark::DoNotOptimize(nudo->scrivi(testo));
                          benchmark::DoNotOptimize(nudo->sincronizza());
                      }});

    for (const Coppia& c : coppie) {
        registra(c);
    }
    Raccolta raccolta;
    benchmark::RunSpecifiedBenchmarks(&raccolta);
    stampaTabella(coppie, raccolta);
    std::error_code ignorato;
    std::filesystem::remove(file, ignorato);
    std::filesystem::remove(file + ".nudo", ignorato);
    return 0;
}
