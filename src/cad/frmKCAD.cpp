#include "cad/frmKCAD.h"

#include <fmt/format.h>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"

namespace kelvo {

namespace {

constexpr const char* paginaSupporto = "\\Support\\Vaq KelvoCAD.htm";
constexpr const char* scheda = "\\Support\\SW_KelvoCAD_2010.pdf";

constexpr const char* descrizione =
    "KelvoCAD è il programma che accompagna Kelvo e disegna in AutoCAD la geometria della rotatoria.";
constexpr const char* passaggio =
    "Con la voce «KelvoCAD» del menu, o con il suo pulsante, Kelvo salva il progetto e avvia KelvoCAD con il percorso "
    "del file salvato. KelvoCAD legge da sé il progetto e non lo modifica. Se gli ingressi hanno diametri diversi, per "
    "tutta la rotatoria vale quello del primo ramo: prima Kelvo chiede conferma.";
constexpr const char* invece =
    "Senza KelvoCAD la pianta si porta in un programma CAD con «Esporta DXF...», nello stesso menu.";

}  // namespace

frmKCAD::frmKCAD(const Contorno& contorno, ApriDocumenti& documenti)
    : Finestra(contorno, "frmKCAD", "Informazioni su KelvoCAD"),
      lblTitolo("lblTitolo", "KelvoCAD"),
      lblDescrizione("lblDescrizione", descrizione),
      lblPassaggio("lblPassaggio", passaggio),
      lblStato("lblStato"),
      lblInvece("lblInvece", invece),
      cmdVAQ("cmdVAQ", "Pagina di supporto"),
      cmdPDF("cmdPDF", "Scheda in PDF"),
      cmdChiudi("cmdChiudi", "Chiudi"),
      documenti_(documenti) {
    ordina({&lblTitolo, &lblDescrizione, &lblPassaggio, &lblStato, &lblInvece, &cmdVAQ, &cmdPDF, &cmdChiudi});
    cmdVAQ.allaPressione = [this] { comando("VAQ"); };
    cmdPDF.allaPressione = [this] { comando("PDF"); };
    cmdChiudi.allaPressione = [this] { comando("Chiudi"); };
    const std::string programma = percorsoKelvoCAD(app().theAmbiente);
    const bool presente = app().file.dimensione(programma) >= 0;
    lblStato.testo(presente ? fmt::format("KelvoCAD è installato: {}", programma)
                            : std::string{"KelvoCAD non è installato su questo computer."});
    lblInvece.visibile(!presente);
    fuocoSu(cmdChiudi);  // Enter closes a window that is there to be read
}

void frmKCAD::comando(std::string_view tag) {
    if (tag == "VAQ") {
        apri(paginaSupporto);
    } else if (tag == "PDF") {
        apri(scheda);
    } else if (tag == "Chiudi" && allaChiusura) {
        allaChiusura();
    }
}

void frmKCAD::apri(const char* documento) {
    const std::string percorso = app().theAmbiente.PercorsoProgramma(documento);
    if (!documenti_.apri("\"" + percorso + "\"")) {
        messaggio(fmt::format("Impossibile aprire {}", percorso), titoli::attenzione, Icona::esclamazione);
    }
}

}  // namespace kelvo
