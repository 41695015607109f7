#include "cad/scrittoreDxf.h"

#include <fmt/format.h>

#include <iterator>

namespace kelvo::dxf {

void Scrittore::apri(std::string_view sezione) {
    gruppo(0, "SECTION");
    gruppo(2, sezione);
}

void Scrittore::chiudi() {
    gruppo(0, "ENDSEC");
}

void Scrittore::gruppo(int codice, std::string_view valore) {
    fmt::format_to(std::back_inserter(testo_), "{:>3}\r\n{}\r\n", codice, valore);
}

void Scrittore::gruppo(int codice, int valore) {
    fmt::format_to(std::back_inserter(testo_), "{:>3}\r\n{}\r\n", codice, valore);
}

void Scrittore::gruppo(int codice, double valore, int decimali) {
    std::string numero = fmt::format("{:.{}f}", valore, decimali);
    numero.erase(numero.find_last_not_of('0') + 1);
    if (numero.back() == '.') {
        numero += '0';
    }
    gruppo(codice, numero == "-0.0" ? std::string_view{"0.0"} : std::string_view{numero});
}

void Scrittore::gruppo(int codice, Maniglia valore) {
    fmt::format_to(std::back_inserter(testo_), "{:>3}\r\n{:X}\r\n", codice, static_cast<unsigned>(valore));
}

void Scrittore::punto2d(int codice, Punto p) {
    gruppo(codice, p.x);
    gruppo(codice + 10, p.y);
}

void Scrittore::punto(int codice, Punto p) {
    punto2d(codice, p);
    gruppo(codice + 20, 0.0);
}

Maniglia Scrittore::nuova() {
    return static_cast<Maniglia>(libera_++);
}

}  // namespace kelvo::dxf
