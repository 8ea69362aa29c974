<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Localizable</name>
    <message>
        <source>Graphics Title</source>
        <translation>Bildoptionen</translation>
    </message>
    <message>
        <source>Help Viewer Title for Image Options</source>
        <translation>Hilfe zu Bildoptionen</translation>
    </message>
    <message>
        <source>Brightness Mini Value Statics Text</source>
        <translation>Dunkler</translation>
    </message>
    <message>
        <source>Brightness Max Value Statics Text</source>
        <translation>Heller</translation>
    </message>
    <message>
        <source>Basic Setting Radio Button</source>
        <translation>Grundeinstellungen</translation>
    </message>
    <message>
        <source>Advanced Setting Radio Button</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Color Balance Button Text</source>
        <translation>Farbbalance …</translation>
    </message>
    <message>
        <source>Image Setting Button Text</source>
        <translation>Bildeinstellungen …</translation>
    </message>
    <message>
        <source>Type00-1</source>
        <translation>Typ 00-1</translation>
    </message>
    <message>
        <source>Type00-2</source>
        <translation>Typ 00-2</translation>
    </message>
    <message>
        <source>Type01</source>
        <translation>Typ 01</translation>
    </message>
    <message>
        <source>Type02</source>
        <translation>Typ 02</translation>
    </message>
    <message>
        <source>Type03</source>
        <translation>Typ 03</translation>
    </message>
    <message>
        <source>Conflict Text</source>
        <translation>Nicht verfügbar zusammen mit %1</translation>
    </message>
    <message>
        <source>Conflict Past Text</source>
        <translation>Wieder verfügbar, sobald eine andere Einstellung gewählt wird</translation>
    </message>
    <message>
        <source>Conflict Choice Text</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Conflict List Text</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>OK Button Text</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel Button Text</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Restore Default Button Text</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Help Button Text</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Color Balance Window Title String</source>
        <translation>Farbbalance</translation>
    </message>
    <message>
        <source>Adjust Color Balance Check Box Text</source>
        <translation>Farbbalance anpassen</translation>
    </message>
    <message>
        <source>Target Color Statics Text</source>
        <translation>Zielfarbe:</translation>
    </message>
    <message>
        <source>Target Color Black Text</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Target Color Cyan Text</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Target Color Magenta Text</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Target Color Yellow Text</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Low Density Scope Statics Text</source>
        <translation>Geringe Dichte:</translation>
    </message>
    <message>
        <source>Mid Density Scope Statics Text</source>
        <translation>Mittlere Dichte:</translation>
    </message>
    <message>
        <source>High Density Scope Statics Text</source>
        <translation>Hohe Dichte:</translation>
    </message>
    <message>
        <source>Density Scope Statics Text</source>
        <translation>(-3 bis 3)</translation>
    </message>
    <message>
        <source>Message??</source>
        <translation>Geben Sie eine ganze Zahl von -3 bis 3 ein.</translation>
    </message>
    <message>
        <source>Alert OK Btn</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Image Type Window Title String</source>
        <translation>Bildeinstellungen</translation>
    </message>
    <message>
        <source>RGB Color Correction Text</source>
        <translation>RGB-Farbkorrektur</translation>
    </message>
    <message>
        <source>CMYK Color Correction Text</source>
        <translation>CMYK-Farbkorrektur</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Black Over Print Text</source>
        <translation>Schwarz überdrucken</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Text</source>
        <translation>Eingebettete Profile</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Print Text</source>
        <translation>Eingebettete Profile ignorieren</translation>
    </message>
</context>
</TS>
