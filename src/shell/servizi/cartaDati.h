#pragma once

#include <string>
#include <vector>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/carta.h"
#include "shell/servizi/documentoPagine.h"

namespace kelvo {

/// What brings a data window to paper, as it is shown: data that are not in the project yet are there, and are told.
class CartaDati : public SuCarta {
public:
    /// The pages of the window.
    DocumentoPagine documento() const;
    // SuCarta
    std::string impedimentoStampa() const override;
    void stampaFigure() override;
    void salvaFigurePDF() override;

protected:
    /// `stampa`: null where nothing can be printed.
    CartaDati(FinestraDati& finestra, const Contorno& contorno, StampaPagine* stampa)
        : finestra_(finestra), contorno_(contorno), stampa_(stampa) {}

    using Blocchi = std::vector<DocumentoPagine::Blocco>;
    /// What stands on paper below the title.
    virtual Blocchi blocchiSuCarta() const = 0;

private:
    template <class Uscita>
    void porta(const char* metodo, Uscita uscita);

    FinestraDati& finestra_;
    Contorno contorno_;
    StampaPagine* stampa_;
};

}  // namespace kelvo
