#pragma once

#include <QTranslator>

namespace host {

/// Installs the best table `<name><language>.qm` of a folder that is there for the panel's
/// languages; none where English comes first. The translator outlives its installation.
void installTable(QTranslator &translator, const QString &name, const QString &folder);

/// The host's own words and Qt's, in the language of the panel, for as long as it lives. There are
/// German, French, Japanese and simplified Chinese; English is what the program is written in.
///
/// Made after the application, before its first window.
class Language {
public:
    Language();

private:
    QTranslator m_own, m_qt;
};

} // namespace host
