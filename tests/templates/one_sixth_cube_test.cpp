// The one-sixth cube pyramid: the canvas's own scale, the corner table with
// its rounding, the thirteen strokes, and the grid tiling of both surfaces.
#include <gtest/gtest.h>

#include "templates/frm_one_sixth_cube.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

TEST(OneSixthCube, CanvasUnitDownIsNotQuiteATwip) {
    TestApp t;
    Form& f = t.show("frmOneSixthCube");
    EXPECT_EQ(CInt(f.Me().ScaleWidth()), 9405);
    EXPECT_EQ(CInt(f.Me().ScaleHeight()), 8943);
    EXPECT_NEAR(8400.0 / f.Me().ScaleHeight(), 0.9392857, 1e-7);
}

TEST(OneSixthCube, CornerTableAtBothScales) {
    const int at800[9][2] = {{0, 0}, {0, 800}, {0, 0}, {800, 0}, {800, 800},
                             {400, 1366}, {1037, 1638}, {356, 2057}, {-267, 1554}};
    const int at1440[9][2] = {{0, 0}, {0, 1440}, {0, 0}, {1440, 0}, {1440, 1440},
                              {720, 2458}, {1867, 2948}, {640, 3703}, {-480, 2798}};
    auto a = SixthCubeCornerTable(800);
    auto b = SixthCubeCornerTable(1440);
    for (int i = 1; i <= 8; ++i) {
        EXPECT_EQ(int(a.cornerX[i]), at800[i][0]) << i;
        EXPECT_EQ(int(a.cornerY[i]), at800[i][1]) << i;
        EXPECT_EQ(int(b.cornerX[i]), at1440[i][0]) << i;
        EXPECT_EQ(int(b.cornerY[i]), at1440[i][1]) << i;
    }
    // Half an odd side is rounded only as it is stored, to the even neighbour.
    EXPECT_EQ(int(SixthCubeCornerTable(801).cornerX[5]), 400);
    EXPECT_EQ(int(SixthCubeCornerTable(803).cornerX[5]), 402);
}

TEST(OneSixthCube, DefaultGivesTwentyCopiesWithTheFifthColumnOverTheEdge) {
    TestApp t;
    t.show("frmOneSixthCube");
    std::vector<Point> preview, print;
    for (float y : {100, 2157, 4214, 6271})
        for (float x : {3267, 4571, 5875, 7179, 8483}) preview.push_back({x, y});
    auto l = t.lines("frmOneSixthCube");
    EXPECT_EQ(CopyStarts(l, 13), preview);
    float right = 0;
    for (const Stroke& s : l) right = std::max(right, s.x2);
    EXPECT_EQ(right, 8483 + 1037);

    TestApp p;
    for (float y : {300, 4003, 7706, 11409})
        for (float x : {480, 2827, 5174, 7521, 9868}) print.push_back({x, y});
    EXPECT_EQ(CopyStarts(PrintAt(p, "frmOneSixthCube", "1"), 13), print);
    EXPECT_EQ(p.count("Printer", "enddoc"), 1);
}

TEST(OneSixthCube, ThirteenStrokesBetweenCorners) {
    TestApp t;
    auto l = PrintAt(t, "frmOneSixthCube", "1");
    ASSERT_GE(l.size(), 13u);
    const float X = 480, Y = 300;
    auto c = SixthCubeCornerTable(1440);
    auto at = [&](int i) { return Point{c.cornerX[i] + X, c.cornerY[i] + Y}; };
    std::vector<std::pair<Point, Point>> want{{{X, Y}, at(1)}};
    for (int i = 1; i <= 7; ++i) want.push_back({at(i), at(i + 1)});
    want.push_back({at(8), at(1)});
    want.push_back({at(1), at(4)});
    want.push_back({at(5), at(1)});
    want.push_back({at(5), at(8)});
    want.push_back({at(5), at(7)});
    for (size_t i = 0; i < 13; ++i) {
        EXPECT_EQ(Point(l[i].x1, l[i].y1), want[i].first) << "stroke " << i + 1;
        EXPECT_EQ(Point(l[i].x2, l[i].y2), want[i].second) << "stroke " << i + 1;
        EXPECT_EQ(l[i].style, i < 9 ? 0 : 1) << "stroke " << i + 1;
    }
    EXPECT_EQ(t.printer().DrawStyle(), 0);
}

TEST(OneSixthCube, PreviewCopiesFallAsTheSideGrows) {
    struct Case { const char* text; size_t copies; };
    for (Case c : {Case{"2", 4}, Case{"3", 1}, Case{"4.49", 1}, Case{"4.5", 0}, Case{"4.99", 0}}) {
        TestApp t;
        EXPECT_EQ(PreviewAt(t, "frmOneSixthCube", c.text).size(), c.copies * 13) << c.text;
        EXPECT_TRUE(t.faults().empty());
    }
}

TEST(OneSixthCube, PrintKeepsEveryRowOnTheSheet) {
    TestApp t;
    EXPECT_EQ(PrintAt(t, "frmOneSixthCube", "4").size(), 13u);
    TestApp u;
    EXPECT_TRUE(PrintAt(u, "frmOneSixthCube", "4.4").empty());
    EXPECT_EQ(u.count("Printer", "enddoc"), 1);
}

TEST(OneSixthCube, CornersOutOfTheIntegerRangeAreRefusedBeforeDrawing) {
    TestApp t;
    EXPECT_TRUE(PrintAt(t, "frmOneSixthCube", "9").empty());  // cornerY(7) about 33300
    ASSERT_EQ(t.faults().size(), 1u);
    EXPECT_EQ(t.count("Printer", "enddoc"), 0);
}
