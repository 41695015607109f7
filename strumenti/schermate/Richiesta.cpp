#include "schermate/Richiesta.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace kelvo::schermate {

namespace {

constexpr std::array<std::string_view, 4> scale{"1", "1.25", "1.5", "2"};
constexpr int larghezzaMinima = 960;
constexpr int altezzaMinima = 600;
constexpr int misuraMassima = 8192;

std::optional<int> intero(std::string_view testo) {
    int valore = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (testo.empty() || errore != std::errc{} || fine != testo.data() + testo.size()) {
        return std::nullopt;
    }
    return valore;
}

std::string scriviScala(Richiesta& richiesta, const std::string& valore) {
    richiesta.scala = valore;
    std::replace(richiesta.scala.begin(), richiesta.scala.end(), ',', '.');
    const bool nota = std::find(scale.begin(), scale.end(), richiesta.scala) != scale.end();
    return nota ? std::string{} : "scala '" + valore + "' non prevista: scegliere fra 1, 1.25, 1.5 e 2";
}

std::string scriviMisura(Richiesta& richiesta, const std::string& valore) {
    const auto per = valore.find('x');
    const auto larga = intero(std::string_view{valore}.substr(0, per));
    const auto alta =
        per == std::string::npos ? std::optional<int>{} : intero(std::string_view{valore}.substr(per + 1));
    if (!larga || !alta) {
        return "misura '" + valore + "' non valida: scriverla come 1366x768";
    }
    if (*larga < larghezzaMinima || *alta < altezzaMinima || *larga > misuraMassima || *alta > misuraMassima) {
        return "misura '" + valore + "' fuori dai limiti: da 960x600 a 8192x8192";
    }
    richiesta.larghezza = *larga;
    richiesta.altezza = *alta;
    return {};
}

std::string scriviProgetto(Richiesta& richiesta, const std::string& valore) {
    richiesta.progetti.push_back(valore);
    return {};
}

std::string scriviElenco(Richiesta& richiesta, const std::string& valore) {
    richiesta.elenco = valore;
    return {};
}

struct Opzione {
    std::string_view nome;
    std::string (*scrivi)(Richiesta&, const std::string&);  ///< answers what is wrong
};
constexpr std::array opzioni{
    Opzione{"--scala", scriviScala},
    Opzione{"--misura", scriviMisura},
    Opzione{"--progetto", scriviProgetto},
    Opzione{"--elenco", scriviElenco},
};

}  // namespace

const char* const uso =
    "Uso: kelvo-schermate DIR [opzioni]\n"
    "Apre ogni finestra del programma sui progetti di esempio e ne scrive un'immagine PNG nella cartella DIR.\n"
    "\n"
    "  --scala 1|1.25|1.5|2    pixel dello schermo per pixel logico (1)\n"
    "  --misura LxA            larghezza e altezza della finestra principale, in pixel logici (1440x900)\n"
    "  --progetto FILE         il progetto da aprire al posto degli esempi; si può ripetere\n"
    "  --elenco FILE           solo le immagini che il file nomina, una per riga; dopo il nome la parola 'finestra'\n"
    "                          lascia della finestra principale la sola finestra di lavoro\n"
    "  --aiuto                 mostra queste righe\n";

Lettura leggiRichiesta(const std::vector<std::string>& parole) {
    Richiesta richiesta;
    for (std::size_t i = 0; i < parole.size(); ++i) {
        const std::string& parola = parole[i];
        if (parola == "--aiuto" || parola == "--help" || parola == "-h") {
            richiesta.aiuto = true;
            return {richiesta, {}};
        }
        if (parola.rfind("--", 0) != 0) {
            if (!richiesta.cartella.empty()) {
                return {{}, "una sola cartella: '" + parola + "' è di troppo"};
            }
            richiesta.cartella = parola;
            continue;
        }
        const auto uguale = parola.find('=');
        const std::string nome = parola.substr(0, uguale);
        const auto* opzione =
            std::find_if(opzioni.begin(), opzioni.end(), [&](const Opzione& o) { return o.nome == nome; });
        if (opzione == opzioni.end()) {
            return {{}, "opzione '" + nome + "' sconosciuta"};
        }
        if (uguale == std::string::npos && i + 1 == parole.size()) {
            return {{}, "all'opzione '" + nome + "' manca il valore"};
        }
        const std::string valore = uguale == std::string::npos ? parole[++i] : parola.substr(uguale + 1);
        if (std::string errore = opzione->scrivi(richiesta, valore); !errore.empty()) {
            return {{}, errore};
        }
    }
    if (richiesta.cartella.empty()) {
        return {{}, "manca la cartella in cui scrivere le immagini"};
    }
    return {richiesta, {}};
}

}  // namespace kelvo::schermate
