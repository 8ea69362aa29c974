#include "platform/views/form_loader.h"

#include "platform/views/captioned.h"
#include "platform/views/text_view.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QHash>
#include <QKeySequence>
#include <QLabel>
#include <QSet>
#include <QStackedWidget>

#include <algorithm>

namespace views {

namespace {

constexpr QStringView kSpareLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";

struct Holder {
    Captioned *view;
    QString candidates; ///< the letters that may be marked, best first, in upper case
};

bool isLatinKey(QChar character) {
    return character.unicode() < 0x80 && isMnemonicLetter(character);
}

QString candidateLetters(const QString &title) {
    QString ranks[4]; // Latin at the begin of a word, other Latin, then the same of other scripts
    for (qsizetype i = 0; i < title.size(); ++i) {
        const QChar letter = title[i].toUpper();
        if (!isMnemonicLetter(letter))
            continue;
        const bool inside = i > 0 && title[i - 1].isLetterOrNumber();
        ranks[(isLatinKey(letter) ? 0 : 2) + (inside ? 1 : 0)] += letter;
    }
    QString candidates;
    for (const QString &rank : ranks)
        for (const QChar letter : rank)
            if (!candidates.contains(letter))
                candidates += letter;
    if (candidates.isEmpty() && !title.trimmed().isEmpty())
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            candidates += QLatin1Char(letter);
    return candidates;
}

/// The letter that a plain Qt widget has taken, in upper case; null for none.
QChar takenLetter(const QWidget *widget) {
    QString text;
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        text = button->text();
    else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
        text = group->title();
    else if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
        text = label->text();
    const QString sequence = QKeySequence::mnemonic(text).toString(QKeySequence::PortableText);
    return sequence.isEmpty() ? QChar() : sequence.back().toUpper();
}

/// Finds a letter for a holder, if need be by moving others to letters that are still free.
bool place(int holder, const QList<Holder> &holders, QHash<QChar, int> &owners,
           QSet<QChar> &visited) {
    for (const QChar letter : holders[holder].candidates)
        if (!owners.contains(letter)) {
            owners.insert(letter, holder);
            return true;
        }
    for (const QChar letter : holders[holder].candidates) {
        const int owner = owners.value(letter);
        if (owner < 0 || visited.contains(letter))
            continue;
        visited.insert(letter);
        if (place(owner, holders, owners, visited)) {
            owners.insert(letter, holder);
            return true;
        }
    }
    return false;
}

/// Whether two views stand on different pages of a stack, such as that of a row of tabs: they are
/// never seen together.
bool onDifferentPages(const QWidget *view, const QWidget *other) {
    for (const QWidget *page = view; page && page->parentWidget(); page = page->parentWidget())
        if (const auto *stack = qobject_cast<const QStackedWidget *>(page->parentWidget());
            stack && stack->isAncestorOf(other))
            return page != other && !page->isAncestorOf(other);
    return false;
}

QList<QWidget *> inTabOrder(QWidget *window) {
    QHash<const QWidget *, int> order;
    QWidget *widget = window;
    do {
        order.insert(widget, static_cast<int>(order.size()));
        widget = widget->nextInFocusChain();
    } while (widget && widget != window);
    QList<QWidget *> widgets;
    for (QWidget *child : window->findChildren<QWidget *>())
        if (child->window() == window)
            widgets += child;
    const auto key = [&order](const QWidget *child) {
        const auto *label = qobject_cast<const QLabel *>(child);
        return order.value(label && label->buddy() ? label->buddy() : child);
    };
    std::stable_sort(widgets.begin(), widgets.end(),
                     [&key](const QWidget *a, const QWidget *b) { return key(a) < key(b); });
    return widgets;
}

void assignInWindow(QWidget *window, const QWidget *root) {
    constexpr int kOther = -1; // owner of a letter that is not ours to move
    QList<Holder> holders;
    QHash<QChar, int> owners;
    for (QWidget *widget : inTabOrder(window)) {
        auto *view = dynamic_cast<Captioned *>(widget);
        const auto *label = qobject_cast<const TextView *>(widget);
        const bool ours = window != root->window() || widget == root || root->isAncestorOf(widget);
        if (view && ours) {
            view->setMnemonic(QChar());
            if (!label || label->buddy())
                holders += Holder{view, candidateLetters(view->caption())};
        } else if (const QChar letter = takenLetter(widget);
                   !letter.isNull() && !onDifferentPages(widget, root)) {
            owners.insert(letter, kOther);
        }
    }
    for (int i = 0; i < holders.size(); ++i) {
        QSet<QChar> visited;
        place(i, holders, owners, visited);
    }
    QList<bool> placed(holders.size(), false);
    for (auto owner = owners.cbegin(); owner != owners.cend(); ++owner)
        if (owner.value() != kOther) {
            holders[owner.value()].view->setMnemonic(owner.key());
            placed[owner.value()] = true;
        }
    for (int i = 0; i < holders.size(); ++i) {
        if (placed[i] || holders[i].candidates.isEmpty())
            continue;
        // The title's own letters have run out; without a free one there is none, since two views
        // of one letter would only pass the focus to and fro.
        const auto *const free =
            std::find_if(kSpareLetters.begin(), kSpareLetters.end(),
                         [&owners](QChar letter) { return !owners.contains(letter); });
        if (free == kSpareLetters.end())
            continue;
        owners.insert(*free, i);
        holders[i].view->setMnemonic(*free);
    }
}

} // namespace

void assignMnemonics(QWidget *root) {
    if (!root)
        return;
    QList<QWidget *> windows{root->window()};
    for (QWidget *view : root->findChildren<QWidget *>())
        if (view->isWindow())
            windows += view;
    for (QWidget *window : windows)
        assignInWindow(window, root);
}

} // namespace views
