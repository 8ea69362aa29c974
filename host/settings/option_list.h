#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <optional>

namespace host {

/// Options by name, as CUPS takes them. Names count without case.
using OptionList = QList<QPair<QString, QString>>;

/// @return the last value under a name; nothing without one
inline std::optional<QString> optionValue(const OptionList &options, const QString &name) {
    for (qsizetype i = options.size(); i-- > 0;)
        if (options[i].first.compare(name, Qt::CaseInsensitive) == 0)
            return options[i].second;
    return {};
}

/// As optionValue(), for a list that may have the names of a printer's attributes, "copies-default"
/// for "copies".
inline std::optional<QString> defaultValue(const OptionList &defaults, const QString &name) {
    if (auto found = optionValue(defaults, name))
        return found;
    return optionValue(defaults, name + QStringLiteral("-default"));
}

} // namespace host
