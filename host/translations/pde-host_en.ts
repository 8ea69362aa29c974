<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>host</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::ConflictLine</name>
    <message numerus="yes">
        <source>Can&apos;t be printed together: %1, and %n more</source>
        <translation>
            <numerusform>Can&apos;t be printed together: %1, and %n more</numerusform>
            <numerusform>Can&apos;t be printed together: %1, and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>host::JobPage</name>
    <message numerus="yes">
        <source>Printing: %n page(s) so far.</source>
        <translation>
            <numerusform>Printing: one page so far.</numerusform>
            <numerusform>Printing: %n pages so far.</numerusform>
        </translation>
    </message>
</context>
</TS>
