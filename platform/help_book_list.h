#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

/// The help viewer's list of books, see helpViewerPreferencePath().
namespace help_books {

struct Book {
    QString identifier;      ///< of the bundle
    QString bundleDirectory; ///< absolute path
    QUrl url;                ///< of the book's folder, in the user's language
    QStringList titles;

    bool operator==(const Book &) const = default;
};

/// Adds a book, or replaces the entry of its identifier. What else stands in the list stays. The
/// file is replaced as a whole or not at all; if that fails, the list is kept in memory.
void add(const Book &book);
/// @return the first book with that title in the order of registration, or nothing
std::optional<Book> find(const QString &title);

} // namespace help_books
