// The random numbers: a generator reseeded from the timer, as the computer players draw.
#include <gtest/gtest.h>

#include <set>

#include "core/Chance.h"

TEST(Chance, ReseedingWithTheSameTimerReadingRepeatsTheDraw) {
    // A generator reseeded from the same timer tick gives the same number again, whatever it drew before;
    // different ticks give different numbers, each in [0, 1).
    jv::Chance c;
    std::set<double> firsts;
    for (int tick = 0; tick < 200; ++tick) {
        c.Randomize(36000.0 + tick / 64.0);
        const double x = c.Rnd();
        c.Rnd();
        c.Randomize(36000.0 + tick / 64.0);
        EXPECT_EQ(c.Rnd(), x);
        EXPECT_TRUE(x >= 0.0 && x < 1.0) << x;
        firsts.insert(x);
    }
    EXPECT_GT(firsts.size(), 190u);
}
