#include "host/queues/queue_defaults.h"

#include "platform/file_content.h"
#include "platform/utf8.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

#include <cups/file.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>

#include <sys/stat.h>

namespace host {
namespace {

constexpr qint64 kLargestFile = 1 << 20;
constexpr int kMostValues = 100;

/// libcups' list of destinations.
struct Dests {
    ~Dests() { cupsFreeDests(count, list); }
    cups_dest_t *find(const char *name, const char *instance) {
        return cupsGetDest(name, instance, count, list);
    }

    int count = 0;
    cups_dest_t *list = nullptr;
};

struct FileCloser {
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};

/// Opens a regular file that isn't too large. @return null, with the reason unless there is no file
std::unique_ptr<cups_file_t, FileCloser> openFile(const QString &path, QString *reason) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR))
        return nullptr;
    const int fd = openRegularFile(name.constData(), reason);
    if (fd < 0)
        return nullptr;
    std::unique_ptr<cups_file_t, FileCloser> file(cupsFileOpenFd(fd, "r"));
    if (fstat(fd, &status) != 0 || status.st_size > kLargestFile) {
        *reason = QCoreApplication::translate("host", "is too large");
        return nullptr;
    }
    return file;
}

/// Splits "queue" or "queue/instance" off a line, as libcups does. @return the rest
char *takeName(char *line, char **name, char **instance) {
    constexpr char kSpaces[] = " \t\n\v\f\r";
    *name = line;
    *instance = nullptr;
    line += std::strcspn(line, " \t\n\v\f\r/");
    if (*line == '/') {
        *line++ = '\0';
        *instance = line;
        line += std::strcspn(line, kSpaces);
    }
    if (*line)
        *line++ = '\0';
    return line;
}

/// Reads the lines "Dest queue/instance name=value..." and "Default ...".
void readFile(const QString &path, Dests &dests, std::optional<QString> &standard,
              QStringList &problems) {
    QString reason;
    const auto file = openFile(path, &reason);
    if (!file) {
        if (!reason.isNull())
            problems.append(path + QStringLiteral(": ") + reason);
        return;
    }
    char line[8192], *rest;
    int number = 0;
    while (cupsFileGetConf(file.get(), line, sizeof line, &rest, &number)) {
        const bool isDefault = qstricmp(line, "Default") == 0;
        if (!rest || (!isDefault && qstricmp(line, "Dest") != 0))
            continue;
        if (!strictUtf8(rest)) {
            problems.append(QCoreApplication::translate("host", "%1: line %2 isn't UTF-8")
                                .arg(path)
                                .arg(number));
            continue;
        }
        char *name, *instance;
        const char *options = takeName(rest, &name, &instance);
        // An instance needs its queue, whose options it starts with.
        dests.count = cupsAddDest(name, nullptr, dests.count, &dests.list);
        dests.count = cupsAddDest(name, instance, dests.count, &dests.list);
        cups_dest_t *dest = dests.find(name, instance);
        if (!dest)
            continue;
        dest->num_options = cupsParseOptions(options, dest->num_options, &dest->options);
        if (isDefault) {
            standard = QString::fromUtf8(name);
            if (instance)
                *standard += u'/' + QString::fromUtf8(instance);
        }
    }
}

OptionList listOf(int count, const cups_option_t *options) {
    OptionList list;
    for (int i = 0; i < count; ++i)
        list.append({QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value)});
    return list;
}

/// One value as a job's option takes it; null for a type that is none.
QString valueOf(ipp_attribute_t *attribute, int index) {
    int upper = 0;
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_BOOLEAN:
        return ippGetBoolean(attribute, index) ? QStringLiteral("true") : QStringLiteral("false");
    case IPP_TAG_INTEGER:
    case IPP_TAG_ENUM:
        return QString::number(ippGetInteger(attribute, index));
    case IPP_TAG_RANGE: {
        const int lower = ippGetRange(attribute, index, &upper);
        return lower == upper ? QString::number(lower)
                              : QStringLiteral("%1-%2").arg(lower).arg(upper);
    }
    case IPP_TAG_KEYWORD:
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG:
        return strictUtf8(ippGetString(attribute, index, nullptr)).value_or(QString());
    default:
        return {};
    }
}

/// One of several values that stand behind each other with commas.
QString escaped(QString value) {
    static const QRegularExpression special(QStringLiteral("([\\\\,\"'])"));
    return value.replace(special, QStringLiteral("\\\\\\1"));
}

} // namespace

OptionList serverDefaults(ipp_t *reply) {
    constexpr QLatin1String kEnding("-default");
    OptionList list;
    for (ipp_attribute_t *a = ippFirstAttribute(reply); a; a = ippNextAttribute(reply)) {
        const QString name = QString::fromUtf8(ippGetName(a));
        if (ippGetGroupTag(a) != IPP_TAG_PRINTER || !name.endsWith(kEnding) ||
            name.size() == kEnding.size() || name.startsWith(QLatin1String("notify-")) ||
            name.startsWith(QLatin1String("print-quality-")))
            continue;
        QStringList values;
        const int count = ippGetCount(a);
        for (int i = 0; i < qMin(count, kMostValues); ++i)
            values.append(count > 1 ? escaped(valueOf(a, i)) : valueOf(a, i));
        if (!values.isEmpty() && !values.contains(QString()))
            list.append({name.chopped(kEnding.size()), values.join(u',')});
    }
    std::stable_sort(list.begin(), list.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    const auto same = [](const auto &a, const auto &b) { return a.first == b.first; };
    list.erase(std::unique(list.begin(), list.end(), same), list.end());
    return list;
}

OptionList UserOptions::of(const QString &queue, const QString &instance) const {
    const auto find = [this](const QString &name) {
        for (auto entry = options.cbegin(); entry != options.cend(); ++entry)
            if (entry.key().compare(name, Qt::CaseInsensitive) == 0)
                return entry;
        return options.cend();
    };
    auto own = instance.isNull() ? options.cend() : find(queue + u'/' + instance);
    if (own == options.cend())
        own = find(queue);
    return own == options.cend() ? OptionList() : *own;
}

QStringList UserOptions::instancesOf(const QString &queue) const {
    QStringList instances;
    for (auto entry = options.keyBegin(); entry != options.keyEnd(); ++entry)
        if (entry->startsWith(queue + u'/', Qt::CaseInsensitive))
            instances.append(entry->mid(queue.size() + 1));
    instances.sort();
    return instances;
}

UserOptions readUserOptions() {
    UserOptions user;
    Dests dests;
    std::optional<QString> standard; // the file that is read last decides
    const QString root = qEnvironmentVariable("CUPS_SERVERROOT", QStringLiteral("/etc/cups"));
    readFile(root + QStringLiteral("/lpoptions"), dests, standard, user.problems);
    if (qEnvironmentVariableIsSet("HOME"))
        readFile(qEnvironmentVariable("HOME") + QStringLiteral("/.cups/lpoptions"), dests, standard,
                 user.problems);
    for (int i = 0; i < dests.count; ++i) {
        const cups_dest_t &dest = dests.list[i];
        QString name = QString::fromUtf8(dest.name);
        if (dest.instance)
            name += u'/' + QString::fromUtf8(dest.instance);
        user.options.insert(name, listOf(dest.num_options, dest.options));
    }
    // Of the variables only one counts, and CUPS' print commands mean nothing by "lp".
    QString named = qEnvironmentVariable("LPDEST", qEnvironmentVariable("PRINTER"));
    if (!qEnvironmentVariableIsSet("LPDEST") && named == QLatin1String("lp"))
        named.clear();
    for (const QString &name : {named, standard.value_or(QString())})
        if (!name.isEmpty())
            user.defaults.append(name);
    return user;
}

} // namespace host
