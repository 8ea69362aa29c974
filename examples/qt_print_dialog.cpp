// Another author's program with the panel in its print dialog: the lines marked with [panel] are
// all that it takes.
//
//     qt_print_dialog [--once QUEUE]      --once prints as soon as the panel is there

#include "pde-qt/print_panel_tab.h" // [panel]

#include <QApplication>
#include <QCheckBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

namespace {

constexpr int kPatienceMs = 30000;

/// A tab of the program's own.
class FrameTab : public QWidget {
public:
    FrameTab() {
        setWindowTitle(QStringLiteral("Frame"));
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&m_frame);
        layout->addStretch();
    }
    bool hasFrame() const { return m_frame.isChecked(); }

private:
    QCheckBox m_frame{QStringLiteral("Draw a &frame")};
};

bool paint(QPrinter &printer, bool withFrame) {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const QRect page = painter.viewport();
    painter.drawText(page, Qt::AlignCenter, QStringLiteral("A page with image options"));
    if (withFrame)
        painter.drawRect(page.marginsRemoved({2, 2, 2, 2}));
    return painter.end();
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool once = arguments.size() == 3 && arguments[1] == QStringLiteral("--once");

    QPrinter printer(QPrinter::HighResolution);
    if (once)
        printer.setPrinterName(arguments[2]);
    QPrintDialog dialog(&printer);
    auto *frame = new FrameTab;
    auto *panel = new PrintPanelTab(&dialog); // [panel]
    dialog.setOptionTabs({frame, panel});     // [panel]
    if (once) {
        QObject::connect(
            panel, &PrintPanelTab::settled, &dialog,
            [&dialog](bool hasPanel) { hasPanel ? dialog.accept() : dialog.reject(); },
            Qt::QueuedConnection);
        QTimer::singleShot(kPatienceMs, &dialog, &QDialog::reject);
    }
    if (dialog.exec() != QDialog::Accepted)
        return 1;
    if (!paint(printer, frame->hasFrame())) {
        std::fprintf(stderr, "qt_print_dialog: the page can't be printed\n");
        return 2;
    }
    return 0;
}
