#include "services/help.h"

#include "platform/file_content.h"
#include "platform/help_viewer.h"
#include "platform/log.h"
#include "platform/property_list.h"
#include "platform/utf8.h"
#include "services/bundle_identity.h"

#include <QDir>

#include <cstdlib>

namespace {

using namespace property_list;

constexpr int32_t kMissing = -43;
constexpr qint64 kGreatestList = 16 << 20;
constexpr qsizetype kTitleKeyBytes = 255;
constexpr char kHelpPreferences[] =
    "Library/Preferences/com.apple.help.plist"; // in the home folder

/// Removes a book from "RegisteredBooks" and "RegistrationOrder".
/// @return false, and nothing changed, when it isn't registered or no localised book
bool removeBook(plist_t root, const QByteArray &identifier) {
    plist_t books = item(root, "RegisteredBooks");
    plist_t entries = item(books, identifier.constData());
    plist_t first = count(entries) > 0 ? plist_array_get_item(entries, 0) : nullptr;
    if (!text(item(first, "url")).contains(".lproj"))
        return false;
    plist_dict_remove_item(books, identifier.constData());
    plist_t order = item(root, "RegistrationOrder");
    for (uint32_t i = 0; i < count(order); ++i) {
        if (text(plist_array_get_item(order, i)) == identifier) {
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
    const QString key = cutToBytes(titleKey, kTitleKeyBytes);
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
    QString reason;
    const List root = parse(readRegularFile(path, kGreatestList, &reason).value_or(QByteArray()));
    if (!root || !removeBook(root.get(), identifier.toUtf8()))
        return;
    if (!isXmlPropertyList(root.get()))
        qCWarning(panelLog, "Illegal Property List.");
    if (const QByteArray xml = toXml(root.get()); !xml.isEmpty())
        writeWholeFile(path, xml);
}
