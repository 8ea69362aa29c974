#pragma once

#include "host/settings/choice_menu.h"
#include "host/settings/page_ranges.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;
class TextView;

namespace host {

class CustomValues;

/// The controls of the common settings.
///
/// Labels are titled by the PPD where it has the setting; call views::assignMnemonics() for the
/// widget once it stands in its window, and after setSettings(). Whatever can't be chosen is greyed
/// and says why, in its tool tip and its accessible description.
class CommonSettings : public QWidget {
    Q_OBJECT

public:
    explicit CommonSettings(QWidget *parent = nullptr);

    /// The rows, for further ones behind them.
    QFormLayout *form() const { return m_form; }
    /// Shows the settings of another job.
    /// @param settings  borrowed until the next call; null while there is none
    /// @param conflict  may be empty
    void setSettings(JobSettings *settings, const ConflictReason &conflict = {});
    /// Shows marks, conflicts and settings as they stand now.
    void refresh();
    /// Pages of the document, which page ranges can't exceed; 0 where that isn't known.
    void setPageCount(int count);
    /// Why what is typed can't be printed, a sentence; null where it can.
    QString problem() const;
    /// Gives the keyboard to the control that has the problem, if there is one.
    void showProblem();

signals:
    /// A setting was changed by the person, after it has been marked or kept; also when a problem
    /// comes or goes.
    /// @param option  the PPD's keyword or CUPS' name
    void changed(const QString &option);
    /// The page ranges were judged anew for another document; a problem may have come or gone.
    void pagesJudged();

private:
    struct List {
        Setting setting;
        TextView *label;
        ChoiceMenu *box;
        CustomValues *custom;
    };

    void addCopies();
    void addPages();
    void addList(Setting setting, const QString &name);
    void fill(const List &list);
    void choose(const List &list);
    void takeCopies();
    void takePages();
    PageRanges typedPages() const;
    void judgePages();
    void showPages();
    void showCopies();
    void showPagesProblem(const QString &words);
    void setReason(QWidget *control, const QString &reason, const QString &words = {});

    JobSettings *m_settings = nullptr;
    ConflictReason m_conflict;
    int m_pageCount = 0;
    bool m_showing = false; ///< the controls' signals come from here
    QString m_pagesProblem;

    QFormLayout *m_form;
    TextView *m_copiesLabel;
    QSpinBox *m_copies;
    QCheckBox *m_collate;
    TextView *m_pagesLabel;
    QRadioButton *m_allPages;
    QRadioButton *m_somePages;
    QLineEdit *m_pages;
    QLabel *m_pagesWords;
    QList<List> m_lists;
};

} // namespace host
