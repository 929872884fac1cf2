#include "print/print_robot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "all_forms.h"
#include "platform/qt_session.h"

namespace gp::test {

namespace {
QWidget* shownWindow(const QString& title) {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->windowTitle() == title) return w;
    return nullptr;
}

QAbstractButton* buttonIn(QWidget* window, const QString& caption) {
    for (QAbstractButton* b : window->findChildren<QAbstractButton*>())
        if (b->text() == caption && b->isVisible()) return b;
    return nullptr;
}
} // namespace

int runRobot(const std::vector<RobotStep>& steps, int seconds) {
    int argc = 1;
    char name[] = "gridpages";
    char* argv[] = {name, nullptr};
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    size_t next = 0;
    bool timedOut = false;

    QTimer robot;
    robot.setInterval(50);
    QObject::connect(&robot, &QTimer::timeout, [&] {
        // A message box (the one that names the folder of saved sheets)
        // is answered first.
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            QMetaObject::invokeMethod(box, "accept", Qt::QueuedConnection);
            return;
        }
        if (next >= steps.size()) return;
        QWidget* w = shownWindow(steps[next].window);
        if (!w) return;
        if (QAbstractButton* b = buttonIn(w, steps[next].button)) {
            ++next;
            // Queued: the click may open a modal window that runs its own
            // loop, in which this robot goes on ticking.
            QMetaObject::invokeMethod(b, "click", Qt::QueuedConnection);
        }
    });
    robot.start();
    QTimer::singleShot(seconds * 1000, [&] {
        timedOut = true;
        QApplication::exit(1);
    });
    const int status = runWindowed(gridpagesProgram());
    return timedOut ? 1 : status;
}

} // namespace gp::test
