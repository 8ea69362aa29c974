#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;
class QPushButton;

namespace host {

/// Lines of text for a person, below a headline; hidden without any. Of many lines the first few
/// are shown, until the person asks for all. The text can be reached and read by keyboard.
class ProblemArea : public QWidget {
    Q_OBJECT

public:
    explicit ProblemArea(QWidget *parent = nullptr);

    /// @param lines  plain text each; with an empty list and headline the area is hidden
    void show(const QString &headline, const QStringList &lines);
    QString text() const;

private:
    void fill(bool all);

    QLabel *m_text;
    QPushButton *m_all;
    QString m_headline;
    QStringList m_lines;
};

} // namespace host
