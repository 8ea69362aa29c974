#include "platform/command_error.h"

#include <QStringDecoder>

QString printable(const QString &text) {
    QString shown;
    for (QChar c : text)
        if (c.isPrint() || c.isSurrogate())
            shown += c;
        else
            shown += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
    return shown;
}

CommandError::CommandError(const QString &subject, const QString &reason)
    : m_text(printable(subject) + QStringLiteral(": ") + printable(reason.simplified())),
      m_utf8(m_text.toUtf8()) {}

QStringList programArguments(int argc, char **argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        QStringDecoder decode(QStringDecoder::System, QStringConverter::Flag::Stateless);
        arguments.append(decode(QByteArrayView(argv[i])));
        if (decode.hasError())
            throw CommandError(arguments.last(),
                               QStringLiteral("isn't text in this system's encoding"));
    }
    return arguments;
}
