#include "host/dsc.h"

namespace host {
namespace {

/// A document's lines, with data that isn't lines passed over.
class Reader : public ContentLines {
public:
    explicit Reader(const Content &document) : ContentLines(document), m_document(document) {}

    bool is(QByteArrayView comment) const { return line().startsWith(comment); }

    /// Passes over data that the line just read announces. A length that doesn't lead to the end
    /// comment is wrong, and the end comment is sought instead; without one, nothing is passed
    /// over.
    void skipData(QByteArrayView endComment) {
        const qint64 from = end();
        if (m_absent.contains(endComment.toByteArray()))
            return; // sought before, from a place in front of this one
        const QList<QByteArray> words = line().mid(line().indexOf(':') + 1).simplified().split(' ');
        bool valid = false;
        const qlonglong count = words.value(0).toLongLong(&valid);
        if (valid && count >= 0 && count <= m_document.size() - from) {
            if (words.value(2).toLower() == "lines")
                for (qlonglong i = 0; i < count && next(); ++i) {
                }
            else
                goTo(from + count);
            if (m_document.startsWith(endComment, end()) ||
                m_document.startsWith(endComment, behindLineEnd(end())))
                return;
        }
        goTo(from);
        for (qint64 at = from; (at = m_document.indexOf(endComment, at)) >= 0; ++at) {
            const QByteArray before = at > 0 ? m_document.read(at - 1, 1) : QByteArray();
            if (before == "\n" || before == "\r")
                return goTo(at);
        }
        m_absent.append(endComment.toByteArray());
    }

private:
    const Content &m_document;
    QList<QByteArray> m_absent; ///< end comments that the rest of the text lacks
};

/// DSC 3.0, "header comments": the header ends at a line that doesn't begin with "%" and a
/// printable character.
bool endsHeader(QByteArrayView line) {
    return line.size() < 2 || line[0] != '%' || line[1] <= ' ' || line[1] > '~';
}

void place(qint64 &field, qint64 at) {
    if (field < 0)
        field = at;
}

} // namespace

DscMap mapDsc(const Content &document) {
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
