#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "checkup/regole.h"
#include "cli/processo.h"
#include "comune/fintiShell.h"
#include "guida/fonti.h"
#include "guida/tavole.h"
#include "guida/valori.h"
#include "shell/MDI_Form.h"
#include "shell/menuPrincipale.h"
#include "shell/registroFinestre.h"
#include "shell/servizi/menuDati.h"
#include "shell/servizi/pagineAiuto.h"
#include "shell/servizi/scorciatoie.h"

namespace kelvo::prove {
namespace {

using guida::Documento;

const QString immagini = QStringLiteral(KELVO_COSTRUZIONE "/assets/Guida/immagini/");

const Documento& guidaIntera() {
    static const Documento letta = documento(QStringLiteral("UserGuide.md"));
    return letta;
}

QString q(std::string_view parole) {
    return QString::fromUtf8(parole.data(), static_cast<qsizetype>(parole.size()));
}

/// The pictures of the section of a window; none where it has no section.
QStringList immaginiDi(const QString& finestra) {
    QStringList nomi;
    bool sua = false;
    for (const guida::Blocco& blocco : guidaIntera().blocchi) {
        if (const auto* titolo = std::get_if<guida::Titolo>(&blocco); titolo != nullptr && titolo->livello <= 2) {
            sua = titolo->finestra == finestra;
        } else if (const auto* figura = std::get_if<guida::Figura>(&blocco); figura != nullptr && sua) {
            nomi << figura->immagine;
        }
    }
    return nomi;
}

bool fatta(const QString& nome) {
    return QFile::exists(immagini + nome + QStringLiteral(".png")) ||
           !QDir(immagini).entryList({nome + QStringLiteral("-Rotatoria_*.png")}).isEmpty();
}

/// The windows of the work area and those that have help: over them, beside them, in the dialogues for files. Two have
/// none, as nobody can ask for it there.
std::set<std::string> finestreDelProgramma() {
    shell::ServiziFinestreFinti servizi;
    FabbricaFinestre finestre;
    registraFinestre(finestre, servizi.servizi());
    std::set<std::string> nomi{"frmSplash", "frmRelazioneProgressBar"};
    for (const std::string& nome : finestre.nomi()) {
        nomi.insert(nome);
    }
    for (const RigaAiuto& riga : righeAiuto()) {
        nomi.insert(std::string{riga.finestra});
    }
    nomi.erase("*");  // a control of any window
    return nomi;
}

TEST(Guida, EveryWindowOfTheProgramHasItsSectionWithAPictureOfIt) {
    const std::set<std::string> finestre = finestreDelProgramma();
    ASSERT_GE(finestre.size(), 35U);
    for (const std::string& nome : finestre) {
        const QStringList sue = immaginiDi(q(nome));
        EXPECT_FALSE(sue.isEmpty()) << nome << " has no section with a picture";
        // "frmLEGENDA" is taken over the window that it explains: "legenda-...".
        const QString breve = q(nome).mid(3).toLower() + QLatin1Char('-');
        EXPECT_TRUE(std::any_of(
            sue.begin(), sue.end(),
            [&](const QString& una) { return (una.contains(q(nome)) || una.startsWith(breve)) && fatta(una); }))
            << nome << " has no picture of its own";
    }
}

TEST(Guida, EveryPictureThatItAsksForWasTaken) {
    int trovate = 0;
    for (const guida::Blocco& blocco : guidaIntera().blocchi) {
        const auto* figura = std::get_if<guida::Figura>(&blocco);
        if (figura == nullptr) {
            continue;
        }
        ++trovate;
        for (const QString& nome : figura->immagine.split(QLatin1Char('+'))) {
            const bool disegno = nome.endsWith(QStringLiteral(".svg"));
            EXPECT_TRUE(disegno ? QFile::exists(QStringLiteral(KELVO_CARTELLA "/Immagini/figure/") + nome)
                                : fatta(nome))
                << nome.toStdString();
        }
        EXPECT_FALSE(figura->didascalia.isEmpty());
    }
    EXPECT_GE(trovate, 40);
}

TEST(Guida, NoLinkLeadsNowhere) {
    for (const char* nome : {"UserGuide.md", "DM19-04-06.md", "SW_KelvoCAD_2010.md"}) {
        EXPECT_EQ(guida::legamiRotti(documento(QString::fromLatin1(nome))), QStringList{}) << nome;
    }
}

TEST(Guida, EveryCommandOfTheCommandLineHasASectionWithItsHelp) {
    const Esito aiuto = kelvoCli({"--help"});
    ASSERT_EQ(aiuto.codice, 0);
    QFile file(fonte(QStringLiteral("capitoli/16-comandi.md")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString capitolo = QString::fromUtf8(file.readAll());
    static const QRegularExpression comando(QStringLiteral(R"(^  ([a-z][a-z-]+) )"),
                                            QRegularExpression::MultilineOption);
    const QString elenco =
        q(aiuto.uscita).section(QStringLiteral("Comandi:"), 1).section(QStringLiteral("Esempi:"), 0, 0);
    int quanti = 0;
    for (auto trovati = comando.globalMatch(elenco); trovati.hasNext();) {
        const QString nome = trovati.next().captured(1);
        ++quanti;
        EXPECT_TRUE(capitolo.contains(QStringLiteral("## kelvo-cli %1 {").arg(nome))) << nome.toStdString();
        EXPECT_TRUE(capitolo.contains(QStringLiteral("@uscita %1 --help").arg(nome))) << nome.toStdString();
    }
    EXPECT_GE(quanti, 14);
}

TEST(Guida, EveryShortcutOfTheProgramIsToldWithWhatItDoes) {
    const guida::Tabella tavola = guida::tavola(QStringLiteral("scorciatoie"));
    const auto azioni = [&](std::string_view tasti) {
        QStringList trovate;
        for (const QStringList& riga : tavola.righe) {
            if (riga.front() == QLatin1Char('`') + q(nomeTasti(tasti)) + QLatin1Char('`')) {
                trovate << riga.back();
            }
        }
        return trovate;
    };
    const QString tutto = testo(guidaIntera());
    ASSERT_GE(MDI_Form::scorciatoie().size(), 12U);
    for (const std::string& tasti : MDI_Form::scorciatoie()) {
        ASSERT_FALSE(azioni(tasti).isEmpty()) << tasti;
        EXPECT_FALSE(azioni(tasti).front().isEmpty()) << tasti;
        EXPECT_TRUE(tutto.contains(QLatin1Char('`') + q(nomeTasti(tasti)) + QLatin1Char('`'))) << tasti;
    }
    EXPECT_EQ(azioni(tastoGuida), QStringList{QStringLiteral("Guida in linea")});
    ASSERT_EQ(azioni(tastoAiuto).size(), 1);
    EXPECT_TRUE(azioni(tastoAiuto).front().startsWith(QStringLiteral("L'aiuto del campo")));
    ASSERT_EQ(azioni(MenuDati::tastoStampa).size(), 1);
    EXPECT_TRUE(azioni(MenuDati::tastoStampa).front().contains(QStringLiteral("geometria")));
}

TEST(Guida, EveryEntryOfTheMenusIsTold) {
    shell::ShellFinta programma;
    programma.disposizione(1);  // by type, as the table has them
    programma.nuovo(3);
    QStringList dette;
    for (const guida::Tabella tavola = guida::tavola(QStringLiteral("menu")); const QStringList& riga : tavola.righe) {
        dette << riga[0] + QLatin1Char('|') + riga[1].section(QStringLiteral(" › "), -1);
    }
    const MenuChiavi& menu = programma.cornice.ctlMenu;
    int quante = 0;
    for (const MenuPrincipale& principale : menuPrincipali) {
        std::vector<std::string> padri{std::string{principale.chiave}};
        while (!padri.empty()) {
            const std::string padre = padri.back();
            padri.pop_back();
            for (const MenuChiavi::Voce* voce : menu.figli(padre)) {
                if (!menu.figli(voce->chiave).empty()) {
                    padri.push_back(voce->chiave);
                } else if (voce->testo != "-" && voce->testo.rfind("Ramo ", 0) != 0) {
                    ++quante;
                    EXPECT_TRUE(dette.contains(q(std::string{principale.testo} + "|" + voce->testo))) << voce->testo;
                }
            }
        }
    }
    EXPECT_GE(quante, 27);
}

/// A message of the rules as the guide tells it: dots in the place of values.
QString conPuntini(std::string_view messaggio) {
    static const QRegularExpression valore(QStringLiteral(R"(\{[a-z]+\})"));
    return q(messaggio).replace(valore, QStringLiteral("…")).trimmed();
}

TEST(Guida, EveryFindingOfTheCheckUpIsToldInItsWords) {
    const QString tutto = testo(guidaIntera());
    int quanti = 0;
    const auto detto = [&](std::string_view messaggio) {
        ++quanti;
        EXPECT_TRUE(tutto.contains(conPuntini(messaggio))) << messaggio;
    };
    for (const auto& regole : {regoleAnagrafica(), regoleProfessionista()}) {
        for (const RegolaCampo& regola : regole) {
            detto(regola.messaggio);
        }
    }
    for (const auto& regole : {regoleToponomastica(), regoleGeometria(), regoleTraffico(), regoleMatriceVeicoli(),
                               regoleComposizione(), regoleComposizioneSegmenti()}) {
        for (const RegolaRamo& regola : regole) {
            detto(regola.messaggio);
        }
    }
    for (const std::string_view messaggio :
         {messaggiRegole::segmentoAmpio, messaggiRegole::diametriDifferenti, messaggiRegole::matriceNulla,
          messaggiRegole::percentualiErrate, messaggiRegole::coefficiente}) {
        detto(messaggio);
    }
    EXPECT_GE(quanti, 40);
}

/// The string literals of the program, those that stand side by side joined, line ends as blanks.
QString parolePrograma() {
    QString tutte;
    static const QRegularExpression giunta(QStringLiteral(R"("\s*\n\s*")"));
    for (const char* cartella : {"/src", "/apps"}) {
        for (const auto& voce : std::filesystem::recursive_directory_iterator(std::string{KELVO_SORGENTI} + cartella)) {
            if (voce.path().extension() == ".cpp" || voce.path().extension() == ".h") {
                QFile file(QString::fromStdString(voce.path().string()));
                if (file.open(QIODevice::ReadOnly)) {
                    tutte += QString::fromUtf8(file.readAll());
                }
            }
        }
    }
    return tutte.replace(giunta, QString{}).replace(QStringLiteral("\\\""), QStringLiteral("\""));
}

TEST(Guida, EveryMessageThatItExplainsIsOneOfTheProgram) {
    const QString programma = parolePrograma();
    bool capitolo = false;
    int quanti = 0;
    for (const guida::Blocco& blocco : guidaIntera().blocchi) {
        if (const auto* titolo = std::get_if<guida::Titolo>(&blocco); titolo != nullptr && titolo->livello == 1) {
            capitolo = titolo->ancora == QStringLiteral("messaggi");
        }
        const auto* tabella = std::get_if<guida::Tabella>(&blocco);
        if (!capitolo || tabella == nullptr) {
            continue;
        }
        for (const QStringList& riga : tabella->righe) {
            ++quanti;
            for (const QString& parte : riga.front().split(QStringLiteral("…"))) {
                constexpr int certa = 6;  // letters; what is shorter stands everywhere
                if (const QString parole = parte.trimmed(); parole.size() >= certa) {
                    EXPECT_TRUE(programma.contains(parole))
                        << riga.front().toStdString() << "\n  " << parole.toStdString();
                }
            }
        }
    }
    EXPECT_GE(quanti, 60);
}

TEST(Guida, EveryFigureOfTheTextIsOneOfTheExamplesAndNoneIsLeftOver) {
    guida::Valori valori(QStringLiteral(KELVO_CARTELLA "/kelvo-cli"), QStringLiteral(KELVO_CARTELLA "/../Progetti"),
                         QStringLiteral("1.2.3"));
    valori.leggi(fonte(QStringLiteral("valori.txt")));
    guida::Fonti fonti = fontiVuote();
    fonti.valore = [&](const QString& nome) { return valori.testo(nome); };
    const Documento letto = guida::leggi(fonte(QStringLiteral("UserGuide.md")), fonti);
    EXPECT_EQ(valori.inutili(), QStringList{});
    const QString tutto = testo(letto);
    EXPECT_FALSE(tutto.contains(QStringLiteral("{{")));
    EXPECT_TRUE(tutto.contains(QStringLiteral("versione 1.2.3")));
    EXPECT_EQ(valori.testo(QStringLiteral("mulini.c")), QStringLiteral("1209,93"));
    EXPECT_EQ(valori.testo(QStringLiteral("mulini.los")), QStringLiteral("A"));
    EXPECT_THROW(valori.testo(QStringLiteral("mulini.manca")), std::runtime_error);
}

TEST(Guida, OutputOfTheCommandLineHasNoTabsAndNoTimeOfTheDay) {
    guida::Valori valori(QStringLiteral(KELVO_CARTELLA "/kelvo-cli"), QStringLiteral(KELVO_CARTELLA "/../Progetti"),
                         QStringLiteral("1.2.3"));
    const QString intero = valori.uscita(QStringLiteral("calcola Rotatoria_Via_dei_Mulini"));
    EXPECT_FALSE(intero.contains(QLatin1Char('\t')));
    EXPECT_TRUE(intero.contains(QStringLiteral("il gg/mm/aaaa hh:mm:ss")));
    EXPECT_EQ(valori.uscita(QStringLiteral("calcola Rotatoria_Via_dei_Mulini 1-1")),
              QStringLiteral("Risultati: Verifiche prestazionali"));
    EXPECT_THROW(valori.uscita(QStringLiteral("calcola Rotatoria_che_manca")), std::runtime_error);
}

TEST(Decreto, TheSheetTellsWhatItIsAndWhereTheTextIsFound) {
    const QString foglio = testo(documento(QStringLiteral("DM19-04-06.md")));
    EXPECT_TRUE(foglio.contains(QStringLiteral("Non è il testo ufficiale")));
    EXPECT_TRUE(
        foglio.contains(QStringLiteral("Gazzetta Ufficiale della Repubblica Italiana n. 170 del 24 luglio 2006")));
    for (const char* limite : {"da 40 a 50 m", "da 25 a 40 m", "da 14 a 25 m", "da 14 a 18 m", "da 18 a 25 m", "0,8 m",
                               "12,50 m", "5,30 m", "6069 del 12 dicembre 2011"}) {
        EXPECT_TRUE(foglio.contains(QString::fromUtf8(limite))) << limite;
    }
}

TEST(Decreto, NoMeasureWithoutASourceIsPrinted) {
    const QString foglio = testo(documento(QStringLiteral("DM19-04-06.md")));
    for (const char* misura :
         {"6,00", "7,00", "8,00", "8,50", "9,00", "3,50", "4,00", "4,50", "45", "15 m", "quarto"}) {
        EXPECT_FALSE(foglio.contains(QString::fromUtf8(misura))) << misura;
    }
}

}  // namespace
}  // namespace kelvo::prove
