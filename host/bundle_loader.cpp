#include "host/bundle_loader.h"

#include "host/host_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace host {

QString defaultBundleDirectory() {
    const QDir program(QCoreApplication::applicationDirPath());
    const QString built = program.filePath(QStringLiteral("../ImageOptions.pde"));
    const QString installed =
        program.filePath(QStringLiteral("../lib/image-options/ImageOptions.pde"));
    return QDir::cleanPath(QFileInfo(built).isDir() ? built : installed);
}

PDEPlugin *loadBundle(const QString &directory) {
    const QString path = directory.isNull() ? defaultBundleDirectory() : directory;
    QString reason;
    const std::shared_ptr<Bundle> bundle = Bundle::open(path, &reason);
    if (!bundle)
        throw HostError(path, reason);
    const QString module = bundle->directory() + QStringLiteral("/lib") +
                           QFileInfo(bundle->directory()).completeBaseName() +
                           QStringLiteral(".so");
    if (!QFileInfo(module).isFile())
        throw HostError(module, QStringLiteral("the bundle's module is missing"));
    QPluginLoader loader(module); // its end doesn't unload the module
    auto *plugin = qobject_cast<PDEPlugin *>(loader.instance());
    if (!plugin)
        throw HostError(module, loader.isLoaded()
                                    ? QStringLiteral("is no module of a print panel")
                                    : QStringLiteral("can't be loaded: ") + loader.errorString());
    plugin->initWithBundle(bundle);
    return plugin;
}

} // namespace host
