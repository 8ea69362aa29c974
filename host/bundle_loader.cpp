#include "host/bundle_loader.h"

#include "host/host_error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

namespace host {
namespace {

/// A module is asked by its metadata, before any code of it runs. One without metadata is told by
/// what the loader says of it.
void requireInterface(const QString &module, const QString &iid) {
    const QString ours = QStringLiteral(PDEPlugin_iid);
    const QString name = ours.section(u'/', 0, 0);
    if (iid == ours || iid.isEmpty())
        return;
    if (iid.section(u'/', 0, 0) == name)
        throw HostError(module, QStringLiteral("speaks version %1 of the panel interface; this "
                                               "program speaks version %2")
                                    .arg(iid.section(u'/', 1), ours.section(u'/', 1)));
    throw HostError(module, QStringLiteral("is no module of a print panel"));
}

} // namespace

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
    requireInterface(module, loader.metaData().value(QStringLiteral("IID")).toString());
    try {
        auto *plugin = qobject_cast<PDEPlugin *>(loader.instance());
        if (!plugin)
            throw HostError(module,
                            loader.isLoaded()
                                ? QStringLiteral("is no module of a print panel")
                                : QStringLiteral("can't be loaded: ") + loader.errorString());
        plugin->initWithBundle(bundle);
        return plugin;
    } catch (const std::exception &error) {
        throw HostError(module, QStringLiteral("failed: ") + QString::fromUtf8(error.what()));
    }
}

} // namespace host
