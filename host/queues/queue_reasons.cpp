#include "host/queues/queue_reasons.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {
namespace {

struct Reason {
    const char *keyword;
    const char *words; ///< null where the state says it already
};

// RFC 8011, 5.4.12, PWG 5100.9 and the reasons that CUPS and its backends set themselves.
constexpr Reason kReasons[] = {
    {"none", nullptr},
    {"paused", nullptr},
    {"stopped", nullptr},
    {"cups-waiting-for-job-completed", nullptr},
    {"cups-remote-pending", nullptr},
    {"cups-remote-processing", nullptr},
    {"cups-remote-completed", nullptr},
    {"offline", QT_TRANSLATE_NOOP("host", "not connected")},
    {"connecting-to-device", QT_TRANSLATE_NOOP("host", "connecting")},
    {"cups-ipp-conformance-failure", QT_TRANSLATE_NOOP("host", "answers in a wrong way")},
    {"cups-insecure-filter", QT_TRANSLATE_NOOP("host", "driver isn't safe to run")},
    {"cups-missing-filter", QT_TRANSLATE_NOOP("host", "driver is incomplete")},
    {"cups-certificate-error", QT_TRANSLATE_NOOP("host", "certificate isn't valid")},
    {"cups-remote-pending-held", QT_TRANSLATE_NOOP("host", "job is held")},
    {"cups-remote-stopped", QT_TRANSLATE_NOOP("host", "job has stopped")},
    {"cups-remote-canceled", QT_TRANSLATE_NOOP("host", "job was cancelled")},
    {"cups-remote-aborted", QT_TRANSLATE_NOOP("host", "job was given up")},
    {"account-info-needed", QT_TRANSLATE_NOOP("host", "account is needed")},
    {"account-limit-reached", QT_TRANSLATE_NOOP("host", "account's limit is reached")},
    {"configuration-change", QT_TRANSLATE_NOOP("host", "set up anew")},
    {"cover-open", QT_TRANSLATE_NOOP("host", "cover is open")},
    {"deactivated", QT_TRANSLATE_NOOP("host", "switched off for jobs")},
    {"developer-empty", QT_TRANSLATE_NOOP("host", "out of developer")},
    {"developer-low", QT_TRANSLATE_NOOP("host", "developer is low")},
    {"door-open", QT_TRANSLATE_NOOP("host", "door is open")},
    {"fuser-over-temp", QT_TRANSLATE_NOOP("host", "fuser is too hot")},
    {"fuser-under-temp", QT_TRANSLATE_NOOP("host", "fuser is too cold")},
    {"hibernate", QT_TRANSLATE_NOOP("host", "asleep")},
    {"hold-new-jobs", QT_TRANSLATE_NOOP("host", "new jobs are held")},
    {"identify-printer-requested", QT_TRANSLATE_NOOP("host", "shows where it stands")},
    {"input-tray-missing", QT_TRANSLATE_NOOP("host", "tray is missing")},
    {"interlock-open", QT_TRANSLATE_NOOP("host", "a lock is open")},
    {"interpreter-resource-unavailable", QT_TRANSLATE_NOOP("host", "out of memory")},
    {"marker-supply-empty", QT_TRANSLATE_NOOP("host", "out of ink")},
    {"marker-supply-low", QT_TRANSLATE_NOOP("host", "ink is low")},
    {"marker-supply-missing", QT_TRANSLATE_NOOP("host", "ink is missing")},
    {"marker-waste-almost-full", QT_TRANSLATE_NOOP("host", "waste box is almost full")},
    {"marker-waste-full", QT_TRANSLATE_NOOP("host", "waste box is full")},
    {"media-empty", QT_TRANSLATE_NOOP("host", "out of paper")},
    {"media-jam", QT_TRANSLATE_NOOP("host", "paper jam")},
    {"media-low", QT_TRANSLATE_NOOP("host", "paper is low")},
    {"media-needed", QT_TRANSLATE_NOOP("host", "needs other paper")},
    {"moving-to-paused", QT_TRANSLATE_NOOP("host", "about to pause")},
    {"opc-life-over", QT_TRANSLATE_NOOP("host", "drum is used up")},
    {"opc-near-eol", QT_TRANSLATE_NOOP("host", "drum is nearly used up")},
    {"other", QT_TRANSLATE_NOOP("host", "needs attention")},
    {"output-area-almost-full", QT_TRANSLATE_NOOP("host", "output tray is almost full")},
    {"output-area-full", QT_TRANSLATE_NOOP("host", "output tray is full")},
    {"output-tray-missing", QT_TRANSLATE_NOOP("host", "output tray is missing")},
    {"power-down", QT_TRANSLATE_NOOP("host", "switching off")},
    {"resuming", QT_TRANSLATE_NOOP("host", "about to go on")},
    {"shutdown", QT_TRANSLATE_NOOP("host", "switched off")},
    {"spool-area-full", QT_TRANSLATE_NOOP("host", "no room for more jobs")},
    {"standby", QT_TRANSLATE_NOOP("host", "asleep")},
    {"stopped-partly", QT_TRANSLATE_NOOP("host", "partly stopped")},
    {"stopping", QT_TRANSLATE_NOOP("host", "about to stop")},
    {"testing", QT_TRANSLATE_NOOP("host", "being tested")},
    {"timed-out", QT_TRANSLATE_NOOP("host", "doesn't answer")},
    {"toner-empty", QT_TRANSLATE_NOOP("host", "out of toner")},
    {"toner-low", QT_TRANSLATE_NOOP("host", "toner is low")},
    {"unknown", nullptr},
};

/// The endings by rank: what isn't marked counts as an error (RFC 8011, 5.4.12).
constexpr const char *kEndings[] = {"-error", "-warning", "-report"};

struct Split {
    QString keyword;
    int rank; ///< of its ending
};

Split split(const QString &keyword) {
    for (int rank = 0; rank < int(std::size(kEndings)); ++rank)
        if (const QLatin1String ending(kEndings[rank]);
            keyword.endsWith(ending) && keyword.size() > ending.size())
            return {keyword.chopped(ending.size()), rank};
    return {keyword, 0};
}

} // namespace

QString reasonInWords(const QString &keyword) {
    QString name = split(keyword.trimmed()).keyword;
    for (const Reason &reason : kReasons)
        if (name == QLatin1String(reason.keyword))
            return reason.words ? QCoreApplication::translate("host", reason.words) : QString();
    name.replace(u'-', u' ').replace(u'_', u' ');
    name = name.simplified();
    return name.isEmpty() ? QString() : name;
}

QStringList reasonsInWords(const QStringList &keywords) {
    QStringList sorted = keywords;
    std::stable_sort(sorted.begin(), sorted.end(), [](const QString &first, const QString &second) {
        return split(first).rank < split(second).rank;
    });
    QStringList words;
    for (const QString &keyword : sorted)
        if (const QString text = reasonInWords(keyword); !text.isNull() && !words.contains(text))
            words.append(text);
    return words;
}

} // namespace host
