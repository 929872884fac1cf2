// The Shapes menu of frmString2: each entry stores a fixed chain and draws
// it with the redraw sequence, over whatever stands on the canvas.

#include "stringart/string_shapes.h"

#include <iterator>

#include "stringart/frm_string2.h"

namespace gp {

namespace {
constexpr ShapePoint C{0, 0, true};
constexpr ShapePoint P(int x, int y) { return ShapePoint{x, y, false}; }

constexpr ShapePoint kCube[] = {
    P(6000, 500),  P(6000, 4250), P(3625, 6125), P(6000, 8000), P(8375, 6125), P(6000, 4250), P(6000, 500),
    P(8375, 2375), P(8375, 6125), P(6000, 4250), P(3625, 6125), P(3625, 2375), P(6000, 500),  P(6000, 4250),
    P(6000, 500),  P(3625, 2375), P(6000, 4250), P(8375, 2375), P(8375, 6125), P(6000, 8000), P(6000, 4250),
    P(8375, 2375), P(6000, 500),  P(3625, 2375), P(6000, 4250), P(6000, 8000), P(3625, 6125), P(3625, 2375),
    P(6000, 4250),
};

// An equilateral triangle of side 10000, walked past its start so that all
// three corners get strings.
constexpr ShapePoint kTriangle1[] = {
    P(1000, 100), P(11000, 100), P(6000, 8760), P(1000, 100), P(11000, 100),
};

// The same triangle with spokes to its centre (6000, 2987).
constexpr ShapePoint kTriangle2[] = {
    P(1000, 100), P(11000, 100), P(6000, 2987), P(11000, 100), P(6000, 8760), P(6000, 2987),
    P(6000, 8760), P(1000, 100), P(6000, 2987), P(1000, 100), P(11000, 100),
};

constexpr ShapePoint kTetraTail[] = {
    P(6000, 2987), P(1000, 100), P(6000, 2987), P(6000, 8760), P(6000, 2987),
    P(11000, 100), P(6000, 8760), P(1000, 100), P(11000, 100), P(6000, 8760),
};

// A regular octagon of side 3000, then spokes from each corner to C.
constexpr ShapePoint kOctagon1[] = {
    P(2621, 500), P(5621, 500), P(7742, 2621), P(7742, 5621), P(5621, 7742), P(2621, 7742),
    P(500, 5621), P(500, 2621), P(2621, 500),                                        // 1 to 9
    P(5621, 500), P(5621, 500),                                                      // 10-11
    C, P(7742, 2621), P(7742, 2621), C, P(7742, 5621), P(7742, 5621),                // 12 to 17
    C, P(5621, 7742), P(5621, 7742), C, P(2621, 7742), P(2621, 7742),                // 18 to 23
    C, P(500, 5621), P(500, 5621), C, P(500, 2621), P(500, 2621),                    // 24 to 29
    C, P(2621, 500), P(2621, 500), C, P(5621, 500), P(5621, 500),                    // 30 to 35
};

// The octagon's first eleven points and the first three of Octagon2 after it.
#define OCTAGON_RING                                                                              \
    P(2621, 500), P(5621, 500), P(7742, 2621), P(7742, 5621), P(5621, 7742), P(2621, 7742),      \
        P(500, 5621), P(500, 2621), P(2621, 500), P(5621, 500), P(5621, 500), P(2621, 500),      \
        P(2621, 500)

// The same octagon with a smaller one turned within it.
constexpr ShapePoint kOctagon2[] = {
    OCTAGON_RING,                                                                        // 1 to 13
    P(2820, 1035), P(2820, 1035),                                                        // 14-15
    P(5370, 1035), P(7200, 2820), P(7200, 5370), P(5370, 7200), P(2820, 7200), P(1035, 5370),
    P(1035, 2820), P(2820, 1035), P(5370, 1035),                                         // 16 to 24
};

// Five nested octagons, each turned against the one outside it, and spokes
// from the innermost to C near the middle.
constexpr ShapePoint kOctagon3[] = {
    OCTAGON_RING,                                                                        // 1 to 13
    P(4120, 660), P(4120, 660),                                                          // 14-15
    P(6570, 1670), P(7580, 4120), P(6570, 6570), P(4120, 7580), P(1670, 6570), P(660, 4120),
    P(1670, 1670), P(4120, 660),                                                         // 16 to 23
    P(6570, 1670), P(6570, 1670), P(4120, 660), P(4120, 660),                            // 24 to 27
    P(2955, 1290), P(2955, 1290),                                                        // 28-29
    P(5265, 1290), P(6960, 2955), P(6960, 5265), P(5265, 6960), P(2955, 6960), P(1290, 5265),
    P(1290, 2955), P(2955, 1290),                                                        // 30 to 37
    P(5265, 1290), P(5265, 1290), P(2955, 1290), P(2955, 1290),                          // 38 to 41
    P(4120, 1425), P(4120, 1425),                                                        // 42-43
    P(6030, 2205), P(6815, 4120), P(6030, 6030), P(4120, 6815), P(2205, 6030), P(1425, 4120),
    P(2205, 2205), P(4120, 1425),                                                        // 44 to 51
    P(6030, 2205), P(6030, 2205), P(4120, 1425), P(4120, 1425),                          // 52 to 55
    P(3210, 1905), P(3210, 1905),                                                        // 56-57
    P(5025, 1905), P(6315, 3210), P(6315, 5025), P(5025, 6315), P(3210, 6315), P(1905, 5025),
    P(1905, 3210), P(3210, 1905),                                                        // 58 to 65
    P(5025, 1905), P(5025, 1905), P(3210, 1905), P(3210, 1905),                          // 66 to 69
    C, P(5025, 1905), P(5025, 1905), C, P(6315, 3210), P(6315, 3210),                    // 70 to 75
    C, P(6315, 5025), P(6315, 5025), C, P(5025, 6315), P(5025, 6315),                    // 76 to 81
    C, P(3210, 6315), P(3210, 6315), C, P(1905, 5025), P(1905, 5025),                    // 82 to 87
    C, P(1905, 3210), P(1905, 3210), C, P(3210, 1905), P(3210, 1905),                    // 88 to 93
    C, P(5025, 1905), P(5025, 1905), C, P(3210, 1905), P(3210, 1905),                    // 94 to 99
};
#undef OCTAGON_RING

template <size_t N>
constexpr ShapeTable table(const ShapePoint (&points)[N]) {
    return ShapeTable{points, static_cast<int>(N)};
}
} // namespace

ShapeTable CubeShape() { return table(kCube); }
ShapeTable Triangle1Shape() { return table(kTriangle1); }
ShapeTable Triangle2Shape() { return table(kTriangle2); }
ShapeTable TetrahedronTail() { return table(kTetraTail); }
ShapeTable Octagon1Shape() { return table(kOctagon1); }
ShapeTable Octagon2Shape() { return table(kOctagon2); }
ShapeTable Octagon3Shape() { return table(kOctagon3); }

// Stores a whole table from point 1 on, C standing for the random point.
void FrmString2::StoreShape(const ShapePoint* points, int count, Integer cx, Integer cy) {
    for (int i = 0; i < count; ++i) {
        PX(i + 1) = points[i].random ? cx : Integer(points[i].x);
        PY(i + 1) = points[i].random ? cy : Integer(points[i].y);
    }
    NextPoint = 3;
    LastPoint = count;
}

// A preset: refused before any point changes when its strings would be too
// many; the random point C is drawn only after that test, within
// [lo, lo + span) on both axes.
void FrmString2::LoadShape(const ShapeTable& t, Double lo, Double span) {
    CheckFigure(t.count, 1);
    Integer cx = 0, cy = 0;
    if (span > 0) {
        cx = CInt(Int(Rnd() * span) + lo);
        cy = CInt(Int(Rnd() * span) + lo);
    }
    StoreShape(t.points, t.count, cx, cy);
    Redraw();
}

void FrmString2::mnuCube_Click() { LoadShape(CubeShape()); }
void FrmString2::mnuTriangle1_Click() { LoadShape(Triangle1Shape()); }
void FrmString2::mnuTriangle2_Click() { LoadShape(Triangle2Shape()); }
void FrmString2::mnuOcta1_Click() { LoadShape(Octagon1Shape(), 2000, 4000); }
void FrmString2::mnuOcta2_Click() { LoadShape(Octagon2Shape()); }
void FrmString2::mnuOcta3_Click() { LoadShape(Octagon3Shape(), 3600, 1000); }

// Triangle2 drawn whole, then its chain goes on through points 12 to 21;
// the corner at point 11 is drawn a second time.
void FrmString2::Tetrahedron(Integer last) {
    CheckFigure(21, 1);
    mnuTriangle2_Click();
    LastPoint = last;
    const ShapeTable tail = TetrahedronTail();
    for (int i = 0; i < tail.count; ++i) {
        PX(12 + i) = tail.points[i].x;
        PY(12 + i) = tail.points[i].y;
    }
    const Integer end = LastPoint;
    for (NextPoint = 11; NextPoint <= end; ++NextPoint) ConnectEm();
}

void FrmString2::mnuTetra1_Click() { Tetrahedron(17); }

void FrmString2::mnutetra2_Click() { Tetrahedron(21); }

} // namespace gp
