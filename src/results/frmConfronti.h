#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

#include "results/FinestraRisultati.h"
#include "results/PiantaLivelli.h"
#include "results/confronto.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/scelte.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// All entries side by side: a chart of one quantity at one instant, which is chosen by hand or runs over the modelling
/// window by itself; beside it the plan with levels and queues of that instant, below it the whole table.
///
/// Coming up for the first time it calculates. Later it shows what the last calculation left, whichever window ran it,
/// and calculates again only where the records are gone.
class frmConfronti final : public FinestraRisultati {
public:
    /// `cronometro` is this window's alone and outlives it.
    frmConfronti(const Contorno& contorno, const ServiziRisultati& servizi, Cronometro& cronometro);
    frmConfronti(const frmConfronti&) = delete;
    frmConfronti& operator=(const frmConfronti&) = delete;
    ~frmConfronti() override;

    // Pause between two instants of the playback, milliseconds.
    static constexpr std::int16_t pausaMinima = 500;
    static constexpr std::int16_t pausaMassima = 5000;
    static constexpr std::int16_t passoPausa = 500;

    Riquadro frVARIABILE;
    tBox txtTipoVariabile{"txtTipoVariabile", tBox::combobox};
    GruppoOpzioni opzUnita;  ///< Option1veich, Option2veicmin
    Etichetta lblUnita{"lblUnita"};
    Riquadro frISTANTE;
    Elenco listTEMPO{"listTEMPO"};  ///< starts of the segments
    Riquadro frSIMULAZIONE;
    Bottone ImagePLAY{"ImagePLAY"};
    Bottone cmdPLAY;
    Bottone ImageSTOP{"ImageSTOP"};
    Bottone Command1;  ///< stop
    Bottone ImagePIU{"ImagePIU"};
    Bottone Command3;  ///< faster
    Bottone ImageMENO{"ImageMENO"};
    Bottone Command4;  ///< slower
    Etichetta lblPausa{"lblPausa"};
    Etichetta lblSIM;
    Etichetta txtSIM{"txtSIM"};  ///< position of the instant in view, from 1
    Etichetta txtdescrizioneGRAFICO{"txtdescrizioneGRAFICO"};
    Etichetta txtVARselezionata{"txtVARselezionata"};
    Etichetta txtIstanteTEMPO{"txtIstanteTEMPO"};
    Scorrimento Slider1{"Slider1", 1, 1};
    Grafico ctlChartConfronti{"ctlChartConfronti"};
    PiantaLivelli ctlPianta{"ctlPianta"};
    Griglia ctlGrid{"ctlGrid"};  ///< entries by instants; its cursor stands on the instant in view

    /// A clock that only goes forward; the pause of an instant is counted on it.
    std::function<std::chrono::milliseconds()> tempoTrascorso;

    void attivata() override;
    /// Ends a playback.
    void nascosta() override;
    bool inSimulazione() const { return inSimulazione_; }
    std::int16_t PausaSimulazione() const { return PausaSimulazione_; }
    /// Top of the axis of values for the variable in view.
    float MassimoGrafico() const { return MassimoGrafico_; }
    /// The report of the chart in view.
    RelazioneGrafica perRelazione() const;

protected:
    void calcola() override;
    /// The report of the chart in view; what is missing or old is calculated first. A playback ends.
    void relazione() override;
    std::string testoAnteprima() override;
    std::string nomeAnteprima() const override { return "Confronto.txt"; }
    std::string motivoFlussi() const override;
    Blocchi figureSuCarta() const override;

private:
    /// What the title of the chart tells: the variable; the instant too; a running playback.
    enum class Titolo { variabile, istante, simulazione };

    void ordinaControlli();
    void collega();
    void collegaSimulazione();
    void leggi();
    void cambiaUnita();
    void mostraVariabile();
    void mostraIstante(int posizione);
    void scelto(int posizione);
    void disegna();
    void aggiornaPianta();
    void play();
    void fotogramma(int posizione);
    void attendi();
    void rintocco();
    void fine();
    void pausa(int aggiunta);
    void abilitaPannello(bool valore);
    SceltaConfronto scelta() const;
    /// An entry has no record.
    bool recordScartati() const;

    Cronometro& cronometro_;
    Confronto confronto_;
    std::int16_t PausaSimulazione_ = 1000;
    float MassimoGrafico_ = 0.0F;
    std::chrono::milliseconds disegnato_{};  ///< when the playback drew the instant in view
    int posizione_ = 0;                      ///< of the instant in view, from 1; 0 for none
    Titolo titolo_ = Titolo::variabile;
    bool inSimulazione_ = false;
};

}  // namespace kelvo
