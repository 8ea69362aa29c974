#include "host/ps_job.h"

#include "host/dsc.h"

#include <QList>
#include <QMap>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <pwd.h>
#include <unistd.h>

namespace host {
namespace {

/// What each feature's code begins with in libcups' output.
constexpr char kFeatureStart[] = "[{\n%%BeginFeature: *";

/// What a call that writes to a stream writes.
template <class Write>
QByteArray written(Write write) {
    char *text = nullptr;
    size_t size = 0;
    FILE *stream = open_memstream(&text, &size);
    if (!stream)
        return {};
    write(stream);
    fclose(stream);
    QByteArray result(text, qsizetype(size));
    free(text);
    return result;
}

QByteArray section(ppd_file_t *ppd, ppd_section_t section) {
    return written([&](FILE *stream) { ppdEmit(ppd, stream, section); });
}

/// The place of a feature in its section, by its emitted code "[{...%%BeginFeature: *Keyword
/// Choice".
float orderOf(ppd_file_t *ppd, const QByteArray &code) {
    const qsizetype start = qsizetype(sizeof kFeatureStart) - 1;
    QByteArray keyword = code.mid(start, code.indexOf(' ', start) - start);
    const ppd_option_t *option = ppdFindOption(ppd, keyword.constData());
    if (!option && keyword.startsWith("Custom"))
        option = ppdFindOption(ppd, keyword.mid(6).constData());
    return option ? option->order : 0;
}

/// Document setup: the features of the document section and those that may stand anywhere, which
/// libcups emits apart, as one list in order.
QByteArray documentSetup(ppd_file_t *ppd) {
    const QByteArray code = section(ppd, PPD_ORDER_DOCUMENT) + section(ppd, PPD_ORDER_ANY);
    QList<std::pair<float, QByteArray>> features;
    for (qsizetype at = 0; at < code.size();) {
        qsizetype next = code.indexOf(kFeatureStart, at + 1);
        if (next < 0)
            next = code.size();
        const QByteArray feature = code.mid(at, next - at);
        features.append({orderOf(ppd, feature), feature});
        at = next;
    }
    std::stable_sort(features.begin(), features.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    QByteArray sorted;
    for (const auto &feature : std::as_const(features))
        sorted += feature.second;
    return sorted;
}

QByteArray prolog(ppd_file_t *ppd) {
    QByteArray patches;
    if (ppd->patches)
        patches =
            QByteArray("%%BeginFeature: *JobPatchFile 1\n") + ppd->patches + "\n%%EndFeature\n";
    return patches + section(ppd, PPD_ORDER_PROLOG);
}

QByteArray within(const char *name, const QByteArray &code) {
    return code.isEmpty() ? code
                          : QByteArray("%%Begin") + name + '\n' + code + "%%End" + name + '\n';
}

/// A name within a DSC comment: one line of at most 255 bytes with its keyword (DSC 3.0, 3.3).
QByteArray dscText(const QString &text) {
    return text.simplified().toUtf8().left(200);
}

QByteArray embed(const QByteArray &document, const QString &title, const QByteArray &prologCode,
                 const QByteArray &setupCode, const QByteArray &pageCode) {
    const bool hasLineEnd = document.endsWith('\n') || document.endsWith('\r');
    return "%!PS-Adobe-3.0\n%%Title: " + dscText(title) + "\n%%EndComments\n" +
           within("Prolog", prologCode) + within("Setup", setupCode) + "%%Page: 1 1\n" +
           within("PageSetup", pageCode) + "%%BeginDocument: " + dscText(title) + '\n' + document +
           (hasLineEnd ? "" : "\n") + "%%EndDocument\n%%Trailer\n%%EOF\n";
}

/// Where code goes in, by place; several pieces at one place keep their order.
using Insertions = QMap<qsizetype, QByteArray>;

Insertions placeCode(const DscMap &map, const QByteArray &prologCode, QByteArray setupCode,
                     const QByteArray &pageCode) {
    Insertions at;
    const bool hasProlog = map.prologBegun >= 0;
    at[hasProlog ? map.prologBegun : map.headerEnd] +=
        hasProlog || map.prologEnd >= 0 ? prologCode : within("Prolog", prologCode);
    if (map.pages.isEmpty())
        setupCode += pageCode;
    if (map.setupBegun >= 0) {
        at[map.setupBegun] += setupCode;
    } else {
        const qsizetype place = map.firstPage >= 0   ? map.firstPage
                                : map.prologEnd >= 0 ? map.prologEnd
                                                     : map.headerEnd;
        at[place] += within("Setup", setupCode);
    }
    for (const DscMap::Page &page : map.pages)
        at[page.setupPlace] += page.hasSetup ? pageCode : within("PageSetup", pageCode);
    return at;
}

QByteArray userName() {
    const passwd *user = getpwuid(getuid());
    return user ? QByteArray(user->pw_name) : QByteArray("unknown");
}

} // namespace

QByteArray writePsJob(ppd_file_t *ppd, const QByteArray &document, const QString &title) {
    const QByteArray prologCode = prolog(ppd), setupCode = documentSetup(ppd),
                     pageCode = section(ppd, PPD_ORDER_PAGE);
    QByteArray job = written([&](FILE *stream) {
        ppdEmitJCL(ppd, stream, 0, userName().constData(), title.toUtf8().constData());
        ppdEmit(ppd, stream, PPD_ORDER_EXIT);
    });

    const DscMap map = mapDsc(document);
    if (!map.conforming) {
        job += embed(document, title, prologCode, setupCode, pageCode);
    } else {
        qsizetype done = 0;
        const Insertions insertions = placeCode(map, prologCode, setupCode, pageCode);
        for (auto piece = insertions.begin(); piece != insertions.end(); ++piece) {
            job += document.mid(done, piece.key() - done);
            if (!piece->isEmpty() && !job.endsWith('\n') && !job.endsWith('\r'))
                job += '\n';
            job += *piece;
            done = piece.key();
        }
        job += document.mid(done);
    }
    if (ppd->jcl_end)
        job += written([&](FILE *stream) { ppdEmitJCLEnd(ppd, stream); });
    return job;
}

} // namespace host
