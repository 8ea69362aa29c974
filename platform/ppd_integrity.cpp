#include "platform/ppd_integrity.h"

namespace {

/// What an Open statement opened and no Close statement has closed yet.
struct Open {
    QByteArray name;
    int line = 0;
};

/// The statements of PPD 4.3 that come in pairs. A subgroup stands within a group.
struct PairRow {
    const char *open, *close, *what;
};
constexpr PairRow kPairs[] = {
    {"*OpenUI", "*CloseUI", "the option"},
    {"*JCLOpenUI", "*JCLCloseUI", "the JCL option"},
    {"*OpenGroup", "*CloseGroup", "the group"},
    {"*OpenSubGroup", "*CloseSubGroup", "the subgroup"},
};
constexpr int kPairCount = std::size(kPairs);

/// One line at a time; `next` answers false at the end of the text.
class Lines {
public:
    explicit Lines(const QByteArray &text) : m_text(text) {}
    bool next(QByteArray &line) {
        if (m_at >= m_text.size())
            return false;
        qsizetype end = m_at;
        while (end < m_text.size() && m_text[end] != '\n' && m_text[end] != '\r')
            ++end;
        line = m_text.mid(m_at, end - m_at);
        if (end + 1 < m_text.size() && m_text[end] == '\r' && m_text[end + 1] == '\n')
            ++end;
        m_at = end + 1;
        ++m_number;
        return true;
    }
    int number() const { return m_number; }

private:
    const QByteArray &m_text;
    qsizetype m_at = 0;
    int m_number = 0;
};

bool isStatement(const QByteArray &line, const char *keyword) {
    const QByteArrayView name(keyword);
    return line.startsWith(name) && (line.size() == name.size() || line[name.size()] == ' ' ||
                                     line[name.size()] == ':' || line[name.size()] == '\t');
}

/// The name that an Open statement gives: "*OpenUI *Name/Text: Type", "*OpenGroup: Name/Text".
QByteArray openedName(const QByteArray &line, const char *keyword) {
    QByteArray rest = line.mid(qsizetype(qstrlen(keyword))).trimmed();
    if (rest.startsWith(':'))
        rest = rest.mid(1).trimmed();
    qsizetype end = 0;
    while (end < rest.size() && rest[end] != '/' && rest[end] != ':')
        ++end;
    return rest.left(end).trimmed();
}

} // namespace

std::optional<PpdFault> findTruncation(const QByteArray &text) {
    Open open[kPairCount];
    int quoteLine = 0; // where the quoted value began that isn't closed yet
    QByteArray line;
    Lines lines(text);
    while (lines.next(line)) {
        qsizetype from = 0;
        if (!quoteLine) {
            if (!line.startsWith('*') || line.startsWith("*%"))
                continue;
            for (int i = 0; i < kPairCount; ++i) {
                if (isStatement(line, kPairs[i].open))
                    open[i] = {openedName(line, kPairs[i].open), lines.number()};
                else if (isStatement(line, kPairs[i].close))
                    open[i] = {};
            }
            from = line.indexOf(':');
            if (from < 0)
                continue;
        }
        if (line.mid(from).count('"') % 2)
            quoteLine = quoteLine ? 0 : lines.number();
    }
    if (!text.isEmpty() && !text.endsWith('\n') && !text.endsWith('\r') && !text.endsWith('\x1a'))
        return PpdFault{lines.number(),
                        QStringLiteral("the last line has no end, the file is cut off")};
    if (quoteLine)
        return PpdFault{quoteLine, QStringLiteral("the quoted text that begins here isn't closed, "
                                                  "the file is cut off")};
    for (int i = 0; i < kPairCount; ++i)
        if (open[i].line)
            return PpdFault{open[i].line, QStringLiteral("%1 %2 isn't closed, the file is cut off")
                                              .arg(QString::fromLatin1(kPairs[i].what),
                                                   QString::fromUtf8(open[i].name))};
    return std::nullopt;
}
