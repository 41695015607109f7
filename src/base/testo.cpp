#include "base/testo.h"

#include <utf8.h>

#include <iterator>

namespace kelvo {

namespace {

/// Start of the character that ends before `fine`.
const char* caratterePrecedente(const char* inizio, const char* fine) {
    const char* p = fine - 1;
    while (p > inizio && (static_cast<unsigned char>(*p) & 0xC0U) == 0x80U) {
        --p;
    }
    // A stray continuation byte stands for itself.
    const auto passo = static_cast<std::size_t>(fine - p);
    return utf8::is_valid(p, fine) && lunghezza({p, passo}) == 1 ? p : fine - 1;
}

std::size_t inizioUltimi(std::string_view testo, std::size_t quanti) {
    const char* p = testo.data() + testo.size();
    for (std::size_t i = 0; i < quanti && p > testo.data(); ++i) {
        p = caratterePrecedente(testo.data(), p);
    }
    return static_cast<std::size_t>(p - testo.data());
}

}  // namespace

std::size_t lunghezza(std::string_view testo) {
    std::size_t conto = 0;
    const char* p = testo.data();
    const char* fine = p + testo.size();
    while (p < fine) {
        const char* valido = utf8::find_invalid(p, fine);
        conto += static_cast<std::size_t>(utf8::unchecked::distance(p, valido));
        if (valido < fine) {
            ++conto;
            ++valido;
        }
        p = valido;
    }
    return conto;
}

std::string ultimiCaratteri(std::string_view testo, std::size_t quanti) {
    return std::string{testo.substr(inizioUltimi(testo, quanti))};
}

std::string senzaUltimi(std::string_view testo, std::size_t quanti) {
    return std::string{testo.substr(0, inizioUltimi(testo, quanti))};
}

std::string accorciato(std::string_view testo, std::size_t quanti) {
    constexpr unsigned maschera = 0xC0;
    constexpr unsigned seguito = 0x80;
    std::size_t fine = 0;
    for (std::size_t presi = 0; fine < testo.size(); ++fine) {
        const bool nuovo = (static_cast<unsigned char>(testo[fine]) & maschera) != seguito;
        if (nuovo && presi++ == quanti) {
            return std::string{testo.substr(0, fine)} + "…";
        }
    }
    return std::string{testo};
}

std::size_t parteValida(std::string_view testo) {
    const char* const inizio = testo.data();
    return static_cast<std::size_t>(utf8::find_invalid(inizio, inizio + testo.size()) - inizio);
}

std::string utf8Valido(std::string_view testo) {
    std::string valido;
    utf8::replace_invalid(testo.begin(), testo.end(), std::back_inserter(valido));
    return valido;
}

std::vector<std::string> caratteri(std::string_view testo) {
    const std::string valido = utf8Valido(testo);
    std::vector<std::string> trovati;
    for (auto p = valido.begin(); p != valido.end();) {
        const auto inizio = p;
        utf8::next(p, valido.end());
        trovati.emplace_back(inizio, p);
    }
    return trovati;
}

std::string_view rifila(std::string_view testo) {
    constexpr std::string_view bianchi = " \t";
    const auto inizio = testo.find_first_not_of(bianchi);
    if (inizio == std::string_view::npos) {
        return {};
    }
    return testo.substr(inizio, testo.find_last_not_of(bianchi) - inizio + 1);
}

std::string maiuscoleAscii(std::string_view testo) {
    std::string grande{testo};
    for (char& c : grande) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        }
    }
    return grande;
}

}  // namespace kelvo
