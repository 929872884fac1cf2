// gridpages: the menu of page kinds in a window, or a batch run of a script
// when started with --script.

#include <QApplication>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "all_forms.h"
#include "platform/batch_runner.h"
#include "platform/qt_session.h"

namespace {
const char* kUsage =
    "usage: gridpages [--script FILE [--trace OUT] [--pdf DIR] [--printer W H] [--seed N]]\n"
    "  Without --script the menu opens in a window.\n";
}

int main(int argc, char** argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    for (const std::string& a : args) {
        if (a == "--help" || a == "-h") {
            std::fputs(kUsage, stdout);
            return 0;
        }
    }
    gp::BatchOptions options;
    bool batch = false;
    std::string error;
    if (!gp::parseBatchOptions(args, options, batch, error)) {
        std::fprintf(stderr, "gridpages: %s\n%s", error.c_str(), kUsage);
        return 2;
    }
    if (batch) {
        // No screen is needed: fonts and PDF files work offscreen.
        if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
        // Qt wants a private runtime folder; a batch run on a server may
        // have none.
        if (!std::getenv("XDG_RUNTIME_DIR")) {
            char dir[] = "/tmp/gridpages-runtime-XXXXXX";
            if (mkdtemp(dir)) setenv("XDG_RUNTIME_DIR", dir, 1);
        }
        int qargc = 1;
        QGuiApplication app(qargc, argv);
        return gp::runBatch(options, gp::gridpagesProgram());
    }
    // Fractional screen scales (125 %, 150 %) are used as they are, so the
    // canvas images, drawn at the screen's own pixel ratio, stay crisp.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication app(argc, argv);
    QApplication::setApplicationName("gridpages");
    QApplication::setDesktopFileName("gridpages");
    QApplication::setQuitOnLastWindowClosed(false);
    return gp::runWindowed(gp::gridpagesProgram());
}
