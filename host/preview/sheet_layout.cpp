#include "host/preview/sheet_layout.h"

#include "host/settings/page_ranges.h"

#include <QStringList>

#include <utility>

namespace host {
namespace {

constexpr QSizeF kA4(595, 842);
constexpr double kLongestPaper = 1e5; // points, 35 m
constexpr double kTolerance = 1.02;   // a page that is larger by less isn't scaled down

struct Grid {
    int numberUp, columns, rows;
    bool isLandscape; ///< of a portrait sheet
};

constexpr Grid kGrids[] = {
    {1, 1, 1, false},  {2, 2, 1, true},  {3, 3, 1, true},   {4, 2, 2, false},
    {6, 3, 2, true},   {8, 4, 2, true},  {9, 3, 3, false},  {10, 5, 2, true},
    {12, 3, 4, false}, {15, 5, 3, true}, {16, 4, 4, false},
};

/// By IPP's orientation from 3: portrait, landscape, reverse landscape, reverse portrait.
constexpr int kTurns[] = {0, 270, 90, 180};

bool isUsable(QSizeF size) {
    return size.width() >= 1 && size.height() >= 1 && size.width() <= kLongestPaper &&
           size.height() <= kLongestPaper; // false for NaN
}

bool isSideways(int degrees) {
    return degrees % 180 != 0;
}

/// A rectangle of a sheet, once the sheet is turned clockwise.
QRectF turned(const QRectF &rect, QSizeF sheet, int degrees) {
    switch (degrees) {
    case 90:
        return {sheet.height() - rect.bottom(), rect.left(), rect.height(), rect.width()};
    case 180:
        return {sheet.width() - rect.right(), sheet.height() - rect.bottom(), rect.width(),
                rect.height()};
    case 270:
        return {rect.top(), sheet.width() - rect.right(), rect.height(), rect.width()};
    default:
        return rect;
    }
}

PlacedPage turned(const PlacedPage &page, QSizeF sheet, int degrees) {
    return {page.page, turned(page.place, sheet, degrees), turned(page.clip, sheet, degrees),
            (page.rotation + degrees) % 360};
}

QRectF centred(QSizeF size, const QRectF &in) {
    QRectF rect(QPointF(), size);
    rect.moveCenter(in.center());
    return rect;
}

} // namespace

SheetLayout::SheetLayout(const SheetOptions &options, int pageCount, QSizeF largest)
    : m_options(options), m_pageCount(qMax(pageCount, 0)),
      m_isTwoSided(options.sides.startsWith(QLatin1String("two-sided"))) {
    QSizeF &paper = m_options.paper;
    if (!isUsable(paper))
        paper = kA4;
    QRectF &imageable = m_options.imageable;
    imageable = imageable.intersected(QRectF(QPointF(), paper));
    if (!isUsable(imageable.size()))
        imageable = QRectF(QPointF(), paper);

    const double shortSide = qMin(paper.width(), paper.height()) * kTolerance;
    const double longSide = qMax(paper.width(), paper.height()) * kTolerance;
    const bool isLarge = largest.width() > shortSide || largest.height() > longSide;
    m_scaling = !isLarge ? Scaling::None : imageable.size() == paper ? Scaling::Fill : Scaling::Fit;
    if (!isLarge)
        imageable = QRectF(QPointF(), paper);

    const Grid *grid = kGrids;
    for (const Grid &each : kGrids)
        if (each.numberUp == options.numberUp)
            grid = &each;
    m_perSide = grid->columns * grid->rows;
    m_columns = grid->columns;
    m_rows = grid->rows;
    if (paper.width() > paper.height())
        std::swap(m_columns, m_rows);
    bool isLandscape = grid->isLandscape;
    m_turn =
        options.orientation >= 3 && options.orientation <= 6 ? kTurns[options.orientation - 3] : 0;
    m_landscapePages = (paper.width() > paper.height()) != isSideways(m_turn);
    if (isSideways(m_turn)) {
        std::swap(m_columns, m_rows);
        isLandscape = !isLandscape;
        m_turn -= 90;
    }
    m_frame = paper;
    m_area = imageable;
    if (isLandscape) {
        m_turn += 90;
        m_frame.transpose();
        m_area = {imageable.top(), paper.width() - imageable.right(), imageable.height(),
                  imageable.width()};
    }
    m_turn %= 360;

    const int outputs = (m_pageCount + m_perSide - 1) / m_perSide;
    const QString ranges = readPageRanges(options.pageRanges).value;
    for (const QString &range :
         ranges.isNull() ? QStringList{QStringLiteral("1-")} : ranges.split(u',')) {
        const bool isOpen = range.endsWith(u'-');
        const int from = range.section(u'-', 0, 0).toInt();
        const int to = isOpen ? outputs : qMin(range.section(u'-', -1).toInt(), outputs);
        if (from > to)
            continue;
        m_ranges.append({from - 1, to - 1});
        m_sideCount += to - from + 1;
    }
}

QList<int> SheetLayout::pagesOn(int side) const {
    QList<int> pages;
    for (const Range &range : m_ranges) {
        const int length = range.to - range.from + 1;
        if (side < length) {
            const int first = (range.from + side) * m_perSide;
            for (int i = first; side >= 0 && i < m_pageCount && i - first < m_perSide; ++i)
                pages.append(i);
            break;
        }
        side -= length;
    }
    return pages;
}

int SheetLayout::sideOf(int page) const {
    const int wanted = page / m_perSide;
    int before = 0;
    for (const Range &range : m_ranges) {
        if (wanted <= range.to)
            return before + qMax(wanted - range.from, 0);
        before += range.to - range.from + 1;
    }
    return qMax(before - 1, 0);
}

QList<int> SheetLayout::pagesFor(int side) const {
    QList<int> pages = pagesOn(side);
    if (isBack(side))
        pages.append(pagesOn(side - 1).value(0));
    return pages;
}

PlacedPage SheetLayout::placed(int page, int cell, QSizeF size) const {
    const QSizeF space(m_area.width() / m_columns, m_area.height() / m_rows);
    const int row = cell / m_columns;
    const QRectF room(QPointF(m_area.left() + cell % m_columns * space.width(),
                              m_area.top() + row * space.height()),
                      space);
    QSizeF sheet = m_options.paper; // as the pages lie, before they are put into cells
    if ((sheet.width() > sheet.height()) != m_landscapePages)
        sheet.transpose();
    if (!isUsable(size))
        size = sheet;
    const bool isTurned = (size.width() > size.height()) != m_landscapePages;
    if (isTurned)
        size.transpose();

    QSizeF part = size; // what fills the cell
    if (m_scaling == Scaling::None)
        part = sheet;
    else if (m_scaling == Scaling::Fill)
        part = sheet.scaled(size, Qt::KeepAspectRatio);
    const double scale = qMin(room.width() / part.width(), room.height() / part.height());
    const QRectF clip = centred(part * scale, room);
    return {page, centred(size * scale, clip), clip, isTurned ? 90 : 0};
}

SheetSide SheetLayout::asPrinted(int side, const SizeOf &sizeOf) const {
    SheetSide printed{m_options.paper, {}};
    const QList<int> pages = pagesOn(side);
    for (int cell = 0; cell < pages.size(); ++cell)
        printed.pages.append(
            turned(placed(pages[cell], cell, sizeOf(pages[cell])), m_frame, m_turn));
    return printed;
}

SheetSide SheetLayout::asSeen(int side, const SizeOf &sizeOf) const {
    const SheetSide printed = asPrinted(side, sizeOf);
    const SheetSide front = isBack(side) ? asPrinted(side - 1, sizeOf) : printed;
    if (printed.pages.isEmpty())
        return printed;
    int turn = (360 - front.pages[0].rotation) % 360;
    if (turn == 180 && m_options.orientation != 0)
        turn = 0;
    if (isBack(side)) {
        // Printed back and front are the same way up if the sheet is turned over at the edge.
        const bool edgeIsVertical = (m_options.paper.width() > m_options.paper.height()) ==
                                    (m_options.sides == QLatin1String("two-sided-short-edge"));
        if (edgeIsVertical == isSideways(turn))
            turn = (turn + 180) % 360;
    }
    SheetSide seen{isSideways(turn) ? printed.size.transposed() : printed.size, {}};
    for (const PlacedPage &page : printed.pages)
        seen.pages.append(turned(page, printed.size, turn));
    return seen;
}

} // namespace host
