#pragma once

#include "platform/export.h"

#include <QString>

class QWidget;

namespace views {

/// Shows an alert with one button and waits until it is pressed. All texts are plain.
/// @param parent           the view or window that the alert stands before and blocks; null blocks
///                         the whole application
/// @param iconPath         a picture file; a warning sign when it can't be read
/// @param message          the alert's headline; may be empty
/// @param informativeText  the text below it; may be empty
PDE_PLATFORM_EXPORT void runAlert(QWidget *parent, const QString &iconPath, const QString &message,
                                  const QString &informativeText, const QString &buttonTitle);

/// @return the text of the alert in front, headline and text parted by an empty line if it has
/// both;
///         null when none stands
PDE_PLATFORM_EXPORT QString currentAlert();

/// Presses the button of the alert in front, as a person does.
/// @return false when none stands
PDE_PLATFORM_EXPORT bool dismissAlert();

} // namespace views
