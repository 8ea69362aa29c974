#pragma once

#include "platform/pde/pde_plugin.h"

#include <QString>

namespace host {

/// The directory of the bundle that belongs to the program: beside its folder in a build tree, in
/// `../lib/image-options` where it is installed.
QString defaultBundleDirectory();

/// Opens a bundle and its module, `lib<name>.so` for the directory `<name>.pde`, and hands the
/// bundle over. The module stays loaded for the life of the process.
/// @param directory  null for the default directory
/// @return the entry object, owned by the module
/// @throw HostError
PDEPlugin *loadBundle(const QString &directory);

} // namespace host
