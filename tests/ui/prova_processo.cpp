// The program as processes of its own, killed and started again.

#include <gtest/gtest.h>

#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStringList>
#include <csignal>
#include <filesystem>
#include <memory>
#include <vector>

#include "comune/cartella.h"
#include "ui/gesti.h"

namespace kelvo::prove {
namespace {

namespace fs = std::filesystem;

constexpr const char* offerta =
    "Il programma si è chiuso senza salvare il progetto <Rotatoria_001>. Recuperare la copia di sicurezza?";
constexpr const char* uscire = "Uscire dall'applicazione?";

class Processo : public testing::Test {
protected:
    Processo() {
        for (const char* nome : {"programma", "sessione", "dati", "impostazioni"}) {
            fs::create_directory(cartella.file(nome));
            fs::permissions(cartella.file(nome), fs::perms::owner_all);
        }
        fs::copy_file(KELVO_SORGENTI "/assets/Kelvo.ini", cartella.file("programma/Kelvo.ini"));
    }
    std::unique_ptr<QProcess> avvia(const std::vector<std::string>& passi) {
        auto processo = std::make_unique<QProcess>();
        QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
        ambiente.insert(QStringLiteral("XDG_RUNTIME_DIR"), QString::fromStdString(cartella.file("sessione")));
        ambiente.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromStdString(cartella.file("dati")));
        ambiente.insert(QStringLiteral("XDG_CONFIG_HOME"), QString::fromStdString(cartella.file("impostazioni")));
        processo->setProcessEnvironment(ambiente);
        processo->setWorkingDirectory(QString::fromStdString(cartella.file("programma")));
        QStringList argomenti{QString::fromStdString(cartella.file("programma"))};
        for (const std::string& passo : passi) {
            argomenti << QString::fromStdString(passo);
        }
        processo->start(QStringLiteral(KELVO_COPIONE), argomenti);
        return processo;
    }
    /// Waits until the process wrote a line; false if it ended or kept silent for too long.
    static bool dice(QProcess& processo, const QByteArray& riga) {
        QByteArray detto;
        return gesti::attendi([&] {
                   detto += processo.readAllStandardOutput();
                   return detto.contains(riga + "\n") || processo.state() == QProcess::NotRunning;
               }) &&
               detto.contains(riga + "\n");
    }
    /// Waits for its end; what it wrote, line by line.
    static std::vector<std::string> fine(QProcess& processo, int atteso) {
        EXPECT_TRUE(gesti::attendi([&] { return processo.state() == QProcess::NotRunning; }));
        EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit) << processo.readAllStandardError().toStdString();
        EXPECT_EQ(processo.exitCode(), atteso);
        std::vector<std::string> righe;
        for (const QByteArray& riga : processo.readAllStandardOutput().split('\n')) {
            if (!riga.isEmpty()) {
                righe.push_back(riga.toStdString());
            }
        }
        return righe;
    }
    static void uccidi(QProcess& processo) {
        ::kill(static_cast<pid_t>(processo.processId()), SIGKILL);
        EXPECT_TRUE(gesti::attendi([&] { return processo.state() == QProcess::NotRunning; }));
        EXPECT_EQ(processo.exitStatus(), QProcess::CrashExit);
    }
    /// Makes a project, types a municipality, goes on to the next window and is killed there.
    void muoreDopoIlComune(const std::string& comune) {
        const auto primo = avvia({"splash", "tasti=Ctrl+N", "modale=frmInputNumeroRami", "nodo=keyAnagraficaRotonda",
                                  "campo=txtComune:" + comune, "nodo=keyTempoModellazione",
                                  "finestra=frmTempoModellazione", "pronto"});
        ASSERT_TRUE(dice(*primo, "pronto")) << primo->readAllStandardError().toStdString();
        EXPECT_TRUE(fs::exists(copia()));
        uccidi(*primo);
        EXPECT_TRUE(fs::exists(copia()));
    }
    std::string copia() const { return cartella.file("dati/Kelvo/Recupero/Rotatoria_001.klv"); }

    CartellaTemporanea cartella;
};

TEST_F(Processo, AKilledProgramOffersItsWorkAndBringsItBack) {
    muoreDopoIlComune("Forlì");
    const auto secondo = avvia({"splash", "box=Yes", "nodo=keyAnagraficaRotonda", "mostra=txtComune",
                                "mostra=txtNumeroRami", "titolo", "tasti=Ctrl+Q", "box=No", "box=Ok"});
    EXPECT_EQ(fine(*secondo, 0),
              (std::vector<std::string>{offerta, "Forlì", "4", "KELVO 2014 - [Rotatoria_001.klv] *",
                                        "Vuoi salvare la rotonda prima di uscire dal programma?", uscire}));
    EXPECT_FALSE(fs::exists(copia()));  // the user said No to saving

    const auto terzo = avvia({"splash", "titolo", "tasti=Ctrl+Q", "box=Ok"});
    EXPECT_EQ(fine(*terzo, 0), (std::vector<std::string>{"KELVO 2014", uscire}));
}

TEST_F(Processo, AnOfferThatIsRefusedRemovesTheCopy) {
    muoreDopoIlComune("Cervia");
    const auto secondo = avvia({"splash", "box=No", "titolo", "tasti=Ctrl+Q", "box=Ok"});
    EXPECT_EQ(fine(*secondo, 0), (std::vector<std::string>{offerta, "KELVO 2014", uscire}));
    EXPECT_FALSE(fs::exists(copia()));
}

TEST_F(Processo, ARecoveredProjectThatIsKilledAgainIsOfferedAgain) {
    muoreDopoIlComune("Cervia");
    const auto secondo = avvia({"splash", "box=Yes", "nodo=keyAnagraficaRotonda", "campo=txtComune:Ravenna",
                                "nodo=keyTempoModellazione", "finestra=frmTempoModellazione", "pronto"});
    ASSERT_TRUE(dice(*secondo, "pronto"));
    uccidi(*secondo);
    const auto terzo = avvia(
        {"splash", "box=Yes", "nodo=keyAnagraficaRotonda", "mostra=txtComune", "tasti=Ctrl+Q", "box=No", "box=Ok"});
    EXPECT_EQ(fine(*terzo, 0).at(1), "Ravenna");
}

TEST_F(Processo, ASecondInstanceTellsSoAndEndsWhileTheFirstRunsOn) {
    const auto primo = avvia({"splash", "titolo"});
    ASSERT_TRUE(dice(*primo, "KELVO 2014"));
    const auto secondo = avvia({"box=Ok"});
    EXPECT_EQ(fine(*secondo, 1),
              std::vector<std::string>{"Attenzione, c'è già un'istanza di Kelvo attualmente in esecuzione."});
    EXPECT_EQ(primo->state(), QProcess::Running);
    uccidi(*primo);
    const auto dopo = avvia({"splash", "titolo", "tasti=Ctrl+Q", "box=Ok"});
    EXPECT_EQ(fine(*dopo, 0).front(), "KELVO 2014");  // a killed instance locks nobody out
}

TEST_F(Processo, WithoutTheNameOfTheLogTheProgramTellsSoAndEnds) {
    scriviContenuto(cartella.file("programma/Kelvo.ini"), "[LAY_OUT]\nCustomPanel=3\n");
    const auto processo = avvia({"box=Ok"});
    EXPECT_EQ(fine(*processo, 1), (std::vector<std::string>{"Manca il path del file di log dell'errore!",
                                                            "Il processo non verrà portato a termine!"}));
}

TEST_F(Processo, AReadOnlyConfigurationIsMadeWritableAndNothingElseIsSaid) {
    fs::permissions(cartella.file("programma/Kelvo.ini"), fs::perms::owner_read);
    const auto processo = avvia({"splash", "titolo", "tasti=Ctrl+Q", "box=Ok"});
    EXPECT_EQ(fine(*processo, 0), (std::vector<std::string>{"KELVO 2014", uscire}));
    EXPECT_NE(fs::status(cartella.file("programma/Kelvo.ini")).permissions() & fs::perms::owner_write, fs::perms::none);
}

}  // namespace
}  // namespace kelvo::prove
