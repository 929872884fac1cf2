// The keyboard as on every other program: Tab walks the design table's
// order, Return and Enter click the focused button as Space does, Escape
// leaves a page form by its Exit; Explode It keeps its keys to itself.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>
#include <vector>

#include "all_forms.h"
#include "platform/form_view.h"
#include "platform/qt_session.h"
#include "support/test_app.h"

// Failures show text, not code units.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

using namespace gp;
using gp::test::TestApp;

namespace {
QWidget* shownWindow(const QString& title) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->windowTitle() == title) return w;
    return nullptr;
}

// Where the focus is: a button by its caption, or a text box.
QString focusedCaption(QWidget* window) {
    QWidget* f = window ? window->focusWidget() : nullptr;
    if (auto* b = qobject_cast<QAbstractButton*>(f)) return b->text();
    if (qobject_cast<QLineEdit*>(f)) return "a text box";
    return "(nothing)";
}

template <typename W>
W* widgetOf(QWidget& view, const QString& text) {
    for (W* w : view.findChildren<W*>())
        if (w->text() == text) return w;
    return nullptr;
}

// A key pressed and released on the focused widget of `view`, as the window
// system delivers it.
void key(QWidget& view, Qt::Key k) { QTest::keyClick(view.windowHandle(), k); }
} // namespace

// The whole windowed program, driven by keys only. Each step waits for its
// window, looks where the focus is and presses one key.
TEST(Keyboard, TabAndReturnOpenSquaresAndEscapeComesBack) {
    const QString menu = "Types of Grid Pages";
    struct Step {
        QString window;
        bool shown;  // the window must be on show (false: must be gone)
        Qt::Key key;
        Qt::KeyboardModifiers mods;
    };
    const std::vector<Step> steps = {
        {menu, true, Qt::Key_Escape, Qt::NoModifier},  // does not end the program
        {menu, true, Qt::Key_Tab, Qt::NoModifier},
        {menu, true, Qt::Key_Return, Qt::NoModifier},
        {"Squares", true, Qt::Key_Escape, Qt::NoModifier},
        {menu, true, Qt::Key_Backtab, Qt::ShiftModifier},
        {menu, true, Qt::Key_Enter, Qt::KeypadModifier},  // Exit ends the program
    };
    // No print service to wait for (the program asks it for the paper when it
    // starts), and settings of its own.
    QTemporaryDir home;
    qputenv("CUPS_SERVER", QFile::encodeName(home.filePath("no-cups.sock")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    std::vector<QString> focus;
    size_t next = 0;
    QTimer robot;
    robot.setInterval(50);
    QObject::connect(&robot, &QTimer::timeout, [&] {
        if (next >= steps.size()) return;
        const Step& s = steps[next];
        QWidget* w = shownWindow(s.window);
        // Only the window on top takes keys: the menu waits under Squares.
        if (!w || !w->isActiveWindow() || (s.window == menu && shownWindow("Squares"))) return;
        focus.push_back(s.window + ": " + focusedCaption(w));
        ++next;
        // From the event loop, not from inside this tick: a key that opens a
        // form waits in its modal loop, where this timer does not tick again.
        QWindow* window = w->windowHandle();
        QTimer::singleShot(0, [window, s] { QTest::keyClick(window, s.key, s.mods); });
    });
    QTimer::singleShot(30000, [] { QApplication::exit(1); });
    robot.start();
    const int status = runWindowed(gridpagesProgram());
    robot.stop();
    EXPECT_EQ(status, 0);
    EXPECT_EQ(next, steps.size());
    const std::vector<QString> expected = {
        menu + ": E&xit",
        menu + ": E&xit",
        menu + ": Multiplication Table and Squares",
        "Squares: a text box",  // the first in its tab order
        menu + ": Multiplication Table and Squares",
        menu + ": E&xit",
    };
    EXPECT_EQ(focus, expected);
    // The program's windows outlive their session; let them go with it.
    std::vector<QPointer<FormView>> views;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* v = qobject_cast<FormView*>(w)) views.emplace_back(v);
    for (auto& v : views) delete v.data();
}

TEST(Keyboard, ReturnClicksOnceHoweverLongItIsHeld) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    FormView view(t.app(), f);
    view.show();
    QAbstractButton* print = widgetOf<QAbstractButton>(view, "Print It");
    print->setFocus();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QKeyEvent repeatUp(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier, "\r");
    QApplication::sendEvent(print, &press);
    EXPECT_TRUE(print->isDown());
    EXPECT_EQ(t.count("Printer", "enddoc"), 0);  // the click comes on the release
    for (int i = 0; i < 5; ++i) {
        QApplication::sendEvent(print, &repeatUp);
        QApplication::sendEvent(print, &repeat);
    }
    QApplication::sendEvent(print, &release);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    EXPECT_FALSE(print->isDown());

    // Ctrl+Return is not a click, nor is a Return whose press went to
    // another control.
    QTest::keyClick(print, Qt::Key_Return, Qt::ControlModifier);
    QApplication::sendEvent(print, &release);
    EXPECT_EQ(t.count("Printer", "enddoc"), 1);
    // Space still clicks.
    QTest::keyClick(print, Qt::Key_Space);
    EXPECT_EQ(t.count("Printer", "enddoc"), 2);
    view.detach();
}

TEST(Keyboard, ReturnInATextBoxClicksNothingAndEscapeThereLeaves) {
    TestApp t;
    Form& f = t.show("frmTriangle");
    FormView view(t.app(), f);
    view.setExitOnEscape(true);
    view.show();
    QLineEdit* leng = nullptr;
    for (QLineEdit* e : view.findChildren<QLineEdit*>())
        if (e->text() == "1") leng = e;
    ASSERT_NE(leng, nullptr);
    leng->setFocus();
    key(view, Qt::Key_Return);
    key(view, Qt::Key_Enter);
    EXPECT_EQ(t.count("Printer", "enddoc"), 0);
    EXPECT_TRUE(f.visible());
    key(view, Qt::Key_Escape);
    EXPECT_FALSE(f.visible());  // hidden by cmdExit_Click, not unloaded
    EXPECT_FALSE(f.unloaded());
    view.detach();
}

TEST(Keyboard, ExplodeItKeepsItsKeys) {
    TestApp t;
    t.answer("500");
    Form& f = t.show("frmExplodeIt");
    FormView view(t.app(), f);
    // The window goes when its form unloads, as the windowed host sees to.
    t.session().onFormUnloading([&](Form& gone) {
        if (&gone != &f) return;
        view.hide();
        view.detach();
    });
    view.setExitOnEscape(true);
    view.show();
    // With a control holding the focus, Escape reaches no handler at all.
    QAbstractButton* quit = widgetOf<QAbstractButton>(view, "Quit");
    quit->setFocus();
    key(view, Qt::Key_Escape);
    EXPECT_TRUE(f.visible());
    EXPECT_FALSE(f.unloaded());
    // Return clicks the focused button there too: Plot Points redraws.
    QAbstractButton* plot = widgetOf<QAbstractButton>(view, "Plot Points");
    plot->setFocus();
    t.clear();
    key(view, Qt::Key_Return);
    EXPECT_EQ(t.count("frmExplodeIt", "cls"), 1);
    EXPECT_FALSE(f.unloaded());
    // A key that reaches the form itself unloads it, Escape included. The
    // form is gone then, and the window must not touch it any more.
    view.clientArea()->setFocus();
    key(view, Qt::Key_Escape);
    EXPECT_EQ(t.app().loaded("frmExplodeIt"), nullptr);
    EXPECT_FALSE(view.isVisible());
}
