#include "input/fileCSV.h"

#include <csv.h>

#include <algorithm>
#include <map>
#include <utility>

#include "base/file.h"
#include "base/testo.h"
#include "shell/servizi/incolla.h"

namespace kelvo {

namespace {

constexpr std::string_view segnoUtf8 = "\xEF\xBB\xBF";
constexpr unsigned char primoAlto = 0x80;
constexpr unsigned char primoLatino = 0xA0;
/// U+FFFD, for the five bytes that mean nothing.
constexpr char32_t sostituto = 0xFFFD;

/// Windows-1252 from 0x80 to 0x9F; from 0xA0 on a byte is its own code point.
constexpr std::array<char32_t, primoLatino - primoAlto> alti{
    0x20AC, sostituto, 0x201A,    0x0192, 0x201E,    0x2026,    0x2020, 0x2021,    0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152,    sostituto, 0x017D, sostituto, sostituto, 0x2018, 0x2019,    0x201C, 0x201D, 0x2022,
    0x2013, 0x2014,    0x02DC,    0x2122, 0x0161,    0x203A,    0x0153, sostituto, 0x017E, 0x0178};

/// A code point from U+0080 to U+FFFF.
void aggiungi(std::string& testo, char32_t punto) {
    constexpr char32_t dueByte = 0x800;
    constexpr unsigned seiBit = 6;
    constexpr char32_t maschera = 0x3F;
    if (punto < dueByte) {
        testo += static_cast<char>(0xC0U | (punto >> seiBit));
    } else {
        testo += static_cast<char>(0xE0U | (punto >> (2 * seiBit)));
        testo += static_cast<char>(0x80U | ((punto >> seiBit) & maschera));
    }
    testo += static_cast<char>(0x80U | (punto & maschera));
}

std::string daWindows1252(std::string_view byte) {
    std::string testo;
    testo.reserve(byte.size());
    for (const char c : byte) {
        const auto b = static_cast<unsigned char>(c);
        if (b < primoAlto) {
            testo += c;
        } else {
            aggiungi(testo, b < primoLatino ? alti[b - primoAlto] : static_cast<char32_t>(b));
        }
    }
    return testo;
}

bool inDueByte(std::string_view byte) {
    return byte.substr(0, 2) == "\xFF\xFE" || byte.substr(0, 2) == "\xFE\xFF";
}

/// The parser of the library and what it has told so far.
class Lettore {
public:
    explicit Lettore(char separatore) {
        // All ends of lines are told: an empty line is a row.
        csv_init(&parser_, CSV_REPALL_NL);
        csv_set_delim(&parser_, static_cast<unsigned char>(separatore));
    }
    ~Lettore() { csv_free(&parser_); }
    Lettore(const Lettore&) = delete;
    Lettore& operator=(const Lettore&) = delete;

    CelleCSV leggi(std::string_view testo) {
        passa(testo);
        const std::size_t prima = fini_;
        passa("\n");  // within quotes that were never closed it ends nothing
        if (errore_.empty() && fini_ == prima) {
            errore_ = "Il file non è un CSV leggibile: le virgolette aperte nella riga " +
                      std::to_string(righe_.size() + 1) + " non si chiudono.";
        }
        if (!errore_.empty()) {
            return {.righe = {}, .errore = errore_};
        }
        while (!righe_.empty() && righe_.back().empty()) {
            righe_.pop_back();
        }
        return {.righe = std::move(righe_), .errore = {}};
    }

private:
    void passa(std::string_view testo) {
        constexpr std::size_t blocco = 1U << 16U;
        while (!testo.empty() && errore_.empty()) {
            const std::string_view pezzo = testo.substr(0, blocco);
            if (csv_parse(&parser_, pezzo.data(), pezzo.size(), cella, fine, this) != pezzo.size()) {
                errore_ = "Il file non è un CSV leggibile: memoria insufficiente.";
            }
            testo.remove_prefix(pezzo.size());
        }
    }

    static void cella(void* dati, std::size_t lunghezza, void* lettore) {
        static_cast<Lettore*>(lettore)->aggiungiCella({static_cast<const char*>(dati), lunghezza});
    }
    static void fine(int carattere, void* lettore) { static_cast<Lettore*>(lettore)->chiudiRiga(carattere); }

    void aggiungiCella(std::string_view dati) {
        if (riga_.size() == limiteCSV::colonne) {
            errore_ = "Il file ha più di " + std::to_string(limiteCSV::colonne) +
                      " colonne: controllare il file e il separatore.";
        }
        if (errore_.empty()) {
            std::string testo{dati};
            std::replace_if(
                testo.begin(), testo.end(), [](char c) { return c == '\r' || c == '\n' || c == '\t'; }, ' ');
            riga_.emplace_back(rifila(testo));
        }
    }
    void chiudiRiga(int carattere) {
        ++fini_;
        const bool secondo = carattere == '\n' && ultimo_ == '\r' && riga_.empty();
        ultimo_ = secondo ? 0 : carattere;
        if (secondo || !errore_.empty()) {
            return;  // CR LF is one end
        }
        // The ends of lines behind the last row do not count: only a row with cells is one too many.
        if (righe_.size() >= limiteCSV::righe) {
            if (!riga_.empty()) {
                errore_ = "Il file ha più di " + std::to_string(limiteCSV::righe) + " righe.";
            }
            return;
        }
        righe_.push_back(std::exchange(riga_, {}));
    }

    csv_parser parser_{};
    RigheCSV righe_;
    std::vector<std::string> riga_;
    std::size_t fini_ = 0;
    int ultimo_ = 0;
    std::string errore_;
};

constexpr std::size_t righeEsaminate = 50;

/// The beginning of a text, whole rows where they are not too long.
std::string_view testa(std::string_view testo) {
    constexpr std::size_t massimo = 1U << 15U;
    if (testo.size() <= massimo) {
        return testo;
    }
    const auto fine = testo.find_last_of("\r\n", massimo);
    return testo.substr(0, fine == std::string_view::npos ? massimo : fine);
}

/// Share of the rows that have as many cells as most of them, where these are more than one.
double concordia(const RigheCSV& righe) {
    std::map<std::size_t, std::size_t> quante;
    std::size_t piene = 0;
    for (std::size_t i = 0; i < std::min(righe.size(), righeEsaminate); ++i) {
        if (!righe[i].empty()) {
            ++quante[righe[i].size()];
            ++piene;
        }
    }
    std::size_t migliore = 0;
    for (const auto& [celle, volte] : quante) {
        if (celle > 1) {
            migliore = std::max(migliore, volte);
        }
    }
    return piene == 0 ? 0.0 : static_cast<double>(migliore) / static_cast<double>(piene);
}

/// Every row is one number, or empty; the first may be a word.
bool unaColonnaDiNumeri(const RigheCSV& righe) {
    const auto numero = [](const std::vector<std::string>& riga) {
        return riga.empty() || (riga.size() == 1 && numeroIncollato(riga[0]).has_value());
    };
    const auto parola = [](const std::vector<std::string>& riga) {
        return riga.size() == 1 && riga[0].find(',') == std::string::npos;
    };
    return righe.size() > 1 && std::all_of(righe.begin() + 1, righe.end(), numero) &&
           (numero(righe[0]) || parola(righe[0]));
}

}  // namespace

TestoCSV testoCSV(std::string_view byte) {
    if (byte.size() > limiteCSV::byte) {
        return {.testo = {}, .errore = "Il file supera i 4 MiB."};
    }
    if (inDueByte(byte)) {
        return {.testo = {},
                .errore = "Il file è in formato Unicode a 16 bit: salvarlo come CSV UTF-8, oppure come CSV semplice."};
    }
    if (byte.find('\0') != std::string_view::npos) {
        return {.testo = {}, .errore = "Il file non è un file di testo."};
    }
    if (byte.substr(0, segnoUtf8.size()) == segnoUtf8) {
        byte.remove_prefix(segnoUtf8.size());
    }
    const bool utf8 = parteValida(byte) == byte.size();
    return {.testo = utf8 ? std::string{byte} : daWindows1252(byte), .daWindows1252 = !utf8, .errore = {}};
}

TestoCSV leggiTestoCSV(const std::string& percorso) {
    std::string byte;
    const std::string errore = leggiFile(percorso, limiteCSV::byte, byte);
    return errore.empty() ? testoCSV(byte) : TestoCSV{.testo = {}, .errore = "Impossibile leggere il file: " + errore};
}

CelleCSV celleCSV(std::string_view testo, SeparatoreCSV separatore) {
    return Lettore(vociSeparatoreCSV.at(static_cast<std::size_t>(separatore)).carattere).leggi(testo);
}

SeparatoreCSV separatoreProbabile(std::string_view testo) {
    const std::string_view inizio = testa(testo);
    SeparatoreCSV migliore = SeparatoreCSV::puntoEVirgola;
    double massima = 0.0;
    for (const SeparatoreCSV prova :
         {SeparatoreCSV::tabulazione, SeparatoreCSV::puntoEVirgola, SeparatoreCSV::virgola}) {
        const CelleCSV celle = celleCSV(inizio, prova);
        if (prova == SeparatoreCSV::puntoEVirgola && unaColonnaDiNumeri(celle.righe)) {
            return prova;
        }
        const double accordo = celle.errore.empty() ? concordia(celle.righe) : 0.0;
        if (accordo > massima) {
            massima = accordo;
            migliore = prova;
        }
    }
    return migliore;
}

std::size_t colonneCSV(const RigheCSV& righe) {
    std::size_t massime = 0;
    for (const std::vector<std::string>& riga : righe) {
        massime = std::max(massime, riga.size());
    }
    return massime;
}

}  // namespace kelvo
