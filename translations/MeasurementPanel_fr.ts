<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>Show this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Press the report button &lt;times&gt; times, print the paths of the reports and end. Needs no screen.</source>
        <translation>Appuie &lt;times&gt; fois sur le bouton de rapport, affiche les chemins des rapports et se termine. N&apos;a pas besoin d&apos;écran.</translation>
    </message>
    <message>
        <source>Write the reports into &lt;directory&gt;; by default the one chosen last, or &quot;Measurement Reports&quot; among your documents, but with --press it must be given.</source>
        <translation>Écrit les rapports dans &lt;directory&gt; ; par défaut le dernier dossier choisi ou « Measurement Reports » parmi vos documents, mais avec --press il faut l&apos;indiquer.</translation>
    </message>
    <message>
        <source>Use the schema &lt;file&gt;; by default the one chosen last, or the one beside the program.</source>
        <translation>Utilise le schéma &lt;file&gt; ; par défaut le dernier choisi ou celui qui accompagne le programme.</translation>
    </message>
    <message>
        <source>Speak &lt;language&gt;, such as en, de or fr; by default the one chosen last, or that of the system.</source>
        <translation>Parle &lt;language&gt;, par exemple en, de ou fr ; par défaut la dernière langue choisie ou celle du système.</translation>
    </message>
    <message>
        <source>Remember what is chosen in &lt;file&gt;; by default in a file of the user. With --press nothing is remembered.</source>
        <translation>Retient les choix dans &lt;file&gt; ; par défaut dans un fichier de l&apos;utilisateur. Avec --press rien n&apos;est retenu.</translation>
    </message>
    <message>
        <source>With --press: ask for the comment dialog and answer it with &lt;text&gt;.</source>
        <translation>Avec --press : demande le dialogue de commentaire et y répond par &lt;text&gt;.</translation>
    </message>
    <message>
        <source>With --press: save a picture of the window as &lt;file&gt; (PNG), and one of the dialog beside it.</source>
        <translation>Avec --press : enregistre une image de la fenêtre dans &lt;file&gt; (PNG), et une du dialogue à côté.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu « %1 ».</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number of presses.</source>
        <translation>« %1 » n&apos;est pas un nombre d&apos;appuis.</translation>
    </message>
    <message>
        <source>--press needs --reports.</source>
        <translation>--press a besoin de --reports.</translation>
    </message>
    <message>
        <source>--comment and --screenshot need --press.</source>
        <translation>--comment et --screenshot ont besoin de --press.</translation>
    </message>
    <message>
        <source>The path after --%1 is empty.</source>
        <translation>Le chemin après --%1 est vide.</translation>
    </message>
    <message>
        <source>A measurement screen with the report button, on simulated values.</source>
        <translation>Un écran de mesure avec le bouton de rapport, sur des valeurs simulées.</translation>
    </message>
    <message>
        <source>There is no screen; use --press.</source>
        <translation>Il n&apos;y a pas d&apos;écran ; utilisez --press.</translation>
    </message>
</context>
<context>
    <name>Findings</name>
    <message>
        <source>en</source>
        <comment>the code of the language that is spoken</comment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>LevelTrace</name>
    <message>
        <source>Frequency in %1</source>
        <translation>Fréquence en %1</translation>
    </message>
    <message>
        <source>Level in %1</source>
        <translation>Niveau en %1</translation>
    </message>
    <message>
        <source>Level over frequency: %1</source>
        <translation>Niveau selon la fréquence : %1</translation>
    </message>
</context>
<context>
    <name>Operator</name>
    <message>
        <source>The report button is disabled: the schema or the report directory is missing.</source>
        <translation>Le bouton de rapport est désactivé : le schéma ou le dossier des rapports manque.</translation>
    </message>
    <message>
        <source>The report has not arrived.</source>
        <translation>Le rapport n&apos;est pas arrivé.</translation>
    </message>
    <message>
        <source>The report is empty.</source>
        <translation>Le rapport est vide.</translation>
    </message>
    <message>
        <source>The comment dialog has not appeared.</source>
        <translation>Le dialogue de commentaire n&apos;est pas apparu.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>Impossible d&apos;écrire %1.</translation>
    </message>
</context>
<context>
    <name>PanelWindow</name>
    <message>
        <source>Reports not saved yet</source>
        <translation>Rapports pas encore enregistrés</translation>
    </message>
    <message>
        <source>Reports that wait for their comments: %1. They are not on the disk before their dialogs are answered.</source>
        <translation>Rapports qui attendent leur commentaire : %1. Ils ne sont enregistrés qu&apos;une fois leurs dialogues terminés.</translation>
    </message>
    <message>
        <source>Save all without comment</source>
        <translation>Tout enregistrer sans commentaire</translation>
    </message>
    <message>
        <source>Go through them</source>
        <translation>Les passer en revue</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Rester</translation>
    </message>
    <message>
        <source>Measurement Panel</source>
        <translation>Pupitre de mesure</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Ask for a comment</source>
        <translation>Demander un commentaire</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Paramètres</translation>
    </message>
    <message>
        <source>Choose the &amp;schema...</source>
        <translation>Choisir le &amp;schéma...</translation>
    </message>
    <message>
        <source>Choose the report &amp;directory...</source>
        <translation>Choisir le &amp;dossier des rapports...</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Largeur de bande</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Reports of this session</source>
        <translation>Rapports de cette session</translation>
    </message>
    <message>
        <source>The last report</source>
        <translation>Le dernier rapport</translation>
    </message>
    <message>
        <source>Press the button in the tool bar to write a report.</source>
        <translation>Appuyez sur le bouton de la barre d&apos;outils pour écrire un rapport.</translation>
    </message>
    <message>
        <source>No report yet</source>
        <translation>Pas encore de rapport</translation>
    </message>
    <message>
        <source>Last report: %1</source>
        <translation>Dernier rapport : %1</translation>
    </message>
    <message>
        <source>Modulation: %1</source>
        <translation>Modulation : %1</translation>
    </message>
    <message>
        <source>Channel filter</source>
        <translation>Filtre de canal</translation>
    </message>
    <message>
        <source>Detector: %1</source>
        <translation>Détecteur : %1</translation>
    </message>
    <message>
        <source>no bearing</source>
        <translation>pas de relèvement</translation>
    </message>
    <message>
        <source>Quality: %1</source>
        <translation>Qualité : %1</translation>
    </message>
    <message>
        <source>Schema and report directory are available</source>
        <translation>Le schéma et le dossier des rapports sont disponibles</translation>
    </message>
    <message>
        <source>The schema is missing: %1</source>
        <translation>Le schéma manque : %1</translation>
    </message>
    <message>
        <source>The report directory is missing: %1</source>
        <translation>Le dossier des rapports manque : %1</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schéma</translation>
    </message>
    <message>
        <source>Schemas (*.xsd)</source>
        <translation>Schémas (*.xsd)</translation>
    </message>
    <message>
        <source>Report directory</source>
        <translation>Dossier des rapports</translation>
    </message>
</context>
<context>
    <name>PressText</name>
    <message>
        <source>waiting for comment</source>
        <translation>attend un commentaire</translation>
    </message>
    <message>
        <source>written</source>
        <translation>écrit</translation>
    </message>
    <message>
        <source>written, breaks its schema</source>
        <translation>écrit, enfreint son schéma</translation>
    </message>
    <message>
        <source>not saved: cancelled</source>
        <translation>non enregistré : annulé</translation>
    </message>
    <message>
        <source>not made: no schema</source>
        <translation>pas créé : pas de schéma</translation>
    </message>
    <message>
        <source>not in order: schema gone</source>
        <translation>incorrect : schéma disparu</translation>
    </message>
    <message>
        <source>not in order: schema not understood</source>
        <translation>incorrect : schéma non compris</translation>
    </message>
    <message>
        <source>not saved: directory gone</source>
        <translation>non enregistré : dossier disparu</translation>
    </message>
    <message>
        <source>not saved: no directory</source>
        <translation>non enregistré : pas un dossier</translation>
    </message>
    <message>
        <source>not saved: directory not writable</source>
        <translation>non enregistré : dossier protégé</translation>
    </message>
    <message>
        <source>not saved: disk full</source>
        <translation>non enregistré : disque plein</translation>
    </message>
    <message>
        <source>not saved: file empty</source>
        <translation>non enregistré : fichier vide</translation>
    </message>
    <message>
        <source>not saved: file incomplete</source>
        <translation>non enregistré : fichier incomplet</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non enregistré</translation>
    </message>
    <message>
        <source>Report %1 is written when its comment dialog is answered.</source>
        <translation>Le rapport %1 sera écrit quand son dialogue de commentaire sera terminé.</translation>
    </message>
    <message>
        <source>Report written: %1</source>
        <translation>Rapport écrit : %1</translation>
    </message>
    <message>
        <source>Report %1 is written, but it breaks a rule of its schema.</source>
        <translation>Le rapport %1 est écrit, mais il enfreint une règle de son schéma.</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its comment dialog was closed with Cancel.</source>
        <translation>Le rapport %1 n&apos;est pas enregistré : son dialogue de commentaire a été fermé par Annuler.</translation>
    </message>
    <message>
        <source>Report %1 was not made: the name of the schema does not end in &quot;.xsd&quot;.</source>
        <translation>Le rapport %1 n&apos;a pas été créé : le nom du schéma ne se termine pas par « .xsd ».</translation>
    </message>
    <message>
        <source>Report %1 is not in order: the schema could not be read, it is gone.</source>
        <translation>Le rapport %1 est incorrect : le schéma n&apos;a pas pu être lu, il a disparu.</translation>
    </message>
    <message>
        <source>Report %1 is not in order: the schema could not be read.</source>
        <translation>Le rapport %1 est incorrect : le schéma n&apos;a pas pu être lu.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: the report directory is gone.</source>
        <translation>Le rapport %1 n&apos;a pas pu être écrit : le dossier des rapports a disparu.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: there is a file in place of the report directory.</source>
        <translation>Le rapport %1 n&apos;a pas pu être écrit : il y a un fichier à la place du dossier des rapports.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: the report directory is not writable.</source>
        <translation>Le rapport %1 n&apos;a pas pu être écrit : le dossier des rapports est protégé en écriture.</translation>
    </message>
    <message>
        <source>Report %1 could not be written in full: the disk is full.</source>
        <translation>Le rapport %1 n&apos;a pas pu être écrit en entier : le disque est plein.</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its file is empty.</source>
        <translation>Le rapport %1 n&apos;est pas enregistré : son fichier est vide.</translation>
    </message>
    <message>
        <source>Report %1 is not saved in full: its file breaks off in line %2, column %3.</source>
        <translation>Le rapport %1 n&apos;est pas enregistré en entier : son fichier s&apos;interrompt à la ligne %2, colonne %3.</translation>
    </message>
    <message>
        <source>Report %1 could not be written: its file is not there.</source>
        <translation>Le rapport %1 n&apos;a pas pu être écrit : son fichier n&apos;est pas là.</translation>
    </message>
    <message>
        <source>Then open the comment dialog again and save: the values are still there.</source>
        <translation>Rouvrez ensuite le dialogue de commentaire et enregistrez : les valeurs sont encore là.</translation>
    </message>
    <message>
        <source>Then press the button again.</source>
        <translation>Appuyez ensuite de nouveau sur le bouton.</translation>
    </message>
    <message>
        <source>Type the comment and press Ctrl+Enter. Nothing is on the disk before that.</source>
        <translation>Saisissez le commentaire et appuyez sur Ctrl+Entrée. Rien n&apos;est enregistré avant cela.</translation>
    </message>
    <message>
        <source>The file is there, not empty and well-formed.</source>
        <translation>Le fichier est là, il n&apos;est pas vide et il est bien formé.</translation>
    </message>
    <message>
        <source>Show the file to whoever keeps the schema.</source>
        <translation>Montrez le fichier à la personne qui gère le schéma.</translation>
    </message>
    <message>
        <source>Open the comment dialog again to save it: the values are still there.</source>
        <translation>Rouvrez le dialogue de commentaire pour l&apos;enregistrer : les valeurs sont encore là.</translation>
    </message>
    <message>
        <source>Choose a schema in the menu Settings; now it is %1.</source>
        <translation>Choisissez un schéma dans le menu Paramètres ; actuellement c&apos;est %1.</translation>
    </message>
    <message>
        <source>Bring the schema %1 back, or choose another one in the menu Settings. Then press the button again.</source>
        <translation>Remettez le schéma %1 en place, ou choisissez-en un autre dans le menu Paramètres. Appuyez ensuite de nouveau sur le bouton.</translation>
    </message>
    <message>
        <source>Have the schema %1 mended, or choose another one in the menu Settings. Then press the button again; what this press has written is no report.</source>
        <translation>Faites corriger le schéma %1, ou choisissez-en un autre dans le menu Paramètres. Appuyez ensuite de nouveau sur le bouton ; ce qui vient d&apos;être écrit n&apos;est pas un rapport.</translation>
    </message>
    <message>
        <source>Make the directory %1 again.</source>
        <translation>Recréez le dossier %1.</translation>
    </message>
    <message>
        <source>Move the file %1 away and make a directory of that name.</source>
        <translation>Déplacez le fichier %1 et créez un dossier de ce nom.</translation>
    </message>
    <message>
        <source>Have the right to write given to you in %1.</source>
        <translation>Faites-vous donner le droit d&apos;écrire dans %1.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1.</source>
        <translation>Libérez de la place sur le disque de %1.</translation>
    </message>
    <message>
        <source>Make room on the disk of %1, and delete the incomplete file.</source>
        <translation>Libérez de la place sur le disque de %1, et supprimez le fichier incomplet.</translation>
    </message>
    <message>
        <source>Have the disk of %1 looked at.</source>
        <translation>Faites examiner le disque de %1.</translation>
    </message>
    <message>
        <source>The file is there, well-formed, and keeps to its schema.</source>
        <translation>Le fichier est là, il est bien formé et respecte son schéma.</translation>
    </message>
    <message>
        <source>not in order: several roots</source>
        <translation>incorrect : plusieurs racines</translation>
    </message>
    <message>
        <source>Report %1 is not in order: its schema lays out several roots, so it is no XML document.</source>
        <translation>Le rapport %1 est incorrect : son schéma produit plusieurs racines, ce n&apos;est donc pas un document XML.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>ReportMessage</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>Open the comment dialog</source>
        <translation>Ouvrir le dialogue de commentaire</translation>
    </message>
    <message>
        <source>No report has been made in this session.</source>
        <translation>Aucun rapport n&apos;a été créé pendant cette session.</translation>
    </message>
    <message>
        <source>Press the button in the tool bar, or Shift+F10.</source>
        <translation>Appuyez sur le bouton de la barre d&apos;outils ou sur Shift+F10.</translation>
    </message>
    <message>
        <source>There is no program that opens %1.</source>
        <translation>Aucun programme n&apos;ouvre %1.</translation>
    </message>
</context>
<context>
    <name>SessionLog</name>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
</TS>
