#include "base/numeri.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>

#include "base/guasto.h"

namespace kelvo {

namespace {

/// A decimal number 0,d1 d2 d3 ... x 10^punto without leading zeros; no digits at all is 0.
struct Decimale {
    bool negativo = false;
    std::string cifre;
    int punto = 0;

    void togliZeriFinali() {
        while (!cifre.empty() && cifre.back() == '0') {
            cifre.pop_back();
        }
        if (cifre.empty()) {
            punto = 0;
        }
    }

    /// Rounds half away from zero to `decimali` digits behind the point.
    void arrotonda(int decimali) {
        const int tenute = punto + decimali;
        if (tenute >= static_cast<int>(cifre.size())) {
            return;
        }
        if (tenute < 0) {
            cifre.clear();
            punto = 0;
            return;
        }
        const auto taglio = static_cast<std::size_t>(tenute);
        const bool su = cifre[taglio] >= '5';
        cifre.resize(taglio);
        if (su) {
            aumentaUltima();
        }
        togliZeriFinali();
    }

    std::string intera() const {
        if (punto <= 0) {
            return "0";
        }
        std::string testo = cifre.substr(0, static_cast<std::size_t>(punto));
        testo.resize(static_cast<std::size_t>(punto), '0');
        return testo;
    }

    std::string frazione() const {
        if (punto >= static_cast<int>(cifre.size())) {
            return {};
        }
        if (punto >= 0) {
            return cifre.substr(static_cast<std::size_t>(punto));
        }
        return std::string(static_cast<std::size_t>(-punto), '0') + cifre;
    }

private:
    void aumentaUltima() {
        while (!cifre.empty() && cifre.back() == '9') {
            cifre.pop_back();
        }
        if (cifre.empty()) {
            cifre = "1";
            ++punto;
        } else {
            ++cifre.back();
        }
    }
};

template <class T>
Decimale decimale(T valore, int cifreSignificative) {
    if (!std::isfinite(valore)) {
        throw Guasto(NumeroGuasto::overflow);
    }
    std::array<char, 32> testo{};
    const auto esito = std::to_chars(testo.data(), testo.data() + testo.size(), std::fabs(valore),
                                     std::chars_format::scientific, cifreSignificative - 1);
    const std::string_view scritto(testo.data(), static_cast<std::size_t>(esito.ptr - testo.data()));
    const auto posizioneE = scritto.find('e');
    Decimale d;
    for (const char c : scritto.substr(0, posizioneE)) {
        if (c != '.') {
            d.cifre.push_back(c);
        }
    }
    std::string_view esponente = scritto.substr(posizioneE + 1);
    if (esponente.front() == '+') {
        esponente.remove_prefix(1);
    }
    std::from_chars(esponente.data(), esponente.data() + esponente.size(), d.punto);
    ++d.punto;
    d.negativo = std::signbit(valore);
    d.togliZeriFinali();
    return d;
}

std::string testoSemplice(const Decimale& d) {
    std::string testo;
    if (d.negativo && !d.cifre.empty()) {
        testo.push_back('-');
    }
    testo.append(d.intera());
    const std::string frazione = d.frazione();
    if (!frazione.empty()) {
        testo.append(",").append(frazione);
    }
    return testo;
}

std::string sotto(Decimale d, const Formato& formato) {
    if (formato.percento && !d.cifre.empty()) {
        d.punto += 2;
    }
    d.arrotonda(formato.decimali);
    std::string testo;
    if (d.negativo && !d.cifre.empty()) {
        testo.push_back('-');
    } else if (formato.segno) {
        testo.push_back('+');
    }
    testo.append(d.intera());
    if (formato.decimali > 0) {
        std::string frazione = d.frazione();
        frazione.resize(static_cast<std::size_t>(formato.decimali), '0');
        testo.append(",").append(frazione);
    }
    if (formato.percento) {
        testo.push_back('%');
    }
    return testo;
}

constexpr int cifreSingolo = 7;
constexpr int cifreDoppio = 15;

std::string_view senzaBianchi(std::string_view testo) {
    constexpr std::string_view bianchi = " \t\r\n";
    const auto inizio = testo.find_first_not_of(bianchi);
    if (inizio == std::string_view::npos) {
        return {};
    }
    return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

/// The text with a point as its separator, or nothing if it is no number.
std::optional<std::string> normalizza(std::string_view testo, Separatore separatore) {
    testo = senzaBianchi(testo);
    std::string normale;
    if (!testo.empty() && (testo.front() == '-' || testo.front() == '+')) {
        if (testo.front() == '-') {
            normale.push_back('-');
        }
        testo.remove_prefix(1);
    }
    bool cifra = false;
    bool virgola = false;
    for (const char c : testo) {
        if (c >= '0' && c <= '9') {
            cifra = true;
            normale.push_back(c);
        } else if ((c == ',' || (c == '.' && separatore == Separatore::virgolaOPunto)) && !virgola) {
            virgola = true;
            normale.push_back('.');
        } else {
            return std::nullopt;
        }
    }
    if (!cifra) {
        return std::nullopt;
    }
    return normale;
}

template <class T>
std::optional<T> leggi(std::string_view testo, Separatore separatore) {
    const auto normale = normalizza(testo, separatore);
    if (!normale) {
        return std::nullopt;
    }
    T valore{};
    const char* fine = normale->data() + normale->size();
    const auto esito = std::from_chars(normale->data(), fine, valore);
    if (esito.ec == std::errc::result_out_of_range) {
        // Too small reads as 0, too large is no number.
        const bool piccolo = normale->find_first_of("123456789") > normale->find('.');
        return piccolo ? std::optional<T>(T{0}) : std::nullopt;
    }
    if (esito.ec != std::errc{} || esito.ptr != fine) {
        return std::nullopt;
    }
    return valore + T{0};  // -0 reads as 0
}

}  // namespace

std::string testoNumero(float valore) {
    return testoSemplice(decimale(valore, cifreSingolo));
}

std::string testoNumero(double valore) {
    return testoSemplice(decimale(valore, cifreDoppio));
}

std::string testoNumero(int valore) {
    return std::to_string(valore);
}

std::string formatta(float valore, Formato formato) {
    return sotto(decimale(valore, cifreSingolo), formato);
}

std::string formatta(double valore, Formato formato) {
    return sotto(decimale(valore, cifreDoppio), formato);
}

std::optional<double> leggiNumero(std::string_view testo, Separatore separatore) {
    return leggi<double>(testo, separatore);
}

std::optional<float> leggiSingolo(std::string_view testo, Separatore separatore) {
    return leggi<float>(testo, separatore);
}

std::string testoEsatto(float valore) {
    std::string testo = fmt::format("{}", valore);
    double riletto = 0.0;
    std::from_chars(testo.data(), testo.data() + testo.size(), riletto);
    if (static_cast<float>(riletto) != valore) {
        // The shortest digits of a single may round the other way when they pass through a double.
        testo = fmt::format("{}", static_cast<double>(valore));
    }
    return testo;
}

std::string testoEsatto(double valore) {
    return fmt::format("{}", valore);
}

}  // namespace kelvo
