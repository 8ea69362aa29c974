<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PrintPanelTab</name>
    <message>
        <source>Image Options</source>
        <translation>Bildoptionen</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>Nochmals &amp;versuchen</translation>
    </message>
    <message>
        <source>A file has no image options.</source>
        <translation>Eine Datei hat keine Bildoptionen.</translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation>Es ist kein Drucker ausgewählt.</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s options…</source>
        <translation>Die Optionen des Druckers werden geholt&#xa0;…</translation>
    </message>
    <message>
        <source>This printer has no image options.</source>
        <translation>Dieser Drucker hat keine Bildoptionen.</translation>
    </message>
    <message>
        <source>The printer&apos;s options can&apos;t be shown.</source>
        <translation>Die Optionen des Druckers können nicht angezeigt werden.</translation>
    </message>
    <message>
        <source>The image options can&apos;t be loaded.</source>
        <translation>Die Bildoptionen können nicht geladen werden.</translation>
    </message>
</context>
</TS>
