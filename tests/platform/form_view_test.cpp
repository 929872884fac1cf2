// The generic window: widgets built from a design table at 15 twips to the
// pixel, and widget events that reach the form's handlers.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QtTest/QTest>

#include "platform/form_view.h"
#include "support/test_app.h"

using namespace gp;
using gp::test::TestApp;

namespace {
template <typename W>
W* widgetOf(FormView& view, const QString& text) {
    for (W* w : view.findChildren<W*>())
        if (w->text() == text) return w;
    return nullptr;
}
} // namespace

TEST(FormView, TheMenuIsBuiltFromItsTable) {
    TestApp t;
    Form& menu = t.app().start("frmGrids");
    FormView view(t.app(), menu);
    EXPECT_EQ(view.windowTitle(), "Types of Grid Pages");
    EXPECT_EQ(view.width(), 600);   // 9000 twips
    EXPECT_EQ(view.height(), 483);  // 7245 twips
    auto buttons = view.findChildren<QPushButton*>();
    EXPECT_EQ(buttons.size(), 14);
    QPushButton* exit = widgetOf<QPushButton>(view, "E&xit");
    ASSERT_NE(exit, nullptr);
    EXPECT_EQ(exit->geometry(), QRect(24, 288, 97, 49));  // 360, 4320, 1455, 735
    QPushButton* squares = widgetOf<QPushButton>(view, "Multiplication Table and Squares");
    ASSERT_NE(squares, nullptr);
    EXPECT_TRUE(squares->font().bold());
    // Tab order follows the table: Exit first.
    EXPECT_EQ(buttons.first()->text(), "E&xit");
}

TEST(FormView, ClicksAndKeystrokesReachTheHandlers) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    FormView view(t.app(), f);
    view.show();
    QLineEdit* leng = nullptr;
    for (QLineEdit* e : view.findChildren<QLineEdit*>())
        if (e->text() == "1") leng = e;
    ASSERT_NE(leng, nullptr);
    int changes = 0;
    f.on("txtLeng", Event::Change, [&](const EventArgs&) { ++changes; });
    leng->setFocus();
    leng->selectAll();
    QTest::keyClicks(leng, "2.5");
    EXPECT_EQ(changes, 3);  // one Change a keystroke
    EXPECT_EQ(static_cast<TextBox*>(f.find("txtLeng"))->Text(), "2.5");

    widgetOf<QPushButton>(view, "Print It")->click();
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);

    // Code that writes a box shows in the window.
    static_cast<TextBox*>(f.find("txtAngle"))->setText("45");
    bool shown = false;
    for (QLineEdit* e : view.findChildren<QLineEdit*>()) shown |= e->text() == "45";
    EXPECT_TRUE(shown);
    view.detach();
}
