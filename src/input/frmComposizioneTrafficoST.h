#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "model/ComposizioneTraffico.h"
#include "shell/servizi/DialogoAnteprima.h"
#include "shell/servizi/FinestraRamo.h"
#include "shell/servizi/Griglia.h"

namespace kelvo {

/// Vehicle mix of one entry by time segment: vehicles of the seven classes, their total, and beside it what enters.
///
/// Rows: the headings, then one a segment. Columns: the interval, the classes, the total, the flow. One column at a
/// time may be locked: it takes what the others leave of the flow.
class frmComposizioneTrafficoST final : public FinestraRamo {
public:
    /// `dialogo` chooses the file of an import; without one there is none.
    explicit frmComposizioneTrafficoST(const Contorno& contorno, DialogoAnteprima* dialogo = nullptr);

    Griglia ctlGrid{"ctlGrid"};
    Etichetta lblBlocca;                        ///< what the check boxes do
    std::array<Casella, numeroClassi> chkLock;  ///< "chkLock1" to "chkLock7", over their columns; one ticked at most
    Bottone cmdImportaCSV;                      ///< takes the vehicles of a CSV file into the cells
    Etichetta lblSegmento{"lblSegmento"};       ///< total and flow of the segment of the cursor
    Etichetta lblStato{"lblStato"};             ///< the same of all segments, or what has to be done first
    Etichetta lblErroreStato{"lblErroreStato", {}, "ROSSO"};  ///< stands in its place where a total exceeds its flow

    /// Binds the window to the leg of the node at hand and reads it; no column is locked.
    void attivata() override;
    /// Reads the table of the leg and the flows of its demand; locks stay.
    void ReadData() override;
    /// Offers the table back that a change of the times took from the leg, once; taken back, it is as if typed.
    void ReadBackUpData();
    /// Writes the cells that were changed.
    void SaveData() override;

    /// The column that is locked, 1 to 7.
    std::optional<int> bloccata() const;

private:
    void preparaGriglia();
    void importa(DialogoAnteprima& dialogo);
    void spunta(std::size_t quale);
    void copiaPrimaRiga();
    EsitoUscita confermaCella(Posto posto, std::string& testo);
    EsitoUscita esaminaBlocco(std::vector<TestoCella>& celle) const;
    std::optional<MessaggioCampo> eccedenza(const std::vector<TestoCella>& nuove) const;
    void modificate(const std::vector<Posto>& posti);
    void applicaBlocco(Tabella& tabella, int riga) const;
    void coloraBloccata();
    OrnamentoCella ornamento(Posto posto) const;
    std::vector<double> flussi();
    void mostraSegmento();
    void mostraStato();
    void mostraAiuto();

    bool copia_ = false;  ///< whole rows are being put there: their texts stay as they are
};

}  // namespace kelvo
