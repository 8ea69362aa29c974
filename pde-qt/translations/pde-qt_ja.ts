<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>PrintPanelTab</name>
    <message>
        <source>Image Options</source>
        <translation>画像オプション</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>再試行(&amp;A)</translation>
    </message>
    <message>
        <source>A file has no image options.</source>
        <translation>ファイルには画像オプションがありません。</translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation>プリンターが選択されていません。</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s options…</source>
        <translation>プリンターのオプションを取得しています…</translation>
    </message>
    <message>
        <source>This printer has no image options.</source>
        <translation>このプリンターには画像オプションがありません。</translation>
    </message>
    <message>
        <source>The printer&apos;s options can&apos;t be shown.</source>
        <translation>プリンターのオプションを表示できません。</translation>
    </message>
    <message>
        <source>The image options can&apos;t be loaded.</source>
        <translation>画像オプションを読み込めません。</translation>
    </message>
</context>
</TS>
