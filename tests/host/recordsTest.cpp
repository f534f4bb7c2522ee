#include <gmock/gmock.h>

#include <limits>
#include <sstream>

#include "host/ReducedCell.h"
#include "host/UncertainValue.h"

using testing::DoubleNear;

TEST(UncertainValue, PrintsAsCrystallographersWrite) {
    const double infinite = std::numeric_limits<double>::infinity();
    const std::pair<UncertainValue, const char*> cases[] = {
        {{10.234}, "10.234"},
        {{10.23456789}, "10.2346"},
        {{10.234, 0.005}, "10.234(5)"},
        {{10.234, 0.001}, "10.2340(10)"},
        {{10.234, 0.019}, "10.23(2)"},
        {{10.234, 0.0195, 3}, "10.234(20)"},
        {{90, 0, 2}, "90.00"},
        {{-3.5, 0.2, 1}, "-3.5(2)"},
        {{1200, 100}, "1200(100)"},
        {{1234567.4, 0.5, 0}, "1234567(1)"},
        {{1, infinite}, "1"},
        {{1e300, 0, 999}, "1000000000000000"},
        {{0, 1e-300}, "0.00000000000000"},
    };
    for (const auto& [value, shown] : cases) {
        std::ostringstream os;
        os << value;
        EXPECT_EQ(os.str().substr(0, 16), shown);
    }
}

TEST(ReducedCell, IsTheNiggliCellOfThePrimitiveLattice) {
    const Cell cubic{{4}, {4}, {4}, {{90}}, {{90}}, {{90}}};
    EXPECT_THAT(cubic.volume(), DoubleNear(64, 1e-9));
    const auto reduced = ReducedCell::of(cubic, 'F');
    ASSERT_TRUE(reduced);
    for (const double edge : {reduced->a, reduced->b, reduced->c}) {
        EXPECT_THAT(edge, DoubleNear(2.8284271, 1e-6));
    }
    EXPECT_THAT(reduced->alpha, DoubleNear(60, 1e-6));
    EXPECT_THAT(reduced->volume, DoubleNear(16, 1e-9));
    for (const double angle : {0.0, 180.0, 180.5, 500.0, -90.0}) {
        const Cell impossible{{4}, {4}, {4}, {{90}}, {{angle}}, {{90}}};
        EXPECT_EQ(impossible.volume(), 0) << angle;
        EXPECT_FALSE(ReducedCell::of(impossible, 'P')) << angle;
    }
    EXPECT_EQ((Cell{{0}, {4}, {4}, {{90}}, {{90}}, {{90}}}).volume(), 0);
    EXPECT_EQ((Cell{{4}, {4}, {4}, {{120}}, {{120}}, {{121}}}).volume(), 0);
}
