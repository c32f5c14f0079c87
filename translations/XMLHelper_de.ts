<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommentDialog</name>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequenz:</translation>
    </message>
    <message>
        <source>98.5 MHz</source>
        <translation>98.5 MHz</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation>Pegel:</translation>
    </message>
    <message>
        <source>17 dBµV</source>
        <translation>17 dBµV</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bandbreite:</translation>
    </message>
    <message>
        <source>150 kHz</source>
        <translation>150 kHz</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Zeit:</translation>
    </message>
    <message>
        <source>2008/07/04 10:39:20</source>
        <translation>2008/07/04 10:39:20</translation>
    </message>
    <message>
        <source>Azimuth:</source>
        <translation>Azimut:</translation>
    </message>
    <message>
        <source>235,1°</source>
        <translation>235,1°</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Kommentar:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>No Comment</source>
        <translation>Ohne Kommentar</translation>
    </message>
</context>
<context>
    <name>CommentDialogImpl</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>You have enterd a comment. Would you like to save it?</source>
        <translation>Sie haben einen Kommentar eingegeben. Möchten Sie ihn speichern?</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>ToReport - </source>
        <translation>Bericht - </translation>
    </message>
</context>
<context>
    <name>SchemaBudget</name>
    <message>
        <source>The schema consists of more than %1 files!</source>
        <translation>Das Schema besteht aus mehr als %1 Dateien!</translation>
    </message>
    <message>
        <source>The schema consists of more than %1 bytes, repeated includes counted again!</source>
        <translation>Das Schema hat mehr als %1 Bytes, wiederholt Eingebundenes jedes Mal gezählt!</translation>
    </message>
    <message>
        <source>The schema is nested deeper than %1 elements!</source>
        <translation>Das Schema ist tiefer als %1 Elemente verschachtelt!</translation>
    </message>
    <message>
        <source>The schema and its includes are nested deeper than %1 elements!</source>
        <translation>Das Schema und was es einbindet sind tiefer als %1 Elemente verschachtelt!</translation>
    </message>
    <message>
        <source>An enumeration has more than %1 values!</source>
        <translation>Eine Aufzählung hat mehr als %1 Werte!</translation>
    </message>
    <message>
        <source>The schema lays out elements nested deeper than %1!</source>
        <translation>Das Schema legt Elemente an, die tiefer als %1 verschachtelt sind!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 attributes!</source>
        <translation>Das Schema legt mehr als %1 Attribute an!</translation>
    </message>
    <message>
        <source>The schema gives elements more than %1 values of enumerations!</source>
        <translation>Das Schema gibt Elementen mehr als %1 Aufzählungswerte!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 elements!</source>
        <translation>Das Schema legt mehr als %1 Elemente an!</translation>
    </message>
</context>
<context>
    <name>VCReporting</name>
    <message>
        <source>To Report (Shift+F10)</source>
        <translation>Zum Bericht (Shift+F10)</translation>
    </message>
</context>
</TS>
