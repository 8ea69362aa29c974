#include "host/host_callback.h"

#include "platform/ppd_marks.h"

namespace host {

HostCallback::HostCallback(ppd_file_t *ppd, const Printer &printer) : m_ppd(ppd) {
    m_session.setCurrentPrinter(printer);
}

bool HostCallback::willChangePPDOptionKeyValue(const QString &option, const QString &choice) {
    m_calls.append({option, choice});
    const bool marked =
        m_ppd && markChoice(m_ppd, option.toUtf8().constData(), choice.toUtf8().constData());
    if (marked && m_observer)
        m_observer();
    return marked;
}

} // namespace host
