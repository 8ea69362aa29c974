#include "host/serve/request.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace host {
namespace {

struct CommandRow {
    const char *word;
    double seconds; ///< for the answer, where the request says nothing
};

constexpr CommandRow kCommands[] = {
    {"list", 10}, {"queue", 10}, {"check", 10}, {"print", 120}, {"job", 10}, {"cancel", 10},
};

constexpr double kMostSeconds = 24 * 60 * 60;

enum class Type { Text, Flag, Seconds, Number, Wait, Object };

/// What a member must be, in words.
const char *typeText(Type type) {
    switch (type) {
    case Type::Text:
        return "a text that isn't empty";
    case Type::Flag:
        return "true or false";
    case Type::Seconds:
        return "a number above 0, at most 86400";
    case Type::Number:
        return "a whole number from 1";
    case Type::Wait:
        return "\"change\" or \"finished\"";
    default:
        return "an object";
    }
}

bool isOfType(const QJsonValue &value, Type type) {
    const double number = value.toDouble();
    switch (type) {
    case Type::Text:
        return !value.toString().isEmpty();
    case Type::Flag:
        return value.isBool();
    case Type::Seconds:
        return number > 0 && number <= kMostSeconds;
    case Type::Number:
        return number >= 1 && number <= std::numeric_limits<int>::max() &&
               number == std::floor(number);
    case Type::Wait:
        return value == QLatin1String("change") || value == QLatin1String("finished");
    default:
        return value.isObject();
    }
}

/// A member: the commands that take it, and those of them that need it.
struct MemberRow {
    const char *name;
    Type type;
    const char *takenBy;
    const char *neededBy;
};

constexpr MemberRow kMembers[] = {
    {"seconds", Type::Seconds, "list queue check print job cancel", ""},
    {"queue", Type::Text, "queue check print", "queue check print"},
    {"preset", Type::Text, "queue check print", ""},
    {"instance", Type::Text, "queue check print", ""},
    {"choices", Type::Object, "queue check print", ""},
    {"options", Type::Object, "queue check print", ""},
    {"settings", Type::Object, "queue check print", ""},
    {"document", Type::Text, "print", "print"},
    {"title", Type::Text, "print", ""},
    {"anyway", Type::Flag, "print", ""},
    {"job", Type::Number, "job cancel", "job cancel"},
    {"wait", Type::Wait, "job", ""},
    {"known", Type::Text, "job", ""},
};

bool names(const char *list, const QString &word) {
    return QString::fromLatin1(list).split(u' ').contains(word);
}

/// libcups' texts end at a zero character, and have no form for half a character.
bool isText(const QString &text) {
    return text.isValidUtf16() && !text.contains(QChar(0));
}

bool hasTextsOnly(const QJsonValue &value) {
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        return std::all_of(array.begin(), array.end(), hasTextsOnly);
    }
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        if (!isText(member.key()) || !hasTextsOnly(member.value()))
            return false;
    return isText(value.toString());
}

/// @return what is wrong with a command's members; null where nothing is
QString fault(const QString &command, const QJsonObject &members) {
    for (auto member = members.begin(); member != members.end(); ++member) {
        if (member.key() == u"do")
            continue;
        const auto row =
            std::find_if(std::begin(kMembers), std::end(kMembers), [&](const MemberRow &m) {
                return member.key() == QLatin1String(m.name) && names(m.takenBy, command);
            });
        if (row == std::end(kMembers))
            return QStringLiteral("\"%1\" has no \"%2\"").arg(command, member.key());
        if (!isOfType(member.value(), row->type))
            return QStringLiteral("\"%1\" must be %2")
                .arg(member.key(), QLatin1String(typeText(row->type)));
    }
    for (const MemberRow &row : kMembers)
        if (names(row.neededBy, command) && !members.contains(QLatin1String(row.name)))
            return QStringLiteral("\"%1\" needs \"%2\", %3")
                .arg(command, QLatin1String(row.name), QLatin1String(typeText(row.type)));
    if (members.contains(QLatin1String("preset")) && members.contains(QLatin1String("instance")))
        return QStringLiteral("\"preset\" and \"instance\" can't be given together");
    if (members.contains(QLatin1String("known")) && !members.contains(QLatin1String("wait")))
        return QStringLiteral("\"known\" needs \"wait\"");
    return {};
}

} // namespace

std::optional<Request> readRequest(const QByteArray &line, QString *why) {
    if (line.size() > kMostRequest) {
        *why = QStringLiteral("the line has more than %1 bytes").arg(kMostRequest);
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    const QJsonObject members = document.object();
    const QString command = members[QLatin1String("do")].toString();
    const auto row = std::find_if(std::begin(kCommands), std::end(kCommands),
                                  [&](const CommandRow &c) { return command == c.word; });
    if (error.error != QJsonParseError::NoError)
        *why = QStringLiteral("no JSON: ") + error.errorString();
    else if (!document.isObject())
        *why = QStringLiteral("no JSON object");
    else if (!hasTextsOnly(members))
        *why = QStringLiteral("a text has a zero character, or half of a character");
    else if (command.isEmpty())
        *why = QStringLiteral("\"do\" is missing");
    else if (row == std::end(kCommands))
        *why = QStringLiteral("there is no such command");
    else
        *why = fault(command, members);
    if (!why->isNull())
        return {};
    return Request{command, members, members[QLatin1String("seconds")].toDouble(row->seconds)};
}

} // namespace host
