#pragma once

#include "shell/servizi/documentoPagine.h"

class QPrinter;

namespace kelvo::ui {

/// Paper and PDF by the toolkit; the printer is chosen in its dialogue.
class StampaQt final : public StampaPagine {
public:
    EsitoDisegno pdf(const DocumentoPagine& documento) override;
    EsitoStampa stampa(const DocumentoPagine& documento) override;

    /// Prints on a printer that was chosen, the pages of its range (all where it has none), each in the middle of its
    /// paper and as large as it goes.
    static EsitoStampa stampaSu(QPrinter& stampante, const DocumentoPagine& documento);
};

}  // namespace kelvo::ui
