#include "platform/windows/ServiziWindows.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cmath>
#include <random>
#include <string>
#include <thread>

#include "app/servizi.h"
#include "base/date.h"
#include "comune/cartella.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo::prove {
namespace {

std::string nomeACaso(const std::string& inizio) {
    return inizio + std::to_string(std::random_device{}());
}

bool mutexPresente(const std::string& nome) {
    const HANDLE mutex = OpenMutexW(SYNCHRONIZE, FALSE, testoLargo(nome).c_str());
    if (mutex != nullptr) {
        CloseHandle(mutex);
    }
    return mutex != nullptr;
}

TEST(IstanzaWindows, TheMutexStandsUnderItsNameUntilTheEnd) {
    const std::string nome = nomeACaso("Kelvo-prova-");
    {
        IstanzaWindows istanza;
        EXPECT_FALSE(mutexPresente(nome));
        istanza.creaMutex(nome);
        EXPECT_TRUE(mutexPresente(nome));
        EXPECT_FALSE(istanza.altraIstanza());
    }
    EXPECT_FALSE(mutexPresente(nome));
}

/// The user's separators and symbols, put back at the end of the test.
struct ProveLocaleWindows : testing::Test {
    static constexpr std::array<LCTYPE, 6> voci{LOCALE_SCURRENCY, LOCALE_SINTLSYMBOL,    LOCALE_SDECIMAL,
                                                LOCALE_STHOUSAND, LOCALE_SMONDECIMALSEP, LOCALE_SMONTHOUSANDSEP};
    static std::wstring letta(LCTYPE voce) {
        std::array<wchar_t, 128> testo{};
        GetLocaleInfoW(LOCALE_USER_DEFAULT, voce, testo.data(), static_cast<int>(testo.size()));
        return testo.data();
    }
    ProveLocaleWindows() {
        for (std::size_t i = 0; i < voci.size(); ++i) {
            prima.at(i) = letta(voci.at(i));
        }
    }
    ProveLocaleWindows(const ProveLocaleWindows&) = delete;
    ProveLocaleWindows& operator=(const ProveLocaleWindows&) = delete;
    ~ProveLocaleWindows() override {
        for (std::size_t i = 0; i < voci.size(); ++i) {
            SetLocaleInfoW(LOCALE_USER_DEFAULT, voci.at(i), prima.at(i).c_str());
        }
    }
    std::array<std::wstring, voci.size()> prima;
    LocaleWindows locale;
};

TEST_F(ProveLocaleWindows, ReadsTheUsersSettings) {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SCURRENCY, L"\u20ac");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, L";");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, L"'");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SMONDECIMALSEP, L":");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SMONTHOUSANDSEP, L"_");
    const ImpostazioniInternazionali lette = locale.leggi();
    EXPECT_EQ(lette.valuta, "€");
    EXPECT_EQ(lette.valutaInternazionale, testoStretto(letta(LOCALE_SINTLSYMBOL)));
    EXPECT_EQ(lette.decimale, ";");
    EXPECT_EQ(lette.migliaia, "'");
    EXPECT_EQ(lette.decimaleValuta, ":");
    EXPECT_EQ(lette.migliaiaValuta, "_");
}

TEST_F(ProveLocaleWindows, WritesTheTwoSeparatorsAndNothingElse) {
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, L".");
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STHOUSAND, L",");
    const ImpostazioniInternazionali iniziali = locale.leggi();
    locale.scriviSeparatori(",", ".");
    EXPECT_EQ(letta(LOCALE_SDECIMAL), L",");
    EXPECT_EQ(letta(LOCALE_STHOUSAND), L".");
    EXPECT_EQ(locale.leggi().valuta, iniziali.valuta);
    EXPECT_EQ(locale.leggi().decimaleValuta, iniziali.decimaleValuta);
    EXPECT_EQ(locale.leggi().migliaiaValuta, iniziali.migliaiaValuta);
    locale.scriviSeparatori(iniziali.decimale, iniziali.migliaia);
    EXPECT_EQ(letta(LOCALE_SDECIMAL), L".");
    EXPECT_EQ(letta(LOCALE_STHOUSAND), L",");
}

/// An application of its own in the registry, removed at the end of the test.
struct ProveImpostazioniWindows : testing::Test {
    ProveImpostazioniWindows() = default;
    ProveImpostazioniWindows(const ProveImpostazioniWindows&) = delete;
    ProveImpostazioniWindows& operator=(const ProveImpostazioniWindows&) = delete;
    ~ProveImpostazioniWindows() override { RegDeleteTreeW(HKEY_CURRENT_USER, testoLargo(chiave()).c_str()); }
    std::string chiave() const { return "Software\\Kelvo\\" + applicazione; }
    std::string applicazione = nomeACaso("KelvoCAD 2014 prova ");
    ImpostazioniWindows impostazioni;
};

TEST_F(ProveImpostazioniWindows, AValueIsKeptAsAText) {
    const std::string percorso = "C:\\Città\\" + std::string(400, 'x') + "\\Rotatoria è.klv";
    EXPECT_EQ(impostazioni.leggi(applicazione, "StartUp", "FilePathKelvo"), "");
    impostazioni.scrivi(applicazione, "StartUp", "FilePathKelvo", "prima");
    impostazioni.scrivi(applicazione, "StartUp", "FilePathKelvo", percorso);
    EXPECT_EQ(ImpostazioniWindows{}.leggi(applicazione, "StartUp", "FilePathKelvo"), percorso);
    EXPECT_EQ(impostazioni.leggi(applicazione, "StartUp", "Altra"), "");
    EXPECT_EQ(impostazioni.leggi(applicazione, "Altra", "FilePathKelvo"), "");
    impostazioni.scrivi(applicazione, "StartUp", "FilePathKelvo", "");
    EXPECT_EQ(impostazioni.leggi(applicazione, "StartUp", "FilePathKelvo"), "");
}

TEST_F(ProveImpostazioniWindows, ItStandsInTheUsersRegistry) {
    impostazioni.scrivi(applicazione, "StartUp", "FilePathKelvo", "C:\\Rotatoria è.klv");
    std::array<wchar_t, 64> testo{};
    DWORD byte = sizeof testo;
    ASSERT_EQ(RegGetValueW(HKEY_CURRENT_USER, testoLargo(chiave() + "\\StartUp").c_str(), L"FilePathKelvo",
                           RRF_RT_REG_SZ, nullptr, testo.data(), &byte),
              ERROR_SUCCESS);
    EXPECT_EQ(std::wstring(testo.data()), L"C:\\Rotatoria \u00e8.klv");
}

TEST_F(ProveImpostazioniWindows, WhatTheCompanionReadsStandsWhereItsMacrosLook) {
    // A section of the test's own: that of the user stays as it is.
    const std::string sezione = nomeACaso("prova ");
    const std::string kelvoCAD = "KelvoCAD 2014";
    const std::wstring macro = testoLargo("Software\\VB and VBA Program Settings\\" + kelvoCAD + "\\" + sezione);
    const std::wstring propria = testoLargo("Software\\Kelvo\\" + kelvoCAD + "\\" + sezione);
    impostazioni.scrivi(kelvoCAD, sezione, "FilePathKelvo", "C:\\Rotatoria è.klv");
    std::array<wchar_t, 64> testo{};
    DWORD byte = sizeof testo;
    EXPECT_EQ(
        RegGetValueW(HKEY_CURRENT_USER, macro.c_str(), L"FilePathKelvo", RRF_RT_REG_SZ, nullptr, testo.data(), &byte),
        ERROR_SUCCESS);
    EXPECT_EQ(std::wstring(testo.data()), L"C:\\Rotatoria \u00e8.klv");
    EXPECT_EQ(impostazioni.leggi(kelvoCAD, sezione, "FilePathKelvo"), "C:\\Rotatoria è.klv");
    EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, propria.c_str(), L"FilePathKelvo", RRF_RT_ANY, nullptr, nullptr, nullptr),
              ERROR_FILE_NOT_FOUND);
    RegDeleteTreeW(HKEY_CURRENT_USER, macro.c_str());
    RegDeleteTreeW(HKEY_CURRENT_USER, propria.c_str());
}

TEST_F(ProveImpostazioniWindows, WhatIsNoTextReadsAsNothing) {
    const DWORD numero = 7;
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, testoLargo(chiave() + "\\StartUp").c_str(), L"Numero", REG_DWORD,
                              &numero, sizeof numero),
              ERROR_SUCCESS);
    EXPECT_EQ(impostazioni.leggi(applicazione, "StartUp", "Numero"), "");
}

bool compare(const std::string& percorso) {
    const auto fine = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (std::chrono::steady_clock::now() < fine) {
        if (GetFileAttributesW(percorsoLargo(percorso).c_str()) != INVALID_FILE_ATTRIBUTES) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

TEST(ApriDocumentiWindows, AProgramIsStartedWithAndWithoutQuotes) {
    const CartellaTemporanea cartella;
    ApriDocumentiWindows documenti;
    const std::string programma = cartella.file("Avvia è.bat");
    scriviContenuto(programma, "@echo off\r\ncopy /y %0 %1 >nul\r\n");
    EXPECT_TRUE(documenti.avvia("\"" + programma + "\" ", cartella.file("primo")));
    EXPECT_TRUE(compare(cartella.file("primo")));
    EXPECT_TRUE(documenti.avvia(programma, "\"" + cartella.file("secondo con blank") + "\""));
    EXPECT_TRUE(compare(cartella.file("secondo con blank")));
    EXPECT_FALSE(documenti.avvia("\"" + cartella.file("manca.exe") + "\"", {}));
}

TEST(ApriDocumentiWindows, TheRestOfACommandLineGoesAsItStands) {
    const CartellaTemporanea cartella;
    ApriDocumentiWindows documenti;
    const std::string programma = cartella.file("Riga con blank.bat");
    scriviContenuto(programma, "@echo off\r\necho [%*]>\"%~dp0riga.nuova\"\r\nren \"%~dp0riga.nuova\" riga\r\n");
    EXPECT_TRUE(documenti.avvia(programma, "C:\\i miei\\Piazza.klv"));
    ASSERT_TRUE(compare(cartella.file("riga")));
    EXPECT_EQ(contenuto(cartella.file("riga")), "[C:\\i miei\\Piazza.klv]\r\n");
    EXPECT_FALSE(documenti.avvia(cartella.file("manca.exe"), "x"));
}

TEST(ApriDocumentiWindows, ADocumentIsOpenedByWhatBelongsToIt) {
    const CartellaTemporanea cartella;
    ApriDocumentiWindows documenti;
    const std::string documento = cartella.file("Apri è.bat");
    scriviContenuto(documento, "@copy /y %0 \"%~dp0fatto\" >nul\r\n");
    EXPECT_TRUE(documenti.apri(documento));
    EXPECT_TRUE(compare(cartella.file("fatto")));
    EXPECT_FALSE(documenti.apri(cartella.file("manca.pdf")));
}

TEST(OraWindows, TheClockShowsTheUsersLocalTime) {
    SYSTEMTIME t{};
    GetLocalTime(&t);
    const double attesa = giornoCalendario(t.wYear, t.wMonth, t.wDay) + oraDelGiorno(t.wHour, t.wMinute, t.wSecond);
    constexpr double cinqueSecondi = 5.0 / 86400;
    EXPECT_LT(std::abs(OrologioSistema{}.adesso() - attesa), cinqueSecondi);
}

}  // namespace
}  // namespace kelvo::prove
