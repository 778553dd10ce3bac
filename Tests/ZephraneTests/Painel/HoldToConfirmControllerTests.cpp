#include "Painel/HoldToConfirmController.hpp"

#include <QSignalSpy>

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

// A key with a clock the test moves by hand, and a count of how often it acted.
class HoldToConfirm : public ::testing::Test {
protected:
    void SetUp() override {
        key.setClock([this] { return now; });
        key.setHoldDuration(1.5);
        QObject::connect(&key, &HoldToConfirmController::action, [this] { ++actions; });
    }
    void hold(std::chrono::milliseconds lasting) {
        key.press();
        now += lasting;
        key.tick();
    }

    std::chrono::steady_clock::time_point now{};
    HoldToConfirmController key;
    int actions = 0;
};

} // namespace

TEST_F(HoldToConfirm, FiresOnlyOnceTheWholeDurationHasPassed) {
    hold(750ms);
    EXPECT_DOUBLE_EQ(key.progress(), 0.5);
    EXPECT_EQ(actions, 0);
    now += 749ms;
    key.tick();
    EXPECT_EQ(actions, 0);
    EXPECT_FALSE(key.fired());
    now += 1ms;
    key.tick();
    EXPECT_EQ(actions, 1);
    EXPECT_TRUE(key.fired());
    EXPECT_DOUBLE_EQ(key.progress(), 1);
    EXPECT_TRUE(key.flash());
    key.endFlash();
    EXPECT_FALSE(key.flash());
    // Holding on after it fired does not fire again, and letting go is not giving up.
    now += 2s;
    key.tick();
    key.release();
    EXPECT_EQ(actions, 1);
    EXPECT_FALSE(key.gaveUp());
    EXPECT_FALSE(key.holding());
    EXPECT_DOUBLE_EQ(key.progress(), 0);
}

// Let go just short of the duration: nothing runs and the user did not give up; before 0.9 of it the
// user gave up, until the next press; past the duration a release fires even without a tick.
TEST_F(HoldToConfirm, ReleaseFiresOnlyPastTheDurationAndGivesUpOnlyBeforeNineTenths) {
    hold(1499ms);
    key.release();
    EXPECT_EQ(actions, 0);
    EXPECT_FALSE(key.fired());
    EXPECT_FALSE(key.gaveUp());
    EXPECT_DOUBLE_EQ(key.progress(), 0);

    hold(1349ms);
    key.release();
    EXPECT_TRUE(key.gaveUp());
    key.press();
    EXPECT_FALSE(key.gaveUp());
    EXPECT_DOUBLE_EQ(key.progress(), 0);
    now += 1350ms;
    key.release();
    EXPECT_FALSE(key.gaveUp()) << "exactly 0.9 of the duration is not short of it";
    EXPECT_EQ(actions, 0);

    key.press();
    now += 1600ms;
    key.release();
    EXPECT_EQ(actions, 1);
    EXPECT_FALSE(key.gaveUp());
}

TEST_F(HoldToConfirm, AnotherPressStartsTheTimeAgainEvenWithLessMotion) {
    key.setReducedMotion(true);
    hold(1400ms);
    key.release();
    hold(200ms);
    EXPECT_NEAR(key.progress(), 200.0 / 1500.0, 1e-9);
    now += 1299ms;
    key.tick();
    EXPECT_EQ(actions, 0) << "two short holds never add up to a removal";
}

TEST_F(HoldToConfirm, ADisabledKeyNeitherFillsNorFiresAndDisablingDropsAHoldUnderTheFinger) {
    hold(1s);
    key.setEnabled(false);
    EXPECT_FALSE(key.holding());
    EXPECT_DOUBLE_EQ(key.progress(), 0);
    hold(3s);
    EXPECT_DOUBLE_EQ(key.progress(), 0);
    key.setEnabled(true);
    key.tick();
    key.release();
    EXPECT_EQ(actions, 0);
    EXPECT_FALSE(key.gaveUp());

    key.setEnabled(false);
    EXPECT_FALSE(key.requestConfirmation()) << "the key press is left to the parents";
    key.confirm();
    EXPECT_EQ(actions, 0);
}

TEST_F(HoldToConfirm, TheKeyPressAsksInsteadOfHolding) {
    QSignalSpy state(&key, &HoldToConfirmController::stateChanged);
    EXPECT_TRUE(key.requestConfirmation());
    EXPECT_TRUE(key.confirming());
    EXPECT_FALSE(key.holding());
    EXPECT_EQ(actions, 0);
    EXPECT_GE(state.count(), 1);

    key.cancelConfirmation();
    EXPECT_FALSE(key.confirming());
    key.confirm();
    EXPECT_EQ(actions, 0) << "confirming a dialog that is gone does nothing";

    key.setReducedMotion(true);
    key.requestConfirmation();
    key.confirm();
    EXPECT_EQ(actions, 1);
    EXPECT_TRUE(key.fired());
    EXPECT_FALSE(key.confirming());
    EXPECT_FALSE(key.flash()) << "with less motion the key acts without the flash";

    key.requestConfirmation();
    key.setEnabled(false);
    EXPECT_FALSE(key.confirming()) << "a key that goes dead closes its question";
}
