// The window lifecycle and the guard: what the user gets back after Exit,
// after closing by the frame, and after a handler that faults.
#include <gtest/gtest.h>

#include "shell/frm_grids.h"
#include "support/test_app.h"

using namespace gp;
using gp::test::TestApp;

TEST(Lifecycle, ExitKeepsTheTextAndClosingByTheFrameBringsBackTheDefault) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    t.edit(f, "txtLeng", "2");
    t.fire(f, "cmdExit", Event::Click);
    EXPECT_FALSE(f.visible());
    Form& again = t.show("frmTriangle");
    EXPECT_EQ(&again, &f);
    EXPECT_EQ(static_cast<TextBox*>(again.find("txtLeng"))->Text(), "2");

    t.app().closeByFrame(again);
    EXPECT_EQ(t.app().loaded("frmTriangle"), nullptr);
    Form& fresh = t.show("frmTriangle");
    EXPECT_EQ(static_cast<TextBox*>(fresh.find("txtLeng"))->Text(), "1");
}

TEST(Lifecycle, ActivateRunsOnEveryShow) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    int activations = 0;
    f.on(kFormEvents, Event::Activate, [&](const EventArgs&) { ++activations; });
    t.fire(f, "cmdExit", Event::Click);
    t.show("frmTriangle");
    t.fire(f, "cmdExit", Event::Click);
    t.show("frmTriangle");
    EXPECT_EQ(activations, 2);
}

TEST(Lifecycle, TheMenuHasItsFourteenButtonsAndExitEnds) {
    TestApp t;
    Form& menu = t.app().start("frmGrids");
    const FormDesign& d = menu.design();
    EXPECT_EQ(d.caption, "Types of Grid Pages");
    EXPECT_EQ(d.clientWidth, 9000);
    EXPECT_EQ(d.clientHeight, 7245);
    ASSERT_EQ(d.controls.size(), 14u);
    EXPECT_EQ(d.controls[0].name, "cmdExit");  // first in tab order
    EXPECT_EQ(d.controls[0].backColor, kDefaultColor);
    EXPECT_FALSE(d.controls[0].font->bold);
    EXPECT_EQ(d.controls[13].name, "Command1");
    EXPECT_EQ(d.controls[13].caption, "Pyramid = 1/6 Cube");
    for (size_t i = 1; i < d.controls.size(); ++i) {
        EXPECT_EQ(d.controls[i].backColor, RGB(255, 255, 0)) << d.controls[i].name;
        EXPECT_TRUE(d.controls[i].font->bold);
    }
    t.fire(menu, "cmdTriangle", Event::Click);
    ASSERT_NE(t.app().loaded("frmTriangle"), nullptr);
    t.fire(menu, "cmdExit", Event::Click);
    EXPECT_TRUE(t.ended());
    EXPECT_TRUE(t.app().ended());
}

TEST(Lifecycle, ClosingTheMenuByItsFrameEndsTheProgram) {
    TestApp t;
    Form& menu = t.app().start("frmGrids");
    t.app().closeByFrame(menu);
    EXPECT_TRUE(t.ended());
}

TEST(Lifecycle, AFormThatIsNotThereIsReportedNotOpened) {
    TestApp t;
    t.app().Show1("frmNoSuchPage");
    ASSERT_EQ(t.dialogs().size(), 1u);
    EXPECT_EQ(t.dialogs()[0].kind, "msgbox");
    EXPECT_EQ(t.dialogs()[0].prompt, "This page (frmNoSuchPage) is not part of this version yet.");
}

TEST(Guard, AFaultEndsTheHandlerWithAMessageAndTheFormStaysUsable) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    f.on(kFormEvents, Event::KeyDown, [&](const EventArgs&) {
        f.Printer().Line(0, 0, 100, 100);
        Integer x = 32767;
        x += 1;
    });
    t.fire(f, kFormEvents, Event::KeyDown);
    ASSERT_EQ(t.faults().size(), 1u);
    EXPECT_NE(t.faults()[0].find("overflow"), std::string::npos);
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_TRUE(f.visible());
}

TEST(Guard, AnUnendingLoopIsStoppedByTheWorkLimit) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    f.on(kFormEvents, Event::KeyDown, [&](const EventArgs&) {
        for (;;) f.work();
    });
    t.fire(f, kFormEvents, Event::KeyDown);
    ASSERT_EQ(t.faults().size(), 1u);
    // The next event has its whole budget again.
    t.fire(f, "cmdPrintIt", Event::Click);
    EXPECT_EQ(t.faults().size(), 1u);
}

TEST(Controls, ChangeIsRaisedByCodeOnlyWhenTheTextChanges) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    int changes = 0;
    f.on("txtLeng", Event::Change, [&](const EventArgs&) { ++changes; });
    auto* box = static_cast<TextBox*>(f.find("txtLeng"));
    box->setText("1");
    EXPECT_EQ(changes, 0);
    box->setText("3");
    EXPECT_EQ(changes, 1);
    box->userEdit("3");  // an edit by the user always counts
    EXPECT_EQ(changes, 2);
}
