#include <fmt/format.h>
#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <regex>
#include <sstream>

#include "calc/Geometria.h"
#include "input/frmAnalisiMarginale.h"
#include "input/misureIngresso.h"

namespace kelvo::prove {
namespace {

std::string pagina(std::string_view nome) {
    std::ifstream file(fmt::format("{}/assets/Support/{}", KELVO_SORGENTI, nome), std::ios::binary);
    std::ostringstream testo;
    testo << file.rdbuf();
    return testo.str();
}

/// The entry that the pages take for their example.
void esempio(Ramo& ramo) {
    ramo.LarghezzaIngresso(5.0F);
    ramo.SemiLarghezza(3.75F);
    ramo.LunghezzaSvasatura(20.0F);
    ramo.AngoloConflitto(30.0F);
    ramo.RaggioIngresso(20.0F);
    ramo.DiametroInscritto(40.0F);
}

struct PagineMisure : testing::TestWithParam<std::size_t> {};

TEST_P(PagineMisure, LimitsAndCapacitiesAreThoseOfTheProgram) {
    const MisuraIngresso& misura = misureIngresso[GetParam()];
    const std::string testo = pagina(misura.paginaAiuto);
    ASSERT_FALSE(testo.empty()) << misura.paginaAiuto;
    EXPECT_NE(testo.find(std::string{misura.campo.nome}), std::string::npos);
    EXPECT_NE(testo.find(intervalloAmmesso(misura.campo)), std::string::npos);
    EXPECT_NE(testo.find(fmt::format("{} ÷ {}", formatta(misura.consigliatoMinimo, "#0.00"),
                                     formatta(misura.consigliatoMassimo, "#0.00"))),
              std::string::npos);
    const std::string cella = R"(<td align="right">([0-9,]+)</td>)";
    const std::regex riga("<tr>" + cella + cella + cella + cella + "</tr>");
    int righe = 0;
    for (auto it = std::sregex_iterator(testo.begin(), testo.end(), riga); it != std::sregex_iterator();
         ++it, ++righe) {
        Revisione revisione;
        Ramo ramo(revisione, "1Ramo", "prova");
        esempio(ramo);
        (ramo.*misura.scrivi)(leggiSingolo((*it)[1].str()).value_or(0.0F));
        parametriCapacita(ramo, geometriaDi(ramo));
        for (std::size_t i = 0; i < 3; ++i) {
            const double circolante = 500.0 * static_cast<double>(i);
            EXPECT_EQ((*it)[i + 2].str(), formatta(ramo.F() - ramo.Fc() * circolante, "#0")) << (*it)[0].str();
        }
    }
    EXPECT_EQ(righe, 4);
}

/// A limit as the pages show it, beside its name.
std::string valoreDetto(std::string_view nome, double valore, const CampoNumerico& campo) {
    return fmt::format("<span class=\"limiti\">{}</span><br>{} {}", nome, formatta(valore, campo.formato), campo.unita);
}

TEST_P(PagineMisure, TheInitialValueIsThatOfANewEntry) {
    const MisuraIngresso& misura = misureIngresso[GetParam()];
    Revisione revisione;
    const Ramo nuovo(revisione, "1Ramo", "prova");
    const std::string detto = valoreDetto("Valore iniziale", (nuovo.*misura.leggi)(), misura.campo);
    EXPECT_NE(pagina(misura.paginaAiuto).find(detto), std::string::npos) << detto;
}

TEST_P(PagineMisure, LimitsAndInitialValueOfTheStepAreThoseOfTheProgram) {
    struct Passo {
        const char* pagina;
        double (AnalisiMarginale::*leggi)() const;
    };
    using A = AnalisiMarginale;
    const std::array<Passo, 6> passi{{{"PassoLarghezzaIngresso.htm", &A::LarghezzaIngresso},
                                      {"PassoSemiLarghezza.htm", &A::SemiLarghezza},
                                      {"PassoLungSvasatura.htm", &A::LungSvasatura},
                                      {"PassoAngoloConflitto.htm", &A::AngoloConflitto},
                                      {"PassoRaggioCurvatura.htm", &A::RaggioCurvatura},
                                      {"PassoDiametroInscritto.htm", &A::DiametroInscritto}}};
    const Passo& passo = passi.at(GetParam());
    const CampoNumerico& campo = campiPasso.at(GetParam());
    const std::string testo = pagina(passo.pagina);
    Revisione revisione;
    const AnalisiMarginale nuova(revisione);
    const std::string detto = valoreDetto("Passo iniziale", (nuova.*passo.leggi)(), campo);
    EXPECT_NE(testo.find(intervalloAmmesso(campo)), std::string::npos) << intervalloAmmesso(campo);
    EXPECT_NE(testo.find(detto), std::string::npos) << detto;
}

INSTANTIATE_TEST_SUITE_P(Tutte, PagineMisure, testing::Range<std::size_t>(0, 6));

}  // namespace
}  // namespace kelvo::prove
