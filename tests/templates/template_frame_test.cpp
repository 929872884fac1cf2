// The window that the five template forms share: design and texts, the
// range of txtLeng_Change, typing, the lifecycle and the print's one sheet.
#include <gtest/gtest.h>

#include <tuple>

#include "templates/template_form.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

namespace {
struct FormWant {
    const char* form; const char* caption; int height; long back; const char* text; const char* info;
    bool queryUnload; std::vector<std::string> titles; const char* lastPromptStart; double top; bool topIn;
};
const long kCyan = RGB(0, 192, 192);
const FormWant kForms[] = {
    {"frmHalfCube", "Folding Half Cube Template", 8400, kCyan, "1", "&Info", true,
     {"Info #1", "8 half cubes forms a Cube and Stellated shape"}, "You can place 8 of these together", 4, false},
    {"frmRhombiCube", "RhombusCube Layout Printing", 8400, kCyan, "1", "&Info", false,
     {"Info #1", "Connecting them"}, "If you connect 16", 4, true},
    {"frmOneSixthCube", "Folding One-Sixth Cube Pyramid", 8400, kCyan, "1", "Info", true,
     {"Info #1", "8 half cubes forms a Cube and Stellated shape"}, "You can place 3 of these together", 5, false},
    {"frmRhombiDodec", "Rhombus Dodecahedron Template", 8400, kCyan, "1.45", "&Info", true,
     {"Info"}, "This shape is formed by 12 faces.", 4, false},
    {"frmGreatDodeca", "Great Dodecagon Template", 8415, RGB(128, 255, 128), "1.5", "&Info", false,
     {"What is it?", "How do I put it together?"}, "Fold the dotted lines back", 3, true},
};
}

TEST(TemplateFrame, DesignTextsAndInfoBoxes) {
    for (FormWant w : kForms) {
        SCOPED_TRACE(w.form);
        TestApp t;
        Form& f = t.show(w.form);
        const FormDesign& d = f.design();
        EXPECT_EQ(std::make_tuple(d.caption, d.clientWidth, d.clientHeight, d.backColor, TextOf(f)),
                  std::make_tuple(std::string(w.caption), 9405, w.height, w.back, std::string(w.text)));
        auto caption = [&](const char* name) { return static_cast<Label*>(f.find(name))->Caption() + "|"; };
        EXPECT_EQ(caption("mnuInfo") + caption("cmdPrintIt") + caption("cmdExit"),
                  w.info + std::string("|Print It|E&xit|"));
        EXPECT_EQ(f.find("cmdPrintIt")->design().backColor, RGB(255, 255, 0));
        EXPECT_EQ(f.handles(kFormEvents, Event::QueryUnload), w.queryUnload);
        // The range of txtLeng_Change's redraw.
        auto& form = static_cast<TemplateForm&>(f);
        EXPECT_EQ(std::vector<bool>({form.InRange(w.top - 0.01), form.InRange(w.top), form.InRange(w.top + 0.01),
                                     form.InRange(Val("0")), form.InRange(Val("abc")), form.InRange(-1)}),
                  std::vector<bool>({true, w.topIn, false, false, false, false}));
        for (const auto& c : d.controls) {  // the preview begins at x = 3000
            if (c.kind == ControlKind::Menu) continue;
            EXPECT_LE(c.left + c.width, 2775) << c.name;
        }
        t.clear();
        t.fire(f, "mnuInfo", Event::Click);  // the boxes one after the other, nothing drawn
        std::vector<std::string> titles;
        for (const auto& box : t.dialogs())
            titles.push_back(box.kind + " " + std::to_string(box.buttons) + " " + box.title);
        for (std::string& want : w.titles) want = "msgbox 0 " + want;
        EXPECT_EQ(titles, w.titles);
        EXPECT_EQ(t.dialogs().back().prompt.rfind(w.lastPromptStart, 0), 0u) << t.dialogs().back().prompt;
        EXPECT_TRUE(t.ops().empty());
    }
    TestApp t;
    t.fire(t.show("frmHalfCube"), "mnuInfo", Event::Click);
    EXPECT_EQ(t.dialogs()[0].prompt,
              "You should see 6 congruent shapes here.  They are made up of 3 squares and 6 triangles.  Some "
              "lines overlap.  Cut on all the solid lines to cut them out.  Fold on the dotted to get a shape "
              "which is half of a cube.  The triangle vertexes will all meet at what would be the center of the "
              "cube.  Two of these shapes will form a cube.");
}

TEST(TemplateFrame, TypingExitPrintAndClosing) {
    for (const FormWant& w : kForms) {
        SCOPED_TRACE(w.form);
        TestApp t;
        t.printer().setDrawWidth(5);
        Form& f = t.show(w.form);
        const size_t drawn = t.lines(w.form).size();
        t.fire(f, "cmdExit", Event::Click);
        EXPECT_FALSE(f.visible());
        t.clear();
        t.show(w.form);  // activating again draws over, with no Cls
        EXPECT_EQ(t.count(w.form, "cls"), 0);
        EXPECT_EQ(t.lines(w.form).size(), drawn);
        t.clear();
        t.fire(f, "cmdPrintIt", Event::Click);  // one sheet at width 1 each time
        t.fire(f, "cmdPrintIt", Event::Click);
        EXPECT_EQ(t.count("Printer", "enddoc"), 2);
        for (const Stroke& s : t.lines("Printer")) ASSERT_EQ(s.width, 1);
        EXPECT_EQ(t.printer().DrawStyle(), 0);  // the folds leave no dashes behind
        EXPECT_TRUE(t.lines(w.form).empty());  // the preview is left alone
        const size_t before = t.ops().size();
        t.edit(f, "txtLeng", "");  // keeps the preview: no Cls, no strokes
        EXPECT_EQ(t.ops().size(), before);
        t.edit(f, "txtLeng", "0");
        EXPECT_EQ(t.count(w.form, "cls"), 1);
        EXPECT_TRUE(t.lines(w.form).empty());
        t.edit(f, "txtLeng", "6");  // out of range: cleared, blank; kept by Exit, lost by closing
        EXPECT_EQ(t.count(w.form, "cls"), 2);
        EXPECT_TRUE(t.lines(w.form).empty());
        t.fire(f, "cmdExit", Event::Click);
        Form& again = t.show(w.form);
        EXPECT_EQ(TextOf(again), "6");
        t.app().closeByFrame(again);  // unloads the form: `again` is gone after this
        EXPECT_EQ(t.app().loaded(w.form), nullptr);
        EXPECT_EQ(TextOf(t.show(w.form)), w.text);
    }
    // Out of range for the Change but previewed on the next opening: one copy, clipped.
    TestApp t;
    EXPECT_EQ(ReopenedWith(t, "frmHalfCube", "4").size(), 20u);
    // Each key is one Change: "1" and "1." draw the same six copies, then 1.2 and 1.25.
    Form& f = t.show("frmHalfCube");
    t.edit(f, "txtLeng", "");
    std::vector<size_t> strokes;
    for (const char* text : {"1", "1.", "1.2", "1.25"}) {
        t.clear();
        t.edit(f, "txtLeng", text);
        strokes.push_back(t.count("frmHalfCube", "cls") * t.lines("frmHalfCube").size());
    }
    EXPECT_EQ(strokes, std::vector<size_t>({120, 120, 80, 80}));
}
