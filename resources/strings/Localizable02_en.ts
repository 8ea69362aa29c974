<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>Localizable</name>
    <message>
        <source>Graphics Title</source>
        <translation>Image Quality</translation>
    </message>
    <message>
        <source>Help Viewer Title for Image Options</source>
        <translation>Image Options Help</translation>
    </message>
    <message>
        <source>Brightness Mini Value Statics Text</source>
        <translation>Darker</translation>
    </message>
    <message>
        <source>Brightness Max Value Statics Text</source>
        <translation>Lighter</translation>
    </message>
    <message>
        <source>Basic Setting Radio Button</source>
        <translation>Basic Settings</translation>
    </message>
    <message>
        <source>Advanced Setting Radio Button</source>
        <translation>Advanced Settings</translation>
    </message>
    <message>
        <source>Color Balance Button Text</source>
        <translation>Color Balance…</translation>
    </message>
    <message>
        <source>Image Setting Button Text</source>
        <translation>Image Settings…</translation>
    </message>
    <message>
        <source>Type00-1</source>
        <translation>Type 00-1</translation>
    </message>
    <message>
        <source>Type00-2</source>
        <translation>Type 00-2</translation>
    </message>
    <message>
        <source>Type01</source>
        <translation>Type 01</translation>
    </message>
    <message>
        <source>Type02</source>
        <translation>Type 02</translation>
    </message>
    <message>
        <source>Type03</source>
        <translation>Type 03</translation>
    </message>
    <message>
        <source>Conflict Text</source>
        <translation>Not available with %1</translation>
    </message>
    <message>
        <source>Conflict Past Text</source>
        <translation>Available again once another setting is chosen</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Restore Default Button Text</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>Help Button Text</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Color Balance Window Title String</source>
        <translation>Color Balance</translation>
    </message>
    <message>
        <source>Adjust Color Balance Check Box Text</source>
        <translation>Adjust Color Balance</translation>
    </message>
    <message>
        <source>Target Color Statics Text</source>
        <translation>Target Color:</translation>
    </message>
    <message>
        <source>Target Color Black Text</source>
        <translation>Black</translation>
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
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Low Density Scope Statics Text</source>
        <translation>Low Density:</translation>
    </message>
    <message>
        <source>Mid Density Scope Statics Text</source>
        <translation>Middle Density:</translation>
    </message>
    <message>
        <source>High Density Scope Statics Text</source>
        <translation>High Density:</translation>
    </message>
    <message>
        <source>Density Scope Statics Text</source>
        <translation>(-3 to 3)</translation>
    </message>
    <message>
        <source>Message??</source>
        <translation>Enter a whole number from -3 to 3.</translation>
    </message>
    <message>
        <source>Alert OK Btn</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Image Type Window Title String</source>
        <translation>Image Settings</translation>
    </message>
    <message>
        <source>RGB Color Correction Text</source>
        <translation>RGB Color Correction</translation>
    </message>
    <message>
        <source>CMYK Color Correction Text</source>
        <translation>CMYK Color Correction</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Black Over Print Text</source>
        <translation>Black Overprint</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Text</source>
        <translation>Embedded Profiles</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Print Text</source>
        <translation>Ignore Embedded Profiles</translation>
    </message>
</context>
</TS>
