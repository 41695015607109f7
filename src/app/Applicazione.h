#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/Configurazione.h"
#include "app/clsAmbiente.h"
#include "app/modCommonModule.h"
#include "app/servizi.h"
#include "app/serviziSistema.h"
#include "app/statoRisultati.h"
#include "base/file.h"
#include "model/Rotonda.h"

namespace kelvo {

/// What the program is handed from outside.
struct ServiziEsterni {
    FinestraMessaggi& messaggi;
    Orologio& orologio;
    SistemaFile& file;
};

/// State of the running program. One object, made by the entry of the program and handed down by reference.
class Applicazione {
public:
    /// The folders as for clsAmbiente.
    Applicazione(const std::string& cartellaProgramma, const std::string& cartellaLavoro, ServiziEsterni servizi)
        : messaggi(servizi.messaggi),
          orologio(servizi.orologio),
          file(servizi.file),
          theAmbiente(cartellaProgramma, cartellaLavoro, servizi.file),
          comune(theAmbiente, configurazione, servizi.messaggi, servizi.orologio) {
        nuovaRotonda();
    }
    Applicazione(const Applicazione&) = delete;
    Applicazione& operator=(const Applicazione&) = delete;
    ~Applicazione() = default;

    FinestraMessaggi& messaggi;
    Orologio& orologio;
    SistemaFile& file;
    clsAmbiente theAmbiente;
    Configurazione configurazione;
    modCommonModule comune;
    /// Statistics and thresholds that the result windows share.
    StatoRisultati risultati;
    /// The clipboard; null where there is none (no desktop).
    Appunti* appunti = nullptr;

    /// The project at hand; there always is one, empty before any project exists.
    Rotonda& theRotonda() { return *rotonda_; }
    const Rotonda& theRotonda() const { return *rotonda_; }
    /// Releases the project and makes a fresh one.
    void nuovaRotonda() {
        altroProgetto();
        rotonda_ = std::make_unique<Rotonda>(file, [this] { return giorno(); });
    }
    /// Replaces the content of the project from a file, as Rotonda::Load. If that succeeds no leg is the current one
    /// any more: the old ones are gone. If it fails, project and current leg stay.
    void caricaRotonda(const std::string& percorso, std::string& messaggio, bool& esito);
    /// The project at hand becomes another one: its legs go.
    void altroProgetto() {
        theRamoCorrente = nullptr;
        ++numeroProgetto_;
    }
    /// Tells projects apart: another one for each that was made or loaded while the program runs, whatever its name.
    std::uint64_t numeroProgetto() const { return numeroProgetto_; }
    /// What a calculation would read beside the project at this moment.
    AmbienteCalcolo ambienteCalcolo() const {
        const std::int16_t notte = rotonda_->CondizioniNotturne() ? theAmbiente.PercentualeNotturna() : std::int16_t{0};
        return {notte, configurazione.coefficienti()};
    }
    /// True if the records are those of the project as it stands, with what is in force at this moment.
    bool risultatiAttuali() const { return rotonda_->risultatiAttuali(ambienteCalcolo()); }
    /// The leg whose window is open, if any; owned by the project.
    Ramo* theRamoCorrente = nullptr;

private:
    DataOra giorno() const;
    std::unique_ptr<Rotonda> rotonda_;
    std::uint64_t numeroProgetto_ = 0;
};

}  // namespace kelvo
