<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Mend</name>
    <message>
        <source>Written otherwise</source>
        <translation>Anders geschrieben</translation>
    </message>
    <message>
        <source>Left as it is, because it would change the format</source>
        <translation>So gelassen, weil es das Format ändern würde</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Überarbeitet</translation>
    </message>
    <message>
        <source>The mended schema</source>
        <translation>Das überarbeitete Schema</translation>
    </message>
    <message>
        <source>Mended schema</source>
        <translation>Überarbeitetes Schema</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>its attributes</source>
        <translation>ihre Attribute</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; of another namespace</source>
        <translation>das Attribut &apos;%1&apos; eines anderen Namensraums</translation>
    </message>
    <message>
        <source>the prohibited attribute &apos;%1&apos;</source>
        <translation>das verbotene Attribut &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the fixed value &apos;%1&apos;</source>
        <translation>der feste Wert &apos;%1&apos;</translation>
    </message>
    <message>
        <source>an enumeration of this value</source>
        <translation>eine Aufzählung dieses Werts</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos;</source>
        <translation>das Attribut &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the facets of the attribute &apos;%1&apos;, whose name contains that of another</source>
        <translation>die Facetten des Attributs &apos;%1&apos;, dessen Name den eines anderen enthält</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of %1</source>
        <translation>minOccurs und maxOccurs von %1</translation>
    </message>
    <message>
        <source>Written out, the groups and types hold each other more often than is followed.</source>
        <translation>Ausgeschrieben enthalten die Gruppen und Typen einander häufiger, als verfolgt wird.</translation>
    </message>
    <message>
        <source>Written out, the schema has more than %1 elements.</source>
        <translation>Ausgeschrieben hat das Schema mehr als %1 Elemente.</translation>
    </message>
    <message>
        <source>Definitions contain each other more than %1 levels deep.</source>
        <translation>Definitionen enthalten einander mehr als %1 Ebenen tief.</translation>
    </message>
    <message>
        <source>an element that never occurs</source>
        <translation>ein Element, das nie vorkommt</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos;, which is declared nowhere</source>
        <translation>das Element &apos;%1&apos;, das nirgends deklariert ist</translation>
    </message>
    <message>
        <source>an alternative that leads deeper</source>
        <translation>eine Alternative, die tiefer führt</translation>
    </message>
    <message>
        <source>xs:choice inside of xs:choice</source>
        <translation>xs:choice in xs:choice</translation>
    </message>
    <message>
        <source>one choice of all alternatives</source>
        <translation>eine Auswahl aus allen Alternativen</translation>
    </message>
    <message>
        <source>xs:choice inside of an alternative</source>
        <translation>xs:choice in einer Alternative</translation>
    </message>
    <message>
        <source>its first alternative</source>
        <translation>seine erste Alternative</translation>
    </message>
    <message>
        <source>its alternatives, each optional</source>
        <translation>seine Alternativen, jede optional</translation>
    </message>
    <message>
        <source>the group &apos;%1&apos;, which is defined nowhere</source>
        <translation>die Gruppe &apos;%1&apos;, die nirgends definiert ist</translation>
    </message>
    <message>
        <source>its elements</source>
        <translation>die Elemente darin</translation>
    </message>
    <message>
        <source>an xs:any that is required</source>
        <translation>ein xs:any, das vorgeschrieben ist</translation>
    </message>
    <message>
        <source>the substitution group of &apos;%1&apos;</source>
        <translation>die Ersetzungsgruppe von &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a choice of its elements</source>
        <translation>eine Auswahl aus ihren Elementen</translation>
    </message>
    <message>
        <source>a group that never occurs</source>
        <translation>eine Gruppe, die nie vorkommt</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of &apos;%1&apos;</source>
        <translation>minOccurs und maxOccurs von &apos;%1&apos;</translation>
    </message>
    <message>
        <source>one choice</source>
        <translation>eine Auswahl</translation>
    </message>
    <message>
        <source>its alternatives in their order, each optional</source>
        <translation>seine Alternativen in ihrer Reihenfolge, jede optional</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of each element inside</source>
        <translation>minOccurs und maxOccurs jedes Elements darin</translation>
    </message>
    <message>
        <source>the group once</source>
        <translation>die Gruppe einmal</translation>
    </message>
    <message>
        <source>&apos;%1&apos; a second time</source>
        <translation>&apos;%1&apos; ein zweites Mal</translation>
    </message>
    <message>
        <source>&apos;%1&apos; inside of itself</source>
        <translation>&apos;%1&apos; in sich selbst</translation>
    </message>
    <message>
        <source>%1 levels</source>
        <translation>%1 Ebenen</translation>
    </message>
    <message>
        <source>the complex type &apos;%1&apos;</source>
        <translation>der komplexe Typ &apos;%1&apos;</translation>
    </message>
    <message>
        <source>written inside of the elements that are of it</source>
        <translation>in die Elemente geschrieben, die diesen Typ haben</translation>
    </message>
    <message>
        <source>an abstract type</source>
        <translation>ein abstrakter Typ</translation>
    </message>
    <message>
        <source>the type itself</source>
        <translation>der Typ selbst</translation>
    </message>
    <message>
        <source>mixed content</source>
        <translation>gemischter Inhalt</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos;, which is defined nowhere</source>
        <translation>der Typ &apos;%1&apos;, der nirgends definiert ist</translation>
    </message>
    <message>
        <source>the content written out</source>
        <translation>der Inhalt ausgeschrieben</translation>
    </message>
    <message>
        <source>an abstract element</source>
        <translation>ein abstraktes Element</translation>
    </message>
    <message>
        <source>the element itself</source>
        <translation>das Element selbst</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos;</source>
        <translation>das Element &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; with a type of its own</source>
        <translation>das Attribut &apos;%1&apos; mit eigenem Typ</translation>
    </message>
    <message>
        <source>a global attribute</source>
        <translation>ein globales Attribut</translation>
    </message>
    <message>
        <source>%1, whose name another has</source>
        <translation>%1, dessen Name schon vergeben ist</translation>
    </message>
    <message>
        <source>an attribute of the type xs:%1</source>
        <translation>ein Attribut des Typs xs:%1</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos;</source>
        <translation>der Typ &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a type without a name</source>
        <translation>ein Typ ohne Namen</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos; behind its use</source>
        <translation>der Typ &apos;%1&apos; hinter seiner Verwendung</translation>
    </message>
    <message>
        <source>in front of it</source>
        <translation>davor</translation>
    </message>
    <message>
        <source>what stands in that file</source>
        <translation>was in jener Datei steht</translation>
    </message>
    <message>
        <source>nothing: it is not read</source>
        <translation>nichts: sie wird nicht gelesen</translation>
    </message>
    <message>
        <source>tags without the prefix xs:</source>
        <translation>Tags ohne das Präfix xs:</translation>
    </message>
    <message>
        <source>the prefix xs:</source>
        <translation>das Präfix xs:</translation>
    </message>
    <message>
        <source>xs:%1 &apos;%2&apos;, to which nothing refers</source>
        <translation>xs:%1 &apos;%2&apos;, auf das nichts verweist</translation>
    </message>
    <message>
        <source>nothing: reports begin with &apos;%1&apos;</source>
        <translation>nichts: Berichte beginnen mit &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the alternative &apos;%1&apos;, which holds no value</source>
        <translation>die Alternative &apos;%1&apos;, die keinen Wert enthält</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, which may be missing</source>
        <translation>&apos;%1&apos;, das fehlen darf</translation>
    </message>
    <message>
        <source>required</source>
        <translation>vorgeschrieben</translation>
    </message>
    <message>
        <source>No report is finite with &apos;%1&apos; inside of itself %2 times.</source>
        <translation>Kein Bericht ist endlich, in dem &apos;%1&apos; %2-mal in sich selbst steht.</translation>
    </message>
    <message>
        <source>The schema declares no global element.</source>
        <translation>Das Schema deklariert kein globales Element.</translation>
    </message>
    <message>
        <source>There is no global element &apos;%1&apos;.</source>
        <translation>Es gibt kein globales Element &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1 is a file of the schema itself, and is not written over.</source>
        <translation>%1 ist eine Datei des Schemas selbst und wird nicht überschrieben.</translation>
    </message>
    <message>
        <source>%1:%2: %3 -&gt; %4 [%5]
</source>
        <translation>%1:%2: %3 -&gt; %4 [%5]
</translation>
    </message>
    <message>
        <source>More can be mended where the format may change.
</source>
        <translation>Mehr lässt sich überarbeiten, wo sich das Format ändern darf.
</translation>
    </message>
    <message>
        <source>Nothing is written otherwise.
</source>
        <translation>Nichts ist anders geschrieben.
</translation>
    </message>
    <message>
        <source>Written otherwise:</source>
        <translation>Anders geschrieben:</translation>
    </message>
    <message>
        <source>Left as it is, because it would change the format:</source>
        <translation>So gelassen, weil es das Format ändern würde:</translation>
    </message>
    <message>
        <source>
The mended schema:
</source>
        <translation>
Das überarbeitete Schema:
</translation>
    </message>
    <message>
        <source>reports stay valid by the original</source>
        <translation>Berichte bleiben nach dem Original gültig</translation>
    </message>
    <message>
        <source>changes the format</source>
        <translation>ändert das Format</translation>
    </message>
    <message>
        <source>The files are longer than the %1 bytes that are mended.</source>
        <translation>Die Dateien sind länger als die %1 Bytes, die überarbeitet werden.</translation>
    </message>
    <message>
        <source>%1 is no well-formed XML.</source>
        <translation>%1 ist kein wohlgeformtes XML.</translation>
    </message>
    <message>
        <source>%1 is no XML Schema.</source>
        <translation>%1 ist kein XML-Schema.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, required %2 times</source>
        <translation>&apos;%1&apos;, %2-mal vorgeschrieben</translation>
    </message>
    <message>
        <source>required once</source>
        <translation>einmal vorgeschrieben</translation>
    </message>
    <message>
        <source>a reference to &apos;%1&apos;</source>
        <translation>ein Verweis auf &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the element in its place</source>
        <translation>das Element an seiner Stelle</translation>
    </message>
    <message>
        <source>a global element in front of a reference to it</source>
        <translation>ein globales Element vor einem Verweis darauf</translation>
    </message>
    <message>
        <source>the target namespace &apos;%1&apos;</source>
        <translation>der Zielnamensraum &apos;%1&apos;</translation>
    </message>
    <message>
        <source>no namespace</source>
        <translation>kein Namensraum</translation>
    </message>
    <message>
        <source>a restriction of the type &apos;%1&apos;</source>
        <translation>eine Einschränkung des Typs &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a restriction of xs:%1 with the facets of both</source>
        <translation>eine Einschränkung von xs:%1 mit den Facetten beider</translation>
    </message>
    <message>
        <source>a single item</source>
        <translation>ein einzelner Eintrag</translation>
    </message>
    <message>
        <source>xs:string, which holds the items as a text</source>
        <translation>xs:string, das die Einträge als Text enthält</translation>
    </message>
    <message>
        <source>one enumeration of all texts</source>
        <translation>eine Aufzählung aller Texte</translation>
    </message>
    <message>
        <source>its first member, a type on xs:%1</source>
        <translation>ihr erstes Mitglied, ein Typ auf xs:%1</translation>
    </message>
    <message>
        <source>an attribute of the type xs:boolean</source>
        <translation>ein Attribut des Typs xs:boolean</translation>
    </message>
    <message>
        <source>the texts true and false</source>
        <translation>die Texte true und false</translation>
    </message>
    <message>
        <source>an attribute of the type xs:time</source>
        <translation>ein Attribut des Typs xs:time</translation>
    </message>
    <message>
        <source>an enumeration of %1</source>
        <translation>eine Aufzählung von %1</translation>
    </message>
    <message>
        <source>an enumeration of xs:string</source>
        <translation>eine Aufzählung von xs:string</translation>
    </message>
    <message>
        <source>the enumeration alone</source>
        <translation>die Aufzählung allein</translation>
    </message>
    <message>
        <source>xs:integer with %1</source>
        <translation>xs:integer mit %1</translation>
    </message>
    <message>
        <source>%1 of an attribute</source>
        <translation>%1 eines Attributs</translation>
    </message>
    <message>
        <source>Written otherwise: %1. Left: %2. Findings: %3.</source>
        <translation>Anders geschrieben: %1. So gelassen: %2. Befunde: %3.</translation>
    </message>
    <message>
        <source>The doctor finds in the mended schema</source>
        <translation>Was der Doktor im überarbeiteten Schema findet</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos; of a namespace that is not read</source>
        <translation>das Element &apos;%1&apos; eines Namensraums, der nicht gelesen wird</translation>
    </message>
    <message>
        <source>the group &apos;%1&apos; of a namespace that is not read</source>
        <translation>die Gruppe &apos;%1&apos; eines Namensraums, der nicht gelesen wird</translation>
    </message>
    <message>
        <source>the other alternatives</source>
        <translation>die übrigen Alternativen</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos; of a namespace that is not read</source>
        <translation>der Typ &apos;%1&apos; eines Namensraums, der nicht gelesen wird</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>The mender knows no way of writing without these findings; another root or number of levels may help.
</source>
        <translation>Eine Schreibweise ohne diese Befunde ist nicht bekannt; eine andere Wurzel oder Zahl von Ebenen hilft vielleicht.
</translation>
    </message>
    <message>
        <source>The format is not kept: what changes it cannot be left as it is.
</source>
        <translation>Das Format bleibt nicht erhalten: Was es ändert, kann nicht so gelassen werden, wie es ist.
</translation>
    </message>
    <message>
        <source>the default &apos;%1&apos;</source>
        <translation>der Vorgabewert &apos;%1&apos;</translation>
    </message>
    <message>
        <source>an xs:list that is never a single item</source>
        <translation>eine xs:list, die nie ein einzelner Eintrag ist</translation>
    </message>
    <message>
        <source>xs:string with %1</source>
        <translation>xs:string mit %1</translation>
    </message>
    <message>
        <source>a single item of %1</source>
        <translation>ein einzelner Eintrag vom Typ %1</translation>
    </message>
    <message>
        <source>an enumeration of its texts</source>
        <translation>eine Aufzählung seiner Texte</translation>
    </message>
    <message>
        <source>a type without any value</source>
        <translation>ein Typ ohne jeden Wert</translation>
    </message>
    <message>
        <source>an enumeration of what it allows</source>
        <translation>eine Aufzählung dessen, was damit erlaubt ist</translation>
    </message>
    <message>
        <source>bounds between which hardly any number is</source>
        <translation>Grenzen, zwischen denen kaum eine Zahl liegt</translation>
    </message>
    <message>
        <source>an enumeration of &apos;%1&apos;</source>
        <translation>eine Aufzählung von &apos;%1&apos;</translation>
    </message>
    <message>
        <source>restrictions of xs:%1, one for each pattern that has to hold</source>
        <translation>Einschränkungen von xs:%1, eine für jedes Muster, das gelten muss</translation>
    </message>
    <message>
        <source>%1; setters give no number beyond the bounds of %2</source>
        <translation>%1; kein Setter liefert eine Zahl jenseits der Grenzen von %2</translation>
    </message>
</context>
<context>
    <name>SchemaDoctor</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that are examined.</source>
        <translation>Die Datei ist länger als die %1 Bytes, die untersucht werden.</translation>
    </message>
    <message>
        <source>The file holds no XML.</source>
        <translation>Die Datei enthält kein XML.</translation>
    </message>
    <message>
        <source>No well-formed XML, %1</source>
        <translation>Kein wohlgeformtes XML, %1</translation>
    </message>
    <message>
        <source>The library gives the schema up: a definition that it refers to never comes.</source>
        <translation>Die Bibliothek gibt das Schema auf: Eine Definition, auf die es verweist, kommt nie.</translation>
    </message>
    <message>
        <source>The library gives the schema up: definitions wait for each other.</source>
        <translation>Die Bibliothek gibt das Schema auf: Definitionen warten aufeinander.</translation>
    </message>
    <message>
        <source>The library gives the schema up: %1</source>
        <translation>Die Bibliothek gibt das Schema auf: %1</translation>
    </message>
    <message>
        <source>Too much to be shown: %1</source>
        <translation>Zu viel, um es zu zeigen: %1</translation>
    </message>
    <message>
        <source>The library lays nothing out.</source>
        <translation>Die Bibliothek legt nichts an.</translation>
    </message>
    <message>
        <source>The library cannot read the file, %1</source>
        <translation>Die Bibliothek kann die Datei nicht lesen, %1</translation>
    </message>
    <message>
        <source>complaint: %1</source>
        <translation>Beanstandung: %1</translation>
    </message>
    <message>
        <source>errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>1 element laid out.</source>
        <translation>1 Element angelegt.</translation>
    </message>
    <message>
        <source>%1 elements laid out.</source>
        <translation>%1 Elemente angelegt.</translation>
    </message>
    <message>
        <source>Skip to the findings</source>
        <translation>Direkt zu den Befunden</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the page</comment>
        <translation>de</translation>
    </message>
    <message>
        <source>%1 - schema doctor</source>
        <translation>%1 - Schema-Doktor</translation>
    </message>
    <message>
        <source>To the findings</source>
        <translation>Zu den Befunden</translation>
    </message>
    <message>
        <source>The schema cannot be read: %1</source>
        <translation>Das Schema lässt sich nicht lesen: %1</translation>
    </message>
    <message>
        <source>No findings.</source>
        <translation>Keine Befunde.</translation>
    </message>
    <message>
        <source>Search for a name</source>
        <translation>Nach einem Namen suchen</translation>
    </message>
    <message>
        <source>Search for a name (press /)</source>
        <translation>Nach einem Namen suchen (Taste /)</translation>
    </message>
    <message>
        <source>Unfold all</source>
        <translation>Alles aufklappen</translation>
    </message>
    <message>
        <source>Fold all</source>
        <translation>Alles zuklappen</translation>
    </message>
    <message>
        <source>%1 in the tree, %2 findings</source>
        <translation>%1 im Baum, %2 Befunde</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
    <message>
        <source>What is laid out</source>
        <translation>Was angelegt wird</translation>
    </message>
    <message>
        <source>The first %1 of %2 elements; --tree prints all of them.</source>
        <translation>Die ersten %1 von %2 Elementen; --tree gibt alle aus.</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>Vorgabe %1</translation>
    </message>
    <message>
        <source>occurs %1, counts taken: %2</source>
        <translation>Vorkommen %1, angenommene Anzahl: %2</translation>
    </message>
    <message>
        <source>alternative of choice %1</source>
        <translation>Alternative der Auswahl %1</translation>
    </message>
    <message>
        <source>alternative by its name</source>
        <translation>Alternative durch den Namen</translation>
    </message>
    <message>
        <source>unfilled it %1</source>
        <translation>unausgefüllt: %1</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>kein Typ</translation>
    </message>
    <message>
        <source>%1 (not checked)</source>
        <translation>%1 (nicht geprüft)</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>eins von %1</translation>
    </message>
    <message>
        <source>nothing can fill it</source>
        <translation>nichts kann es füllen</translation>
    </message>
    <message>
        <source>set by %1</source>
        <translation>gesetzt durch %1</translation>
    </message>
    <message>
        <source>Who could be the root</source>
        <translation>Kandidaten für die Wurzel</translation>
    </message>
    <message>
        <source>(an attribute)</source>
        <translation>(ein Attribut)</translation>
    </message>
    <message>
        <source>is the root: the greatest name wins</source>
        <translation>ist die Wurzel: Der größte Name gewinnt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>Es gibt keine.</translation>
    </message>
    <message>
        <source>The first %1 of %2; --json prints all of them.</source>
        <translation>Die ersten %1 von %2; --json gibt alle aus.</translation>
    </message>
    <message>
        <source>What the library does:</source>
        <translation>Was die Bibliothek tut:</translation>
    </message>
    <message>
        <source>Write instead:</source>
        <translation>Stattdessen:</translation>
    </message>
    <message>
        <source>As it is meant</source>
        <translation>Wie es gemeint ist</translation>
    </message>
    <message>
        <source>As it is laid out</source>
        <translation>Wie es angelegt wird</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Files that are too long for the page are left out.</source>
        <translation>Dateien, die für die Seite zu lang sind, sind weggelassen.</translation>
    </message>
    <message>
        <source>Reports filled on trial: %1, of which valid: %2.</source>
        <translation>Zur Probe ausgefüllte Berichte: %1, davon gültig: %2.</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>%1: %2 findings</source>
        <translation>%1: %2 Befunde</translation>
    </message>
    <message>
        <source>read</source>
        <translation>gelesen</translation>
    </message>
    <message>
        <source>read again</source>
        <translation>erneut gelesen</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>malformed</source>
        <translation>nicht wohlgeformt</translation>
    </message>
    <message>
        <source>cyclic, skipped</source>
        <translation>zyklisch, übersprungen</translation>
    </message>
    <message>
        <source>too deep, skipped</source>
        <translation>zu tief, übersprungen</translation>
    </message>
    <message>
        <source>%1, outside of the folder</source>
        <translation>%1, außerhalb des Ordners</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>bleibt</translation>
    </message>
    <message>
        <source>is removed</source>
        <translation>wird entfernt</translation>
    </message>
    <message>
        <source>is removed when its first value is unfilled</source>
        <translation>wird entfernt, wenn sein erster Wert unausgefüllt ist</translation>
    </message>
    <message>
        <source>is removed with the container around it</source>
        <translation>wird mit dem Container darum entfernt</translation>
    </message>
    <message>
        <source>stays, unless a value behind it is unfilled</source>
        <translation>bleibt, außer wenn ein Wert dahinter unausgefüllt ist</translation>
    </message>
    <message>
        <source>was not tried</source>
        <translation>wurde nicht erprobt</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>nicht erprobt</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>1 or more</source>
        <translation>1 oder mehr</translation>
    </message>
    <message>
        <source>0 only</source>
        <translation>nur 0</translation>
    </message>
    <message>
        <source>no count</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 in the first copy, the others were not tried</source>
        <translation>%1 (in der ersten Kopie; die anderen wurden nicht erprobt)</translation>
    </message>
    <message>
        <source>%1 in the first copy only</source>
        <translation>%1 (nur in der ersten Kopie)</translation>
    </message>
    <message>
        <source>A report filled with nothing but what is required is not valid: %1</source>
        <translation>Ein Bericht, in dem nur das Vorgeschriebene ausgefüllt ist, ist ungültig: %1</translation>
    </message>
    <message>
        <source>A report filled with everything is not valid: %1</source>
        <translation>Ein Bericht, in dem alles ausgefüllt ist, ist ungültig: %1</translation>
    </message>
    <message>
        <source>A report filled with everything, and twice what may repeat is not valid: %1</source>
        <translation>Ein Bericht, in dem alles ausgefüllt ist und Wiederholbares doppelt vorkommt, ist ungültig: %1</translation>
    </message>
    <message>
        <source>A report filled with nothing but what is required, and twice what may repeat is not valid: %1</source>
        <translation>Ein Bericht, in dem nur das Vorgeschriebene ausgefüllt ist und Wiederholbares doppelt vorkommt, ist ungültig: %1</translation>
    </message>
    <message>
        <source>A report filled with what is required and the optional &apos;%1&apos; is not valid: %2</source>
        <translation>Ein Bericht, in dem das Vorgeschriebene und das optionale &apos;%1&apos; ausgefüllt sind, ist ungültig: %2</translation>
    </message>
    <message>
        <source>The library writes the report all the same and says nothing of it.</source>
        <translation>Die Bibliothek schreibt den Bericht trotzdem und sagt nichts dazu.</translation>
    </message>
    <message>
        <source>Compare the declaration with the tree, and write what differs in another way.</source>
        <translation>Die Deklaration mit dem Baum vergleichen und anders schreiben, was abweicht.</translation>
    </message>
    <message>
        <source>Of %1 reports to be filled on trial, %2 were left out: they would take too long.</source>
        <translation>Von %1 Berichten, die zur Probe auszufüllen wären, sind %2 weggelassen: Sie auszufüllen würde zu lange dauern.</translation>
    </message>
    <message>
        <source>No report was filled on trial: it would take too long.</source>
        <translation>Kein Bericht wurde zur Probe ausgefüllt: Es würde zu lange dauern.</translation>
    </message>
    <message>
        <source>No report was validated: libxml2 does not take the schema.</source>
        <translation>Kein Bericht wurde validiert: libxml2 nimmt das Schema nicht an.</translation>
    </message>
    <message>
        <source>The report is no well-formed XML.</source>
        <translation>Der Bericht ist kein wohlgeformtes XML.</translation>
    </message>
    <message>
        <source>libxml2 needs too much time or memory to check the schema.</source>
        <translation>libxml2 braucht zu viel Zeit oder Speicher, um das Schema zu prüfen.</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;.</source>
        <translation>XML erlaubt den Namen &apos;%1&apos; nicht.</translation>
    </message>
    <message>
        <source>%1 | ... (%2 values)</source>
        <translation>%1 | ... (%2 Werte)</translation>
    </message>
    <message>
        <source>no setter</source>
        <translation>kein Setter</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>occurs %1, counts: %2</source>
        <translation>Vorkommen %1, Anzahl: %2</translation>
    </message>
    <message>
        <source>alternative by name</source>
        <translation>Alternative durch den Namen</translation>
    </message>
    <message>
        <source>unfilled: %1</source>
        <translation>unausgefüllt: %1</translation>
    </message>
    <message>
        <source>as it is meant</source>
        <translation>wie es gemeint ist</translation>
    </message>
    <message>
        <source>as it is laid out</source>
        <translation>wie es angelegt wird</translation>
    </message>
    <message>
        <source>element: %1</source>
        <translation>Element:     %1</translation>
    </message>
    <message>
        <source>effect:  %1</source>
        <translation>Wirkung:     %1</translation>
    </message>
    <message>
        <source>instead: %1</source>
        <translation>stattdessen: %1</translation>
    </message>
    <message>
        <source>%1 elements are laid out.</source>
        <translation>%1 Elemente werden angelegt.</translation>
    </message>
    <message>
        <source>%1 errors, %2 warnings, %3 notes.</source>
        <translation>%1 Fehler, %2 Warnungen, %3 Hinweise.</translation>
    </message>
    <message>
        <source>%1 is abstract.</source>
        <translation>%1 ist abstrakt.</translation>
    </message>
    <message>
        <source>It is laid out like any other, and no other takes its place.</source>
        <translation>Es wird wie jedes andere angelegt, und kein anderes tritt an seine Stelle.</translation>
    </message>
    <message>
        <source>Name the element or the type that reports are to have.</source>
        <translation>Das Element oder den Typ nennen, den Berichte haben sollen.</translation>
    </message>
    <message>
        <source>%1 is written here.</source>
        <translation>Hier steht %1.</translation>
    </message>
    <message>
        <source>It is read like xs:sequence: the elements are always laid out in the order in which they are written.</source>
        <translation>Es wird wie xs:sequence gelesen: Die Elemente werden immer in der Reihenfolge angelegt, in der sie geschrieben sind.</translation>
    </message>
    <message>
        <source>Write xs:sequence, which says the same.</source>
        <translation>xs:sequence schreiben, das dasselbe sagt.</translation>
    </message>
    <message>
        <source>An xs:annotation stands inside of a restriction.</source>
        <translation>Ein xs:annotation steht in einer Einschränkung.</translation>
    </message>
    <message>
        <source>Every tag in there counts as a facet: &apos;annotation&apos; and the tags inside become attributes of the report and stay there.</source>
        <translation>Jedes Tag darin gilt als Facette: &apos;annotation&apos; und die Tags im Inneren werden Attribute des Berichts und bleiben dort.</translation>
    </message>
    <message>
        <source>Put the annotation in front of the restriction, or write a comment.</source>
        <translation>Die Annotation vor die Einschränkung setzen oder einen Kommentar schreiben.</translation>
    </message>
    <message>
        <source>An attribute is called &apos;%1&apos;.</source>
        <translation>Ein Attribut heißt &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>That is the name of an annotation: the attribute takes its place, is taken for it, and is removed with it.</source>
        <translation>So heißt eine Annotation: Das Attribut tritt an ihre Stelle, wird für sie gehalten und mit ihr entfernt.</translation>
    </message>
    <message>
        <source>Give the attribute another name; not type, not default, and nothing that contains &apos;enumeration&apos; or &apos;clusive&apos;.</source>
        <translation>Dem Attribut einen anderen Namen geben; nicht type, nicht default und nichts, was &apos;enumeration&apos; oder &apos;clusive&apos; enthält.</translation>
    </message>
    <message>
        <source>An element is called &apos;%1&apos;.</source>
        <translation>Ein Element heißt &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>That is how simple types are kept: as first element of a type it is not laid out, and what is of the type gets its annotations and no child.</source>
        <translation>So werden einfache Typen aufbewahrt: Als erstes Element eines Typs wird es nicht angelegt, und was diesen Typ hat, erhält seine Annotationen und kein Kind.</translation>
    </message>
    <message>
        <source>Give the element another name.</source>
        <translation>Dem Element einen anderen Namen geben.</translation>
    </message>
    <message>
        <source>xs:any leaves a place for elements that are not named.</source>
        <translation>xs:any lässt Platz für Elemente, die nicht genannt sind.</translation>
    </message>
    <message>
        <source>It is passed over: nothing is laid out there, though an element is required.</source>
        <translation>Es wird übergangen: Dort wird nichts angelegt, obwohl ein Element vorgeschrieben ist.</translation>
    </message>
    <message>
        <source>It is passed over: no report has an element there.</source>
        <translation>Es wird übergangen: Kein Bericht hat dort ein Element.</translation>
    </message>
    <message>
        <source>Declare the elements that a report may have.</source>
        <translation>Die Elemente deklarieren, die ein Bericht haben darf.</translation>
    </message>
    <message>
        <source>It is passed over: only attributes that are declared by name can be set.</source>
        <translation>Es wird übergangen: Nur Attribute, die mit Namen deklariert sind, lassen sich setzen.</translation>
    </message>
    <message>
        <source>Declare the attributes that a report may have.</source>
        <translation>Die Attribute deklarieren, die ein Bericht haben darf.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is of the type &apos;%2&apos;.</source>
        <translation>Das Element &apos;%1&apos; ist vom Typ &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Every setter takes it: any text, truth or time that is offered is written, whether it is a number or not.</source>
        <translation>Jeder Setter nimmt es an: Jeder angebotene Text, Wahrheitswert oder Zeitpunkt wird geschrieben, ob Zahl oder nicht.</translation>
    </message>
    <message>
        <source>Write xs:integer, restricted to the range, or offer it integers only.</source>
        <translation>xs:integer schreiben, auf den Bereich eingeschränkt, oder nur ganze Zahlen anbieten.</translation>
    </message>
    <message>
        <source>%1 asks for attributes.</source>
        <translation>%1 verweist auf Attribute.</translation>
    </message>
    <message>
        <source>It is passed over: the element has none of them.</source>
        <translation>Es wird übergangen: Das Element hat keines davon.</translation>
    </message>
    <message>
        <source>Write the attributes here, each with xs:attribute.</source>
        <translation>Die Attribute hier schreiben, jedes mit xs:attribute.</translation>
    </message>
    <message>
        <source>%1 defines attributes.</source>
        <translation>%1 definiert Attribute.</translation>
    </message>
    <message>
        <source>It is passed over, and each attribute in it counts as a global declaration, which competes for the root of the report.</source>
        <translation>Es wird übergangen, und jedes Attribut darin gilt als globale Deklaration, die sich um die Wurzel des Berichts bewirbt.</translation>
    </message>
    <message>
        <source>Remove it; declare the attributes where they are used.</source>
        <translation>Entfernen; die Attribute dort deklarieren, wo sie gebraucht werden.</translation>
    </message>
    <message>
        <source>%1 stands inside of a restriction.</source>
        <translation>%1 steht in einer Einschränkung.</translation>
    </message>
    <message>
        <source>Every tag in there counts as a facet: the report gets an attribute called &apos;%1&apos;, which stays, and not the one that is declared.</source>
        <translation>Jedes Tag darin gilt als Facette: Der Bericht erhält ein Attribut namens &apos;%1&apos;, das bleibt, und nicht das deklarierte.</translation>
    </message>
    <message>
        <source>Restrict in a named xs:simpleType, and add the attribute in an xs:extension of it.</source>
        <translation>In einem benannten xs:simpleType einschränken und das Attribut in einer xs:extension davon hinzufügen.</translation>
    </message>
    <message>
        <source>%1 belongs to the named type &apos;%2&apos;.</source>
        <translation>%1 gehört zum benannten Typ &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It goes to the element that was declared last in the type, and not to the element that is of the type.</source>
        <translation>Es geht an das Element, das im Typ zuletzt deklariert wurde, und nicht an das Element, das diesen Typ hat.</translation>
    </message>
    <message>
        <source>The type has no element in front of it to go to: it is lost.</source>
        <translation>Im Typ steht kein Element davor, an das es gehen könnte: Es geht verloren.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: only there attributes are understood, at any depth.</source>
        <translation>&apos;%1&apos; und jeden benannten Typ, in dem er gebraucht wird, in das Element schreiben, das diesen Typ hat, bis hinauf zum globalen Element: Nur dort werden Attribute verstanden, in jeder Tiefe.</translation>
    </message>
    <message>
        <source>maxInclusive of an attribute is &apos;%1&apos;, beside a lower bound.</source>
        <translation>maxInclusive eines Attributs ist &apos;%1&apos;, neben einer unteren Grenze.</translation>
    </message>
    <message>
        <source>The value %1 itself is refused.</source>
        <translation>Der Wert %1 selbst wird abgelehnt.</translation>
    </message>
    <message>
        <source>Write the next greater integer, or leave the lower bound out.</source>
        <translation>Die nächstgrößere ganze Zahl schreiben oder die untere Grenze weglassen.</translation>
    </message>
    <message>
        <source>xs:complexContent derives a type by extension.</source>
        <translation>xs:complexContent leitet einen Typ durch Erweiterung ab.</translation>
    </message>
    <message>
        <source>xs:complexContent derives a type by restriction.</source>
        <translation>xs:complexContent leitet einen Typ durch Einschränkung ab.</translation>
    </message>
    <message>
        <source>Every tag inside the restriction becomes an attribute of the report; no element of it is laid out.</source>
        <translation>Jedes Tag in der Einschränkung wird ein Attribut des Berichts; kein Element davon wird angelegt.</translation>
    </message>
    <message>
        <source>The elements of the base are not laid out, and those of the extension are lost with them: who uses the type gets no child.</source>
        <translation>Die Elemente der Basis werden nicht angelegt, und die der Erweiterung gehen mit ihnen verloren: Wer den Typ verwendet, erhält kein Kind.</translation>
    </message>
    <message>
        <source>The elements of the base are not laid out, only those of the extension.</source>
        <translation>Die Elemente der Basis werden nicht angelegt, nur die der Erweiterung.</translation>
    </message>
    <message>
        <source>Write all elements in one xs:complexType, without a base.</source>
        <translation>Alle Elemente in einen xs:complexType schreiben, ohne Basis.</translation>
    </message>
    <message>
        <source>The name of the attribute &apos;%1&apos; is part of that of &apos;%2&apos;.</source>
        <translation>Der Name des Attributs &apos;%1&apos; ist Teil des Namens von &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Facets and enumeration values are found by parts of names: those of &apos;%2&apos; are applied to &apos;%1&apos;, too.</source>
        <translation>Facetten und Aufzählungswerte werden nach Teilen von Namen gefunden: Die von &apos;%2&apos; gelten auch für &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Choose names of which none is part of another.</source>
        <translation>Namen wählen, von denen keiner Teil eines anderen ist.</translation>
    </message>
    <message>
        <source>%1 is &apos;%2&apos;, and %3 is &apos;%4&apos;.</source>
        <translation>%1 ist &apos;%2&apos;, und %3 ist &apos;%4&apos;.</translation>
    </message>
    <message>
        <source>No value is accepted.</source>
        <translation>Kein Wert wird angenommen.</translation>
    </message>
    <message>
        <source>Write the smaller bound as the lower one.</source>
        <translation>Die kleinere Grenze als untere schreiben.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included while it is being read.</source>
        <translation>Die Datei &apos;%1&apos; wird eingebunden, während sie gelesen wird.</translation>
    </message>
    <message>
        <source>The include of &apos;%1&apos; is too deep.</source>
        <translation>&apos;%1&apos; ist zu tief eingebunden.</translation>
    </message>
    <message>
        <source>It is skipped.</source>
        <translation>Sie wird übersprungen.</translation>
    </message>
    <message>
        <source>Include all files in the top file, and none in the others.</source>
        <translation>Alle Dateien in der obersten Datei einbinden und keine in den anderen.</translation>
    </message>
    <message>
        <source>%1 is declared in front of an xs:include, in line %2.</source>
        <translation>%1 ist vor einem xs:include deklariert, in Zeile %2.</translation>
    </message>
    <message>
        <source>%1 is declared in an included file.</source>
        <translation>%1 ist in einer eingebundenen Datei deklariert.</translation>
    </message>
    <message>
        <source>The end of the included file marks it as used: it never becomes the root of a report.</source>
        <translation>Das Ende der eingebundenen Datei kennzeichnet es als verwendet: Es wird nie Wurzel eines Berichts.</translation>
    </message>
    <message>
        <source>Write every xs:include in front of all declarations.</source>
        <translation>Jedes xs:include vor alle Deklarationen schreiben.</translation>
    </message>
    <message>
        <source>Declare the root in the file that includes the others, or refer to this element there.</source>
        <translation>Die Wurzel in der Datei deklarieren, die die anderen einbindet, oder dort auf dieses Element verweisen.</translation>
    </message>
    <message>
        <source>The whole schema is given up: the report holds nothing.</source>
        <translation>Das ganze Schema wird aufgegeben: Der Bericht enthält nichts.</translation>
    </message>
    <message>
        <source>Lay out less: lower minOccurs, and split the schema into several.</source>
        <translation>Weniger anlegen: minOccurs senken und das Schema in mehrere teilen.</translation>
    </message>
    <message>
        <source>That is more than is shown: there is no tree here, and rules that need the tree are silent. The library goes on, up to limits of its own.</source>
        <translation>Das ist mehr, als gezeigt wird: Es gibt hier keinen Baum, und Regeln, die ihn brauchen, schweigen. Die Bibliothek macht weiter, bis zu ihren eigenen Grenzen.</translation>
    </message>
    <message>
        <source>Lay out less, if reports are to be written quickly.</source>
        <translation>Weniger anlegen, wenn Berichte schnell geschrieben werden sollen.</translation>
    </message>
    <message>
        <source>Any value is taken, and the enumeration stays in the report as attributes that the schema does not allow.</source>
        <translation>Jeder Wert wird angenommen, und die Aufzählung bleibt im Bericht, als Attribute, die das Schema nicht erlaubt.</translation>
    </message>
    <message>
        <source>Enumerate texts, xs:string, or write bounds: minInclusive and maxInclusive.</source>
        <translation>Texte aufzählen, xs:string, oder Grenzen schreiben: minInclusive und maxInclusive.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</source>
        <translation>Das Element &apos;%1&apos; zählt Werte vom Typ &apos;%2&apos; auf.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</source>
        <translation>Das Attribut &apos;%1&apos; zählt Werte vom Typ &apos;%2&apos; auf.</translation>
    </message>
    <message>
        <source>%1 is 65535.</source>
        <translation>%1 ist 65535.</translation>
    </message>
    <message>
        <source>That number says that there is no bound: any value is accepted, and the facet stays in the report as an attribute.</source>
        <translation>Diese Zahl besagt, dass es keine Grenze gibt: Jeder Wert wird angenommen, und die Facette bleibt im Bericht als Attribut.</translation>
    </message>
    <message>
        <source>Take another bound, such as 65534 or 65535.5, or leave the facet out.</source>
        <translation>Eine andere Grenze nehmen, etwa 65534 oder 65535.5, oder die Facette weglassen.</translation>
    </message>
    <message>
        <source>A file called &apos;%1&apos; is looked for.</source>
        <translation>Gesucht wird eine Datei namens &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The base is not read: what is derived here has no type.</source>
        <translation>Die Basis wird nicht gelesen: Was hier abgeleitet ist, hat keinen Typ.</translation>
    </message>
    <message>
        <source>It counts as a named type called &apos;%1&apos;: what is inside belongs to that type and not to the element around it.</source>
        <translation>Es gilt als benannter Typ namens &apos;%1&apos;: Was darin steht, gehört zu diesem Typ und nicht zum Element darum.</translation>
    </message>
    <message>
        <source>It is called &apos;%1&apos;: whoever refers to &apos;%2&apos; does not find it.</source>
        <translation>Es heißt &apos;%1&apos;: Wer auf &apos;%2&apos; verweist, findet es nicht.</translation>
    </message>
    <message>
        <source>The value of the facet is taken to be &apos;%1&apos;.</source>
        <translation>Als Wert der Facette gilt &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The first attribute of &lt;%1&gt; is &apos;%2&apos;, not &apos;%3&apos;.</source>
        <translation>Das erste Attribut von &lt;%1&gt; ist &apos;%2&apos;, nicht &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>Write %1 in front of all other attributes.</source>
        <translation>%1 vor alle anderen Attribute schreiben.</translation>
    </message>
    <message>
        <source>Leave the attribute out, or give the type a name, written first.</source>
        <translation>Das Attribut weglassen oder dem Typ einen Namen geben, an erster Stelle.</translation>
    </message>
    <message>
        <source>%1 has the fixed value &apos;%2&apos;.</source>
        <translation>%1 hat den festen Wert &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The value is neither written nor checked: any other is accepted.</source>
        <translation>Der Wert wird weder geschrieben noch geprüft: Jeder andere wird angenommen.</translation>
    </message>
    <message>
        <source>Restrict xs:string to an enumeration of this one value, and have it set like any other: a default that nobody sets leaves the annotations.</source>
        <translation>xs:string auf eine Aufzählung mit diesem einen Wert einschränken und ihn wie jeden anderen setzen lassen: Bei einer Vorgabe, die niemand setzt, bleiben die Annotationen.</translation>
    </message>
    <message>
        <source>%1 of an attribute is &apos;%2&apos;.</source>
        <translation>%1 eines Attributs ist &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Bounds of attributes are read as integers: this one counts as 0.</source>
        <translation>Grenzen von Attributen werden als ganze Zahlen gelesen: Diese gilt als 0.</translation>
    </message>
    <message>
        <source>Write an integer, or make the attribute an element.</source>
        <translation>Eine ganze Zahl schreiben oder das Attribut zum Element machen.</translation>
    </message>
    <message>
        <source>%1 asks for the elements of a group.</source>
        <translation>%1 verweist auf die Elemente einer Gruppe.</translation>
    </message>
    <message>
        <source>It is passed over: none of them is laid out here.</source>
        <translation>Es wird übergangen: Keines davon wird hier angelegt.</translation>
    </message>
    <message>
        <source>Write the elements of the group here, or put them into an element of a named type.</source>
        <translation>Die Elemente der Gruppe hier schreiben oder sie in ein Element eines benannten Typs setzen.</translation>
    </message>
    <message>
        <source>%1 defines a group.</source>
        <translation>%1 definiert eine Gruppe.</translation>
    </message>
    <message>
        <source>It is passed over, and each element in it counts as a global declaration, which competes for the root of the report.</source>
        <translation>Es wird übergangen, und jedes Element darin gilt als globale Deklaration, die sich um die Wurzel des Berichts bewirbt.</translation>
    </message>
    <message>
        <source>Remove it; write its elements where they are used.</source>
        <translation>Entfernen; die Elemente dort schreiben, wo sie gebraucht werden.</translation>
    </message>
    <message>
        <source>It is passed over: nothing is compared while a report is filled.</source>
        <translation>Es wird übergangen: Beim Ausfüllen eines Berichts wird nichts verglichen.</translation>
    </message>
    <message>
        <source>Keep it for the validation of finished reports, or leave it out.</source>
        <translation>Für die Validierung fertiger Berichte behalten oder weglassen.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; names the schema &apos;%2&apos;.</source>
        <translation>&lt;%1&gt; nennt das Schema &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It is passed over: nothing of that schema is read.</source>
        <translation>Es wird übergangen: Von jenem Schema wird nichts gelesen.</translation>
    </message>
    <message>
        <source>That schema is not read; what stands inside the tag is read as if it stood beside it.</source>
        <translation>Jenes Schema wird nicht gelesen; was im Tag steht, wird gelesen, als stünde es daneben.</translation>
    </message>
    <message>
        <source>Use xs:include, and put what is taken from there under no namespace.</source>
        <translation>xs:include verwenden und, was von dort kommt, in keinen Namensraum setzen.</translation>
    </message>
    <message>
        <source>%1 has a type written inside of it.</source>
        <translation>In %1 ist ein Typ geschrieben.</translation>
    </message>
    <message>
        <source>The attribute gets no type, so that no setter takes it; the type and its facets go to an element instead.</source>
        <translation>Das Attribut erhält keinen Typ, sodass kein Setter es annimmt; der Typ und seine Facetten gehen stattdessen an ein Element.</translation>
    </message>
    <message>
        <source>Declare the attribute globally with this type, and refer to it here with &lt;xs:attribute ref=&quot;%1&quot;/&gt;.</source>
        <translation>Das Attribut mit diesem Typ global deklarieren und hier mit &lt;xs:attribute ref=&quot;%1&quot;/&gt; darauf verweisen.</translation>
    </message>
    <message>
        <source>The declaration is left out.</source>
        <translation>Die Deklaration wird weggelassen.</translation>
    </message>
    <message>
        <source>Write a name of letters, digits, &apos;-&apos;, &apos;_&apos; and &apos;.&apos;, without blanks, that begins with a letter or &apos;_&apos;.</source>
        <translation>Einen Namen aus Buchstaben, Ziffern, &apos;-&apos;, &apos;_&apos; und &apos;.&apos; schreiben, ohne Leerzeichen, der mit einem Buchstaben oder &apos;_&apos; beginnt.</translation>
    </message>
    <message>
        <source>libxml2 does not accept the schema: %1</source>
        <translation>libxml2 nimmt das Schema nicht an: %1</translation>
    </message>
    <message>
        <source>The library does not look at it, but no report can be validated.</source>
        <translation>Die Bibliothek achtet nicht darauf, aber kein Bericht lässt sich validieren.</translation>
    </message>
    <message>
        <source>Mend the schema.</source>
        <translation>Das Schema berichtigen.</translation>
    </message>
    <message>
        <source>Declare the prefix: xmlns:%1=&quot;...&quot;.</source>
        <translation>Das Präfix deklarieren: xmlns:%1=&quot;...&quot;.</translation>
    </message>
    <message>
        <source>the prefix &apos;%1:&apos;</source>
        <translation>das Präfix &apos;%1:&apos;</translation>
    </message>
    <message>
        <source>It is passed over: what is of this type has no type and cannot be filled.</source>
        <translation>Es wird übergangen: Was diesen Typ haben soll, hat keinen Typ und lässt sich nicht füllen.</translation>
    </message>
    <message>
        <source>Use xs:string and write the list as a text, or repeat the element.</source>
        <translation>xs:string verwenden und die Liste als Text schreiben oder das Element wiederholen.</translation>
    </message>
    <message>
        <source>The included file &apos;%1&apos; is no well-formed XML: %2</source>
        <translation>Die eingebundene Datei &apos;%1&apos; ist kein wohlgeformtes XML: %2</translation>
    </message>
    <message>
        <source>What stands behind the fault is not read, without a word.</source>
        <translation>Was hinter dem Fehler steht, wird stillschweigend übergangen.</translation>
    </message>
    <message>
        <source>Mend the file.</source>
        <translation>Die Datei berichtigen.</translation>
    </message>
    <message>
        <source>Name the schema with its folder, such as ./%1: a name without any counts as a folder. That goes for the path that an application gives to the library, too.</source>
        <translation>Das Schema mit seinem Ordner nennen, etwa ./%1: Ein Name ohne Ordner gilt als Ordner. Das gilt auch für den Pfad, den eine Anwendung der Bibliothek gibt.</translation>
    </message>
    <message>
        <source>Write the location as seen from the top file: includes of included files count from there, too.</source>
        <translation>Den Ort von der obersten Datei aus schreiben: Auch in eingebundenen Dateien zählt er von dort.</translation>
    </message>
    <message>
        <source>Give the location as seen from the folder of the top file.</source>
        <translation>Den Ort vom Ordner der obersten Datei aus angeben.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included and cannot be read.</source>
        <translation>Die Datei &apos;%1&apos; ist eingebunden und lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>It is looked for as &apos;%1&apos;, and passed over without a word.</source>
        <translation>Sie wird als &apos;%1&apos; gesucht und stillschweigend übergangen.</translation>
    </message>
    <message>
        <source>%1 refers to &apos;%2&apos;, which is defined nowhere.</source>
        <translation>%1 verweist auf &apos;%2&apos;, das nirgends definiert ist.</translation>
    </message>
    <message>
        <source>%1 refers to &apos;%2&apos;, which nothing defines that could be read.</source>
        <translation>%1 verweist auf &apos;%2&apos;, das in nichts Gelesenem definiert ist.</translation>
    </message>
    <message>
        <source>Define &apos;%1&apos;, include the file that does, or write xs:%1 if it is a type of XML Schema.</source>
        <translation>&apos;%1&apos; definieren, die Datei einbinden, die es tut, oder xs:%1 schreiben, wenn es ein Typ von XML Schema ist.</translation>
    </message>
    <message>
        <source>An xs:choice stands inside of another.</source>
        <translation>Ein xs:choice steht in einem anderen.</translation>
    </message>
    <message>
        <source>Its end ends the outer one too: the alternatives behind it are mandatory, unless their own minOccurs is 0.</source>
        <translation>Sein Ende beendet auch das äußere: Die Alternativen dahinter sind vorgeschrieben, außer wenn ihr eigenes minOccurs 0 ist.</translation>
    </message>
    <message>
        <source>Write the alternatives of both as one choice, or put the inner choice last.</source>
        <translation>Die Alternativen beider als eine Auswahl schreiben oder die innere Auswahl ans Ende setzen.</translation>
    </message>
    <message>
        <source>An anonymous complex type stands inside of the named type &apos;%1&apos;.</source>
        <translation>Im benannten Typ &apos;%1&apos; steht ein anonymer komplexer Typ.</translation>
    </message>
    <message>
        <source>Its elements are laid out beside the element that they belong to, and the place for references and attributes moves inside of the global element that was read last.</source>
        <translation>Seine Elemente werden neben dem Element angelegt, zu dem sie gehören, und der Platz für Verweise und Attribute rückt in das zuletzt gelesene globale Element.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: a type with attributes can have no name.</source>
        <translation>&apos;%1&apos; und jeden benannten Typ, in dem er gebraucht wird, in das Element schreiben, das diesen Typ hat, bis hinauf zum globalen Element: Ein Typ mit Attributen kann keinen Namen haben.</translation>
    </message>
    <message>
        <source>Give the inner type a name, at the top of the schema, and refer to it with type.</source>
        <translation>Dem inneren Typ einen Namen geben, auf der obersten Ebene des Schemas, und mit type darauf verweisen.</translation>
    </message>
    <message>
        <source>%1 is nillable.</source>
        <translation>%1 ist nillable.</translation>
    </message>
    <message>
        <source>No report has an xsi:nil: an element without a value stays with its annotations, or is removed when it may be missing.</source>
        <translation>Kein Bericht hat ein xsi:nil: Ein Element ohne Wert bleibt mit seinen Annotationen oder wird entfernt, wenn es fehlen darf.</translation>
    </message>
    <message>
        <source>Write minOccurs=&quot;0&quot; for what may be without a value.</source>
        <translation>minOccurs=&quot;0&quot; schreiben, wo der Wert fehlen darf.</translation>
    </message>
    <message>
        <source>%1 has minOccurs or maxOccurs of its own.</source>
        <translation>%1 hat ein eigenes minOccurs oder maxOccurs.</translation>
    </message>
    <message>
        <source>They are passed over: what is inside is laid out once, and is optional or repeatable only by its own minOccurs and maxOccurs.</source>
        <translation>Sie werden übergangen: Was darin steht, wird einmal angelegt und ist nur durch sein eigenes minOccurs und maxOccurs optional oder wiederholbar.</translation>
    </message>
    <message>
        <source>Write minOccurs and maxOccurs at the elements inside, or at an element around them.</source>
        <translation>minOccurs und maxOccurs an die Elemente darin schreiben oder an ein Element darum.</translation>
    </message>
    <message>
        <source>%1 is called like %2 in line %3 of %4.</source>
        <translation>%1 heißt wie %2 in Zeile %3 von %4.</translation>
    </message>
    <message>
        <source>Elements, attributes and types share one space of names: this one takes the place of the earlier one for all that refers to the name from here on.</source>
        <translation>Elemente, Attribute und Typen teilen sich einen Vorrat an Namen: Dieses tritt an die Stelle des früheren für alles, was von hier an auf den Namen verweist.</translation>
    </message>
    <message>
        <source>Give each global declaration and each type a name of its own.</source>
        <translation>Jeder globalen Deklaration und jedem Typ einen eigenen Namen geben.</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>minOccurs %1, maxOccurs %2, in a choice</source>
        <translation>minOccurs %1, maxOccurs %2, in einer Auswahl</translation>
    </message>
    <message>
        <source>minOccurs %1, maxOccurs %2</source>
        <translation>minOccurs %1, maxOccurs %2</translation>
    </message>
    <message>
        <source>its own in line %1</source>
        <translation>eigener in Zeile %1</translation>
    </message>
    <message>
        <source>%1 has the limits: %2; in line %3 it has: %4.</source>
        <translation>%1 hat die Grenzen: %2; in Zeile %3 dagegen: %4.</translation>
    </message>
    <message>
        <source>Limits are found by name: those of the one may be applied to the other where one of their owners stands inside of the other, and an alternative of any choice may be missing everywhere.</source>
        <translation>Grenzen werden nach Namen gefunden: Die des einen können für das andere gelten, wo einer der beiden Besitzer im anderen steht, und eine Alternative irgendeiner Auswahl darf überall fehlen.</translation>
    </message>
    <message>
        <source>Give the two elements different names, or the same limits.</source>
        <translation>Den beiden Elementen verschiedene Namen geben oder dieselben Grenzen.</translation>
    </message>
    <message>
        <source>%1 is of the type &apos;%2&apos;; in line %3 it is of &apos;%4&apos;.</source>
        <translation>%1 ist vom Typ &apos;%2&apos;; in Zeile %3 vom Typ &apos;%4&apos;.</translation>
    </message>
    <message>
        <source>An observer that knows elements by their name alone offers both the same value.</source>
        <translation>Ein Beobachter, der Elemente nur am Namen erkennt, bietet beiden denselben Wert an.</translation>
    </message>
    <message>
        <source>Give the two elements different names, or the same type.</source>
        <translation>Den beiden Elementen verschiedene Namen geben oder denselben Typ.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, but not known to be.</source>
        <translation>Das Element &apos;%1&apos; ist optional, gilt aber nicht als optional.</translation>
    </message>
    <message>
        <source>When nothing fills it, it stays, with its annotations: what is optional is looked for below the first element that is called like its owner, and in a named type the owner is the type.</source>
        <translation>Wenn nichts es füllt, bleibt es mit seinen Annotationen: Optionales wird unter dem ersten Element gesucht, das wie sein Besitzer heißt, und in einem benannten Typ ist der Typ der Besitzer.</translation>
    </message>
    <message>
        <source>Write the type inside of the element that is of it, or call that element like the type, or fill &apos;%1&apos; in every report.</source>
        <translation>Den Typ in das Element schreiben, das ihn hat, oder dieses Element wie den Typ nennen oder &apos;%1&apos; in jedem Bericht füllen.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional inside of one that may be repeated.</source>
        <translation>Das Element &apos;%1&apos; ist optional in einem, das sich wiederholen darf.</translation>
    </message>
    <message>
        <source>When nothing fills it, it is removed from the first copy only, and stays in the others, with its annotations: what is optional is looked for below the first element that is called like its owner.</source>
        <translation>Wenn nichts es füllt, wird es nur aus der ersten Kopie entfernt und bleibt in den anderen, mit seinen Annotationen: Optionales wird unter dem ersten Element gesucht, das wie sein Besitzer heißt.</translation>
    </message>
    <message>
        <source>Fill &apos;%1&apos; in every copy but the first, or make it required.</source>
        <translation>&apos;%1&apos; in jeder Kopie außer der ersten füllen oder als vorgeschrieben deklarieren.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, and stands behind &apos;%2&apos;, which is optional and empty.</source>
        <translation>Das Element &apos;%1&apos; ist optional und steht hinter &apos;%2&apos;, das optional und leer ist.</translation>
    </message>
    <message>
        <source>When nothing fills &apos;%1&apos;, &apos;%2&apos; is removed in its place, and the report goes on where that stood: &apos;%1&apos; stays, with its annotations, and what follows is not asked for.</source>
        <translation>Wenn nichts &apos;%1&apos; füllt, wird an seiner Stelle &apos;%2&apos; entfernt, und der Bericht geht dort weiter, wo dieses stand: &apos;%1&apos; bleibt, mit seinen Annotationen, und was folgt, wird nicht erfragt.</translation>
    </message>
    <message>
        <source>Put an element with a value into &apos;%1&apos;, or &apos;%1&apos; in front of one of its siblings.</source>
        <translation>Ein Element mit einem Wert in &apos;%1&apos; setzen oder &apos;%1&apos; vor eines seiner Geschwister.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, and nothing inside of it takes a value.</source>
        <translation>Das Element &apos;%1&apos; ist optional, und nichts darin nimmt einen Wert an.</translation>
    </message>
    <message>
        <source>Attributes alone do not fill it and do not remove it: it stays, with its annotations, unless a value behind it is unfilled. That one removes it.</source>
        <translation>Attribute allein füllen es nicht und entfernen es nicht: Es bleibt, mit seinen Annotationen, außer wenn ein Wert dahinter unausgefüllt ist. Der entfernt es.</translation>
    </message>
    <message>
        <source>Put an element with a value into &apos;%1&apos;, or make it required and set its attributes in every report.</source>
        <translation>Ein Element mit einem Wert in &apos;%1&apos; setzen oder es als vorgeschrieben deklarieren und seine Attribute in jedem Bericht setzen.</translation>
    </message>
    <message>
        <source>%1 is optional with maxOccurs=&quot;%2&quot;.</source>
        <translation>%1 ist optional mit maxOccurs=&quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Counts up to %1 are accepted: more than the schema allows.</source>
        <translation>Bis zu %1 werden angenommen: mehr, als das Schema erlaubt.</translation>
    </message>
    <message>
        <source>Leave maxOccurs out.</source>
        <translation>maxOccurs weglassen.</translation>
    </message>
    <message>
        <source>Write maxOccurs=&quot;unbounded&quot;, or make the element required inside of an optional one.</source>
        <translation>maxOccurs=&quot;unbounded&quot; schreiben oder das Element in einem optionalen als vorgeschrieben deklarieren.</translation>
    </message>
    <message>
        <source>%1 is optional without maxOccurs, in a group that may occur repeatedly.</source>
        <translation>%1 ist ohne maxOccurs optional, in einer Gruppe, die sich wiederholen darf.</translation>
    </message>
    <message>
        <source>No count above 0 is accepted for it: a second one is refused.</source>
        <translation>Keine Anzahl über 0 wird dafür angenommen: Ein zweites wird abgelehnt.</translation>
    </message>
    <message>
        <source>Write maxOccurs=&quot;unbounded&quot; at the element.</source>
        <translation>maxOccurs=&quot;unbounded&quot; an das Element schreiben.</translation>
    </message>
    <message>
        <source>%1 stands in front of %2.</source>
        <translation>%1 steht vor %2.</translation>
    </message>
    <message>
        <source>It is laid out behind it: what is read behind the reference to it comes in at the end, in the order of names.</source>
        <translation>Es wird dahinter angelegt: Was erst nach dem Verweis darauf gelesen wird, kommt am Ende hinzu, in der Reihenfolge der Namen.</translation>
    </message>
    <message>
        <source>Declare &apos;%1&apos; and &apos;%2&apos; in front of the element that refers to them.</source>
        <translation>&apos;%1&apos; und &apos;%2&apos; vor dem Element deklarieren, das auf sie verweist.</translation>
    </message>
    <message>
        <source>The tags of XML Schema are written without the prefix &apos;xs:&apos;: &lt;%1&gt;.</source>
        <translation>Die Tags von XML Schema sind ohne das Präfix &apos;xs:&apos; geschrieben: &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>They are passed over without a word: nothing of them is laid out.</source>
        <translation>Sie werden stillschweigend übergangen: Nichts davon wird angelegt.</translation>
    </message>
    <message>
        <source>Declare xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot; and write xs: in front of every tag and every type of XML Schema.</source>
        <translation>xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot; deklarieren und xs: vor jedes Tag und jeden Typ von XML Schema schreiben.</translation>
    </message>
    <message>
        <source>The file is no XML schema: its root is &lt;%1&gt;.</source>
        <translation>Die Datei ist kein XML-Schema: Ihre Wurzel ist &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>Nothing of it is laid out.</source>
        <translation>Nichts davon wird angelegt.</translation>
    </message>
    <message>
        <source>Write &lt;xs:schema xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot;&gt; as its root.</source>
        <translation>&lt;xs:schema xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot;&gt; als Wurzel schreiben.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not in the folder of the top file.</source>
        <translation>Die Datei &apos;%1&apos; liegt nicht im Ordner der obersten Datei.</translation>
    </message>
    <message>
        <source>It is read as &apos;%1&apos;; whoever gets the folder alone does not get it.</source>
        <translation>Sie wird als &apos;%1&apos; gelesen; wer nur den Ordner erhält, erhält sie nicht.</translation>
    </message>
    <message>
        <source>Keep the files of a schema in one folder.</source>
        <translation>Die Dateien eines Schemas in einem Ordner halten.</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; has a prefix that is not &apos;xs:&apos;.</source>
        <translation>%1=&quot;%2&quot; hat ein Präfix, das nicht &apos;xs:&apos; ist.</translation>
    </message>
    <message>
        <source>It contains &apos;xs:&apos;, so its first three characters are cut off and the rest counts as a type of XML Schema.</source>
        <translation>Es enthält &apos;xs:&apos;, daher werden die ersten drei Zeichen abgeschnitten, und der Rest gilt als Typ von XML Schema.</translation>
    </message>
    <message>
        <source>A definition called &apos;%1&apos; is looked up, prefix included; it never comes, and the whole schema is given up.</source>
        <translation>Gesucht wird eine Definition namens &apos;%1&apos;, mitsamt dem Präfix; sie kommt nie, und das ganze Schema wird aufgegeben.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos; for a definition of the schema, &apos;xs:%1&apos; for a type of XML Schema.</source>
        <translation>&apos;%1&apos; für eine Definition des Schemas schreiben, &apos;xs:%1&apos; für einen Typ von XML Schema.</translation>
    </message>
    <message>
        <source>Definitions contain each other: %1.</source>
        <translation>Definitionen enthalten einander: %1.</translation>
    </message>
    <message>
        <source>They wait for each other, and the whole schema is given up: the report holds nothing.</source>
        <translation>Sie warten aufeinander, und das ganze Schema wird aufgegeben: Der Bericht enthält nichts.</translation>
    </message>
    <message>
        <source>The repetition ends where the library meets it: a report has no more levels than are laid out.</source>
        <translation>Die Wiederholung endet, wo die Bibliothek auf sie trifft: Ein Bericht hat nicht mehr Ebenen, als angelegt werden.</translation>
    </message>
    <message>
        <source>Write as many levels as reports have, each as a type of its own.</source>
        <translation>So viele Ebenen schreiben, wie Berichte haben, jede als eigenen Typ.</translation>
    </message>
    <message>
        <source>%1 stands inside of the named type &apos;%2&apos;.</source>
        <translation>%1 steht im benannten Typ &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The element is laid out in the global element that was read last in front of the type, and not where the type is used.</source>
        <translation>Das Element wird in dem globalen Element angelegt, das zuletzt vor dem Typ gelesen wurde, und nicht dort, wo der Typ verwendet wird.</translation>
    </message>
    <message>
        <source>Declare the element here with name and type, or refer to it inside of an anonymous type of a global element.</source>
        <translation>Das Element hier mit name und type deklarieren oder in einem anonymen Typ eines globalen Elements darauf verweisen.</translation>
    </message>
    <message>
        <source>%1 is required %2 times, inside of the named type &apos;%3&apos;, and its type &apos;%4&apos; is defined later.</source>
        <translation>%1 ist %2-mal vorgeschrieben, im benannten Typ &apos;%3&apos;, und sein Typ &apos;%4&apos; wird erst später definiert.</translation>
    </message>
    <message>
        <source>Its copies are lost, and with them all elements of the type that follow it.</source>
        <translation>Seine Kopien gehen verloren, und mit ihnen alle Elemente des Typs, die darauf folgen.</translation>
    </message>
    <message>
        <source>Define &apos;%1&apos; in front of &apos;%2&apos;.</source>
        <translation>&apos;%1&apos; vor &apos;%2&apos; definieren.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included once more.</source>
        <translation>Die Datei &apos;%1&apos; wird noch einmal eingebunden.</translation>
    </message>
    <message>
        <source>It is read again, and its definitions take the place of those that it gave before.</source>
        <translation>Sie wird erneut gelesen, und ihre Definitionen treten an die Stelle derer, die sie vorher gab.</translation>
    </message>
    <message>
        <source>Include each file once, in the top file.</source>
        <translation>Jede Datei einmal einbinden, in der obersten Datei.</translation>
    </message>
    <message>
        <source>%1 is required %2 times and has its type written inside of it.</source>
        <translation>%1 ist %2-mal vorgeschrieben, und sein Typ ist darin geschrieben.</translation>
    </message>
    <message>
        <source>Only the last of its copies gets what the type says.</source>
        <translation>Nur die letzte seiner Kopien erhält, was der Typ sagt.</translation>
    </message>
    <message>
        <source>Give the type a name, in front of this one, and refer to it with type.</source>
        <translation>Dem Typ einen Namen geben, vor diesem, und mit type darauf verweisen.</translation>
    </message>
    <message>
        <source>%1 is required %2 times, without maxOccurs.</source>
        <translation>%1 ist %2-mal vorgeschrieben, ohne maxOccurs.</translation>
    </message>
    <message>
        <source>%1 is required without maxOccurs, in a group that may occur repeatedly.</source>
        <translation>%1 ist ohne maxOccurs vorgeschrieben, in einer Gruppe, die sich wiederholen darf.</translation>
    </message>
    <message>
        <source>It has no limits at all: every count is refused, also that of one.</source>
        <translation>Es hat gar keine Grenzen: Jede Anzahl wird abgelehnt, auch die Eins.</translation>
    </message>
    <message>
        <source>Write maxOccurs at the element.</source>
        <translation>maxOccurs an das Element schreiben.</translation>
    </message>
    <message>
        <source>The restriction is one of the type &apos;%1&apos;.</source>
        <translation>Eingeschränkt wird der Typ &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; itself becomes the type: its own type and facets are not looked at, and no setter takes a type of that name.</source>
        <translation>&apos;%1&apos; selbst wird zum Typ: Sein eigener Typ und seine Facetten werden nicht beachtet, und kein Setter nimmt einen Typ dieses Namens an.</translation>
    </message>
    <message>
        <source>Restrict the type of XML Schema that &apos;%1&apos; stands on, and repeat its facets here.</source>
        <translation>Den Typ von XML Schema einschränken, auf dem &apos;%1&apos; beruht, und dessen Facetten hier wiederholen.</translation>
    </message>
    <message>
        <source>No global element is left for the root: something refers to each of them, or comes in front of an include.</source>
        <translation>Kein globales Element bleibt als Wurzel übrig: Auf jedes wird verwiesen, oder es steht vor einem include.</translation>
    </message>
    <message>
        <source>The definition that was read last is taken: &apos;%1&apos;.</source>
        <translation>Genommen wird die zuletzt gelesene Definition: &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Declare the element that reports begin with globally, behind all includes, and refer to it nowhere.</source>
        <translation>Das Element, mit dem Berichte beginnen, global deklarieren, hinter allen includes, und nirgends darauf verweisen.</translation>
    </message>
    <message>
        <source>%1 global declarations compete for the root of the report: %2.</source>
        <translation>%1 globale Deklarationen bewerben sich um die Wurzel des Berichts: %2.</translation>
    </message>
    <message>
        <source>Nothing refers to them; &apos;%1&apos; wins, because its name is the greatest.</source>
        <translation>Nichts verweist auf sie; &apos;%1&apos; gewinnt, weil sein Name der größte ist.</translation>
    </message>
    <message>
        <source>Leave out what no report needs, or refer to it, so that only the root is left.</source>
        <translation>Weglassen, was kein Bericht braucht, oder darauf verweisen, sodass nur die Wurzel bleibt.</translation>
    </message>
    <message>
        <source>Nothing refers to the global attribute &apos;%1&apos;.</source>
        <translation>Nichts verweist auf das globale Attribut &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>It competes for the root of the report, and wins: the report is one element of that name.</source>
        <translation>Es bewirbt sich um die Wurzel des Berichts und gewinnt: Der Bericht ist ein einziges Element dieses Namens.</translation>
    </message>
    <message>
        <source>It competes for the root of the report; a name greater than those of the elements would win.</source>
        <translation>Es bewirbt sich um die Wurzel des Berichts; ein Name, der größer als die der Elemente ist, würde gewinnen.</translation>
    </message>
    <message>
        <source>Refer to it with &lt;xs:attribute ref=&quot;%1&quot;/&gt;, or leave it out.</source>
        <translation>Mit &lt;xs:attribute ref=&quot;%1&quot;/&gt; darauf verweisen oder weglassen.</translation>
    </message>
    <message>
        <source>%1 more of this kind are left out, the last of them here.</source>
        <translation>%1 weitere dieser Art sind weggelassen, das letzte davon hier.</translation>
    </message>
    <message>
        <source>%1 elements are laid out as roots, of which &apos;%2&apos; is the first.</source>
        <translation>%1 Elemente werden als Wurzeln angelegt, von denen &apos;%2&apos; die erste ist.</translation>
    </message>
    <message>
        <source>The report gets all of them, one behind the other: it is no XML document, and no program reads it.</source>
        <translation>Der Bericht erhält sie alle, eine hinter der anderen: Er ist kein XML-Dokument, und kein Programm liest ihn.</translation>
    </message>
    <message>
        <source>Declare one global element around them, behind all includes, and refer to it nowhere.</source>
        <translation>Ein globales Element um sie herum deklarieren, hinter allen includes, und nirgends darauf verweisen.</translation>
    </message>
    <message>
        <source>xs:simpleContent restricts &apos;%1&apos;.</source>
        <translation>xs:simpleContent schränkt &apos;%1&apos; ein.</translation>
    </message>
    <message>
        <source>The name of the base becomes the type, so that no setter takes it, and whatever else is inside becomes an attribute of the report.</source>
        <translation>Der Name der Basis wird zum Typ, sodass kein Setter es annimmt, und was sonst noch darin steht, wird ein Attribut des Berichts.</translation>
    </message>
    <message>
        <source>Restrict a type of XML Schema in a named xs:simpleType, and extend that by the attributes in xs:simpleContent.</source>
        <translation>Einen Typ von XML Schema in einem benannten xs:simpleType einschränken und diesen in xs:simpleContent um die Attribute erweitern.</translation>
    </message>
    <message>
        <source>%1 has a simple type written inside of it, two types deep.</source>
        <translation>In %1 ist ein einfacher Typ geschrieben, zwei Typen tief.</translation>
    </message>
    <message>
        <source>What follows it in the same place moves one level up in the report.</source>
        <translation>Was an derselben Stelle darauf folgt, rückt im Bericht eine Ebene nach oben.</translation>
    </message>
    <message>
        <source>Give the simple type a name, at the top of the schema, and refer to it with type.</source>
        <translation>Dem einfachen Typ einen Namen geben, auf der obersten Ebene des Schemas, und mit type darauf verweisen.</translation>
    </message>
    <message>
        <source>%1 may stand for &apos;%2&apos;.</source>
        <translation>%1 darf für &apos;%2&apos; stehen.</translation>
    </message>
    <message>
        <source>It never does: a reference to &apos;%1&apos; lays out only that one. A member that nothing refers to competes for the root of the report.</source>
        <translation>Das geschieht nie: Ein Verweis auf &apos;%1&apos; legt nur dieses an. Ein Mitglied, auf das nichts verweist, bewirbt sich um die Wurzel des Berichts.</translation>
    </message>
    <message>
        <source>Write the members as alternatives of an xs:choice.</source>
        <translation>Die Mitglieder als Alternativen eines xs:choice schreiben.</translation>
    </message>
    <message>
        <source>The schema has the target namespace &apos;%1&apos;.</source>
        <translation>Das Schema hat den Zielnamensraum &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Reports are written without a namespace and refer to the schema as one without, so that none is ever valid.</source>
        <translation>Berichte werden ohne Namensraum geschrieben und verweisen auf das Schema als eines ohne, sodass keiner je gültig ist.</translation>
    </message>
    <message>
        <source>Remove targetNamespace, and the namespace declaration that goes with it.</source>
        <translation>targetNamespace und die zugehörige Namensraumdeklaration entfernen.</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nichts)</translation>
    </message>
    <message>
        <source>Write xs:double.</source>
        <translation>xs:double schreiben.</translation>
    </message>
    <message>
        <source>Write xs:integer, restricted to the range.</source>
        <translation>xs:integer schreiben, auf den Bereich eingeschränkt.</translation>
    </message>
    <message>
        <source>Write xs:dateTime, or xs:string.</source>
        <translation>xs:dateTime oder xs:string schreiben.</translation>
    </message>
    <message>
        <source>Write xs:string.</source>
        <translation>xs:string schreiben.</translation>
    </message>
    <message>
        <source>Write one of %1, or a named xs:simpleType that restricts one of them.</source>
        <translation>Einen der Typen %1 schreiben oder einen benannten xs:simpleType, der einen davon einschränkt.</translation>
    </message>
    <message>
        <source>Write xs:integer.</source>
        <translation>xs:integer schreiben.</translation>
    </message>
    <message>
        <source>Write xs:string, and &apos;true&apos; or &apos;false&apos; as its value.</source>
        <translation>xs:string schreiben und &apos;true&apos; oder &apos;false&apos; als Wert.</translation>
    </message>
    <message>
        <source>Write one of %1; for a restricted type, declare the attribute globally with the type inside, and refer to it.</source>
        <translation>Einen der Typen %1 schreiben; für einen eingeschränkten Typ das Attribut global mit dem Typ darin deklarieren und darauf verweisen.</translation>
    </message>
    <message>
        <source>The facet %1 is &apos;%2&apos;.</source>
        <translation>Die Facette %1 ist &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It is not checked.</source>
        <translation>Sie wird nicht geprüft.</translation>
    </message>
    <message>
        <source>It is not checked, and stays in the report as an attribute &apos;%1&apos; that the schema does not allow.</source>
        <translation>Sie wird nicht geprüft und bleibt im Bericht als Attribut &apos;%1&apos;, das das Schema nicht erlaubt.</translation>
    </message>
    <message>
        <source>Leave it out; what is checked are enumerations and, for numbers, minInclusive, maxInclusive, minExclusive and maxExclusive.</source>
        <translation>Weglassen; geprüft werden Aufzählungen und, bei Zahlen, minInclusive, maxInclusive, minExclusive und maxExclusive.</translation>
    </message>
    <message>
        <source>%1 of &apos;%2&apos; is &apos;%3&apos;.</source>
        <translation>%1 von &apos;%2&apos; ist &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>Only numbers have bounds: it is not checked, and stays in the report as an attribute.</source>
        <translation>Nur Zahlen haben Grenzen: Diese wird nicht geprüft und bleibt im Bericht als Attribut.</translation>
    </message>
    <message>
        <source>Leave the facet out.</source>
        <translation>Die Facette weglassen.</translation>
    </message>
    <message>
        <source>It cannot be read as a number of that type and counts as 0.</source>
        <translation>Sie lässt sich nicht als Zahl dieses Typs lesen und gilt als 0.</translation>
    </message>
    <message>
        <source>Write an integer between -2147483648 and 2147483647.</source>
        <translation>Eine ganze Zahl zwischen -2147483648 und 2147483647 schreiben.</translation>
    </message>
    <message>
        <source>Write a number in digits, with a point.</source>
        <translation>Eine Zahl in Ziffern schreiben, mit Punkt.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; has no type of its own.</source>
        <translation>Das Attribut &apos;%1&apos; hat keinen eigenen Typ.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; is of the type &apos;%2&apos;.</source>
        <translation>Das Attribut &apos;%1&apos; ist vom Typ &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>No setter takes it: the attribute can be removed, and otherwise stays and holds &apos;%1&apos;.</source>
        <translation>Kein Setter nimmt es an: Das Attribut lässt sich entfernen, sonst bleibt es und enthält &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>No setter takes it: the element stays empty in every report, with its annotations.</source>
        <translation>Kein Setter nimmt es an: Das Element bleibt in jedem Bericht leer, mit seinen Annotationen.</translation>
    </message>
    <message>
        <source>No setter takes it.</source>
        <translation>Kein Setter nimmt es an.</translation>
    </message>
    <message>
        <source>No setter takes it: the element is removed from every report, with the container around it.</source>
        <translation>Kein Setter nimmt es an: Das Element wird aus jedem Bericht entfernt, mit dem Container darum.</translation>
    </message>
    <message>
        <source>No setter takes it: the element is removed from every report.</source>
        <translation>Kein Setter nimmt es an: Das Element wird aus jedem Bericht entfernt.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; has no type that is understood.</source>
        <translation>Das Element &apos;%1&apos; hat keinen Typ, der verstanden wird.</translation>
    </message>
    <message>
        <source>It is passed over: what is of this type has none, or that of the last restriction inside, and cannot be filled as the author means it.</source>
        <translation>Es wird übergangen: Was diesen Typ haben soll, hat keinen oder den der letzten Einschränkung darin und lässt sich nicht so füllen, wie es gemeint ist.</translation>
    </message>
    <message>
        <source>Use xs:restriction of one type, such as xs:string.</source>
        <translation>xs:restriction eines einzigen Typs verwenden, etwa xs:string.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; may be repeated, but is not known to.</source>
        <translation>Das Element &apos;%1&apos; darf sich wiederholen, gilt aber nicht als wiederholbar.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; may be repeated inside of one that may be, too.</source>
        <translation>Das Element &apos;%1&apos; darf sich wiederholen, in einem, das es auch darf.</translation>
    </message>
    <message>
        <source>Every count is refused: limits are looked for below the first element that is called like the owner, and in a named type the owner is the type.</source>
        <translation>Jede Anzahl wird abgelehnt: Grenzen werden unter dem ersten Element gesucht, das wie der Besitzer heißt, und in einem benannten Typ ist der Typ der Besitzer.</translation>
    </message>
    <message>
        <source>Counts are accepted in the first copy only, and refused in the others: limits are looked for below the first element that is called like the owner.</source>
        <translation>Eine Anzahl wird nur in der ersten Kopie angenommen und in den anderen abgelehnt: Grenzen werden unter dem ersten Element gesucht, das wie der Besitzer heißt.</translation>
    </message>
    <message>
        <source>Write the type inside of the element that is of it, or call that element like the type.</source>
        <translation>Den Typ in das Element schreiben, das ihn hat, oder dieses Element wie den Typ nennen.</translation>
    </message>
    <message>
        <source>Repeat only one of the two in a report.</source>
        <translation>Im Bericht nur eines der beiden wiederholen.</translation>
    </message>
    <message>
        <source>%1 is prohibited.</source>
        <translation>%1 ist verboten.</translation>
    </message>
    <message>
        <source>It is laid out all the same, and stays unless the observer removes it.</source>
        <translation>Es wird trotzdem angelegt und bleibt, wenn der Beobachter es nicht entfernt.</translation>
    </message>
    <message>
        <source>Leave the attribute out of the schema.</source>
        <translation>Das Attribut aus dem Schema weglassen.</translation>
    </message>
    <message>
        <source>%1 is optional.</source>
        <translation>%1 ist optional.</translation>
    </message>
    <message>
        <source>The word is passed over: an attribute that is neither set nor removed stays in the report and holds its type.</source>
        <translation>Das Wort wird übergangen: Ein Attribut, das weder gesetzt noch entfernt wird, bleibt im Bericht und enthält seinen Typ.</translation>
    </message>
    <message>
        <source>Leave the word out, it is what XML Schema assumes; see that the observer sets or removes the attribute.</source>
        <translation>Das Wort weglassen, XML Schema nimmt es ohnehin an; dafür sorgen, dass der Beobachter das Attribut setzt oder entfernt.</translation>
    </message>
    <message>
        <source>%1, choice %2</source>
        <translation>%1, Auswahl %2</translation>
    </message>
    <message>
        <source>Include the schema that defines these names, and refer to them without a namespace.</source>
        <translation>Das Schema, das diese Namen definiert, einbinden und ohne Namensraum auf sie verweisen.</translation>
    </message>
    <message>
        <source>the namespace &apos;%1&apos;</source>
        <translation>der Namensraum &apos;%1&apos;</translation>
    </message>
    <message>
        <source>libxml2 does not accept the schema: %1 The same of %2 other uses.</source>
        <translation>libxml2 nimmt das Schema nicht an: %1 Weitere Verwendungen mit demselben Fehler: %2.</translation>
    </message>
    <message>
        <source>Nothing fills it and nothing removes it: it stays, whether a report is meant to have it or not.</source>
        <translation>Nichts füllt es, und nichts entfernt es: Es bleibt, ob ein Bericht es haben soll oder nicht.</translation>
    </message>
    <message>
        <source>Nothing fills it: it stays, whether a report is meant to have it or not, unless a value behind it is unfilled. That one removes it.</source>
        <translation>Nichts füllt es: Es bleibt, ob ein Bericht es haben soll oder nicht, außer wenn ein Wert dahinter unausgefüllt ist. Der entfernt es.</translation>
    </message>
    <message>
        <source>Give &apos;%1&apos; a type that takes a value, such as xs:boolean, or make it required.</source>
        <translation>&apos;%1&apos; einen Typ geben, der einen Wert annimmt, etwa xs:boolean, oder es als vorgeschrieben deklarieren.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; itself becomes the type, which setters know by a word in that name: its own type and facets are not looked at.</source>
        <translation>&apos;%1&apos; selbst wird zum Typ, den Setter an einem Wort in diesem Namen erkennen: Sein eigener Typ und seine Facetten werden nicht beachtet.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonFindings</name>
    <message>
        <source>the element &apos;%1&apos; of the type &apos;%2&apos;</source>
        <translation>das Element &apos;%1&apos; des Typs &apos;%2&apos;</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; of &apos;%2&apos;, of the type &apos;%3&apos;</source>
        <translation>das Attribut &apos;%1&apos; von &apos;%2&apos;, vom Typ &apos;%3&apos;</translation>
    </message>
    <message>
        <source>The report button never fills %1.</source>
        <translation>Der Berichtsknopf füllt nie: %1.</translation>
    </message>
    <message>
        <source>For the number of an item the button writes 65535.</source>
        <translation>Für die Zahl eines Eintrags schreibt der Knopf 65535.</translation>
    </message>
    <message>
        <source>The button may fill another attribute of the element in its place.</source>
        <translation>Der Knopf kann stattdessen ein anderes Attribut des Elements füllen.</translation>
    </message>
    <message>
        <source>A setter takes it, but the button offers no value of that kind, whatever items there are.</source>
        <translation>Ein Setter nimmt es an, aber der Knopf bietet keinen Wert dieser Art, welche Einträge es auch gibt.</translation>
    </message>
    <message>
        <source>Declare it for an element with a value of its own, or fill it by an observer of the report builder.</source>
        <translation>Es für ein Element mit eigenem Wert deklarieren oder durch einen Beobachter des Berichtserzeugers füllen.</translation>
    </message>
    <message>
        <source>Write another type, such as xs:string, or fill it by an observer of the report builder.</source>
        <translation>Einen anderen Typ schreiben, etwa xs:string, oder durch einen Beobachter des Berichtserzeugers füllen.</translation>
    </message>
    <message>
        <source>No item of the report button reaches %1 alone.</source>
        <translation>Kein Eintrag des Berichtsknopfs erreicht nur dies: %1.</translation>
    </message>
    <message>
        <source>An item &apos;%1&apos; fills %2 values of that name, all with the same.</source>
        <translation>Ein Eintrag &apos;%1&apos; füllt %2 Werte dieses Namens, alle mit demselben.</translation>
    </message>
    <message>
        <source>Give it a name of its own, or a parent with a name of its own.</source>
        <translation>Einen eigenen Namen geben, oder ein Elternelement mit eigenem Namen.</translation>
    </message>
    <message>
        <source>The unit of an item fills the attribute &apos;%1&apos;, and an item of a value tree&apos;s node has none.</source>
        <translation>Die Einheit eines Eintrags füllt das Attribut &apos;%1&apos;, und ein Eintrag aus einem Knoten des Wertebaums hat keine.</translation>
    </message>
    <message>
        <source>For such an item the attribute keeps its type, &apos;%1&apos;, as a text.</source>
        <translation>Bei einem solchen Eintrag behält das Attribut seinen Typ, &apos;%1&apos;, als Text.</translation>
    </message>
    <message>
        <source>For such an item the attribute keeps its type, &apos;%1&apos;, which is none of its values: the report is not valid.</source>
        <translation>Bei einem solchen Eintrag behält das Attribut seinen Typ, &apos;%1&apos;, der keiner seiner Werte ist: Der Bericht ist nicht gültig.</translation>
    </message>
    <message>
        <source>Register the item by its name and path, with a unit.</source>
        <translation>Den Eintrag mit Namen und Pfad anmelden, mit einer Einheit.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonTrial</name>
    <message>
        <source>What the report button fills was not tried: it would take too long.</source>
        <translation>Was der Berichtsknopf füllt, wurde nicht erprobt: Es würde zu lange dauern.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonWords</name>
    <message>
        <source>As the report button fills it</source>
        <translation>Wie der Berichtsknopf es füllt</translation>
    </message>
    <message>
        <source>container</source>
        <translation>Container</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>a number without its fraction</source>
        <translation>eine Zahl ohne ihre Nachkommastellen</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>an ISO date and time</source>
        <translation>ein ISO-Datum mit Uhrzeit</translation>
    </message>
    <message>
        <source>an explicit bool</source>
        <translation>ein expliziter bool</translation>
    </message>
    <message>
        <source>an explicit long</source>
        <translation>ein expliziter long</translation>
    </message>
    <message>
        <source>never: no setter takes it</source>
        <translation>nie: kein Setter nimmt es an</translation>
    </message>
    <message>
        <source>never: 65535 is written in place of a number</source>
        <translation>nie: statt einer Zahl wird 65535 geschrieben</translation>
    </message>
    <message>
        <source>never: another attribute may be filled in its place</source>
        <translation>nie: stattdessen kann ein anderes Attribut gefüllt werden</translation>
    </message>
    <message>
        <source>never: the button offers no value of its kind</source>
        <translation>nie: der Knopf bietet keinen Wert seiner Art</translation>
    </message>
    <message>
        <source>item &apos;%1&apos; with %2</source>
        <translation>Eintrag &apos;%1&apos; mit: %2</translation>
    </message>
    <message>
        <source>which reaches %1 more</source>
        <translation>der noch %1 weitere erreicht</translation>
    </message>
    <message>
        <source>registered behind that of the element</source>
        <translation>nach dem des Elements angemeldet</translation>
    </message>
    <message>
        <source>the unit of the element&apos;s item</source>
        <translation>die Einheit vom Eintrag des Elements</translation>
    </message>
    <message>
        <source>the current time</source>
        <translation>die aktuelle Zeit</translation>
    </message>
</context>
<context>
    <name>schemadoctor::CopiesWords</name>
    <message>
        <source>In every copy but the first</source>
        <translation>In jeder Kopie außer der ersten</translation>
    </message>
    <message>
        <source>stays when nothing fills it</source>
        <translation>bleibt, wenn nichts es füllt</translation>
    </message>
    <message>
        <source>stays when nothing fills it, with %1</source>
        <translation>bleibt, wenn nichts es füllt, mit %1</translation>
    </message>
    <message>
        <source>%1 and the value &apos;%2&apos;</source>
        <translation>%1 und dem Wert &apos;%2&apos;</translation>
    </message>
    <message>
        <source>no count is accepted</source>
        <translation>keine Anzahl wird angenommen</translation>
    </message>
    <message>
        <source>was not tried</source>
        <translation>wurde nicht erprobt</translation>
    </message>
</context>
<context>
    <name>schemadoctor::DoctorWindow</name>
    <message>
        <source>%1 - schema doctor</source>
        <translation>%1 - Schema-Doktor</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>&amp;Schema:</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>As it is meant</source>
        <translation>Wie es gemeint ist</translation>
    </message>
    <message>
        <source>As it is laid out</source>
        <translation>Wie es angelegt wird</translation>
    </message>
    <message>
        <source>Open a schema</source>
        <translation>Ein Schema öffnen</translation>
    </message>
    <message>
        <source>Schemas (*.xsd);;All files (*)</source>
        <translation>Schemas (*.xsd);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Elements laid out: %1. Findings: %2.</source>
        <translation>Angelegte Elemente: %1. Befunde: %2.</translation>
    </message>
    <message>
        <source>%1

What the library does: %2

Write instead: %3</source>
        <translation>%1

Was die Bibliothek tut: %2

Stattdessen: %3</translation>
    </message>
    <message>
        <source>&amp;Mend...</source>
        <translation>Ü&amp;berarbeiten...</translation>
    </message>
    <message>
        <source>Write the mended schema</source>
        <translation>Überarbeitetes Schema schreiben</translation>
    </message>
    <message>
        <source>Not mended</source>
        <translation>Nicht überarbeitet</translation>
    </message>
</context>
<context>
    <name>schemadoctor::MendWindow</name>
    <message>
        <source>%1 - mended schema</source>
        <translation>%1 - überarbeitetes Schema</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>What it does to reports</source>
        <translation>Was es für Berichte bedeutet</translation>
    </message>
</context>
<context>
    <name>schemadoctor::SkeletonTreeModel</name>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Occurs</source>
        <translation>Vorkommen</translation>
    </message>
    <message>
        <source>Counts taken</source>
        <translation>Angenommene Anzahl</translation>
    </message>
    <message>
        <source>Unfilled it</source>
        <translation>Unausgefüllt</translation>
    </message>
    <message>
        <source>Set by</source>
        <translation>Gesetzt durch</translation>
    </message>
</context>
</TS>
