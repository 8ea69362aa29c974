#pragma once

#include "platform/export.h"

#include <QChar>
#include <QString>

namespace views {

/// Doubles each "&", so that Qt shows it and takes no mnemonic from it. For the titles of plain Qt
/// widgets, group boxes among them.
PDE_PLATFORM_EXPORT QString escapeMnemonics(const QString &text);

/// Whether a person can press the character together with Alt: a letter or digit of a script that
/// has keys of its own, not an ideograph or a syllable.
PDE_PLATFORM_EXPORT bool isMnemonicLetter(QChar character);

/// Part of every view that shows a title of its own. It keeps the title apart from the form in
/// which Qt wants it: each "&" doubled, one single "&" before the mnemonic.
class PDE_PLATFORM_EXPORT Captioned {
public:
    virtual ~Captioned();

    /// @return the title as it was set, without mnemonic and escapes
    const QString &caption() const { return m_caption; }
    /// Sets the title; the mnemonic stays and is marked in the new title.
    void setCaption(const QString &caption);
    QChar mnemonic() const { return m_mnemonic; }
    /// Marks the first place of a character, in either case, as the mnemonic; a null character
    /// takes it away. A title that lacks the character shows it behind itself, in parentheses.
    void setMnemonic(QChar character);
    /// Takes over what Qt shows, text and mnemonic, after a form has set it.
    virtual void adoptShownText() = 0;

protected:
    /// The title in Qt's form.
    QString markedCaption() const;
    /// Splits a text in Qt's form into title and mnemonic.
    void adoptMarkedText(const QString &text);
    /// Shows what has changed.
    virtual void showCaption() = 0;

private:
    QString m_caption;
    QChar m_mnemonic;
};

} // namespace views
