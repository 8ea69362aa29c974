#pragma once

#include "platform/export.h"

#include <QString>

#include <functional>

class QWidget;

/// The thin layer over Qt Widgets where Qt's meaning differs from what the controls need: a view
/// has a tag, its own enabled and hidden flags, and sends one action, for a person's act alone.
namespace views {

/// The view's tag: the dynamic property "tag" that the form sets; 0 without one or for null.
PDE_PLATFORM_EXPORT int tag(const QWidget *view);
/// The view's own enabled flag, whatever its window or group is; false for null.
PDE_PLATFORM_EXPORT bool isEnabled(const QWidget *view);
PDE_PLATFORM_EXPORT void setEnabled(QWidget *view, bool enabled);
/// The view's own hidden flag, whatever its window or group is; false for null. A view that nobody
/// has hidden isn't hidden, even while it stands in no window.
PDE_PLATFORM_EXPORT bool isHidden(const QWidget *view);
/// Sets the flag. A view without a parent never comes up as a window by this; it takes the flag
/// along into the window that it is put into.
PDE_PLATFORM_EXPORT void setHidden(QWidget *view, bool hidden);
/// Whether a person can act on the view: it and everything that it stands in, up to its window, is
/// enabled and not hidden, and no modal window blocks it. A dialog window must stand on the screen;
/// a panel that hasn't been put into a window yet counts as shown. False for null.
PDE_PLATFORM_EXPORT bool isUsable(const QWidget *view);
/// The alert sound. Counted, so that a test can tell that it came.
PDE_PLATFORM_EXPORT void beep();
PDE_PLATFORM_EXPORT int beepCount();

/// Part of every view that sends an action. Setting an action replaces the former one.
class PDE_PLATFORM_EXPORT ActionSource {
public:
    virtual ~ActionSource();
    void setAction(std::function<void()> action) { m_action = std::move(action); }
    /// Drops the action, and all else that the view would call of who set it.
    virtual void dropAction() { m_action = {}; }

protected:
    /// Runs the action. The view may be gone afterwards.
    void sendAction() const;

private:
    std::function<void()> m_action;
};

} // namespace views
