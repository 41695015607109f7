#include <algorithm>
#include <utility>

#include "shell/MDI_Form.h"
#include "shell/menuPrincipale.h"
#include "shell/servizi/TastiPropri.h"
#include "shell/servizi/scorciatoie.h"

namespace kelvo {

namespace {

SuggerimentoTasto mostrato(std::string_view tasti, std::string_view parola) {
    return {nomeTasti(tasti), std::string{parola}};
}

}  // namespace

std::vector<std::string> MDI_Form::scorciatoie() {
    std::vector<std::string> tutte{std::string{tastoAlbero}, std::string{tastoAiuto}, std::string{tastoGuida}};
    const auto aggiungi = [&](std::string_view tasti) {
        if (!tasti.empty() && std::find(tutte.begin(), tutte.end(), tasti) == tutte.end()) {
            tutte.emplace_back(tasti);
        }
    };
    for (const auto& righe : {righeFile(), righePerTipo(), righePerRamo(), righeCoda()}) {
        for (const RigaMenu& riga : righe) {
            aggiungi(riga.scorciatoia);
        }
    }
    for (const ScorciatoiaAggiunta& aggiunta : scorciatoieAggiunte) {
        aggiungi(aggiunta.tasti);
    }
    for (const ScorciatoiaTasto& tasto : scorciatoieTasti) {
        aggiungi(tasto.tasti);
    }
    return tutte;
}

bool MDI_Form::scorciatoia(std::string_view tasti) {
    if (tasti == tastoAlbero) {
        if (albero.visibile()) {
            superficie().scambiaFuoco();
        }
        return albero.visibile();
    }
    if (tasti == tastoAiuto) {
        aiutoSulCampo();
        return true;
    }
    std::string_view chiave;
    for (const ScorciatoiaAggiunta& aggiunta : scorciatoieAggiunte) {
        if (aggiunta.tasti == tasti) {
            chiave = aggiunta.chiave;
        }
    }
    for (const MenuChiavi::Voce& voce : ctlMenu.voci()) {
        const bool sua = chiave.empty() ? voce.scorciatoia == tasti : voce.chiave == chiave;
        if (!sua || tasti.empty()) {
            continue;
        }
        if (!voce.abilitata) {
            return false;
        }
        const std::string scelta = voce.chiave;
        ctlMenu.premi(scelta);
        return true;
    }
    if (tasti == tastoGuida) {
        ctlToolbar.premi("Help");  // before any project the menu has no guide
        return true;
    }
    return scorciatoiaFinestra(tasti);
}

bool MDI_Form::scorciatoiaFinestra(std::string_view tasti) {
    BarraStrumenti* barra = gestione.corrente() == nullptr ? nullptr : gestione.corrente()->barra();
    if (barra == nullptr || tasti.empty()) {
        return false;
    }
    const auto& bottoni = barra->tasti();
    const auto suo = std::find_if(bottoni.begin(), bottoni.end(), [&](const BarraStrumenti::Tasto& bottone) {
        return bottone.abilitato && barra->scorciatoia(bottone.chiave) == tasti;
    });
    if (suo == bottoni.end()) {
        return false;
    }
    const std::string chiave = suo->chiave;
    barra->premi(chiave);
    return true;
}

void MDI_Form::aggiornaSuggerimenti(Finestra* finestra) {
    std::vector<SuggerimentoTasto> tutti;
    if (stato_.statoProgetto == StatoProgetto::NessunProgetto) {
        for (const SuggerimentoFisso& s : suggerimentiSenzaProgetto) {
            tutti.push_back(mostrato(s.tasti, s.parola));
        }
    } else {
        tutti.push_back(mostrato(suggerimentoAlbero.tasti, suggerimentoAlbero.parola));
    }
    if (BarraStrumenti* barra = finestra == nullptr ? nullptr : finestra->barra()) {
        for (const ScorciatoiaTasto& s : scorciatoieTasti) {
            const auto& bottoni = barra->tasti();
            const auto suo = std::find_if(bottoni.begin(), bottoni.end(),
                                          [&](const auto& b) { return b.abilitato && b.chiave == s.tasto; });
            if (suo != bottoni.end() && tutti.size() + 1 < BarraStato::suggerimentiMassimi) {
                tutti.push_back(mostrato(s.tasti, suo->testo));
            }
        }
    }
    if (const auto* propri = dynamic_cast<const TastiPropri*>(finestra)) {
        for (SuggerimentoTasto& proprio : propri->suggerimenti()) {
            if (tutti.size() + 1 < BarraStato::suggerimentiMassimi) {
                tutti.push_back(std::move(proprio));
            }
        }
    }
    const bool senza = stato_.statoProgetto == StatoProgetto::NessunProgetto;
    const SuggerimentoFisso& ultimo = senza ? suggerimentoGuida : suggerimentoAiuto;
    tutti.push_back(mostrato(ultimo.tasti, ultimo.parola));
    ctlStatusBar.suggerimenti(tutti);
}

}  // namespace kelvo
