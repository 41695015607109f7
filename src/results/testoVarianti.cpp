#include <fmt/format.h>

#include <array>

#include "base/testo.h"
#include "pianta/Pianta.h"
#include "results/varianti.h"

namespace kelvo {

namespace {

constexpr int colonne = 5;
constexpr std::array<std::string_view, 4> segni{"", "(=) uguale", "(+) migliore", "(-) peggiore"};
constexpr const char* nomeNodo = "Nodo";
constexpr const char* nomeRotatoria = "Rotatoria";

/// A table that grows row by row.
class Foglio {
public:
    using Riga = std::array<std::string, colonne>;
    void banda(std::string testo) { righe_.push_back({{std::move(testo)}, true}); }
    void riga(Riga testi) { righe_.push_back({std::move(testi), false}); }

    Tabella tabella() const {
        Tabella tabella(static_cast<int>(righe_.size()), colonne);
        for (int r = 0; r < tabella.righe(); ++r) {
            const Voce& voce = righe_[static_cast<std::size_t>(r)];
            for (int c = 0; c < colonne; ++c) {
                Cella& cella = tabella.cella(r, c);
                cella.testo = voce.testi[static_cast<std::size_t>(c)];
                if (voce.banda) {
                    cella.sfondo = colori::intestazione;
                    cella.inchiostro = colori::bianco;
                }
            }
        }
        return tabella;
    }

private:
    struct Voce {
        Riga testi;
        bool banda = false;
    };
    std::vector<Voce> righe_;
};

std::string nota(const Differenza& d) {
    if (d.usoA && d.usoB) {
        return {};
    }
    return d.usoA ? "in uso solo in A" : d.usoB ? "in uso solo in B" : "non in uso";
}

void righeEsiti(const std::vector<RigaVarianti>& righe, Foglio& foglio) {
    for (const RigaVarianti& r : righe) {
        foglio.riga({std::string{r.grandezza->nome}, r.a.testo, r.b.testo, r.testoScarto,
                     std::string{segni[static_cast<std::size_t>(r.giudizio)]}});
    }
}

/// An empty line stands before a band; the headings, in row 0, are none.
std::string scritta(const Tabella& tabella) {
    return testoTabella(tabella,
                        {.allineamento = Allineamento::sinistra, .rigaVuotaPrima = [](const Tabella& t, int r) {
                             return r > 0 && t.cella(r, 0).sfondo == colori::intestazione;
                         }});
}

std::string parteEsiti(const ConfrontoVarianti& varianti) {
    if (!varianti.esiti) {
        return std::string{"Risultati: non si confrontano, un calcolo non è riuscito."}.append(fineRiga);
    }
    const ConfrontoEsiti& esiti = *varianti.esiti;
    return fmt::format("Risultati di B rispetto ad A: migliori {}, peggiori {}, uguali {}{}{}{}",
                       esiti.quante(Giudizio::migliore), esiti.quante(Giudizio::peggiore),
                       esiti.quante(Giudizio::uguale), fineRiga, fineRiga, scritta(tabellaEsiti(varianti)));
}

}  // namespace

std::string titoloRamo(const ConfrontoVarianti& varianti, std::int16_t ramo) {
    const auto nome = [&](const Rotonda& rotonda) {
        return ramo <= rotonda.NumeroRami() ? rotonda.Ramo(ramo).Descrizione() : std::string{};
    };
    const std::string a = nome(varianti.a);
    const std::string b = nome(varianti.b);
    const std::string titolo = fmt::format("Ramo {}: ", pianta::lettera(ramo));
    if (ramo > varianti.a.NumeroRami()) {
        return titolo + b + " (solo in B)";
    }
    if (ramo > varianti.b.NumeroRami()) {
        return titolo + a + " (solo in A)";
    }
    return titolo + (a == b ? a : a + " / " + b);
}

Tabella tabellaDifferenze(const ConfrontoVarianti& varianti) {
    Foglio foglio;
    foglio.riga({"Dato", "A", "B", "B - A", "Nota"});
    std::int16_t ramo = -1;
    for (const Differenza& d : varianti.differenze.dati) {
        if (d.ramo != ramo) {
            ramo = d.ramo;
            foglio.banda(ramo == 0 ? nomeRotatoria : titoloRamo(varianti, ramo));
        }
        foglio.riga({d.nome, d.testoA, d.testoB, d.testoScarto, nota(d)});
    }
    return foglio.tabella();
}

Tabella tabellaEsiti(const ConfrontoVarianti& varianti) {
    Foglio foglio;
    foglio.riga({"Grandezza", "A", "B", "B - A", "B rispetto ad A"});
    for (std::size_t i = 0; i < varianti.esiti->ingressi.size(); ++i) {
        foglio.banda(titoloRamo(varianti, static_cast<std::int16_t>(i + 1)));
        righeEsiti(varianti.esiti->ingressi[i], foglio);
    }
    foglio.banda(nomeNodo);
    righeEsiti(varianti.esiti->nodo, foglio);
    return foglio.tabella();
}

std::string testoVarianti(const ConfrontoVarianti& varianti, DataOra momento) {
    const DifferenzeProgetti& d = varianti.differenze;
    std::string testo = fmt::format("Risultati: Confronto di due varianti{0}{0}A: {1}{0}B: {2}{0}{0}", fineRiga,
                                    varianti.nomeA, varianti.nomeB);
    if (d.identici()) {
        testo.append("I dati di ingresso delle due varianti sono identici.").append(fineRiga);
    } else {
        testo.append(fmt::format("Dati di ingresso diversi: {}", d.dati.size())).append(fineRiga);
    }
    for (const std::string& nota : d.note) {
        testo.append(nota).append(fineRiga);
    }
    testo.append(fineRiga);
    if (!d.dati.empty()) {
        testo.append(scritta(tabellaDifferenze(varianti))).append(fineRiga);
    }
    testo.append(parteEsiti(varianti)).append(fineRiga);
    return testo.append(righeDiChiusura(momento, varianti.a.NomeFile() + " / " + varianti.b.NomeFile()));
}

}  // namespace kelvo
