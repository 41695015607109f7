#pragma once

#include <map>

#include "checkup/report.h"
#include "shell/servizi/documentoPagine.h"

/// Report and check list on paper.
namespace kelvo {

/// The findings of a list behind what stands in `documento` already: the text of its root, one paragraph a finding with
/// the sign of its level, and what the signs mean. `avviso`: a remark on all of them, below the root; empty for none.
DocumentoPagine documentoReport(DocumentoPagine documento, const AlberoRiscontri& elenco,
                                const std::string& avviso = {});

/// Answers by the row of their question: true for "SI". An unanswered question is not there.
using RisposteCheckList = std::map<int, bool>;

/// Sections, questions and answers of the check list behind what stands in `documento` already, and at the end how many
/// were answered, the index and, once all are, its level with the commentary.
DocumentoPagine documentoCheckList(DocumentoPagine documento, const RisposteCheckList& risposte);

}  // namespace kelvo
