#include "platform/bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

namespace {

constexpr char kTranslationContext[] = "Localizable";

/// The open bundles in the order of opening.
std::vector<std::weak_ptr<Bundle>> &openBundles() {
    static std::vector<std::weak_ptr<Bundle>> bundles;
    return bundles;
}

template <class Test>
std::shared_ptr<Bundle> findOpen(Test test) {
    for (const std::weak_ptr<Bundle> &open : openBundles())
        if (std::shared_ptr<Bundle> bundle = open.lock(); bundle && test(*bundle))
            return bundle;
    return nullptr;
}

QStringList &chosenLanguages() {
    static QStringList codes;
    return codes;
}

/// "de-AT.UTF-8" gives "de_AT" and "de". Chinese without a word of traditional script is
/// simplified, which the tables name by its country: "zh-Hans-SG" gives "zh_CN", too.
QStringList withBaseLanguages(QString code) {
    code.replace(u'-', u'_');
    for (const QChar end : {u'.', u'@'})
        code = code.section(end, 0, 0);
    QStringList codes;
    static const QRegularExpression traditional(QStringLiteral("_(Hant|TW|HK|MO)(_|$)"));
    if ((code + u'_').startsWith(QLatin1String("zh_")) && !code.contains(traditional))
        codes += {code, QStringLiteral("zh_CN")};
    for (; !code.isEmpty(); code = code.contains(u'_') ? code.section(u'_', 0, -2) : QString())
        codes += code;
    return codes;
}

/// A name from a PPD must not lead out of the bundle.
bool isPlainName(const QString &name) {
    return !name.isEmpty() && !name.contains(u'/') && !name.contains(QChar(u'\0'));
}

QJsonObject readInfo(const QString &path, QString *reason) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *reason = file.errorString();
        return {};
    }
    QJsonParseError parsing;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parsing);
    if (parsing.error != QJsonParseError::NoError)
        *reason = parsing.errorString();
    else if (document.object().value(QStringLiteral("CFBundleIdentifier")).toString().isEmpty())
        *reason = QStringLiteral("no text under \"CFBundleIdentifier\"");
    return document.object();
}

} // namespace

Bundle::Bundle() = default;
Bundle::~Bundle() = default;

std::shared_ptr<Bundle> Bundle::open(const QString &directory, QString *error) {
    QString reason;
    const QString path = QFileInfo(directory).canonicalFilePath();
    const bool isFolder = !path.isEmpty() && QFileInfo(path).isDir();
    if (isFolder)
        if (auto open = findOpen([&path](const Bundle &b) { return b.m_directory == path; }))
            return open;
    const QString infoPath = (isFolder ? path : directory) + QStringLiteral("/Info.json");
    const QJsonObject info = isFolder ? readInfo(infoPath, &reason) : QJsonObject();
    if (!isFolder)
        reason = QStringLiteral("%1: no such folder").arg(directory);
    else if (!reason.isEmpty())
        reason = QStringLiteral("%1: %2").arg(infoPath, reason);
    if (!reason.isEmpty()) {
        if (error)
            *error = reason;
        return nullptr;
    }
    const std::shared_ptr<Bundle> bundle(new Bundle);
    bundle->m_directory = path;
    bundle->m_info = info;
    std::erase_if(openBundles(), [](const std::weak_ptr<Bundle> &open) { return open.expired(); });
    openBundles().push_back(bundle);
    return bundle;
}

std::shared_ptr<Bundle> Bundle::withIdentifier(const QString &identifier) {
    return findOpen([&identifier](const Bundle &b) { return b.identifier() == identifier; });
}

void Bundle::setLanguages(const QStringList &codes) {
    chosenLanguages() = codes;
}

QStringList Bundle::languages() {
    QStringList codes;
    for (const QString &code :
         chosenLanguages().isEmpty() ? QLocale::system().uiLanguages() : chosenLanguages())
        codes += withBaseLanguages(code);
    codes += QStringLiteral("en");
    codes.removeDuplicates();
    return codes;
}

QString Bundle::identifier() const {
    return m_info.value(QStringLiteral("CFBundleIdentifier")).toString();
}

QVariant Bundle::infoValue(const QString &key) const {
    return m_info.contains(key) ? m_info.value(key).toVariant() : QVariant();
}

QString Bundle::resourcePath(const QString &name, const QString &type,
                             const QString &subdirectory) const {
    if (!isPlainName(name) || subdirectory.split(u'/').contains(QStringLiteral("..")))
        return {};
    const QString ending = type == QStringLiteral("nib") ? QStringLiteral("ui") : type;
    const QString below = (subdirectory.isEmpty() ? QString() : subdirectory + u'/') + name +
                          (ending.isEmpty() ? QString() : u'.' + ending);
    QStringList folders;
    for (const QString &language : languages())
        folders << language + QStringLiteral(".lproj/") << language + u'/';
    folders << QString();
    for (const QString &folder : folders) {
        const QString path = m_directory + QStringLiteral("/Resources/") + folder + below;
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QString Bundle::localizedString(const QString &key, const QString &fallback,
                                const QString &table) const {
    if (key.isEmpty())
        return fallback;
    const QTranslator *strings =
        translator(table.isEmpty() ? QStringLiteral("Localizable") : table);
    if (!strings)
        return fallback;
    const QString text = strings->translate(kTranslationContext, key.toUtf8().constData());
    return text.isNull() ? fallback : text;
}

const QTranslator *Bundle::translator(const QString &table) const {
    if (!isPlainName(table))
        return nullptr;
    for (const QString &language : languages()) {
        const QString name = table + u'_' + language;
        auto known = m_translators.find(name);
        if (known == m_translators.end()) {
            const QString path =
                m_directory + QStringLiteral("/Resources/") + name + QStringLiteral(".qm");
            auto loaded = std::make_unique<QTranslator>();
            if (!QFileInfo(path).isFile() || !loaded->load(path))
                loaded.reset();
            known = m_translators.emplace(name, std::move(loaded)).first;
        }
        if (known->second)
            return known->second.get();
    }
    return nullptr;
}
