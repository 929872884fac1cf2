// Every script example of the README's "Making sheets with a script" runs
// as written: exit 0, no warning, and one file in each sheet folder for
// every sheet the trace ends.
#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "support/run_program.h"

using gp::test::capture;
namespace fs = std::filesystem;

namespace {
struct Example {
    std::string file, script, command;
};

std::vector<Example> examples() {
    std::ifstream in(GRIDPAGES_README);
    std::vector<Example> out;
    const std::regex start(R"(^    cat > (\S+) <<'END'$)");
    std::string line;
    while (std::getline(in, line)) {
        std::smatch m;
        if (!std::regex_match(line, m, start)) continue;
        Example e{m[1], "", ""};
        while (std::getline(in, line) && line != "    END") e.script += line.substr(4) + "\n";
        std::getline(in, line);
        e.command = line.substr(4);
        out.push_back(e);
    }
    return out;
}

size_t count(const std::string& text, const std::string& needle) {
    size_t n = 0;
    for (size_t at = text.find(needle); at != std::string::npos; at = text.find(needle, at + 1)) ++n;
    return n;
}
} // namespace

TEST(ReadmeExamples, EachRunsAsWrittenAndSavesEverySheet) {
    const std::vector<Example> all = examples();
    ASSERT_GE(all.size(), 6u);
    for (const Example& e : all) {
        char tmpl[] = "/tmp/gridpages-readme-XXXXXX";
        const std::string dir = mkdtemp(tmpl);
        std::ofstream(dir + "/" + e.file) << e.script;
        std::string command = std::regex_replace(e.command, std::regex("^build/gridpages"), GRIDPAGES_BIN);
        if (command.find("--trace") == std::string::npos) command += " --trace check.jsonl";
        const std::string out = capture("cd '" + dir + "' && " + command + " 2>&1; echo status=$?");
        EXPECT_NE(out.find("status=0"), std::string::npos) << e.file << ": " << out;
        EXPECT_EQ(out.find("warning"), std::string::npos) << e.file << ": " << out;
        std::ifstream t(dir + "/" + (e.command.find("--trace") == std::string::npos ? "check.jsonl" : "frames.jsonl"));
        std::stringstream trace;
        trace << t.rdbuf();
        const size_t sheets = count(trace.str(), R"("op":"enddoc")");
        for (const char* folder : {"sheets", "cutter"}) {
            if (e.command.find(std::string(" ") + folder) == std::string::npos) continue;
            const auto files = std::distance(fs::directory_iterator(dir + "/" + folder), fs::directory_iterator{});
            EXPECT_EQ(static_cast<size_t>(files), sheets) << e.file << " " << folder;
            EXPECT_GT(sheets, 0u) << e.file;
        }
        EXPECT_GT(trace.str().size(), 0u) << e.file;
        fs::remove_all(dir);
    }
}
