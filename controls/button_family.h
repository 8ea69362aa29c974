#pragma once

#include "controls/base_control.h"

class ButtonView;

/// A push button: no value, a title, and one behaviour in UIEventHandler.
class BaseButtonKRVImageOptions : public BaseControlKRVImageOptions {
public:
    void CreateControl(ButtonView *view);
    /// @param title  the localisation key of the title
    void CreateControl(ButtonView *view, const char *title);
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    bool ReInitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// View := the localised title. @return false without one
    virtual bool InitializeTitle(const Bundle *bundle);
    /// The event alone: a button has no value to read, and it may be gone when its event returns,
    /// since that can run a window or an alert.
    void RequestControlAction() override;

protected:
    const char *controlTitleStrRef = nullptr;
};

/// Opens the help page of its panel or window for the queue's product.
class GHelpButtonKRV : public BaseButtonKRVImageOptions {
public:
    /// @param helpName  the page's base name, such as "Graphics.htm"; kept if none is kept yet
    void CreateControlWithHelpName(ButtonView *view, const QString &helpName);
    /// Turns the base name into the page of the product that the PPD's attribute names. The title
    /// is the table's "Help Button Text"; without one the form's stays. @return true
    bool InitializeCtrl(const Bundle *bundle, ppd_file_t *ppd) override;
    /// @return true
    bool UIEventHandler() override;

    const QString &helpFileName() const { return helpfilename; }

protected:
    QString helpfilename;

private:
    QString m_baseName;
};
