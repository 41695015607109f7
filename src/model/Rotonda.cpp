#include "model/Rotonda.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/guasto.h"

namespace kelvo {

namespace {

/// The date so many minutes later, to the second.
DataOra dopoMinuti(DataOra data, std::int64_t minuti) {
    constexpr double secondiAlGiorno = 86400.0;
    return static_cast<double>(secondiDi(data) + minuti * 60) / secondiAlGiorno;
}

Matrice matriceVuota(std::int16_t lati) {
    return Matrice(static_cast<std::size_t>(lati), std::vector<float>(static_cast<std::size_t>(lati), 0.0F));
}

}  // namespace

Ramo& RaccoltaRami::Item(std::int16_t indice) const {
    if (indice < 1 || indice > Count()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("ramo {} di {}", indice, Count()));
    }
    return *rami_[static_cast<std::size_t>(indice) - 1];
}

Ramo& RaccoltaRami::Item(std::string_view chiave) const {
    const auto trovato =
        std::find_if(rami_.begin(), rami_.end(), [&](const auto& ramo) { return ramo->Key() == chiave; });
    if (trovato == rami_.end()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("ramo '{}'", chiave));
    }
    return **trovato;
}

Rotonda::Rotonda(SistemaFile& sistema, std::function<DataOra()> oggi)
    : OggettoProgetto(revisione_), sistema_(sistema), oggi_(std::move(oggi)), dati_(datiPredefiniti()) {}

Rotonda::Dati Rotonda::datiPredefiniti() const {
    Dati dati;
    dati.data = std::floor(oggi_());
    dati.matrice = matriceVuota(dati.numeroRami);
    return dati;
}

float& Rotonda::cellaMatrice(std::int16_t riga, std::int16_t colonna) {
    return const_cast<float&>(std::as_const(*this).cellaMatrice(riga, colonna));
}

const float& Rotonda::cellaMatrice(std::int16_t riga, std::int16_t colonna) const {
    if (riga < 1 || riga > dati_.numeroRami || colonna < 1 || colonna > dati_.numeroRami) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("cella {}, {} della matrice", riga, colonna));
    }
    return dati_.matrice[static_cast<std::size_t>(riga) - 1][static_cast<std::size_t>(colonna) - 1];
}

void Rotonda::MatriceSvolte(float valore, std::int16_t riga, std::int16_t colonna) {
    scriviDato(cellaMatrice(riga, colonna), valore);
}

float Rotonda::MatriceSvolte(std::int16_t riga, std::int16_t colonna) const {
    return cellaMatrice(riga, colonna);
}

void Rotonda::GetMatriceSvoltePercentuale(Matrice& matrice) const {
    matrice = dati_.matrice;
    for (std::size_t numero = 1; auto& riga : matrice) {
        const auto dove = [numero] { return fmt::format("riga {} della matrice delle svolte", numero); };
        ++numero;
        double totale = 100.0;
        if (dati_.tipoMatriceSvolte != 1) {
            totale = 0.0;
            for (const float cella : riga) {
                totale += static_cast<double>(cella);
            }
        }
        for (float& cella : riga) {
            cella = totale == 0.0 ? 0.0F : aSingolo(static_cast<double>(cella) / totale, dove);
        }
    }
}

void Rotonda::NumeroRami(std::int16_t valore) {
    if (valore < minimoRami || valore > massimoRami) {
        throw Guasto(NumeroGuasto::chiamataNonValida, fmt::format("{} rami", valore));
    }
    if (rami_.Count() > 0 && valore != dati_.numeroRami) {
        throw Guasto(NumeroGuasto::chiamataNonValida, "il numero di rami di un progetto non cambia");
    }
    if (valore != dati_.numeroRami) {
        dati_.numeroRami = valore;
        dati_.matrice = matriceVuota(valore);
        segnaDato();
    }
}

kelvo::Ramo& Rotonda::AddRamo(const std::string& chiave) {
    if (rami_.Count() >= dati_.numeroRami) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                     fmt::format("ramo {} di {}", rami_.Count() + 1, NumeroRami()));
    }
    const auto uguale = [&](const auto& ramo) { return ramo->Key() == chiave; };
    if (std::any_of(rami_.rami_.begin(), rami_.rami_.end(), uguale)) {
        throw Guasto(NumeroGuasto::chiaveGiaAssociata, fmt::format("ramo '{}'", chiave));
    }
    const auto lettera = static_cast<char>('A' + rami_.Count());
    auto ramo = std::make_unique<kelvo::Ramo>(revisione_, chiave, fmt::format("Ramo {}", lettera));

    // The modelling window gives the segments and the three times, the peak in the middle.
    const int passo = minutoCampo(dati_.segmentoTempo);
    const int contati = passo == 0 ? 0 : segmentiTra(dati_.tempoIniziale, dati_.tempoFinale, passo);
    const auto segmenti = static_cast<std::int16_t>(std::max(0, contati));
    const double meta = arrotondaPari(segmenti / 2.0);
    DatiTraffico& traffico = ramo->theDatiTraffico();
    traffico.NumSegmentiTempo(segmenti);
    ramo->theComposizioneTraffico().NumSegmentiTempo(segmenti);
    traffico.Tempo1(dati_.tempoIniziale);
    traffico.Tempo3(dati_.tempoFinale);
    traffico.Tempo2(dopoMinuti(dati_.tempoIniziale, static_cast<std::int64_t>(meta) * passo));
    segnaDato();
    rami_.rami_.push_back(std::move(ramo));
    return *rami_.rami_.back();
}

void Rotonda::Clear() {
    rami_.rami_.clear();
    dati_ = datiPredefiniti();
    chiaviIgnote.clear();
    timbro_ = {};
    timbroRecord_ = {};
    backupTraffico_ = {};
    segnaDato();
}

}  // namespace kelvo
