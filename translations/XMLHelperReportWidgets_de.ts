<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ReportActions</name>
    <message>
        <source>Discard the report</source>
        <translation>Bericht verwerfen</translation>
    </message>
    <message>
        <source>Discard report %1? What was measured for it is lost then.</source>
        <translation>Bericht %1 verwerfen? Was dafür gemessen wurde, ist dann verloren.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Ver&amp;werfen</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>Co&amp;mment…</source>
        <translation>Ko&amp;mmentar…</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>Erneut &amp;versuchen</translation>
    </message>
    <message>
        <source>&amp;Save elsewhere…</source>
        <translation>&amp;Anderswo speichern…</translation>
    </message>
    <message>
        <source>&amp;Discard…</source>
        <translation>Ver&amp;werfen…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>Pfad &amp;kopieren</translation>
    </message>
    <message>
        <source>There is no program that opens %1.</source>
        <translation>Es gibt kein Programm, das %1 öffnet.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Es gibt keinen Ordner %1.</translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation>Es gibt kein Programm, das %1 zeigt.</translation>
    </message>
    <message>
        <source>The report could still not be saved.</source>
        <translation>Der Bericht ließ sich immer noch nicht speichern.</translation>
    </message>
    <message>
        <source>Save the report elsewhere</source>
        <translation>Bericht anderswo speichern</translation>
    </message>
    <message>
        <source>Reports (*.xml);;All files (*)</source>
        <translation>Berichte (*.xml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The report could not be saved as %1.</source>
        <translation>Der Bericht ließ sich nicht als %1 speichern.</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken…</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Webseite (*.html)</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export the report</source>
        <translation>Bericht exportieren</translation>
    </message>
    <message>
        <source>The page could not be saved as %1: %2.</source>
        <translation>Die Seite ließ sich nicht als %1 speichern: %2.</translation>
    </message>
</context>
<context>
    <name>ReportList</name>
    <message>
        <source>Verdict</source>
        <translation>Urteil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Earlier sessions</source>
        <translation>Frühere Sitzungen</translation>
    </message>
</context>
<context>
    <name>ReportMessage</name>
    <message>
        <source>No report has been made yet.</source>
        <translation>Es wurde noch kein Bericht erstellt.</translation>
    </message>
</context>
<context>
    <name>ReportPanel</name>
    <message>
        <source>Reports would be lost</source>
        <translation>Berichte gingen verloren</translation>
    </message>
    <message>
        <source>If the program ends now, these reports are lost:</source>
        <translation>Wenn das Programm jetzt endet, sind diese Berichte verloren:</translation>
    </message>
    <message>
        <source>&amp;Quit all the same</source>
        <translation>&amp;Trotzdem beenden</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>&amp;Bleiben</translation>
    </message>
    <message>
        <source>&amp;Reports:</source>
        <translation>&amp;Berichte:</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
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
        <translation>Bericht als XML</translation>
    </message>
    <message>
        <source>This report has no file.</source>
        <translation>Dieser Bericht hat keine Datei.</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>&amp;Seite</translation>
    </message>
    <message>
        <source>Report as a page</source>
        <translation>Bericht als Seite</translation>
    </message>
    <message>
        <source>This report is too long to be shown as a page. It can be exported as one.</source>
        <translation>Dieser Bericht ist zu lang, um als Seite gezeigt zu werden. Er lässt sich als Seite exportieren.</translation>
    </message>
</context>
<context>
    <name>ReportWords</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>Nothing is known of report %1 any more.</source>
        <translation>Über den Bericht %1 ist nichts mehr bekannt.</translation>
    </message>
    <message>
        <source>being made</source>
        <translation>wird erstellt</translation>
    </message>
    <message>
        <source>Report %1 is being made.</source>
        <translation>Bericht %1 wird erstellt.</translation>
    </message>
    <message>
        <source>waits for a comment</source>
        <translation>wartet auf Kommentar</translation>
    </message>
    <message>
        <source>Report %1 waits for its comment.</source>
        <translation>Bericht %1 wartet auf seinen Kommentar.</translation>
    </message>
    <message>
        <source>It is not on the disk before its dialog is answered.</source>
        <translation>Er ist erst auf der Platte, wenn sein Dialog beantwortet ist.</translation>
    </message>
    <message>
        <source>written</source>
        <translation>geschrieben</translation>
    </message>
    <message>
        <source>Report %1 is written.</source>
        <translation>Bericht %1 ist geschrieben.</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>Report %1 is written, but its file is damaged.</source>
        <translation>Bericht %1 ist geschrieben, aber seine Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>Make the report again, and have the disk looked at.</source>
        <translation>Erstellen Sie den Bericht noch einmal, und lassen Sie die Platte prüfen.</translation>
    </message>
    <message>
        <source>breaks its schema</source>
        <translation>verletzt sein Schema</translation>
    </message>
    <message>
        <source>Report %1 is written, but it breaks a rule of its schema.</source>
        <translation>Bericht %1 ist geschrieben, verletzt aber eine Regel seines Schemas.</translation>
    </message>
    <message>
        <source>Show the file to whoever keeps the schema.</source>
        <translation>Zeigen Sie die Datei dem, der das Schema pflegt.</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>verschwunden</translation>
    </message>
    <message>
        <source>Report %1 was written, but its file is gone.</source>
        <translation>Bericht %1 wurde geschrieben, aber seine Datei ist verschwunden.</translation>
    </message>
    <message>
        <source>Bring the file back, or make the report again.</source>
        <translation>Holen Sie die Datei zurück, oder erstellen Sie den Bericht noch einmal.</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Report %1 is not saved yet. It is tried again by itself.</source>
        <translation>Bericht %1 ist noch nicht gespeichert. Das wird von selbst erneut versucht.</translation>
    </message>
    <message>
        <source>not saved, kept</source>
        <translation>aufbewahrt</translation>
    </message>
    <message>
        <source>Report %1 is not saved. It is kept until you decide.</source>
        <translation>Bericht %1 ist nicht gespeichert. Er wird aufbewahrt, bis Sie entscheiden.</translation>
    </message>
    <message>
        <source>Save it elsewhere, try again, or discard it.</source>
        <translation>Speichern Sie ihn anderswo, versuchen Sie es erneut, oder verwerfen Sie ihn.</translation>
    </message>
    <message>
        <source>kept from earlier</source>
        <translation>von früher aufbewahrt</translation>
    </message>
    <message>
        <source>Report %1 could not be saved when the program ran before. It is kept.</source>
        <translation>Bericht %1 ließ sich bei einem früheren Lauf des Programms nicht speichern. Er wird aufbewahrt.</translation>
    </message>
    <message>
        <source>Try again, save it elsewhere, or discard it.</source>
        <translation>Versuchen Sie es erneut, speichern Sie ihn anderswo, oder verwerfen Sie ihn.</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>Report %1 could not be saved, and is lost.</source>
        <translation>Bericht %1 ließ sich nicht speichern und ist verloren.</translation>
    </message>
    <message>
        <source>Remove the cause and make the report again.</source>
        <translation>Beheben Sie die Ursache, und erstellen Sie den Bericht noch einmal.</translation>
    </message>
    <message>
        <source>closed, not saved</source>
        <translation>geschlossen, nicht gespeichert</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its comment dialog was closed.</source>
        <translation>Bericht %1 ist nicht gespeichert: Sein Kommentardialog wurde geschlossen.</translation>
    </message>
    <message>
        <source>discarded</source>
        <translation>verworfen</translation>
    </message>
    <message>
        <source>Report %1 is not saved: it was discarded.</source>
        <translation>Bericht %1 ist nicht gespeichert: Er wurde verworfen.</translation>
    </message>
    <message>
        <source>schema not understood</source>
        <translation>Schema nicht verstanden</translation>
    </message>
    <message>
        <source>Report %1 is written, but its schema was not understood.</source>
        <translation>Bericht %1 ist geschrieben, aber sein Schema wurde nicht verstanden.</translation>
    </message>
    <message>
        <source>Have the schema mended, and make the report again.</source>
        <translation>Lassen Sie das Schema in Ordnung bringen, und erstellen Sie den Bericht noch einmal.</translation>
    </message>
    <message>
        <source>A copy is safe, also when the program ends.</source>
        <translation>Eine Kopie ist sicher, auch wenn das Programm endet.</translation>
    </message>
    <message>
        <source>There is no copy of it: it would be lost if the program ended.</source>
        <translation>Es gibt keine Kopie von ihm: Er ginge verloren, wenn das Programm endete.</translation>
    </message>
    <message>
        <source>The file is there, and is being checked.</source>
        <translation>Die Datei ist da und wird geprüft.</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(ohne Namen)</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Grund: %1.</translation>
    </message>
    <message>
        <source>Its dialog can be opened again: the values are still there.</source>
        <translation>Sein Dialog lässt sich wieder öffnen: Die Werte sind noch da.</translation>
    </message>
    <message>
        <source>Not saved yet: %1.</source>
        <translation>Noch nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>%1 Next try in %2 s.</source>
        <translation>%1 Nächster Versuch in %2 s.</translation>
    </message>
    <message>
        <source>The file is there, and no fault is known.</source>
        <translation>Die Datei ist da, und kein Fehler ist bekannt.</translation>
    </message>
</context>
</TS>
