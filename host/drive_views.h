#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include <functional>

class ModalWindow;
class QWidget;

namespace host {

/// A view that has a tag or a name, and the child window in which it stands; null for the panel.
struct ListedView {
    QWidget *view;
    ModalWindow *window;
};

/// The views of the panel's window, then those of its child windows by title, whether these are
/// shown or not; within a window in the order of the form.
QList<ListedView> listViews(QWidget *panelWindow);

/// What a view is called in answers: "popup", "checkbox", ...
QString kindOf(const QWidget *view);
/// A view as an object of "state".
QJsonObject viewJson(const ListedView &listed);

/// A person's act on one view, as the commands "select", "click", "step", "slide" and "type" ask.
///
/// The view is named by "tag" or by "view". With a window in front that is modal, only its own
/// views can be acted on.
struct ViewAct {
    QWidget *view = nullptr;   ///< what to act on; null if the act is refused
    QString refusal;           ///< why it is refused
    std::function<bool()> act; ///< does it; may run a nested event loop, and the view may be gone

    /// Finds the view and checks the act, without doing it.
    static ViewAct prepare(const QJsonObject &command, QWidget *panelWindow);
};

/// @return whether a command's word is one of the acts
bool isViewAct(const QString &word);

} // namespace host
