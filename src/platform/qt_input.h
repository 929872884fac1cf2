#pragma once
// Qt's input events in the terms handlers use: the classic key codes, mouse
// buttons 1, 2 and 4, and the Shift state.

#include <Qt>

class QKeyEvent;

namespace gp {

int classicKeyCode(const QKeyEvent* e);
int mouseButton(Qt::MouseButton b);
int shiftState(Qt::KeyboardModifiers m);

} // namespace gp
