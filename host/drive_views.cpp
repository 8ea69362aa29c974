#include "host/drive_views.h"

#include "platform/views/alert.h"
#include "platform/views/button_view.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/popup_view.h"
#include "platform/views/radio_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "platform/views/text_view.h"

#include <QApplication>
#include <QGroupBox>
#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace host {
namespace {

/// One act: its word, its argument, and what it does to the view.
struct ActRow {
    const char *word;
    const char *argument;                        ///< name of the argument; null for none
    bool isNumber;                               ///< a whole number, else a text
    const char *kinds;                           ///< the kinds of view that it works on
    QString (*check)(QWidget *view, int number); ///< null if the argument is right
    bool (*act)(QWidget *view, int number, const QString &text);
};

QString noCheck(QWidget *, int) {
    return {};
}

QString checkItem(QWidget *view, int index) {
    const auto *popup = qobject_cast<PopupView *>(view);
    if (index < 0 || index >= popup->numberOfItems())
        return QStringLiteral("index %1 is outside the menu of %2 items")
            .arg(index)
            .arg(popup->numberOfItems());
    return popup->isItemEnabled(index) ? QString() : QStringLiteral("the item is disabled");
}

QString checkPosition(QWidget *view, int value) {
    const auto *slider = qobject_cast<SliderView *>(view);
    return value >= slider->minValue() && value <= slider->maxValue()
               ? QString()
               : QStringLiteral("%1 is outside %2 to %3")
                     .arg(value)
                     .arg(slider->minValue())
                     .arg(slider->maxValue());
}

const ActRow kActs[] = {
    {"select", "index", true, "popup", checkItem,
     [](QWidget *v, int n, const QString &) {
         return qobject_cast<PopupView *>(v)->chooseItem(n);
     }},
    {"click", nullptr, false, "button checkbox radio", noCheck,
     [](QWidget *v, int, const QString &) {
         qobject_cast<QAbstractButton *>(v)->click();
         return true;
     }},
    {"step", "by", true, "stepper", noCheck,
     [](QWidget *v, int n, const QString &) { return qobject_cast<StepperView *>(v)->stepBy(n); }},
    {"slide", "to", true, "slider", checkPosition,
     [](QWidget *v, int n, const QString &) { return qobject_cast<SliderView *>(v)->slideTo(n); }},
    {"type", "text", false, "field", noCheck,
     [](QWidget *v, int, const QString &t) {
         return qobject_cast<TextFieldView *>(v)->typeText(t);
     }},
};

const ActRow *findAct(const QString &word) {
    for (const ActRow &row : kActs)
        if (word == row.word)
            return &row;
    return nullptr;
}

/// Views within which no other view stands.
bool isLeaf(const QWidget *view) {
    return kindOf(view) != u"box" && kindOf(view) != u"view";
}

void collect(QWidget *parent, ModalWindow *window, QList<ListedView> &views) {
    for (QObject *child : parent->children()) {
        auto *view = qobject_cast<QWidget *>(child);
        if (!view || view->isWindow())
            continue;
        const bool named = !view->objectName().isEmpty() && !view->objectName().startsWith(u"qt_");
        if (named || views::tag(view) != 0)
            views.append({view, window});
        if (!isLeaf(view))
            collect(view, window, views);
    }
}

QString titleOf(const ModalWindow *window) {
    return window ? window->windowTitle() : QString();
}

/// Why a person can't act on a view; null if nothing stands in the way.
QString obstacle(const ListedView &listed) {
    for (const QWidget *widget = listed.view; widget && !widget->isWindow();
         widget = widget->parentWidget())
        if (views::isHidden(widget))
            return QStringLiteral("the view is hidden");
    if (!listed.view->isEnabled())
        return QStringLiteral("the view is disabled");
    if (!listed.view->window()->isVisible())
        return QStringLiteral("the view's window isn't open");
    return views::isUsable(listed.view) ? QString() : QStringLiteral("a window in front blocks it");
}

bool isNamedBy(const QWidget *view, const QJsonObject &command) {
    const QJsonValue tag = command[QStringLiteral("tag")], name = command[QStringLiteral("view")];
    if (tag.isDouble() && (tag.toDouble() == 0 || views::tag(view) != tag.toDouble()))
        return false;
    if (name.isString() && (name.toString().isEmpty() || view->objectName() != name.toString()))
        return false;
    return tag.isDouble() || name.isString();
}

/// Of the views that a command names, the first that the act works on, else the first.
ListedView pick(const QList<ListedView> &views, const QJsonObject &command, const ActRow &row,
                const std::function<bool(const ListedView &)> &admitted) {
    ListedView first{nullptr, nullptr};
    for (const ListedView &listed : views) {
        if (!admitted(listed) || !isNamedBy(listed.view, command))
            continue;
        if (QString::fromLatin1(row.kinds).split(u' ').contains(kindOf(listed.view)))
            return listed;
        if (!first.view)
            first = listed;
    }
    return first;
}

ViewAct refused(const QString &why) {
    return {nullptr, why, nullptr};
}

} // namespace

QList<ListedView> listViews(QWidget *panelWindow) {
    QList<ListedView> views;
    if (!panelWindow)
        return views;
    collect(panelWindow, nullptr, views);
    QList<ModalWindow *> windows;
    for (QWidget *widget : QApplication::allWidgets())
        if (auto *window = qobject_cast<ModalWindow *>(widget))
            windows.append(window);
    std::sort(windows.begin(), windows.end(), [](const ModalWindow *a, const ModalWindow *b) {
        return a->windowTitle() < b->windowTitle();
    });
    for (ModalWindow *window : windows)
        collect(window, window, views);
    return views;
}

QString kindOf(const QWidget *view) {
    struct KindRow {
        const QMetaObject &type;
        const char *kind;
    };
    static const KindRow kinds[] = {
        {PopupView::staticMetaObject, "popup"},     {TextView::staticMetaObject, "text"},
        {ButtonView::staticMetaObject, "button"},   {CheckBoxView::staticMetaObject, "checkbox"},
        {RadioView::staticMetaObject, "radio"},     {SliderView::staticMetaObject, "slider"},
        {StepperView::staticMetaObject, "stepper"}, {TextFieldView::staticMetaObject, "field"},
        {QGroupBox::staticMetaObject, "box"},       {QLabel::staticMetaObject, "image"},
    };
    for (const KindRow &row : kinds)
        if (row.type.cast(view))
            return QString::fromLatin1(row.kind);
    return QStringLiteral("view");
}

QJsonObject viewJson(const ListedView &listed) {
    const QWidget *view = listed.view;
    const auto text = [](const QString &value) {
        return value.isNull() ? QJsonValue() : QJsonValue(value);
    };
    QJsonObject json{
        {"tag", views::tag(view)},
        {"view", view->objectName().isEmpty() ? QJsonValue() : QJsonValue(view->objectName())},
        {"kind", kindOf(view)},
        {"window", listed.window ? QJsonValue(titleOf(listed.window)) : QJsonValue()},
        {"enabled", views::isEnabled(view)},
        {"hidden", views::isHidden(view)},
    };
    if (const auto *popup = qobject_cast<const PopupView *>(view)) {
        QJsonArray items;
        for (int i = 0; i < popup->numberOfItems(); ++i) {
            QJsonObject item{{"title", text(popup->itemTitle(i))},
                             {"object", text(popup->itemRepresentedObject(i))},
                             {"enabled", popup->isItemEnabled(i)}};
            if (const QString why = popup->itemExplanation(i); !why.isNull())
                item["why"] = why;
            items.append(item);
        }
        json["value"] = popup->indexOfSelectedItem();
        json["text"] = text(popup->itemTitle(popup->indexOfSelectedItem()));
        json["items"] = items;
    } else if (const auto *slider = qobject_cast<const SliderView *>(view)) {
        json["value"] = slider->intValue();
        json["min"] = slider->minValue();
        json["max"] = slider->maxValue();
    } else if (const auto *stepper = qobject_cast<const StepperView *>(view)) {
        json["value"] = stepper->intValue();
        json["min"] = stepper->minValue();
        json["max"] = stepper->maxValue();
    } else if (const auto *field = qobject_cast<const TextFieldView *>(view)) {
        json["value"] = field->stringValue();
        json["text"] = field->stringValue();
    } else if (const auto *label = qobject_cast<const TextView *>(view)) {
        json["value"] = label->stringValue();
        json["text"] = label->stringValue();
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(view)) {
        const auto *titled = dynamic_cast<const views::Captioned *>(button);
        json["value"] = button->isChecked() ? 1 : 0;
        json["text"] = titled ? titled->caption() : button->text();
    } else if (const auto *box = qobject_cast<const QGroupBox *>(view)) {
        json["text"] = box->title().replace(QStringLiteral("&&"), QStringLiteral("&"));
    }
    return json;
}

bool isViewAct(const QString &word) {
    return findAct(word) != nullptr;
}

ViewAct ViewAct::prepare(const QJsonObject &command, QWidget *panelWindow) {
    const ActRow &row = *findAct(command[QStringLiteral("do")].toString());
    int number = 0;
    QString text;
    if (row.argument) {
        const QJsonValue argument = command[QString::fromLatin1(row.argument)];
        const double value = argument.toDouble();
        if (row.isNumber ? !argument.isDouble() || value != std::floor(value) ||
                               std::abs(value) > std::numeric_limits<int>::max()
                         : !argument.isString())
            return refused(
                QStringLiteral("\"%1\" must be a %2")
                    .arg(QString::fromLatin1(row.argument),
                         row.isNumber ? QStringLiteral("whole number") : QStringLiteral("text")));
        number = int(value);
        text = argument.toString();
    }
    if (!command[QStringLiteral("tag")].isDouble() && !command[QStringLiteral("view")].isString())
        return refused(QStringLiteral("needs \"tag\", a number, or \"view\", a text"));
    if (!panelWindow)
        return refused(QStringLiteral("the panel isn't open"));
    if (!views::currentAlert().isNull())
        return refused(QStringLiteral("an alert stands in front"));

    const QList<ListedView> views = listViews(panelWindow);
    const ModalWindow *front = ModalWindow::current();
    const ListedView listed =
        pick(views, command, row, [&](const ListedView &v) { return v.window == front; });
    if (!listed.view) {
        const ListedView other = pick(views, command, row, [](const ListedView &) { return true; });
        if (!other.view)
            return refused(QStringLiteral("there is no such view"));
        return refused(front
                           ? QStringLiteral("the window \"%1\" is modal, and the view isn't in it")
                                 .arg(titleOf(front))
                           : QStringLiteral("the view's window isn't open"));
    }
    if (!QString::fromLatin1(row.kinds).split(u' ').contains(kindOf(listed.view)))
        return refused(QStringLiteral("the view is of the kind \"%1\"").arg(kindOf(listed.view)));
    QString why = obstacle(listed);
    if (why.isNull())
        why = row.check(listed.view, number);
    if (!why.isNull())
        return refused(why);
    return {listed.view, {}, [&row, view = listed.view, number, text] {
                return row.act(view, number, text);
            }};
}

} // namespace host
