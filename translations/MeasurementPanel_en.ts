<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>PanelWindow</name>
    <message>
        <source>Measurement Panel</source>
        <translation>Measurement Panel</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>no bearing</source>
        <translation>no bearing</translation>
    </message>
    <message>
        <source>Report directory</source>
        <translation>Report directory</translation>
    </message>
    <message>
        <source>No report is made.</source>
        <translation>No report is made.</translation>
    </message>
    <message>
        <source>Fi&amp;le</source>
        <translation>Fi&amp;le</translation>
    </message>
    <message>
        <source>&amp;Make a report</source>
        <translation>&amp;Make a report</translation>
    </message>
    <message>
        <source>Setti&amp;ngs</source>
        <translation>Setti&amp;ngs</translation>
    </message>
    <message>
        <source>Choose the report &amp;directory…</source>
        <translation>Choose the report &amp;directory…</translation>
    </message>
    <message>
        <source>&amp;Ask for a comment</source>
        <translation>&amp;Ask for a comment</translation>
    </message>
    <message>
        <source>Reports &amp;in:</source>
        <translation>Reports &amp;in:</translation>
    </message>
    <message>
        <source>No report can be made: %1 is missing.</source>
        <translation>No report can be made: %1 is missing.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt;, bandwidth %2, level &lt;b&gt;%3&lt;/b&gt;, %4</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;, bandwidth %2, level &lt;b&gt;%3&lt;/b&gt;, %4</translation>
    </message>
    <message>
        <source>azimuth %1</source>
        <translation>azimuth %1</translation>
    </message>
</context>
<context>
    <name>Supervision</name>
    <message>
        <source>Report %1, %2</source>
        <extracomment>%1 is a number, %2 a time to the millisecond</extracomment>
        <translation>Report %1, %2</translation>
    </message>
</context>
</TS>
