#include "platform/help_book_list.h"

#include "platform/file_content.h"
#include "platform/help_viewer.h"
#include "platform/log.h"

#include <QDir>
#include <QFileInfo>

#include <plist/plist.h>

#include <memory>
#include <type_traits>

namespace help_books {

namespace {

constexpr char kBooks[] = "RegisteredBooks";
constexpr char kOrder[] = "RegistrationOrder";

struct NodeFree {
    void operator()(plist_t node) const { plist_free(node); }
};
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, NodeFree>;

QByteArray unsavedList; ///< the list as XML, when it could not be written

Node readList() {
    QByteArray data = unsavedList;
    if (QFile file(helpViewerPreferencePath());
        data.isEmpty() && QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly))
        data = file.readAll();
    plist_t root = nullptr;
    if (!data.isEmpty())
        plist_from_memory(data.constData(), static_cast<uint32_t>(data.size()), &root);
    if (root && PLIST_IS_DICT(root))
        return Node(root);
    plist_free(root);
    return Node(plist_new_dict());
}

void writeList(plist_t root) {
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root, &xml, &length);
    const QByteArray data(xml, length);
    plist_to_xml_free(xml);

    const QString path = helpViewerPreferencePath();
    QDir().mkpath(QFileInfo(path).path());
    QString reason;
    const bool written = writeWholeFile(path, data, &reason);
    if (!written)
        qCWarning(panelLog, "%s: %s", qUtf8Printable(path), qUtf8Printable(reason));
    unsavedList = written ? QByteArray() : data;
}

/// The item under a key, made anew where it is missing or of another kind.
plist_t child(plist_t dict, const char *key, plist_type type, plist_t (*make)()) {
    plist_t item = plist_dict_get_item(dict, key);
    if (item && plist_get_node_type(item) == type)
        return item;
    item = make();
    plist_dict_set_item(dict, key, item);
    return item;
}

QString text(plist_t node) {
    uint64_t length = 0;
    const char *bytes =
        node && PLIST_IS_STRING(node) ? plist_get_string_ptr(node, &length) : nullptr;
    return bytes ? QString::fromUtf8(bytes, static_cast<qsizetype>(length)) : QString();
}

QStringList texts(plist_t node) {
    QStringList list;
    const uint32_t count = node && PLIST_IS_ARRAY(node) ? plist_array_get_size(node) : 0;
    for (uint32_t i = 0; i < count; ++i)
        list += text(plist_array_get_item(node, i));
    return list;
}

plist_t newText(const QString &text) {
    return plist_new_string(text.toUtf8().constData());
}

std::optional<Book> bookUnder(plist_t books, const QString &identifier) {
    plist_t entries = plist_dict_get_item(books, identifier.toUtf8().constData());
    const bool present = entries && PLIST_IS_ARRAY(entries) && plist_array_get_size(entries) > 0;
    plist_t entry = present ? plist_array_get_item(entries, 0) : nullptr;
    if (!entry || !PLIST_IS_DICT(entry))
        return {};
    return Book{identifier, text(plist_dict_get_item(entry, "bundle")),
                QUrl(text(plist_dict_get_item(entry, "url"))),
                texts(plist_dict_get_item(entry, "titles"))};
}

} // namespace

void add(const Book &book) {
    const Node root = readList();
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
    if (!texts(order).contains(book.identifier))
        plist_array_append_item(order, newText(book.identifier));
    writeList(root.get());
}

std::optional<Book> find(const QString &title) {
    const Node root = readList();
    plist_t books = child(root.get(), kBooks, PLIST_DICT, plist_new_dict);
    for (const QString &identifier : texts(plist_dict_get_item(root.get(), kOrder)))
        if (std::optional<Book> book = bookUnder(books, identifier);
            book && book->titles.contains(title))
            return book;
    return {};
}

} // namespace help_books
