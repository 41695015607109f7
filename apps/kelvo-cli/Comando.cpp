#include "Comando.h"

namespace kelvo::cli {

void ComandoSuFile::aggiungiFile() {
    app_->add_option("FILE", file_, "file di progetto .klv, uno o più")->required()->type_name("");
}

void ComandoSuFile::aggiungiComuni() {
    app_->add_option("--ini", comuni_.ini, "file di configurazione (se manca: Kelvo.ini accanto al programma)")
        ->type_name("FILE");
    app_->add_option("--notte", comuni_.notte, "riduzione notturna della capacità del nodo, in per cento")
        ->type_name("N")
        ->check(CLI::Range(0, 100));
    app_->add_flag("--json", comuni_.json, "una riga di JSON per file, a piena precisione");
}

int ComandoSuFile::esegui() {
    if (!opzioniCoerenti()) {
        return uscitaUsoErrato;
    }
    Contesto contesto;
    if (serveConfigurazione() && !contesto.configura(comuni_)) {
        return uscitaUsoErrato;
    }
    int uscita = uscitaFatto;
    for (const std::string& file : file_) {
        if (!tratta(contesto, file)) {
            uscita = uscitaFallito;
        }
    }
    return uscita;
}

}  // namespace kelvo::cli
