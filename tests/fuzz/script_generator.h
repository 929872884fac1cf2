#pragma once
// Random scripts for the batch runner over every form of the program: any
// click order, any text in any box, any dialog answer, any number of ticks.
// Most scripts open one form and work in it for many steps, so that deep
// states are reached: Explode It run and ticked hundreds of times in each
// mode, String Art 2 with dozens of points, saves and opens, every page at
// extreme sizes; the rest wander across forms.

#include <random>
#include <sstream>
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

// The files that the harness puts in each run's folder, named so that Open
// and Save answers can reach them: a good file of points, one of 200
// points, a FIFO, a huge sparse file, a folder, a link to /dev/zero.
extern const std::vector<std::string> kPreparedFiles;

class ScriptGenerator {
public:
    ScriptGenerator(std::vector<FormInfo> forms, unsigned seed);
    // One script of about `length` commands (a deep one runs longer).
    std::string next(int length);

private:
    void wander(std::ostream& s, int length);
    // One command on `form`; false where it left the form.
    bool step(std::ostream& s, const FormInfo& form, bool mayLeave);
    void explodeIt(std::ostream& s, const FormInfo& form, int steps);
    void stringArt2(std::ostream& s, const FormInfo& form, int steps);
    void focused(std::ostream& s, const FormInfo& form, int steps);
    void mouse(std::ostream& s, const char* command, const FormInfo& form, bool button);
    std::string coordinate(float extent);
    std::string randomText();
    std::string sideText();
    std::string randomAnswer();
    std::string fileAnswer();
    std::string number(double lo, double hi);
    std::string badLine();
    const FormInfo* form(const std::string& name) const;
    const ControlInfo* pickKind(const FormInfo& form, int kind);
    int upTo(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng_); }
    template <typename T>
    const T& pick(const std::vector<T>& v) {
        return v[std::uniform_int_distribution<size_t>(0, v.size() - 1)(rng_)];
    }
    bool chance(double p) { return std::bernoulli_distribution(p)(rng_); }

    std::vector<FormInfo> forms_;
    std::mt19937 rng_;
    int length_ = 40;  // of the script being made
};

} // namespace gp::fuzz
