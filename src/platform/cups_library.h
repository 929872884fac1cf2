#pragma once
// The few CUPS calls a print job makes, from libcups loaded at the first
// job. Linked in, libcups brings a score of libraries (TLS, Kerberos, DNS
// service discovery) into every start of the program, a script that prints
// nothing included: a fifth of the start-up and megabytes of memory.

#include <cups/cups.h>

#include <string>

namespace gp {

struct CupsLibrary {
    decltype(&cupsAddOption) addOption;
    decltype(&cupsFreeOptions) freeOptions;
    decltype(&cupsPrintFile) printFile;
    decltype(&cupsLastErrorString) lastErrorString;

    // The library, loaded on the first call; nullptr, with the reason in
    // `error`, where it cannot be.
    static const CupsLibrary* get(std::string& error);
};

} // namespace gp
