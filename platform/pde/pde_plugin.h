#pragma once

#include "platform/bundle.h"
#include "platform/pde/pde_panel.h"
#include "platform/pde/pde_plugin_callback.h"

#include <QtPlugin>

#include <memory>
#include <vector>

/// The plug-in type of panels for one print job.
inline constexpr char kPrintPanelType[] = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

/// The entry object of a bundle: a Qt plug-in `lib<name>.so` in the bundle's directory.
///
/// The host loads the plug-in with QPluginLoader, casts its instance to PDEPlugin, calls
/// initWithBundle once and then PDEPanelsForType for each print dialog. The module stays loaded for
/// the life of the process.
class PDEPlugin {
public:
    virtual ~PDEPlugin() = default;

    /// Hands over the bundle from which the module came. The first bundle wins for the life of the
    /// process; a later call changes nothing.
    /// @return true
    virtual bool initWithBundle(const std::shared_ptr<Bundle> &bundle) = 0;
    /// Asks for the panels of a type for the queue of this host object.
    /// @param type  the plug-in type, as kPrintPanelType, compared exactly
    /// @param host  retained by each panel that is made
    /// @return the panels, owned by the caller; empty when the queue gets none
    virtual std::vector<std::unique_ptr<PDEPanel>>
    PDEPanelsForType(const QString &type, const std::shared_ptr<PDEPluginCallback> &host) = 0;
};

#define PDEPlugin_iid "com.velmora.pde.Plugin/1.0"
Q_DECLARE_INTERFACE(PDEPlugin, PDEPlugin_iid)
