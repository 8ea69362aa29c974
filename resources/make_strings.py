#!/usr/bin/env python3
"""Writes the strings tables in strings/ as Qt Linguist sources, a file for each table and language.

The .ts files are kept under version control, and the build doesn't run this script. Run it after
a change of the rows below. Which table a queue's panel uses is told by its PPD attribute
"QZLocalizableFileIndex"; every table holds every key, since a key isn't sought in another table.
"""

import sys
from pathlib import Path
from xml.sax.saxutils import escape

LANGUAGES = {"en": "en_US", "de": "de_DE", "fr": "fr_FR", "ja": "ja_JP", "zh_CN": "zh_CN"}

# Key: a text for each language, in the order of LANGUAGES. U+00A0 stands before a French colon and
# a German ellipsis.
ROWS = {
    # Panel
    "Graphics Title": ("Image Options", "Bildoptionen", "Options d’image", "画像オプション", "图像选项"),
    "Help Viewer Title for Image Options": ("Image Options Help", "Hilfe zu Bildoptionen", "Aide des options d’image", "画像オプションのヘルプ", "图像选项帮助"),
    "Brightness Mini Value Statics Text": ("Darker", "Dunkler", "Plus sombre", "暗く", "较暗"),
    "Brightness Max Value Statics Text": ("Lighter", "Heller", "Plus clair", "明るく", "较亮"),
    "Basic Setting Radio Button": ("Basic Settings", "Grundeinstellungen", "Réglages de base", "基本設定", "基本设置"),
    "Advanced Setting Radio Button": ("Advanced Settings", "Erweiterte Einstellungen", "Réglages avancés", "詳細設定", "高级设置"),
    "Color Balance Button Text": ("Color Balance…", "Farbbalance\u00a0…", "Balance des couleurs…", "カラーバランス…", "色彩平衡…"),
    "Image Setting Button Text": ("Image Settings…", "Bildeinstellungen\u00a0…", "Réglages d’image…", "画像設定…", "图像设置…"),
    "Type00-1": ("Type 00-1", "Typ 00-1", "Type 00-1", "タイプ 00-1", "类型 00-1"),
    "Type00-2": ("Type 00-2", "Typ 00-2", "Type 00-2", "タイプ 00-2", "类型 00-2"),
    "Type01": ("Type 01", "Typ 01", "Type 01", "タイプ 01", "类型 01"),
    "Type02": ("Type 02", "Typ 02", "Type 02", "タイプ 02", "类型 02"),
    "Type03": ("Type 03", "Typ 03", "Type 03", "タイプ 03", "类型 03"),

    # Why an item of a list is greyed: the settings that forbid it, each an option and its choice
    "Conflict Text": ("Not available with %1", "Nicht verfügbar zusammen mit %1", "Non disponible avec %1", "%1とは併用できません", "无法与 %1 同时使用"),
    "Conflict Past Text": ("Available again once another setting is chosen", "Wieder verfügbar, sobald eine andere Einstellung gewählt wird", "De nouveau disponible dès qu’un autre réglage est choisi", "他の設定を選択すると再び使用できます", "选择其他设置后即可恢复使用"),
    "Conflict Choice Text": ("%1: %2", "%1: %2", "%1\u00a0: %2", "%1：%2", "%1：%2"),
    "Conflict List Text": ("%1, %2", "%1, %2", "%1, %2", "%1、%2", "%1、%2"),

    # Buttons of several windows
    "OK Button Text": ("OK", "OK", "OK", "OK", "确定"),
    "Cancel Button Text": ("Cancel", "Abbrechen", "Annuler", "キャンセル", "取消"),
    "Restore Default Button Text": ("Restore Defaults", "Standardwerte", "Valeurs par défaut", "初期値に戻す", "恢复默认值"),
    "Help Button Text": ("Help", "Hilfe", "Aide", "ヘルプ", "帮助"),

    # Color balance
    "Color Balance Window Title String": ("Color Balance", "Farbbalance", "Balance des couleurs", "カラーバランス", "色彩平衡"),
    "Adjust Color Balance Check Box Text": ("Adjust Color Balance", "Farbbalance anpassen", "Régler la balance des couleurs", "カラーバランスを調整する", "调整色彩平衡"),
    "Target Color Statics Text": ("Target Color:", "Zielfarbe:", "Couleur cible\u00a0:", "調整する色：", "目标颜色："),
    "Target Color Black Text": ("Black", "Schwarz", "Noir", "ブラック", "黑色"),
    "Target Color Cyan Text": ("Cyan", "Cyan", "Cyan", "シアン", "青色"),
    "Target Color Magenta Text": ("Magenta", "Magenta", "Magenta", "マゼンタ", "品红"),
    "Target Color Yellow Text": ("Yellow", "Gelb", "Jaune", "イエロー", "黄色"),
    "Low Density Scope Statics Text": ("Low Density:", "Geringe Dichte:", "Densité faible\u00a0:", "低濃度：", "低密度："),
    "Mid Density Scope Statics Text": ("Middle Density:", "Mittlere Dichte:", "Densité moyenne\u00a0:", "中濃度：", "中密度："),
    "High Density Scope Statics Text": ("High Density:", "Hohe Dichte:", "Densité élevée\u00a0:", "高濃度：", "高密度："),
    "Density Scope Statics Text": ("(-3 to 3)", "(-3 bis 3)", "(-3 à 3)", "（-3〜3）", "（-3 至 3）"),
    "Message??": ("Enter a whole number from -3 to 3.", "Geben Sie eine ganze Zahl von -3 bis 3 ein.", "Saisissez un nombre entier de -3 à 3.", "-3〜3の整数を入力してください。", "请输入 -3 至 3 之间的整数。"),
    "Alert OK Btn": ("OK", "OK", "OK", "OK", "确定"),

    # Image settings
    "Image Type Window Title String": ("Image Settings", "Bildeinstellungen", "Réglages d’image", "画像設定", "图像设置"),
    "RGB Color Correction Text": ("RGB Color Correction", "RGB-Farbkorrektur", "Correction des couleurs RVB", "RGB色補正", "RGB 色彩校正"),
    "CMYK Color Correction Text": ("CMYK Color Correction", "CMYK-Farbkorrektur", "Correction des couleurs CMJN", "CMYK色補正", "CMYK 色彩校正"),
    "Black Text": ("Black", "Schwarz", "Noir", "ブラック", "黑色"),
    "Black Over Print Text": ("Black Overprint", "Schwarz überdrucken", "Surimpression du noir", "ブラックオーバープリント", "黑色叠印"),
    "Invalidate Color Profile Text": ("Embedded Profiles", "Eingebettete Profile", "Profils incorporés", "埋め込みプロファイル", "嵌入的配置文件"),
    "Invalidate Color Profile Print Text": ("Ignore Embedded Profiles", "Eingebettete Profile ignorieren", "Ignorer les profils incorporés", "埋め込みプロファイルを無視する", "忽略嵌入的配置文件"),
}

# Index of a table: the rows in which it differs. "" is the table of queues that name none.
TABLES = {
    "": {},
    "01": {},
    "02": {  # Sorvani's name for the panel
        "Graphics Title": ("Image Quality", "Bildqualität", "Qualité d’image", "画質", "图像质量"),
    },
}


def source(language, rows):
    column = list(LANGUAGES).index(language)
    yield '<?xml version="1.0" encoding="utf-8"?>'
    yield "<!DOCTYPE TS>"
    yield f'<TS version="2.1" language="{LANGUAGES[language]}">'
    yield "<context>"
    yield "    <name>Localizable</name>"
    for key, texts in rows.items():
        yield "    <message>"
        yield f"        <source>{escape(key)}</source>"
        yield f"        <translation>{escape(texts[column])}</translation>"
        yield "    </message>"
    yield "</context>"
    yield "</TS>"
    yield ""


def main():
    folder = Path(__file__).resolve().parent / "strings"
    for table, own in TABLES.items():
        rows = ROWS | own
        for key in own.keys() - ROWS.keys():
            sys.exit(f"table {table}: {key}: no row of the default table")
        for key, texts in rows.items():
            if len(texts) != len(LANGUAGES) or not all(texts):
                sys.exit(f"table {table}: {key}: {len(LANGUAGES)} texts are needed")
        for language in LANGUAGES:
            text = "\n".join(source(language, rows))
            (folder / f"Localizable{table}_{language}.ts").write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
