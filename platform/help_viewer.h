#pragma once

#include "platform/bundle.h"
#include "platform/export.h"

#include <QString>
#include <QUrl>

#include <cstdint>

class QWidget;

/// Puts the bundle's help book into the viewer's list. A second call for a bundle brings its entry
/// up to date and is no error.
///
/// The book is the folder `Resources/Help` of the bundle; its title is "CFBundleHelpBookName" of
/// `Info.json`, and each text under "HelpBookTitles" (an object of language codes) is a title too.
/// @return 0, also when the list can't be written, which is then kept in memory; -43 when the
/// bundle
///         has no such folder
PDE_PLATFORM_EXPORT int32_t AHRegisterHelpBook(const Bundle &bundle);

/// Shows a page of a registered book in the viewer's own window, which has no parent and stays
/// usable while a window of the panel runs modally. A page is looked for in the folder of each
/// language first, see Bundle::resourcePath.
/// @param book    the book's title
/// @param page    file name of the page; null for the book's first page: "index.htm" or
///                "index.html", or else the first page by name
/// @param anchor  place on the page; null for its top
/// @return 0; -43 when no book has that title or the book lacks the page
PDE_PLATFORM_EXPORT int32_t AHGotoPage(const QString &book, const QString &page,
                                       const QString &anchor);

/// The viewer's list as an XML property list ("RegisteredBooks", "RegistrationOrder"), kept in the
/// user's configuration folder. Under "RegisteredBooks" stands for each bundle identifier an array
/// with one dictionary: "url" of the book's folder, "bundle" (a path) and "titles" (an array).
PDE_PLATFORM_EXPORT QString helpViewerPreferencePath();

/// @return the viewer's window, owned by the viewer; null until a page has been shown
PDE_PLATFORM_EXPORT QWidget *helpViewerWindow();
/// @return the page that the viewer shows, with the anchor as its fragment; empty without a window
PDE_PLATFORM_EXPORT QUrl helpViewerPage();
