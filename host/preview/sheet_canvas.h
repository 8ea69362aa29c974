#pragma once

#include "host/preview/page_source.h"
#include "host/preview/sheet_layout.h"

#include <QFrame>
#include <QPointer>
#include <QTimer>

#include <optional>

namespace host {

/// Draws one side of a sheet on its ground, as large as there is room, or words where there is
/// none. It takes the keyboard: keys and the wheel turn pages.
class SheetCanvas : public QFrame {
    Q_OBJECT

public:
    /// Where keys and the wheel lead to.
    enum class Step { First, Previous, Next, Last };

    explicit SheetCanvas(QWidget *parent = nullptr);

    /// @param source  of the pages' pictures; not owned
    void showSide(PageSource *source, const SheetSide &side, bool isGrey);
    void showWords(const QString &words);
    /// The pictures that the side needs at the canvas' size; none for words.
    QList<PageWish> wishes() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void stepped(host::SheetCanvas::Step step);
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    /// Pixels of the screen for a point of the sheet, and where the sheet is in them.
    double scale() const;
    QRect sheetRect() const;
    QRect onScreen(const QRectF &rect) const;
    PageWish wish(const PlacedPage &page) const;
    void drawWords(QPainter &painter, const QRectF &area, const QString &words) const;
    void drawPage(QPainter &painter, const PlacedPage &page) const;

    QPointer<PageSource> m_source;
    std::optional<SheetSide> m_side;
    bool m_isGrey = false;
    QString m_words;
    QTimer m_slow; ///< runs until a missing page is worth a word
    int m_wheel = 0;
};

} // namespace host
