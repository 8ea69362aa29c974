#pragma once

#include "platform/views/captioned.h"
#include "platform/views/view.h"

#include <QAbstractButton>

namespace views {

/// What all our buttons share, on top of one of Qt's: a title, and an action that only a click
/// sends, by mouse, key, mnemonic or `click()`. Setting the state by program is silent.
template <class Button>
class TitledButton : public Button, public Captioned, public ActionSource {
public:
    explicit TitledButton(QWidget *parent) : Button(parent) {
        QObject::connect(this, &QAbstractButton::clicked, this, [this] { sendAction(); });
    }

    /// @return the title as it was set, without mnemonic and escapes
    QString title() const { return caption(); }
    void setTitle(const QString &title) { setCaption(title); }
    void adoptShownText() override { adoptMarkedText(this->text()); }

protected:
    void showCaption() override { this->setText(markedCaption()); }
};

} // namespace views
