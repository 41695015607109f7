#include "model/alberoKlv.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <nlohmann/json.hpp>
#include <optional>
#include <unordered_set>
#include <utility>

#include "base/guasto.h"
#include "base/testo.h"
#include "model/campiKlv.h"

namespace kelvo::klv {

namespace {

/// Walks through the text and tells how much of it was read.
class Avanzamento {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    Avanzamento(const char* posto, std::size_t* letti) : posto_(posto), letti_(letti) {}
    reference operator*() const { return *posto_; }
    Avanzamento& operator++() {
        ++posto_;
        ++*letti_;
        return *this;
    }
    Avanzamento operator++(int) {
        Avanzamento prima = *this;
        ++*this;
        return prima;
    }
    friend bool operator==(const Avanzamento& a, const Avanzamento& b) { return a.posto_ == b.posto_; }

private:
    const char* posto_;
    std::size_t* letti_;
};

/// Room that a list takes with its first value: most lists of a project are rows of the seven classes.
constexpr std::size_t rigaUsuale = 7;

/// The places of the file whose size is bounded.
enum class Luogo { altro, radice, rami, ramo, traffico, flussi, composizione, categorie };

struct Passaggio {
    Luogo da;
    std::string_view chiave;  ///< empty for an entry of a list
    Luogo a;
};
constexpr std::array passaggi{
    Passaggio{Luogo::radice, chiaveRami, Luogo::rami},
    Passaggio{Luogo::rami, "", Luogo::ramo},
    Passaggio{Luogo::ramo, chiaveTraffico, Luogo::traffico},
    Passaggio{Luogo::ramo, chiaveComposizione, Luogo::composizione},
    Passaggio{Luogo::traffico, chiaveFlussi, Luogo::flussi},
    Passaggio{Luogo::composizione, chiaveCategorie, Luogo::categorie},
};

struct Limite {
    Luogo dove;
    std::size_t massimo;
    std::string_view cosa;
};
constexpr std::array limiti{
    Limite{Luogo::rami, massimoRami, "rami"},
    Limite{Luogo::flussi, massimoSegmenti, "segmenti"},
    Limite{Luogo::categorie, massimoSegmenti, "segmenti"},
};

/// "riga 3, colonna 7: " of what ends at a position of the text; columns count characters.
std::string posto(std::string_view testo, std::size_t fine) {
    const std::string_view prima = testo.substr(0, fine == 0 ? 0 : std::min(fine, testo.size()) - 1);
    const auto riga = std::count(prima.begin(), prima.end(), '\n') + 1;
    const auto capo = prima.rfind('\n');
    const auto colonna = lunghezza(capo == std::string_view::npos ? prima : prima.substr(capo + 1)) + 1;
    return fmt::format("riga {}, colonna {}: ", riga, colonna);
}

/// A value for a message: its first characters.
std::string breve(const std::string& testo) {
    constexpr std::size_t quanti = 60;
    const std::size_t lungo = lunghezza(testo);
    return lungo <= quanti ? testo : senzaUltimi(testo, lungo - quanti) + "...";
}

/// Receives the events of the parser, builds the tree and keeps the limits.
class Costruttore {
public:
    Costruttore(std::string_view testo, const std::size_t& letti) : testo_(testo), letti_(letti) {}

    bool null() { return valore({Nullo{}}); }
    bool boolean(bool v) { return valore({v}); }
    bool number_integer(std::int64_t v) { return valore({Numero{std::to_string(v)}}); }
    bool number_unsigned(std::uint64_t v) { return valore({Numero{std::to_string(v)}}); }
    bool number_float(double /*v*/, const std::string& scritto) {
        // The parser puts the point of the process's locale in the place of the one that was written.
        std::string numero = scritto;
        const auto punto = numero.find_first_not_of("0123456789+-eE");
        if (punto != std::string::npos) {
            numero[punto] = '.';
        }
        return valore({Numero{std::move(numero)}});
    }
    bool string(std::string& v) { return valore({std::move(v)}); }
    bool binary(std::vector<std::uint8_t>& /*v*/) { return rifiuta("dati binari"); }
    bool start_object(std::size_t /*quanti*/) { return apri({Oggetto{}}); }
    bool start_array(std::size_t /*quanti*/) { return apri({Elenco{}}); }
    bool end_object() { return chiudi(); }
    bool end_array() { return chiudi(); }
    bool key(std::string& chiave) {
        Cornice& cornice = aperte_.back();
        if (!cornice.chiavi.insert(chiave).second) {
            return rifiuta(fmt::format("la chiave {} compare due volte", percorso(breve(chiave))));
        }
        cornice.chiave = std::move(chiave);
        return true;
    }
    bool parse_error(std::size_t fine, const std::string& ultimo, const nlohmann::detail::exception& errore) {
        constexpr int fuoriIntervallo = 406;
        const std::string vicino = ultimaParte(ultimo);
        if (errore.id == fuoriIntervallo) {
            messaggio_ = posto(testo_, fine) + fmt::format("il numero {} è troppo grande", vicino);
        } else if (fine > testo_.size()) {
            messaggio_ = posto(testo_, fine) + "il testo finisce prima della fine del progetto";
        } else {
            messaggio_ = posto(testo_, fine) + fmt::format("sintassi non valida presso {}", vicino);
        }
        return false;
    }

    const std::string& messaggio() const { return messaggio_; }
    Valore& radice() { return radice_; }

private:
    struct Cornice {
        Valore valore;
        Luogo luogo = Luogo::altro;
        std::string chiave;
        std::unordered_set<std::string> chiavi;
    };

    static std::string ultimaParte(const std::string& testo) {
        constexpr std::size_t quanti = 30;
        return "«" + (lunghezza(testo) > quanti ? "..." : std::string{}) + ultimiCaratteri(testo, quanti) + "»";
    }

    bool rifiuta(const std::string& parole) {
        messaggio_ = posto(testo_, letti_) + parole;
        return false;
    }
    bool estraneo(const std::string& parole) {
        messaggio_ = "non è un progetto Kelvo: " + parole;
        return false;
    }

    /// Path of the object or list in hand, with `ultima` as the key in it.
    std::string percorso(const std::string& ultima) const {
        std::string testo;
        for (std::size_t i = 0; i < aperte_.size(); ++i) {
            const Cornice& cornice = aperte_[i];
            const bool fine = i + 1 == aperte_.size();
            if (const auto* elenco = std::get_if<Elenco>(&cornice.valore.contenuto)) {
                testo += fine ? std::string{} : fmt::format("[{}]", elenco->size() + 1);
            } else if (const std::string& chiave = fine ? ultima : cornice.chiave; !chiave.empty()) {
                testo += (testo.empty() ? "" : ".") + chiave;
            }
        }
        return testo;
    }

    /// Checks that one more value may stand in the list or object in hand.
    bool ammesso() {
        if (++valori_ > massimoValori) {
            return rifiuta(fmt::format("più di {} valori nel file", massimoValori));
        }
        if (aperte_.empty()) {
            return true;
        }
        const Cornice& cornice = aperte_.back();
        const auto* elenco = std::get_if<Elenco>(&cornice.valore.contenuto);
        for (const Limite& limite : limiti) {
            if (elenco != nullptr && limite.dove == cornice.luogo && elenco->size() >= limite.massimo) {
                return rifiuta(fmt::format("{}: più di {} {}", percorso({}), limite.massimo, limite.cosa));
            }
        }
        return true;
    }

    /// The header tells a stranger or a newer file at once, before its content can be in the way.
    bool intestazione(const Valore& v) {
        if (aperte_.size() != 1 || aperte_.front().luogo != Luogo::radice) {
            return true;
        }
        const std::string& chiave = aperte_.front().chiave;
        if (chiave == chiaveFormato) {
            const auto* nome = std::get_if<std::string>(&v.contenuto);
            if (nome == nullptr || *nome != nomeFormato) {
                return estraneo(fmt::format("\"formato\" è {}, non \"{}\"", breve(testoJson(v)), nomeFormato));
            }
            formatoLetto_ = true;
        } else if (chiave == chiaveVersione) {
            return versione(v);
        }
        return true;
    }
    bool versione(const Valore& v) {
        const auto* numero = std::get_if<Numero>(&v.contenuto);
        const bool cifre = numero != nullptr && numero->testo != "0" &&
                           numero->testo.find_first_not_of("0123456789") == std::string::npos;
        if (!cifre) {
            return rifiuta(fmt::format("\"versione\" è {}, non un numero intero da 1 in su", breve(testoJson(v))));
        }
        if (numero->testo != std::to_string(versioneFormato)) {
            return rifiuta(
                fmt::format("il file è della versione {} del formato; questo programma legge fino alla versione {}",
                            breve(numero->testo), versioneFormato));
        }
        versioneLetta_ = true;
        return true;
    }

    bool valore(Valore&& v) {
        if (aperte_.empty()) {
            return estraneo("il testo non è un oggetto");
        }
        if (!ammesso() || !intestazione(v)) {
            return false;
        }
        riponi(std::move(v));
        return true;
    }

    void riponi(Valore&& v) {
        if (aperte_.empty()) {
            radice_ = std::move(v);
            return;
        }
        Cornice& cornice = aperte_.back();
        if (auto* elenco = std::get_if<Elenco>(&cornice.valore.contenuto)) {
            if (elenco->empty()) {
                elenco->reserve(rigaUsuale);
            }
            elenco->push_back(std::move(v));
        } else {
            std::get<Oggetto>(cornice.valore.contenuto).push_back({std::move(cornice.chiave), std::move(v)});
        }
    }

    bool apri(Valore&& v) {
        if (aperte_.size() >= massimaProfondita) {
            return rifiuta(fmt::format("più di {} livelli, uno dentro l'altro", massimaProfondita));
        }
        if (aperte_.empty() && !std::holds_alternative<Oggetto>(v.contenuto)) {
            return estraneo("il testo non è un oggetto");
        }
        if (!ammesso() || !intestazione(v)) {
            return false;
        }
        aperte_.push_back({std::move(v), dove(), {}, {}});
        return true;
    }
    Luogo dove() const {
        if (aperte_.empty()) {
            return Luogo::radice;
        }
        const Cornice& cornice = aperte_.back();
        for (const Passaggio& passaggio : passaggi) {
            if (passaggio.da == cornice.luogo && passaggio.chiave == cornice.chiave) {
                return passaggio.a;
            }
        }
        return Luogo::altro;
    }

    bool chiudi() {
        Valore v = std::move(aperte_.back().valore);
        aperte_.pop_back();
        if (aperte_.empty() && !formatoLetto_) {
            return estraneo("manca \"formato\"");
        }
        if (aperte_.empty() && !versioneLetta_) {
            return rifiuta("manca \"versione\"");
        }
        riponi(std::move(v));
        return true;
    }

    std::string_view testo_;
    const std::size_t& letti_;
    Valore radice_;
    std::vector<Cornice> aperte_;
    std::string messaggio_;
    std::size_t valori_ = 0;
    bool formatoLetto_ = false;
    bool versioneLetta_ = false;
};

[[noreturn]] void rifiuta(const std::string& messaggio) {
    throw Guasto::conParole(NumeroGuasto::tipoNonCorrispondente, messaggio);
}

void controllaByte(std::string_view testo) {
    if (testo.size() > massimoByte) {
        rifiuta(fmt::format("il file supera {} MiB", massimoByte / (1024 * 1024)));
    }
    if (testo.empty()) {
        rifiuta("il file è vuoto");
    }
    const std::size_t valida = parteValida(testo);
    if (valida != testo.size()) {
        rifiuta(posto(testo, valida + 1) + "il testo non è UTF-8");
    }
}

void accoda(std::string& testo, const Valore& valore);

void accoda(std::string& testo, const Elenco& elenco) {
    testo += '[';
    for (std::size_t i = 0; i < elenco.size(); ++i) {
        testo += i == 0 ? "" : ", ";
        accoda(testo, elenco[i]);
    }
    testo += ']';
}

void accoda(std::string& testo, const Oggetto& oggetto) {
    testo += '{';
    for (std::size_t i = 0; i < oggetto.size(); ++i) {
        testo += i == 0 ? "" : ", ";
        testo += testoJson(oggetto[i].chiave) + ": ";
        accoda(testo, oggetto[i].valore);
    }
    testo += '}';
}

void accoda(std::string& testo, const Valore& valore) {
    struct Visita {
        std::string& testo;
        void operator()(const Nullo& /*v*/) const { testo += "null"; }
        void operator()(bool v) const { testo += v ? "true" : "false"; }
        void operator()(const Numero& v) const { testo += v.testo; }
        void operator()(const std::string& v) const { testo += testoJson(v); }
        void operator()(const Elenco& v) const { accoda(testo, v); }
        void operator()(const Oggetto& v) const { accoda(testo, v); }
    };
    std::visit(Visita{testo}, valore.contenuto);
}

}  // namespace

const Valore* cerca(const Oggetto& oggetto, std::string_view chiave) {
    const auto trovato =
        std::find_if(oggetto.begin(), oggetto.end(), [&](const Membro& membro) { return membro.chiave == chiave; });
    return trovato == oggetto.end() ? nullptr : &trovato->valore;
}

Oggetto leggiAlbero(std::string_view testo) {
    constexpr std::string_view bom = "\xEF\xBB\xBF";
    if (testo.starts_with(bom)) {
        testo.remove_prefix(bom.size());
    }
    controllaByte(testo);
    std::size_t letti = 0;
    Costruttore costruttore(testo, letti);
    const Avanzamento inizio(testo.data(), &letti);
    const Avanzamento fine(testo.data() + testo.size(), nullptr);
    if (!nlohmann::json::sax_parse(inizio, fine, &costruttore)) {
        rifiuta(costruttore.messaggio());
    }
    return std::move(std::get<Oggetto>(costruttore.radice().contenuto));
}

std::string testoJson(const Valore& valore) {
    std::string testo;
    accoda(testo, valore);
    return testo;
}

std::string testoJson(const std::string& testo) {
    return nlohmann::json(testo).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

}  // namespace kelvo::klv
