#pragma once

#include "platform/print_core.h"

#include <QJsonObject>
#include <QVariantMap>

namespace host {

class PanelStage;

/// What a person could see and the host knows, as the command "state" answers it: the views of the
/// panel and of its child windows, the window and alert in front, marks, print settings, the calls
/// of the host object since the last state, and the beeps since the start.
QJsonObject stateJson(PanelStage &stage);

/// A panel's identity: "panel", and with one "kind", "name" and "keys".
QJsonObject panelJson(PanelStage &stage, bool open);

/// The print settings: value by key.
QJsonObject ticketJson(const PrintSettings &settings);

/// A summary as "order" and "values".
QJsonObject summaryJson(const QVariantMap &summary);

} // namespace host
