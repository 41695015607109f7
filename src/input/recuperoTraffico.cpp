#include "input/recuperoTraffico.h"

#include <fmt/format.h>

#include <algorithm>
#include <numeric>
#include <span>

#include "app/titoli.h"
#include "base/date.h"

namespace kelvo {

namespace {

constexpr const char* domanda =
    "I tempi di modellazione sono stati modificati.\nRipristinare {} inseriti in precedenza per l'ingresso '{}'?\n"
    "Tornano i valori degli intervalli di tempo ancora presenti.";
constexpr const char* domandaCurva =
    "I tempi di modellazione sono stati modificati.\nRipristinare la curva di traffico inserita in precedenza per "
    "l'ingresso '{}'?";

const RamoBackup* copia(const Rotonda& rotonda, std::int16_t ramo) {
    const auto& rami = rotonda.backupTraffico().rami;
    const bool presente = ramo >= 1 && static_cast<std::size_t>(ramo) <= rami.size();
    return presente ? &rami[static_cast<std::size_t>(ramo) - 1] : nullptr;
}

bool vuoti(std::span<const float> valori) {
    return std::all_of(valori.begin(), valori.end(), [](float valore) { return valore == 0.0F; });
}

bool daOffrire(const OrigineBackup& origine) {
    return origine.presente && !origine.offerto;
}

/// The values of the segments of `nuovi`, each made of those of its run by `somma`; nothing if none is there.
template <class Valore, class Somma>
std::optional<std::vector<std::optional<Valore>>> ritrovati(const SerieSegmenti& vecchi, const SerieSegmenti& nuovi,
                                                            Somma somma) {
    std::vector<std::optional<Valore>> valori;
    bool qualcuno = false;
    for (const TrattoSegmenti& tratto : segmentiCorrispondenti(vecchi, nuovi)) {
        valori.push_back(tratto.quanti > 0 ? std::optional<Valore>{somma(tratto)} : std::nullopt);
        qualcuno = qualcuno || (valori.back() && *valori.back() != Valore{});
    }
    return qualcuno ? std::optional{valori} : std::nullopt;
}

OrigineBackup& origine(RamoBackup& copia, DatoTraffico dato) {
    switch (dato) {
        case DatoTraffico::curva:
            return copia.origineCurva;
        case DatoTraffico::conteggi:
            return copia.origineConteggi;
        case DatoTraffico::composizione:
            break;
    }
    return copia.origineComposizione;
}

std::string testoDomanda(const std::string& ramo, DatoTraffico dato) {
    if (dato == DatoTraffico::curva) {
        return fmt::format(domandaCurva, ramo);
    }
    return fmt::format(domanda, dato == DatoTraffico::conteggi ? "i flussi" : "i veicoli per categoria", ramo);
}

}  // namespace

SerieSegmenti tempiDelProgetto(const Rotonda& rotonda, std::int16_t numero) {
    return {.inizio = rotonda.TempoIniziale(),
            .minuti = static_cast<std::int16_t>(minutoCampo(rotonda.SegmentoTempo())),
            .numero = numero};
}

std::optional<CurvaBackup> curvaRecuperabile(const Rotonda& rotonda, std::int16_t ramo) {
    const RamoBackup* salvato = copia(rotonda, ramo);
    if (salvato == nullptr || !daOffrire(salvato->origineCurva)) {
        return std::nullopt;
    }
    const DatiTraffico& dati = rotonda.Ramo(ramo).theDatiTraffico();
    if (dati.FlussoTempo1() != 0.0F || dati.FlussoTempo2() != 0.0F || dati.FlussoTempo3() != 0.0F) {
        return std::nullopt;
    }
    const CurvaBackup& c = salvato->curva;
    const int minuti = minutoCampo(rotonda.SegmentoTempo());
    const bool dentro =
        minutiTra(rotonda.TempoIniziale(), c.Tempo1) >= 0 && minutiTra(c.Tempo3, rotonda.TempoFinale()) >= 0;
    const bool interi =
        minuti > 0 && minutiTra(c.Tempo1, c.Tempo2) % minuti == 0 && minutiTra(c.Tempo2, c.Tempo3) % minuti == 0;
    return dentro && interi ? std::optional{c} : std::nullopt;
}

std::optional<std::vector<std::optional<float>>> conteggiRecuperabili(const Rotonda& rotonda, std::int16_t ramo) {
    const RamoBackup* salvato = copia(rotonda, ramo);
    if (salvato == nullptr || !daOffrire(salvato->origineConteggi)) {
        return std::nullopt;
    }
    const std::vector<float>& presenti = rotonda.Ramo(ramo).theDatiTraffico().FlussiSegmento();
    if (!vuoti(presenti)) {
        return std::nullopt;
    }
    const SerieSegmenti nuovi = tempiDelProgetto(rotonda, static_cast<std::int16_t>(presenti.size()));
    return ritrovati<float>(salvato->origineConteggi.tempi, nuovi, [&](const TrattoSegmenti& t) {
        const auto primo = salvato->conteggi.begin() + t.primo;
        return std::accumulate(primo, primo + t.quanti, 0.0F);
    });
}

std::optional<std::vector<std::optional<PerClasse>>> composizioneRecuperabile(const Rotonda& rotonda,
                                                                              std::int16_t ramo) {
    const BackupTraffico& tutto = rotonda.backupTraffico();
    const RamoBackup* salvato = copia(rotonda, ramo);
    if (!tutto.BackupComposizioneDisponibile || salvato == nullptr || !daOffrire(salvato->origineComposizione)) {
        return std::nullopt;
    }
    const TabellaCategorie& presenti = rotonda.Ramo(ramo).theComposizioneTraffico().Categorie();
    if (!std::all_of(presenti.begin(), presenti.end(), [](const PerClasse& riga) { return vuoti(riga); })) {
        return std::nullopt;
    }
    const auto righe = static_cast<std::int16_t>(presenti.size());
    return ritrovati<PerClasse>(
        salvato->origineComposizione.tempi, tempiDelProgetto(rotonda, righe), [&](const TrattoSegmenti& t) {
            PerClasse somme{};
            for (int s = t.primo + 1; s <= t.primo + t.quanti; ++s) {
                for (std::int16_t c = 1; c <= numeroClassi; ++c) {
                    somme[static_cast<std::size_t>(c) - 1] +=
                        static_cast<float>(tutto.BackupComposizione.cella(ramo, c, static_cast<std::int16_t>(s)));
                }
            }
            return somme;
        });
}

bool chiediRecupero(Applicazione& app, std::int16_t ramo, DatoTraffico dato) {
    Rotonda& rotonda = app.theRotonda();
    auto& rami = rotonda.backupTraffico().rami;
    const bool accettato = app.messaggi.mostra(testoDomanda(rotonda.Ramo(ramo).Descrizione(), dato), titoli::attenzione,
                                               Icona::domanda, Pulsanti::siNo) == Risposta::si;
    // What is taken back and saved is there and not offered again; discarded before that, it still can be.
    origine(rami.at(static_cast<std::size_t>(ramo) - 1), dato).offerto = !accettato;
    return accettato;
}

}  // namespace kelvo
