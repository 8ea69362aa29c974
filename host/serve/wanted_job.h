#pragma once

#include "host/conflicts/resolution.h"
#include "host/dialog/queue_job.h"

#include <QJsonObject>

namespace host {

struct Request;

/// What keeps a job from being printed as it is asked for. No value that was given is in it: it may
/// be a PIN.
struct Problem {
    enum class Kind {
        UnknownOption, ///< the queue has none of that name
        UnknownChoice,
        BadValue,     ///< of a custom choice, or a common setting
        MissingValue, ///< a PIN, or another value that must be given
        NotSendable,  ///< CUPS would take it for something else
        GivenTwice,
        Locked, ///< a print setting that the preset has locked
    };
    Kind kind;
    QString option; ///< as it is told to the caller: a keyword, or a name that was given
    QString why;    ///< for a person
};

/// A job as a request asks for it: the queue's defaults, a preset or an instance on top, then the
/// request's own choices. What the request asks for and can't have is a problem; nothing is left
/// out unsaid. Used on the interface's thread.
///
/// Secrets are wiped from the PPD's memory in the end.
class WantedJob {
public:
    /// @param plugin  outlives the job
    /// @throw HostError for a preset or an instance that isn't there
    WantedJob(QueueDetails details, PDEPlugin &plugin, const Request &request);
    ~WantedJob();
    WantedJob(const WantedJob &) = delete;
    WantedJob &operator=(const WantedJob &) = delete;

    QueueJob &job() { return m_job; }
    const ConflictIndex &index() const { return m_index; }
    const QList<Problem> &problems() const { return m_problems; }
    /// Of the person's defaults or the preset, what couldn't be applied: a line for a person each.
    const QStringList &notes() const { return m_notes; }
    /// What would leave no conflict. The request's choice stays if it has one only.
    QList<Change> resolution() const { return proposal(m_index, m_chosenLast); }

    /// Readies marks and settings, by the queue's panel if it has one.
    /// @return what the job is sent with
    OptionList ready();

private:
    void usePreset(const Request &request);
    void takeChoices(const QJsonObject &choices, bool othersToo);
    void takeChoice(const ppd_option_t &option, const QString &name, const QJsonValue &value);
    void takeOther(const QString &name, const QJsonValue &value, bool othersToo);
    void takeSettings(const QJsonObject &settings);
    void lookAtCustomValues();
    void lookAtWhatIsSent();
    OptionList options() const;
    void tell(Problem::Kind kind, const QString &option, const QString &why);

    QueueJob m_job;
    ConflictIndex m_index;
    QMap<QString, QStringList> m_choices; ///< to be marked, by the PPD's keyword
    OptionList m_others;                  ///< options of the job that have no home
    QString m_chosenLast;
    QList<Problem> m_problems;
    QStringList m_notes;
};

} // namespace host
