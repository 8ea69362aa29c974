#include "pde-qt/parked.h"

#include "platform/views/modal_window.h"

#include <QTimer>

namespace pdeqt {
namespace {

constexpr int kLookMs = 100;

class Parked : public QObject {
public:
    explicit Parked(std::unique_ptr<host::QueueJob> job) : m_job(std::move(job)) {
        m_job->stage().window()->setParent(nullptr);
        startTimer(kLookMs);
    }

protected:
    void timerEvent(QTimerEvent *) override {
        if (!ModalWindow::current())
            delete this;
    }

private:
    std::unique_ptr<host::QueueJob> m_job;
};

} // namespace

void park(std::unique_ptr<host::QueueJob> job) {
    new Parked(std::move(job));
}

} // namespace pdeqt
