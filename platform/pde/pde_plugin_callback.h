#pragma once

#include "platform/cups_ppd.h"
#include "platform/print_core.h"

#include <QString>

/// What a host print dialog offers to the panels that it loads.
///
/// One object serves one dialog. The host keeps it, the PPD, the settings and the session alive for
/// as long as any of the dialog's panels exists. All calls come on the host's thread.
class PDEPluginCallback {
public:
    virtual ~PDEPluginCallback() = default;

    /// The queue's PPD with its current marks; owned by the host, may be null.
    /// May answer another PPD later (the user picked another queue); the former one must then stay
    /// open until the panel is gone, since controls point into it until the next restore.
    virtual ppd_file_t *ppdFile() = 0;
    /// The settings that the job will use; owned by the host, may be null.
    virtual PMPrintSettings printSettings() = 0;
    /// The dialog's session; owned by the host, may be null.
    virtual PMPrintSession printSession() = 0;
    /// A panel asks for a choice to be marked.
    ///
    /// The host looks up the option and the choice first: with either missing it answers false and
    /// marks nothing. A choice that is marked already is true without work. A conflict is no reason
    /// to refuse: the panel shows conflicts itself. The host may refuse for reasons of its own.
    /// @param option  the option's keyword
    /// @param choice  the choice's keyword
    /// @return true if the choice is marked when the call returns
    virtual bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) = 0;
};
