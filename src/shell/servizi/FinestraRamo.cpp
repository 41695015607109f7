#include "shell/servizi/FinestraRamo.h"

#include "base/guasto.h"

namespace kelvo {

void FinestraRamo::attivata() {
    const std::string chiave = navigazione().chiaveCorrente();
    const int cifra = chiave.empty() ? 0 : chiave.back() - '0';
    if (cifra < 1 || cifra > rotonda().NumeroRami()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, nome() + ", nodo '" + chiave + "'");
    }
    indice_ = static_cast<std::int16_t>(cifra);
    app().theRamoCorrente = &ramo();
    mostraNome();
    legata();
    ReadData();
}

void FinestraRamo::mostraNome() {
    sottotitolo.testo(ramo().Descrizione());
}

}  // namespace kelvo
