#pragma once

#include <QString>

namespace zolt {

// The folder of the shipped data files: beside the executable (build tree,
// portable copy) or the installed share/zolt.
QString DataDirectory();

// A data file the desktop app rewrites (ZOLT.atb, ZOLT.DEF). A build tree or a
// portable copy keeps it beside the executable while that folder is writable; an
// installed copy keeps it in the user's data folder (UserCopyOf), even for root,
// so that the package's folder holds only what the package put there.
QString WritableDataFile(const QString& name);

// `name` in `userDirectory`, copied there from `shippedDirectory` the first time
// so that the user starts from the factory version; a copy the user already has
// is never replaced.
QString UserCopyOf(const QString& name, const QString& shippedDirectory,
                   const QString& userDirectory);

} // namespace zolt
