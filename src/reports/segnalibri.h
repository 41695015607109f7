#pragma once

#include <string_view>

#include "reports/xml.h"

namespace kelvo::ooxml {

/// The two ends of a bookmark; null if there is none.
struct Segnalibro {
    pugi::xml_node inizio;
    pugi::xml_node fine;
};

Segnalibro trovaSegnalibro(pugi::xml_node radice, std::string_view nome);

/// Deletes what stands between the ends, and the ends with it, and leaves the part below `radice` valid. An end that
/// stands in front of the beginning, or nowhere, spans nothing.
void eliminaSegnalibro(pugi::xml_node radice, const Segnalibro& segnalibro);

}  // namespace kelvo::ooxml
