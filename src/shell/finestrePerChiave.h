#pragma once

#include <array>
#include <string_view>

namespace kelvo {

/// Window of a key of tree or menu.
struct FinestraDiChiave {
    std::string_view chiave;
    bool perRamo = false;  ///< the key is followed by the digit of a leg, 1 to 7
    std::string_view finestra;
};

/// Stand for the windows that follow the project's options.
inline constexpr std::string_view finestraTrafficoScelta = "<traffico>";
inline constexpr std::string_view finestraComposizioneScelta = "<composizione>";
/// Window of every other key.
inline constexpr std::string_view finestraVuota = "frmEmptyForm";

inline constexpr std::array finestrePerChiave{
    FinestraDiChiave{"keyMyProject", false, "frmEmptyForm"},
    FinestraDiChiave{"keyAnagraficaRotonda", false, "frmAnagraficaRotonda"},
    FinestraDiChiave{"keyAnagraficaProfessionista", false, "frmCommittenteProfessionista"},
    FinestraDiChiave{"keyTempoModellazione", false, "frmTempoModellazione"},
    FinestraDiChiave{"keyToponomasticaIntersezione", false, "frmToponomasticaIntersezione"},
    FinestraDiChiave{"keyRamo", true, "frmParametriRamo"},
    FinestraDiChiave{"keyDatiTraffico", true, finestraTrafficoScelta},
    FinestraDiChiave{"keyMatriceSvolte", false, "frmMatriceSvolte"},
    FinestraDiChiave{"keyComposizioneTraffico", true, finestraComposizioneScelta},
    FinestraDiChiave{"keyAnalisiMarginale", true, "frmAnalisiMarginale"},
    FinestraDiChiave{"keyOpzioni", false, "frmOpzioni"},
    FinestraDiChiave{"keyCodeRitardi_Out", false, "frmCapacitaCodeRitardi"},
    FinestraDiChiave{"keyCodeRitardi_Out", true, "frmCapacitaCodeRitardiRamo"},
    FinestraDiChiave{"keyCapacitaUltima_Out", false, "frmCapacitaUltima"},
    FinestraDiChiave{"keyOttimizzazioneGeometrica", true, "frmRisultatiAnalisiMarginale"},
    FinestraDiChiave{"keyConfronti", false, "frmConfronti"},
    FinestraDiChiave{"keyCorsiaDX", false, "frmDX"},
    FinestraDiChiave{"keyAnalizzatore", false, "frmANALIZZATORE"},
    FinestraDiChiave{"keyterra", false, "frmGoogle"},
};

/// Window of a key by the table; one of the two stand-ins where the project's options choose.
std::string_view finestraDiChiave(std::string_view chiave);

}  // namespace kelvo
