#include "comune/strumenti.h"
#include "pianta/progetti.h"
#include "scenaPaginePDF.h"

namespace kelvo::disegno {
namespace {

TEST_F(Pagine, ChartsAndPlansOfAPdfAreNoBitmaps) {
    D documento = vuoto();
    documento.blocchi.emplace_back(D::Figura{.contenuto = prove::prestazioni(prove::ritardi, 10)});
    EXPECT_EQ(pdfPagine(documento).dati.find("/Subtype /Image"), std::string::npos);
}

D::Pianta piantaMostrata(const pianta::OpzioniPianta& opzioni = {}) {
    return {std::make_shared<pianta::DatiPianta>(prove::uguali(4, prove::ramoUsuale({}))),
            std::make_shared<pianta::OpzioniPianta>(opzioni)};
}

D::Pianta primoPiano(pianta::Misura misura) {
    return piantaMostrata({.vista = pianta::Vista::primoPiano, .ramo = 1, .misura = misura});
}

/// A document with everything.
D campione() {
    D documento{.titolo = "Documento di prova",
                .progetto = "Rotatoria",
                .progettista = "Ing. Bianchi",
                .chiusura = "Kelvo 1.0.0"};
    documento.blocchi.emplace_back(D::Titolo{"Messaggi", 1});
    for (const auto segno : {D::Segno::errore, D::Segno::verifica, D::Segno::informazione}) {
        documento.blocchi.emplace_back(
            D::Paragrafo{.testo = "Lunghezza svasatura superiore a 30m.", .inizio = "Geometria:", .segno = segno});
    }
    documento.blocchi.emplace_back(D::Paragrafo{.testo = "Una nota in piccolo.", .quieto = true});
    D::Tabella t{.colonne = {{"Domanda", 8.0, AllineamentoCella::sinistra},
                             {"SI", 1.0, AllineamentoCella::centro},
                             {"NO", 1.0, AllineamentoCella::centro}},
                 .righe = {}};
    t.righe.push_back(
        {{.testo = "L'isola centrale è centrata?"}, {.testo = {}, .casella = true}, {.testo = {}, .casella = false}});
    t.righe.push_back({{.testo = "Totale", .grassetto = true, .fondo = colori::dati}, {.testo = "1"}, {.testo = "0"}});
    documento.blocchi.emplace_back(t);
    documento.blocchi.emplace_back(
        D::Figura{.contenuto = prove::prestazioni(prove::ritardi, 10), .larghezza = 0.6, .didascalia = "Ritardi"});
    documento.blocchi.emplace_back(D::Figura{.contenuto = piantaMostrata(), .larghezza = 0.4, .forma = 1.0});
    return documento;
}

TEST_F(Pagine, ThePdfHasAsManyPages) {
    D documento = campione();
    documento.blocchi.emplace_back(tabella(100));
    const EsitoDisegno esito = pdfPagine(documento);
    EXPECT_EQ(esito.errore, "");
    EXPECT_TRUE(esito.dati.starts_with("%PDF-1."));
    EXPECT_EQ(pagineDi(esito.dati), static_cast<int>(impagina(documento).pagine.size()));
}

TEST_F(Pagine, TheWordsOfThePdfCanBeReadBack) {
    if (!prove::conStrumento("pdftotext", "poppler-utils")) {
        GTEST_SKIP() << "pdftotext is not installed";
    }
    prove::CartellaTemporanea cartella;
    prove::scriviContenuto(cartella.file("prova.pdf"), pdfPagine(campione()).dati);
    const std::string comando =
        "pdftotext -layout '" + cartella.file("prova.pdf") + "' '" + cartella.file("prova.txt") + "'";
    ASSERT_EQ(std::system(comando.c_str()), 0);
    const std::string testo = prove::contenuto(cartella.file("prova.txt"));
    for (const char* parola : {"Documento di prova", "Rotatoria", "Ing. Bianchi", "Pagina 1 di", "Geometria:Lunghezza",
                               "L'isola centrale è centrata?", "Ritardi"}) {
        EXPECT_NE(testo.find(parola), std::string::npos) << parola << "\n" << testo;
    }
}

/// A page at two pixels to the point, and places on it.
class Foto {
public:
    Foto(const Impaginato& impaginato, std::size_t pagina)
        : scala_(lunga / impaginato.pagine.at(pagina).foglio.height()),
          immagine_(static_cast<int>(impaginato.pagine.at(pagina).foglio.width() * scala_), static_cast<int>(lunga),
                    QImage::Format_RGB32) {
        immagine_.fill(Qt::white);
        QPainter pennello(&immagine_);
        dipingiPagina(pennello, impaginato, pagina,
                      QRectF(QPointF(0.0, 0.0), impaginato.pagine[pagina].foglio * scala_));
    }
    /// At a place of a square that is told from 0 to 1.
    QColor in(const QRectF& quadro, double x, double y) const {
        return immagine_.pixelColor(static_cast<int>((quadro.left() + x * quadro.width()) * scala_),
                                    static_cast<int>((quadro.top() + y * quadro.height()) * scala_));
    }
    /// Dark pixels in a rectangle.
    int scuri(const QRectF& dove) const {
        int quanti = 0;
        for (auto y = static_cast<int>(dove.top() * scala_); y < static_cast<int>(dove.bottom() * scala_); ++y) {
            for (auto x = static_cast<int>(dove.left() * scala_); x < static_cast<int>(dove.right() * scala_); ++x) {
                quanti += qGray(immagine_.pixel(x, y)) < 128 ? 1 : 0;
            }
        }
        return quanti;
    }

private:
    static constexpr double lunga = 1684.0;
    double scala_;
    QImage immagine_;
};

void simile(const QColor& trovato, const QColor& atteso, const char* dove) {
    constexpr int scarto = 24;
    EXPECT_LT(std::abs(trovato.red() - atteso.red()), scarto) << dove << " " << trovato.name().toStdString();
    EXPECT_LT(std::abs(trovato.green() - atteso.green()), scarto) << dove << " " << trovato.name().toStdString();
    EXPECT_LT(std::abs(trovato.blue() - atteso.blue()), scarto) << dove << " " << trovato.name().toStdString();
}

TEST_F(Pagine, EachSignIsPaintedWhereItStands) {
    const D documento = campione();
    const Impaginato impaginato = impagina(documento);
    const auto& segni = impaginato.pagine.at(0).segni;
    ASSERT_EQ(segni.size(), 3U);
    const Foto foto(impaginato, 0);
    // The ground beside the stroke, the stroke, the paper in the corner.
    simile(foto.in(segni[0].dove, 0.5, 0.15), QColor(176, 0, 32), "errore");
    simile(foto.in(segni[0].dove, 0.5, 0.5), QColor(255, 255, 255), "errore, croce");
    simile(foto.in(segni[1].dove, 0.27, 0.85), QColor(255, 210, 77), "verifica");
    EXPECT_LT(foto.in(segni[1].dove, 0.5, 0.5).lightness(), 100) << "verifica, punto esclamativo";
    simile(foto.in(segni[1].dove, 0.08, 0.2), QColor(255, 255, 255), "verifica, fuori");
    simile(foto.in(segni[2].dove, 0.2, 0.5), QColor(0, 98, 0), "informazione");
    simile(foto.in(segni[2].dove, 0.5, 0.6), QColor(255, 255, 255), "informazione, lettera");
}

TEST_F(Pagine, ATickedBoxIsPaintedWithItsTickAndAnEmptyOneWithout) {
    const D documento = campione();
    const Impaginato impaginato = impagina(documento);
    const auto& caselle = impaginato.pagine.at(0).caselle;
    ASSERT_EQ(caselle.size(), 2U);
    ASSERT_TRUE(caselle[0].spuntata);
    ASSERT_FALSE(caselle[1].spuntata);
    const Foto foto(impaginato, 0);
    for (const PaginaImpaginata::Casella& casella : caselle) {
        const double bordo = casella.dove.width() * 0.15;
        const QRectF dentro = casella.dove.adjusted(bordo, bordo, -bordo, -bordo);
        const QRectF fuori = casella.dove.adjusted(-bordo, -bordo, bordo, bordo);
        if (casella.spuntata) {
            EXPECT_GT(foto.scuri(dentro), 15);
        } else {
            EXPECT_EQ(foto.scuri(dentro), 0);
        }
        // 18 pixels a side.
        EXPECT_GT(foto.scuri(fuori) - foto.scuri(dentro), 36);
    }
}

TEST_F(Pagine, ACloseUpFillsItsPlaceWhateverItsShape) {
    for (const double forma : {0.6, 1.0, 1.4}) {
        D documento = vuoto();
        documento.blocchi.emplace_back(
            D::Figura{.contenuto = primoPiano(pianta::Misura::larghezzaIngresso), .larghezza = 0.55, .forma = forma});
        const Impaginato impaginato = impagina(documento);
        const QRectF dove = impaginato.pagine.at(0).figure.at(0).dove;
        const Foto foto(impaginato, 0);
        // The remark stands at the foot, with little below it.
        QRectF piede = dove;
        piede.setTop(dove.bottom() - 0.07 * dove.height());
        EXPECT_GT(foto.scuri(piede), 20) << forma;
        // The ring reaches the top.
        EXPECT_LT(foto.in(dove, 0.5, 0.02).lightness(), 245) << forma;
    }
}

TEST_F(Pagine, APageLooksAsItDid) {
    const D documento = campione();
    const Impaginato impaginato = impagina(documento);
    QImage immagine(496, 702, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pennello(&immagine);
    dipingiPagina(pennello, impaginato, 0, QRectF(0, 0, 496, 702));
    pennello.end();
    const QString file = QStringLiteral(KELVO_SORGENTI "/tests/disegno/attesi/Pagina.png");
    if (std::getenv("KELVO_RISCRIVI_FIGURE") != nullptr) {
        ASSERT_TRUE(immagine.save(file));
    }
    const QImage attesa = QImage(file).convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(attesa.size(), immagine.size()) << file.toStdString();
    int diversi = 0;
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            diversi += std::abs(qGray(immagine.pixel(x, y)) - qGray(attesa.pixel(x, y))) > 64 ? 1 : 0;
        }
    }
    EXPECT_LT(diversi, immagine.width() * immagine.height() / 200);
}

}  // namespace
}  // namespace kelvo::disegno
