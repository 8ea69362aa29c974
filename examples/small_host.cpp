// A print dialog in a hundred lines: it loads a panel, shows it for a PPD file, and on "Print"
// tells the choices and settings that the job would have.
//
//     small_host BUNDLE PPD [--once]      --once prints without waiting for anybody

#include "platform/pde/pde_plugin.h"
#include "platform/ppd_marks.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPluginLoader>
#include <QVBoxLayout>

#include <cstdio>

namespace {

/// The host's side of one dialog. It owns the settings and the session, and borrows the PPD.
class SmallHost : public PDEPluginCallback {
public:
    SmallHost(ppd_file_t *ppd, const QString &queue) : m_ppd(ppd) {
        m_session.setCurrentPrinter({queue});
    }
    ppd_file_t *ppdFile() override { return m_ppd; }
    PMPrintSettings printSettings() override { return &m_settings; }
    PMPrintSession printSession() override { return &m_session; }
    bool willChangePPDOptionKeyValue(const QString &option, const QString &choice) override {
        return markChoice(m_ppd, option.toUtf8().constData(), choice.toUtf8().constData());
    }

    /// What a job would have: the marked choices, and the panel's settings.
    void tell() const {
        for (int g = 0; g < m_ppd->num_groups; ++g)
            for (int o = 0; o < m_ppd->groups[g].num_options; ++o) {
                const ppd_option_t &option = m_ppd->groups[g].options[o];
                if (const ppd_choice_t *choice = ppdFindMarkedChoice(m_ppd, option.keyword))
                    std::printf("%s=%s\n", option.keyword, choice->choice);
            }
        for (auto entry = m_settings.entries().begin(); entry != m_settings.entries().end();
             ++entry)
            std::printf("%s=%s\n", entry.key().toUtf8().constData(),
                        entry->value.toUtf8().constData());
    }

private:
    ppd_file_t *m_ppd;
    PrintSettings m_settings;
    PrintSession m_session;
};

int fail(const QString &what) {
    std::fprintf(stderr, "small_host: %s\n", what.toUtf8().constData());
    return 2;
}

} // namespace

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        return fail("usage: small_host BUNDLE PPD [--once]");

    // The bundle, and the module in it.
    QString reason;
    const std::shared_ptr<Bundle> bundle = Bundle::open(arguments[1], &reason);
    if (!bundle)
        return fail(arguments[1] + ": " + reason);
    QPluginLoader loader(bundle->directory() + "/lib" +
                         QFileInfo(bundle->directory()).completeBaseName() + ".so");
    auto *plugin = qobject_cast<PDEPlugin *>(loader.instance());
    if (!plugin)
        return fail(loader.errorString());
    plugin->initWithBundle(bundle);

    // The queue: a PPD with its defaults marked. It outlives every panel.
    const PpdPtr ppd(ppdOpenFile(arguments[2].toLocal8Bit().constData()));
    if (!ppd)
        return fail(arguments[2] + ": is no PPD");
    ppdMarkDefaults(ppd.get());
    const auto host = std::make_shared<SmallHost>(ppd.get(), QFileInfo(arguments[2]).baseName());

    // The panel, in the order of calls that it relies on.
    auto panels = plugin->PDEPanelsForType(kPrintPanelType, host);
    if (panels.empty())
        return fail("the queue has no panel");
    PDEPanel &panel = *panels.front();
    panel.panelKind();
    QDialog dialog;
    dialog.setWindowTitle(panel.panelName());
    panel.supportedPPDOptionKeys();
    QWidget *view = panel.panelView();
    if (!view)
        return fail("the panel has no layout");
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(QStringLiteral("&Print"), QDialogButtonBox::AcceptRole);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(view);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    panel.restoreValuesAndReturnError(nullptr);
    panel.willShow();
    dialog.show();
    const bool isPrinted = arguments.contains("--once") || dialog.exec() == QDialog::Accepted;
    if (isPrinted) {
        panel.shouldPrint();
        panel.saveValuesAndReturnError(nullptr);
        host->tell();
    }
    panel.shouldHide();
    panel.terminate();
    panels.clear();
    return isPrinted ? 0 : 1;
}
