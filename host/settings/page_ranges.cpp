#include "host/settings/page_ranges.h"

#include "host/words.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace host {
namespace {

constexpr int kOpenEnd = std::numeric_limits<int>::max();
constexpr qsizetype kMostRanges = 100; // all ranges of a job stand in one argument of its filters

struct Range {
    int from, to;
};

bool isComma(QChar c) {
    return c == u',' || c == u';' || c == u'\u060c' || c == u'\u3001' || c == u'\uff0c';
}

bool isDash(QChar c) {
    return c == u'-' || (c >= u'\u2010' && c <= u'\u2014') || c == u'\u2212';
}

class Reader {
public:
    Reader(const QString &text, int pageCount, bool areSides)
        : m_text(text), m_pageCount(pageCount), m_areSides(areSides) {}

    PageRanges read() {
        do
            readRange();
        while (m_found.problem.isNull() && takeIf(isComma));
        if (m_found.problem.isNull() && m_at < m_text.size())
            fail(m_at, HostWords::tr("“%1” can't stand there. Type pages like 1-3,5,9-.")
                           .arg(m_text[m_at]));
        if (m_found.problem.isNull())
            m_found.value = joined();
        return m_found;
    }

private:
    void fail(qsizetype at, const QString &problem) {
        if (!m_found.problem.isNull())
            return;
        m_found.at = int(at);
        m_found.problem = problem;
    }

    void skipBlanks() {
        while (m_at < m_text.size() && m_text[m_at].isSpace())
            ++m_at;
    }

    bool takeIf(bool (*accepts)(QChar)) {
        skipBlanks();
        const bool taken = m_at < m_text.size() && accepts(m_text[m_at]);
        m_at += taken ? 1 : 0;
        return taken;
    }

    /// @return a page, or 0 where no number stands
    int takePage() {
        skipBlanks();
        const qsizetype start = m_at;
        qint64 page = 0;
        for (; m_at < m_text.size() && m_text[m_at].digitValue() >= 0; ++m_at)
            page = qMin<qint64>(page * 10 + m_text[m_at].digitValue(), kOpenEnd);
        if (m_at == start)
            return 0;
        const QString typed = m_text.mid(start, m_at - start);
        if (page == 0)
            fail(start, HostWords::tr("“%1”: pages count from 1.").arg(typed));
        else if (m_pageCount > 0 && page > m_pageCount)
            fail(start, m_areSides
                            ? HostWords::tr("“%1”: with several pages on a side the sides are "
                                            "counted, and the last one is %2.")
                                  .arg(typed)
                                  .arg(m_pageCount)
                        : m_pageCount == 1
                            ? HostWords::tr("“%1”: the document has only one page.").arg(typed)
                            : HostWords::tr("“%1”: the document has only %2 pages.")
                                  .arg(typed)
                                  .arg(m_pageCount));
        else if (page == kOpenEnd)
            fail(start, HostWords::tr("“%1” is too great for a page.").arg(typed));
        return int(page);
    }

    void readRange() {
        skipBlanks();
        const qsizetype start = m_at;
        const int first = takePage();
        const bool hasDash = takeIf(isDash);
        const int last = hasDash ? takePage() : first;
        if (first == 0 && last == 0)
            return fail(m_at, missing());
        const Range range{qMax(first, 1), last == 0 ? kOpenEnd : last};
        if (range.to < range.from)
            fail(start,
                 HostWords::tr("“%1” ends before it begins.").arg(m_text.mid(start, m_at - start)));
        m_ranges.append(range);
        if (m_ranges.size() > kMostRanges)
            fail(start, HostWords::tr("These are more than %1 ranges.").arg(kMostRanges));
    }

    QString missing() const {
        if (m_text.trimmed().isEmpty())
            return HostWords::tr("Type the pages to print, such as 1-3,5,9-.");
        if (m_at < m_text.size() && !isComma(m_text[m_at]))
            return HostWords::tr("“%1” isn't a page. Type pages like 1-3,5,9-.").arg(m_text[m_at]);
        return m_at < m_text.size() ? HostWords::tr("A page is missing before a comma.")
                                    : HostWords::tr("A page is missing at the end.");
    }

    QString joined() {
        std::sort(m_ranges.begin(), m_ranges.end(),
                  [](const Range &a, const Range &b) { return a.from < b.from; });
        QList<Range> merged;
        for (const Range &range : std::as_const(m_ranges)) {
            if (!merged.isEmpty() && range.from - 1 <= merged.last().to)
                merged.last().to = qMax(merged.last().to, range.to);
            else
                merged.append(range);
        }
        QStringList texts;
        for (const Range &range : std::as_const(merged)) {
            QString text = QString::number(range.from);
            if (range.to != range.from)
                text += u'-' + (range.to == kOpenEnd ? QString() : QString::number(range.to));
            texts.append(text);
        }
        return texts.join(u',');
    }

    const QString &m_text;
    const int m_pageCount;
    bool m_areSides;
    qsizetype m_at = 0;
    QList<Range> m_ranges;
    PageRanges m_found;
};

} // namespace

PageRanges readPageRanges(const QString &text, int pageCount, bool areSides) {
    return Reader(text, pageCount, areSides).read();
}

} // namespace host
