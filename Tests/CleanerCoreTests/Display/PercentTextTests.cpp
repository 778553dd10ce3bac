#include "CleanerCore/Display/PercentText.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;

TEST(PercentText, SharesRoundToWholePercentsAndTinyOnesNeverReadAsZero) {
    EXPECT_EQ(PercentText::share(1, 1000000, "en"), "<1%");
    EXPECT_EQ(PercentText::share(99, 10000, "en"), "<1%");
    EXPECT_EQ(PercentText::share(100, 10000, "en"), "1%");
    EXPECT_EQ(PercentText::share(0, 100, "en"), "0%");
    EXPECT_EQ(PercentText::share(5, 0, "en"), "0%");
    EXPECT_EQ(PercentText::share(1, 3, "en"), "33%");
    EXPECT_EQ(PercentText::share(1000, 1000, "en"), "100%");
    EXPECT_EQ(PercentText::share(2, 3, "pt-BR"), "67%");
    // Locales put the sign their own way.
    EXPECT_EQ(PercentText::percent(0.5, "fr"), "50\u00a0%");
}
