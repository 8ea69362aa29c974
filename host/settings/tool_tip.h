#pragma once

#include <QString>

namespace host {

/// Foreign text as a tool tip that shows it as it stands, in lines of a readable length.
inline QString plainToolTip(const QString &text) {
    return text.isEmpty()
               ? QString()
               : QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

} // namespace host
