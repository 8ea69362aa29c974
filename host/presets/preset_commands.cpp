#include "host/presets/preset_commands.h"

#include "host/command_line.h"
#include "host/host_error.h"
#include "host/panel_stage.h"
#include "host/presets/applied_preset.h"
#include "host/presets/preset_store.h"

#include <cstdio>

namespace host {

void warn(const QString &subject, const QString &reason) {
    std::fprintf(stderr, "pde-host: %s\n",
                 HostError(subject, reason).text().toLocal8Bit().constData());
}

QMap<QString, QString> useNamedPreset(const CommandLine &line, PanelStage &stage) {
    if (line.preset.isNull())
        return {};
    const PpdSource &source = stage.source();
    Preset preset;
    try {
        preset = PresetStore().load(source.printer.id, line.preset);
    } catch (const HostError &error) {
        throw HostError(QStringLiteral("--preset"), error.text());
    }
    for (const auto &setting : line.settings)
        preset.settings.remove(setting.first);
    for (const QString &problem :
         applyPreset(preset, source.ppd.get(), *stage.callback().printSettings()))
        warn(preset.name, problem);
    return preset.jobOptions;
}

void listPresets(const CommandLine &line) {
    const PresetStore store;
    QByteArray text;
    for (const QString &queue : line.queue.isNull() ? store.queues() : QStringList{line.queue})
        for (const PresetRow &row : store.list(queue)) {
            text += printable(queue).toUtf8() + '\t' + printable(row.name).toUtf8();
            if (!row.problem.isNull())
                text += '\t' + printable(row.problem.simplified()).toUtf8();
            text += '\n';
        }
    if (std::fwrite(text.constData(), 1, size_t(text.size()), stdout) != size_t(text.size()) ||
        std::fflush(stdout) != 0)
        throw HostError(QStringLiteral("standard output"), QStringLiteral("can't be written"));
}

} // namespace host
