// The one thing that the module exports: its entry object.

#include "plugin/image_options_plugin.h"

#include <QObject>

class ImageOptionsModule : public QObject, public ImageOptionsPDEPlugink27 {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugin_iid)
    Q_INTERFACES(PDEPlugin)
};

#include "entry.moc"
