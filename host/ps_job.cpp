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

/// The document as a whole in a conforming one.
void embed(const PsCode &code, const Content &document, const QString &title, const Sink &sink) {
    const QByteArray last = document.read(document.size() - 1, 1);
    sink("%!PS-Adobe-3.0\n%%Title: " + dscText(title) + "\n%%EndComments\n" +
         within("Prolog", code.prolog) + within("Setup", code.setup) + "%%Page: 1 1\n" +
         within("PageSetup", code.page) + "%%BeginDocument: " + dscText(title) + '\n');
    document.copy(0, document.size(), sink);
    sink((last == "\n" || last == "\r" ? "" : "\n") +
         QByteArrayLiteral("%%EndDocument\n%%Trailer\n%%EOF\n"));
}

/// Where code goes in, by place; several pieces at one place keep their order.
using Insertions = QMap<qint64, QByteArray>;

Insertions placeCode(const DscMap &map, const PsCode &code) {
    Insertions at;
    const bool hasProlog = map.prologBegun >= 0;
    at[hasProlog ? map.prologBegun : map.headerEnd] +=
        hasProlog || map.prologEnd >= 0 ? code.prolog : within("Prolog", code.prolog);
    const QByteArray setupCode = map.pages.isEmpty() ? code.setup + code.page : code.setup;
    if (map.setupBegun >= 0) {
        at[map.setupBegun] += setupCode;
    } else {
        const qint64 place = map.firstPage >= 0   ? map.firstPage
                             : map.prologEnd >= 0 ? map.prologEnd
                                                  : map.headerEnd;
        at[place] += within("Setup", setupCode);
    }
    for (const DscMap::Page &page : map.pages)
        at[page.setupPlace] += page.hasSetup ? code.page : within("PageSetup", code.page);
    return at;
}

QByteArray userName() {
    const passwd *user = getpwuid(getuid());
    return user ? QByteArray(user->pw_name) : QByteArray("unknown");
}

} // namespace

PsCode psCode(ppd_file_t *ppd, const QString &title) {
    PsCode code;
    code.before = written([&](FILE *stream) {
        ppdEmitJCL(ppd, stream, 0, userName().constData(), title.toUtf8().constData());
        ppdEmit(ppd, stream, PPD_ORDER_EXIT);
    });
    code.prolog = prolog(ppd);
    code.setup = documentSetup(ppd);
    code.page = section(ppd, PPD_ORDER_PAGE);
    if (ppd->jcl_end)
        code.after = written([&](FILE *stream) { ppdEmitJCLEnd(ppd, stream); });
    return code;
}

void writePsJob(const PsCode &code, const Content &document, const QString &title,
                const Sink &sink) {
    char last = '\n';
    const Sink write = [&](const QByteArray &bytes) {
        if (bytes.isEmpty())
            return;
        last = bytes.back();
        sink(bytes);
    };
    write(code.before);
    const DscMap map = mapDsc(document);
    if (!map.conforming) {
        embed(code, document, title, write);
    } else {
        qint64 done = 0;
        const Insertions insertions = placeCode(map, code);
        for (auto piece = insertions.begin(); piece != insertions.end(); ++piece) {
            document.copy(done, piece.key(), write);
            done = piece.key();
            if (!piece->isEmpty() && last != '\n' && last != '\r')
                write("\n");
            write(*piece);
        }
        document.copy(done, document.size(), write);
    }
    write(code.after);
}

} // namespace host
