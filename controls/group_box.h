#pragma once

#include <QGroupBox>
#include <QPointer>

class Bundle;

/// The frame around some controls, with a localised title. No control: it has no value, and no
/// panel registers it.
class GroupBoxControlKRVImageOptions {
public:
    /// @param box    the frame, borrowed, may be null
    /// @param title  the localisation key of the title, or null
    void CreateControl(QGroupBox *box, const char *title);
    /// Box := the title from the default strings table, "no translation" where there is none.
    /// @return false, with the form's title left, without a bundle or a key
    bool InitializeTitle(const Bundle *bundle);

    QGroupBox *GetControlPtr() const { return ControlPtr; }

protected:
    QPointer<QGroupBox> ControlPtr;
    const char *controlTitleStrRef = nullptr;
};
