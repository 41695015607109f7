#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "calc/modCalcolo.h"
#include "comune/cronometro.h"
#include "results/frmConfronti.h"
#include "scenaRisultati.h"

namespace kelvo::prove {

inline const std::string prefisso = "Grafico Confronto Rami:" + std::string(36, ' ');
inline const std::string prefissoSimulazione = "Simulazione Confronto Rami:" + std::string(36, ' ');

/// An hour in quarters: four instants from 08:00.
struct ProveConfronti : ScenaRisultati {
    CronometroATempo cronometro;
    std::unique_ptr<frmConfronti> f = std::make_unique<frmConfronti>(contorno(), servizi(), cronometro);
    void apriConfronti() {
        f->tempoTrascorso = [this] { return std::chrono::milliseconds(cronometro.adesso()); };
        apri(*f, "keyConfronti");
    }
    void riapri() {
        gestione.chiudiCorrente();
        apriConfronti();
    }
    void calcola() { f->ctlToolbar.premi("keyCalcola"); }
    const std::string& titolo() { return f->ctlChartConfronti.contenuto().titolo; }
    std::vector<double> valori() { return f->ctlChartConfronti.contenuto().serie.at(0).valori; }
    /// What the chart shall show of an instant.
    std::vector<double> attesi(int segmento, const SceltaConfronto& scelta = {}) {
        return valoriDaTesto(Confronto(r()).dati(scelta, segmento));
    }
    void controllaIstante(int segmento, const std::string& ora) {
        EXPECT_EQ(f->Slider1.valore(), segmento);
        EXPECT_EQ(f->listTEMPO.scelta(), segmento - 1);
        EXPECT_EQ(f->txtIstanteTEMPO.testo(), ora);
        EXPECT_EQ(f->txtSIM.testo(), std::to_string(segmento));
        EXPECT_EQ(f->ctlGrid.corrente().colonna, segmento);
    }
    std::vector<Controllo*> pannello() {
        return {&f->cmdPLAY, &f->ImagePLAY, &f->txtTipoVariabile, &f->opzUnita, &f->listTEMPO, &f->Slider1};
    }
    /// All that a playback has to leave alone.
    struct Lasciati {
        std::vector<Iterazione> record;
        std::uint64_t tutto = 0;
        std::uint64_t calcolo = 0;
        Timbro timbro;
        std::string progetto;
        friend bool operator==(const Lasciati&, const Lasciati&) = default;
    };
    Lasciati lasciati() {
        Lasciati trovati{{}, r().revisione().tutto, r().revisione().calcolo, r().timbro(), r().TestoFile()};
        for (int i = 1; i <= 3; ++i) {
            for (std::int16_t s = 1; s <= ramo(i).theDatiTraffico().IterazioniScritte(); ++s) {
                trovati.record.push_back(ramo(i).theDatiTraffico().GetIterazione(s));
            }
        }
        return trovati;
    }
    void controllaPannello(bool aperto) {
        for (const Controllo* c : pannello()) {
            EXPECT_EQ(c->abilitato(), aperto) << c->nome();
        }
        for (const Controllo* c :
             std::initializer_list<Controllo*>{&f->Command1, &f->ImageSTOP, &f->Command3, &f->Command4}) {
            EXPECT_TRUE(c->abilitato()) << c->nome();
        }
    }
};

}  // namespace kelvo::prove
