#pragma once

#include "check/findings.h"
#include "check/ppd_lines.h"

namespace check {

/// What the rules work on, and where they put what they find.
struct Subject {
    ppd_file_t *ppd;
    const PpdLines &lines;
    const Bundle &bundle;
    QList<Finding> &findings;

    void problem(const char *rule, int line, const QString &text, const QString &remedy) const {
        findings.append({Finding::Weight::Problem, rule, line, text, remedy});
    }
    void note(const char *rule, int line, const QString &text, const QString &remedy) const {
        findings.append({Finding::Weight::Note, rule, line, text, remedy});
    }
};

// The rules, by what they look at. Each adds its findings.

void checkDefaults(const Subject &subject);
void checkProductType(const Subject &subject);
void checkLists(const Subject &subject);
void checkLabels(const Subject &subject);
void checkConstraints(const Subject &subject);
void checkCache(const Subject &subject);
void checkResources(const Subject &subject);

/// @return whether the PPD asks for the panel
bool wantsPanel(ppd_file_t *ppd);

} // namespace check
