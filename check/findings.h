#pragma once

#include "platform/bundle.h"
#include "platform/ppd_file.h"

#include <QList>
#include <QString>

/// What a maker of PPDs is told of one of them.
namespace check {

/// Something that will not work as its maker may think.
struct Finding {
    enum class Weight {
        Note,    ///< works, with a result that may surprise
        Problem, ///< doesn't work
    };

    Weight weight = Weight::Problem;
    const char *rule = ""; ///< a name that stays, for scripts
    int line = 0;          ///< of the PPD, from 1; 0 where no line is to blame
    QString text;          ///< what is wrong, a sentence
    QString remedy;        ///< what to do about it, a sentence
};

/// Looks at a PPD as the panel will, by all rules, in the order of the lines.
/// @param file    with a PPD
/// @param bundle  the panel's
QList<Finding> findingsOf(const PpdFile &file, const Bundle &bundle);

/// The command "inspect --check": tells what a PPD file has, a line each, or as JSON.
/// @param out  receives the text
/// @return the exit code: 0 without problems, 1 with some, 2 for a file that can't be read as a
///         PPD, which then has told why in `out`
int run(const QString &path, const Bundle &bundle, bool asJson, QByteArray *out);

} // namespace check
