#include "shell/servizi/carta.h"

#include <algorithm>
#include <vector>

namespace kelvo {

namespace {

using D = DocumentoPagine;

/// Share of the height of a chart to its width: two of them with their titles stand on a page.
constexpr double formaGrafico = 0.55;

/// The texts of the fixed rows, one below the other.
std::string titolo(const Griglia& griglia, int colonna) {
    std::string testo;
    for (int r = 0; r < std::min(griglia.righeFisse(), griglia.tabella().righe()); ++r) {
        const std::string& parte = griglia.testo(r, colonna);
        testo += (testo.empty() || parte.empty() ? "" : "\n") + parte;
    }
    return testo;
}

std::vector<int> visibili(const Griglia& griglia) {
    std::vector<int> colonne;
    for (int c = 0; c < griglia.tabella().colonne(); ++c) {
        if (!griglia.colonna(c).nascosta) {
            colonne.push_back(c);
        }
    }
    return colonne;
}

/// A row that holds a heading and nothing else.
bool capo(const Tabella& tabella, int riga, const std::vector<int>& colonne) {
    return !colonne.empty() && tabella.cella(riga, colonne.front()).sfondo == colori::intestazione &&
           std::all_of(colonne.begin() + 1, colonne.end(), [&](int c) { return tabella.testo(riga, c).empty(); });
}

/// That of the boxes in a column, where it has one of their own.
AllineamentoCella allineamento(const Griglia& griglia, int colonna) {
    for (int r = griglia.righeFisse(); griglia.ornamento && r < griglia.tabella().righe(); ++r) {
        if (const auto suo = griglia.ornamento({r, colonna}).allineamento) {
            return *suo;
        }
    }
    return griglia.colonna(colonna).allineamento;
}

D::Cella cella(const Griglia& griglia, Posto posto) {
    const Cella& da = griglia.tabella().cella(posto.riga, posto.colonna);
    D::Cella a{.testo = da.testo, .grassetto = da.grassetto};
    const OrnamentoCella ornamento = griglia.ornamento ? griglia.ornamento(posto) : OrnamentoCella{};
    const Colore fondo = ornamento.distintivo ? ornamento.distintivo->fondo : da.sfondo;
    if (fondo != colori::bianco && fondo != colori::dati) {
        a.fondo = fondo;
    }
    const Colore inchiostro = ornamento.distintivo ? ornamento.distintivo->testo : da.inchiostro;
    if (inchiostro != colori::nero) {
        a.inchiostro = inchiostro;
    }
    return a;
}

}  // namespace

DocumentoPagine::Tabella tabellaSuCarta(const Griglia& griglia) {
    const Tabella& tabella = griglia.tabella();
    const std::vector<int> colonne = visibili(griglia);
    D::Tabella carta{.colonne = {}, .righe = {}};
    for (const int c : colonne) {
        const auto posto = static_cast<std::size_t>(c);
        const int larghezza = posto < tabella.larghezze.size() ? tabella.larghezze[posto] : 0;
        carta.colonne.push_back(
            {titolo(griglia, c), larghezza > 0 ? static_cast<double>(larghezza) : 1000.0, allineamento(griglia, c)});
        carta.guida += c < griglia.colonneFisse() ? 1U : 0U;
    }
    for (int r = griglia.righeFisse(); r < tabella.righe(); ++r) {
        if (capo(tabella, r, colonne)) {
            carta.capi.push_back(carta.righe.size());
        }
        std::vector<D::Cella>& riga = carta.righe.emplace_back();
        for (const int c : colonne) {
            riga.push_back(cella(griglia, {r, c}));
        }
    }
    return carta;
}

DocumentoPagine::Figura figuraSuCarta(const Grafico::Contenuto& contenuto) {
    return {.contenuto = contenuto, .larghezza = 1.0, .forma = formaGrafico};
}

}  // namespace kelvo
