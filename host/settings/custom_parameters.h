#pragma once

#include "platform/cups_ppd.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace host {

/// One value that a custom choice takes, made safe: limits are finite and in order.
struct CustomParameter {
    QByteArray name; ///< the PPD's; "Width" and "Height" for a page size
    QString text;    ///< for a person
    ppd_cptype_t type = PPD_CUSTOM_STRING;
    double least = 0, greatest = 0; ///< of a number, in points for a length; of a text's bytes
    QString value;                  ///< as it stands, in the form of check()

    /// A password, or a PIN.
    bool isSecret() const { return type == PPD_CUSTOM_PASSWORD || type == PPD_CUSTOM_PASSCODE; }
    bool isText() const { return isSecret() || type == PPD_CUSTOM_STRING; }
    bool isWholeNumber() const { return type == PPD_CUSTOM_INT; }
};

/// PPD 4.3, *ParamCustom: whether a parameter mustn't be shown, kept or logged.
inline bool isSecret(const ppd_cparam_t &parameter) {
    return parameter.type == PPD_CUSTOM_PASSWORD || parameter.type == PPD_CUSTOM_PASSCODE;
}
/// What stands for a secret: its length isn't told. An empty one stays empty.
QString redacted(const QString &value);

/// The parameters of an option's choice "Custom" in their order; nothing where it has none.
QList<CustomParameter> customParameters(ppd_file_t *ppd, const QString &option);

/// @param value  a number with "." and in points for a length, or a text
/// @return why a parameter can't have a value, a sentence; null where it can
QString problemOf(const CustomParameter &parameter, const QString &value);

/// The nearest number within a parameter's limits, as a value.
QString nearestValue(const CustomParameter &parameter, double number);

/// The choice that markChoice() takes, "Custom.X" or "{A=1 B='two words'}", with the parameters'
/// values.
QString customChoice(const ppd_option_t &option, const QList<CustomParameter> &parameters);

/// The same for a person's eyes: secrets are redacted.
QString redactedChoice(const ppd_option_t &option, QList<CustomParameter> parameters);

/// Marks the custom choice with the values. @return whether it is marked
bool markCustom(ppd_file_t *ppd, const ppd_option_t &option,
                const QList<CustomParameter> &parameters);

} // namespace host
