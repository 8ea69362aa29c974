#pragma once

#include "platform/export.h"

#include <QString>

/// What a text field asks about the text in it. Implemented by the control that owns the field.
class PDE_PLATFORM_EXPORT TextFormatter {
public:
    virtual ~TextFormatter();

    /// Asked at each change that a person makes, with the whole text as it would be. Says itself,
    /// by a beep, that it refuses.
    /// @param partial    the text with the change
    /// @param newString  may receive another text to take in its place; null takes `partial`
    /// @param error      receives the reason of a refusal; may be left alone
    /// @return false to keep the change out of the field
    virtual bool isPartialStringValid(const QString &partial, QString *newString,
                                      QString *error) = 0;
    /// Asked when a person's edit ends.
    /// @param object  receives what the text stands for
    /// @param string  the text as typed
    /// @param error   receives the reason of a failure; may be left alone
    /// @return whether `object` was set; with false the text stays in the field
    virtual bool getObjectValue(QString *object, const QString &string, QString *error) = 0;
    /// The text to show for an object; null to leave the field as it is.
    virtual QString stringForObjectValue(const QString &object) = 0;
};
