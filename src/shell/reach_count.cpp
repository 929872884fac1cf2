#include "shell/reach_count.h"

#ifdef GRIDPAGES_REACH

#include <cstdio>
#include <cstdlib>
#include <map>
#include <tuple>

#include "shell/form.h"

namespace gp {

namespace {
using Key = std::tuple<std::string, std::string, Event>;

// Written out by a static's destructor, so a run that ends through exit()
// (an End in a handler, a refused script line) is counted too.
struct Counts {
    std::map<Key, long> counts;
    ~Counts() {
        const char* file = std::getenv("GRIDPAGES_REACH_FILE");
        if (!file || counts.empty()) return;
        if (FILE* out = std::fopen(file, "a")) {
            for (const auto& [key, n] : counts)
                std::fprintf(out, "%s %s %s %ld\n", std::get<0>(key).c_str(), std::get<1>(key).c_str(),
                             eventName(std::get<2>(key)), n);
            std::fclose(out);
        }
    }
};

Counts& counts() {
    static Counts c;
    return c;
}
} // namespace

void countReach(const std::string& form, const std::string& control, Event event) {
    ++counts().counts[Key{form, control, event}];
}

} // namespace gp

#endif
