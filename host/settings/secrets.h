#pragma once

#include "host/settings/custom_parameters.h"

#include <QList>
#include <QString>

class QWidget;

namespace host {

/// A password or PIN that a marked choice takes.
struct Secret {
    QString option;     ///< the PPD's keyword
    QString optionText; ///< for a person
    CustomParameter parameter;
    bool isUsable = false; ///< it was typed already, and fits
};

/// The secrets of all marked custom choices, in the PPD's order. Those that aren't usable have to
/// be asked for before the job is sent.
QList<Secret> secretsOf(ppd_file_t *ppd);

/// Asks for the secrets that are missing, in one dialog, and marks them. Without any, no dialog
/// comes up.
/// @return false if the person gave it up; nothing is marked then
bool askSecrets(QWidget *parent, ppd_file_t *ppd);

/// Wipes all secrets from the PPD's memory, once a job has been sent or given up.
void forgetSecrets(ppd_file_t *ppd);

} // namespace host
