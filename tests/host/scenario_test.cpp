// Runs the files of tests/scenarios; docs/testing.md tells how they are written.

#include "run_host.h"
#include "support/ppd_text.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

struct Scenario {
    struct Line {
        QByteArray text;
        int answer; ///< of which answer it speaks
        int number; ///< in the file
    };
    QStringList arguments{"drive"};
    QByteArray input;
    QList<Line> expectations;

    int commands() const { return int(input.count('\n')); }
    void add(const QByteArray &command) {
        input += QByteArray(command).replace("SAMPLES/", samplePath("").toUtf8()) + '\n';
    }
};

QByteArray firstWord(QByteArray &line) {
    const qsizetype end = line.indexOf(' ');
    const QByteArray word = line.left(end);
    line = end < 0 ? QByteArray() : line.mid(end).trimmed();
    return word;
}

Scenario readScenario(const QString &path) {
    Scenario scenario;
    bool answersItself = true; // the latest command does, without a state behind it
    int number = 0;
    for (QByteArray line : readFile(path).split('\n')) {
        ++number;
        const bool expects = line.startsWith(' ');
        line = line.trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        if (expects) {
            if (!std::exchange(answersItself, true))
                scenario.add("{\"do\":\"state\"}");
            scenario.expectations.append({line, scenario.commands() - 1, number});
        } else if (line.startsWith('{') || line.startsWith('!')) {
            const bool refused = line.startsWith('!');
            scenario.add(refused ? line.mid(1).trimmed() : line);
            scenario.expectations.append(
                {refused ? "ok false" : "ok true", scenario.commands() - 1, number});
            const QString word = QJsonDocument::fromJson(line).object()["do"].toString();
            answersItself =
                refused || QString("open state summary save shouldPrint").split(' ').contains(word);
        } else {
            const QByteArray option = firstWord(line);
            const QString value = QString::fromUtf8(line);
            scenario.arguments << QString::fromUtf8(option)
                               << (option == "--ppd" ? samplePath(value) : value);
        }
    }
    return scenario;
}

/// What a path names in an answer: members and indices between dots; first a tag, or "@" and the
/// name of a view, for that view. A member of an array is the list of its elements' members.
QJsonValue find(const QJsonObject &answer, const QByteArray &path) {
    QJsonValue at = answer;
    bool first = true;
    for (const QByteArray &part : path.split('.')) {
        bool isNumber = false;
        const int number = part.toInt(&isNumber);
        if (std::exchange(first, false) && (isNumber || part.startsWith('@'))) {
            at = QJsonValue::Undefined;
            for (const QJsonValue &view : answer["views"].toArray())
                if (isNumber ? view["tag"] == number : view["view"] == QString(part.mid(1)))
                    at = view;
        } else if (at.isArray() && !isNumber) {
            QJsonArray members;
            for (const QJsonValue &element : at.toArray())
                members.append(element[QString::fromUtf8(part)]);
            at = members;
        } else {
            at = at.isArray() ? at.toArray().at(number) : at[QString::fromUtf8(part)];
        }
    }
    return at;
}

QByteArray text(const QJsonValue &value) {
    return value.isUndefined() ? "nothing"
                               : QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

/// An array holds an element, an object a key or the members of another, a text its parts.
bool holds(const QJsonValue &whole, const QJsonValue &part) {
    if (whole.isArray())
        return whole.toArray().contains(part);
    const QJsonObject all = whole.toObject(), some = part.toObject();
    for (auto member = some.begin(); member != some.end(); ++member)
        if (all[member.key()] != member.value())
            return false;
    return !some.isEmpty() || all.contains(part.toString()) ||
           (part.isString() && whole.toString().contains(part.toString()));
}

/// "PATH VALUE", "PATH has VALUE", "PATH lacks VALUE".
/// "3500,3510.hidden true" speaks of each of the views.
void check(QByteArray line, const QJsonObject &answer) {
    const QByteArray path = firstWord(line), names = path.split('.').first();
    const bool has = line.startsWith("has "), lacks = line.startsWith("lacks ");
    if (has || lacks)
        firstWord(line);
    const QJsonDocument wrapped = QJsonDocument::fromJson('[' + line + ']');
    ASSERT_EQ(wrapped.array().size(), 1) << "no JSON value: " << line.constData();
    const QJsonValue expected = wrapped.array().first();
    for (const QByteArray &name : names.split(',')) {
        const QJsonValue found = find(answer, name + path.mid(names.size()));
        EXPECT_TRUE(has || lacks ? !found.isUndefined() && holds(found, expected) == has
                                 : found == expected)
            << name.constData() << " of " << path.constData() << " is "
            << text(found).left(600).constData() << answer["why"].toString().toStdString();
    }
}

TEST(Scenarios, Hold) {
    const QDir folder(SCENARIOS_DIR);
    const QStringList files = folder.entryList({"*.scenario"}, QDir::Files);
    EXPECT_FALSE(files.isEmpty());
    for (const QString &file : files) {
        const Scenario scenario = readScenario(folder.filePath(file));
        const HostRun run = runHost(scenario.arguments, QTemporaryDir().path(), scenario.input);
        EXPECT_EQ(run.exitCode, 0) << file.toStdString() << run.err.constData();
        const QList<QByteArray> answers = run.out.trimmed().split('\n');
        ASSERT_EQ(answers.size(), scenario.commands()) << file.toStdString();
        for (const Scenario::Line &line : scenario.expectations) {
            SCOPED_TRACE(file.toStdString() + ":" + std::to_string(line.number));
            check(line.text, QJsonDocument::fromJson(answers[line.answer]).object());
        }
    }
}

} // namespace
