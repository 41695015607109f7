#pragma once

#include "shell/servizi/disegnatore.h"

namespace kelvo::disegno {

/// The drawings by Qt's painter. Needs an application object of Qt that can handle type (QGuiApplication).
class DisegnatoreQt final : public Disegnatore {
public:
    EsitoDisegno pianta(const pianta::DatiPianta& dati, const pianta::OpzioniPianta& opzioni, FormatoDisegno formato,
                        const MisuraDisegno& misura) override;
    EsitoDisegno grafico(const Grafico::Contenuto& contenuto, FormatoDisegno formato,
                         const MisuraDisegno& misura) override;
};

}  // namespace kelvo::disegno
