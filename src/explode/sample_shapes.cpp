#include "explode/sample_shapes.h"

namespace gp {

// The values are decimal constants held as Singles (-2.3f, not -2.3): the
// tenths text of the boxes depends on the Single lying just below -1.2.

const SampleShape& RunnerShape() {
    static const SampleShape runner = {
        {-2.3f, 2.0f},  {-1.2f, 1.1f}, {-1.0f, 2.3f}, {-0.2f, 1.2f}, {-1.4f, 0.1f}, {-0.2f, 1.3f},
        {-1.0f, 2.3f},  {-1.0f, 4.1f}, {-1.9f, 3.3f}, {-1.5f, 2.8f}, {-1.9f, 3.4f}, {-1.0f, 4.1f},
        {-0.1f, 3.1f},  {0.7f, 3.8f},  {0.0f, 3.1f},  {-1.0f, 4.1f}, {-1.0f, 4.6f}, {-0.3f, 4.7f},
        {-0.2f, 5.8f},  {-1.2f, 6.0f}, {-1.6f, 5.9f}, {-1.4f, 5.7f}, {-1.8f, 5.3f}, {-1.1f, 4.8f},
    };
    return runner;
}

const SampleShape& SquaresShape() {
    // Each square has its corners on the middles of the sides of the one
    // before and closes by repeating its first point.
    static const SampleShape squares = {
        {-4, 0}, {0, 4},   {4, 0},   {0, -4},  {-4, 0},
        {-2, 2}, {2, 2},   {2, -2},  {-2, -2}, {-2, 2},
        {0, 2},  {2, 0},   {0, -2},  {-2, 0},  {0, 2},
        {1, 1},  {1, -1},  {-1, -1}, {-1, 1},  {1, 1},
        {1, 0},  {0, -1},  {-1, 0},  {0, 1},   {1, 0},
    };
    return squares;
}

const SampleShape& TrianglesShape() {
    // The last side of the largest triangle is gone over twice: the table
    // ends on (-4, 3) again.
    static const SampleShape triangles = {
        {0, 1},   {0.5f, 0}, {-0.5f, 0}, {0, 1},
        {1, 1},   {0, -1},   {-1, 1},    {1, 1},
        {2, -1},  {-2, -1},  {0, 3},     {2, -1},
        {0, -5},  {-4, 3},   {4, 3},     {0, -5}, {-4, 3},
    };
    return triangles;
}

} // namespace gp
