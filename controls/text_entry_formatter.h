#pragma once

#include "platform/views/text_formatter.h"
#include "ppd/input_filter.h"

#include <cstdint>

class GTextEditCtrlKRV;

/// Keeps unwanted characters and too long texts out of a field while they are typed.
class TextEditFormatterKRVImageOptions : public TextFormatter {
public:
    /// @param filter     what may be typed; outlives the formatter
    /// @param maxLength  the greatest length, as GetStringLength counts
    void initWithFilter(const TextEditFilterData *filter, uint32_t maxLength);
    /// Beeps on refusal. A wrong character and a text too long give the same error text.
    bool isPartialStringValid(const QString &partial, QString *newString, QString *error) override;
    /// Passes the text through. @return true
    bool getObjectValue(QString *object, const QString &string, QString *error) override;
    /// @return the object itself
    QString stringForObjectValue(const QString &object) override;

protected:
    const TextEditFilterData *FilterDataPtr = nullptr;
    uint32_t maxlength = 0;
};

/// The formatter of a number field: an entry that isn't a number of the field's range springs back
/// to the stepper's number, and each entry that is taken moves the stepper.
class GTextEditFormatterKRV : public TextEditFormatterKRVImageOptions {
public:
    /// @param brotherContrl  the field's control, which takes the formatter off the field when it
    ///                       goes
    void initWithFilter(const TextEditFilterData *filter, uint32_t maxLength,
                        GTextEditCtrlKRV *brotherContrl);
    /// @return false without a control
    bool getObjectValue(QString *object, const QString &string, QString *error) override;
    /// @return whether the text is one of "-", "", "0" to "3", "-1" to "-3"; false for null. The
    ///         stepper's range plays no part.
    bool IsNumberValid(const QString &text) const;

protected:
    GTextEditCtrlKRV *BrotherContrl = nullptr;
};
