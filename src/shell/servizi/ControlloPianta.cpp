#include "shell/servizi/ControlloPianta.h"

namespace kelvo {

MenuPianta::MenuPianta(Finestra& finestra, const Contorno& contorno, ControlloPianta& pianta)
    : MenuImmagine(finestra, contorno, pianta.nome()), pianta_(pianta) {
    pianta_.menuCompleto = [this]() -> MenuChiavi& { return menu(); };
}

std::string MenuPianta::vuota() const {
    const DocumentoPagine::Pianta soggetto = pianta_.soggetto();
    return soggetto.dati && soggetto.opzioni ? std::string{} : "La pianta non ha dati";
}

EsitoDisegno MenuPianta::disegna(FormatoDisegno formato) const {
    const DocumentoPagine::Pianta soggetto = pianta_.soggetto();
    return contorno().servizi.disegnatore->pianta(*soggetto.dati, *soggetto.opzioni, formato,
                                                  {.scala = scalaImmagineDati});
}

}  // namespace kelvo
