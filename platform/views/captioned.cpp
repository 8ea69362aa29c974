#include "platform/views/captioned.h"

namespace views {

QString escapeMnemonics(const QString &text) {
    QString escaped = text;
    return escaped.replace(u'&', QStringLiteral("&&"));
}

bool isMnemonicLetter(QChar character) {
    switch (character.script()) {
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return character.isLetter();
    default:
        return character >= u'0' && character <= u'9';
    }
}

Captioned::~Captioned() = default;

void Captioned::setCaption(const QString &caption) {
    m_caption = caption;
    showCaption();
}

void Captioned::setMnemonic(QChar character) {
    m_mnemonic = character == u'&' ? QChar() : character;
    showCaption();
}

QString Captioned::markedCaption() const {
    if (m_mnemonic.isNull())
        return escapeMnemonics(m_caption);
    qsizetype place = m_caption.indexOf(m_mnemonic, 0, Qt::CaseInsensitive);
    if (place >= 0)
        return escapeMnemonics(m_caption.left(place)) + u'&' +
               escapeMnemonics(m_caption.mid(place));
    place = m_caption.size();
    const QString tail = QStringLiteral(":\uFF1A\u2026."); // the letter stands before an ellipsis
    while (place > 0 && tail.contains(m_caption[place - 1]))
        --place;
    return escapeMnemonics(m_caption.left(place)) + QStringLiteral("(&") + m_mnemonic + u')' +
           m_caption.mid(place);
}

void Captioned::adoptMarkedText(const QString &text) {
    m_caption.clear();
    m_mnemonic = QChar();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size()) {
            ++i;
            if (text[i] != u'&' && m_mnemonic.isNull())
                m_mnemonic = text[i];
        }
        m_caption += text[i];
    }
    showCaption();
}

} // namespace views
