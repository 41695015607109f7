#pragma once

#include <string>

#include "input/frmComposizioneTrafficoST.h"
#include "input/scenaComposizione.h"

namespace kelvo::prove {

using Tasto = Griglia::Tasto;

/// The table of the composition, the keyboard in it.
struct ScenaComposizioneST : ScenaComposizione<frmComposizioneTrafficoST> {
    Griglia& griglia = finestra.ctlGrid;

    void apri(int ramo = 1) {
        ScenaComposizione::apri(ramo);
        finestra.fuocoSu(griglia);
    }
    /// Fills the table of a leg: 1 to 7 in the first segment, 11 to 17 in the second, and so on.
    void riempi(std::int16_t ramo) {
        for (std::int16_t k = 0; k < composizione(ramo).NumSegmentiTempo(); ++k) {
            for (std::int16_t j = 0; j < numeroClassi; ++j) {
                composizione(ramo).CategoriaSegmento(static_cast<float>(10 * k + j + 1), k, j);
            }
        }
    }
    /// Types a number into a cell and presses Enter.
    void scrivi(int riga, int colonna, const std::string& testo) {
        ASSERT_TRUE(griglia.corrente({riga, colonna}));
        griglia.scrivi(testo);
        griglia.premiTasto(Tasto::invio);
    }
    /// A row without its interval, parted by blanks.
    std::string riga(int r) const {
        std::string testo;
        for (int c = 1; c < griglia.tabella().colonne(); ++c) {
            testo += (c == 1 ? "" : " ") + griglia.testo(r, c);
        }
        return testo;
    }
    std::string flussi() const {
        std::string testo;
        for (int r = 1; r < griglia.tabella().righe(); ++r) {
            testo += (r == 1 ? "" : " ") + griglia.testo(r, 9);
        }
        return testo;
    }
    /// Ticks the lock of a column, 1 to 7, and answers the question.
    void blocca(int colonna, Risposta risposta = Risposta::no) {
        messaggi.risposta = risposta;
        finestra.chkLock[static_cast<std::size_t>(colonna - 1)].clicca();
        messaggi.mostrati.clear();
    }
};

}  // namespace kelvo::prove
