#pragma once

#include "host/cups_server.h"

#include <QWidget>

#include <atomic>
#include <functional>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

namespace host {

struct Document;
class JobSender;
struct PsCode;

/// The page of the dialog that stands while a job is on its way, and afterwards: a bar and
/// "Cancel", then the job's number and its state as it changes, "Cancel Job" and "Close".
class JobPage : public QWidget {
    Q_OBJECT

public:
    explicit JobPage(QWidget *parent = nullptr);
    ~JobPage() override;

    /// Sends a job to CUPS and follows it.
    void send(const CupsJob &job);
    /// Makes a file in the background: the document is converted, made into a job, and written.
    /// @param inputs  files that can't be replaced
    void writeFile(const QString &target, const Document &document, const QStringList &inputs,
                   const PsCode &code);
    /// Gives up what is on its way; nothing for a job that was sent.
    void giveUp();
    bool isUnderWay() const { return m_underWay; }
    /// Says something besides how the job stands.
    void tell(const QString &words);

signals:
    /// The job was sent, or the file written.
    void done();
    /// @param reason  for a person; null where the person gave it up
    void failed(const QString &reason);
    /// A job that the person gave up may be left on the server. @param reason  for a person
    void leftBehind(const QString &reason);
    void closed();

private:
    void begin(const QString &headline, int total);
    void end(const QString &headline, const QString &state);
    void fail(const QString &reason);
    void showState(const JobState &state);
    void showWords(const QString &words);

    QLabel *m_headline;
    QLabel *m_state;
    QLabel *m_remark;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QPushButton *m_close;
    JobSender *m_sender = nullptr;
    bool m_underWay = false;
    bool m_isFinished = true;                     ///< no job is left to cancel
    std::shared_ptr<std::atomic<bool>> m_givenUp; ///< of the file that is being made
};

} // namespace host
