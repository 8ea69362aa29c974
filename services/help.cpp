#include "services/help.h"

#include "platform/file_content.h"
#include "platform/help_viewer.h"
#include "platform/log.h"
#include "services/bundle_identity.h"

#include <QDir>
#include <QFileInfo>

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <type_traits>

namespace {

constexpr int32_t kMissing = -43;
constexpr qsizetype kTitleKeyBytes = 255;
constexpr char kHelpPreferences[] =
    "Library/Preferences/com.apple.help.plist"; // in the home folder

struct PlistFree {
    void operator()(plist_t node) const { plist_free(node); }
};
using PlistPtr = std::unique_ptr<std::remove_pointer_t<plist_t>, PlistFree>;

PlistPtr readPlist(const QString &path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return nullptr;
    const QByteArray data = file.readAll();
    plist_t root = nullptr;
    plist_from_memory(data.constData(), static_cast<uint32_t>(data.size()), &root);
    return PlistPtr(root);
}

plist_t dictItem(plist_t node, const char *key) {
    return PLIST_IS_DICT(node) ? plist_dict_get_item(node, key) : nullptr;
}

QByteArray stringOf(plist_t node) {
    uint64_t length = 0;
    const char *text = PLIST_IS_STRING(node) ? plist_get_string_ptr(node, &length) : nullptr;
    return QByteArray(text, static_cast<qsizetype>(length));
}

/// Removes a book from "RegisteredBooks" and "RegistrationOrder".
/// @return false, and nothing changed, when it isn't registered or no localised book
bool removeBook(plist_t root, const QByteArray &identifier) {
    plist_t books = dictItem(root, "RegisteredBooks");
    plist_t entries = dictItem(books, identifier.constData());
    plist_t first = PLIST_IS_ARRAY(entries) && plist_array_get_size(entries) > 0
                        ? plist_array_get_item(entries, 0)
                        : nullptr;
    if (!stringOf(dictItem(first, "url")).contains(".lproj"))
        return false;
    plist_dict_remove_item(books, identifier.constData());
    plist_t order = dictItem(root, "RegistrationOrder");
    const uint32_t count = PLIST_IS_ARRAY(order) ? plist_array_get_size(order) : 0;
    for (uint32_t i = 0; i < count; ++i) {
        if (stringOf(plist_array_get_item(order, i)) == identifier) {
            plist_array_remove_item(order, i);
            break;
        }
    }
    return true;
}

/// Whether every node has a kind that an XML property list knows; binary ones have UIDs as well.
bool isXmlPropertyList(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_DICT: {
        plist_dict_iter position = nullptr;
        plist_dict_new_iter(node, &position);
        plist_t item = nullptr;
        bool valid = true;
        do {
            plist_dict_next_item(node, position, nullptr, &item);
            valid = !item || isXmlPropertyList(item);
        } while (item && valid);
        std::free(position);
        return valid;
    }
    case PLIST_ARRAY:
        for (uint32_t i = 0; i < plist_array_get_size(node); ++i)
            if (!isXmlPropertyList(plist_array_get_item(node, i)))
                return false;
        return true;
    case PLIST_UID:
    case PLIST_KEY:
    case PLIST_NONE:
        return false;
    default:
        return true;
    }
}

void writePlist(plist_t root, const QString &path) {
    char *xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root, &xml, &length);
    if (!xml)
        return;
    writeWholeFile(path, QByteArray(xml, length));
    plist_to_xml_free(xml);
}

} // namespace

const HelpStringRow GraphicsHelpString[4] = {
    {"Graphics_", "Graphics.htm"},
    {"ColorBalance_", "ColorBalance.htm"},
    {"ImageAdj_", "ImageAdj.htm"},
    {nullptr, nullptr},
};

int32_t RegisterMyHelpBook() {
    const auto bundle = GetAppBundleRef();
    return bundle ? AHRegisterHelpBook(*bundle) : kMissing;
}

void RegisterHelpBook(const Bundle *bundle) {
    if (bundle)
        AHRegisterHelpBook(*bundle);
}

int32_t GotoHelpPage(const Bundle *bundle, const QString &page, const QString &anchor,
                     const QString &titleKey) {
    if (!bundle)
        return kMissing;
    const QString key = QString::fromUtf8(titleKey.toUtf8().left(kTitleKeyBytes));
    const QString title = bundle->localizedString(key, kNoTranslation);
    return title.isNull() ? kMissing : AHGotoPage(title, page, anchor);
}

void GotoHelpPage(const Bundle *bundle, const QString &page, const QString &anchor) {
    if (!bundle)
        return;
    const QVariant title = bundle->infoValue(QStringLiteral("CFBundleHelpBookName"));
    if (title.typeId() == QMetaType::QString)
        AHGotoPage(title.toString(), page, anchor);
}

void RemoveHelpCacheForBundleID(const QString &identifier) {
    if (identifier.isNull())
        return;
    const QString path = QDir::home().filePath(QLatin1String(kHelpPreferences));
    const PlistPtr root = readPlist(path);
    if (!root || !removeBook(root.get(), identifier.toUtf8()))
        return;
    if (!isXmlPropertyList(root.get()))
        qCWarning(panelLog, "Illegal Property List.");
    writePlist(root.get(), path);
}
