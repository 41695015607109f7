#include <fmt/format.h>

#include <optional>
#include <string>
#include <vector>

#include "Comando.h"
#include "argomenti.h"
#include "base/file.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "cad/campiIpotesi.h"
#include "cad/disegnoDxf.h"
#include "errori.h"

namespace kelvo::cli {

namespace {

/// "0,90,180.5" with points as decimal separators, or "0;90;180,5"; nothing for any other text.
std::optional<std::vector<double>> leggiDirezioni(const std::string& testo) {
    const char separatore = testo.find(';') != std::string::npos ? ';' : ',';
    std::vector<double> direzioni;
    std::size_t da = 0;
    for (;;) {
        const std::size_t fine = testo.find(separatore, da);
        const auto numero = leggiNumero(std::string_view{testo}.substr(da, fine - da), Separatore::virgolaOPunto);
        if (!numero) {
            return std::nullopt;
        }
        direzioni.push_back(*numero);
        if (fine == std::string::npos) {
            return direzioni;
        }
        da = fine + 1;
    }
}

class ComandoDxf final : public ComandoSuFile {
public:
    explicit ComandoDxf(CLI::App& radice)
        : ComandoSuFile(radice, "dxf", "Esporta la pianta della rotatoria in un disegno DXF per programmi CAD",
                        "  kelvo-cli dxf -o Rotatoria.dxf Rotatoria.klv\n"
                        "  kelvo-cli dxf -o Rotatoria.dxf --direzioni 0,80,180,265 --senza-quote Rotatoria.klv",
                        Quanti::uno) {
        aggiungiTesto(*app_, "-o,--uscita", uscita_, "file .dxf da scrivere; se esiste viene sostituito")
            ->required()
            ->type_name("FILE");
        aggiungiDirezioni();
        for (const dxf::CampoIpotesi& campo : dxf::campiIpotesi) {
            aggiungiIpotesi(campo);
        }
        for (const dxf::VoceGruppo& voce : dxf::vociGruppo) {
            app_->add_flag_callback(
                    fmt::format("--senza-{}", voce.argomento),
                    [this, gruppo = voce.gruppo] { scelte_.metti(gruppo, false); },
                    fmt::format("senza {}", voce.contenuto))
                ->disable_flag_override();
        }
    }

protected:
    Configurazione configurazione() const override { return Configurazione::nessuna; }

    std::string usoSbagliato() override {
        if (maiuscoleAscii(ultimiCaratteri(uscita_, 4)) != ".DXF") {
            return fmt::format("{}: serve un nome che finisce con .dxf", citato(uscita_));
        }
        if (stessoFile(uscita_, file_.front())) {
            return fmt::format("{}: è il progetto, che il disegno sostituirebbe", citato(uscita_));
        }
        if (dxf::contieneProgetto(uscita_)) {
            return fmt::format("{}: è un progetto, che il disegno sostituirebbe", citato(uscita_));
        }
        return {};
    }

    bool tratta(Contesto& contesto, const std::string& file) override {
        if (!prepara(contesto, file)) {
            return false;
        }
        const Rotonda& rotonda = contesto.app().theRotonda();
        pianta::DatiPianta dati = pianta::datiPianta(rotonda);
        if (!ipotesi_.direzioni.empty() && ipotesi_.direzioni.size() != dati.rami.size()) {
            avvisa(fmt::format("{}: --direzioni ha {} valori, i rami sono {}", file, ipotesi_.direzioni.size(),
                               dati.rami.size()));
            return false;
        }
        dati.ipotesi = ipotesi_;
        const dxf::Documento disegno = dxf::disegno(dati, dxf::cartiglioDi(rotonda), scelte_);
        const std::string errore = scriviFileSicuro(contesto.app().file, uscita_, dxf::testoDxf(disegno));
        if (!errore.empty()) {
            avvisa(fmt::format("Impossibile scrivere il disegno: {} ({})", errore, uscita_));
            return false;
        }
        return true;
    }

private:
    void aggiungiDirezioni() {
        const auto leggi = [this](const std::string& testo) {
            const auto lette = leggiDirezioni(testo);
            if (!lette) {
                throw CLI::ValidationError("--direzioni", fmt::format("serve un angolo per ramo, separati da virgole "
                                                                      "(0,90,180,270), non {}",
                                                                      citato(testo)));
            }
            const std::string difetto = dxf::difettoDirezioni(*lette);
            if (!difetto.empty()) {
                throw CLI::ValidationError("--direzioni", difetto);
            }
            ipotesi_.direzioni = *lette;
        };
        app_->add_option_function<std::string>("--direzioni", leggi,
                                               "direzioni dei rami in gradi, in senso antiorario da quella del ramo A, "
                                               "che è 0; con la virgola decimale "
                                               "si separano con il punto e virgola (se manca: rami ad angoli uguali)")
            ->type_name("ANGOLI");
    }

    void aggiungiIpotesi(const dxf::CampoIpotesi& campo) {
        const std::string nome = fmt::format("--{}", campo.argomento);
        const std::string da = testoNumero(campo.minimo);
        const std::string a = testoNumero(campo.massimo);
        const auto leggi = [this, &campo, nome, da, a](const std::string& testo) {
            const auto valore = leggiNumero(testo, Separatore::virgolaOPunto);
            if (!valore || *valore < campo.minimo || *valore > campo.massimo) {
                throw CLI::ValidationError(nome,
                                           fmt::format("serve un numero da {} a {}, non {}", da, a, citato(testo)));
            }
            ipotesi_.*campo.valore = *valore;
        };
        const std::string unita = campo.unita.empty() ? "" : fmt::format(" {}", campo.unita);
        app_->add_option_function<std::string>(nome, leggi,
                                               fmt::format("{}, da {} a {}{} (se manca: {})", campo.spiega, da, a,
                                                           unita, testoNumero(pianta::Ipotesi{}.*campo.valore)))
            ->type_name("N");
    }

    pianta::Ipotesi ipotesi_;
    dxf::Scelte scelte_;
    std::string uscita_;
};

}  // namespace

std::unique_ptr<Comando> comandoDxf(CLI::App& radice) {
    return std::make_unique<ComandoDxf>(radice);
}

}  // namespace kelvo::cli
