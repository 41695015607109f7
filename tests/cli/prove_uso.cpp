// Help and wrong uses: Italian words, exit code 2, nothing on standard output.

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <set>

#include "comune/cartella.h"
#include "processo.h"

namespace kelvo::prove {

namespace {

/// An English word of the option reader or of the C++ library, or an empty text.
std::string parolaInglese(const std::string& testo) {
    static const std::set<std::string> inglesi{
        "usage",   "option",   "options", "subcommand", "subcommands", "positional", "positionals", "required",
        "missing", "excludes", "needs",   "value",      "argument",    "arguments",  "expected",    "received",
        "convert", "range",    "int",     "text",       "uint",        "float",      "the",         "not",
        "was",     "most",     "least",   "is",         "error",       "run",        "with",        "at"};
    std::string parola;
    for (const char c : testo + ' ') {
        const char minuscola = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
        if (minuscola >= 'a' && minuscola <= 'z') {
            parola += minuscola;
        } else if (inglesi.contains(parola)) {
            return parola;
        } else {
            parola.clear();
        }
    }
    return {};
}

struct UsoErrato {
    const char* nome;
    std::vector<std::string> argomenti;
    const char* messaggio;
};

const std::string tanti(100000, '1');

const std::array usiErrati{
    UsoErrato{"NoCommand", {}, "manca il comando"},
    UsoErrato{"UnknownCommand", {"pippo"}, "comando non riconosciuto: 'pippo'"},
    UsoErrato{"UnknownOptionOfTheProgram", {"-x"}, "opzione non riconosciuta: '-x' (le opzioni seguono il comando)"},
    UsoErrato{"OptionBeforeItsCommand",
              {"--json", "calcola", "x.klv"},
              "opzione non riconosciuta: '--json' (le opzioni seguono il comando)"},
    UsoErrato{"NoFile", {"calcola"}, "manca il nome del file di progetto"},
    UsoErrato{"UnknownOptionBeforeMissingFile", {"calcola", "--pippo"}, "argomento non riconosciuto: '--pippo'"},
    UsoErrato{"UnknownOptionsInTheirOrder",
              {"calcola", "--pippo", "--pluto", "x.klv"},
              "argomenti non riconosciuti: '--pippo' '--pluto'"},
    UsoErrato{"OptionOfAnotherCommand", {"mostra", "--json", "x.klv"}, "argomento non riconosciuto: '--json'"},
    UsoErrato{"LegWithoutValue", {"calcola", "x.klv", "--ramo"}, "--ramo: manca il valore"},
    UsoErrato{"LegOfZero", {"calcola", "x.klv", "--ramo", "0"}, "--ramo: serve un numero intero da 1 a 7, non '0'"},
    UsoErrato{"LegOfEight", {"calcola", "x.klv", "--ramo=8"}, "--ramo: serve un numero intero da 1 a 7, non '8'"},
    UsoErrato{"LegNegative", {"calcola", "x.klv", "--ramo", "-1"}, "--ramo: serve un numero intero da 1 a 7, non '-1'"},
    UsoErrato{
        "LegWithExponent", {"calcola", "x.klv", "--ramo", "1e0"}, "--ramo: serve un numero intero da 1 a 7, non '1e0'"},
    UsoErrato{"LegTwice", {"calcola", "x.klv", "--ramo", "1", "--ramo", "2"}, "--ramo: l'opzione è data più volte"},
    UsoErrato{"LegWithoutMeasures",
              {"calcola", "x.klv", "--ramo", "1"},
              "le opzioni --ramo e --geometria vanno date insieme"},
    UsoErrato{"MeasuresWithoutLeg",
              {"calcola", "x.klv", "--geometria=1,2,3,4,5,6"},
              "le opzioni --ramo e --geometria vanno date insieme"},
    UsoErrato{"FiveMeasures",
              {"calcola", "x.klv", "--ramo", "1", "--geometria=1,2,3,4,5"},
              "--geometria: servono sei numeri, e,v,l,phi,r,D, non '1,2,3,4,5'"},
    UsoErrato{"MeasureNotANumber",
              {"calcola", "x.klv", "--ramo", "1", "--geometria=nan,2,3,4,5,6"},
              "--geometria: servono sei numeri, e,v,l,phi,r,D, non 'nan,2,3,4,5,6'"},
    UsoErrato{"MeasureInfinite",
              {"calcola", "x.klv", "--ramo", "1", "--geometria=1,inf,3,4,5,6"},
              "--geometria: servono sei numeri, e,v,l,phi,r,D, non '1,inf,3,4,5,6'"},
    UsoErrato{"MeasureWithExponent",
              {"calcola", "x.klv", "--ramo", "1", "--geometria=1e5,2,3,4,5,6"},
              "--geometria: servono sei numeri, e,v,l,phi,r,D, non '1e5,2,3,4,5,6'"},
    UsoErrato{"MeasuresEmpty", {"calcola", "x.klv", "--ramo", "1", "--geometria", ""}, "--geometria: il testo è vuoto"},
    UsoErrato{"MeasuresVeryLong",
              {"calcola", "x.klv", "--ramo", "1", "--geometria", tanti},
              "--geometria: servono sei numeri, e,v,l,phi,r,D, non "
              "'111111111111111111111111111111111111111111111111111111111111...'"},
    UsoErrato{"LaneOfFive",
              {"calcola", "x.klv", "--corsie-dx", "5"},
              "--corsie-dx: servono posizioni da 1 a 4, separate da virgole, non '5'"},
    UsoErrato{"LanesWithEmptyPlace",
              {"calcola", "x.klv", "--corsie-dx", "1,,3"},
              "--corsie-dx: servono posizioni da 1 a 4, separate da virgole, non '1,,3'"},
    UsoErrato{"LanesWithWhatIf",
              {"calcola", "x.klv", "--corsie-dx", "1", "--ramo", "1", "--geometria", "1,2,3,4,5,6"},
              "--corsie-dx non si usa con --ramo e --geometria"},
    UsoErrato{"NightAboveHundred",
              {"calcola", "x.klv", "--notte", "101"},
              "--notte: serve un numero intero da 0 a 100, non '101'"},
    UsoErrato{
        "NightNegative", {"calcola", "x.klv", "--notte", "-5"}, "--notte: serve un numero intero da 0 a 100, non '-5'"},
    UsoErrato{"NightWithDecimals",
              {"capacita-ultima", "x.klv", "--notte", "5.5"},
              "--notte: serve un numero intero da 0 a 100, non '5.5'"},
    UsoErrato{"NightHexadecimal",
              {"calcola", "x.klv", "--notte", "0x10"},
              "--notte: serve un numero intero da 0 a 100, non '0x10'"},
    UsoErrato{"NightEmpty", {"calcola", "x.klv", "--notte", ""}, "--notte: serve un numero intero da 0 a 100, non ''"},
    UsoErrato{"NightNotANumber",
              {"calcola", "x.klv", "--notte=nan"},
              "--notte: serve un numero intero da 0 a 100, non 'nan'"},
    UsoErrato{"FlagWithValue", {"calcola", "x.klv", "--json=no"}, "--json: è un'opzione senza valore"},
    UsoErrato{"ConfigurationEmpty", {"calcola", "x.klv", "--ini", ""}, "--ini: il testo è vuoto"},
    UsoErrato{"ConfigurationWithoutValue", {"calcola", "x.klv", "--ini"}, "--ini: manca il valore"},
    UsoErrato{"NewWithoutLegs", {"nuovo", "x.klv"}, "manca l'opzione --rami"},
    UsoErrato{"NewWithTwoLegs", {"nuovo", "--rami", "2", "x.klv"}, "--rami: serve un numero intero da 3 a 7, non '2'"},
    UsoErrato{
        "NewWithEightLegs", {"nuovo", "--rami", "8", "x.klv"}, "--rami: serve un numero intero da 3 a 7, non '8'"},
    UsoErrato{"NewWithoutFile", {"nuovo", "--rami", "3"}, "manca il nome del file di progetto"},
    UsoErrato{"NewWithTwoFiles", {"nuovo", "--rami", "3", "a.klv", "b.klv"}, "argomento non riconosciuto: 'b.klv'"},
    UsoErrato{"NewWithForbiddenName",
              {"nuovo", "--rami", "3", "--nome", "a/b", "x.klv"},
              "nome 'a/b': non sono permessi i caratteri \\/:*?\"<>|"},
    UsoErrato{"CurveWithoutLeg", {"curva", "x.klv"}, "manca l'opzione --ramo"},
    UsoErrato{"CurveOfLegEight", {"curva", "--ramo", "8", "x.klv"}, "--ramo: serve un numero intero da 1 a 7, non '8'"},
    UsoErrato{"TargetBelowZero",
              {"curva", "--ramo", "1", "--obiettivo=-1", "x.klv"},
              "--obiettivo: serve un numero di veicoli, 0 o più, non '-1'"},
    UsoErrato{"TargetNotANumber",
              {"curva", "--ramo", "1", "--obiettivo", "1e3", "x.klv"},
              "--obiettivo: serve un numero di veicoli, 0 o più, non '1e3'"},
    UsoErrato{"TargetWithoutValue", {"curva", "--ramo", "1", "x.klv", "--obiettivo"}, "--obiettivo: manca il valore"},
    UsoErrato{"LanesWithoutPlaces", {"corsia-dx", "x.klv"}, "manca l'opzione --posizioni"},
    UsoErrato{"LanesOfPlaceFive",
              {"corsia-dx", "--posizioni", "1,5", "x.klv"},
              "--posizioni: servono posizioni da 1 a 4, separate da virgole, non '1,5'"},
    UsoErrato{"LanesOfNoPlace", {"corsia-dx", "--posizioni", "", "x.klv"}, "--posizioni: il testo è vuoto"},
    UsoErrato{"LanesWithoutFile", {"corsia-dx", "--posizioni", "1"}, "manca il nome del file di progetto"},
    UsoErrato{"StepsWithoutLeg", {"sensibilita", "x.klv"}, "manca l'opzione --ramo"},
    UsoErrato{
        "StepsOfLegEight", {"sensibilita", "--ramo", "8", "x.klv"}, "--ramo: serve un numero intero da 1 a 7, non '8'"},
    UsoErrato{"StepsOfAnUnknownMeasure",
              {"sensibilita", "--ramo", "1", "--parametro", "altezza", "x.klv"},
              "--parametro: serve uno tra larghezza, semilarghezza, svasatura, angolo, raggio, diametro, non "
              "'altezza'"},
    UsoErrato{
        "CurveWithNight", {"curva", "--ramo", "1", "--notte", "5", "x.klv"}, "argomento non riconosciuto: '--notte'"},
};

class UsiErrati : public testing::TestWithParam<UsoErrato> {};

TEST_P(UsiErrati, IsToldInItalianWithExitCode2) {
    const CartellaTemporanea cartella;
    const Esito esito = kelvoCli(GetParam().argomenti, cartella.percorso());
    EXPECT_EQ(esito.codice, 2);
    EXPECT_EQ(esito.uscita, "");
    EXPECT_EQ(esito.errori.substr(0, esito.errori.find('\n')), std::string("kelvo-cli: ") + GetParam().messaggio);
    EXPECT_NE(esito.errori.find("\nPer l'aiuto: kelvo-cli "), std::string::npos) << esito.errori;
    EXPECT_EQ(parolaInglese(esito.errori), "") << esito.errori;
    EXPECT_TRUE(std::filesystem::is_empty(cartella.percorso()));
}

INSTANTIATE_TEST_SUITE_P(Tutti, UsiErrati, testing::ValuesIn(usiErrati),
                         [](const auto& caso) { return std::string(caso.param.nome); });

class Aiuto : public testing::TestWithParam<const char*> {};

TEST_P(Aiuto, IsItalianAndEndsWithExamples) {
    const Esito esito = kelvoCli({GetParam(), "--help"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.errori, "");
    EXPECT_NE(esito.uscita.find(std::string("Uso: kelvo-cli ") + GetParam() + " [OPZIONI] FILE"), std::string::npos);
    EXPECT_NE(esito.uscita.find("\nOpzioni:\n  -h,--help "), std::string::npos);
    EXPECT_NE(esito.uscita.find(std::string("\nEsempi:\n  kelvo-cli ") + GetParam()), std::string::npos);
    EXPECT_EQ(parolaInglese(esito.uscita), "");
}

INSTANTIATE_TEST_SUITE_P(Comandi, Aiuto,
                         testing::Values("calcola", "capacita-ultima", "nuovo", "mostra", "verifica", "curva",
                                         "corsia-dx", "sensibilita", "sintesi", "controllo", "dxf"),
                         [](const auto& caso) {
                             return std::string(caso.param).substr(0, std::string(caso.param).find('-'));
                         });

TEST(AiutoGenerale, OfTheProgramNamesEveryCommand) {
    const Esito esito = kelvoCli({"--help"});
    EXPECT_EQ(esito.codice, 0);
    for (const char* comando : {"calcola", "capacita-ultima", "nuovo", "mostra", "verifica", "curva", "corsia-dx",
                                "sensibilita", "sintesi", "controllo", "dxf"}) {
        EXPECT_NE(esito.uscita.find(std::string("\n  ") + comando + " "), std::string::npos) << comando;
    }
    EXPECT_NE(esito.uscita.find("\nComandi:\n"), std::string::npos);
    EXPECT_EQ(parolaInglese(esito.uscita), "");
}

TEST(AiutoGenerale, VersionIsOneLine) {
    const Esito esito = kelvoCli({"--version"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_EQ(esito.uscita, "Kelvo 1.0.0\n");
}

}  // namespace

}  // namespace kelvo::prove
