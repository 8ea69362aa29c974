#include "host/preview/page_source.h"

#include "host/preview/page_worker.h"

namespace host {

PageSource::PageSource(const Document &document, QSizeF page, QObject *parent)
    : QObject(parent), m_worker(std::make_shared<PageWorker>(document, page, this)) {
    m_worker->begin();
}

PageSource::~PageSource() {
    m_worker->leave();
}

qint64 PageSource::key(const PageWish &wish) {
    return qint64(wish.page) * 8 + qint64(wish.rotation / 90) * 2 + (wish.isGrey ? 1 : 0);
}

void PageSource::want(const QList<int> &sizes, const QList<PageWish> &pictures) {
    QList<int> unknown;
    for (const int page : sizes)
        if (!hasSize(page))
            unknown.append(page);
    QList<PageWish> missing;
    for (const PageWish &wish : pictures)
        if (!isDone(wish))
            missing.append(wish);
    m_worker->want(unknown, missing);
}

QImage PageSource::picture(const PageWish &wish) const {
    const Kept *const kept = m_pictures.object(key(wish));
    return kept ? kept->image : QImage();
}

bool PageSource::isDone(const PageWish &wish) const {
    if (m_pageProblems.contains(wish.page))
        return true;
    const Kept *const kept = m_pictures.object(key(wish));
    return kept && kept->wanted == wish.pixels;
}

void PageSource::takeOpened(int pageCount) {
    m_pageCount = pageCount;
    emit opened(pageCount);
}

void PageSource::takeFailure(const QString &problem) {
    m_problem = problem;
    emit failed();
}

void PageSource::takeLargest(QSizeF largest) {
    m_largest = largest;
    emit changed();
}

void PageSource::takeSizes(const QHash<int, QSizeF> &sizes) {
    m_sizes.insert(sizes);
    emit changed();
}

void PageSource::takePicture(const PageWish &wish, const QImage &image, const QString &problem) {
    if (problem.isNull())
        m_pictures.insert(key(wish), new Kept{wish.pixels, image}, image.sizeInBytes());
    else
        m_pageProblems.insert(wish.page, problem);
    emit changed();
}

} // namespace host
