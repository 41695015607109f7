#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "calc/ricercaCurva.h"
#include "shell/servizi/FinestraRamo.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Demand of one entry as a curve: flow rising from q1 at t1 to the peak q2 at t2, then falling to q3 at t3. The window
/// shows the bars that the curve gives and their totals, and searches the peak for a given total.
class frmDatiTraffico final : public FinestraRamo {
public:
    explicit frmDatiTraffico(const Contorno& contorno);

    tBox txtDescrizioneRamo{"txtDescrizioneRamo", tBox::textbox};                  ///< name of the leg, read-only
    tBox txtIntervalloTempo{"txtIntervalloTempo", tBox::textbox, "Type:Numeric"};  ///< minutes of a segment, read-only
    tBox txtTempo1{"txtTempo1", tBox::dtpicker};                                   ///< t1, start of the curve
    tBox txtTempo2{"txtTempo2", tBox::dtpicker};                                   ///< t2, time of the peak
    tBox txtTempo3{"txtTempo3", tBox::dtpicker};  ///< t3, end; closed on a flat curve that t2 can end
    tBox txtFlussoTempo1{"txtFlussoTempo1", tBox::maskedit, "Type:Numeric"};  ///< q1, veic/min
    tBox txtFlussoTempo2{"txtFlussoTempo2", tBox::maskedit, "Type:Numeric"};  ///< q2, the peak, veic/min
    tBox txtFlussoTempo3{"txtFlussoTempo3", tBox::maskedit, "Type:Numeric"};  ///< q3, veic/min
    tBox txtFlussoTotale{"txtFlussoTotale", tBox::textbox, "Type:Numeric"};   ///< vehicles, read-only
    tBox txtFlussoMedio{"txtFlussoMedio", tBox::textbox, "Type:Numeric"};     ///< veic/min, read-only
    tBox txtFlussoOrario{"txtFlussoOrario", tBox::textbox, "Type:Numeric"};   ///< veic/h, read-only
    Casella Check1;                                                           ///< figures over the bars
    Casella Check2;                                                           ///< the curve is searched, not typed
    Etichetta lblTarget;                                                      ///< what `txtTarget` is
    tBox txtTarget{"txtTarget", tBox::maskedit, "Type:Numeric"};              ///< vehicles that the search is to bring
    Etichetta lblUnitaTarget;                                                 ///< its unit
    Bottone Command1;                                                         ///< starts the search
    BarraProgresso prgCurva{"prgCurva", 0, passiMassimiRicerca};              ///< how far the search has come
    Etichetta lblApprox{"lblApprox"};                                         ///< how near the search came
    Grafico ctlChart{"ctlChart"};                                             ///< the bars, veic/min by time segment

    /// What stands beside a field.
    struct Riga {
        std::string_view etichetta;
        tBox* campo = nullptr;
        std::string_view unita;
    };
    /// The fields with their labels, in reading order; `txtTarget` has controls of its own.
    std::vector<Riga> righe();

    /// The bars as they were last built; what they were where the times give no segment.
    const CurvaTraffico& curva() const { return curva_; }

    /// Binds the window to the leg of the node at hand, reads it, builds its curve; the curve is typed, not searched.
    void attivata() override;
    /// Copies the leg to the fields; the curve is not built.
    void ReadData() override;
    /// Offers the curve back that a change of the times took from the leg, once; taken back, it is as if typed.
    void ReadBackUpData();
    /// Writes the parameters and totals to the leg. With nothing changed by the user it writes nothing.
    void SaveData() override;
    /// Builds the bars and the totals from the fields, and closes q3 on a flat curve; t3 too, unless it lies outside
    /// the study or no earlier t2 could open it again. Where the times give no segment bars and totals stay as they
    /// were.
    void CostruisciCurva();
    /// Shows the bars.
    void DoTheChart();
    /// Searches the peak that brings `txtTarget` vehicles.
    void CalcolaCurva();

protected:
    void rileggi() override;

private:
    /// A flow or a total, and where the leg holds it.
    struct LegameNumero {
        tBox frmDatiTraffico::*campo;
        float (DatiTraffico::*leggi)() const;
        void (DatiTraffico::*scrivi)(float);
    };
    struct LegameTempo {
        tBox frmDatiTraffico::*campo;
        DataOra (DatiTraffico::*leggi)() const;
        void (DatiTraffico::*scrivi)(DataOra);
    };
    static const std::array<LegameNumero, 6> legamiNumeri;
    static const std::array<LegameTempo, 3> legamiTempi;

    void collega();
    bool modificata() const;
    void segnaSalvati();
    void mostraDaCapo();
    DatiTraffico& dati() { return ramo().theDatiTraffico(); }
    const DatiTraffico& dati() const { return ramo().theDatiTraffico(); }

    // Leaving of the fields.
    EsitoUscita controllaNumero(const tBox& campo) const;
    EsitoUscita controllaTempo(std::size_t quale);
    EsitoUscita rifiutaTempo(std::size_t quale, EsitoUscita esito);
    EsitoUscita esaminaTempo1() const;
    EsitoUscita esaminaTempo2() const;
    EsitoUscita esaminaTempo3() const;
    void dopoFlusso(const tBox& campo);
    void dopoTempo();
    void confronta();

    // The curve.
    double flusso(const tBox& campo) const;
    DataOra tempo(std::size_t quale) const;
    int minutiSegmento() const;
    bool soloTempo3Riapre() const;
    DatiCurva datiMostrati() const;
    void mostraTotali();
    void disegna();

    // The search.
    void cambiaModo();
    bool cerca();
    void conclusa(const RisultatoRicerca& risultato);
    void apriFlussi();
    void mostraApprossimazione();
    void messaggioSopra(const char* testo, const char* titolo, Icona icona);

    CurvaTraffico curva_;
    bool costruita_ = false;           ///< the curve was built when it was last tried
    std::array<bool, 3> segnalato_{};  ///< of a time that the leg holds: what is wrong with it has been told
};

}  // namespace kelvo
