#include "host/ppd_source.h"

#include "host/cups_server.h"
#include "host/custom_value.h"
#include "host/host_error.h"
#include "platform/ppd_file.h"
#include "platform/ppd_marks.h"

#include <QFileInfo>

namespace host {
namespace {

PpdPtr taken(PpdFile file, const QString &subject) {
    if (!file.ppd)
        throw HostError(subject, file.reason);
    ppdMarkDefaults(file.ppd.get());
    return std::move(file.ppd);
}

} // namespace

PpdSource openPpdFile(const QString &path) {
    return {taken(readPpdFile(path), path), Printer{QFileInfo(path).completeBaseName()}, path};
}

PpdSource openPpdText(const QByteArray &text, const QString &queue) {
    return {taken(parsePpdFile(text), queue), Printer{queue}};
}

PpdSource openQueue(CupsServer &server, const QString &queue) {
    return openPpdText(server.ppd(queue), queue);
}

void markChoices(const PpdSource &source, const QList<QPair<QString, QString>> &marks) {
    for (const auto &[option, choice] : marks) {
        const QString subject = QStringLiteral("-o %1=%2").arg(option, choice);
        ppd_option_t *found = ppdFindOption(source.ppd.get(), option.toUtf8().constData());
        if (!found)
            throw HostError(subject, QStringLiteral("the queue has no option ") + option);
        if (!ppdFindChoice(found, choice.toUtf8().constData()))
            throw HostError(subject, QStringLiteral("the option has no choice ") + choice);
        if (!markChoice(source.ppd.get(), option.toUtf8().constData(), choice.toUtf8().constData()))
            throw HostError(subject, QStringLiteral("can't be marked"));
    }
}

QList<QPair<QString, QString>> markedChoices(ppd_file_t *ppd) {
    QList<QPair<QString, QString>> rows;
    const auto walk = [&](const auto &self, const ppd_group_t &group) -> void {
        for (int i = 0; i < group.num_options; ++i) {
            const ppd_option_t &option = group.options[i];
            for (int j = 0; j < option.num_choices; ++j) {
                if (!option.choices[j].marked)
                    continue;
                QString choice = QString::fromUtf8(option.choices[j].choice);
                if (choice.compare(QLatin1String("Custom"), Qt::CaseInsensitive) == 0)
                    if (QString value = customValueOf(ppd, option, Secrets::With).text;
                        !value.isNull())
                        choice = std::move(value);
                rows.append({QString::fromUtf8(option.keyword), choice});
            }
        }
        for (int i = 0; i < group.num_subgroups; ++i)
            self(self, group.subgroups[i]);
    };
    for (int i = 0; ppd && i < ppd->num_groups; ++i)
        walk(walk, ppd->groups[i]);
    return rows;
}

} // namespace host
