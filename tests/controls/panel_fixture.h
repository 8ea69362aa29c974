#pragma once

#include "controls/popup_family.h"
#include "platform/views/popup_view.h"
#include "platform/views/text_view.h"
#include "plugin/base/base_print_panel.h"
#include "ppd/constraint_table.h"
#include "support/ppd_text.h"
#include "support/test_host.h"

#include <QStringList>

#include <gtest/gtest.h>

/// A control that writes down what it is told, and whose value is a text of the test's choice.
class RecordingControl : public BaseControlKRVImageOptions {
public:
    RecordingControl(QWidget *view, QStringList *log, const QString &name)
        : m_log(log), m_name(name) {
        CreateControl(view);
    }
    void setAccess(const CtrlAccessInfo *access) {
        setRecords(nullptr, access, kControlUserCurrent);
    }
    void setValue(const QByteArray &text) {
        if (!ctrlDataBlkPtr)
            allocateBlocks(CtrlDataBlk::kTextSize);
        m_text = text;
    }
    int32_t Enable() override { return note("enable"), BaseControlKRVImageOptions::Enable(); }
    int32_t Disable() override { return note("disable"), BaseControlKRVImageOptions::Disable(); }
    int32_t Show() override { return note("show"), BaseControlKRVImageOptions::Show(); }
    int32_t Hide() override { return note("hide"), BaseControlKRVImageOptions::Hide(); }
    int32_t Update() override { return note("update"), 0; }
    bool ConvertToTickectData(char *buffer) override {
        qstrncpy(buffer, m_text.constData(), kTicketBufferSize);
        return true;
    }
    bool ConvertToPreferenceString(char *buffer) override {
        qstrncpy(buffer, m_text.constData(), kPreferenceBufferSize);
        return true;
    }
    bool ConvertFromPreferenceString(const char *text) override {
        m_text = text;
        return true;
    }
    const QByteArray &value() const { return m_text; }

private:
    void note(const char *what) {
        if (m_log)
            m_log->append(QLatin1String(what) + QLatin1Char(' ') + m_name);
    }

    QStringList *m_log;
    QString m_name;
    QByteArray m_text;
};

/// A panel on a PPD text, with views that the test adds by tag.
class PanelTest : public testing::Test {
protected:
    void open(const QByteArray &body) {
        ppd = openPpdText(body);
        ASSERT_TRUE(ppd);
        host = std::make_shared<TestHost>(ppd.get());
        panel.initWithCallback(host);
        panel.CreatePanel(&window);
        auto table = std::make_shared<hash_multimap>();
        xSetxppd(ppd.get(), table.get());
        panel.SetxppdPtr(table);
        panel.SetCurrentPrintSettings(&host->settings, ppd.get(), host.get(), &host->session);
    }
    template <class View>
    View *view(int tag) {
        auto *made = new View(&window);
        made->setProperty("tag", tag);
        return made;
    }
    RecordingControl *recorder(int tag, const QString &name) {
        auto control = std::make_unique<RecordingControl>(view<TextView>(tag), &log, name);
        RecordingControl *kept = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        return kept;
    }
    /// What opening a panel does with its controls.
    void start() {
        panel.InitializeUserPane(nullptr, ppd.get());
        panel.SetUIDataToIniData();
        panel.GetValueFromPreset();
        panel.SetCurrentValueToUI();
    }

    QWidget window;
    PpdPtr ppd;
    std::shared_ptr<TestHost> host;
    BasePrintPanelKRVImageOptions panel;
    QStringList log;
};
