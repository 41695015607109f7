#include <fmt/format.h>

#include <filesystem>

#include "Comando.h"
#include "app/nuovoProgetto.h"

namespace kelvo::cli {

namespace {

constexpr std::string_view caratteriVietati = "\\/:*?\"<>|";

class ComandoNuovo final : public Comando {
public:
    explicit ComandoNuovo(CLI::App& radice) {
        app_ = radice.add_subcommand("nuovo", "Crea un progetto nuovo, con i valori iniziali");
        app_->add_option("--rami", rami_, "numero di rami, da 3 a 7")
            ->required()
            ->type_name("N")
            ->check(CLI::Range(static_cast<int>(minimoRami), static_cast<int>(massimoRami)));
        app_->add_option("--nome", nome_, "nome del progetto (se manca: il nome del file)")->type_name("NOME");
        app_->add_flag("--sovrascrivi", sovrascrivi_, "sostituisce un file che esiste già");
        app_->add_option("--ini", comuni_.ini, "file di configurazione (se manca: Kelvo.ini accanto al programma)")
            ->type_name("FILE");
        app_->add_option("FILE", file_, "file di progetto da creare, .klv")->required()->type_name("");
    }

    int esegui() override {
        namespace fs = std::filesystem;
        const std::string nome = nome_.empty() ? fs::path(file_).stem().string() : nome_;
        if (nome.find_first_of(caratteriVietati) != std::string::npos) {
            avvisa(fmt::format("nome '{}': non sono permessi i caratteri {}", nome, caratteriVietati));
            return uscitaUsoErrato;
        }
        Contesto contesto;
        if (!contesto.configura(comuni_)) {
            return uscitaUsoErrato;
        }
        std::error_code errore;
        if (!sovrascrivi_ && fs::exists(fs::symlink_status(file_, errore))) {
            avvisa(fmt::format("{}: esiste già; con --sovrascrivi viene sostituito", file_));
            return uscitaFallito;
        }
        creaProgetto(contesto.app(), rami_);
        contesto.app().theRotonda().NomeFile(nome);
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
    OpzioniComuni comuni_;
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
