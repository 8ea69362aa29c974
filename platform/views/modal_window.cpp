#include "platform/views/modal_window.h"

#include <QAbstractButton>
#include <QEventLoop>
#include <QHideEvent>
#include <QList>

namespace {

QList<ModalWindow *> &running() {
    static QList<ModalWindow *> windows; // the innermost run is last
    return windows;
}

} // namespace

ModalWindow::ModalWindow(QWidget *parent) : QDialog(parent) {}

ModalWindow::~ModalWindow() {
    running().removeAll(this);
    stopModal();
}

void ModalWindow::runModal(QWidget *hostWindow) {
    if (m_loop)
        return;
    const QPointer<ModalWindow> self(this);
    const bool hasOwner = parentWidget() != nullptr;
    const QPointer<QWidget> owner(parentWidget());
    const QPointer<QWidget> host(hostWindow ? hostWindow->window()
                                            : (owner ? owner->window() : nullptr));
    if (host && host != this && host != owner)
        setParent(host, windowFlags());

    QEventLoop loop;
    if (hasOwner)
        QObject::connect(owner, &QObject::destroyed, &loop, &QEventLoop::quit);
    m_loop = &loop;
    running().append(this);
    setWindowModality(Qt::WindowModal);
    show();
    raise();
    activateWindow();
    loop.exec();
    if (!self)
        return;

    m_loop = nullptr;
    running().removeAll(this);
    hide();
    if (hasOwner && !owner)
        deleteLater(); // would have gone with its parent, had the run not taken it away
    else if (parentWidget() != owner)
        setParent(owner, windowFlags());
}

void ModalWindow::stopModal() {
    if (m_loop)
        m_loop->quit();
}

void ModalWindow::closeWindow() {
    hide();
}

void ModalWindow::setCancelButton(QAbstractButton *button) {
    m_cancel = button;
}

ModalWindow *ModalWindow::current() {
    return running().isEmpty() ? nullptr : running().last();
}

void ModalWindow::reject() {
    if (m_cancel && m_cancel->isEnabled())
        m_cancel->click();
    else
        closeWindow();
}

void ModalWindow::hideEvent(QHideEvent *event) {
    QDialog::hideEvent(event);
    if (!event->spontaneous()) // the window system hides it when it is minimised
        stopModal();
}
