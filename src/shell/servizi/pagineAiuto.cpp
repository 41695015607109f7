#include "shell/servizi/pagineAiuto.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

#include "base/testo.h"

namespace kelvo {

namespace {

// window, control, page
constexpr std::array righe{
    RigaAiuto{"frmAiuto", "", "Indice.htm"},
    RigaAiuto{"frmAiuto", "ctlPagina", "Indice.htm"},
    RigaAiuto{"frmEmptyForm", "", "Progetto.htm"},
    RigaAiuto{"frmEmptyForm", "ctlContenuto", "Progetto.htm"},
    RigaAiuto{"frmInputNumeroRami", "", "NumeroRami.htm"},
    RigaAiuto{"frmInputNumeroRami", "txtNumeroRami", "NumeroRami.htm"},
    RigaAiuto{"frmAnagraficaRotonda", "", "AnagraficaIntersezione.htm"},
    RigaAiuto{"frmCommittenteProfessionista", "", "AnagraficaProfessionista.htm"},
    RigaAiuto{"frmGoogle", "", "LocalizzazioneGeografica.htm"},
    RigaAiuto{"frmGoogle", "ctlBrowser", "LocalizzazioneGeografica.htm"},
    RigaAiuto{"frmKCAD", "", "Vaq KelvoCAD.htm"},
    RigaAiuto{"frmLinkACAD", "", "CollegamentoAutoCAD.htm"},
    RigaAiuto{"frmLinkACAD", "lstACAD", "CollegamentoAutoCAD.htm"},
    RigaAiuto{"frmEsportaDXF", "", "EsportaDXF.htm"},
    RigaAiuto{"frmEsportaDXF", "chk*", "EsportaDXF.htm"},
    RigaAiuto{"frmINFO", "", "Informazioni.htm"},
    RigaAiuto{"frmINFO", "ctlDettagli", "Informazioni.htm"},

    RigaAiuto{"frmOpzioni", "", "Opzioni.htm"},
    RigaAiuto{"frmOpzioni", "grpTipoAnalisi", "TipoAnalisi.htm"},
    RigaAiuto{"frmOpzioni", "grpTipoFlusso", "TipoFlusso.htm"},
    RigaAiuto{"frmOpzioni", "grpTipoMatrice", "TipoMatrice.htm"},
    RigaAiuto{"frmOpzioni", "chkCondizioniNotturne", "CondizioniAmbientali.htm"},
    RigaAiuto{"frmOpzioni", "txtCondizioniNotturne", "CondizioniAmbientali.htm"},
    RigaAiuto{"frmOpzioni", "chkPercentile", "Percentile.htm"},
    RigaAiuto{"frmOpzioni", "txtPercentile", "Percentile.htm"},
    RigaAiuto{"frmOpzioni", "chkOttimizzazioneGeometrica", "OttimizzazioneGeometrica.htm"},
    RigaAiuto{"frmOpzioni", "txt*", "VeicoliEquivalenti.htm"},
    RigaAiuto{"frmOpzioni", "cmdDEFAULT", "VeicoliEquivalenti.htm"},
    RigaAiuto{"frmOpzioni", "ctlLISTopz", "FormaRelazione.htm"},
    RigaAiuto{"frmOpzioni", "ctlLIST", "ColorePannelli.htm"},
    RigaAiuto{"frmOpzioni", "ckTREE", "AlberoPerTipo.htm"},
    RigaAiuto{"frmOpzioni", "ckMENU", "DisattivaMenu.htm"},
    RigaAiuto{"frmOpzioni", "ckFILMATO", "FilmatoIntroduttivo.htm"},

    RigaAiuto{"frmTempoModellazione", "", "TempiModellazione.htm"},
    RigaAiuto{"frmToponomasticaIntersezione", "", "Toponomastica.htm"},
    RigaAiuto{"frmParametriRamo", "", "Geometria.htm"},
    RigaAiuto{"frmParametriRamo", "chkAttraversamentoPedonale", "AttraversamentoPedonale.htm"},
    RigaAiuto{"frmParametriRamo", "cmdDM", "DecretoRotatorie.htm"},
    RigaAiuto{"frmParametriRamo", "*", "Geometria.htm"},
    RigaAiuto{"frmPreviewRami", "", "ImportaRamo.htm"},
    RigaAiuto{"frmPreviewRami", "lstRami", "ImportaRamo.htm"},
    RigaAiuto{"frmDatiTraffico", "", "DatiTraffico.htm"},
    RigaAiuto{"frmDatiTraffico", "Check1", "IstogrammaTraffico.htm"},
    RigaAiuto{"frmDatiTraffico", "ctlChart", "IstogrammaTraffico.htm"},
    RigaAiuto{"frmDatiTraffico", "Check2", "FlussoObiettivo.htm"},
    RigaAiuto{"frmDatiTraffico", "Command1", "FlussoObiettivo.htm"},
    RigaAiuto{"frmDatiTrafficoST", "", "DatiTrafficoSegmenti.htm"},
    RigaAiuto{"frmDatiTrafficoST", "ctlGrid", "FlussoSegmento.htm"},
    RigaAiuto{"frmDatiTrafficoST", "cmdImportaCSV", "ImportaCSV.htm"},
    RigaAiuto{"frmDatiTrafficoST", "Check1", "IstogrammaTraffico.htm"},
    RigaAiuto{"frmDatiTrafficoST", "ctlChart", "IstogrammaTraffico.htm"},
    RigaAiuto{"frmMatriceSvolte", "", "MatriceSvolte.htm"},
    RigaAiuto{"frmMatriceSvolte", "ctlGrid", "MatriceSvolte.htm"},
    RigaAiuto{"frmMatriceSvolte", "ctlGrid*", "TotaliMatrice.htm"},
    RigaAiuto{"frmMatriceSvolte", "cmdImportaCSV", "ImportaCSV.htm"},
    RigaAiuto{"frmMatriceSvolte", "chkFlussi", "FlussiMatrice.htm"},
    RigaAiuto{"frmMatriceSvolte", "ctlPianta", "FlussiMatrice.htm"},
    RigaAiuto{"frmPreviewMatriceSvolte", "", "ImportaMatrice.htm"},
    RigaAiuto{"frmPreviewMatriceSvolte", "ctlGrid", "ImportaMatrice.htm"},
    RigaAiuto{"frmImportaCSV", "", "ImportaCSV.htm"},
    RigaAiuto{"frmImportaCSV", "*", "ImportaCSV.htm"},
    RigaAiuto{"frmComposizioneTraffico", "", "ComposizioneTraffico.htm"},
    RigaAiuto{"frmComposizioneTraffico", "ctlGraph*", "GraficiComposizione.htm"},
    RigaAiuto{"frmComposizioneTrafficoST", "", "ComposizioneSegmenti.htm"},
    RigaAiuto{"frmComposizioneTrafficoST", "ctlGrid", "ComposizioneSegmenti.htm"},
    RigaAiuto{"frmComposizioneTrafficoST", "chkLock*", "BloccoCategoria.htm"},
    RigaAiuto{"frmComposizioneTrafficoST", "cmdImportaCSV", "ImportaCSV.htm"},
    RigaAiuto{"frmAnalisiMarginale", "", "AnalisiMarginale.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkLarghezzaIngresso", "PassoLarghezzaIngresso.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkSemiLarghezza", "PassoSemiLarghezza.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkLungSvasatura", "PassoLungSvasatura.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkAngoloConflitto", "PassoAngoloConflitto.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkRaggioCurvatura", "PassoRaggioCurvatura.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkDiametroInscritto", "PassoDiametroInscritto.htm"},
    RigaAiuto{"frmAnalisiMarginale", "chkCondizioniEsterne", "CondizioniEsterne.htm"},

    RigaAiuto{"frmCapacitaUltima", "", "CapacitaUltima.htm"},
    RigaAiuto{"frmCapacitaUltima", "ctlGrid", "CapacitaUltima.htm"},
    RigaAiuto{"frmCapacitaCodeRitardi", "", "VerifichePrestazionali.htm"},
    RigaAiuto{"frmCapacitaCodeRitardi", "ctlGrid", "TabellaVerifiche.htm"},
    RigaAiuto{"frmCapacitaCodeRitardi", "Cmd_EXCEL", "FoglioDiCalcolo.htm"},
    RigaAiuto{"frmCapacitaCodeRitardi", "ctlSintesi", "SintesiNodo.htm"},
    RigaAiuto{"frmCapacitaCodeRitardi", "cmdAnteprimaSintesi", "SintesiNodo.htm"},
    RigaAiuto{"frmCapacitaCodeRitardi", "ctlMappa", "MappaLivelli.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "", "VerificheIngresso.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "ctlGrid", "TabellaVerifiche.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "ctlChartCapacita", "GraficoCapacita.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "ctlChartSaturazione", "GraficoSaturazione.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "ctlChartCode", "GraficoCode.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "ctlChartRitardi", "GraficoRitardi.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "ctlChartLOS", "GraficoLivelli.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "txt*", "ValoriRiassuntivi.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "cmdRIASSUNTO", "DatiRiassuntivi.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "cmdMARKER", "Marker.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "chkValori", "AspettoGrafico.htm"},
    RigaAiuto{"frmCapacitaCodeRitardiRamo", "opzForma", "AspettoGrafico.htm"},
    RigaAiuto{"frmRAMO_AGGIUNTIVA", "", "DatiRiassuntivi.htm"},
    RigaAiuto{"frmRAMO_AGGIUNTIVA", "*", "DatiRiassuntivi.htm"},
    RigaAiuto{"frmLEGENDA", "", "Legenda.htm"},
    RigaAiuto{"frmLEGENDA", "*", "Legenda.htm"},
    RigaAiuto{"frmAnteprimaTesto", "", "AnteprimaTesto.htm"},
    RigaAiuto{"frmConfronti", "", "Analizzatore.htm"},
    RigaAiuto{"frmConfronti", "Slider1", "Riproduzione.htm"},
    RigaAiuto{"frmConfronti", "listTEMPO", "Riproduzione.htm"},
    RigaAiuto{"frmConfronti", "cmdPLAY", "Riproduzione.htm"},
    RigaAiuto{"frmConfronti", "Command*", "Riproduzione.htm"},
    RigaAiuto{"frmConfronti", "ctlPianta", "PiantaLivelli.htm"},
    RigaAiuto{"frmConfronti", "ctlChartConfronti", "GraficoConfronto.htm"},
    RigaAiuto{"frmConfronti", "ctlGrid", "GraficoConfronto.htm"},
    RigaAiuto{"frmConfronti", "txtTipoVariabile", "GrandezzaConfronto.htm"},
    RigaAiuto{"frmConfronti", "opzUnita", "GrandezzaConfronto.htm"},
    RigaAiuto{"frmDX", "", "CorsiaDX.htm"},
    RigaAiuto{"frmDX", "listDX", "CorsiaDX.htm"},
    RigaAiuto{"frmDX", "ctlPianta", "CorsiaDX.htm"},
    RigaAiuto{"frmDX", "chkStampaDX", "CorsiaDXRelazione.htm"},
    RigaAiuto{"frmDX", "ctlGrid", "TabellaCorsiaDX.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "", "SensibilitaGeometrica.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "ctlGrid*", "SensibilitaGeometrica.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "opzOBIETTIVO", "QuantoServe.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "cmdQuantoServe", "QuantoServe.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "RMChartX1", "GraficoSensibilita.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "opzVARIABILE", "GraficoSensibilita.htm"},
    RigaAiuto{"frmRisultatiAnalisiMarginale", "Command1", "SensibilitaGeometrica.htm"},
    // What every result window has.
    RigaAiuto{"*", "cmdCalcola", "Calcola.htm"},
    RigaAiuto{"*", "cmdInVigore", "InVigore.htm"},
    RigaAiuto{"*", "ctlInVigore", "InVigore.htm"},
    RigaAiuto{"*", "cmdDati", "CopiaSalva.htm"},

    RigaAiuto{"frmANALIZZATORE", "", "CheckUp.htm"},
    RigaAiuto{"frmANALIZZATORE", "ctlTree*", "MessaggiCheckUp.htm"},
    RigaAiuto{"frmANALIZZATORE", "ctlGrid", "CheckList.htm"},
    RigaAiuto{"frmANALIZZATORE", "cmdINDIETROsezione", "CheckList.htm"},
    RigaAiuto{"frmANALIZZATORE", "cmdAVANTIsezione", "CheckList.htm"},
    RigaAiuto{"frmCheckUpMessaggio", "", "MessaggiCheckUp.htm"},
    RigaAiuto{"frmOPZrelazione", "", "Relazioni.htm"},
    RigaAiuto{"frmOPZrelazione", "cmd1", "RelazioneDati.htm"},
    RigaAiuto{"frmOPZrelazione", "cmd2", "RelazioneRisultati.htm"},
    RigaAiuto{"frmOPZrelazione", "cmd3", "RelazioneDatiRisultati.htm"},
    RigaAiuto{"frmOPZrelazione", "cmd4", "RelazioneCompleta.htm"},
    RigaAiuto{"frmOPZrelazione", "cmd5", "RelazioneGrafici.htm"},
    RigaAiuto{"frmOPZrelazione", "cmdModello*", "ModelloRelazione.htm"},
    RigaAiuto{"frmOPZrelazione", "chkPDF", "RelazionePDF.htm"},
};

/// `modello` fits a name that it equals, or that begins with what stands before its "*".
bool combacia(std::string_view modello, std::string_view nome) {
    if (modello.empty() || modello.back() != '*') {
        return modello == nome;
    }
    modello.remove_suffix(1);
    return nome.substr(0, modello.size()) == modello;
}

}  // namespace

std::span<const RigaAiuto> righeAiuto() {
    return righe;
}

std::string_view paginaDiFinestra(std::string_view finestra) {
    return paginaDiControllo(finestra, {});
}

std::string_view paginaDiControllo(std::string_view finestra, std::string_view controllo) {
    const auto* const trovata = std::find_if(righe.begin(), righe.end(), [&](const RigaAiuto& riga) {
        return combacia(riga.finestra, finestra) && riga.controllo.empty() == controllo.empty() &&
               combacia(riga.controllo, controllo);
    });
    return trovata == righe.end() ? std::string_view{} : trovata->pagina;
}

std::string paginaMancante(std::string_view pagina, std::string_view motivo) {
    return fmt::format(
        "<!DOCTYPE html>\n<html lang=\"it\"><head><meta charset=\"utf-8\"><title>Pagina non disponibile</title></head>"
        "<body><p class=\"nome\">Pagina non disponibile</p>"
        "<p>La pagina «{}» non può essere mostrata{}{}.</p>"
        "<p>Le pagine dell'aiuto stanno nella cartella Support accanto al programma: una nuova installazione le "
        "rimette al loro posto.</p></body></html>",
        testoHtml(pagina), motivo.empty() ? "" : ": ", testoHtml(motivo));
}

std::string titoloPagina(std::string_view html) {
    constexpr std::string_view apre = "<title>";
    const auto inizio = html.find(apre);
    const auto fine = html.find("</title>");
    if (inizio == std::string_view::npos || fine == std::string_view::npos || fine < inizio) {
        return {};
    }
    const auto da = inizio + apre.size();
    return htmlInTesto(html.substr(da, fine - da));
}

}  // namespace kelvo
