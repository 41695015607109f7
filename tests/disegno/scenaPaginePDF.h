#pragma once

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "comune/cartella.h"
#include "disegno/AmbienteDisegno.h"
#include "disegno/graficiDiProva.h"
#include "disegno/paginePDF.h"
#include "pianta/Pianta.h"

namespace kelvo::disegno {

using D = DocumentoPagine;

inline constexpr double larghezzaA4 = 210.0 / 25.4 * 72.0 * punto;
inline constexpr double altezzaA4 = 297.0 / 25.4 * 72.0 * punto;

class Pagine : public testing::Test {
protected:
    static void SetUpTestSuite() { ambiente_ = std::make_unique<AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    static void TearDownTestSuite() { ambiente_.reset(); }

    static D vuoto() {
        return {.titolo = "Documento di prova",
                .progetto = "Rotatoria",
                .progettista = "Ing. Bianchi",
                .chiusura = "Kelvo 1.0.0"};
    }
    /// The words of a run of lines.
    static std::string parole(const PaginaImpaginata::Brano& brano) {
        const QTextLine prima = brano.testo->lineAt(brano.da);
        const QTextLine ultima = brano.testo->lineAt(brano.a - 1);
        const int fine = ultima.textStart() + ultima.textLength();
        return brano.testo->text().mid(prima.textStart(), fine - prima.textStart()).trimmed().toStdString();
    }
    static std::vector<std::string> parole(const PaginaImpaginata& pagina) {
        std::vector<std::string> tutte;
        for (const PaginaImpaginata::Brano& brano : pagina.brani) {
            tutte.push_back(parole(brano));
        }
        return tutte;
    }
    static bool contiene(const PaginaImpaginata& pagina, const std::string& cercata) {
        const auto tutte = parole(pagina);
        return std::find(tutte.begin(), tutte.end(), cercata) != tutte.end();
    }
    static D::Tabella tabella(int righe) {
        D::Tabella t{.colonne = {{"Segmento", 2.0, AllineamentoCella::sinistra}, {"Flusso", 1.0}, {"Ritardo", 1.0}},
                     .righe = {}};
        for (int r = 1; r <= righe; ++r) {
            t.righe.push_back({{.testo = "riga " + std::to_string(r)}, {.testo = "12,5"}, {.testo = "3,0"}});
        }
        return t;
    }
    /// Nothing stands outside the margins of its page, and no run of lines on another one.
    static void ordinate(const Impaginato& impaginato) {
        for (const PaginaImpaginata& pagina : impaginato.pagine) {
            for (const PaginaImpaginata::Brano& brano : pagina.brani) {
                const QTextLine ultima = brano.testo->lineAt(brano.a - 1);
                const double alta = ultima.y() + ultima.height() - brano.testo->lineAt(brano.da).y();
                EXPECT_GE(brano.posto.y(), 0.0);
                EXPECT_LE(brano.posto.y() + alta, pagina.foglio.height()) << parole(brano);
                EXPECT_GE(brano.posto.x(), 500.0) << parole(brano);
                EXPECT_LE(brano.posto.x() + ultima.width(), pagina.foglio.width() - 500.0) << parole(brano);
            }
        }
    }
    /// Pages of a PDF file, by their objects.
    static int pagineDi(const std::string& pdf) {
        int quante = 0;
        for (std::size_t i = pdf.find("/Type /Page\n"); i != std::string::npos; i = pdf.find("/Type /Page\n", i + 1)) {
            ++quante;
        }
        return quante;
    }

private:
    static inline std::unique_ptr<AmbienteDisegno> ambiente_;
};

}  // namespace kelvo::disegno
