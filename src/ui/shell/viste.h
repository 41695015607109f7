#pragma once

#include "ui/VistaFinestra.h"

/// The views of the windows of the shell, one function a window.
namespace kelvo::ui {

VistaFinestra* vista_frmAiuto(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmGoogle(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmAnagraficaRotonda(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmCommittenteProfessionista(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmDatiTraffico(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmDatiTrafficoST(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmEmptyForm(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmInputNumeroRami(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmINFO(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmMatriceSvolte(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmParametriRamo(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmPreviewMatriceSvolte(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmPreviewRami(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmSplash(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmTempoModellazione(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmToponomasticaIntersezione(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmAnalisiMarginale(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmImportaCSV(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmComposizioneTraffico(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmComposizioneTrafficoST(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmOpzioni(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmCapacitaUltima(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmCapacitaCodeRitardi(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmCapacitaCodeRitardiRamo(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmLEGENDA(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmRAMO_AGGIUNTIVA(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmAnteprimaTesto(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmDX(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmRisultatiAnalisiMarginale(Finestra& finestra, QWidget* genitore);
VistaFinestra* vista_frmConfronti(Finestra& finestra, QWidget* genitore);

}  // namespace kelvo::ui
