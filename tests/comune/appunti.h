#pragma once

#include <string>

#include "app/serviziSistema.h"

namespace kelvo::prove {

/// A clipboard in memory.
class AppuntiFinti final : public Appunti {
public:
    void scrivi(const std::string& nuovo) override { testo = nuovo; }
    std::string leggi() const override { return testo; }

    std::string testo;
};

}  // namespace kelvo::prove
