#pragma once
// Drives the real windowed program as a user would: waits for a window,
// presses a button, answers a message box. Runs the whole session and
// returns its exit code (1 when a step did not come within the time limit).

#include <QString>
#include <vector>

namespace gp::test {

struct RobotStep {
    QString window;  // title of the window that must be on show
    QString button;  // caption of the button to press in it
};

int runRobot(const std::vector<RobotStep>& steps, int seconds);

} // namespace gp::test
