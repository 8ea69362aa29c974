#pragma once

#include "main_panel_fixture.h"

#include "controls/check_box_family.h"
#include "imagewindows/color_balance_window.h"
#include "imagewindows/density_preview.h"
#include "imagewindows/image_grads_view.h"
#include "platform/bundle.h"
#include "ppd/ppd_keys.h"

#include <QTest>
#include <QTimer>

/// A main panel with a colour mode list and the colour balance window on its form.
class ColorBalanceTest : public testing::Test {
protected:
    class Panel : public MainPanel {
    public:
        bool IsColorModeAvailable() const override {
            return colorMode->GetUISelectStr() != QLatin1String("Black");
        }
        bool IsColorBalanceAdjustmentAvailable() const override {
            return box->GetValueFromControl()->word() == 1;
        }
        GPPDListCtrlKRV *colorMode = nullptr;
        GCheckBoxKRV *box = nullptr;
    };

    static QByteArray options() {
        QByteArray body = ppdOption(kPPDColorModeKey, {"Color", "Black"}) +
                          ppdOption(kPPDColorBalanceAdjustmentKey, {"False", "True"}, "True");
        for (const auto &color : kDensityRows)
            for (const DensityRow &row : color)
                body += ppdOption(row.ppdKey, {"3", "2", "1", "0", "-1", "-2", "-3"}, "0");
        return body;
    }
    void SetUp() override {
        bundle = Bundle::open(QStringLiteral(BUNDLE_DIR));
        ASSERT_TRUE(bundle);
        ppd = openPpdText(options());
        host = std::make_shared<TestHost>(ppd.get());
        build();
    }
    /// What a panel does until it is shown; again, when the host has destroyed its view.
    void build() {
        panel.initWithCallback(host);
        panel.CreatePanel(&view);
        auto list = std::make_unique<GPPDListCtrlKRV>();
        auto *menu = new PopupView(&view);
        menu->setProperty("tag", ColorModeTag);
        list->CreateControl(menu, kPPDColorModeKey, &colorModeRecord, nullptr, nullptr,
                            kControlUserCurrent, nullptr);
        panel.adopt(panel.colorMode, std::move(list));
        window.ColorBalanceWnd(window.loadWindow(bundle.get()),
                               QStringLiteral("Color Balance Window Title String"));
        panel.box = window.getgraphicWndAdjustCBCboxCtrl();
        panel.RunTimeAddNewWindow(&window);
        start();
    }
    void start() {
        auto table = std::make_shared<hash_multimap>();
        xSetxppd(ppd.get(), table.get());
        panel.SetxppdPtr(table);
        panel.SetCurrentPrintSettings(&host->settings, ppd.get(), host.get(), &host->session);
        panel.InitializeUserPane(bundle.get(), ppd.get());
        panel.SetUIDataToIniData();
        panel.GetValueFromPreset();
        panel.SetCurrentValueToUI();
        panel.Open();
    }
    BaseControlKRVImageOptions *control(int tag) { return window.GetPanelControl(&tag); }
    template <class View>
    View *at(int tag) {
        return qobject_cast<View *>(control(tag)->GetControlPtr());
    }
    static int editTag(int color, int range) { return 3500 + color + 10 * range; }
    static int stepperTag(int color, int range) { return 3600 + color + 10 * range; }
    TextFieldView *edit(int color, int range) { return at<TextFieldView>(editTag(color, range)); }
    StepperView *stepper(int color, int range) { return at<StepperView>(stepperTag(color, range)); }
    PopupView *targets() { return at<PopupView>(gTrgtClrLboxID); }
    CheckBoxView *box() { return at<CheckBoxView>(gAdjstClrBlncCboxID); }
    void press(int tag) { at<ButtonView>(tag)->click(); }
    /// The lit bars of the preview's columns, as it is drawn.
    QList<int> bars() {
        auto *preview = at<ImageGradsViewKRV>(gClrBlncImgHviewID);
        const QImage image = preview->grab().toImage();
        QList<int> lit;
        for (const int x : {31, 137, 243}) {
            lit.append(0);
            for (int y = 139; y > 0; y -= 21)
                lit.back() += image.pixelColor(x, y) != Qt::white;
        }
        return lit;
    }
    /// Opens the window and acts inside its run, which the act ends.
    void run(const std::function<void()> &act) {
        ModalWindow *form = window.loadWindow(bundle.get());
        QTimer::singleShot(0, qApp, [&] {
            EXPECT_EQ(ModalWindow::current(), form);
            act();
            EXPECT_FALSE(form->isVisible()) << "nothing ended the run";
            window.DeactivateWindow();
        });
        window.ActivateWindow();
    }

    std::shared_ptr<Bundle> bundle;
    QWidget view;
    PpdPtr ppd;
    std::shared_ptr<TestHost> host;
    PopupIniData colorModeRecord{.startValue = 1, .defaultValue = 1, .iniValue = 0};
    ColorBalanceWndKRV window;
    Panel panel;
};
