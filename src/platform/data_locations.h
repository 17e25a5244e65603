#pragma once

#include <QString>

namespace zolt {

// The folder of the shipped data files: beside the executable (build tree,
// portable copy) or the installed share/zolt.
QString DataDirectory();

// A data file the desktop app rewrites (ZOLT.atb, ZOLT.DEF). It stays beside the
// shipped files while that folder is writable; an installed copy keeps it in the
// user's data folder instead, seeded from the shipped file the first time so
// that the factory version is what the user starts from.
QString WritableDataFile(const QString& name);

} // namespace zolt
