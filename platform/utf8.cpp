#include "platform/utf8.h"

#include <QStringDecoder>

namespace {

/// A byte order mark is a character, and one that breaks off an error.
QStringDecoder plainDecoder() {
    using Flag = QStringConverter::Flag;
    return QStringDecoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
}

} // namespace

std::optional<QString> strictUtf8(const char *text) {
    QStringDecoder decoder = plainDecoder();
    const QString decoded = decoder(QByteArrayView(text));
    return decoder.hasError() ? std::nullopt : std::optional(decoded);
}

QString wholeCharacters(QByteArrayView utf8) {
    qsizetype end = qstrnlen(utf8.data(), utf8.size());
    qsizetype lead = end;
    while (lead > 0 && end - lead < 3 && (uchar(utf8[lead - 1]) & 0xC0) == 0x80)
        --lead;
    if (lead > 0) {
        const uchar c = uchar(utf8[lead - 1]);
        const int length = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
        if (end - (lead - 1) < length)
            end = lead - 1;
    }
    return QStringLiteral("") + plainDecoder()(utf8.first(end));
}

QString cutToBytes(const QString &text, qsizetype bytes) {
    const QByteArray utf8 = text.toUtf8();
    return utf8.size() <= bytes ? text : wholeCharacters(utf8.first(bytes));
}
