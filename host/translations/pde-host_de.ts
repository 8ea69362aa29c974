<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>host</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source> and </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Conflicting Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer can&apos;t print these together:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no simple way to put this right. Go back and choose another value for one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This would put it right:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print &amp;Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change and Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>a state and why</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available with %1, and others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not available with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUPS server %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it was given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no CUPS server answers there: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUPS server %1 sent no whole answer within %2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUPS server %1 gave no answer within %2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUPS server %1 closed the connection or sent no valid answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CUPS server %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such queue on CUPS server %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has no default queue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the queue has no PPD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its PPD can&apos;t be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its PPD is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the job was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>job %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication Needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 didn&apos;t finish within %2 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 wrote too much</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t convert it to %2%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is neither PostScript nor PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PDF needs pdftops or gs, and neither is installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PostScript needs gs, which isn&apos;t installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can&apos;t be written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a value of one&apos;s own (“%1”) is no longer taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is outside of what this printer takes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no longer there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no longer a setting of this printer; the preset has “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: is locked and stays “%2”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>passwords aren&apos;t kept in presets; enter it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not possible: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name begins or ends with a blank</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name has more than %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name has a character that can&apos;t be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” isn&apos;t what it should be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has a character that is none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has an empty key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is larger than %1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>isn&apos;t a preset: line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>isn&apos;t a preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a key twice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was made by a newer version of this program (format %1); it is left as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has the unknown key “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>can&apos;t be removed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has no preset of this name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is too large for a preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last used settings of “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document is protected by a password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document has no pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 has a size that can&apos;t be drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 takes too long to draw.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1 can&apos;t be drawn.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is too large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: line %2 isn&apos;t UTF-8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Idle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, takes no jobs</source>
        <extracomment>a state, such as &quot;Idle&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer takes no jobs at the moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer is paused. Jobs wait until it goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>a sentence and why</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connecting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>answers in a wrong way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>driver isn&apos;t safe to run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>driver is incomplete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>certificate isn&apos;t valid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>job is held</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>job has stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>job was cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>job was given up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>account is needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>account&apos;s limit is reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>set up anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switched off for jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of developer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>developer is low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>door is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fuser is too hot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fuser is too cold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>asleep</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>shows where it stands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>tray is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a lock is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ink is low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ink is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waste box is almost full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waste box is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paper jam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>paper is low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs other paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about to pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drum is used up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>drum is nearly used up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>needs attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output tray is almost full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output tray is full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>output tray is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switching off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about to go on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no room for more jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about to stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>being tested</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>doesn&apos;t answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>toner is low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3 points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be from %2 to %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” has a character that can&apos;t be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” takes digits only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is too long: at most %2 characters, of which letters other than A to Z take several.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is too short: at least %2 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are %1 more values, which stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asked when you print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1 characters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” must be a number %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” can&apos;t have braces in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer to print on both sides.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sizes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper sources.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This printer doesn&apos;t offer a choice of paper types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A file has the whole document in it, once and as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set this among the printer&apos;s own options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is only one copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: “%2” can&apos;t be used with this printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>inch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2 %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” can&apos;t stand there. Type pages like 1-3,5,9-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: pages count from 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: the document has only one page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: the document has only %2 pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is too great for a page.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” ends before it begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These are more than %1 ranges.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the pages to print, such as 1-3,5,9-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a page. Type pages like 1-3,5,9-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page is missing before a comma.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page is missing at the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password for This Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It isn&apos;t kept, and goes with this job only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not sent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::CommonSettings</name>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page&amp;s:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1-3,5,9-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages per side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;llate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prints each copy whole before the next one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages and ranges, parted by commas, such as 1-3,5,9-.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies must be a number from 1 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::ConflictLine</name>
    <message>
        <source>Resol&amp;ve…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can&apos;t be printed together: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Can&apos;t be printed together: %1, and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending “%1” to %2…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The job %1 was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting to be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held until somebody releases it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Printing: %n page(s) so far.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Printing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped: the printer can&apos;t go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The printer gave the job up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file was written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mana&amp;ge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer&apos;s defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (can&apos;t be used)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (set up outside of this window)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings differ from what was chosen here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” can&apos;t be used, and the settings stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all of “%1” could be used:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passwords aren&apos;t kept in presets. They have to be entered again each time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Nothing was renamed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the preset “%1”? The settings stay as they are.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” was made for the printer “%2”. What this printer has of it is used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets (*.json);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets (*.json)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::PreviewView</name>
    <message>
        <source>Preview of the printed sheets. Arrow keys, Page Up and Page Down turn them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type the sheet to look at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The preview can&apos;t be drawn: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing the preview…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document has none of the chosen pages.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pages %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>sheet, pages</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::PrintDialog</name>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Getting the printer&apos;s settings…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document can&apos;t be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document to Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents (*.ps *.eps *.pdf);;All Files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document wasn&apos;t printed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::ProblemArea</name>
    <message>
        <source>Show &amp;All %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::QueueList</name>
    <message>
        <source>Re&amp;try</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find a printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for printers…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printers found on this server.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer has these words.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::QueueModel</name>
    <message>
        <source>No longer on the server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for it…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default · %1</source>
        <extracomment>the default printer and its state</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes a PostScript file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::RememberBox</name>
    <message>
        <source>&amp;Remember these settings for this printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If not, they hold for this job only. Passwords aren&apos;t remembered.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::SentView</name>
    <message>
        <source>What will be sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer&apos;s default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;unchanged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing differs from the printer&apos;s defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 settings differ from the printer&apos;s defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differs from the printer&apos;s default</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::SheetCanvas</name>
    <message>
        <source>Drawing page %1…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host::SummaryPage</name>
    <message>
        <source>What will be sent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
