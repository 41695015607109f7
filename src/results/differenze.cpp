#include "results/differenze.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

#include "base/numeri.h"
#include "base/testo.h"
#include "model/campiKlv.h"
#include "pianta/Pianta.h"
#include "results/calcoloIpotesi.h"
#include "results/nomiDati.h"
#include "results/sintesiNodo.h"
#include "results/tipiProgetto.h"

namespace kelvo {

namespace {

/// Text in a cell: one line, of a length that leaves the table readable.
constexpr std::size_t massimoTesto = 60;
constexpr std::int16_t matriceInPercento = 1;

std::string suUnaRiga(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    const std::size_t lungo = lunghezza(testo);
    return lungo > massimoTesto ? senzaUltimi(testo, lungo - massimoTesto) + "..." : testo;
}

/// Two texts that begin alike for longer than a cell are shown from a little before the place where they part.
void mostraDoveDiversi(const std::string& a, const std::string& b, Differenza& d) {
    constexpr std::size_t prima = 20;
    const std::vector<std::string> lettereA = caratteri(a);
    const std::vector<std::string> lettereB = caratteri(b);
    const auto uguali = static_cast<std::size_t>(
        std::mismatch(lettereA.begin(), lettereA.end(), lettereB.begin(), lettereB.end()).first - lettereA.begin());
    if (uguali >= massimoTesto) {
        d.testoA = "..." + suUnaRiga(ultimiCaratteri(a, lettereA.size() - uguali + prima));
        d.testoB = "..." + suUnaRiga(ultimiCaratteri(b, lettereB.size() - uguali + prima));
    }
}

struct TestoDi {
    std::string operator()(const std::string& v) const { return suUnaRiga(v); }
    std::string operator()(bool v) const { return v ? "sì" : "no"; }
    std::string operator()(std::int16_t v) const { return testoNumero(static_cast<int>(v)); }
    std::string operator()(float v) const { return std::isfinite(v) ? testoNumero(v) : "non è un numero"; }
    std::string operator()(double v) const { return std::isfinite(v) ? testoNumero(v) : "non è un numero"; }
};

std::string conSegno(const std::string& numero) {
    return numero.starts_with('-') ? numero : "+" + numero;
}

/// The value of a property.
template <class O>
struct Lettura {
    const O& oggetto;
    template <class V, klv::Forma F>
    ValoreDato operator()(const klv::Accesso<O, V, F>& a) const {
        if constexpr (F == klv::Forma::ora) {
            return testoIsoOra((oggetto.*a.leggi)());
        } else if constexpr (F == klv::Forma::giorno) {
            return testoIsoGiorno((oggetto.*a.leggi)());
        } else {
            return ValoreDato{(oggetto.*a.leggi)()};
        }
    }
};

template <class O>
ValoreDato valore(const O& oggetto, const klv::Campo<O>& campo) {
    return std::visit(Lettura<O>{oggetto}, campo.accesso);
}

/// Share of a turn in its row, per cent; 0 for a row without vehicles.
double quota(const Rotonda& rotonda, std::int16_t origine, std::int16_t destinazione) {
    const auto cella = [&](std::int16_t d) { return static_cast<double>(rotonda.MatriceSvolte(origine, d)); };
    if (rotonda.TipoMatriceSvolte() == matriceInPercento) {
        return cella(destinazione);
    }
    double totale = 0.0;
    for (std::int16_t d = 1; d <= rotonda.NumeroRami(); ++d) {
        totale += cella(d);
    }
    return totale == 0.0 ? 0.0 : cella(destinazione) / totale * 100.0;
}

bool leggeDati(const Rotonda& rotonda, UsoDato uso) {
    const std::int16_t tipo = rotonda.TipoAnalisi();
    const bool nelTempo = tipo == analisi::curva || tipo == analisi::tabella;
    switch (uso) {
        case UsoDato::curva:
            return tipo == analisi::curva;
        case UsoDato::tabella:
            return tipo == analisi::tabella;
        case UsoDato::quote:
            return nelTempo && rotonda.TipoFlusso() == 0;
        case UsoDato::categorie:
            return nelTempo && rotonda.TipoFlusso() == 1;
        case UsoDato::sempre:
            break;
    }
    return true;
}

/// How the segments of one project answer to those of another.
struct Segmenti {
    bool confrontabili = false;
    std::int16_t numeroA = 0;
    std::int16_t numeroB = 0;
    std::int16_t avanti = 0;  ///< segment k of A, from 0, is segment k - avanti of B

    std::int16_t primo() const { return std::max<std::int16_t>(avanti, 0); }
    /// Behind the last common segment, in the count of A.
    std::int16_t fine() const {
        return static_cast<std::int16_t>(std::max<int>(primo(), std::min<int>(numeroA, numeroB + avanti)));
    }
    std::int16_t inB(std::int16_t k) const { return static_cast<std::int16_t>(k - avanti); }
};

std::int16_t segmentiDi(const Rotonda& rotonda) {
    std::int16_t n = 0;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        n = std::max(n, rotonda.Ramo(i).theDatiTraffico().NumSegmentiTempo());
    }
    return n;
}

Segmenti segmentiComuni(const Rotonda& a, const Rotonda& b) {
    Segmenti s{.numeroA = segmentiDi(a), .numeroB = segmentiDi(b)};
    const std::int64_t minuti = minutiTra(0.0, a.SegmentoTempo());
    const std::int64_t distanza = minutiTra(a.TempoIniziale(), b.TempoIniziale());
    const bool stessi = minuti == minutiTra(0.0, b.SegmentoTempo());
    if (stessi && (distanza == 0 || (minuti > 0 && distanza % minuti == 0))) {
        const std::int64_t avanti = distanza == 0 ? 0 : distanza / minuti;
        constexpr std::int64_t limite = std::numeric_limits<std::int16_t>::max() / 2;
        s.confrontabili = avanti > -limite && avanti < limite;
        s.avanti = s.confrontabili ? static_cast<std::int16_t>(avanti) : std::int16_t{0};
    }
    return s;
}

/// Collects what differs.
class Raccolta {
public:
    Raccolta(const Rotonda& a, const Rotonda& b) : a_(a), b_(b), segmenti_(segmentiComuni(a, b)) {}

    DifferenzeProgetti fine() && {
        progetto();
        noteRami();
        notaSpostati();
        matrice();
        const std::int16_t comuni = std::min(a_.NumeroRami(), b_.NumeroRami());
        for (std::int16_t i = 1; i <= comuni; ++i) {
            ramo(i);
        }
        noteSegmenti();
        return std::move(uscita_);
    }

private:
    struct Dove {
        std::string percorso;  ///< what stands in front of the key, its point with it
        std::int16_t ramo = 0;
    };

    void confronta(const Dove& dove, std::string_view campo, std::string nome, UsoDato uso, ValoreDato a, ValoreDato b,
                   std::string (*parole)(std::int16_t) = nullptr) {
        if (a == b) {
            return;
        }
        Differenza d{.campo = dove.percorso + std::string{campo}, .ramo = dove.ramo, .nome = std::move(nome)};
        const auto testo = [&](const ValoreDato& v) {
            const auto* codice = std::get_if<std::int16_t>(&v);
            return parole != nullptr && codice != nullptr ? parole(*codice) : std::visit(TestoDi{}, v);
        };
        d.testoA = testo(a);
        d.testoB = testo(b);
        if (d.testoA == d.testoB && std::holds_alternative<std::string>(a) && std::holds_alternative<std::string>(b)) {
            mostraDoveDiversi(std::get<std::string>(a), std::get<std::string>(b), d);
        }
        if (parole == nullptr) {
            d.scarto = scarto(a, b);
            d.testoScarto = d.scarto ? conSegno(std::visit(TestoDi{}, *d.scarto)) : std::string{};
        }
        d.usoA = leggeDati(a_, uso);
        d.usoB = leggeDati(b_, uso);
        d.a = std::move(a);
        d.b = std::move(b);
        uscita_.dati.push_back(std::move(d));
    }

    /// All plain properties of an object.
    template <class O, std::size_t N>
    void campi(const Dove& dove, const std::array<klv::Campo<O>, N>& campi, const std::array<NomeDato, N>& nomi,
               const O& a, const O& b) {
        for (std::size_t i = 0; i < N; ++i) {
            if (nomi[i].nome.empty() || valore(a, campi[i]) == valore(b, campi[i])) {
                continue;
            }
            confronta(dove, campi[i].nome, std::string{nomi[i].nome}, nomi[i].uso, valore(a, campi[i]),
                      valore(b, campi[i]), nomi[i].parole);
            if (const auto* giorno = std::get_if<klv::Giorno<O>>(&campi[i].accesso)) {
                uscita_.dati.back().testoA = testoData((a.*giorno->leggi)());
                uscita_.dati.back().testoB = testoData((b.*giorno->leggi)());
            }
        }
    }

    void progetto() { campi({}, klv::rotonda::campi, nomiProgetto, a_, b_); }

    void matrice() {
        const bool percentoA = a_.TipoMatriceSvolte() == matriceInPercento;
        const bool percentoB = b_.TipoMatriceSvolte() == matriceInPercento;
        const bool stessoTipo = percentoA == percentoB;
        const bool percento = percentoA || percentoB;
        const std::int16_t n = std::min(a_.NumeroRami(), b_.NumeroRami());
        for (std::int16_t o = 1; o <= n; ++o) {
            for (std::int16_t d = 1; d <= n; ++d) {
                const std::string campo = fmt::format("{}[{}][{}]", klv::chiaveMatrice, o, d);
                const std::string nome = fmt::format("Svolta da {} a {} [{}]", pianta::lettera(o), pianta::lettera(d),
                                                     percento ? "%" : "veic");
                if (stessoTipo) {
                    confronta({}, campo, nome, UsoDato::sempre, a_.MatriceSvolte(o, d), b_.MatriceSvolte(o, d));
                } else {
                    confrontaQuote(campo, nome, quota(a_, o, d), quota(b_, o, d));
                }
            }
        }
        if (!stessoTipo) {
            uscita_.note.emplace_back(
                "Le matrici delle svolte sono una in veicoli e una in percentuale: si confrontano le quote di ogni "
                "riga.");
        }
    }

    /// Shares that show alike are alike: those worked out of vehicles have digits that nobody typed.
    void confrontaQuote(const std::string& campo, const std::string& nome, double a, double b) {
        constexpr Formato formato = "#0.00";
        if (formatta(a, formato) == formatta(b, formato)) {
            return;
        }
        confronta({}, campo, nome, UsoDato::sempre, a, b);
        Differenza& d = uscita_.dati.back();
        d.testoA = formatta(a, formato);
        d.testoB = formatta(b, formato);
        d.testoScarto = formatta(leggiNumero(d.testoB).value_or(0.0) - leggiNumero(d.testoA).value_or(0.0), "#+0.00");
    }

    void ramo(std::int16_t i) {
        const Ramo& a = a_.Ramo(i);
        const Ramo& b = b_.Ramo(i);
        const Dove dove{.percorso = fmt::format("{}[{}].", klv::chiaveRami, i), .ramo = i};
        const auto sotto = [&](std::string_view chiave) {
            return Dove{.percorso = fmt::format("{}{}.", dove.percorso, chiave), .ramo = i};
        };
        confronta(dove, klv::chiaveKey, "Chiave del ramo", UsoDato::sempre, a.Key(), b.Key());
        campi(dove, klv::ramo::campi, nomiRamo, a, b);
        campi(sotto(klv::chiaveTraffico), klv::traffico::campi, nomiTraffico, a.theDatiTraffico(), b.theDatiTraffico());
        flussi(sotto(klv::chiaveTraffico), a.theDatiTraffico(), b.theDatiTraffico());
        campi(sotto(klv::chiaveComposizione), klv::composizione::campi, nomiComposizione, a.theComposizioneTraffico(),
              b.theComposizioneTraffico());
        categorie(sotto(klv::chiaveComposizione), a.theComposizioneTraffico(), b.theComposizioneTraffico());
        campi(sotto(klv::chiaveAnalisi), klv::analisi::campi, nomiAnalisi, a.theAnalisiMarginale(),
              b.theAnalisiMarginale());
    }

    /// The name of a datum of a segment, from 0 in A.
    std::string conSegmento(const std::string& nome, std::int16_t k) const {
        return fmt::format("{}, {}", nome, testoOra(a_, static_cast<std::int16_t>(k + 1), 1));
    }

    void flussi(const Dove& dove, const DatiTraffico& a, const DatiTraffico& b) {
        for (std::int16_t k = segmenti_.primo(); segmenti_.confrontabili && k < segmenti_.fine(); ++k) {
            confronta(dove, fmt::format("{}[{}]", klv::chiaveFlussi, k + 1), conSegmento("Flusso [veic]", k),
                      UsoDato::tabella, a.FlussoSegmento(k, 0), b.FlussoSegmento(segmenti_.inB(k), 0));
        }
    }

    void categorie(const Dove& dove, const ComposizioneTraffico& a, const ComposizioneTraffico& b) {
        for (std::int16_t k = segmenti_.primo(); segmenti_.confrontabili && k < segmenti_.fine(); ++k) {
            for (std::int16_t c = 0; c < numeroClassi; ++c) {
                confronta(dove, fmt::format("{}[{}][{}]", klv::chiaveCategorie, k + 1, c + 1),
                          conSegmento(fmt::format("{} [veic]", nomiClassi[static_cast<std::size_t>(c)]), k),
                          UsoDato::categorie, a.CategoriaSegmento(k, c), b.CategoriaSegmento(segmenti_.inB(k), c));
            }
        }
    }

    void noteRami() {
        const std::int16_t na = a_.NumeroRami();
        const std::int16_t nb = b_.NumeroRami();
        if (na == nb) {
            return;
        }
        const bool soloA = na > nb;
        const Rotonda& maggiore = soloA ? a_ : b_;
        std::string elenco;
        for (std::int16_t i = static_cast<std::int16_t>(std::min(na, nb) + 1); i <= std::max(na, nb); ++i) {
            elenco += fmt::format("{}ramo {} ({})", elenco.empty() ? "" : ", ", pianta::lettera(i),
                                  suUnaRiga(maggiore.Ramo(i).Descrizione()));
        }
        uscita_.note.push_back(
            fmt::format("I rami sono {} in A e {} in B; solo in {}: {}.", na, nb, soloA ? 'A' : 'B', elenco));
    }

    /// Position of the leg of that name; 0 for none or several.
    static std::int16_t posizione(const Rotonda& rotonda, const std::string& nome) {
        std::int16_t trovata = 0;
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            if (rotonda.Ramo(i).Descrizione() == nome) {
                if (trovata != 0) {
                    return 0;
                }
                trovata = i;
            }
        }
        return trovata;
    }

    /// Legs that have moved are compared with another one: their names tell it.
    void notaSpostati() {
        std::string elenco;
        for (std::int16_t i = 1; i <= a_.NumeroRami(); ++i) {
            const std::string& nome = a_.Ramo(i).Descrizione();
            const std::int16_t inB = posizione(b_, nome);
            if (!nome.empty() && inB != 0 && inB != i && posizione(a_, nome) == i) {
                elenco += fmt::format("{}{} (da ramo {} a ramo {})", elenco.empty() ? "" : ", ", suUnaRiga(nome),
                                      pianta::lettera(i), pianta::lettera(inB));
            }
        }
        if (!elenco.empty()) {
            uscita_.note.push_back(
                fmt::format("I rami si confrontano per posizione; in B hanno un'altra posizione: {}.", elenco));
        }
    }

    void noteSegmenti() {
        const std::int16_t na = segmenti_.numeroA;
        const std::int16_t nb = segmenti_.numeroB;
        if (!segmenti_.confrontabili) {
            uscita_.note.push_back(
                fmt::format("I segmenti di tempo non coincidono (A: {} di {} minuti dalle {}; B: {} di {} minuti dalle "
                            "{}): i dati per segmento non si confrontano.",
                            na, minutiTra(0.0, a_.SegmentoTempo()), testoHHNN(a_.TempoIniziale()), nb,
                            minutiTra(0.0, b_.SegmentoTempo()), testoHHNN(b_.TempoIniziale())));
            return;
        }
        const auto primo = segmenti_.primo();
        const auto fine = segmenti_.fine();
        const bool nessuno = primo >= fine;
        soloIn('A', a_, nessuno ? std::pair{0, int{na}} : std::pair{0, int{primo}},
               nessuno ? std::pair{0, 0} : std::pair{int{fine}, int{na}});
        const int primoB = nessuno ? nb : segmenti_.inB(primo);
        const int fineB = nessuno ? nb : segmenti_.inB(fine);
        soloIn('B', b_, {0, primoB}, {fineB, int{nb}});
    }

    /// Tells the segments of two runs, each from its first to behind its last, from 0.
    void soloIn(char quale, const Rotonda& rotonda, std::pair<int, int> prima, std::pair<int, int> dopo) {
        std::string elenco;
        int quanti = 0;
        for (const auto& [da, a] : {prima, dopo}) {
            if (da < a) {
                quanti += a - da;
                elenco += (elenco.empty() ? "" : ", ") +
                          testoOra(rotonda, static_cast<std::int16_t>(da + 1), static_cast<std::int16_t>(a - da));
            }
        }
        if (quanti > 0) {
            uscita_.note.push_back(fmt::format("Segmenti di tempo solo in {}: {} ({}).", quale, quanti, elenco));
        }
    }

    const Rotonda& a_;
    const Rotonda& b_;
    Segmenti segmenti_;
    DifferenzeProgetti uscita_;
};

struct Sottrazione {
    std::optional<ValoreDato> operator()(std::int16_t a, std::int16_t b) const {
        const int d = int{b} - int{a};
        const bool sta = d >= std::numeric_limits<std::int16_t>::min() && d <= std::numeric_limits<std::int16_t>::max();
        return sta ? std::optional<ValoreDato>(static_cast<std::int16_t>(d)) : std::nullopt;
    }
    std::optional<ValoreDato> operator()(float a, float b) const {
        const auto d = static_cast<float>(esatto(b) - esatto(a));
        return std::isfinite(d) ? std::optional<ValoreDato>(d) : std::nullopt;
    }
    std::optional<ValoreDato> operator()(double a, double b) const {
        const double d = b - a;
        return std::isfinite(d) ? std::optional<ValoreDato>(comeScritti(a, b, d)) : std::nullopt;
    }
    template <class X, class Y>
    std::optional<ValoreDato> operator()(const X&, const Y&) const {
        return std::nullopt;
    }
    /// The double that the shortest text of a single tells.
    static double esatto(float v) { return letto(testoEsatto(v), static_cast<double>(v)); }
    /// The difference `d` of two figures that a person typed, with no more decimals than these have; that of figures
    /// that were worked out stays as it is.
    static double comeScritti(double a, double b, double d) {
        constexpr std::size_t massimoBattuti = 9;
        const std::string testoA = testoEsatto(a);
        const std::string testoB = testoEsatto(b);
        const std::size_t quanti = std::max(decimali(testoA), decimali(testoB));
        if (quanti > massimoBattuti || (testoA + testoB).find('e') != std::string::npos) {
            return d;
        }
        return letto(fmt::format("{:.{}f}", d, static_cast<int>(quanti)), d);
    }
    static std::size_t decimali(const std::string& testo) {
        const std::size_t punto = testo.find('.');
        return punto == std::string::npos ? 0 : testo.size() - punto - 1;
    }
    static double letto(const std::string& testo, double altrimenti) {
        std::from_chars(testo.data(), testo.data() + testo.size(), altrimenti);
        return altrimenti;
    }
};

}  // namespace

std::optional<ValoreDato> scarto(const ValoreDato& a, const ValoreDato& b) {
    return std::visit(Sottrazione{}, a, b);
}

DifferenzeProgetti differenze(const Rotonda& a, const Rotonda& b) {
    return Raccolta(a, b).fine();
}

}  // namespace kelvo
