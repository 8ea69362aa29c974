#include "host/presets/problem_area.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

namespace host {
namespace {

constexpr qsizetype kShownAtFirst = 4;

} // namespace

ProblemArea::ProblemArea(QWidget *parent)
    : QWidget(parent), m_text(new QLabel), m_all(new QPushButton) {
    auto *icon = new QLabel;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size));
    m_text->setObjectName(QStringLiteral("presetProblems"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    m_text->setFocusPolicy(Qt::StrongFocus);
    m_all->setObjectName(QStringLiteral("allPresetProblems"));
    m_all->setAutoDefault(false);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(icon, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_all, 0, Qt::AlignBottom);
    connect(m_all, &QPushButton::clicked, this, [this] {
        fill(true);
        m_text->setFocus();
    });
    show({}, {});
}

void ProblemArea::show(const QString &headline, const QStringList &lines) {
    m_headline = headline;
    m_lines = lines;
    fill(lines.size() <= kShownAtFirst);
    const bool any = !headline.isEmpty() || !lines.isEmpty();
    setVisible(any);
    if (any) {
        QAccessibleEvent told(m_text, QAccessible::Alert);
        QAccessible::updateAccessibility(&told);
    }
}

QString ProblemArea::text() const {
    return m_text->text();
}

void ProblemArea::fill(bool all) {
    QStringList shown = all ? m_lines : m_lines.mid(0, kShownAtFirst);
    const QString mark = m_headline.isEmpty() ? QString() : QStringLiteral("• ");
    for (QString &line : shown)
        line.prepend(mark);
    if (!m_headline.isEmpty())
        shown.prepend(m_headline);
    m_text->setText(shown.join(u'\n'));
    m_text->setAccessibleName(m_text->text());
    m_all->setText(tr("Show &All %1").arg(m_lines.size()));
    m_all->setVisible(!all);
}

} // namespace host
