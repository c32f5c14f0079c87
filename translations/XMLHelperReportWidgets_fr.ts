<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ReportActions</name>
    <message>
        <source>Discard the report</source>
        <translation>Abandonner le rapport</translation>
    </message>
    <message>
        <source>Discard report %1? What was measured for it is lost then.</source>
        <translation>Abandonner le rapport %1 ? Les mesures qu&apos;il contient seront alors perdues.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Conserver</translation>
    </message>
    <message>
        <source>Co&amp;mment…</source>
        <translation>Co&amp;mmentaire…</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Save elsewhere…</source>
        <translation>&amp;Enregistrer ailleurs…</translation>
    </message>
    <message>
        <source>&amp;Discard…</source>
        <translation>&amp;Abandonner…</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>A&amp;fficher dans le dossier</translation>
    </message>
    <message>
        <source>&amp;Copy path</source>
        <translation>&amp;Copier le chemin</translation>
    </message>
    <message>
        <source>There is no program that opens %1.</source>
        <translation>Aucun programme ne peut ouvrir %1.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Il n&apos;y a pas de dossier %1.</translation>
    </message>
    <message>
        <source>There is no program that shows %1.</source>
        <translation>Aucun programme ne peut afficher %1.</translation>
    </message>
    <message>
        <source>The report could still not be saved.</source>
        <translation>Le rapport n&apos;a toujours pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Save the report elsewhere</source>
        <translation>Enregistrer le rapport ailleurs</translation>
    </message>
    <message>
        <source>Reports (*.xml);;All files (*)</source>
        <translation>Rapports (*.xml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The report could not be saved as %1.</source>
        <translation>Le rapport n&apos;a pas pu être enregistré sous %1.</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>Ex&amp;porter…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>Web page (*.html)</source>
        <translation>Page web (*.html)</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Export the report</source>
        <translation>Exporter le rapport</translation>
    </message>
    <message>
        <source>The page could not be saved as %1: %2.</source>
        <translation>La page n&apos;a pas pu être enregistrée sous %1 : %2.</translation>
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
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Earlier sessions</source>
        <translation>Sessions précédentes</translation>
    </message>
</context>
<context>
    <name>ReportMessage</name>
    <message>
        <source>No report has been made yet.</source>
        <translation>Aucun rapport n&apos;a encore été créé.</translation>
    </message>
</context>
<context>
    <name>ReportPanel</name>
    <message>
        <source>Reports would be lost</source>
        <translation>Des rapports seraient perdus</translation>
    </message>
    <message>
        <source>If the program ends now, these reports are lost:</source>
        <translation>Si le programme se termine maintenant, ces rapports seront perdus :</translation>
    </message>
    <message>
        <source>&amp;Quit all the same</source>
        <translation>&amp;Quitter quand même</translation>
    </message>
    <message>
        <source>&amp;Stay</source>
        <translation>&amp;Rester</translation>
    </message>
    <message>
        <source>&amp;Reports:</source>
        <translation>Rapport&amp;s :</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
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
        <translation>Rapport en XML</translation>
    </message>
    <message>
        <source>This report has no file.</source>
        <translation>Ce rapport n&apos;a pas de fichier.</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Pa&amp;ge</translation>
    </message>
    <message>
        <source>Report as a page</source>
        <translation>Rapport sous forme de page</translation>
    </message>
    <message>
        <source>This report is too long to be shown as a page. It can be exported as one.</source>
        <translation>Ce rapport est trop long pour être affiché comme une page. Il peut être exporté sous cette forme.</translation>
    </message>
</context>
<context>
    <name>ReportWords</name>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>Nothing is known of report %1 any more.</source>
        <translation>On ne sait plus rien du rapport %1.</translation>
    </message>
    <message>
        <source>being made</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>Report %1 is being made.</source>
        <translation>Le rapport %1 est en cours de création.</translation>
    </message>
    <message>
        <source>waits for a comment</source>
        <translation>attend un commentaire</translation>
    </message>
    <message>
        <source>Report %1 waits for its comment.</source>
        <translation>Le rapport %1 attend son commentaire.</translation>
    </message>
    <message>
        <source>It is not on the disk before its dialog is answered.</source>
        <translation>Il ne sera sur le disque qu&apos;après la réponse à son dialogue.</translation>
    </message>
    <message>
        <source>written</source>
        <translation>écrit</translation>
    </message>
    <message>
        <source>Report %1 is written.</source>
        <translation>Le rapport %1 est écrit.</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagé</translation>
    </message>
    <message>
        <source>Report %1 is written, but its file is damaged.</source>
        <translation>Le rapport %1 est écrit, mais son fichier est endommagé.</translation>
    </message>
    <message>
        <source>Make the report again, and have the disk looked at.</source>
        <translation>Refaites le rapport, et faites vérifier le disque.</translation>
    </message>
    <message>
        <source>breaks its schema</source>
        <translation>contraire au schéma</translation>
    </message>
    <message>
        <source>Report %1 is written, but it breaks a rule of its schema.</source>
        <translation>Le rapport %1 est écrit, mais il enfreint une règle de son schéma.</translation>
    </message>
    <message>
        <source>Show the file to whoever keeps the schema.</source>
        <translation>Montrez le fichier au responsable du schéma.</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>disparu</translation>
    </message>
    <message>
        <source>Report %1 was written, but its file is gone.</source>
        <translation>Le rapport %1 a été écrit, mais son fichier a disparu.</translation>
    </message>
    <message>
        <source>Bring the file back, or make the report again.</source>
        <translation>Remettez le fichier en place, ou refaites le rapport.</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>pas encore enregistré</translation>
    </message>
    <message>
        <source>Report %1 is not saved yet. It is tried again by itself.</source>
        <translation>Le rapport %1 n&apos;est pas encore enregistré. De nouveaux essais se font d&apos;eux-mêmes.</translation>
    </message>
    <message>
        <source>not saved, kept</source>
        <translation>conservé</translation>
    </message>
    <message>
        <source>Report %1 is not saved. It is kept until you decide.</source>
        <translation>Le rapport %1 n&apos;est pas enregistré. Il est conservé jusqu&apos;à votre décision.</translation>
    </message>
    <message>
        <source>Save it elsewhere, try again, or discard it.</source>
        <translation>Enregistrez-le ailleurs, réessayez, ou abandonnez-le.</translation>
    </message>
    <message>
        <source>kept from earlier</source>
        <translation>conservé d&apos;avant</translation>
    </message>
    <message>
        <source>Report %1 could not be saved when the program ran before. It is kept.</source>
        <translation>Le rapport %1 n&apos;a pas pu être enregistré lors d&apos;une exécution précédente du programme. Il est conservé.</translation>
    </message>
    <message>
        <source>Try again, save it elsewhere, or discard it.</source>
        <translation>Réessayez, enregistrez-le ailleurs, ou abandonnez-le.</translation>
    </message>
    <message>
        <source>not saved</source>
        <translation>non enregistré</translation>
    </message>
    <message>
        <source>Report %1 could not be saved, and is lost.</source>
        <translation>Le rapport %1 n&apos;a pas pu être enregistré, et il est perdu.</translation>
    </message>
    <message>
        <source>Remove the cause and make the report again.</source>
        <translation>Éliminez la cause et refaites le rapport.</translation>
    </message>
    <message>
        <source>closed, not saved</source>
        <translation>fermé, non enregistré</translation>
    </message>
    <message>
        <source>Report %1 is not saved: its comment dialog was closed.</source>
        <translation>Le rapport %1 n&apos;est pas enregistré : son dialogue de commentaire a été fermé.</translation>
    </message>
    <message>
        <source>discarded</source>
        <translation>abandonné</translation>
    </message>
    <message>
        <source>Report %1 is not saved: it was discarded.</source>
        <translation>Le rapport %1 n&apos;est pas enregistré : il a été abandonné.</translation>
    </message>
    <message>
        <source>schema not understood</source>
        <translation>schéma incompris</translation>
    </message>
    <message>
        <source>Report %1 is written, but its schema was not understood.</source>
        <translation>Le rapport %1 est écrit, mais son schéma n&apos;a pas été compris.</translation>
    </message>
    <message>
        <source>Have the schema mended, and make the report again.</source>
        <translation>Faites réparer le schéma, et refaites le rapport.</translation>
    </message>
    <message>
        <source>A copy is safe, also when the program ends.</source>
        <translation>Une copie est en sûreté, même si le programme se termine.</translation>
    </message>
    <message>
        <source>There is no copy of it: it would be lost if the program ended.</source>
        <translation>Il n&apos;y en a pas de copie : il serait perdu si le programme se terminait.</translation>
    </message>
    <message>
        <source>The file is there, and is being checked.</source>
        <translation>Le fichier est là, et sa vérification est en cours.</translation>
    </message>
    <message>
        <source>(without a name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Motif : %1.</translation>
    </message>
    <message>
        <source>Its dialog can be opened again: the values are still there.</source>
        <translation>Son dialogue peut être rouvert : les valeurs sont toujours là.</translation>
    </message>
    <message>
        <source>Not saved yet: %1.</source>
        <translation>Pas encore enregistrés : %1.</translation>
    </message>
    <message>
        <source>%1 Next try in %2 s.</source>
        <translation>%1 Prochain essai dans %2 s.</translation>
    </message>
    <message>
        <source>The file is there, and no fault is known.</source>
        <translation>Le fichier est là, et aucun défaut n&apos;est connu.</translation>
    </message>
</context>
</TS>
