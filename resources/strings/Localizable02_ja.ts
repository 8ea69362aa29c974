<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP">
<context>
    <name>Localizable</name>
    <message>
        <source>Graphics Title</source>
        <translation>画質</translation>
    </message>
    <message>
        <source>Help Viewer Title for Image Options</source>
        <translation>画像オプションのヘルプ</translation>
    </message>
    <message>
        <source>Brightness Mini Value Statics Text</source>
        <translation>暗く</translation>
    </message>
    <message>
        <source>Brightness Max Value Statics Text</source>
        <translation>明るく</translation>
    </message>
    <message>
        <source>Basic Setting Radio Button</source>
        <translation>基本設定</translation>
    </message>
    <message>
        <source>Advanced Setting Radio Button</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Color Balance Button Text</source>
        <translation>カラーバランス…</translation>
    </message>
    <message>
        <source>Image Setting Button Text</source>
        <translation>画像設定…</translation>
    </message>
    <message>
        <source>Type00-1</source>
        <translation>タイプ 00-1</translation>
    </message>
    <message>
        <source>Type00-2</source>
        <translation>タイプ 00-2</translation>
    </message>
    <message>
        <source>Type01</source>
        <translation>タイプ 01</translation>
    </message>
    <message>
        <source>Type02</source>
        <translation>タイプ 02</translation>
    </message>
    <message>
        <source>Type03</source>
        <translation>タイプ 03</translation>
    </message>
    <message>
        <source>Conflict Text</source>
        <translation>%1とは併用できません</translation>
    </message>
    <message>
        <source>Conflict Past Text</source>
        <translation>他の設定を選択すると再び使用できます</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel Button Text</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Restore Default Button Text</source>
        <translation>初期値に戻す</translation>
    </message>
    <message>
        <source>Help Button Text</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Color Balance Window Title String</source>
        <translation>カラーバランス</translation>
    </message>
    <message>
        <source>Adjust Color Balance Check Box Text</source>
        <translation>カラーバランスを調整する</translation>
    </message>
    <message>
        <source>Target Color Statics Text</source>
        <translation>調整する色：</translation>
    </message>
    <message>
        <source>Target Color Black Text</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>Target Color Cyan Text</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>Target Color Magenta Text</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>Target Color Yellow Text</source>
        <translation>イエロー</translation>
    </message>
    <message>
        <source>Low Density Scope Statics Text</source>
        <translation>低濃度：</translation>
    </message>
    <message>
        <source>Mid Density Scope Statics Text</source>
        <translation>中濃度：</translation>
    </message>
    <message>
        <source>High Density Scope Statics Text</source>
        <translation>高濃度：</translation>
    </message>
    <message>
        <source>Density Scope Statics Text</source>
        <translation>（-3〜3）</translation>
    </message>
    <message>
        <source>Message??</source>
        <translation>-3〜3の整数を入力してください。</translation>
    </message>
    <message>
        <source>Alert OK Btn</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Image Type Window Title String</source>
        <translation>画像設定</translation>
    </message>
    <message>
        <source>RGB Color Correction Text</source>
        <translation>RGB色補正</translation>
    </message>
    <message>
        <source>CMYK Color Correction Text</source>
        <translation>CMYK色補正</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>ブラック</translation>
    </message>
    <message>
        <source>Black Over Print Text</source>
        <translation>ブラックオーバープリント</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Text</source>
        <translation>埋め込みプロファイル</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Print Text</source>
        <translation>埋め込みプロファイルを無視する</translation>
    </message>
</context>
</TS>
