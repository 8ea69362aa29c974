#include "support/run_program.h"

#include "host/presets/preset_bar.h"
#include "host/presets/remember_box.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using host::Preset;

namespace {

/// A dialog's first page with its bar, and the settings that a person changes there.
class PresetBarTest : public testing::Test {
protected:
    PresetBarTest() {
        for (const char *name : {"Photo", "Draft"})
            store.save(preset(name, name));
        QObject::connect(&bar, &host::PresetBar::chosen, [this](const Preset *chosen) {
            told.append(chosen ? chosen->name : "defaults");
            now.choices = chosen ? chosen->choices : QMap<QString, QStringList>();
            bar.setProblems(problems);
        });
        QObject::connect(&bar, &host::PresetBar::instanceChosen, [this](const QString &name) {
            told.append("instance " + name);
            now = preset({}, "instance");
        });
        bar.setQueue("Queue");
        bar.settle();
        bar.show();
    }

    static Preset preset(const QString &name, const QString &choice) {
        Preset made;
        made.name = name;
        made.queue = "Queue";
        made.choices = {{"Mode", {choice}}};
        return made;
    }

    QComboBox *list() { return bar.findChild<QComboBox *>("presetList"); }
    QString shown() { return list()->currentText(); }
    QStringList rows() {
        QStringList texts;
        for (int i = 0; i < list()->count(); ++i)
            if (list()->itemData(i).isValid())
                texts.append(list()->itemText(i));
        return texts;
    }
    QString problemText() {
        const auto *label = bar.findChild<QLabel *>("presetProblems");
        return label->isVisible() ? label->text() : QString();
    }
    void pick(const QString &text) {
        list()->setCurrentIndex(list()->findText(text));
        emit list()->activated(list()->currentIndex());
    }
    /// Triggers an act, and works the window that it opens, by keys.
    void act(const char *name, const std::function<void(QWidget *)> &work = {}) {
        auto *action = bar.findChild<QAction *>(name);
        ASSERT_TRUE(action->isEnabled()) << name;
        bool worked = !work;
        if (work)
            QTimer::singleShot(0, &bar, [&] {
                QWidget *window = QApplication::activeModalWidget();
                ASSERT_TRUE(window) << name;
                worked = true;
                work(window);
                if (window == QApplication::activeModalWidget())
                    window->close();
            });
        action->trigger();
        EXPECT_TRUE(worked) << name;
    }
    static void press(QWidget *window, const QString &text) {
        for (auto *button : window->findChildren<QPushButton *>())
            if (button->text().remove('&') == text)
                return button->click();
        ADD_FAILURE() << text.toStdString();
    }
    void change(const QString &choice) {
        now.choices = {{"Mode", {choice}}};
        bar.noteChange();
    }

    QTemporaryDir folder;
    host::PresetStore store{folder.path()};
    Preset now;
    QStringList told, problems;
    host::PresetBar bar{store, [this] { return now; }};
};

} // namespace

TEST_F(PresetBarTest, ChoosesAndShowsChanges) {
    bar.setInstances({"office"});
    EXPECT_EQ(rows().join('|'),
              "Printer's defaults|Draft|Photo|office (set up outside of this window)");
    pick("Photo");
    EXPECT_EQ(now.choices["Mode"], QStringList("Photo"));
    change("Other");
    EXPECT_EQ(shown(), "Photo (changed)");
    pick("Photo (changed)");
    EXPECT_EQ(shown(), "Photo");
    change("Other");
    change("Photo");
    EXPECT_EQ(shown(), "Photo");
    pick("office (set up outside of this window)");
    pick("Printer's defaults");
    EXPECT_EQ(told, (QStringList{"Photo", "Photo", "instance office", "defaults"}));

    problems = QStringList{"1", "2", "3", "4", "5", "6"};
    ASSERT_TRUE(bar.choose("Draft"));
    EXPECT_EQ(problemText().toStdString(), "Not all of “Draft” could be used:\n• 1\n• 2\n• 3\n• 4");
    bar.findChild<QPushButton *>("allPresetProblems")->click();
    EXPECT_TRUE(problemText().endsWith("• 6"));
    bar.setQueue("Other");
    EXPECT_EQ(rows(), QStringList("Printer's defaults"));
    EXPECT_EQ(problemText(), QString());
}

TEST_F(PresetBarTest, TheMenuKeepsRenamesAndDeletes) {
    change("Mine");
    act("savePresetAs", [&](QWidget *window) {
        auto *edit = window->findChild<QLineEdit *>("presetName");
        edit->setText(QString(300, u'x'));
        EXPECT_TRUE(window->findChild<QLabel *>("presetNameProblem")->text().contains("200"));
        edit->setText(" A&B ");
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(edit, &key);
    });
    EXPECT_EQ(shown(), "A&B");
    EXPECT_EQ(store.load("Queue", "A&B").choices["Mode"], QStringList("Mine"));

    change("Second");
    for (const char *answer : {"Cancel", "Replace"}) {
        QTimer::singleShot(0, &bar, [&] { press(QApplication::activeModalWidget(), answer); });
        bar.saveAs("Photo");
        EXPECT_EQ(store.load("Queue", "Photo").choices["Mode"].first(),
                  QByteArray(answer) == "Cancel" ? "Photo" : "Second");
    }
    change("Third");
    act("savePreset");
    EXPECT_EQ(shown(), "Photo");
    EXPECT_EQ(store.load("Queue", "Photo").choices["Mode"], QStringList("Third"));

    const auto renameTo = [&](const QString &name) {
        act("renamePreset", [&](QWidget *window) {
            window->findChild<QLineEdit *>("presetName")->setText(name);
            press(window, "Save");
        });
    };
    renameTo("Draft");
    EXPECT_TRUE(problemText().contains("already"));
    renameTo("Print");
    EXPECT_EQ(rows(), (QStringList{"Printer's defaults", "A&B", "Draft", "Print"}));
    act("deletePreset", [&](QWidget *window) { press(window, "Cancel"); });
    EXPECT_EQ(shown(), "Print");
    act("deletePreset", [&](QWidget *window) { press(window, "Delete"); });
    EXPECT_EQ(shown(), "Printer's defaults (changed)");
    EXPECT_EQ(now.choices["Mode"], QStringList("Third")) << "the settings stay";
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(PresetBarTest, ForeignAndDamagedFilesAreTold) {
    const QString file = folder.filePath("Elsewhere.json");
    Preset foreign = preset("Elsewhere", "Fine");
    foreign.queue = "Far";
    writeFile(folder.path(), "Elsewhere.json", host::presetText(foreign));
    problems = QStringList{"Mode: gone"};
    bar.importFile(file);
    EXPECT_EQ(shown(), "Elsewhere");
    EXPECT_EQ(problemText().toStdString(),
              "“Elsewhere” was made for the printer “Far”. What this printer has of it is used.\n"
              "• Mode: gone");
    bar.exportFile(folder.filePath("no/such.json"));
    EXPECT_TRUE(problemText().contains("can't be written")) << problemText().toStdString();

    writeFile(folder.filePath("presets/Queue"), "Photo.json", "{");
    told.clear();
    pick("Photo");
    EXPECT_EQ(shown(), "Elsewhere") << "it was whole when it was listed";
    EXPECT_TRUE(problemText().contains("isn't a preset"));
    pick("Photo (can't be used)");
    EXPECT_TRUE(told.isEmpty());
    EXPECT_FALSE(bar.findChild<QAction *>("renamePreset")->isEnabled());
    act("deletePreset", [&](QWidget *window) { press(window, "Delete"); });
    EXPECT_EQ(rows().filter("Photo"), QStringList());
}

TEST_F(PresetBarTest, LastUsedSettingsAreKeptWhereWanted) {
    host::RememberBox box(store);
    box.setQueue("Queue");
    EXPECT_FALSE(box.isChecked());
    EXPECT_FALSE(bar.chooseLastUsed());
    box.setChecked(true);
    box.keep(preset({}, "Fine"));
    bar.refresh();
    ASSERT_TRUE(bar.chooseLastUsed());
    EXPECT_EQ(shown(), "Last used settings");
    EXPECT_EQ(now.choices["Mode"], QStringList("Fine"));
    box.setQueue("Other");
    EXPECT_FALSE(box.isChecked());
    box.setQueue("Queue");
    ASSERT_TRUE(box.isChecked());
    box.setChecked(false);
    box.keep(preset({}, "Fine"));
    EXPECT_FALSE(store.hasLastUsed("Queue"));
}
