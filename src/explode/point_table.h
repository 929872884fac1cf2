#pragma once
// The point table of frmExplodeIt: PtX and PtY of points 1 to 200, in graph
// units, numbered from 1 as the form's boxes number them (entry 0 is never
// used). A plain value: a handler that may fail keeps the whole table by
// assignment and puts it back the same way.

#include <array>

#include "explode/sample_shapes.h"

namespace gp {

struct PointTable {
    static constexpr int kLastPoint = 200;

    std::array<Single, kLastPoint + 1> PtX{}, PtY{};

    // The shape's points become points 1, 2 ...; the entries after them keep
    // what they held.
    void load(const SampleShape& shape) {
        for (size_t j = 0; j < shape.size(); ++j) {
            PtX[j + 1] = shape[j].x;
            PtY[j + 1] = shape[j].y;
        }
    }

    // Points 1 to `count` of `from`, the others left as they are. Begin keeps,
    // and Quit or the end of a cycle brings back, only the points the table
    // holds at that moment: the count may have changed in between (a sample
    // loaded during a run), and the entries past it are not part of the shape.
    void takePoints(const PointTable& from, int count) {
        for (int i = 1; i <= count; ++i) {
            PtX[i] = from.PtX[i];
            PtY[i] = from.PtY[i];
        }
    }
};

} // namespace gp
