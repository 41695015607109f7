#include "shell/frmTreeView.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "shell/MDI_Form.h"
#include "shell/disposizioniAlbero.h"
#include "shell/finestrePerChiave.h"
#include "shell/gestore.h"

namespace kelvo {

namespace {

/// Width of the tree on a screen that is at most so large, twips.
struct LarghezzaSchermo {
    Misura massimo;
    double larghezza = 0.0;
};
constexpr std::array larghezze{
    LarghezzaSchermo{{15360.0, 11520.0}, 4500.0},
    LarghezzaSchermo{{17280.0, 12960.0}, 5500.0},
};
constexpr double larghezzaOltre = 8000.0;

/// What opens a node of the sensitivity analysis: the option of the project, or what its leg has to choose.
constexpr const char* conOttimizzazione = "Si apre con «Ottimizzazione Geometrica» nelle Opzioni";
constexpr const char* conGrandezze = "Si apre spuntando una grandezza in Opzioni Analisi Marginale";

bool cifra(char c) {
    return c >= '1' && c <= '7';
}

}  // namespace

frmTreeView::frmTreeView(Applicazione& app, MDI_Form& cornice) : app_(app), cornice_(cornice) {}

void frmTreeView::Load() {
    posto_.W = larghezzaPerSchermo(cornice_.superficie().schermo());
    nodiDisabilitati.Attach(ctlTree);
}

void frmTreeView::Unload() {
    nodiDisabilitati.Detach();
    ctlTree.svuota();
    visibile(false);
}

void frmTreeView::visibile(bool valore) {
    visibile_ = valore;
    if (valore) {
        ResizeMe();
    }
    cornice_.superficie().mostraAlbero(valore);
}

double frmTreeView::larghezzaPerSchermo(Misura schermo) {
    for (const LarghezzaSchermo& l : larghezze) {
        if (schermo.W <= l.massimo.W && schermo.H <= l.massimo.H) {
            return l.larghezza;
        }
    }
    return larghezzaOltre;
}

void frmTreeView::ResizeMe() {
    gestisci(app_, "frmTreeView:ResizeMe()", [&] {
        const MetricheCornice m = cornice_.superficie().metriche();
        posto_.L = 0.0;
        posto_.T = 0.0;
        posto_.H = std::max(0.0, m.altezzaCornice - m.altezzaTitolo - m.altezzaMenu - m.altezzaBarra - m.altezzaStato);
        cornice_.superficie().collocaAlbero(posto_);
    });
}

void frmTreeView::costruisci() {
    ctlTree.svuota();
    perTipo_ = app_.configurazione.OpzExplorer != 0;
    if (perTipo_) {
        gestisci(app_, "LoadTreeView MOD 1", [&] {
            costruisciAlbero(ctlTree, alberoPerTipo(), app_.theRotonda());
            cornice_.Handle_Menu_normale();
            cornice_.SetUpOpzioni();
        });
    } else {
        gestisci(app_, "LoadTreeView MOD 2", [&] {
            costruisciAlbero(ctlTree, alberoPerRamo(), app_.theRotonda());
            cornice_.Handle_Menu_OPZ_raggruppa_tree();
        });
    }
}

void frmTreeView::LoadTreeView() {
    app_.comune.traceLog("Entro in LoadTreeView()");
    gestisci(app_, "LoadTreeView", [&] {
        app_.comune.LeggiOpzExplorer();
        costruisci();
        GestioneAnalisiMarginale();
        cornice_.riapplica();
        if (ctlTree.contiene(nodoCorrente_)) {
            ctlTree.seleziona(nodoCorrente_);
        }
    });
    app_.comune.traceLog("Esco da LoadTreeView()");
}

std::string_view frmTreeView::finestra(std::string_view chiave) const {
    const std::string_view nome = finestraDiChiave(chiave);
    if (nome == finestraTrafficoScelta) {
        return cornice_.finestraTraffico();
    }
    return nome == finestraComposizioneScelta ? cornice_.finestraComposizione() : nome;
}

bool frmTreeView::UserClick(const std::string& chiave) {
    bool mostrata = false;
    gestisci(app_, "frmTreeView:UserClick()", [&] {
        if (!cornice_.lasciaCampo()) {
            return;
        }
        const bool nodo = chiave.rfind("mnu", 0) != 0 && ctlTree.contiene(chiave);
        if (nodo) {
            ctlTree.seleziona(chiave);
        }
        mostrata = cornice_.mostraFinestra(finestra(chiave));
        if (mostrata && nodo) {
            nodoCorrente_ = chiave;
        }
    });
    if (!mostrata) {
        riseleziona();  // after a fault too
    }
    cornice_.aggiornaSegno();
    return mostrata;
}

void frmTreeView::riseleziona() {
    // The view has moved its mark already: only a change brings it back.
    ctlTree.deseleziona();
    if (ctlTree.contiene(nodoCorrente_)) {
        ctlTree.seleziona(nodoCorrente_);
    } else {
        ctlTree.cambiato().emit();
    }
}

void frmTreeView::selezionaCorrente(const std::string& chiave) {
    ctlTree.seleziona(chiave);
    nodoCorrente_ = chiave;
}

void frmTreeView::scordaCorrente() {
    ctlTree.deseleziona();
    nodoCorrente_.clear();
}

void frmTreeView::colora(Albero& albero, std::string_view chiave, bool abilitato) {
    if (!abilitato && albero.selezionato() == chiave) {
        albero.deseleziona();
    }
    albero.colore(chiave, abilitato ? coloreAbilitato : coloreDisabilitato);
    for (const std::string& figlio : albero.nodo(chiave).figli) {
        colora(albero, figlio, abilitato);
    }
}

void frmTreeView::DisableNode(Albero& albero, std::string_view chiave) {
    gestisci(app_, "frmTreeView:DisableNode()", [&] { colora(albero, chiave, false); });
}

void frmTreeView::EnableNode(Albero& albero, std::string_view chiave) {
    gestisci(app_, "frmTreeView:EnableNode()", [&] { colora(albero, chiave, true); });
}

void frmTreeView::GestioneAnalisiMarginale() {
    gestisci(app_, "frmTreeView:GestioneAnalisiMarginale", [&] {
        if (app_.theRotonda().OttimizzazioneGeometrica()) {
            cornice_.abilitaOttimizzazione();
            return;
        }
        for (std::int16_t ramo = 1; ramo <= app_.theRotonda().NumeroRami(); ++ramo) {
            const std::string analisi = fmt::format("keyAnalisiMarginale{}", ramo);
            DisableNode(ctlTree, analisi);
            cornice_.ctlMenu.abilita(analisi, false);
            DisableNode(ctlTree, fmt::format("keyOttimizzazioneGeometrica{}", ramo));
        }
    });
}

void frmTreeView::spiegaChiusi() {
    const bool attiva = app_.theRotonda().OttimizzazioneGeometrica();
    for (const std::string& chiave : ctlTree.chiavi()) {
        const std::string_view nome = finestra(chiave);
        const bool sensibilita = nome == "frmAnalisiMarginale" || nome == "frmRisultatiAnalisiMarginale";
        const bool chiuso = !(ctlTree.nodo(chiave).ForeColor == coloreAbilitato);
        ctlTree.annota(chiave, !sensibilita || !chiuso ? "" : attiva ? conGrandezze : conOttimizzazione);
    }
}

void frmTreeView::testoNodi(const std::string& chiaveRamo, const std::string& testo) {
    if (chiaveRamo.empty()) {
        return;
    }
    const char digitale = cifra(chiaveRamo.back()) ? chiaveRamo.back() : chiaveRamo.front();
    if (cifra(digitale)) {
        rinominaRamo(ctlTree, perTipo_ ? alberoPerTipo() : alberoPerRamo(), digitale, testo);
    }
}

void frmTreeView::clic(const std::string& chiave) {
    // The keyboard can reach a grey node; it opens nothing either.
    if (ctlTree.contiene(chiave) && !(ctlTree.nodo(chiave).ForeColor == nodiDisabilitati.ColoreAbilitato())) {
        riseleziona();
        return;
    }
    UserClick(chiave);
}

}  // namespace kelvo
