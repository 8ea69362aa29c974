#include "controls/button_family.h"

#include "platform/bundle.h"
#include "platform/views/button_view.h"
#include "ppd/ppd_keys.h"
#include "ppd/resource_names.h"
#include "services/bundle_identity.h"
#include "services/help.h"

void BaseButtonKRVImageOptions::CreateControl(ButtonView *view) {
    BaseControlKRVImageOptions::CreateControl(view);
    controlTitleStrRef = nullptr;
}

void BaseButtonKRVImageOptions::CreateControl(ButtonView *view, const char *title) {
    CreateControl(view);
    controlTitleStrRef = title;
}

bool BaseButtonKRVImageOptions::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    return InitializeTitle(bundle);
}

bool BaseButtonKRVImageOptions::ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::ReInitializeCtrl(bundle, ppd);
    return InitializeTitle(bundle);
}

bool BaseButtonKRVImageOptions::InitializeTitle(const Bundle *bundle) {
    if (!controlTitleStrRef || !bundle)
        return false;
    if (auto *view = qobject_cast<ButtonView *>(ControlPtr.data()))
        view->setTitle(localized(bundle, controlTitleStrRef));
    return true;
}

void BaseButtonKRVImageOptions::RequestControlAction() {
    UIEventHandler();
}

void GHelpButtonKRV::CreateControlWithHelpName(ButtonView *view, const QString &helpName) {
    BaseButtonKRVImageOptions::CreateControl(view);
    if (helpfilename.isNull())
        helpfilename = m_baseName = helpName;
}

bool GHelpButtonKRV::InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) {
    BaseControlKRVImageOptions::InitializeCtrl(bundle, ppd);
    // The form's own title stays where the tables have none.
    if (const QString title = localized(bundle, "Help Button Text"); title != kNoTranslation)
        if (auto *view = qobject_cast<ButtonView *>(ControlPtr.data()))
            view->setTitle(title);
    helpfilename = m_baseName;
    const ppd_attr_t *attribute =
        ppd ? findVendorAttribute(ppd, kQZProductTypeImageOptions) : nullptr;
    if (!attribute || !attribute->value)
        return true;
    const QString stem = GetAppResourceName(attribute->value, 1);
    for (const HelpStringRow *row = GraphicsHelpString; row->prefix; ++row)
        if (m_baseName == QLatin1String(row->name))
            helpfilename = QLatin1String(row->prefix) + stem + QStringLiteral(".htm");
    return true;
}

bool GHelpButtonKRV::UIEventHandler() {
    if (!helpfilename.isNull())
        GotoHelpPage(pluginBundle.get(), helpfilename, QString(),
                     QStringLiteral("Help Viewer Title for Image Options"));
    return true;
}
