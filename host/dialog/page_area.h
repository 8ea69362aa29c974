#pragma once

#include <QEvent>
#include <QScrollArea>
#include <QScrollBar>

namespace host {

/// A page of the tabs, which scrolls up and down where the screen leaves it too little room.
class PageArea : public QScrollArea {
public:
    explicit PageArea(QWidget *page) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setWidget(page);
        setFocusPolicy(Qt::NoFocus);
    }
    QSize sizeHint() const override { return grown(widget()->sizeHint()); }
    QSize minimumSizeHint() const override {
        return {grown(widget()->minimumSizeHint()).width(), fontMetrics().height() * 12};
    }
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    QSize grown(QSize size) const {
        return size + QSize(verticalScrollBar()->sizeHint().width(), 0);
    }
};

} // namespace host
