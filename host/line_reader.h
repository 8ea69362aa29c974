#pragma once

#include <QByteArray>
#include <QObject>

#include <functional>
#include <thread>

namespace host {

/// Reads lines from a file descriptor on a thread of its own and hands them to the thread that made
/// the reader, in order, by its event loop; so they also arrive in a nested loop.
class LineReader {
public:
    /// @param take  called with each line, without its end, and at last once with a null one
    LineReader(int fd, std::function<void(const QByteArray &)> take);
    /// REQUIRES: the input has ended.
    ~LineReader();

private:
    QObject m_receiver; ///< takes the lines over in the maker's thread
    std::thread m_thread;
};

} // namespace host
