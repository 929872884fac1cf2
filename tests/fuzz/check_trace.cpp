// gridpages_tracecheck FILE...: every line of each trace must be one JSON
// object. Prints FILE:LINE: what is wrong for each bad line (the first few
// of a file) and exits 1 if there was one.
#include <cstdio>
#include <fstream>
#include <string>

#include "fuzz/json_line.h"

int main(int argc, char** argv) {
    int badFiles = 0;
    for (int i = 1; i < argc; ++i) {
        std::ifstream in(argv[i], std::ios::binary);
        if (!in) {
            std::printf("%s: cannot be read\n", argv[i]);
            ++badFiles;
            continue;
        }
        std::string line;
        int number = 0, bad = 0;
        while (std::getline(in, line)) {
            ++number;
            const std::string why = gp::fuzz::checkJsonLine(line);
            if (why.empty()) continue;
            if (++bad <= 3) std::printf("%s:%d: %s: %.120s\n", argv[i], number, why.c_str(), line.c_str());
        }
        if (in.bad()) std::printf("%s: a read failed\n", argv[i]), ++bad;
        badFiles += bad > 0;
    }
    return badFiles ? 1 : 0;
}
