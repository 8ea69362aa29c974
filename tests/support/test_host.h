#pragma once

#include "platform/pde/pde_plugin_callback.h"
#include "platform/ppd_marks.h"

#include <QList>
#include <QPair>

/// A host for one PPD: marks what it is asked to mark, unless it is told to refuse, and remembers
/// the requests.
class TestHost : public PDEPluginCallback {
public:
    explicit TestHost(ppd_file_t *ppd) : ppd(ppd) {
        session.setCurrentPrinter({QStringLiteral("Queue")});
    }
    ppd_file_t *ppdFile() override { return ppd; }
    PMPrintSettings printSettings() override { return &settings; }
    PMPrintSession printSession() override { return &session; }
    bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) override {
        calls.append({option, choice});
        return !refuses &&
               markChoice(ppd, option.toUtf8().constData(), choice.toUtf8().constData());
    }
    /// The marked choice's keyword; empty for none.
    QByteArray marked(const char *option) const {
        const ppd_choice_t *choice = ppdFindMarkedChoice(ppd, option);
        return choice ? choice->choice : "";
    }

    ppd_file_t *ppd;
    PrintSettings settings;
    PrintSession session;
    QList<QPair<QString, QString>> calls;
    bool refuses = false;
};
