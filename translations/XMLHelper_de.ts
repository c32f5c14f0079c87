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
    <name>FileSaving</name>
    <message>
        <source>It would be longer than %1 bytes</source>
        <translation>Er wäre länger als %1 Bytes</translation>
    </message>
    <message>
        <source>Nobody reads the pipe</source>
        <translation>Niemand liest die Pipe</translation>
    </message>
</context>
<context>
    <name>ReportJournal</name>
    <message>
        <source>the driver %1 of Qt SQL is not installed</source>
        <translation>der Treiber %1 von Qt SQL ist nicht installiert</translation>
    </message>
    <message>
        <source>it is a database of something else, or of a newer version</source>
        <translation>das ist die Datenbank von etwas anderem oder von einer neueren Version</translation>
    </message>
    <message>
        <source>there is no such file any more</source>
        <translation>die Datei gibt es nicht mehr</translation>
    </message>
    <message>
        <source>the file has changed, it has %1 bytes instead of %2</source>
        <translation>die Datei hat sich geändert, sie hat %1 Bytes statt %2</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>die Datei ist nicht lesbar</translation>
    </message>
    <message>
        <source>the file has changed</source>
        <translation>die Datei hat sich geändert</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>not all could be written: %1</source>
        <translation>es konnte nicht alles geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The journal %1 cannot be opened: %2.</source>
        <translation>Das Journal %1 lässt sich nicht öffnen: %2.</translation>
    </message>
    <message>
        <source>The journal %1 is damaged and cannot be renamed.</source>
        <translation>Das Journal %1 ist beschädigt und lässt sich nicht umbenennen.</translation>
    </message>
    <message>
        <source>The journal was damaged and is now %1; %2 entries of it are in a new one.</source>
        <translation>Das Journal war beschädigt und ist jetzt %1; %2 Einträge daraus stehen in einem neuen.</translation>
    </message>
    <message>
        <source>The journal cannot be used: %1.</source>
        <translation>Das Journal ist nicht benutzbar: %1.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>the journal cannot be read</source>
        <translation>das Journal kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>ReportNews</name>
    <message>
        <source>Filling the report was broken off by an error</source>
        <translation>Das Füllen des Berichts wurde durch einen Fehler abgebrochen</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>(by default)</source>
        <translation>(Vorgabe)</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>übrig geblieben</translation>
    </message>
    <message>
        <source>left over: %1</source>
        <translation>übrig geblieben: %1</translation>
    </message>
    <message>
        <source>The schema is not understood: %1</source>
        <translation>Das Schema wird nicht verstanden: %1</translation>
    </message>
    <message>
        <source>The schema is one of &apos;%1&apos;, and the report is none.</source>
        <translation>Das Schema ist eines für „%1“, und der Bericht ist keiner.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of these texts, by its code</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>What speaks against this report:</source>
        <translation>Was gegen diesen Bericht spricht:</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>Es fehlen: %1.</translation>
    </message>
    <message>
        <source>Missing: more than %1.</source>
        <translation>Es fehlen: mehr als %1.</translation>
    </message>
    <message>
        <source>Left over: %1.</source>
        <translation>Übrig geblieben: %1.</translation>
    </message>
    <message>
        <source>There is no page.</source>
        <translation>Es gibt keine Seite.</translation>
    </message>
    <message>
        <source>The application has no fonts to write with.</source>
        <translation>Die Anwendung hat keine Schriften, um damit zu schreiben.</translation>
    </message>
    <message>
        <source>PDF cannot be written here.</source>
        <translation>PDF kann hier nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>It is not well-formed XML, line %1: %2.</source>
        <translation>Es ist kein wohlgeformtes XML, Zeile %1: %2.</translation>
    </message>
    <message>
        <source>It has a document type, which no report has.</source>
        <translation>Er hat einen Dokumenttyp, den kein Bericht hat.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>It holds more than any report: %1 bytes.</source>
        <translation>Er enthält mehr als jeder Bericht: %1 Bytes.</translation>
    </message>
    <message>
        <source>It holds more than any report: too many elements or attributes, or nested too deeply.</source>
        <translation>Er enthält mehr als jeder Bericht: zu viele Elemente oder Attribute, oder zu tief geschachtelt.</translation>
    </message>
    <message>
        <source>Whether anything is missing could not be told for all of the report.</source>
        <translation>Ob etwas fehlt, ließ sich nicht für den ganzen Bericht feststellen.</translation>
    </message>
</context>
<context>
    <name>ReportSupervisor</name>
    <message>
        <source>the unsaved reports in %1 cannot be taken over</source>
        <translation>die nicht gespeicherten Berichte in %1 können nicht übernommen werden</translation>
    </message>
    <message>
        <source>the unsaved report %1 is damaged</source>
        <translation>der nicht gespeicherte Bericht %1 ist beschädigt</translation>
    </message>
    <message>
        <source>not saved, closed by the operator</source>
        <translation>nicht gespeichert, vom Bediener geschlossen</translation>
    </message>
    <message>
        <source>its path is not known</source>
        <translation>sein Pfad ist nicht bekannt</translation>
    </message>
    <message>
        <source>another report has been written to its file since</source>
        <translation>seitdem wurde ein anderer Bericht in seine Datei geschrieben</translation>
    </message>
    <message>
        <source>a newer report has the same file</source>
        <translation>ein neuerer Bericht hat dieselbe Datei</translation>
    </message>
    <message>
        <source>a newer file is there</source>
        <translation>dort liegt eine neuere Datei</translation>
    </message>
    <message>
        <source>its copy %1 cannot be read</source>
        <translation>seine Kopie %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1; it is kept: %2</source>
        <translation>%1; er wird aufbewahrt: %2</translation>
    </message>
    <message>
        <source>there is no such file any more</source>
        <translation>die Datei gibt es nicht mehr</translation>
    </message>
    <message>
        <source>another file has taken its place</source>
        <translation>eine andere Datei hat ihren Platz eingenommen</translation>
    </message>
    <message>
        <source>it cannot be opened to check it</source>
        <translation>sie kann zur Prüfung nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 is being made</source>
        <translation>%1 wird gerade erstellt</translation>
    </message>
    <message>
        <source>%1 waits for a comment</source>
        <translation>%1 wartet auf einen Kommentar</translation>
    </message>
    <message>
        <source>%1 could not be written, and no copy of it either</source>
        <translation>%1 konnte nicht geschrieben werden, auch keine Kopie davon</translation>
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
    <name>SchemaFault</name>
    <message>
        <source>%1 is included by too many files in a row.</source>
        <translation>%1 wird durch zu viele Dateien hintereinander eingebunden.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 is not well-formed in line %2: %3.</source>
        <translation>%1 ist in Zeile %2 nicht wohlgeformt: %3.</translation>
    </message>
    <message>
        <source>No root is left, since XML does not allow the name &apos;%1&apos;.</source>
        <translation>Es bleibt keine Wurzel, weil XML den Namen &apos;%1&apos; nicht erlaubt.</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;.</source>
        <translation>XML erlaubt den Namen &apos;%1&apos; nicht.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; wait for each other.</source>
        <translation>&apos;%1&apos; und &apos;%2&apos; warten aufeinander.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, which the schema refers to, is defined nowhere.</source>
        <translation>&apos;%1&apos;, worauf das Schema verweist, ist nirgends definiert.</translation>
    </message>
</context>
<context>
    <name>VCReporting</name>
    <message>
        <source>To Report (Shift+F10)</source>
        <translation>Bericht erstellen (Shift+F10)</translation>
    </message>
</context>
</TS>
