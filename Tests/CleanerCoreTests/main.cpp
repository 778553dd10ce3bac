#include "TempTree.hpp"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    TestSupport::isolateHome();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
