#include "shell/servizi/incolla.h"

#include <algorithm>
#include <iterator>

#include "app/titoli.h"
#include "base/numeri.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr std::size_t cifreGruppo = 3;

/// "1.234.567": a first group of one to three digits, then groups of three.
bool migliaia(std::string_view intero, char separatore) {
    for (bool primo = true;; primo = false) {
        const std::size_t fine = std::min(intero.find(separatore), intero.size());
        if (primo ? fine == 0 || fine > cifreGruppo : fine != cifreGruppo) {
            return false;
        }
        if (fine == intero.size()) {
            return true;
        }
        intero.remove_prefix(fine + 1);
    }
}

/// The text without its groups, with a decimal comma; nothing where separators stand that could be misread.
std::optional<std::string> conVirgola(std::string_view cifre) {
    const auto virgole = std::count(cifre.begin(), cifre.end(), ',');
    const auto punti = std::count(cifre.begin(), cifre.end(), '.');
    if (punti == 0) {
        return virgole > 1 ? std::nullopt : std::optional{std::string{cifre}};
    }
    if (virgole == 0 && punti == 1) {
        const std::size_t dopo = cifre.size() - cifre.find('.') - 1;
        if (dopo == cifreGruppo && migliaia(cifre, '.') && cifre.front() != '0') {
            return std::nullopt;
        }
        std::string testo{cifre};
        std::replace(testo.begin(), testo.end(), '.', ',');
        return testo;
    }
    const char decimale = virgole == 0 ? '\0' : cifre[cifre.find_last_of(",.")];
    const char gruppi = decimale == '.' ? ',' : '.';
    const std::size_t taglio = decimale == '\0' ? cifre.size() : cifre.find_last_of(decimale);
    const std::string_view intero = cifre.substr(0, taglio);
    if (!migliaia(intero, gruppi) || (decimale == '.' ? punti : virgole) > 1) {
        return std::nullopt;
    }
    std::string testo;
    std::copy_if(intero.begin(), intero.end(), std::back_inserter(testo), [&](char c) { return c != gruppi; });
    return taglio == cifre.size() ? testo : testo + ',' + std::string{cifre.substr(taglio + 1)};
}

}  // namespace

std::optional<double> numeroIncollato(std::string_view testo) {
    std::string_view cifre = rifila(testo);
    if (cifre.empty() || cifre == ",") {
        return 0.0;
    }
    std::string segno;
    if (cifre.front() == '-' || cifre.front() == '+') {
        segno = cifre.front() == '-' ? "-" : "";
        cifre.remove_prefix(1);
    }
    const auto pulito = conVirgola(cifre);
    return pulito && !pulito->empty() ? leggiNumero(segno + *pulito) : std::nullopt;
}

std::string_view motivoNonNumero(std::string_view testo) {
    return leggiNumero(rifila(testo), Separatore::virgolaOPunto)
               ? "si può leggere in due modi, con i decimali o con le migliaia"
               : "non è un numero";
}

EsitoUscita rifiutoBlocco(const Griglia& griglia, const TestoCella& cella, std::string_view motivo) {
    const std::string testo = "Il testo '" + cella.testo + "' (riga '" + griglia.testo(cella.posto.riga, 0) +
                              "', colonna '" + griglia.testo(0, cella.posto.colonna) + "') " + std::string{motivo} +
                              ": non è stato incollato nulla.";
    EsitoUscita esito;
    esito.accettato = false;
    esito.messaggio = MessaggioCampo{.testo = testo, .titolo = titoli::attenzione, .icona = Icona::esclamazione};
    return esito;
}

}  // namespace kelvo
