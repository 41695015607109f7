#include "base/date.h"

#include <fmt/format.h>

#include <charconv>
#include <chrono>
#include <cmath>
#include <ctime>

#include "base/guasto.h"

namespace kelvo {

namespace {

constexpr std::int64_t secondiAlGiorno = 86400;
constexpr double primoGiorno = -657434.0;  // 1 January 100
constexpr double fineGiorni = 2958466.0;   // 1 January 10000, no date any more

std::chrono::sys_days giornoZero() {
    return std::chrono::year{1899} / std::chrono::December / 30;
}

std::int64_t parteIntera(std::int64_t dividendo, std::int64_t divisore) {
    const std::int64_t quoziente = dividendo / divisore;
    return (dividendo % divisore < 0) ? quoziente - 1 : quoziente;
}

/// Whole seconds from the day 0; nothing outside the calendar.
std::optional<std::int64_t> secondiNelCalendario(DataOra data) {
    // The rounded date must lie in the calendar: the last half second of the year 9999 does not.
    const double secondi = std::round(data * static_cast<double>(secondiAlGiorno));
    if (!(secondi >= primoGiorno * secondiAlGiorno && secondi < fineGiorni * secondiAlGiorno)) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(secondi);
}

/// Reads exactly `cifre` digits at the start of `testo` and drops them.
std::optional<int> cifre(std::string_view& testo, std::size_t quante) {
    if (testo.size() < quante) {
        return std::nullopt;
    }
    int valore = 0;
    for (std::size_t i = 0; i < quante; ++i) {
        const char c = testo[i];
        if (c < '0' || c > '9') {
            return std::nullopt;
        }
        valore = valore * 10 + (c - '0');
    }
    testo.remove_prefix(quante);
    return valore;
}

bool segno(std::string_view& testo, char atteso) {
    if (testo.empty() || testo.front() != atteso) {
        return false;
    }
    testo.remove_prefix(1);
    return true;
}

std::tm oraLocale() {
    const std::time_t istante = std::time(nullptr);
    // The program has one thread; std::localtime is the portable call.
    return *std::localtime(&istante);  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace

DataOra oraDelGiorno(int ora, int minuto, int secondo) {
    const std::int64_t secondi = std::int64_t{ora} * 3600 + std::int64_t{minuto} * 60 + secondo;
    return static_cast<double>(secondi) / static_cast<double>(secondiAlGiorno);
}

DataOra giornoCalendario(int anno, int mese, int giorno) {
    const std::chrono::year_month_day data{std::chrono::year{anno}, std::chrono::month{static_cast<unsigned>(mese)},
                                           std::chrono::day{static_cast<unsigned>(giorno)}};
    return static_cast<double>((std::chrono::sys_days{data} - giornoZero()).count());
}

DataOra adesso() {
    const std::tm t = oraLocale();
    return giornoCalendario(t.tm_year + 1900, t.tm_mon + 1, t.tm_mday) + oraDelGiorno(t.tm_hour, t.tm_min, t.tm_sec);
}

DataOra oggi() {
    const std::tm t = oraLocale();
    return giornoCalendario(t.tm_year + 1900, t.tm_mon + 1, t.tm_mday);
}

std::int64_t secondiDi(DataOra data) {
    const auto secondi = secondiNelCalendario(data);
    if (!secondi) {
        throw Guasto(NumeroGuasto::overflow, "data fuori dal calendario");
    }
    return *secondi;
}

DataOra alSecondo(DataOra data) {
    const auto secondi = secondiNelCalendario(data);
    return secondi ? static_cast<double>(*secondi) / static_cast<double>(secondiAlGiorno) : data;
}

PartiData partiDi(DataOra data) {
    const std::int64_t secondi = secondiDi(data);
    const std::int64_t giorni = parteIntera(secondi, secondiAlGiorno);
    const auto resto = static_cast<int>(secondi - giorni * secondiAlGiorno);
    const std::chrono::year_month_day giorno{giornoZero() + std::chrono::days{giorni}};
    return {.anno = static_cast<int>(giorno.year()),
            .mese = static_cast<int>(static_cast<unsigned>(giorno.month())),
            .giorno = static_cast<int>(static_cast<unsigned>(giorno.day())),
            .ora = resto / 3600,
            .minuto = resto / 60 % 60,
            .secondo = resto % 60};
}

std::int64_t minutiTra(DataOra da, DataOra a) {
    return parteIntera(secondiDi(a), 60) - parteIntera(secondiDi(da), 60);
}

int minutoCampo(DataOra data) {
    return partiDi(data).minuto;
}

std::int16_t segmentiTra(DataOra da, DataOra a, int minuti, int aggiunta) {
    const auto durata = static_cast<double>(minutiTra(da, a));
    const double quoziente = dividi(durata, minuti, [] { return "segmento di tempo di 0 minuti"; });
    return aIntero16(arrotondaPari(quoziente + aggiunta), [] { return "numero di segmenti di tempo"; });
}

std::string testoHHNN(DataOra data) {
    const PartiData p = partiDi(data);
    return fmt::format("{:02}:{:02}", p.ora, p.minuto);
}

std::string testoData(DataOra data) {
    const PartiData p = partiDi(data);
    return fmt::format("{:02}/{:02}/{:04}", p.giorno, p.mese, p.anno);
}

std::string testoDataOra(DataOra data) {
    const PartiData p = partiDi(data);
    return fmt::format("{:02}/{:02}/{:04} {:02}:{:02}:{:02}", p.giorno, p.mese, p.anno, p.ora, p.minuto, p.secondo);
}

std::string testoIsoGiorno(DataOra data) {
    const PartiData p = partiDi(data);
    return fmt::format("{:04}-{:02}-{:02}", p.anno, p.mese, p.giorno);
}

std::string testoIsoOra(DataOra data) {
    const std::int64_t secondi = secondiDi(data);
    const std::int64_t assoluti = std::abs(secondi);
    std::string testo = fmt::format("{}{:02}:{:02}", secondi < 0 ? "-" : "", assoluti / 3600, assoluti / 60 % 60);
    if (assoluti % 60 != 0) {
        testo += fmt::format(":{:02}", assoluti % 60);
    }
    return testo;
}

std::optional<DataOra> leggiIsoGiorno(std::string_view testo) {
    const auto anno = cifre(testo, 4);
    if (!anno || *anno < 100 || !segno(testo, '-')) {
        return std::nullopt;
    }
    const auto mese = cifre(testo, 2);
    if (!mese || !segno(testo, '-')) {
        return std::nullopt;
    }
    const auto giorno = cifre(testo, 2);
    if (!giorno || !testo.empty()) {
        return std::nullopt;
    }
    const std::chrono::year_month_day data{std::chrono::year{*anno}, std::chrono::month{static_cast<unsigned>(*mese)},
                                           std::chrono::day{static_cast<unsigned>(*giorno)}};
    if (!data.ok()) {
        return std::nullopt;
    }
    return giornoCalendario(*anno, *mese, *giorno);
}

std::optional<DataOra> leggiHHNN(std::string_view testo) {
    constexpr std::size_t lunga = 5;
    const auto ora = testo.size() == lunga ? leggiIsoOra(testo) : std::nullopt;
    return ora && *ora >= 0.0 && *ora < 1.0 ? ora : std::nullopt;
}

std::optional<DataOra> leggiData(std::string_view testo) {
    const auto giorno = cifre(testo, 2);
    if (!giorno || !segno(testo, '/')) {
        return std::nullopt;
    }
    const auto mese = cifre(testo, 2);
    if (!mese || !segno(testo, '/')) {
        return std::nullopt;
    }
    return leggiIsoGiorno(fmt::format("{}-{:02}-{:02}", testo, *mese, *giorno));
}

std::optional<DataOra> leggiIsoOra(std::string_view testo) {
    const bool negativo = segno(testo, '-');
    const auto ora = cifre(testo, 2);
    if (!ora || !segno(testo, ':')) {
        return std::nullopt;
    }
    const auto minuto = cifre(testo, 2);
    if (!minuto || *minuto > 59) {
        return std::nullopt;
    }
    int secondo = 0;
    if (!testo.empty()) {
        if (!segno(testo, ':')) {
            return std::nullopt;
        }
        const auto letto = cifre(testo, 2);
        if (!letto || *letto > 59 || !testo.empty()) {
            return std::nullopt;
        }
        secondo = *letto;
    }
    const DataOra data = oraDelGiorno(*ora, *minuto, secondo);
    return negativo ? -data : data;
}

}  // namespace kelvo
