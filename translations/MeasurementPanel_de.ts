<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PanelWindow</name>
    <message>
        <source>Measurement Panel</source>
        <translation>Messpult</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>no bearing</source>
        <translation>keine Peilung</translation>
    </message>
    <message>
        <source>Report directory</source>
        <translation>Berichtsverzeichnis</translation>
    </message>
    <message>
        <source>No report is made.</source>
        <translation>Es ist kein Bericht entstanden.</translation>
    </message>
    <message>
        <source>Fi&amp;le</source>
        <translation>Date&amp;i</translation>
    </message>
    <message>
        <source>&amp;Make a report</source>
        <translation>Bericht &amp;erstellen</translation>
    </message>
    <message>
        <source>Setti&amp;ngs</source>
        <translation>Einste&amp;llungen</translation>
    </message>
    <message>
        <source>Choose the report &amp;directory…</source>
        <translation>Berichts&amp;verzeichnis wählen …</translation>
    </message>
    <message>
        <source>&amp;Ask for a comment</source>
        <translation>&amp;Nach Kommentar fragen</translation>
    </message>
    <message>
        <source>Reports &amp;in:</source>
        <translation>Be&amp;richte in:</translation>
    </message>
    <message>
        <source>No report can be made: %1 is missing.</source>
        <translation>Es kann kein Bericht entstehen: %1 fehlt.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt;, bandwidth %2, level &lt;b&gt;%3&lt;/b&gt;, %4</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;, Bandbreite %2, Pegel &lt;b&gt;%3&lt;/b&gt;, %4</translation>
    </message>
    <message>
        <source>azimuth %1</source>
        <translation>Azimut %1</translation>
    </message>
</context>
<context>
    <name>Supervision</name>
    <message>
        <source>Report %1, %2</source>
        <extracomment>%1 is a number, %2 a time to the millisecond</extracomment>
        <translation>Bericht %1, %2</translation>
    </message>
</context>
</TS>
