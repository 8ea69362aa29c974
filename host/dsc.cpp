#include "host/dsc.h"

namespace host {
namespace {

/// Goes through a document line by line.
class Reader {
public:
    explicit Reader(const QByteArray &text) : m_text(text) {}

    bool next() {
        m_start = m_end;
        if (m_start >= m_text.size())
            return false;
        qsizetype at = m_start;
        while (at < m_text.size() && m_text[at] != '\n' && m_text[at] != '\r')
            ++at;
        m_line = QByteArrayView(m_text).sliced(m_start, at - m_start);
        m_end = behindLineEnd(at);
        return true;
    }
    QByteArrayView line() const { return m_line; }
    qsizetype start() const { return m_start; }
    qsizetype end() const { return m_end; } ///< behind the line's end
    bool is(QByteArrayView comment) const { return m_line.startsWith(comment); }

    /// Passes over data that the line just read announces. A length that doesn't lead to the end
    /// comment is wrong, and the end comment is sought instead; without one, nothing is passed
    /// over.
    void skipData(QByteArrayView endComment) {
        const qsizetype from = m_end;
        if (m_absent.contains(endComment.toByteArray()))
            return; // sought before, from a place in front of this one
        const QList<QByteArray> words =
            m_line.sliced(m_line.indexOf(':') + 1).toByteArray().simplified().split(' ');
        bool valid = false;
        const qlonglong count = words.value(0).toLongLong(&valid);
        if (valid && count >= 0 && count <= m_text.size() - from) {
            if (words.value(2).toLower() == "lines")
                for (qlonglong i = 0; i < count && next(); ++i) {
                }
            else
                m_end = from + count;
            const qsizetype behind = m_end;
            if (startsAt(behind, endComment) || startsAt(behindLineEnd(behind), endComment))
                return;
        }
        m_end = from;
        for (qsizetype at = from; (at = m_text.indexOf(endComment, at)) >= 0; ++at)
            if (at > 0 && (m_text[at - 1] == '\n' || m_text[at - 1] == '\r')) {
                m_end = at;
                return;
            }
        m_absent.append(endComment.toByteArray());
    }

private:
    bool startsAt(qsizetype at, QByteArrayView text) const {
        return at <= m_text.size() && QByteArrayView(m_text).sliced(at).startsWith(text);
    }
    qsizetype behindLineEnd(qsizetype at) const {
        if (at < m_text.size() && m_text[at] == '\r')
            return at + (at + 1 < m_text.size() && m_text[at + 1] == '\n' ? 2 : 1);
        return at < m_text.size() && m_text[at] == '\n' ? at + 1 : at;
    }

    const QByteArray &m_text;
    QByteArrayView m_line;
    qsizetype m_start = 0, m_end = 0;
    QList<QByteArray> m_absent; ///< end comments that the rest of the text lacks
};

/// DSC 3.0, "header comments": the header ends at a line that doesn't begin with "%" and a
/// printable character.
bool endsHeader(QByteArrayView line) {
    return line.size() < 2 || line[0] != '%' || line[1] <= ' ' || line[1] > '~';
}

void place(qsizetype &field, qsizetype at) {
    if (field < 0)
        field = at;
}

} // namespace

DscMap mapDsc(const QByteArray &document) {
    DscMap map;
    map.conforming = document.startsWith("%!PS-Adobe-");
    int nested = 0;
    bool pageComments = false; // behind "%%Page:", among the comments that belong to it
    Reader reader(document);
    while (reader.next()) {
        if (map.headerEnd < 0 && endsHeader(reader.line()))
            map.headerEnd = reader.start();
        if (pageComments) {
            if (reader.is("%%Page") || reader.is("%%+"))
                map.pages.last().setupPlace = reader.end();
            else
                pageComments = false;
        }
        if (!reader.is("%%"))
            continue;
        if (reader.is("%%BeginBinary:")) {
            reader.skipData("%%EndBinary");
        } else if (reader.is("%%BeginData:")) {
            reader.skipData("%%EndData");
        } else if (reader.is("%%BeginDocument")) {
            place(map.headerEnd, reader.start());
            ++nested;
        } else if (reader.is("%%EndDocument")) {
            nested = qMax(0, nested - 1);
        } else if (nested > 0) {
            continue;
        } else if (reader.is("%%EndComments")) {
            place(map.headerEnd, reader.end());
        } else if (reader.is("%%BeginProlog")) {
            place(map.headerEnd, reader.start());
            place(map.prologBegun, reader.end());
        } else if (reader.is("%%EndProlog")) {
            place(map.headerEnd, reader.start());
            place(map.prologEnd, reader.end());
        } else if (reader.is("%%BeginSetup")) {
            place(map.headerEnd, reader.start());
            if (map.firstPage < 0)
                place(map.setupBegun, reader.end());
        } else if (reader.is("%%Page:")) {
            place(map.headerEnd, reader.start());
            place(map.firstPage, reader.start());
            map.pages.append({reader.end(), false});
            pageComments = true;
        } else if (reader.is("%%BeginPageSetup") && !map.pages.isEmpty() &&
                   !map.pages.last().hasSetup) {
            map.pages.last() = {reader.end(), true};
        }
    }
    place(map.headerEnd, document.size());
    return map;
}

} // namespace host
