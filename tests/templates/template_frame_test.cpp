// The window that the template forms share: design, the range test of
// txtLeng_Change, typing key by key, the lifecycle, the Info boxes, the
// print's one sheet and the sides that are refused.
#include <gtest/gtest.h>

#include "templates/template_form.h"
#include "template_test_util.h"

using namespace gp;
using namespace gp::test;

namespace {
const char* kForms[] = {"frmHalfCube", "frmRhombiCube", "frmOneSixthCube"};

std::string TextOf(Form& f) { return static_cast<TextBox*>(f.find("txtLeng"))->Text(); }
}

TEST(TemplateFrame, DesignOfTheThreeForms) {
    TestApp t;
    struct Want { const char* form; const char* caption; const char* info; const char* lengthLabel; long ground; };
    for (Want w : {Want{"frmHalfCube", "Folding Half Cube Template", "&Info", "lblLeng", RGB(255, 255, 128)},
                   Want{"frmRhombiCube", "RhombusCube Layout Printing", "&Info", "lblLengthRC", RGB(255, 255, 128)},
                   Want{"frmOneSixthCube", "Folding One-Sixth Cube Pyramid", "Info", "lblSize", RGB(255, 255, 0)}}) {
        Form& f = t.show(w.form);
        SCOPED_TRACE(w.form);
        EXPECT_EQ(f.design().caption, w.caption);
        EXPECT_EQ(f.design().clientWidth, 9405);
        EXPECT_EQ(f.design().clientHeight, 8400);
        EXPECT_EQ(f.design().backColor, RGB(0, 192, 192));
        EXPECT_EQ(TextOf(f), "1");
        EXPECT_EQ(static_cast<Label*>(f.find("mnuInfo"))->Caption(), w.info);
        EXPECT_EQ(static_cast<Label*>(f.find("cmdPrintIt"))->Caption(), "Print It");
        EXPECT_EQ(static_cast<Label*>(f.find("cmdExit"))->Caption(), "E&xit");
        EXPECT_EQ(f.find("cmdPrintIt")->design().backColor, RGB(255, 255, 0));
        EXPECT_EQ(f.find(w.lengthLabel)->design().backColor, w.ground);
        for (const auto& c : f.design().controls) {
            if (c.kind == ControlKind::Menu) continue;
            EXPECT_LE(c.left + c.width, 2775) << c.name;
        }
        f.Hide();
    }
}

TEST(TemplateFrame, RangeOfTheRedrawDiffersByForm) {
    struct Case { const char* form; const char* text; bool redraws; };
    for (Case c : {Case{"frmHalfCube", "4", false}, Case{"frmRhombiCube", "4", true},
                   Case{"frmHalfCube", "3.99", true}, Case{"frmOneSixthCube", "4.99", true},
                   Case{"frmOneSixthCube", "5", false}, Case{"frmRhombiCube", "4.01", false},
                   Case{"frmHalfCube", "0", false}, Case{"frmHalfCube", "abc", false},
                   Case{"frmHalfCube", "-1", false}}) {
        TestApp t;
        auto& f = t.show<TemplateForm>(c.form);
        EXPECT_EQ(f.InRange(Val(c.text)), c.redraws) << c.form << " " << c.text;
        t.clear();
        t.edit(f, "txtLeng", c.text);
        EXPECT_EQ(t.count(c.form, "cls"), 1) << c.form << " " << c.text;
        EXPECT_TRUE(t.faults().empty());
    }
    // In range but drawing nothing: a 4 inch rhombi-cube does not fit the canvas.
    TestApp t;
    EXPECT_TRUE(PreviewAt(t, "frmRhombiCube", "4").empty());
}

TEST(TemplateFrame, EmptyTextKeepsThePreviewAndZeroClearsIt) {
    for (const char* form : kForms) {
        TestApp t;
        Form& f = t.show(form);
        EXPECT_FALSE(t.lines(form).empty());
        t.clear();
        t.edit(f, "txtLeng", "");
        EXPECT_TRUE(t.ops().empty()) << form;  // no Cls, no strokes
        t.edit(f, "txtLeng", "0");
        EXPECT_EQ(t.count(form, "cls"), 1);
        EXPECT_TRUE(t.lines(form).empty());
        t.edit(f, "txtLeng", "1");
        EXPECT_FALSE(t.lines(form).empty());
        EXPECT_TRUE(t.faults().empty()) << form;
    }
}

TEST(TemplateFrame, TypingKeyByKeyClearsAndRedrawsAtEachKey) {
    TestApp t;
    Form& f = t.show("frmHalfCube");
    t.edit(f, "txtLeng", "");
    t.clear();
    std::string text;
    std::vector<size_t> strokes;
    for (char ch : std::string("1.25")) {
        text += ch;
        size_t before = t.lines("frmHalfCube").size();
        t.edit(f, "txtLeng", text);
        strokes.push_back(t.lines("frmHalfCube").size() - before);
    }
    EXPECT_EQ(t.count("frmHalfCube", "cls"), 4);
    // "1" and "1." draw the same six copies; 1.2 and 1.25 draw again.
    EXPECT_EQ(strokes[0], 120u);
    EXPECT_EQ(strokes[1], 120u);
    EXPECT_GT(strokes[2], 0u);
    EXPECT_GT(strokes[3], 0u);
}

TEST(TemplateFrame, ActivatingAgainDrawsOverWithNoCls) {
    TestApp t;
    Form& f = t.show("frmRhombiCube");
    t.fire(f, "cmdExit", Event::Click);
    EXPECT_FALSE(f.visible());
    t.clear();
    t.show("frmRhombiCube");
    EXPECT_EQ(t.count("frmRhombiCube", "cls"), 0);
    EXPECT_EQ(t.lines("frmRhombiCube").size(), 10u * 19);
}

TEST(TemplateFrame, ExitKeepsTheTextAndClosingByTheFrameRestoresTheDefault) {
    for (const char* form : kForms) {
        TestApp t;
        Form& f = t.show(form);
        t.edit(f, "txtLeng", "6");  // out of range: blank canvas
        t.fire(f, "cmdExit", Event::Click);
        t.clear();
        Form& again = t.show(form);
        EXPECT_EQ(&again, &f);
        EXPECT_EQ(TextOf(again), "6");
        t.app().closeByFrame(again);
        EXPECT_TRUE(again.unloaded());
        Form& fresh = t.show(form);
        EXPECT_EQ(TextOf(fresh), "1") << form;
    }
}

TEST(TemplateFrame, OutOfRangeTextIsPreviewedOnTheNextOpening) {
    TestApp t;
    Form& f = t.show("frmHalfCube");
    t.edit(f, "txtLeng", "4");
    EXPECT_TRUE(t.lines("frmHalfCube").size() == 120u);  // only the opening's six copies
    t.fire(f, "cmdExit", Event::Click);
    t.clear();
    t.show("frmHalfCube");
    EXPECT_EQ(t.lines("frmHalfCube").size(), 20u);  // no range test: one copy, clipped
}

TEST(TemplateFrame, QueryUnloadOnlyWhereTheFormHasIt) {
    TestApp t;
    EXPECT_TRUE(t.show("frmHalfCube").handles(kFormEvents, Event::QueryUnload));
    EXPECT_TRUE(t.show("frmOneSixthCube").handles(kFormEvents, Event::QueryUnload));
    EXPECT_FALSE(t.show("frmRhombiCube").handles(kFormEvents, Event::QueryUnload));
}

TEST(TemplateFrame, InfoBoxesComeOneAfterTheOther) {
    struct Case { const char* form; std::vector<std::string> titles; const char* secondStart; };
    for (const Case& c : {Case{"frmHalfCube", {"Info #1", "8 half cubes forms a Cube and Stellated shape"},
                               "You can place 8 of these together"},
                          Case{"frmRhombiCube", {"Info #1", "Connecting them"}, "If you connect 16"},
                          Case{"frmOneSixthCube", {"Info #1", "8 half cubes forms a Cube and Stellated shape"},
                               "You can place 3 of these together"}}) {
        TestApp t;
        Form& f = t.show(c.form);
        t.clear();
        t.fire(f, "mnuInfo", Event::Click);
        ASSERT_EQ(t.dialogs().size(), 2u) << c.form;
        for (size_t i = 0; i < 2; ++i) {
            EXPECT_EQ(t.dialogs()[i].kind, "msgbox");
            EXPECT_EQ(t.dialogs()[i].buttons, 0);
            EXPECT_EQ(t.dialogs()[i].title, c.titles[i]);
        }
        EXPECT_EQ(t.dialogs()[1].prompt.rfind(c.secondStart, 0), 0u) << t.dialogs()[1].prompt;
        EXPECT_TRUE(t.ops().empty());  // changes nothing
    }
    TestApp t;
    Form& f = t.show("frmHalfCube");
    t.fire(f, "mnuInfo", Event::Click);
    EXPECT_EQ(t.dialogs()[0].prompt,
              "You should see 6 congruent shapes here.  They are made up of 3 squares and 6 triangles.  Some "
              "lines overlap.  Cut on all the solid lines to cut them out.  Fold on the dotted to get a shape "
              "which is half of a cube.  The triangle vertexes will all meet at what would be the center of the "
              "cube.  Two of these shapes will form a cube.");
}

TEST(TemplateFrame, PrintIsOneSheetAtWidthOneWhateverThePrinterHeld) {
    TestApp t;
    t.printer().setDrawWidth(5);
    Form& f = t.show("frmOneSixthCube");
    t.clear();
    t.fire(f, "cmdPrintIt", Event::Click);
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_EQ(t.count("Printer", "enddoc"), 2);
    for (const Stroke& s : t.lines("Printer")) ASSERT_EQ(s.width, 1);
    EXPECT_TRUE(t.lines("frmOneSixthCube").empty());  // the preview is left alone
    EXPECT_EQ(TextOf(f), "1");
}

TEST(TemplateFrame, BadSidesDrawNothingAndKeepTheText) {
    for (const char* form : kForms) {
        for (const char* text : {"", "0", "-1", "abc", "0.0005", "40", "1e9"}) {
            TestApp t;
            Form& f = t.show(form);
            t.edit(f, "txtLeng", text);
            t.fire(f, "cmdExit", Event::Click);
            t.clear();
            t.show(form);  // the preview with no range test
            EXPECT_TRUE(t.lines(form).empty()) << form << " '" << text << "'";
            EXPECT_TRUE(t.faults().empty()) << form << " '" << text << "'";
            t.fire(f, "cmdPrintIt", Event::Click);
            EXPECT_TRUE(t.lines("Printer").empty());
            EXPECT_EQ(t.count("Printer", "enddoc"), 0);
            ASSERT_EQ(t.faults().size(), 1u) << form << " '" << text << "'";
            EXPECT_EQ(t.faults()[0].rfind("Nothing was printed", 0), 0u);
            EXPECT_EQ(TextOf(f), text);
            // The form goes on working.
            t.edit(f, "txtLeng", "1");
            EXPECT_FALSE(t.lines(form).empty());
        }
    }
}

TEST(TemplateFrame, APreviewTooDenseToDrawQuicklyStaysBlankWithNoMessage) {
    // Sides of a few units fill the canvas with hundreds of thousands of
    // copies; typing must not stall on them, and the preview shows no box.
    struct Case { const char* form; const char* text; };
    for (Case c : {Case{"frmRhombiCube", "0.0075"}, Case{"frmOneSixthCube", "0.0075"},
                   Case{"frmGreatDodeca", "0.01"}, Case{"frmRhombiDodec", "0.005"}}) {
        TestApp t;
        Form& f = t.show(c.form);
        t.clear();
        t.edit(f, "txtLeng", c.text);
        EXPECT_EQ(t.count(c.form, "cls"), 1) << c.form;
        EXPECT_TRUE(t.lines(c.form).empty()) << c.form;
        EXPECT_TRUE(t.faults().empty()) << c.form;
        EXPECT_TRUE(t.dialogs().empty()) << c.form;
    }
}
