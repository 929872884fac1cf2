// The angle label, the "Angle Error" message, and bad input reaching the
// three drawings: each ends at once with a message or an empty figure, and
// the form keeps working.
#include <gtest/gtest.h>

#include <chrono>

#include "stick_support.h"

using namespace stick_test;

namespace {
std::string pressLabel(const std::string& typed, int button) {
    StickForm s;
    s.t.edit(*s.f, "txtAngle", typed);
    EventArgs e;
    e.button = button;
    s.t.fire(*s.f, "lblAngle", Event::MouseDown, e);
    EXPECT_TRUE(s.t.faults().empty());
    return static_cast<TextBox*>(s.f->find("txtAngle"))->Text();
}
} // namespace

TEST(StickAngleLabel, StepsByFiveAndClipsTo10And170) {
    EXPECT_EQ(pressLabel("50", 1), " 55");
    EXPECT_EQ(pressLabel("54", 2), " 49");
    EXPECT_EQ(pressLabel("168", 1), " 170");
    EXPECT_EQ(pressLabel("12", 2), " 10");
    EXPECT_EQ(pressLabel("200", 4), " 170");  // middle: only rewritten, clipped
    EXPECT_EQ(pressLabel("60", 4), " 60");
    EXPECT_EQ(pressLabel("abc", 1), " 10");
    // CInt first: ties go to the even number.
    EXPECT_EQ(pressLabel("52.5", 1), " 57");
    EXPECT_EQ(pressLabel("53.5", 1), " 59");
    // Far outside the Integer range it still clips instead of overflowing.
    EXPECT_EQ(pressLabel("99999999", 2), " 170");
    EXPECT_EQ(pressLabel("-99999999", 1), " 10");
}

TEST(StickAngleError, LimitsAreInclusiveAndTheMessageHasTheStopIcon) {
    for (const char* ok : {"10", "170", "54", " 55", "10.0"}) {
        StickForm s;
        s.t.edit(*s.f, "txtAngle", ok);
        s.t.fire(*s.f, "txtAngle", Event::LostFocus);
        EXPECT_TRUE(s.t.dialogs().empty()) << ok;
    }
    for (const char* bad : {"9.99", "170.01", "", "abc", "-54"}) {
        StickForm s;
        s.t.edit(*s.f, "txtAngle", bad);
        s.t.fire(*s.f, "txtAngle", Event::LostFocus);
        ASSERT_EQ(s.t.dialogs().size(), 1u) << bad;
        const auto& d = s.t.dialogs()[0];
        EXPECT_EQ(d.kind, "msgbox");
        EXPECT_EQ(d.title, "Angle Error");
        EXPECT_EQ(d.prompt, "You must enter an angle >10 and < 170");
        EXPECT_EQ(d.buttons, 16);
    }
}

TEST(StickBadInput, DistanceWithNoLengthIsRefusedByAllThreeDrawings) {
    for (const char* tics : {"0", "", "abc", ".", "-0.5", ".0003"}) {
        StickForm s;
        s.set("54", tics);
        for (const char* button : {"cmdDrawIt", "cmdPrintIt", "cmdAnimate"}) {
            s.t.clear();
            const auto t0 = std::chrono::steady_clock::now();
            s.click(button);
            EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::milliseconds(200));
            ASSERT_EQ(s.t.faults().size(), 1u) << tics << " " << button;
            EXPECT_NE(s.t.faults()[0].find("distance"), std::string::npos);
            EXPECT_TRUE(s.canvas().empty());
            EXPECT_TRUE(s.page().empty());
            EXPECT_EQ(s.t.count("Printer", "enddoc"), 0);
        }
        // The form stays usable.
        s.t.clear();
        s.set("54", ".5").click("cmdDrawIt");
        EXPECT_TRUE(s.t.faults().empty());
        EXPECT_EQ(StickForm::black(s.canvas()).size(), 17u);
    }
}

TEST(StickBadInput, AngleOutsideTheLimitsReachingADrawing) {
    for (const char* angle : {"9.5", "0", "170.5", "180", "360", "-90", "abc"}) {
        StickForm s;
        s.set(angle, ".5", true);
        s.click("cmdDrawIt");
        s.click("cmdPrintIt");
        ASSERT_EQ(s.t.faults().size(), 2u) << angle;
        EXPECT_NE(s.t.faults()[0].find("10 to 170"), std::string::npos);
        EXPECT_TRUE(s.canvas().empty());
        EXPECT_TRUE(s.page().empty());
    }
    // The limits themselves draw.
    for (const char* angle : {"10", "170"}) {
        StickForm s;
        s.set(angle, ".5", true).click("cmdDrawIt");
        s.click("cmdPrintIt");
        EXPECT_TRUE(s.t.faults().empty()) << angle;
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    }
}

TEST(StickBadInput, MultiDrawingPastAHalfTurnIsRefusedButUpTo179DrawsTo170) {
    StickForm s;
    s.set("175", ".5").click("cmdAnimate");
    EXPECT_TRUE(s.t.faults().empty());
    int bases = 0;
    for (const Stroke& st : s.canvas())
        if (st.x1 == 4000 && st.y1 == 9500 && st.x2 == 13500) ++bases;
    EXPECT_EQ(bases, 17);
    for (const char* angle : {"180", "270", "1e9"}) {
        StickForm r;
        r.set(angle, ".5").click("cmdAnimate");
        ASSERT_EQ(r.t.faults().size(), 1u) << angle;
        EXPECT_TRUE(r.canvas().empty());
    }
}

TEST(StickBadInput, CountAboveTheScreenTablesIsRefusedWithAFill) {
    StickForm s;
    s.set("54", ".01");  // Leng 14: Count 829
    s.click("cmdDrawIt");
    ASSERT_EQ(s.t.faults().size(), 1u);
    EXPECT_NE(s.t.faults()[0].find("100"), std::string::npos);
    EXPECT_TRUE(s.canvas().empty());
    // 100 itself fills: Leng 116 at .0806 inch gives CInt(11600 / 116) = 100.
    s.t.clear();
    s.set("54", ".0806").click("cmdDrawIt");
    EXPECT_TRUE(s.t.faults().empty());
    EXPECT_EQ(StickForm::black(s.canvas()).size(), 101u);
    EXPECT_FALSE(StickForm::hatch(s.canvas()).empty());
    // Without a fill the sticks alone are drawn, however many.
    s.t.clear();
    s.set("54", ".01", false, "optNoColor").click("cmdDrawIt");
    EXPECT_TRUE(s.t.faults().empty());
    EXPECT_EQ(StickForm::black(s.canvas()).size(), 830u);
}

TEST(StickBadInput, TheShortestDistancesStayQuick) {
    StickForm s;
    const auto t0 = std::chrono::steady_clock::now();
    s.set("90", ".0007", true, "optNoColor").click("cmdDrawIt");
    s.set("90", ".0004", true, "optNoColor").click("cmdPrintIt");
    s.set("170", ".0007").click("cmdAnimate");
    EXPECT_TRUE(s.t.faults().empty());
    EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(3));
}
