#include "platform/linux/AutomazioneLinux.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/guasto.h"
#include "platform/Piattaforma.h"

namespace kelvo::prove {
namespace {

TEST(AutomazioneLinux, NoKeyStandsInTheRegistry) {
    const auto sistema = creaPiattaforma();
    EXPECT_EQ(sistema->registro().sottochiavi("Software"), std::vector<std::string>{});
    EXPECT_EQ(sistema->registro().valore("Software\\Autodesk\\AutoCAD", "Location"), "");
}

TEST(AutomazioneLinux, NoProgramCanBeDrivenAndItSaysSo) {
    const auto sistema = creaPiattaforma();
    EXPECT_EQ(sistema->cad().impedimento(), "AutoCAD si comanda da un altro programma soltanto in Windows");
    EXPECT_EQ(sistema->cad().inCorso("AutoCAD.Application.17.2"), nullptr);
    try {
        sistema->cad().crea("AutoCAD.Application.17.2");
        FAIL() << "nothing was raised";
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.codice(), 429);
        EXPECT_EQ(guasto.descrizione(), "Il componente ActiveX non può creare l'oggetto (AutoCAD.Application.17.2)");
    }
}

}  // namespace
}  // namespace kelvo::prove
