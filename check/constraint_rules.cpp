#include "check/rules.h"

#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"
#include "ppd/panel_options.h"
#include "ppd/ppd_query.h"

#include <QSet>

#include <map>

namespace check {
namespace {

using Entries = std::map<std::pair<std::string, x_constraints>, uint64_t>;

Entries entriesOf(const hash_multimap &table) {
    Entries entries;
    table.forEach([&](std::string_view key, x_constraints place) {
        ++entries[{std::string(key), place}];
    });
    return entries;
}

QString half(const QByteArray &option, const QByteArray &choice) {
    return QString::fromUtf8(choice.isEmpty() ? '*' + option : '*' + option + ' ' + choice);
}

/// Tells what a half of a constraint names that isn't there as it is spelled.
/// @return whether it names what the PPD has
bool checkHalf(const Subject &subject, int line, const QByteArray &option,
               const QByteArray &choice) {
    const ppd_option_t *found = ppdFindOption(subject.ppd, option.constData());
    if (!found) {
        subject.problem("constraint-unknown", line,
                        QStringLiteral("The constraint names %1, which the PPD doesn't have.")
                            .arg(half(option, {})),
                        QStringLiteral("Name an option, or take the constraint out."));
        return false;
    }
    if (option != found->keyword) {
        subject.problem("constraint-case", line,
                        QStringLiteral("The constraint spells %1 as %2.")
                            .arg(QString::fromUtf8(found->keyword), QString::fromUtf8(option)),
                        QStringLiteral("Spell options as where they open: the panel looks for just "
                                       "this."));
        return false;
    }
    if (choice.isEmpty())
        return true;
    const ppd_choice_t *other =
        ppdFindChoice(const_cast<ppd_option_t *>(found), choice.constData());
    if (!other) {
        subject.problem("constraint-unknown", line,
                        QStringLiteral("The constraint names %1, which the PPD doesn't have.")
                            .arg(half(option, choice)),
                        QStringLiteral("Name a choice, or take the constraint out."));
        return false;
    }
    if (choice != other->choice) {
        subject.problem("constraint-case", line,
                        QStringLiteral("The constraint spells the choice %1 as %2.")
                            .arg(QString::fromUtf8(other->choice), QString::fromUtf8(choice)),
                        QStringLiteral("Spell choices as where they stand."));
        return false;
    }
    return true;
}

} // namespace

void checkConstraints(const Subject &subject) {
    QSet<QByteArray> stated;
    const auto name = [](const auto &...parts) { return (QByteArray() + ... + ('\n' + parts)); };
    for (const PpdLines::Constraint &c : subject.lines.constraints())
        stated.insert(name(c.option1, c.choice1, c.option2, c.choice2));
    for (const PpdLines::Constraint &c : subject.lines.constraints()) {
        const bool isFine = checkHalf(subject, c.line, c.option1, c.choice1) &
                            int(checkHalf(subject, c.line, c.option2, c.choice2));
        if (isFine && !stated.contains(name(c.option2, c.choice2, c.option1, c.choice1)))
            subject.problem("constraint-one-way", c.line,
                            QStringLiteral("%1 forbids %2, but nothing says the reverse: the panel "
                                           "greys one of the two only.")
                                .arg(half(c.option1, c.choice1), half(c.option2, c.choice2)),
                            QStringLiteral("Add *UIConstraints: %1 %2.")
                                .arg(half(c.option2, c.choice2), half(c.option1, c.choice1)));
    }
}

void checkCache(const Subject &subject) {
    const QString attribute = QStringLiteral("QZXCDFSetting");
    const ppd_attr_t *cache = ppdFindAttr_ALT(subject.ppd, attribute.toUtf8().constData(), nullptr);
    if (!cache)
        return;
    const int line = subject.lines.ofAttribute(attribute.toUtf8());
    const QString path = QString::fromUtf8(cache->value);
    hash_multimap fresh, cached;
    addConstraintsOf(subject.ppd, &fresh, {kPanelOptionKeys.begin(), kPanelOptionKeys.end()});
    if (GetXPPD(subject.ppd, &cached, QStringLiteral("ImageOptionPDE"), attribute) != 0)
        subject.problem("cache-missing", line,
                        QStringLiteral("The constraint cache %1 can't be read: the panel will show "
                                       "no conflicts.")
                            .arg(path),
                        QStringLiteral("Write it with cdf-tool, and name it by an absolute path."));
    else if (entriesOf(fresh) != entriesOf(cached))
        subject.problem("cache-stale", line,
                        QStringLiteral("The constraint cache %1 isn't that of this PPD.").arg(path),
                        QStringLiteral("Write it anew; cdf-tool check tells what differs."));
}

} // namespace check
