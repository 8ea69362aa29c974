#include "host/settings/common_settings.h"

#include "host/settings/custom_values.h"
#include "host/settings/number_field.h"
#include "host/settings/ppd_texts.h"
#include "host/settings/tool_tip.h"
#include "platform/views/captioned.h"
#include "platform/views/menu_box.h"
#include "platform/views/text_view.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QSpinBox>

namespace host {
namespace {

TextView *labelFor(QWidget *buddy) {
    auto *label = new TextView;
    label->setBuddy(buddy);
    return label;
}

void setTitle(TextView *label, const QString &title) {
    label->setStringValue(CommonSettings::tr("%1:").arg(title));
}

} // namespace

CommonSettings::CommonSettings(QWidget *parent) : QWidget(parent), m_form(new QFormLayout(this)) {
    setObjectName(QStringLiteral("commonSettings"));
    m_form->setContentsMargins({});
    addCopies();
    addPages();
    addList(Setting::Orientation, QStringLiteral("orientation"));
    addList(Setting::NumberUp, QStringLiteral("numberUp"));
    addList(Setting::Sides, QStringLiteral("sides"));
    addList(Setting::PaperSize, QStringLiteral("paperSize"));
    addList(Setting::PaperSource, QStringLiteral("paperSource"));
    addList(Setting::PaperType, QStringLiteral("paperType"));
    setSettings(nullptr);
}

void CommonSettings::addCopies() {
    m_copies = new QSpinBox;
    m_copies->setObjectName(QStringLiteral("copies"));
    m_copies->setRange(1, JobSettings::kMostCopies);
    m_copiesLabel = labelFor(m_copies);
    m_collate = new QCheckBox;
    m_collate->setObjectName(QStringLiteral("collate"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_copies);
    row->addWidget(m_collate);
    row->addStretch();
    m_form->addRow(m_copiesLabel, row);
    watchNumber(m_copies, this, [this] { takeCopies(); });
    connect(m_collate, &QCheckBox::toggled, this, [this](bool on) {
        if (m_showing || !m_settings)
            return;
        m_settings->setCollated(on);
        refresh();
        emit changed(m_settings->key(Setting::Collate));
    });
}

void CommonSettings::addPages() {
    m_allPages = new QRadioButton(tr("&All pages"));
    m_allPages->setObjectName(QStringLiteral("allPages"));
    m_somePages = new QRadioButton(tr("Page&s:"));
    m_somePages->setObjectName(QStringLiteral("somePages"));
    m_pages = new QLineEdit;
    m_pages->setObjectName(QStringLiteral("pages"));
    m_pages->setAccessibleName(tr("Pages to print"));
    m_pages->setPlaceholderText(tr("1-3,5,9-"));
    m_pages->setMaxLength(1000);
    m_pagesWords = new QLabel;
    m_pagesWords->setObjectName(QStringLiteral("pagesProblem"));
    m_pagesWords->setTextFormat(Qt::PlainText);
    m_pagesWords->setWordWrap(true);
    m_pagesWords->hide();
    m_pagesLabel = new TextView;
    m_pagesLabel->setStringValue(tr("Range:"));
    auto *row = new QHBoxLayout;
    row->addWidget(m_allPages);
    row->addWidget(m_somePages);
    row->addWidget(m_pages, 1);
    m_form->addRow(m_pagesLabel, row);
    m_form->addRow(nullptr, m_pagesWords);
    connect(m_somePages, &QRadioButton::toggled, this, [this](bool on) {
        if (!m_showing && on && m_pages->text().isEmpty() && m_somePages->hasFocus())
            m_pages->setFocus();
        takePages();
    });
    connect(m_pages, &QLineEdit::textEdited, this, [this] {
        if (m_somePages->isChecked())
            takePages();
        else
            m_somePages->setChecked(true);
    });
}

void CommonSettings::addList(Setting setting, const QString &name) {
    auto *box = new ChoiceMenu;
    box->setObjectName(name);
    const List list{setting, labelFor(box), box, new CustomValues};
    list.custom->setObjectName(name + QStringLiteral("Values"));
    m_form->addRow(list.label, box);
    m_form->addRow(nullptr, list.custom);
    m_lists.append(list);
    connect(box, &QComboBox::activated, this, [this, list] { choose(list); });
    connect(list.custom, &CustomValues::changed, this, &CommonSettings::changed);
}

void CommonSettings::setSettings(JobSettings *settings, const ConflictReason &conflict) {
    m_settings = settings;
    m_conflict = conflict;
    m_pagesProblem.clear();
    setTitle(m_copiesLabel, tr("Copies"));
    const auto ownTitle = [](Setting setting) {
        switch (setting) {
        case Setting::Orientation:
            return tr("Orientation");
        case Setting::NumberUp:
            return tr("Pages per side");
        case Setting::Sides:
            return tr("Two-sided");
        case Setting::PaperSize:
            return tr("Paper size");
        case Setting::PaperSource:
            return tr("Paper source");
        default:
            return tr("Paper type");
        }
    };
    const auto title = [&](Setting setting, const QString &own) {
        const ppd_option_t *option = m_settings ? m_settings->ppdOption(setting) : nullptr;
        return option ? optionText(*option) : own;
    };
    const QString collate = title(Setting::Collate, {});
    m_collate->setText(collate.isNull() ? tr("Co&llate") : views::escapeMnemonics(collate));
    for (const List &list : std::as_const(m_lists)) {
        setTitle(list.label, title(list.setting, ownTitle(list.setting)));
        list.custom->setOption(m_settings ? m_settings->ppd() : nullptr,
                               m_settings ? m_settings->key(list.setting) : QString());
    }
    m_pages->clear();
    if (m_settings) {
        m_pages->setText(m_settings->value(Setting::Pages));
        if (const QString typed = m_settings->refusedPages(); !typed.isNull()) {
            const QScopedValueRollback<bool> showing(m_showing, true);
            m_pages->setText(typed);
            m_somePages->setChecked(true);
            m_pagesProblem = typedPages().problem;
        }
    }
    refresh();
}

void CommonSettings::setReason(QWidget *control, const QString &reason, const QString &words) {
    control->setEnabled(reason.isNull());
    control->setToolTip(plainToolTip(reason.isNull() ? words : reason));
    control->setAccessibleDescription(reason.isNull() ? words : reason);
}

void CommonSettings::refresh() {
    const QScopedValueRollback<bool> showing(m_showing, true);
    showCopies();
    showPages();
    for (const List &list : std::as_const(m_lists)) {
        fill(list);
        list.custom->refresh();
    }
}

void CommonSettings::showCopies() {
    const QString none = m_settings ? QString() : tr("Choose a printer first.");
    setReason(m_copies, m_settings ? m_settings->whyNot(Setting::Copies) : none);
    setReason(m_collate, m_settings ? m_settings->whyNot(Setting::Collate) : none,
              tr("Prints each copy whole before the next one."));
    // A number that is being typed is left.
    if (m_settings && m_copies->hasAcceptableInput() && m_copies->value() != m_settings->copies())
        m_copies->setValue(m_settings->copies());
    m_collate->setChecked(m_settings && m_settings->isCollated());
}

void CommonSettings::showPages() {
    const QString reason =
        m_settings ? m_settings->whyNot(Setting::Pages) : tr("Choose a printer first.");
    for (QWidget *control : {static_cast<QWidget *>(m_allPages),
                             static_cast<QWidget *>(m_somePages), static_cast<QWidget *>(m_pages)})
        setReason(control, reason);
    if (m_pagesProblem.isNull()) { // what is typed wrong is left
        const QString now = m_settings ? m_settings->value(Setting::Pages) : QString();
        (now.isEmpty() ? m_allPages : m_somePages)->setChecked(true);
        if (!now.isEmpty() && readPageRanges(m_pages->text()).value != now)
            m_pages->setText(now);
    }
    if (reason.isNull())
        judgePages();
    else
        showPagesProblem({});
}

PageRanges CommonSettings::typedPages() const {
    const int perSide = qMax(1, m_settings->value(Setting::NumberUp).toInt());
    return readPageRanges(m_pages->text(), (m_pageCount + perSide - 1) / perSide, perSide > 1);
}

/// What stands may have come from elsewhere, and be meant for another document.
void CommonSettings::judgePages() {
    PageRanges ranges;
    if (m_somePages->isChecked())
        ranges = typedPages();
    m_pagesProblem = ranges.problem;
    // Ranges that this document lacks stand, though they can't be printed: another may have them.
    // Of what can't be read nothing stands, not even its beginning.
    const bool isRefused = !m_pagesProblem.isNull();
    m_settings->setRefusedPages(isRefused ? m_pages->text() : QString());
    m_settings->setValue(Setting::Pages,
                         isRefused ? readPageRanges(m_pages->text()).value : ranges.value);
    showPagesProblem(m_pagesProblem);
}

void CommonSettings::showPagesProblem(const QString &words) {
    m_pagesWords->setText(words);
    m_pagesWords->setVisible(!words.isEmpty());
    if (!m_pages->isEnabled())
        return;
    const bool areSides = m_settings && m_settings->value(Setting::NumberUp).toInt() > 1;
    const QString hint = areSides
                             ? tr("Printed sides and ranges of them, parted by commas, such as "
                                  "1-3,5,9-. With several pages on a side, sides are counted.")
                             : tr("Pages and ranges, parted by commas, such as 1-3,5,9-.");
    m_pages->setAccessibleDescription(words.isEmpty() ? hint : words);
    m_pages->setToolTip(plainToolTip(hint));
    m_somePages->setText(areSides ? tr("Side&s:") : tr("Page&s:"));
}

void CommonSettings::fill(const List &list) {
    if (!m_settings) {
        list.box->showChoices({}, {}, {}, {});
        list.box->setPlaceholderText({});
        return list.box->setReason(tr("Choose a printer first."));
    }
    const QList<SettingChoice> choices = m_settings->choices(list.setting);
    const QString told = list.box->showChoices(choices, m_settings->value(list.setting),
                                               m_settings->key(list.setting), m_conflict);
    list.box->setPlaceholderText(choices.isEmpty() ? tr("not offered") : QString());
    list.box->setReason(m_settings->whyNot(list.setting), told);
}

void CommonSettings::choose(const List &list) {
    if (!m_settings)
        return;
    QString choice = list.box->currentData().toString();
    if (const ppd_option_t *option = m_settings->ppdOption(list.setting))
        choice = pickedChoice(m_settings->ppd(), *option, choice, m_settings->value(list.setting));
    const bool done = m_settings->setValue(list.setting, choice);
    refresh();
    if (done)
        emit changed(m_settings->key(list.setting));
}

void CommonSettings::takeCopies() {
    if (m_showing || !m_settings)
        return;
    if (m_copies->hasAcceptableInput())
        m_settings->setValue(Setting::Copies, QString::number(m_copies->value()));
    refresh();
    emit changed(m_settings->key(Setting::Copies));
}

void CommonSettings::takePages() {
    if (m_showing || !m_settings)
        return;
    judgePages();
    emit changed(m_settings->key(Setting::Pages));
}

void CommonSettings::setPageCount(int count) {
    if (m_pageCount == count)
        return;
    m_pageCount = count;
    if (!m_settings)
        return;
    judgePages();
    emit pagesJudged();
}

QString CommonSettings::problem() const {
    if (!m_settings)
        return {};
    if (m_copies->isEnabled() && !m_copies->hasAcceptableInput())
        return tr("Copies must be a number from 1 to %1.").arg(JobSettings::kMostCopies);
    if (m_pages->isEnabled() && !m_pagesProblem.isNull())
        return m_pagesProblem;
    for (const List &list : m_lists)
        if (const QString fault = list.custom->problem(); !fault.isNull())
            return fault;
    return {};
}

void CommonSettings::showProblem() {
    if (m_copies->isEnabled() && !m_copies->hasAcceptableInput())
        return m_copies->setFocus();
    if (m_pages->isEnabled() && !m_pagesProblem.isNull()) {
        m_pages->setFocus();
        m_pages->setCursorPosition(typedPages().at);
        return;
    }
    for (const List &list : std::as_const(m_lists))
        if (!list.custom->problem().isNull())
            return list.custom->showProblem();
}

} // namespace host
