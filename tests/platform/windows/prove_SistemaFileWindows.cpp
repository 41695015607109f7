#include "platform/windows/SistemaFileWindows.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "comune/cartella.h"
#include "platform/windows/intestazioni.h"
#include "platform/windows/testi.h"

namespace kelvo::prove {
namespace {

/// A file that another program holds open.
class FileTenuto {
public:
    FileTenuto(const std::string& percorso, DWORD condivisione)
        : file_(CreateFileW(percorsoLargo(percorso).c_str(), GENERIC_READ, condivisione, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    FileTenuto(const FileTenuto&) = delete;
    FileTenuto& operator=(const FileTenuto&) = delete;
    ~FileTenuto() { CloseHandle(file_); }
    bool aperto() const { return file_ != INVALID_HANDLE_VALUE; }

private:
    HANDLE file_;
};

bool diSolaLettura(const std::string& percorso) {
    return (GetFileAttributesW(percorsoLargo(percorso).c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
}

struct ProveFileWindows : testing::Test {
    CartellaTemporanea cartella;
    SistemaFileWindows sistema;
};

TEST_F(ProveFileWindows, APathBeyondTheSystemsLimitIsWrittenReplacedAndRemoved) {
    std::string lunga = cartella.percorso();
    for (int i = 0; i < 6; ++i) {
        lunga += "\\" + std::string(60, 'x') + "è";
        ASSERT_TRUE(CreateDirectoryW(percorsoLargo(lunga).c_str(), nullptr)) << lunga << ": " << GetLastError();
    }
    const std::string primo = lunga + "\\primo.klv";
    const std::string secondo = lunga + "/secondo.klv";
    ASSERT_GT(testoLargo(primo).size(), 350U);
    for (const std::string& nome : {primo, secondo}) {
        std::string errore;
        const auto file = sistema.crea(nome, errore);
        ASSERT_NE(file, nullptr) << errore;
        EXPECT_EQ(file->scrivi(nome), "");
        EXPECT_EQ(file->chiudi(), "");
    }
    EXPECT_EQ(sistema.rinomina(secondo, primo), "");
    EXPECT_EQ(sistema.dimensione(primo), static_cast<std::int64_t>(secondo.size())) << "the content of the second";
    EXPECT_EQ(sistema.dimensione(secondo), -1);
    sistema.elimina(primo);
    EXPECT_EQ(sistema.dimensione(primo), -1);
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(RemoveDirectoryW(percorsoLargo(lunga).c_str()));
        lunga.resize(lunga.rfind('\\'));
    }
}

TEST_F(ProveFileWindows, AFileInUseElsewhereIsNotReplaced) {
    const std::string nome = cartella.file("in uso.klv");
    scriviContenuto(nome, "vecchio");
    {
        const FileTenuto altro(nome, FILE_SHARE_READ);
        ASSERT_TRUE(altro.aperto());
        const std::string errore = scriviFileSicuro(sistema, nome, "nuovo");
        EXPECT_TRUE(errore == "il file è in uso in un altro programma" || errore == "accesso negato") << errore;
        EXPECT_EQ(contenuto(nome), "vecchio");
        const auto voci = std::distance(std::filesystem::directory_iterator(cartella.percorso()),
                                        std::filesystem::directory_iterator());
        EXPECT_EQ(voci, 1) << "no temporary is left";
    }
    EXPECT_EQ(scriviFileSicuro(sistema, nome, "nuovo"), "");
    EXPECT_EQ(contenuto(nome), "nuovo");
}

TEST_F(ProveFileWindows, WhileItIsWrittenAFileIsReadByOthersAndNotWritten) {
    const std::string nome = cartella.file("aperto");
    std::string errore;
    const auto file = sistema.crea(nome, errore);
    ASSERT_NE(file, nullptr) << errore;
    EXPECT_EQ(file->scrivi("testo"), "");
    EXPECT_TRUE(FileTenuto(nome, FILE_SHARE_READ | FILE_SHARE_WRITE).aperto());
    const HANDLE scrittore = CreateFileW(percorsoLargo(nome).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_EQ(scrittore, INVALID_HANDLE_VALUE);
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_SHARING_VIOLATION));
}

TEST_F(ProveFileWindows, TheReadOnlyAttributeIsSeenAndCleared) {
    namespace fs = std::filesystem;
    const std::string nome = cartella.file("Kelvo.ini");
    scriviContenuto(nome, "[FILE_LOG]\r\n");
    ASSERT_TRUE(SetFileAttributesW(percorsoLargo(nome).c_str(), FILE_ATTRIBUTE_READONLY));
    const fs::path percorso = percorsoDaTesto(nome);
    EXPECT_EQ(fs::status(percorso).permissions() & fs::perms::owner_write, fs::perms::none);
    EXPECT_EQ(scriviFileSicuro(sistema, nome, "altro"), "il file è di sola lettura");
    fs::permissions(percorso, fs::perms::owner_write, fs::perm_options::add);
    EXPECT_FALSE(diSolaLettura(nome));
    EXPECT_EQ(scriviFileSicuro(sistema, nome, "altro"), "");
}

TEST_F(ProveFileWindows, ADeviceIsNoFile) {
    EXPECT_EQ(sistema.dimensione("NUL"), -1);
}

}  // namespace
}  // namespace kelvo::prove
