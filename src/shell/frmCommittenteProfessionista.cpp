#include "shell/frmCommittenteProfessionista.h"

#include <fmt/format.h>

#include <array>
#include "app/titoli.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Anagrafica professionista";
constexpr const char* committente = "Anagrafica Committente";
constexpr const char* soloCifre = "Sono ammessi solo caratteri numerici.";
}  // namespace testi

constexpr std::string_view cifre = "0123456789";
constexpr std::string_view telefono = "0123456789 +/-()";
constexpr std::size_t cifreCAP = 5;

using Modulo = frmCommittenteProfessionista;

/// Labels of both blocks; the client's end in a colon.
struct Testi {
    const char* professionista;
    const char* committente;
};
constexpr std::array etichette{
    Testi{"Professionista", "Committente:"},
    Testi{"Indirizzo", "Indirizzo:"},
    Testi{"CAP", "CAP:"},
    Testi{"Città", "Città:"},
    Testi{"Provincia", "Provincia:"},
    Testi{"Telefono", "Telefono:"},
    Testi{"E-mail", "E-mail:"},
};

/// A field of the engineer and its property.
struct Legame {
    tBox Modulo::*campo;
    const std::string& (Rotonda::*leggi)() const;
    void (Rotonda::*scrivi)(const std::string&);
};
constexpr std::array legami{
    Legame{&Modulo::txtNomeProfessionista, &Rotonda::NomeProfessionista, &Rotonda::NomeProfessionista},
    Legame{&Modulo::txtIndirizzoProfessionista, &Rotonda::IndirizzoProfessionista, &Rotonda::IndirizzoProfessionista},
    Legame{&Modulo::txtCAPProfessionista, &Rotonda::CAPProfessionista, &Rotonda::CAPProfessionista},
    Legame{&Modulo::txtCittaProfessionista, &Rotonda::CittaProfessionista, &Rotonda::CittaProfessionista},
    Legame{&Modulo::txtProvinciaProfessionista, &Rotonda::ProvinciaProfessionista, &Rotonda::ProvinciaProfessionista},
    Legame{&Modulo::txtTelefonoProfessionista, &Rotonda::TelefonoProfessionista, &Rotonda::TelefonoProfessionista},
    Legame{&Modulo::txtEMailProfessionista, &Rotonda::EMailProfessionista, &Rotonda::EMailProfessionista},
};

/// Pages of the help pane; the client's block has one for all its fields.
struct Pagina {
    tBox Modulo::*campo;
    const char* pagina;
};
constexpr const char* paginaCommittente = "Committente.htm";
constexpr std::array pagine{
    Pagina{&Modulo::txtNomeProfessionista, "NomeProfessionista.htm"},
    Pagina{&Modulo::txtIndirizzoProfessionista, "IndirizzoProfessionista.htm"},
    Pagina{&Modulo::txtCAPProfessionista, "CAPProfessionista.htm"},
    Pagina{&Modulo::txtCittaProfessionista, "CittaProfessionista.htm"},
    Pagina{&Modulo::txtProvinciaProfessionista, "ProvinciaProfessionista.htm"},
    Pagina{&Modulo::txtTelefonoProfessionista, "TelefonoProfessionista.htm"},
    Pagina{&Modulo::txtEMailProfessionista, "EMailProfessionista.htm"},
    Pagina{&Modulo::txtNomeCommittente, paginaCommittente},
    Pagina{&Modulo::txtIndirizzoCommittente, paginaCommittente},
    Pagina{&Modulo::txtCAPCommittente, paginaCommittente},
    Pagina{&Modulo::txtCittaCommittente, paginaCommittente},
    Pagina{&Modulo::txtProvinciaCommittente, paginaCommittente},
    Pagina{&Modulo::txtTelefonoCommittente, paginaCommittente},
    Pagina{&Modulo::txtEMailCommittente, paginaCommittente},
};

void mascheraCAP(tBox& campo) {
    campo.caratteriAmmessi = cifre;
    campo.lunghezzaMassima = cifreCAP;
}

}  // namespace

frmCommittenteProfessionista::frmCommittenteProfessionista(const Contorno& contorno)
    : FinestraDati(contorno, "frmCommittenteProfessionista", testi::didascalia),
      lblNomeProfessionista("lblNomeProfessionista", etichette[0].professionista),
      lblIndirizzoProfessionista("lblIndirizzoProfessionista", etichette[1].professionista),
      lblCAPProfessionista("lblCAPProfessionista", etichette[2].professionista),
      lblCittaProfessionista("lblCittaProfessionista", etichette[3].professionista),
      lblProvinciaProfessionista("lblProvinciaProfessionista", etichette[4].professionista),
      lblTelefonoProfessionista("lblTelefonoProfessionista", etichette[5].professionista),
      lblEMailProfessionista("lblEMailProfessionista", etichette[6].professionista),
      lblNomeCommittente("lblNomeCommittente", etichette[0].committente),
      lblIndirizzoCommittente("lblIndirizzoCommittente", etichette[1].committente),
      lblCAPCommittente("lblCAPCommittente", etichette[2].committente),
      lblCittaCommittente("lblCittaCommittente", etichette[3].committente),
      lblProvinciaCommittente("lblProvinciaCommittente", etichette[4].committente),
      lblTelefonoCommittente("lblTelefonoCommittente", etichette[5].committente),
      lblEMailCommittente("lblEMailCommittente", etichette[6].committente),
      frProfessionista(
          "frProfessionista", testi::didascalia,
          {&lblNomeProfessionista, &txtNomeProfessionista, &lblIndirizzoProfessionista, &txtIndirizzoProfessionista,
           &lblCAPProfessionista, &txtCAPProfessionista, &lblCittaProfessionista, &txtCittaProfessionista,
           &lblProvinciaProfessionista, &txtProvinciaProfessionista, &lblTelefonoProfessionista,
           &txtTelefonoProfessionista, &lblEMailProfessionista, &txtEMailProfessionista}),
      frCommittente("frCommittente", testi::committente,
                    {&lblNomeCommittente, &txtNomeCommittente, &lblIndirizzoCommittente, &txtIndirizzoCommittente,
                     &lblCAPCommittente, &txtCAPCommittente, &lblCittaCommittente, &txtCittaCommittente,
                     &lblProvinciaCommittente, &txtProvinciaCommittente, &lblTelefonoCommittente,
                     &txtTelefonoCommittente, &lblEMailCommittente, &txtEMailCommittente}) {
    std::vector<Controllo*> tutti{&frProfessionista};
    tutti.insert(tutti.end(), frProfessionista.contenuto().begin(), frProfessionista.contenuto().end());
    tutti.push_back(&frCommittente);
    tutti.insert(tutti.end(), frCommittente.contenuto().begin(), frCommittente.contenuto().end());
    ordina(tutti);
    mascheraCAP(txtCAPProfessionista);
    mascheraCAP(txtCAPCommittente);
    txtTelefonoProfessionista.caratteriAmmessi = telefono;
    txtTelefonoCommittente.caratteriAmmessi = telefono;
    txtCAPProfessionista.controllo = [this] { return controllaCAP(); };
    for (const Pagina& voce : pagine) {
        (this->*voce.campo).paginaAiuto = voce.pagina;
    }
    for (const Legame& legame : legami) {
        (this->*legame.campo).dopoUscita = [this] { confronta(); };
    }
}

void frmCommittenteProfessionista::ReadData() {
    for (const Legame& legame : legami) {
        tBox& campo = this->*legame.campo;
        const std::string& valore = (rotonda().*legame.leggi)();
        // An empty postcode is not put over the empty mask; it only takes away what was typed and not saved.
        if (&campo != &txtCAPProfessionista || !valore.empty() || campo.modificato()) {
            campo.testo(valore);
        }
    }
    ctlPicture.risorsa(fmt::format("RAMI{}", rotonda().NumeroRami()));
    DatiAllineati(true);
}

void frmCommittenteProfessionista::SaveData() {
    for (const Legame& legame : legami) {
        tBox& campo = this->*legame.campo;
        if (campo.modificato()) {
            (rotonda().*legame.scrivi)(campo.testo());
            campo.salvato();
        }
    }
    DatiAllineati(true);
}

EsitoUscita frmCommittenteProfessionista::controllaCAP() const {
    if (txtCAPProfessionista.testo().find_first_not_of(cifre) != std::string::npos) {
        return EsitoUscita::rifiuto(MessaggioCampo{testi::soloCifre, titoli::attenzione, Icona::esclamazione});
    }
    return EsitoUscita::bene();
}

void frmCommittenteProfessionista::confronta() {
    for (const Legame& legame : legami) {
        if ((this->*legame.campo).testo() != (rotonda().*legame.leggi)()) {
            DatiAllineati(false);
        }
    }
}

}  // namespace kelvo
