#pragma once

#include "host/ps_job.h"

/// A job as one text.
inline QByteArray psJobText(ppd_file_t *ppd, const QByteArray &document, const QString &title) {
    QByteArray job;
    host::writePsJob(host::psCode(ppd, title), document, title,
                     [&job](const QByteArray &bytes) { job += bytes; });
    return job;
}
