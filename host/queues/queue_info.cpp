#include "host/queues/queue_info.h"

#include "host/cups_server.h"
#include "host/queues/queue_reasons.h"
#include "host/words.h"
#include "platform/utf8.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace host {
namespace {

constexpr qsizetype kLongestText = 300;
constexpr int kMostReasons = 32;

/// What cupsd says where the administrator has said nothing.
constexpr QLatin1String kNoWords[] = {QLatin1String("Paused"), QLatin1String("Rejecting Jobs")};

/// A text of the server on one line.
QString lineOf(const char *text) {
    QString line = text ? safeLine(wholeCharacters(text)) : QString();
    if (line.size() > kLongestText) {
        line.truncate(kLongestText - 1);
        if (line.back().isHighSurrogate())
            line.chop(1);
        line += QChar(0x2026);
    }
    return line;
}

QString textOf(ipp_attribute_t *attribute) {
    return lineOf(ippGetString(attribute, 0, nullptr)); // null where it isn't text
}

QueueState stateOf(ipp_attribute_t *attribute) {
    if (ippGetValueTag(attribute) != IPP_TAG_ENUM)
        return QueueState::Unknown;
    switch (ippGetInteger(attribute, 0)) {
    case IPP_PSTATE_IDLE:
        return QueueState::Idle;
    case IPP_PSTATE_PROCESSING:
        return QueueState::Printing;
    case IPP_PSTATE_STOPPED:
        return QueueState::Paused;
    default:
        return QueueState::Unknown;
    }
}

QStringList reasonsOf(ipp_attribute_t *attribute) {
    QStringList keywords;
    for (int i = 0; i < qMin(ippGetCount(attribute), kMostReasons); ++i)
        keywords.append(lineOf(ippGetString(attribute, i, nullptr)));
    return reasonsInWords(keywords);
}

/// How each attribute is read.
struct Field {
    const char *name;
    void (*read)(ipp_attribute_t *, QueueInfo &);
};
constexpr Field kFields[] = {
    {"printer-name",
     [](ipp_attribute_t *a, QueueInfo &q) {
         q.name = strictUtf8(ippGetString(a, 0, nullptr)).value_or(QString());
     }},
    {"printer-info", [](ipp_attribute_t *a, QueueInfo &q) { q.description = textOf(a); }},
    {"printer-location", [](ipp_attribute_t *a, QueueInfo &q) { q.location = textOf(a); }},
    {"printer-make-and-model",
     [](ipp_attribute_t *a, QueueInfo &q) { q.makeAndModel = textOf(a); }},
    {"printer-state", [](ipp_attribute_t *a, QueueInfo &q) { q.state = stateOf(a); }},
    {"printer-state-reasons", [](ipp_attribute_t *a, QueueInfo &q) { q.reasons = reasonsOf(a); }},
    {"printer-state-message", [](ipp_attribute_t *a, QueueInfo &q) { q.message = textOf(a); }},
    {"printer-is-accepting-jobs",
     [](ipp_attribute_t *a, QueueInfo &q) {
         q.acceptsJobs = ippGetValueTag(a) != IPP_TAG_BOOLEAN || ippGetBoolean(a, 0);
     }},
    {"printer-uri-supported", [](ipp_attribute_t *a, QueueInfo &q) { q.uri = textOf(a); }},
};

/// Why the queue is as it is, in words.
QStringList whyOf(const QueueInfo &queue) {
    QStringList why = queue.reasons;
    const bool isHeldUp = queue.state == QueueState::Paused || !queue.acceptsJobs;
    if (isHeldUp && !queue.message.isEmpty() && !why.contains(queue.message) &&
        std::find(std::begin(kNoWords), std::end(kNoWords), queue.message) == std::end(kNoWords))
        why.append(queue.message);
    return why;
}

} // namespace

std::span<const char *const> queueAttributes() {
    static const auto names = [] {
        std::array<const char *, std::size(kFields)> list;
        std::transform(std::begin(kFields), std::end(kFields), list.begin(),
                       [](const Field &field) { return field.name; });
        return list;
    }();
    return names;
}

QList<QueueInfo> queuesOf(ipp_t *reply) {
    QList<QueueInfo> queues;
    QSet<QString> names;
    QueueInfo queue;
    const auto finish = [&] {
        if (isQueueName(queue.name) && !names.contains(queue.name) && queues.size() < kMostQueues) {
            names.insert(queue.name);
            queues.append(queue);
        }
        queue = {};
    };
    for (ipp_attribute_t *a = ippFirstAttribute(reply); a; a = ippNextAttribute(reply)) {
        if (ippGetGroupTag(a) != IPP_TAG_PRINTER || !ippGetName(a)) { // between two groups
            finish();
            continue;
        }
        for (const Field &field : kFields)
            if (qstrcmp(ippGetName(a), field.name) == 0)
                field.read(a, queue);
    }
    finish();
    return queues;
}

QString safeLine(QString text) {
    text.removeIf([](QChar c) {
        const ushort code = c.unicode();
        const bool turns = (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
        return turns || (c.category() == QChar::Other_Control && !c.isSpace());
    });
    return text.simplified();
}

QString stateLine(const QueueInfo &queue) {
    static constexpr const char *kStates[] = {
        QT_TRANSLATE_NOOP("host", "State unknown"), QT_TRANSLATE_NOOP("host", "Idle"),
        QT_TRANSLATE_NOOP("host", "Printing"), QT_TRANSLATE_NOOP("host", "Paused")};
    QString line = HostWords::tr(kStates[int(queue.state)]);
    if (!queue.acceptsJobs) //: a state, such as "Idle"
        line = HostWords::tr("%1, takes no jobs").arg(line);
    const QStringList why = whyOf(queue); //: a state and why
    return why.isEmpty() ? line : HostWords::tr("%1: %2").arg(line, why.join(HostWords::tr(", ")));
}

QueueProblem queueProblem(const QueueInfo &queue) {
    const bool refuses = !queue.acceptsJobs;
    if (!refuses && queue.state != QueueState::Paused)
        return {};
    QString sentence = refuses
                           ? HostWords::tr("The printer takes no jobs at the moment.")
                           : HostWords::tr("The printer is paused. Jobs wait until it goes on.");
    if (const QStringList why = whyOf(queue); !why.isEmpty()) //: a sentence and why
        sentence = HostWords::tr("%1 (%2)").arg(sentence, why.join(HostWords::tr(", ")));
    return {sentence, refuses};
}

} // namespace host
