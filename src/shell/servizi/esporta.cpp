#include "shell/servizi/esporta.h"

#include <algorithm>
#include <map>
#include <vector>

#include "base/numeri.h"
#include "base/testo.h"
#include "shell/servizi/nomiPermessi.h"

namespace kelvo {

namespace {

constexpr std::string_view segnoUtf8 = "\xEF\xBB\xBF";

using Righe = std::vector<std::vector<std::string>>;

std::string inUnaRiga(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return testo;
}

/// A cell; between quotes where its text would be read as something else.
std::string cellaCSV(const std::string& testo) {
    const bool orli = !testo.empty() && (testo.front() == ' ' || testo.back() == ' ');
    if (!orli && testo.find_first_of(";\"") == std::string::npos) {
        return testo;
    }
    std::string citata = "\"";
    for (const char c : testo) {
        citata += c == '"' ? "\"\"" : std::string(1, c);
    }
    return citata + '"';
}

std::string testoCSV(const Righe& righe) {
    std::string uscita{segnoUtf8};
    for (const std::vector<std::string>& riga : righe) {
        for (std::size_t c = 0; c < riga.size(); ++c) {
            uscita += (c == 0 ? "" : ";") + cellaCSV(riga[c]);
        }
        uscita += fineRiga;
    }
    return uscita;
}

Righe righeDi(const Griglia& griglia, bool conIntestazioni) {
    const Tabella& tabella = griglia.tabella();
    int fine = tabella.righe();
    while (fine > griglia.righeFisse() && griglia.muta(fine - 1)) {
        --fine;
    }
    Righe righe;
    for (int r = conIntestazioni ? 0 : griglia.righeFisse(); r < fine; ++r) {
        std::vector<std::string>& riga = righe.emplace_back();
        for (int c = conIntestazioni ? 0 : griglia.colonneFisse(); c < tabella.colonne(); ++c) {
            if (!griglia.colonna(c).nascosta) {
                riga.push_back(inUnaRiga(griglia.testoFuori({r, c})));
            }
        }
    }
    return righe;
}

/// The plain form of a value: of a single where it is one.
std::string valore(double v) {
    const auto singolo = static_cast<float>(v);
    return static_cast<double>(singolo) == v ? testoNumero(singolo) : testoNumero(v);
}

std::string oppure(const std::string& testo, const std::string& altro) {
    return testo.empty() ? altro : testo;
}

}  // namespace

std::string csvDiTabella(const Griglia& griglia) {
    return testoCSV(righeDi(griglia, true));
}

std::string csvDiGrafico(const Grafico::Contenuto& contenuto) {
    const std::size_t colonne = contenuto.serie.size() + 1;
    std::vector<std::string> testate{oppure(inUnaRiga(contenuto.x.titolo), "X")};
    std::map<double, std::vector<std::string>> perPosto;
    for (std::size_t s = 0; s < contenuto.serie.size(); ++s) {
        const Grafico::Serie& serie = contenuto.serie[s];
        testate.push_back(inUnaRiga(oppure(oppure(serie.nome, contenuto.y.titolo), "Serie " + std::to_string(s + 1))));
        for (std::size_t i = 0; i < serie.valori.size(); ++i) {
            const double posto = serie.ascisse.empty() ? static_cast<double>(i) : serie.ascisse[i];
            std::vector<std::string>& riga = perPosto[posto];
            riga.resize(colonne);
            if (riga[0].empty()) {
                riga[0] = inUnaRiga(Grafico::luogo(contenuto, serie, i));
            }
            riga[s + 1] = valore(serie.valori[i]);
        }
    }
    Righe righe{testate};
    for (auto& [posto, riga] : perPosto) {
        riga[0] = oppure(riga[0], valore(posto + 1.0));
        righe.push_back(riga);
    }
    return testoCSV(righe);
}

std::string testoDiTabella(const Griglia& griglia, bool conIntestazioni) {
    std::string uscita;
    for (const std::vector<std::string>& riga : righeDi(griglia, conIntestazioni)) {
        uscita += uscita.empty() ? "" : fineRiga;
        for (std::size_t c = 0; c < riga.size(); ++c) {
            uscita += (c == 0 ? "" : "\t") + riga[c];
        }
    }
    return uscita;
}

std::string nomeFileDati(std::string_view didascalia, std::string_view sottotitolo) {
    std::string nome = inUnaRiga(std::string{rifila(didascalia)});
    if (!rifila(sottotitolo).empty()) {
        nome += " - " + inUnaRiga(std::string{rifila(sottotitolo)});
    }
    std::replace_if(
        nome.begin(), nome.end(), [](char c) { return caratteriVietati.find(c) != std::string_view::npos; }, '-');
    while (!nome.empty() && (nome.back() == '.' || nome.back() == ' ')) {
        nome.pop_back();
    }
    return nome;
}

}  // namespace kelvo
