#include "shell/servizi/cartaDati.h"

#include <iterator>

#include "base/guasto.h"
#include "shell/servizi/stampaDocumento.h"

namespace kelvo {

namespace {

constexpr const char* nonDisponibile = "Non disponibile";

}  // namespace

DocumentoPagine CartaDati::documento() const {
    const std::string& quale = finestra_.sottotitolo.testo();
    DocumentoPagine carta =
        documentoDiProgetto(contorno_.app, finestra_.didascalia() + (quale.empty() ? "" : " - " + quale));
    if (!finestra_.DatiAllineati()) {
        carta.blocchi.emplace_back(DocumentoPagine::Paragrafo{.testo = finestra_.segno.testo() + ".",
                                                              .segno = DocumentoPagine::Segno::verifica});
    }
    Blocchi blocchi = blocchiSuCarta();
    carta.blocchi.insert(carta.blocchi.end(), std::make_move_iterator(blocchi.begin()),
                         std::make_move_iterator(blocchi.end()));
    return carta;
}

std::string CartaDati::impedimentoStampa() const {
    return stampa_ == nullptr ? nonDisponibile : "";
}

template <class Uscita>
void CartaDati::porta(const char* metodo, Uscita uscita) {
    if (!impedimentoStampa().empty() || !finestra_.lasciaFuoco()) {
        return;
    }
    try {
        uscita(contorno_, *stampa_, documento());
    } catch (const Guasto& guasto) {
        contorno_.app.comune.erroreLog(guasto.codice(), finestra_.nome() + metodo, guasto.descrizione(), true);
    }
}

void CartaDati::stampaFigure() {
    porta(":Stampa", stampaDocumento);
}

void CartaDati::salvaFigurePDF() {
    porta(":StampaPDF", salvaPDF);
}

}  // namespace kelvo
