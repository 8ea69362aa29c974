#include "pde-qt/cups_options.h"

#include "host/cups_server.h"
#include "host/settings/job_options.h"

#include <QDebug>
#include <QPrintEngine>

namespace pdeqt {
namespace {

/// The property of Qt's print engine for CUPS that programs, too, set options by.
constexpr auto kCupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);

} // namespace

host::OptionList engineOptions(const QPrintEngine &engine) {
    const QStringList list = engine.property(kCupsOptions).toStringList();
    host::OptionList options;
    for (qsizetype i = 0; i + 1 < list.size(); i += 2)
        options.append({list[i], list[i + 1]});
    return options;
}

void setEngineOptions(QPrintEngine &engine, const host::OptionList &options) {
    QStringList list;
    for (const auto &[name, value] : options)
        list << name << value;
    engine.setProperty(kCupsOptions, list);
}

host::OptionList panelOptions(ppd_file_t *ppd, const QStringList &keys,
                              const PrintSettings &settings) {
    host::OptionList options;
    for (const auto &[name, value] : host::jobOptionsToSend(ppd, &settings, {})) {
        if (!keys.contains(name, Qt::CaseInsensitive) && !settings.entries().contains(name))
            continue;
        const QString problem = host::sendingProblem(name, value);
        if (problem.isNull())
            options.append({name, value});
        else
            qWarning().noquote() << "The option" << name << problem;
    }
    return options;
}

host::OptionList merged(host::OptionList list, const QStringList &formerNames,
                        const host::OptionList &options) {
    list.removeIf([&](const auto &row) {
        return formerNames.contains(row.first, Qt::CaseInsensitive) ||
               host::optionValue(options, row.first).has_value();
    });
    return list + options;
}

} // namespace pdeqt
