#pragma once
// A whole program of forms: how to register them and which one the session
// shows first. The windowed and the scripted session take it from main, so
// neither knows the names of the forms it runs.

#include <string>

namespace gp {

class FormSet;

struct Program {
    void (*registerForms)(FormSet&);
    std::string startForm;
};

} // namespace gp
