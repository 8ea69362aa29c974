#include "host/conflicts/conflict_dialog.h"

#include "host/dialog/plain_label.h"
#include "host/words.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {
namespace {

constexpr qsizetype kMostShown = 8;
constexpr int kLineLength = 55; ///< in characters

QString listOf(QStringList lines) {
    if (lines.size() > kMostShown) {
        const auto more = int(lines.size() - kMostShown);
        lines = lines.mid(0, kMostShown);
        lines.append(HostWords::tr("and %n more", nullptr, more));
    }
    for (QString &line : lines)
        line.prepend(QStringLiteral("• "));
    return lines.join(u'\n');
}

QLabel *paragraph(const QString &text, const QString &name) {
    QLabel *label = plainLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setMinimumWidth(kLineLength * label->fontMetrics().averageCharWidth());
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

QString textOf(const Conflict &conflict) {
    QStringList parties;
    for (const Party &party : conflict)
        parties.append(party.text());
    return parties.join(HostWords::tr(" and "));
}

Decision askAboutConflicts(QWidget *parent, const ConflictIndex &index, Purpose purpose,
                           const QString &chosenLast) {
    const QList<Conflict> standing = index.standing();
    if (standing.isEmpty())
        return {true, {}};
    const QList<Change> changes = proposal(index, chosenLast);

    const QPointer<QDialog> window = new QDialog(parent);
    window->setObjectName(QStringLiteral("conflictDialog"));
    window->setWindowTitle(HostWords::tr("Conflicting Settings"));
    auto *layout = new QVBoxLayout(window);
    QStringList pairs, steps;
    for (const Conflict &conflict : standing)
        pairs.append(textOf(conflict));
    for (const Change &change : changes)
        steps.append(change.text());
    const QString headline = HostWords::tr("The printer can't print these together:");
    window->setAccessibleDescription(headline + u'\n' + listOf(pairs));
    layout->addWidget(paragraph(headline, {}));
    layout->addWidget(paragraph(listOf(pairs), QStringLiteral("conflicts")));
    layout->addWidget(
        paragraph(steps.isEmpty() ? HostWords::tr("There is no simple way to put this right. Go "
                                                  "back and choose another value for one of them.")
                                  : HostWords::tr("This would put it right:"),
                  {}));
    if (!steps.isEmpty())
        layout->addWidget(paragraph(listOf(steps), QStringLiteral("changes")));

    Decision decision;
    auto *buttons = new QDialogButtonBox;
    const auto add = [&](const QString &text, QDialogButtonBox::ButtonRole role, const char *name) {
        QPushButton *button = buttons->addButton(text, role);
        button->setObjectName(QLatin1String(name));
        button->setAutoDefault(false);
        return button;
    };
    QPushButton *back = add(HostWords::tr("&Go Back"), QDialogButtonBox::RejectRole, "goBack");
    back->setDefault(steps.isEmpty());
    if (purpose == Purpose::Print)
        QObject::connect(
            add(HostWords::tr("Print &Anyway"), QDialogButtonBox::DestructiveRole, "printAnyway"),
            &QPushButton::clicked, window, &QDialog::accept);
    if (!steps.isEmpty()) {
        QPushButton *change = add(purpose == Purpose::Print ? HostWords::tr("&Change and Print")
                                                            : HostWords::tr("&Change"),
                                  QDialogButtonBox::AcceptRole, "change");
        change->setDefault(true);
        change->setFocus();
        QObject::connect(change, &QPushButton::clicked, window,
                         [&] { decision.changes = changes; });
    }
    QObject::connect(buttons, &QDialogButtonBox::accepted, window, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::reject);
    layout->addWidget(buttons);
    const bool accepted = window->exec() == QDialog::Accepted;
    decision.goesOn = accepted && window; // which may be gone with its parent
    delete window;
    return decision;
}

} // namespace host
