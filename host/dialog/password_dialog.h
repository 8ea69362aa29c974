#pragma once

#include "host/cups_server.h"

class QWidget;

namespace host {

/// Asks the person for the name and password that a server wants, in a dialog of its own.
/// @param prompt  the server's question, plain text
/// @return nothing if the person gave it up
std::optional<Credentials> askPassword(QWidget *parent, const QString &prompt);

} // namespace host
