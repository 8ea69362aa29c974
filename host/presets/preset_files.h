#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace host {

/// The name of the file or folder for a preset's or queue's name, without an ending: bytes other
/// than ASCII letters, digits, "-", "_" and blanks are percent-encoded. A name that would be too
/// long for a file system is its beginning, "~" and a hash.
QString fileNameFor(const QString &name);
/// The name behind a file's name. Nothing for a hash, or where it isn't encoded text.
std::optional<QString> nameFromFile(const QString &fileName);

/// Holds a folder against other processes that write there, from construction to destruction.
/// Makes the folder.
class FolderLock {
public:
    /// Waits for another process for at most a second. Where the file system knows no locks there
    /// is none. @throw HostError
    explicit FolderLock(const QString &folder);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

private:
    int m_file = -1;
};

/// Makes a folder and those above it. @throw HostError
void makeFolder(const QString &folder);
/// As platform's writeWholeFile(). @throw HostError
void writeFile(const QString &path, const QByteArray &content);

} // namespace host
