<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PrintPanelTab</name>
    <message>
        <source>Image Options</source>
        <translation>Options d’image</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>Réess&amp;ayer</translation>
    </message>
    <message>
        <source>A file has no image options.</source>
        <translation>Un fichier n’a pas d’options d’image.</translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation>Aucune imprimante n’est choisie.</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s options…</source>
        <translation>Lecture des options de l’imprimante…</translation>
    </message>
    <message>
        <source>This printer has no image options.</source>
        <translation>Cette imprimante n’a pas d’options d’image.</translation>
    </message>
    <message>
        <source>The printer&apos;s options can&apos;t be shown.</source>
        <translation>Les options de l’imprimante ne peuvent pas être affichées.</translation>
    </message>
    <message>
        <source>The image options can&apos;t be loaded.</source>
        <translation>Les options d’image ne peuvent pas être chargées.</translation>
    </message>
</context>
</TS>
