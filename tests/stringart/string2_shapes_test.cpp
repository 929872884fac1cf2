// The Shapes menu: each preset's chain, the random point C, and the
// tetrahedra that go on from Triangle2.

#include "string2_fixture.h"

namespace gp::string2test {
namespace {

using Pts = std::vector<std::pair<int, int>>;

Pts pointsOf(const FrmString2& f, int from, int to) {
    Pts out;
    for (int i = from; i <= to; ++i) out.push_back({f.pointX(i), f.pointY(i)});
    return out;
}

TEST_F(String2Test, EachPresetDrawsItsWholeChain) {
    struct Case {
        const char* menu;
        int last;
        Pts ends;  // points 3 and last
    };
    const Case cases[] = {{"mnuCube", 29, {{3625, 6125}, {6000, 4250}}},
                          {"mnuTriangle1", 5, {{6000, 8760}, {11000, 100}}},
                          {"mnuTriangle2", 11, {{6000, 2987}, {11000, 100}}},
                          {"mnuOcta2", 24, {{7742, 2621}, {5370, 1035}}}};
    type("txtTics", "25");
    for (const Case& c : cases) {
        t.clear();
        press(c.menu);
        EXPECT_EQ(f->nextPoint(), c.last + 1) << c.menu;
        EXPECT_EQ(t.count("frmString2", "line"), 2 + (c.last - 2) * 25);
        EXPECT_EQ(t.count("frmString2", "cls"), 0);
        EXPECT_EQ((Pts{{f->pointX(3), f->pointY(3)}, {f->pointX(c.last), f->pointY(c.last)}}), c.ends);
    }
    // A bad tic count leaves the figure as it was.
    type("txtTics", "");
    t.clear();
    press("mnuTetra1");
    EXPECT_EQ(t.faults().size(), 1u);
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->lastPoint(), 24);
}

TEST_F(String2Test, OctagonsTakeAFreshRandomPointAtEachPress) {
    type("txtTics", "1");
    press("mnuOcta1");
    const Pts ring = pointsOf(*f, 1, 11);
    const std::pair<int, int> c{f->pointX(12), f->pointY(12)};
    EXPECT_TRUE(c.first >= 2000 && c.first <= 5999 && c.second >= 2000 && c.second <= 5999);
    for (int i = 12; i <= 33; i += 3) {
        EXPECT_EQ(pointsOf(*f, i, i)[0], c);
        EXPECT_EQ(pointsOf(*f, i + 1, i + 1), pointsOf(*f, i + 2, i + 2));
    }
    EXPECT_EQ(pointsOf(*f, 31, 35), (Pts{{2621, 500}, {2621, 500}, c, {5621, 500}, {5621, 500}}));
    press("mnuOcta1");
    EXPECT_EQ(pointsOf(*f, 1, 11), ring);
    EXPECT_NE(pointsOf(*f, 12, 12)[0], c);

    press("mnuOcta3");
    EXPECT_EQ(f->lastPoint(), 99);
    const std::pair<int, int> d{f->pointX(70), f->pointY(70)};
    EXPECT_TRUE(d.first >= 3600 && d.first <= 4599 && d.second >= 3600 && d.second <= 4599);
    EXPECT_EQ(pointsOf(*f, 94, 99), (Pts{d, {5025, 1905}, {5025, 1905}, d, {3210, 1905}, {3210, 1905}}));
    EXPECT_EQ(pointsOf(*f, 12, 16), (Pts{{2621, 500}, {2621, 500}, {4120, 660}, {4120, 660}, {6570, 1670}}));
    EXPECT_EQ(pointsOf(*f, 23, 29), (Pts{{4120, 660}, {6570, 1670}, {6570, 1670}, {4120, 660}, {4120, 660},
                                         {2955, 1290}, {2955, 1290}}));
    EXPECT_EQ(pointsOf(*f, 51, 58), (Pts{{4120, 1425}, {6030, 2205}, {6030, 2205}, {4120, 1425}, {4120, 1425},
                                         {3210, 1905}, {3210, 1905}, {5025, 1905}}));
}

TEST_F(String2Test, TetrahedraGoOnFromTriangle2) {
    type("txtTics", "4");
    press("mnuTetra1");
    // Triangle2 whole (2 + 9 corners), then corners 11 to 17, the corner at
    // 11 drawn a second time.
    const auto s = segs();
    ASSERT_EQ(s.size(), 2u + 9 * 4 + 7 * 4);
    for (size_t k = 0; k < 4; ++k) EXPECT_EQ(s[2 + 8 * 4 + k], s[2 + 9 * 4 + k]);
    EXPECT_EQ(f->nextPoint(), 18);
    EXPECT_EQ(pointsOf(*f, 12, 21), (Pts{{6000, 2987}, {1000, 100}, {6000, 2987}, {6000, 8760}, {6000, 2987},
                                         {11000, 100}, {6000, 8760}, {1000, 100}, {11000, 100}, {6000, 8760}}));
    click(5000, 5000);  // overwrites point 18
    EXPECT_EQ(pointsOf(*f, 18, 19), (Pts{{3440, 3985}, {1000, 100}}));
    t.clear();
    press("mnutetra2");
    EXPECT_EQ(t.count("frmString2", "line"), 2 + 9 * 4 + 11 * 4);
    EXPECT_EQ(f->nextPoint(), 22);
}

} // namespace
} // namespace gp::string2test
