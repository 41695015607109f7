#include "input/sceltaCSV.h"

#include <algorithm>
#include <charconv>

#include "base/testo.h"
#include "shell/servizi/incolla.h"

namespace kelvo {

namespace {

constexpr const char* applicazione = "Kelvo";
constexpr const char* sezione = "ImportaCSV";

bool haCifre(std::string_view testo) {
    return testo.find_first_of("0123456789") != std::string_view::npos;
}

/// A figure, or what is meant for one: a time of day, a date.
bool cifra(std::string_view testo) {
    const bool soliSegni = testo.find_first_not_of("0123456789+-.,:/%' ") == std::string_view::npos;
    return haCifre(testo) && soliSegni;
}

/// "1,234" and the like: one comma, three digits behind it and one to three before it, the first of them no 0.
bool migliaiaInglesi(std::string_view testo) {
    constexpr std::size_t gruppo = 3;
    if (!testo.empty() && (testo.front() == '-' || testo.front() == '+')) {
        testo.remove_prefix(1);
    }
    const std::size_t virgola = testo.find(',');
    if (virgola == 0 || virgola > gruppo || testo.size() != virgola + 1 + gruppo || testo.front() == '0') {
        return false;
    }
    const auto cifre = [](std::string_view parte) {
        return parte.find_first_not_of("0123456789") == std::string_view::npos;
    };
    return cifre(testo.substr(0, virgola)) && cifre(testo.substr(virgola + 1));
}

const std::string& cella(const std::vector<std::string>& riga, std::size_t colonna) {
    static const std::string vuota;
    return colonna < riga.size() ? riga[colonna] : vuota;
}

/// The rows below the headings are named by the first column: it holds no number.
bool colonnaDiNomi(const RigheCSV& righe, bool intestazioni) {
    bool nomi = false;
    for (std::size_t r = intestazioni ? 1 : 0; r < righe.size(); ++r) {
        const std::string& testo = cella(righe[r], 0);
        const LetturaCSV letta = leggiCellaCSV(testo);
        if (!testo.empty() && (letta.numero || letta.ambigua)) {
            return false;
        }
        nomi = nomi || !testo.empty();
    }
    return nomi;
}

bool uguali(std::string_view a, std::string_view b) {
    return !rifila(a).empty() && maiuscoleAscii(rifila(a)) == maiuscoleAscii(rifila(b));
}

bool conosciuta(const ColonnaCSV& colonna, std::string_view intestazione) {
    return uguali(colonna.titolo, intestazione) ||
           std::any_of(colonna.altri.begin(), colonna.altri.end(),
                       [&](const std::string& altro) { return uguali(altro, intestazione); });
}

/// Headings joined by tabs, which no cell holds; the number of columns where there are none.
std::string firma(const RigheCSV& righe, bool intestazioni) {
    if (!intestazioni || righe.empty()) {
        return std::to_string(colonneCSV(righe));
    }
    std::string unite;
    for (const std::string& testo : righe.front()) {
        unite += testo + '\t';
    }
    return unite;
}

std::vector<int> numeri(std::string_view testo) {
    std::vector<int> letti;
    while (!testo.empty()) {
        const auto fine = std::min(testo.find(' '), testo.size());
        int numero = 0;
        if (std::from_chars(testo.data(), testo.data() + fine, numero).ec != std::errc{}) {
            return {};
        }
        letti.push_back(numero);
        testo.remove_prefix(std::min(fine + 1, testo.size()));
    }
    return letti;
}

}  // namespace

std::string testoBreveCSV(std::string_view testo) {
    return accorciato(testo, caratteriMostratiCSV);
}

bool primaRigaDiTesti(const RigheCSV& righe) {
    if (righe.empty()) {
        return false;
    }
    const std::vector<std::string>& prima = righe.front();
    const std::size_t da = prima.size() > 1 ? 1 : 0;
    const bool testi = std::any_of(prima.begin(), prima.end(), [](const std::string& t) { return !t.empty(); });
    return testi && std::none_of(prima.begin() + static_cast<std::ptrdiff_t>(da), prima.end(),
                                 [](const std::string& testo) { return cifra(testo); });
}

std::vector<int> colonneProposte(const RigheCSV& righe, bool intestazioni, const std::vector<ColonnaCSV>& colonne) {
    std::vector<int> scelte(colonne.size(), -1);
    const std::size_t quante = colonneCSV(righe);
    bool perNome = false;
    for (std::size_t i = 0; intestazioni && !righe.empty() && i < colonne.size(); ++i) {
        for (std::size_t c = 0; c < righe.front().size() && scelte[i] < 0; ++c) {
            const bool libera = std::find(scelte.begin(), scelte.end(), static_cast<int>(c)) == scelte.end();
            if (libera && conosciuta(colonne[i], righe.front()[c])) {
                scelte[i] = static_cast<int>(c);
                perNome = true;
            }
        }
    }
    if (perNome) {
        return scelte;
    }
    const bool nomi = quante > 1 && (quante == colonne.size() + 1 || colonnaDiNomi(righe, intestazioni));
    for (std::size_t i = 0; i < colonne.size(); ++i) {
        const std::size_t c = i + (nomi ? 1 : 0);
        scelte[i] = c < quante ? static_cast<int>(c) : -1;
    }
    return scelte;
}

std::vector<int> colonneRiproposte(const std::vector<int>& scelte, const std::vector<bool>& aMano,
                                   std::vector<int> proposte) {
    const std::size_t quante = std::min({scelte.size(), aMano.size(), proposte.size()});
    for (std::size_t i = 0; i < quante; ++i) {
        if (aMano[i]) {
            std::replace(proposte.begin(), proposte.end(), scelte[i], -1);
        }
    }
    for (std::size_t i = 0; i < quante; ++i) {
        proposte[i] = aMano[i] ? scelte[i] : proposte[i];
    }
    return proposte;
}

LetturaCSV leggiCellaCSV(std::string_view testo, SeparatoreCSV separatore) {
    if (separatore == SeparatoreCSV::virgola && migliaiaInglesi(rifila(testo))) {
        return {.numero = std::nullopt, .ambigua = true};
    }
    const std::optional<double> numero = numeroIncollato(testo);
    const bool soliSegni = rifila(testo).find_first_not_of("0123456789+-.,") == std::string_view::npos;
    // One point with three digits behind it: thousands or decimals.
    const bool unPunto = std::count(testo.begin(), testo.end(), '.') == 1 && testo.find(',') == std::string_view::npos;
    return {.numero = numero, .ambigua = !numero && soliSegni && unPunto && haCifre(testo)};
}

std::string MemoriaCSV::leggi(const std::string& chiave) const {
    return impostazioni_ == nullptr ? std::string{} : impostazioni_->leggi(applicazione, sezione, chiave);
}

void MemoriaCSV::scrivi(const std::string& chiave, const std::string& valore) {
    if (impostazioni_ != nullptr) {
        impostazioni_->scrivi(applicazione, sezione, chiave, valore);
    }
}

std::optional<SceltaCSV> MemoriaCSV::adatta(std::string_view testo, std::size_t colonneTabella) const {
    const std::vector<int> letti = numeri(leggi(tipo_ + "Colonne"));
    const std::vector<int> forma = numeri(leggi(tipo_ + "Forma"));
    if (letti.size() != colonneTabella || forma.size() != 2 || forma[0] < 0 ||
        static_cast<std::size_t>(forma[0]) >= vociSeparatoreCSV.size()) {
        return std::nullopt;
    }
    SceltaCSV scelta{.separatore = vociSeparatoreCSV.at(static_cast<std::size_t>(forma[0])).separatore,
                     .intestazioni = forma[1] != 0,
                     .colonne = letti};
    const CelleCSV celle = celleCSV(testo, scelta.separatore);
    const auto quante = static_cast<int>(colonneCSV(celle.righe));
    const bool dentro =
        std::all_of(letti.begin(), letti.end(), [quante](int colonna) { return colonna >= -1 && colonna < quante; });
    // Where there were no headings, a file that has them is another one.
    const bool stessa = celle.errore.empty() && !celle.righe.empty() &&
                        (scelta.intestazioni || !primaRigaDiTesti(celle.righe)) &&
                        firma(celle.righe, scelta.intestazioni) == leggi(tipo_ + "Firma");
    return dentro && stessa ? std::optional{scelta} : std::nullopt;
}

void MemoriaCSV::ricorda(const SceltaCSV& scelta, const RigheCSV& righe) {
    std::string colonne;
    for (const int colonna : scelta.colonne) {
        colonne += (colonne.empty() ? "" : " ") + std::to_string(colonna);
    }
    scrivi(tipo_ + "Colonne", colonne);
    scrivi(tipo_ + "Forma", std::to_string(static_cast<int>(scelta.separatore)) + (scelta.intestazioni ? " 1" : " 0"));
    scrivi(tipo_ + "Firma", firma(righe, scelta.intestazioni));
}

std::string MemoriaCSV::cartella() const {
    return leggi("Cartella");
}

void MemoriaCSV::cartella(const std::string& valore) {
    scrivi("Cartella", valore);
}

}  // namespace kelvo
