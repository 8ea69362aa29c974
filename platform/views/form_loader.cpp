#include "platform/views/form_loader.h"

#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/popup_view.h"
#include "platform/views/radio_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "platform/views/text_view.h"

#include <QFile>
#include <QUiLoader>

namespace views {

namespace {

template <class View>
QWidget *make(QWidget *parent) {
    return new View(parent);
}

struct ViewClass {
    const char *name;
    QWidget *(*make)(QWidget *parent);
};

constexpr ViewClass kViewClasses[] = {
    {"ButtonView", make<ButtonView>},   {"CheckBoxView", make<CheckBoxView>},
    {"ModalWindow", make<ModalWindow>}, {"PopupView", make<PopupView>},
    {"RadioView", make<RadioView>},     {"SliderView", make<SliderView>},
    {"StepperView", make<StepperView>}, {"TextFieldView", make<TextFieldView>},
    {"TextView", make<TextView>},
};

class FormLoader : public QUiLoader {
public:
    FormLoader() {
        clearPluginPaths();
        setLanguageChangeEnabled(false);
        setTranslationEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override {
        for (const ViewClass &viewClass : kViewClasses) {
            if (className != QLatin1String(viewClass.name))
                continue;
            QWidget *view = viewClass.make(parent);
            view->setObjectName(name);
            return view;
        }
        return QUiLoader::createWidget(className, parent, name);
    }
};

/// What the form has set behind the views' backs.
void adoptFormState(QWidget *view) {
    if (auto *captioned = dynamic_cast<Captioned *>(view))
        captioned->adoptShownText();
    else if (auto *field = qobject_cast<TextFieldView *>(view))
        field->setStringValue(field->text());
}

QWidget *findView(QWidget *root, const QString &name) {
    if (!root || root->objectName() == name)
        return root;
    return root->findChild<QWidget *>(name);
}

QWidget *load(const QString &path, QString *reason) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return nullptr;
    }
    FormLoader loader;
    QWidget *root = loader.load(&file);
    if (!root)
        *reason = loader.errorString().simplified();
    return root;
}

} // namespace

QWidget *loadForm(const QString &path, const std::vector<Outlet> &outlets, QString *error) {
    QString reason;
    QWidget *root = load(path, &reason);
    if (root) {
        adoptFormState(root);
        for (QWidget *view : root->findChildren<QWidget *>())
            adoptFormState(view);
    } else if (error) {
        *error = QStringLiteral("%1: %2").arg(path, reason);
    }
    for (const Outlet &outlet : outlets)
        outlet.connect(findView(root, outlet.name));
    return root;
}

} // namespace views
