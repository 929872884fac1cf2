// The number vocabulary: each of these is a place where a page's strokes
// would move if the rounding or parsing were off by one step.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "shell/numbers.h"

using namespace gp;

TEST(Val, ReadsTheNumberAtTheHeadAndSkipsBlanksAnywhere) {
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val(" 2"), 2);
    EXPECT_EQ(Val("2,5"), 2);
    EXPECT_EQ(Val(".5"), 0.5);
    EXPECT_EQ(Val("1.5in"), 1.5);
    EXPECT_EQ(Val("1 2"), 12);
    EXPECT_EQ(Val("abc"), 0);
    EXPECT_EQ(Val("."), 0);
    EXPECT_EQ(Val("-.25"), -0.25);
    EXPECT_EQ(Val("- 3"), -3);
    EXPECT_EQ(Val("\t1\n0"), 10);
    EXPECT_EQ(Val("1e3"), 1000);
    EXPECT_EQ(Val("2.5E-1x"), 0.25);
    EXPECT_EQ(Val("1e"), 1);  // an exponent with no digits is not read
    EXPECT_EQ(Val("--5"), 0);
    EXPECT_EQ(Val("+7"), 7);
    EXPECT_EQ(Val("1.2.3"), 1.2);
}

TEST(Val, ANumberBeyondTheDoubleRangeIsAnOverflow) {
    EXPECT_EQ(Val("1e308"), 1e308);
    EXPECT_THROW(Val("1e309"), Fault);
}

TEST(Rounding, IntFloorsAndCIntRoundsHalfToEven) {
    EXPECT_EQ(Int(2.7), 2);
    EXPECT_EQ(Int(-0.5), -1);
    EXPECT_EQ(CInt(0.5), 0);
    EXPECT_EQ(CInt(1.5), 2);
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CInt(720.5), 720);
    // The length conversion that every page uses: .7 inch is 1007 twips.
    EXPECT_EQ(Integer(Int(Val(".7") * 1440)), 1007);
    EXPECT_EQ(Integer(Int(Val("1.0003") * 1440)), 1440);
}

TEST(Integer, EveryStoreChecksTheSixteenBitRange) {
    EXPECT_EQ(Integer(32767), 32767);
    EXPECT_EQ(Integer(-32768), -32768);
    EXPECT_THROW(Integer(32768), Fault);
    EXPECT_THROW(Integer(-32769), Fault);
    EXPECT_EQ(Integer(32767.4), 32767);
    EXPECT_THROW(Integer(32767.5), Fault);  // rounds to 32768
    EXPECT_EQ(Integer(-32768.5), -32768);   // rounds to the even -32768
    EXPECT_THROW(Integer y(std::nan("")), Fault);
    EXPECT_THROW(Integer x(HUGE_VAL), Fault);
    Integer x = 32760;
    EXPECT_THROW(x += 8, Fault);
    EXPECT_EQ(x, 32760);  // a refused store leaves the old value
    EXPECT_THROW(IMul(137, 240), Fault);
    EXPECT_EQ(IMul(136, 240), 32640);
    EXPECT_THROW(Long(2147483648.0), Fault);
    EXPECT_EQ(CLng(2.5), 2);
}

TEST(Str, WritesTheLeadingBlankAndNoZeroBeforeThePoint) {
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(Str(-0.5), "-.5");
    EXPECT_EQ(Str(5), " 5");
    EXPECT_EQ(Str(-5), "-5");
    EXPECT_EQ(Str(0.0), " 0");
    EXPECT_EQ(Str(-0.0), " 0");
    EXPECT_EQ(Str(1440.25), " 1440.25");
    EXPECT_EQ(Str(Integer(32767)), " 32767");
    EXPECT_EQ(Str(1e15), " 1E+15");
    EXPECT_EQ(Str(123456789012345.0), " 123456789012345");
    EXPECT_EQ(Str(0.0001), " .0001");
    EXPECT_EQ(Str(0.00001), " 1E-05");
    EXPECT_EQ(Str(1.0 / 3), " .333333333333333");
    // A Single keeps seven digits: the Single 2.3 is " 2.3", not its double.
    EXPECT_EQ(Str(2.3f), " 2.3");
    EXPECT_EQ(Str(-1.3f), "-1.3");
    EXPECT_EQ(Str(1e8f), " 1E+08");
}

TEST(Str, TheLargestNumbersKeepTheirDigitsAndNoNumberAtAllIsAnOverflow) {
    EXPECT_EQ(Str(-1.7976931348623157e308), "-1.79769313486232E+308");
    EXPECT_EQ(Str(4.9e-324), " 4.94065645841247E-324");
    EXPECT_EQ(Str(3.4028235e38f), " 3.402823E+38");
    // An infinity or a NaN can only come from a value that already overflowed.
    const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
    for (double bad : {inf, -inf, nan}) {
        try {
            Str(bad);
            ADD_FAILURE() << bad;
        } catch (const Fault& f) {
            EXPECT_EQ(f.kind(), FaultKind::Overflow);
        }
        EXPECT_THROW(Str(static_cast<Single>(bad)), Fault);
    }
}

TEST(Conversions, CDblRefusesTextThatIsNoNumber) {
    EXPECT_EQ(CDbl(" 0.9 "), 0.9);
    EXPECT_EQ(CDbl("-2e2"), -200);
    EXPECT_THROW(CDbl("abc"), Fault);
    EXPECT_THROW(CDbl(""), Fault);
    EXPECT_THROW(CDbl("1,5"), Fault);
    EXPECT_THROW(CDbl("1.5x"), Fault);
    EXPECT_THROW(CSng(1e39), Fault);
    EXPECT_EQ(CSng(0.1), 0.1f);
}

TEST(Conversions, CSngRoundsToTheNearestSingleAndOnlyWhatRoundsPastItOverflows) {
    const float most = std::numeric_limits<float>::max();
    EXPECT_EQ(CSng(3.4028234663852886e38), most);
    EXPECT_EQ(CSng(3.40282356e38), most);  // above the largest Single, but rounds down to it
    EXPECT_EQ(CSng(-3.40282356e38), -most);
    EXPECT_THROW(CSng(3.4028236e38), Fault);  // rounds to infinity
    EXPECT_THROW(CSng(-1e39), Fault);
    EXPECT_THROW(CSng(HUGE_VAL), Fault);
    EXPECT_THROW(CSng(-HUGE_VAL), Fault);
    EXPECT_THROW(CSng(std::nan("")), Fault);
    EXPECT_EQ(CSng(1e-50), 0.0f);  // too small for a Single is 0, no fault
    EXPECT_THROW(CLng(1e19), Fault);
    EXPECT_THROW(CLng(std::nan("")), Fault);
}

TEST(IntegerDivision, CutsTowardsZeroAndModTakesTheSignOfA) {
    EXPECT_EQ(IDiv(7, 2), 3);
    EXPECT_EQ(IDiv(-7, 2), -3);
    EXPECT_EQ(Mod(-7, 2), -1);
    EXPECT_EQ(Mod(7, -2), 1);
    EXPECT_EQ(IDiv(7.5, 2), 4);  // 7.5 rounds to 8 first
    EXPECT_THROW(IDiv(1, 0), Fault);
    EXPECT_THROW(Mod(1, 0.4), Fault);  // 0.4 rounds to 0
    EXPECT_THROW(Div(1, 0), Fault);
}

TEST(Text, TrimAndRgb) {
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(RGB(255, 255, 0), 65535);
    EXPECT_EQ(RGB(0, 192, 192), 192 * 256 + 192 * 65536);
}
