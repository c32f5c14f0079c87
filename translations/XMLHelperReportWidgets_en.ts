<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ReportActions</name>
    <message>
        <source>Discard the report</source>
        <translation>Discard the report</translation>
    </message>
    <message>
        <source>Discard report %1? What was measured for it is lost then.</source>
        <translation>Discard report %1? What was measured for it is lost then.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Keep</translation>
    </message>
    <message>
        <source>Co&amp;mment…</source>
        <translation>Co&amp;mment…</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Try again</translation>
    </message>
    <message>
        <source>&amp;Save elsewhere…</source>
        <translation>&amp;Save elsewhere…</translation>
    </message>
    <message>
        <source>&amp;Discard…</source>
        <translation>&amp;Discard…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Show in &amp;folder</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>&amp;Copy path</translation>
    </message>
    <message>
        <source>There is no program that opens %1.</source>
        <translation>There is no program that opens %1.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>There is no folder %1.</translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation>There is no program that shows %1.</translation>
    </message>
    <message>
        <source>The report could still not be saved.</source>
        <translation>The report could still not be saved.</translation>
    </message>
    <message>
        <source>Save the report elsewhere</source>
        <translation>Save the report elsewhere</translation>
    </message>
    <message>
        <source>Reports (*.xml);;All files (*)</source>
        <translation>Reports (*.xml);;All files (*)</translation>
    </message>
    <message>
        <source>The report could not be saved as %1.</source>
        <translation>The report could not be saved as %1.</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Export…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Web page (*.html)</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export the report</source>
        <translation>Export the report</translation>
    </message>
    <message>
        <source>The page could not be saved as %1: %2.</source>
        <translation>The page could not be saved as %1: %2.</translation>
    </message>
</context>
<context>
    <name>ReportList</name>
    <message>
        <source>Verdict</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Earlier sessions</source>
        <translation>Earlier sessions</translation>
    </message>
</context>
<context>
    <name>ReportMessage</name>
    <message>
        <source>No report has been made yet.</source>
        <translation>No report has been made yet.</translation>
    </message>
</context>
<context>
    <name>ReportPanel</name>
    <message>
        <source>Reports would be lost</source>
        <translation>Reports would be lost</translation>
    </message>
    <message>
        <source>If the program ends now, these reports are lost:</source>
        <translation>If the program ends now, these reports are lost:</translation>
    </message>
    <message>
        <source>&amp;Quit all the same</source>
        <translation>&amp;Quit all the same</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>&amp;Stay</translation>
    </message>
    <message>
        <source>&amp;Reports:</source>
        <translation>&amp;Reports:</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Reports</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
</context>
<context>
    <name>ReportView</name>
    <message>
        <source>&amp;XML</source>
        <translation>&amp;XML</translation>
    </message>
    <message>
        <source>Report as XML</source>
        <translation>Report as XML</translation>
    </message>
    <message>
        <source>This report has no file.</source>
        <translation>This report has no file.</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Pa&amp;ge</translation>
    </message>
    <message>
        <source>Report as a page</source>
        <translation>Report as a page</translation>
    </message>
    <message>
        <source>This report is too long to be shown as a page. It can be exported as one.</source>
        <translation>This report is too long to be shown as a page. It can be exported as one.</translation>
    </message>
</context>
<context>
    <name>ReportWords</name>
    <message>
        <source>unknown</source>
        <translation>unknown</translation>
    </message>
    <message>
        <source>Nothing is known of report %1 any more.</source>
        <translation>Nothing is known of report %1 any more.</translation>
    </message>
    <message>
        <source>being made</source>
        <translation>being made</translation>
    </message>
    <message>
        <source>Report %1 is being made.</source>
        <translation>Report %1 is being made.</translation>
    </message>
    <message>
        <source>waits for a comment</source>
        <translation>waits for a comment</translation>
    </message>
    <message>
        <source>Report %1 waits for its comment.</source>
        <translation>Report %1 waits for its comment.</translation>
    </message>
    <message>
        <source>It is not on the disk before its dialog is answered.</source>
        <translation>It is not on the disk before its dialog is answered.</translation>
    </message>
    <message>
        <source>written</source>
        <translation>written</translation>
    </message>
    <message>
        <source>Report %1 is written.</source>
        <translation>Report %1 is written.</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>damaged</translation>
    </message>
    <message>
        <source>Report %1 is written, but its file is damaged.</source>
        <translation>Report %1 is written, but its file is damaged.</translation>
    </message>
    <message>
        <source>Make the report again, and have the disk looked at.</source>
        <translation>Make the report again, and have the disk looked at.</translation>
    </message>
    <message>
        <source>breaks its schema</source>
        <translation>breaks its schema</translation>
    </message>
    <message>
        <source>Report %1 is written, but it breaks a rule of its schema.</source>
        <translation>Report %1 is written, but it breaks a rule of its schema.</translation>
    </message>
    <message>
        <source>Show the file to whoever keeps the schema.</source>
        <translation>Show the file to whoever keeps the schema.</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>gone</translation>
    </message>
    <message>
        <source>Report %1 was written, but its file is gone.</source>
        <translation>Report %1 was written, but its file is gone.</translation>
    </message>
    <message>
        <source>Bring the file back, or make the report again.</source>
        <translation>Bring the file back, or make the report again.</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>not saved yet</translation>
    </message>
    <message>
        <source>Report %1 is not saved yet. It is tried again by itself.</source>
        <translation>Report %1 is not saved yet. It is tried again by itself.</translation>
    </message>
    <message>
        <source>not saved, kept</source>
        <translation>not saved, kept</translation>
    </message>
    <message>
        <source>Report %1 is not saved. It is kept until you decide.</source>
        <translation>Report %1 is not saved. It is kept until you decide.</translation>
    </message>
    <message>
        <source>Save it elsewhere, try again, or discard it.</source>
        <translation>Save it elsewhere, try again, or discard it.</translation>
    </message>
    <message>
        <source>kept from earlier</source>
        <translation>kept from earlier</translation>
    </message>
    <message>
        <source>Report %1 could not be saved when the program ran before. It is kept.</source>
        <translation>Report %1 could not be saved when the program ran before. It is kept.</translation>
    </message>
    <message>
        <source>Try again, save it elsewhere, or discard it.</source>
        <translation>Try again, save it elsewhere, or discard it.</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>not saved</translation>
    </message>
    <message>
        <source>Report %1 could not be saved, and is lost.</source>
        <translation>Report %1 could not be saved, and is lost.</translation>
    </message>
    <message>
        <source>Remove the cause and make the report again.</source>
        <translation>Remove the cause and make the report again.</translation>
    </message>
    <message>
        <source>closed, not saved</source>
        <translation>closed, not saved</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its comment dialog was closed.</source>
        <translation>Report %1 is not saved: its comment dialog was closed.</translation>
    </message>
    <message>
        <source>discarded</source>
        <translation>discarded</translation>
    </message>
    <message>
        <source>Report %1 is not saved: it was discarded.</source>
        <translation>Report %1 is not saved: it was discarded.</translation>
    </message>
    <message>
        <source>schema not understood</source>
        <translation>schema not understood</translation>
    </message>
    <message>
        <source>Report %1 is written, but its schema was not understood.</source>
        <translation>Report %1 is written, but its schema was not understood.</translation>
    </message>
    <message>
        <source>Have the schema mended, and make the report again.</source>
        <translation>Have the schema mended, and make the report again.</translation>
    </message>
    <message>
        <source>A copy is safe, also when the program ends.</source>
        <translation>A copy is safe, also when the program ends.</translation>
    </message>
    <message>
        <source>There is no copy of it: it would be lost if the program ended.</source>
        <translation>There is no copy of it: it would be lost if the program ended.</translation>
    </message>
    <message>
        <source>The file is there, and is being checked.</source>
        <translation>The file is there, and is being checked.</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(without a name)</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Reason: %1.</translation>
    </message>
    <message>
        <source>Its dialog can be opened again: the values are still there.</source>
        <translation>Its dialog can be opened again: the values are still there.</translation>
    </message>
    <message>
        <source>Not saved yet: %1.</source>
        <translation>Not saved yet: %1.</translation>
    </message>
    <message>
        <source>%1 Next try in %2 s.</source>
        <translation>%1 Next try in %2 s.</translation>
    </message>
    <message>
        <source>The file is there, and no fault is known.</source>
        <translation>The file is there, and no fault is known.</translation>
    </message>
</context>
</TS>
