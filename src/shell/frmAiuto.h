#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/serviziSistema.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// The help window: one page below the folder of the help pages at a time, with the way back.
class frmAiuto final : public Finestra {
public:
    frmAiuto(const Contorno& contorno, ApriDocumenti& documenti);

    VisorePagina ctlPagina{"ctlPagina"};
    Bottone cmdIndietro{"cmdIndietro", "Indietro"};
    Bottone cmdAvanti{"cmdAvanti", "Avanti"};
    Bottone cmdIndice{"cmdIndice", "Indice"};
    Bottone cmdGuida{"cmdGuida", "Guida utente"};
    Bottone cmdChiudi{"cmdChiudi", "Chiudi"};
    Etichetta lblAvviso{"lblAvviso", {}, "ROSSO"};  ///< why something could not be opened; empty for nothing

    /// Brings up a page by its file name; what was read before can be gone back to. The title of the page is the
    /// window's `sottotitolo`. A name that is no page of the folder, or one that cannot be read, gives a page that says
    /// so.
    void mostra(const std::string& pagina);
    /// Name of the page in view.
    const std::string& pagina() const { return lette_.at(posto_); }
    /// Whoever shows the window closes it here.
    std::function<void()> allaChiusura;

private:
    void mostraCorrente();
    void segui(const std::string& collegamento);
    void vai(int passi);
    void apriGuida(const std::string& nome);
    void apri(const std::string& cosa);
    void avvisa(const std::string& testo);

    ApriDocumenti& documenti_;
    std::vector<std::string> lette_;  ///< pages that were read, in order
    std::size_t posto_ = 0;           ///< of the one in view
};

}  // namespace kelvo
