#pragma once

#include "reports/xml.h"

namespace kelvo::ooxml {

/// The first row of a table; null if it has none. Rows of tables inside its cells do not count.
pugi::xml_node primaRiga(pugi::xml_node tabella);

/// The cell that follows in its table, as a word processor goes on: along the row, then the first cell of the next row;
/// behind the last one a new row is made. Cells that a merged one covers are left out. Null for a cell in no row.
pugi::xml_node cellaSuccessiva(pugi::xml_node cella);

/// Takes everything out of a cell but its settings, one paragraph with its format, and the marks.
void svuotaCella(pugi::xml_node cella);

}  // namespace kelvo::ooxml
