// The panel in the host: opening, one act of a person, and a job whose panel is never shown.

#include "generated_ppd.h"

#include "host/bundle_loader.h"
#include "host/cups_server.h"
#include "host/panel_stage.h"
#include "platform/cups_ppd.h"
#include "platform/views/popup_view.h"
#include "support/cups_daemon.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

#include <chrono>

namespace {

using Clock = std::chrono::steady_clock;

/// A list of the panel, and two choices that a person picks in turn.
struct Event {
    const char *outlet, *option, *choices[2];
};
const Event kImageType = {"ImageTypeList", "QZRGBImageType", {"Photo", "Auto"}};
/// Its walks hide, show or disable most of the other controls.
const Event kColorMode = {"ColorModeList", "QZColorMode", {"Black", "Color"}};

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

PDEPlugin &plugin() {
    return *host::loadBundle(QStringLiteral(BUNDLE_DIR));
}

host::PanelStage makeStage(int64_t size) {
    return {host::openPpdFile(QString::fromStdString(generatedPpd(size))), plugin()};
}

/// A queue with the generated PPD, on a loopback server that ends with this program.
/// @return its name, null if there is none
QString queueWith(int64_t size) {
    static CupsDaemon server;
    static const bool started = server.start();
    if (!started)
        return {};
    qputenv("CUPS_SERVER", server.environment().first().section('=', 1).toUtf8());
    const QString queue = QStringLiteral("Q%1").arg(size);
    const QString ppd = QString::fromStdString(generatedPpd(size));
    return server.addQueue(queue, ppd) ? queue : QString();
}

/// The first panel of a process loads module, fonts and styles; that isn't counted.
void warmUp() {
    static const bool warm = [] {
        host::PanelStage stage = makeStage(kSizes[0]);
        return stage.open();
    }();
    (void)warm;
}

/// From the first call of the host to the panel that stands on the screen.
void panelOpen(benchmark::State &state) {
    warmUp();
    for (auto _ : state) {
        host::PanelStage stage = makeStage(state.range(0));
        const auto start = Clock::now();
        if (!stage.open())
            return state.SkipWithError("the queue has no panel");
        QCoreApplication::processEvents();
        state.SetIterationTime(secondsSince(start));
    }
}

/// The same on a queue of CUPS. @param withPpd  whether fetching and reading its PPD counts too
void panelOpenOnQueue(benchmark::State &state, bool withPpd) {
    warmUp();
    const QString queue = queueWith(state.range(0));
    if (queue.isNull())
        return state.SkipWithError("the server takes no queue");
    for (auto _ : state) {
        auto start = Clock::now();
        host::CupsServer server;
        host::PanelStage stage(host::openQueue(server, queue), plugin());
        if (!withPpd)
            start = Clock::now();
        if (!stage.open())
            return state.SkipWithError("the queue has no panel");
        QCoreApplication::processEvents();
        state.SetIterationTime(secondsSince(start));
    }
}

/// Counts what only a panel on the screen needs: views that are shown, and what reaches visible
/// ones. Qt lays nothing out for a hidden view that is asked to.
class ScreenWork : public QObject {
public:
    ScreenWork() { qApp->installEventFilter(this); }
    bool eventFilter(QObject *object, QEvent *event) override {
        const QEvent::Type type = event->type();
        const bool isVisible =
            object->isWidgetType() && static_cast<QWidget *>(object)->isVisible();
        count += type == QEvent::Show ||
                 (isVisible && (type == QEvent::Paint || type == QEvent::LayoutRequest));
        return false;
    }
    int count = 0;
};

/// @param seen  whether the panel is opened; the count is then of an opening
void screenWork(benchmark::State &state, bool seen) {
    for (auto _ : state) {
        host::PanelStage stage = makeStage(state.range(0));
        const ScreenWork work;
        std::vector<std::unique_ptr<PDEPanel>> unseen;
        if (seen) {
            stage.open();
        } else {
            const std::shared_ptr<host::HostCallback> callback =
                std::make_shared<host::HostCallback>(stage.source().ppd.get(),
                                                     stage.source().printer);
            unseen = plugin().PDEPanelsForType(QLatin1String(kPrintPanelType), callback);
            unseen.at(0)->supportedPPDOptionKeys();
            unseen.at(0)->shouldPrint();
        }
        QCoreApplication::processEvents(); // painting and laying out are posted
        state.counters["amount"] = work.count;
        for (const auto &panel : unseen)
            panel->terminate();
    }
}

void unseenShouldPrint(benchmark::State &state) {
    warmUp();
    for (auto _ : state) {
        const host::PpdSource source =
            host::openPpdFile(QString::fromStdString(generatedPpd(state.range(0))));
        const auto callback =
            std::make_shared<host::HostCallback>(source.ppd.get(), source.printer);
        const auto start = Clock::now();
        const auto panels = plugin().PDEPanelsForType(QLatin1String(kPrintPanelType), callback);
        panels.at(0)->supportedPPDOptionKeys();
        panels.at(0)->shouldPrint();
        state.SetIterationTime(secondsSince(start)); // as with an opening, the end isn't counted
        panels.at(0)->terminate();
    }
}

/// The choice of an item: host told, marks, walks, all menus as they are then, painted.
void userEvent(benchmark::State &state, const Event &event) {
    host::PanelStage stage = makeStage(state.range(0));
    stage.open();
    QCoreApplication::processEvents();
    auto *list = stage.window()->findChild<PopupView *>(event.outlet);
    size_t turn = 0;
    for (auto _ : state) {
        const QString choice = QString::fromUtf8(event.choices[turn++ % 2]);
        int item = 0;
        while (item < list->numberOfItems() && list->itemRepresentedObject(item) != choice)
            ++item;
        if (!list->chooseItem(item))
            return state.SkipWithError("the item can't be chosen");
        QCoreApplication::processEvents();
    }
    const char *last = event.choices[(turn - 1) % 2];
    if (!ppdIsMarked(stage.source().ppd.get(), event.option, last))
        state.SkipWithError("the choice isn't marked");
}

void libcupsMark(benchmark::State &state, const Event &event) {
    const PpdPtr ppd(ppdOpenFile(generatedPpd(state.range(0)).c_str()));
    ppdMarkDefaults(ppd.get());
    size_t turn = 0;
    for (auto _ : state)
        ppdMarkOption(ppd.get(), event.option, event.choices[turn++ % 2]);
}

/// Qt's own dialog on a queue with the same PPD, with or without the time in which the printer is
/// made, which reads the PPD; the first one isn't counted.
void qtDialog(benchmark::State &state, bool withPrinter) {
    const QString queue = queueWith(state.range(0));
    if (queue.isNull())
        return state.SkipWithError("the server takes no queue");
    bool first = true;
    const auto show = [&] {
        const auto beforePrinter = Clock::now();
        QPrinter printer;
        printer.setPrinterName(queue);
        const auto start = withPrinter ? beforePrinter : Clock::now();
        QPrintDialog dialog(&printer);
        dialog.show();
        QCoreApplication::processEvents();
        return std::pair(secondsSince(start), printer.printerName() == queue);
    };
    for (auto _ : state) {
        if (std::exchange(first, false))
            show();
        const auto [seconds, onQueue] = show();
        if (!onQueue)
            return state.SkipWithError("Qt doesn't see the queue");
        state.SetIterationTime(seconds);
    }
}

const int registered = [] {
    const auto add = [](const char *name, int64_t size, auto... what) {
        return benchmark::RegisterBenchmark(name, what...)->Arg(size);
    };
    for (const int64_t size : kSizes) {
        add("panel_open", size, panelOpen)->UseManualTime();
        add("unseen_should_print", size, unseenShouldPrint)->UseManualTime();
        add("user_event", size, userEvent, kImageType);
        add("ppdMarkOption", size, libcupsMark, kImageType);
        add("color_mode_event", size, userEvent, kColorMode);
        add("ppdMarkOption_color_mode", size, libcupsMark, kColorMode);
    }
    for (const int64_t size : {100, 10000}) {
        add("QPrintDialog", size, qtDialog, false)->UseManualTime()->Iterations(5);
        add("QPrintDialog_with_printer", size, qtDialog, true)->UseManualTime()->Iterations(5);
        add("queue_open", size, panelOpenOnQueue, false)->UseManualTime()->Iterations(5);
        add("queue_open_with_ppd", size, panelOpenOnQueue, true)->UseManualTime()->Iterations(5);
    }
    add("screen_work", 100, screenWork, true)->Iterations(1);
    add("unseen_screen_work", 100, screenWork, false)->Iterations(1);
    return 0;
}();

} // namespace
