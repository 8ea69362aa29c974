#include "check/findings.h"

#include "check/rules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace check {
namespace {

constexpr void (*kRules[])(const Subject &) = {
    checkDefaults,    checkProductType, checkLists,     checkLabels,
    checkConstraints, checkCache,       checkResources,
};

const char *wordFor(Finding::Weight weight) {
    return weight == Finding::Weight::Note ? "note" : "problem";
}

QByteArray asText(const QString &path, const QList<Finding> &findings) {
    QString text;
    for (const Finding &finding : findings)
        text += QStringLiteral("%1:%2: %3: %4 %5 [%6]\n")
                    .arg(path)
                    .arg(finding.line)
                    .arg(QLatin1String(wordFor(finding.weight)), finding.text, finding.remedy,
                         QLatin1String(finding.rule));
    return text.toUtf8();
}

QByteArray asJson(const QString &path, const QList<Finding> &findings) {
    QJsonArray rows;
    for (const Finding &finding : findings)
        rows.append(QJsonObject{{QStringLiteral("weight"), QLatin1String(wordFor(finding.weight))},
                                {QStringLiteral("rule"), QLatin1String(finding.rule)},
                                {QStringLiteral("line"), finding.line},
                                {QStringLiteral("text"), finding.text},
                                {QStringLiteral("remedy"), finding.remedy}});
    return QJsonDocument(
               QJsonObject{{QStringLiteral("file"), path}, {QStringLiteral("findings"), rows}})
        .toJson(QJsonDocument::Indented);
}

} // namespace

QList<Finding> findingsOf(const PpdFile &file, const Bundle &bundle) {
    QList<Finding> findings;
    const PpdLines lines(file.text);
    const Subject subject{file.ppd.get(), lines, bundle, findings};
    for (const auto rule : kRules)
        rule(subject);
    std::stable_sort(findings.begin(), findings.end(),
                     [](const Finding &a, const Finding &b) { return a.line < b.line; });
    return findings;
}

int run(const QString &path, const Bundle &bundle, bool json, QByteArray *out) {
    const PpdFile file = readPpdFile(path);
    if (!file.ppd) {
        *out = (path + QStringLiteral(": ") + file.reason + u'\n').toUtf8();
        return 2;
    }
    const QList<Finding> findings = findingsOf(file, bundle);
    *out = json ? asJson(path, findings) : asText(path, findings);
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding &f) { return f.weight == Finding::Weight::Problem; })
               ? 1
               : 0;
}

} // namespace check
