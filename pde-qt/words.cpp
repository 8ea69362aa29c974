#include "pde-qt/words.h"

#include "host/language.h"

#include <QCoreApplication>
#include <QPointer>

namespace pdeqt {

void installWords() {
    static QPointer<QTranslator> ours;
    if (ours || !QCoreApplication::instance())
        return;
    const QString folder = QStringLiteral(":/translations");
    for (const char *table : {"pde-host_", "pde-qt_"}) {
        ours = new QTranslator(QCoreApplication::instance());
        host::installTable(*ours, QLatin1String(table), folder);
    }
}

} // namespace pdeqt
