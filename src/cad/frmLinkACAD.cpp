#include "cad/frmLinkACAD.h"

#include <fmt/format.h>

#include <initializer_list>
#include <memory>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"

namespace kelvo {

namespace {

constexpr const char* domandaAvvio = "AutoCAD non è avviato. Avvio adesso?";
constexpr const char* macroLettura = "!Module1.LeggiDatiKlvFromKELVO";

constexpr const char* istruzioni =
    "Scegliere la versione di AutoCAD in cui disegnare la rotatoria. Kelvo vi carica le macro di KelvoCAD, che leggono "
    "il progetto dal file salvato per ultimo e lo disegnano.";
constexpr const char* invece =
    "Per portare la pianta in un programma CAD scegliere «Esporta DXF...» nel menu KelvoCAD: il file DXF si apre con "
    "ogni programma CAD, anche senza AutoCAD e senza KelvoCAD.";
constexpr const char* senzaVersioni =
    "Su questo computer non risulta installata nessuna delle versioni di AutoCAD previste, dalla 2004 alla 2009.";

}  // namespace

frmLinkACAD::frmLinkACAD(const Contorno& contorno, modKelvoCAD& kelvoCAD)
    : Finestra(contorno, "frmLinkACAD", "Collegamento AutoCAD"),
      lblIstruzioni("lblIstruzioni", istruzioni),
      lblVersioni("lblVersioni", "Versioni installate"),
      lstACAD("lstACAD"),
      lblCartella("lblCartella"),
      lblVuoto("lblVuoto"),
      lblInvece("lblInvece", invece),
      lblProgetto("lblProgetto"),
      lblEsito("lblEsito"),
      cmdAVVIAcad("cmdAVVIAcad", "Disegna in AutoCAD"),
      cmdChiudi("cmdChiudi", "Chiudi"),
      kelvoCAD_(kelvoCAD),
      installati_(kelvoCAD.LeggeAUTOCADinstallati()) {
    ordina({&lblIstruzioni, &lblVersioni, &lstACAD, &lblCartella, &lblVuoto, &lblInvece, &lblProgetto, &lblEsito,
            &cmdAVVIAcad, &cmdChiudi});
    std::vector<std::string> righe;
    for (const AUTOCADInstallato& voce : installati_) {
        righe.push_back(voce.testo);
    }
    lstACAD.voci(righe);
    lstACAD.alCambio = [this](int riga) { scelta(riga); };
    cmdAVVIAcad.allaPressione = [this] { AvviaCAD(); };
    cmdChiudi.allaPressione = [this] {
        if (allaChiusura) {
            allaChiusura();
        }
    };
    lblEsito.visibile(false);
    mostraProgetto();
    mostraVuoto();
    const int ultima = static_cast<int>(installati_.size()) - 1;
    lstACAD.scelta(ultima);
    scelta(ultima);
}

void frmLinkACAD::mostraVuoto() {
    const AutomazioneCAD* cad = kelvoCAD_.servizi().cad;
    const std::string impedimento = cad == nullptr ? std::string{} : cad->impedimento();
    const bool vuoto = installati_.empty();
    lblVuoto.testo(impedimento.empty() ? std::string{senzaVersioni}
                                       : fmt::format("Il collegamento non è possibile: {}.", impedimento));
    for (Controllo* controllo :
         std::initializer_list<Controllo*>{&lblIstruzioni, &lblVersioni, &lstACAD, &lblProgetto, &cmdAVVIAcad}) {
        controllo->visibile(!vuoto);
    }
    lblVuoto.visibile(vuoto);
    lblInvece.visibile(vuoto);
}

void frmLinkACAD::mostraProgetto() {
    const std::string progetto = kelvoCAD_.FilePathKelvo();
    conProgetto_ = !progetto.empty() && app().file.dimensione(progetto) >= 0;
    if (progetto.empty()) {
        lblProgetto.testo("Nessun progetto è stato ancora salvato: salvarlo prima.");
    } else if (!conProgetto_) {
        lblProgetto.testo("Il progetto salvato per ultimo non si trova più: salvarlo di nuovo prima (" + progetto +
                          ").");
    } else {
        lblProgetto.testo("Progetto salvato per ultimo: " + progetto);
    }
}

void frmLinkACAD::scelta(int riga) {
    progIDAutoCAD_.clear();
    std::string cartella;
    if (riga >= 0) {
        const AUTOCADInstallato& voce = installati_.at(static_cast<std::size_t>(riga));
        progIDAutoCAD_ = kelvo::progIDAutoCAD(voce.nome);
        cartella = voce.cartella;
    }
    lblCartella.testo(cartella.empty() ? std::string{} : "Cartella: " + cartella);
    lblCartella.visibile(!cartella.empty());
    const AutomazioneCAD* cad = kelvoCAD_.servizi().cad;
    cmdAVVIAcad.abilitato(!progIDAutoCAD_.empty() && conProgetto_ && cad != nullptr && cad->impedimento().empty());
    esito({});
}

void frmLinkACAD::esito(const std::string& parole) {
    lblEsito.testo(parole);
    lblEsito.visibile(!parole.empty());
}

void frmLinkACAD::AvviaCAD() {
    esito({});
    gestisci("frmLinkACAD:cmdAVVIAcad", [this] { comanda(); });
}

void frmLinkACAD::comanda() {
    AutomazioneCAD& cad = *kelvoCAD_.servizi().cad;
    std::unique_ptr<ProgrammaCAD> programma = cad.inCorso(progIDAutoCAD_);
    if (programma != nullptr) {
        programma->Visible(true);
    } else {
        if (app().messaggi.mostra(domandaAvvio, titoli::kelvo, Icona::domanda, Pulsanti::siNo) != Risposta::si) {
            return;
        }
        programma = cad.crea(progIDAutoCAD_);
        programma->Visible(true);
        programma->Activate();
    }
    const std::string macro = percorsoMacroKelvoCAD(app().theAmbiente);
    programma->LoadDVB(macro);
    programma->RunMacro(macro + macroLettura);
    esito("AutoCAD ha letto il progetto.");
}

}  // namespace kelvo
