#pragma once
// A bare surface with a recorder, for the rhombic dodecahedron and great
// dodecagon figures with no form around them.

#include <utility>
#include <vector>

#include "support/test_app.h"

namespace gp::test {

using Tiles = std::vector<std::pair<float, float>>;

struct Sheet {
    std::vector<Op> ops;
    Recorder rec{"S", ops};
    DrawingSurface s;
    Sheet(Single w, Single h) : s(DrawingSurface::Kind::Printer, "S", w, h) { s.attach(&rec); }
    std::vector<Stroke> lines() const {
        std::vector<Stroke> out;
        for (const Op& o : ops)
            if (o.op == "line") out.push_back(o.stroke);
        return out;
    }
};

// Where each copy starts: the start of its first stroke.
inline Tiles TilesOf(const std::vector<Stroke>& ls, size_t strokesPerCopy) {
    Tiles out;
    for (size_t i = 0; i < ls.size(); i += strokesPerCopy) out.push_back({ls[i].x1, ls[i].y1});
    return out;
}

} // namespace gp::test
