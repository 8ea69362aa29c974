#pragma once

#include <QTranslator>

namespace host {

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
