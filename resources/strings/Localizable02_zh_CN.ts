<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Localizable</name>
    <message>
        <source>Graphics Title</source>
        <translation>图像质量</translation>
    </message>
    <message>
        <source>Help Viewer Title for Image Options</source>
        <translation>图像选项帮助</translation>
    </message>
    <message>
        <source>Brightness Mini Value Statics Text</source>
        <translation>较暗</translation>
    </message>
    <message>
        <source>Brightness Max Value Statics Text</source>
        <translation>较亮</translation>
    </message>
    <message>
        <source>Basic Setting Radio Button</source>
        <translation>基本设置</translation>
    </message>
    <message>
        <source>Advanced Setting Radio Button</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Color Balance Button Text</source>
        <translation>色彩平衡…</translation>
    </message>
    <message>
        <source>Image Setting Button Text</source>
        <translation>图像设置…</translation>
    </message>
    <message>
        <source>Type00-1</source>
        <translation>类型 00-1</translation>
    </message>
    <message>
        <source>Type00-2</source>
        <translation>类型 00-2</translation>
    </message>
    <message>
        <source>Type01</source>
        <translation>类型 01</translation>
    </message>
    <message>
        <source>Type02</source>
        <translation>类型 02</translation>
    </message>
    <message>
        <source>Type03</source>
        <translation>类型 03</translation>
    </message>
    <message>
        <source>Conflict Text</source>
        <translation>无法与 %1 同时使用</translation>
    </message>
    <message>
        <source>Conflict Past Text</source>
        <translation>选择其他设置后即可恢复使用</translation>
    </message>
    <message>
        <source>Conflict Choice Text</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Conflict List Text</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>OK Button Text</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel Button Text</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Restore Default Button Text</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>Help Button Text</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Color Balance Window Title String</source>
        <translation>色彩平衡</translation>
    </message>
    <message>
        <source>Adjust Color Balance Check Box Text</source>
        <translation>调整色彩平衡</translation>
    </message>
    <message>
        <source>Target Color Statics Text</source>
        <translation>目标颜色：</translation>
    </message>
    <message>
        <source>Target Color Black Text</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Target Color Cyan Text</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>Target Color Magenta Text</source>
        <translation>品红</translation>
    </message>
    <message>
        <source>Target Color Yellow Text</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>Low Density Scope Statics Text</source>
        <translation>低密度：</translation>
    </message>
    <message>
        <source>Mid Density Scope Statics Text</source>
        <translation>中密度：</translation>
    </message>
    <message>
        <source>High Density Scope Statics Text</source>
        <translation>高密度：</translation>
    </message>
    <message>
        <source>Density Scope Statics Text</source>
        <translation>（-3 至 3）</translation>
    </message>
    <message>
        <source>Message??</source>
        <translation>请输入 -3 至 3 之间的整数。</translation>
    </message>
    <message>
        <source>Alert OK Btn</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Image Type Window Title String</source>
        <translation>图像设置</translation>
    </message>
    <message>
        <source>RGB Color Correction Text</source>
        <translation>RGB 色彩校正</translation>
    </message>
    <message>
        <source>CMYK Color Correction Text</source>
        <translation>CMYK 色彩校正</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>Black Over Print Text</source>
        <translation>黑色叠印</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Text</source>
        <translation>嵌入的配置文件</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Print Text</source>
        <translation>忽略嵌入的配置文件</translation>
    </message>
</context>
</TS>
