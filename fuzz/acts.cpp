// A sample queue with lines of its PPD changed: the panel is opened, acted on at random, printed.

#include "fuzz.h"

#include "host/bundle_loader.h"
#include "host/panel_stage.h"
#include "host/ps_job.h"
#include "platform/ppd_file.h"
#include "platform/views/alert.h"
#include "platform/views/check_box_view.h"
#include "platform/views/modal_window.h"
#include "platform/views/popup_view.h"
#include "platform/views/slider_view.h"
#include "platform/views/stepper_view.h"
#include "platform/views/text_field_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMap>
#include <QTimer>

namespace {

constexpr const char *kSamples[] = {"velmora-mvo-530.ppd", "velmora-mvo-110.ppd",
                                    "velmora-mvo-220.ppd", "velmora-mvo-420.ppd",
                                    "velmora-mvo-540.ppd", "sorvani-sv500.ppd"};

QByteArray changed(FuzzedDataProvider &input) {
    static QList<QByteArray> texts;
    if (texts.isEmpty())
        for (const char *name : kSamples)
            texts.append(sampleText(name));
    QList<QByteArray> lines = texts[input.ConsumeIntegralInRange(0, 5)].split('\n');
    const int count = input.ConsumeIntegralInRange(0, 12);
    for (int i = 0; i < count; ++i) {
        const auto at = input.ConsumeIntegralInRange<qsizetype>(14, lines.size() - 1);
        const auto other = input.ConsumeIntegralInRange<qsizetype>(14, lines.size() - 1);
        QByteArray &line = lines[at];
        switch (input.ConsumeIntegralInRange(0, 6)) {
        case 0:
            lines.removeAt(at);
            break;
        case 1:
            lines.insert(at, lines[other]);
            break;
        case 2:
            lines.swapItemsAt(at, other);
            break;
        case 3: // another word
            line.replace(line.mid(line.indexOf(' ') + 1, 6), takeBytes(input, 20));
            break;
        case 4:
            line.truncate(input.ConsumeIntegralInRange<qsizetype>(0, line.size()));
            break;
        case 5:
            lines.insert(at, takeBytes(input, 60));
            break;
        default:
            if (!line.isEmpty())
                line[input.ConsumeIntegralInRange<qsizetype>(0, line.size() - 1)] =
                    input.ConsumeIntegral<char>();
        }
    }
    return lines.join('\n');
}

QList<QWidget *> usableViews() {
    QMap<QString, QWidget *> byName; // an order that doesn't change
    for (QWidget *view : QApplication::allWidgets())
        if (dynamic_cast<views::ActionSource *>(view) && views::isUsable(view) &&
            !view->objectName().contains("help", Qt::CaseInsensitive))
            byName.insert(view->objectName(), view);
    return byName.values();
}

void act(FuzzedDataProvider &input) {
    const QList<QWidget *> views = usableViews();
    if (views.isEmpty())
        return;
    QWidget *view = views[input.ConsumeIntegralInRange<qsizetype>(0, views.size() - 1)];
    if (auto *menu = qobject_cast<PopupView *>(view)) {
        menu->chooseItem(input.ConsumeIntegralInRange(-1, menu->numberOfItems()));
    } else if (auto *slider = qobject_cast<SliderView *>(view)) {
        slider->slideTo(input.ConsumeIntegralInRange(-10, 10));
    } else if (auto *stepper = qobject_cast<StepperView *>(view)) {
        stepper->stepBy(input.ConsumeIntegralInRange(-3, 3));
    } else if (auto *field = qobject_cast<TextFieldView *>(view)) {
        field->typeText(takeText(input, 8));
        field->endEditing();
    } else if (auto *button = qobject_cast<QAbstractButton *>(view)) {
        // A window that it opens is acted on within its own loop, and left.
        QTimer::singleShot(0, qApp, [&input] {
            ModalWindow *window = ModalWindow::current();
            for (int i = 0; window && i < 8 && ModalWindow::current() == window; ++i)
                act(input);
            if (window && ModalWindow::current() == window)
                window->reject(); // it ends once its loop goes on
        });
        button->click();
        QCoreApplication::processEvents();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static PDEPlugin *plugin = host::loadBundle(QStringLiteral(BUNDLE_DIR));
    FuzzedDataProvider input(data, size);
    PpdFile file = parsePpdFile(changed(input));
    if (!file.ppd)
        return 0;
    ppdMarkDefaults(file.ppd.get());
    QTimer alerts; // nobody is there to answer
    QObject::connect(&alerts, &QTimer::timeout, [] {
        if (!views::currentAlert().isNull())
            views::dismissAlert();
    });
    alerts.start(0);
    host::PanelStage stage({std::move(file.ppd), Printer{"Fuzz"}}, *plugin);
    if (stage.open())
        for (int i = 0; i < 40 && input.remaining_bytes() > 0; ++i) {
            switch (input.ConsumeIntegralInRange(0, 12)) {
            case 0:
                stage.session().willShow();
                break;
            case 1:
                stage.session().save();
                break;
            case 2:
                stage.session().restore();
                break;
            case 3:
                stage.session().summary();
                break;
            default:
                stage.session().noteUserAct();
                act(input);
            }
        }
    stage.session().print();
    host::writePsJob(host::psCode(stage.source().ppd.get(), "fuzz"),
                     QByteArray("%!PS-Adobe-3.0\n%%EndComments\nshowpage\n"), "fuzz",
                     [](const QByteArray &) {});
    return 0;
}
