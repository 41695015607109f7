#include <gtest/gtest.h>

#include "shell/servizi/clsResize.h"

namespace kelvo {
namespace {

TEST(ClsResize, TagHasTheFormOfFourNumbers) {
    EXPECT_EQ(clsResize::scriviTag({1, 2.5, 300, 40}), "@1,2.5,300,40");
    EXPECT_EQ(clsResize::leggiTag("@1,2.5,300,40"), (Rettangolo{1, 2.5, 300, 40}));
    for (const char* storto : {"", "1,2,3,4", "@1,2,3", "@1,2,3,4,", "@a,2,3,4", "@1,2,3,4x", "@1;2;3;4"}) {
        EXPECT_FALSE(clsResize::leggiTag(storto)) << storto;
    }
}

TEST(ClsResize, ControlsFollowTheRatioOfTheWindowToItsDesign) {
    clsResize::Modulo modulo{{100, 50}, {200, 150}, {{10, 10, 20, 10}, {0, 40, 100, 10}}};
    clsResize resize;
    resize.SourceForm(&modulo);
    resize.ResizeControls();
    EXPECT_EQ(modulo.controlli[0], (Rettangolo{20, 30, 40, 30}));
    EXPECT_EQ(modulo.controlli[1], (Rettangolo{0, 120, 200, 30}));
    // Back at the design size nothing is lost.
    modulo.attuale = {100, 50};
    resize.ResizeControls();
    EXPECT_EQ(modulo.controlli[0], (Rettangolo{10, 10, 20, 10}));
}

TEST(ClsResize, ReInitialiseTakesWhatStandsThereForTheDesign) {
    clsResize::Modulo modulo{{100, 50}, {200, 100}, {{10, 10, 20, 10}}};
    clsResize resize;
    resize.SourceForm(&modulo);
    resize.ResizeControls();
    resize.ReInitialise();
    EXPECT_EQ(resize.tag().at(0), "@20,20,40,20");
    modulo.attuale = {400, 200};
    resize.ResizeControls();
    EXPECT_EQ(modulo.controlli[0], (Rettangolo{40, 40, 80, 40}));
}

TEST(ClsResize, SizeFormToScreenFitsTheWindowToTheScreen) {
    clsResize::Modulo modulo{{100, 50}, {100, 50}, {{10, 10, 20, 10}}};
    clsResize resize;
    resize.SourceForm(&modulo);
    resize.SizeFormToScreen({1000, 500});
    EXPECT_EQ(modulo.attuale, (Misura{1000, 500}));
    EXPECT_EQ(modulo.controlli[0], (Rettangolo{100, 100, 200, 100}));
}

TEST(ClsResize, NoWindowAndNoDesignSizeScaleNothing) {
    clsResize resize;
    resize.ResizeControls();
    resize.ReInitialise();
    resize.SizeFormToScreen({10, 10});
    clsResize::Modulo modulo{{0, 50}, {100, 50}, {{10, 10, 20, 10}}};
    resize.SourceForm(&modulo);
    resize.ResizeControls();
    EXPECT_EQ(modulo.controlli[0], (Rettangolo{10, 10, 20, 10}));
}

}  // namespace
}  // namespace kelvo
