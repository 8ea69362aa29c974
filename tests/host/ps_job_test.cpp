#include "support/ppd_text.h"
#include "support/ps_job_text.h"

#include <gtest/gtest.h>

namespace {

/// An option of one choice "On" whose code is "<keyword> on".
QByteArray feature(const QByteArray &keyword, const QByteArray &order) {
    return "*OpenUI *" + keyword + "/x: PickOne\n*OrderDependency: " + order + " *" + keyword +
           "\n*Default" + keyword + ": On\n*" + keyword + " On/On: \"" + keyword +
           " on\"\n*CloseUI: *" + keyword + "\n";
}

QByteArray emitted(const QByteArray &keyword) {
    return "[{\n%%BeginFeature: *" + keyword + " On\n" + keyword +
           " on\n%%EndFeature\n} stopped cleartomark\n";
}

/// Fills in what the features below are expected to give: {P}, {S} and {G} stand for the code of
/// prolog, document setup and page setup, {Prolog}, {Setup}, {Page} for whole sections of it.
QByteArray filled(QByteArray text) {
    const QByteArray prolog = emitted("Pro"), page = emitted("Pag"),
                     setup = emitted("First") + emitted("Second") + emitted("Third");
    return text.replace("{Prolog}", "%%BeginProlog\n{P}%%EndProlog\n")
        .replace("{Setup}", "%%BeginSetup\n{S}%%EndSetup\n")
        .replace("{Page}", "%%BeginPageSetup\n{G}%%EndPageSetup\n")
        .replace("{P}", prolog)
        .replace("{S}", setup)
        .replace("{G}", page);
}

} // namespace

class PsJob : public testing::Test {
protected:
    PpdPtr ppd =
        openPpdText(feature("Third", "30 AnySetup") + feature("Second", "20 DocumentSetup") +
                    feature("First", "10 AnySetup") + feature("Pag", "5 PageSetup") +
                    feature("Pro", "40 Prolog"));
};

TEST_F(PsJob, FeaturesGoWhereTheStructureWantsThem) {
    const QByteArray head = "%!PS-Adobe-3.0\n%%Title: x\n%%EndComments\n";
    const struct {
        const char *name;
        QByteArray document, job;
    } cases[] = {
        {"all sections",
         head + "%%BeginProlog\n/a 1 def\n%%EndProlog\n%%BeginSetup\nb\n%%EndSetup\n%%Page: 1 1\n"
                "%%BeginPageSetup\nc\n%%EndPageSetup\nshowpage\n%%Page: 2 2\nshowpage\n%%EOF\n",
         head + "%%BeginProlog\n{P}/a 1 def\n%%EndProlog\n%%BeginSetup\n{S}b\n%%EndSetup\n"
                "%%Page: 1 1\n%%BeginPageSetup\n{G}c\n%%EndPageSetup\nshowpage\n%%Page: 2 2\n"
                "{Page}showpage\n%%EOF\n"},
        {"no sections", head + "%%Page: 1 1\nshowpage\n",
         head + "{Prolog}{Setup}%%Page: 1 1\n{Page}showpage\n"},
        {"prolog without a begin", head + "/a 1 def\n%%EndProlog\n%%Page: 1 1\nshowpage\n",
         head + "{P}/a 1 def\n%%EndProlog\n{Setup}%%Page: 1 1\n{Page}showpage\n"},
        {"no pages", head + "showpage\n",
         head + "{Prolog}%%BeginSetup\n{S}{G}%%EndSetup\nshowpage\n"},
        {"header without an end", "%!PS-Adobe-2.0\n%%Title: x\n/a 1 def\n%%Page: 1 1\nshowpage\n",
         "%!PS-Adobe-2.0\n%%Title: x\n{Prolog}/a 1 def\n{Setup}%%Page: 1 1\n{Page}showpage\n"},
        {"comments of a page", head + "%%Page: 1 1\n%%PageMedia: A4\n%%+ x\nshowpage\n",
         head + "{Prolog}{Setup}%%Page: 1 1\n%%PageMedia: A4\n%%+ x\n{Page}showpage\n"},
        {"CR LF", "%!PS-Adobe-3.0\r\n%%EndComments\r\n%%Page: 1 1\r\nshowpage\r\n",
         "%!PS-Adobe-3.0\r\n%%EndComments\r\n{Prolog}{Setup}%%Page: 1 1\r\n{Page}showpage\r\n"},
        {"CR", "%!PS-Adobe-3.0\r%%EndComments\r%%Page: 1 1\rshowpage\r",
         "%!PS-Adobe-3.0\r%%EndComments\r{Prolog}{Setup}%%Page: 1 1\r{Page}showpage\r"},
        {"embedded documents",
         head + "%%Page: 1 1\n%%BeginDocument: a\n%!PS-Adobe-3.0 EPSF\n%%BeginDocument: b\n"
                "%%BeginProlog\n%%Page: 9 9\n%%EndDocument\n%%Page: 8 8\n%%EndDocument\n"
                "%%Page: 2 2\nshowpage\n",
         head + "{Prolog}{Setup}%%Page: 1 1\n{Page}%%BeginDocument: a\n%!PS-Adobe-3.0 EPSF\n"
                "%%BeginDocument: b\n%%BeginProlog\n%%Page: 9 9\n%%EndDocument\n%%Page: 8 8\n"
                "%%EndDocument\n%%Page: 2 2\n{Page}showpage\n"},
        {"binary data",
         head + "%%Page: 1 1\n%%BeginBinary: 24\n\n%%Page: 7 7\n%%BeginDoc\n%%EndBinary\n"
                "%%BeginData: 2 ASCII Lines\n%%Page: 5 5\n%%EndSetup\n%%EndData\n%%Page: 2 2\n",
         head + "{Prolog}{Setup}%%Page: 1 1\n{Page}%%BeginBinary: 24\n\n%%Page: 7 7\n%%BeginDoc\n"
                "%%EndBinary\n%%BeginData: 2 ASCII Lines\n%%Page: 5 5\n%%EndSetup\n%%EndData\n"
                "%%Page: 2 2\n{Page}"},
        {"a wrong length",
         head +
             "%%Page: 1 1\n%%BeginData: 99999 Binary Bytes\n%%Page: 7 7\n%%EndData\n%%Page: 2 2\n",
         head + "{Prolog}{Setup}%%Page: 1 1\n{Page}%%BeginData: 99999 Binary Bytes\n%%Page: 7 7\n"
                "%%EndData\n%%Page: 2 2\n{Page}"},
        {"data without an end", head + "%%BeginData: x\n%%Page: 1 1\nshowpage\n",
         head + "{Prolog}%%BeginData: x\n{Setup}%%Page: 1 1\n{Page}showpage\n"},
        {"no line end", "%!PS-Adobe-3.0",
         "%!PS-Adobe-3.0\n{Prolog}%%BeginSetup\n{S}{G}%%EndSetup\n"},
        {"no structure", "%!\n%%Page: 1 1\nshowpage",
         "%!PS-Adobe-3.0\n%%Title: a b\n%%EndComments\n{Prolog}{Setup}%%Page: 1 1\n{Page}"
         "%%BeginDocument: a b\n%!\n%%Page: 1 1\nshowpage\n%%EndDocument\n%%Trailer\n%%EOF\n"},
    };
    ASSERT_TRUE(ppd);
    for (const auto &c : cases)
        EXPECT_EQ(psJobText(ppd.get(), c.document, "a\nb").toStdString(),
                  filled(c.job).toStdString())
            << c.name;
}

TEST_F(PsJob, JobControlStandsAround) {
    const QByteArray jcl = "*JCLBegin: \"<1B>%-12345X@PJL JOB<0A>\"\n"
                           "*JCLToPSInterpreter: \"@PJL ENTER LANGUAGE=POSTSCRIPT<0A>\"\n"
                           "*JCLEnd: \"<1B>%-12345X@PJL EOJ<0A>\"\n"
                           "*JCLOpenUI *JCLRes/R: PickOne\n*OrderDependency: 1 JCLSetup *JCLRes\n"
                           "*DefaultJCLRes: A\n*JCLRes A/A: \"@PJL SET RES=1<0A>\"\n"
                           "*JCLCloseUI: *JCLRes\n";
    PpdPtr withJcl = openPpdText(jcl + feature("Out", "1 ExitServer"));
    ASSERT_TRUE(withJcl);
    const QByteArray job = psJobText(withJcl.get(), "%!PS-Adobe-3.0\nshowpage\n", "t");
    const char *const inOrder[] = {"\x1b%-12345X@PJL", "@PJL SET RES=1\n", "ENTER LANGUAGE",
                                   "Out on",           "%!PS-Adobe-3.0\n", "showpage\n",
                                   "\x1b%-12345X@PJL"};
    qsizetype at = 0;
    for (const char *piece : inOrder) {
        const qsizetype found = job.indexOf(piece, at);
        ASSERT_GE(found, at) << piece << " in " << job.constData();
        at = found + 1;
    }
}
