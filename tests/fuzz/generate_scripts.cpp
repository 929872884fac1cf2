// gridpages_fuzzgen SEED COUNT DIR [LENGTH]: writes COUNT random scripts to
// DIR/script-00001.txt ...
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

#include "fuzz/script_generator.h"

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: %s SEED COUNT DIR [LENGTH]\n", argv[0]);
        return 2;
    }
    const unsigned seed = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10));
    const int count = std::atoi(argv[2]);
    const std::string dir = argv[3];
    const int length = argc > 4 ? std::atoi(argv[4]) : 40;
    gp::fuzz::ScriptGenerator gen(gp::fuzz::discoverForms(), seed);
    for (int i = 1; i <= count; ++i) {
        char name[32];
        std::snprintf(name, sizeof name, "/script-%05d.txt", i);
        std::ofstream(dir + name, std::ios::binary) << gen.next(length);
    }
    return 0;
}
