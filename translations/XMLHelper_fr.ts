<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommentDialog</name>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence :</translation>
    </message>
    <message>
        <source>98.5 MHz</source>
        <translation>98.5 MHz</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation>Niveau :</translation>
    </message>
    <message>
        <source>17 dBµV</source>
        <translation>17 dBµV</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Largeur de bande :</translation>
    </message>
    <message>
        <source>150 kHz</source>
        <translation>150 kHz</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Heure :</translation>
    </message>
    <message>
        <source>2008/07/04 10:39:20</source>
        <translation>2008/07/04 10:39:20</translation>
    </message>
    <message>
        <source>Azimuth:</source>
        <translation>Azimut :</translation>
    </message>
    <message>
        <source>235,1°</source>
        <translation>235,1°</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Commentaire :</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>No Comment</source>
        <translation>Sans commentaire</translation>
    </message>
</context>
<context>
    <name>CommentDialogImpl</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>You have enterd a comment. Would you like to save it?</source>
        <translation>Vous avez saisi un commentaire. Voulez-vous l&apos;enregistrer ?</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>ToReport - </source>
        <translation>Rapport - </translation>
    </message>
</context>
<context>
    <name>SchemaBudget</name>
    <message>
        <source>The schema consists of more than %1 files!</source>
        <translation>Le schéma compte plus de %1 fichiers!</translation>
    </message>
    <message>
        <source>The schema consists of more than %1 bytes, repeated includes counted again!</source>
        <translation>Le schéma compte plus de %1 octets, les inclusions répétées comptées à chaque fois!</translation>
    </message>
    <message>
        <source>The schema is nested deeper than %1 elements!</source>
        <translation>Le schéma est imbriqué à plus de %1 éléments de profondeur!</translation>
    </message>
    <message>
        <source>The schema and its includes are nested deeper than %1 elements!</source>
        <translation>Le schéma et ses inclusions sont imbriqués à plus de %1 éléments de profondeur!</translation>
    </message>
    <message>
        <source>An enumeration has more than %1 values!</source>
        <translation>Une énumération a plus de %1 valeurs!</translation>
    </message>
    <message>
        <source>The schema lays out elements nested deeper than %1!</source>
        <translation>Le schéma crée des éléments imbriqués à plus de %1 niveaux!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 attributes!</source>
        <translation>Le schéma crée plus de %1 attributs!</translation>
    </message>
    <message>
        <source>The schema gives elements more than %1 values of enumerations!</source>
        <translation>Le schéma donne aux éléments plus de %1 valeurs d&apos;énumération!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 elements!</source>
        <translation>Le schéma crée plus de %1 éléments!</translation>
    </message>
</context>
<context>
    <name>VCReporting</name>
    <message>
        <source>To Report (Shift+F10)</source>
        <translation>Créer un rapport (Shift+F10)</translation>
    </message>
</context>
</TS>
