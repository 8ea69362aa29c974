#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace host {

/// Asks for a preset's name, and says in words what is wrong with one that can't be used. Runs an
/// event loop.
/// @param question  the window's title
/// @param name      what stands there at first
/// @return nothing if the person gives up
std::optional<QString> askPresetName(QWidget *parent, const QString &question, const QString &name);

} // namespace host
