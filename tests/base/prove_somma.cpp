#include "base/somma.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {
namespace {

TEST(SommaMostrata, AddsWhatTheTextsShow) {
    EXPECT_EQ(testoNumero(sommaMostrata(std::array{34.1F, 0.7F, 65.2F})), "100");
    EXPECT_EQ(testoNumero(sommaMostrata(std::array{82.2F, 4.6F, 13.2F})), "100");
    EXPECT_EQ(testoNumero(sommaMostrata(std::array{33.3F, 33.3F, 33.3F})), "99,9");
    EXPECT_EQ(testoNumero(sommaMostrata(std::array{100.0F, -99.9F})), "0,1");
    EXPECT_EQ(sommaMostrata(std::array{0.05F, 1.1F}), 1.15F);
    EXPECT_EQ(sommaMostrata({}), 0.0F);
}

TEST(SommaMostrata, PastTheRangeOfASingleIsAnOverflow) {
    constexpr float massimo = std::numeric_limits<float>::max();
    EXPECT_THROW(sommaMostrata(std::array{massimo, massimo}), Guasto);
    EXPECT_THROW(sommaMostrata(std::array{std::numeric_limits<float>::infinity()}), Guasto);
}

}  // namespace
}  // namespace kelvo
