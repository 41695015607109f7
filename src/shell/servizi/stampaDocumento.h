#pragma once

#include <string_view>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/documentoPagine.h"

/// What a window does with a document for paper.
namespace kelvo {

/// Head and foot as all papers of a project have them: its name, its designer, the program and the moment.
DocumentoPagine documentoDiProgetto(const Applicazione& app, std::string_view titolo);

/// Saves a document as a PDF file where the user says, and tells what came of it: in the status bar, or in a box where
/// it failed. Nothing happens where `contorno` has no file dialogue.
void salvaPDF(const Contorno& contorno, StampaPagine& stampa, const DocumentoPagine& documento);

/// Prints a document and tells what came of it likewise.
void stampaDocumento(const Contorno& contorno, StampaPagine& stampa, const DocumentoPagine& documento);

}  // namespace kelvo
