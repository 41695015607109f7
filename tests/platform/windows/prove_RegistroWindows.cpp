#include "platform/windows/RegistroWindows.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <vector>

#include "base/guasto.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo::prove {
namespace {

/// A key of its own in the machine's registry, removed from both views at the end of the test.
struct ProveRegistroWindows : testing::Test {
    ProveRegistroWindows() = default;
    ProveRegistroWindows(const ProveRegistroWindows&) = delete;
    ProveRegistroWindows& operator=(const ProveRegistroWindows&) = delete;
    ~ProveRegistroWindows() override {
        for (const REGSAM veduta : std::array<REGSAM, 2>{KEY_WOW64_64KEY, KEY_WOW64_32KEY}) {
            HKEY software = nullptr;
            if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software", 0, KEY_ALL_ACCESS | veduta, &software) ==
                ERROR_SUCCESS) {
                RegDeleteTreeW(software, testoLargo(nome).c_str());
                RegCloseKey(software);
            }
        }
    }
    /// Makes a key below that of the test, with a value if `byte` is not 0.
    void scrivi(const std::string& sotto, const wchar_t* valore, DWORD tipo, const void* dati, DWORD byte,
                REGSAM veduta = KEY_WOW64_64KEY) const {
        HKEY aperta = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, testoLargo(chiave(sotto)).c_str(), 0, nullptr, 0,
                                  KEY_ALL_ACCESS | veduta, nullptr, &aperta, nullptr),
                  ERROR_SUCCESS);
        if (byte != 0) {
            EXPECT_EQ(RegSetValueExW(aperta, valore, 0, tipo, static_cast<const BYTE*>(dati), byte), ERROR_SUCCESS);
        }
        RegCloseKey(aperta);
    }
    void testo(const std::string& sotto, const wchar_t* valore, const std::wstring& dato,
               REGSAM veduta = KEY_WOW64_64KEY) const {
        scrivi(sotto, valore, REG_SZ, dato.c_str(), static_cast<DWORD>((dato.size() + 1) * sizeof(wchar_t)), veduta);
    }
    std::string chiave(const std::string& sotto) const {
        return "Software\\" + nome + (sotto.empty() ? "" : "\\" + sotto);
    }
    std::string nome = "Kelvo-prova-" + std::to_string(std::random_device{}());
    RegistroWindows registro;
};

TEST_F(ProveRegistroWindows, WhatDoesNotStandReadsAsNothing) {
    EXPECT_EQ(registro.sottochiavi(chiave("")), std::vector<std::string>{});
    EXPECT_EQ(registro.valore(chiave("R17.0"), "Location"), "");
    testo("R17.0", L"Location", L"C:\\Acad");
    EXPECT_EQ(registro.valore(chiave("R17.0"), "Language"), "");
}

TEST_F(ProveRegistroWindows, KeysAndTextsAreReadWhole) {
    const std::wstring lungo = L"C:\\Citt\u00e0\\" + std::wstring(400, L'x');
    testo("R17.0\\ACAD-5001:410", L"Location", lungo);
    testo("R17.0\\ACAD-5001:410", L"Language", L"Italiano");
    scrivi("R16.0", nullptr, REG_SZ, nullptr, 0);
    EXPECT_EQ(registro.sottochiavi(chiave("")), (std::vector<std::string>{"R16.0", "R17.0"}));
    EXPECT_EQ(registro.sottochiavi(chiave("R17.0")), std::vector<std::string>{"ACAD-5001:410"});
    EXPECT_EQ(registro.valore(chiave("r17.0\\acad-5001:410"), "location"), testoStretto(lungo)) << "in any case";
    EXPECT_EQ(registro.valore(chiave("R17.0\\ACAD-5001:410"), "Language"), "Italiano");
}

TEST_F(ProveRegistroWindows, ATextWithAVariableComesWithItsValue) {
    const std::wstring dato = L"%SystemRoot%\\Acad";
    scrivi("R17.0", L"Location", REG_EXPAND_SZ, dato.c_str(), static_cast<DWORD>((dato.size() + 1) * sizeof(wchar_t)));
    const std::string letto = registro.valore(chiave("R17.0"), "Location");
    EXPECT_EQ(letto.find('%'), std::string::npos) << letto;
    EXPECT_NE(letto.find("\\Acad"), std::string::npos) << letto;
}

TEST_F(ProveRegistroWindows, WhatIsNoTextIsAFault) {
    const DWORD numero = 7;
    scrivi("R17.0", L"Location", REG_DWORD, &numero, sizeof numero);
    try {
        registro.valore(chiave("R17.0"), "Location");
        FAIL() << "nothing was raised";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 13);
        EXPECT_NE(guasto.descrizione().find("Location"), std::string::npos) << guasto.descrizione();
    }
}

TEST_F(ProveRegistroWindows, WhatStandsInTheViewOf32BitsIsFoundToo) {
    testo("R16.2\\ACAD-4001:410", L"Location", L"C:\\Acad 32", KEY_WOW64_32KEY);
    testo("R17.2\\ACAD-7001:410", L"Location", L"C:\\Acad 64");
    EXPECT_EQ(registro.valore(chiave("R16.2\\ACAD-4001:410"), "Location"), "C:\\Acad 32");
    EXPECT_EQ(registro.valore(chiave("R17.2\\ACAD-7001:410"), "Location"), "C:\\Acad 64");
    EXPECT_EQ(registro.sottochiavi(chiave("")).size(), 2U);
    EXPECT_EQ(registro.sottochiavi(chiave("R16.2")), std::vector<std::string>{"ACAD-4001:410"});
}

}  // namespace
}  // namespace kelvo::prove
