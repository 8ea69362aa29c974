#pragma once

#include "platform/bundle.h"

#include <QString>

#include <memory>

/// What a look-up gives for a text that the strings table lacks.
inline const QString kNoTranslation = QStringLiteral("no translation");

/// "CFBundleIdentifier" of the panel's bundle.
inline constexpr char kBundleIdentifier[] = "com.velmora.k27.pde.ImageOptions";

/// The bundle that the plug-in was initialised with, the first one for the life of the process;
/// null before. Strings, pictures and help pages come from it.
extern std::shared_ptr<Bundle> pluginBundle;

/// @return the name under which the panel is a client of the print system
QString GetAppClientID();
/// @return the open bundle with kBundleIdentifier, or null
std::shared_ptr<Bundle> GetAppBundleRef();
