<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PanelWindow</name>
    <message>
        <source>Measurement Panel</source>
        <translation>Pupitre de mesure</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>no bearing</source>
        <translation>pas de relèvement</translation>
    </message>
    <message>
        <source>Report directory</source>
        <translation>Dossier des rapports</translation>
    </message>
    <message>
        <source>No report is made.</source>
        <translation>Aucun rapport n&apos;a été établi.</translation>
    </message>
    <message>
        <source>Fi&amp;le</source>
        <translation>Fic&amp;hier</translation>
    </message>
    <message>
        <source>&amp;Make a report</source>
        <translation>&amp;Créer un rapport</translation>
    </message>
    <message>
        <source>Setti&amp;ngs</source>
        <translation>Rég&amp;lages</translation>
    </message>
    <message>
        <source>Choose the report &amp;directory…</source>
        <translation>Choisir le &amp;dossier des rapports…</translation>
    </message>
    <message>
        <source>&amp;Ask for a comment</source>
        <translation>&amp;Demander un commentaire</translation>
    </message>
    <message>
        <source>Reports &amp;in:</source>
        <translation>Rapports da&amp;ns :</translation>
    </message>
    <message>
        <source>No report can be made: %1 is missing.</source>
        <translation>Aucun rapport ne peut être créé : %1 manque.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt;, bandwidth %2, level &lt;b&gt;%3&lt;/b&gt;, %4</source>
        <translation>&lt;b&gt;%1&lt;/b&gt;, bande %2, niveau &lt;b&gt;%3&lt;/b&gt;, %4</translation>
    </message>
    <message>
        <source>azimuth %1</source>
        <translation>azimut %1</translation>
    </message>
</context>
<context>
    <name>Supervision</name>
    <message>
        <source>Report %1, %2</source>
        <extracomment>%1 is a number, %2 a time to the millisecond</extracomment>
        <translation>Rapport %1, %2</translation>
    </message>
</context>
</TS>
