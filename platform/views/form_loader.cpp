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

const std::vector<ViewClass> &platformClasses() {
    static const std::vector<ViewClass> classes{
        viewClass<ButtonView>(),  viewClass<CheckBoxView>(),  viewClass<ModalWindow>(),
        viewClass<PopupView>(),   viewClass<RadioView>(),     viewClass<SliderView>(),
        viewClass<StepperView>(), viewClass<TextFieldView>(), viewClass<TextView>(),
    };
    return classes;
}

class FormLoader : public QUiLoader {
public:
    explicit FormLoader(const std::vector<ViewClass> &moreClasses) : m_moreClasses(moreClasses) {
        clearPluginPaths();
        setLanguageChangeEnabled(false);
        setTranslationEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override {
        for (const auto *classes : {&platformClasses(), &m_moreClasses})
            for (const ViewClass &viewClass : *classes)
                if (className == viewClass.name) {
                    QWidget *view = viewClass.make(parent);
                    view->setObjectName(name);
                    return view;
                }
        return QUiLoader::createWidget(className, parent, name);
    }

private:
    const std::vector<ViewClass> &m_moreClasses;
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

QWidget *load(const QString &path, const std::vector<ViewClass> &moreClasses, QString *reason) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return nullptr;
    }
    FormLoader loader(moreClasses);
    QWidget *root = loader.load(&file);
    if (!root)
        *reason = loader.errorString().simplified();
    return root;
}

} // namespace

QWidget *loadForm(const QString &path, const std::vector<Outlet> &outlets, QString *error,
                  const std::vector<ViewClass> &moreClasses) {
    QString reason;
    QWidget *root = load(path, moreClasses, &reason);
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
