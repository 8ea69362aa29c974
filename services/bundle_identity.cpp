#include "services/bundle_identity.h"

std::shared_ptr<Bundle> pluginBundle;

QString GetAppClientID() {
    return QStringLiteral("com.velmora.k27.ImageOptionsKind");
}

std::shared_ptr<Bundle> GetAppBundleRef() {
    return Bundle::withIdentifier(QLatin1String(kBundleIdentifier));
}
