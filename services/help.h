#pragma once

#include "platform/bundle.h"

#include <QString>

#include <cstdint>

// The bundle's help book in the help viewer. Nothing here is shown to the user on failure.

/// Which page belongs to a window: the name of a product's page is the prefix, the help part of the
/// PPD and ".htm".
struct HelpStringRow {
    const char *prefix;
    const char *name; ///< the page without a product
};
/// Ended by a row of nulls.
extern const HelpStringRow GraphicsHelpString[4];

/// Registers the help book of the panel's bundle.
/// @return 0; -43 when the bundle isn't open; else the viewer's result
int32_t RegisterMyHelpBook();
/// Registers a bundle's help book. Null does nothing.
void RegisterHelpBook(const Bundle *bundle);

/// Opens a page of the book whose title is found in the default strings table.
/// @param page      file name of the page
/// @param anchor    place on the page, or null
/// @param titleKey  key of the title, of which 255 bytes of UTF-8 count; without a translation the
///                  title is "no translation"
/// @return 0; -43 for a null bundle; else the viewer's result
int32_t GotoHelpPage(const Bundle *bundle, const QString &page, const QString &anchor,
                     const QString &titleKey);
/// Opens a page of the book that "CFBundleHelpBookName" names. Does nothing for a null bundle or
/// without a text under that key.
void GotoHelpPage(const Bundle *bundle, const QString &page, const QString &anchor);

/// Takes a book out of the help viewer's list "~/Library/Preferences/com.apple.help.plist".
///
/// Only a book whose first entry has a "url" with ".lproj" is taken out: its key in
/// "RegisteredBooks" and its first mention in "RegistrationOrder". The file, XML or binary, is
/// replaced as a whole by an XML property list. Nothing is written in any other case.
/// @param identifier  the book's bundle identifier; null does nothing
void RemoveHelpCacheForBundleID(const QString &identifier);
