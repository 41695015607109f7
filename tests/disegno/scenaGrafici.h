#pragma once

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <algorithm>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "disegno/AmbienteDisegno.h"
#include "disegno/disposizioneGrafico.h"
#include "disegno/graficiDiProva.h"
#include "disegno/pittoreGrafico.h"

namespace kelvo::disegno {

namespace prova = kelvo::prove;
using prova::Contenuto;
using prova::Forma;
using Forme = Disposizione::Forme;
using Testi = Disposizione::Testi;

inline const QSizeF usuale(700, 440);
inline const QSizeF piccola(320, 200);
inline const QSizeF grande(1600, 900);

/// Charts laid out and painted.
class Grafici : public testing::Test {
protected:
    static void SetUpTestSuite() { ambiente_ = std::make_unique<AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    static void TearDownTestSuite() { ambiente_.reset(); }

    static std::vector<Disposizione::Testo> di(const Disposizione& d, Testi ruolo) {
        std::vector<Disposizione::Testo> trovati;
        std::copy_if(d.testi.begin(), d.testi.end(), std::back_inserter(trovati),
                     [&](const Disposizione::Testo& t) { return t.ruolo == ruolo; });
        return trovati;
    }
    static std::vector<QRectF> di(const Disposizione& d, Forme ruolo) {
        std::vector<QRectF> trovati;
        for (const Disposizione::Riquadro& r : d.riquadri) {
            if (r.ruolo == ruolo) {
                trovati.push_back(r.dove);
            }
        }
        return trovati;
    }
    static std::vector<std::string> parole(const Disposizione& d, Testi ruolo) {
        std::vector<std::string> trovate;
        for (const Disposizione::Testo& t : di(d, ruolo)) {
            trovate.push_back(t.parole.toStdString());
        }
        return trovate;
    }
    static QImage dipinto(const Contenuto& c, QSizeF misura, double scala = 1.0) {
        QImage immagine((misura * scala).toSize(), QImage::Format_RGB32);
        immagine.setDevicePixelRatio(scala);
        immagine.fill(Qt::white);
        QPainter pennello(&immagine);
        dipingiGrafico(pennello, c, QRectF(QPointF(0, 0), misura));
        return immagine;
    }

private:
    static inline std::unique_ptr<AmbienteDisegno> ambiente_;
};

/// Every kind of chart.
inline std::map<std::string, Contenuto> tutti() {
    return {{"ritardi", prova::prestazioni(prova::ritardi, 10)},
            {"linee", prova::prestazioni(prova::ritardi, 10, Forma::linee)},
            {"tre", prova::prestazioni({3.4, 61.8, 5.2}, 20)},
            {"settantadue", prova::prestazioni(prova::onda(72, 4.1, 71.4), 5)},
            {"settantadue linee", prova::prestazioni(prova::onda(72, 4.1, 71.4), 5, Forma::linee)},
            {"domanda 3", prova::domanda(3, 30)},
            {"domanda 18", prova::domanda(18, 10)},
            {"domanda 72", prova::domanda(72, 5)},
            {"livelli", prova::livelli(Forma::barre)},
            {"livelli linee", prova::livelli(Forma::linee)},
            {"torta", prova::composizione(Forma::torta)},
            {"torta pari", prova::composizione(Forma::torta, {10, 20, 15, 12, 13, 14, 16})},
            {"torta di una", prova::composizione(Forma::torta, {0, 0, 0, 0, 0, 0, 100})},
            {"categorie", prova::composizione(Forma::barre)},
            {"confronto", prova::confronto()},
            {"sensibilita", prova::sensibilita()},
            {"soglie", prova::conSoglie(Forma::barre)},
            {"soglie linee", prova::conSoglie(Forma::linee)},
            {"due serie", prova::dueSerie()},
            {"negativi", prova::conNegativi()},
            {"vuoto", prova::senzaDati()},
            {"tornado", prova::tornado()},
            {"tornado di uno", prova::tornado(1)}};
}

}  // namespace kelvo::disegno
