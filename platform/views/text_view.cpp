#include "platform/views/text_view.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>

TextView::TextView(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
}

void TextView::setTextDimmed(bool dimmed) {
    if (dimmed == m_dimmed)
        return;
    m_dimmed = dimmed;
    showDimming();
}

void TextView::showDimming() {
    QPalette own; // of no colour of its own, so that all are inherited
    if (m_dimmed) {
        const QPalette inherited =
            parentWidget() ? parentWidget()->palette() : QApplication::palette();
        own.setColor(QPalette::WindowText,
                     inherited.color(QPalette::Disabled, QPalette::WindowText));
    }
    setPalette(own);
}

void TextView::changeEvent(QEvent *event) {
    QLabel::changeEvent(event);
    const bool inheritsAnew =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange;
    if (m_dimmed && inheritsAnew && !m_takingColours) {
        const QScopedValueRollback guard(m_takingColours, true);
        showDimming();
    }
}

void TextView::setBuddy(QWidget *buddy) {
    QLabel::setBuddy(buddy);
    showCaption();
}

void TextView::adoptShownText() {
    if (buddy())
        adoptMarkedText(text());
    else
        setCaption(text());
}

void TextView::showCaption() {
    setText(buddy() ? markedCaption() : caption()); // without a buddy Qt takes "&" as it stands
    if (!buddy() ||
        (!buddy()->accessibleName().isEmpty() && buddy()->accessibleName() != m_givenName))
        return;
    m_givenName = caption();
    while (m_givenName.endsWith(u':') || m_givenName.endsWith(QChar(0xFF1A)) ||
           m_givenName.endsWith(QChar::Nbsp))
        m_givenName.chop(1);
    buddy()->setAccessibleName(m_givenName);
}
