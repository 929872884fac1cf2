// Printing as a user's click does it: the windowed program, the system's
// default printer through CUPS (a PDF queue), one sheet a click, the
// printer's own paper, strokes at true size. And the fallback where no
// printer is installed: the sheet saved as a PDF in the folder the user is
// told about.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <chrono>
#include <cstdlib>
#include <sstream>
#include <thread>

#include "print/print_robot.h"
#include "support/run_program.h"

using gp::test::capture;

namespace {
const char* kSelf = nullptr;

QStringList pdfsIn(const QString& dir) {
    QStringList out;
    for (const QFileInfo& f : QDir(dir).entryInfoList({"*.pdf"}, QDir::Files, QDir::Time | QDir::Reversed))
        out << f.absoluteFilePath();
    return out;
}

// Centres of the rows of a grey image that are dark across most of the
// width: the horizontal lines of a grid.
std::vector<double> horizontalLines(const std::string& pgm) {
    std::istringstream in(pgm);
    std::string magic;
    int w = 0, h = 0, maxv = 0;
    in >> magic >> w >> h >> maxv;
    in.get();
    std::vector<unsigned char> px(static_cast<size_t>(w) * h);
    in.read(reinterpret_cast<char*>(px.data()), static_cast<std::streamsize>(px.size()));
    std::vector<double> centres;
    int start = -1;
    for (int y = 0; y <= h; ++y) {
        int darkCount = 0;
        if (y < h)
            for (int x = 0; x < w; ++x) darkCount += px[static_cast<size_t>(y) * w + x] < 128;
        const bool line = y < h && darkCount > w / 2;
        if (line && start < 0) start = y;
        if (!line && start >= 0) {
            centres.push_back((start + y - 1) / 2.0);
            start = -1;
        }
    }
    return centres;
}

// Rows of the default triangle sheet are 1247 twips apart: 124.7 dots at
// 144 dots to the inch.
void expectTrueSizeTriangles(const QString& pdf) {
    const std::string pgm = capture("pdftoppm -r 144 -gray -f 1 -l 1 '" + pdf.toStdString() + "'");
    auto lines = horizontalLines(pgm);
    ASSERT_GE(lines.size(), 4u) << pdf.toStdString();
    for (size_t i = 2; i < lines.size(); ++i) EXPECT_NEAR(lines[i] - lines[i - 1], 124.7, 1.5);
}

int runChild(const std::string& mode, const std::string& env) {
    return std::system((env + " QT_QPA_PLATFORM=offscreen '" + std::string(kSelf) + "' --robot " + mode).c_str());
}
} // namespace

TEST(Printing, EachClickIsOneSheetOnTheDefaultPrinterAtTrueSize) {
    const std::string setup = capture(std::string("'") + PRINT_SETUP + "' 2>&1");
    const int ok = std::system((std::string("'") + PRINT_SETUP + "' >/dev/null 2>&1").c_str());
    if (ok != 0) GTEST_SKIP() << "no printing through CUPS here: " << setup;
    std::string out = setup.substr(0, setup.find_last_not_of("\n") + 1);
    out = out.substr(out.find_last_of('\n') + 1);
    const QString outDir = QString::fromStdString(out);
    const int before = pdfsIn(outDir).size();

    // The queue is this user's default printer for the run, as the CUPS
    // environment variables make it.
    ASSERT_EQ(runChild("cups", "PRINTER=GridPagesPDF LPDEST=GridPagesPDF"), 0);
    // The queue hands the jobs on in its own time.
    QStringList after;
    for (int i = 0; i < 300; ++i) {
        after = pdfsIn(outDir);
        if (after.size() >= before + 2 && capture("lpstat -o").empty()) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    ASSERT_EQ(after.size(), before + 2) << "two clicks, two sheets, in " << out;
    const QString triangles = after[before], halfCube = after[before + 1];
    for (const QString& pdf : {triangles, halfCube}) {
        const std::string info = capture("pdfinfo '" + pdf.toStdString() + "'");
        EXPECT_NE(info.find("Pages:           1"), std::string::npos) << info;
        EXPECT_NE(info.find("612 x 792 pts"), std::string::npos) << info;  // the queue's Letter
    }
    expectTrueSizeTriangles(triangles);
}

TEST(Printing, WithNoPrinterTheSheetIsSavedAsAPdfInTheToldFolder) {
    char home[] = "/tmp/gridpages-home-XXXXXX";
    ASSERT_NE(mkdtemp(home), nullptr);
    // No print server to ask: the program finds no printer at all.
    const std::string env = std::string("HOME='") + home + "' XDG_CONFIG_HOME='" + home +
                            "/.config' CUPS_SERVER=/nonexistent/cups.sock";
    ASSERT_EQ(runChild("fallback", env), 0);
    const QStringList sheets = pdfsIn(QString(home) + "/Documents/gridpages sheets");
    ASSERT_EQ(sheets.size(), 1);
    const std::string info = capture("pdfinfo '" + sheets[0].toStdString() + "'");
    EXPECT_NE(info.find("612 x 792 pts"), std::string::npos) << info;
    expectTrueSizeTriangles(sheets[0]);
}

int main(int argc, char** argv) {
    kSelf = argv[0];
    if (argc >= 3 && std::string(argv[1]) == "--robot") {
        using gp::test::RobotStep;
        std::vector<RobotStep> steps = {{"Types of Grid Pages", "Triangles"}, {"Triangle grids", "Print It"},
                                        {"Triangle grids", "E&xit"}};
        if (std::string(argv[2]) == "cups") {
            steps.push_back({"Types of Grid Pages", "Folding Half Cube Template"});
            steps.push_back({"Folding Half Cube Template", "Print It"});
            steps.push_back({"Folding Half Cube Template", "E&xit"});
        }
        steps.push_back({"Types of Grid Pages", "E&xit"});
        return gp::test::runRobot(steps, 60);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
