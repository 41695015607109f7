#include "Pittore.h"
#include "disegno/AmbienteDisegno.h"
#include "disegno/DisegnatoreQt.h"

namespace kelvo::cli {

namespace {

class PittoreQt final : public Pittore {
public:
    explicit PittoreQt(const std::string& cartellaCaratteri) : ambiente_(cartellaCaratteri) {}
    Disegnatore& disegnatore() override { return disegnatore_; }

private:
    disegno::AmbienteDisegno ambiente_;
    disegno::DisegnatoreQt disegnatore_;
};

}  // namespace

std::unique_ptr<Pittore> creaPittore(const std::string& cartellaCaratteri) {
    return std::make_unique<PittoreQt>(cartellaCaratteri);
}

}  // namespace kelvo::cli
