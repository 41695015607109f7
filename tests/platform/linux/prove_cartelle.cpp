#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "comune/cartella.h"
#include "platform/linux/ServiziLinux.h"
#include "platform/linux/cartelle.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

/// A variable of the environment, put back at the end of the test.
class Variabile {
public:
    Variabile(const char* nome, const std::string& valore) : nome_(nome) {
        if (const char* vecchio = std::getenv(nome)) {
            vecchio_ = vecchio;
        }
        imposta(valore);
    }
    Variabile(const Variabile&) = delete;
    Variabile& operator=(const Variabile&) = delete;
    ~Variabile() { imposta(vecchio_); }
    void imposta(const std::optional<std::string>& valore) const {
        if (valore) {
            ::setenv(nome_, valore->c_str(), 1);
        } else {
            ::unsetenv(nome_);
        }
    }

private:
    const char* nome_;
    std::optional<std::string> vecchio_;
};

struct ProveCartelle : testing::Test {
    ProveCartelle() { fs::create_directory(sessione); }
    CartellaTemporanea cartella;
    std::string sessione = cartella.file("sessione");
    std::string delloUtente = cartella.file("kelvo-" + std::to_string(::geteuid()));
    Variabile xdg{"XDG_RUNTIME_DIR", sessione};
    Variabile tmp{"TMPDIR", cartella.percorso()};

    /// A new folder beside the user's, which was refused.
    void attendiNuova(const std::string& trovata) const {
        EXPECT_EQ(trovata.rfind(delloUtente + "-", 0), 0U) << trovata;
        attendiPrivata(trovata);
    }
    static void attendiPrivata(const std::string& percorso) {
        struct stat stato {};
        ASSERT_EQ(::lstat(percorso.c_str(), &stato), 0) << percorso;
        EXPECT_TRUE(S_ISDIR(stato.st_mode));
        EXPECT_EQ(stato.st_mode & 07777, 0700U);
        EXPECT_EQ(stato.st_uid, ::geteuid());
    }
};

TEST_F(ProveCartelle, TheTemporaryFolderIsTheUsersOwnInItsSession) {
    EXPECT_EQ(cartellaTemporanea(), sessione + "/kelvo");
    attendiPrivata(sessione + "/kelvo");
    scriviContenuto(sessione + "/kelvo/Risultati.txt", "testo");
    EXPECT_EQ(cartellaTemporanea(), sessione + "/kelvo") << "it is taken again";
    EXPECT_EQ(contenuto(sessione + "/kelvo/Risultati.txt"), "testo");
}

TEST_F(ProveCartelle, WithoutASessionItCarriesTheUsersNumber) {
    for (const std::optional<std::string>& nessuna :
         {std::optional<std::string>{}, std::optional<std::string>{""}, std::optional<std::string>{"relativa"},
          std::optional<std::string>{cartella.file("manca")}}) {
        xdg.imposta(nessuna);
        EXPECT_EQ(cartellaTemporanea(), delloUtente);
        attendiPrivata(delloUtente);
    }
}

TEST_F(ProveCartelle, AFolderOfTheUsersThatIsOpenToOthersIsClosed) {
    xdg.imposta(std::nullopt);
    fs::create_directory(delloUtente);
    fs::permissions(delloUtente, fs::perms::all);
    EXPECT_EQ(cartellaTemporanea(), delloUtente);
    attendiPrivata(delloUtente);
}

TEST_F(ProveCartelle, ALinkIsRefused) {
    const std::string altrui = cartella.file("altrui");
    fs::create_directory(altrui);
    fs::permissions(altrui, fs::perms::owner_all | fs::perms::group_read);
    fs::create_directory_symlink(altrui, sessione + "/kelvo");
    EXPECT_EQ(cartellaTemporanea(), delloUtente) << "the session's is a link: the next one";
    fs::remove(delloUtente);
    fs::create_directory_symlink(altrui, delloUtente);
    const std::string prima = cartellaTemporanea();
    attendiNuova(prima);
    EXPECT_NE(cartellaTemporanea(), prima) << "a fresh one each time";
    EXPECT_EQ(fs::status(altrui).permissions(), fs::perms::owner_all | fs::perms::group_read);
}

TEST_F(ProveCartelle, AFileIsRefused) {
    xdg.imposta(std::nullopt);
    scriviContenuto(delloUtente, "un file");
    attendiNuova(cartellaTemporanea());
    EXPECT_EQ(contenuto(delloUtente), "un file");
}

TEST_F(ProveCartelle, AFolderOfSomebodyElseIsRefused) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can make a folder of somebody else";
    }
    xdg.imposta(std::nullopt);
    fs::create_directory(delloUtente);
    ASSERT_EQ(::chmod(delloUtente.c_str(), 0700), 0);
    ASSERT_EQ(::chown(delloUtente.c_str(), 65534, 65534), 0);
    attendiNuova(cartellaTemporanea());
}

TEST_F(ProveCartelle, WithoutAFolderOfTemporaryFilesTheWorkingFolderIsAnswered) {
    xdg.imposta(std::nullopt);
    tmp.imposta(cartella.file("manca"));
    EXPECT_EQ(cartellaTemporanea(), ".");
}

/// Another user for as long as it lives; only for the superuser.
class AltroUtente {
public:
    AltroUtente() { EXPECT_EQ(::seteuid(65534), 0); }
    AltroUtente(const AltroUtente&) = delete;
    AltroUtente& operator=(const AltroUtente&) = delete;
    ~AltroUtente() { EXPECT_EQ(::seteuid(0), 0); }
};

TEST_F(ProveCartelle, AFolderOfOnesOwnIsWrittenUnlessAPackageHasLaidIt) {
    EXPECT_TRUE(cartellaScrivibile(sessione)) << "without a configuration too";
    scriviContenuto(sessione + "/Kelvo.ini", "");
    EXPECT_TRUE(cartellaScrivibile(sessione));
    ASSERT_EQ(::chmod((sessione + "/Kelvo.ini").c_str(), 0444), 0);
    EXPECT_TRUE(cartellaScrivibile(sessione)) << "a read-only file of one's own is made writable";
    scriviContenuto(sessione + "/Sistema.txt", "");
    EXPECT_FALSE(cartellaScrivibile(sessione)) << "not even by the superuser";
    EXPECT_FALSE(cartellaScrivibile(cartella.file("manca")));
}

TEST_F(ProveCartelle, AFolderOfSomebodyElseIsWrittenWhereTheSystemLets) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the superuser can become somebody else";
    }
    ASSERT_EQ(::chmod(cartella.percorso().c_str(), 0755), 0);
    scriviContenuto(sessione + "/Kelvo.ini", "");
    ASSERT_EQ(::chmod(sessione.c_str(), 0755), 0);
    ASSERT_EQ(::chmod((sessione + "/Kelvo.ini").c_str(), 0644), 0);
    {
        const AltroUtente altro;
        EXPECT_FALSE(cartellaScrivibile(sessione));
    }
    ASSERT_EQ(::chmod(sessione.c_str(), 0777), 0);
    {
        const AltroUtente altro;
        EXPECT_FALSE(cartellaScrivibile(sessione)) << "its configuration cannot be written";
    }
    ASSERT_EQ(::chmod((sessione + "/Kelvo.ini").c_str(), 0666), 0);
    const AltroUtente altro;
    EXPECT_TRUE(cartellaScrivibile(sessione));
}

TEST_F(ProveCartelle, TheUsersDataStandWhereTheEnvironmentTells) {
    const Variabile casa{"HOME", cartella.file("casa")};
    const Variabile dati{"XDG_DATA_HOME", cartella.file("dati")};
    EXPECT_EQ(percorsoDatiUtente(), cartella.file("dati/Kelvo"));
    dati.imposta("relativa");
    EXPECT_EQ(percorsoDatiUtente(), cartella.file("casa/.local/share/Kelvo"));
    EXPECT_FALSE(fs::exists(cartella.file("casa"))) << "asking makes nothing";
    EXPECT_EQ(cartellaDatiUtente(), percorsoDatiUtente());
    EXPECT_TRUE(fs::is_directory(percorsoDatiUtente()));
    casa.imposta("");
    EXPECT_EQ(percorsoDatiUtente(), "");
}

TEST_F(ProveCartelle, TheFolderOfTheProgramHoldsIt) {
    EXPECT_TRUE(fs::exists(cartellaEseguibile() + "/prove_platform"));
}

}  // namespace
}  // namespace kelvo::prove
