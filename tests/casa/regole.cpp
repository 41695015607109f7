#include "regole.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace kelvo::prove {

namespace fs = std::filesystem;

namespace {

// Who may use whom. A room that does not stand yet does no harm here.
constexpr std::array stanze{
    Stanza{"base", "", "", "utf8cpp"},
    Stanza{"model", "", "", "nlohmann"},
    Stanza{"app", "model", "", ""},
    Stanza{"calc", "app model", "", ""},
    Stanza{"pianta", "model", "", ""},
    Stanza{"shell/servizi", "app model", "sigc", ""},
    Stanza{"input", "calc pianta app model shell/servizi", "", "csv"},
    Stanza{"results", "calc pianta app model shell/servizi", "", ""},
    Stanza{"checkup", "calc pianta app model shell/servizi", "", ""},
    Stanza{"reports", "results calc pianta app model shell/servizi", "pugixml zip xlsxwriter", ""},
    Stanza{"cad", "pianta app model shell/servizi", "", ""},
    Stanza{"shell", "cad reports checkup results input calc pianta app model shell/servizi", "", ""},
    Stanza{"platform", "app", "", ""},
    Stanza{"platform/linux", "platform app", "sistema", ""},
    Stanza{"platform/windows", "platform app", "sistema", ""},
    Stanza{"disegno", "pianta shell/servizi", "qtgui", ""},
    Stanza{"ui", "disegno shell cad reports checkup results input calc pianta app model shell/servizi",
           "qtgui qtwidgets", ""},
    Stanza{"apps/kelvo", "ui platform", "qtgui qtwidgets", ""},
    Stanza{"apps/kelvo-cli",
           "disegno shell cad reports checkup results input calc pianta app model shell/servizi platform",
           "cli11 nlohmann", ""},
};

/// A library, known by its headers.
struct Libreria {
    std::string_view nome;
    std::string_view intestazioni;  ///< regular expression
};

constexpr std::array librerie{
    Libreria{"standard", "[a-z0-9_]+"},
    Libreria{"fmt", "fmt/[a-z]+\\.h"},
    Libreria{"utf8cpp", "utf8(/[a-z0-9]+)?\\.h"},
    Libreria{"nlohmann", "nlohmann/[a-z_]+\\.hpp"},
    Libreria{"sigc", "sigc\\+\\+/.*"},
    Libreria{"pugixml", "pugixml\\.hpp"},
    Libreria{"zip", "zip\\.h"},
    Libreria{"xlsxwriter", "xlsxwriter\\.h"},
    Libreria{"csv", "csv\\.h"},
    Libreria{"cli11", "CLI/[A-Za-z]+\\.hpp"},
    Libreria{"sistema", "((sys/)?[a-z]+|windows|winreg|shellapi|shlobj)\\.h"},
    Libreria{"qtwidgets", "(Qt(Widgets|PrintSupport)/.*)|QApplication|Q.*Widget"},
    Libreria{"qtgui", "(Qt(Core|Gui|Svg)/.*)"},
};

bool contiene(std::string_view elenco, std::string_view parola) {
    const std::string cercata = " " + std::string(parola) + " ";
    return (" " + std::string(elenco) + " ").find(cercata) != std::string::npos;
}

bool inizia(std::string_view testo, std::string_view inizio) {
    return testo.substr(0, inizio.size()) == inizio;
}

/// The room whose folder a path goes through; the longest one ("shell/servizi" before "shell").
const Stanza* stanzaDelPercorso(std::string_view percorso) {
    const Stanza* trovata = nullptr;
    for (const Stanza& stanza : stanze) {
        const std::string cartella = std::string(stanza.nome) + "/";
        if (inizia(percorso, cartella) && (trovata == nullptr || stanza.nome.size() > trovata->nome.size())) {
            trovata = &stanza;
        }
    }
    return trovata;
}

std::string_view libreriaDi(const std::string& intestazione) {
    for (const Libreria& libreria : librerie) {
        if (std::regex_match(intestazione, std::regex(std::string(libreria.intestazioni)))) {
            return libreria.nome;
        }
    }
    return {};
}

bool libreriaConcessa(const Stanza& stanza, std::string_view libreria, bool cpp) {
    return libreria == "standard" || libreria == "fmt" || contiene(stanza.librerie, libreria) ||
           (cpp && contiene(stanza.soloCpp, libreria));
}

/// The line of an include between angle brackets.
std::string esternoSbagliato(const Stanza& stanza, const std::string& intestazione, bool cpp) {
    const std::string_view libreria = libreriaDi(intestazione);
    if (!libreria.empty() && libreriaConcessa(stanza, libreria, cpp)) {
        return {};
    }
    return "<" + intestazione + "> is of " + (libreria.empty() ? "no known library" : std::string(libreria));
}

/// The line of an include between quotes.
std::string internoSbagliato(const Stanza& stanza, const std::string& intestazione,
                             const std::vector<std::string>& cartella) {
    const Stanza* altra = stanzaDelPercorso(intestazione);
    if (altra == nullptr || inizia(altra->nome, "apps/")) {
        const bool propria =
            inizia(stanza.nome, "apps/") && std::find(cartella.begin(), cartella.end(), intestazione) != cartella.end();
        return propria ? std::string{} : "\"" + intestazione + "\" is of no known room";
    }
    if (altra->nome == "base" || altra->nome == stanza.nome || contiene(stanza.stanze, altra->nome)) {
        return {};
    }
    return "\"" + intestazione + "\" is of the room " + std::string(altra->nome);
}

std::vector<std::string> parole(const std::string& testo) {
    const std::regex parola("[^\\s]+");
    std::vector<std::string> trovate;
    for (std::sregex_iterator i(testo.begin(), testo.end(), parola), fine; i != fine; ++i) {
        trovate.push_back(i->str());
    }
    return trovate;
}

/// A word that must not stand in the tree, in two pieces so that this file is not one that the search finds.
struct ParolaVietata {
    std::string_view inizio;
    std::string_view fine;  ///< regular expression
};

constexpr std::array vietateInPezzi{
    ParolaVietata{"\\b[Ss]p", "ecs?\\b"},
    ParolaVietata{"\\b[Ss]p", "ecifications?\\b"},
    ParolaVietata{"\\bas sp", "ecified\\b"},
    ParolaVietata{"\\bP", "arts? [0-9]+\\.[0-9]"},
    ParolaVietata{"\\bTO", "DO\\b"},
    ParolaVietata{"\\bFIX", "ME\\b"},
    ParolaVietata{"\\bXX", "X\\b"},
    ParolaVietata{"(^|[^A-Za-z0-9_./-])/(wo", "rk|root|home)/"},
    ParolaVietata{"/tm", "p/(kelvo-[A-Z]|brief)"},
    ParolaVietata{"DES", "IGN\\.md"},
    ParolaVietata{"TECHNICAL-", "NOTES"},
    ParolaVietata{"DOMAIN-", "FACTS"},
};

std::string espressioneVietata() {
    std::string tutte;
    for (const ParolaVietata& parola : vietateInPezzi) {
        tutte += (tutte.empty() ? "" : "|") + std::string(parola.inizio) + std::string(parola.fine);
    }
    return tutte;
}

}  // namespace

const Stanza* stanzaDi(std::string_view percorso) {
    if (inizia(percorso, "src/")) {
        percorso.remove_prefix(4);
        const Stanza* stanza = stanzaDelPercorso(percorso);
        return stanza != nullptr && !inizia(stanza->nome, "apps/") ? stanza : nullptr;
    }
    return inizia(percorso, "apps/") ? stanzaDelPercorso(percorso) : nullptr;
}

std::vector<std::string> estranei(std::string_view percorso, std::string_view testo,
                                  const std::vector<std::string>& cartella) {
    const Stanza* stanza = stanzaDi(percorso);
    if (stanza == nullptr) {
        return {"the file is in no known room"};
    }
    const bool cpp = percorso.size() > 4 && percorso.substr(percorso.size() - 4) == ".cpp";
    const std::regex inclusione("(?:^|\\n)[ \\t]*#[ \\t]*include[ \\t]*([<\"])([^>\"\\n]*)[>\"]");
    const std::string scritto(testo);
    std::vector<std::string> trovati;
    for (std::sregex_iterator i(scritto.begin(), scritto.end(), inclusione), fine; i != fine; ++i) {
        const std::string intestazione = (*i)[2].str();
        const std::string errore = (*i)[1].str() == "<" ? esternoSbagliato(*stanza, intestazione, cpp)
                                                        : internoSbagliato(*stanza, intestazione, cartella);
        if (!errore.empty()) {
            trovati.push_back(errore);
        }
    }
    return trovati;
}

std::vector<std::string> legamiEstranei(std::string_view testo) {
    const std::regex chiamata("kelvo_stanza\\(([^)]*)\\)");
    const std::set<std::string> altreVoci{"LIBRERIE", "LIBRERIE_PRIVATE"};
    const std::string scritto(testo);
    std::vector<std::string> trovati;
    for (std::sregex_iterator i(scritto.begin(), scritto.end(), chiamata), fine; i != fine; ++i) {
        const std::vector<std::string> voci = parole((*i)[1].str());
        const Stanza* stanza = voci.empty() ? nullptr : stanzaDi("src/" + voci.front() + "/");
        if (stanza == nullptr || stanza->nome != voci.front()) {
            trovati.push_back((*i)[0].str() + ": no known room");
            continue;
        }
        bool usa = false;
        for (std::size_t v = 1; v < voci.size(); ++v) {
            if (voci[v] == "USA" || altreVoci.count(voci[v]) != 0) {
                usa = voci[v] == "USA";
            } else if (usa && voci[v] != "base" && !contiene(stanza->stanze, voci[v])) {
                trovati.push_back(std::string(stanza->nome) + " links " + voci[v]);
            }
        }
    }
    return trovati;
}

std::vector<std::string> opzioniSbagliate(std::string_view comando) {
    constexpr std::array<std::string_view, 7> vietate{
        "-ffast-math",        "-Ofast",           "-ffp-contract=fast", "-ffp-contract=on", "-ffinite-math-only",
        "-fassociative-math", "-freciprocal-math"};
    bool contrazioneSpenta = false;
    std::vector<std::string> trovate;
    for (const std::string& opzione : parole(std::string(comando))) {
        contrazioneSpenta = contrazioneSpenta || opzione == "-ffp-contract=off";
        if (inizia(opzione, "-funsafe") || std::find(vietate.begin(), vietate.end(), opzione) != vietate.end()) {
            trovate.push_back(opzione);
        }
    }
    if (!contrazioneSpenta) {
        trovate.push_back("-ffp-contract=off is missing");
    }
    return trovate;
}

std::vector<std::string> paroleVietate(std::string_view testo) {
    static const std::regex vietate(espressioneVietata());
    std::vector<std::string> trovate;
    int numero = 0;
    std::size_t inizio = 0;
    while (inizio < testo.size()) {
        const std::size_t fine = std::min(testo.find('\n', inizio), testo.size());
        const std::string riga(testo.substr(inizio, fine - inizio));
        ++numero;
        std::smatch trovata;
        if (std::regex_search(riga, trovata, vietate)) {
            trovate.push_back(std::to_string(numero) + ": " + trovata.str());
        }
        inizio = fine + 1;
    }
    return trovate;
}

std::vector<std::string> fileDelDeposito() {
    const std::set<std::string> saltate{"build", ".git", "uscita", ".cache", ".vscode", ".idea"};
    const fs::path radice = KELVO_SORGENTI;
    std::vector<std::string> trovati;
    for (auto i = fs::recursive_directory_iterator(radice); i != fs::recursive_directory_iterator(); ++i) {
        if (saltate.count(i->path().filename().string()) != 0) {
            i.disable_recursion_pending();
        } else if (i->is_regular_file()) {
            trovati.push_back(i->path().lexically_relative(radice).generic_string());
        }
    }
    std::sort(trovati.begin(), trovati.end());
    return trovati;
}

std::string testoDelDeposito(const std::string& percorso) {
    std::ifstream flusso(fs::path(KELVO_SORGENTI) / percorso, std::ios::binary);
    std::string testo{std::istreambuf_iterator<char>(flusso), std::istreambuf_iterator<char>()};
    return testo.find('\0') == std::string::npos ? testo : std::string{};
}

}  // namespace kelvo::prove
