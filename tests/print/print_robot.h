#pragma once
// Drives the real windowed program as a user would: waits for a window,
// presses a button or picks a menu entry, fills in a dialog, answers a
// message box. Runs the whole session and returns its exit code (1 when a
// step did not come within the time limit).

#include <QString>
#include <functional>
#include <vector>

class QDialog;

namespace gp::test {

struct RobotStep {
    QString window;  // title of the window that must be on show
    QString button;  // caption of the button to press in it
    bool menuEntry = false;  // `button` names a menu entry instead ('&' left out)
    // A dialog step: waits for a dialog of the program (not a message box)
    // and hands it over to be filled in; the function accepts or rejects it.
    std::function<void(QDialog&)> dialog;
};

RobotStep click(const QString& window, const QString& button);
RobotStep menu(const QString& window, const QString& entry);
RobotStep inDialog(std::function<void(QDialog&)> fill);

// Fill-ins for the dialogs of the Printing menu and of a saved sheet.
void choosePrinter(QDialog& dialog, const QString& queue, int copies);
void choosePaper(QDialog& dialog, const QString& paperName, bool landscape = false);
void acceptAsItIs(QDialog& dialog);

int runRobot(const std::vector<RobotStep>& steps, int seconds);

} // namespace gp::test
