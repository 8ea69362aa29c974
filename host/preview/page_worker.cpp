#include "host/preview/page_worker.h"

#include "host/host_error.h"
#include "host/words.h"

#include <QThreadPool>

#include <poppler-qt6.h>

#include <algorithm>
#include <cmath>
#include <new>

namespace host {
namespace {

constexpr int kMostThreads = 4; // some may be busy with what nobody wants any more
constexpr int kPageMs = 20 * 1000;
constexpr int kMostPages = 1'000'000;
constexpr int kSurveyStep = 100;      // pages between two looks at what is wanted
constexpr int kMostSurveyed = 10'000; // each page that was looked at stays in memory
constexpr double kLongestSide = 1e5;  // points
constexpr int kMostPixels = 8 << 20;
constexpr int kLongestPixels = 16384;

/// Ends after all that wait for it, at the end of the program.
QThreadPool &threads() {
    static QThreadPool pool;
    pool.setMaxThreadCount(kMostThreads);
    return pool;
}

/// Damaged documents would fill the error output.
void silencePoppler() {
    static const bool done = [] {
        Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
        return true;
    }();
    Q_UNUSED(done)
}

struct Limits {
    const std::atomic<bool> *isLeft, *isStale;
    QDeadlineTimer deadline;

    bool areReached() const { return *isLeft || *isStale || deadline.hasExpired(); }
};

QSize drawnSize(QSize wanted) {
    QSizeF size = wanted.expandedTo({1, 1});
    const double pixels = size.width() * size.height();
    if (pixels > kMostPixels)
        size *= std::sqrt(kMostPixels / pixels);
    return size.toSize().expandedTo({1, 1}).boundedTo({kLongestPixels, kLongestPixels});
}

/// A content as poppler reads it.
class ContentDevice : public QIODevice {
public:
    explicit ContentDevice(Content content) : m_content(std::move(content)) {}
    qint64 size() const override { return m_content.size(); }

protected:
    qint64 readData(char *data, qint64 most) override {
        try {
            const QByteArray bytes = m_content.read(pos(), most);
            std::copy(bytes.begin(), bytes.end(), data);
            return bytes.size();
        } catch (const HostError &error) {
            setErrorString(error.text());
            return -1; // the page is damaged then
        }
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const Content m_content;
};

/// As PostScript turns RGB to grey (PostScript Language Reference, 7.2.1).
QImage inGrey(const QImage &picture) {
    const QImage from = picture.convertToFormat(QImage::Format_RGB32);
    QImage to(from.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < to.height(); ++y) {
        const auto *const colours = reinterpret_cast<const QRgb *>(from.constScanLine(y));
        uchar *const greys = to.scanLine(y);
        for (int x = 0; x < to.width(); ++x)
            greys[x] = uchar(
                (30 * qRed(colours[x]) + 59 * qGreen(colours[x]) + 11 * qBlue(colours[x])) / 100);
    }
    return to;
}

} // namespace

PageWorker::PageWorker(const Document &document, QSizeF page, PageSource *source)
    : m_source(source), m_content(document), m_page(page) {}

PageWorker::~PageWorker() = default;

void PageWorker::begin() {
    silencePoppler();
    const QMutexLocker lock(&m_mutex);
    startIfIdle();
}

void PageWorker::want(const QList<int> &sizes, const QList<PageWish> &pictures) {
    const QMutexLocker lock(&m_mutex);
    m_sizes = sizes;
    m_wishes = pictures;
    m_isStale = m_wishes.removeAll(m_drawn) == 0;
    for (const PageWish &wish : std::as_const(m_told))
        m_wishes.removeAll(wish);
    startIfIdle();
}

void PageWorker::leave() {
    m_isLeft = true;
    const QMutexLocker lock(&m_mutex);
    m_source = nullptr;
    startIfIdle(); // the document is closed there
}

void PageWorker::startIfIdle() {
    if (std::exchange(m_isWorking, true))
        return;
    threads().start([self = shared_from_this()] { self->work(); });
}

void PageWorker::work() {
    while (step())
        ;
    if (m_isLeft) {
        m_document.reset();
        m_device.reset();
    }
}

bool PageWorker::step() {
    QList<int> sizes;
    PageWish wish{-1, {}, 0, false};
    {
        const QMutexLocker lock(&m_mutex);
        m_drawn = wish;
        if (m_isLeft)
            return false; // for good: it isn't started again
        if (m_document) {
            sizes = std::exchange(m_sizes, {});
            if (sizes.isEmpty() && !m_wishes.isEmpty())
                m_drawn = wish = m_wishes.takeFirst();
        }
        m_isStale = false;
        const bool isSurveyed = m_surveyed >= qMin(m_pageCount, kMostSurveyed);
        if (m_isOpened && sizes.isEmpty() && wish.page < 0 && isSurveyed) {
            m_isWorking = false;
            return false;
        }
    }
    if (!m_isOpened)
        open();
    else if (!sizes.isEmpty())
        measure(sizes);
    else if (wish.page >= 0)
        draw(wish);
    else
        survey();
    return true;
}

void PageWorker::tell(std::function<void(PageSource &)> news) {
    const QMutexLocker lock(&m_mutex);
    if (m_source)
        QMetaObject::invokeMethod(
            m_source, [source = m_source, news = std::move(news)] { news(*source); },
            Qt::QueuedConnection);
}

void PageWorker::open() {
    m_isOpened = true;
    QString problem;
    try {
        m_device = std::make_unique<ContentDevice>(toPdf(m_content, m_page, &m_isLeft));
        m_content.content = {};
        m_device->open(QIODevice::ReadOnly);
        m_document = Poppler::Document::load(m_device.get());
        if (!m_document)
            problem = HostWords::tr("the document is damaged.");
        else if (m_document->isLocked())
            problem = HostWords::tr("the document is protected by a password.");
        else if (m_document->numPages() <= 0)
            problem = HostWords::tr("the document has no pages.");
    } catch (const HostError &error) {
        problem = error.text();
    } catch (const std::bad_alloc &) {
        problem = HostWords::tr("the document is too large.");
    }
    if (!problem.isNull()) {
        m_document.reset();
        return tell([problem](PageSource &source) { source.takeFailure(problem); });
    }
    m_document->setRenderHint(Poppler::Document::Antialiasing);
    m_document->setRenderHint(Poppler::Document::TextAntialiasing);
    m_pageCount = qMin(m_document->numPages(), kMostPages);
    tell([count = m_pageCount](PageSource &source) { source.takeOpened(count); });
}

QSizeF PageWorker::sizeOf(int page) const {
    const std::unique_ptr<Poppler::Page> found = m_document->page(page);
    const QSizeF size = found ? found->pageSizeF() : QSizeF();
    const bool isUsable = size.width() >= 1 && size.width() <= kLongestSide && size.height() >= 1 &&
                          size.height() <= kLongestSide;
    return isUsable ? size : QSizeF();
}

void PageWorker::measure(const QList<int> &pages) {
    QHash<int, QSizeF> sizes;
    for (const int page : pages)
        sizes.insert(page, page >= 0 && page < m_pageCount ? sizeOf(page) : QSizeF());
    tell([sizes](PageSource &source) { source.takeSizes(sizes); });
}

void PageWorker::survey() {
    const QSizeF before = m_largest;
    const int end = std::min({m_surveyed + kSurveyStep, m_pageCount, kMostSurveyed});
    for (; m_surveyed < end && !m_isLeft; ++m_surveyed) {
        const QSizeF size = sizeOf(m_surveyed);
        if (size.isValid())
            m_largest = m_largest.expandedTo(
                {qMin(size.width(), size.height()), qMax(size.width(), size.height())});
    }
    if (m_largest != before)
        tell([largest = m_largest](PageSource &source) { source.takeLargest(largest); });
}

void PageWorker::draw(const PageWish &wish) {
    QString problem;
    QImage image;
    Limits limits{&m_isLeft, &m_isStale, QDeadlineTimer(kPageMs)};
    try {
        QSizeF size = sizeOf(wish.page);
        const std::unique_ptr<Poppler::Page> page = m_document->page(wish.page);
        if (!page) {
            problem = HostWords::tr("Page %1 is damaged.");
        } else if (!size.isValid()) {
            problem = HostWords::tr("Page %1 has a size that can't be drawn.");
        } else {
            if (wish.rotation % 180 != 0)
                size.transpose();
            const QSize pixels = drawnSize(wish.pixels);
            image = page->renderToImage(
                72 * pixels.width() / size.width(), 72 * pixels.height() / size.height(), 0, 0,
                pixels.width(), pixels.height(), Poppler::Page::Rotation(wish.rotation / 90),
                nullptr, nullptr,
                [](const QVariant &given) {
                    return static_cast<const Limits *>(given.value<void *>())->areReached();
                },
                QVariant::fromValue(static_cast<void *>(&limits)));
            if (wish.isGrey)
                image = inGrey(image);
        }
    } catch (const std::bad_alloc &) {
        image = {};
    }
    if (m_isLeft || m_isStale)
        return;
    if (limits.deadline.hasExpired())
        problem = HostWords::tr("Page %1 takes too long to draw.");
    else if (problem.isNull() && image.isNull())
        problem = HostWords::tr("Page %1 can't be drawn.");
    if (!problem.isNull())
        problem = problem.arg(wish.page + 1);
    {
        const QMutexLocker lock(&m_mutex);
        m_told.append(wish);
    }
    tell([=, self = shared_from_this()](PageSource &source) {
        {
            const QMutexLocker lock(&self->m_mutex);
            self->m_told.removeOne(wish);
        }
        source.takePicture(wish, image, problem);
    });
}

} // namespace host
