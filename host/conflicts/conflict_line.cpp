#include "host/conflicts/conflict_line.h"

#include "host/dialog/plain_label.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>

namespace host {

ConflictLine::ConflictLine(QWidget *parent) : QWidget(parent), m_words(plainLabel()) {
    setObjectName(QStringLiteral("conflictLine"));
    auto *icon = new QLabel;
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    m_words->setWordWrap(true);
    m_words->setObjectName(QStringLiteral("conflictWords"));
    auto *resolve = new QPushButton(tr("Resol&ve…"));
    resolve->setObjectName(QStringLiteral("resolve"));
    resolve->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(icon);
    layout->addWidget(m_words, 1);
    layout->addWidget(resolve);
    connect(resolve, &QPushButton::clicked, this, &ConflictLine::resolveAsked);
    hide();
}

void ConflictLine::show(qsizetype count, const QString &first) {
    const QString words =
        count == 0 ? QString()
        : count == 1
            ? tr("Can't be printed together: %1").arg(first)
            : tr("Can't be printed together: %1, and %n more", nullptr, int(count - 1)).arg(first);
    if (words != m_words->text()) {
        m_words->setText(words);
        QAccessibleEvent told(m_words, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&told);
    }
    setVisible(count > 0);
}

} // namespace host
