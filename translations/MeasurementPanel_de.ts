<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Zeigt diese Hilfe.</translation>
    </message>
    <message>
        <source>Press the report button &lt;times&gt; times, print the paths of the reports and end. Needs no screen.</source>
        <translation>Drückt den Berichtsknopf &lt;times&gt; Mal, gibt die Pfade der Berichte aus und endet. Braucht keinen Bildschirm.</translation>
    </message>
    <message>
        <source>Write the reports into &lt;directory&gt;; by default the one chosen last, or &quot;Measurement Reports&quot; among your documents, but with --press it must be given.</source>
        <translation>Schreibt die Berichte nach &lt;directory&gt;; sonst in das zuletzt gewählte Verzeichnis oder nach „Measurement Reports“ bei Ihren Dokumenten, mit --press muss es angegeben werden.</translation>
    </message>
    <message>
        <source>Use the schema &lt;file&gt;; by default the one chosen last, or the one beside the program.</source>
        <translation>Verwendet das Schema &lt;file&gt;; sonst das zuletzt gewählte oder das neben dem Programm.</translation>
    </message>
    <message>
        <source>Speak &lt;language&gt;, such as en, de or fr; by default the one chosen last, or that of the system.</source>
        <translation>Spricht &lt;language&gt;, etwa en, de oder fr; sonst die zuletzt gewählte Sprache oder die des Systems.</translation>
    </message>
    <message>
        <source>Remember what is chosen in &lt;file&gt;; by default in a file of the user. With --press nothing is remembered.</source>
        <translation>Merkt sich in &lt;file&gt;, was gewählt wird; sonst in einer Datei des Benutzers. Mit --press wird nichts gemerkt.</translation>
    </message>
    <message>
        <source>With --press: ask for the comment dialog and answer it with &lt;text&gt;.</source>
        <translation>Mit --press: fragt nach dem Kommentar und antwortet mit &lt;text&gt;.</translation>
    </message>
    <message>
        <source>With --press: save a picture of the window as &lt;file&gt; (PNG), and one of the dialog beside it.</source>
        <translation>Mit --press: speichert ein Bild des Fensters als &lt;file&gt; (PNG) und eines des Dialogs daneben.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number of presses.</source>
        <translation>„%1“ ist keine Anzahl von Betätigungen.</translation>
    </message>
    <message>
        <source>--press needs --reports.</source>
        <translation>--press braucht --reports.</translation>
    </message>
    <message>
        <source>--comment and --screenshot need --press.</source>
        <translation>--comment und --screenshot brauchen --press.</translation>
    </message>
    <message>
        <source>The path after --%1 is empty.</source>
        <translation>Der Pfad hinter --%1 ist leer.</translation>
    </message>
    <message>
        <source>A measurement screen with the report button, on simulated values.</source>
        <translation>Ein Messbildschirm mit dem Berichtsknopf, auf simulierten Werten.</translation>
    </message>
    <message>
        <source>There is no screen; use --press.</source>
        <translation>Es gibt keinen Bildschirm; nehmen Sie --press.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>en</source>
        <comment>the code of the language that is spoken</comment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>LevelTrace</name>
    <message>
        <source>Frequency in %1</source>
        <translation>Frequenz in %1</translation>
    </message>
    <message>
        <source>Level in %1</source>
        <translation>Pegel in %1</translation>
    </message>
    <message>
        <source>Level over frequency: %1</source>
        <translation>Pegel über der Frequenz: %1</translation>
    </message>
</context>
<context>
    <name>Operator</name>
    <message>
        <source>The report button is disabled: the schema or the report directory is missing.</source>
        <translation>Der Berichtsknopf ist gesperrt: Das Schema oder das Berichtsverzeichnis fehlt.</translation>
    </message>
    <message>
        <source>The report has not arrived.</source>
        <translation>Der Bericht ist nicht angekommen.</translation>
    </message>
    <message>
        <source>The report is empty.</source>
        <translation>Der Bericht ist leer.</translation>
    </message>
    <message>
        <source>The comment dialog has not appeared.</source>
        <translation>Der Kommentardialog ist nicht erschienen.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Reports not saved yet</source>
        <translation>Berichte noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Reports that wait for their comments: %1. They are not on the disk before their dialogs are answered.</source>
        <translation>Berichte, die auf ihren Kommentar warten: %1. Sie sind erst gespeichert, wenn ihre Dialoge beantwortet sind.</translation>
    </message>
    <message>
        <source>Save all without comment</source>
        <translation>Alle ohne Kommentar speichern</translation>
    </message>
    <message>
        <source>Go through them</source>
        <translation>Einzeln durchgehen</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bleiben</translation>
    </message>
    <message>
        <source>Measurement Panel</source>
        <translation>Messpult</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Ask for a comment</source>
        <translation>Nach einem Kommentar fragen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>Choose the &amp;schema...</source>
        <translation>&amp;Schema wählen ...</translation>
    </message>
    <message>
        <source>Choose the report &amp;directory...</source>
        <translation>Berichts&amp;verzeichnis wählen ...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequenz</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Reports of this session</source>
        <translation>Berichte dieser Sitzung</translation>
    </message>
    <message>
        <source>The last report</source>
        <translation>Der letzte Bericht</translation>
    </message>
    <message>
        <source>Press the button in the tool bar to write a report.</source>
        <translation>Drücken Sie den Knopf in der Werkzeugleiste, um einen Bericht zu schreiben.</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>Noch kein Bericht</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <translation>Letzter Bericht: %1</translation>
    </message>
    <message>
        <source>Modulation: %1</source>
        <translation>Modulation: %1</translation>
    </message>
    <message>
        <source>Channel filter</source>
        <translation>Kanalfilter</translation>
    </message>
    <message>
        <source>Detector: %1</source>
        <translation>Detektor: %1</translation>
    </message>
    <message>
        <source>no bearing</source>
        <translation>keine Peilung</translation>
    </message>
    <message>
        <source>Quality: %1</source>
        <translation>Güte: %1</translation>
    </message>
    <message>
        <source>Schema and report directory are available</source>
        <translation>Schema und Berichtsverzeichnis sind vorhanden</translation>
    </message>
    <message>
        <source>The schema is missing: %1</source>
        <translation>Das Schema fehlt: %1</translation>
    </message>
    <message>
        <source>The report directory is missing: %1</source>
        <translation>Das Berichtsverzeichnis fehlt: %1</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Schemas (*.xsd)</source>
        <translation>Schemata (*.xsd)</translation>
    </message>
    <message>
        <source>Report directory</source>
        <translation>Berichtsverzeichnis</translation>
    </message>
</context>
<context>
    <name>PressText</name>
    <message>
        <source>waiting for comment</source>
        <translation>wartet auf Kommentar</translation>
    </message>
    <message>
        <source>written</source>
        <translation>geschrieben</translation>
    </message>
    <message>
        <source>written, breaks its schema</source>
        <translation>geschrieben, verletzt sein Schema</translation>
    </message>
    <message>
        <source>not saved: cancelled</source>
        <translation>nicht gespeichert: abgebrochen</translation>
    </message>
    <message>
        <source>not made: no schema</source>
        <translation>nicht erstellt: kein Schema</translation>
    </message>
    <message>
        <source>not in order: schema gone</source>
        <translation>nicht in Ordnung: Schema fehlt</translation>
    </message>
    <message>
        <source>not in order: schema not understood</source>
        <translation>nicht in Ordnung: Schema nicht verstanden</translation>
    </message>
    <message>
        <source>not saved: directory gone</source>
        <translation>nicht gespeichert: Verzeichnis fehlt</translation>
    </message>
    <message>
        <source>not saved: no directory</source>
        <translation>nicht gespeichert: kein Verzeichnis</translation>
    </message>
    <message>
        <source>not saved: directory not writable</source>
        <translation>nicht gespeichert: Verzeichnis nicht beschreibbar</translation>
    </message>
    <message>
        <source>not saved: disk full</source>
        <translation>nicht gespeichert: Datenträger voll</translation>
    </message>
    <message>
        <source>not saved: file empty</source>
        <translation>nicht gespeichert: Datei leer</translation>
    </message>
    <message>
        <source>not saved: file incomplete</source>
        <translation>nicht gespeichert: Datei unvollständig</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>nicht gespeichert</translation>
    </message>
    <message>
        <source>Report %1 is written when its comment dialog is answered.</source>
        <translation>Bericht %1 wird geschrieben, wenn sein Kommentardialog beantwortet ist.</translation>
    </message>
    <message>
        <source>Report written: %1</source>
        <translation>Bericht geschrieben: %1</translation>
    </message>
    <message>
        <source>Report %1 is written, but it breaks a rule of its schema.</source>
        <translation>Bericht %1 ist geschrieben, verletzt aber eine Regel seines Schemas.</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its comment dialog was closed with Cancel.</source>
        <translation>Bericht %1 ist nicht gespeichert: Sein Kommentardialog wurde mit Abbrechen geschlossen.</translation>
    </message>
    <message>
        <source>Report %1 was not made: the name of the schema does not end in &quot;.xsd&quot;.</source>
        <translation>Bericht %1 wurde nicht erstellt: Der Name des Schemas endet nicht auf „.xsd“.</translation>
    </message>
    <message>
        <source>Report %1 is not in order: the schema could not be read, it is gone.</source>
        <translation>Bericht %1 ist nicht in Ordnung: Das Schema konnte nicht gelesen werden, es ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Report %1 is not in order: the schema could not be read.</source>
        <translation>Bericht %1 ist nicht in Ordnung: Das Schema konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: the report directory is gone.</source>
        <translation>Bericht %1 konnte nicht geschrieben werden: Das Berichtsverzeichnis ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: there is a file in place of the report directory.</source>
        <translation>Bericht %1 konnte nicht geschrieben werden: Anstelle des Berichtsverzeichnisses liegt dort eine Datei.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: the report directory is not writable.</source>
        <translation>Bericht %1 konnte nicht geschrieben werden: Das Berichtsverzeichnis ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Report %1 could not be written in full: the disk is full.</source>
        <translation>Bericht %1 konnte nicht vollständig geschrieben werden: Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its file is empty.</source>
        <translation>Bericht %1 ist nicht gespeichert: Seine Datei ist leer.</translation>
    </message>
    <message>
        <source>Report %1 is not saved in full: its file breaks off in line %2, column %3.</source>
        <translation>Bericht %1 ist nicht vollständig gespeichert: Seine Datei bricht in Zeile %2, Spalte %3 ab.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: its file is not there.</source>
        <translation>Bericht %1 konnte nicht geschrieben werden: Seine Datei ist nicht da.</translation>
    </message>
    <message>
        <source>Then open the comment dialog again and save: the values are still there.</source>
        <translation>Öffnen Sie dann den Kommentardialog noch einmal und speichern Sie: Die Werte sind noch da.</translation>
    </message>
    <message>
        <source>Then press the button again.</source>
        <translation>Drücken Sie dann den Knopf noch einmal.</translation>
    </message>
    <message>
        <source>Type the comment and press Ctrl+Enter. Nothing is on the disk before that.</source>
        <translation>Geben Sie den Kommentar ein und drücken Sie Strg+Eingabe. Vorher ist nichts gespeichert.</translation>
    </message>
    <message>
        <source>The file is there, not empty and well-formed.</source>
        <translation>Die Datei ist da, nicht leer und wohlgeformt.</translation>
    </message>
    <message>
        <source>Show the file to whoever keeps the schema.</source>
        <translation>Zeigen Sie die Datei dem, der das Schema pflegt.</translation>
    </message>
    <message>
        <source>Open the comment dialog again to save it: the values are still there.</source>
        <translation>Öffnen Sie den Kommentardialog noch einmal, um ihn zu speichern: Die Werte sind noch da.</translation>
    </message>
    <message>
        <source>Choose a schema in the menu Settings; now it is %1.</source>
        <translation>Wählen Sie im Menü Einstellungen ein Schema; jetzt ist es %1.</translation>
    </message>
    <message>
        <source>Bring the schema %1 back, or choose another one in the menu Settings. Then press the button again.</source>
        <translation>Holen Sie das Schema %1 zurück, oder wählen Sie im Menü Einstellungen ein anderes. Drücken Sie dann den Knopf noch einmal.</translation>
    </message>
    <message>
        <source>Have the schema %1 mended, or choose another one in the menu Settings. Then press the button again; what this press has written is no report.</source>
        <translation>Lassen Sie das Schema %1 in Ordnung bringen, oder wählen Sie im Menü Einstellungen ein anderes. Drücken Sie dann den Knopf noch einmal; was jetzt geschrieben wurde, ist kein Bericht.</translation>
    </message>
    <message>
        <source>Make the directory %1 again.</source>
        <translation>Legen Sie das Verzeichnis %1 wieder an.</translation>
    </message>
    <message>
        <source>Move the file %1 away and make a directory of that name.</source>
        <translation>Verschieben Sie die Datei %1 und legen Sie ein Verzeichnis dieses Namens an.</translation>
    </message>
    <message>
        <source>Have the right to write given to you in %1.</source>
        <translation>Lassen Sie sich das Recht geben, in %1 zu schreiben.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Schaffen Sie auf dem Datenträger von %1 Platz.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1, and delete the incomplete file.</source>
        <translation>Schaffen Sie auf dem Datenträger von %1 Platz, und löschen Sie die unvollständige Datei.</translation>
    </message>
    <message>
        <source>Have the disk of %1 looked at.</source>
        <translation>Lassen Sie den Datenträger von %1 prüfen.</translation>
    </message>
    <message>
        <source>The file is there, well-formed, and keeps to its schema.</source>
        <translation>Die Datei ist da, wohlgeformt und hält sich an ihr Schema.</translation>
    </message>
    <message>
        <source>not in order: several roots</source>
        <translation>nicht in Ordnung: mehrere Wurzeln</translation>
    </message>
    <message>
        <source>Report %1 is not in order: its schema lays out several roots, so it is no XML document.</source>
        <translation>Bericht %1 ist nicht in Ordnung: Sein Schema legt mehrere Wurzeln an, daher ist er kein XML-Dokument.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ReportMessage</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Open the comment dialog</source>
        <translation>Kommentardialog öffnen</translation>
    </message>
    <message>
        <source>No report has been made in this session.</source>
        <translation>In dieser Sitzung wurde noch kein Bericht erstellt.</translation>
    </message>
    <message>
        <source>Press the button in the tool bar, or Shift+F10.</source>
        <translation>Drücken Sie den Knopf in der Werkzeugleiste oder Shift+F10.</translation>
    </message>
    <message>
        <source>There is no program that opens %1.</source>
        <translation>Es gibt kein Programm, das %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>SessionLog</name>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
</TS>
