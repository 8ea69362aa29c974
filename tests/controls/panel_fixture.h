#pragma once

#include "controls/popup_family.h"
#include "platform/kernel_release.h"
#include "platform/views/popup_view.h"
#include "platform/views/text_view.h"
#include "plugin/base/base_print_panel.h"
#include "ppd/constraint_table.h"
#include "ppd/product_type.h"
#include "support/ppd_text.h"
#include "support/test_host.h"
#include "support/text_bundle.h"

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
        return qstrncpy(buffer, m_text.constData(), kTicketBufferSize);
    }
    bool ConvertToPreferenceString(char *buffer) override {
        return qstrncpy(buffer, m_text.constData(), kPreferenceBufferSize);
    }
    bool ConvertFromPreferenceString(const char *text) override { return m_text = text, true; }
    const QByteArray &value() const { return m_text; }

protected:
    void note(const QString &what) { m_log->append(what + " " + m_name); }

private:
    QStringList *m_log;
    QString m_name;
    QByteArray m_text;
};

/// A panel on a PPD text, with views that the test adds by tag.
class PanelTest : public testing::Test {
protected:
    using Calls = QList<QPair<QString, QString>>;

    void TearDown() override { setKernelRelease("19.6.0"); }
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
        CPPDChecker::Instance()->Init();
    }
    template <class View>
    View *view(int tag) {
        auto *made = new View(&window);
        made->setProperty("tag", tag);
        return made;
    }
    template <class Control>
    Control *keep(std::unique_ptr<Control> control) {
        Control *kept = control.get();
        panel.RunTimeAddNewControl(std::move(control));
        return kept;
    }
    RecordingControl *recorder(int tag, const QString &name) {
        return keep(std::make_unique<RecordingControl>(view<TextView>(tag), &log, name));
    }
    /// What opening a panel does with its controls.
    void start() {
        panel.InitializeUserPane(bundle.get(), ppd.get());
        panel.SetUIDataToIniData();
        panel.GetValueFromPreset();
        panel.SetCurrentValueToUI();
        host->calls.clear();
        log.clear();
    }
    /// The rows of the summary, each as "title=text".
    QStringList summary() {
        QVariantMap rows;
        QStringList order;
        panel.GetSummaryText(&rows, &order);
        for (QString &title : order)
            title += "=" + rows.value(title).toString();
        return order;
    }
    /// Takes an option's mark away.
    void unmark(const char *option) {
        ppd_choice_t *choice = ppdFindMarkedChoice(ppd.get(), option);
        ASSERT_TRUE(choice);
        choice->marked = 0;
        cupsArrayRemove(ppd->marked, choice);
    }
    /// Whether a control has reported the option as there.
    static bool reported(const char *key) { return CPPDChecker::Instance()->checks.at(key); }
    /// Whether the control has something for the host or the ticket.
    bool save(BaseControlKRVImageOptions *control) {
        host->calls.clear();
        return control->SetValueToTicket(&host->settings, false);
    }

    TextBundle bundle;
    QWidget window;
    PpdPtr ppd;
    std::shared_ptr<TestHost> host;
    struct : BasePrintPanelKRVImageOptions {
        using BasePrintPanelKRVImageOptions::takeLocalizeTable;
    } panel;
    QStringList log;
};
