#include "shell/frmAnagraficaRotonda.h"

#include <fmt/format.h>

#include <array>

#include "base/date.h"
#include "base/numeri.h"
#include "shell/servizi/nomiPermessi.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Anagrafica intersezione";
constexpr const char* nomeFile = "Nome progetto - file";
constexpr const char* data = "Data";
constexpr const char* statoAvanzamento = "Stato di avanzamento";
constexpr const char* localita = "Località / Frazione / Borgata";
constexpr const char* comune = "Comune";
constexpr const char* provincia = "Provincia";
constexpr const char* titolo = "Titolo - Descrizione";
constexpr const char* note = "Note";
constexpr const char* numeroRami = "Numero rami";
}  // namespace testi

constexpr std::array stadi{"Progetto Preliminare",     "Progetto Definitivo",          "Progetto Esecutivo",
                           "Studio di prefattibilità", "Studio preliminare",           "Verifica prestazionale",
                           "Versione Finale",          "Analisi operativa (cantiere)!"};

/// A field and the text property of the project that it shows.
struct Legame {
    tBox frmAnagraficaRotonda::*campo;
    const std::string& (Rotonda::*leggi)() const;
    void (Rotonda::*scrivi)(const std::string&);
};
constexpr Legame legameTitolo{&frmAnagraficaRotonda::txtTitolo, &Rotonda::Titolo, &Rotonda::Titolo};
constexpr Legame legameNome{&frmAnagraficaRotonda::txtNomeFile, &Rotonda::NomeFile, &Rotonda::NomeFile};
constexpr std::array legami{
    legameTitolo,
    legameNome,
    Legame{&frmAnagraficaRotonda::txtStatoAvanzamento, &Rotonda::StatoAvanzamento, &Rotonda::StatoAvanzamento},
    Legame{&frmAnagraficaRotonda::txtLocalita, &Rotonda::Localita, &Rotonda::Localita},
    Legame{&frmAnagraficaRotonda::txtComune, &Rotonda::Comune, &Rotonda::Comune},
    Legame{&frmAnagraficaRotonda::txtProvincia, &Rotonda::Provincia, &Rotonda::Provincia},
};

}  // namespace

frmAnagraficaRotonda::frmAnagraficaRotonda(const Contorno& contorno)
    : FinestraDati(contorno, "frmAnagraficaRotonda", testi::didascalia),
      lblNomeFile("lblNomeFile", testi::nomeFile),
      lblData("lblData", testi::data),
      lblStatoAvanzamento("lblStatoAvanzamento", testi::statoAvanzamento),
      lblLocalita("lblLocalita", testi::localita),
      lblComune("lblComune", testi::comune),
      lblProvincia("lblProvincia", testi::provincia),
      lblTitolo("lblTitolo", testi::titolo),
      lblNote("lblNote", testi::note),
      lblNumeroRami("lblNumeroRami", testi::numeroRami) {
    ordina({&lblNomeFile, &txtNomeFile, &lblData, &txtData, &lblStatoAvanzamento, &txtStatoAvanzamento, &lblLocalita,
            &txtLocalita, &lblComune, &txtComune, &lblProvincia, &txtProvincia, &lblTitolo, &txtTitolo, &lblNote,
            &txtNote, &lblNumeroRami, &txtNumeroRami});
    assegnaPagine();
    txtData.giorno = true;
    txtStatoAvanzamento.digitabile = true;
    txtStatoAvanzamento.voci({stadi.begin(), stadi.end()});
    txtNumeroRami.solaLettura(true);
    txtNomeFile.controllo = [this] { return controllaNomeFile(); };
    txtNomeFile.dopoTasto = [this] { mostraTitolo(txtNomeFile.testo()); };
    for (Controllo* c : ordine()) {
        if (auto* campo = dynamic_cast<tBox*>(c)) {
            campo->dopoUscita = [this] { confronta(); };
        }
    }
    txtNote.dopoUscita = [this] { confronta(); };
}

void frmAnagraficaRotonda::assegnaPagine() {
    txtNomeFile.paginaAiuto = "NomeFile.htm";
    txtData.paginaAiuto = "Data.htm";
    txtStatoAvanzamento.paginaAiuto = "StatoAvanzamento.htm";
    txtLocalita.paginaAiuto = "Localita.htm";
    txtComune.paginaAiuto = "Comune.htm";
    txtProvincia.paginaAiuto = "Provincia.htm";
    txtTitolo.paginaAiuto = "Titolo.htm";
    txtNote.paginaAiuto = "Note.htm";
    txtNumeroRami.paginaAiuto = "NumeroRami.htm";
}

void frmAnagraficaRotonda::attivata() {
    ReadData();
    if (stato().ProgettoAperto) {
        fuocoSu(txtNomeFile);
    }
}

void frmAnagraficaRotonda::ReadData() {
    for (const Legame& legame : legami) {
        (this->*legame.campo).testo((rotonda().*legame.leggi)());
    }
    txtData.testo(testoData(rotonda().Data()));
    txtNote.testo(rotonda().Note());
    txtNumeroRami.testo(testoNumero(rotonda().NumeroRami()));
    ctlPicture.risorsa(fmt::format("RAMI{}", rotonda().NumeroRami()));
    DatiAllineati(true);
}

void frmAnagraficaRotonda::SaveData() {
    if (txtData.modificato()) {
        rotonda().Data(leggiData(txtData.testo()).value_or(rotonda().Data()));
        txtData.salvato();
    }
    if (txtNote.modificato()) {
        rotonda().Note(txtNote.testo());
        txtNote.testo(txtNote.testo());
    }
    for (const Legame& legame : legami) {
        tBox& campo = this->*legame.campo;
        if (campo.modificato()) {
            (rotonda().*legame.scrivi)(campo.testo());
            campo.salvato();
        }
        if (&campo == &txtNomeFile) {
            mostraTitolo(rotonda().NomeFile());
        }
    }
    DatiAllineati(true);
}

void frmAnagraficaRotonda::mostraTitolo(const std::string& nome) {
    cornice().titolo("KELVO 2014 - [" + nome + ".klv]");
}

EsitoUscita frmAnagraficaRotonda::controllaNomeFile() const {
    if (txtNomeFile.testo().find_first_of(caratteriVietati) != std::string::npos) {
        return EsitoUscita::rifiuto(messaggioCaratteriVietati());
    }
    return EsitoUscita::bene();
}

void frmAnagraficaRotonda::confronta() {
    const Rotonda& r = rotonda();
    bool uguali = txtData.testo() == testoData(r.Data()) && txtNote.testo() == r.Note();
    for (const Legame& legame : legami) {
        uguali = uguali && (this->*legame.campo).testo() == (r.*legame.leggi)();
    }
    if (!uguali) {
        DatiAllineati(false);
    }
}

}  // namespace kelvo
