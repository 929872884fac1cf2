// Pages of drawing calls: a printer page leaves only at EndDoc and a faulted
// page never leaves at all; a sink that cannot write is reported; a replay
// makes the recorded calls again.
#include <gtest/gtest.h>

#include "shell/page.h"

using namespace gp;

namespace {
struct CollectingSink : PageSink {
    std::vector<Page> pages;
    std::vector<std::pair<Single, Single>> areas;
    std::string refuse;  // a reason to fail with, or nothing
    OutputResult emitPage(const Page& page, Single w, Single h) override {
        if (!refuse.empty()) return OutputResult::failed("sheet-0001.pdf", refuse);
        pages.push_back(page);
        areas.push_back({w, h});
        return OutputResult::written();
    }
};

struct Failures : OutputFailures {
    std::vector<std::string> messages;
    void outputFailed(const std::string& m) override { messages.push_back(m); }
};

struct Calls : SurfaceDevice {
    std::vector<std::string> seen;
    void line(const Stroke& s) override { seen.push_back("line " + std::to_string(int(s.x2))); }
    void pset(Single x, Single, int, long) override { seen.push_back("pset " + std::to_string(int(x))); }
    void print(Single, Single, const std::string& t, const FontSpec&) override { seen.push_back("print " + t); }
};
} // namespace

TEST(PrinterPages, APageLeavesWholeAtEndDocAndAFaultedPageNever) {
    CollectingSink sink;
    Failures failures;
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    PrinterPages device(printer, failures);
    device.addSink(sink);
    printer.attach(&device);

    printer.Line(0, 0, 100, 100);
    printer.abortPage();  // what the guard does when a handler faults
    EXPECT_TRUE(sink.pages.empty());
    printer.EndDoc();
    ASSERT_EQ(sink.pages.size(), 1u);
    EXPECT_TRUE(sink.pages[0].empty());  // the dropped stroke is gone

    printer.setOrientation(2);
    printer.Line(0, 0, 1, 1);
    printer.Print("7");
    printer.EndDoc();
    ASSERT_EQ(sink.pages.size(), 2u);
    EXPECT_EQ(sink.pages[1].orientation, 2);
    EXPECT_EQ(sink.pages[1].ops.size(), 2u);
    EXPECT_EQ(sink.areas[1].first, 15120);  // landscape: the long side across

    printer.Line(0, 0, 1, 1);  // the orientation holds for the next sheet
    printer.EndDoc();
    EXPECT_EQ(sink.pages[2].orientation, 2);
}

TEST(PrinterPages, ASinkThatCannotWriteIsReportedAndTheNextSheetStillGoesOut) {
    CollectingSink broken, good;
    broken.refuse = "No space left on device";
    Failures failures;
    DrawingSurface printer(DrawingSurface::Kind::Printer, "Printer", 11520, 15120);
    PrinterPages device(printer, failures);
    device.addSink(broken);
    device.addSink(good);
    printer.attach(&device);
    printer.Line(0, 0, 5, 5);
    printer.EndDoc();
    ASSERT_EQ(failures.messages.size(), 1u);
    EXPECT_EQ(failures.messages[0], "sheet-0001.pdf: No space left on device");
    EXPECT_EQ(good.pages.size(), 1u);
}

TEST(Page, ReplayMakesTheRecordedCallsInOrder) {
    Page page;
    page.addLine(Stroke{0, 0, 7, 0, 0, 1, kForeground});
    page.addText(1, 2, "x", FontSpec{});
    page.addDot(3, 4, 2, 255);
    page.addLine(Stroke{0, 0, 9, 0, 1, 1, kForeground});
    Calls calls;
    replay(page, calls);
    EXPECT_EQ(calls.seen, (std::vector<std::string>{"line 7", "print x", "pset 3", "line 9"}));
}
