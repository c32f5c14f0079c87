<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CommentDialog</name>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Frequency:</translation>
    </message>
    <message>
        <source>98.5 MHz</source>
        <translation>98.5 MHz</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation>Level:</translation>
    </message>
    <message>
        <source>17 dBµV</source>
        <translation>17 dBµV</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bandwidth:</translation>
    </message>
    <message>
        <source>150 kHz</source>
        <translation>150 kHz</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Time:</translation>
    </message>
    <message>
        <source>2008/07/04 10:39:20</source>
        <translation>2008/07/04 10:39:20</translation>
    </message>
    <message>
        <source>Azimuth:</source>
        <translation>Azimuth:</translation>
    </message>
    <message>
        <source>235,1°</source>
        <translation>235,1°</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Comment:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>No Comment</source>
        <translation>No Comment</translation>
    </message>
</context>
<context>
    <name>CommentDialogImpl</name>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>You have enterd a comment. Would you like to save it?</source>
        <translation>You have entered a comment. Would you like to save it?</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>ToReport - </source>
        <translation>ToReport - </translation>
    </message>
</context>
<context>
    <name>SchemaBudget</name>
    <message>
        <source>The schema consists of more than %1 files!</source>
        <translation>The schema consists of more than %1 files!</translation>
    </message>
    <message>
        <source>The schema consists of more than %1 bytes, repeated includes counted again!</source>
        <translation>The schema consists of more than %1 bytes, repeated includes counted again!</translation>
    </message>
    <message>
        <source>The schema is nested deeper than %1 elements!</source>
        <translation>The schema is nested deeper than %1 elements!</translation>
    </message>
    <message>
        <source>The schema and its includes are nested deeper than %1 elements!</source>
        <translation>The schema and its includes are nested deeper than %1 elements!</translation>
    </message>
    <message>
        <source>An enumeration has more than %1 values!</source>
        <translation>An enumeration has more than %1 values!</translation>
    </message>
    <message>
        <source>The schema lays out elements nested deeper than %1!</source>
        <translation>The schema lays out elements nested deeper than %1!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 attributes!</source>
        <translation>The schema lays out more than %1 attributes!</translation>
    </message>
    <message>
        <source>The schema gives elements more than %1 values of enumerations!</source>
        <translation>The schema gives elements more than %1 values of enumerations!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 elements!</source>
        <translation>The schema lays out more than %1 elements!</translation>
    </message>
</context>
<context>
    <name>VCReporting</name>
    <message>
        <source>To Report (Shift+F10)</source>
        <translation>To Report (Shift+F10)</translation>
    </message>
</context>
</TS>
