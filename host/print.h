#pragma once

#include "host/cups_server.h"

namespace host {

struct CommandLine;
class PanelStage;
struct Document;

/// The command "print": one document, unattended, to a file or to CUPS. @throw HostError
void print(const CommandLine &line);

/// Writes a document as a PostScript job with the stage's marks. @throw HostError also of the sink
void writeJob(PanelStage &stage, const Document &document, const Sink &sink);

/// A document as a job for a queue of CUPS, under the file's name and without options yet.
CupsJob cupsJob(const QString &queue, const Document &document);

/// Sends a document to the stage's queue, with the marks and the print settings as the job's
/// options. @return the job's number @throw HostError
int sendToCups(PanelStage &stage, const Document &document);

} // namespace host
