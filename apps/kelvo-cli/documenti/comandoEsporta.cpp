#include <fmt/format.h>

#include "argomenti.h"
#include "base/guasto.h"
#include "base/testo.h"
#include "documenti/documenti.h"
#include "errori.h"
#include "impedimenti.h"
#include "reports/modEXCEL.h"

namespace kelvo::cli {

namespace {

class ComandoEsporta final : public Comando {
public:
    explicit ComandoEsporta(CLI::App& radice)
        : Comando(radice, "esporta", "Porta i risultati del progetto in un foglio di calcolo .xlsx",
                  "  kelvo-cli esporta --xlsx Risultati.xlsx Rotatoria.klv\n"
                  "  kelvo-cli esporta --xlsx Notte.xlsx --notte 15 Rotatoria.klv") {
        aggiungiTesto(*app_, "--xlsx", uscita_, "foglio di calcolo .xlsx da scrivere; se esiste viene sostituito")
            ->type_name("FILE")
            ->required();
        aggiungiIni(comuni_);
        aggiungiNotte(comuni_);
        aggiungiTesto(*app_, "FILE", file_, "file di progetto .klv")->required()->type_name("");
    }

    int esegui() override {
        if (maiuscoleAscii(ultimiCaratteri(uscita_, 5)) != ".XLSX") {
            return usoErrato(*app_, fmt::format("{}: serve un nome che finisce con .xlsx", citato(uscita_)));
        }
        if (stessoFile(uscita_, file_)) {
            return usoErrato(*app_,
                             fmt::format("{}: è il progetto, che il foglio di calcolo sostituirebbe", citato(uscita_)));
        }
        Contesto contesto;
        if (!contesto.configura(comuni_)) {
            return uscitaUsoErrato;
        }
        if (!contesto.carica(file_)) {
            return uscitaFallito;
        }
        const std::string motivo = impedimentoAnalisi(contesto.app().theRotonda());
        if (!motivo.empty()) {
            contesto.segnala(static_cast<int>(NumeroGuasto::chiamataNonValida), "esporta", motivo);
            return uscitaFallito;
        }
        avvisaNotte(contesto, comuni_);
        modEXCEL modulo(contesto.app(), {.messaggi = contesto, .documenti = nullptr, .percorso = uscita_});
        return modulo.compilaRelazioneExcel() == EsitoFoglio::fatto ? uscitaFatto : uscitaFallito;
    }

private:
    OpzioniComuni comuni_;
    std::string uscita_;
    std::string file_;
};

}  // namespace

std::unique_ptr<Comando> comandoEsporta(CLI::App& radice) {
    return std::make_unique<ComandoEsporta>(radice);
}

}  // namespace kelvo::cli
