#include "check/findings.h"
#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/dialog/dialog_command.h"
#include "host/drive.h"
#include "host/host_error.h"
#include "host/inspect.h"
#include "host/language.h"
#include "host/presets/preset_commands.h"
#include "host/print.h"
#include "host/serve/serve.h"
#include "platform/bundle.h"

#include <QApplication>

#include <csignal>
#include <cstdio>
#include <optional>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kBadInput = 2;

void complain(const QString &text) {
    std::fprintf(stderr, "pde-host: %s\n", text.simplified().toLocal8Bit().constData());
}

QtMessageHandler formerHandler = nullptr;
bool starting = true;

/// A standard stream that is closed would lend its number to the next file that is opened. Reading
/// from what is held instead ends at once, and writing fails as before.
void holdStandardStreams() {
    int fd = 0;
    do
        fd = open("/dev/null", O_RDONLY);
    while (fd >= 0 && fd <= STDERR_FILENO);
    if (fd >= 0)
        close(fd);
}

/// Keeps Qt's remarks on the display off standard error, where a user's script reads; and turns its
/// last word, for a display that can't be opened, into an end without a signal.
void passMessage(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    if (type == QtFatalMsg && starting) {
        complain(QStringLiteral("display: can't be opened"));
        _exit(kBadInput);
    }
    if (!starting && !text.startsWith(u"This plugin does not support "))
        formerHandler(type, context, text);
}

/// Lets Qt draw without a display where no person looks.
void choosePlatform(host::Command command) {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        return;
    const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool wayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (command == host::Command::Dialog) {
        if (!x11 && !wayland)
            throw host::HostError(QStringLiteral("display"),
                                  QStringLiteral("there is none, and the dialog needs one"));
        return;
    }
    QByteArray platforms = "offscreen"; // Qt takes the first that it can open
    const bool drawsNothing = command == host::Command::Serve; // and shall outlive any display
    if (x11 && !drawsNothing)
        platforms.prepend("xcb;");
    if (wayland && !drawsNothing)
        platforms.prepend("wayland;");
    qputenv("QT_QPA_PLATFORM", platforms);
}

/// Looks at a PPD for its maker. @return the exit code
int checkPpd(const host::CommandLine &line) {
    const QString path = line.bundle.isNull() ? host::defaultBundleDirectory() : line.bundle;
    QString reason;
    const std::shared_ptr<Bundle> bundle = Bundle::open(path, &reason);
    if (!bundle)
        throw host::HostError(path, reason);
    QByteArray told;
    const int code = check::run(line.check, *bundle, line.json, &told);
    if (code == kBadInput) {
        complain(QString::fromUtf8(told));
        return code;
    }
    if (std::fwrite(told.constData(), 1, size_t(told.size()), stdout) != size_t(told.size()) ||
        std::fflush(stdout) != 0)
        throw host::HostError(QStringLiteral("standard output"),
                              QStringLiteral("can't be written"));
    return code;
}

int run(const host::CommandLine &line) {
    using host::Command;
    if (!line.language.isNull())
        Bundle::setLanguages({line.language});
    std::optional<host::Language> language;
    if (line.command != Command::Help)
        language.emplace();
    switch (line.command) {
    case Command::Help:
        std::fputs(host::usage().toLocal8Bit().constData(), stdout);
        break;
    case Command::Dialog:
        host::dialog(line);
        break;
    case Command::Print:
        host::print(line);
        break;
    case Command::Inspect:
        if (!line.check.isNull())
            return checkPpd(line);
        host::inspect(line);
        break;
    case Command::Drive:
        host::drive(line);
        break;
    case Command::Serve:
        host::serve(line);
        break;
    case Command::List:
        if (line.presets)
            host::listPresets(line);
        else
            host::listQueues(line);
        break;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    holdStandardStreams();
    std::signal(SIGPIPE, SIG_IGN); // a reader that is gone shows as a failed write
    try {
        const host::CommandLine line = host::parseCommandLine(programArguments(argc, argv));
        if (line.command == host::Command::Help) {
            return run(line);
        }
        choosePlatform(line.command);
        int ownCount = 1; // Qt would take arguments of ours for its own
        formerHandler = qInstallMessageHandler(passMessage);
        const QApplication application(ownCount, argv);
        starting = false;
        return run(line);
    } catch (const host::HostError &error) {
        complain(error.text());
        return kBadInput;
    }
}
