<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ReportCheck</name>
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
        <source>nothing to say</source>
        <translation>nichts zu sagen</translation>
    </message>
    <message>
        <source>not validated, no schema</source>
        <translation>nicht validiert, kein Schema</translation>
    </message>
    <message>
        <source>not validated to the end, by %1</source>
        <translation>nicht bis zum Ende validiert, nach %1</translation>
    </message>
    <message>
        <source>not validated, the schema is no valid one: %1</source>
        <translation>nicht validiert, das Schema ist ungültig: %1</translation>
    </message>
    <message>
        <source>valid by %1</source>
        <translation>gültig nach %1</translation>
    </message>
    <message>
        <source>validated by %1</source>
        <translation>validiert nach %1</translation>
    </message>
    <message>
        <source>%1: cannot be checked. %2</source>
        <translation>%1: nicht prüfbar. %2</translation>
    </message>
    <message>
        <source>%1 more of this kind are left out.</source>
        <translation>%1 weitere dieser Art sind weggelassen.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
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
        <source>There is no schema &quot;%1&quot;.</source>
        <translation>Es gibt kein Schema &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The attribute %1 is empty: its declaration names no type, so nothing can fill it.</source>
        <translation>Das Attribut %1 ist leer: Seine Deklaration nennt keinen Typ, daher kann nichts es füllen.</translation>
    </message>
    <message>
        <source>Declare it with a type, or declare it globally with its simple type inside and refer to it.</source>
        <translation>Mit einem Typ deklarieren, oder global mit dem einfachen Typ darin deklarieren und darauf verweisen.</translation>
    </message>
    <message>
        <source>The attribute %1 still holds its type, &quot;%2&quot;: it was never set, or what was offered was refused.</source>
        <translation>Das Attribut %1 enthält noch seinen Typ, &quot;%2&quot;: Es wurde nie gesetzt, oder das Angebotene wurde abgelehnt.</translation>
    </message>
    <message>
        <source>Set the attribute, or remove it with RemoveAttribute(&quot;%1&quot;).</source>
        <translation>Das Attribut setzen oder mit RemoveAttribute(&quot;%1&quot;) entfernen.</translation>
    </message>
    <message>
        <source>The attribute %1 holds &quot;%2&quot;, which may be its type.</source>
        <translation>Das Attribut %1 enthält &quot;%2&quot;; das kann sein Typ sein.</translation>
    </message>
    <message>
        <source>Check with the schema: an attribute that was never set holds its type.</source>
        <translation>Mit dem Schema vergleichen: Ein Attribut, das nie gesetzt wurde, enthält seinen Typ.</translation>
    </message>
    <message>
        <source>The element has attributes, but no content.</source>
        <translation>Das Element hat Attribute, aber keinen Inhalt.</translation>
    </message>
    <message>
        <source>If it should hold a value, an empty text was set.</source>
        <translation>Falls es einen Wert enthalten soll, wurde ein leerer Text gesetzt.</translation>
    </message>
    <message>
        <source>The element is empty.</source>
        <translation>Das Element ist leer.</translation>
    </message>
    <message>
        <source>Either an empty text was set, or it is mandatory and lost all that it held, or nothing of its type is laid out. Elements that may be missing are removed when they are not filled.</source>
        <translation>Entweder wurde ein leerer Text gesetzt, oder es ist vorgeschrieben und hat alles verloren, was es enthielt, oder von seinem Typ wird nichts angelegt. Elemente, die fehlen dürfen, werden entfernt, wenn sie nicht gefüllt sind.</translation>
    </message>
    <message>
        <source>The schema gives a simple type to an element that holds others. Give simple types to elements without children only.</source>
        <translation>Das Schema gibt einem Element, das andere enthält, einen einfachen Typ. Einfache Typen nur Elementen ohne Kinder geben.</translation>
    </message>
    <message>
        <source>A default of the schema stays until it is removed: call RemoveAttribute(&quot;default&quot;), or declare no default.</source>
        <translation>Eine Vorgabe des Schemas bleibt, bis sie entfernt wird: RemoveAttribute(&quot;default&quot;) aufrufen oder keine Vorgabe deklarieren.</translation>
    </message>
    <message>
        <source>This facet is not checked and never removed. Take it out of the schema.</source>
        <translation>Diese Facette wird nicht geprüft und nie entfernt. Aus dem Schema nehmen.</translation>
    </message>
    <message>
        <source>A bound of 65535 counts as not given and is never removed. Write another one in the schema, such as the next number behind it with the exclusive facet.</source>
        <translation>Eine Grenze von 65535 gilt als nicht angegeben und wird nie entfernt. Im Schema eine andere schreiben, etwa die nächste Zahl dahinter mit der ausschließenden Facette.</translation>
    </message>
    <message>
        <source>One bound below and one above are checked and removed. Take the other one out of the schema, and give bounds to numbers only.</source>
        <translation>Eine Grenze unten und eine oben werden geprüft und entfernt. Die andere aus dem Schema nehmen und nur Zahlen Grenzen geben.</translation>
    </message>
    <message>
        <source>An enumeration is checked and removed when a text is set. Declare the element as a string, and set it as one.</source>
        <translation>Eine Aufzählung wird geprüft und entfernt, wenn ein Text gesetzt wird. Das Element als string deklarieren und als solchen setzen.</translation>
    </message>
    <message>
        <source>The annotation %1=&quot;%2&quot; is left over.</source>
        <translation>Die Annotation %1=&quot;%2&quot; ist übrig geblieben.</translation>
    </message>
    <message>
        <source>A value removes the facets that it was checked by: one bound below and one above, or the enumeration. A bound of 65535 counts as not given. Take the others out of the schema.</source>
        <translation>Ein Wert entfernt die Facetten, an denen er geprüft wurde: eine Grenze unten und eine oben oder die Aufzählung. Eine Grenze von 65535 gilt als nicht angegeben. Die übrigen aus dem Schema nehmen.</translation>
    </message>
    <message>
        <source>An attribute that is removed leaves its facets behind. Set the attribute, or declare it without facets.</source>
        <translation>Ein Attribut, das entfernt wird, lässt seine Facetten zurück. Das Attribut setzen oder ohne Facetten deklarieren.</translation>
    </message>
    <message>
        <source>Facets of the attribute %1 are left over: %2.</source>
        <translation>Facetten des Attributs %1 sind übrig geblieben: %2.</translation>
    </message>
    <message>
        <source>The element has no value and still carries its annotations: nothing can fill its type, &quot;%1&quot;.</source>
        <translation>Das Element hat keinen Wert und trägt noch seine Annotationen: Nichts kann seinen Typ füllen, &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Give it a type in the schema that can be filled, one of %1.</source>
        <translation>Ihm im Schema einen Typ geben, der sich füllen lässt, einen von %1.</translation>
    </message>
    <message>
        <source>The element has no value and still carries its annotations: nothing of the type &quot;%1&quot; was offered, or what was offered was refused.</source>
        <translation>Das Element hat keinen Wert und trägt noch seine Annotationen: Nichts vom Typ &quot;%1&quot; wurde angeboten, oder das Angebotene wurde abgelehnt.</translation>
    </message>
    <message>
        <source>Offer a value of that type within its range or enumeration, or let the element be missing: minOccurs=&quot;0&quot; in the schema. Where that is there already it does not help, in any copy of a container but the first and in a type that is called otherwise than the element that is of it: there the value has to be offered.</source>
        <translation>Einen Wert dieses Typs innerhalb von Bereich oder Aufzählung anbieten, oder das Element fehlen lassen: minOccurs=&quot;0&quot; im Schema. Wo das schon steht, hilft es nicht, und zwar in jeder Kopie eines Containers außer der ersten und in einem Typ, der anders heißt als das Element, das ihn hat: Dort ist der Wert anzubieten.</translation>
    </message>
    <message>
        <source>The element has no value: an integer was offered and refused, because it is out of range (%1).</source>
        <translation>Das Element hat keinen Wert: Eine ganze Zahl wurde angeboten und abgelehnt, weil sie außerhalb des Bereichs liegt (%1).</translation>
    </message>
    <message>
        <source>Offer a value within the range, or widen the range in the schema.</source>
        <translation>Einen Wert innerhalb des Bereichs anbieten oder den Bereich im Schema erweitern.</translation>
    </message>
    <message>
        <source>The report was checked with the schema that was given instead.</source>
        <translation>Der Bericht wurde mit dem stattdessen angegebenen Schema geprüft.</translation>
    </message>
    <message>
        <source>The report was not validated: say which schema to validate it against.</source>
        <translation>Der Bericht wurde nicht validiert: Angeben, nach welchem Schema.</translation>
    </message>
    <message>
        <source>The report names no schema.</source>
        <translation>Der Bericht nennt kein Schema.</translation>
    </message>
    <message>
        <source>The schema that the report names cannot be read from here: &quot;%1&quot;.</source>
        <translation>Das Schema, das der Bericht nennt, lässt sich von hier aus nicht lesen: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The element holds &quot;%1&quot;, but still carries its annotations: that is the default of the schema, which nobody has confirmed.</source>
        <translation>Das Element enthält &quot;%1&quot;, trägt aber noch seine Annotationen: Das ist die Vorgabe des Schemas, die niemand bestätigt hat.</translation>
    </message>
    <message>
        <source>Set the value, even if it is the default.</source>
        <translation>Den Wert setzen, auch wenn er die Vorgabe ist.</translation>
    </message>
    <message>
        <source>Offer no value while there is none to report.</source>
        <translation>Keinen Wert anbieten, solange es keinen zu berichten gibt.</translation>
    </message>
    <message>
        <source>The element holds &quot;%1&quot;, a number that XML Schema does not know.</source>
        <translation>Das Element enthält &quot;%1&quot;, eine Zahl, die XML Schema nicht kennt.</translation>
    </message>
    <message>
        <source>The attribute %1 holds &quot;%2&quot;, a number that XML Schema does not know.</source>
        <translation>Das Attribut %1 enthält &quot;%2&quot;, eine Zahl, die XML Schema nicht kennt.</translation>
    </message>
    <message>
        <source>%1 more messages are left out.</source>
        <translation>%1 weitere Meldungen sind weggelassen.</translation>
    </message>
    <message>
        <source>The validation was stopped after %1 seconds of work.</source>
        <translation>Die Validierung wurde nach %1 Sekunden Arbeit abgebrochen.</translation>
    </message>
    <message>
        <source>It has more than %1 elements or %2 attributes.</source>
        <translation>Der Bericht hat mehr als %1 Elemente oder %2 Attribute.</translation>
    </message>
    <message>
        <source>It holds no element. The schema that it was made from gave none: xmlhelper-schema says why.</source>
        <translation>Der Bericht enthält kein Element. Das Schema, aus dem er entstand, gab keines her: xmlhelper-schema sagt, warum.</translation>
    </message>
    <message>
        <source>It is not well-formed XML: something follows its root. A schema that lays out several roots gives such a report: xmlhelper-schema says so.</source>
        <translation>Es ist kein wohlgeformtes XML: Auf die Wurzel folgt noch etwas. Ein Schema, das mehrere Wurzeln anlegt, führt zu einem solchen Bericht: xmlhelper-schema sagt es.</translation>
    </message>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>Es ist kein wohlgeformtes XML: %1</translation>
    </message>
    <message>
        <source>there is no root element</source>
        <translation>es gibt kein Wurzelelement</translation>
    </message>
    <message>
        <source>It is a binary file, and no XML.</source>
        <translation>Es ist eine Binärdatei und kein XML.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>It is no XML: it does not begin with a tag.</source>
        <translation>Es ist kein XML: Es beginnt nicht mit einem Tag.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Die Datei lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>It has more than %1 bytes.</source>
        <translation>Die Datei hat mehr als %1 Bytes.</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1: %2; %3</translation>
    </message>
</context>
</TS>
