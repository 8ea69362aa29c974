#include "support/ppd_text.h"

#include "host/bundle_loader.h"
#include "host/dialog.h"

#include "platform/views/modal_window.h"
#include "platform/views/view.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

template <class View>
View *find(QWidget *window, const QString &text) {
    for (View *view : window->findChildren<View *>())
        if (view->text().remove(u'&') == text)
            return view;
    return nullptr;
}

} // namespace

/// The dialog with the real panel, worked by a person who looks around and then cancels.
TEST(Dialog, ShowsPanelAndSummaryAndCancels) {
    host::PanelStage stage(host::openPpdFile(samplePath("velmora-mvo-530.ppd")),
                           *host::loadBundle(BUNDLE_DIR));
    bool summaryShown = false, survivedEscape = false;
    {
        host::PrintDialog dialog(stage, false, samplePath("sample.ps"));
        ASSERT_TRUE(find<QLabel>(&dialog, "Printer: velmora-mvo-530"));
        ASSERT_TRUE(find<QLabel>(&dialog, stage.session().name()));
        QList<QKeySequence> letters;
        const auto take = [&letters](const QString &text) {
            const QKeySequence letter = QKeySequence::mnemonic(text);
            EXPECT_FALSE(!letter.isEmpty() && letters.contains(letter)) << text.toStdString();
            letters.append(letter);
        };
        for (const auto *label : dialog.findChildren<QLabel *>())
            if (label->buddy() && !views::isHidden(label))
                take(label->text());
        for (const auto *button : dialog.findChildren<QAbstractButton *>())
            if (!views::isHidden(button))
                take(button->text());
        EXPECT_GT(letters.size(), 12);
        QTimer::singleShot(0, &dialog, [&] {
            QTimer::singleShot(0, &dialog, [&] {
                QWidget *window = QApplication::activeModalWidget();
                summaryShown = window != &dialog && find<QLabel>(window, "Color Mode");
                window->close();
            });
            find<QPushButton>(&dialog, "Summary…")->click();

            QTimer::singleShot(0, &dialog, [&] {
                ASSERT_TRUE(ModalWindow::current());
                dialog.reject();
                survivedEscape = dialog.isVisible();
                ModalWindow::current()->reject();
            });
            dialog.findChild<QPushButton *>("colorbalanceButtonCtrl")->click();
            dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
        });
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    }
    EXPECT_TRUE(summaryShown);
    EXPECT_TRUE(survivedEscape) << "a child window of the panel stood before the dialog";
    EXPECT_FALSE(stage.isOpen());
}
