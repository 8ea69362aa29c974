#pragma once

#include "host/settings/option_list.h"
#include "platform/cups_ppd.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace host {

/// The settings that most printers have.
enum class Setting {
    Copies,
    Collate,
    Pages,
    Orientation,
    NumberUp,
    Sides,
    PaperSize,
    PaperSource,
    PaperType,
};

struct SettingChoice {
    QString keyword; ///< the value that setValue() takes
    QString text;    ///< for a person; the PPD's where the PPD has the setting
};

/// The choices of a PPD's option, in its order.
QList<SettingChoice> choicesOf(const ppd_option_t &option);

/// The default of a PPD's option: the server's word where the option has such a choice, else the
/// PPD's. May be a custom value.
QString defaultChoice(const ppd_option_t &option, const OptionList &serverDefaults);

/// The common settings of one job, without widgets. Used on the interface's thread.
///
/// Each has one home: an option of the PPD, then its value is that option's mark, which panels and
/// conflicts see, or else an option of CUPS. So never both forms of a setting are sent.
class JobSettings {
public:
    /// Starts with the person's own defaults for the options of CUPS, else the server's, else
    /// CUPS'. Marks are left as they stand.
    /// @param ppd             borrowed; null for a queue without one
    /// @param serverDefaults  of the queue, by name ("copies" or "copies-default")
    /// @param userDefaults    the person's own
    explicit JobSettings(ppd_file_t *ppd, const OptionList &serverDefaults = {},
                         const OptionList &userDefaults = {});

    ppd_file_t *ppd() const { return m_ppd; }
    /// A file has the PPD's choices in it, but is made by none of CUPS' filters, which do the rest.
    void setToFile(bool toFile) { m_toFile = toFile; }
    bool isToFile() const { return m_toFile; }

    /// The PPD's option that is the setting's home; null for an option of CUPS.
    ppd_option_t *ppdOption(Setting setting) const;
    /// Whether the setting's home is an option of CUPS.
    bool isOfCups(Setting setting) const;
    /// The name of the setting's home: the PPD's keyword, or the name of CUPS' option.
    QString key(Setting setting) const;
    /// What a setting is called, for a person.
    QString nameOf(Setting setting) const;
    /// @return why a setting doesn't apply, a sentence for a person; null where it does
    QString whyNot(Setting setting) const;

    /// What can be chosen; nothing for copies, collate and pages of CUPS.
    QList<SettingChoice> choices(Setting setting) const;
    /// The choice or value as it stands. Pages are null for all, as readPageRanges() gives them;
    /// the orientation is null where the document's own counts. A custom choice is "Custom".
    QString value(Setting setting) const;
    /// The queue's default: the server's, else the PPD's or CUPS' own.
    QString queueDefault(Setting setting) const;
    /// A value for a person.
    QString textOf(Setting setting, const QString &value) const;
    /// @return false, with nothing done, for a value that the setting can't have
    bool setValue(Setting setting, const QString &value);

    int copies() const { return value(Setting::Copies).toInt(); }
    bool isCollated() const;
    /// Page ranges as they were typed, where they can't be printed; null else. What can be read of
    /// them is the value of Setting::Pages.
    const QString &refusedPages() const { return m_refusedPages; }
    void setRefusedPages(const QString &typed) { m_refusedPages = typed; }
    bool setCollated(bool collated);

    /// Takes options that came from elsewhere (a preset, the person's defaults, a command line):
    /// those of the PPD are marked, common settings go to their home, whatever form they have.
    /// @param problems  receives a line for a person for each that couldn't be taken; may be null
    /// @return the others, to be sent as they are
    OptionList takeOptions(const OptionList &options, QStringList *problems = nullptr);

    /// What CUPS is to be told besides the marks; nothing for a file. CUPS' own defaults aren't
    /// told, but where a default of the server or the person differs.
    OptionList jobOptions() const;

    static constexpr int kMostCopies = 9999;
    /// All settings, in the order in which they are shown and sent.
    static const QList<Setting> &all();

private:
    bool takeOption(const QString &name, const QString &value, bool *taken);

    ppd_file_t *m_ppd;
    OptionList m_serverDefaults;
    QString m_refusedPages;
    OptionList m_userDefaults;
    QMap<Setting, QString> m_values; ///< those whose home is CUPS
    bool m_toFile = false;
};

} // namespace host
