#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "app/Applicazione.h"
#include "app/cornice.h"
#include "shell/clsTVWDisableNode.h"
#include "shell/servizi/Albero.h"
#include "shell/servizi/clsResize.h"

namespace kelvo {

class Finestra;
class MDI_Form;

/// The project tree on the left of the main window.
class frmTreeView final : public Navigazione {
public:
    static constexpr Colore coloreDisabilitato{192, 192, 192};
    static constexpr Colore coloreAbilitato = clsTVWDisableNode::testoFinestra;
    /// Effects of a drag.
    static constexpr int effettoNessuno = 0;
    static constexpr int effettoSposta = 2;

    frmTreeView(Applicazione& app, MDI_Form& cornice);

    Albero ctlTree{"ctlTree"};
    clsTVWDisableNode nodiDisabilitati;

    /// Lays the tree out to the screen and filters the clicks on disabled nodes.
    void Load();
    void Unload();
    bool visibile() const { return visibile_; }
    void visibile(bool valore);

    /// Reads the layout's setting, rebuilds tree and menu, applies the enabling rules.
    void LoadTreeView();
    /// Selects the node of a key and shows its window; false if the window at hand refused to be left.
    bool UserClick(const std::string& chiave);
    /// Disables a node and all that hangs on it.
    void DisableNode(Albero& albero, std::string_view chiave);
    /// Enables a node and all that hangs on it.
    void EnableNode(Albero& albero, std::string_view chiave);
    /// Applies the enabling rule of the sensitivity analysis after a build.
    void GestioneAnalisiMarginale();
    /// Tells with each grey node what opens it.
    void spiegaChiusi();
    /// Gives the nodes of a leg its name; `chiaveRamo` begins or ends with the leg's digit.
    void testoNodi(const std::string& chiaveRamo, const std::string& testo);
    /// The tree stands grouped by type, as it was built last.
    bool perTipo() const { return perTipo_; }
    /// Lays the tree out to the main window's height.
    void ResizeMe();
    const Rettangolo& posto() const { return posto_; }
    /// Width of the tree on a screen of that size, all in twips.
    static double larghezzaPerSchermo(Misura schermo);

    /// Name of the window of a key as the project's options stand; empty where there is none to show.
    std::string_view finestra(std::string_view chiave) const;
    /// Key of the node of the window now shown; empty for none.
    const std::string& nodoCorrente() const { return nodoCorrente_; }
    /// Selects a node as the one of the window now shown, without showing anything.
    void selezionaCorrente(const std::string& chiave);
    void scordaCorrente();

    // The user's gestures; the key is empty beside all nodes.
    /// Left button down; true: a disabled node, the tree must not see it.
    bool mousePremuto(std::string_view chiave);
    /// Left button up; as above.
    bool mouseRilasciato(std::string_view chiave) const { return nodiDisabilitati.filtra(chiave); }
    /// Click, or the keyboard's choice of a node.
    void clic(const std::string& chiave);
    /// A drag starts from the pressed node: the text of its data object, nothing where no drag may start.
    std::optional<std::string> OLEStartDrag();
    /// Effect of dropping on a node.
    int OLEDragOver(std::string_view chiave) const;
    /// Drops the data object on a node.
    void OLEDragDrop(const std::string& dati, const std::string& chiave);
    /// The drag ended, wherever.
    void OLECompleteDrag() { dragInCorso_ = false; }
    bool dragInCorso() const { return dragInCorso_; }
    bool dragConsentito() const { return dragConsentito_; }

    /// Copies the demand of one leg to another; digits as text.
    void CopyDatiTraffico(const std::string& legDa, const std::string& legA);
    /// Copies the vehicle mix of one leg to another; digits as text.
    void CopyComposizioneTraffico(const std::string& legDa, const std::string& legA);

    // Navigazione
    bool mostra(const std::string& chiave) override { return UserClick(chiave); }
    std::string chiaveCorrente() const override { return ctlTree.selezionato(); }

private:
    void costruisci();
    void colora(Albero& albero, std::string_view chiave, bool abilitato);
    void riseleziona();
    bool chiedeCopia(const std::string& da, const std::string& a);
    void copia(const std::string& da, const std::string& a);
    Finestra* apertaSu(const std::string& chiave) const;

    Applicazione& app_;
    MDI_Form& cornice_;
    bool visibile_ = false;
    bool perTipo_ = false;
    Rettangolo posto_;
    std::string nodoCorrente_;
    std::string nodoPremuto_;
    bool dragInCorso_ = false;
    bool dragConsentito_ = false;
};

}  // namespace kelvo
