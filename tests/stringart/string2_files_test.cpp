// String art files: the exact bytes that Save writes, the loose reader of
// Open, the questions and the one failure message of each operation, and
// the form that stays usable after any bad file.

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "string2_fixture.h"
#include "stringart/string_files.h"

namespace gp::string2test {
namespace {

namespace fs = std::filesystem;

class String2Files : public String2Test {
protected:
    void SetUp() override {
        String2Test::SetUp();
        static int n = 0;
        dir = fs::temp_directory_path() / ("string2_files_" + std::to_string(::getpid()) + "_" + std::to_string(++n));
        fs::create_directories(dir);
    }
    void TearDown() override { fs::remove_all(dir); }

    std::string path(const std::string& name) const { return (dir / name).string(); }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path(name), std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) const {
        std::ifstream in(path(name), std::ios::binary);
        std::stringstream ss;
        ss << in.rdbuf();
        return ss.str();
    }
    void save(const std::string& answer) {
        t.answer(answer);
        press("mnuSave");
    }
    // Open with the question (if any) answered Yes.
    void open(const std::string& answer) {
        if (f->lastPoint() > 3) t.answer("6");
        t.answer(answer);
        press("mnuOpen");
    }
    std::string lastBoxPrompt() {
        const auto b = boxes();
        return b.empty() ? "" : b.back().prompt;
    }

    fs::path dir;
};

const std::string kTriangle1Bytes =
    " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n 6000 \r\n 8760 \r\n 1000 \r\n 100 \r\n 11000 \r\n 100 \r\n";

TEST(StringArtLine, SignPositionDigitsAndOneTrailingBlank) {
    EXPECT_EQ(StringArtLine(6000), " 6000 \r\n");
    EXPECT_EQ(StringArtLine(0), " 0 \r\n");
    EXPECT_EQ(StringArtLine(-7), "-7 \r\n");
    EXPECT_EQ(StringArtLine(-32768), "-32768 \r\n");
    EXPECT_EQ(StringArtLine(32767), " 32767 \r\n");
}

TEST_F(String2Files, Triangle1SavesAsTwelveValues) {
    press("mnuTriangle1");
    t.clear();
    save(path("tri"));
    EXPECT_EQ(read("tri"), kTriangle1Bytes);
    const auto& in = t.dialogs().front();
    EXPECT_EQ(in.kind, "inputbox");
    EXPECT_EQ(in.title, "Save File Name");
    EXPECT_EQ(in.prompt, "Enter the name of the file you want to Save:");
    EXPECT_EQ(in.defaultText, "Shape1");
    const auto b = boxes();
    ASSERT_EQ(b.size(), 1u);
    EXPECT_EQ(b[0].title, "Saved");
    EXPECT_EQ(b[0].prompt, "File: " + path("tri") + " has been stored successfully");
    EXPECT_EQ(f->stringFileName(), path("tri"));
    EXPECT_TRUE(t.ops().empty());
}

TEST_F(String2Files, TheDefaultNameLandsInTheCurrentDirectoryAndIsOverwritten) {
    const fs::path before = fs::current_path();
    fs::current_path(dir);
    press("mnuSave");  // the input box keeps "Shape1"
    press("mnuTriangle1");
    press("mnuSave");
    fs::current_path(before);
    EXPECT_EQ(read("Shape1"), kTriangle1Bytes);
    EXPECT_EQ(boxes().size(), 2u);
}

TEST_F(String2Files, SaveRefusals) {
    press("Command1");
    click(3000, 3000);
    click(4000, 3000);
    t.clear();
    press("mnuSave");
    auto b = boxes();
    ASSERT_EQ(b.size(), 1u);
    EXPECT_EQ(b[0].title, "Need a drawing to Save!");
    EXPECT_EQ(b[0].prompt, "You have not made a string art drawing of more than 2 points yet.");
    EXPECT_EQ(b[0].buttons, vbCritical);
    EXPECT_EQ(t.dialogs().size(), 1u);  // no name is asked for

    click(4000, 4000);  // three points can be saved
    for (const std::string& bad : {std::string(""), std::string("  "), path("no/such/dir/x"), dir.string()}) {
        SCOPED_TRACE(bad);
        t.clear();
        save(bad);
        b = boxes();
        ASSERT_EQ(b.size(), 1u);
        EXPECT_EQ(b[0].title, "");
        EXPECT_EQ(b[0].prompt, "You cancelled the Save.");
        EXPECT_EQ(b[0].buttons, vbOKOnly);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(dir), fs::directory_iterator()), 0);
    t.clear();
    save(path("three"));
    EXPECT_EQ(lastBoxPrompt(), "File: " + path("three") + " has been stored successfully");
}

TEST_F(String2Files, OpenAsksBeforeReplacingMoreThanThreePoints) {
    write("tri", kTriangle1Bytes);
    t.answer("7");
    press("mnuOpen");  // the cube has 14 points
    auto b = boxes();
    ASSERT_EQ(b.size(), 2u);
    EXPECT_EQ(b[0].title, "Are You sure?");
    EXPECT_EQ(b[0].prompt, "You will erase the current string art drawing.");
    EXPECT_EQ(b[0].buttons, vbYesNo);
    EXPECT_EQ(b[1].title, "Cancelled Open");
    EXPECT_EQ(b[1].prompt, "File reading has been cancelled");
    EXPECT_EQ(t.dialogs().size(), 2u);
    EXPECT_EQ(f->lastPoint(), 14);
    EXPECT_TRUE(t.ops().empty());

    // Yes: the file replaces the figure and is drawn over the canvas.
    t.clear();
    t.answer("6");
    t.answer(path("tri"));
    press("mnuOpen");
    ASSERT_GE(t.dialogs().size(), 2u);
    EXPECT_EQ(t.dialogs()[1].title, "Open File Name");
    EXPECT_EQ(t.dialogs()[1].prompt, "Enter the name of the file you want to Open:");
    EXPECT_EQ(t.dialogs()[1].defaultText, "Shape1");
    EXPECT_EQ(f->lastPoint(), 5);
    EXPECT_EQ(f->nextPoint(), 6);
    EXPECT_EQ(t.count("frmString2", "line"), 2 + 3 * 15);
    EXPECT_EQ(t.count("frmString2", "cls"), 0);

    // Three points are replaced without the question.
    press("Command1");
    click(3000, 3000);
    click(4000, 3000);
    click(4000, 4000);
    t.clear();
    t.answer(path("tri"));
    press("mnuOpen");
    EXPECT_EQ(t.dialogs().size(), 1u);
    EXPECT_EQ(f->lastPoint(), 5);
}

TEST_F(String2Files, HandWrittenFilesWithOtherSeparatorsOpen) {
    press("mnuTriangle1");
    const auto drawn = t.lines("frmString2");
    const std::string files[] = {
        "6,5,1000,100,11000,100,6000,8760,1000,100,11000,100",
        "6 5\n1000 100\t11000,100\r\n\r\n  6000 , 8760\n1000\n100\n+11000 100 anything after the figure",
        "0\n5\n1000,100\n11000,100\n6000,8760\n1000,100\n11000,100\n",
    };
    for (const std::string& text : files) {
        SCOPED_TRACE(text);
        write("hand", text);
        t.clear();
        open(path("hand"));
        const auto ls = t.lines("frmString2");
        ASSERT_EQ(ls.size(), drawn.size());
        for (size_t i = 0; i < ls.size(); ++i) {
            ASSERT_EQ(ls[i].x1, drawn[i].x1);
            ASSERT_EQ(ls[i].y2, drawn[i].y2);
        }
        EXPECT_EQ(boxes().size(), 1u);  // only the question
        EXPECT_EQ(f->nextPoint(), 6);
    }
}

TEST_F(String2Files, EveryBadFileGivesTheOneMessageAndTheFormGoesOn) {
    const std::string bad[] = {
        "",                                       // empty
        "6\r\n",                                  // ends after the first value
        " 6 \r\n 5 \r\n 1000 \r\n 100 \r\n",      // ends early
        "6 5 1000 100 abc 100",                   // text
        "6 5 1000 100 12.5 100",                  // not a whole number
        "6 5 1000 100 40000 100",                 // outside the Integer range
        "6 5 1000 -32769 1 1",                    // outside the Integer range
        "6 5 1000 100 99999999999999999999 1",    // far outside
        "6 5 1000 100 - 100",                     // a sign alone
        "\"6\" 5",                                // quoted
    };
    for (const std::string& text : bad) {
        SCOPED_TRACE(text);
        write("bad", text);
        t.clear();
        open(path("bad"));
        const auto b = boxes();
        ASSERT_FALSE(b.empty());
        EXPECT_EQ(b.back().prompt, "Open has been cancelled.");
        EXPECT_EQ(b.back().title, "");
        EXPECT_TRUE(t.ops().empty());
        EXPECT_TRUE(t.faults().empty());
        // Usable: a fresh chain draws as ever.
        t.clear();
        press("Command1");
        click(3000, 3000);
        click(4000, 3000);
        click(4000, 4000);
        EXPECT_EQ(t.count("frmString2", "line"), 2 + 15);
        EXPECT_EQ(f->lastPoint(), 3);
    }
}

TEST_F(String2Files, NamesThatCannotBeOpened) {
    for (const std::string& name : {std::string(""), path("missing"), dir.string(), std::string(" ")}) {
        SCOPED_TRACE(name);
        t.clear();
        open(name);
        EXPECT_EQ(lastBoxPrompt(), "Open has been cancelled.");
        EXPECT_TRUE(t.ops().empty());
        EXPECT_EQ(f->lastPoint(), 14);  // nothing was read
        EXPECT_EQ(f->pointX(3), 4125);
    }
}

TEST_F(String2Files, AFailedReadKeepsWhatItTookAndDrawsNothing) {
    write("part", "7 5 1 2 3");
    open(path("part"));
    EXPECT_EQ(lastBoxPrompt(), "Open has been cancelled.");
    EXPECT_EQ(f->nextPoint(), 7);
    EXPECT_EQ(f->lastPoint(), 5);
    EXPECT_EQ(f->pointX(1), 1);
    EXPECT_EQ(f->pointY(1), 2);
    EXPECT_EQ(f->pointX(2), 3);
    EXPECT_EQ(f->pointY(2), 4250);  // the cube's, not yet overwritten
    EXPECT_TRUE(t.ops().empty());
}

TEST_F(String2Files, MoreThan200PointsFailAtPoint201) {
    std::string text = " 202 \r\n 201 \r\n";
    for (int i = 1; i <= 201; ++i) text += StringArtLine(i) + StringArtLine(2 * i);
    write("big", text);
    open(path("big"));
    EXPECT_EQ(lastBoxPrompt(), "Open has been cancelled.");
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->pointX(200), 200);
    EXPECT_EQ(f->lastPoint(), 201);
    // What stands now cannot be drawn or saved, and says so; Clear It starts over.
    t.clear();
    press("cmdCycle");
    EXPECT_EQ(t.faults().size(), 1u);
    save(path("out"));
    EXPECT_EQ(lastBoxPrompt(), "You cancelled the Save.");
    EXPECT_FALSE(fs::exists(path("out")));
    press("Command1");
    EXPECT_EQ(f->lastPoint(), 1);
}

TEST_F(String2Files, ARedrawThatFailsGivesTheOpenMessage) {
    write("tri", kTriangle1Bytes);
    type("txtTics", "0");
    open(path("tri"));
    EXPECT_EQ(lastBoxPrompt(), "Open has been cancelled.");
    EXPECT_TRUE(t.faults().empty());
    EXPECT_TRUE(t.ops().empty());
    EXPECT_EQ(f->lastPoint(), 5);  // the points were read
}

TEST_F(String2Files, WrittenAndReadBackGivesTheSamePoints) {
    // 200 points with the extremes of the Integer range, as only a file
    // can bring them.
    std::string text = " 201 \r\n 200 \r\n";
    for (int i = 1; i <= 200; ++i) {
        const int x = i == 1 ? -32768 : i == 2 ? 32767 : (i * 7919) % 20000 - 1000;
        text += StringArtLine(x) + StringArtLine((i * 104729) % 9000 - 10);
    }
    write("all", text);
    type("txtTics", "1");
    open(path("all"));
    // Plot x 32767 cannot reach the screen; the redraw fails (after it set
    // NextPoint to 3), and the points stay as read.
    EXPECT_EQ(lastBoxPrompt(), "Open has been cancelled.");
    EXPECT_EQ(f->lastPoint(), 200);
    save(path("again"));
    const auto afterFirst = [](const std::string& s) { return s.substr(s.find('\n') + 1); };
    EXPECT_EQ(afterFirst(read("again")), afterFirst(text));

    // Clicked chains, saved and opened into a cleared form.
    press("Command1");
    for (int i = 0; i < 40; ++i) click(1561.7 + i * 301.3, 10.5 + (i * 977) % 8900);
    std::vector<std::pair<int, int>> pts;
    for (int i = 1; i <= 40; ++i) pts.push_back({f->pointX(i), f->pointY(i)});
    save(path("clicked"));
    press("Command1");
    open(path("clicked"));
    EXPECT_EQ(f->lastPoint(), 40);
    EXPECT_EQ(f->nextPoint(), 41);
    for (int i = 1; i <= 40; ++i) {
        EXPECT_EQ(f->pointX(i), pts[i - 1].first);
        EXPECT_EQ(f->pointY(i), pts[i - 1].second);
    }
    save(path("clicked2"));
    EXPECT_EQ(read("clicked2"), read("clicked"));

    // Tetrahedron1 stores 17 points, Tetrahedron2 21.
    press("mnuTetra1");
    save(path("t1"));
    press("mnutetra2");
    save(path("t2"));
    EXPECT_EQ(read("t1").substr(0, 10), " 18 \r\n 17 ");
    EXPECT_EQ(read("t2").substr(0, 10), " 22 \r\n 21 ");
}

} // namespace
} // namespace gp::string2test
