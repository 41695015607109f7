#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "results/ServiziRisultati.h"
#include "results/frmAnteprimaTesto.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/campiNumerici.h"
#include "shell/servizi/tBox.h"

namespace kelvo {

/// Smallest, largest and mean values of one entry, and the thresholds that its table shows in colour.
class frmRAMO_AGGIUNTIVA final : public Finestra {
public:
    frmRAMO_AGGIUNTIVA(const Contorno& contorno, const ServiziRisultati& servizi);
    frmRAMO_AGGIUNTIVA(const frmRAMO_AGGIUNTIVA&) = delete;
    frmRAMO_AGGIUNTIVA& operator=(const frmRAMO_AGGIUNTIVA&) = delete;
    ~frmRAMO_AGGIUNTIVA() override;

    /// A threshold: its tick, its lower and its upper value. The sixth is of the level of service.
    struct Soglia {
        Casella spunta;
        tBox minimo;
        tBox massimo;
    };

    BarraStrumenti ctlToolbar;  ///< Anteprima, Ritorno
    BarraStrumenti* barra() override { return &ctlToolbar; }
    Riquadro frRIASSUNTO;
    Griglia ctlGRID1{"ctlGRID1"};
    Etichetta lblMinLOS;
    tBox txtminLOS{"txtminLOS", tBox::textbox};  ///< level of the smallest code of the entry, read-only
    Etichetta lblMaxLOS;
    tBox txtmaxLOS{"txtmaxLOS", tBox::textbox};  ///< level of the largest one, read-only
    /// What is in force, in one line; stands below the summary, and where it would.
    Etichetta lblInVigore;
    Riquadro frMARKER;
    Etichetta lblInferiore;  ///< over the lower values
    Etichetta lblSuperiore;  ///< over the upper values
    std::array<Soglia, 6> soglie;
    /// In which project the thresholds were set; hidden while none is on.
    Etichetta lblProgetto{"lblProgetto"};
    Bottone cmdAzzera;  ///< takes the thresholds of the entry away
    /// Tells that the entry has no thresholds, and why; else hidden.
    Etichetta lblSenzaSoglie{"lblSenzaSoglie", {}, "ROSSO"};

    PannelloAiuto ctlHelp{"ctlHelp"};
    PannelloAiuto* aiuto() override { return &ctlHelp; }

    /// What the window is opened for.
    struct Apertura {
        std::int16_t ramo = 0;   ///< number of the entry, from 1
        bool riassunto = false;  ///< the summary is asked for; it is shown too where the thresholds are not
        bool marker = false;     ///< the thresholds are asked for
    };
    /// Binds the window to an entry; read when it comes up.
    void prepara(const Apertura& apertura) { apertura_ = apertura; }
    /// The user goes back; false: no threshold is to be shown. Set by the owner.
    std::function<void(bool)> alRitorno;

    /// Fills the window: summary, ticks and values of the thresholds.
    void attivata() override;
    /// Checks the thresholds, stores them and goes back; stays where a check fails.
    void Ritorno();

private:
    void premuto(const std::string& chiave);
    const Ramo& ramo() const { return app().theRotonda().Ramo(apertura_.ramo); }
    void riempiRiassunto();
    void leggiSoglie();
    void chiudiSoglie();
    void abilita();
    void mostraProgetto();
    void collega(std::size_t posto);
    void controllaCoppia(std::size_t posto);
    void controllaLivelli();
    std::optional<std::string> esamina(std::size_t posto) const;
    std::optional<std::string> primoErrore() const;
    bool nessunaSpunta() const;
    double valore(const tBox& campo, double conservato) const;
    double minimo(std::size_t posto) const;
    double massimo(std::size_t posto) const;
    void registra();
    void anteprima();
    void torna(bool visualizza);

    ServiziRisultati servizi_;
    AnteprimaTesto anteprima_;
    Apertura apertura_;
    bool coppiaRifiutata_ = false;           ///< the field that was just left broke its pair
    std::array<std::string, 2> lasciati_{};  ///< texts of a pair when its field got the focus
    std::string livelloMassimo_;             ///< upper level before the choice at hand
};

/// The empty summary: quantities by smallest, largest and mean value.
Tabella tabellaRiassunto();
/// Fills the summary from the statistics of an entry; an entry without any stays empty.
void riempiTabellaRiassunto(const StatisticheIngresso& statistiche, Tabella& tabella);
/// The text of "Risultati2.txt"; `momento` is the date and time of its closing lines.
std::string testoRiassunto(const Tabella& tabella, const Ramo& ramo, const Rotonda& rotonda, DataOra momento);

/// A quantity of the thresholds.
struct VoceSoglia {
    std::string_view spunta;
    std::string_view minimo;
    std::string_view massimo;
    std::string_view etichetta;
    Formato formato = "#0";            ///< of its values; the level of service has none
    std::string_view fuoriIntervallo;  ///< how its range is told when going back
    std::string_view incoerente;       ///< what is told there of an upper value below the lower one
    std::string_view pagina;           ///< of the help pane
};

/// The quantities in their order.
extern const std::array<VoceSoglia, 6> vociSoglia;

}  // namespace kelvo
