#include <fmt/format.h>

#include <array>
#include <optional>

#include "Comando.h"
#include "argomenti.h"
#include "base/guasto.h"
#include "disegno/disegni.h"
#include "pianta/Pianta.h"

namespace kelvo::cli {

namespace {

/// "A" to "G", in capitals or not; nothing for any other text.
std::optional<int> leggiRamo(const std::string& testo) {
    if (testo.size() != 1) {
        return std::nullopt;
    }
    const char grande = testo[0] >= 'a' && testo[0] <= 'z' ? static_cast<char>(testo[0] - 'a' + 'A') : testo[0];
    const int ramo = grande - 'A' + 1;
    return ramo >= 1 && ramo <= massimoRami ? std::optional(ramo) : std::nullopt;
}

std::string nomiMisure() {
    std::string nomi;
    for (const pianta::VoceMisura& voce : pianta::vociMisure) {
        nomi += (nomi.empty() ? "" : ", ") + std::string(voce.argomento);
    }
    return nomi;
}

std::optional<pianta::Misura> leggiMisura(const std::string& testo) {
    for (std::size_t m = 0; m < pianta::vociMisure.size(); ++m) {
        if (pianta::vociMisure[m].argomento == testo) {
            return static_cast<pianta::Misura>(m);
        }
    }
    return std::nullopt;
}

class ComandoPianta final : public ComandoSuFile {
public:
    explicit ComandoPianta(CLI::App& radice)
        : ComandoSuFile(radice, "pianta", "Disegna la pianta della rotatoria in un file PNG, SVG o PDF",
                        "  kelvo-cli pianta Rotatoria.klv Rotatoria.pdf\n"
                        "  kelvo-cli pianta Rotatoria.klv RamoB.png --ramo B --misura larghezza --larghezza 1600",
                        Quanti::uno) {
        app_->add_option_function<std::string>(
                "--ramo",
                [this](const std::string& testo) {
                    const auto letto = leggiRamo(testo);
                    if (!letto) {
                        throw CLI::ValidationError(
                            "--ramo", fmt::format("serve la lettera di un ramo, da A a G, non {}", citato(testo)));
                    }
                    opzioni_.ramo = *letto;
                    opzioni_.vista = pianta::Vista::primoPiano;
                },
                "primo piano di un ramo, da A a G (se manca: tutta la rotatoria)")
            ->type_name("LETTERA");
        app_->add_option_function<std::string>(
                "--misura",
                [this](const std::string& testo) {
                    opzioni_.misura = leggiMisura(testo);
                    if (!opzioni_.misura) {
                        throw CLI::ValidationError("--misura",
                                                   fmt::format("serve una di {}, non {}", nomiMisure(), citato(testo)));
                    }
                },
                "misura da quotare in evidenza, con --ramo: " + nomiMisure())
            ->type_name("NOME");
        constexpr Estremi larghezza{.minimo = MisuraDisegno::minimaLarghezza,
                                    .massimo = MisuraDisegno::massimaLarghezza};
        aggiungiIntero(*app_, "--larghezza", larghezza_, larghezza,
                       fmt::format("larghezza del disegno in pixel, da {} a {} (se manca: 1200)", larghezza.minimo,
                                   larghezza.massimo));
        aggiungiTesto(*app_, "USCITA", uscita_, "file da scrivere, .png, .svg o .pdf; se esiste viene sostituito")
            ->required()
            ->type_name("");
    }

private:
    std::string usoSbagliato() override {
        if (std::string errore = usoDisegno(uscita_); !errore.empty()) {
            return errore;
        }
        return opzioni_.misura && opzioni_.ramo == 0 ? "l'opzione --misura va data con --ramo" : "";
    }
    Configurazione configurazione() const override { return Configurazione::nessuna; }
    Impedimento impedimento(const Rotonda& rotonda) const override {
        if (opzioni_.ramo <= rotonda.NumeroRami()) {
            return {};
        }
        return {.motivo = fmt::format("il ramo {} non esiste, i rami sono {}", pianta::lettera(opzioni_.ramo),
                                      rotonda.NumeroRami()),
                .numero = NumeroGuasto::indiceFuoriIntervallo};
    }

    bool tratta(Contesto& contesto, const std::string& file) override {
        return prepara(contesto, file) &&
               scriviDisegno(contesto, uscita_, [&](Disegnatore& disegnatore, FormatoDisegno formato) {
                   return disegnatore.pianta(pianta::datiPianta(contesto.app().theRotonda()), opzioni_, formato,
                                             {.larghezza = larghezza_});
               });
    }

    pianta::OpzioniPianta opzioni_;
    std::int16_t larghezza_ = 1200;
    std::string uscita_;
};

}  // namespace

std::unique_ptr<Comando> comandoPianta(CLI::App& radice) {
    return std::make_unique<ComandoPianta>(radice);
}

}  // namespace kelvo::cli
