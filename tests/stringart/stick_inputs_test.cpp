// The angle label, "Angle Error", and bad input reaching the drawings: each
// ends at once with a message or an empty figure, and the form keeps working.
#include <gtest/gtest.h>

#include <chrono>

#include "stick_support.h"

using namespace stick_test;

TEST(StickAngleLabel, StepsByFiveFromCIntAndClipsTo10And170) {
    const struct { const char* typed; int button; const char* shown; } cases[] = {
        {"50", 1, " 55"}, {"54", 2, " 49"}, {"168", 1, " 170"}, {"12", 2, " 10"},
        {"200", 4, " 170"}, {"abc", 1, " 10"}, {"52.5", 1, " 57"}, {"53.5", 1, " 59"},
        {"99999999", 2, " 170"}, {"-99999999", 1, " 10"},
    };
    for (const auto& c : cases) {
        StickForm s;
        s.t.edit(*s.f, "txtAngle", c.typed);
        EventArgs e;
        e.button = c.button;
        s.t.fire(*s.f, "lblAngle", Event::MouseDown, e);
        EXPECT_EQ(static_cast<TextBox*>(s.f->find("txtAngle"))->Text(), c.shown) << c.typed;
        EXPECT_TRUE(s.t.dialogs().empty());
    }
}

TEST(StickAngleError, LimitsAreInclusiveAndTheMessageHasTheStopIcon) {
    for (const char* typed : {"10", "170", " 55", "9.99", "170.01", "", "abc"}) {
        StickForm s;
        s.t.edit(*s.f, "txtAngle", typed);
        s.t.fire(*s.f, "txtAngle", Event::LostFocus);
        const double v = Val(typed);
        if (v >= 10 && v <= 170) {
            EXPECT_TRUE(s.t.dialogs().empty()) << typed;
            continue;
        }
        ASSERT_EQ(s.t.dialogs().size(), 1u) << typed;
        EXPECT_EQ(s.t.dialogs()[0].title, "Angle Error");
        EXPECT_EQ(s.t.dialogs()[0].prompt, "You must enter an angle >10 and < 170");
        EXPECT_EQ(s.t.dialogs()[0].buttons, 16);
    }
}

TEST(StickBadInput, NoDistanceOrNoAngleDrawsNothingAndTheFormGoesOn) {
    const struct { const char* angle; const char* tics; const char* says; } cases[] = {
        {"54", "0", "distance"}, {"54", "", "distance"}, {"54", "abc", "distance"},
        {"54", ".0003", "distance"}, {"abc", ".5", "0 degrees"}, {"0", ".5", "0 degrees"},
    };
    for (const auto& c : cases) {
        StickForm s;
        s.set(c.angle, c.tics, true);
        const auto t0 = std::chrono::steady_clock::now();
        s.click("cmdDrawIt");
        s.click("cmdPrintIt");
        EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::milliseconds(200));
        ASSERT_EQ(s.t.faults().size(), 2u) << c.angle << " " << c.tics;
        EXPECT_NE(s.t.faults()[0].find(c.says), std::string::npos) << s.t.faults()[0];
        EXPECT_TRUE(s.canvas().empty());
        EXPECT_TRUE(s.page().empty());
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 0);
        s.t.clear();
        s.set("54", ".5").click("cmdDrawIt");
        EXPECT_EQ(black(s.canvas()).size(), 17u);
    }
}

// The limits 10 and 170 belong to the angle box and the label: a drawing
// takes the angle as it stands, and a negative distance is a figure too.
TEST(StickBadInput, AnglesPastTheLimitsAndNegativeDistancesStillDraw) {
    const struct { const char* angle; const char* tics; bool doubled; size_t black; } cases[] = {
        {"5", ".5", false, 17},     // 11600 / 720 rounds to 16; the leg is low enough
        {"175", ".5", false, 9},    // 5817 / 720: 8 sticks under the base
        {"54", "-.5", false, 1},    // Count -16: the base alone
        {"54", "-.5", true, 4},     // two bases and two first leg steps
    };
    for (const auto& c : cases) {
        StickForm s;
        s.set(c.angle, c.tics, c.doubled, "optNoColor").click("cmdDrawIt");
        EXPECT_TRUE(s.t.faults().empty()) << c.angle << " " << c.tics;
        EXPECT_EQ(black(s.canvas()).size(), c.black) << c.angle << " " << c.tics;
        s.click("cmdPrintIt");
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1) << c.angle << " " << c.tics;
    }
}

TEST(StickBadInput, MultiDrawingStopsBelow10OnALegThatNeverLeavesAndOnAStepOfZero) {
    const struct { const char* angle; const char* tics; int faults; int bases; } cases[] = {
        {"9.9", ".5", 0, 0}, {"9.9", "0", 0, 0}, {"175", ".5", 0, 17}, {"189", ".5", 0, 18},
        {"270", ".5", 1, 0}, {"1e9", ".5", 1, 0}, {"54", "0", 1, 0}, {"54", "abc", 1, 0},
    };
    for (const auto& c : cases) {
        StickForm s;
        const auto t0 = std::chrono::steady_clock::now();
        s.set(c.angle, c.tics).click("cmdAnimate");
        EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(1));
        EXPECT_EQ(int(s.t.faults().size()), c.faults) << c.angle << " " << c.tics;
        int bases = 0;
        for (const Stroke& st : s.canvas()) bases += st.x1 == 4000 && st.x2 == 13500;
        EXPECT_EQ(bases, c.bases) << c.angle;
        EXPECT_EQ(s.t.count("frmStickCurves", "cls"), 1);
    }
}

TEST(StickBadInput, CountPastTheFillTablesIsRefusedWithAFillOnly) {
    const struct { const char* button; const char* tics; const char* fill; bool refused; size_t black; } cases[] = {
        {"cmdDrawIt", ".01", "optRandColor", true, 0},     // Count 829 > 100
        {"cmdDrawIt", ".0806", "optRandColor", false, 101},  // Count 100 fills
        {"cmdDrawIt", ".01", "optNoColor", false, 830},
        {"cmdPrintIt", ".05", "optSame", false, 195},       // Count 194 fills
        {"cmdPrintIt", ".04", "optSame", true, 0},          // Count 241 > 200
        {"cmdPrintIt", ".04", "optNoColor", false, 242},
    };
    for (const auto& c : cases) {
        StickForm s;
        s.set("54", c.tics, false, c.fill).click(c.button);
        EXPECT_EQ(s.t.faults().size(), c.refused ? 1u : 0u) << c.button << " " << c.tics;
        const auto strokes = std::string(c.button) == "cmdDrawIt" ? s.canvas() : s.page();
        EXPECT_EQ(black(strokes).size(), c.black) << c.button << " " << c.tics;
    }
}

TEST(StickBadInput, TheShortestDistancesStayQuick) {
    StickForm s;
    const auto t0 = std::chrono::steady_clock::now();
    s.set("90", ".0007", true, "optNoColor").click("cmdDrawIt");
    s.set("90", ".0004", true, "optNoColor").click("cmdPrintIt");
    s.set("170", ".0007").click("cmdAnimate");
    s.set("10", ".05", true).click("cmdPrintIt");  // the densest fill the page allows
    EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(3));
}
