#include "platform/views/view.h"

#include <QApplication>
#include <QVariant>
#include <QWidget>

namespace views {

namespace {

int beeps = 0;

/// Whether the modal window that is in front keeps a person away from another window.
bool isBlocked(const QWidget *window) {
    const QWidget *modal = QApplication::activeModalWidget();
    if (!modal)
        return false;
    // Windows that belong to the modal one stay usable, whatever its modality.
    for (const QWidget *widget = window; widget; widget = widget->parentWidget())
        if (widget == modal)
            return false;
    if (modal->windowModality() == Qt::ApplicationModal)
        return true;
    for (const QWidget *widget = modal->parentWidget(); widget; widget = widget->parentWidget())
        if (widget == window)
            return true;
    return false;
}

} // namespace

int tag(const QWidget *view) {
    return view ? view->property("tag").toInt() : 0;
}

bool isEnabled(const QWidget *view) {
    return view && !view->testAttribute(Qt::WA_ForceDisabled);
}

void setEnabled(QWidget *view, bool enabled) {
    if (view)
        view->setEnabled(enabled);
}

bool isHidden(const QWidget *view) {
    // Qt also calls a view hidden that has merely never stood in a window.
    return view && view->isHidden() && view->testAttribute(Qt::WA_WState_ExplicitShowHide);
}

void setHidden(QWidget *view, bool hidden) {
    if (!view)
        return;
    if (!hidden && !view->parentWidget())
        view->setAttribute(Qt::WA_WState_ExplicitShowHide, view->isVisible());
    else
        view->setHidden(hidden);
}

bool isUsable(const QWidget *view) {
    if (!view || !view->isEnabled())
        return false;
    for (const QWidget *widget = view; !widget->isWindow(); widget = widget->parentWidget())
        if (isHidden(widget))
            return false;
    const QWidget *window = view->window();
    const bool shown = window->windowType() == Qt::Dialog ? window->isVisible() : !isHidden(window);
    return shown && !isBlocked(window);
}

void beep() {
    ++beeps;
    if (qApp)
        QApplication::beep();
}

int beepCount() {
    return beeps;
}

ActionSource::~ActionSource() = default;

void ActionSource::sendAction() const {
    const std::function<void()> action = m_action; // survives the view
    if (action)
        action();
}

} // namespace views
