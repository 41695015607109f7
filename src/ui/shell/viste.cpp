#include "ui/shell/viste.h"

#include <QtCore/QString>
#include <array>

#include "ui/cad/viste.h"
#include "ui/checkup/viste.h"
#include "ui/reports/viste.h"

namespace kelvo::ui {

namespace {

using CreatoreVista = VistaFinestra* (*)(Finestra&, QWidget*);

struct VoceVista {
    std::string_view nome;
    CreatoreVista crea;
};

constexpr std::array viste{
    VoceVista{"frmANALIZZATORE", vista_frmANALIZZATORE},
    VoceVista{"frmCheckUpMessaggio", vista_frmCheckUpMessaggio},
    VoceVista{"frmAnagraficaRotonda", vista_frmAnagraficaRotonda},
    VoceVista{"frmCommittenteProfessionista", vista_frmCommittenteProfessionista},
    VoceVista{"frmDatiTraffico", vista_frmDatiTraffico},
    VoceVista{"frmDatiTrafficoST", vista_frmDatiTrafficoST},
    VoceVista{"frmEmptyForm", vista_frmEmptyForm},
    VoceVista{"frmInputNumeroRami", vista_frmInputNumeroRami},
    VoceVista{"frmINFO", vista_frmINFO},
    VoceVista{"frmMatriceSvolte", vista_frmMatriceSvolte},
    VoceVista{"frmParametriRamo", vista_frmParametriRamo},
    VoceVista{"frmPreviewMatriceSvolte", vista_frmPreviewMatriceSvolte},
    VoceVista{"frmPreviewRami", vista_frmPreviewRami},
    VoceVista{"frmSplash", vista_frmSplash},
    VoceVista{"frmTempoModellazione", vista_frmTempoModellazione},
    VoceVista{"frmToponomasticaIntersezione", vista_frmToponomasticaIntersezione},
    VoceVista{"frmAnalisiMarginale", vista_frmAnalisiMarginale},
    VoceVista{"frmImportaCSV", vista_frmImportaCSV},
    VoceVista{"frmComposizioneTraffico", vista_frmComposizioneTraffico},
    VoceVista{"frmComposizioneTrafficoST", vista_frmComposizioneTrafficoST},
    VoceVista{"frmOpzioni", vista_frmOpzioni},
    VoceVista{"frmCapacitaUltima", vista_frmCapacitaUltima},
    VoceVista{"frmCapacitaCodeRitardi", vista_frmCapacitaCodeRitardi},
    VoceVista{"frmCapacitaCodeRitardiRamo", vista_frmCapacitaCodeRitardiRamo},
    VoceVista{"frmLEGENDA", vista_frmLEGENDA},
    VoceVista{"frmRAMO_AGGIUNTIVA", vista_frmRAMO_AGGIUNTIVA},
    VoceVista{"frmAnteprimaTesto", vista_frmAnteprimaTesto},
    VoceVista{"frmDX", vista_frmDX},
    VoceVista{"frmRisultatiAnalisiMarginale", vista_frmRisultatiAnalisiMarginale},
    VoceVista{"frmConfronti", vista_frmConfronti},
    VoceVista{"frmOPZrelazione", vista_frmOPZrelazione},
    VoceVista{"frmRelazioneProgressBar", vista_frmRelazioneProgressBar},
    VoceVista{"frmEsportaDXF", vista_frmEsportaDXF},
    VoceVista{"frmKCAD", vista_frmKCAD},
    VoceVista{"frmLinkACAD", vista_frmLinkACAD},
    VoceVista{"frmAiuto", vista_frmAiuto},
    VoceVista{"frmGoogle", vista_frmGoogle},
};

}  // namespace

VistaFinestra* creaVista(Finestra& finestra, QWidget* genitore) {
    for (const VoceVista& voce : viste) {
        if (voce.nome == finestra.nome()) {
            return voce.crea(finestra, genitore);
        }
    }
    return nullptr;
}

}  // namespace kelvo::ui
