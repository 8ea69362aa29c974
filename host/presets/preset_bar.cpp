#include "host/presets/preset_bar.h"

#include "host/host_error.h"
#include "host/presets/problem_area.h"
#include "platform/views/menu_box.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace host {
namespace {

constexpr int kListCharacters = 24; // longer names don't widen the window

} // namespace

PresetBar::PresetBar(const PresetStore &store, std::function<Preset()> current, QWidget *parent)
    : QWidget(parent), m_store(store), m_current(std::move(current)), m_list(new MenuBox),
      m_problems(new ProblemArea) {
    setObjectName(QStringLiteral("presetBar"));
    auto *label = new QLabel(tr("Pr&eset:"));
    label->setBuddy(m_list);
    m_list->setObjectName(QStringLiteral("presetList"));
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setMinimumContentsLength(kListCharacters);
    auto *button = new QPushButton(tr("Mana&ge"));
    button->setObjectName(QStringLiteral("presetMenu"));
    button->setAccessibleName(tr("Manage presets"));
    button->setAutoDefault(false);
    button->setMenu(makeMenu());

    auto *row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_list, 1);
    row->addWidget(button);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_problems);
    connect(m_list, &QComboBox::activated, this, &PresetBar::pick);
    setQueue({});
}

bool PresetBar::setQueue(const QString &queue, bool toFile) {
    if (!m_queue.isEmpty() && (m_settled || m_changed))
        m_left.insert({m_queue, m_toFile}, {m_instances, m_chosen, m_settled, m_changed, m_lines});
    m_queue = queue;
    m_toFile = toFile;
    const auto found = m_left.constFind({queue, toFile});
    const bool isKnown = found != m_left.constEnd();
    const Left left = isKnown ? *found : Left{};
    m_instances = left.instances;
    m_chosen = left.chosen;
    m_settled = left.settled;
    m_changed = left.changed;
    refresh();
    setProblems(left.lines);
    return isKnown;
}

void PresetBar::setInstances(const QStringList &names) {
    m_instances = names;
    refresh();
}

void PresetBar::refresh() {
    m_rows = {{Kind::Defaults, {}, {}}};
    if (!m_queue.isEmpty()) {
        if (m_store.hasLastUsed(m_queue))
            m_rows.append({Kind::LastUsed, {}, {}});
        for (const PresetRow &row : m_store.list(m_queue))
            m_rows.append(
                {row.problem.isNull() ? Kind::Saved : Kind::Damaged, row.name, row.problem});
    }
    for (const QString &name : m_instances)
        m_rows.append({Kind::Instance, name, {}});
    if (indexOf(m_chosen) < 0) { // its settings still stand, but nothing is called so any more
        m_chosen = {};
        m_settled.reset();
        m_changed = true;
    }
    showRows();
}

int PresetBar::indexOf(const Row &row) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [&](const Row &each) { return each.isSame(row); });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

QString PresetBar::titleOf(const Row &row) const {
    switch (row.kind) {
    case Kind::Defaults:
        return tr("Printer's defaults");
    case Kind::LastUsed:
        return tr("Last used settings");
    case Kind::Damaged:
        return tr("%1 (can't be used)").arg(row.name);
    case Kind::Instance:
        return tr("%1 (set up outside of this window)").arg(row.name);
    default:
        return row.name;
    }
}

void PresetBar::showRows() {
    m_list->clear();
    for (int i = 0; i < m_rows.size(); ++i) {
        const Kind kind = m_rows[i].kind, former = m_rows[qMax(i - 1, 0)].kind;
        const auto isFixed = [](Kind k) { return k == Kind::Defaults || k == Kind::LastUsed; };
        if (isFixed(former) != isFixed(kind) ||
            (kind == Kind::Instance) != (former == Kind::Instance))
            m_list->insertSeparator(m_list->count());
        m_list->addItem(titleOf(m_rows[i]), i);
        m_list->setItemData(m_list->count() - 1,
                            m_rows[i].problem.isNull() ? m_rows[i].name : m_rows[i].problem,
                            Qt::ToolTipRole);
    }
    m_list->setCurrentIndex(m_list->findData(indexOf(m_chosen)));
    showChanged();
}

void PresetBar::showChanged() {
    const QString title = titleOf(m_chosen);
    const QString shown = m_changed ? tr("%1 (changed)").arg(title) : title;
    if (shown != m_list->currentText()) {
        m_list->setItemText(m_list->currentIndex(), shown);
        QAccessibleValueChangeEvent told(m_list, shown);
        QAccessible::updateAccessibility(&told);
    }
    m_list->setToolTip(shown);
    m_list->setAccessibleDescription(
        m_changed ? tr("The settings differ from what was chosen here.") : QString());
    enableActs();
}

bool PresetBar::choose(const QString &name) {
    return apply(indexOf({Kind::Saved, name, {}}));
}

bool PresetBar::chooseLastUsed() {
    return apply(indexOf({Kind::LastUsed, {}, {}}));
}

bool PresetBar::chooseInstance(const QString &name) {
    return apply(indexOf({Kind::Instance, name, {}}));
}

void PresetBar::pick(int index) {
    apply(m_list->itemData(index).toInt());
}

bool PresetBar::apply(int number) {
    if (number < 0 || number >= m_rows.size())
        return false;
    const Row row = m_rows[number]; // the rows may be listed anew meanwhile
    std::optional<Preset> preset;
    try {
        if (row.kind == Kind::Saved)
            preset = m_store.load(m_queue, row.name);
        else if (row.kind == Kind::LastUsed)
            preset = m_store.lastUsed(m_queue);
    } catch (const HostError &error) {
        refresh();
        tell(tr("The settings stay as they are."), {error.text()});
        return false;
    }
    setProblems({});
    m_chosen = row;
    const QPointer<PresetBar> alive(this);
    if (row.kind == Kind::Damaged)
        tell(tr("“%1” can't be used, and the settings stay as they are.").arg(row.name),
             {row.problem});
    else if (row.kind == Kind::Instance)
        emit instanceChosen(row.name);
    else
        emit chosen(preset ? &*preset : nullptr);
    if (!alive)
        return false;
    m_list->setCurrentIndex(m_list->findData(indexOf(m_chosen)));
    settle();
    return row.kind != Kind::Damaged;
}

void PresetBar::settle() {
    m_settled = m_current();
    m_changed = false;
    showRows();
}

void PresetBar::noteChange() {
    if (!m_settled)
        return;
    m_changed = !m_current().setsSameAs(*m_settled);
    showChanged();
}

void PresetBar::setProblems(const QStringList &lines) {
    m_lines = lines;
    tell(lines.isEmpty() ? QString() : tr("Not all of “%1” could be used:").arg(titleOf(m_chosen)),
         lines);
}

void PresetBar::tell(const QString &headline, const QStringList &lines) {
    m_problems->show(headline, lines);
}

} // namespace host
