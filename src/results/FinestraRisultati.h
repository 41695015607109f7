#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calc/modCalcolo.h"
#include "results/ServiziRisultati.h"
#include "results/frmAnteprimaTesto.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/carta.h"

namespace kelvo {

/// Base of the windows that show results: the keys that they have in common, and beside the tables what the reader of a
/// figure has to know of it.
class FinestraRisultati : public Finestra, public SuCarta {
public:
    FinestraRisultati(const Contorno& contorno, const ServiziRisultati& servizi, std::string nome,
                      std::string didascalia);

    BarraStrumenti ctlToolbar;  ///< keyCalcola, keyAnteprima, keyRelazione
    BarraStrumenti* barra() override { return &ctlToolbar; }
    /// Stands in the middle while there are no figures, and does what keyCalcola does.
    Bottone cmdCalcola;
    Etichetta lblVecchi;    ///< the figures are not those of the project as it stands, and why; else hidden
    Etichetta lblFlussi;    ///< why all flows are 0, that the matrix is empty; else hidden
    Etichetta lblNotte;     ///< night conditions without an incidence; else hidden
    Etichetta lblInVigore;  ///< what is in force, in one line
    Casella cmdInVigore;    ///< shows the table below
    Griglia ctlInVigore;    ///< the same with all legs and coefficients, name and value; hidden until it is asked for
    Bottone cmdDati;        ///< brings up `menuDati`

    /// The figures on paper: what the reader has to be warned of, the figures, what is in force and how old they are.
    DocumentoPagine documento();
    // SuCarta
    std::string impedimentoStampa() const override;
    void stampaFigure() override;
    void salvaFigurePDF() override;

    /// What copies and saves the table or chart in view; null where there is none.
    MenuChiavi* menuDati() const;

    /// Brings up to date what stands beside the tables: whenever the window comes up and after its calculations. Data
    /// that change while it is shown are told when it comes up again.
    virtual void aggiornaNote();
    void attivata() override { aggiornaNote(); }
    /// The window shows figures.
    bool conFigure() const { return timbro_.has_value(); }
    /// The window shows figures, and no input of the project was changed since: what the project holds explains them.
    bool figureDelProgetto() const {
        return conFigure() && timbro_->revisione == app().theRotonda().revisione().calcolo;
    }

protected:
    /// A key of the tool bar was pressed: true if it may run. A window that says no has told the user why.
    virtual bool ammette(const std::string& /*chiave*/) { return true; }
    /// Calculates and fills the window.
    virtual void calcola() = 0;
    /// What keyRelazione does.
    virtual void relazione() { servizi_.relazione(); }
    /// Text of the export of what the window shows, and name of its file.
    virtual std::string testoAnteprima() = 0;
    virtual std::string nomeAnteprima() const { return "Risultati.txt"; }
    /// The export failed.
    virtual void anteprimaFallita(const Guasto& guasto);
    /// A tool bar key that the given three do not cover.
    virtual void altroTasto(const std::string& /*chiave*/) {}
    /// Why the figures shown are not those of the project as it stands; empty where they are, or there are none.
    virtual std::string motivoVecchi() const;
    /// The same of all that goes on paper, which may be more than what is in view.
    virtual std::string vecchiSuCarta() const { return lblVecchi.testo(); }
    /// Why all flows are 0; asked only while there are figures.
    virtual std::string motivoFlussi() const = 0;

    using Blocchi = std::vector<DocumentoPagine::Blocco>;
    /// Tables, charts and plan as they go on paper, asked only while there are figures; all that are not empty.
    virtual Blocchi figureSuCarta() const;

    /// Runs the operation of the project's kind of analysis; nothing for any kind but curve and table.
    void simula();
    /// The figures shown are those that the calculation of this stamp left.
    void figureDi(const Timbro& timbro) { timbro_ = timbro; }
    /// The same for figures that another window may have calculated: where it did, a failure of this one's own
    /// calculation is past.
    void riprendiFigure(const Timbro& timbro) {
        fallita_ = fallita_ && timbro_ == timbro;
        figureDi(timbro);
    }
    /// The window shows no figures any more.
    void senzaFigure() { timbro_.reset(); }
    const Timbro& timbroFigure() const { return *timbro_; }
    /// Runs `esporta`; a fault is traced under `metodo` and told in the status bar.
    template <class Procedura>
    void traccia(const std::string& metodo, Procedura esporta) {
        try {
            esporta();
        } catch (const Guasto& guasto) {
            tracciaGuasto(metodo, guasto);
        }
    }
    void tracciaGuasto(const std::string& metodo, const Guasto& guasto);
    void anteprima();
    /// Writes a text of the window's own into the folder for temporary files and shows it; what fails is told as that
    /// of the preview.
    void apriTesto(const std::string& nomeFile, const std::string& testo);
    /// The controls that all result windows have, in tab order.
    std::vector<Controllo*> comuni();
    const ServiziRisultati& servizi() const { return servizi_; }
    modCalcolo& motore() { return motore_; }

private:
    void premuto(const std::string& chiave);
    void fuocoAllaTabella();

    ServiziRisultati servizi_;
    modCalcolo motore_;
    AnteprimaTesto anteprima_;
    std::optional<Timbro> timbro_;
    bool fallita_ = false;  ///< the last calculation that the window asked for failed
};

}  // namespace kelvo
