#include "host/ppd_source.h"

#include "host/cups_server.h"
#include "host/custom_value.h"
#include "host/host_error.h"
#include "host/settings/ppd_texts.h"
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
        if (isCustom(choice) && !customValueFits(source.ppd.get(), *found))
            throw HostError(QStringLiteral("-o ") + option, // the value may be a PIN
                            QStringLiteral("is outside of what the printer takes"));
    }
}

QList<QPair<QString, QString>> markedChoices(ppd_file_t *ppd) {
    QList<QPair<QString, QString>> rows;
    eachPpdOption(ppd, [&](const ppd_group_t &, const ppd_option_t &option) {
        for (int i = 0; i < option.num_choices; ++i) {
            const ppd_choice_t &choice = option.choices[i];
            if (!choice.marked)
                continue;
            QString value;
            if (isCustom(choice))
                value = customValueOf(ppd, option, Secrets::With).text;
            rows.append({QString::fromUtf8(option.keyword),
                         value.isNull() ? QString::fromUtf8(choice.choice) : value});
        }
    });
    return rows;
}

} // namespace host
