// The properties of the project file as the guide lists them, against the page for programmers, which is itself held to
// what the program writes.

#include <gtest/gtest.h>

#include <QtCore/QMap>
#include <string>

#include "comune/cartella.h"
#include "guida/fonti.h"
#include "guida/voci.h"
#include "model/campiKlv.h"

namespace kelvo::prove {
namespace {

struct Riga {
    QString voce;
    QString valore;
};

/// The rows of a heading's table in docs/formato-klv.md.
QList<Riga> righeInglesi(const QString& titolo) {
    QList<Riga> righe;
    bool dentro = false;
    const QString pagina = QString::fromStdString(contenuto(KELVO_SORGENTI "/docs/formato-klv.md"));
    for (const QString& riga : pagina.split(QLatin1Char('\n'))) {
        if (riga.startsWith(QStringLiteral("## "))) {
            dentro = riga.mid(3) == titolo;
        }
        const QStringList celle = riga.split(QLatin1Char('|'));
        if (dentro && celle.size() == 7 && celle[1].trimmed().startsWith(QLatin1Char('`'))) {
            righe << Riga{celle[1].trimmed(), celle[4].trimmed()};
        }
    }
    return righe;
}

class Voci : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(Voci, AreThoseOfTheFileInItsOrderWithTheirDefaults) {
    const auto trovata = guida::tavolaVoci(QString::fromUtf8(GetParam().first));
    ASSERT_TRUE(trovata);
    qsizetype riga = 0;
    int confrontati = 0;
    for (const Riga& attesa : righeInglesi(QString::fromUtf8(GetParam().second))) {
        if (riga >= trovata->righe.size() || trovata->righe[riga][0] != attesa.voce) {
            continue;  // a list or an object, which the text around the table tells
        }
        const QString& valore = trovata->righe[riga][2];
        if (valore.startsWith(QLatin1Char('`'))) {
            EXPECT_EQ(valore.toStdString(), attesa.valore.toStdString()) << attesa.voce.toStdString();
            ++confrontati;
        }
        EXPECT_FALSE(trovata->righe[riga][1].isEmpty());
        EXPECT_FALSE(trovata->righe[riga][3].isEmpty());
        ++riga;
    }
    EXPECT_EQ(riga, trovata->righe.size()) << "a property that the page does not have in that place";
    EXPECT_GT(confrontati, 5);
}

INSTANTIATE_TEST_SUITE_P(Tutte, Voci,
                         testing::Values(std::pair{"progetto", "Root"}, std::pair{"ramo", "Leg"},
                                         std::pair{"traffico", "theDatiTraffico"},
                                         std::pair{"composizione", "theComposizioneTraffico"},
                                         std::pair{"analisi", "theAnalisiMarginale"}));

TEST(VociAltre, ListsAndObjectsAreToldByTheTextOfTheirSection) {
    const std::string capitolo = contenuto(KELVO_SORGENTI "/assets/Guida/capitoli/19-voci.md");
    const auto dette = [&](const auto& chiavi) {
        for (const std::string_view chiave : chiavi) {
            EXPECT_NE(capitolo.find("`" + std::string{chiave} + "`"), std::string::npos) << chiave;
        }
    };
    dette(klv::rotonda::altre);
    dette(klv::ramo::altre);
    dette(klv::traffico::altre);
    dette(klv::composizione::altre);
    dette(klv::analisi::altre);
}

TEST(VociAltre, AChoiceTellsWhatItsNumbersStandFor) {
    const auto progetto = guida::tavolaVoci(QStringLiteral("progetto"));
    ASSERT_TRUE(progetto);
    QString analisi;
    for (const QStringList& riga : progetto->righe) {
        if (riga[0] == QStringLiteral("`TipoAnalisi`")) {
            analisi = riga[3];
        }
    }
    EXPECT_EQ(analisi.toStdString(),
              "Tipo di analisi: 0 sola saturazione, 1 curva di traffico, 2 tabella dei flussi per segmento");
}

TEST(VociAltre, AnObjectThatTheFileHasNotIsNoTable) {
    EXPECT_FALSE(guida::tavolaVoci(QStringLiteral("altro")));
}

}  // namespace
}  // namespace kelvo::prove
