#pragma once

#include "host/document.h"

#include <QCache>
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QSize>

#include <memory>

namespace host {

class PageWorker;

/// A picture of a page that somebody wants to look at.
struct PageWish {
    int page;     ///< from 0
    QSize pixels; ///< of the picture, once it is turned
    int rotation; ///< degrees clockwise: 0, 90, 180 or 270
    bool isGrey;

    bool operator==(const PageWish &) const = default;
};

/// The pages of a document, opened and drawn on another thread.
///
/// Lives on the interface's thread, and never waits for the other one: neither when it is asked for
/// a page nor when it is destroyed, which gives up what is under way. Tells opened() or failed()
/// once, later changed() with each size, picture or problem that it was asked for.
class PageSource : public QObject {
    Q_OBJECT

public:
    /// @param page  the size in points of PostScript pages that don't set their own
    explicit PageSource(const Document &document, QSizeF page, QObject *parent = nullptr);
    ~PageSource() override;

    /// 0 until it is opened.
    int pageCount() const { return m_pageCount; }
    /// Why the document can't be looked at, within a sentence; null otherwise.
    QString problem() const { return m_problem; }
    /// The greatest short side and the greatest long side of the pages that were looked through
    /// so far, the first ten thousand at most. In points.
    QSizeF largest() const { return m_largest; }

    /// What is wanted now, most urgent first. It replaces what was wanted before: pages that aren't
    /// among it are no longer drawn, even half-way. Nothing else is drawn.
    /// @param sizes     pages
    /// @param pictures  drawn as far as they aren't there; a page of more than 8 million pixels is
    ///                  drawn smaller
    void want(const QList<int> &sizes, const QList<PageWish> &pictures);

    /// @return whether a page's size is known
    bool hasSize(int page) const { return m_sizes.contains(page); }
    /// In points; null for a page whose size isn't known or can't be drawn.
    QSizeF size(int page) const { return m_sizes.value(page); }
    /// The picture, or one of another size as long as that isn't there; null without any.
    QImage picture(const PageWish &wish) const;
    /// @return whether the picture is there, or never will be
    bool isDone(const PageWish &wish) const;
    /// Why a page can't be drawn, a sentence; null otherwise.
    QString pageProblem(int page) const { return m_pageProblems.value(page); }

    /// Bytes of pictures that are kept.
    qint64 keptBytes() const { return m_pictures.totalCost(); }
    static constexpr qint64 kMostBytes = qint64(96) << 20;

signals:
    void opened(int pageCount);
    void failed();
    void changed();

private:
    friend class PageWorker;

    struct Kept {
        QSize wanted; ///< the wish's
        QImage image;
    };
    /// Page, rotation and colour.
    static qint64 key(const PageWish &wish);

    void takeOpened(int pageCount);
    void takeFailure(const QString &problem);
    void takeLargest(QSizeF largest);
    void takeSizes(const QHash<int, QSizeF> &sizes);
    void takePicture(const PageWish &wish, const QImage &image, const QString &problem);

    const std::shared_ptr<PageWorker> m_worker;
    int m_pageCount = 0;
    QString m_problem;
    QSizeF m_largest{0, 0};
    QHash<int, QSizeF> m_sizes;
    QHash<int, QString> m_pageProblems;
    QCache<qint64, Kept> m_pictures{kMostBytes};
};

} // namespace host
