#pragma once

#include "host/settings/job_settings.h"
#include "platform/print_core.h"

#include <QList>
#include <QString>

namespace host {

/// One option as it will be sent.
struct SentRow {
    QString group;          ///< the PPD's, or a title of ours
    QString option;         ///< for a person
    QString queueDefault;   ///< for a person; null where the queue has none
    QString chosen;         ///< for a person
    QString sent;           ///< "Option=choice"; null where the option isn't sent
    bool isChanged = false; ///< against the queue's default

    /// The column for a person: what is sent, or that it isn't.
    QString sentText() const;
};

/// What a list is made from. All is borrowed, and may be null.
struct ToSend {
    ppd_file_t *ppd = nullptr;
    const PrintSettings *settings = nullptr;
    const JobSettings *job = nullptr; ///< null where common settings aren't asked for
    OptionList otherOptions{};        ///< options of the job besides
    OptionList serverDefaults{};      ///< of the queue, as for JobSettings
};

/// What CUPS is told, or what a file is made with where the job goes to one.
OptionList optionsOf(const ToSend &what);

/// A row for each option, in the order in which they are sent: the PPD's, the print settings, the
/// common settings, the others. Every option of optionsOf() has its row. Secrets are redacted.
QList<SentRow> sentList(const ToSend &what);

} // namespace host
