#include <fmt/format.h>

#include "argomenti.h"
#include "base/guasto.h"
#include "base/testo.h"
#include "documenti/documenti.h"
#include "impedimenti.h"
#include "reports/modEXCEL.h"

namespace kelvo::cli {

namespace {

class ComandoEsporta final : public ComandoSuFile {
public:
    explicit ComandoEsporta(CLI::App& radice)
        : ComandoSuFile(radice, "esporta", "Porta i risultati del progetto in un foglio di calcolo .xlsx",
                        "  kelvo-cli esporta --xlsx Risultati.xlsx Rotatoria.klv\n"
                        "  kelvo-cli esporta --xlsx Notte.xlsx --notte 15 Rotatoria.klv",
                        Quanti::uno) {
        aggiungiTesto(*app_, "--xlsx", uscita_, "foglio di calcolo .xlsx da scrivere; se esiste viene sostituito")
            ->type_name("FILE")
            ->required();
        aggiungiIni(comuni_);
        aggiungiNotte(comuni_);
    }

private:
    std::string usoSbagliato() override {
        if (maiuscoleAscii(ultimiCaratteri(uscita_, 5)) != ".XLSX") {
            return fmt::format("{}: serve un nome che finisce con .xlsx", citato(uscita_));
        }
        return stessoFile(uscita_, file_.front())
                   ? fmt::format("{}: è il progetto, che il foglio di calcolo sostituirebbe", citato(uscita_))
                   : std::string{};
    }

    Impedimento impedimento(const Rotonda& rotonda) const override { return {.motivo = impedimentoAnalisi(rotonda)}; }

    bool tratta(Contesto& contesto, const std::string& file) override {
        if (!prepara(contesto, file)) {
            return false;
        }
        modEXCEL modulo(contesto.app(), {.messaggi = contesto, .documenti = nullptr, .percorso = uscita_});
        return modulo.compilaRelazioneExcel() == EsitoFoglio::fatto;
    }

    std::string uscita_;
};

}  // namespace

std::unique_ptr<Comando> comandoEsporta(CLI::App& radice) {
    return std::make_unique<ComandoEsporta>(radice);
}

}  // namespace kelvo::cli
