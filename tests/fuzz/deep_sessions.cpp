// The deep scripts: one form worked for many steps, as a user who stays on
// a page does, with the values and files that reach its far corners.
#include "fuzz/script_generator.h"

#include <algorithm>

#include "shell/controls.h"

namespace gp::fuzz {

namespace {
// Explode It's modes and the boxes that steer each.
const std::vector<std::string> kModes = {"optScalar", "optRight", "optUp", "optMultiplier"};
const std::vector<std::string> kSamples = {"mnuRunner", "mnuSquares", "mnuTriangles"};
const std::vector<std::string> kShapes = {"mnuCube",  "mnuTriangle1", "mnuTriangle2", "mnuTetra1",
                                          "mnutetra2", "mnuOcta1",    "mnuOcta2",     "mnuOcta3"};
} // namespace

void ScriptGenerator::explodeIt(std::ostream& s, const FormInfo& f, int steps) {
    for (int done = 0; done < steps;) {
        // A table: a sample, points clicked on the graph, or typed ones.
        const int table = upTo(0, 2);
        if (table == 0) {
            s << "menu " << pick(kSamples) << "\n";
        } else if (table == 1) {
            s << "click cmdClear\n";
            for (int n = upTo(3, 60); n > 0; --n, ++done)
                s << "mousedown " << number(1, 12199) << " " << number(1541, 9299) << " 1\n";
        } else {
            for (int n = upTo(1, 11); n > 0; --n, ++done) {
                const int i = upTo(0, 10);
                s << "text txtX(" << i << ") " << (chance(0.8) ? number(-12, 12) : randomText()) << "\n";
                s << "text txtY(" << i << ") " << (chance(0.8) ? number(-8, 8) : randomText()) << "\n";
            }
        }
        const std::string& mode = pick(kModes);
        s << "option " << mode << "\n";
        const bool wild = chance(0.2);
        s << "text txtStart " << (wild ? randomText() : number(-3, 3)) << "\n";
        s << "text txtEnd " << (wild ? randomText() : number(-5, 10)) << "\n";
        s << "text txtSteps " << (wild ? randomText() : std::to_string(upTo(1, 300))) << "\n";
        if (mode == "optMultiplier")
            for (const char* r : {"txtr11", "txtr12", "txtr21", "txtr22"})
                s << "text " << r << " " << (wild ? randomText() : number(-2, 2)) << "\n";
        if (chance(0.5)) s << "click cmdPlotPoints\n";
        // The interval's question, where Begin asks it.
        if (chance(0.5)) s << "answer " << pick(std::vector<std::string>{"1", "10", "0", "-5", "abc", "", "1e9"}) << "\n";
        s << "click cmdBegin\n";
        for (int n = upTo(1, 4); n > 0; --n) {
            // Hundreds of frames in a long run; fewer for short scripts.
            const int most = std::max(40, length_ * 10);
            const int ticks = upTo(most / 20, most);
            s << "tick " << ticks << "\n";
            done += ticks / 10;
            if (chance(0.2)) mouse(s, "mousedown", f, true);
            if (chance(0.1)) s << "value lblx\n";
        }
        if (chance(0.6)) s << "click cmdQuit\n";
        if (chance(0.1)) {
            s << "click cmdExit\nclick " << f.menuButton << "\n";  // hidden and shown again mid-run
        }
        done += 10;
        if (chance(0.15)) step(s, f, false);
    }
    if (chance(0.3)) s << "key " << upTo(0, 65535) << "\n";
}

void ScriptGenerator::stringArt2(std::ostream& s, const FormInfo& f, int steps) {
    for (int done = 0; done < steps;) {
        const int roll = upTo(0, 99);
        if (roll < 35) {
            // A chain of points, now and then one far off the canvas.
            for (int n = upTo(3, 40); n > 0; --n, ++done) {
                if (chance(0.1)) mouse(s, "mousemove", f, false);
                if (chance(0.05)) mouse(s, "mousedown", f, true);
                else s << "mousedown " << number(0, f.canvasWidth) << " " << number(0, f.canvasHeight) << " "
                       << (chance(0.9) ? 1 : 2) << "\n";
            }
        } else if (roll < 45) {
            s << "menu " << pick(kShapes) << "\n";
        } else if (roll < 55) {
            s << "click cmdCycle\n";
        } else if (roll < 63) {
            s << "text txtTics " << (chance(0.7) ? std::to_string(upTo(0, 200)) : randomText()) << "\n";
        } else if (roll < 68) {
            s << "check chkColorIt " << upTo(0, 1) << "\n";
        } else if (roll < 73) {
            s << "text txtX " << (chance(0.7) ? number(0, f.canvasWidth) : randomText()) << "\n"
              << "text txtY " << (chance(0.7) ? number(0, f.canvasHeight) : randomText()) << "\n"
              << "click lblSetPos\n";
        } else if (roll < 80) {
            s << "answer " << fileAnswer() << "\nmenu mnuSave\n";
        } else if (roll < 87) {
            // Open asks before it replaces more than three points.
            if (chance(0.8)) s << "answer " << (chance(0.85) ? "6" : "7") << "\n";
            s << "answer " << fileAnswer() << "\nmenu mnuOpen\n";
        } else if (roll < 91) {
            s << "click Command1\n";
        } else if (roll < 95) {
            s << "click cmdPrintIt\n";
        } else {
            step(s, f, false);
        }
        ++done;
    }
}

void ScriptGenerator::focused(std::ostream& s, const FormInfo& f, int steps) {
    for (int done = 0; done < steps; ++done) {
        // Half the time a box gets a size, and the page is drawn with it.
        if (chance(0.3)) {
            if (const ControlInfo* box = pickKind(f, static_cast<int>(ControlKind::TextBox))) {
                s << (chance(0.5) ? "type " : "text ") << box->name << " " << sideText() << "\n";
                if (chance(0.5)) s << "blur " << box->name << "\n";
            }
            if (const ControlInfo* button = pickKind(f, static_cast<int>(ControlKind::Button)))
                if (button->name != "cmdExit") s << "click " << button->name << "\n";
            continue;
        }
        step(s, f, false);
    }
    if (chance(0.5)) s << "click cmdExit\n";
}

} // namespace gp::fuzz
