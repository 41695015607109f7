// Paper: the pages that reach a printer.

#include "ui/StampaQt.h"

#include <gtest/gtest.h>

#include <QtGui/QPageSize>
#include <QtPrintSupport/QPrinter>
#include <string>
#include <vector>

#include "comune/cartella.h"
#include "disegno/impaginazione.h"
#include "ui/legami.h"

namespace kelvo::prove {
namespace {

DocumentoPagine lungo() {
    DocumentoPagine documento{.titolo = "Prova", .progetto = "Rotatoria"};
    for (int i = 0; i < 150; ++i) {
        documento.blocchi.emplace_back(DocumentoPagine::Paragrafo{"Un paragrafo."});
    }
    return documento;
}

int pagineDi(const std::string& pdf) {
    int quante = 0;
    for (std::size_t i = pdf.find("/Type /Page\n"); i != std::string::npos; i = pdf.find("/Type /Page\n", i + 1)) {
        ++quante;
    }
    return quante;
}

class SuCarta : public testing::Test {
protected:
    /// Prints into a file; the pages that came out.
    int stampate(QPrinter& stampante) {
        const std::string file = cartella.file("carta.pdf");
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(ui::q(file));
        const EsitoStampa esito = ui::StampaQt::stampaSu(stampante, lungo());
        EXPECT_EQ(esito.errore, "");
        EXPECT_FALSE(esito.annullata);
        return pagineDi(contenuto(file));
    }
    CartellaTemporanea cartella;
};

TEST_F(SuCarta, AllPagesComeOutWhereNoRangeIsTold) {
    QPrinter stampante(QPrinter::HighResolution);
    const auto pagine = static_cast<int>(disegno::impagina(lungo()).pagine.size());
    ASSERT_GE(pagine, 3);
    EXPECT_EQ(stampate(stampante), pagine);
}

TEST_F(SuCarta, ARangeIsKept) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setFromTo(2, 3);
    EXPECT_EQ(stampate(stampante), 2);
}

TEST_F(SuCarta, APartWithAWideTableLiesAmongPagesThatStand) {
    DocumentoPagine documento{.titolo = "Prova", .progetto = "Rotatoria"};
    DocumentoPagine::Tabella larga;
    std::vector<DocumentoPagine::Cella> riga;
    for (int c = 0; c < 20; ++c) {
        larga.colonne.push_back({"c" + std::to_string(c), 1.0});
        riga.push_back({.testo = "1234,56"});
    }
    larga.righe.push_back(riga);
    documento.blocchi = {DocumentoPagine::Titolo{"Prima", 1}, DocumentoPagine::Paragrafo{"Poche parole."},
                         DocumentoPagine::Titolo{"Larga", 1}, larga};
    const auto pagine = disegno::impagina(documento).pagine;
    ASSERT_EQ(pagine.size(), 2U);
    ASSERT_NE(pagine[0].foglio, pagine[1].foglio);
    const std::string ritta = "/MediaBox [0 0 595";
    const std::string coricata = "/MediaBox [0 0 842";
    for (const int sola : {0, 1, 2}) {
        QPrinter stampante(QPrinter::HighResolution);
        stampante.setPageSize(QPageSize(QPageSize::A4));
        const std::string file = cartella.file("mista.pdf");
        stampante.setOutputFormat(QPrinter::PdfFormat);
        stampante.setOutputFileName(ui::q(file));
        if (sola > 0) {
            stampante.setFromTo(sola, sola);
        }
        EXPECT_EQ(ui::StampaQt::stampaSu(stampante, documento).errore, "");
        const std::string pdf = contenuto(file);
        EXPECT_EQ(pagineDi(pdf), sola > 0 ? 1 : 2) << sola;
        EXPECT_EQ(pdf.find(ritta) != std::string::npos, sola != 2) << sola;
        EXPECT_EQ(pdf.find(coricata) != std::string::npos, sola != 1) << sola;
        EXPECT_TRUE(sola != 0 || pdf.find(ritta) < pdf.find(coricata)) << "in their order";
    }
}

TEST_F(SuCarta, APrinterThatCannotWriteIsTold) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(ui::q(cartella.file("manca/carta.pdf")));
    EXPECT_EQ(ui::StampaQt::stampaSu(stampante, lungo()).errore, "la stampante non risponde");
}

}  // namespace
}  // namespace kelvo::prove
