#include <fmt/format.h>

#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "base/guasto.h"
#include "base/numeri.h"
#include "model/alberoKlv.h"
#include "model/campiKlv.h"
#include "model/fileKlv.h"

namespace kelvo::klv {

namespace {

[[noreturn]] void impossibile(const std::string& parole) {
    throw Guasto::conParole(NumeroGuasto::chiamataNonValida, parole);
}

template <class T>
std::string testoNumerico(T valore, const std::string& nome) {
    if (!std::isfinite(valore)) {
        impossibile(fmt::format("{} non è un numero finito", nome));
    }
    return valore == T{0} ? "0" : testoEsatto(valore);  // -0 too
}

/// A time or a date; `rilettura` tells whether the text reads back.
std::string testoTempo(DataOra valore, const std::string& nome, std::string (*scrittura)(DataOra),
                       std::optional<DataOra> (*rilettura)(std::string_view)) {
    std::string testo;
    try {
        testo = scrittura(valore);
    } catch (const Guasto&) {
        impossibile(fmt::format("{} è fuori dal calendario", nome));
    }
    if (!rilettura(testo)) {
        impossibile(fmt::format("{} è fuori dal calendario", nome));
    }
    return '"' + testo + '"';
}

std::string testoOra(DataOra valore) {
    // A time of day; a whole date keeps its time alone, as in every use of it.
    constexpr double massimeOre = 99.5 / 24.0;
    return testoIsoOra(std::fabs(valore) >= massimeOre ? valore - std::floor(valore) : valore);
}

std::string sotto(const std::string& dove, std::string_view chiave) {
    return dove.empty() ? std::string{chiave} : fmt::format("{}.{}", dove, chiave);
}

/// The text of a property.
template <class O>
struct Lettura {
    const O& oggetto;
    const std::string& nome;  ///< path of the property, for messages

    std::string operator()(const Testo<O>& a) const { return testoJson((oggetto.*a.leggi)()); }
    std::string operator()(const Logico<O>& a) const { return (oggetto.*a.leggi)() ? "true" : "false"; }
    std::string operator()(const Intero<O>& a) const { return std::to_string((oggetto.*a.leggi)()); }
    std::string operator()(const Singolo<O>& a) const { return testoNumerico((oggetto.*a.leggi)(), nome); }
    std::string operator()(const Doppio<O>& a) const { return testoNumerico((oggetto.*a.leggi)(), nome); }
    std::string operator()(const Ora<O>& a) const {
        return testoTempo((oggetto.*a.leggi)(), nome, &testoOra, &leggiIsoOra);
    }
    std::string operator()(const Giorno<O>& a) const {
        return testoTempo((oggetto.*a.leggi)(), nome, &testoIsoGiorno, &leggiIsoGiorno);
    }
};

/// Lays out objects and lists: one entry a line, two blanks for each level.
class Foglio {
public:
    void apri(char parentesi) {
        testo_ += parentesi;
        rientro_ += 2;
        primo_ = true;
    }
    void chiudi(char parentesi) {
        rientro_ -= 2;
        if (!primo_) {
            aCapo();
        }
        testo_ += parentesi;
        primo_ = false;
    }
    /// Starts an entry of a list.
    void voce() {
        testo_ += primo_ ? "" : ",";
        primo_ = false;
        aCapo();
    }
    /// Starts a member of an object.
    void chiave(std::string_view nome) {
        voce();
        testo_ += testoJson(std::string{nome}) + ": ";
    }
    void valore(std::string_view testo) { testo_ += testo; }
    void membro(std::string_view nome, std::string_view testo) {
        chiave(nome);
        valore(testo);
    }
    std::string fine() && {
        testo_ += '\n';
        return std::move(testo_);
    }

private:
    void aCapo() {
        testo_ += '\n';
        testo_.append(rientro_, ' ');
    }
    std::string testo_;
    std::size_t rientro_ = 0;
    bool primo_ = true;
};

template <class O, class Campi>
void scriviCampi(Foglio& foglio, const O& oggetto, const Campi& campi, const std::string& dove) {
    for (const Campo<O>& campo : campi) {
        foglio.membro(campo.nome, std::visit(Lettura<O>{oggetto, sotto(dove, campo.nome)}, campo.accesso));
    }
}

void scriviIgnote(Foglio& foglio, const OggettoProgetto& oggetto) {
    for (const auto& [chiave, valore] : oggetto.chiaviIgnote) {
        foglio.membro(chiave, valore);
    }
}

/// A list of numbers on one line.
template <class Numeri>
std::string riga(const Numeri& numeri, const std::string& nome) {
    std::string testo = "[";
    for (const float numero : numeri) {
        testo += testo.size() == 1 ? "" : ", ";
        testo += testoNumerico(numero, nome);
    }
    return testo + "]";
}

/// A table of numbers, one row a line.
template <class Tabella>
void scriviTabella(Foglio& foglio, std::string_view nome, const Tabella& tabella, const std::string& dove) {
    foglio.chiave(nome);
    foglio.apri('[');
    for (const auto& numeri : tabella) {
        foglio.voce();
        foglio.valore(riga(numeri, sotto(dove, nome)));
    }
    foglio.chiudi(']');
}

void scriviTraffico(Foglio& foglio, const DatiTraffico& dati, const std::string& dove) {
    foglio.chiave(chiaveTraffico);
    foglio.apri('{');
    scriviCampi(foglio, dati, traffico::campi, dove);
    std::vector<float> flussi;
    for (std::int16_t s = 0; s < dati.NumSegmentiTempo(); ++s) {
        flussi.push_back(dati.FlussoSegmento(s, 0));
    }
    foglio.membro(chiaveFlussi, riga(flussi, sotto(dove, chiaveFlussi)));
    scriviIgnote(foglio, dati);
    foglio.chiudi('}');
}

void scriviComposizione(Foglio& foglio, const ComposizioneTraffico& dati, const std::string& dove) {
    foglio.chiave(chiaveComposizione);
    foglio.apri('{');
    scriviCampi(foglio, dati, composizione::campi, dove);
    TabellaCategorie categorie;
    dati.GetCategorieSegmenti(categorie);
    scriviTabella(foglio, chiaveCategorie, categorie, dove);
    scriviIgnote(foglio, dati);
    foglio.chiudi('}');
}

void scriviRamo(Foglio& foglio, const Ramo& dati, const std::string& dove) {
    foglio.voce();
    foglio.apri('{');
    foglio.membro(chiaveKey, testoJson(dati.Key()));
    scriviCampi(foglio, dati, ramo::campi, dove);
    scriviTraffico(foglio, dati.theDatiTraffico(), sotto(dove, chiaveTraffico));
    scriviComposizione(foglio, dati.theComposizioneTraffico(), sotto(dove, chiaveComposizione));
    foglio.chiave(chiaveAnalisi);
    foglio.apri('{');
    scriviCampi(foglio, dati.theAnalisiMarginale(), analisi::campi, sotto(dove, chiaveAnalisi));
    scriviIgnote(foglio, dati.theAnalisiMarginale());
    foglio.chiudi('}');
    scriviIgnote(foglio, dati);
    foglio.chiudi('}');
}

/// What the reader would refuse is not written.
void controlla(const Rotonda& rotonda) {
    const std::int16_t rami = rotonda.Rami().Count();
    if (rami == 0) {
        impossibile("il progetto non ha ancora rami");
    }
    if (rami != rotonda.NumeroRami()) {
        impossibile(fmt::format("il progetto ha {} rami su {}", rami, rotonda.NumeroRami()));
    }
    for (std::int16_t i = 1; i <= rami; ++i) {
        const Ramo& dati = rotonda.Ramo(i);
        const std::int16_t segmenti = dati.theDatiTraffico().NumSegmentiTempo();
        if (!chiaveDelRamo(dati.Key(), i)) {
            impossibile(fmt::format("la chiave \"{}\" non porta la cifra del ramo {}", dati.Key(), i));
        }
        if (segmenti > massimoSegmenti) {
            impossibile(fmt::format("il ramo {} ha {} segmenti di tempo, più di {}", i, segmenti, massimoSegmenti));
        }
        if (segmenti != dati.theComposizioneTraffico().NumSegmentiTempo()) {
            impossibile(fmt::format("il ramo {} ha {} segmenti di traffico e {} di composizione", i, segmenti,
                                    dati.theComposizioneTraffico().NumSegmentiTempo()));
        }
    }
}

}  // namespace

std::string scrivi(const Rotonda& rotonda) {
    controlla(rotonda);
    Foglio foglio;
    foglio.apri('{');
    foglio.membro(chiaveFormato, testoJson(std::string{nomeFormato}));
    foglio.membro(chiaveVersione, std::to_string(versioneFormato));
    scriviCampi(foglio, rotonda, rotonda::campi, {});
    Matrice matrice;
    rotonda.GetMatriceSvolte(matrice);
    scriviTabella(foglio, chiaveMatrice, matrice, {});
    foglio.chiave(chiaveRami);
    foglio.apri('[');
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        scriviRamo(foglio, rotonda.Ramo(i), fmt::format("{}[{}]", chiaveRami, i));
    }
    foglio.chiudi(']');
    scriviIgnote(foglio, rotonda);
    foglio.chiudi('}');
    return std::move(foglio).fine();
}

}  // namespace kelvo::klv
