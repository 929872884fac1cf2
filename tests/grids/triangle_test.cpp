// The triangle sheet: the example's first cell, the loop ends at the page's
// edges, the odd base, and the values it refuses.
#include "grids/page.h"

using namespace gp;
using gp::test::GridPage;

namespace {
GridPage sheet(const std::string& leng, const std::string& angle, const std::string& thick = "2",
           Single w = 11520, Single h = 15120) {
    return GridPage("frmTriangle", {{"txtLeng", leng}, {"txtAngle", angle}, {"txtThick", thick}}, "cmdPrintIt",
                w, h);
}
// Where the flat strokes at height y end furthest right.
float rightAt(const GridPage& s, float y) {
    float r = -1;
    for (const Stroke& st : s.lines()) if (st.y1 == y && st.y2 == y) r = std::max(r, st.x2);
    return r;
}
}

TEST(TriangleSheet, TheExampleCellsTextsCutAsTheConversionsSayAndTheOddBase) {
    // 1.0003 inch is still 1440 twips; 60.9 is taken as 60 degrees. Stroke 4
    // is Line -Step(base, 0), stroke 5 goes up to the next apex.
    const float ends[5][2] = {{2160, 0}, {1440, 1247}, {0, 1247}, {1440, 1247}, {2160, 0}};
    for (auto [leng, angle, thick] : {std::tuple{"1", "60", "2"}, {"1.0003", "60.9", "0"}}) {
        GridPage s = sheet(leng, angle, thick);
        auto l = s.lines();
        ASSERT_GE(l.size(), 5u) << leng;
        EXPECT_EQ(l[0].x1, 720);
        for (int i = 0; i < 5; ++i) { EXPECT_EQ(l[i].x2, ends[i][0]); EXPECT_EQ(l[i].y2, ends[i][1]); }
        EXPECT_TRUE(s.t.faults().empty());
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
    }
    auto l = sheet("1", "60").lines();
    EXPECT_EQ(l[0].width, 2);
    // Row 1's cell at 0 has no up stroke: after its right flank (0,1247)-(720,2494)
    // the left flank runs off the page, stroke 4 goes on from its true end, and
    // the next cell follows.
    size_t i = 1;
    while (!(l[i].x1 == 0 && l[i].y1 == 1247 && l[i].x2 == 720)) ++i;
    EXPECT_EQ(l[i + 1].x2, -720);
    EXPECT_EQ(l[i + 2].x1, -720); EXPECT_EQ(l[i + 2].x2, 720);
    EXPECT_EQ(l[i + 3].x1, 1440); EXPECT_EQ(l[i + 3].y1, 1247);
    auto odd = sheet("1.0007", "60").lines();  // base 1441
    EXPECT_EQ(odd[0].x1, 720);           // CInt(720.5) is 720
    EXPECT_EQ(odd[1].x2, 720.5f + 720);  // base / 2 + x keeps the half
}

TEST(TriangleSheet, LoopEndsFollowThePrintableArea) {
    // Apexes run while within a third of a base of the right edge, rows while
    // their bottom stays on the page. The widest sheet steps past its last
    // cell (31680 + 1440) beyond an Integer without an overflow. A rise above
    // the page leaves it empty; a base above its width leaves row 0 empty.
    struct Case { const char *leng, *angle; Single w, h; float rise, even, odd, bottom; };
    for (const Case& c : {Case{"1", "60", 11520, 15120, 1247, 10800 + 1440, 11520, 12 * 1247},
                          Case{"1", "60", 15120, 11520, 1247, 720 + 10 * 1440, 15840, 9 * 1247},
                          Case{"1", "60", 32767, 15120, 1247, 32400, 31680 + 1440, 12 * 1247},
                          Case{"8", "70", 11520, 15120, 15825, -1, -1, 0},
                          Case{"20", "5", 11520, 15120, 1259, -1, 28800, 12 * 1259}}) {
        GridPage s = sheet(c.leng, c.angle, "2", c.w, c.h);
        SCOPED_TRACE(std::string(c.leng) + " " + std::to_string(c.w));
        EXPECT_TRUE(s.t.faults().empty());
        EXPECT_EQ(s.t.count("Printer", "enddoc"), 1);
        EXPECT_EQ(rightAt(s, 0), c.even);
        EXPECT_EQ(rightAt(s, c.rise), c.odd);
        float bottom = 0;
        for (const Stroke& st : s.lines()) bottom = std::max(bottom, st.y2);
        EXPECT_EQ(bottom, c.bottom);
    }
    EXPECT_EQ(sheet("1", "60", "2", 32767).lines().size(), 6u * 22 * 5 + 6u * (23 * 5 - 1));
}

TEST(TriangleSheet, ImpossibleValuesComeBackAtOnceWithAMessageAndNoSheet) {
    // 0.001 at 89 degrees would be millions of strokes: refused before drawing.
    for (auto [leng, angle] : {std::pair{"0", "60"}, {"-1", "60"}, {"1", "90"}, {"1", "95"},
                               {"1", "0"}, {"abc", "60"}, {"0.0001", "60"}, {"1", "180"},
                               {"0.001", "89"}}) {
        GridPage s = sheet(leng, angle);
        SCOPED_TRACE(std::string(leng) + " " + angle);
        EXPECT_EQ(s.t.faults().size(), 1u);
        EXPECT_EQ(s.t.ops().size(), 0u);  // no strokes, no page
        EXPECT_TRUE(s.f->visible());
    }
}
