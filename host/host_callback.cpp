#include "host/host_callback.h"

#include "platform/ppd_marks.h"

namespace host {

HostCallback::HostCallback(ppd_file_t *ppd, const Printer &printer) : m_ppd(ppd) {
    m_session.setCurrentPrinter(printer);
}

bool HostCallback::willChangePPDOptionKeyValue(const QString &option, const QString &choice) {
    m_calls.append({option, choice});
    const QByteArray keyword = option.toUtf8(), wanted = choice.toUtf8();
    const ppd_choice_t *before = m_ppd ? ppdFindMarkedChoice(m_ppd, keyword.constData()) : nullptr;
    const bool isOther = !before || qstricmp(before->choice, wanted.constData()) != 0;
    const bool marked = m_ppd && markChoice(m_ppd, keyword.constData(), wanted.constData());
    if (marked && isOther && m_observer)
        m_observer(option);
    return marked;
}

} // namespace host
