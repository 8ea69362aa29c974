#include "host/ppd_source.h"

#include "host/cups_server.h"
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

/// The number or text of a custom value's parameter, as ppdMarkOption reads it.
QString customValue(const ppd_cparam_t &parameter) {
    switch (parameter.type) {
    case PPD_CUSTOM_INT:
        return QString::number(parameter.current.custom_int);
    case PPD_CUSTOM_PASSCODE:
    case PPD_CUSTOM_PASSWORD:
    case PPD_CUSTOM_STRING:
        return QString::fromUtf8(parameter.current.custom_string);
    case PPD_CUSTOM_POINTS:
        return QString::number(double(parameter.current.custom_points));
    default:
        return QString::number(double(parameter.current.custom_real));
    }
}

/// A marked choice "Custom" with its values, in the form that marks it again.
QString customChoice(ppd_file_t *ppd, const ppd_option_t &option) {
    if (!qstricmp(option.keyword, "PageSize") || !qstricmp(option.keyword, "PageRegion")) {
        const ppd_size_t *size = ppdPageSize(ppd, "Custom");
        return size ? QStringLiteral("Custom.%1x%2")
                          .arg(double(size->width))
                          .arg(double(size->length))
                    : QString();
    }
    QStringList values;
    QString first;
    ppd_coption_t *custom = ppdFindCustomOption(ppd, option.keyword);
    for (ppd_cparam_t *p = custom ? ppdFirstCustomParam(custom) : nullptr; p;
         p = ppdNextCustomParam(custom)) {
        first = values.isEmpty() ? customValue(*p) : first;
        values.append(QString::fromUtf8(p->name) + u'=' + customValue(*p));
    }
    return values.size() == 1 ? QStringLiteral("Custom.") + first : u'{' + values.join(u' ') + u'}';
}

} // namespace

PpdSource openPpdFile(const QString &path) {
    return {taken(readPpdFile(path), path), Printer{QFileInfo(path).completeBaseName()}, path};
}

PpdSource openQueue(CupsServer &server, const QString &queue) {
    return {taken(parsePpdFile(server.ppd(queue)), queue), Printer{queue}};
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
                const char *choice = option.choices[j].choice;
                rows.append({QString::fromUtf8(option.keyword), qstricmp(choice, "Custom")
                                                                    ? QString::fromUtf8(choice)
                                                                    : customChoice(ppd, option)});
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
