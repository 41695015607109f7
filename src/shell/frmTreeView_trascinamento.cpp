#include <fmt/format.h>

#include <array>
#include <stdexcept>

#include "app/titoli.h"
#include "base/guasto.h"
#include "shell/MDI_Form.h"
#include "shell/copiaRami.h"
#include "shell/frmTreeView.h"
#include "shell/gestore.h"

namespace kelvo {

namespace {

constexpr std::string_view traffico = "keyDatiTraffico";
constexpr std::string_view composizione = "keyComposizioneTraffico";

bool contiene(std::string_view chiave, std::string_view parola) {
    return chiave.find(parola) != std::string_view::npos;
}

/// A node of a leg's traffic or composition, not one of the two folders.
bool trascinabile(std::string_view chiave) {
    return (contiene(chiave, traffico) || contiene(chiave, composizione)) && chiave != traffico &&
           chiave != composizione;
}

/// Equal but for the last character.
bool gemelle(std::string_view a, std::string_view b) {
    return a.size() == b.size() && a != b && a.substr(0, a.size() - 1) == b.substr(0, b.size() - 1);
}

/// Position of a leg from its digit. Fault 13 for what is no digit of a leg.
std::int16_t posizione(std::string_view cifra) {
    if (cifra.size() != 1 || cifra.front() < '1' || cifra.front() > '7') {
        throw Guasto(NumeroGuasto::tipoNonCorrispondente, "ramo '" + std::string{cifra} + "'");
    }
    return static_cast<std::int16_t>(cifra.front() - '0');
}

std::string ultimo(const std::string& chiave) {
    return chiave.substr(chiave.size() - 1);
}

}  // namespace

bool frmTreeView::mousePremuto(std::string_view chiave) {
    dragConsentito_ = false;
    nodoPremuto_.clear();
    if (nodiDisabilitati.filtra(chiave)) {
        return true;
    }
    if (ctlTree.contiene(chiave)) {
        nodoPremuto_ = chiave;
        dragConsentito_ = trascinabile(chiave);
    }
    return false;
}

std::optional<std::string> frmTreeView::OLEStartDrag() {
    if (nodoPremuto_.empty()) {
        return std::nullopt;
    }
    dragInCorso_ = true;
    return nodoPremuto_;
}

int frmTreeView::OLEDragOver(std::string_view chiave) const {
    int effetto = effettoNessuno;
    gestisci(app_, "frmTreeView:OleDragOver", [&] {
        if (ctlTree.contiene(chiave) && dragInCorso_ && dragConsentito_ && gemelle(nodoPremuto_, chiave)) {
            effetto = effettoSposta;
        }
    });
    return effetto;
}

void frmTreeView::OLEDragDrop(const std::string& dati, const std::string& chiave) {
    const bool ammesso = dati == nodoPremuto_ && OLEDragOver(chiave) == effettoSposta;
    OLECompleteDrag();
    if (!ammesso) {
        return;
    }
    gestisci(app_, "frmTreeView:OLEDragDrop", [&] {
        if (cornice_.lasciaCampo() && chiedeCopia(dati, chiave)) {
            copia(dati, chiave);
        }
    });
    cornice_.aggiornaSegno();
}

bool frmTreeView::chiedeCopia(const std::string& da, const std::string& a) {
    const Rotonda& rotonda = app_.theRotonda();
    const std::string testo = fmt::format("Vuoi copiare i dati {} dal ramo <{}> al ramo <{}> ?",
                                          contiene(da, traffico) ? "del traffico" : "della composizione del traffico",
                                          rotonda.Ramo(posizione(ultimo(da))).Descrizione(),
                                          rotonda.Ramo(posizione(ultimo(a))).Descrizione());
    return app_.messaggi.mostra(testo, titoli::attenzione, Icona::domanda, Pulsanti::siNo) == Risposta::si;
}

Finestra* frmTreeView::apertaSu(const std::string& chiave) const {
    Finestra* aperta = cornice_.gestione.corrente();
    const bool sua = aperta != nullptr && nodoCorrente_ == chiave && aperta->nome() == finestra(chiave);
    return sua && aperta->haSaveData() ? aperta : nullptr;
}

void frmTreeView::copia(const std::string& da, const std::string& a) {
    if (Finestra* origine = apertaSu(da)) {
        if (!cornice_.scriviFinestra(*origine)) {
            return;  // what the window shows is not fit to be copied
        }
    }
    if (contiene(da, traffico)) {
        CopyDatiTraffico(ultimo(da), ultimo(a));
    } else {
        CopyComposizioneTraffico(ultimo(da), ultimo(a));
    }
    if (Finestra* meta = apertaSu(a)) {
        meta->attivata();
    }
}

void frmTreeView::CopyDatiTraffico(const std::string& legDa, const std::string& legA) {
    gestisci(app_, "frmTreeView:CopyDatiTraffico",
             [&] { copiaDatiTraffico(app_.theRotonda(), posizione(legDa), posizione(legA)); });
}

void frmTreeView::CopyComposizioneTraffico(const std::string& legDa, const std::string& legA) {
    gestisci(app_, "frmTreeView:CopyComposizioneTraffico",
             [&] { copiaComposizioneTraffico(app_.theRotonda(), posizione(legDa), posizione(legA)); });
}

}  // namespace kelvo
