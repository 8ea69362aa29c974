#include "host/drive_state.h"

#include "host/drive_views.h"
#include "host/panel_stage.h"
#include "platform/help_viewer.h"
#include "platform/views/alert.h"
#include "platform/views/modal_window.h"
#include "platform/views/view.h"

#include <QJsonArray>

namespace host {
namespace {

QJsonObject marksJson(ppd_file_t *ppd) {
    QJsonObject marks;
    for (const auto &[option, choice] : markedChoices(ppd)) {
        const QString others = marks[option].toString();
        marks[option] = others.isEmpty() ? choice : others + u',' + choice;
    }
    return marks;
}

/// The page of the help viewer, "NAME.htm#ANCHOR"; null while none is shown.
QJsonValue helpJson() {
    const QWidget *viewer = helpViewerWindow();
    if (!viewer || !viewer->isVisible())
        return {};
    const QUrl page = helpViewerPage();
    return page.fileName() + (page.hasFragment() ? u'#' + page.fragment() : QString());
}

} // namespace

QJsonObject stateJson(PanelStage &stage) {
    QJsonArray views, calls;
    for (const ListedView &listed : listViews(stage.window()))
        views.append(viewJson(listed));
    for (const HostCallback::Call &call : stage.callback().takeCalls())
        calls.append(QJsonArray{call.first, call.second});
    const ModalWindow *window = ModalWindow::current();
    const QString alert = views::currentAlert();
    return {
        {"window", window ? QJsonValue(window->windowTitle()) : QJsonValue()},
        {"alert", alert.isNull() ? QJsonValue() : QJsonValue(alert)},
        {"help", helpJson()},
        {"views", views},
        {"marks", marksJson(stage.source().ppd.get())},
        {"ticket", ticketJson(stage.callback().settings())},
        {"calls", calls},
        {"beeps", views::beepCount()},
    };
}

QJsonObject ticketJson(const PrintSettings &settings) {
    QJsonObject ticket;
    for (auto entry = settings.entries().begin(); entry != settings.entries().end(); ++entry)
        ticket.insert(entry.key(), entry->value);
    return ticket;
}

QJsonObject panelJson(PanelStage &stage, bool open) {
    if (!open)
        return {{"panel", false}};
    const PanelSession &session = stage.session();
    return {{"panel", true},
            {"kind", session.kind()},
            {"name", session.name()},
            {"keys", QJsonArray::fromStringList(session.keys())}};
}

QJsonObject summaryJson(const QVariantMap &summary) {
    QJsonObject values;
    for (auto row = summary.begin(); row != summary.end(); ++row)
        if (row.key() != QLatin1String(kSummaryOrderKey))
            values.insert(row.key(), row->toString());
    const QStringList order = summary.value(QLatin1String(kSummaryOrderKey)).toStringList();
    return {{"order", QJsonArray::fromStringList(order)}, {"values", values}};
}

} // namespace host
