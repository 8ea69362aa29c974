#include "settings_ppd.h"
#include "support/cups_daemon.h"
#include "support/run_program.h"

#include "host/cups_server.h"
#include "host/ppd_source.h"
#include "host/settings/sent_list.h"
#include "host/settings/sent_view.h"
#include "platform/ppd_marks.h"

#include <QCheckBox>
#include <QRegularExpression>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace {

http_t *connectToCups() {
    return httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, HTTP_ENCRYPTION_NEVER, 1, 5000,
                        nullptr);
}

/// The attributes of a job as the server tells them.
QMap<QString, QString> attributesOf(int job) {
    http_t *http = connectToCups();
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
                 ("ipp://localhost/jobs/" + QByteArray::number(job)).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "all");
    ipp_t *reply = cupsDoRequest(http, request, "/");
    QMap<QString, QString> found;
    for (ipp_attribute_t *a = ippFirstAttribute(reply); a; a = ippNextAttribute(reply)) {
        if (!ippGetName(a))
            continue;
        char value[4096];
        ippAttributeString(a, value, sizeof value);
        found.insert(ippGetName(a), value);
    }
    ippDelete(reply);
    httpClose(http);
    return found;
}

} // namespace

/// What people are told is sent is what a server has got, and nothing else.
TEST(SentList, IsWhatTheServerGets) {
    CupsDaemon cups;
    const QString path = writeFile(cups.folder(), "settings.ppd", settingsPpd());
    ASSERT_TRUE(cups.start() && cups.addQueue("Queue", path)) << cups.log().constData();
    cupsSetServer(cups.environment()[0].section('=', 1).toUtf8().constData());
    host::CupsServer server;
    const host::PpdSource source = host::openQueue(server, "Queue");
    ppd_file_t *ppd = source.ppd.get();
    for (const auto &[option, choice] : {std::pair("PageSize", "Custom.283.5x300"),
                                         {"EFDuplex", "DuplexNoTumble"},
                                         {"Finish", "Staple"},
                                         {"Finish", "Punch"},
                                         {"Ink", "Custom.12.5"},
                                         {"Pin", "Custom.4711"}})
        ASSERT_TRUE(markChoice(ppd, option, choice)) << option;
    host::JobSettings job(ppd);
    job.setValue(host::Setting::Copies, "2");
    job.setValue(host::Setting::Pages, "1-3,9");
    PrintSettings entries;
    entries.set("com.velmora.key", "a, 'b' \\c", false);
    const host::ToSend what{ppd, &entries, &job, {{"job-priority", "60"}, {"sides", "one-sided"}}};

    const host::CupsJob bare{
        "Queue", "t", CUPS_FORMAT_POSTSCRIPT, QByteArray("%!PS\nshowpage\n"), {}};
    host::CupsJob full = bare;
    full.options = host::optionsOf(what);
    const auto without = attributesOf(server.submit(bare));
    auto with = attributesOf(server.submit(full));
    ASSERT_GT(with.size(), without.size());
    int changed = 0;
    const QList<host::SentRow> rows = host::sentList(what);
    for (const host::SentRow &row : rows) {
        changed += row.isChanged;
        EXPECT_FALSE(row.sent.contains("4711") || row.chosen.contains("4711"));
        if (row.sent.isNull())
            continue;
        const QString name = row.sent.section('=', 0, 0);
        QString value = with.take(name);
        value.replace("\\\\", "\\"); // as the server's text of a value has it
        value.replace(QRegularExpression("\\b(\\d+)-\\1\\b"), "\\1");
        if (name == "Pin")
            value.replace("4711", "\u2022\u2022\u2022\u2022");
        EXPECT_EQ(row.sent.section('=', 1).compare(value, Qt::CaseInsensitive), 0)
            << row.sent.toStdString() << " was " << value.toStdString();
    }
    for (auto left = with.begin(); left != with.end(); ++left)
        EXPECT_TRUE(without.contains(left.key())) << left.key().toStdString() << " isn't told";

    host::SentView view;
    view.setRows(rows);
    auto *table = view.findChild<QTableWidget *>("sentTable");
    EXPECT_EQ(table->rowCount(), changed);
    view.findChild<QCheckBox *>("showUnchanged")->setChecked(true);
    EXPECT_EQ(table->rowCount(), rows.size());
    cupsSetServer(nullptr);
}
