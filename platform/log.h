#pragma once

#include "platform/export.h"

#include <QLoggingCategory>

/// The category of all that the panel logs.
PDE_PLATFORM_EXPORT const QLoggingCategory &panelLog();
