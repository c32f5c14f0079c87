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
    <name>VCReporting</name>
    <message>
        <source>To Report (Shift+F10)</source>
        <translation>Zum Bericht (Shift+F10)</translation>
    </message>
</context>
</TS>
