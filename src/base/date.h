#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo {

/// A calendar date-time as a count of days from 30 December 1899; the fraction is the time of day.
using DataOra = double;

/// Parts of a date-time, rounded to the nearest second.
struct PartiData {
    int anno = 1899;
    int mese = 12;
    int giorno = 30;
    int ora = 0;
    int minuto = 0;
    int secondo = 0;
};

/// Time of day; hours past 23 run on into the next day.
DataOra oraDelGiorno(int ora, int minuto, int secondo = 0);
/// Calendar day at midnight.
DataOra giornoCalendario(int anno, int mese, int giorno);
/// Now, in local time, to the second.
DataOra adesso();
/// Today, in local time, at midnight.
DataOra oggi();

/// Whole seconds from the day 0, rounded to nearest. Fault 6 for a date outside the years 100 to 9999.
std::int64_t secondiDi(DataOra data);
PartiData partiDi(DataOra data);
/// The same moment in whole seconds, as the double nearest to it: a time that was added up and one that was read from
/// text become the same number. A date outside the calendar, or none at all, comes back unchanged.
DataOra alSecondo(DataOra data);

/// Minutes from `da` to `a` as a date difference: the number of minute marks passed, negative if `a` is the earlier.
std::int64_t minutiTra(DataOra da, DataOra a);
/// The minutes field of a date, 0 to 59: a whole hour reads as 0.
int minutoCampo(DataOra data);
/// Time segments of so many minutes from `da` to `a`: the quotient with `aggiunta` added to it, rounded to nearest,
/// ties to even. Fault 11 for segments of 0 minutes, fault 6 for a number past 16 bits.
std::int16_t segmentiTra(DataOra da, DataOra a, int minuti, int aggiunta = 0);

/// "08:05"
std::string testoHHNN(DataOra data);
/// "21/11/2026"
std::string testoData(DataOra data);
/// "21/11/2026 08:05:09"
std::string testoDataOra(DataOra data);

/// Reads what testoHHNN writes, "08:05"; nothing if it is no time of day.
std::optional<DataOra> leggiHHNN(std::string_view testo);
/// Reads what testoData writes, "21/11/2026"; nothing if it is no day of the calendar.
std::optional<DataOra> leggiData(std::string_view testo);

/// "2026-11-21"
std::string testoIsoGiorno(DataOra data);
/// "08:05", or "08:05:09" where the seconds are not 0; hours run past 23 for a time beyond midnight.
std::string testoIsoOra(DataOra data);
/// Reads "2026-11-21"; nothing if it is no day of the calendar.
std::optional<DataOra> leggiIsoGiorno(std::string_view testo);
/// Reads "08:05" or "08:05:09", hours up to 99; nothing if it is no time.
std::optional<DataOra> leggiIsoOra(std::string_view testo);

}  // namespace kelvo
