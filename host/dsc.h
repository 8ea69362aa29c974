#pragma once

#include <QByteArray>
#include <QList>

namespace host {

/// Where the sections of a PostScript document begin and end, by its structuring comments
/// (Document Structuring Conventions 3.0). Places are offsets into the document; -1 is "no such
/// comment". Comments of embedded documents and bytes of binary data count for nothing.
struct DscMap {
    struct Page {
        qsizetype setupPlace; ///< where page setup code belongs
        bool hasSetup;        ///< whether that is within the page's own setup section
    };

    bool conforming = false;    ///< the document begins with "%!PS-Adobe-"
    qsizetype headerEnd = -1;   ///< behind the header comments
    qsizetype prologBegun = -1; ///< behind "%%BeginProlog"
    qsizetype prologEnd = -1;   ///< behind "%%EndProlog"
    qsizetype setupBegun = -1;  ///< behind "%%BeginSetup"
    qsizetype firstPage = -1;   ///< before the first "%%Page:"
    QList<Page> pages;
};

/// Reads the structure. Lines end in LF, CR LF or CR, also mixed.
DscMap mapDsc(const QByteArray &document);

} // namespace host
