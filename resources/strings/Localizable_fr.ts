<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Localizable</name>
    <message>
        <source>Graphics Title</source>
        <translation>Options d’image</translation>
    </message>
    <message>
        <source>Help Viewer Title for Image Options</source>
        <translation>Aide des options d’image</translation>
    </message>
    <message>
        <source>Brightness Mini Value Statics Text</source>
        <translation>Plus sombre</translation>
    </message>
    <message>
        <source>Brightness Max Value Statics Text</source>
        <translation>Plus clair</translation>
    </message>
    <message>
        <source>Basic Setting Radio Button</source>
        <translation>Réglages de base</translation>
    </message>
    <message>
        <source>Advanced Setting Radio Button</source>
        <translation>Réglages avancés</translation>
    </message>
    <message>
        <source>Color Balance Button Text</source>
        <translation>Balance des couleurs…</translation>
    </message>
    <message>
        <source>Image Setting Button Text</source>
        <translation>Réglages d’image…</translation>
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
        <translation>Non disponible avec %1</translation>
    </message>
    <message>
        <source>Conflict Past Text</source>
        <translation>De nouveau disponible dès qu’un autre réglage est choisi</translation>
    </message>
    <message>
        <source>Conflict Choice Text</source>
        <translation>%1 : %2</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Restore Default Button Text</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Help Button Text</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Color Balance Window Title String</source>
        <translation>Balance des couleurs</translation>
    </message>
    <message>
        <source>Adjust Color Balance Check Box Text</source>
        <translation>Régler la balance des couleurs</translation>
    </message>
    <message>
        <source>Target Color Statics Text</source>
        <translation>Couleur cible :</translation>
    </message>
    <message>
        <source>Target Color Black Text</source>
        <translation>Noir</translation>
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
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Low Density Scope Statics Text</source>
        <translation>Densité faible :</translation>
    </message>
    <message>
        <source>Mid Density Scope Statics Text</source>
        <translation>Densité moyenne :</translation>
    </message>
    <message>
        <source>High Density Scope Statics Text</source>
        <translation>Densité élevée :</translation>
    </message>
    <message>
        <source>Density Scope Statics Text</source>
        <translation>(-3 à 3)</translation>
    </message>
    <message>
        <source>Message??</source>
        <translation>Saisissez un nombre entier de -3 à 3.</translation>
    </message>
    <message>
        <source>Alert OK Btn</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Image Type Window Title String</source>
        <translation>Réglages d’image</translation>
    </message>
    <message>
        <source>RGB Color Correction Text</source>
        <translation>Correction des couleurs RVB</translation>
    </message>
    <message>
        <source>CMYK Color Correction Text</source>
        <translation>Correction des couleurs CMJN</translation>
    </message>
    <message>
        <source>Black Text</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Black Over Print Text</source>
        <translation>Surimpression du noir</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Text</source>
        <translation>Profils incorporés</translation>
    </message>
    <message>
        <source>Invalidate Color Profile Print Text</source>
        <translation>Ignorer les profils incorporés</translation>
    </message>
</context>
</TS>
