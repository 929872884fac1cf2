#pragma once
// The built-in point tables of frmExplodeIt: the runner that the form opens
// with, and the three shapes of its Samples menu. Each is one pen stroke in
// table order, in graph units with Y up.

#include <vector>

#include "shell/numbers.h"

namespace gp {

struct GraphPoint {
    Single x;
    Single y;
};

using SampleShape = std::vector<GraphPoint>;

const SampleShape& RunnerShape();     // 24 points, an open line
const SampleShape& SquaresShape();    // 25 points, five nested closed squares
const SampleShape& TrianglesShape();  // 17 points, four closed triangles

} // namespace gp
