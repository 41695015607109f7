#include "platform/vedute.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/guasto.h"

namespace kelvo::prove {
namespace {

using Nomi = std::vector<std::string>;

struct Veduta {
    Nomi nomi{};
    std::optional<std::string> valore{};
    bool rifiutata = false;  ///< raises a fault that names it, behind the names that it has
};

/// A registry of two views.
struct ProveVedute : testing::Test {
    static constexpr std::array<std::size_t, 2> ordine{0, 1};

    Nomi nomi() {
        return LetturaVedute(ordine).nomi([&](std::size_t quale, Nomi& trovati) {
            const Veduta& veduta = vedute.at(quale);
            trovati.insert(trovati.end(), veduta.nomi.begin(), veduta.nomi.end());
            rifiutaSe(quale);
        });
    }
    std::string valore() {
        lette.clear();
        return LetturaVedute(ordine).valore([&](std::size_t quale) {
            lette.push_back(quale);
            rifiutaSe(quale);
            return vedute.at(quale).valore;
        });
    }
    void rifiutaSe(std::size_t quale) const {
        if (vedute.at(quale).rifiutata) {
            throw Guasto(NumeroGuasto::autorizzazioneNegata, std::to_string(quale));
        }
    }
    template <class Lettura>
    static std::string guasto(Lettura lettura) {
        try {
            lettura();
        } catch (const Guasto& g) {
            return g.descrizione();
        }
        return "nothing was raised";
    }

    std::array<Veduta, 2> vedute;
    std::vector<std::size_t> lette;  ///< the views that were asked for the value
};

TEST_F(ProveVedute, NamesOfBothAreGatheredOnceInAnyCase) {
    vedute[0].nomi = {"R17.2", "R16.0"};
    vedute[1].nomi = {"r16.0", "R16.2", "R17.2"};
    EXPECT_EQ(nomi(), (Nomi{"R17.2", "R16.0", "R16.2"}));
}

TEST_F(ProveVedute, TheFirstThatHasTheValueTellsIt) {
    vedute[1].valore = "seconda";
    EXPECT_EQ(valore(), "seconda");
    vedute[0].valore = "prima";
    EXPECT_EQ(valore(), "prima");
    EXPECT_EQ(lette, std::vector<std::size_t>{0});
    vedute[0].valore = "";
    EXPECT_EQ(valore(), "") << "an empty text is one";
}

TEST_F(ProveVedute, WhereNothingStandsThereIsNothing) {
    EXPECT_EQ(nomi(), Nomi{});
    EXPECT_EQ(valore(), "");
    EXPECT_EQ(lette, (std::vector<std::size_t>{0, 1}));
}

TEST_F(ProveVedute, OneThatIsRefusedDoesNotHideTheOther) {
    for (const std::size_t quale : ordine) {
        vedute = {};
        vedute.at(quale).rifiutata = true;
        vedute.at(1 - quale) = {.nomi = {"R17.2"}, .valore = "cartella"};
        EXPECT_EQ(nomi(), Nomi{"R17.2"}) << quale;
        EXPECT_EQ(valore(), "cartella") << quale;
    }
}

TEST_F(ProveVedute, NamesBeforeARefusalCount) {
    vedute[0] = {.nomi = {"R17.2"}, .rifiutata = true};
    EXPECT_EQ(nomi(), Nomi{"R17.2"});
}

TEST_F(ProveVedute, WhereNoneGivesAnythingTheFirstRefusalIsRaised) {
    vedute[1].rifiutata = true;
    EXPECT_EQ(guasto([&] { nomi(); }), Guasto(NumeroGuasto::autorizzazioneNegata, "1").descrizione());
    EXPECT_EQ(guasto([&] { valore(); }), Guasto(NumeroGuasto::autorizzazioneNegata, "1").descrizione());
    vedute[0].rifiutata = true;
    EXPECT_EQ(guasto([&] { nomi(); }), Guasto(NumeroGuasto::autorizzazioneNegata, "0").descrizione());
    EXPECT_EQ(guasto([&] { valore(); }), Guasto(NumeroGuasto::autorizzazioneNegata, "0").descrizione());
}

}  // namespace
}  // namespace kelvo::prove
