#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/campiMostrati.h"
#include "app/serviziSistema.h"
#include "checkup/frmCheckUpMessaggio.h"
#include "checkup/modERRORI.h"
#include "shell/servizi/Albero.h"
#include "shell/servizi/Finestra.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/documentoPagine.h"
#include "shell/servizi/scelte.h"

namespace kelvo {

/// Check-up of the project: the findings of the input rules, and the check list that the designer answers. The answers
/// live as long as the window.
class frmANALIZZATORE final : public Finestra {
public:
    /// What the window asks of the system beyond its surroundings.
    struct Servizi {
        ApriDocumenti& documenti;
        CampiMostrati* campi = nullptr;  ///< what open windows show; null for none
        /// Shows a finding until its window is closed.
        std::function<void(frmCheckUpMessaggio&)> mostraMessaggio{};
        /// Shows a text that the system has no program for: whole path and content; empty for no such thing.
        std::function<void(const std::string&, const std::string&)> mostraTesto{};
        StampaPagine* stampa = nullptr;  ///< prints report and check list; null: their buttons are closed
    };
    frmANALIZZATORE(const Contorno& contorno, Servizi servizi);

    // Columns of the check list.
    static constexpr int colonnaTesto = 0;
    static constexpr int colonnaSI = 1;
    static constexpr int colonnaNO = 2;
    static constexpr int colonnaPunti = 3;   ///< hidden: points of the answer, empty without one
    static constexpr int colonnaGenere = 4;  ///< hidden: kind of the row
    /// Texts of an answer box: characters 163 and 82 of the font of pictures that it is drawn with.
    static constexpr std::string_view casellaVuota = "\u00A3";
    static constexpr std::string_view casellaSpuntata = "R";
    /// Ground of the cells that take no click.
    static constexpr Colore fondoChiuso{234, 234, 234};

    Schede TabStrip2;  ///< the two pages
    Schede TabStrip1;  ///< report, information, verification, error, with their counts
    Albero ctlTreeAnalizzatore{"ctlTreeAnalizzatore"};
    Albero ctlTreeGREEN{"ctlTreeGREEN"};
    Albero ctlTreeYELLOW{"ctlTreeYELLOW"};
    Albero ctlTreeRED{"ctlTreeRED"};

    Etichetta lblSezione{"lblSezione"};  ///< title of the section on top
    Bottone cmdINDIETROsezione{"cmdINDIETROsezione", "Sezione precedente"};
    Immagine ImageINDIETRO{"ImageINDIETRO", "indietro"};
    Bottone cmdAVANTIsezione{"cmdAVANTIsezione", "Sezione seguente"};
    Immagine ImageAVANTI{"ImageAVANTI", "avanti"};
    Griglia ctlGrid{"ctlGrid", 0, 0};
    Etichetta lblIndice{"lblIndice"};
    Etichetta lblSenzaLivello{"lblSenzaLivello"};  ///< says that the index is in no band
    Etichetta lblCopertina;                        ///< stands over the level until all questions are answered
    std::array<Etichetta, 7> lblLivello;   ///< "lblLivello1" to "lblLivello7"; all but that of the index are empty
    Etichetta lblCommento{"lblCommento"};  ///< what the level means for the design
    Riquadro frLivello;
    BarraStrumenti ctlToolbar;

    BarraStrumenti* barra() override { return &ctlToolbar; }
    /// The first time it runs the analysis; later the mark beside the caption tells if the project has changed since.
    void attivata() override;

    /// Runs the rules and shows the report.
    void Analizza();
    /// The page in view as a document for paper: the findings of the inner tab, or the check list with its answers.
    DocumentoPagine documento() const;
    /// Writes the findings of the inner tab in view to "Report.txt" and opens it.
    void Anteprima();

    // Shortcuts of the navigator.
    static constexpr std::string_view tastoAVANTI = "Ctrl+PgDown";
    static constexpr std::string_view tastoINDIETRO = "Ctrl+PgUp";
    /// A cell of the check list that shows a box: whether it is ticked; nothing for any other cell.
    std::optional<bool> casella(Posto posto) const;

    // The user's gestures on a finding of any tree; nothing on a root.
    /// A click: shows the finding in a window of its own.
    void clicRiscontro(const Albero& albero, std::string_view chiave);
    /// Enter: leads to the field that the finding speaks of.
    void invioRiscontro(const Albero& albero, std::string_view chiave);

    /// The finding of a node; null for a root and for a key that is not there.
    const Riscontro* riscontro(const Albero& albero, std::string_view chiave) const;
    /// Questions answered, and all of them.
    int risposte() const;
    static int domande();
    /// Sum of the points of the answers.
    int indice() const;

private:
    void mostraPagina(int pagina);
    void mostraAlbero(int scheda);
    std::array<Albero*, 4> alberi() { return {&ctlTreeAnalizzatore, &ctlTreeGREEN, &ctlTreeYELLOW, &ctlTreeRED}; }
    const AlberoRiscontri& elenco(std::size_t scheda) const;
    void premuto(const std::string& chiave);
    void vai(const Meta& meta);
    void esporta();

    void preparaCheckList();
    void cliccata(Posto posto);
    void allunga(int righe);
    void portaSezione(bool avanti);
    void aggiornaSezione();
    void aggiornaIndice();
    void mostraLivello();

    Servizi servizi_;
    modERRORI errori_;
    bool analizzato_ = false;
    std::uint64_t revisioneAnalizzata_ = 0;
    CoefficientiVeicoli coefficientiAnalizzati_{};
};

}  // namespace kelvo
