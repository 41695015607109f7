#pragma once

#include <string_view>

#include "app/servizi.h"

namespace kelvo {

/// A message box as data: whoever has a window shows it.
struct MessaggioUtente {
    std::string_view testo;
    std::string_view titolo;
    Icona icona = Icona::critica;
};

}  // namespace kelvo
