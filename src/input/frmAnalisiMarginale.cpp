#include "input/frmAnalisiMarginale.h"

#include <algorithm>

#include "base/guasto.h"
#include "input/misureIngresso.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Opzioni Analisi Marginale";
constexpr const char* attraversamenti = "Attraversamenti Pedonali";
constexpr const char* incidenza = "Incidenza sulla capacità";
constexpr const char* condizioni = "Condizioni esterne";
constexpr const char* contaComunque = "Il valore conta nel calcolo anche senza la spunta.";
constexpr const char* senzaAttraversamento = "Non conta: l'ingresso non ha un attraversamento pedonale (Geometria).";
}  // namespace testi

/// Where the project holds a parameter's flag and step, and the names of their controls.
struct LegamePasso {
    const char* casella;
    const char* campo;
    const char* pagina;
    bool (AnalisiMarginale::*usa)() const;
    void (AnalisiMarginale::*scriviUsa)(bool);
    double (AnalisiMarginale::*passo)() const;
    void (AnalisiMarginale::*scriviPasso)(double);
};

using A = AnalisiMarginale;
constexpr std::array<LegamePasso, 6> legami{{
    {"chkLarghezzaIngresso", "txtLarghezzaIngresso", "PassoLarghezzaIngresso.htm", &A::UsaLarghezzaIngresso,
     &A::UsaLarghezzaIngresso, &A::LarghezzaIngresso, &A::LarghezzaIngresso},
    {"chkSemiLarghezza", "txtSemiLarghezza", "PassoSemiLarghezza.htm", &A::UsaSemiLarghezza, &A::UsaSemiLarghezza,
     &A::SemiLarghezza, &A::SemiLarghezza},
    {"chkLungSvasatura", "txtLungSvasatura", "PassoLungSvasatura.htm", &A::UsaLunghezzaSvasatura,
     &A::UsaLunghezzaSvasatura, &A::LungSvasatura, &A::LungSvasatura},
    {"chkAngoloConflitto", "txtAngoloConflitto", "PassoAngoloConflitto.htm", &A::UsaAngoloConflitto,
     &A::UsaAngoloConflitto, &A::AngoloConflitto, &A::AngoloConflitto},
    {"chkRaggioCurvatura", "txtRaggioCurvatura", "PassoRaggioCurvatura.htm", &A::UsaRaggioCurvatura,
     &A::UsaRaggioCurvatura, &A::RaggioCurvatura, &A::RaggioCurvatura},
    {"chkDiametroInscritto", "txtDiametroInscritto", "PassoDiametroInscritto.htm", &A::UsaDiametroInscritto,
     &A::UsaDiametroInscritto, &A::DiametroInscritto, &A::DiametroInscritto},
}};

frmAnalisiMarginale::Passo passo(std::size_t i) {
    return {Casella{legami[i].casella, std::string{campiPasso[i].nome}},
            tBox{legami[i].campo, tBox::maskedit, tagNumerico(campiPasso[i])}};
}

/// The number that a field shows, as a double; 0 for an empty one.
double doppioDi(const tBox& campo) {
    return mascheraVuota(campo) ? 0.0 : leggiNumero(campo.testo()).value_or(0.0);
}

}  // namespace

const std::array<CampoNumerico, 6> campiPasso{{
    {"Larghezza ingresso", "m", 0.01, 2.0, "#0.00"},
    {"Semilarghezza accesso", "m", 0.01, 2.0, "#0.00"},
    {"Lunghezza svasatura", "m", 0.01, 20.0, "#0.00"},
    {"Angolo di conflitto", "gradi", 0.1, 20.0, "#0.00"},
    {"Raggio curvatura ingresso", "m", 0.1, 20.0, "#0.00"},
    {"Diametro inscritto", "m", 0.1, 50.0, "#0.00"},
}};

frmAnalisiMarginale::frmAnalisiMarginale(const Contorno& contorno)
    : FinestraRamo(contorno, "frmAnalisiMarginale", testi::didascalia),
      passi{{passo(0), passo(1), passo(2), passo(3), passo(4), passo(5)}},
      frAttraversamenti("frAttraversamenti", testi::attraversamenti,
                        {&lblAttraversamentoPedonale, &txtAttraversamentoPedonale}),
      lblAttraversamentoPedonale("lblAttraversamentoPedonale", testi::incidenza),
      txtAttraversamentoPedonale("txtAttraversamentoPedonale", tBox::maskedit, tagNumerico(campoAttraversamento)),
      chkCondizioniEsterne("chkCondizioniEsterne", testi::condizioni),
      txtCondizioniEsterne("txtCondizioniEsterne", tBox::maskedit, tagNumerico(campoCondizioni)) {
    std::vector<Controllo*> controlli;
    for (std::size_t i = 0; i < passi.size(); ++i) {
        Passo& p = passi[i];
        controlli.push_back(&p.chk);
        controlli.push_back(&p.txt);
        preparaNumerico(p.txt, campiPasso[i]);
        p.txt.paginaAiuto = legami[i].pagina;
        p.chk.alClic = [this] { confronta(); };
        p.txt.dopoUscita = [this] { confronta(); };
    }
    for (Controllo* c : std::initializer_list<Controllo*>{
             &frAttraversamenti, &lblAttraversamentoPedonale, &txtAttraversamentoPedonale, &lblSenzaAttraversamento,
             &chkCondizioniEsterne, &txtCondizioniEsterne, &lblCondizioniEsterne, &lblDescrizioneCondizioniEsterne,
             &txtDescrizioneCondizioniEsterne, &ctlPicture}) {
        controlli.push_back(c);
    }
    ordina(controlli);
    preparaNumerico(txtAttraversamentoPedonale, campoAttraversamento);
    preparaNumerico(txtCondizioniEsterne, campoCondizioni);
    txtAttraversamentoPedonale.paginaAiuto = "IncidenzaPedonale.htm";
    txtCondizioniEsterne.paginaAiuto = "CondizioniEsterne.htm";
    txtDescrizioneCondizioniEsterne.paginaAiuto = "CondizioniEsterne.htm";
    chkCondizioniEsterne.alClic = [this] {
        scartaNonAmmesso();
        abilita();
        confronta();
    };
    txtDescrizioneCondizioniEsterne.dopoUscita = [this] { confronta(); };
    txtAttraversamentoPedonale.dopoUscita = [this] {
        dopoNumero(txtAttraversamentoPedonale, campoAttraversamento.formato);
    };
    txtCondizioniEsterne.dopoUscita = [this] { dopoNumero(txtCondizioniEsterne, campoCondizioni.formato); };
    txtAttraversamentoPedonale.dopoTasto = [this] { abilita(); };
    txtCondizioniEsterne.dopoTasto = [this] { abilita(); };
    fuocoMutato().connect([this] { fuocoSpostato(); });
}

void frmAnalisiMarginale::ReadData() {
    const AnalisiMarginale& analisi = ramo().theAnalisiMarginale();
    for (std::size_t i = 0; i < passi.size(); ++i) {
        passi[i].chk.spuntata((analisi.*legami[i].usa)());
        mostraNumero(passi[i].txt, (analisi.*legami[i].passo)(), campiPasso[i].formato);
    }
    mostraNumero(txtAttraversamentoPedonale, analisi.AttraversamentoPedonale(), campoAttraversamento.formato);
    chkCondizioniEsterne.spuntata(analisi.UsaCondizioniEsterne());
    txtDescrizioneCondizioniEsterne.testo(analisi.DescrizioneCondizioniEsterne());
    mostraNumero(txtCondizioniEsterne, analisi.CondizioniEsterne(), campoCondizioni.formato);
    abilita();
    fuocoSpostato();
    DatiAllineati(true);
}

void frmAnalisiMarginale::abilita() {
    const bool usa = chkCondizioniEsterne.spuntata();
    txtDescrizioneCondizioniEsterne.abilitato(usa);
    txtCondizioniEsterne.abilitato(usa);
    const bool conta = !usa && doppioDi(txtCondizioniEsterne) != 0.0;
    lblCondizioniEsterne.testo(conta ? testi::contaComunque : "");
    lblCondizioniEsterne.visibile(conta);
    const bool inutile = !ramo().AttraversamentoPedonale() && doppioDi(txtAttraversamentoPedonale) != 0.0;
    lblSenzaAttraversamento.testo(inutile ? testi::senzaAttraversamento : "");
    lblSenzaAttraversamento.visibile(inutile);
}

void frmAnalisiMarginale::fuocoSpostato() {
    std::string figura = "RAMI" + std::to_string(rotonda().NumeroRami());
    for (std::size_t i = 0; i < passi.size(); ++i) {
        if (fuoco() == &passi[i].chk || fuoco() == &passi[i].txt) {
            figura = misureIngresso[i].figura;
            ctlHelp.pagina(legami[i].pagina);  // a check box brings the page of its step
        }
    }
    ctlPicture.risorsa(figura);
}

void frmAnalisiMarginale::scartaNonAmmesso() {
    // A closed field is asked nothing any more: what it would have refused goes.
    std::string numero = txtCondizioniEsterne.testo();
    std::replace(numero.begin(), numero.end(), ',', '.');
    if (!chkCondizioniEsterne.spuntata() && !txtCondizioniEsterne.regole().ammette(numero)) {
        mostraNumero(txtCondizioniEsterne, ramo().theAnalisiMarginale().CondizioniEsterne(), campoCondizioni.formato);
    }
}

void frmAnalisiMarginale::dopoNumero(tBox& campo, Formato formato) {
    if (mascheraVuota(campo)) {
        campo.modifica(formatta(0.0, formato));  // what an empty mask counts as
    }
    abilita();
    confronta();
}

bool frmAnalisiMarginale::diversi() const {
    const AnalisiMarginale& analisi = ramo().theAnalisiMarginale();
    for (std::size_t i = 0; i < passi.size(); ++i) {
        if (passi[i].chk.spuntata() != (analisi.*legami[i].usa)() ||
            (passi[i].txt.modificato() && doppioDi(passi[i].txt) != (analisi.*legami[i].passo)())) {
            return true;
        }
    }
    return chkCondizioniEsterne.spuntata() != analisi.UsaCondizioniEsterne() ||
           txtDescrizioneCondizioniEsterne.testo() != analisi.DescrizioneCondizioniEsterne() ||
           (txtAttraversamentoPedonale.modificato() &&
            doppioDi(txtAttraversamentoPedonale) != analisi.AttraversamentoPedonale()) ||
           (txtCondizioniEsterne.modificato() && doppioDi(txtCondizioniEsterne) != analisi.CondizioniEsterne());
}

void frmAnalisiMarginale::confronta() {
    if (diversi()) {
        DatiAllineati(false);
    }
}

void frmAnalisiMarginale::scriviPassi() {
    AnalisiMarginale& analisi = ramo().theAnalisiMarginale();
    for (std::size_t i = 0; i < passi.size(); ++i) {
        (analisi.*legami[i].scriviUsa)(passi[i].chk.spuntata());
        if (passi[i].txt.modificato()) {
            (analisi.*legami[i].scriviPasso)(doppioDi(passi[i].txt));
            passi[i].txt.salvato();
        }
    }
}

void frmAnalisiMarginale::scriviPercentuali() {
    AnalisiMarginale& analisi = ramo().theAnalisiMarginale();
    if (txtAttraversamentoPedonale.modificato()) {
        analisi.AttraversamentoPedonale(doppioDi(txtAttraversamentoPedonale));
        txtAttraversamentoPedonale.salvato();
    }
    analisi.UsaCondizioniEsterne(chkCondizioniEsterne.spuntata());
    if (txtCondizioniEsterne.modificato()) {
        analisi.CondizioniEsterne(doppioDi(txtCondizioniEsterne));
        txtCondizioniEsterne.salvato();
    }
    if (txtDescrizioneCondizioniEsterne.modificato()) {
        analisi.DescrizioneCondizioniEsterne(txtDescrizioneCondizioniEsterne.testo());
        txtDescrizioneCondizioniEsterne.salvato();
    }
}

void frmAnalisiMarginale::SaveData() {
    gestisci("frmAnalisiMarginale:SaveData", [this] {
        if (!convalida()) {
            return;
        }
        scriviPassi();
        scriviPercentuali();
        DatiAllineati(true);
        cornice().SetUpOpzioni();
    });
}

}  // namespace kelvo
