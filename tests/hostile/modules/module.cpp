// Modules that no host should load, one for each KIND.

#include "platform/pde/pde_plugin.h"

#include <QObject>

#include <stdexcept>

#define kVersion 1
#define kStranger 2
#define kThrows 3
#define kUndefined 4

#if KIND == kVersion
#define MODULE_IID "com.velmora.pde.Plugin/9.0"
#elif KIND == kStranger
#define MODULE_IID "org.example.Stranger/1.0"
#else
#define MODULE_IID PDEPlugin_iid
#endif

#if KIND == kUndefined
extern int symbolThatNobodyHas;
int *const reference = &symbolThatNobodyHas;
#endif

class Module : public QObject, public PDEPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID MODULE_IID)
    Q_INTERFACES(PDEPlugin)

public:
    Module() {
#if KIND == kVersion || KIND == kStranger
        qFatal("code of a module that must not run");
#endif
    }
    bool initWithBundle(const std::shared_ptr<Bundle> &) override {
        throw std::runtime_error("no luck today");
    }
    std::vector<std::unique_ptr<PDEPanel>>
    PDEPanelsForType(const QString &, const std::shared_ptr<PDEPluginCallback> &) override {
        return {};
    }
};

#include "module.moc"
