#include "explode/graph_points.h"

namespace gp {

std::string TenthsText(Double v) { return Str(CSng(Int(v * 10) / 10)); }

} // namespace gp
