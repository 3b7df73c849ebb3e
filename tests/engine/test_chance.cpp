// The random numbers: a generator reseeded from the timer, as the computer players draw.
#include <gtest/gtest.h>

#include <set>

#include "core/Chance.h"

using jv::Chance;

TEST(Chance, ReseedingWithTheSameTimerReadingRepeatsTheDraw) {
    // A generator reseeded from the same timer tick gives the same number again, whatever it drew before;
    // different ticks give different sequences, and every number lies in [0, 1).
    Chance c;
    c.Randomize(4321.5);
    const double first = c.Rnd();
    for (int i = 0; i < 10; ++i) c.Rnd();
    c.Randomize(4321.5);
    EXPECT_EQ(c.Rnd(), first);

    std::set<double> firsts;
    for (int tick = 0; tick < 200; ++tick) {
        c.Randomize(36000.0 + tick / 64.0);
        const double x = c.Rnd();
        EXPECT_GE(x, 0.0);
        EXPECT_LT(x, 1.0);
        firsts.insert(x);
    }
    EXPECT_GT(firsts.size(), 190u);
}
