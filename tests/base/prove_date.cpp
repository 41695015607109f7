#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>

#include "base/date.h"
#include "base/guasto.h"
#include "comune/guasti.h"

namespace kelvo {
namespace {

using prove::numeroGuasto;

constexpr double unSecondo = 1.0 / 86400.0;

DataOra momento(int anno, int mese, int giorno, int ora, int minuto, int secondo = 0) {
    return giornoCalendario(anno, mese, giorno) + oraDelGiorno(ora, minuto, secondo);
}

TEST(Date, DayZeroIsTheThirtiethOfDecember1899) {
    EXPECT_EQ(giornoCalendario(1899, 12, 30), 0.0);
    EXPECT_EQ(giornoCalendario(1899, 12, 31), 1.0);
    EXPECT_EQ(giornoCalendario(1900, 1, 1), 2.0);
    EXPECT_EQ(giornoCalendario(1970, 1, 1), 25569.0);  // 70 years with 17 leap days, and two days
    EXPECT_EQ(giornoCalendario(2000, 3, 1) - giornoCalendario(2000, 2, 28), 2.0);
    EXPECT_EQ(giornoCalendario(1900, 3, 1) - giornoCalendario(1900, 2, 28), 1.0);
    EXPECT_EQ(giornoCalendario(1899, 12, 29), -1.0);
}

TEST(Date, TheTimeOfDayIsTheFraction) {
    EXPECT_EQ(oraDelGiorno(0, 0), 0.0);
    EXPECT_EQ(oraDelGiorno(12, 0), 0.5);
    EXPECT_EQ(oraDelGiorno(18, 0), 0.75);
    EXPECT_EQ(oraDelGiorno(24, 0), 1.0);
    EXPECT_EQ(oraDelGiorno(36, 0), 1.5);
    EXPECT_DOUBLE_EQ(oraDelGiorno(0, 0, 1), unSecondo);
}

TEST(Date, PartsOfADateAreReadBack) {
    const PartiData p = partiDi(momento(2026, 11, 21, 8, 5, 9));
    EXPECT_EQ(p.anno, 2026);
    EXPECT_EQ(p.mese, 11);
    EXPECT_EQ(p.giorno, 21);
    EXPECT_EQ(p.ora, 8);
    EXPECT_EQ(p.minuto, 5);
    EXPECT_EQ(p.secondo, 9);
}

TEST(Date, EverySecondOfADayIsReadBack) {
    for (const int giorno : {0, 46347, -1}) {
        for (int s = 0; s < 86400; ++s) {
            const DataOra data = giorno + oraDelGiorno(0, 0, s);
            ASSERT_EQ(secondiDi(data), std::int64_t{giorno} * 86400 + s);
            const PartiData p = partiDi(data);
            ASSERT_EQ((p.ora * 60 + p.minuto) * 60 + p.secondo, s);
        }
    }
}

TEST(Date, AFractionOfASecondIsRoundedToTheNearest) {
    EXPECT_EQ(secondiDi(oraDelGiorno(8, 0) - 0.001 * unSecondo), 8 * 3600);
    EXPECT_EQ(testoHHNN(oraDelGiorno(8, 0) - 0.4 * unSecondo), "08:00");
    EXPECT_EQ(testoHHNN(oraDelGiorno(8, 0) - 0.6 * unSecondo), "07:59");
    EXPECT_EQ(testoDataOra(giornoCalendario(2026, 12, 31) + 1.0 - 0.001 * unSecondo), "01/01/2027 00:00:00");
    EXPECT_EQ(minutoCampo(oraDelGiorno(1, 0) - 0.0001 * unSecondo), 0);
}

TEST(Date, AMomentInWholeSecondsIsTheSameNumberHoweverItWasMade) {
    for (int ora = 0; ora < 24; ++ora) {
        for (int minuto = 0; minuto < 60; minuto += 5) {
            EXPECT_EQ(alSecondo(ora / 24.0 + minuto / 1440.0), oraDelGiorno(ora, minuto));
        }
    }
    EXPECT_EQ(alSecondo(46000.0 + 10.0 / 24.0 + 0.4 * unSecondo), (46000.0 * 86400.0 + 36000.0) / 86400.0);
    EXPECT_EQ(alSecondo(oraDelGiorno(8, 0) - 0.6 * unSecondo), oraDelGiorno(7, 59, 59));
    EXPECT_EQ(alSecondo(-oraDelGiorno(0, 0, 30)), -oraDelGiorno(0, 0, 30));
}

TEST(Date, AMomentOutsideTheCalendarIsLeftAsItIs) {
    for (const double data :
         {-657435.0, 2958466.25, 2958466.0 - 1e-9, 1e300, -1e300, std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(alSecondo(data), data);
    }
    EXPECT_TRUE(std::isnan(alSecondo(std::numeric_limits<double>::quiet_NaN())));
}

TEST(Date, ASumOfSegmentsKeepsTheMinute) {
    DataOra data = oraDelGiorno(8, 0);
    for (int i = 1; i <= 1000; ++i) {
        data += oraDelGiorno(0, 5);
        ASSERT_EQ(minutiTra(oraDelGiorno(8, 0), data), 5 * i);
        ASSERT_EQ(minutoCampo(data), 5 * i % 60);
    }
}

TEST(MinutiTra, CountsTheMinuteMarksPassed) {
    EXPECT_EQ(minutiTra(oraDelGiorno(8, 0), oraDelGiorno(9, 0)), 60);
    EXPECT_EQ(minutiTra(oraDelGiorno(9, 0), oraDelGiorno(8, 0)), -60);
    EXPECT_EQ(minutiTra(oraDelGiorno(8, 0), oraDelGiorno(8, 0)), 0);
    EXPECT_EQ(minutiTra(oraDelGiorno(8, 0, 59), oraDelGiorno(8, 1, 0)), 1);
    EXPECT_EQ(minutiTra(oraDelGiorno(8, 0, 0), oraDelGiorno(8, 0, 59)), 0);
    EXPECT_EQ(minutiTra(oraDelGiorno(8, 1, 0), oraDelGiorno(8, 0, 59)), -1);
}

TEST(MinutiTra, RunsAcrossMidnightAndDays) {
    EXPECT_EQ(minutiTra(oraDelGiorno(23, 50), oraDelGiorno(24, 10)), 20);
    EXPECT_EQ(minutiTra(momento(2026, 12, 31, 23, 59), momento(2027, 1, 1, 0, 1)), 2);
    EXPECT_EQ(minutiTra(momento(2026, 12, 31, 23, 59, 59), momento(2027, 1, 1, 0, 0, 0)), 1);
    EXPECT_EQ(minutiTra(momento(1899, 12, 29, 23, 59), momento(1899, 12, 30, 0, 1)), 2);
    EXPECT_EQ(minutiTra(momento(2026, 1, 1, 0, 0), momento(2027, 1, 1, 0, 0)), 365 * 1440);
}

TEST(MinutoCampo, OfAWholeHourIsZero) {
    EXPECT_EQ(minutoCampo(oraDelGiorno(1, 0)), 0);
    EXPECT_EQ(minutoCampo(oraDelGiorno(24, 0)), 0);
    EXPECT_EQ(minutoCampo(oraDelGiorno(0, 15)), 15);
    EXPECT_EQ(minutoCampo(oraDelGiorno(1, 59, 59)), 59);
    EXPECT_EQ(minutoCampo(oraDelGiorno(0, 90)), 30);
}

TEST(Date, OutsideTheCalendarIsOverflow) {
    constexpr double primo = -657434.0;   // 1 January 100
    constexpr double ultimo = 2958465.0;  // 31 December 9999
    EXPECT_EQ(testoData(primo), "01/01/0100");
    EXPECT_EQ(testoData(ultimo), "31/12/9999");
    EXPECT_EQ(testoDataOra(ultimo + oraDelGiorno(23, 59, 59)), "31/12/9999 23:59:59");
    // The last of the calendar's dates rounds to the second out of it.
    for (const double data : {primo - 1.0, ultimo + 1.0, ultimo + 1.0 - 1e-9, 1e300, -1e300,
                              std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        try {
            secondiDi(data);
            ADD_FAILURE() << data;
        } catch (const Guasto& guasto) {
            EXPECT_EQ(guasto.codice(), 6);
        }
    }
}

TEST(Date, TextsShowTwoDigitsEach) {
    const DataOra data = momento(2026, 2, 1, 8, 5, 9);
    EXPECT_EQ(testoHHNN(data), "08:05");
    EXPECT_EQ(testoData(data), "01/02/2026");
    EXPECT_EQ(testoDataOra(data), "01/02/2026 08:05:09");
    EXPECT_EQ(testoIsoGiorno(data), "2026-02-01");
    EXPECT_EQ(testoHHNN(oraDelGiorno(24, 5)), "00:05");
    EXPECT_EQ(testoDataOra(momento(476, 9, 4, 0, 0)), "04/09/0476 00:00:00");
}

TEST(TestoIsoOra, ShowsSecondsWhereThereAreSome) {
    EXPECT_EQ(testoIsoOra(oraDelGiorno(8, 5)), "08:05");
    EXPECT_EQ(testoIsoOra(oraDelGiorno(8, 5, 9)), "08:05:09");
    EXPECT_EQ(testoIsoOra(0.0), "00:00");
    EXPECT_EQ(testoIsoOra(-0.0), "00:00");
    EXPECT_EQ(testoIsoOra(oraDelGiorno(24, 30)), "24:30");
    EXPECT_EQ(testoIsoOra(-oraDelGiorno(1, 30)), "-01:30");
}

TEST(LeggiIsoGiorno, ReadsDaysOfTheCalendar) {
    EXPECT_EQ(leggiIsoGiorno("2026-11-21"), giornoCalendario(2026, 11, 21));
    EXPECT_EQ(leggiIsoGiorno("2024-02-29"), giornoCalendario(2024, 2, 29));
    EXPECT_EQ(leggiIsoGiorno("2000-02-29"), giornoCalendario(2000, 2, 29));
    EXPECT_EQ(leggiIsoGiorno("0100-01-01"), -657434.0);
    EXPECT_EQ(leggiIsoGiorno("9999-12-31"), 2958465.0);
}

TEST(LeggiIsoGiorno, RefusesWhatIsNoDay) {
    constexpr std::array<std::string_view, 22> sbagliati{
        "",           "2026",       "2026-11",     "2026-11-",    "2026-11-2",  "2026-11-211",
        "2026-02-31", "2026-02-29", "1900-02-29",  "2026-04-31",  "2026-00-10", "2026-13-10",
        "2026-10-00", "2026-10-32", "0099-12-31",  "0000-01-01",  "2026/11/21", "21-11-2026",
        "-026-11-21", "2026-1a-21", " 2026-11-21", "2026-11-21 ",
    };
    for (const std::string_view testo : sbagliati) {
        EXPECT_FALSE(leggiIsoGiorno(testo).has_value()) << testo;
    }
}

TEST(LeggiIsoOra, ReadsTimesAlsoPastMidnight) {
    EXPECT_EQ(leggiIsoOra("08:05"), oraDelGiorno(8, 5));
    EXPECT_EQ(leggiIsoOra("08:05:09"), oraDelGiorno(8, 5, 9));
    EXPECT_EQ(leggiIsoOra("00:00"), 0.0);
    EXPECT_EQ(leggiIsoOra("24:00"), 1.0);
    EXPECT_EQ(leggiIsoOra("25:30"), oraDelGiorno(25, 30));
    EXPECT_EQ(leggiIsoOra("99:59:59"), oraDelGiorno(99, 59, 59));
    EXPECT_EQ(leggiIsoOra("-01:30"), -oraDelGiorno(1, 30));
}

TEST(LeggiIsoOra, RefusesWhatIsNoTime) {
    constexpr std::array<std::string_view, 18> sbagliati{
        "",          "08",    "08:",    "8:05",   "08:5",   "08:60",  "08:05:",  "08:05:60", "08:05:9",
        "08:05:090", "08.05", "100:00", " 08:05", "08:05 ", "+08:05", "--08:05", "08:05,5",  "ab:cd",
    };
    for (const std::string_view testo : sbagliati) {
        EXPECT_FALSE(leggiIsoOra(testo).has_value()) << testo;
    }
}

TEST(Date, IsoTextsReadBack) {
    for (int s = 0; s < 100 * 3600; s += 7) {
        const DataOra data = oraDelGiorno(0, 0, s);
        ASSERT_EQ(leggiIsoOra(testoIsoOra(data)), data) << s;
    }
    for (int giorno = -657434; giorno <= 2958465; giorno += 97) {
        ASSERT_EQ(leggiIsoGiorno(testoIsoGiorno(giorno)), static_cast<double>(giorno));
    }
}

TEST(Date, TimesAndDaysOfTheWindowsReadBack) {
    EXPECT_EQ(leggiHHNN("08:05"), oraDelGiorno(8, 5));
    EXPECT_EQ(leggiHHNN("00:00"), 0.0);
    EXPECT_EQ(leggiHHNN("23:59"), oraDelGiorno(23, 59));
    for (const char* storta : {"", "8:05", "24:00", "08:60", "08:05:00", "-8:05", "08.05", "aa:bb", "08:05 "}) {
        EXPECT_FALSE(leggiHHNN(storta)) << storta;
    }
    EXPECT_EQ(leggiData("21/11/2026"), giornoCalendario(2026, 11, 21));
    EXPECT_EQ(leggiData("29/02/2024"), giornoCalendario(2024, 2, 29));
    for (const char* storta : {"", "29/02/2023", "1/1/2024", "21-11-2026", "21/11/26", "21/11/2026-", "21/11/2026 "}) {
        EXPECT_FALSE(leggiData(storta)) << storta;
    }
}

TEST(Date, SegmentsBetweenTwoTimesGoToTheEvenNumberOfTheWholeExpression) {
    const DataOra otto = oraDelGiorno(8, 0);
    const auto segmenti = [&](int durata, int aggiunta = 0) {
        return segmentiTra(otto, oraDelGiorno(8, durata), 10, aggiunta);
    };
    EXPECT_EQ(segmenti(0), 0);
    EXPECT_EQ(segmenti(4), 0);
    EXPECT_EQ(segmenti(5), 0);
    EXPECT_EQ(segmenti(6), 1);
    EXPECT_EQ(segmenti(15), 2);
    EXPECT_EQ(segmenti(25), 2);
    EXPECT_EQ(segmenti(35), 4);
    EXPECT_EQ(segmenti(25, -1), 2);  // 1.5
    EXPECT_EQ(segmenti(35, -1), 2);  // 2.5
    EXPECT_EQ(segmenti(-15), -2);
    EXPECT_EQ(segmenti(-5), 0);
    EXPECT_EQ(numeroGuasto([&] { (void)segmentiTra(otto, otto, 0); }), 11);
    EXPECT_EQ(segmentiTra(otto, otto + oraDelGiorno(0, 32767), 1), 32767);
    EXPECT_EQ(segmentiTra(otto, otto - oraDelGiorno(0, 32768), 1), -32768);
    EXPECT_EQ(numeroGuasto([&] { (void)segmentiTra(otto, otto + oraDelGiorno(0, 32768), 1); }), 6);
    EXPECT_EQ(numeroGuasto([&] { (void)segmentiTra(otto, otto - oraDelGiorno(0, 32769), 1); }), 6);
}

TEST(Date, TheClockAgreesWithTheSystems) {
    const std::time_t prima = std::time(nullptr);
    const DataOra letta = adesso();
    const DataOra giorno = oggi();
    const PartiData p = partiDi(letta);
    std::tm t{};
    t.tm_year = p.anno - 1900;
    t.tm_mon = p.mese - 1;
    t.tm_mday = p.giorno;
    t.tm_hour = p.ora;
    t.tm_min = p.minuto;
    t.tm_sec = p.secondo;
    t.tm_isdst = -1;
    const double scarto = std::difftime(std::mktime(&t), prima);
    // In the hour that the end of summer time repeats, the local time stands for two instants.
    EXPECT_LE(std::min(std::fabs(scarto), std::fabs(std::fabs(scarto) - 3600.0)), 60.0);
    EXPECT_EQ(giorno, static_cast<double>(static_cast<std::int64_t>(giorno)));
    EXPECT_GE(letta - giorno, -1.0);  // midnight may pass between the two calls
    EXPECT_LT(letta - giorno, 1.0);
}

}  // namespace
}  // namespace kelvo
