#pragma once

#include <QStackedWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

namespace pdeqt {

/// What a tab shows: the panel, or words in its place.
class TabPages : public QStackedWidget {
    Q_OBJECT

public:
    TabPages();

    /// Shows a sentence, and below it another. @param reason  null for none
    void showWords(const QString &sentence, const QString &reason = {});
    /// Shows what failed and why, with a button to try again.
    void showFailure(const QString &sentence, const QString &reason);
    void showPanel();
    /// Where the panel's window is to stand.
    QBoxLayout *panelHome() const { return m_home; }

signals:
    void retryAsked();

private:
    QLabel *m_sentence, *m_reason;
    QPushButton *m_retry;
    QScrollArea *m_area;
    QBoxLayout *m_home;
};

} // namespace pdeqt
