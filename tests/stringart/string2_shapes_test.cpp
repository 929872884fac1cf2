// The Shapes menu: each preset's chain, its random point, and the
// tetrahedra that go on from Triangle2.

#include <set>

#include "string2_fixture.h"
#include "stringart/string_shapes.h"

namespace gp::string2test {
namespace {

std::vector<std::pair<int, int>> pointsOf(const FrmString2& f, int from, int to) {
    std::vector<std::pair<int, int>> out;
    for (int i = from; i <= to; ++i) out.push_back({f.pointX(i), f.pointY(i)});
    return out;
}

TEST_F(String2Test, EachPresetDrawsItsWholeChain) {
    struct Case {
        const char* menu;
        int last;
        std::pair<int, int> sample;  // point 3
        std::pair<int, int> end;     // the last point
    };
    const Case cases[] = {
        {"mnuCube", 29, {3625, 6125}, {6000, 4250}},    {"mnuTriangle1", 5, {6000, 8760}, {11000, 100}},
        {"mnuTriangle2", 11, {6000, 2987}, {11000, 100}}, {"mnuOcta2", 24, {7742, 2621}, {5370, 1035}},
    };
    type("txtTics", "25");
    for (const Case& c : cases) {
        SCOPED_TRACE(c.menu);
        t.clear();
        press(c.menu);
        EXPECT_EQ(f->lastPoint(), c.last);
        EXPECT_EQ(f->nextPoint(), c.last + 1);
        EXPECT_EQ(t.count("frmString2", "line"), 2 + (c.last - 2) * 25);
        EXPECT_EQ(t.count("frmString2", "cls"), 0);  // drawn over what stands there
        EXPECT_EQ(f->pointX(3), c.sample.first);
        EXPECT_EQ(f->pointY(3), c.sample.second);
        EXPECT_EQ(f->pointX(c.last), c.end.first);
        EXPECT_EQ(f->pointY(c.last), c.end.second);
    }
}

TEST(String2Shapes, TablesHaveTheirLengthsAndShareTheirRings) {
    EXPECT_EQ(CubeShape().count, 29);
    EXPECT_EQ(Triangle1Shape().count, 5);
    EXPECT_EQ(Triangle2Shape().count, 11);
    EXPECT_EQ(TetrahedronTail().count, 10);
    EXPECT_EQ(Octagon1Shape().count, 35);
    EXPECT_EQ(Octagon2Shape().count, 24);
    EXPECT_EQ(Octagon3Shape().count, 99);
    const ShapeTable o1 = Octagon1Shape(), o2 = Octagon2Shape(), o3 = Octagon3Shape();
    for (int i = 0; i < 11; ++i) EXPECT_EQ(o1.points[i].x * 100000 + o1.points[i].y, o2.points[i].x * 100000 + o2.points[i].y);
    for (int i = 0; i < 13; ++i) EXPECT_EQ(o2.points[i].x * 100000 + o2.points[i].y, o3.points[i].x * 100000 + o3.points[i].y);
    // The random point stands every third place from 12 (Octagon1) and from
    // 70 (Octagon3), nowhere else.
    std::set<int> c1, c3;
    for (int i = 0; i < o1.count; ++i)
        if (o1.points[i].random) c1.insert(i + 1);
    for (int i = 0; i < o3.count; ++i)
        if (o3.points[i].random) c3.insert(i + 1);
    EXPECT_EQ(c1, (std::set<int>{12, 15, 18, 21, 24, 27, 30, 33}));
    EXPECT_EQ(c3, (std::set<int>{70, 73, 76, 79, 82, 85, 88, 91, 94, 97}));
    for (const ShapeTable& t : {CubeShape(), Triangle1Shape(), Triangle2Shape(), TetrahedronTail(), o2})
        for (int i = 0; i < t.count; ++i) EXPECT_FALSE(t.points[i].random);
}

TEST_F(String2Test, OctagonsTakeAFreshRandomPointAtEachPress) {
    type("txtTics", "1");
    press("mnuOcta1");
    const auto ring = pointsOf(*f, 1, 11);
    const int cx = f->pointX(12), cy = f->pointY(12);
    EXPECT_GE(cx, 2000);
    EXPECT_LE(cx, 5999);
    EXPECT_GE(cy, 2000);
    EXPECT_LE(cy, 5999);
    for (int i = 15; i <= 33; i += 3) {
        EXPECT_EQ(f->pointX(i), cx);
        EXPECT_EQ(f->pointY(i), cy);
    }
    EXPECT_EQ(f->pointX(35), 5621);
    EXPECT_EQ(f->pointY(35), 500);
    press("mnuOcta1");
    EXPECT_EQ(pointsOf(*f, 1, 11), ring);
    EXPECT_NE(std::make_pair(f->pointX(12), f->pointY(12)), std::make_pair(cx, cy));

    press("mnuOcta3");
    EXPECT_EQ(f->lastPoint(), 99);
    const int dx = f->pointX(70), dy = f->pointY(70);
    EXPECT_GE(dx, 3600);
    EXPECT_LE(dx, 4599);
    EXPECT_GE(dy, 3600);
    EXPECT_LE(dy, 4599);
    EXPECT_EQ(f->pointX(97), dx);
    EXPECT_EQ(f->pointY(97), dy);
    EXPECT_EQ(pointsOf(*f, 98, 99), (std::vector<std::pair<int, int>>{{3210, 1905}, {3210, 1905}}));
    EXPECT_EQ(pointsOf(*f, 23, 29), (std::vector<std::pair<int, int>>{
                                        {4120, 660}, {6570, 1670}, {6570, 1670}, {4120, 660}, {4120, 660},
                                        {2955, 1290}, {2955, 1290}}));
    // Past 99 points typed points are ignored, clicks still go on.
    t.clear();
    setPos("100", "100");
    EXPECT_TRUE(t.ops().empty());
    click(5000, 5000);
    EXPECT_EQ(f->lastPoint(), 100);
}

TEST_F(String2Test, TetrahedraGoOnFromTriangle2) {
    type("txtTics", "4");
    press("mnuTetra1");
    // Triangle2 whole (2 + 9 corners), then the corners 11 to 17 with the
    // corner at 11 drawn again.
    const auto s = segs();
    ASSERT_EQ(s.size(), 2u + 9 * 4 + 7 * 4);
    for (size_t k = 0; k < 4; ++k) EXPECT_EQ(s[2 + 8 * 4 + k], s[2 + 9 * 4 + k]);
    EXPECT_EQ(f->lastPoint(), 17);
    EXPECT_EQ(f->nextPoint(), 18);
    // Points 18 to 21 stand beyond the figure; a click overwrites 18.
    EXPECT_EQ(pointsOf(*f, 12, 21), (std::vector<std::pair<int, int>>{
                                        {6000, 2987}, {1000, 100}, {6000, 2987}, {6000, 8760}, {6000, 2987},
                                        {11000, 100}, {6000, 8760}, {1000, 100}, {11000, 100}, {6000, 8760}}));
    click(5000, 5000);
    EXPECT_EQ(f->pointX(18), 3440);
    EXPECT_EQ(f->pointX(19), 1000);

    t.clear();
    press("mnutetra2");
    EXPECT_EQ(t.count("frmString2", "line"), 2 + 9 * 4 + 11 * 4);
    EXPECT_EQ(f->lastPoint(), 21);
    EXPECT_EQ(f->nextPoint(), 22);
}

TEST_F(String2Test, PresetsWithABadTicCountChangeNothing) {
    type("txtTics", "");
    for (const char* m : {"mnuCube", "mnuTetra1", "mnuOcta3"}) {
        t.clear();
        press(m);
        EXPECT_EQ(t.faults().size(), 1u);
        EXPECT_TRUE(t.ops().empty());
        EXPECT_EQ(f->lastPoint(), 14);
        EXPECT_EQ(f->pointX(3), 4125);
    }
}

} // namespace
} // namespace gp::string2test
