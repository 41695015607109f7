#include "argomenti.h"

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <filesystem>
#include <system_error>
#include <vector>

#include "base/file.h"
#include "base/numeri.h"
#include "base/testo.h"

namespace kelvo::cli {

namespace {

std::vector<std::string_view> parti(std::string_view testo, char separatore) {
    std::vector<std::string_view> pezzi;
    for (;;) {
        const auto fine = testo.find(separatore);
        pezzi.push_back(testo.substr(0, fine));
        if (fine == std::string_view::npos) {
            return pezzi;
        }
        testo.remove_prefix(fine + 1);
    }
}

bool cifra(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

std::optional<std::int16_t> leggiIntero(std::string_view testo) {
    if (testo.empty() || !cifra(testo.front())) {
        return std::nullopt;
    }
    std::int16_t valore = 0;
    const auto [fine, errore] = std::from_chars(testo.data(), testo.data() + testo.size(), valore);
    if (errore != std::errc{} || fine != testo.data() + testo.size()) {
        return std::nullopt;
    }
    return valore;
}

std::optional<Geometria> leggiGeometria(std::string_view testo) {
    const bool italiano = testo.find(';') != std::string_view::npos;
    const std::vector<std::string_view> pezzi = parti(testo, italiano ? ';' : ',');
    std::array<float, 6> misure{};
    if (pezzi.size() != misure.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < misure.size(); ++i) {
        const auto misura = leggiSingolo(pezzi[i], Separatore::virgolaOPunto);
        if (!misura) {
            return std::nullopt;
        }
        misure[i] = *misura;
    }
    return Geometria{.e = misure[0], .v = misure[1], .l = misure[2], .phi = misure[3], .r = misure[4], .D = misure[5]};
}

std::optional<CorsieDestra> leggiCorsie(std::string_view testo) {
    CorsieDestra corsie{};
    for (const std::string_view pezzo : parti(testo, ',')) {
        const auto posizione = leggiIntero(pezzo);
        if (!posizione || *posizione < 1 || *posizione > static_cast<int>(corsie.size())) {
            return std::nullopt;
        }
        corsie[static_cast<std::size_t>(*posizione - 1)] = true;
    }
    return corsie;
}

CLI::Option* aggiungiIntero(CLI::App& comando, const std::string& nome, std::int16_t& valore, Estremi estremi,
                            const std::string& descrizione) {
    const auto leggi = [&valore, nome, estremi](const std::string& testo) {
        const auto letto = leggiIntero(testo);
        if (!letto || *letto < estremi.minimo || *letto > estremi.massimo) {
            throw CLI::ValidationError(nome, fmt::format("serve un numero intero da {} a {}, non {}", estremi.minimo,
                                                         estremi.massimo, citato(testo)));
        }
        valore = *letto;
    };
    return comando.add_option_function<std::string>(nome, leggi, descrizione)->type_name("N");
}

CLI::Option* aggiungiTesto(CLI::App& comando, const std::string& nome, std::string& valore,
                           const std::string& descrizione) {
    const auto leggi = [&valore, nome](const std::string& testo) {
        if (testo.empty()) {
            throw CLI::ValidationError(nome, "il testo è vuoto");
        }
        valore = testo;
    };
    return comando.add_option_function<std::string>(nome, leggi, descrizione);
}

bool stessoFile(const std::string& uno, const std::string& altro) {
    std::error_code errore;  // one that does not stand is not the other
    return std::filesystem::equivalent(percorsoDaTesto(uno), percorsoDaTesto(altro), errore);
}

std::string citato(std::string_view testo) {
    constexpr std::size_t massimo = 60;
    std::string valido = utf8Valido(testo);
    for (char& c : valido) {
        c = static_cast<unsigned char>(c) < ' ' ? ' ' : c;
    }
    const std::size_t lungo = lunghezza(valido);
    return lungo > massimo ? fmt::format("'{}...'", senzaUltimi(valido, lungo - massimo)) : fmt::format("'{}'", valido);
}

}  // namespace kelvo::cli
