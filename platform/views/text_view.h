#pragma once

#include "platform/views/captioned.h"
#include "platform/views/view.h"

#include <QLabel>

/// A static text. What it shows is plain text: "&" and "<" stand for themselves.
class PDE_PLATFORM_EXPORT TextView : public QLabel, public views::Captioned {
    Q_OBJECT
public:
    explicit TextView(QWidget *parent = nullptr);

    /// @return the text as it was set, without the escapes that Qt needs
    QString stringValue() const { return caption(); }
    /// Sets the text. A buddy view takes it, without a colon at its end, as its accessible name,
    /// unless the form has given it one of its own.
    void setStringValue(const QString &text) { setCaption(text); }
    /// Draws the text as enabled or disabled, from the palette, without touching the enabled flag.
    void setTextDimmed(bool dimmed);
    /// As QLabel's; the text is shown again, since only a label with a buddy has a mnemonic.
    void setBuddy(QWidget *buddy);
    void adoptShownText() override;

protected:
    void showCaption() override;
    void changeEvent(QEvent *event) override;

private:
    void showDimming();

    bool m_dimmed = false;
    bool m_takingColours = false; ///< the change of colours comes from here
    QString m_givenName;          ///< the accessible name that the buddy has from here
};
