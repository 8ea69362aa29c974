#include "host/dialog/dialog_command.h"

#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/dialog/print_dialog.h"

namespace host {

void dialog(const CommandLine &line) {
    DialogSetup setup;
    setup.plugin = loadBundle(line.bundle);
    if (!line.document.isNull())
        setup.document = readDocument(line.document);
    if (!line.ppd.isNull())
        setup.file = openPpdFile(line.ppd);
    setup.queue = line.queue;
    PrintDialog(std::move(setup)).exec();
}

} // namespace host
