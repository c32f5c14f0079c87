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
    <name>FileSaving</name>
    <message>
        <source>It would be longer than %1 bytes</source>
        <translation>It would be longer than %1 bytes</translation>
    </message>
    <message>
        <source>Nobody reads the pipe</source>
        <translation>Nobody reads the pipe</translation>
    </message>
</context>
<context>
    <name>ReportJournal</name>
    <message>
        <source>the driver %1 of Qt SQL is not installed</source>
        <translation>the driver %1 of Qt SQL is not installed</translation>
    </message>
    <message>
        <source>it is a database of something else, or of a newer version</source>
        <translation>it is a database of something else, or of a newer version</translation>
    </message>
    <message>
        <source>there is no such file any more</source>
        <translation>there is no such file any more</translation>
    </message>
    <message>
        <source>the file has changed, it has %1 bytes instead of %2</source>
        <translation>the file has changed, it has %1 bytes instead of %2</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>the file cannot be read</translation>
    </message>
    <message>
        <source>the file has changed</source>
        <translation>the file has changed</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 cannot be read</translation>
    </message>
    <message>
        <source>not all could be written: %1</source>
        <translation>not all could be written: %1</translation>
    </message>
    <message>
        <source>The journal %1 cannot be opened: %2.</source>
        <translation>The journal %1 cannot be opened: %2.</translation>
    </message>
    <message>
        <source>The journal %1 is damaged and cannot be renamed.</source>
        <translation>The journal %1 is damaged and cannot be renamed.</translation>
    </message>
    <message>
        <source>The journal was damaged and is now %1; %2 entries of it are in a new one.</source>
        <translation>The journal was damaged and is now %1; %2 entries of it are in a new one.</translation>
    </message>
    <message>
        <source>The journal cannot be used: %1.</source>
        <translation>The journal cannot be used: %1.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>there is no such file</translation>
    </message>
    <message>
        <source>the journal cannot be read</source>
        <translation>the journal cannot be read</translation>
    </message>
</context>
<context>
    <name>ReportNews</name>
    <message>
        <source>Filling the report was broken off by an error</source>
        <translation>Filling the report was broken off by an error</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Attributes</source>
        <translation>Attributes</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>(by default)</source>
        <translation>(by default)</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>missing</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>left over</translation>
    </message>
    <message>
        <source>left over: %1</source>
        <translation>left over: %1</translation>
    </message>
    <message>
        <source>The schema is not understood: %1</source>
        <translation>The schema is not understood: %1</translation>
    </message>
    <message>
        <source>The schema is one of &apos;%1&apos;, and the report is none.</source>
        <translation>The schema is one of &apos;%1&apos;, and the report is none.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of these texts, by its code</comment>
        <translation>en</translation>
    </message>
    <message>
        <source>What speaks against this report:</source>
        <translation>What speaks against this report:</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>Missing: %1.</translation>
    </message>
    <message>
        <source>Missing: more than %1.</source>
        <translation>Missing: more than %1.</translation>
    </message>
    <message>
        <source>Left over: %1.</source>
        <translation>Left over: %1.</translation>
    </message>
    <message>
        <source>There is no page.</source>
        <translation>There is no page.</translation>
    </message>
    <message>
        <source>The application has no fonts to write with.</source>
        <translation>The application has no fonts to write with.</translation>
    </message>
    <message>
        <source>PDF cannot be written here.</source>
        <translation>PDF cannot be written here.</translation>
    </message>
    <message>
        <source>It is not well-formed XML, line %1: %2.</source>
        <translation>It is not well-formed XML, line %1: %2.</translation>
    </message>
    <message>
        <source>It has a document type, which no report has.</source>
        <translation>It has a document type, which no report has.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>It cannot be opened.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>There is no such file.</translation>
    </message>
    <message>
        <source>It holds more than any report: %1 bytes.</source>
        <translation>It holds more than any report: %1 bytes.</translation>
    </message>
    <message>
        <source>It holds more than any report: too many elements or attributes, or nested too deeply.</source>
        <translation>It holds more than any report: too many elements or attributes, or nested too deeply.</translation>
    </message>
    <message>
        <source>Whether anything is missing could not be told for all of the report.</source>
        <translation>Whether anything is missing could not be told for all of the report.</translation>
    </message>
</context>
<context>
    <name>ReportSupervisor</name>
    <message>
        <source>the unsaved reports in %1 cannot be taken over</source>
        <translation>the unsaved reports in %1 cannot be taken over</translation>
    </message>
    <message>
        <source>the unsaved report %1 is damaged</source>
        <translation>the unsaved report %1 is damaged</translation>
    </message>
    <message>
        <source>not saved, closed by the operator</source>
        <translation>not saved, closed by the operator</translation>
    </message>
    <message>
        <source>its path is not known</source>
        <translation>its path is not known</translation>
    </message>
    <message>
        <source>another report has been written to its file since</source>
        <translation>another report has been written to its file since</translation>
    </message>
    <message>
        <source>a newer report has the same file</source>
        <translation>a newer report has the same file</translation>
    </message>
    <message>
        <source>a newer file is there</source>
        <translation>a newer file is there</translation>
    </message>
    <message>
        <source>its copy %1 cannot be read</source>
        <translation>its copy %1 cannot be read</translation>
    </message>
    <message>
        <source>%1; it is kept: %2</source>
        <translation>%1; it is kept: %2</translation>
    </message>
    <message>
        <source>there is no such file any more</source>
        <translation>there is no such file any more</translation>
    </message>
    <message>
        <source>another file has taken its place</source>
        <translation>another file has taken its place</translation>
    </message>
    <message>
        <source>it cannot be opened to check it</source>
        <translation>it cannot be opened to check it</translation>
    </message>
    <message>
        <source>%1 is being made</source>
        <translation>%1 is being made</translation>
    </message>
    <message>
        <source>%1 waits for a comment</source>
        <translation>%1 waits for a comment</translation>
    </message>
    <message>
        <source>%1 could not be written, and no copy of it either</source>
        <translation>%1 could not be written, and no copy of it either</translation>
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
    <name>SchemaFault</name>
    <message>
        <source>%1 is included by too many files in a row.</source>
        <translation>%1 is included by too many files in a row.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 cannot be opened.</translation>
    </message>
    <message>
        <source>%1 is not well-formed in line %2: %3.</source>
        <translation>%1 is not well-formed in line %2: %3.</translation>
    </message>
    <message>
        <source>No root is left, since XML does not allow the name &apos;%1&apos;.</source>
        <translation>No root is left, since XML does not allow the name &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;.</source>
        <translation>XML does not allow the name &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; wait for each other.</source>
        <translation>&apos;%1&apos; and &apos;%2&apos; wait for each other.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, which the schema refers to, is defined nowhere.</source>
        <translation>&apos;%1&apos;, which the schema refers to, is defined nowhere.</translation>
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
