#include "shell/MDI_Form.h"

#include <fmt/format.h>

#include <array>

#include "app/titoli.h"
#include "base/versione.h"
#include "cad/frmKCAD.h"
#include "cad/frmLinkACAD.h"
#include "shell/barraPrincipale.h"
#include "shell/frmAiuto.h"
#include "shell/frmINFO.h"
#include "shell/gestore.h"
#include "shell/menuPrincipale.h"
#include "shell/servizi/pelle.h"

namespace kelvo {

namespace {

/// Stands behind the caption while there are unsaved changes.
constexpr const char* segnoModifiche = " *";

}  // namespace

Rettangolo MDI_Form::Area::albero() const {
    return cornice_.superficie().albero();
}

double MDI_Form::Area::larghezzaInterna() const {
    return cornice_.superficie().larghezzaInterna();
}

void MDI_Form::Area::mostra(Finestra& finestra) {
    cornice_.superficie().mostra(finestra);
}

void MDI_Form::Area::colloca(Finestra& finestra, const Rettangolo& posto) {
    cornice_.superficie().colloca(finestra, posto);
}

void MDI_Form::Area::nascondi(Finestra& finestra) {
    cornice_.superficie().nascondi(finestra);
    cornice_.aggiornaSuggerimenti(nullptr);
    cornice_.copiaDiRecupero();
}

void MDI_Form::Area::vestiBarra(Finestra& finestra) {
    cornice_.superficie().vestiBarra(finestra);
    cornice_.inPrimoPiano();
    cornice_.aggiornaSuggerimenti(&finestra);
}

void MDI_Form::Area::ridimensiona(Finestra& finestra) {
    cornice_.superficie().ridimensiona(finestra);
}

MDI_Form::MDI_Form(Applicazione& app, StatoFinestre& stato, const Servizi& servizi)
    : ctlToolbar("ctlToolbar", tastiBarraPrincipale()),
      app_(app),
      stato_(stato),
      servizi_(servizi),
      area_(*this),
      albero(app, *this),
      gestione(app, stato, area_),
      recenti(servizi.impostazioni),
      recupero(app, servizi.cartellaRecupero),
      kelvoCAD_(app, {.documenti = servizi.documenti,
                      .impostazioni = servizi.impostazioni,
                      .salvataggio = *this,
                      .registro = servizi.registro,
                      .cad = servizi.cad}),
      titolo_(titoli::programma) {
    didascalia.testo(titolo_);
    ctlMenu.alClic = [this](const std::string& chiave) { Menu_Click(chiave); };
    ctlToolbar.allaPressione = [this](const std::string& chiave) { Toolbar_Click(chiave); };
    aggiungiMenuPrincipali(ctlMenu);
    registraSopra();
    finestre.allaNascita = [this](Finestra& finestra) {
        if (BarraStrumenti* barra = finestra.barra()) {
            // A button may write the window's data to the project.
            barra->dopoPressione = [this] { aggiornaSegno(); };
            barra->cambiato().connect([this, &finestra] {
                if (gestione.corrente() == &finestra) {
                    aggiornaSuggerimenti(&finestra);
                }
            });
        }
    };
    finestre.allaFine = [this](Finestra& finestra) { superficie().dimentica(finestra); };
}

/// The windows over the main one that its own menu brings up.
void MDI_Form::registraSopra() {
    finestre.registra("frmINFO", [](const Contorno& contorno) { return std::make_unique<frmINFO>(contorno); });
    finestre.registra("frmLinkACAD",
                      [this](const Contorno& contorno) { return std::make_unique<frmLinkACAD>(contorno, kelvoCAD_); });
    finestre.registra("frmKCAD", [this](const Contorno& contorno) {
        return std::make_unique<frmKCAD>(contorno, servizi_.documenti);
    });
    finestre.registra("frmAiuto", [this](const Contorno& contorno) {
        return std::make_unique<frmAiuto>(contorno, servizi_.documenti);
    });
}

void MDI_Form::Load() {
    gestisci(app_, "MDI_Form:Load()", [&] {
        BackColor = colorePrincipale;
        inPrimoPiano();
        titolo(titoli::programma);
        ctlStatusBar.testo(fmt::format("Kelvo {}", versione()));
        for (const std::string_view menu : menuPrimaCostruzione) {
            ctlMenu.svuota(menu);
        }
        aggiungiRighe(ctlMenu, righeFile(), app_.theRotonda());
        aggiungiVociProprie();
        albero.Load();
        riapplica();
        aggiornaSuggerimenti(nullptr);
        servizi_.cronometro.ogni(Recupero::intervallo, [this] { copiaDiRecupero(); });
    });
}

void MDI_Form::inPrimoPiano() {
    Aspetto aspetto = ctlToolbar.aspetto();
    aspetto.sfondo = colorePrincipale;
    aspetto.inchiostro = colori::bianco;
    ctlToolbar.aspetto(aspetto);
}

void MDI_Form::titolo(const std::string& testo) {
    titolo_ = testo;
    aggiornaSegno();
}

void MDI_Form::aggiornaSegno() {
    didascalia.testo(modificato() ? titolo_ + segnoModifiche : titolo_);
}

void MDI_Form::testoNodi(const std::string& chiaveRamo, const std::string& testo) {
    albero.testoNodi(chiaveRamo, testo);
    // The captions of the menus bear the names of the legs too.
    if (albero.perTipo()) {
        Handle_Menu_normale();
    } else {
        Handle_Menu_OPZ_raggruppa_tree();
    }
}

bool MDI_Form::lasciaCampo() {
    return gestione.corrente() == nullptr || gestione.corrente()->lasciaFuoco();
}

bool MDI_Form::mostraFinestra(std::string_view nome) {
    if (nome.empty()) {
        return gestione.ShowForm(nullptr);
    }
    const bool nuova = finestre.viva(nome) == nullptr;
    Finestra& finestra = finestre.finestra(nome, contorno());
    const bool mostrata = gestione.ShowForm(&finestra);
    if (!mostrata && nuova && gestione.corrente() != &finestra) {
        // Never shown, it has read nothing: whoever asks what it shows would be told that all is empty.
        finestre.distruggi(nome);
    }
    return mostrata;
}

bool MDI_Form::scriviFinestra(Finestra& finestra) {
    stato_.convalidaFallita = false;
    const bool bene = finestra.convalida() && !stato_.convalidaFallita;
    stato_.convalidaFallita = false;
    if (!bene) {
        return false;
    }
    finestra.SaveData();
    const bool scritta = !stato_.convalidaFallita;
    stato_.convalidaFallita = false;
    return scritta;
}

void MDI_Form::SetUpOpzioni() {
    gestisci(app_, "MDI_Form:SetUpOpzioni", [&] {
        constexpr std::array<std::string_view, 3> traffico{"", "frmDatiTraffico", "frmDatiTrafficoST"};
        constexpr std::array<std::string_view, 2> composizione{"frmComposizioneTraffico", "frmComposizioneTrafficoST"};
        const Rotonda& rotonda = app_.theRotonda();
        tipoAnalisi_ = rotonda.TipoAnalisi();
        if (tipoAnalisi_ >= 0 && static_cast<std::size_t>(tipoAnalisi_) < traffico.size()) {
            finestraTraffico_ = traffico[static_cast<std::size_t>(tipoAnalisi_)];
        }
        tipoFlusso_ = rotonda.TipoFlusso();
        if (tipoFlusso_ >= 0 && static_cast<std::size_t>(tipoFlusso_) < composizione.size()) {
            finestraComposizione_ = composizione[static_cast<std::size_t>(tipoFlusso_)];
        }
        if (rotonda.OttimizzazioneGeometrica()) {
            abilitaOttimizzazione();
        } else if (albero.visibile()) {
            for (std::int16_t ramo = 1; ramo <= rotonda.NumeroRami(); ++ramo) {
                for (const char* radice : {"keyAnalisiMarginale", "keyOttimizzazioneGeometrica"}) {
                    const std::string chiave = fmt::format("{}{}", radice, ramo);
                    albero.DisableNode(albero.ctlTree, chiave);
                    ctlMenu.abilita(chiave, false);
                }
            }
        }
        albero.spiegaChiusi();
        applicaAlbero();
    });
}

void MDI_Form::abilitaOttimizzazione() {
    const Rotonda& rotonda = app_.theRotonda();
    for (std::int16_t ramo = 1; ramo <= rotonda.NumeroRami(); ++ramo) {
        const std::string analisi = fmt::format("keyAnalisiMarginale{}", ramo);
        // While a project is opened its tree is not built yet; this runs again when it is.
        const bool costruito = albero.ctlTree.contiene(analisi);
        if (costruito) {
            albero.EnableNode(albero.ctlTree, analisi);
        }
        ctlMenu.abilita(analisi, true);
        const AnalisiMarginale& usa = rotonda.Ramo(ramo).theAnalisiMarginale();
        const bool qualcuna = usa.UsaLarghezzaIngresso() || usa.UsaSemiLarghezza() || usa.UsaLunghezzaSvasatura() ||
                              usa.UsaAngoloConflitto() || usa.UsaRaggioCurvatura() || usa.UsaDiametroInscritto();
        const std::string risultati = fmt::format("keyOttimizzazioneGeometrica{}", ramo);
        if (costruito && qualcuna) {
            albero.EnableNode(albero.ctlTree, risultati);
        } else if (costruito) {
            albero.DisableNode(albero.ctlTree, risultati);
        }
        ctlMenu.abilita(risultati, qualcuna);
    }
}

}  // namespace kelvo
