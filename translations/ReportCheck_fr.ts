<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ReportCheck</name>
    <message>
        <source>errors</source>
        <translation>erreurs</translation>
    </message>
    <message>
        <source>warnings</source>
        <translation>avertissements</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>remarques</translation>
    </message>
    <message>
        <source>nothing to say</source>
        <translation>rien à dire</translation>
    </message>
    <message>
        <source>not validated, no schema</source>
        <translation>non validé, aucun schéma</translation>
    </message>
    <message>
        <source>not validated to the end, by %1</source>
        <translation>non validé jusqu&apos;au bout, selon %1</translation>
    </message>
    <message>
        <source>not validated, the schema is no valid one: %1</source>
        <translation>non validé, le schéma n&apos;est pas valide : %1</translation>
    </message>
    <message>
        <source>valid by %1</source>
        <translation>valide selon %1</translation>
    </message>
    <message>
        <source>validated by %1</source>
        <translation>validé selon %1</translation>
    </message>
    <message>
        <source>%1: cannot be checked. %2</source>
        <translation>%1 : impossible à vérifier. %2</translation>
    </message>
    <message>
        <source>%1 more of this kind are left out.</source>
        <translation>%1 autres de ce genre sont omis.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>note</source>
        <translation>remarque</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>avertissement</translation>
    </message>
    <message>
        <source>error</source>
        <translation>erreur</translation>
    </message>
    <message>
        <source>There is no schema &quot;%1&quot;.</source>
        <translation>Il n&apos;y a pas de schéma &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The attribute %1 is empty: its declaration names no type, so nothing can fill it.</source>
        <translation>L&apos;attribut %1 est vide : sa déclaration ne nomme aucun type, rien ne peut donc le remplir.</translation>
    </message>
    <message>
        <source>Declare it with a type, or declare it globally with its simple type inside and refer to it.</source>
        <translation>Le déclarer avec un type, ou le déclarer globalement avec son type simple à l&apos;intérieur et s&apos;y référer.</translation>
    </message>
    <message>
        <source>The attribute %1 still holds its type, &quot;%2&quot;: it was never set, or what was offered was refused.</source>
        <translation>L&apos;attribut %1 contient encore son type, &quot;%2&quot; : il n&apos;a jamais été rempli, ou ce qui était proposé a été refusé.</translation>
    </message>
    <message>
        <source>Set the attribute, or remove it with RemoveAttribute(&quot;%1&quot;).</source>
        <translation>Remplir l&apos;attribut, ou le supprimer par RemoveAttribute(&quot;%1&quot;).</translation>
    </message>
    <message>
        <source>The attribute %1 holds &quot;%2&quot;, which may be its type.</source>
        <translation>L&apos;attribut %1 contient &quot;%2&quot;, qui est peut-être son type.</translation>
    </message>
    <message>
        <source>Check with the schema: an attribute that was never set holds its type.</source>
        <translation>Comparer avec le schéma : un attribut jamais rempli contient son type.</translation>
    </message>
    <message>
        <source>The element has attributes, but no content.</source>
        <translation>L&apos;élément a des attributs, mais pas de contenu.</translation>
    </message>
    <message>
        <source>If it should hold a value, an empty text was set.</source>
        <translation>S&apos;il devait contenir une valeur, un texte vide a été écrit.</translation>
    </message>
    <message>
        <source>The element is empty.</source>
        <translation>L&apos;élément est vide.</translation>
    </message>
    <message>
        <source>Either an empty text was set, or it is mandatory and lost all that it held, or nothing of its type is laid out. Elements that may be missing are removed when they are not filled.</source>
        <translation>Soit un texte vide a été écrit, soit il est obligatoire et a perdu tout ce qu&apos;il contenait, soit rien de son type n&apos;est créé. Les éléments qui peuvent manquer sont supprimés s&apos;ils ne sont pas remplis.</translation>
    </message>
    <message>
        <source>The schema gives a simple type to an element that holds others. Give simple types to elements without children only.</source>
        <translation>Le schéma donne un type simple à un élément qui en contient d&apos;autres. Ne donner de type simple qu&apos;aux éléments sans enfants.</translation>
    </message>
    <message>
        <source>A default of the schema stays until it is removed: call RemoveAttribute(&quot;default&quot;), or declare no default.</source>
        <translation>Une valeur par défaut du schéma reste jusqu&apos;à sa suppression : appeler RemoveAttribute(&quot;default&quot;), ou n&apos;en déclarer aucune.</translation>
    </message>
    <message>
        <source>This facet is not checked and never removed. Take it out of the schema.</source>
        <translation>Cette facette n&apos;est pas vérifiée et n&apos;est jamais supprimée. La retirer du schéma.</translation>
    </message>
    <message>
        <source>A bound of 65535 counts as not given and is never removed. Write another one in the schema, such as the next number behind it with the exclusive facet.</source>
        <translation>Une borne de 65535 compte comme non indiquée et n&apos;est jamais supprimée. En écrire une autre dans le schéma, comme le nombre suivant avec la facette exclusive.</translation>
    </message>
    <message>
        <source>One bound below and one above are checked and removed. Take the other one out of the schema, and give bounds to numbers only.</source>
        <translation>Une borne inférieure et une supérieure sont vérifiées et supprimées. Retirer l&apos;autre du schéma, et ne donner de bornes qu&apos;aux nombres.</translation>
    </message>
    <message>
        <source>An enumeration is checked and removed when a text is set. Declare the element as a string, and set it as one.</source>
        <translation>Une énumération est vérifiée et supprimée quand un texte est écrit. Déclarer l&apos;élément comme string, et le remplir comme tel.</translation>
    </message>
    <message>
        <source>The annotation %1=&quot;%2&quot; is left over.</source>
        <translation>L&apos;annotation %1=&quot;%2&quot; est restée.</translation>
    </message>
    <message>
        <source>A value removes the facets that it was checked by: one bound below and one above, or the enumeration. A bound of 65535 counts as not given. Take the others out of the schema.</source>
        <translation>Une valeur supprime les facettes qui l&apos;ont vérifiée : une borne inférieure et une supérieure, ou l&apos;énumération. Une borne de 65535 compte comme non indiquée. Retirer les autres du schéma.</translation>
    </message>
    <message>
        <source>An attribute that is removed leaves its facets behind. Set the attribute, or declare it without facets.</source>
        <translation>Un attribut supprimé laisse ses facettes. Remplir l&apos;attribut, ou le déclarer sans facettes.</translation>
    </message>
    <message>
        <source>Facets of the attribute %1 are left over: %2.</source>
        <translation>Des facettes de l&apos;attribut %1 sont restées : %2.</translation>
    </message>
    <message>
        <source>The element has no value and still carries its annotations: nothing can fill its type, &quot;%1&quot;.</source>
        <translation>L&apos;élément n&apos;a pas de valeur et porte encore ses annotations : rien ne peut remplir son type, &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Give it a type in the schema that can be filled, one of %1.</source>
        <translation>Lui donner dans le schéma un type qui puisse être rempli, l&apos;un de %1.</translation>
    </message>
    <message>
        <source>The element has no value and still carries its annotations: nothing of the type &quot;%1&quot; was offered, or what was offered was refused.</source>
        <translation>L&apos;élément n&apos;a pas de valeur et porte encore ses annotations : rien de type &quot;%1&quot; n&apos;a été proposé, ou ce qui était proposé a été refusé.</translation>
    </message>
    <message>
        <source>Offer a value of that type within its range or enumeration, or let the element be missing: minOccurs=&quot;0&quot; in the schema. Where that is there already it does not help, in any copy of a container but the first and in a type that is called otherwise than the element that is of it: there the value has to be offered.</source>
        <translation>Proposer une valeur de ce type dans son intervalle ou son énumération, ou permettre à l&apos;élément de manquer : minOccurs=&quot;0&quot; dans le schéma. Là où c&apos;est déjà écrit, cela n&apos;aide pas, dans toute copie d&apos;un conteneur sauf la première et dans un type qui ne porte pas le nom de l&apos;élément qui est de ce type : là, il faut proposer la valeur.</translation>
    </message>
    <message>
        <source>The element has no value: an integer was offered and refused, because it is out of range (%1).</source>
        <translation>L&apos;élément n&apos;a pas de valeur : un entier a été proposé et refusé, parce qu&apos;il est hors de l&apos;intervalle (%1).</translation>
    </message>
    <message>
        <source>Offer a value within the range, or widen the range in the schema.</source>
        <translation>Proposer une valeur dans l&apos;intervalle, ou élargir l&apos;intervalle dans le schéma.</translation>
    </message>
    <message>
        <source>The report was checked with the schema that was given instead.</source>
        <translation>Le rapport a été vérifié avec le schéma indiqué à la place.</translation>
    </message>
    <message>
        <source>The report was not validated: say which schema to validate it against.</source>
        <translation>Le rapport n&apos;a pas été validé : indiquer selon quel schéma.</translation>
    </message>
    <message>
        <source>The report names no schema.</source>
        <translation>Le rapport ne nomme aucun schéma.</translation>
    </message>
    <message>
        <source>The schema that the report names cannot be read from here: &quot;%1&quot;.</source>
        <translation>Le schéma que nomme le rapport ne peut pas être lu d&apos;ici : &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The element holds &quot;%1&quot;, but still carries its annotations: that is the default of the schema, which nobody has confirmed.</source>
        <translation>L&apos;élément contient &quot;%1&quot;, mais porte encore ses annotations : c&apos;est la valeur par défaut du schéma, que personne n&apos;a confirmée.</translation>
    </message>
    <message>
        <source>Set the value, even if it is the default.</source>
        <translation>Écrire la valeur, même si c&apos;est celle par défaut.</translation>
    </message>
    <message>
        <source>Offer no value while there is none to report.</source>
        <translation>Ne proposer aucune valeur tant qu&apos;il n&apos;y en a pas à rapporter.</translation>
    </message>
    <message>
        <source>The element holds &quot;%1&quot;, a number that XML Schema does not know.</source>
        <translation>L&apos;élément contient &quot;%1&quot;, un nombre que XML Schema ne connaît pas.</translation>
    </message>
    <message>
        <source>The attribute %1 holds &quot;%2&quot;, a number that XML Schema does not know.</source>
        <translation>L&apos;attribut %1 contient &quot;%2&quot;, un nombre que XML Schema ne connaît pas.</translation>
    </message>
    <message>
        <source>%1 more messages are left out.</source>
        <translation>%1 autres messages sont omis.</translation>
    </message>
    <message>
        <source>The validation was stopped after %1 seconds of work.</source>
        <translation>La validation a été arrêtée après %1 secondes de travail.</translation>
    </message>
    <message>
        <source>It has more than %1 elements or %2 attributes.</source>
        <translation>Le rapport a plus de %1 éléments ou %2 attributs.</translation>
    </message>
    <message>
        <source>It holds no element. The schema that it was made from gave none: xmlhelper-schema says why.</source>
        <translation>Le rapport ne contient aucun élément. Le schéma dont il est issu n&apos;en a donné aucun : xmlhelper-schema dit pourquoi.</translation>
    </message>
    <message>
        <source>It is not well-formed XML: something follows its root. A schema that lays out several roots gives such a report: xmlhelper-schema says so.</source>
        <translation>Ce n&apos;est pas du XML bien formé : quelque chose suit sa racine. Un schéma qui crée plusieurs racines donne un tel rapport : xmlhelper-schema le dit.</translation>
    </message>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>Ce n&apos;est pas du XML bien formé : %1</translation>
    </message>
    <message>
        <source>there is no root element</source>
        <translation>il n&apos;y a pas d&apos;élément racine</translation>
    </message>
    <message>
        <source>It is a binary file, and no XML.</source>
        <translation>C&apos;est un fichier binaire, et non du XML.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>It is no XML: it does not begin with a tag.</source>
        <translation>Ce n&apos;est pas du XML : cela ne commence pas par une balise.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Impossible de l&apos;ouvrir.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n&apos;existe pas.</translation>
    </message>
    <message>
        <source>It has more than %1 bytes.</source>
        <translation>Le fichier dépasse %1 octets.</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1 : %2 ; %3</translation>
    </message>
</context>
</TS>
