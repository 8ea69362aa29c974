#pragma once

#include "host/host_error.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <utility>

namespace host {

constexpr int kMostInBackground = 12;

/// Runs work on another thread, and hands its result back on the thread that asked.
///
/// The work may throw HostError and must not touch widgets or the context. An object that is gone
/// when the work ends is told nothing; the result is destroyed then. Work that waits for a server
/// has to have a deadline, since the program's end waits for it.
/// @param context  lives on the calling thread, which runs an event loop
/// @param work     returns the result, any type that can be moved
/// @param done     called with the result
/// @param failed   called with the error's text instead
template <typename Work, typename Done>
void inBackground(QObject *context, Work work, Done done,
                  std::function<void(const QString &)> failed) {
    QPointer<QObject> asker(context);
    QObject *const home = QCoreApplication::instance(); // outlives all work, unlike its pointer
    // Work that waits for a server mustn't hold up work that doesn't.
    QThreadPool *const threads = QThreadPool::globalInstance();
    threads->setMaxThreadCount(qMax(threads->maxThreadCount(), kMostInBackground));
    threads->start([asker, home, work = std::move(work), done = std::move(done),
                    failed = std::move(failed)]() mutable {
        // A pointer to the asker is only looked at on its own thread.
        const auto answer = [&asker, home](auto call) {
            QMetaObject::invokeMethod(
                home,
                [asker, call = std::move(call)]() mutable {
                    if (asker)
                        call();
                },
                Qt::QueuedConnection);
        };
        try {
            auto result = std::make_shared<decltype(work())>(work());
            answer([result, done = std::move(done)]() mutable { done(std::move(*result)); });
        } catch (const HostError &error) {
            answer([text = error.text(), failed = std::move(failed)] { failed(text); });
        }
    });
}

} // namespace host
