// Handlers are bound by control name and event; a binding that could never
// run (a misspelt name, an event the control is never sent) fails when the
// form is built, with a message that names all three.
#include <gtest/gtest.h>

#include <stdexcept>

#include "support/test_app.h"

using namespace gp;
using gp::test::TestApp;

namespace {

FormDesign smallDesign() {
    FormDesign d;
    d.name = "frmSmall";
    d.clientWidth = 3000;
    d.clientHeight = 2000;
    d.controls = {
        ButtonDesign("cmdPrintIt", "Print It"),
        TextBoxDesign("txtLeng", "1"),
        TextBoxDesign("txtX", "0").element(0),
        TextBoxDesign("txtX", "0").element(1),
        LabelDesign("lblAngle", "Angle"),
        FrameDesign("fraShape", "Shape"),
        TimerDesign("Timer1", 100, false),
        MenuDesign("mnuInfo", "Info"),
    };
    return d;
}

std::string bindingError(Form& f, const std::string& control, Event event) {
    try {
        f.on(control, event, [](const EventArgs&) {});
    } catch (const std::logic_error& e) {
        return e.what();
    }
    return "";
}

} // namespace

TEST(Bindings, EveryFormOfTheProgramLoadsWithAllItsBindings) {
    TestApp t;
    const std::vector<std::string> names = t.app().formNames();
    EXPECT_EQ(names.size(), 14u);
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        EXPECT_NO_THROW(t.app().load(name));
        ASSERT_NE(t.app().loaded(name), nullptr);
    }
}

TEST(Bindings, AMisspeltControlFailsAndNamesFormControlAndEvent) {
    TestApp t;
    Form f(t.app(), smallDesign());
    EXPECT_EQ(bindingError(f, "cmdPrntIt", Event::Click),
              "frmSmall cannot bind cmdPrntIt_Click: it has no control cmdPrntIt");
    // Names are matched exactly, as the events are raised.
    EXPECT_NE(bindingError(f, "cmdprintit", Event::Click), "");
    EXPECT_NE(bindingError(f, "txtX(0)", Event::Change), "");
    EXPECT_FALSE(f.handles("cmdPrntIt", Event::Click));
}

TEST(Bindings, AnEventTheKindIsNeverSentFails) {
    TestApp t;
    Form f(t.app(), smallDesign());
    EXPECT_EQ(bindingError(f, "txtLeng", Event::Click), "frmSmall cannot bind txtLeng_Click: a text box raises no Click");
    EXPECT_EQ(bindingError(f, "cmdPrintIt", Event::MouseDown),
              "frmSmall cannot bind cmdPrintIt_MouseDown: a button raises no MouseDown");
    EXPECT_EQ(bindingError(f, "fraShape", Event::Click), "frmSmall cannot bind fraShape_Click: a frame raises no Click");
    EXPECT_NE(bindingError(f, "Timer1", Event::Click), "");
    EXPECT_NE(bindingError(f, "txtLeng", Event::KeyDown), "");
    EXPECT_EQ(bindingError(f, kFormEvents, Event::Click), "frmSmall cannot bind Form_Click: a form raises no Click");
    EXPECT_NE(bindingError(f, kFormEvents, Event::Timer), "");
}

TEST(Bindings, WhatTheWindowAndTheScriptSendIsAccepted) {
    TestApp t;
    Form f(t.app(), smallDesign());
    for (auto [control, event] : std::vector<std::pair<std::string, Event>>{
             {"cmdPrintIt", Event::Click}, {"txtLeng", Event::Change}, {"txtLeng", Event::LostFocus},
             {"lblAngle", Event::MouseDown}, {"lblAngle", Event::Click}, {"Timer1", Event::Timer},
             {"mnuInfo", Event::Click}, {kFormEvents, Event::Load}, {kFormEvents, Event::Activate},
             {kFormEvents, Event::QueryUnload}, {kFormEvents, Event::MouseDown},
             {kFormEvents, Event::MouseMove}, {kFormEvents, Event::KeyDown}}) {
        EXPECT_EQ(bindingError(f, control, event), "") << control << " " << eventName(event);
        EXPECT_TRUE(f.handles(control, event));
    }
}

TEST(Bindings, OneBindingServesEveryElementOfAControlArray) {
    TestApp t;
    Form small(t.app(), smallDesign());
    std::vector<int> changed;
    small.on("txtX", Event::Change, [&](const EventArgs& a) { changed.push_back(a.index); });
    static_cast<TextBox*>(small.find("txtX", 1))->userEdit("5");
    static_cast<TextBox*>(small.find("txtX", 0))->userEdit("6");
    EXPECT_EQ(changed, (std::vector<int>{1, 0}));
}
