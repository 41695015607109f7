#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "base/guasto.h"
#include "base/testo.h"
#include "model/alberoKlv.h"
#include "model/campiKlv.h"
#include "model/fileKlv.h"

namespace kelvo::klv {

namespace {

[[noreturn]] void errato(const std::string& dove, const std::string& parole) {
    throw Guasto::conParole(NumeroGuasto::tipoNonCorrispondente, fmt::format("{}: {}", dove, parole));
}

std::string sotto(const std::string& dove, std::string_view chiave) {
    return dove.empty() ? std::string{chiave} : fmt::format("{}.{}", dove, chiave);
}

// The place of a value is a callable that words it: it is called only for a message.

/// Positions in messages count from 1, as the legs do.
std::string voce(const std::string& dove, std::size_t indice) {
    return fmt::format("{}[{}]", dove, indice + 1);
}

/// Kind of a value in words.
std::string_view genere(const Valore& v) {
    constexpr std::array<std::string_view, 6> nomi{
        "null", "un valore vero/falso", "un numero", "un testo", "un elenco", "un oggetto"};
    return nomi.at(v.contenuto.index());
}

template <class T, LuogoDiCalcolo L>
const T& atteso(const Valore& v, std::string_view cosa, const L& dove) {
    const T* contenuto = std::get_if<T>(&v.contenuto);
    if (contenuto == nullptr) {
        errato(dove(), fmt::format("atteso {}, trovato {}", cosa, genere(v)));
    }
    return *contenuto;
}

template <LuogoDiCalcolo L>
double leggiDoppio(const Valore& v, const L& dove) {
    const std::string& testo = atteso<Numero>(v, "un numero", dove).testo;
    double numero = 0.0;
    const auto letto = std::from_chars(testo.data(), testo.data() + testo.size(), numero);
    if (letto.ec == std::errc::result_out_of_range) {
        return 0.0;  // too small; what is too large has been refused by the parser
    }
    return numero;
}

template <LuogoDiCalcolo L>
float leggiSingolo(const Valore& v, const L& dove) {
    const auto singolo = static_cast<float>(leggiDoppio(v, dove));
    if (!std::isfinite(singolo)) {
        errato(dove(), fmt::format("il numero {} è troppo grande", std::get<Numero>(v.contenuto).testo));
    }
    return singolo;
}

template <LuogoDiCalcolo L>
std::int16_t leggiIntero(const Valore& v, const L& dove) {
    const double numero = leggiDoppio(v, dove);
    if (!(numero >= -32768.0 && numero <= 32767.0) || numero != std::floor(numero)) {
        errato(dove(), fmt::format("atteso un numero intero da -32768 a 32767, trovato {}",
                                   std::get<Numero>(v.contenuto).testo));
    }
    return static_cast<std::int16_t>(numero);
}

template <LuogoDiCalcolo L>
DataOra leggiTempo(const Valore& v, const L& dove, std::string_view modello,
                   std::optional<DataOra> (*lettura)(std::string_view)) {
    const std::string& testo = atteso<std::string>(v, "un testo", dove);
    const auto tempo = lettura(testo);
    if (!tempo) {
        constexpr std::size_t massimo = 30;
        const std::string breve = lunghezza(testo) > massimo ? "un testo lungo" : fmt::format("\"{}\"", testo);
        errato(dove(), fmt::format("{}, trovato {}", modello, breve));
    }
    return *tempo;
}

/// Reads a value by the form of its property and hands it to the object.
template <class O, LuogoDiCalcolo L>
struct Scrittura {
    O& oggetto;
    const Valore& valore;
    const L& dove;

    void operator()(const Testo<O>& a) const { (oggetto.*a.scrivi)(atteso<std::string>(valore, "un testo", dove)); }
    void operator()(const Logico<O>& a) const {
        (oggetto.*a.scrivi)(atteso<bool>(valore, "un valore vero/falso", dove));
    }
    void operator()(const Intero<O>& a) const { (oggetto.*a.scrivi)(leggiIntero(valore, dove)); }
    void operator()(const Singolo<O>& a) const { (oggetto.*a.scrivi)(leggiSingolo(valore, dove)); }
    void operator()(const Doppio<O>& a) const { (oggetto.*a.scrivi)(leggiDoppio(valore, dove)); }
    void operator()(const Ora<O>& a) const {
        (oggetto.*a.scrivi)(leggiTempo(valore, dove, "atteso un orario \"HH:MM\"", &leggiIsoOra));
    }
    void operator()(const Giorno<O>& a) const {
        (oggetto.*a.scrivi)(leggiTempo(valore, dove, "attesa una data \"AAAA-MM-GG\"", &leggiIsoGiorno));
    }
};

/// Reads the plain properties of an object; keeps the keys that are neither these nor among `altre`.
template <class O, class Campi, class Altre>
void leggiCampi(const Oggetto& fonte, const Campi& campi, const Altre& altre, const std::string& dove, O& oggetto) {
    for (const Membro& membro : fonte) {
        const auto campo =
            std::find_if(campi.begin(), campi.end(), [&](const Campo<O>& noto) { return noto.nome == membro.chiave; });
        if (campo != campi.end()) {
            const auto luogo = [&] { return sotto(dove, membro.chiave); };
            std::visit(Scrittura<O, decltype(luogo)>{oggetto, membro.valore, luogo}, campo->accesso);
        } else if (std::find(altre.begin(), altre.end(), membro.chiave) == altre.end()) {
            oggetto.chiaviIgnote.emplace_back(membro.chiave, testoJson(membro.valore));
        }
    }
}

/// The object of that key; an empty one if it is missing.
const Oggetto& figlio(const Oggetto& fonte, std::string_view chiave, const std::string& dove) {
    static const Oggetto vuoto;
    const Valore* v = cerca(fonte, chiave);
    return v == nullptr ? vuoto : atteso<Oggetto>(*v, "un oggetto", [&] { return sotto(dove, chiave); });
}

const Elenco& elenco(const Oggetto& fonte, std::string_view chiave, const std::string& dove) {
    static const Elenco vuoto;
    const Valore* v = cerca(fonte, chiave);
    return v == nullptr ? vuoto : atteso<Elenco>(*v, "un elenco", [&] { return sotto(dove, chiave); });
}

/// The rows of figures of one leg, and where they stand.
struct Segmenti {
    const Oggetto& traffico;
    const Oggetto& composizione;
    std::string doveTraffico;
    std::string doveComposizione;
    const Elenco& flussi;
    const Elenco& categorie;
};

std::optional<std::int16_t> segmentiDetti(const Oggetto& fonte, const std::string& dove) {
    const Valore* v = cerca(fonte, chiaveSegmenti);
    if (v == nullptr) {
        return std::nullopt;
    }
    const std::int16_t numero = leggiIntero(*v, [&] { return sotto(dove, chiaveSegmenti); });
    if (numero < 0 || numero > massimoSegmenti) {
        errato(sotto(dove, chiaveSegmenti),
               fmt::format("atteso un numero da 0 a {}, trovato {}", massimoSegmenti, numero));
    }
    return numero;
}

/// Number of segments of a leg: as told, else the length of the lists, else `predefinito`.
std::int16_t segmentiDelRamo(const Segmenti& s, std::int16_t predefinito) {
    const auto traffico = segmentiDetti(s.traffico, s.doveTraffico);
    const auto composizione = segmentiDetti(s.composizione, s.doveComposizione);
    if (traffico && composizione && *traffico != *composizione) {
        errato(sotto(s.doveComposizione, chiaveSegmenti),
               fmt::format("{} segmenti, ma {} in {}", *composizione, *traffico, chiaveTraffico));
    }
    const bool elenchi =
        cerca(s.traffico, chiaveFlussi) != nullptr || cerca(s.composizione, chiaveCategorie) != nullptr;
    const auto lungo = static_cast<std::int16_t>(std::max(s.flussi.size(), s.categorie.size()));
    const std::int16_t numero = traffico ? *traffico : composizione ? *composizione : elenchi ? lungo : predefinito;
    if (numero > massimoSegmenti) {
        errato(sotto(s.doveTraffico, chiaveSegmenti),
               fmt::format("la finestra di tempo dà {} segmenti, più di {}", numero, massimoSegmenti));
    }
    return numero;
}

void controllaLunghezza(const Elenco& righe, std::int16_t segmenti, const std::string& dove) {
    if (righe.size() > static_cast<std::size_t>(segmenti)) {
        errato(dove, fmt::format("{} valori per {} segmenti di tempo", righe.size(), segmenti));
    }
}

void leggiFlussi(const Elenco& flussi, const std::string& dove, DatiTraffico& traffico) {
    controllaLunghezza(flussi, traffico.NumSegmentiTempo(), dove);
    for (std::size_t i = 0; i < flussi.size(); ++i) {
        traffico.FlussoSegmento(leggiSingolo(flussi[i], [&] { return voce(dove, i); }), static_cast<std::int16_t>(i),
                                0);
    }
}

void leggiCategorie(const Elenco& categorie, const std::string& dove, ComposizioneTraffico& composizione) {
    controllaLunghezza(categorie, composizione.NumSegmentiTempo(), dove);
    for (std::size_t i = 0; i < categorie.size(); ++i) {
        const auto& riga = atteso<Elenco>(categorie[i], "un elenco", [&] { return voce(dove, i); });
        if (riga.size() != static_cast<std::size_t>(numeroClassi)) {
            errato(voce(dove, i), fmt::format("attesi {} numeri, trovati {}", numeroClassi, riga.size()));
        }
        for (std::size_t c = 0; c < riga.size(); ++c) {
            composizione.CategoriaSegmento(leggiSingolo(riga[c], [&] { return voce(voce(dove, i), c); }),
                                           static_cast<std::int16_t>(i), static_cast<std::int16_t>(c));
        }
    }
}

void leggiMatrice(const Oggetto& radice, Rotonda& rotonda) {
    const std::string dove{chiaveMatrice};
    if (cerca(radice, chiaveMatrice) == nullptr) {
        return;
    }
    const Elenco& righe = elenco(radice, chiaveMatrice, {});
    const auto lati = static_cast<std::size_t>(rotonda.NumeroRami());
    if (righe.size() != lati) {
        errato(dove, fmt::format("attese {} righe, trovate {}", lati, righe.size()));
    }
    for (std::size_t r = 0; r < lati; ++r) {
        const auto& riga = atteso<Elenco>(righe[r], "un elenco", [&] { return voce(dove, r); });
        if (riga.size() != lati) {
            errato(voce(dove, r), fmt::format("attesi {} numeri, trovati {}", lati, riga.size()));
        }
        for (std::size_t c = 0; c < lati; ++c) {
            rotonda.MatriceSvolte(leggiSingolo(riga[c], [&] { return voce(voce(dove, r), c); }),
                                  static_cast<std::int16_t>(r + 1), static_cast<std::int16_t>(c + 1));
        }
    }
}

std::string leggiKey(const Oggetto& fonte, std::int16_t posizione, const std::string& dove, const Rotonda& rotonda) {
    const Valore* v = cerca(fonte, chiaveKey);
    const std::string key = v == nullptr ? fmt::format("{}Ramo", posizione)
                                         : atteso<std::string>(*v, "un testo", [&] { return sotto(dove, chiaveKey); });
    if (!chiaveDelRamo(key, posizione)) {
        errato(sotto(dove, chiaveKey), fmt::format("la chiave del ramo non porta la cifra {}", posizione));
    }
    for (std::int16_t i = 1; i < posizione; ++i) {
        if (rotonda.Ramo(i).Key() == key) {
            errato(sotto(dove, chiaveKey), fmt::format("la chiave è già quella del ramo {}", i));
        }
    }
    return key;
}

void leggiRamo(const Oggetto& fonte, std::int16_t posizione, Rotonda& rotonda) {
    const std::string dove = voce(std::string{chiaveRami}, static_cast<std::size_t>(posizione) - 1);
    Ramo& nuovo = rotonda.AddRamo(leggiKey(fonte, posizione, dove, rotonda));
    leggiCampi(fonte, ramo::campi, ramo::altre, dove, nuovo);

    const std::string doveTraffico = sotto(dove, chiaveTraffico);
    const std::string doveComposizione = sotto(dove, chiaveComposizione);
    const Oggetto& datiTraffico = figlio(fonte, chiaveTraffico, dove);
    const Oggetto& datiComposizione = figlio(fonte, chiaveComposizione, dove);
    const Segmenti s{datiTraffico,
                     datiComposizione,
                     doveTraffico,
                     doveComposizione,
                     elenco(datiTraffico, chiaveFlussi, doveTraffico),
                     elenco(datiComposizione, chiaveCategorie, doveComposizione)};
    const std::int16_t segmenti = segmentiDelRamo(s, nuovo.theDatiTraffico().NumSegmentiTempo());
    nuovo.theDatiTraffico().NumSegmentiTempo(segmenti);
    nuovo.theComposizioneTraffico().NumSegmentiTempo(segmenti);

    // The lists come last: the number of segments among the properties discards them.
    leggiCampi(datiTraffico, traffico::campi, traffico::altre, doveTraffico, nuovo.theDatiTraffico());
    leggiCampi(datiComposizione, composizione::campi, composizione::altre, doveComposizione,
               nuovo.theComposizioneTraffico());
    leggiCampi(figlio(fonte, chiaveAnalisi, dove), analisi::campi, analisi::altre, sotto(dove, chiaveAnalisi),
               nuovo.theAnalisiMarginale());
    leggiFlussi(s.flussi, sotto(doveTraffico, chiaveFlussi), nuovo.theDatiTraffico());
    leggiCategorie(s.categorie, sotto(doveComposizione, chiaveCategorie), nuovo.theComposizioneTraffico());
}

std::int16_t leggiNumeroRami(const Oggetto& radice, const Elenco& rami) {
    if (rami.size() < static_cast<std::size_t>(minimoRami)) {
        errato(std::string{chiaveRami},
               fmt::format("attesi da {} a {} rami, trovati {}", minimoRami, massimoRami, rami.size()));
    }
    const auto numero = static_cast<std::int16_t>(rami.size());
    if (const Valore* v = cerca(radice, chiaveNumeroRami)) {
        const std::string dove{chiaveNumeroRami};
        const std::int16_t detto = leggiIntero(*v, [&] { return dove; });
        if (detto < minimoRami || detto > massimoRami) {
            errato(dove, fmt::format("atteso un numero da {} a {}, trovato {}", minimoRami, massimoRami, detto));
        }
        if (detto != numero) {
            errato(dove, fmt::format("{} rami, ma {} in {}", detto, numero, chiaveRami));
        }
    }
    return numero;
}

}  // namespace

void leggi(std::string_view testo, Rotonda& rotonda) {
    const Oggetto radice = leggiAlbero(testo);
    if (cerca(radice, chiaveRami) == nullptr) {
        errato(std::string{chiaveRami}, "manca");
    }
    const Elenco& rami = elenco(radice, chiaveRami, {});
    rotonda.NumeroRami(leggiNumeroRami(radice, rami));
    // The legs come after the time window: it gives them what the file does not tell.
    leggiCampi(radice, rotonda::campi, rotonda::altre, {}, rotonda);
    leggiMatrice(radice, rotonda);
    for (std::size_t i = 0; i < rami.size(); ++i) {
        leggiRamo(atteso<Oggetto>(rami[i], "un oggetto", [&] { return voce(std::string{chiaveRami}, i); }),
                  static_cast<std::int16_t>(i + 1), rotonda);
    }
}

}  // namespace kelvo::klv
