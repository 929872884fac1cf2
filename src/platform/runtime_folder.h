#pragma once
// Qt wants a private runtime folder (XDG_RUNTIME_DIR); a batch run on a
// server or in a build job often has none. Where it is missing, one is made
// for this run only and removed again on every way out: the normal end, an
// error, or a signal that ends the process.

namespace gp {

class RuntimeFolder {
public:
    RuntimeFolder();  // makes one only where the environment names none
    ~RuntimeFolder();
    RuntimeFolder(const RuntimeFolder&) = delete;
    RuntimeFolder& operator=(const RuntimeFolder&) = delete;
};

} // namespace gp
