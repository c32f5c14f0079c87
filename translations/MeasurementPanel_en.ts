<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Show this help.</translation>
    </message>
    <message>
        <source>Press the report button &lt;times&gt; times, print the paths of the reports and end. Needs no screen.</source>
        <translation>Press the report button &lt;times&gt; times, print the paths of the reports and end. Needs no screen.</translation>
    </message>
    <message>
        <source>Write the reports into &lt;directory&gt;; by default the one chosen last, or &quot;Measurement Reports&quot; among your documents, but with --press it must be given.</source>
        <translation>Write the reports into &lt;directory&gt;; by default the one chosen last, or &quot;Measurement Reports&quot; among your documents, but with --press it must be given.</translation>
    </message>
    <message>
        <source>Use the schema &lt;file&gt;; by default the one chosen last, or the one beside the program.</source>
        <translation>Use the schema &lt;file&gt;; by default the one chosen last, or the one beside the program.</translation>
    </message>
    <message>
        <source>Speak &lt;language&gt;, such as en, de or fr; by default the one chosen last, or that of the system.</source>
        <translation>Speak &lt;language&gt;, such as en, de or fr; by default the one chosen last, or that of the system.</translation>
    </message>
    <message>
        <source>Remember what is chosen in &lt;file&gt;; by default in a file of the user. With --press nothing is remembered.</source>
        <translation>Remember what is chosen in &lt;file&gt;; by default in a file of the user. With --press nothing is remembered.</translation>
    </message>
    <message>
        <source>With --press: ask for the comment dialog and answer it with &lt;text&gt;.</source>
        <translation>With --press: ask for the comment dialog and answer it with &lt;text&gt;.</translation>
    </message>
    <message>
        <source>With --press: save a picture of the window as &lt;file&gt; (PNG), and one of the dialog beside it.</source>
        <translation>With --press: save a picture of the window as &lt;file&gt; (PNG), and one of the dialog beside it.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unexpected argument &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number of presses.</source>
        <translation>&apos;%1&apos; is no number of presses.</translation>
    </message>
    <message>
        <source>--press needs --reports.</source>
        <translation>--press needs --reports.</translation>
    </message>
    <message>
        <source>--comment and --screenshot need --press.</source>
        <translation>--comment and --screenshot need --press.</translation>
    </message>
    <message>
        <source>The path after --%1 is empty.</source>
        <translation>The path after --%1 is empty.</translation>
    </message>
    <message>
        <source>A measurement screen with the report button, on simulated values.</source>
        <translation>A measurement screen with the report button, on simulated values.</translation>
    </message>
    <message>
        <source>There is no screen; use --press.</source>
        <translation>There is no screen; use --press.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>en</source>
        <comment>the code of the language that is spoken</comment>
        <translation>en</translation>
    </message>
</context>
<context>
    <name>LevelTrace</name>
    <message>
        <source>Frequency in %1</source>
        <translation>Frequency in %1</translation>
    </message>
    <message>
        <source>Level in %1</source>
        <translation>Level in %1</translation>
    </message>
    <message>
        <source>Level over frequency: %1</source>
        <translation>Level over frequency: %1</translation>
    </message>
</context>
<context>
    <name>Operator</name>
    <message>
        <source>The report button is disabled: the schema or the report directory is missing.</source>
        <translation>The report button is disabled: the schema or the report directory is missing.</translation>
    </message>
    <message>
        <source>The report has not arrived.</source>
        <translation>The report has not arrived.</translation>
    </message>
    <message>
        <source>The report is empty.</source>
        <translation>The report is empty.</translation>
    </message>
    <message>
        <source>The comment dialog has not appeared.</source>
        <translation>The comment dialog has not appeared.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>Cannot write %1.</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Reports not saved yet</source>
        <translation>Reports not saved yet</translation>
    </message>
    <message>
        <source>Reports that wait for their comments: %1. They are not on the disk before their dialogs are answered.</source>
        <translation>Reports that wait for their comments: %1. They are not on the disk before their dialogs are answered.</translation>
    </message>
    <message>
        <source>Save all without comment</source>
        <translation>Save all without comment</translation>
    </message>
    <message>
        <source>Go through them</source>
        <translation>Go through them</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Stay</translation>
    </message>
    <message>
        <source>Measurement Panel</source>
        <translation>Measurement Panel</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Ask for a comment</source>
        <translation>Ask for a comment</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Settings</translation>
    </message>
    <message>
        <source>Choose the &amp;schema...</source>
        <translation>Choose the &amp;schema...</translation>
    </message>
    <message>
        <source>Choose the report &amp;directory...</source>
        <translation>Choose the report &amp;directory...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandwidth</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimuth</translation>
    </message>
    <message>
        <source>Reports of this session</source>
        <translation>Reports of this session</translation>
    </message>
    <message>
        <source>The last report</source>
        <translation>The last report</translation>
    </message>
    <message>
        <source>Press the button in the tool bar to write a report.</source>
        <translation>Press the button in the tool bar to write a report.</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>No report yet</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <translation>Last report: %1</translation>
    </message>
    <message>
        <source>Modulation: %1</source>
        <translation>Modulation: %1</translation>
    </message>
    <message>
        <source>Channel filter</source>
        <translation>Channel filter</translation>
    </message>
    <message>
        <source>Detector: %1</source>
        <translation>Detector: %1</translation>
    </message>
    <message>
        <source>no bearing</source>
        <translation>no bearing</translation>
    </message>
    <message>
        <source>Quality: %1</source>
        <translation>Quality: %1</translation>
    </message>
    <message>
        <source>Schema and report directory are available</source>
        <translation>Schema and report directory are available</translation>
    </message>
    <message>
        <source>The schema is missing: %1</source>
        <translation>The schema is missing: %1</translation>
    </message>
    <message>
        <source>The report directory is missing: %1</source>
        <translation>The report directory is missing: %1</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Schemas (*.xsd)</source>
        <translation>Schemas (*.xsd)</translation>
    </message>
    <message>
        <source>Report directory</source>
        <translation>Report directory</translation>
    </message>
</context>
<context>
    <name>PressText</name>
    <message>
        <source>waiting for comment</source>
        <translation>waiting for comment</translation>
    </message>
    <message>
        <source>written</source>
        <translation>written</translation>
    </message>
    <message>
        <source>written, breaks its schema</source>
        <translation>written, breaks its schema</translation>
    </message>
    <message>
        <source>not saved: cancelled</source>
        <translation>not saved: cancelled</translation>
    </message>
    <message>
        <source>not made: no schema</source>
        <translation>not made: no schema</translation>
    </message>
    <message>
        <source>not in order: schema gone</source>
        <translation>not in order: schema gone</translation>
    </message>
    <message>
        <source>not in order: schema not understood</source>
        <translation>not in order: schema not understood</translation>
    </message>
    <message>
        <source>not saved: directory gone</source>
        <translation>not saved: directory gone</translation>
    </message>
    <message>
        <source>not saved: no directory</source>
        <translation>not saved: no directory</translation>
    </message>
    <message>
        <source>not saved: directory not writable</source>
        <translation>not saved: directory not writable</translation>
    </message>
    <message>
        <source>not saved: disk full</source>
        <translation>not saved: disk full</translation>
    </message>
    <message>
        <source>not saved: file empty</source>
        <translation>not saved: file empty</translation>
    </message>
    <message>
        <source>not saved: file incomplete</source>
        <translation>not saved: file incomplete</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>not saved</translation>
    </message>
    <message>
        <source>Report %1 is written when its comment dialog is answered.</source>
        <translation>Report %1 is written when its comment dialog is answered.</translation>
    </message>
    <message>
        <source>Report written: %1</source>
        <translation>Report written: %1</translation>
    </message>
    <message>
        <source>Report %1 is written, but it breaks a rule of its schema.</source>
        <translation>Report %1 is written, but it breaks a rule of its schema.</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its comment dialog was closed with Cancel.</source>
        <translation>Report %1 is not saved: its comment dialog was closed with Cancel.</translation>
    </message>
    <message>
        <source>Report %1 was not made: the name of the schema does not end in &quot;.xsd&quot;.</source>
        <translation>Report %1 was not made: the name of the schema does not end in &quot;.xsd&quot;.</translation>
    </message>
    <message>
        <source>Report %1 is not in order: the schema could not be read, it is gone.</source>
        <translation>Report %1 is not in order: the schema could not be read, it is gone.</translation>
    </message>
    <message>
        <source>Report %1 is not in order: the schema could not be read.</source>
        <translation>Report %1 is not in order: the schema could not be read.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: the report directory is gone.</source>
        <translation>Report %1 could not be written: the report directory is gone.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: there is a file in place of the report directory.</source>
        <translation>Report %1 could not be written: there is a file in place of the report directory.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: the report directory is not writable.</source>
        <translation>Report %1 could not be written: the report directory is not writable.</translation>
    </message>
    <message>
        <source>Report %1 could not be written in full: the disk is full.</source>
        <translation>Report %1 could not be written in full: the disk is full.</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its file is empty.</source>
        <translation>Report %1 is not saved: its file is empty.</translation>
    </message>
    <message>
        <source>Report %1 is not saved in full: its file breaks off in line %2, column %3.</source>
        <translation>Report %1 is not saved in full: its file breaks off in line %2, column %3.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: its file is not there.</source>
        <translation>Report %1 could not be written: its file is not there.</translation>
    </message>
    <message>
        <source>Then open the comment dialog again and save: the values are still there.</source>
        <translation>Then open the comment dialog again and save: the values are still there.</translation>
    </message>
    <message>
        <source>Then press the button again.</source>
        <translation>Then press the button again.</translation>
    </message>
    <message>
        <source>Type the comment and press Ctrl+Enter. Nothing is on the disk before that.</source>
        <translation>Type the comment and press Ctrl+Enter. Nothing is on the disk before that.</translation>
    </message>
    <message>
        <source>The file is there, not empty and well-formed.</source>
        <translation>The file is there, not empty and well-formed.</translation>
    </message>
    <message>
        <source>Show the file to whoever keeps the schema.</source>
        <translation>Show the file to whoever keeps the schema.</translation>
    </message>
    <message>
        <source>Open the comment dialog again to save it: the values are still there.</source>
        <translation>Open the comment dialog again to save it: the values are still there.</translation>
    </message>
    <message>
        <source>Choose a schema in the menu Settings; now it is %1.</source>
        <translation>Choose a schema in the menu Settings; now it is %1.</translation>
    </message>
    <message>
        <source>Bring the schema %1 back, or choose another one in the menu Settings. Then press the button again.</source>
        <translation>Bring the schema %1 back, or choose another one in the menu Settings. Then press the button again.</translation>
    </message>
    <message>
        <source>Have the schema %1 mended, or choose another one in the menu Settings. Then press the button again; what this press has written is no report.</source>
        <translation>Have the schema %1 mended, or choose another one in the menu Settings. Then press the button again; what this press has written is no report.</translation>
    </message>
    <message>
        <source>Make the directory %1 again.</source>
        <translation>Make the directory %1 again.</translation>
    </message>
    <message>
        <source>Move the file %1 away and make a directory of that name.</source>
        <translation>Move the file %1 away and make a directory of that name.</translation>
    </message>
    <message>
        <source>Have the right to write given to you in %1.</source>
        <translation>Have the right to write given to you in %1.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Make room on the disk of %1.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1, and delete the incomplete file.</source>
        <translation>Make room on the disk of %1, and delete the incomplete file.</translation>
    </message>
    <message>
        <source>Have the disk of %1 looked at.</source>
        <translation>Have the disk of %1 looked at.</translation>
    </message>
    <message>
        <source>The file is there, well-formed, and keeps to its schema.</source>
        <translation>The file is there, well-formed, and keeps to its schema.</translation>
    </message>
    <message>
        <source>not in order: several roots</source>
        <translation>not in order: several roots</translation>
    </message>
    <message>
        <source>Report %1 is not in order: its schema lays out several roots, so it is no XML document.</source>
        <translation>Report %1 is not in order: its schema lays out several roots, so it is no XML document.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>ReportMessage</name>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Copy path</translation>
    </message>
    <message>
        <source>Open the comment dialog</source>
        <translation>Open the comment dialog</translation>
    </message>
    <message>
        <source>No report has been made in this session.</source>
        <translation>No report has been made in this session.</translation>
    </message>
    <message>
        <source>Press the button in the tool bar, or Shift+F10.</source>
        <translation>Press the button in the tool bar, or Shift+F10.</translation>
    </message>
    <message>
        <source>There is no program that opens %1.</source>
        <translation>There is no program that opens %1.</translation>
    </message>
</context>
<context>
    <name>SessionLog</name>
    <message>
        <source>No.</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
</context>
</TS>
