#pragma once

#include <QByteArray>

#include <plist/plist.h>

#include <memory>
#include <type_traits>

/// Property lists (libplist), owned by a tree's root. Nodes inside are borrowed from it.
namespace property_list {

struct Free {
    void operator()(plist_t node) const { plist_free(node); }
};
using List = std::unique_ptr<std::remove_pointer_t<plist_t>, Free>;

/// @param data  an XML or a binary list
/// @return null when it is neither
inline List parse(const QByteArray &data) {
    plist_t root = nullptr;
    if (!data.isEmpty())
        plist_from_memory(data.constData(), static_cast<uint32_t>(data.size()), &root);
    return List(root);
}

/// @return the list as XML; empty when libplist can't tell it
inline QByteArray toXml(plist_t root) {
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root, &xml, &length);
    const QByteArray data(xml, xml ? static_cast<qsizetype>(length) : 0);
    plist_to_xml_free(xml);
    return data;
}

/// @return the item under a key; null when it is missing, or the node is no dictionary
inline plist_t item(plist_t node, const char *key) {
    return node && PLIST_IS_DICT(node) ? plist_dict_get_item(node, key) : nullptr;
}

/// @return how many items an array has; 0 for any other node
inline uint32_t count(plist_t node) {
    return node && PLIST_IS_ARRAY(node) ? plist_array_get_size(node) : 0;
}

/// @return a string's bytes in UTF-8; null for any other node
inline QByteArray text(plist_t node) {
    uint64_t length = 0;
    const char *bytes =
        node && PLIST_IS_STRING(node) ? plist_get_string_ptr(node, &length) : nullptr;
    return QByteArray(bytes, static_cast<qsizetype>(length));
}

} // namespace property_list
