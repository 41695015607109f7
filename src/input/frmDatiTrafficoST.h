#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/FinestraRamo.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Demand of one entry as counts: the vehicles of each time segment, as surveyed, with their histogram and totals.
class frmDatiTrafficoST final : public FinestraRamo {
public:
    /// `dialogo` chooses the file of an import; without one there is none.
    explicit frmDatiTrafficoST(const Contorno& contorno, DialogoAnteprima* dialogo = nullptr);

    /// One row a segment below the headings: "HH:NN - HH:NN" and its vehicles, decimals allowed.
    Griglia ctlGrid{"ctlGrid"};
    tBox txtDescrizioneRamo{"txtDescrizioneRamo", tBox::textbox};                  ///< name of the leg, read-only
    tBox txtIntervalloTempo{"txtIntervalloTempo", tBox::textbox, "Type:Numeric"};  ///< minutes of a segment, read-only
    tBox txtFlussoTotale{"txtFlussoTotale", tBox::textbox, "Type:Numeric"};        ///< vehicles, read-only
    tBox txtFlussoMedio{"txtFlussoMedio", tBox::textbox, "Type:Numeric"};          ///< veic/min, read-only
    tBox txtFlussoOrario{"txtFlussoOrario", tBox::textbox, "Type:Numeric"};        ///< veic/h, read-only
    Bottone cmdImportaCSV;         ///< takes the counts of a CSV file into the cells
    Casella Check1;                ///< figures over the bars
    Grafico ctlChart{"ctlChart"};  ///< the bars, vehicles by time segment

    /// What stands beside a field.
    struct Riga {
        std::string_view etichetta;
        tBox* campo = nullptr;
        std::string_view unita;
    };
    /// Name and length of a segment, then the totals.
    std::array<Riga, 5> righe();

    /// Vehicles of each segment of the modelling time, from 0, as they were last added up.
    const std::vector<float>& FlussiSegmento() const { return flussi_; }
    /// Their labels "HH:NN-HH:NN".
    const std::vector<std::string>& EtichetteSegmento() const { return etichette_; }

    /// Binds the window to the leg of the node at hand, reads it and draws its bars.
    void attivata() override;
    /// Copies the leg to the fields and to the grid; the totals are those that the leg holds.
    void ReadData() override;
    /// Offers the counts back that a change of the times took from the leg, once; taken back, they are as if typed.
    void ReadBackUpData();
    /// Writes totals and counts to the leg. With no count changed by the user it writes nothing; the key of the tool
    /// bar puts totals right that do not agree with the counts.
    void SaveData() override;
    /// Adds up the counts that the grid shows over the modelling time, in single precision; a segment without a row
    /// counts as 0. Where the modelling time has no segment bars and totals stay as they were. Fault 11 for segments of
    /// 0 minutes, fault 6 for a total too large for a single.
    void AggiornaTotali();
    /// Draws the bars; a failure is told.
    void DoTheChart();
    /// Hands the bars to the chart.
    void RefreshGraph();

    // CustodeCampi
    void entrato(Controllo& campo) override;

protected:
    void rileggi() override;
    void aggiornaDati() override;
    void legata() override;

private:
    /// A total, and where the leg holds it.
    struct LegameNumero {
        tBox frmDatiTrafficoST::*campo;
        float (DatiTraffico::*leggi)() const;
        void (DatiTraffico::*scrivi)(float);
    };
    static const std::array<LegameNumero, 3> legamiNumeri;

    void preparaGriglia();
    Tabella tabellaConteggi() const;
    void mostraDaCapo();
    EsitoUscita confermaCella(std::string& testo);
    EsitoUscita esaminaBlocco(std::vector<TestoCella>& celle) const;
    void cellaLasciata();
    bool leggiBarre();
    void salva(bool sempre);
    void scriviRamo();
    float valore(int riga) const;
    int minutiSegmento() const;
    DatiTraffico& dati() { return ramo().theDatiTraffico(); }
    const DatiTraffico& dati() const { return ramo().theDatiTraffico(); }

    std::int16_t mostrato_ = 0;  ///< leg whose counts stand in the grid
    std::vector<float> flussi_;
    std::vector<std::string> etichette_;
    float totale_ = 0.0F;
};

}  // namespace kelvo
