// gridpages_shots DIR: opens the real windows of the program one by one, as
// a user would, and saves a picture of each form with what it shows, for the
// guide, and one of the keyboard focus on a yellow menu button. Run it under
// Xvfb (or QT_QPA_PLATFORM=offscreen); QT_SCALE_FACTOR=2 gives the pictures
// at 200%.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QImage>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>
#include <vector>

#include "all_forms.h"
#include "platform/qt_session.h"

namespace {

enum class Act { Press, Menu, Shoot, ShootFocus, Key, Wait };

struct Step {
    Act act;
    QString window;  // title of the window the step acts on
    QString arg;     // caption, menu entry or file name
    int ms = 0;      // Wait, or the key of Key
};

// The smallest PNG that keeps every pixel: pictures of forms are a few flat
// colours.
bool savePicture(const QImage& image, const QString& file) { return image.save(file, "PNG", 0); }

// A key pressed and released where the window has its focus, as a user
// types it.
void typeKey(QWidget* window, int key) {
    QWidget* target = window->focusWidget() ? window->focusWidget() : window;
    const auto mods = key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier;
    QKeyEvent press(QEvent::KeyPress, key, mods);
    QKeyEvent release(QEvent::KeyRelease, key, mods);
    QApplication::sendEvent(target, &press);
    QApplication::sendEvent(target, &release);
}

// The focused control with a margin of the form around it.
QImage focusPicture(QWidget* window) {
    QWidget* f = window->focusWidget();
    if (!f) return QImage();
    const QRect around(f->mapTo(window, QPoint(0, 0)), f->size());
    return window->grab(around.adjusted(-12, -12, 12, 12)).toImage();
}

QWidget* shownWindow(const QString& title) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->windowTitle() == title) return w;
    return nullptr;
}

QString plain(QString s) { return s.remove('&'); }

std::vector<Step> plan(const QString& dir) {
    const QString menu = "Types of Grid Pages";
    auto shootForm = [&](const QString& button, const QString& title, const QString& file,
                         std::vector<Step> extra = {}) {
        std::vector<Step> s = {{Act::Press, menu, button}};
        s.insert(s.end(), extra.begin(), extra.end());
        s.push_back({Act::Shoot, title, dir + "/" + file});
        s.push_back({Act::Press, title, "Exit"});
        return s;
    };
    std::vector<Step> steps = {{Act::Shoot, menu, dir + "/menu.png"},
                               {Act::Key, menu, "", Qt::Key_Tab},
                               {Act::ShootFocus, menu, dir + "/focus-ring.png"},
                               {Act::Key, menu, "", Qt::Key_Backtab}};
    auto add = [&](std::vector<Step> s) { steps.insert(steps.end(), s.begin(), s.end()); };
    add(shootForm("Triangles", "Triangle grids", "form-triangles.png"));
    add(shootForm("Multiplication Table and Squares", "Squares", "form-squares.png"));
    add(shootForm("Hexagons", "Hexagons", "form-hexagons.png"));
    add(shootForm("Parabola", "Draw a Parabola", "form-parabola.png"));
    add(shootForm("Folding Half Cube Template", "Folding Half Cube Template", "form-half-cube.png"));
    add(shootForm("RhombusCube Template", "RhombusCube Layout Printing", "form-rhombic-cube.png"));
    add(shootForm("Pyramid = 1/6 Cube", "Folding One-Sixth Cube Pyramid", "form-one-sixth-cube.png"));
    add(shootForm("Rhombus Dodecahedron Template", "Rhombus Dodecahedron Template", "form-rhombic-dodecahedron.png"));
    add(shootForm("Great Dodecagon Template", "Great Dodecagon Template", "form-great-dodecagon.png"));
    add(shootForm("String Art", "Stick Curves", "form-stick-curves.png",
                  {{Act::Press, "Stick Curves", "Double side it"}, {Act::Press, "Stick Curves", "Draw It"}}));
    add(shootForm("String Art 2", "String Art Point Plotting", "form-string-art.png",
                  {{Act::Press, "String Art Point Plotting", "Clear It"},
                   {Act::Menu, "String Art Point Plotting", "Octagon1"}}));
    add(shootForm("Explode It", "Explode It", "form-explode-it.png",
                  {{Act::Press, "Explode It", "Begin"}, {Act::Wait, "Explode It", "", 2600},
                   {Act::Press, "Explode It", "Quit"}}));
    steps.push_back({Act::Press, menu, "Exit"});
    return steps;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s DIR\n", argv[0]);
        return 2;
    }
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QString dir = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(dir);
    const std::vector<Step> steps = plan(dir);
    size_t next = 0;
    int failures = 0;
    qint64 waitUntil = 0;
    QElapsedTimer clock;
    clock.start();

    QTimer robot;
    robot.setInterval(100);
    QObject::connect(&robot, &QTimer::timeout, [&] {
        // Dialogs that come up on the way (the interval of Explode It) take
        // their default answer.
        if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            if (qobject_cast<QInputDialog*>(box) || qobject_cast<QMessageBox*>(box)) {
                QMetaObject::invokeMethod(box, "accept", Qt::QueuedConnection);
                return;
            }
        }
        if (next >= steps.size() || clock.elapsed() < waitUntil) return;
        const Step& s = steps[next];
        QWidget* w = shownWindow(s.window);
        if (!w) return;
        switch (s.act) {
        case Act::Wait:
            waitUntil = clock.elapsed() + s.ms;
            ++next;
            return;
        case Act::Shoot:
            if (!savePicture(w->grab().toImage(), s.arg)) ++failures;
            ++next;
            return;
        case Act::ShootFocus:
            if (!savePicture(focusPicture(w), s.arg)) ++failures;
            ++next;
            return;
        case Act::Key:
            typeKey(w, s.ms);
            ++next;
            return;
        case Act::Menu:
            for (QAction* a : w->findChildren<QAction*>())
                if (plain(a->text()) == s.arg) {
                    ++next;
                    QMetaObject::invokeMethod(a, "trigger", Qt::QueuedConnection);
                    return;
                }
            return;
        default:
            for (QAbstractButton* b : w->findChildren<QAbstractButton*>())
                if (plain(b->text()) == s.arg && b->isVisible()) {
                    ++next;
                    QMetaObject::invokeMethod(b, "click", Qt::QueuedConnection);
                    return;
                }
            return;
        }
    });
    robot.start();
    QTimer::singleShot(120000, [] { QApplication::exit(1); });
    const int status = gp::runWindowed(gp::gridpagesProgram());
    if (next < steps.size()) std::fprintf(stderr, "shots: stopped at step %zu\n", next + 1);
    return status != 0 || failures != 0 || next < steps.size() ? 1 : 0;
}
