#include "check/ppd_lines.h"

#include <QList>

namespace check {
namespace {

bool isConstraint(const QByteArray &keyword) {
    return keyword == "*UIConstraints" || keyword == "*NonUIConstraints";
}

} // namespace

PpdLines::PpdLines(const QByteArray &text) {
    QByteArray lines = text;
    lines.replace("\r\n", "\n").replace('\r', '\n');
    int number = 0;
    for (const QByteArray &line : lines.split('\n')) {
        ++number;
        if (!line.startsWith('*') || line.startsWith("*%"))
            continue;
        const qsizetype colon = line.indexOf(':');
        const QByteArray head = (colon < 0 ? line : line.left(colon)).simplified();
        const QByteArray keyword =
            head.left(head.indexOf(' ') < 0 ? head.size() : head.indexOf(' '));
        // "*Option choice/Text" and "*OpenUI *Option/Text" without the text
        const QByteArray named = head.left(head.indexOf('/') < 0 ? head.size() : head.indexOf('/'));
        for (const QByteArray &name : {named, colon < 0 ? QByteArray() : keyword + ':'})
            if (!name.isEmpty() && !m_first.contains(name))
                m_first.insert(name, number);
        if (colon < 0 || !isConstraint(keyword))
            continue;
        Constraint constraint{number, {}, {}, {}, {}};
        QByteArray *const parts[] = {&constraint.option1, &constraint.choice1, &constraint.option2,
                                     &constraint.choice2};
        int at = -1;
        for (const QByteArray &word :
             line.mid(colon + 1).replace('"', ' ').simplified().split(' ')) {
            at = word.startsWith('*') ? (at < 0 ? 0 : 2) : at + 1;
            if (at >= 0 && at < 4)
                *parts[at] = word.startsWith('*') ? word.mid(1) : word;
        }
        m_constraints.append(constraint);
    }
}

int PpdLines::ofOption(const QByteArray &option) const {
    for (const char *keyword : {"*OpenUI *", "*JCLOpenUI *"})
        if (const int line = m_first.value(keyword + option); line > 0)
            return line;
    return 0;
}

int PpdLines::ofChoice(const QByteArray &option, const QByteArray &choice) const {
    const int line = m_first.value('*' + option + ' ' + choice);
    return line > 0 ? line : ofOption(option);
}

int PpdLines::ofAttribute(const QByteArray &name) const {
    return m_first.value('*' + name + ':');
}

} // namespace check
