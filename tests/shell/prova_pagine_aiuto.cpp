#include <gtest/gtest.h>

#include "comune/fintiFinestre.h"
#include "input/frmTempoModellazione.h"
#include "shell/frmAnagraficaRotonda.h"

namespace kelvo::prove {
namespace {

TEST(PagineAiuto, TheFieldInUseBringsItsPage) {
    ScenaFinestre scena;
    frmTempoModellazione tempi(scena.contorno());
    EXPECT_EQ(tempi.ctlHelp.pagina(), paginaAiutoVuota);
    ASSERT_TRUE(tempi.fuocoSu(tempi.txtSegmentoTempo));
    EXPECT_EQ(tempi.ctlHelp.pagina(), "SegmentoTempo.htm");
    frmAnagraficaRotonda anagrafica(scena.contorno());
    ASSERT_TRUE(anagrafica.fuocoSu(anagrafica.txtNote));
    EXPECT_EQ(anagrafica.ctlHelp.pagina(), "Note.htm");
}

}  // namespace
}  // namespace kelvo::prove
