// The panel in the host: opening, one act of a person, and a job whose panel is never shown.

#include "generated_ppd.h"

#include "host/bundle_loader.h"
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
constexpr char kImageType[] = "QZRGBImageType";
const char *const kChoices[] = {"Photo", "Auto"};

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

host::PanelStage makeStage(int64_t size) {
    return {host::openPpdFile(QString::fromStdString(generatedPpd(size))),
            *host::loadBundle(QStringLiteral(BUNDLE_DIR))};
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

void unseenShouldPrint(benchmark::State &state) {
    warmUp();
    for (auto _ : state) {
        host::PanelStage stage = makeStage(state.range(0));
        const auto start = Clock::now();
        stage.session().printUnseen();
        state.SetIterationTime(secondsSince(start));
    }
}

/// The choice of an item: host told, marks, walks, all menus as they are then, painted.
void userEvent(benchmark::State &state) {
    host::PanelStage stage = makeStage(state.range(0));
    stage.open();
    QCoreApplication::processEvents();
    auto *list = stage.window()->findChild<PopupView *>("ImageTypeList");
    size_t turn = 0;
    for (auto _ : state) {
        const QString choice = QString::fromUtf8(kChoices[turn++ % 2]);
        int item = 0;
        while (item < list->numberOfItems() && list->itemRepresentedObject(item) != choice)
            ++item;
        if (!list->chooseItem(item))
            return state.SkipWithError("the item can't be chosen");
        QCoreApplication::processEvents();
    }
}

void libcupsMark(benchmark::State &state) {
    const PpdPtr ppd(ppdOpenFile(generatedPpd(state.range(0)).c_str()));
    ppdMarkDefaults(ppd.get());
    size_t turn = 0;
    for (auto _ : state)
        ppdMarkOption(ppd.get(), kImageType, kChoices[turn++ % 2]);
}

/// Qt's own dialog on a queue of a loopback server with the same PPD; the first one isn't counted.
void qtDialog(benchmark::State &state) {
    static CupsDaemon server;
    static const bool started = server.start();
    if (!started)
        return state.SkipWithError("there is no cupsd");
    qputenv("CUPS_SERVER", server.environment().first().section('=', 1).toUtf8());
    const QString queue = QStringLiteral("Q%1").arg(state.range(0));
    if (!server.addQueue(queue, QString::fromStdString(generatedPpd(state.range(0)))))
        return state.SkipWithError("the server takes no queue");
    bool first = true;
    const auto show = [&] {
        const auto start = Clock::now();
        QPrinter printer;
        printer.setPrinterName(queue);
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
    for (const int64_t size : kSizes) {
        benchmark::RegisterBenchmark("panel_open", panelOpen)->Arg(size)->UseManualTime();
        benchmark::RegisterBenchmark("unseen_should_print", unseenShouldPrint)
            ->Arg(size)
            ->UseManualTime();
        benchmark::RegisterBenchmark("user_event", userEvent)->Arg(size);
        benchmark::RegisterBenchmark("ppdMarkOption", libcupsMark)->Arg(size);
    }
    for (const int64_t size : {100, 10000})
        benchmark::RegisterBenchmark("QPrintDialog", qtDialog)
            ->Arg(size)
            ->UseManualTime()
            ->Iterations(5);
    return 0;
}();

} // namespace
