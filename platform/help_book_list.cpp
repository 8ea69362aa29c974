#include "platform/help_book_list.h"

#include "platform/file_content.h"
#include "platform/help_viewer.h"
#include "platform/log.h"
#include "platform/property_list.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace help_books {

namespace {

using namespace property_list;

constexpr qint64 kGreatestList = 16 << 20;
constexpr char kBooks[] = "RegisteredBooks";
constexpr char kOrder[] = "RegistrationOrder";

QByteArray unsavedList; ///< the list as XML, when it could not be written

/// What stands in the list's file: null when there is no such file, or an unreadable one.
QByteArray storedList() {
    QString reason;
    return readRegularFile(helpViewerPreferencePath(), kGreatestList, &reason)
        .value_or(QByteArray());
}

List readList() {
    List root = parse(unsavedList.isEmpty() ? storedList() : unsavedList);
    return root && PLIST_IS_DICT(root.get()) ? std::move(root) : List(plist_new_dict());
}

/// Why the file under the list's name must stay: it holds something else than a list of books.
QString refusalToReplaceList() {
    const QFileInfo info(helpViewerPreferencePath());
    if (!info.exists() || (info.isFile() && info.size() == 0))
        return {};
    const List stored = parse(storedList());
    return stored && PLIST_IS_DICT(stored.get()) ? QString()
                                                 : QStringLiteral("isn't a list of help books");
}

void writeList(plist_t root) {
    const QByteArray data = toXml(root);
    const QString path = helpViewerPreferencePath();
    QDir().mkpath(QFileInfo(path).path());
    QString reason = refusalToReplaceList();
    const bool written = reason.isEmpty() && writeWholeFile(path, data, &reason);
    if (!written)
        qCWarning(panelLog, "%s: %s", qUtf8Printable(path), qUtf8Printable(reason));
    unsavedList = written ? QByteArray() : data;
}

/// The item under a key, made anew where it is missing or of another kind.
plist_t child(plist_t dict, const char *key, plist_type type, plist_t (*make)()) {
    plist_t node = item(dict, key);
    if (node && plist_get_node_type(node) == type)
        return node;
    node = make();
    plist_dict_set_item(dict, key, node);
    return node;
}

QString textOf(plist_t node) {
    return QString::fromUtf8(text(node));
}

QStringList textsOf(plist_t node) {
    QStringList list;
    for (uint32_t i = 0; i < count(node); ++i)
        list += textOf(plist_array_get_item(node, i));
    return list;
}

plist_t newText(const QString &text) {
    return plist_new_string(text.toUtf8().constData());
}

std::optional<Book> bookUnder(plist_t books, const QString &identifier) {
    plist_t entries = item(books, identifier.toUtf8().constData());
    plist_t entry = count(entries) > 0 ? plist_array_get_item(entries, 0) : nullptr;
    if (!entry || !PLIST_IS_DICT(entry))
        return {};
    return Book{identifier, textOf(item(entry, "bundle")), QUrl(textOf(item(entry, "url"))),
                textsOf(item(entry, "titles"))};
}

} // namespace

void add(const Book &book) {
    const List root = readList();
    if (unsavedList.isEmpty() && bookUnder(item(root.get(), kBooks), book.identifier) == book &&
        textsOf(item(root.get(), kOrder)).contains(book.identifier))
        return; // it stands there just so
    plist_t titles = plist_new_array();
    for (const QString &title : book.titles)
        plist_array_append_item(titles, newText(title));
    plist_t entry = plist_new_dict();
    plist_dict_set_item(entry, "url", newText(book.url.toString()));
    plist_dict_set_item(entry, "bundle", newText(book.bundleDirectory));
    plist_dict_set_item(entry, "titles", titles);
    plist_t entries = plist_new_array();
    plist_array_append_item(entries, entry);
    plist_dict_set_item(child(root.get(), kBooks, PLIST_DICT, plist_new_dict),
                        book.identifier.toUtf8().constData(), entries);
    plist_t order = child(root.get(), kOrder, PLIST_ARRAY, plist_new_array);
    if (!textsOf(order).contains(book.identifier))
        plist_array_append_item(order, newText(book.identifier));
    writeList(root.get());
}

std::optional<Book> find(const QString &title) {
    const List root = readList();
    plist_t books = item(root.get(), kBooks);
    for (const QString &identifier : textsOf(item(root.get(), kOrder)))
        if (std::optional<Book> book = bookUnder(books, identifier);
            book && book->titles.contains(title))
            return book;
    return {};
}

} // namespace help_books
