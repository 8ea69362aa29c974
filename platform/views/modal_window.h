#pragma once

#include "platform/export.h"

#include <QDialog>
#include <QPointer>

class QAbstractButton;
class QEventLoop;

/// A child window that runs modally over the window of the print dialog, so that windows which
/// belong to neither, such as help, stay usable. Runs may be nested.
///
/// A person closes it by the title bar or Escape, which presses its Cancel button. Code closes it
/// by stopModal() and closeWindow(), which press nothing.
class PDE_PLATFORM_EXPORT ModalWindow : public QDialog {
    Q_OBJECT
public:
    explicit ModalWindow(QWidget *parent = nullptr);
    ~ModalWindow() override;

    /// Shows the window and returns when its run has ended, which also hides it. The window may be
    /// gone then. During the run it stands before the host's window, as its child; afterwards it is
    /// given back to its former parent. Does nothing while the window runs already.
    /// @param hostWindow  any view of the window to block; null for the parent's
    void runModal(QWidget *hostWindow);
    /// Ends the run; nothing when none is on. An outer run returns after the inner ones.
    void stopModal();
    /// Hides the window and so ends its run.
    void closeWindow();
    bool isRunning() const { return m_loop != nullptr; }
    /// The button that a person's close presses. Without one, or with one that is disabled, the
    /// close ends the run.
    void setCancelButton(QAbstractButton *button);
    /// @return the window whose run began last and is still on, or null
    static ModalWindow *current();

    /// A person's close.
    void reject() override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    QPointer<QAbstractButton> m_cancel;
    QEventLoop *m_loop = nullptr; ///< of the run that is on
};
