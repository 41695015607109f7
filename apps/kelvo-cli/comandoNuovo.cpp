#include <fmt/format.h>

#include <filesystem>

#include "Comando.h"
#include "app/nuovoProgetto.h"
#include "argomenti.h"
#include "base/file.h"

namespace kelvo::cli {

namespace {

constexpr std::string_view caratteriVietati = "\\/:*?\"<>|";

class ComandoNuovo final : public Comando {
public:
    explicit ComandoNuovo(CLI::App& radice)
        : Comando(radice, "nuovo", "Crea un progetto nuovo, con i valori iniziali",
                  "  kelvo-cli nuovo --rami 4 Rotatoria.klv\n"
                  "  kelvo-cli nuovo --rami 5 --nome \"Rotatoria Ospedale\" Ospedale.klv") {
        constexpr Estremi rami{.minimo = minimoRami, .massimo = massimoRami};
        aggiungiIntero(*app_, "--rami", rami_, rami, fmt::format("numero di rami, da {} a {}", minimoRami, massimoRami))
            ->required();
        aggiungiTesto(*app_, "--nome", nome_, "nome del progetto (se manca: il nome del file)")->type_name("NOME");
        app_->add_flag("--sovrascrivi", sovrascrivi_, "sostituisce un file che esiste già")->disable_flag_override();
        aggiungiIni(comuni_);
        aggiungiTesto(*app_, "FILE", file_, "file di progetto da creare, .klv")->required()->type_name("");
    }

    int esegui() override {
        namespace fs = std::filesystem;
        Contesto contesto;
        if (!inizia(contesto)) {
            return uscitaUsoErrato;
        }
        std::error_code errore;
        const fs::path posto = percorsoDaTesto(file_);
        if (!sovrascrivi_ && !fs::is_directory(posto, errore) && fs::exists(fs::symlink_status(posto, errore))) {
            avvisa(fmt::format("{}: esiste già; con --sovrascrivi viene sostituito", file_));
            return uscitaFallito;
        }
        creaProgetto(contesto.app(), rami_);
        contesto.app().theRotonda().NomeFile(nome());
        std::string messaggio;
        bool esito = false;
        contesto.app().theRotonda().Save(file_, messaggio, esito);
        if (!esito) {
            avvisa(messaggio);
            return uscitaFallito;
        }
        return uscitaFatto;
    }

private:
    std::string nome() const { return nome_.empty() ? testoDaPercorso(percorsoDaTesto(file_).stem()) : nome_; }

    std::string usoSbagliato() override {
        return nome().find_first_of(caratteriVietati) == std::string::npos
                   ? std::string{}
                   : fmt::format("nome {}: non sono permessi i caratteri {}", citato(nome()), caratteriVietati);
    }

    std::int16_t rami_ = 0;
    std::string nome_;
    std::string file_;
    bool sovrascrivi_ = false;
};

}  // namespace

std::unique_ptr<Comando> comandoNuovo(CLI::App& radice) {
    return std::make_unique<ComandoNuovo>(radice);
}

}  // namespace kelvo::cli
