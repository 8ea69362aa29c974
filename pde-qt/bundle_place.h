#pragma once

#include <QString>

namespace pdeqt {

/// The directory of the panel's bundle that belongs to this library: in a build tree, or where both
/// are installed. It is found from where the library lies, since the program may lie anywhere.
QString bundleOfThisLibrary();

} // namespace pdeqt
