#pragma once
// Sheets saved under their own names, numbered in their folder:
// "Half Cube 2 in - 1.pdf", "Half Cube 2 in - 2.pdf", ... The number goes on
// after the highest one of that name already there, so a sheet never takes
// the place of another.

#include <QString>
#include <string>
#include <string_view>

#include "shell/output.h"

namespace gp {

// A sheet's name as a file name: no folder separators, no control
// characters, no leading dot (a hidden file), never empty.
QString fileSafeName(const std::string& name);

// The first free "NAME - N.EXT" in `folder`, N one above the highest there.
QString nextSheetFile(const QString& folder, const std::string& name, const QString& extension);

// Writes the bytes as the next numbered sheet of that name in `folder`,
// making the folder where it is missing; `written` gets the file's path.
OutputResult writeNumberedSheet(const QString& folder, const std::string& name, const QString& extension,
                                std::string_view bytes, QString& written);

} // namespace gp
