#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

// What the fuzz targets share.

/// Something that must hold. A failure ends the run, and libFuzzer keeps the input.
#define REQUIRE(condition)                                                                         \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            std::fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition);           \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

/// A folder for the files that a target writes, which goes with the process.
inline QString scratchPath(const char *name) {
    static const QTemporaryDir folder;
    REQUIRE(folder.isValid());
    return folder.filePath(QString::fromLatin1(name));
}

void writeScratch(const QString &path, const QByteArray &content);

/// A sample queue's PPD file.
QByteArray sampleText(const char *name);

inline QByteArray takeBytes(FuzzedDataProvider &input, size_t most) {
    return QByteArray::fromStdString(input.ConsumeRandomLengthString(most));
}
inline QString takeText(FuzzedDataProvider &input, size_t most) {
    return QString::fromUtf8(takeBytes(input, most));
}
