#pragma once

#include "host/content.h"

#include <QList>

namespace host {

/// Where the sections of a PostScript document begin and end, by its structuring comments
/// (Document Structuring Conventions 3.0). Places are offsets into the document; -1 is "no such
/// comment". Comments of embedded documents and bytes of binary data count for nothing.
struct DscMap {
    struct Page {
        qint64 setupPlace; ///< where page setup code belongs
        bool hasSetup;     ///< whether that is within the page's own setup section
    };

    bool conforming = false; ///< the document begins with "%!PS-Adobe-"
    qint64 headerEnd = -1;   ///< behind the header comments
    qint64 prologBegun = -1; ///< behind "%%BeginProlog"
    qint64 prologEnd = -1;   ///< behind "%%EndProlog"
    qint64 setupBegun = -1;  ///< behind "%%BeginSetup"
    qint64 firstPage = -1;   ///< before the first "%%Page:"
    QList<Page> pages;
};

/// Reads the structure. Lines end in LF, CR LF or CR, also mixed. @throw HostError as
/// Content::read()
DscMap mapDsc(const Content &document);

} // namespace host
