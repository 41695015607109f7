#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "shell/MDI_Form.h"
#include "shell/barraPrincipale.h"
#include "shell/finestrePerChiave.h"
#include "shell/frmAiuto.h"
#include "shell/gestore.h"
#include "shell/menuPrincipale.h"
#include "shell/servizi/pagineAiuto.h"

namespace kelvo {

namespace {

constexpr const char* menuRecenti = "mnuXRecenti";
constexpr std::string_view radiceRecente = "mnuXRecente";
constexpr const char* chiaveAiuto = "mnuXAiuto";
constexpr const char* chiaveIndiceAiuto = "mnuXIndiceAiuto";
constexpr std::string_view guidaUtente = "\\UserGuide\\UserGuide.pdf";

bool inizia(const std::string& chiave, std::string_view radice) {
    return chiave.size() > radice.size() && chiave.compare(0, radice.size(), radice) == 0;
}

}  // namespace

/// A key of the menu and what it runs.
struct MDI_Form::Comando {
    std::string_view chiave;
    std::function<void(MDI_Form&)> azione;
};

const std::vector<MDI_Form::Comando>& MDI_Form::comandi() {
    static const std::vector<Comando> tavola{
        {"mnuNuovo", [](MDI_Form& f) { f.NewRotonda(); }},
        {"mnuApri", [](MDI_Form& f) { f.OpenRotonda(); }},
        {"mnuSalva",
         [](MDI_Form& f) {
             bool esito = true;
             f.SaveRotonda(esito);
         }},
        {"mnuChiudi", [](MDI_Form& f) { f.CloseRotonda(); }},
        {"mnuEsci", [](MDI_Form& f) { f.esci(); }},
        {"mnuCompilaRelazione", [](MDI_Form& f) { f.mostraFinestra("frmOPZrelazione"); }},
        {"mnuGuidaInLinea", [](MDI_Form& f) { f.apriDocumento(guidaUtente); }},
        {"mnuHome", [](MDI_Form& f) { f.apriDocumento("\\Support\\Vaq in rete.htm"); }},
        {"mnuAltriProdotti", [](MDI_Form& f) { f.apriDocumento("\\Support\\Vaq Products.htm"); }},
        {"mnuKelvoCAD2",
         [](MDI_Form& f) {
             bool esito = true;
             f.LinkKELVOCAD(esito);
         }},
        {"mnuInfoSulProgramma", [](MDI_Form& f) { f.mostraSopra("frmINFO"); }},
        {"mnuXCollegamentoAutoCAD", [](MDI_Form& f) { f.mostraSopra("frmLinkACAD"); }},
        {"mnuXInformazioniKelvoCAD", [](MDI_Form& f) { f.mostraSopra("frmKCAD"); }},
        {"mnuXEsportaDXF",
         [](MDI_Form& f) {
             // The drawing is that of the project: what the window at hand holds goes into it first, as when it is
             // left.
             Finestra* corrente = f.gestione.corrente();
             const bool senza = f.stato_.statoProgetto == StatoProgetto::NessunProgetto;
             if (senza || (corrente != nullptr && corrente->haSaveData() && !f.scriviFinestra(*corrente))) {
                 return;
             }
             Finestra& finestra = f.finestre.finestra("frmEsportaDXF", f.contorno());
             finestra.attivata();
             f.superficie().mostraModale(finestra);
         }},
        {chiaveAiuto, [](MDI_Form& f) { f.aiutoSulCampo(); }},
        {chiaveIndiceAiuto, [](MDI_Form& f) { f.aiuto(std::string{paginaIndice}); }},
    };
    return tavola;
}

void MDI_Form::Menu_Click(const std::string& chiave) {
    gestisci(app_, "MDI_Form:Menu_Click()", [&] {
        if (chiave.rfind("mnu", 0) != 0) {
            albero.UserClick(chiave);
            return;
        }
        // Help is asked for where one stands, also with a text that may not be left.
        const bool aiuto = chiave == chiaveAiuto || chiave == chiaveIndiceAiuto;
        if (!aiuto && !lasciaCampo()) {
            return;
        }
        if (inizia(chiave, radiceRecente)) {
            apriRecente(chiave);
            return;
        }
        const auto& tavola = comandi();
        const auto comando =
            std::find_if(tavola.begin(), tavola.end(), [&](const Comando& c) { return c.chiave == chiave; });
        if (comando != tavola.end()) {
            comando->azione(*this);
        }
    });
    aggiornaSegno();
}

void MDI_Form::Toolbar_Click(const std::string& chiave) {
    gestisci(app_, "MDI_Form:Toolbar_Click()", [&] {
        const RigaBarra& riga = rigaBarra(chiave);
        switch (riga.azione) {
            case AzioneTasto::comando:
                Menu_Click(std::string{riga.argomento});
                break;
            case AzioneTasto::chiave:
                albero.UserClick(std::string{riga.argomento});
                break;
            case AzioneTasto::finestra:
                if (lasciaCampo()) {
                    mostraFinestra(riga.argomento);
                }
                break;
            case AzioneTasto::procedura:
                Menu_Click("mnuKelvoCAD2");
                break;
        }
    });
    aggiornaSegno();
}

void MDI_Form::Handle_Menu() {
    gestisci(app_, "MDI_Form:Handle_Menu()", [&] {
        app_.comune.LeggiOpzExplorer();
        if (app_.configurazione.OpzExplorer != 0) {
            Handle_Menu_normale();
        } else {
            Handle_Menu_OPZ_raggruppa_tree();
        }
    });
}

void MDI_Form::Handle_Menu_normale() {
    gestisci(app_, "MDI_Form:Handle_Menu_normale()", [&] { costruisciMenu(true); });
}

void MDI_Form::Handle_Menu_OPZ_raggruppa_tree() {
    gestisci(app_, "MDI_Form:Handle_Menu_OPZ_raggruppa_tree()", [&] { costruisciMenu(false); });
}

void MDI_Form::costruisciMenu(bool perTipo) {
    for (const std::string_view menu : menuCostruzione) {
        ctlMenu.svuota(menu);
    }
    const Rotonda& rotonda = app_.theRotonda();
    aggiungiRighe(ctlMenu, righeFile(), rotonda);
    aggiungiRighe(ctlMenu, perTipo ? righePerTipo() : righePerRamo(), rotonda);
    aggiungiRighe(ctlMenu, righeCoda(), rotonda);
    aggiungiRighe(ctlMenu, righePropriePerProgetto(), rotonda);
    aggiungiVociProprie();
    aggiungiVociAiuto();
    applicaMenuMostrati();
    riapplica();
}

void MDI_Form::mostraMenu(bool visibili) {
    menuMostrati_ = visibili;
    applicaMenuMostrati();
}

void MDI_Form::applicaMenuMostrati() {
    for (const std::string_view menu : menuCostruzione) {
        ctlMenu.mostra(menu, menuMostrati_);
    }
}

void MDI_Form::aggiungiVociProprie() {
    MenuChiavi::Voce linea;
    linea.padre = "mnuFile";
    linea.testo = "-";
    linea.chiave = "mnuXSeparatoreRecenti";
    ctlMenu.aggiungi(linea);
    MenuChiavi::Voce sottomenu;
    sottomenu.padre = "mnuFile";
    sottomenu.testo = "Progetti recenti";
    sottomenu.chiave = menuRecenti;
    sottomenu.mnemonico = "P";
    ctlMenu.aggiungi(sottomenu);
    aggiornaRecenti();
}

void MDI_Form::aggiungiVociAiuto() {
    struct Riga {
        const char* testo;
        const char* chiave;
        std::string_view scorciatoia;
        const char* mnemonico;
    };
    constexpr std::array righe{Riga{"-", "mnuXSeparatoreAiuto", {}, ""},
                               Riga{"Aiuto sul campo", chiaveAiuto, tastoAiuto, "c"},
                               Riga{"Indice dell'aiuto", chiaveIndiceAiuto, {}, "d"}};
    for (const Riga& riga : righe) {
        MenuChiavi::Voce voce;
        voce.padre = "mnuHelp";
        voce.testo = riga.testo;
        voce.chiave = riga.chiave;
        voce.scorciatoia = riga.scorciatoia;
        voce.mnemonico = riga.mnemonico;
        ctlMenu.aggiungi(voce);
    }
}

void MDI_Form::aiutoSulCampo() {
    const Finestra* davanti = superficie().finestraInFuoco();
    if (davanti == nullptr) {
        davanti = gestione.corrente();
    }
    if (davanti != nullptr) {
        aiuto(davanti->paginaInUso());
    } else if (stato_.statoProgetto != StatoProgetto::NessunProgetto) {
        aiuto(std::string{paginaDiFinestra(finestraVuota)});
    } else {
        apriDocumento(guidaUtente);  // nothing that help could be about
    }
}

void MDI_Form::aiuto(const std::string& pagina) {
    auto& finestra = dynamic_cast<frmAiuto&>(finestre.finestra("frmAiuto", contorno()));
    finestra.mostra(pagina);
    superficie().mostraAiuto(finestra);
}

void MDI_Form::aggiornaRecenti() {
    ctlMenu.svuota(menuRecenti);
    for (std::size_t i = 0; i < recenti.elenco().size(); ++i) {
        MenuChiavi::Voce voce;
        voce.padre = menuRecenti;
        voce.testo = fmt::format("{} {}", i + 1, recenti.elenco()[i]);
        voce.chiave = fmt::format("{}{}", radiceRecente, i + 1);
        voce.mnemonico = fmt::format("{}", i + 1);
        ctlMenu.aggiungi(voce);
    }
    ctlMenu.abilita(menuRecenti, ctlToolbar.abilitato(std::string_view{"Apri"}) && !recenti.elenco().empty());
}

void MDI_Form::apriRecente(const std::string& chiave) {
    const auto posizione = static_cast<std::size_t>(chiave.back() - '1');
    if (posizione >= recenti.elenco().size()) {
        return;
    }
    const std::string percorso = recenti.elenco()[posizione];
    LoadRotonda(percorso);
    if (stato_.statoProgetto != StatoProgetto::ProgettoCaricato) {
        recenti.togli(percorso);
        aggiornaRecenti();
    }
}

void MDI_Form::apriDocumento(std::string_view daProgramma) {
    const std::string percorso = app_.theAmbiente.PercorsoProgramma(std::string{daProgramma});
    if (!servizi_.documenti.apri("\"" + percorso + "\"")) {
        mostra(fmt::format("Impossibile aprire {}", percorso));
    }
}

void MDI_Form::mostraSopra(const char* finestra) {
    superficie().mostraModale(finestre.finestra(finestra, contorno()));
    finestre.distruggi(finestra);
}

void MDI_Form::gestioneToolbar(StatoProgetto stato) {
    gestisci(app_, "MDI_Form:GestioneToolbar()", [&] {
        stato_.statoProgetto = stato;
        riapplica();
        aggiornaSuggerimenti(gestione.corrente());
    });
}

void MDI_Form::riapplica() {
    applicaStato();
    albero.spiegaChiusi();
    applicaAlbero();
}

void MDI_Form::applicaStato() {
    const bool senza = stato_.statoProgetto == StatoProgetto::NessunProgetto;
    for (const StatoVoce& voce : statiTasti) {
        ctlToolbar.abilita(voce.chiave, senza ? voce.senzaProgetto : voce.conProgetto);
    }
    for (const StatoVoce& voce : statiMenu) {
        ctlMenu.abilita(voce.chiave, senza ? voce.senzaProgetto : voce.conProgetto);
    }
    ctlMenu.abilita(menuRecenti, senza && !recenti.elenco().empty());
}

void MDI_Form::applicaAlbero() {
    // A menu entry is open or closed together with the node of its key.
    const std::vector<MenuChiavi::Voce> voci = ctlMenu.voci();
    for (const MenuChiavi::Voce& voce : voci) {
        if (albero.ctlTree.contiene(voce.chiave)) {
            const Albero::Nodo& nodo = albero.ctlTree.nodo(voce.chiave);
            ctlMenu.abilita(voce.chiave, nodo.ForeColor == frmTreeView::coloreAbilitato);
            ctlMenu.annota(voce.chiave, nodo.nota);
        }
    }
}

}  // namespace kelvo
