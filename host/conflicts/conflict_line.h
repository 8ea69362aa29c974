#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace host {

/// A line for the foot of a window that tells how many conflicts stand, and leads out of them.
/// Hidden without any.
class ConflictLine : public QWidget {
    Q_OBJECT

public:
    explicit ConflictLine(QWidget *parent = nullptr);

    /// @param first  the first conflict in words
    void show(qsizetype count, const QString &first);

signals:
    void resolveAsked();

private:
    QLabel *m_words;
};

} // namespace host
