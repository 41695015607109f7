#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <algorithm>
#include <memory>

#include "disegno/disposizioneGrafico.h"
#include "disegno/graficiDiProva.h"
#include "scenaLegami.h"
#include "ui/VistaGrafico.h"
#include "ui/stile.h"

namespace kelvo::prove {
namespace {

/// Counts what is painted on a widget.
class Contatore final : public QObject {
public:
    explicit Contatore(QWidget& oggetto) { oggetto.installEventFilter(this); }
    int dipinti = 0;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        dipinti += evento->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(oggetto, evento);
    }
};

struct ProveVistaGrafico : ScenaLegami {
    Grafico grafico{"ctlChartRitardi"};
    ui::VistaGrafico* vista = ui::collega(grafico, &finestra);

    ProveVistaGrafico() { apri(grafico, vista); }
    ~ProveVistaGrafico() override { delete vista; }  // before its chart

    /// The view at this many pixels to one of its own.
    QImage foto(double scala = 1.0) const {
        QImage immagine(vista->size() * scala, QImage::Format_RGB32);
        immagine.setDevicePixelRatio(scala);
        immagine.fill(Qt::magenta);
        vista->render(&immagine);
        return immagine;
    }
    int quanti(Colore colore, double scala = 1.0) const {
        const QImage immagine = foto(scala);
        const QRgb cercato = qRgb(colore.rosso, colore.verde, colore.blu);
        int trovati = 0;
        for (int y = 0; y < immagine.height(); ++y) {
            for (int x = 0; x < immagine.width(); ++x) {
                trovati += immagine.pixel(x, y) == cercato ? 1 : 0;
            }
        }
        return trovati;
    }
};

TEST_F(ProveVistaGrafico, FollowsItsChart) {
    EXPECT_EQ(ui::s(vista->objectName()), "ctlChartRitardi");
    EXPECT_EQ(quanti(tinta::serieRitardi), 0);
    EXPECT_EQ(foto().pixelColor(1, 1), QColor(Qt::white));
    grafico.contenuto(prestazioni(ritardi, 10));
    const int barre = quanti(tinta::serieRitardi);
    EXPECT_GT(barre, 2000);
    grafico.forma(Forma::linee);
    EXPECT_LT(quanti(tinta::serieRitardi), barre / 3);
    grafico.forma(Forma::barre);
    EXPECT_EQ(quanti(tinta::serieRitardi), barre);
    grafico.svuota();
    EXPECT_EQ(quanti(tinta::serieRitardi), 0);
    grafico.visibile(false);
    EXPECT_FALSE(vista->isVisible());
    grafico.visibile(true);
    EXPECT_TRUE(vista->isVisible());
}

TEST_F(ProveVistaGrafico, IsPaintedOnceForManyChangesInOneTurn) {
    QApplication::processEvents();
    Contatore contatore(*vista);
    for (int i = 1; i <= 200; ++i) {
        grafico.contenuto(prestazioni({1.0 * i, 2.0 * i, 3.0}, 20));
    }
    EXPECT_EQ(contatore.dipinti, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return contatore.dipinti > 0; }));
    QApplication::processEvents();
    EXPECT_EQ(contatore.dipinti, 1);
    grafico.contenuto(grafico.contenuto());  // nothing new
    QApplication::processEvents();
    EXPECT_EQ(contatore.dipinti, 1);
}

TEST_F(ProveVistaGrafico, SaysWhatItShowsToWhoDoesNotSeeIt) {
    EXPECT_EQ(ui::s(vista->accessibleDescription()), "Nessun dato");
    grafico.contenuto(prestazioni(ritardi, 10));
    EXPECT_EQ(ui::s(vista->accessibleName()), "Ritardi - S.P. 62 Sud");
    EXPECT_EQ(ui::s(vista->accessibleDescription()), "Ritardi: 18 valori, minimo 3,4, massimo 71,4");
    grafico.contenuto(domanda(3, 30));
    EXPECT_EQ(ui::s(vista->accessibleName()), "[veicoli]/[min]");
    EXPECT_EQ(ui::s(vista->accessibleDescription()),
              "3 valori, minimo 7,95 (07:00-07:30), massimo 12,47 (07:30-08:00)");
}

TEST_F(ProveVistaGrafico, FillsItsRoomAndIsSharpAtEveryScale) {
    Contenuto c = prestazioni(std::vector<double>(18, 40.0), 10);
    c.y = {.massimo = 80.0};
    c.valori = false;
    grafico.contenuto(c);
    const disegno::Disposizione d = disegno::disponi(c, vista->size());
    const QRectF& campo = d.campo;
    EXPECT_GT(campo.right(), vista->width() * 0.9);
    for (const double scala : {1.0, 1.25, 1.5, 2.0}) {
        const QImage immagine = foto(scala);
        // Down through the empty upper half: white and the colour of the grid, nothing blurred.
        int righe = 0;
        for (int y = static_cast<int>((campo.top() + 4.0) * scala); y < (campo.center().y() - 4.0) * scala; ++y) {
            const QColor colore = immagine.pixelColor(static_cast<int>(campo.center().x() * scala), y);
            const bool riga = colore == ui::qcolore(tinta::griglia);
            EXPECT_TRUE(riga || colore == QColor(Qt::white)) << scala << " " << y;
            righe += riga ? 1 : 0;
        }
        EXPECT_GE(righe, static_cast<int>(scala)) << scala;
    }
}

TEST_F(ProveVistaGrafico, IsAStopOfTheTabKeyForItsMenu) {
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "ctlChartRitardi");
    tasto(Qt::Key_Tab);
    EXPECT_EQ(fuoco(), "txtDopo");
}

}  // namespace
}  // namespace kelvo::prove
