#include <gtest/gtest.h>

#include <stdexcept>

#include "guida/fonti.h"
#include "guida/formula.h"

namespace kelvo::prove {
namespace {

using guida::Documento;

const std::string testa = "titolo: Prova\n---\n";

template <class Genere>
const Genere& unico(const Documento& documento, std::size_t quale = 0) {
    return std::get<Genere>(documento.blocchi.at(static_cast<qsizetype>(quale)));
}

TEST(Lettore, HeadOfADocumentTellsItsTitleAndHowItIsLaidOut) {
    const Documento documento = daTesto("titolo: Guida\nsottotitolo: Sotto\ncopertina: si\nindice: si\n---\nTesto.\n");
    EXPECT_EQ(documento.titolo, QStringLiteral("Guida"));
    EXPECT_EQ(documento.sottotitolo, QStringLiteral("Sotto"));
    EXPECT_TRUE(documento.copertina);
    EXPECT_TRUE(documento.indice);
    EXPECT_FALSE(documento.capitoliAPagina);
    EXPECT_THROW(daTesto("colore: rosso\n---\n"), std::runtime_error);
}

TEST(Lettore, HeadingsGetNumbersByChapterAndSection) {
    const Documento documento =
        daTesto(testa + "# Uno {#a}\n\n## Primo\n\n## Secondo {#b finestra=frmX}\n\n# Due\n\n## Terzo\n");
    EXPECT_EQ(unico<guida::Titolo>(documento, 0).numero, QStringLiteral("1"));
    EXPECT_EQ(unico<guida::Titolo>(documento, 2).numero, QStringLiteral("1.2"));
    EXPECT_EQ(unico<guida::Titolo>(documento, 2).finestra, QStringLiteral("frmX"));
    EXPECT_EQ(unico<guida::Titolo>(documento, 2).ancora, QStringLiteral("b"));
    EXPECT_EQ(unico<guida::Titolo>(documento, 4).numero, QStringLiteral("2.1"));
}

TEST(Lettore, LinesOfAParagraphJoinAndAListBelowItIsABlockOfItsOwn) {
    const Documento documento = daTesto(testa + "Prima riga\nseconda riga:\n- uno\n  e ancora\n- due\n");
    EXPECT_EQ(unico<guida::Paragrafo>(documento).testo, QStringLiteral("Prima riga seconda riga:"));
    EXPECT_EQ(unico<guida::Elenco>(documento, 1).voci,
              (QStringList{QStringLiteral("uno e ancora"), QStringLiteral("due")}));
    EXPECT_FALSE(unico<guida::Elenco>(documento, 1).numerato);
}

TEST(Lettore, TablesHaveTheirSidesAndARowOfAnotherWidthIsRefused) {
    const Documento documento = daTesto(testa + "| a | b \\| c |\n|---|---:|\n| 1 | 2 |\n");
    const auto& tabella = unico<guida::Tabella>(documento);
    EXPECT_EQ(tabella.testata, (QStringList{QStringLiteral("a"), QStringLiteral("b | c")}));
    EXPECT_EQ(tabella.lati.at(1), Qt::AlignRight);
    EXPECT_THROW(daTesto(testa + "| a | b |\n|---|---|\n| 1 |\n"), std::runtime_error);
}

TEST(Lettore, APlaceholderIsReplacedEverywhereAndOneWithoutAValueIsRefused) {
    guida::Fonti fonti = fontiVuote();
    fonti.valore = [](const QString& nome) {
        if (nome != QStringLiteral("sette")) {
            throw std::runtime_error("senza valore");
        }
        return QStringLiteral("7");
    };
    const Documento documento =
        daTesto(testa + "Sono {{sette}} e {{ sette }}.\n\n| {{sette}} |\n|---|\n| x |\n", fonti);
    EXPECT_EQ(unico<guida::Paragrafo>(documento).testo, QStringLiteral("Sono 7 e 7."));
    EXPECT_EQ(unico<guida::Tabella>(documento, 1).testata.front(), QStringLiteral("7"));
    EXPECT_THROW(daTesto(testa + "Sono {{otto}}.\n", fonti), std::runtime_error);
}

TEST(Lettore, PicturesTellTheirPartAndTheirWidth) {
    const Documento documento = daTesto(testa + "![Che cosa](nome){intera larghezza=0.5 ritaglio=0,0.1,1,0.8}\n");
    const auto& figura = unico<guida::Figura>(documento);
    EXPECT_TRUE(figura.intera);
    EXPECT_EQ(figura.larghezza, 0.5);
    EXPECT_EQ(figura.ritaglio, QRectF(0.0, 0.1, 1.0, 0.8));
    EXPECT_THROW(daTesto(testa + "![Che cosa](nome){storta}\n"), std::runtime_error);
}

TEST(Lettore, ALinkThatLeadsNowhereIsTold) {
    const Documento documento =
        daTesto(testa + "# Uno {#uno}\n\n[qui](#uno) e [là](#due)\n\n| [tre](#tre) |\n|---|\n| x |\n");
    EXPECT_EQ(guida::legamiRotti(documento), (QStringList{QStringLiteral("due"), QStringLiteral("tre")}));
}

TEST(Lettore, UnknownCommandsAndTablesAreRefused) {
    EXPECT_THROW(daTesto(testa + "@volta\n"), std::runtime_error);
    EXPECT_THROW(daTesto(testa + "@tavola nessuna\n"), std::runtime_error);
    EXPECT_THROW(daTesto(testa + "@includi manca.md\n"), std::runtime_error);
}

TEST(Formule, AnOpenBraceAndAnUnknownWordAreRefused) {
    EXPECT_THROW(guida::componiFormula(QStringLiteral("\\frac{a}{b")), std::runtime_error);
    EXPECT_THROW(guida::componiFormula(QStringLiteral("\\potenza{a}")), std::runtime_error);
    EXPECT_THROW(guida::componiFormula(QStringLiteral("a}")), std::runtime_error);
}

TEST(Formule, AFractionIsHigherThanALineAndAnIndexHangsBelowIt) {
    const guida::Scatola riga = guida::componiFormula(QStringLiteral("a"));
    const guida::Scatola frazione = guida::componiFormula(QStringLiteral("\\frac{a}{b}"));
    const guida::Scatola indice = guida::componiFormula(QStringLiteral("a_2"));
    EXPECT_GT(frazione.sopra + frazione.sotto, 1.5 * (riga.sopra + riga.sotto));
    EXPECT_GT(indice.sotto, riga.sotto);
    EXPECT_GT(indice.larghezza, riga.larghezza);
}

}  // namespace
}  // namespace kelvo::prove
