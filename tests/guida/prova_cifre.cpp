// Figures that the sources of the guide hold as text: those of the example that the first study builds up, and
// constants of the method and of the program.

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QMap>
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "app/Configurazione.h"
#include "base/date.h"
#include "base/numeri.h"
#include "checkup/checkList.h"
#include "cli/processo.h"
#include "guida/fonti.h"
#include "input/frmAnalisiMarginale.h"
#include "input/misureIngresso.h"
#include "model/Rotonda.h"
#include "results/parametriGeometrici.h"

namespace kelvo::prove {
namespace {

constexpr const char* primoStudio = "Rotatoria_Via_dei_Mulini";
constexpr std::size_t angolo = 3;  ///< its place among the six measures

QString q(const std::string& parole) {
    return QString::fromStdString(parole);
}

QString due(double valore) {
    return q(formatta(valore, "#0.00"));
}

/// What stands below a heading of the guide, down to the next one.
guida::Documento sezione(const QString& ancora) {
    static const guida::Documento intera = documento(QStringLiteral("UserGuide.md"));
    guida::Documento sua;
    bool dentro = false;
    for (const guida::Blocco& blocco : intera.blocchi) {
        if (const auto* titolo = std::get_if<guida::Titolo>(&blocco)) {
            dentro = titolo->ancora == ancora;
        }
        if (dentro) {
            sua.blocchi << blocco;
        }
    }
    return sua;
}

/// The tables of a section that have so many columns.
QList<guida::Tabella> tabelle(const QString& ancora, qsizetype colonne) {
    QList<guida::Tabella> trovate;
    for (const guida::Blocco& blocco : sezione(ancora).blocchi) {
        if (const auto* tabella = std::get_if<guida::Tabella>(&blocco);
            tabella != nullptr && tabella->testata.size() == colonne) {
            trovate << *tabella;
        }
    }
    return trovate;
}

void apri(Rotonda& rotonda, const std::string& nome) {
    std::string messaggio;
    bool esito = false;
    rotonda.Load(esempio(nome), messaggio, esito);
    ASSERT_TRUE(esito) << messaggio;
}

std::vector<const Ramo*> rami(const Rotonda& rotonda) {
    std::vector<const Ramo*> tutti;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        tutti.push_back(&rotonda.Ramo(i));
    }
    return tutti;
}

/// The entries of a file of a known case.
QMap<QString, QString> caso(const QString& nome) {
    QFile file(QStringLiteral(KELVO_SORGENTI "/tests/calc/casi/") + nome);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << nome.toStdString();
    QMap<QString, QString> voci;
    for (const QString& riga : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        voci[riga.section(QLatin1Char('='), 0, 0)] = riga.section(QLatin1Char('='), 1);
    }
    return voci;
}

TEST(Cifre, TimesOfTheFirstStudyAreThoseOfItsProject) {
    Rotonda rotonda;
    apri(rotonda, primoStudio);
    const QString tempi = testo(sezione(QStringLiteral("passotempo")));
    EXPECT_TRUE(tempi.contains(q(fmt::format("inizio `{}`, segmento `{}` minuti, fine `{}`. Sono sei segmenti.",
                                             testoHHNN(rotonda.TempoIniziale()), minutoCampo(rotonda.SegmentoTempo()),
                                             testoHHNN(rotonda.TempoFinale())))));
    EXPECT_EQ(rotonda.Ramo(1).theDatiTraffico().NumSegmentiTempo(), 6);
}

TEST(Cifre, MeasuresOfTheFirstStudyAreThoseOfItsProject) {
    Rotonda rotonda;
    apri(rotonda, primoStudio);
    QList<QStringList> attese;
    for (const Ramo* ramo : rami(rotonda)) {
        QStringList riga{q(ramo->Descrizione())};
        for (const MisuraIngresso& misura : misureIngresso) {
            riga << due(static_cast<double>((ramo->*misura.leggi)()));
        }
        attese << riga;
    }
    const auto trovate = tabelle(QStringLiteral("passoingressi"), 7);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().righe, attese);
    const Ramo& attraversato = rotonda.Ramo(3);
    EXPECT_TRUE(attraversato.AttraversamentoPedonale());
    EXPECT_TRUE(
        testo(sezione(QStringLiteral("passoingressi")))
            .contains(q(fmt::format("l'incidenza sulla capacità, {} %",
                                    testoNumero(attraversato.theAnalisiMarginale().AttraversamentoPedonale())))));
}

TEST(Cifre, DemandOfTheFirstStudyIsThatOfItsProject) {
    Rotonda rotonda;
    apri(rotonda, primoStudio);
    const DatiTraffico& primo = rotonda.Ramo(1).theDatiTraffico();
    const std::array tempi{primo.Tempo1(), primo.Tempo2(), primo.Tempo3()};
    QList<QStringList> attese;
    for (std::size_t k = 0; k < tempi.size(); ++k) {
        attese << QStringList{q(fmt::format("*q*~{0}~ a *t*~{0}~ `{1}` [veic/min]", k + 1, testoHHNN(tempi.at(k))))};
    }
    attese << QStringList{QStringLiteral("totale [veicoli]")};
    QStringList testata{QStringLiteral("Domanda")};
    for (const Ramo* ramo : rami(rotonda)) {
        const DatiTraffico& dati = ramo->theDatiTraffico();
        const std::array cifre{dati.FlussoTempo1(), dati.FlussoTempo2(), dati.FlussoTempo3(), dati.FlussoTotale()};
        for (std::size_t k = 0; k < cifre.size(); ++k) {
            attese[static_cast<qsizetype>(k)] << q(testoNumero(cifre.at(k)));
        }
        EXPECT_EQ(testoHHNN(dati.Tempo1()) + testoHHNN(dati.Tempo2()) + testoHHNN(dati.Tempo3()),
                  testoHHNN(tempi[0]) + testoHHNN(tempi[1]) + testoHHNN(tempi[2]));
        testata << q(ramo->Descrizione());
    }
    const auto trovate = tabelle(QStringLiteral("passodomanda"), 4);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().testata, testata);
    EXPECT_EQ(trovate.front().righe, attese);
}

TEST(Cifre, TurnsOfTheFirstStudyAreThoseOfItsProject) {
    Rotonda rotonda;
    apri(rotonda, primoStudio);
    QList<QStringList> attese;
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        QStringList riga{q(rotonda.Ramo(i).Descrizione())};
        float somma = 0.0F;
        for (std::int16_t j = 1; j <= rotonda.NumeroRami(); ++j) {
            const float cella = rotonda.MatriceSvolte(i, j);
            somma += cella;
            riga << (i == j ? QStringLiteral("–") : q(testoNumero(cella)));
        }
        attese << (riga << q(testoNumero(somma)));
    }
    const auto trovate = tabelle(QStringLiteral("passosvolte"), 5);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().righe, attese);
}

TEST(Cifre, CompositionOfTheFirstStudyIsThatOfItsProject) {
    Rotonda rotonda;
    apri(rotonda, primoStudio);
    QList<QStringList> attese;
    for (const char* categoria : {"Autoarticolati", "Autotreni", "Pullman", "Veicoli a due ruote", "Autovetture"}) {
        attese << QStringList{QString::fromUtf8(categoria)};
    }
    for (const Ramo* ramo : rami(rotonda)) {
        const ComposizioneTraffico& c = ramo->theComposizioneTraffico();
        const std::array quote{c.Autoarticolati(), c.Autotreni(), c.Pullman(), c.VeicoliDueRuote(), c.Autovetture()};
        for (std::size_t k = 0; k < quote.size(); ++k) {
            attese[static_cast<qsizetype>(k)] << q(testoNumero(quote.at(k)) + " %");
        }
        EXPECT_EQ(c.Camper() + c.Roulotte(), 0.0F);
    }
    const auto trovate = tabelle(QStringLiteral("passosvolte"), 4);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().righe, attese);
}

TEST(Cifre, WorkedExampleStartsFromTheMeasuresOfItsEntry) {
    Rotonda rotonda;
    apri(rotonda, primoStudio);
    const Ramo& ramo = rotonda.Ramo(1);
    const QString e = due(static_cast<double>(ramo.LarghezzaIngresso()));
    const QString v = due(static_cast<double>(ramo.SemiLarghezza()));
    const QString l = q(testoNumero(ramo.LunghezzaSvasatura()));
    const QString phi = q(testoNumero(ramo.AngoloConflitto()));
    const QString r = q(testoNumero(ramo.RaggioIngresso()));
    const QString D = q(testoNumero(ramo.DiametroInscritto()));
    const auto minuti = minutiTra(rotonda.TempoIniziale(), rotonda.TempoFinale());
    const int intervalli = ramo.theDatiTraffico().NumSegmentiTempo() - 1;
    const QString tutto = testo(sezione(QStringLiteral("esempiosvolto")));
    for (const QString& parte :
         {QStringLiteral("*e* %1 m, *v* %2 m, *l'* %3 m, *φ* %4°, *r* %5 m, *D* %6 m").arg(e, v, l, phi, r, D),
          QStringLiteral("*k* = 1 − 0,00347 (%1 − 30) − 0,978 (1/%2 − 0,05)").arg(phi, r),
          QStringLiteral("*t~D~* = 1 + 0,5 / (1 + exp((%1 − 60)/10))").arg(D),
          QStringLiteral("*S* = 1,6 (%1 − %2) / %3").arg(e, v, l),
          QStringLiteral("*x*~2~ = %1 + 1 / (1 + 2 *S*)").arg(v),
          QStringLiteral("(%1 veic/min per il coefficiente medio")
              .arg(q(testoNumero(ramo.theDatiTraffico().FlussoTempo2()))),
          QStringLiteral("*T* = %1 / (%2 − 1)\t%3 min").arg(minuti).arg(intervalli + 1).arg(minuti / intervalli)}) {
        EXPECT_TRUE(tutto.contains(parte)) << parte.toStdString();
    }
    EXPECT_EQ(ramo.LarghezzaIngresso() - ramo.SemiLarghezza(), 1.0F);
    EXPECT_EQ(minuti % intervalli, 0);
}

TEST(Cifre, ExamplesAreToldAsTheyAre) {
    const std::array analisi{QStringLiteral("sola saturazione"), QStringLiteral("curva di traffico"),
                             QStringLiteral("conteggi")};
    const auto trovate = tabelle(QStringLiteral("esempi"), 5);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().righe.size(), static_cast<qsizetype>(esempi().size()));
    for (const std::string& nome : esempi()) {
        Rotonda rotonda;
        apri(rotonda, nome);
        const QString inizio = q("`" + nome + "`");
        const auto& righe = trovate.front().righe;
        const auto riga =
            std::find_if(righe.begin(), righe.end(), [&](const QStringList& una) { return una[0].startsWith(inizio); });
        ASSERT_TRUE(riga != righe.end()) << nome;
        EXPECT_EQ(riga->at(1), QString::number(rotonda.NumeroRami())) << nome;
        const QString parole = analisi.at(static_cast<std::size_t>(rotonda.TipoAnalisi()));
        const int segmenti = rotonda.Ramo(1).theDatiTraffico().NumSegmentiTempo();
        EXPECT_TRUE(riga->at(2) == parole || riga->at(2) == parole + QStringLiteral(", %1 segmenti").arg(segmenti))
            << nome;
        EXPECT_EQ(riga->at(3), rotonda.TipoFlusso() == 0 ? QStringLiteral("costante") : QStringLiteral("per segmento"))
            << nome;
        EXPECT_EQ(riga->at(4),
                  rotonda.TipoMatriceSvolte() == 0 ? QStringLiteral("veicoli") : QStringLiteral("percentuale"))
            << nome;
    }
}

TEST(Cifre, LinesOfTheMethodAreThoseOfTheKnownCases) {
    QList<QStringList> note;
    for (int i = 1; i <= 9; ++i) {
        const auto voci = caso(QStringLiteral("retta-%1.txt").arg(i));
        QStringList riga;
        for (const char* voce : {"e", "v", "l", "D", "phi", "r", "intercetta", "pendenza", "Qe_500", "Qe_1000"}) {
            riga << QString(voci.value(QString::fromLatin1(voce))).replace(QLatin1Char('.'), QLatin1Char(','));
        }
        note << riga;
    }
    const auto trovate = tabelle(QStringLiteral("capacita"), 10);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_GE(trovate.front().righe.size(), 5);
    for (const QStringList& riga : trovate.front().righe) {
        EXPECT_TRUE(note.contains(riga)) << riga.join(QLatin1Char(' ')).toStdString();
    }
}

TEST(Cifre, QueuesAndDelaysOfTheMethodAreThoseOfTheKnownCases) {
    QList<QStringList> attese;
    for (const char* nome : {"coda-1.txt", "coda-2.txt"}) {
        const auto voci = caso(QString::fromLatin1(nome));
        const auto cifra = [&](const char* voce) { return voci.value(QString::fromLatin1(voce)).toDouble(); };
        attese << QStringList{voci.value(QStringLiteral("f")), q(formatta(cifra("x"), "#0.000")),
                              q(formatta(cifra("coda"), "#0.0")), q(formatta(cifra("ritardo"), "#0.0"))};
        EXPECT_EQ(cifra("c"), 900.0);
        EXPECT_EQ(cifra("T"), 15.0);
        EXPECT_EQ(cifra("percentile"), 95.0);
    }
    const auto trovate = tabelle(QStringLiteral("coda"), 4);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().righe, attese);
    EXPECT_TRUE(testo(sezione(QStringLiteral("coda")))
                    .contains(QStringLiteral("Con *c* = 900 veic/h, *T* = 15 minuti e il 95° percentile")));
}

TEST(Cifre, LimitsOfTheLevelsAreThoseOfTheKnownCase) {
    const auto voci = caso(QStringLiteral("livelli-servizio.txt"));
    QStringList attesa{QStringLiteral("Ritardo [s/veic]")};
    for (const char* livello : {"A", "B", "C", "D", "E"}) {
        attesa << QStringLiteral("fino a ") + voci.value(QString::fromLatin1(livello));
    }
    attesa << QStringLiteral("oltre ") + voci.value(QStringLiteral("E"));
    const auto trovate = tabelle(QStringLiteral("livello"), 7);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().righe, (QList<QStringList>{attesa}));
}

TEST(Cifre, RecommendedRangesAreThoseThatTheWindowTells) {
    const auto trovate = tabelle(QStringLiteral("campodati"), 4);
    ASSERT_EQ(trovate.size(), 1);
    for (const MisuraIngresso& misura : misureIngresso) {
        const QString simbolo = QLatin1Char('*') + q(std::string{misura.simbolo}) + QLatin1Char('*');
        const auto& righe = trovate.front().righe;
        const auto riga =
            std::find_if(righe.begin(), righe.end(), [&](const QStringList& una) { return una[1] == simbolo; });
        ASSERT_TRUE(riga != righe.end()) << misura.simbolo;
        const bool gradi = &misura == &misureIngresso[angolo];
        QString detto = riga->at(3);
        detto.replace(QStringLiteral(",0–"), QStringLiteral("–")).replace(QStringLiteral(",0 m"), QStringLiteral(" m"));
        EXPECT_EQ(detto, q(fmt::format("{}–{}{}", testoNumero(misura.consigliatoMinimo),
                                       testoNumero(misura.consigliatoMassimo), gradi ? "°" : " m")));
    }
}

TEST(Cifre, CoefficientsAreThoseOfTheFactory) {
    const auto trovate = tabelle(QStringLiteral("equivalenti"), 2);
    ASSERT_EQ(trovate.size(), 1);
    QStringList dette;
    for (const QStringList& riga : trovate.front().righe) {
        dette << riga.back();
    }
    QStringList attese;
    for (const float coefficiente : coefficientiDiFabbrica) {
        attese << q(formatta(coefficiente, "#0.0"));
    }
    EXPECT_EQ(dette, attese);
}

TEST(Cifre, StepsOfTheSensitivityAreThoseOfTheirFields) {
    Rotonda rotonda;
    rotonda.NumeroRami(3);
    const AnalisiMarginale& analisi = rotonda.AddRamo("1Ramo").theAnalisiMarginale();
    const auto trovate = tabelle(QStringLiteral("analisimarginale"), 3);
    ASSERT_EQ(trovate.size(), 1);
    ASSERT_EQ(trovate.front().righe.size(), 6);
    for (std::size_t i = 0; i < campiPasso.size(); ++i) {
        const QString unita = i == angolo ? QStringLiteral("°") : QStringLiteral(" m");
        const QStringList& riga = trovate.front().righe[static_cast<qsizetype>(i)];
        EXPECT_EQ(riga[1], q(intervalloAmmesso(campiPasso.at(i))) + unita);
        EXPECT_EQ(riga[2], due((analisi.*parametriGeometrici.at(i).passo)()) + unita);
    }
}

TEST(Cifre, LimitsOfTheSensitivityAreThoseOfTheProgram) {
    constexpr float senza = 1.0e6F;  // beyond it a limit is none
    const auto trovate = tabelle(QStringLiteral("sensibilita"), 4);
    ASSERT_EQ(trovate.size(), 1);
    ASSERT_EQ(trovate.front().righe.size(), 6);
    for (std::size_t i = 0; i < limitiGeometria.size(); ++i) {
        const auto campo = [i](double da, std::optional<double> a) {
            if (i == angolo) {
                return q(fmt::format("{} ÷ {}°", testoNumero(da), testoNumero(a.value_or(0.0))));
            }
            return a ? due(da) + QStringLiteral(" ÷ ") + due(*a) + QStringLiteral(" m")
                     : QStringLiteral("da ") + due(da) + QStringLiteral(" m");
        };
        const Limiti limiti = limitiGeometria.at(i);
        const auto minimo = leggiNumero(testoNumero(limiti.minimo)).value_or(0.0);
        const auto massimo = leggiNumero(testoNumero(limiti.massimo));
        const QStringList& riga = trovate.front().righe[static_cast<qsizetype>(i)];
        EXPECT_EQ(riga[1], i == angolo ? q(testoNumero(minimo) + "°") : due(minimo) + QStringLiteral(" m"));
        EXPECT_EQ(riga[2], campo(minimo, limiti.massimo < senza ? massimo : std::nullopt));
        EXPECT_EQ(riga[3], campo(misureIngresso.at(i).campo.minimo, misureIngresso.at(i).campo.massimo));
    }
}

TEST(Cifre, CheckListIsToldWithItsQuestionsAndItsLevels) {
    int massimo = 0;
    for (const RigaCheckList& riga : righeCheckList) {
        massimo += std::max(riga.si, riga.no);
    }
    EXPECT_TRUE(testo(sezione(QStringLiteral("kelvo")))
                    .contains(QStringLiteral("check list di %1 domande").arg(numeroDomande())));
    EXPECT_TRUE(testo(sezione(QStringLiteral("checklist"))).contains(QStringLiteral("(il massimo è %1)").arg(massimo)));
    QStringList bande{QStringLiteral("Indice")};
    QStringList nomi{QStringLiteral("LIVELLO")};
    for (const FasciaIndice& fascia : fasceIndice) {
        bande << (bande.size() == 1 ? QStringLiteral("sotto %1").arg(fascia.a + 1)
                                    : QStringLiteral("%1–%2").arg(fascia.da).arg(fascia.a));
        nomi << q(std::string{fascia.nome});
    }
    const auto trovate = tabelle(QStringLiteral("checklist"), 8);
    ASSERT_EQ(trovate.size(), 1);
    EXPECT_EQ(trovate.front().testata, bande);
    EXPECT_EQ(trovate.front().righe.front().join(QLatin1Char('|')).toUpper(), nomi.join(QLatin1Char('|')));
}

}  // namespace
}  // namespace kelvo::prove
