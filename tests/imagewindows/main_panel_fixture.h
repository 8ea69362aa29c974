#pragma once

#include "imagewindows/popup_window.h"
#include "platform/views/popup_view.h"
#include "support/ppd_text.h"
#include "support/test_host.h"
#include "support/text_bundle.h"

#include <gtest/gtest.h>

#include <deque>

/// A panel whose answers to its controls' questions are the test's.
class MainPanel : public BasePrintPanelKRVImageOptions {
public:
    using Window = PopupWinInPanelKRVImageOptions;
    bool getPrintTypeMailbox() const override { return mailbox; }
    bool IsAdvancedSettingAvailable() const override { return advanced; }
    bool IsColorModeAvailable() const override { return color; }
    bool isPrinting() const override { return printing; }
    PPDPopupControlKRVImageOptions *getrgbccPopupList() const override { return rgb; }
    Window *getColorBalanceWnd() const override { return balance; }

    bool mailbox = false, advanced = true, color = true, printing = false;
    PPDPopupControlKRVImageOptions *rgb = nullptr;
    Window *balance = nullptr;
};

constexpr const char *kRgb = "QZRGBCorrection", *kCmyk = "QZCMYKCorrectionSTD";

/// A main panel on a PPD text and one window, with controls that the test adds to either.
class MainPanelTest : public testing::Test {
protected:
    using Calls = QList<QPair<QString, QString>>;

    void open(const QByteArray &body) {
        panel.terminate();
        window->terminate();
        ppd = openPpdText(body);
        ASSERT_TRUE(ppd);
        host = std::make_shared<TestHost>(ppd.get());
        panel.initWithCallback(host);
        panel.CreatePanel(&view);
        window->PopupWinInPanel(windowView, "Window Title");
        panel.RunTimeAddNewWindow(window.get());
    }
    /// What opening a panel does with controls and windows.
    void start() {
        auto table = std::make_shared<hash_multimap>();
        xSetxppd(ppd.get(), table.get());
        panel.SetxppdPtr(table);
        panel.SetCurrentPrintSettings(&host->settings, ppd.get(), host.get(), &host->session);
        panel.InitializeUserPane(bundle.get(), ppd.get());
        panel.SetUIDataToIniData();
        panel.GetValueFromPreset();
        panel.SetCurrentValueToUI();
        host->calls.clear();
    }
    template <class Control>
    Control *add(BasePrintPanelKRVImageOptions &owner, std::unique_ptr<Control> control, int tag) {
        control->GetControlPtr()->setProperty("tag", tag);
        Control *kept = control.get();
        owner.RunTimeAddNewControl(std::move(control));
        return kept;
    }
    QWidget *place(const BasePrintPanelKRVImageOptions &owner) {
        return &owner != &panel && windowView ? windowView : &view;
    }
    template <class List>
    List *addList(BasePrintPanelKRVImageOptions &owner, const char *key, int tag,
                  const CtrlConstrainInfo *info = nullptr) {
        records.push_back({.startValue = 1, .defaultValue = 1, .iniValue = 0});
        auto list = std::make_unique<List>();
        list->CreateControl(new PopupView(place(owner)), key, &records.back(), info, nullptr,
                            kControlUserCurrent, nullptr);
        return add(owner, std::move(list), tag);
    }
    static PopupView *menu(const BaseControlKRVImageOptions *control) {
        return qobject_cast<PopupView *>(control->GetControlPtr());
    }
    static int shown(const BaseControlKRVImageOptions *list) {
        return menu(list)->indexOfSelectedItem();
    }

    /// The texts of the summary.
    QString summary() {
        QVariantMap rows;
        QStringList order;
        panel.GetSummaryText(&rows, &order);
        return order.isEmpty() ? QString() : rows[order[0]].toString();
    }

    TextBundle bundle;
    QWidget view;
    QWidget *windowView = nullptr; ///< null: the window's controls stand in the panel's view
    PpdPtr ppd;
    std::shared_ptr<TestHost> host;
    std::deque<PopupIniData> records;
    MainPanel panel;
    std::unique_ptr<PopupWinInPanelKRVImageOptions> window =
        std::make_unique<PopupWinInPanelKRVImageOptions>();
};
