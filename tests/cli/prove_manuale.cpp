#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "cli/processo.h"
#include "comune/cartella.h"

namespace kelvo::prove {
namespace {

/// The source of the page less the signs of its formatter.
std::string pagina() {
    std::string testo = contenuto(KELVO_COSTRUZIONE "/packaging/man/kelvo-cli.1");
    for (const auto& [da, a] : {std::pair<std::string, std::string>{"\\-", "-"}, {"\\&", ""}, {"\\e", "\\"}}) {
        for (auto posto = testo.find(da); posto != std::string::npos; posto = testo.find(da, posto + a.size())) {
            testo.replace(posto, da.size(), a);
        }
    }
    return testo;
}

/// What the page says of a command: from its heading to the next.
std::string capitolo(const std::string& testo, const std::string& comando) {
    const std::string capo = "\n.SS " + comando + "\n";
    const auto inizio = testo.find(capo);
    if (inizio == std::string::npos) {
        return {};
    }
    const auto dopo = inizio + capo.size();
    const auto fine = std::min(testo.find("\n.SS ", dopo), testo.find("\n.SH ", dopo));
    return testo.substr(dopo, fine - dopo);
}

std::vector<std::string> comandi() {
    const std::string aiuto = kelvoCli({"--help"}).uscita;
    std::istringstream righe(aiuto.substr(aiuto.find("\nComandi:\n") + 10));
    const std::regex nome("  ([a-z][a-z-]*) .*");
    std::vector<std::string> trovati;
    std::smatch parti;
    for (std::string riga; std::getline(righe, riga) && std::regex_match(riga, parti, nome);) {
        trovati.push_back(parti[1]);
    }
    return trovati;
}

TEST(Manuale, EveryCommandStandsThereWithItsOptionsAndTheirWords) {
    const std::string testo = pagina();
    const std::vector<std::string> tutti = comandi();
    ASSERT_GT(tutti.size(), 9U);
    for (const std::string& comando : tutti) {
        const std::string detto = capitolo(testo, comando);
        ASSERT_FALSE(detto.empty()) << comando;
        std::istringstream aiuto(kelvoCli({comando, "--help"}).uscita);
        int opzioni = 0;
        std::string riga;
        std::getline(aiuto, riga);
        EXPECT_NE(("\n" + detto).find("\n" + riga + "\n"), std::string::npos) << comando << ": " << riga;
        while (std::getline(aiuto, riga) && riga != "Esempi:") {
            std::smatch parti;
            if (std::regex_match(riga, parti, std::regex("  ([^ ].*?)(  +([^ ].*))?"))) {
                ++opzioni;
                EXPECT_NE(detto.find("\n.TP\n.B " + parti[1].str() + "\n"), std::string::npos) << comando << riga;
            }
            const std::string parole = std::regex_replace(riga, std::regex("^(  [^ ].*?  +| {10,})"), "");
            if (parole != riga) {
                EXPECT_NE(detto.find("\n" + parole), std::string::npos) << comando << ": " << parole;
            }
        }
        EXPECT_GT(opzioni, 1) << comando;
        while (std::getline(aiuto, riga)) {
            EXPECT_NE((detto + "\n").find("\n" + riga + "\n"), std::string::npos) << comando << ": " << riga;
        }
    }
}

TEST(Manuale, ItNamesNoCommandThatTheProgramHasNot) {
    const std::string testo = pagina();
    const std::vector<std::string> tutti = comandi();
    const std::set<std::string> noti(tutti.begin(), tutti.end());
    const std::regex capo("\n\\.SS ([^\n]*)");
    int trovati = 0;
    for (auto voce = std::sregex_iterator(testo.begin(), testo.end(), capo); voce != std::sregex_iterator(); ++voce) {
        ++trovati;
        EXPECT_TRUE(noti.contains((*voce)[1])) << (*voce)[1];
    }
    EXPECT_EQ(static_cast<std::size_t>(trovati), noti.size());
    EXPECT_FALSE(std::regex_search(testo, std::regex("@[A-Z]+@"))) << "a mark was not replaced";
}

TEST(Manuale, ItTellsEveryExitCodeOfTheProgram) {
    const std::string testo = pagina();
    const auto stato = testo.find(".SH STATO DI USCITA");
    ASSERT_NE(stato, std::string::npos);
    for (const char* codice : {"0", "1", "2", "3"}) {
        EXPECT_NE(testo.find(std::string("\n.B ") + codice + "\n", stato), std::string::npos) << codice;
    }
}

}  // namespace
}  // namespace kelvo::prove
