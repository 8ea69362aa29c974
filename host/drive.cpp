#include "host/drive.h"

#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/document.h"
#include "host/drive_state.h"
#include "host/drive_views.h"
#include "host/files.h"
#include "host/host_error.h"
#include "host/line_reader.h"
#include "host/panel_stage.h"
#include "host/print.h"
#include "platform/help_viewer.h"
#include "platform/ppd_marks.h"
#include "platform/views/alert.h"
#include "platform/views/modal_window.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QJsonDocument>
#include <QQueue>
#include <QWidget>

#include <cstdio>
#include <optional>

#include <unistd.h>

namespace host {
namespace {

QJsonObject granted() {
    return {{"ok", true}};
}
QJsonObject refused(const QString &why) {
    return {{"ok", false}, {"why", why}};
}
QJsonObject answered(QJsonObject answer) {
    answer.insert(QStringLiteral("ok"), true);
    return answer;
}

/// Obeys the commands, one after the other.
///
/// An act may open a window or an alert, which runs a nested event loop within the act. Such an act
/// is answered once that loop has nothing left to do and is about to wait, and the next commands
/// are obeyed there. Since every command waits for that moment, none is obeyed in a loop whose
/// window has just been told to end: such a loop doesn't wait again.
class Driver : public QObject {
public:
    explicit Driver(PanelStage &stage);

    void take(const QByteArray &line);

private:
    using Handler = QJsonObject (Driver::*)(const QJsonObject &);
    struct CommandRow {
        const char *word;
        Handler handler;
        unsigned needs;
    };
    /// What a command needs.
    enum : unsigned {
        Free = 1, ///< it calls the panel, which must not happen while a child window is modal
        Open = 2, ///< the panel is open
    };
    static const CommandRow kCommands[];

    void idle();
    void obeyNext();
    void closeStep();
    std::optional<QJsonObject> obey(const QByteArray &line);
    QJsonObject act(const QJsonObject &command);
    void answer(const QJsonObject &reply);

    QJsonObject open(const QJsonObject &);
    QJsonObject willShow(const QJsonObject &);
    QJsonObject restore(const QJsonObject &);
    QJsonObject shouldPrint(const QJsonObject &);
    QJsonObject save(const QJsonObject &);
    QJsonObject summary(const QJsonObject &);
    QJsonObject print(const QJsonObject &command);
    QJsonObject help(const QJsonObject &);
    QJsonObject mark(const QJsonObject &command);
    QJsonObject setting(const QJsonObject &command);
    QJsonObject shot(const QJsonObject &command);
    QJsonObject state(const QJsonObject &);
    QJsonObject alert(const QJsonObject &);

    PanelStage &m_stage;
    QQueue<QByteArray> m_lines;
    bool m_posted = false;      ///< obeyNext is on its way
    bool *m_answered = nullptr; ///< of the act that is running, whether it has its answer
    bool m_inputEnded = false;
    bool m_closing = false;
    int m_closeSteps = 0;
};

const Driver::CommandRow Driver::kCommands[] = {
    {"open", &Driver::open, Free},
    {"willShow", &Driver::willShow, Free | Open},
    {"restore", &Driver::restore, Free | Open},
    {"shouldPrint", &Driver::shouldPrint, Free},
    {"save", &Driver::save, Free | Open},
    {"summary", &Driver::summary, Free | Open},
    {"print", &Driver::print, Free},
    {"help", &Driver::help, Free | Open},
    {"mark", &Driver::mark, Free},
    {"setting", &Driver::setting, 0},
    {"shot", &Driver::shot, Open},
    {"state", &Driver::state, 0},
    {"alert", &Driver::alert, 0},
};

Driver::Driver(PanelStage &stage) : m_stage(stage) {
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &Driver::idle);
}

void Driver::take(const QByteArray &line) {
    if (line.isNull())
        m_inputEnded = true;
    else
        m_lines.enqueue(line);
}

void Driver::idle() {
    if (m_answered && !*m_answered) {
        *m_answered = true;
        answer(granted());
    }
    if (m_posted || (m_lines.isEmpty() && !m_inputEnded && !m_closing))
        return;
    m_posted = true;
    QMetaObject::invokeMethod(this, &Driver::obeyNext, Qt::QueuedConnection);
}

void Driver::obeyNext() {
    m_posted = false;
    if (m_closing)
        return closeStep();
    if (m_lines.isEmpty())
        return m_inputEnded ? closeStep() : void();
    if (const auto reply = obey(m_lines.dequeue()))
        answer(*reply);
}

/// One step of closing: ends what stands in front, or, when nothing does, the panel.
void Driver::closeStep() {
    constexpr int kPatience = 20; // a Cancel that opens something each time
    if (!views::currentAlert().isNull()) {
        views::dismissAlert();
    } else if (ModalWindow *window = ModalWindow::current()) {
        if (++m_closeSteps < kPatience)
            window->reject();
        else
            window->closeWindow();
    } else if (QWidget *other = QApplication::activeModalWidget()) {
        other->close();
    } else {
        m_stage.close();
        m_closeSteps = 0;
        if (std::exchange(m_closing, false))
            answer(granted());
        else
            QApplication::quit();
    }
}

/// @return the reply, or nothing if it has been or will be given apart
std::optional<QJsonObject> Driver::obey(const QByteArray &line) {
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
        return refused(QStringLiteral("no JSON: ") + error.errorString());
    if (!document.isObject())
        return refused(QStringLiteral("no JSON object"));
    const QJsonObject command = document.object();
    const QString word = command[QStringLiteral("do")].toString();
    if (isViewAct(word)) {
        bool answered = false;
        bool *outer = std::exchange(m_answered, &answered);
        const QJsonObject reply = act(command);
        m_answered = outer;
        return answered ? std::nullopt : std::optional(reply);
    }
    if (word == u"close") {
        if (!m_stage.isOpen())
            return refused(QStringLiteral("the panel isn't open"));
        m_closing = true;
        return std::nullopt;
    }
    for (const CommandRow &row : kCommands) {
        if (word != row.word)
            continue;
        if ((row.needs & Free) && !views::currentAlert().isNull())
            return refused(QStringLiteral("an alert stands in front"));
        if ((row.needs & Free) && ModalWindow::current())
            return refused(QStringLiteral("the window \"%1\" is modal")
                               .arg(ModalWindow::current()->windowTitle()));
        if ((row.needs & Open) && !m_stage.isOpen())
            return refused(QStringLiteral("the panel isn't open"));
        try {
            return (this->*row.handler)(command);
        } catch (const HostError &failure) {
            return refused(failure.text());
        }
    }
    return refused(word.isEmpty() ? QStringLiteral("\"do\" is missing")
                                  : QStringLiteral("there is no command \"%1\"").arg(word));
}

QJsonObject Driver::act(const QJsonObject &command) {
    const ViewAct prepared = ViewAct::prepare(command, m_stage.window());
    if (!prepared.view)
        return refused(prepared.refusal);
    m_stage.session().noteUserAct();
    return prepared.act() ? granted() : refused(QStringLiteral("the view didn't take it"));
}

void Driver::answer(const QJsonObject &reply) {
    const QByteArray line = QJsonDocument(reply).toJson(QJsonDocument::Compact) + '\n';
    const size_t written = std::fwrite(line.constData(), 1, size_t(line.size()), stdout);
    if (written == size_t(line.size()) && std::fflush(stdout) == 0)
        return;
    m_lines.clear(); // nobody reads any more
    m_inputEnded = true;
}

QJsonObject Driver::open(const QJsonObject &) {
    if (m_stage.isOpen())
        return refused(QStringLiteral("the panel is open already"));
    return answered(panelJson(m_stage, m_stage.open()));
}

QJsonObject Driver::willShow(const QJsonObject &) {
    m_stage.session().willShow();
    return granted();
}

QJsonObject Driver::restore(const QJsonObject &) {
    return answered({{"result", m_stage.session().restore()}});
}

QJsonObject Driver::shouldPrint(const QJsonObject &) {
    PanelSession &session = m_stage.session();
    if (session.isOpen())
        return answered({{"result", session.shouldPrint()}});
    if (!session.hasPanel())
        return refused(QStringLiteral("the queue has no panel"));
    session.printUnseen();
    return granted();
}

QJsonObject Driver::save(const QJsonObject &) {
    return answered({{"result", m_stage.session().save()}});
}

QJsonObject Driver::summary(const QJsonObject &) {
    return answered(summaryJson(m_stage.session().summary()));
}

/// The job as the Print button makes it, into files.
QJsonObject Driver::print(const QJsonObject &command) {
    const QString to = command[QStringLiteral("to")].toString();
    if (to.isEmpty())
        return refused(QStringLiteral("\"to\" must be a file's name"));
    const QString source = command[QStringLiteral("document")].toString();
    if (source.isEmpty())
        return refused(QStringLiteral("\"document\" must be a file's name"));
    const Document document = readDocument(source);
    Outputs outputs({document.path, m_stage.source().path});
    PanelSession &session = m_stage.session();
    const QVariantMap summary = session.isOpen() ? session.summary() : QVariantMap();
    session.print();
    outputs.add(to, [&](const Sink &sink) { writeJob(m_stage, document, sink); });
    if (const QString ticket = command[QStringLiteral("ticket")].toString(); !ticket.isEmpty())
        outputs.add(ticket, jsonText(ticketJson(m_stage.callback().settings())));
    if (const QString file = command[QStringLiteral("summary")].toString(); !file.isEmpty())
        outputs.add(file, jsonText(summaryJson(summary)));
    outputs.commit();
    return granted();
}

QJsonObject Driver::help(const QJsonObject &) {
    return answered({{"shown", m_stage.session().help()}});
}

QJsonObject Driver::mark(const QJsonObject &command) {
    const QString option = command[QStringLiteral("option")].toString();
    const QString choice = command[QStringLiteral("choice")].toString();
    m_stage.session().leavePage(); // another panel is in front now
    if (!markChoice(m_stage.source().ppd.get(), option.toUtf8().constData(),
                    choice.toUtf8().constData()))
        return refused(
            QStringLiteral("the queue has no choice %1 of an option %2").arg(choice, option));
    if (m_stage.isOpen())
        m_stage.session().optionDidChange(option, choice);
    return granted();
}

QJsonObject Driver::setting(const QJsonObject &command) {
    const QString key = command[QStringLiteral("key")].toString();
    const QJsonValue value = command[QStringLiteral("value")];
    if (!value.isString())
        return refused(QStringLiteral("\"value\" must be a text"));
    switch (
        PMPrintSettingsSetValue(m_stage.callback().printSettings(), key, value.toString(), false)) {
    case kPMNoError:
        return granted();
    case kPMLocked:
        return refused(QStringLiteral("the setting is locked"));
    default:
        return refused(QStringLiteral("\"key\" must be a text that isn't empty"));
    }
}

QJsonObject Driver::shot(const QJsonObject &command) {
    const QString path = command[QStringLiteral("to")].toString();
    if (path.isEmpty())
        return refused(QStringLiteral("\"to\" must be a file's name"));
    const bool ofHelp = command[QStringLiteral("of")] == QLatin1String("help");
    if (ofHelp && !(helpViewerWindow() && helpViewerWindow()->isVisible()))
        return refused(QStringLiteral("no help is shown"));
    QWidget *front = ofHelp ? helpViewerWindow() : QApplication::activeModalWidget();
    Outputs outputs({m_stage.source().path});
    outputs.add(path, pngContent((front ? front : m_stage.window())->grab()));
    outputs.commit();
    return granted();
}

QJsonObject Driver::state(const QJsonObject &) {
    return answered(stateJson(m_stage));
}

QJsonObject Driver::alert(const QJsonObject &) {
    return views::dismissAlert() ? granted() : refused(QStringLiteral("no alert stands"));
}

} // namespace

void drive(const CommandLine &line) {
    PDEPlugin *plugin = loadBundle(line.bundle);
    PanelStage stage(line, *plugin);
    QApplication::setQuitOnLastWindowClosed(false);
    Driver driver(stage);
    LineReader reader(STDIN_FILENO, [&](const QByteArray &input) { driver.take(input); });
    QApplication::exec();
}

} // namespace host
