#pragma once
// The preset chains of the Shapes menu of frmString2, in plot coordinates.
// A point repeated at two indices gives a corner whose newer segment has
// no length, so the chain moves on without a fan of strings there.

namespace gp {

struct ShapePoint {
    int x, y;
    bool random;  // the table's random point C, picked at each press
};

struct ShapeTable {
    const ShapePoint* points;
    int count;
};

ShapeTable CubeShape();
ShapeTable Triangle1Shape();
ShapeTable Triangle2Shape();
// Points 12 to 21 that continue Triangle2 into a tetrahedron.
ShapeTable TetrahedronTail();
ShapeTable Octagon1Shape();
ShapeTable Octagon2Shape();
ShapeTable Octagon3Shape();

} // namespace gp
