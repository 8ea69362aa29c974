#include "tools/commands.h"
#include "tools/progress.h"
#include "tools/tool_error.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

namespace {

constexpr int kDiffers = 1, kBadInput = 2;

int run(const cdf::CommandLine &line) {
    switch (line.command) {
    case cdf::Command::Help:
        cdf::say(QString::fromUtf8(cdf::usage()).chopped(1));
        break;
    case cdf::Command::Write:
        cdf::writeCache(line);
        break;
    case cdf::Command::List:
        cdf::listCache(line);
        break;
    case cdf::Command::Check:
        if (!cdf::checkCache(line))
            return kDiffers;
        break;
    }
    return 0;
}

[[noreturn]] void failOutput() {
    throw cdf::ToolError(QStringLiteral("standard output"),
                         QString::fromLocal8Bit(std::strerror(errno)));
}

} // namespace

void cdf::say(const QString &text) {
    Progress::wipe();
    if (std::puts(qUtf8Printable(text)) < 0)
        failOutput();
}

int main(int argc, char **argv) {
    try {
        const int code = run(cdf::parseCommandLine(programArguments(argc, argv)));
        if (std::fflush(stdout) != 0)
            failOutput();
        return code;
    } catch (const cdf::ToolError &error) {
        std::fprintf(stderr, "cdf-tool: %s\n", error.what());
        return kBadInput;
    } catch (const cdf::Stopped &stopped) {
        std::signal(stopped.signal, SIG_DFL);
        return std::raise(stopped.signal);
    }
}
