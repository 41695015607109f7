#include "platform/windows/testi.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

#include "base/file.h"
#include "comune/cartella.h"
#include "platform/windows/intestazioni.h"

namespace kelvo::prove {
namespace {

TEST(TestiWindows, ATextGoesToTheSystemsFormAndBack) {
    EXPECT_EQ(testoLargo(""), L"");
    EXPECT_EQ(testoLargo("Forlì €"), L"Forl\u00ec \u20ac");
    EXPECT_EQ(testoLargo("\xF0\x9F\x9A\x97"), L"\xD83D\xDE97") << "beyond the first plane: a pair";
    EXPECT_EQ(testoStretto(L"\xD83D\xDE97 Forl\u00ec"), "\xF0\x9F\x9A\x97 Forlì");
    EXPECT_EQ(testoStretto(L""), "");
}

TEST(TestiWindows, WhatIsNoTextIsMarked) {
    EXPECT_EQ(testoLargo("a\xE0z").find(L'\xFFFD'), 1U);
    EXPECT_EQ(testoStretto(L"a\xD83D"), "a\xEF\xBF\xBD");
    EXPECT_EQ(testoDaPercorso(percorsoDaTesto("a\xE0z")).substr(0, 4), "a\xEF\xBF\xBD") << "and never thrown";
}

TEST(TestiWindows, APathIsMadeWhole) {
    EXPECT_EQ(percorsoLargo("C:/a/b/../c.klv"), L"C:\\a\\c.klv");
    EXPECT_EQ(percorsoLargo("\\\\server\\disco\\a.klv"), L"\\\\server\\disco\\a.klv");
    EXPECT_EQ(percorsoLargo("\\\\?\\C:\\a/b"), L"\\\\?\\C:\\a/b") << "told to stay as it is";
    EXPECT_EQ(percorsoLargo("\\\\.\\pipe\\x"), L"\\\\.\\pipe\\x");
}

TEST(TestiWindows, ALongPathLosesTheSystemsLimit) {
    const std::string cartella(100, 'x');
    const std::wstring larga(100, L'x');
    EXPECT_EQ(percorsoLargo("C:/" + cartella + "/" + cartella + "/c.klv").substr(0, 4), L"C:\\x");
    EXPECT_EQ(percorsoLargo("C:/" + cartella + "/" + cartella + "/" + cartella),
              L"\\\\?\\C:\\" + larga + L"\\" + larga + L"\\" + larga);
    EXPECT_EQ(percorsoLargo("//server/disco/" + cartella + "/" + cartella + "/" + cartella),
              L"\\\\?\\UNC\\server\\disco\\" + larga + L"\\" + larga + L"\\" + larga);
}

TEST(TestiWindows, FailuresHaveTheirWords) {
    EXPECT_EQ(paroleErroreWindows(ERROR_DISK_FULL), "il disco è pieno");
    EXPECT_EQ(paroleErroreWindows(ERROR_HANDLE_DISK_FULL), "il disco è pieno");
    EXPECT_EQ(paroleErroreWindows(ERROR_ACCESS_DENIED), "accesso negato");
    EXPECT_EQ(paroleErroreWindows(ERROR_WRITE_PROTECT), "il disco è di sola lettura");
    EXPECT_EQ(paroleErroreWindows(ERROR_PATH_NOT_FOUND), "percorso non trovato");
    EXPECT_EQ(paroleErroreWindows(ERROR_FILE_EXISTS), "esiste già un file con questo nome");
    EXPECT_EQ(paroleErroreWindows(ERROR_SHARING_VIOLATION), "il file è in uso in un altro programma");
    EXPECT_EQ(paroleErroreWindows(ERROR_FILENAME_EXCED_RANGE), "il nome è troppo lungo");
    EXPECT_EQ(paroleErroreWindows(ERROR_CRC), "errore di sistema 23");
}

TEST(TestiWindows, TheStandardLibrarysFailuresHaveThemToo) {
    const CartellaTemporanea cartella;
    std::error_code errore;
    EXPECT_EQ(std::filesystem::file_size(percorsoDaTesto(cartella.file("manca")), errore), std::uintmax_t(-1));
    EXPECT_EQ(paroleErrore(errore), "percorso non trovato");
    std::string dati;
    scriviContenuto(cartella.file("Kelvo.ini"), "[FILE_LOG]");
    EXPECT_EQ(leggiFile(percorsoSenzaMaiuscole(cartella.percorso(), "/KELVO.INI"), 10, dati), "") << "in any case";
    EXPECT_EQ(leggiFile(cartella.file("manca"), 10, dati), "il file non esiste");
    EXPECT_EQ(leggiFile(cartella.percorso(), 10, dati), "non è un file");
}

}  // namespace
}  // namespace kelvo::prove
