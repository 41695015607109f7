// Paper: the pages that reach a printer.

#include "ui/StampaQt.h"

#include <gtest/gtest.h>

#include <QtPrintSupport/QPrinter>
#include <string>

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

TEST_F(SuCarta, APrinterThatCannotWriteIsTold) {
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setOutputFormat(QPrinter::PdfFormat);
    stampante.setOutputFileName(ui::q(cartella.file("manca/carta.pdf")));
    EXPECT_EQ(ui::StampaQt::stampaSu(stampante, lungo()).errore, "la stampante non risponde");
}

}  // namespace
}  // namespace kelvo::prove
