#include "host/dialog.h"

#include "host/bundle_loader.h"
#include "host/command_line.h"
#include "host/document.h"
#include "host/files.h"
#include "host/host_error.h"
#include "host/print.h"
#include "platform/views/alert.h"
#include "platform/views/form_loader.h"
#include "platform/views/modal_window.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {
namespace {

QLabel *plainLabel(const QString &text) {
    auto *label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

} // namespace

PrintDialog::PrintDialog(PanelStage &stage, bool isQueue, const QString &document)
    : m_stage(stage), m_isQueue(isQueue), m_document(document) {
    setWindowTitle(tr("Print"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(plainLabel(tr("Printer: %1").arg(stage.source().printer.id)));
    if (!document.isNull())
        layout->addWidget(plainLabel(tr("Document: %1").arg(QFileInfo(document).fileName())));
    QWidget *panel = addPanel(layout);
    m_hasPanel = panel != nullptr;
    addButtons(layout);
    if (panel) // its letters come after those of the dialog's own buttons
        views::assignMnemonics(panel);
}

PrintDialog::~PrintDialog() {
    m_stage.close();
}

QWidget *PrintDialog::addPanel(QBoxLayout *layout) {
    PanelSession &session = m_stage.session();
    QWidget *view = session.hasPanel() ? session.load() : nullptr;
    if (!view) {
        layout->addWidget(plainLabel(tr("This printer has no panel for image options.")));
        return nullptr;
    }
    QLabel *heading = plainLabel(session.name());
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    layout->addWidget(heading);
    placeView(layout, view);
    session.show();
    return view;
}

void PrintDialog::addButtons(QBoxLayout *layout) {
    auto *buttons = new QDialogButtonBox;
    QPushButton *print = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    QPushButton *help = buttons->addButton(QDialogButtonBox::Help);
    QPushButton *summary = buttons->addButton(tr("&Summary…"), QDialogButtonBox::ActionRole);
    print->setDefault(true);
    for (QPushButton *button : {cancel, help, summary})
        button->setAutoDefault(false);
    help->setEnabled(m_hasPanel);
    summary->setEnabled(m_hasPanel);
    connect(print, &QPushButton::clicked, this, &PrintDialog::print);
    connect(cancel, &QPushButton::clicked, this, &PrintDialog::reject);
    connect(help, &QPushButton::clicked, this, [this] { m_stage.session().help(); });
    connect(summary, &QPushButton::clicked, this, &PrintDialog::showSummary);
    layout->addWidget(buttons);
}

void PrintDialog::reject() {
    if (!ModalWindow::current() && views::currentAlert().isNull())
        QDialog::reject();
}

void PrintDialog::showSummary() {
    m_stage.session().noteUserAct(); // any view may have changed
    const QVariantMap rows = m_stage.session().summary();
    QDialog window(this);
    window.setWindowTitle(tr("Summary"));
    auto *layout = new QVBoxLayout(&window);
    auto *form = new QFormLayout;
    for (const QString &title : rows.value(QLatin1String(kSummaryOrderKey)).toStringList())
        form->addRow(plainLabel(title), plainLabel(rows.value(title).toString()));
    layout->addLayout(form);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    layout->addWidget(buttons);
    window.exec();
}

void PrintDialog::print() {
    try {
        printDocument();
    } catch (const HostError &error) {
        views::runAlert(this, {}, tr("The document wasn't printed."), error.text(), tr("OK"));
    }
}

void PrintDialog::printDocument() {
    QString path = m_document;
    if (path.isNull())
        path = QFileDialog::getOpenFileName(this, tr("Document to Print"), {},
                                            tr("Documents (*.ps *.eps *.pdf);;All Files (*)"));
    if (path.isEmpty())
        return;
    const Document document = readDocument(path);
    QString target;
    if (!m_isQueue) {
        target = QFileDialog::getSaveFileName(
            this, tr("Print to File"), QFileInfo(path).completeBaseName() + QStringLiteral(".ps"),
            tr("PostScript (*.ps)"));
        if (target.isEmpty())
            return;
    }
    m_stage.session().print();
    if (m_isQueue) {
        sendToCups(m_stage, document);
    } else {
        Outputs outputs({path, m_stage.source().path});
        outputs.add(target, psJob(m_stage, document));
        outputs.commit();
    }
    accept();
}

void dialog(const CommandLine &line) {
    PDEPlugin *plugin = loadBundle(line.bundle);
    if (!line.document.isNull())
        readDocument(line.document); // a bad one is told before the dialog is up
    PanelStage stage(line, *plugin);
    PrintDialog(stage, line.ppd.isNull(), line.document).exec();
}

} // namespace host
