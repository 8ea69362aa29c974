#include "host/print.h"

#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/document.h"
#include "host/drive_state.h"
#include "host/files.h"
#include "host/host_error.h"
#include "host/panel_stage.h"
#include "host/presets/preset_commands.h"
#include "host/ps_job.h"
#include "host/settings/job_options.h"

#include <QFileInfo>
#include <QWidget>

#include <cstdio>

namespace host {
namespace {

/// Drives the panel on the asked road; what it shows goes to the outputs.
void drivePanel(const CommandLine &line, PanelStage &stage, Outputs &outputs) {
    const bool open = line.shown && stage.open();
    if (!line.shot.isNull()) {
        if (!open)
            throw HostError(line.shot,
                            QStringLiteral("the queue has no panel to take a picture of"));
        outputs.add(line.shot, pngContent(stage.window()->grab()));
    }
    if (!line.summary.isNull())
        outputs.add(line.summary,
                    jsonText(summaryJson(open ? stage.session().summary() : QVariantMap())));
    stage.session().print(); // a panel without a view prints all the same
}

/// The file to write, or null for a job that goes to CUPS.
QString targetFile(const CommandLine &line) {
    QString target = line.to;
    if (target.isNull() && line.queue.isNull()) {
        target = QFileInfo(line.document).completeBaseName() + QStringLiteral(".ps");
        if (QFileInfo::exists(target))
            throw HostError(target, QStringLiteral("exists; name the file to write by --to"));
    }
    return target;
}

/// The preset's options for CUPS do nothing in a file.
void tellUnusedOptions(const PanelStage &stage) {
    for (const QString &option : stage.jobOptions().keys())
        warn(option, QStringLiteral("isn't used in a job that goes to a file"));
}

} // namespace

void writeJob(PanelStage &stage, const Document &document, const Sink &sink) {
    const QString title = QFileInfo(document.path).fileName();
    writePsJob(psCode(stage.source().ppd.get(), title), toPostScript(document), title, sink);
}

CupsJob cupsJob(const QString &queue, const Document &document) {
    CupsJob job;
    job.queue = queue;
    job.title = QFileInfo(document.path).fileName();
    job.format = document.type == Document::Type::Pdf ? CUPS_FORMAT_PDF : CUPS_FORMAT_POSTSCRIPT;
    job.document = document.content;
    return job;
}

int sendToCups(PanelStage &stage, const Document &document) {
    CupsJob job = cupsJob(stage.source().printer.id, document);
    OptionList others;
    for (auto option = stage.jobOptions().begin(); option != stage.jobOptions().end(); ++option)
        others.append({option.key(), option.value()});
    job.options = jobOptionsToSend(stage.source().ppd.get(), &stage.callback().settings(), others);
    return CupsServer().submit(job);
}

void print(const CommandLine &line) {
    const Document document = readDocument(line.document);
    PDEPlugin *plugin = loadBundle(line.bundle);
    PanelStage stage(line, *plugin);
    const QString target = targetFile(line);
    Outputs outputs({line.document, stage.source().path});
    drivePanel(line, stage, outputs);
    if (!line.ticket.isNull())
        outputs.add(line.ticket, jsonText(ticketJson(stage.callback().settings())));
    if (!target.isNull()) {
        tellUnusedOptions(stage);
        outputs.add(target, [&](const Sink &sink) { writeJob(stage, document, sink); });
    } else {
        const int job = sendToCups(stage, document);
        std::printf("%s-%d\n", stage.source().printer.id.toUtf8().constData(), job);
    }
    outputs.commit();
}

} // namespace host
