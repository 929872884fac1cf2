#include "fuzz/script_generator.h"

#include <sstream>

#include "support/test_app.h"

namespace gp::fuzz {

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

std::string ScriptGenerator::number(double lo, double hi) {
    std::ostringstream s;
    s << std::uniform_real_distribution<double>(lo, hi)(rng_);
    return s.str();
}

std::string ScriptGenerator::randomText() {
    static const std::vector<std::string> nasty = {
        "", " ", "0", "-0", "1", "-1", ".5", "2", "3", "4", "5", "10", "45", "60", "89", "90", "91",
        "170", "171", "9", "1.45", "1.5", "0.99", "1.01", "1", "0.001", "0.00001", "0.0001", "22.75",
        "40.96", "32767", "32768", "-32768", "-32769", "65535", "99999999999999999999", "1e308",
        "-1e308", "1e-308", "1e309", "abc", "1,5", "1.5in", "--1", "+1", "1e", ".", "-.", "NaN",
        "inf", " 2 5", "\t3", "½", "π", "日本語", "2.5", ".7", "0.05", "0.1", "100", "200", "199",
        std::string(300, '9'), std::string(2000, 'x'), "1" + std::string(40, '0'), "-5e4"};
    if (chance(0.6)) return pick(nasty);
    if (chance(0.5)) return number(-5, 5);
    return number(-40000, 40000);
}

std::string ScriptGenerator::randomAnswer() {
    // Only plain names for files: a run must not write anywhere but its
    // own folder.
    static const std::vector<std::string> answers = {
        "1", "2", "6", "7", "", "Shape1", "shape2", "500", "20", "0", "-5", "abc", "40000",
        "no_such_file", "missing/dir/file", "1e9", " 100 "};
    return pick(answers);
}

std::string ScriptGenerator::next(int length) {
    std::ostringstream s;
    if (chance(0.3)) s << "printer " << pick(std::vector<std::string>{"11520 15120", "15120 11520", "2000 3000",
                                                                          "100 100", "30000 30000", "1 1"})
                      << "\n";
    const FormInfo* current = nullptr;
    for (int i = 0; i < length; ++i) {
        if (!current) {
            if (chance(0.3)) s << "answer " << randomAnswer() << "\n";
            current = &pick(forms_);
            s << "click " << current->menuButton << "\n";
            continue;
        }
        const ControlInfo& c = pick(current->controls);
        const auto kind = static_cast<ControlKind>(c.kind);
        const int roll = std::uniform_int_distribution<int>(0, 99)(rng_);
        if (roll < 8) {
            s << "answer " << randomAnswer() << "\n";
        } else if (roll < 11) {
            s << "tick " << std::uniform_int_distribution<int>(1, 40)(rng_) << "\n";
        } else if (roll < 16) {
            s << "mousedown " << number(-100, current->canvasWidth + 100) << " "
              << number(-100, current->canvasHeight + 100) << " " << pick(std::vector<int>{1, 2, 4, 0}) << "\n";
        } else if (roll < 18) {
            s << "mousemove " << number(-100, current->canvasWidth + 100) << " "
              << number(-100, current->canvasHeight + 100) << "\n";
        } else if (roll < 19) {
            s << "key " << std::uniform_int_distribution<int>(0, 255)(rng_) << "\n";
            if (current->name == "frmExplodeIt") current = nullptr;  // any key unloads it
        } else if (roll < 21) {
            s << "close\n";
            current = nullptr;
        } else if (roll < 23) {
            s << "seed " << std::uniform_int_distribution<int>(0, 1000)(rng_) << "\n";
        } else {
            switch (kind) {
            case ControlKind::TextBox:
                if (chance(0.15)) s << "blur " << c.name << "\n";
                else s << (chance(0.5) ? "type " : "text ") << c.name << " " << randomText() << "\n";
                break;
            case ControlKind::Button:
                s << "click " << c.name << "\n";
                if (c.name == "cmdExit") current = nullptr;
                break;
            case ControlKind::Label:
                if (chance(0.5)) s << "click " << c.name << "\n";
                else s << "mousedown " << c.name << " " << number(0, 500) << " " << number(0, 300) << " "
                       << pick(std::vector<int>{1, 2, 4}) << "\n";
                break;
            case ControlKind::CheckBox: s << "check " << c.name << " " << (chance(0.5) ? 1 : 0) << "\n"; break;
            case ControlKind::Option: s << "option " << c.name << "\n"; break;
            case ControlKind::Menu:
                if (c.name.rfind("mnuEnd", 0) == 0 || c.name == "mnuExit") {
                    s << "menu " << c.name << "\n";
                    current = nullptr;
                } else {
                    s << "menu " << c.name << "\n";
                }
                break;
            case ControlKind::Timer:
            case ControlKind::Frame: s << "value " << c.name << "\n"; break;
            default: s << "tick\n"; break;
            }
        }
    }
    return s.str();
}

} // namespace gp::fuzz
