<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PrintPanelTab</name>
    <message>
        <source>Image Options</source>
        <translation>图像选项</translation>
    </message>
    <message>
        <source>Try &amp;Again</source>
        <translation>重试(&amp;A)</translation>
    </message>
    <message>
        <source>A file has no image options.</source>
        <translation>文件没有图像选项。</translation>
    </message>
    <message>
        <source>No printer is chosen.</source>
        <translation>未选择打印机。</translation>
    </message>
    <message>
        <source>Getting the printer&apos;s options…</source>
        <translation>正在获取打印机的选项…</translation>
    </message>
    <message>
        <source>This printer has no image options.</source>
        <translation>此打印机没有图像选项。</translation>
    </message>
    <message>
        <source>The printer&apos;s options can&apos;t be shown.</source>
        <translation>无法显示打印机的选项。</translation>
    </message>
    <message>
        <source>The image options can&apos;t be loaded.</source>
        <translation>无法加载图像选项。</translation>
    </message>
</context>
</TS>
