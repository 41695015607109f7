// The findings as a text, to the byte.

#include "checkup/report.h"

#include "scenaControllo.h"

namespace kelvo::prove {
namespace {

std::string atteso(const std::string& nome) {
    return contenuto(std::string{KELVO_SORGENTI} + "/tests/checkup/attesi/" + nome);
}

struct ProveReport : ScenaControllo {
    ProveReport() {
        rotonda().Data(giornoCalendario(2026, 11, 20));
        rotonda().Comune("");
        ramo(1).LunghezzaSvasatura(31.0F);
    }
    std::string testo(const AlberoRiscontri& albero) {
        return testoReport(albero, orologio.istante, rotonda().NomeFile());
    }
};

TEST_F(ProveReport, TheWholeReportHasAllPriorities) {
    trova();
    EXPECT_EQ(testo(errori.ctlTreeAnalizzatore), atteso("Report.txt"));
}

TEST_F(ProveReport, TheListsOfTheLevelsHaveTheSameLayout) {
    trova();
    errori.DistribuisciMessaggi();
    EXPECT_EQ(testo(errori.perLivello[0]), atteso("Report-informazione.txt"));
    EXPECT_EQ(testo(errori.perLivello[1]), atteso("Report-verifica.txt"));
    EXPECT_EQ(testo(errori.perLivello[2]), atteso("Report-errore.txt"));
}

TEST_F(ProveReport, WithoutFindingsTheLegendFollowsTheRoot) {
    rotonda().Data(giornoCalendario(2026, 11, 21));
    rotonda().Comune("Lucca");
    ramo(1).LunghezzaSvasatura(20.0F);
    trova();
    EXPECT_EQ(testo(errori.ctlTreeAnalizzatore), atteso("Report-vuoto.txt"));
}

TEST(Riscontri, ThePriorityIsThatOfTheFirstLetter) {
    EXPECT_EQ(prioritaMessaggio("Red4"), "1");
    EXPECT_EQ(prioritaMessaggio("Y2"), "2");
    EXPECT_EQ(prioritaMessaggio("Green9"), "3");
    EXPECT_EQ(prioritaMessaggio("keyMyProject"), "+");
    EXPECT_EQ(prioritaMessaggio(""), "+");
}

TEST(Riscontri, TheHeadingEndsAtTheFirstColon) {
    EXPECT_EQ(titoloRiscontro("Dati di traffico:uno: due"), "Dati di traffico:");
    EXPECT_EQ(messaggioRiscontro("Dati di traffico:uno: due"), "uno: due");
    EXPECT_EQ(titoloRiscontro("nessuno"), "");
    EXPECT_EQ(messaggioRiscontro("nessuno"), "nessuno");
}

}  // namespace
}  // namespace kelvo::prove
