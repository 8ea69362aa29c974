#include "controls/text_entry_formatter.h"

#include "controls/text_entry_family.h"
#include "platform/views/view.h"
#include "ppd/text_utils.h"

#include <algorithm>
#include <iterator>

void TextEditFormatterKRVImageOptions::initWithFilter(const TextEditFilterData *filter,
                                                      uint32_t maxLength) {
    FilterDataPtr = filter;
    maxlength = maxLength;
}

bool TextEditFormatterKRVImageOptions::isPartialStringValid(const QString &partial,
                                                            QString *newString, QString *error) {
    if (validateInput(partial, FilterDataPtr) &&
        static_cast<uint32_t>(GetStringLength(partial)) <= maxlength) {
        if (newString)
            *newString = partial;
        return true;
    }
    if (error)
        *error = QStringLiteral("String too long.");
    views::beep();
    return false;
}

bool TextEditFormatterKRVImageOptions::getObjectValue(QString *object, const QString &string,
                                                      QString *) {
    if (object)
        *object = string;
    return true;
}

QString TextEditFormatterKRVImageOptions::stringForObjectValue(const QString &object) {
    return object;
}

void GTextEditFormatterKRV::initWithFilter(const TextEditFilterData *filter, uint32_t maxLength,
                                           GTextEditCtrlKRV *brotherContrl) {
    TextEditFormatterKRVImageOptions::initWithFilter(filter, maxLength);
    BrotherContrl = brotherContrl;
}

bool GTextEditFormatterKRV::getObjectValue(QString *object, const QString &string, QString *) {
    if (!BrotherContrl)
        return false;
    QString value = string;
    if (!IsNumberValid(string)) {
        BrotherContrl->CorrectCtrlUI();
        value = BrotherContrl->GetCorrectedData();
    }
    if (object)
        *object = value;
    // The text that stands in the field from now on: a refused entry doesn't move the stepper.
    constexpr int kKeyBytes = 5;
    BrotherContrl->OnRawKeyUp(value.toUtf8().left(kKeyBytes).constData());
    return true;
}

bool GTextEditFormatterKRV::IsNumberValid(const QString &text) const {
    static constexpr const char *valid[] = {"-", "", "0", "1", "2", "3", "-1", "-2", "-3"};
    return !text.isNull() &&
           std::any_of(std::begin(valid), std::end(valid),
                       [&text](const char *v) { return text == QLatin1String(v); });
}
