#pragma once

#include "host/settings/option_list.h"
#include "platform/cups_ppd.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace host {

/// The server's own defaults of a queue: the attributes "NAME-default" of a reply to
/// Get-Printer-Attributes as NAME and value, sorted by name, each name once. As libcups does it,
/// what can't be an option of a job is left out: other types than booleans, numbers, ranges,
/// keywords and names, and what is about notifications and print quality.
OptionList serverDefaults(ipp_t *reply);

/// What `lpoptions` has written: the person's own defaults of queues and their instances.
struct UserOptions {
    /// Options by "queue" or "queue/instance", sorted by name, each name once. An instance starts
    /// with those of its queue.
    QHash<QString, OptionList> options;
    /// The default destinations that the person or the machine names, "queue" or "queue/instance",
    /// in the order in which they are to be tried before the server's.
    QStringList defaults;
    /// Files and lines that can't be read, in words.
    QStringList problems;

    /// Names count without case, as for CUPS.
    /// @param instance  null for the queue itself; one that isn't known has its queue's options
    OptionList of(const QString &queue, const QString &instance = {}) const;
    /// The instances of a queue, sorted.
    QStringList instancesOf(const QString &queue) const;
};

/// Reads the machine's file and then the person's, which goes before it, by libcups' rules and
/// parsers: lpoptions in CUPS_SERVERROOT (else /etc/cups), and .cups/lpoptions in HOME. The
/// variables LPDEST and PRINTER go before the files' default. A file that is no regular file, or
/// larger than a megabyte, is a problem and not waited for; one that isn't there is none.
UserOptions readUserOptions();

} // namespace host
