<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommentDialog</name>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Frequency:</source>
        <translation>Fréquence :</translation>
    </message>
    <message>
        <source>98.5 MHz</source>
        <translation>98.5 MHz</translation>
    </message>
    <message>
        <source>Level:</source>
        <translation>Niveau :</translation>
    </message>
    <message>
        <source>17 dBµV</source>
        <translation>17 dBµV</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Largeur de bande :</translation>
    </message>
    <message>
        <source>150 kHz</source>
        <translation>150 kHz</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Heure :</translation>
    </message>
    <message>
        <source>2008/07/04 10:39:20</source>
        <translation>2008/07/04 10:39:20</translation>
    </message>
    <message>
        <source>Azimuth:</source>
        <translation>Azimut :</translation>
    </message>
    <message>
        <source>235,1°</source>
        <translation>235,1°</translation>
    </message>
    <message>
        <source>Comment:</source>
        <translation>Commentaire :</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>No Comment</source>
        <translation>Sans commentaire</translation>
    </message>
</context>
<context>
    <name>CommentDialogImpl</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>You have enterd a comment. Would you like to save it?</source>
        <translation>Vous avez saisi un commentaire. Voulez-vous l&apos;enregistrer ?</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>ToReport - </source>
        <translation>Rapport - </translation>
    </message>
</context>
<context>
    <name>FileSaving</name>
    <message>
        <source>It would be longer than %1 bytes</source>
        <translation>Il dépasserait %1 octets</translation>
    </message>
    <message>
        <source>Nobody reads the pipe</source>
        <translation>Personne ne lit le tube</translation>
    </message>
</context>
<context>
    <name>ReportJournal</name>
    <message>
        <source>the driver %1 of Qt SQL is not installed</source>
        <translation>le pilote %1 de Qt SQL n&apos;est pas installé</translation>
    </message>
    <message>
        <source>it is a database of something else, or of a newer version</source>
        <translation>c&apos;est la base de données d&apos;autre chose, ou d&apos;une version plus récente</translation>
    </message>
    <message>
        <source>there is no such file any more</source>
        <translation>ce fichier n&apos;existe plus</translation>
    </message>
    <message>
        <source>the file has changed, it has %1 bytes instead of %2</source>
        <translation>le fichier a changé, il a %1 octets au lieu de %2</translation>
    </message>
    <message>
        <source>the file cannot be read</source>
        <translation>le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>the file has changed</source>
        <translation>le fichier a changé</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 ne peut pas être lu</translation>
    </message>
    <message>
        <source>not all could be written: %1</source>
        <translation>tout n&apos;a pas pu être écrit : %1</translation>
    </message>
    <message>
        <source>The journal %1 cannot be opened: %2.</source>
        <translation>Le journal %1 ne peut pas être ouvert : %2.</translation>
    </message>
    <message>
        <source>The journal %1 is damaged and cannot be renamed.</source>
        <translation>Le journal %1 est endommagé et ne peut pas être renommé.</translation>
    </message>
    <message>
        <source>The journal was damaged and is now %1; %2 entries of it are in a new one.</source>
        <translation>Le journal était endommagé et est maintenant %1 ; %2 de ses entrées sont dans un nouveau.</translation>
    </message>
    <message>
        <source>The journal cannot be used: %1.</source>
        <translation>Le journal ne peut pas être utilisé : %1.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n&apos;existe pas</translation>
    </message>
    <message>
        <source>the journal cannot be read</source>
        <translation>le journal ne peut pas être lu</translation>
    </message>
</context>
<context>
    <name>ReportNews</name>
    <message>
        <source>Filling the report was broken off by an error</source>
        <translation>Le remplissage du rapport a été interrompu par une erreur</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>(by default)</source>
        <translation>(par défaut)</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>manque</translation>
    </message>
    <message>
        <source>left over</source>
        <translation>en trop</translation>
    </message>
    <message>
        <source>left over: %1</source>
        <translation>en trop : %1</translation>
    </message>
    <message>
        <source>The schema is not understood: %1</source>
        <translation>Le schéma n’est pas compris : %1</translation>
    </message>
    <message>
        <source>The schema is one of &apos;%1&apos;, and the report is none.</source>
        <translation>Le schéma décrit « %1 », et le rapport n’en est pas un.</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of these texts, by its code</comment>
        <translation>fr</translation>
    </message>
    <message>
        <source>What speaks against this report:</source>
        <translation>Ce qui parle contre ce rapport :</translation>
    </message>
    <message>
        <source>Missing: %1.</source>
        <translation>Manquants : %1.</translation>
    </message>
    <message>
        <source>Missing: more than %1.</source>
        <translation>Manquants : plus de %1.</translation>
    </message>
    <message>
        <source>Left over: %1.</source>
        <translation>En trop : %1.</translation>
    </message>
    <message>
        <source>There is no page.</source>
        <translation>Il n’y a pas de page.</translation>
    </message>
    <message>
        <source>The application has no fonts to write with.</source>
        <translation>L’application n’a pas de polices pour écrire.</translation>
    </message>
    <message>
        <source>PDF cannot be written here.</source>
        <translation>Le PDF ne peut pas être écrit ici.</translation>
    </message>
    <message>
        <source>It is not well-formed XML, line %1: %2.</source>
        <translation>Ce n’est pas du XML bien formé, ligne %1 : %2.</translation>
    </message>
    <message>
        <source>It has a document type, which no report has.</source>
        <translation>Il a un type de document, ce qu’aucun rapport n’a.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>It holds more than any report: %1 bytes.</source>
        <translation>Il contient plus que tout rapport : %1 octets.</translation>
    </message>
    <message>
        <source>It holds more than any report: too many elements or attributes, or nested too deeply.</source>
        <translation>Il contient plus que tout rapport : trop d’éléments ou d’attributs, ou trop imbriqués.</translation>
    </message>
    <message>
        <source>Whether anything is missing could not be told for all of the report.</source>
        <translation>Il n&apos;a pas pu être déterminé pour tout le rapport si quelque chose manque.</translation>
    </message>
</context>
<context>
    <name>ReportSupervisor</name>
    <message>
        <source>the unsaved reports in %1 cannot be taken over</source>
        <translation>les rapports non enregistrés dans %1 ne peuvent pas être repris</translation>
    </message>
    <message>
        <source>the unsaved report %1 is damaged</source>
        <translation>le rapport non enregistré %1 est endommagé</translation>
    </message>
    <message>
        <source>not saved, closed by the operator</source>
        <translation>non enregistré, fermé par l&apos;opérateur</translation>
    </message>
    <message>
        <source>its path is not known</source>
        <translation>son chemin n&apos;est pas connu</translation>
    </message>
    <message>
        <source>another report has been written to its file since</source>
        <translation>un autre rapport a été écrit depuis dans son fichier</translation>
    </message>
    <message>
        <source>a newer report has the same file</source>
        <translation>un rapport plus récent a le même fichier</translation>
    </message>
    <message>
        <source>a newer file is there</source>
        <translation>un fichier plus récent s&apos;y trouve</translation>
    </message>
    <message>
        <source>its copy %1 cannot be read</source>
        <translation>sa copie %1 ne peut pas être lue</translation>
    </message>
    <message>
        <source>%1; it is kept: %2</source>
        <translation>%1 ; il est conservé : %2</translation>
    </message>
    <message>
        <source>there is no such file any more</source>
        <translation>ce fichier n&apos;existe plus</translation>
    </message>
    <message>
        <source>another file has taken its place</source>
        <translation>un autre fichier a pris sa place</translation>
    </message>
    <message>
        <source>it cannot be opened to check it</source>
        <translation>il ne peut pas être ouvert pour le contrôle</translation>
    </message>
    <message>
        <source>%1 is being made</source>
        <translation>%1 est en cours de création</translation>
    </message>
    <message>
        <source>%1 waits for a comment</source>
        <translation>%1 attend un commentaire</translation>
    </message>
    <message>
        <source>%1 could not be written, and no copy of it either</source>
        <translation>%1 n&apos;a pas pu être écrit, ni aucune copie</translation>
    </message>
</context>
<context>
    <name>SchemaBudget</name>
    <message>
        <source>The schema consists of more than %1 files!</source>
        <translation>Le schéma compte plus de %1 fichiers!</translation>
    </message>
    <message>
        <source>The schema consists of more than %1 bytes, repeated includes counted again!</source>
        <translation>Le schéma compte plus de %1 octets, les inclusions répétées comptées à chaque fois!</translation>
    </message>
    <message>
        <source>The schema is nested deeper than %1 elements!</source>
        <translation>Le schéma est imbriqué à plus de %1 éléments de profondeur!</translation>
    </message>
    <message>
        <source>The schema and its includes are nested deeper than %1 elements!</source>
        <translation>Le schéma et ses inclusions sont imbriqués à plus de %1 éléments de profondeur!</translation>
    </message>
    <message>
        <source>An enumeration has more than %1 values!</source>
        <translation>Une énumération a plus de %1 valeurs!</translation>
    </message>
    <message>
        <source>The schema lays out elements nested deeper than %1!</source>
        <translation>Le schéma crée des éléments imbriqués à plus de %1 niveaux!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 attributes!</source>
        <translation>Le schéma crée plus de %1 attributs!</translation>
    </message>
    <message>
        <source>The schema gives elements more than %1 values of enumerations!</source>
        <translation>Le schéma donne aux éléments plus de %1 valeurs d&apos;énumération!</translation>
    </message>
    <message>
        <source>The schema lays out more than %1 elements!</source>
        <translation>Le schéma crée plus de %1 éléments!</translation>
    </message>
</context>
<context>
    <name>SchemaFault</name>
    <message>
        <source>%1 is included by too many files in a row.</source>
        <translation>%1 est inclus à travers trop de fichiers successifs.</translation>
    </message>
    <message>
        <source>%1 cannot be opened.</source>
        <translation>%1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>%1 is not well-formed in line %2: %3.</source>
        <translation>%1 n&apos;est pas bien formé, ligne %2 : %3.</translation>
    </message>
    <message>
        <source>No root is left, since XML does not allow the name &apos;%1&apos;.</source>
        <translation>Il ne reste pas de racine, car XML n&apos;autorise pas le nom &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;.</source>
        <translation>XML n&apos;autorise pas le nom &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; wait for each other.</source>
        <translation>&apos;%1&apos; et &apos;%2&apos; s&apos;attendent l&apos;un l&apos;autre.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, which the schema refers to, is defined nowhere.</source>
        <translation>&apos;%1&apos;, auquel le schéma se réfère, n&apos;est défini nulle part.</translation>
    </message>
</context>
<context>
    <name>VCReporting</name>
    <message>
        <source>To Report (Shift+F10)</source>
        <translation>Créer un rapport (Shift+F10)</translation>
    </message>
</context>
</TS>
