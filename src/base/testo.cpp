#include "base/testo.h"

#include <utf8.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace kelvo {

namespace {

constexpr std::array<std::pair<char, std::string_view>, 5> entitaHtml{
    {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}}};

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

std::string testoHtml(std::string_view testo) {
    std::string html;
    for (const char c : utf8Valido(testo)) {
        const auto* const entita =
            std::find_if(entitaHtml.begin(), entitaHtml.end(), [c](const auto& e) { return e.first == c; });
        if (entita == entitaHtml.end()) {
            html += c;
        } else {
            html += entita->second;
        }
    }
    return html;
}

std::string htmlInTesto(std::string_view html) {
    std::string testo;
    while (!html.empty()) {
        const auto* const entita = std::find_if(entitaHtml.begin(), entitaHtml.end(), [&](const auto& e) {
            return html.substr(0, e.second.size()) == e.second;
        });
        testo += entita == entitaHtml.end() ? html.front() : entita->first;
        html.remove_prefix(entita == entitaHtml.end() ? 1 : entita->second.size());
    }
    return testo;
}

std::string codificaPercento(std::string_view testo) {
    constexpr std::string_view cifre = "0123456789ABCDEF";
    constexpr std::string_view liberi = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~";
    std::string codificato;
    for (const char c : testo) {
        const auto byte = static_cast<unsigned char>(c);
        if (liberi.find(c) != std::string_view::npos) {
            codificato += c;
        } else {
            codificato += {'%', cifre[byte >> 4U], cifre[byte & 0xFU]};
        }
    }
    return codificato;
}

}  // namespace kelvo
