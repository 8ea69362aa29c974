#include "controls/group_box.h"

#include "platform/bundle.h"
#include "platform/views/captioned.h"
#include "services/bundle_identity.h"

void GroupBoxControlKRVImageOptions::CreateControl(QGroupBox *box, const char *title) {
    ControlPtr = box;
    controlTitleStrRef = title;
}

bool GroupBoxControlKRVImageOptions::InitializeTitle(const Bundle *bundle) {
    if (!bundle || !controlTitleStrRef)
        return false;
    const QString title =
        bundle->localizedString(QString::fromUtf8(controlTitleStrRef), kNoTranslation);
    if (ControlPtr)
        ControlPtr->setTitle(views::escapeMnemonics(title));
    return true;
}
