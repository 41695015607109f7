#pragma once

#include <string>

#include "app/Applicazione.h"

namespace kelvo {

/// The results of the project as a workbook (.xlsx): its bytes. Reads the records as they stand.
///
/// The sheet "Verifiche" holds the table of all entries with its headings frozen; each entry has a sheet of its own, a
/// row a segment, with its extremes and means and a chart of each quantity; "Sintesi nodo" the peak hours, "Capacità
/// ultima" the ultimate capacities with the saturation index, "In vigore" what the calculation read beside the demand.
/// Figures are numbers in their plain text form, under the patterns of the tables. A study that is no study over time
/// has the frame of its first table, no peak hours and no sheets of entries. Fault 17 where it cannot be made, so
/// also where the folder for temporary files cannot be used; 75 where what was made cannot be read back.
std::string foglioRisultati(Applicazione& app);

}  // namespace kelvo
