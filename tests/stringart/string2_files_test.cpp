// String art files: the exact bytes of Save, the loose reader of Open, the
// questions, one failure message per operation, and a form that stays
// usable after any bad file.

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <thread>

#include "string2_fixture.h"
#include "stringart/string_files.h"

namespace gp::string2test {
namespace {

namespace fs = std::filesystem;

const std::string kTriangle1 =
    " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n 6000 \r\n 8760 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n";
const std::string kCancelled = "|Open has been cancelled.";

class String2Files : public String2Test {
protected:
    void SetUp() override {
        String2Test::SetUp();
        static int n = 0;
        dir = fs::temp_directory_path() / ("string2_" + std::to_string(::getpid()) + "_" + std::to_string(++n));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }
    std::string path(const std::string& name) const { return (dir / name).string(); }
    void write(const std::string& name, const std::string& bytes) const { std::ofstream(path(name), std::ios::binary) << bytes; }
    std::string read(const std::string& name) const {
        return (std::stringstream() << std::ifstream(path(name), std::ios::binary).rdbuf()).str();
    }
    void save(const std::string& name) { t.answer(name); press("mnuSave"); }
    // Saves the cube over `name`, which holds the triangle, and tells what
    // went wrong: the old bytes must stay and the one message come up.
    std::string saveOverTriangleFails(const std::string& name) {
        press("mnuCube");
        t.clear();
        save(path(name));
        std::string wrong;
        if (read(name) != kTriangle1) wrong += "the old file was changed to \"" + read(name) + "\"; ";
        if (last() != "|You cancelled the Save.") wrong += "the message was \"" + last() + "\"; ";
        return wrong;
    }
    int entries() const { return int(std::distance(fs::directory_iterator(dir), fs::directory_iterator())); }
    void open(const std::string& name) {  // the question, if any, answered Yes
        if (f->lastPoint() > 3) t.answer("6");
        t.answer(name);
        press("mnuOpen");
    }
    fs::path dir;
};

TEST_F(String2Files, SaveWritesExactBytesAndRefusesWithoutTouchingAFile) {
    EXPECT_EQ(StringArtLine(-32768), "-32768 \r\n");
    press("mnuTriangle1");
    t.clear();
    save(path("tri"));
    EXPECT_EQ(read("tri"), kTriangle1);
    const auto& in = t.dialogs().front();
    EXPECT_EQ(in.title + "|" + in.prompt + "|" + in.defaultText,
              "Save File Name|Enter the name of the file you want to Save:|Shape1");
    EXPECT_EQ(last(), "Saved|File: " + path("tri") + " has been stored successfully");
    EXPECT_TRUE(t.ops().empty());

    press("Command1");
    click(3000, 3000);
    click(4000, 3000);
    t.clear();
    press("mnuSave");
    EXPECT_EQ(t.dialogs().size(), 1u);  // no name is asked for
    EXPECT_EQ(last(), "Need a drawing to Save!|You have not made a string art drawing of more than 2 points yet.");
    EXPECT_EQ(boxes()[0].buttons, vbCritical);
    click(4000, 4000);  // three points can be saved, but not under these names
    for (const std::string& bad : {std::string(""), std::string("  "), path("no/dir/x"), dir.string()}) {
        t.clear();
        save(bad);
        EXPECT_EQ(last(), "|You cancelled the Save.") << bad;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 1);
}

TEST_F(String2Files, OpenAsksBeforeReplacingMoreThanThreePoints) {
    write("tri", kTriangle1);
    t.answer("7");
    press("mnuOpen");  // the cube has 14 points
    EXPECT_EQ(boxes()[0].title + "|" + boxes()[0].prompt + "|" + std::to_string(boxes()[0].buttons),
              "Are You sure?|You will erase the current string art drawing.|" + std::to_string(vbYesNo));
    EXPECT_EQ(last(), "Cancelled Open|File reading has been cancelled");
    EXPECT_EQ(f->lastPoint(), 14);
    EXPECT_TRUE(t.ops().empty());
    t.clear();
    open(path("tri"));
    EXPECT_EQ(t.dialogs()[1].title + "|" + t.dialogs()[1].prompt + "|" + t.dialogs()[1].defaultText,
              "Open File Name|Enter the name of the file you want to Open:|Shape1");
    EXPECT_EQ(f->nextPoint(), 6);
    EXPECT_EQ(t.count("frmString2", "line"), 2 + 3 * 15);
    EXPECT_EQ(t.count("frmString2", "cls"), 0);
    chain({{100, 100}, {200, 100}, {200, 200}});  // three points: no question
    t.clear();
    t.answer(path("tri"));
    press("mnuOpen");
    EXPECT_EQ(t.dialogs().size(), 1u);
    EXPECT_EQ(f->lastPoint(), 5);
}

TEST_F(String2Files, LooseSeparatorsOpenAndEveryBadFileGivesTheOneMessage) {
    press("mnuTriangle1");
    const auto drawn = segs();
    for (const std::string& text : {std::string("6,5,1000,100,11000,100,6000,8760,1000,100,11000,100"),
                                    std::string("6 5\n1000 100\t11000,100\r\n\r\n  6000 , 8760\n1000\n100\n+11000 100 x"),
                                    // Leading zeros, however many, are whole numbers too.
                                    std::string("0000000006 5 01000 100 11000 0000000100 6000 8760 1000 100 11000 100")}) {
        write("hand", text);
        t.clear();
        open(path("hand"));
        EXPECT_EQ(segs(), drawn) << text;
    }
    const std::string bad[] = {"", "6\r\n", " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n", "6 5 1000 100 abc 100",
                               "6 5 1000 100 12.5 100", "6 5 1000 100 40000 100", "6 5 1000 -32769 1 1",
                               "6 5 1 99999999999999999999 1", "6 5 1000 100 - 100", "\"6\" 5"};
    for (const std::string& text : bad) {
        write("bad", text);
        press("mnuCube");
        t.clear();
        open(path("bad"));
        EXPECT_EQ(last(), kCancelled) << text;
        EXPECT_TRUE(t.ops().empty() && t.faults().empty());
        chain({{100, 100}, {200, 100}, {200, 200}});  // usable: a new chain draws
        EXPECT_EQ(t.count("frmString2", "line"), 2 + 15);
    }
    for (const std::string& name : {std::string(""), path("missing"), dir.string()}) {
        press("mnuCube");
        t.clear();
        open(name);
        EXPECT_EQ(last(), kCancelled) << name;
        EXPECT_EQ(f->lastPoint(), 29);  // nothing was read
    }
}

TEST_F(String2Files, AFailedOpenKeepsWhatItRead) {
    write("part", "7 5 1 2 3");
    open(path("part"));
    EXPECT_EQ(f->nextPoint(), 7);
    EXPECT_EQ(points(1, 2), (Pts{{1, 2}, {3, 4250}}));  // the cube's y of point 2 is still there
    std::string big = " 202 \r\n 201 \r\n";
    for (int i = 1; i <= 201; ++i) big += StringArtLine(i) + StringArtLine(2 * i);
    write("big", big);
    t.clear();
    open(path("big"));  // fails at point 201
    EXPECT_EQ(last(), kCancelled);
    EXPECT_EQ(f->pointY(200), 400);
    // Such a list cannot be drawn or saved, and says so.
    press("cmdCycle");
    EXPECT_EQ(t.faults().size(), 1u);
    save(path("out"));
    EXPECT_EQ(last(), "|You cancelled the Save.");
    EXPECT_FALSE(fs::exists(path("out")));
    // A redraw that fails is the same failure; the points were read.
    write("tri", kTriangle1);
    type("txtTics", "0");
    t.clear();
    open(path("tri"));
    EXPECT_EQ(last(), kCancelled);
    EXPECT_TRUE(t.ops().empty() && t.faults().empty());
    EXPECT_EQ(f->lastPoint(), 5);
}

TEST_F(String2Files, WrittenAndReadBackGivesTheSamePoints) {
    // 200 points reaching both ends of the Integer range come back as they
    // were, though x 32767 cannot be drawn.
    std::string text = " 201 \r\n 200 \r\n";
    for (int i = 1; i <= 200; ++i)
        text += StringArtLine(i == 1 ? -32768 : i == 2 ? 32767 : (i * 7919) % 20000 - 1000) +
                StringArtLine((i * 104729) % 9000 - 10);
    write("all", text);
    open(path("all"));
    save(path("again"));
    const auto tail = [](const std::string& s) { return s.substr(s.find('\n')); };
    EXPECT_EQ(tail(read("again")), tail(text));  // the redraw had set NextPoint to 3
    press("mnuTetra1");  // 17 points are stored, 21 for Tetrahedron2
    save(path("t1"));
    press("mnutetra2");
    save(path("t2"));
    EXPECT_EQ(read("t1").substr(0, 10) + read("t2").substr(0, 10), " 18 \r\n 17  22 \r\n 21 ");
}

TEST_F(String2Files, OnlyPlainFilesAreOpenedAndNeverMoreThanTheCap) {
    using Clock = std::chrono::steady_clock;
    const auto seconds = [](Clock::time_point since) {
        return std::chrono::duration<double>(Clock::now() - since).count();
    };
    const auto openTimed = [&](const std::string& name) {
        press("mnuCube");
        t.clear();
        const auto start = Clock::now();
        open(name);
        return seconds(start);
    };
    // A pipe that no one writes to. Should Open wait for a writer after all,
    // one comes after two seconds, so that the test fails instead of hanging.
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    std::atomic<bool> done{false};
    std::thread writer([&] {
        const auto start = Clock::now();
        while (!done && seconds(start) < 2) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        const int fd = ::open(path("pipe").c_str(), O_WRONLY | O_NONBLOCK);
        if (fd >= 0) ::close(fd);
    });
    const double pipeSeconds = openTimed(path("pipe"));
    done = true;
    writer.join();
    EXPECT_LT(pipeSeconds, 1.0);
    EXPECT_EQ(last(), kCancelled);
    EXPECT_EQ(f->lastPoint(), 29);  // nothing was read
    // Devices and folders are no files of points either.
    for (const std::string& name : {std::string("/dev/zero"), std::string("/dev/null"), dir.string()}) {
        EXPECT_LT(openTimed(name), 1.0) << name;
        EXPECT_EQ(last(), kCancelled) << name;
        EXPECT_EQ(f->lastPoint(), 29) << name;
    }
    // A gigabyte with no separator (a sparse file: it costs no disk) is one
    // value too long for any Integer, found within the first kilobytes.
    {
        std::ofstream(path("huge"), std::ios::binary) << "";
        fs::resize_file(path("huge"), std::uintmax_t(1) << 30);
    }
    EXPECT_LT(openTimed(path("huge")), 1.0);
    EXPECT_EQ(last(), kCancelled);
    // What follows the last point is never read, however long it is.
    write("tail", kTriangle1);
    fs::resize_file(path("tail"), std::uintmax_t(1) << 30);
    EXPECT_LT(openTimed(path("tail")), 1.0);
    EXPECT_EQ(f->lastPoint(), 5);
    EXPECT_EQ(t.count("frmString2", "line"), 2 + 3 * 15);
    // A file of points is read through a link to it.
    fs::create_symlink(path("tail"), path("link"));
    openTimed(path("link"));
    EXPECT_EQ(f->lastPoint(), 5);
    // Values wholly inside the cap are read; one cut by it is not taken for
    // a shorter number, and one beyond it is not read at all.
    const std::string head = " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n 6000 \r\n 8760 \r\n 1000 \r\n 100 \r\n 11000 ";
    write("edge", std::string(kStringArtFileCap - head.size() - 3, ' ') + head + "100 " + std::string(100, ' '));
    openTimed(path("edge"));
    EXPECT_EQ(f->lastPoint(), 5);
    EXPECT_EQ(f->pointY(5), 100);
    write("edge", std::string(kStringArtFileCap - head.size() - 2, ' ') + head + "100 " + std::string(100, ' '));
    openTimed(path("edge"));
    EXPECT_EQ(last(), kCancelled);
    EXPECT_EQ(f->pointX(5), 11000);  // read up to the value that the cap cuts
}

// Runs `body` in a child process with a mount table of its own, where a tiny
// or read-only file system can be mounted for it alone. Gives what body
// gives ("" when all is well), or "skip: ..." where mounting is not allowed.
std::string inPrivateMounts(const std::function<std::string()>& body) {
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0) return "skip: no pipe";
    const pid_t pid = fork();
    if (pid == 0) {
        close(pipeEnds[0]);
        std::string out;
        if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
            out = std::string("skip: no mount table of our own here (") + std::strerror(errno) + ")";
        else
            out = body();
        if (write(pipeEnds[1], out.data(), out.size()) < 0) _exit(2);
        _exit(0);
    }
    close(pipeEnds[1]);
    std::string out;
    char buf[512];
    for (ssize_t n; (n = read(pipeEnds[0], buf, sizeof buf)) > 0;) out.append(buf, size_t(n));
    close(pipeEnds[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) out += " (the child process failed)";
    return out;
}

void expectOrSkip(const std::string& outcome) {
    if (outcome.rfind("skip: ", 0) == 0) GTEST_SKIP() << outcome.substr(6);
    EXPECT_EQ(outcome, "");
}

TEST_F(String2Files, ASaveOnAFullDiskLeavesTheOldFileWholeAndNoTemporary) {
    expectOrSkip(inPrivateMounts([&]() -> std::string {
        if (mount("tmpfs", dir.c_str(), "tmpfs", 0, "size=16k") != 0)
            return std::string("skip: cannot mount a small file system (") + std::strerror(errno) + ")";
        write("tri", kTriangle1);
        // Fill every block that is left, to the last byte.
        {
            std::ofstream fill(path("fill"), std::ios::binary);
            const std::string block(4096, 'x');
            while (fill.write(block.data(), block.size()) && fill.flush()) {}
        }
        for (std::ofstream more(path("fill"), std::ios::binary | std::ios::app); more.put('x') && more.flush();) {}
        std::string wrong = saveOverTriangleFails("tri");
        if (entries() != 2) wrong += "a temporary file was left behind; ";
        // Room again: the same name is saved whole.
        fs::remove(path("fill"));
        save(path("tri"));
        if (last() != "Saved|File: " + path("tri") + " has been stored successfully" || read("tri") == kTriangle1)
            wrong += "the save after did not work; ";
        return wrong;
    }));
}

TEST_F(String2Files, ALinkAFolderAndAReadOnlyFolderKeepWhatTheyHold) {
    // A name that is a link is not written through: what it points at stays.
    write("tri", kTriangle1);
    fs::create_symlink(path("tri"), path("link"));
    press("mnuCube");
    t.clear();
    save(path("link"));
    EXPECT_EQ(last(), "|You cancelled the Save.");
    EXPECT_EQ(read("tri"), kTriangle1);
    EXPECT_TRUE(fs::is_symlink(path("link")));
    // A folder stays a folder, with what is in it.
    fs::create_directories(path("folder"));
    write("folder/tri", kTriangle1);
    t.clear();
    save(path("folder"));
    EXPECT_EQ(last(), "|You cancelled the Save.");
    EXPECT_EQ(read("folder/tri"), kTriangle1);
    EXPECT_EQ(entries(), 3);
    // A folder that takes no new files: a file in it is not rewritten in place.
    fs::remove(path("link"));
    fs::remove_all(path("folder"));
    if (geteuid() != 0) {
        ::chmod(dir.c_str(), 0555);
        EXPECT_EQ(saveOverTriangleFails("tri"), "");
        ::chmod(dir.c_str(), 0755);
        return;
    }
    // Root writes in any folder it may not: only a read-only mount stops it.
    expectOrSkip(inPrivateMounts([&]() -> std::string {
        if (mount(dir.c_str(), dir.c_str(), nullptr, MS_BIND, nullptr) != 0 ||
            mount(nullptr, dir.c_str(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) != 0)
            return std::string("skip: cannot mount the folder read-only (") + std::strerror(errno) + ")";
        return saveOverTriangleFails("tri");
    }));
}

} // namespace
} // namespace gp::string2test
