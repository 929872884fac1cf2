// gridpages: the menu of page kinds in a window, or a batch run of a script
// when started with --script.

#include <QApplication>
#include <QGuiApplication>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "all_forms.h"
#include "batch_mode.h"
#include "command_line.h"
#include "platform/qt_session.h"
#include "platform/runtime_folder.h"

namespace {
// Qt takes the user's locale for everything; numbers typed into boxes and
// written to files and traces are read and written with a decimal point
// whatever the language, as the pages expect.
void numbersWithAPoint() { std::setlocale(LC_NUMERIC, "C"); }
} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> args(argv + 1, argv + argc);
    gp::CommandLine options;
    std::string error;
    if (!gp::parseCommandLine(args, options, error)) {
        std::fprintf(stderr, "gridpages: %s\n%s", error.c_str(), gp::kUsage);
        return 2;
    }
    using Mode = gp::CommandLine::Mode;
    if (options.mode == Mode::Help) {
        std::fputs(gp::kUsage, stdout);
        return 0;
    }
    if (options.mode != Mode::Window) {
        // No screen is needed: fonts and PDF files work offscreen.
        if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
        gp::RuntimeFolder runtime;
        int qargc = 1;
        QGuiApplication app(qargc, argv);
        numbersWithAPoint();
        const gp::Program program = gp::gridpagesProgram();
        if (options.mode == Mode::List) return gp::printFormList(program);
        if (options.mode == Mode::Describe) return gp::printFormDescription(program, options.describe);
        return gp::runBatch(options, program);
    }
    // Fractional screen scales (125 %, 150 %) are used as they are, so the
    // canvas images, drawn at the screen's own pixel ratio, stay crisp.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);
    numbersWithAPoint();
    QApplication::setApplicationName("gridpages");
    QApplication::setDesktopFileName("gridpages");
    QApplication::setQuitOnLastWindowClosed(false);
    return gp::runWindowed(gp::gridpagesProgram());
}
