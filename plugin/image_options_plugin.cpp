#include "plugin/image_options_plugin.h"

#include "plugin/image_options_pde.h"
#include "ppd/ppd_keys.h"
#include "ppd/resource_names.h"
#include "services/bundle_identity.h"

namespace {

const QString kLayoutPrefix = QStringLiteral("QZImageOptions_");
const QString kHelpPrefix = QStringLiteral("Graphics_");

/// The attribute's value, or null.
const char *imageOptionsSetting(ppd_file_t *ppd) {
    const ppd_attr_t *attribute = findVendorAttribute(ppd, kQZProductTypeImageOptions);
    return attribute ? attribute->value : nullptr;
}

} // namespace

bool ImageOptionsPDEPlugink27::initWithBundle(const std::shared_ptr<Bundle> &bundle) {
    if (!pluginBundle)
        pluginBundle = bundle;
    return true;
}

std::vector<std::unique_ptr<PDEPanel>>
ImageOptionsPDEPlugink27::PDEPanelsForType(const QString &type,
                                           const std::shared_ptr<PDEPluginCallback> &host) {
    std::vector<std::unique_ptr<PDEPanel>> panels;
    if (type != QLatin1String(kPrintPanelType) || !host)
        return panels;
    ppd_file_t *ppd = host->ppdFile();
    if (!ppd)
        return panels;
    const char *setting = imageOptionsSetting(ppd);
    if (!setting)
        return panels;
    const QString help =
        GetAppFullResourceName(GetAppResourceName(setting, 1), 1, kLayoutPrefix, kHelpPrefix);
    const QString nibPart = GetAppResourceName(setting, 0);
    const QString nib = GetAppFullResourceName(nibPart, 0, kLayoutPrefix, kHelpPrefix);
    const std::shared_ptr<Bundle> bundle = GetAppBundleRef();
    // Both resources are a gate: a product for which the bundle has no layout or no help gets no
    // panel.
    if (!bundle ||
        bundle->resourcePath(help, QStringLiteral("htm"), QStringLiteral("Help")).isNull() ||
        bundle->resourcePath(nib, QStringLiteral("nib")).isNull())
        return panels;

    auto panel = std::make_unique<ImageOptionsPDEk27>();
    panel->initWithCallback(host);
    panel->bFirstInitialzePDE = true;
    panel->gbIsPrint = false;
    const ProductInfo *products = panel->getProductInfoPtr();
    for (int32_t row = 0; row < panel->getProductInfoCont(); ++row)
        if (nibPart == QLatin1String(products[row].name)) {
            panel->setPDEType(products[row].pdeType);
            break;
        }
    panel->isShouldPrintCalled = false;
    panels.push_back(std::move(panel));
    return panels;
}
