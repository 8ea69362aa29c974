#include "pde-qt/bundle_place.h"

#include "host/bundle_loader.h"

#include <QDir>
#include <QFileInfo>

#include <dlfcn.h>

namespace pdeqt {
namespace {

/// From the library's folder.
constexpr const char *kPlaces[] = {
    "../ImageOptions.pde",               // a build tree
    "image-options/ImageOptions.pde",    // lib/
    "ImageOptions.pde",                  // lib/image-options/
    "../image-options/ImageOptions.pde", // lib/<architecture>/
};

} // namespace

QString bundleOfThisLibrary() {
    Dl_info info = {};
    if (dladdr(reinterpret_cast<const void *>(&bundleOfThisLibrary), &info) && info.dli_fname) {
        const QFileInfo library(QFile::decodeName(info.dli_fname));
        const QDir folder(library.canonicalPath());
        for (const char *place : kPlaces)
            if (const QString path = folder.filePath(QLatin1String(place)); QFileInfo(path).isDir())
                return QDir::cleanPath(path);
    }
    return host::defaultBundleDirectory();
}

} // namespace pdeqt
