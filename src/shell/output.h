#pragma once
// The outcome of writing something out of the program: a sheet to a file or
// a printer, a trace, a saved drawing. A caller must look at it: nothing the
// user asked for may fail without being told.

#include <string>
#include <utility>

namespace gp {

class [[nodiscard]] OutputResult {
public:
    static OutputResult written() { return OutputResult(); }
    // `what`: the file or printer; `reason`: the system's own words.
    static OutputResult failed(const std::string& what, const std::string& reason) {
        OutputResult r;
        r.error_ = what + ": " + reason;
        return r;
    }

    bool ok() const { return error_.empty(); }
    // "sheets/sheet-0001.pdf: No space left on device"
    const std::string& error() const { return error_; }

private:
    std::string error_;
};

} // namespace gp
