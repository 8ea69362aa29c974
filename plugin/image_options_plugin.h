#pragma once

#include "platform/pde/pde_plugin.h"

/// The entry object of the bundle.
class ImageOptionsPDEPlugink27 : public PDEPlugin {
public:
    bool initWithBundle(const std::shared_ptr<Bundle> &bundle) override;
    /// One panel, if the type is this plug-in's, the queue's PPD has the attribute
    /// "QZXImageOptionsSettings", and the bundle holds the help page and the layout that the
    /// attribute names; else none.
    std::vector<std::unique_ptr<PDEPanel>>
    PDEPanelsForType(const QString &type, const std::shared_ptr<PDEPluginCallback> &host) override;
};
