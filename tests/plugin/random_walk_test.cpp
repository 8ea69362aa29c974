// A person who tries everything, on each sample queue, and what must hold whatever they do.

#include "plugin_fixture.h"

#include "imagewindows/popup_window.h"
#include "platform/views/alert.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"
#include "ppd/ppd_keys.h"
#include "ppd/product_type.h"

#include <QApplication>
#include <QDir>
#include <QTimer>

#include <random>

namespace {

constexpr int kSteps = 2000;
const char *const kTexts[] = {"-3", "-1", "0", "2", "3", "-", "", "7", "33"};

bool isIdle(const QByteArray &choice) {
    return choice.toLower() == "none" || choice.toLower() == "off" || choice.toLower() == "false";
}

class Walk {
public:
    using Panel = BasePrintPanelKRVImageOptions;
    Walk(ImageOptionsPDEk27 &panel, TestHost &host, unsigned seed)
        : m_panel(panel), m_host(host), m_random(seed) {}

    void run() {
        for (const char *opener : {"colorbalanceButtonCtrl", "imageAdjustmentButtonCtrl"})
            visit(opener, [this] { ModalWindow::current()->reject(); });
        const QMap<QString, QString> before = counts();
        m_stepsLeft = kSteps;
        while (m_stepsLeft > 0 && !testing::Test::HasFailure())
            step(m_panel);
        putBack();
        const QMap<QString, QString> after = counts();
        for (auto count = after.cbegin(); count != after.cend(); ++count)
            EXPECT_EQ(count.value().toStdString(), before[count.key()].toStdString())
                << count.key().toStdString();
    }

private:
    int random(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }

    /// Opens a window and acts in its run.
    void visit(const char *opener, const std::function<void()> &act) {
        QTimer::singleShot(0, qApp, [act] {
            if (ModalWindow::current())
                act();
        });
        press(opener);
        QCoreApplication::processEvents();
    }
    void press(const char *name) {
        for (QWidget *view : QApplication::allWidgets())
            if (view->objectName() == QLatin1String(name) && views::isUsable(view))
                return qobject_cast<QAbstractButton *>(view)->click();
    }
    /// Every view that a person can act on now, in an order that doesn't change.
    static QList<QWidget *> usableViews() {
        QMap<QString, QWidget *> byName;
        for (QWidget *view : QApplication::allWidgets())
            if (dynamic_cast<views::ActionSource *>(view) && views::isUsable(view) &&
                !view->objectName().contains("help", Qt::CaseInsensitive) &&
                !view->objectName().contains("Help"))
                byName.insert(view->objectName(), view);
        return byName.values();
    }

    void step(Panel &scope) {
        --m_stepsLeft;
        m_refreshed = false;
        const int hostAct = &scope == &m_panel ? random(40) : -1;
        if (hostAct == 0)
            m_panel.willShow(), m_refreshed = true;
        else if (hostAct == 1)
            m_panel.saveValuesAndReturnError(nullptr);
        else if (hostAct == 2)
            m_panel.restoreValuesAndReturnError(nullptr), m_refreshed = true;
        else if (const QList<QWidget *> views = usableViews(); !views.isEmpty())
            act(views[random(static_cast<int>(views.size()))]);
        check(scope);
    }
    void act(QWidget *view) {
        m_trace = view->objectName();
        const QByteArray screen = m_host.marked(kPPDScreenKey);
        if (auto *menu = qobject_cast<PopupView *>(view)) {
            if (const int item = random(menu->numberOfItems() + 1); menu->isItemEnabled(item))
                m_refreshed = menu->indexOfSelectedItem() != item && menu->chooseItem(item);
        } else if (auto *slider = qobject_cast<SliderView *>(view)) {
            slider->slideTo(slider->minValue() +
                            random(slider->maxValue() - slider->minValue() + 1));
        } else if (auto *arrows = qobject_cast<StepperView *>(view)) {
            arrows->stepBy(random(5) - 2);
        } else if (auto *field = qobject_cast<TextFieldView *>(view)) {
            field->typeText(QString::fromUtf8(kTexts[random(std::size(kTexts))]));
            field->endEditing();
        } else if (auto *box = qobject_cast<CheckBoxView *>(view)) {
            box->click();
            m_refreshed = true;
        } else if (m_trace == "colorbalanceButtonCtrl" || m_trace == "imageAdjustmentButtonCtrl") {
            visit(qPrintable(m_trace), [this] { walkWindow(); });
            m_refreshed = false; // a window leaves the main panel's items as they were
        } else if (auto *button = qobject_cast<QAbstractButton *>(view)) {
            button->click();
        }
        // A screen that goes back to its default is marked without a conflict pass.
        m_refreshed &= m_trace == "ScreenList" || screen == m_host.marked(kPPDScreenKey);
    }
    void walkWindow() {
        const QPointer<ModalWindow> form = ModalWindow::current();
        Panel *window = form->windowTitle() == "Color Balance" ? balance() : adjustment();
        ASSERT_TRUE(window) << form->windowTitle().toStdString();
        while (m_stepsLeft > 0 && form->isVisible() && !testing::Test::HasFailure())
            step(*window);
        if (form->isVisible())
            form->reject();
    }
    Panel *balance() { return m_panel.getColorBalanceWnd(); }
    Panel *adjustment() {
        Panel *blackOver = m_panel.getImageAdjustmentBlackOverWnd();
        return blackOver->GetParentWnd() ? blackOver : m_panel.getImageAdjustmentWnd();
    }

    void check(Panel &scope) {
        SCOPED_TRACE(QStringLiteral("%1 steps before the end, %2")
                         .arg(m_stepsLeft)
                         .arg(m_trace)
                         .toStdString());
        for (const auto &[option, choice] : m_host.calls)
            m_told[option] = choice;
        m_host.calls.clear();
        for (auto told = m_told.cbegin(); told != m_told.cend(); ++told)
            EXPECT_EQ(m_host.marked(told.key().toUtf8()), told.value()) << told.key().toStdString();
        if (m_refreshed)
            checkItems(scope);
        QVariantMap rows;
        QStringList order;
        m_panel.GetSummaryText(&rows, &order);
        order.removeDuplicates();
        order.sort();
        EXPECT_EQ(order, rows.keys());
    }
    /// An item is disabled exactly if a marked choice forbids it.
    void checkItems(Panel &scope) {
        QSet<QByteArray> forbidden;
        const auto marked = [&](const char *option, const char *choice) {
            const QByteArray now = m_host.marked(option);
            return *choice ? now == choice : !now.isEmpty() && !isIdle(now);
        };
        for (int i = 0; i < m_host.ppd->num_consts; ++i)
            if (const ppd_const_t &rule = m_host.ppd->consts[i]; marked(rule.option1, rule.choice1))
                forbidden.insert(QByteArray(rule.option2) + ':' + rule.choice2);
        for (const auto &control : *scope.getCtrlGroupArrayRef()) {
            auto *menu = qobject_cast<PopupView *>(control->GetControlPtr());
            const ppd_option_t *option = control->getPPDOptions();
            for (int item = 0; menu && option && item < menu->numberOfItems(); ++item) {
                const QByteArray key = option->keyword;
                const QByteArray choice = menu->itemRepresentedObject(item).toUtf8();
                const bool conflict = forbidden.contains(key + ':' + choice) ||
                                      (forbidden.contains(key + ':') && !isIdle(choice));
                EXPECT_EQ(menu->isItemEnabled(item), !conflict)
                    << key.toStdString() << " " << choice.toStdString();
            }
        }
    }

    /// Defaults everywhere, told to the host and taken up by panel and windows.
    void putBack() {
        m_panel.willShow();
        press("restoredefaButton"); // the colour mode first, which frees the others
        press("graphicsbasicSetRdioBtn");
        press("restoredefaButton");
        for (const auto &[opener, defaults, ok] :
             {std::tuple("colorbalanceButtonCtrl", "graphicWndRstrPushCtrl",
                         "graphicWndOKPushCtrl"),
              std::tuple("imageAdjustmentButtonCtrl", "restoredefaButtonIA", "OKButtonIA")})
            visit(opener, [&, this] { press(defaults), press(ok); });
        m_panel.willShow();
    }
    /// How often each control is held down.
    QMap<QString, QString> counts() {
        QMap<QString, QString> all;
        for (Panel *scope : {static_cast<Panel *>(&m_panel), balance(), adjustment()})
            for (const auto &control : *scope->getCtrlGroupArrayRef())
                if (control->GetControlPtr()->objectName() != "cmyktargetpaperIASTextCtrl" ||
                    CPPDChecker::Instance()->productType != 4)
                    all[control->GetControlPtr()->objectName()] =
                        QStringLiteral("%1 disabled, %2 hidden")
                            .arg(control->constrainCount())
                            .arg(control->hideCount());
        return all;
    }

    ImageOptionsPDEk27 &m_panel;
    TestHost &m_host;
    std::mt19937 m_random;
    int m_stepsLeft = 0;
    bool m_refreshed = false; ///< the front panel's items are up to date
    QString m_trace;          ///< the view of the latest act
    QMap<QString, QString> m_told;
};

class RandomWalkTest : public PluginTest {};

TEST_F(RandomWalkTest, EverySampleQueue) {
    QTimer alerts; // an alert would wait for a person
    QObject::connect(&alerts, &QTimer::timeout, qApp, [] { views::dismissAlert(); });
    alerts.start(50);
    unsigned seed = 1;
    for (const QString &sample : QDir(samplePath("")).entryList({"*.ppd"}, QDir::Files)) {
        SCOPED_TRACE(sample.toStdString());
        const PpdPtr ppd = openSample(sample);
        auto made = panels(ppd.get());
        if (made.empty())
            continue; // a queue without the panel
        auto *panel = dynamic_cast<ImageOptionsPDEk27 *>(made.front().get());
        panel->supportedPPDOptionKeys();
        QWidget dialog;
        panel->panelView()->setParent(&dialog);
        dialog.show();
        panel->restoreValuesAndReturnError(nullptr);
        panel->willShow();
        Walk(*panel, *host, seed++).run();
        if (HasFailure())
            return;
    }
}

} // namespace
