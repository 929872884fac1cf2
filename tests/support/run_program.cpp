#include "support/run_program.h"

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace gp::test {

namespace {
std::string quote(const std::string& s) {
    std::string out = "'";
    for (char c : s) {
        if (c == '\'') out += "'\\''";
        else out += c;
    }
    return out + "'";
}

std::string readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}
} // namespace

std::string capture(const std::string& command) {
    std::string out;
    FILE* p = popen(command.c_str(), "r");
    if (!p) return out;
    std::array<char, 4096> buf;
    size_t n;
    while ((n = fread(buf.data(), 1, buf.size(), p)) > 0) out.append(buf.data(), n);
    pclose(p);
    return out;
}

RunResult runProgram(const std::string& program, const std::string& script,
                     const std::vector<std::string>& args) {
    RunResult r;
    char tmpl[] = "/tmp/gridpages-e2e-XXXXXX";
    if (!mkdtemp(tmpl)) throw std::runtime_error("no temporary folder");
    r.dir = tmpl;
    {
        std::ofstream(r.dir + "/script.txt", std::ios::binary) << script;
    }
    std::string cmd = quote(program) + " --script " + quote(r.dir + "/script.txt") + " --trace " +
                      quote(r.dir + "/trace.jsonl");
    for (std::string a : args) {
        const size_t at = a.find("{dir}");
        if (at != std::string::npos) a.replace(at, 5, r.dir);
        cmd += " " + quote(a);
    }
    cmd += " 2> " + quote(r.dir + "/errors.txt");
    const int raw = std::system(cmd.c_str());
    r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
    r.errors = readFile(r.dir + "/errors.txt");
    std::istringstream lines(readFile(r.dir + "/trace.jsonl"));
    for (std::string l; std::getline(lines, l);) r.trace.push_back(l);
    return r;
}

} // namespace gp::test
