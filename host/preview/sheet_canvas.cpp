#include "host/preview/sheet_canvas.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTextOption>
#include <QWheelEvent>

#include <cmath>

namespace host {
namespace {

constexpr int kMargin = 10;     // around the sheet
constexpr int kShadow = 4;      // its width
constexpr int kWheelStep = 120; // of a common mouse
constexpr int kSlowMs = 600;
/// Of all pages of a side together, so that the source can keep them.
constexpr double kMostPixels = PageSource::kMostBytes / 5.0;
constexpr QColor kInk(80, 80, 80); // of words on paper, which is white in each style

struct Key {
    int key;
    SheetCanvas::Step step;
};

/// Left and right are those of a text from left to right.
constexpr Key kKeys[] = {
    {Qt::Key_Left, SheetCanvas::Step::Previous},   {Qt::Key_Right, SheetCanvas::Step::Next},
    {Qt::Key_Up, SheetCanvas::Step::Previous},     {Qt::Key_Down, SheetCanvas::Step::Next},
    {Qt::Key_PageUp, SheetCanvas::Step::Previous}, {Qt::Key_PageDown, SheetCanvas::Step::Next},
    {Qt::Key_Home, SheetCanvas::Step::First},      {Qt::Key_End, SheetCanvas::Step::Last},
};

} // namespace

SheetCanvas::SheetCanvas(QWidget *parent) : QFrame(parent) {
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_slow.setSingleShot(true);
    m_slow.setInterval(kSlowMs);
    connect(&m_slow, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

void SheetCanvas::showSide(PageSource *source, const SheetSide &side, bool isGrey) {
    const auto pages = [](const std::optional<SheetSide> &of) {
        QList<int> found;
        for (const PlacedPage &page : of ? of->pages : QList<PlacedPage>())
            found.append(page.page);
        return found;
    };
    if (pages(m_side) != pages(side))
        m_slow.start();
    m_source = source;
    m_side = side;
    m_isGrey = isGrey;
    update();
}

void SheetCanvas::showWords(const QString &words) {
    m_side.reset();
    m_words = words;
    update();
}

QList<PageWish> SheetCanvas::wishes() const {
    QList<PageWish> wishes;
    if (m_side && !sheetRect().isEmpty())
        for (const PlacedPage &page : m_side->pages)
            wishes.append(wish(page));
    return wishes;
}

QSize SheetCanvas::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 52, fontMetrics().height() * 30};
}

QSize SheetCanvas::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 32, fontMetrics().height() * 17};
}

double SheetCanvas::scale() const {
    const QSizeF room = contentsRect().adjusted(kMargin, kMargin, -kMargin, -kMargin).size();
    return devicePixelRatioF() * qMax(0.0, qMin(room.width() / m_side->size.width(),
                                                room.height() / m_side->size.height()));
}

QRect SheetCanvas::sheetRect() const {
    const QSize size = (m_side->size * scale()).toSize();
    const QPointF centre = QRectF(contentsRect()).center() * devicePixelRatioF();
    return {QPoint(int(centre.x() - size.width() / 2.0), int(centre.y() - size.height() / 2.0)),
            size};
}

QRect SheetCanvas::onScreen(const QRectF &rect) const {
    const double factor = scale();
    const QPoint from(int(std::lround(rect.left() * factor)),
                      int(std::lround(rect.top() * factor)));
    const QPoint to(int(std::lround(rect.right() * factor)),
                    int(std::lround(rect.bottom() * factor)));
    return QRect(from, QSize(to.x() - from.x(), to.y() - from.y()))
        .translated(sheetRect().topLeft());
}

PageWish SheetCanvas::wish(const PlacedPage &page) const {
    QSizeF size = onScreen(page.place).size().expandedTo({1, 1});
    const double pixels = size.width() * size.height() * double(m_side->pages.size());
    if (pixels > kMostPixels)
        size *= std::sqrt(kMostPixels / pixels);
    return {page.page, size.toSize().expandedTo({1, 1}), page.rotation, m_isGrey};
}

void SheetCanvas::drawWords(QPainter &painter, const QRectF &area, const QString &words) const {
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter.drawText(area, words, option);
}

void SheetCanvas::drawPage(QPainter &painter, const PlacedPage &page) const {
    const QRect clip = onScreen(page.clip).intersected(sheetRect());
    painter.setClipRect(clip);
    const QImage picture = m_source ? m_source->picture(wish(page)) : QImage();
    const QString problem = m_source ? m_source->pageProblem(page.page) : QString();
    if (!picture.isNull() && problem.isNull())
        return painter.drawImage(onScreen(page.place), picture);
    if (problem.isNull() && m_slow.isActive())
        return;
    QFont words = font();
    words.setPixelSize(qMax(1, int(std::lround(fontInfo().pixelSize() * devicePixelRatioF()))));
    painter.setFont(words);
    painter.setPen(kInk);
    drawWords(painter, clip,
              problem.isNull() ? tr("Drawing page %1…").arg(page.page + 1) : problem);
}

void SheetCanvas::paintEvent(QPaintEvent *event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = contentsRect().adjusted(2, 2, -2, -2);
        focus.backgroundColor = palette().color(QPalette::Window);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
    if (!m_side) {
        painter.setPen(palette().color(QPalette::WindowText));
        return drawWords(painter, contentsRect().adjusted(kMargin, 0, -kMargin, 0), m_words);
    }
    // Pictures go to the screen's pixels as they are.
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect sheet = sheetRect();
    QColor shadow = palette().color(QPalette::Shadow);
    shadow.setAlpha(36);
    const int width = int(std::lround(kShadow * devicePixelRatioF()));
    for (int i = 1; i <= width; ++i)
        painter.fillRect(sheet.translated(i, i).intersected(rect().united(sheet)), shadow);
    painter.fillRect(sheet, Qt::white);
    for (const PlacedPage &page : m_side->pages)
        drawPage(painter, page);
    painter.setClipping(false);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(sheet.adjusted(0, 0, -1, -1));
}

void SheetCanvas::resizeEvent(QResizeEvent *event) {
    QFrame::resizeEvent(event);
    emit resized();
}

void SheetCanvas::changeEvent(QEvent *event) {
    QFrame::changeEvent(event);
    update();
}

bool SheetCanvas::event(QEvent *event) {
    // Moved to a screen of another scale.
    if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show)
        QTimer::singleShot(0, this, &SheetCanvas::resized);
    return QFrame::event(event);
}

void SheetCanvas::keyPressEvent(QKeyEvent *event) {
    int pressed = event->key();
    if (isRightToLeft() && (pressed == Qt::Key_Left || pressed == Qt::Key_Right))
        pressed = pressed == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier);
    for (const Key &key : kKeys)
        if (isPlain && key.key == pressed) {
            emit stepped(key.step);
            return event->accept();
        }
    QFrame::keyPressEvent(event);
}

void SheetCanvas::wheelEvent(QWheelEvent *event) {
    m_wheel += event->angleDelta().y();
    for (; m_wheel >= kWheelStep; m_wheel -= kWheelStep)
        emit stepped(Step::Previous);
    for (; m_wheel <= -kWheelStep; m_wheel += kWheelStep)
        emit stepped(Step::Next);
    event->accept();
}

} // namespace host
