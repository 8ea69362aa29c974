#pragma once

#include "platform/export.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

namespace views {

/// One outlet of a form's owner: the object name, and what takes the view found under it. A view of
/// another class than the outlet's is not taken.
struct Outlet {
    QString name;
    std::function<void(QWidget *)> connect;
};

/// An outlet for a pointer field of the class `View`.
template <class View>
Outlet outlet(const QString &name, QPointer<View> &field) {
    return {name, [&field](QWidget *view) { field = qobject_cast<View *>(view); }};
}

/// A class of views that forms may hold as promoted widgets.
struct ViewClass {
    QString name;
    QWidget *(*make)(QWidget *parent);
};

/// A class of views from above the platform layer, under the name that it bears itself.
template <class View>
ViewClass viewClass() {
    return {QString::fromLatin1(View::staticMetaObject.className()),
            [](QWidget *parent) -> QWidget * { return new View(parent); }};
}

/// Loads a Qt Designer form and connects the outlets. The classes of platform/views stand in the
/// form as promoted widgets; what the form sets as the text of a label or a button is its title
/// afterwards. Texts are taken as they stand: tables, not the application's translators, localise
/// them. An outlet that the form lacks is set to null, and so is every outlet on failure.
/// @param path         the form, a `.ui` file
/// @param error        receives the reason in one line on failure; may be null
/// @param moreClasses  what this form may hold besides
/// @return the root view without a parent, owned by the caller; null if the form can't be loaded
PDE_PLATFORM_EXPORT QWidget *loadForm(const QString &path, const std::vector<Outlet> &outlets,
                                      QString *error = nullptr,
                                      const std::vector<ViewClass> &moreClasses = {});

/// Gives each label with a buddy and each titled button below a view a mnemonic, in tab order, no
/// letter twice as long as letters last. Called when the titles stand, and again when they change.
/// Latin letters and digits come first, and among these the ones that begin a word. A title that
/// has no letter with a key, or none left, gets a Latin one behind it, which is no part of it.
/// Letters that other views of the window use are left to them, but for views on another page of a
/// stack, such as that of a row of tabs. Each window has letters of its own.
PDE_PLATFORM_EXPORT void assignMnemonics(QWidget *root);

} // namespace views
