#include "host/inspect.h"

#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/cups_server.h"
#include "host/drive_state.h"
#include "host/files.h"
#include "host/host_error.h"
#include "host/panel_stage.h"

#include <cstdio>

namespace host {
namespace {

void printText(const QByteArray &text) {
    if (std::fwrite(text.constData(), 1, size_t(text.size()), stdout) != size_t(text.size()) ||
        std::fflush(stdout) != 0)
        throw HostError(QStringLiteral("standard output"), QStringLiteral("can't be written"));
}

} // namespace

void inspect(const CommandLine &line) {
    PDEPlugin *plugin = loadBundle(line.bundle);
    PanelStage stage(line, *plugin);
    QJsonObject json = panelJson(stage, stage.open());
    const QJsonObject state = stateJson(stage);
    for (auto entry = state.begin(); entry != state.end(); ++entry)
        json.insert(entry.key(), entry.value());
    printText(jsonText(json));
}

void listQueues(const CommandLine &line) {
    PDEPlugin *plugin = loadBundle(line.bundle);
    CupsServer server;
    for (const QString &queue : server.queues()) {
        QString answer;
        try {
            PanelStage stage(openQueue(server, queue), *plugin);
            answer =
                stage.session().hasPanel() ? QStringLiteral("panel") : QStringLiteral("no panel");
        } catch (const HostError &error) {
            answer = QStringLiteral("no panel\t") + error.text();
        }
        printText((queue + u'\t' + answer + u'\n').toUtf8());
    }
}

} // namespace host
