#include "print/print_robot.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QMessageBox>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <cstdio>

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

QAction* menuEntryIn(QWidget* window, const QString& entry) {
    for (QAction* a : window->findChildren<QAction*>())
        if (QString(a->text()).remove('&') == QString(entry).remove('&') && a->isEnabled()) return a;
    return nullptr;
}

void acceptLater(QDialog& dialog) { QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection); }
} // namespace

RobotStep click(const QString& window, const QString& button) { return {window, button, false, {}}; }
RobotStep menu(const QString& window, const QString& entry) { return {window, entry, true, {}}; }
RobotStep inDialog(std::function<void(QDialog&)> fill) { return {QString(), QString(), false, std::move(fill)}; }

void choosePrinter(QDialog& dialog, const QString& queue, int copies) {
    for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
        const int at = box->findText(queue);
        if (at >= 0) box->setCurrentIndex(at);
    }
    for (QSpinBox* spin : dialog.findChildren<QSpinBox*>())
        if (spin->objectName() == "copies") spin->setValue(copies);
    acceptLater(dialog);
}

void choosePaper(QDialog& dialog, const QString& paperName, bool landscape) {
    for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
        const int at = box->findText(paperName);
        if (at >= 0 && box->objectName() == "pageSizeCombo") box->setCurrentIndex(at);
    }
    for (QRadioButton* turn : dialog.findChildren<QRadioButton*>())
        if (turn->objectName() == (landscape ? "landscape" : "portrait")) turn->click();
    acceptLater(dialog);
}

void acceptAsItIs(QDialog& dialog) { acceptLater(dialog); }

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
        QWidget* modal = QApplication::activeModalWidget();
        // A message box (the one that names a saved sheet) is answered
        // first, and told, so that a failing run shows what it said.
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            std::fprintf(stderr, "robot: message: %s\n", qPrintable(box->text()));
            QMetaObject::invokeMethod(box, "accept", Qt::QueuedConnection);
            return;
        }
        if (next >= steps.size()) return;
        const RobotStep& step = steps[next];
        if (step.dialog) {
            auto* dialog = qobject_cast<QDialog*>(modal);
            // The forms are dialogs too, but never application-modal
            // ones of their own making: a dialog of the program is a
            // window whose title no step names.
            if (!dialog || !dialog->isVisible() || dialog->inherits("gp::FormView")) return;
            ++next;
            step.dialog(*dialog);
            return;
        }
        // A click must not reach past a dialog that is still up.
        if (qobject_cast<QDialog*>(modal) && !modal->inherits("gp::FormView")) return;
        QWidget* w = shownWindow(step.window);
        if (!w) return;
        if (step.menuEntry) {
            if (QAction* a = menuEntryIn(w, step.button)) {
                ++next;
                QMetaObject::invokeMethod(a, "trigger", Qt::QueuedConnection);
            }
        } else if (QAbstractButton* b = buttonIn(w, step.button)) {
            ++next;
            // Queued: the click may open a modal window that runs its own
            // loop, in which this robot goes on ticking.
            QMetaObject::invokeMethod(b, "click", Qt::QueuedConnection);
        }
    });
    robot.start();
    QTimer::singleShot(seconds * 1000, [&] {
        timedOut = true;
        std::fprintf(stderr, "robot: step %zu of %zu did not come\n", next + 1, steps.size());
        QApplication::exit(1);
    });
    const int status = runWindowed(gridpagesProgram());
    return timedOut ? 1 : status;
}

} // namespace gp::test
