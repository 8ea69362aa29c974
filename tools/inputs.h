#pragma once

#include "platform/ppd_file.h"

#include <QStringList>
#include <QTemporaryFile>

#include <list>
#include <memory>
#include <string>

namespace cdf {

/// The sections that the panel looks for: the one of this system's version, and of older ones.
extern const QStringList kPanelSections;

/// Opens a PPD file, plain or gzipped. @throw ToolError when it is none or was cut off
PpdFile openPpd(const QString &path);

/// A copy of a PPD's text with CR line ends, in which the stamp is a line of its own for
/// CQuickXPPD. It goes with the object. @throw ToolError
std::unique_ptr<QTemporaryFile> copyWithCarriageReturns(const QByteArray &text);

/// The options whose constraints count.
/// @param path  a text file with a keyword to a line, "*" before it or not, blank lines and lines
///              that begin with "#" left out; null for the options of the panel
/// @throw ToolError
std::list<std::string> watchedKeys(const QString &path);

} // namespace cdf
