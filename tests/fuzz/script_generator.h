#pragma once
// Random scripts for the batch runner over every form of the program: any
// click order, any text in any box, any dialog answer, any number of ticks.

#include <random>
#include <string>
#include <vector>

namespace gp::fuzz {

struct ControlInfo {
    std::string name;   // with "(i)" for a member of a control array
    int kind;           // gp::ControlKind
};

struct FormInfo {
    std::string name;
    std::string menuButton;  // the menu's button that opens it
    std::vector<ControlInfo> controls;
    float canvasWidth = 0, canvasHeight = 0;
};

// Learns the forms and their controls by opening each page from the menu.
std::vector<FormInfo> discoverForms();

class ScriptGenerator {
public:
    ScriptGenerator(std::vector<FormInfo> forms, unsigned seed);
    // One script of about `length` commands.
    std::string next(int length);

private:
    std::string randomText();
    std::string randomAnswer();
    std::string number(double lo, double hi);
    template <typename T>
    const T& pick(const std::vector<T>& v) {
        return v[std::uniform_int_distribution<size_t>(0, v.size() - 1)(rng_)];
    }
    bool chance(double p) { return std::bernoulli_distribution(p)(rng_); }

    std::vector<FormInfo> forms_;
    std::mt19937 rng_;
};

} // namespace gp::fuzz
