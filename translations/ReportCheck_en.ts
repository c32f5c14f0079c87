<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ReportCheck</name>
    <message>
        <source>errors</source>
        <translation>errors</translation>
    </message>
    <message>
        <source>warnings</source>
        <translation>warnings</translation>
    </message>
    <message>
        <source>notes</source>
        <translation>notes</translation>
    </message>
    <message>
        <source>nothing to say</source>
        <translation>nothing to say</translation>
    </message>
    <message>
        <source>not validated, no schema</source>
        <translation>not validated, no schema</translation>
    </message>
    <message>
        <source>not validated to the end, by %1</source>
        <translation>not validated to the end, by %1</translation>
    </message>
    <message>
        <source>not validated, the schema is no valid one: %1</source>
        <translation>not validated, the schema is no valid one: %1</translation>
    </message>
    <message>
        <source>valid by %1</source>
        <translation>valid by %1</translation>
    </message>
    <message>
        <source>validated by %1</source>
        <translation>validated by %1</translation>
    </message>
    <message>
        <source>%1: cannot be checked. %2</source>
        <translation>%1: cannot be checked. %2</translation>
    </message>
    <message>
        <source>%1 more of this kind are left out.</source>
        <translation>%1 more of this kind are left out.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>note</source>
        <translation>note</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>warning</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>There is no schema &quot;%1&quot;.</source>
        <translation>There is no schema &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The attribute %1 is empty: its declaration names no type, so nothing can fill it.</source>
        <translation>The attribute %1 is empty: its declaration names no type, so nothing can fill it.</translation>
    </message>
    <message>
        <source>Declare it with a type, or declare it globally with its simple type inside and refer to it.</source>
        <translation>Declare it with a type, or declare it globally with its simple type inside and refer to it.</translation>
    </message>
    <message>
        <source>The attribute %1 still holds its type, &quot;%2&quot;: it was never set, or what was offered was refused.</source>
        <translation>The attribute %1 still holds its type, &quot;%2&quot;: it was never set, or what was offered was refused.</translation>
    </message>
    <message>
        <source>Set the attribute, or remove it with RemoveAttribute(&quot;%1&quot;).</source>
        <translation>Set the attribute, or remove it with RemoveAttribute(&quot;%1&quot;).</translation>
    </message>
    <message>
        <source>The attribute %1 holds &quot;%2&quot;, which may be its type.</source>
        <translation>The attribute %1 holds &quot;%2&quot;, which may be its type.</translation>
    </message>
    <message>
        <source>Check with the schema: an attribute that was never set holds its type.</source>
        <translation>Check with the schema: an attribute that was never set holds its type.</translation>
    </message>
    <message>
        <source>The element has attributes, but no content.</source>
        <translation>The element has attributes, but no content.</translation>
    </message>
    <message>
        <source>If it should hold a value, an empty text was set.</source>
        <translation>If it should hold a value, an empty text was set.</translation>
    </message>
    <message>
        <source>The element is empty.</source>
        <translation>The element is empty.</translation>
    </message>
    <message>
        <source>Either an empty text was set, or it is mandatory and lost all that it held, or nothing of its type is laid out. Elements that may be missing are removed when they are not filled.</source>
        <translation>Either an empty text was set, or it is mandatory and lost all that it held, or nothing of its type is laid out. Elements that may be missing are removed when they are not filled.</translation>
    </message>
    <message>
        <source>The schema gives a simple type to an element that holds others. Give simple types to elements without children only.</source>
        <translation>The schema gives a simple type to an element that holds others. Give simple types to elements without children only.</translation>
    </message>
    <message>
        <source>A default of the schema stays until it is removed: call RemoveAttribute(&quot;default&quot;), or declare no default.</source>
        <translation>A default of the schema stays until it is removed: call RemoveAttribute(&quot;default&quot;), or declare no default.</translation>
    </message>
    <message>
        <source>This facet is not checked and never removed. Take it out of the schema.</source>
        <translation>This facet is not checked and never removed. Take it out of the schema.</translation>
    </message>
    <message>
        <source>A bound of 65535 counts as not given and is never removed. Write another one in the schema, such as the next number behind it with the exclusive facet.</source>
        <translation>A bound of 65535 counts as not given and is never removed. Write another one in the schema, such as the next number behind it with the exclusive facet.</translation>
    </message>
    <message>
        <source>One bound below and one above are checked and removed. Take the other one out of the schema, and give bounds to numbers only.</source>
        <translation>One bound below and one above are checked and removed. Take the other one out of the schema, and give bounds to numbers only.</translation>
    </message>
    <message>
        <source>An enumeration is checked and removed when a text is set. Declare the element as a string, and set it as one.</source>
        <translation>An enumeration is checked and removed when a text is set. Declare the element as a string, and set it as one.</translation>
    </message>
    <message>
        <source>The annotation %1=&quot;%2&quot; is left over.</source>
        <translation>The annotation %1=&quot;%2&quot; is left over.</translation>
    </message>
    <message>
        <source>A value removes the facets that it was checked by: one bound below and one above, or the enumeration. A bound of 65535 counts as not given. Take the others out of the schema.</source>
        <translation>A value removes the facets that it was checked by: one bound below and one above, or the enumeration. A bound of 65535 counts as not given. Take the others out of the schema.</translation>
    </message>
    <message>
        <source>An attribute that is removed leaves its facets behind. Set the attribute, or declare it without facets.</source>
        <translation>An attribute that is removed leaves its facets behind. Set the attribute, or declare it without facets.</translation>
    </message>
    <message>
        <source>Facets of the attribute %1 are left over: %2.</source>
        <translation>Facets of the attribute %1 are left over: %2.</translation>
    </message>
    <message>
        <source>The element has no value and still carries its annotations: nothing can fill its type, &quot;%1&quot;.</source>
        <translation>The element has no value and still carries its annotations: nothing can fill its type, &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Give it a type in the schema that can be filled, one of %1.</source>
        <translation>Give it a type in the schema that can be filled, one of %1.</translation>
    </message>
    <message>
        <source>The element has no value and still carries its annotations: nothing of the type &quot;%1&quot; was offered, or what was offered was refused.</source>
        <translation>The element has no value and still carries its annotations: nothing of the type &quot;%1&quot; was offered, or what was offered was refused.</translation>
    </message>
    <message>
        <source>Offer a value of that type within its range or enumeration, or let the element be missing: minOccurs=&quot;0&quot; in the schema. Where that is there already it does not help, in any copy of a container but the first and in a type that is called otherwise than the element that is of it: there the value has to be offered.</source>
        <translation>Offer a value of that type within its range or enumeration, or let the element be missing: minOccurs=&quot;0&quot; in the schema. Where that is there already it does not help, in any copy of a container but the first and in a type that is called otherwise than the element that is of it: there the value has to be offered.</translation>
    </message>
    <message>
        <source>The element has no value: an integer was offered and refused, because it is out of range (%1).</source>
        <translation>The element has no value: an integer was offered and refused, because it is out of range (%1).</translation>
    </message>
    <message>
        <source>Offer a value within the range, or widen the range in the schema.</source>
        <translation>Offer a value within the range, or widen the range in the schema.</translation>
    </message>
    <message>
        <source>The report was checked with the schema that was given instead.</source>
        <translation>The report was checked with the schema that was given instead.</translation>
    </message>
    <message>
        <source>The report was not validated: say which schema to validate it against.</source>
        <translation>The report was not validated: say which schema to validate it against.</translation>
    </message>
    <message>
        <source>The report names no schema.</source>
        <translation>The report names no schema.</translation>
    </message>
    <message>
        <source>The schema that the report names cannot be read from here: &quot;%1&quot;.</source>
        <translation>The schema that the report names cannot be read from here: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The element holds &quot;%1&quot;, but still carries its annotations: that is the default of the schema, which nobody has confirmed.</source>
        <translation>The element holds &quot;%1&quot;, but still carries its annotations: that is the default of the schema, which nobody has confirmed.</translation>
    </message>
    <message>
        <source>Set the value, even if it is the default.</source>
        <translation>Set the value, even if it is the default.</translation>
    </message>
    <message>
        <source>Offer no value while there is none to report.</source>
        <translation>Offer no value while there is none to report.</translation>
    </message>
    <message>
        <source>The element holds &quot;%1&quot;, a number that XML Schema does not know.</source>
        <translation>The element holds &quot;%1&quot;, a number that XML Schema does not know.</translation>
    </message>
    <message>
        <source>The attribute %1 holds &quot;%2&quot;, a number that XML Schema does not know.</source>
        <translation>The attribute %1 holds &quot;%2&quot;, a number that XML Schema does not know.</translation>
    </message>
    <message>
        <source>%1 more messages are left out.</source>
        <translation>%1 more messages are left out.</translation>
    </message>
    <message>
        <source>The validation was stopped after %1 seconds of work.</source>
        <translation>The validation was stopped after %1 seconds of work.</translation>
    </message>
    <message>
        <source>It has more than %1 elements or %2 attributes.</source>
        <translation>It has more than %1 elements or %2 attributes.</translation>
    </message>
    <message>
        <source>It holds no element. The schema that it was made from gave none: xmlhelper-schema says why.</source>
        <translation>It holds no element. The schema that it was made from gave none: xmlhelper-schema says why.</translation>
    </message>
    <message>
        <source>It is not well-formed XML: something follows its root. A schema that lays out several roots gives such a report: xmlhelper-schema says so.</source>
        <translation>It is not well-formed XML: something follows its root. A schema that lays out several roots gives such a report: xmlhelper-schema says so.</translation>
    </message>
    <message>
        <source>It is not well-formed XML: %1</source>
        <translation>It is not well-formed XML: %1</translation>
    </message>
    <message>
        <source>there is no root element</source>
        <translation>there is no root element</translation>
    </message>
    <message>
        <source>It is a binary file, and no XML.</source>
        <translation>It is a binary file, and no XML.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>It is no XML: it does not begin with a tag.</source>
        <translation>It is no XML: it does not begin with a tag.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>It cannot be opened.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>There is no such file.</translation>
    </message>
    <message>
        <source>It has more than %1 bytes.</source>
        <translation>It has more than %1 bytes.</translation>
    </message>
    <message>
        <source>%1: %2; %3</source>
        <translation>%1: %2; %3</translation>
    </message>
</context>
</TS>
