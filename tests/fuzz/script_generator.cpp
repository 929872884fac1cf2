#include "fuzz/script_generator.h"

#include "shell/controls.h"
#include "support/test_app.h"

namespace gp::fuzz {

const std::vector<std::string> kPreparedFiles = {"points", "bigpoints", "fifo", "huge", "folder", "zero"};

std::vector<FormInfo> discoverForms() {
    std::vector<FormInfo> out;
    gp::test::TestApp t;
    Form& menu = t.app().start("frmGrids");
    for (const ControlDesign& b : menu.design().controls) {
        if (b.name == "cmdExit") continue;
        // A modal show returns at once here: whatever became visible is the
        // page behind the button.
        t.app().dispatch(menu, b.name, Event::Click);
        for (Form* f : t.app().loadedForms()) {
            if (f == &menu || !f->visible()) continue;
            FormInfo info;
            info.name = f->name();
            info.menuButton = b.name;
            info.canvasWidth = f->design().canvasWidth();
            info.canvasHeight = f->design().canvasHeight();
            for (const auto& c : f->controls())
                info.controls.push_back({c->displayName(), static_cast<int>(c->kind())});
            out.push_back(info);
            f->Hide();
        }
    }
    return out;
}

ScriptGenerator::ScriptGenerator(std::vector<FormInfo> forms, unsigned seed)
    : forms_(std::move(forms)), rng_(seed) {}

const FormInfo* ScriptGenerator::form(const std::string& name) const {
    for (const FormInfo& f : forms_)
        if (f.name == name) return &f;
    return nullptr;
}

const ControlInfo* ScriptGenerator::pickKind(const FormInfo& form, int kind) {
    std::vector<const ControlInfo*> of;
    for (const ControlInfo& c : form.controls)
        if (c.kind == kind) of.push_back(&c);
    return of.empty() ? nullptr : pick(of);
}

std::string ScriptGenerator::number(double lo, double hi) {
    std::ostringstream s;
    s << std::uniform_real_distribution<double>(lo, hi)(rng_);
    return s.str();
}

// Mostly on the canvas and around it; now and then a value that a Single
// holds but no page expects, so that the handlers' own arithmetic is tried.
std::string ScriptGenerator::coordinate(float extent) {
    static const std::vector<std::string> extreme = {
        "3.4028234e38", "-3.4028234e38", "1e30", "-1e30", "1e-45", "-0", "32767", "32768", "-32769",
        "65535.5", "2147483648", "-2147483649", "9.2233720e18", "1e10", "16777217"};
    if (chance(0.04)) return pick(extreme);
    return number(-100, extent + 100);
}

void ScriptGenerator::mouse(std::ostream& s, const char* command, const FormInfo& form, bool button) {
    s << command << " " << coordinate(form.canvasWidth) << " " << coordinate(form.canvasHeight);
    if (button) s << " " << pick(std::vector<int>{1, 1, 1, 2, 4, 0, 3, 7});
    s << "\n";
}

std::string ScriptGenerator::randomText() {
    static const std::vector<std::string> nasty = {
        "", " ", "0", "-0", "1", "-1", ".5", "2", "3", "4", "5", "10", "45", "60", "89", "90", "91",
        "170", "171", "9", "1.45", "1.5", "0.99", "1.01", "1", "0.001", "0.00001", "0.0001", "22.75",
        "40.96", "32767", "32768", "-32768", "-32769", "65535", "99999999999999999999", "1e308",
        "-1e308", "1e-308", "1e309", "abc", "1,5", "1.5in", "--1", "+1", "1e", ".", "-.", "NaN",
        "inf", " 2 5", "\t3", "½", "π", "日本語", "2.5", ".7", "0.05", "0.1", "100", "200", "199",
        std::string(300, '9'), std::string(2000, 'x'), "1" + std::string(40, '0'), "-5e4", "3.4e38",
        "4e38", "1e-45", "\xff\xfe", "-nan"};
    if (chance(0.6)) return pick(nasty);
    if (chance(0.5)) return number(-5, 5);
    return number(-40000, 40000);
}

// Sizes from the smallest a page can draw to far beyond the sheet.
std::string ScriptGenerator::sideText() {
    static const std::vector<std::string> sides = {
        "0.0001", "0.001", "0.01", ".05", ".1", ".25", ".5", ".7", "1", "1.5", "2", "3", "4", "5", "7.5",
        "10", "15", "22.75", "40", "100", "1000", "22.7", "32767", "1e10", "3.4e38", "-1", "-.5", "0"};
    return chance(0.8) ? pick(sides) : randomText();
}

std::string ScriptGenerator::randomAnswer() {
    // Only plain names for files: a run must not write anywhere but its
    // own folder.
    static const std::vector<std::string> answers = {
        "1", "2", "6", "7", "", "Shape1", "shape2", "500", "20", "0", "-5", "abc", "40000",
        "no_such_file", "missing/dir/file", "1e9", " 100 ", "1", "10", "100", "3.4e38"};
    return chance(0.15) ? fileAnswer() : pick(answers);
}

std::string ScriptGenerator::fileAnswer() {
    static const std::vector<std::string> more = {"Shape1", "s1", "s2", "/dev/zero", "/dev/null", "missing", ""};
    return chance(0.5) ? pick(kPreparedFiles) : pick(more);
}

// A line the runner must refuse: a number its command's type cannot hold.
std::string ScriptGenerator::badLine() {
    static const std::vector<std::string> bad = {
        "mousemove 4e38 100", "mousemove 100 -1e39", "mousedown inf 1 1", "mousemove nan nan",
        "mousedown 1 2 8",    "key 65536",           "key -1",            "tick 10000001",
        "tick -1",            "mousemove 1e400 0",   "printer 0 100",     "mousedown 1 1 99999999999"};
    return pick(bad) + "\n";
}

bool ScriptGenerator::step(std::ostream& s, const FormInfo& f, bool mayLeave) {
    const ControlInfo& c = pick(f.controls);
    const auto kind = static_cast<ControlKind>(c.kind);
    const int roll = upTo(0, 99);
    if (roll < 8) {
        s << "answer " << randomAnswer() << "\n";
    } else if (roll < 11) {
        s << "tick " << upTo(1, 40) << "\n";
    } else if (roll < 16) {
        mouse(s, "mousedown", f, true);
    } else if (roll < 18) {
        mouse(s, "mousemove", f, false);
    } else if (roll < 19) {
        if (f.name == "frmExplodeIt" && !mayLeave) return true;
        s << "key " << upTo(0, 255) << "\n";
        if (f.name == "frmExplodeIt") return false;  // any key unloads it
    } else if (roll < 21) {
        if (!mayLeave) return true;
        s << "close\n";
        return false;
    } else if (roll < 23) {
        s << "seed " << upTo(0, 1000) << "\n";
    } else {
        const bool leaves = c.name == "cmdExit" || c.name == "mnuExit" || c.name.rfind("mnuEnd", 0) == 0;
        if (leaves && !mayLeave) return true;
        switch (kind) {
        case ControlKind::TextBox:
            if (chance(0.15)) s << "blur " << c.name << "\n";
            else s << (chance(0.5) ? "type " : "text ") << c.name << " " << (mayLeave ? randomText() : sideText())
                   << "\n";
            break;
        case ControlKind::Button: s << "click " << c.name << "\n"; break;
        case ControlKind::Label:
            if (chance(0.5)) s << "click " << c.name << "\n";
            else s << "mousedown " << c.name << " " << number(0, 500) << " " << number(0, 300) << " "
                   << pick(std::vector<int>{1, 2, 4}) << "\n";
            break;
        case ControlKind::CheckBox: s << "check " << c.name << " " << (chance(0.5) ? 1 : 0) << "\n"; break;
        case ControlKind::Option: s << "option " << c.name << "\n"; break;
        case ControlKind::Menu: s << "menu " << c.name << "\n"; break;
        case ControlKind::Timer:
        case ControlKind::Frame: s << "value " << c.name << "\n"; break;
        default: s << "tick\n"; break;
        }
        if (leaves) return false;
    }
    return true;
}

void ScriptGenerator::wander(std::ostream& s, int length) {
    const FormInfo* current = nullptr;
    for (int i = 0; i < length; ++i) {
        if (!current) {
            if (chance(0.3)) s << "answer " << randomAnswer() << "\n";
            current = &pick(forms_);
            s << "click " << current->menuButton << "\n";
            continue;
        }
        if (!step(s, *current, true)) current = nullptr;
    }
}

std::string ScriptGenerator::next(int length) {
    length_ = length;
    std::ostringstream s;
    if (chance(0.3)) s << "printer " << pick(std::vector<std::string>{"11520 15120", "15120 11520", "2000 3000",
                                                                          "100 100", "30000 30000", "1 1"})
                      << "\n";
    if (chance(0.25)) {
        wander(s, length);
    } else {
        // Explode It and String Art 2 hold the most state: each gets a
        // third of the deep scripts, every other page shares the rest.
        const int roll = upTo(0, 2);
        const FormInfo* f = roll == 0 ? form("frmExplodeIt") : roll == 1 ? form("frmString2") : nullptr;
        if (!f) f = &pick(forms_);
        s << "click " << f->menuButton << "\n";
        const int steps = length * upTo(2, 6);
        if (f->name == "frmExplodeIt") explodeIt(s, *f, steps);
        else if (f->name == "frmString2") stringArt2(s, *f, steps);
        else focused(s, *f, steps);
        if (chance(0.2)) {
            s << "close\n";  // back to the menu, then across the others
            wander(s, length / 4);
        }
    }
    if (chance(0.03)) s << badLine();
    return s.str();
}

} // namespace gp::fuzz
