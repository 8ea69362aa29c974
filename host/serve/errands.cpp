#include "host/serve/errands.h"

#include "host/words.h"

#include <cmath>

namespace host {
namespace {

constexpr int kGraceMs = 5000;

int milliseconds(double seconds) {
    return int(std::ceil(seconds * 1000));
}

} // namespace

Errands::Errands() {
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Errands::expire);
}

Errands::~Errands() {
    if (m_now)
        m_now->stop.request_stop();
}

std::shared_ptr<Errands::Errand> Errands::begin(double seconds, const QString &doubt,
                                                Failed failed) {
    m_now = std::make_shared<Errand>();
    m_now->doubt = doubt;
    m_now->failed = std::move(failed);
    m_timer.start(milliseconds(seconds));
    return m_now;
}

Reach Errands::reachOf(const std::shared_ptr<Errand> &errand, double seconds) {
    return {{milliseconds(seconds), seconds, seconds},
            errand->stop.get_token(),
            {errand, &errand->isLate}};
}

bool Errands::end(const std::shared_ptr<Errand> &errand) {
    if (errand != m_now)
        return false;
    m_timer.stop();
    m_now.reset();
    return true;
}

void Errands::expire() {
    const std::shared_ptr<Errand> errand = m_now;
    if (!errand->isLate.exchange(true) && !errand->doubt.isNull())
        return m_timer.start(kGraceMs);
    end(errand);
    errand->stop.request_stop();
    errand->failed(lateWords(errand->doubt));
}

QString Errands::lateWords(const QString &more) {
    const QString words = HostWords::tr("No answer came in time");
    return more.isEmpty() ? words : HostWords::tr("%1: %2").arg(words, more);
}

} // namespace host
