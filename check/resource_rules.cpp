#include "check/rules.h"

#include "ppd/ppd_keys.h"
#include "ppd/ppd_query.h"
#include "ppd/resource_names.h"

#include <QDir>

namespace check {

void checkResources(const Subject &subject) {
    const ppd_attr_t *setting = findVendorAttribute(subject.ppd, kQZProductTypeImageOptions);
    const int line = subject.lines.ofAttribute(kQZProductTypeImageOptions);
    if (!setting)
        return subject.note(
            "no-panel", 0,
            QStringLiteral("The PPD has no attribute %1, so that there is no panel.")
                .arg(QLatin1String(kQZProductTypeImageOptions)),
            QStringLiteral("Name a layout and a help page there, such as "
                           "\"Default00-MVO530\"."));
    const QString layout = GetAppResourceName(setting->value, 0);
    const QString help = GetAppResourceName(setting->value, 1);
    const struct {
        const char *rule, *what;
        QString name, type, folder;
    } resources[] = {
        {"layout-missing",
         "layout",
         QStringLiteral("QZImageOptions_") + layout,
         QStringLiteral("nib"),
         {}},
        {"help-missing", "help page", QStringLiteral("Graphics_") + help, QStringLiteral("htm"),
         QStringLiteral("Help")},
    };
    for (const auto &resource : resources)
        if (subject.bundle.resourcePath(resource.name, resource.type, resource.folder).isNull())
            subject.problem(resource.rule, line,
                            QStringLiteral("The bundle has no %1 %2, and so the queue gets no "
                                           "panel.")
                                .arg(QLatin1String(resource.what), resource.name),
                            QStringLiteral("Name one that it has, or add it to the bundle."));
    const ppd_attr_t *table = ppdFindAttr_ALT(subject.ppd, "QZLocalizableFileIndex", nullptr);
    if (!table || !table->value)
        return;
    const QString name = QStringLiteral("Localizable") + QString::fromUtf8(table->value);
    const QDir folder(subject.bundle.directory() + QStringLiteral("/Resources"));
    if (folder.entryList({name + QStringLiteral("_*.qm")}, QDir::Files).isEmpty())
        subject.problem("strings-missing", subject.lines.ofAttribute("QZLocalizableFileIndex"),
                        QStringLiteral("The bundle has no strings table %1: texts will be "
                                       "missing.")
                            .arg(name),
                        QStringLiteral("Name one that it has, or leave the attribute out."));
}

} // namespace check
