#include "host/language.h"

#include "platform/bundle.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace host {

void installTable(QTranslator &translator, const QString &name, const QString &folder) {
    for (const QString &language : Bundle::languages())
        if (translator.load(name + language, folder)) {
            QCoreApplication::installTranslator(&translator);
            return;
        } else if (language == u"en") {
            return;
        }
}

Language::Language() {
    installTable(m_qt, QStringLiteral("qtbase_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    installTable(m_own, QStringLiteral("pde-host_"), QStringLiteral(":/translations"));
}

} // namespace host
