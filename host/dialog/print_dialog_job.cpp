#include "host/dialog/job_page.h"
#include "host/dialog/plain_label.h"
#include "host/dialog/print_dialog.h"
#include "host/dialog/queue_job.h"
#include "host/host_error.h"
#include "host/presets/preset_bar.h"
#include "host/presets/problem_area.h"
#include "host/presets/remember_box.h"
#include "host/preview/preview_view.h"
#include "host/ps_job.h"
#include "host/settings/common_settings.h"
#include "host/settings/secrets.h"
#include "host/settings/typed_options.h"
#include "platform/ppd_marks.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTabWidget>

// The document, and the way from "Print" to the end of a job.

namespace host {

void PrintDialog::showDocument() {
    const bool given = m_setup.document.has_value();
    m_documentName->setText(given ? QFileInfo(m_setup.document->path).fileName()
                                  : tr("No document"));
    if (given)
        m_preview->setDocument(*m_setup.document);
}

bool PrintDialog::openDocument(const QString &path) {
    try {
        m_setup.document = readDocument(path);
    } catch (const HostError &error) {
        tell(tr("The document can't be printed."), {error.text()});
        return false;
    }
    tell({});
    showDocument();
    return true;
}

void PrintDialog::openAnother() {
    {
        const QScopedValueRollback opening(m_isOpening, true);
        chooseDocument();
    }
    selectDefault(); // which the server may have told meanwhile
}

void PrintDialog::chooseDocument() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Document to Print"), {}, tr("Documents (*.ps *.eps *.pdf);;All Files (*)"));
    if (!path.isEmpty())
        openDocument(path);
}

bool PrintDialog::settleConflicts(Purpose purpose) {
    savePanel();
    const Decision decision = askAboutConflicts(this, *m_conflicts, purpose, m_chosenLast);
    if (!decision.goesOn)
        return false;
    PanelStage &stage = m_job->stage();
    for (const Change &change : decision.changes) {
        markChoice(m_job->ppd(), change.option->keyword, change.to->choice);
        if (stage.isOpen())
            stage.session().optionDidChange(QString::fromUtf8(change.option->keyword),
                                            QString::fromUtf8(change.to->choice));
    }
    if (!decision.changes.isEmpty()) {
        refreshSettings();
        m_presets->noteChange();
        refresh();
    }
    return true;
}

QString PrintDialog::askTarget() {
    const QString name = QFileInfo(m_setup.document->path).completeBaseName();
    QString proposed = name + QStringLiteral(".ps");
    for (int number = 2; QFileInfo::exists(proposed) && number < 1000; ++number)
        proposed = QStringLiteral("%1-%2.ps").arg(name).arg(number);
    return QFileDialog::getSaveFileName(this, tr("Print to File"), proposed,
                                        tr("PostScript (*.ps)"));
}

void PrintDialog::print() {
    if (!m_job)
        return;
    pick(); // no other printer comes in between
    tell({});
    if (!m_common->problem().isNull() || !m_typed->problem().isNull()) {
        m_tabs->setCurrentIndex(0);
        const bool isCommon = !m_common->problem().isNull();
        tell(isCommon ? m_common->problem() : m_typed->problem());
        isCommon ? m_common->showProblem() : m_typed->showProblem();
        return;
    }
    if (!m_setup.document)
        chooseDocument();
    if (!m_setup.document || !settleConflicts(Purpose::Print))
        return;
    QString target;
    if (m_job->isToFile()) {
        target = askTarget();
        if (target.isEmpty())
            return;
    }
    if (!m_job->ppd() || askSecrets(this, m_job->ppd()))
        send(target);
}

void PrintDialog::send(const QString &target) {
    const Document &document = *m_setup.document;
    const QString title = QFileInfo(document.path).fileName();
    PanelStage &stage = m_job->stage();
    if (m_job->ppd())
        stage.session().print();
    m_pages->setCurrentWidget(m_jobPage);
    if (m_job->isToFile()) {
        m_jobPage->writeFile(target, document, {document.path, stage.source().path},
                             psCode(m_job->ppd(), title));
        return;
    }
    CupsJob job;
    job.queue = m_job->queue();
    job.title = title;
    job.format = document.type == Document::Type::Pdf ? CUPS_FORMAT_PDF : CUPS_FORMAT_POSTSCRIPT;
    job.document = document.content;
    job.options = optionsOf(m_job->toSend());
    m_jobPage->send(job);
}

void PrintDialog::finish() {
    if (m_job->ppd())
        forgetSecrets(m_job->ppd());
    try {
        m_remember->keep(m_job->preset());
        if (!m_job->isToFile())
            m_setup.store.noteRecentQueue(m_job->queue());
    } catch (const HostError &error) { // the job is on its way all the same
        m_jobPage->tell(error.text());
    }
}

void PrintDialog::backToForm(const QString &reason) {
    m_pages->setCurrentWidget(m_form);
    m_print->setFocus();
    if (!reason.isNull())
        tell(tr("The document wasn't printed."), {reason});
}

} // namespace host
