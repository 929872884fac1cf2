// Printing as a user's click does it: the windowed program driven by a
// robot, the print system through CUPS (PDF queues), one sheet a click,
// the printer and paper and copies the user chose, strokes at true size;
// a batch run's --print giving the very same sheet; and, with no printer,
// the sheet saved as a PDF on the system's paper, or saved as PDF or SVG
// through a save dialog where the user asked for files.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <thread>

#include "print/print_robot.h"
#include "support/run_program.h"

using gp::test::capture;

namespace {
const char* kSelf = nullptr;

// Runs this program as the robot of `mode` with `env` before it.
int runChild(const std::string& mode, const std::string& env) {
    return std::system((env + " QT_QPA_PLATFORM=offscreen '" + std::string(kSelf) + "' --robot " + mode).c_str());
}

// A home of its own for a run, gone after the test: its settings, its
// documents, no printer options of the user's.
struct Home {
    std::string path;
    Home() {
        char home[] = "/tmp/gridpages-home-XXXXXX";
        if (mkdtemp(home)) path = home;
    }
    ~Home() {
        if (!path.empty()) QDir(QString::fromStdString(path)).removeRecursively();
    }
};

std::string homeEnv(const Home& h) {
    const std::string& home = h.path;
    return "env -u PRINTER -u LPDEST HOME='" + home + "' XDG_CONFIG_HOME='" + home + "/.config'";
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

std::string pixels(const QString& pdf) {
    return capture("pdftoppm -r 144 -gray -f 1 -l 1 '" + pdf.toStdString() + "'");
}

// Rows of the default triangle sheet are 1247 twips apart: 124.7 dots at
// 144 dots to the inch.
void expectTrueSizeTriangles(const QString& pdf) {
    auto lines = horizontalLines(pixels(pdf));
    ASSERT_GE(lines.size(), 4u) << pdf.toStdString();
    for (size_t i = 2; i < lines.size(); ++i) EXPECT_NEAR(lines[i] - lines[i - 1], 124.7, 1.5);
}

std::string pageSize(const QString& pdf) {
    const std::string info = capture("pdfinfo '" + pdf.toStdString() + "'");
    const size_t at = info.find("Page size:");
    return at == std::string::npos ? info : info.substr(at, info.find('\n', at) - at);
}

// The print system's side: the jobs of a queue, what they carried, and
// the file that cups-pdf made of each.
class Queues : public ::testing::Test {
protected:
    void SetUp() override {
        std::string setup = capture(std::string("'") + PRINT_SETUP + "' 2>&1; echo \"status=$?\"");
        const size_t status = setup.rfind("status=");
        const bool ready = status != std::string::npos && setup.compare(status, 9, "status=0\n") == 0;
        setup = setup.substr(0, status);
        if (!ready) GTEST_SKIP() << "no printing through CUPS here: " << setup;
        const std::string out = setup.substr(0, setup.find_last_not_of("\n") + 1);
        outDir_ = QString::fromStdString(out.substr(out.find_last_of('\n') + 1));
    }

    // Job numbers run across all queues: those of one queue, in order.
    static std::vector<int> jobsOf(const std::string& queue) {
        std::istringstream in(capture("lpstat -W all -o " + queue + " 2>/dev/null"));
        std::vector<int> jobs;
        for (std::string line; std::getline(in, line);) {
            if (line.rfind(queue + "-", 0) != 0) continue;
            size_t i = queue.size() + 1;
            int n = 0;
            while (i < line.size() && std::isdigit(static_cast<unsigned char>(line[i]))) n = n * 10 + (line[i++] - '0');
            if (i < line.size() && line[i] == ' ') jobs.push_back(n);
        }
        std::sort(jobs.begin(), jobs.end());
        return jobs;
    }

    static int lastJob(const std::string& queue) {
        const std::vector<int> jobs = jobsOf(queue);
        return jobs.empty() ? 0 : jobs.back();
    }

    static std::vector<int> jobsAfter(const std::string& queue, int after) {
        std::vector<int> jobs;
        for (int id : jobsOf(queue))
            if (id > after) jobs.push_back(id);
        return jobs;
    }

    // The attribute's value as ipptool shows it ("3", "A4"), or "".
    static std::string jobAttribute(const std::string& queue, int job, const std::string& name) {
        const std::string test = "/tmp/gridpages-job-attributes.test";
        std::ofstream(test) << "{\n OPERATION Get-Job-Attributes\n GROUP operation-attributes-tag\n"
                               " ATTR charset attributes-charset utf-8\n"
                               " ATTR naturalLanguage attributes-natural-language en\n"
                               " ATTR uri printer-uri $uri\n ATTR integer job-id $job_id\n"
                               " ATTR name requesting-user-name $user\n DISPLAY " << name << "\n}\n";
        const std::string shown = capture("ipptool -d job_id=" + std::to_string(job) + " -t ipp://localhost/printers/" +
                                          queue + " " + test + " 2>/dev/null");
        const size_t at = shown.find(name + " (");
        if (at == std::string::npos) return "";
        const size_t value = shown.find("= ", at);
        return shown.substr(value + 2, shown.find('\n', value) - value - 2);
    }

    // The PDF that cups-pdf wrote for the job, once the job is done.
    QString outputOf(const std::string& queue, int job) const {
        const QString suffix = QString("-job_%1.pdf").arg(job);
        for (int i = 0; i < 300; ++i) {
            if (capture("lpstat -W completed -o " + queue + " 2>/dev/null").find(queue + "-" + std::to_string(job) + " ") !=
                std::string::npos)
                for (const QFileInfo& f : QDir(outDir_).entryInfoList({"*.pdf"}, QDir::Files))
                    if (f.fileName().endsWith(suffix)) return f.absoluteFilePath();
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return QString();
    }

    // Jobs whose sheets no check needs are cancelled, so that they hold up
    // no later test.
    static void cancel(const std::string& queue, const std::vector<int>& jobs) {
        for (int job : jobs) capture("cancel " + queue + "-" + std::to_string(job) + " 2>/dev/null");
    }

    QString outDir_;
};

TEST_F(Queues, TheWindowPrintsOnTheDefaultPrinterAndABatchRunPrintsTheSameSheet) {
    const int before = lastJob("GridPagesPDF");
    // The queue is this user's default printer for the run, as the CUPS
    // environment variables make it.
    ASSERT_EQ(runChild("cups", homeEnv(Home()) + " PRINTER=GridPagesPDF"), 0);
    // The same sheet from a script, on the queue's own paper and area.
    const auto run = gp::test::runProgram(GRIDPAGES_BIN, "click cmdTriangle\nclick cmdPrintIt\n",
                                          {"--print", "GridPagesPDF"});
    ASSERT_EQ(run.status, 0) << run.errors;
    const std::vector<int> jobs = jobsAfter("GridPagesPDF", before);
    ASSERT_EQ(jobs.size(), 2u) << "one click, one job; one sheet of the script, one job";
    EXPECT_EQ(jobAttribute("GridPagesPDF", jobs[0], "job-name"), "Triangles 1 in");
    const QString fromWindow = outputOf("GridPagesPDF", jobs[0]), fromScript = outputOf("GridPagesPDF", jobs[1]);
    ASSERT_FALSE(fromWindow.isEmpty());
    ASSERT_FALSE(fromScript.isEmpty());
    EXPECT_NE(capture("pdfinfo '" + fromWindow.toStdString() + "'").find("Pages:           1"), std::string::npos);
    EXPECT_NE(pageSize(fromWindow).find("612 x 792 pts"), std::string::npos) << pageSize(fromWindow);  // the queue's Letter
    expectTrueSizeTriangles(fromWindow);
    const std::string a = pixels(fromWindow), b = pixels(fromScript);
    EXPECT_GT(a.size(), 100000u);
    EXPECT_TRUE(a == b) << "the window's sheet and the script's differ";
}

TEST_F(Queues, ThePrintDialogsChoiceHoldsForLaterSheetsAndTheNextRun) {
    const Home h;
    const int before = lastJob("GridPagesPDF2"), beforeFirst = lastJob("GridPagesPDF");
    // Printer GridPagesPDF2 and 3 copies in the print dialog, A4 in page
    // setup, then a sheet; then a new run that only prints.
    ASSERT_EQ(runChild("choose", homeEnv(h)), 0);
    ASSERT_EQ(runChild("again", homeEnv(h)), 0);
    const std::vector<int> jobs = jobsAfter("GridPagesPDF2", before);
    ASSERT_EQ(jobs.size(), 2u);
    EXPECT_EQ(lastJob("GridPagesPDF"), beforeFirst) << "nothing went to the other queue";
    for (int job : jobs) {
        EXPECT_EQ(jobAttribute("GridPagesPDF2", job, "copies"), "3");
        EXPECT_EQ(jobAttribute("GridPagesPDF2", job, "media"), "A4");
    }
    cancel("GridPagesPDF2", {jobs[1]});
    const QString pdf = outputOf("GridPagesPDF2", jobs[0]);
    ASSERT_FALSE(pdf.isEmpty());
    EXPECT_NE(pageSize(pdf).find("595 x 842 pts"), std::string::npos) << pageSize(pdf);
    expectTrueSizeTriangles(pdf);
}

TEST_F(Queues, WithPrintersButNoDefaultTheFirstSheetAsksWhichOne) {
    if (capture("lpstat -d 2>/dev/null").find("system default destination:") != std::string::npos)
        GTEST_SKIP() << "this machine has a default printer";
    const int before = lastJob("GridPagesHeld");
    ASSERT_EQ(runChild("ask", homeEnv(Home())), 0);
    // The first click asked; the second went where the first was sent.
    const std::vector<int> jobs = jobsAfter("GridPagesHeld", before);
    cancel("GridPagesHeld", jobs);
    ASSERT_EQ(jobs.size(), 2u);
    for (int job : jobs) EXPECT_EQ(jobAttribute("GridPagesHeld", job, "copies"), "2");
}

TEST_F(Queues, BatchPrintNamesTheQueueAndTellsARefusedJob) {
    const std::string script = "click cmdTriangle\nclick cmdPrintIt\n";
    auto missing = gp::test::runProgram(GRIDPAGES_BIN, script, {"--print", "NoSuchGridPagesQueue"});
    EXPECT_EQ(missing.status, 2);
    EXPECT_NE(missing.errors.find("NoSuchGridPagesQueue: there is no such printer"), std::string::npos)
        << missing.errors;

    auto refused = gp::test::runProgram(GRIDPAGES_BIN, script, {"--print", "GridPagesRefuse"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_NE(refused.errors.find("the printer GridPagesRefuse: "), std::string::npos) << refused.errors;
    EXPECT_NE(refused.errors.find("not accepting jobs"), std::string::npos) << refused.errors;

    // Copies reach the job; a PDF beside it is written once.
    const int before = lastJob("GridPagesPDF2");
    auto copies = gp::test::runProgram(GRIDPAGES_BIN, script,
                                       {"--print", "GridPagesPDF2", "--copies", "4", "--paper", "a4", "--pdf", "{dir}/pdf"});
    ASSERT_EQ(copies.status, 0) << copies.errors;
    const std::vector<int> jobs = jobsAfter("GridPagesPDF2", before);
    ASSERT_EQ(jobs.size(), 1u);
    EXPECT_EQ(jobAttribute("GridPagesPDF2", jobs[0], "copies"), "4");
    EXPECT_EQ(jobAttribute("GridPagesPDF2", jobs[0], "media"), "A4");
    EXPECT_EQ(QDir(QString::fromStdString(copies.dir + "/pdf")).entryList(QDir::Files).size(), 1);
    const QString printed = outputOf("GridPagesPDF2", jobs[0]);
    ASSERT_FALSE(printed.isEmpty());
    // The named paper keeps its quarter inch on the printer too: the rows
    // lie on the paper where the PDF has them (to a dot: the print system
    // renders the job again).
    const auto onPaper = horizontalLines(pixels(printed));
    const auto inPdf = horizontalLines(pixels(QString::fromStdString(copies.dir + "/pdf/sheet-0001.pdf")));
    ASSERT_EQ(onPaper.size(), inPdf.size());
    ASSERT_GE(onPaper.size(), 10u);
    for (size_t i = 0; i < onPaper.size(); ++i) EXPECT_NEAR(onPaper[i], inPdf[i], 1.0) << "row " << i;
}

// No print server at all: the program finds no printer.
const std::string kNoPrinter = " CUPS_SERVER=/nonexistent/cups.sock";

TEST(NoPrinter, EachSheetIsSavedAsAPdfOnTheSystemsPaper) {
    const Home h;
    const std::string& home = h.path;
    ASSERT_EQ(runChild("fallback", homeEnv(h) + kNoPrinter + " PAPERSIZE=a4"), 0);
    ASSERT_EQ(runChild("fallback", homeEnv(h) + kNoPrinter + " PAPERSIZE=letter"), 0);
    const QString folder = QString::fromStdString(home) + "/Documents/gridpages sheets/";
    ASSERT_TRUE(QFile::exists(folder + "Triangles 1 in - 1.pdf")) << QDir(folder).entryList().join(", ").toStdString();
    ASSERT_TRUE(QFile::exists(folder + "Triangles 1 in - 2.pdf"));
    EXPECT_NE(pageSize(folder + "Triangles 1 in - 1.pdf").find("595.276 x 841.89 pts (A4)"), std::string::npos)
        << pageSize(folder + "Triangles 1 in - 1.pdf");
    EXPECT_NE(pageSize(folder + "Triangles 1 in - 2.pdf").find("612 x 792 pts"), std::string::npos);
    expectTrueSizeTriangles(folder + "Triangles 1 in - 1.pdf");
}

TEST(NoPrinter, ADocumentsFolderThatCannotBeMadeIsToldAndNothingIsSaidToBeSaved) {
    const Home h;
    std::ofstream(h.path + "/Documents") << "a file where the folder would be";
    const std::string said = capture(homeEnv(h) + kNoPrinter + " QT_QPA_PLATFORM=offscreen '" + kSelf +
                                     "' --robot fallback 2>&1; echo status=$?");
    EXPECT_NE(said.find("status=0"), std::string::npos) << said;
    EXPECT_NE(said.find("robot: message: The sheet could not be printed or saved."), std::string::npos) << said;
    EXPECT_NE(said.find("/Documents/gridpages sheets: Not a directory"), std::string::npos) << said;
    EXPECT_EQ(said.find("was saved as a PDF file"), std::string::npos) << said;
}

TEST(NoPrinter, SheetsSavedAsPdfOrSvgGoToTheLastFolderWithNumberedNames) {
    const Home h;
    const std::string& home = h.path;
    const QString last = QString::fromStdString(home) + "/cutting machine";
    ASSERT_TRUE(QDir().mkpath(last));
    // An earlier run saved into that folder; a sheet of another name there
    // does not count.
    QFile(last + "/Half Cube 1 in - 7.txt").open(QIODevice::WriteOnly);
    ASSERT_TRUE(QDir().mkpath(QString::fromStdString(home) + "/.config/gridpages"));
    std::ofstream(home + "/.config/gridpages/gridpages.conf")
        << "[sheets]\nlastFolder=" << last.toStdString() << "\n";
    ASSERT_EQ(runChild("files", homeEnv(h) + kNoPrinter + " PAPERSIZE=a4"), 0);
    for (const char* name : {"Half Cube 1 in - 1.pdf", "Half Cube 1 in - 2.pdf", "Half Cube 1 in - 1.svg"})
        EXPECT_TRUE(QFile::exists(last + "/" + name)) << name << " in " << QDir(last).entryList().join(", ").toStdString();
    EXPECT_NE(pageSize(last + "/Half Cube 1 in - 1.pdf").find("(A4)"), std::string::npos);
    QFile svg(last + "/Half Cube 1 in - 1.svg");
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    const QByteArray text = svg.readAll();
    EXPECT_TRUE(text.contains("width=\"210mm\"") && text.contains("height=\"297mm\"")) << text.left(400).toStdString();
    // Page setup turned the sheets: a page that leaves the orientation open
    // prints across the A5 paper chosen there.
    EXPECT_NE(pageSize(last + "/Triangles 1 in - 1.pdf").find("595.276 x 419.528 pts"), std::string::npos)
        << pageSize(last + "/Triangles 1 in - 1.pdf");
    // The choice of files was kept for the next run.
    std::ifstream conf(home + "/.config/gridpages/gridpages.conf");
    const std::string kept((std::istreambuf_iterator<char>(conf)), std::istreambuf_iterator<char>());
    EXPECT_NE(kept.find("destination=svg"), std::string::npos) << kept;
}

std::vector<gp::test::RobotStep> robotSteps(const std::string& mode) {
    using namespace gp::test;
    const QString menuForm = "Types of Grid Pages", triangles = "Triangle grids", halfCube = "Folding Half Cube Template";
    const std::vector<RobotStep> printTriangles = {click(menuForm, "Triangles"), click(triangles, "Print It"),
                                                   click(triangles, "E&xit")};
    std::vector<RobotStep> steps;
    auto add = [&](const std::vector<RobotStep>& more) { steps.insert(steps.end(), more.begin(), more.end()); };
    if (mode == "choose") {
        add({menu(menuForm, "Choose Printer and Copies..."),
             inDialog([](QDialog& d) { choosePrinter(d, "GridPagesPDF2", 3); }),
             menu(menuForm, "Page Setup (Paper, Orientation)..."), inDialog([](QDialog& d) { choosePaper(d, "A4"); })});
    }
    if (mode == "ask") {
        add({click(menuForm, "Triangles"), click(triangles, "Print It"),
             inDialog([](QDialog& d) { choosePrinter(d, "GridPagesHeld", 2); }), click(triangles, "Print It"),
             click(triangles, "E&xit")});
    } else if (mode == "files") {
        const std::vector<RobotStep> save = {click(menuForm, "Folding Half Cube Template"), click(halfCube, "Print It"),
                                             inDialog(acceptAsItIs)};
        add({menu(menuForm, "Print It Saves the Sheet as a PDF File")});
        add(save);
        add({click(halfCube, "Print It"), inDialog(acceptAsItIs), click(halfCube, "E&xit"),
             menu(menuForm, "Print It Saves the Sheet as an SVG File")});
        add(save);
        add({click(halfCube, "E&xit"), menu(menuForm, "Print It Saves the Sheet as a PDF File"),
             menu(menuForm, "Page Setup (Paper, Orientation)..."),
             inDialog([](QDialog& d) { choosePaper(d, "A5", true); })});
        add({click(menuForm, "Triangles"), click(triangles, "Print It"), inDialog(acceptAsItIs),
             click(triangles, "E&xit"), menu(menuForm, "Print It Saves the Sheet as an SVG File")});
    } else {
        add(printTriangles);
    }
    add({click(menuForm, "E&xit")});
    return steps;
}
} // namespace

int main(int argc, char** argv) {
    kSelf = argv[0];
    if (argc >= 3 && std::string(argv[1]) == "--robot") return gp::test::runRobot(robotSteps(argv[2]), 60);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
