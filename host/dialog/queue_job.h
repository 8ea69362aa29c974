#pragma once

#include "host/panel_stage.h"
#include "host/presets/preset.h"
#include "host/preview/sheet_layout.h"
#include "host/queues/queue_directory.h"
#include "host/settings/job_settings.h"
#include "host/settings/sent_list.h"

#include <optional>

namespace host {

/// All that is chosen for a job on one queue, while the person looks at it and while they are at
/// another one: marks, print settings, common settings, further options of the job.
///
/// Defaults come in this order, the later over the earlier: the PPD's, the server's, the person's
/// own. Presets and last used settings are put on top of them.
class QueueJob {
public:
    /// @param toFile  the job becomes a file that is made by none of CUPS' filters
    QueueJob(QueueDetails details, PDEPlugin &plugin, bool toFile);

    /// The queue's name; for a file that of the PPD.
    const QString &queue() const { return m_stage.source().printer.id; }
    /// The queue's name; null for a file.
    QString queueOrFile() const { return m_toFile ? QString() : queue(); }
    ppd_file_t *ppd() const { return m_stage.source().ppd.get(); }
    PanelStage &stage() { return m_stage; }
    JobSettings &settings() { return *m_settings; }
    bool isToFile() const { return m_toFile; }

    /// The person's named sets of defaults, made by CUPS' own commands.
    QStringList instances() const;
    /// Goes back to the queue's defaults. The panel must be closed.
    /// @param instance  one of instances(); null for the queue's own
    /// @return what couldn't be applied, a line for a person each
    QStringList useDefaults(const QString &instance = {});
    /// Goes back to the queue's defaults and puts a preset on top. The panel must be closed.
    QStringList use(const Preset &preset);
    /// What stands now.
    Preset preset() const;

    ToSend toSend() const;
    /// How the document's pages will lie on the sheets.
    SheetOptions sheet() const;

private:
    /// Whether the marks make a job without colour.
    bool printsGrey() const;

    PanelStage m_stage;
    OptionList m_serverDefaults;
    UserOptions m_userOptions;
    bool m_toFile;
    std::optional<JobSettings> m_settings;
    OptionList m_others; ///< options of the job that have no control
};

} // namespace host
