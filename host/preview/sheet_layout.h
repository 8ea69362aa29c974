#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <functional>

namespace host {

/// How a document's pages are to lie on paper. Lengths are in points.
struct SheetOptions {
    QSizeF paper;         ///< upright as it is fed; A4 where it is empty
    QRectF imageable;     ///< from the paper's upper left corner down; the whole paper where empty
    int orientation = 0;  ///< IPP's orientation-requested, 3 to 6; 0 for the document's own
    int numberUp = 1;     ///< 1, 2, 3, 4, 6, 8, 9, 10, 12, 15 or 16; 1 for any other
    QString pageRanges{}; ///< as CUPS takes them, "1-3,5,9-"; null for all
    QString sides{};      ///< "two-sided-long-edge" or "two-sided-short-edge"; else one-sided
    bool grey = false;    ///< the pages are shown without colour

    bool operator==(const SheetOptions &) const = default;
};

/// A document's page on a side of a sheet.
struct PlacedPage {
    int page;     ///< from 0
    QRectF place; ///< where the whole page lies
    QRectF clip;  ///< what is left of it
    int rotation; ///< degrees that it is turned clockwise: 0, 90, 180 or 270
};

/// One side of a sheet.
struct SheetSide {
    QSizeF size;
    QList<PlacedPage> pages;
};

/// Which page of a document lies where, laid out as CUPS' pdftopdf does it: rows from the left and
/// the top ("lrtb"), each page turned to the sheet's orientation, and scaled down to the imageable
/// area only if one of the document's pages is larger than the paper. With several pages on a sheet
/// the page ranges choose sides, not pages.
class SheetLayout {
public:
    /// A page's size as it is looked at; an empty one is taken for the paper's.
    using SizeOf = std::function<QSizeF(int page)>;

    /// @param pageCount  of the document
    /// @param largest    the greatest short side and the greatest long side of its pages
    SheetLayout(const SheetOptions &options, int pageCount, QSizeF largest);

    /// The paper that is used, as it is fed.
    QSizeF paper() const { return m_options.paper; }
    bool isTwoSided() const { return m_isTwoSided; }
    /// Sides that are printed; 0 if no page is in the ranges.
    int sideCount() const { return m_sideCount; }
    int sheetCount() const { return m_isTwoSided ? (m_sideCount + 1) / 2 : m_sideCount; }
    int sheetOf(int side) const { return m_isTwoSided ? side / 2 : side; }
    bool isBack(int side) const { return m_isTwoSided && side % 2 == 1; }
    /// The document's pages on a side, ascending.
    QList<int> pagesOn(int side) const;
    /// The side with a page, or the one behind it that is printed; the last one behind all.
    int sideOf(int page) const;
    /// The pages whose sizes asSeen() looks at.
    QList<int> pagesFor(int side) const;

    /// A side as the printer gets it, on the paper as it is fed.
    SheetSide asPrinted(int side, const SizeOf &sizeOf) const;
    /// A side as somebody looks at it: the sheet turned so that the first page of its front can be
    /// read, and for its back turned over as a page of a book. An orientation that was asked for
    /// shows: pages that it puts upside down stay so.
    SheetSide asSeen(int side, const SizeOf &sizeOf) const;

private:
    enum class Scaling { None, Fit, Fill };
    struct Range {
        int from, to; ///< of sides before the choice, from 0, with both ends
    };

    PlacedPage placed(int page, int cell, QSizeF size) const;

    SheetOptions m_options;
    int m_pageCount;
    int m_perSide;
    bool m_isTwoSided;
    Scaling m_scaling;
    QList<Range> m_ranges;
    int m_sideCount = 0;

    // The frame: the sheet as pages are laid on it, before it is turned to the paper.
    QSizeF m_frame;
    QRectF m_area; ///< what the cells share
    int m_columns;
    int m_rows;
    int m_turn;            ///< of the frame to the paper, degrees clockwise
    bool m_landscapePages; ///< the others are turned
};

} // namespace host
