#pragma once

#include "host/preview/page_source.h"

#include <QDeadlineTimer>
#include <QIODevice>
#include <QMutex>

#include <atomic>
#include <functional>
#include <memory>

namespace Poppler {
class Document;
}

namespace host {

/// What a PageSource does on other threads. It outlives the source until its work is given up, and
/// the document is used by one thread at a time.
class PageWorker : public std::enable_shared_from_this<PageWorker> {
public:
    /// @param source  is told on its own thread, until leave()
    PageWorker(const Document &document, QSizeF page, PageSource *source);
    ~PageWorker();

    // On the source's thread.
    void begin();
    void want(const QList<int> &sizes, const QList<PageWish> &pictures);
    void leave();

private:
    void startIfIdle(); // with m_mutex locked
    void work();
    bool step();
    void tell(std::function<void(PageSource &)> news);

    void open();
    void measure(const QList<int> &pages);
    void survey();
    void draw(const PageWish &wish);
    QSizeF sizeOf(int page) const;

    std::atomic<bool> m_isLeft = false;
    std::atomic<bool> m_isStale = false; ///< what is being drawn is no longer wanted

    QMutex m_mutex; // guards what follows
    PageSource *m_source;
    bool m_isWorking = false;
    QList<int> m_sizes;
    QList<PageWish> m_wishes;
    PageWish m_drawn{-1, {}, 0, false};
    QList<PageWish> m_told; ///< pictures on their way to the source

    // Of the thread that works.
    Document m_content;
    const QSizeF m_page;
    bool m_isOpened = false;             ///< or failed
    std::unique_ptr<QIODevice> m_device; ///< outlives the document
    std::unique_ptr<Poppler::Document> m_document;
    int m_pageCount = 0;
    int m_surveyed = 0;
    QSizeF m_largest{0, 0};
};

} // namespace host
