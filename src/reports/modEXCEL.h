#pragma once

#include <functional>
#include <string>

#include "app/Applicazione.h"
#include "app/serviziSistema.h"

namespace kelvo {

/// What the export to the spreadsheet asks of the outside.
struct ServiziFoglio {
    FinestraMessaggi& messaggi;
    ApriDocumenti* documenti = nullptr;  ///< opens the workbook; null: nobody is there to look at it or to be asked
    std::string percorso{};              ///< where it is written; empty: "\XLS\Risultati.xlsx" of the program's folder
};

enum class EsitoFoglio {
    fatto,
    annullato,  ///< the user left the workbook that is open as it is
    fallito,    ///< the reason was shown; what stood there before still does
};

/// Hands the results of the project to the spreadsheet program.
class modEXCEL {
public:
    modEXCEL(Applicazione& app, const ServiziFoglio& servizi) : app_(app), servizi_(servizi) {}

    /// Makes the workbook of the project's own results, which are calculated first where they are missing or old, and
    /// opens it with the system's program; where there is none, tells where the file is.
    EsitoFoglio compilaRelazioneExcel();

private:
    EsitoFoglio componi();
    bool daSostituire(const std::string& percorso);
    void apre(const std::string& percorso);

    Applicazione& app_;
    ServiziFoglio servizi_;
};

/// The file that a spreadsheet program puts beside a workbook that it has open, whole path; empty where there is none.
/// Of a link it is sought beside the workbook that the link leads to.
std::string segnoFoglioAperto(const std::string& percorso);

}  // namespace kelvo
