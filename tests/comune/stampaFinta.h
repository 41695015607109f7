#pragma once

#include <string>
#include <vector>

#include "shell/servizi/documentoPagine.h"

namespace kelvo::prove {

/// Prints nothing: keeps what it was handed. Every PDF reads "pagine".
class StampaFinta final : public StampaPagine {
public:
    EsitoDisegno pdf(const DocumentoPagine& documento) override {
        salvati.push_back(documento);
        return {.dati = errore.empty() ? "pagine" : "", .errore = errore};
    }
    EsitoStampa stampa(const DocumentoPagine& documento) override {
        stampati.push_back(documento);
        return {.annullata = annulla, .errore = errore};
    }

    std::string errore;    ///< why nothing can be written; empty: all is well
    bool annulla = false;  ///< the user thinks better of it
    std::vector<DocumentoPagine> salvati;
    std::vector<DocumentoPagine> stampati;
};

/// All words of a document, block by block; boxes as "x" and "o".
inline std::vector<std::string> paroleDi(const DocumentoPagine& documento) {
    std::vector<std::string> parole;
    for (const DocumentoPagine::Blocco& blocco : documento.blocchi) {
        if (const auto* titolo = std::get_if<DocumentoPagine::Titolo>(&blocco)) {
            parole.push_back("# " + titolo->testo);
        } else if (const auto* paragrafo = std::get_if<DocumentoPagine::Paragrafo>(&blocco)) {
            parole.push_back(paragrafo->inizio + paragrafo->testo);
        } else if (const auto* tabella = std::get_if<DocumentoPagine::Tabella>(&blocco)) {
            for (const auto& riga : tabella->righe) {
                std::string celle;
                for (const DocumentoPagine::Cella& cella : riga) {
                    celle += (celle.empty() ? "" : "|") + (cella.casella ? (*cella.casella ? "x" : "o") : cella.testo);
                }
                parole.push_back(celle);
            }
        }
    }
    return parole;
}

}  // namespace kelvo::prove
