<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Mend</name>
    <message>
        <source>Written otherwise</source>
        <translation>Written otherwise</translation>
    </message>
    <message>
        <source>Left as it is, because it would change the format</source>
        <translation>Left as it is, because it would change the format</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Mended</translation>
    </message>
    <message>
        <source>The mended schema</source>
        <translation>The mended schema</translation>
    </message>
    <message>
        <source>Mended schema</source>
        <translation>Mended schema</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Line %1</translation>
    </message>
    <message>
        <source>its attributes</source>
        <translation>its attributes</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nothing</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; of another namespace</source>
        <translation>the attribute &apos;%1&apos; of another namespace</translation>
    </message>
    <message>
        <source>the prohibited attribute &apos;%1&apos;</source>
        <translation>the prohibited attribute &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the fixed value &apos;%1&apos;</source>
        <translation>the fixed value &apos;%1&apos;</translation>
    </message>
    <message>
        <source>an enumeration of this value</source>
        <translation>an enumeration of this value</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos;</source>
        <translation>the attribute &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the facets of the attribute &apos;%1&apos;, whose name contains that of another</source>
        <translation>the facets of the attribute &apos;%1&apos;, whose name contains that of another</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of %1</source>
        <translation>minOccurs and maxOccurs of %1</translation>
    </message>
    <message>
        <source>Written out, the groups and types hold each other more often than is followed.</source>
        <translation>Written out, the groups and types hold each other more often than is followed.</translation>
    </message>
    <message>
        <source>Written out, the schema has more than %1 elements.</source>
        <translation>Written out, the schema has more than %1 elements.</translation>
    </message>
    <message>
        <source>Definitions contain each other more than %1 levels deep.</source>
        <translation>Definitions contain each other more than %1 levels deep.</translation>
    </message>
    <message>
        <source>an element that never occurs</source>
        <translation>an element that never occurs</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos;, which is declared nowhere</source>
        <translation>the element &apos;%1&apos;, which is declared nowhere</translation>
    </message>
    <message>
        <source>an alternative that leads deeper</source>
        <translation>an alternative that leads deeper</translation>
    </message>
    <message>
        <source>xs:choice inside of xs:choice</source>
        <translation>xs:choice inside of xs:choice</translation>
    </message>
    <message>
        <source>one choice of all alternatives</source>
        <translation>one choice of all alternatives</translation>
    </message>
    <message>
        <source>xs:choice inside of an alternative</source>
        <translation>xs:choice inside of an alternative</translation>
    </message>
    <message>
        <source>its first alternative</source>
        <translation>its first alternative</translation>
    </message>
    <message>
        <source>its alternatives, each optional</source>
        <translation>its alternatives, each optional</translation>
    </message>
    <message>
        <source>the group &apos;%1&apos;, which is defined nowhere</source>
        <translation>the group &apos;%1&apos;, which is defined nowhere</translation>
    </message>
    <message>
        <source>its elements</source>
        <translation>its elements</translation>
    </message>
    <message>
        <source>an xs:any that is required</source>
        <translation>an xs:any that is required</translation>
    </message>
    <message>
        <source>the substitution group of &apos;%1&apos;</source>
        <translation>the substitution group of &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a choice of its elements</source>
        <translation>a choice of its elements</translation>
    </message>
    <message>
        <source>a group that never occurs</source>
        <translation>a group that never occurs</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of &apos;%1&apos;</source>
        <translation>minOccurs and maxOccurs of &apos;%1&apos;</translation>
    </message>
    <message>
        <source>one choice</source>
        <translation>one choice</translation>
    </message>
    <message>
        <source>its alternatives in their order, each optional</source>
        <translation>its alternatives in their order, each optional</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of each element inside</source>
        <translation>minOccurs and maxOccurs of each element inside</translation>
    </message>
    <message>
        <source>the group once</source>
        <translation>the group once</translation>
    </message>
    <message>
        <source>&apos;%1&apos; a second time</source>
        <translation>&apos;%1&apos; a second time</translation>
    </message>
    <message>
        <source>&apos;%1&apos; inside of itself</source>
        <translation>&apos;%1&apos; inside of itself</translation>
    </message>
    <message>
        <source>%1 levels</source>
        <translation>%1 levels</translation>
    </message>
    <message>
        <source>the complex type &apos;%1&apos;</source>
        <translation>the complex type &apos;%1&apos;</translation>
    </message>
    <message>
        <source>written inside of the elements that are of it</source>
        <translation>written inside of the elements that are of it</translation>
    </message>
    <message>
        <source>an abstract type</source>
        <translation>an abstract type</translation>
    </message>
    <message>
        <source>the type itself</source>
        <translation>the type itself</translation>
    </message>
    <message>
        <source>mixed content</source>
        <translation>mixed content</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos;, which is defined nowhere</source>
        <translation>the type &apos;%1&apos;, which is defined nowhere</translation>
    </message>
    <message>
        <source>the content written out</source>
        <translation>the content written out</translation>
    </message>
    <message>
        <source>an abstract element</source>
        <translation>an abstract element</translation>
    </message>
    <message>
        <source>the element itself</source>
        <translation>the element itself</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos;</source>
        <translation>the element &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; with a type of its own</source>
        <translation>the attribute &apos;%1&apos; with a type of its own</translation>
    </message>
    <message>
        <source>a global attribute</source>
        <translation>a global attribute</translation>
    </message>
    <message>
        <source>%1, whose name another has</source>
        <translation>%1, whose name another has</translation>
    </message>
    <message>
        <source>an attribute of the type xs:%1</source>
        <translation>an attribute of the type xs:%1</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos;</source>
        <translation>the type &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a type without a name</source>
        <translation>a type without a name</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos; behind its use</source>
        <translation>the type &apos;%1&apos; behind its use</translation>
    </message>
    <message>
        <source>in front of it</source>
        <translation>in front of it</translation>
    </message>
    <message>
        <source>what stands in that file</source>
        <translation>what stands in that file</translation>
    </message>
    <message>
        <source>nothing: it is not read</source>
        <translation>nothing: it is not read</translation>
    </message>
    <message>
        <source>tags without the prefix xs:</source>
        <translation>tags without the prefix xs:</translation>
    </message>
    <message>
        <source>the prefix xs:</source>
        <translation>the prefix xs:</translation>
    </message>
    <message>
        <source>xs:%1 &apos;%2&apos;, to which nothing refers</source>
        <translation>xs:%1 &apos;%2&apos;, to which nothing refers</translation>
    </message>
    <message>
        <source>nothing: reports begin with &apos;%1&apos;</source>
        <translation>nothing: reports begin with &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the alternative &apos;%1&apos;, which holds no value</source>
        <translation>the alternative &apos;%1&apos;, which holds no value</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, which may be missing</source>
        <translation>&apos;%1&apos;, which may be missing</translation>
    </message>
    <message>
        <source>required</source>
        <translation>required</translation>
    </message>
    <message>
        <source>No report is finite with &apos;%1&apos; inside of itself %2 times.</source>
        <translation>No report is finite with &apos;%1&apos; inside of itself %2 times.</translation>
    </message>
    <message>
        <source>The schema declares no global element.</source>
        <translation>The schema declares no global element.</translation>
    </message>
    <message>
        <source>There is no global element &apos;%1&apos;.</source>
        <translation>There is no global element &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1 is a file of the schema itself, and is not written over.</source>
        <translation>%1 is a file of the schema itself, and is not written over.</translation>
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
        <translation>More can be mended where the format may change.
</translation>
    </message>
    <message>
        <source>Nothing is written otherwise.
</source>
        <translation>Nothing is written otherwise.
</translation>
    </message>
    <message>
        <source>Written otherwise:</source>
        <translation>Written otherwise:</translation>
    </message>
    <message>
        <source>Left as it is, because it would change the format:</source>
        <translation>Left as it is, because it would change the format:</translation>
    </message>
    <message>
        <source>
The mended schema:
</source>
        <translation>
The mended schema:
</translation>
    </message>
    <message>
        <source>reports stay valid by the original</source>
        <translation>reports stay valid by the original</translation>
    </message>
    <message>
        <source>changes the format</source>
        <translation>changes the format</translation>
    </message>
    <message>
        <source>The files are longer than the %1 bytes that are mended.</source>
        <translation>The files are longer than the %1 bytes that are mended.</translation>
    </message>
    <message>
        <source>%1 is no well-formed XML.</source>
        <translation>%1 is no well-formed XML.</translation>
    </message>
    <message>
        <source>%1 is no XML Schema.</source>
        <translation>%1 is no XML Schema.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, required %2 times</source>
        <translation>&apos;%1&apos;, required %2 times</translation>
    </message>
    <message>
        <source>required once</source>
        <translation>required once</translation>
    </message>
    <message>
        <source>a reference to &apos;%1&apos;</source>
        <translation>a reference to &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the element in its place</source>
        <translation>the element in its place</translation>
    </message>
    <message>
        <source>a global element in front of a reference to it</source>
        <translation>a global element in front of a reference to it</translation>
    </message>
    <message>
        <source>the target namespace &apos;%1&apos;</source>
        <translation>the target namespace &apos;%1&apos;</translation>
    </message>
    <message>
        <source>no namespace</source>
        <translation>no namespace</translation>
    </message>
    <message>
        <source>a restriction of the type &apos;%1&apos;</source>
        <translation>a restriction of the type &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a restriction of xs:%1 with the facets of both</source>
        <translation>a restriction of xs:%1 with the facets of both</translation>
    </message>
    <message>
        <source>a single item</source>
        <translation>a single item</translation>
    </message>
    <message>
        <source>xs:string, which holds the items as a text</source>
        <translation>xs:string, which holds the items as a text</translation>
    </message>
    <message>
        <source>one enumeration of all texts</source>
        <translation>one enumeration of all texts</translation>
    </message>
    <message>
        <source>its first member, a type on xs:%1</source>
        <translation>its first member, a type on xs:%1</translation>
    </message>
    <message>
        <source>an attribute of the type xs:boolean</source>
        <translation>an attribute of the type xs:boolean</translation>
    </message>
    <message>
        <source>the texts true and false</source>
        <translation>the texts true and false</translation>
    </message>
    <message>
        <source>an attribute of the type xs:time</source>
        <translation>an attribute of the type xs:time</translation>
    </message>
    <message>
        <source>an enumeration of %1</source>
        <translation>an enumeration of %1</translation>
    </message>
    <message>
        <source>an enumeration of xs:string</source>
        <translation>an enumeration of xs:string</translation>
    </message>
    <message>
        <source>the enumeration alone</source>
        <translation>the enumeration alone</translation>
    </message>
    <message>
        <source>xs:integer with %1</source>
        <translation>xs:integer with %1</translation>
    </message>
    <message>
        <source>%1 of an attribute</source>
        <translation>%1 of an attribute</translation>
    </message>
    <message>
        <source>Written otherwise: %1. Left: %2. Findings: %3.</source>
        <translation>Written otherwise: %1. Left: %2. Findings: %3.</translation>
    </message>
    <message>
        <source>The doctor finds in the mended schema</source>
        <translation>The doctor finds in the mended schema</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos; of a namespace that is not read</source>
        <translation>the element &apos;%1&apos; of a namespace that is not read</translation>
    </message>
    <message>
        <source>the group &apos;%1&apos; of a namespace that is not read</source>
        <translation>the group &apos;%1&apos; of a namespace that is not read</translation>
    </message>
    <message>
        <source>the other alternatives</source>
        <translation>the other alternatives</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos; of a namespace that is not read</source>
        <translation>the type &apos;%1&apos; of a namespace that is not read</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 is no file.</translation>
    </message>
    <message>
        <source>The mender knows no way of writing without these findings; another root or number of levels may help.
</source>
        <translation>The mender knows no way of writing without these findings; another root or number of levels may help.
</translation>
    </message>
    <message>
        <source>The format is not kept: what changes it cannot be left as it is.
</source>
        <translation>The format is not kept: what changes it cannot be left as it is.
</translation>
    </message>
    <message>
        <source>the default &apos;%1&apos;</source>
        <translation>the default &apos;%1&apos;</translation>
    </message>
    <message>
        <source>an xs:list that is never a single item</source>
        <translation>an xs:list that is never a single item</translation>
    </message>
    <message>
        <source>xs:string with %1</source>
        <translation>xs:string with %1</translation>
    </message>
    <message>
        <source>a single item of %1</source>
        <translation>a single item of %1</translation>
    </message>
    <message>
        <source>an enumeration of its texts</source>
        <translation>an enumeration of its texts</translation>
    </message>
    <message>
        <source>a type without any value</source>
        <translation>a type without any value</translation>
    </message>
    <message>
        <source>an enumeration of what it allows</source>
        <translation>an enumeration of what it allows</translation>
    </message>
    <message>
        <source>bounds between which hardly any number is</source>
        <translation>bounds between which hardly any number is</translation>
    </message>
    <message>
        <source>an enumeration of &apos;%1&apos;</source>
        <translation>an enumeration of &apos;%1&apos;</translation>
    </message>
    <message>
        <source>restrictions of xs:%1, one for each pattern that has to hold</source>
        <translation>restrictions of xs:%1, one for each pattern that has to hold</translation>
    </message>
    <message>
        <source>%1; setters give no number beyond the bounds of %2</source>
        <translation>%1; setters give no number beyond the bounds of %2</translation>
    </message>
</context>
<context>
    <name>SchemaDoctor</name>
    <message>
        <source>line %1: %2</source>
        <translation>line %1: %2</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>The file cannot be opened.</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that are examined.</source>
        <translation>The file is longer than the %1 bytes that are examined.</translation>
    </message>
    <message>
        <source>The file holds no XML.</source>
        <translation>The file holds no XML.</translation>
    </message>
    <message>
        <source>No well-formed XML, %1</source>
        <translation>No well-formed XML, %1</translation>
    </message>
    <message>
        <source>The library gives the schema up: a definition that it refers to never comes.</source>
        <translation>The library gives the schema up: a definition that it refers to never comes.</translation>
    </message>
    <message>
        <source>The library gives the schema up: definitions wait for each other.</source>
        <translation>The library gives the schema up: definitions wait for each other.</translation>
    </message>
    <message>
        <source>The library gives the schema up: %1</source>
        <translation>The library gives the schema up: %1</translation>
    </message>
    <message>
        <source>Too much to be shown: %1</source>
        <translation>Too much to be shown: %1</translation>
    </message>
    <message>
        <source>The library lays nothing out.</source>
        <translation>The library lays nothing out.</translation>
    </message>
    <message>
        <source>The library cannot read the file, %1</source>
        <translation>The library cannot read the file, %1</translation>
    </message>
    <message>
        <source>complaint: %1</source>
        <translation>complaint: %1</translation>
    </message>
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
        <source>1 element laid out.</source>
        <translation>1 element laid out.</translation>
    </message>
    <message>
        <source>%1 elements laid out.</source>
        <translation>%1 elements laid out.</translation>
    </message>
    <message>
        <source>Skip to the findings</source>
        <translation>Skip to the findings</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the page</comment>
        <translation>en</translation>
    </message>
    <message>
        <source>%1 - schema doctor</source>
        <translation>%1 - schema doctor</translation>
    </message>
    <message>
        <source>To the findings</source>
        <translation>To the findings</translation>
    </message>
    <message>
        <source>The schema cannot be read: %1</source>
        <translation>The schema cannot be read: %1</translation>
    </message>
    <message>
        <source>No findings.</source>
        <translation>No findings.</translation>
    </message>
    <message>
        <source>Search for a name</source>
        <translation>Search for a name</translation>
    </message>
    <message>
        <source>Search for a name (press /)</source>
        <translation>Search for a name (press /)</translation>
    </message>
    <message>
        <source>Unfold all</source>
        <translation>Unfold all</translation>
    </message>
    <message>
        <source>Fold all</source>
        <translation>Fold all</translation>
    </message>
    <message>
        <source>%1 in the tree, %2 findings</source>
        <translation>%1 in the tree, %2 findings</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Tree</translation>
    </message>
    <message>
        <source>What is laid out</source>
        <translation>What is laid out</translation>
    </message>
    <message>
        <source>The first %1 of %2 elements; --tree prints all of them.</source>
        <translation>The first %1 of %2 elements; --tree prints all of them.</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>default %1</translation>
    </message>
    <message>
        <source>occurs %1, counts taken: %2</source>
        <translation>occurs %1, counts taken: %2</translation>
    </message>
    <message>
        <source>alternative of choice %1</source>
        <translation>alternative of choice %1</translation>
    </message>
    <message>
        <source>alternative by its name</source>
        <translation>alternative by its name</translation>
    </message>
    <message>
        <source>unfilled it %1</source>
        <translation>unfilled it %1</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>no type</translation>
    </message>
    <message>
        <source>%1 (not checked)</source>
        <translation>%1 (not checked)</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>one of %1</translation>
    </message>
    <message>
        <source>nothing can fill it</source>
        <translation>nothing can fill it</translation>
    </message>
    <message>
        <source>set by %1</source>
        <translation>set by %1</translation>
    </message>
    <message>
        <source>Who could be the root</source>
        <translation>Who could be the root</translation>
    </message>
    <message>
        <source>(an attribute)</source>
        <translation>(an attribute)</translation>
    </message>
    <message>
        <source>is the root: the greatest name wins</source>
        <translation>is the root: the greatest name wins</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Findings</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>There are none.</translation>
    </message>
    <message>
        <source>The first %1 of %2; --json prints all of them.</source>
        <translation>The first %1 of %2; --json prints all of them.</translation>
    </message>
    <message>
        <source>What the library does:</source>
        <translation>What the library does:</translation>
    </message>
    <message>
        <source>Write instead:</source>
        <translation>Write instead:</translation>
    </message>
    <message>
        <source>As it is meant</source>
        <translation>As it is meant</translation>
    </message>
    <message>
        <source>As it is laid out</source>
        <translation>As it is laid out</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Files that are too long for the page are left out.</source>
        <translation>Files that are too long for the page are left out.</translation>
    </message>
    <message>
        <source>Reports filled on trial: %1, of which valid: %2.</source>
        <translation>Reports filled on trial: %1, of which valid: %2.</translation>
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
        <source>%1: %2 findings</source>
        <translation>%1: %2 findings</translation>
    </message>
    <message>
        <source>read</source>
        <translation>read</translation>
    </message>
    <message>
        <source>read again</source>
        <translation>read again</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>missing</translation>
    </message>
    <message>
        <source>malformed</source>
        <translation>malformed</translation>
    </message>
    <message>
        <source>cyclic, skipped</source>
        <translation>cyclic, skipped</translation>
    </message>
    <message>
        <source>too deep, skipped</source>
        <translation>too deep, skipped</translation>
    </message>
    <message>
        <source>%1, outside of the folder</source>
        <translation>%1, outside of the folder</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>stays</translation>
    </message>
    <message>
        <source>is removed</source>
        <translation>is removed</translation>
    </message>
    <message>
        <source>is removed when its first value is unfilled</source>
        <translation>is removed when its first value is unfilled</translation>
    </message>
    <message>
        <source>is removed with the container around it</source>
        <translation>is removed with the container around it</translation>
    </message>
    <message>
        <source>stays, unless a value behind it is unfilled</source>
        <translation>stays, unless a value behind it is unfilled</translation>
    </message>
    <message>
        <source>was not tried</source>
        <translation>was not tried</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>not tried</translation>
    </message>
    <message>
        <source>any</source>
        <translation>any</translation>
    </message>
    <message>
        <source>1 or more</source>
        <translation>1 or more</translation>
    </message>
    <message>
        <source>0 only</source>
        <translation>0 only</translation>
    </message>
    <message>
        <source>no count</source>
        <translation>no count</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>%1 in the first copy, the others were not tried</source>
        <translation>%1 in the first copy, the others were not tried</translation>
    </message>
    <message>
        <source>%1 in the first copy only</source>
        <translation>%1 in the first copy only</translation>
    </message>
    <message>
        <source>A report filled with nothing but what is required is not valid: %1</source>
        <translation>A report filled with nothing but what is required is not valid: %1</translation>
    </message>
    <message>
        <source>A report filled with everything is not valid: %1</source>
        <translation>A report filled with everything is not valid: %1</translation>
    </message>
    <message>
        <source>A report filled with everything, and twice what may repeat is not valid: %1</source>
        <translation>A report filled with everything, and twice what may repeat is not valid: %1</translation>
    </message>
    <message>
        <source>A report filled with nothing but what is required, and twice what may repeat is not valid: %1</source>
        <translation>A report filled with nothing but what is required, and twice what may repeat is not valid: %1</translation>
    </message>
    <message>
        <source>A report filled with what is required and the optional &apos;%1&apos; is not valid: %2</source>
        <translation>A report filled with what is required and the optional &apos;%1&apos; is not valid: %2</translation>
    </message>
    <message>
        <source>The library writes the report all the same and says nothing of it.</source>
        <translation>The library writes the report all the same and says nothing of it.</translation>
    </message>
    <message>
        <source>Compare the declaration with the tree, and write what differs in another way.</source>
        <translation>Compare the declaration with the tree, and write what differs in another way.</translation>
    </message>
    <message>
        <source>Of %1 reports to be filled on trial, %2 were left out: they would take too long.</source>
        <translation>Of %1 reports to be filled on trial, %2 were left out: they would take too long.</translation>
    </message>
    <message>
        <source>No report was filled on trial: it would take too long.</source>
        <translation>No report was filled on trial: it would take too long.</translation>
    </message>
    <message>
        <source>No report was validated: libxml2 does not take the schema.</source>
        <translation>No report was validated: libxml2 does not take the schema.</translation>
    </message>
    <message>
        <source>The report is no well-formed XML.</source>
        <translation>The report is no well-formed XML.</translation>
    </message>
    <message>
        <source>libxml2 needs too much time or memory to check the schema.</source>
        <translation>libxml2 needs too much time or memory to check the schema.</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;.</source>
        <translation>XML does not allow the name &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1 | ... (%2 values)</source>
        <translation>%1 | ... (%2 values)</translation>
    </message>
    <message>
        <source>no setter</source>
        <translation>no setter</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>empty</translation>
    </message>
    <message>
        <source>container</source>
        <translation>container</translation>
    </message>
    <message>
        <source>occurs %1, counts: %2</source>
        <translation>occurs %1, counts: %2</translation>
    </message>
    <message>
        <source>alternative by name</source>
        <translation>alternative by name</translation>
    </message>
    <message>
        <source>unfilled: %1</source>
        <translation>unfilled: %1</translation>
    </message>
    <message>
        <source>as it is meant</source>
        <translation>as it is meant</translation>
    </message>
    <message>
        <source>as it is laid out</source>
        <translation>as it is laid out</translation>
    </message>
    <message>
        <source>element: %1</source>
        <translation>element: %1</translation>
    </message>
    <message>
        <source>effect:  %1</source>
        <translation>effect:  %1</translation>
    </message>
    <message>
        <source>instead: %1</source>
        <translation>instead: %1</translation>
    </message>
    <message>
        <source>%1 elements are laid out.</source>
        <translation>%1 elements are laid out.</translation>
    </message>
    <message>
        <source>%1 errors, %2 warnings, %3 notes.</source>
        <translation>%1 errors, %2 warnings, %3 notes.</translation>
    </message>
    <message>
        <source>%1 is abstract.</source>
        <translation>%1 is abstract.</translation>
    </message>
    <message>
        <source>It is laid out like any other, and no other takes its place.</source>
        <translation>It is laid out like any other, and no other takes its place.</translation>
    </message>
    <message>
        <source>Name the element or the type that reports are to have.</source>
        <translation>Name the element or the type that reports are to have.</translation>
    </message>
    <message>
        <source>%1 is written here.</source>
        <translation>%1 is written here.</translation>
    </message>
    <message>
        <source>It is read like xs:sequence: the elements are always laid out in the order in which they are written.</source>
        <translation>It is read like xs:sequence: the elements are always laid out in the order in which they are written.</translation>
    </message>
    <message>
        <source>Write xs:sequence, which says the same.</source>
        <translation>Write xs:sequence, which says the same.</translation>
    </message>
    <message>
        <source>An xs:annotation stands inside of a restriction.</source>
        <translation>An xs:annotation stands inside of a restriction.</translation>
    </message>
    <message>
        <source>Every tag in there counts as a facet: &apos;annotation&apos; and the tags inside become attributes of the report and stay there.</source>
        <translation>Every tag in there counts as a facet: &apos;annotation&apos; and the tags inside become attributes of the report and stay there.</translation>
    </message>
    <message>
        <source>Put the annotation in front of the restriction, or write a comment.</source>
        <translation>Put the annotation in front of the restriction, or write a comment.</translation>
    </message>
    <message>
        <source>An attribute is called &apos;%1&apos;.</source>
        <translation>An attribute is called &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>That is the name of an annotation: the attribute takes its place, is taken for it, and is removed with it.</source>
        <translation>That is the name of an annotation: the attribute takes its place, is taken for it, and is removed with it.</translation>
    </message>
    <message>
        <source>Give the attribute another name; not type, not default, and nothing that contains &apos;enumeration&apos; or &apos;clusive&apos;.</source>
        <translation>Give the attribute another name; not type, not default, and nothing that contains &apos;enumeration&apos; or &apos;clusive&apos;.</translation>
    </message>
    <message>
        <source>An element is called &apos;%1&apos;.</source>
        <translation>An element is called &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>That is how simple types are kept: as first element of a type it is not laid out, and what is of the type gets its annotations and no child.</source>
        <translation>That is how simple types are kept: as first element of a type it is not laid out, and what is of the type gets its annotations and no child.</translation>
    </message>
    <message>
        <source>Give the element another name.</source>
        <translation>Give the element another name.</translation>
    </message>
    <message>
        <source>xs:any leaves a place for elements that are not named.</source>
        <translation>xs:any leaves a place for elements that are not named.</translation>
    </message>
    <message>
        <source>It is passed over: nothing is laid out there, though an element is required.</source>
        <translation>It is passed over: nothing is laid out there, though an element is required.</translation>
    </message>
    <message>
        <source>It is passed over: no report has an element there.</source>
        <translation>It is passed over: no report has an element there.</translation>
    </message>
    <message>
        <source>Declare the elements that a report may have.</source>
        <translation>Declare the elements that a report may have.</translation>
    </message>
    <message>
        <source>It is passed over: only attributes that are declared by name can be set.</source>
        <translation>It is passed over: only attributes that are declared by name can be set.</translation>
    </message>
    <message>
        <source>Declare the attributes that a report may have.</source>
        <translation>Declare the attributes that a report may have.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is of the type &apos;%2&apos;.</source>
        <translation>The element &apos;%1&apos; is of the type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Every setter takes it: any text, truth or time that is offered is written, whether it is a number or not.</source>
        <translation>Every setter takes it: any text, truth or time that is offered is written, whether it is a number or not.</translation>
    </message>
    <message>
        <source>Write xs:integer, restricted to the range, or offer it integers only.</source>
        <translation>Write xs:integer, restricted to the range, or offer it integers only.</translation>
    </message>
    <message>
        <source>%1 asks for attributes.</source>
        <translation>%1 asks for attributes.</translation>
    </message>
    <message>
        <source>It is passed over: the element has none of them.</source>
        <translation>It is passed over: the element has none of them.</translation>
    </message>
    <message>
        <source>Write the attributes here, each with xs:attribute.</source>
        <translation>Write the attributes here, each with xs:attribute.</translation>
    </message>
    <message>
        <source>%1 defines attributes.</source>
        <translation>%1 defines attributes.</translation>
    </message>
    <message>
        <source>It is passed over, and each attribute in it counts as a global declaration, which competes for the root of the report.</source>
        <translation>It is passed over, and each attribute in it counts as a global declaration, which competes for the root of the report.</translation>
    </message>
    <message>
        <source>Remove it; declare the attributes where they are used.</source>
        <translation>Remove it; declare the attributes where they are used.</translation>
    </message>
    <message>
        <source>%1 stands inside of a restriction.</source>
        <translation>%1 stands inside of a restriction.</translation>
    </message>
    <message>
        <source>Every tag in there counts as a facet: the report gets an attribute called &apos;%1&apos;, which stays, and not the one that is declared.</source>
        <translation>Every tag in there counts as a facet: the report gets an attribute called &apos;%1&apos;, which stays, and not the one that is declared.</translation>
    </message>
    <message>
        <source>Restrict in a named xs:simpleType, and add the attribute in an xs:extension of it.</source>
        <translation>Restrict in a named xs:simpleType, and add the attribute in an xs:extension of it.</translation>
    </message>
    <message>
        <source>%1 belongs to the named type &apos;%2&apos;.</source>
        <translation>%1 belongs to the named type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It goes to the element that was declared last in the type, and not to the element that is of the type.</source>
        <translation>It goes to the element that was declared last in the type, and not to the element that is of the type.</translation>
    </message>
    <message>
        <source>The type has no element in front of it to go to: it is lost.</source>
        <translation>The type has no element in front of it to go to: it is lost.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: only there attributes are understood, at any depth.</source>
        <translation>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: only there attributes are understood, at any depth.</translation>
    </message>
    <message>
        <source>maxInclusive of an attribute is &apos;%1&apos;, beside a lower bound.</source>
        <translation>maxInclusive of an attribute is &apos;%1&apos;, beside a lower bound.</translation>
    </message>
    <message>
        <source>The value %1 itself is refused.</source>
        <translation>The value %1 itself is refused.</translation>
    </message>
    <message>
        <source>Write the next greater integer, or leave the lower bound out.</source>
        <translation>Write the next greater integer, or leave the lower bound out.</translation>
    </message>
    <message>
        <source>xs:complexContent derives a type by extension.</source>
        <translation>xs:complexContent derives a type by extension.</translation>
    </message>
    <message>
        <source>xs:complexContent derives a type by restriction.</source>
        <translation>xs:complexContent derives a type by restriction.</translation>
    </message>
    <message>
        <source>Every tag inside the restriction becomes an attribute of the report; no element of it is laid out.</source>
        <translation>Every tag inside the restriction becomes an attribute of the report; no element of it is laid out.</translation>
    </message>
    <message>
        <source>The elements of the base are not laid out, and those of the extension are lost with them: who uses the type gets no child.</source>
        <translation>The elements of the base are not laid out, and those of the extension are lost with them: who uses the type gets no child.</translation>
    </message>
    <message>
        <source>The elements of the base are not laid out, only those of the extension.</source>
        <translation>The elements of the base are not laid out, only those of the extension.</translation>
    </message>
    <message>
        <source>Write all elements in one xs:complexType, without a base.</source>
        <translation>Write all elements in one xs:complexType, without a base.</translation>
    </message>
    <message>
        <source>The name of the attribute &apos;%1&apos; is part of that of &apos;%2&apos;.</source>
        <translation>The name of the attribute &apos;%1&apos; is part of that of &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Facets and enumeration values are found by parts of names: those of &apos;%2&apos; are applied to &apos;%1&apos;, too.</source>
        <translation>Facets and enumeration values are found by parts of names: those of &apos;%2&apos; are applied to &apos;%1&apos;, too.</translation>
    </message>
    <message>
        <source>Choose names of which none is part of another.</source>
        <translation>Choose names of which none is part of another.</translation>
    </message>
    <message>
        <source>%1 is &apos;%2&apos;, and %3 is &apos;%4&apos;.</source>
        <translation>%1 is &apos;%2&apos;, and %3 is &apos;%4&apos;.</translation>
    </message>
    <message>
        <source>No value is accepted.</source>
        <translation>No value is accepted.</translation>
    </message>
    <message>
        <source>Write the smaller bound as the lower one.</source>
        <translation>Write the smaller bound as the lower one.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included while it is being read.</source>
        <translation>The file &apos;%1&apos; is included while it is being read.</translation>
    </message>
    <message>
        <source>The include of &apos;%1&apos; is too deep.</source>
        <translation>The include of &apos;%1&apos; is too deep.</translation>
    </message>
    <message>
        <source>It is skipped.</source>
        <translation>It is skipped.</translation>
    </message>
    <message>
        <source>Include all files in the top file, and none in the others.</source>
        <translation>Include all files in the top file, and none in the others.</translation>
    </message>
    <message>
        <source>%1 is declared in front of an xs:include, in line %2.</source>
        <translation>%1 is declared in front of an xs:include, in line %2.</translation>
    </message>
    <message>
        <source>%1 is declared in an included file.</source>
        <translation>%1 is declared in an included file.</translation>
    </message>
    <message>
        <source>The end of the included file marks it as used: it never becomes the root of a report.</source>
        <translation>The end of the included file marks it as used: it never becomes the root of a report.</translation>
    </message>
    <message>
        <source>Write every xs:include in front of all declarations.</source>
        <translation>Write every xs:include in front of all declarations.</translation>
    </message>
    <message>
        <source>Declare the root in the file that includes the others, or refer to this element there.</source>
        <translation>Declare the root in the file that includes the others, or refer to this element there.</translation>
    </message>
    <message>
        <source>The whole schema is given up: the report holds nothing.</source>
        <translation>The whole schema is given up: the report holds nothing.</translation>
    </message>
    <message>
        <source>Lay out less: lower minOccurs, and split the schema into several.</source>
        <translation>Lay out less: lower minOccurs, and split the schema into several.</translation>
    </message>
    <message>
        <source>That is more than is shown: there is no tree here, and rules that need the tree are silent. The library goes on, up to limits of its own.</source>
        <translation>That is more than is shown: there is no tree here, and rules that need the tree are silent. The library goes on, up to limits of its own.</translation>
    </message>
    <message>
        <source>Lay out less, if reports are to be written quickly.</source>
        <translation>Lay out less, if reports are to be written quickly.</translation>
    </message>
    <message>
        <source>Any value is taken, and the enumeration stays in the report as attributes that the schema does not allow.</source>
        <translation>Any value is taken, and the enumeration stays in the report as attributes that the schema does not allow.</translation>
    </message>
    <message>
        <source>Enumerate texts, xs:string, or write bounds: minInclusive and maxInclusive.</source>
        <translation>Enumerate texts, xs:string, or write bounds: minInclusive and maxInclusive.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</source>
        <translation>The element &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</source>
        <translation>The attribute &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>%1 is 65535.</source>
        <translation>%1 is 65535.</translation>
    </message>
    <message>
        <source>That number says that there is no bound: any value is accepted, and the facet stays in the report as an attribute.</source>
        <translation>That number says that there is no bound: any value is accepted, and the facet stays in the report as an attribute.</translation>
    </message>
    <message>
        <source>Take another bound, such as 65534 or 65535.5, or leave the facet out.</source>
        <translation>Take another bound, such as 65534 or 65535.5, or leave the facet out.</translation>
    </message>
    <message>
        <source>A file called &apos;%1&apos; is looked for.</source>
        <translation>A file called &apos;%1&apos; is looked for.</translation>
    </message>
    <message>
        <source>The base is not read: what is derived here has no type.</source>
        <translation>The base is not read: what is derived here has no type.</translation>
    </message>
    <message>
        <source>It counts as a named type called &apos;%1&apos;: what is inside belongs to that type and not to the element around it.</source>
        <translation>It counts as a named type called &apos;%1&apos;: what is inside belongs to that type and not to the element around it.</translation>
    </message>
    <message>
        <source>It is called &apos;%1&apos;: whoever refers to &apos;%2&apos; does not find it.</source>
        <translation>It is called &apos;%1&apos;: whoever refers to &apos;%2&apos; does not find it.</translation>
    </message>
    <message>
        <source>The value of the facet is taken to be &apos;%1&apos;.</source>
        <translation>The value of the facet is taken to be &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The first attribute of &lt;%1&gt; is &apos;%2&apos;, not &apos;%3&apos;.</source>
        <translation>The first attribute of &lt;%1&gt; is &apos;%2&apos;, not &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>Write %1 in front of all other attributes.</source>
        <translation>Write %1 in front of all other attributes.</translation>
    </message>
    <message>
        <source>Leave the attribute out, or give the type a name, written first.</source>
        <translation>Leave the attribute out, or give the type a name, written first.</translation>
    </message>
    <message>
        <source>%1 has the fixed value &apos;%2&apos;.</source>
        <translation>%1 has the fixed value &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The value is neither written nor checked: any other is accepted.</source>
        <translation>The value is neither written nor checked: any other is accepted.</translation>
    </message>
    <message>
        <source>Restrict xs:string to an enumeration of this one value, and have it set like any other: a default that nobody sets leaves the annotations.</source>
        <translation>Restrict xs:string to an enumeration of this one value, and have it set like any other: a default that nobody sets leaves the annotations.</translation>
    </message>
    <message>
        <source>%1 of an attribute is &apos;%2&apos;.</source>
        <translation>%1 of an attribute is &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Bounds of attributes are read as integers: this one counts as 0.</source>
        <translation>Bounds of attributes are read as integers: this one counts as 0.</translation>
    </message>
    <message>
        <source>Write an integer, or make the attribute an element.</source>
        <translation>Write an integer, or make the attribute an element.</translation>
    </message>
    <message>
        <source>%1 asks for the elements of a group.</source>
        <translation>%1 asks for the elements of a group.</translation>
    </message>
    <message>
        <source>It is passed over: none of them is laid out here.</source>
        <translation>It is passed over: none of them is laid out here.</translation>
    </message>
    <message>
        <source>Write the elements of the group here, or put them into an element of a named type.</source>
        <translation>Write the elements of the group here, or put them into an element of a named type.</translation>
    </message>
    <message>
        <source>%1 defines a group.</source>
        <translation>%1 defines a group.</translation>
    </message>
    <message>
        <source>It is passed over, and each element in it counts as a global declaration, which competes for the root of the report.</source>
        <translation>It is passed over, and each element in it counts as a global declaration, which competes for the root of the report.</translation>
    </message>
    <message>
        <source>Remove it; write its elements where they are used.</source>
        <translation>Remove it; write its elements where they are used.</translation>
    </message>
    <message>
        <source>It is passed over: nothing is compared while a report is filled.</source>
        <translation>It is passed over: nothing is compared while a report is filled.</translation>
    </message>
    <message>
        <source>Keep it for the validation of finished reports, or leave it out.</source>
        <translation>Keep it for the validation of finished reports, or leave it out.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; names the schema &apos;%2&apos;.</source>
        <translation>&lt;%1&gt; names the schema &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It is passed over: nothing of that schema is read.</source>
        <translation>It is passed over: nothing of that schema is read.</translation>
    </message>
    <message>
        <source>That schema is not read; what stands inside the tag is read as if it stood beside it.</source>
        <translation>That schema is not read; what stands inside the tag is read as if it stood beside it.</translation>
    </message>
    <message>
        <source>Use xs:include, and put what is taken from there under no namespace.</source>
        <translation>Use xs:include, and put what is taken from there under no namespace.</translation>
    </message>
    <message>
        <source>%1 has a type written inside of it.</source>
        <translation>%1 has a type written inside of it.</translation>
    </message>
    <message>
        <source>The attribute gets no type, so that no setter takes it; the type and its facets go to an element instead.</source>
        <translation>The attribute gets no type, so that no setter takes it; the type and its facets go to an element instead.</translation>
    </message>
    <message>
        <source>Declare the attribute globally with this type, and refer to it here with &lt;xs:attribute ref=&quot;%1&quot;/&gt;.</source>
        <translation>Declare the attribute globally with this type, and refer to it here with &lt;xs:attribute ref=&quot;%1&quot;/&gt;.</translation>
    </message>
    <message>
        <source>The declaration is left out.</source>
        <translation>The declaration is left out.</translation>
    </message>
    <message>
        <source>Write a name of letters, digits, &apos;-&apos;, &apos;_&apos; and &apos;.&apos;, without blanks, that begins with a letter or &apos;_&apos;.</source>
        <translation>Write a name of letters, digits, &apos;-&apos;, &apos;_&apos; and &apos;.&apos;, without blanks, that begins with a letter or &apos;_&apos;.</translation>
    </message>
    <message>
        <source>libxml2 does not accept the schema: %1</source>
        <translation>libxml2 does not accept the schema: %1</translation>
    </message>
    <message>
        <source>The library does not look at it, but no report can be validated.</source>
        <translation>The library does not look at it, but no report can be validated.</translation>
    </message>
    <message>
        <source>Mend the schema.</source>
        <translation>Mend the schema.</translation>
    </message>
    <message>
        <source>Declare the prefix: xmlns:%1=&quot;...&quot;.</source>
        <translation>Declare the prefix: xmlns:%1=&quot;...&quot;.</translation>
    </message>
    <message>
        <source>the prefix &apos;%1:&apos;</source>
        <translation>the prefix &apos;%1:&apos;</translation>
    </message>
    <message>
        <source>It is passed over: what is of this type has no type and cannot be filled.</source>
        <translation>It is passed over: what is of this type has no type and cannot be filled.</translation>
    </message>
    <message>
        <source>Use xs:string and write the list as a text, or repeat the element.</source>
        <translation>Use xs:string and write the list as a text, or repeat the element.</translation>
    </message>
    <message>
        <source>The included file &apos;%1&apos; is no well-formed XML: %2</source>
        <translation>The included file &apos;%1&apos; is no well-formed XML: %2</translation>
    </message>
    <message>
        <source>What stands behind the fault is not read, without a word.</source>
        <translation>What stands behind the fault is not read, without a word.</translation>
    </message>
    <message>
        <source>Mend the file.</source>
        <translation>Mend the file.</translation>
    </message>
    <message>
        <source>Name the schema with its folder, such as ./%1: a name without any counts as a folder. That goes for the path that an application gives to the library, too.</source>
        <translation>Name the schema with its folder, such as ./%1: a name without any counts as a folder. That goes for the path that an application gives to the library, too.</translation>
    </message>
    <message>
        <source>Write the location as seen from the top file: includes of included files count from there, too.</source>
        <translation>Write the location as seen from the top file: includes of included files count from there, too.</translation>
    </message>
    <message>
        <source>Give the location as seen from the folder of the top file.</source>
        <translation>Give the location as seen from the folder of the top file.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included and cannot be read.</source>
        <translation>The file &apos;%1&apos; is included and cannot be read.</translation>
    </message>
    <message>
        <source>It is looked for as &apos;%1&apos;, and passed over without a word.</source>
        <translation>It is looked for as &apos;%1&apos;, and passed over without a word.</translation>
    </message>
    <message>
        <source>%1 refers to &apos;%2&apos;, which is defined nowhere.</source>
        <translation>%1 refers to &apos;%2&apos;, which is defined nowhere.</translation>
    </message>
    <message>
        <source>%1 refers to &apos;%2&apos;, which nothing defines that could be read.</source>
        <translation>%1 refers to &apos;%2&apos;, which nothing defines that could be read.</translation>
    </message>
    <message>
        <source>Define &apos;%1&apos;, include the file that does, or write xs:%1 if it is a type of XML Schema.</source>
        <translation>Define &apos;%1&apos;, include the file that does, or write xs:%1 if it is a type of XML Schema.</translation>
    </message>
    <message>
        <source>An xs:choice stands inside of another.</source>
        <translation>An xs:choice stands inside of another.</translation>
    </message>
    <message>
        <source>Its end ends the outer one too: the alternatives behind it are mandatory, unless their own minOccurs is 0.</source>
        <translation>Its end ends the outer one too: the alternatives behind it are mandatory, unless their own minOccurs is 0.</translation>
    </message>
    <message>
        <source>Write the alternatives of both as one choice, or put the inner choice last.</source>
        <translation>Write the alternatives of both as one choice, or put the inner choice last.</translation>
    </message>
    <message>
        <source>An anonymous complex type stands inside of the named type &apos;%1&apos;.</source>
        <translation>An anonymous complex type stands inside of the named type &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Its elements are laid out beside the element that they belong to, and the place for references and attributes moves inside of the global element that was read last.</source>
        <translation>Its elements are laid out beside the element that they belong to, and the place for references and attributes moves inside of the global element that was read last.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: a type with attributes can have no name.</source>
        <translation>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: a type with attributes can have no name.</translation>
    </message>
    <message>
        <source>Give the inner type a name, at the top of the schema, and refer to it with type.</source>
        <translation>Give the inner type a name, at the top of the schema, and refer to it with type.</translation>
    </message>
    <message>
        <source>%1 is nillable.</source>
        <translation>%1 is nillable.</translation>
    </message>
    <message>
        <source>No report has an xsi:nil: an element without a value stays with its annotations, or is removed when it may be missing.</source>
        <translation>No report has an xsi:nil: an element without a value stays with its annotations, or is removed when it may be missing.</translation>
    </message>
    <message>
        <source>Write minOccurs=&quot;0&quot; for what may be without a value.</source>
        <translation>Write minOccurs=&quot;0&quot; for what may be without a value.</translation>
    </message>
    <message>
        <source>%1 has minOccurs or maxOccurs of its own.</source>
        <translation>%1 has minOccurs or maxOccurs of its own.</translation>
    </message>
    <message>
        <source>They are passed over: what is inside is laid out once, and is optional or repeatable only by its own minOccurs and maxOccurs.</source>
        <translation>They are passed over: what is inside is laid out once, and is optional or repeatable only by its own minOccurs and maxOccurs.</translation>
    </message>
    <message>
        <source>Write minOccurs and maxOccurs at the elements inside, or at an element around them.</source>
        <translation>Write minOccurs and maxOccurs at the elements inside, or at an element around them.</translation>
    </message>
    <message>
        <source>%1 is called like %2 in line %3 of %4.</source>
        <translation>%1 is called like %2 in line %3 of %4.</translation>
    </message>
    <message>
        <source>Elements, attributes and types share one space of names: this one takes the place of the earlier one for all that refers to the name from here on.</source>
        <translation>Elements, attributes and types share one space of names: this one takes the place of the earlier one for all that refers to the name from here on.</translation>
    </message>
    <message>
        <source>Give each global declaration and each type a name of its own.</source>
        <translation>Give each global declaration and each type a name of its own.</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>not given</translation>
    </message>
    <message>
        <source>minOccurs %1, maxOccurs %2, in a choice</source>
        <translation>minOccurs %1, maxOccurs %2, in a choice</translation>
    </message>
    <message>
        <source>minOccurs %1, maxOccurs %2</source>
        <translation>minOccurs %1, maxOccurs %2</translation>
    </message>
    <message>
        <source>its own in line %1</source>
        <translation>its own in line %1</translation>
    </message>
    <message>
        <source>%1 has the limits: %2; in line %3 it has: %4.</source>
        <translation>%1 has the limits: %2; in line %3 it has: %4.</translation>
    </message>
    <message>
        <source>Limits are found by name: those of the one may be applied to the other where one of their owners stands inside of the other, and an alternative of any choice may be missing everywhere.</source>
        <translation>Limits are found by name: those of the one may be applied to the other where one of their owners stands inside of the other, and an alternative of any choice may be missing everywhere.</translation>
    </message>
    <message>
        <source>Give the two elements different names, or the same limits.</source>
        <translation>Give the two elements different names, or the same limits.</translation>
    </message>
    <message>
        <source>%1 is of the type &apos;%2&apos;; in line %3 it is of &apos;%4&apos;.</source>
        <translation>%1 is of the type &apos;%2&apos;; in line %3 it is of &apos;%4&apos;.</translation>
    </message>
    <message>
        <source>An observer that knows elements by their name alone offers both the same value.</source>
        <translation>An observer that knows elements by their name alone offers both the same value.</translation>
    </message>
    <message>
        <source>Give the two elements different names, or the same type.</source>
        <translation>Give the two elements different names, or the same type.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, but not known to be.</source>
        <translation>The element &apos;%1&apos; is optional, but not known to be.</translation>
    </message>
    <message>
        <source>When nothing fills it, it stays, with its annotations: what is optional is looked for below the first element that is called like its owner, and in a named type the owner is the type.</source>
        <translation>When nothing fills it, it stays, with its annotations: what is optional is looked for below the first element that is called like its owner, and in a named type the owner is the type.</translation>
    </message>
    <message>
        <source>Write the type inside of the element that is of it, or call that element like the type, or fill &apos;%1&apos; in every report.</source>
        <translation>Write the type inside of the element that is of it, or call that element like the type, or fill &apos;%1&apos; in every report.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional inside of one that may be repeated.</source>
        <translation>The element &apos;%1&apos; is optional inside of one that may be repeated.</translation>
    </message>
    <message>
        <source>When nothing fills it, it is removed from the first copy only, and stays in the others, with its annotations: what is optional is looked for below the first element that is called like its owner.</source>
        <translation>When nothing fills it, it is removed from the first copy only, and stays in the others, with its annotations: what is optional is looked for below the first element that is called like its owner.</translation>
    </message>
    <message>
        <source>Fill &apos;%1&apos; in every copy but the first, or make it required.</source>
        <translation>Fill &apos;%1&apos; in every copy but the first, or make it required.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, and stands behind &apos;%2&apos;, which is optional and empty.</source>
        <translation>The element &apos;%1&apos; is optional, and stands behind &apos;%2&apos;, which is optional and empty.</translation>
    </message>
    <message>
        <source>When nothing fills &apos;%1&apos;, &apos;%2&apos; is removed in its place, and the report goes on where that stood: &apos;%1&apos; stays, with its annotations, and what follows is not asked for.</source>
        <translation>When nothing fills &apos;%1&apos;, &apos;%2&apos; is removed in its place, and the report goes on where that stood: &apos;%1&apos; stays, with its annotations, and what follows is not asked for.</translation>
    </message>
    <message>
        <source>Put an element with a value into &apos;%1&apos;, or &apos;%1&apos; in front of one of its siblings.</source>
        <translation>Put an element with a value into &apos;%1&apos;, or &apos;%1&apos; in front of one of its siblings.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, and nothing inside of it takes a value.</source>
        <translation>The element &apos;%1&apos; is optional, and nothing inside of it takes a value.</translation>
    </message>
    <message>
        <source>Attributes alone do not fill it and do not remove it: it stays, with its annotations, unless a value behind it is unfilled. That one removes it.</source>
        <translation>Attributes alone do not fill it and do not remove it: it stays, with its annotations, unless a value behind it is unfilled. That one removes it.</translation>
    </message>
    <message>
        <source>Put an element with a value into &apos;%1&apos;, or make it required and set its attributes in every report.</source>
        <translation>Put an element with a value into &apos;%1&apos;, or make it required and set its attributes in every report.</translation>
    </message>
    <message>
        <source>%1 is optional with maxOccurs=&quot;%2&quot;.</source>
        <translation>%1 is optional with maxOccurs=&quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Counts up to %1 are accepted: more than the schema allows.</source>
        <translation>Counts up to %1 are accepted: more than the schema allows.</translation>
    </message>
    <message>
        <source>Leave maxOccurs out.</source>
        <translation>Leave maxOccurs out.</translation>
    </message>
    <message>
        <source>Write maxOccurs=&quot;unbounded&quot;, or make the element required inside of an optional one.</source>
        <translation>Write maxOccurs=&quot;unbounded&quot;, or make the element required inside of an optional one.</translation>
    </message>
    <message>
        <source>%1 is optional without maxOccurs, in a group that may occur repeatedly.</source>
        <translation>%1 is optional without maxOccurs, in a group that may occur repeatedly.</translation>
    </message>
    <message>
        <source>No count above 0 is accepted for it: a second one is refused.</source>
        <translation>No count above 0 is accepted for it: a second one is refused.</translation>
    </message>
    <message>
        <source>Write maxOccurs=&quot;unbounded&quot; at the element.</source>
        <translation>Write maxOccurs=&quot;unbounded&quot; at the element.</translation>
    </message>
    <message>
        <source>%1 stands in front of %2.</source>
        <translation>%1 stands in front of %2.</translation>
    </message>
    <message>
        <source>It is laid out behind it: what is read behind the reference to it comes in at the end, in the order of names.</source>
        <translation>It is laid out behind it: what is read behind the reference to it comes in at the end, in the order of names.</translation>
    </message>
    <message>
        <source>Declare &apos;%1&apos; and &apos;%2&apos; in front of the element that refers to them.</source>
        <translation>Declare &apos;%1&apos; and &apos;%2&apos; in front of the element that refers to them.</translation>
    </message>
    <message>
        <source>The tags of XML Schema are written without the prefix &apos;xs:&apos;: &lt;%1&gt;.</source>
        <translation>The tags of XML Schema are written without the prefix &apos;xs:&apos;: &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>They are passed over without a word: nothing of them is laid out.</source>
        <translation>They are passed over without a word: nothing of them is laid out.</translation>
    </message>
    <message>
        <source>Declare xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot; and write xs: in front of every tag and every type of XML Schema.</source>
        <translation>Declare xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot; and write xs: in front of every tag and every type of XML Schema.</translation>
    </message>
    <message>
        <source>The file is no XML schema: its root is &lt;%1&gt;.</source>
        <translation>The file is no XML schema: its root is &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>Nothing of it is laid out.</source>
        <translation>Nothing of it is laid out.</translation>
    </message>
    <message>
        <source>Write &lt;xs:schema xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot;&gt; as its root.</source>
        <translation>Write &lt;xs:schema xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot;&gt; as its root.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not in the folder of the top file.</source>
        <translation>The file &apos;%1&apos; is not in the folder of the top file.</translation>
    </message>
    <message>
        <source>It is read as &apos;%1&apos;; whoever gets the folder alone does not get it.</source>
        <translation>It is read as &apos;%1&apos;; whoever gets the folder alone does not get it.</translation>
    </message>
    <message>
        <source>Keep the files of a schema in one folder.</source>
        <translation>Keep the files of a schema in one folder.</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; has a prefix that is not &apos;xs:&apos;.</source>
        <translation>%1=&quot;%2&quot; has a prefix that is not &apos;xs:&apos;.</translation>
    </message>
    <message>
        <source>It contains &apos;xs:&apos;, so its first three characters are cut off and the rest counts as a type of XML Schema.</source>
        <translation>It contains &apos;xs:&apos;, so its first three characters are cut off and the rest counts as a type of XML Schema.</translation>
    </message>
    <message>
        <source>A definition called &apos;%1&apos; is looked up, prefix included; it never comes, and the whole schema is given up.</source>
        <translation>A definition called &apos;%1&apos; is looked up, prefix included; it never comes, and the whole schema is given up.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos; for a definition of the schema, &apos;xs:%1&apos; for a type of XML Schema.</source>
        <translation>Write &apos;%1&apos; for a definition of the schema, &apos;xs:%1&apos; for a type of XML Schema.</translation>
    </message>
    <message>
        <source>Definitions contain each other: %1.</source>
        <translation>Definitions contain each other: %1.</translation>
    </message>
    <message>
        <source>They wait for each other, and the whole schema is given up: the report holds nothing.</source>
        <translation>They wait for each other, and the whole schema is given up: the report holds nothing.</translation>
    </message>
    <message>
        <source>The repetition ends where the library meets it: a report has no more levels than are laid out.</source>
        <translation>The repetition ends where the library meets it: a report has no more levels than are laid out.</translation>
    </message>
    <message>
        <source>Write as many levels as reports have, each as a type of its own.</source>
        <translation>Write as many levels as reports have, each as a type of its own.</translation>
    </message>
    <message>
        <source>%1 stands inside of the named type &apos;%2&apos;.</source>
        <translation>%1 stands inside of the named type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The element is laid out in the global element that was read last in front of the type, and not where the type is used.</source>
        <translation>The element is laid out in the global element that was read last in front of the type, and not where the type is used.</translation>
    </message>
    <message>
        <source>Declare the element here with name and type, or refer to it inside of an anonymous type of a global element.</source>
        <translation>Declare the element here with name and type, or refer to it inside of an anonymous type of a global element.</translation>
    </message>
    <message>
        <source>%1 is required %2 times, inside of the named type &apos;%3&apos;, and its type &apos;%4&apos; is defined later.</source>
        <translation>%1 is required %2 times, inside of the named type &apos;%3&apos;, and its type &apos;%4&apos; is defined later.</translation>
    </message>
    <message>
        <source>Its copies are lost, and with them all elements of the type that follow it.</source>
        <translation>Its copies are lost, and with them all elements of the type that follow it.</translation>
    </message>
    <message>
        <source>Define &apos;%1&apos; in front of &apos;%2&apos;.</source>
        <translation>Define &apos;%1&apos; in front of &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included once more.</source>
        <translation>The file &apos;%1&apos; is included once more.</translation>
    </message>
    <message>
        <source>It is read again, and its definitions take the place of those that it gave before.</source>
        <translation>It is read again, and its definitions take the place of those that it gave before.</translation>
    </message>
    <message>
        <source>Include each file once, in the top file.</source>
        <translation>Include each file once, in the top file.</translation>
    </message>
    <message>
        <source>%1 is required %2 times and has its type written inside of it.</source>
        <translation>%1 is required %2 times and has its type written inside of it.</translation>
    </message>
    <message>
        <source>Only the last of its copies gets what the type says.</source>
        <translation>Only the last of its copies gets what the type says.</translation>
    </message>
    <message>
        <source>Give the type a name, in front of this one, and refer to it with type.</source>
        <translation>Give the type a name, in front of this one, and refer to it with type.</translation>
    </message>
    <message>
        <source>%1 is required %2 times, without maxOccurs.</source>
        <translation>%1 is required %2 times, without maxOccurs.</translation>
    </message>
    <message>
        <source>%1 is required without maxOccurs, in a group that may occur repeatedly.</source>
        <translation>%1 is required without maxOccurs, in a group that may occur repeatedly.</translation>
    </message>
    <message>
        <source>It has no limits at all: every count is refused, also that of one.</source>
        <translation>It has no limits at all: every count is refused, also that of one.</translation>
    </message>
    <message>
        <source>Write maxOccurs at the element.</source>
        <translation>Write maxOccurs at the element.</translation>
    </message>
    <message>
        <source>The restriction is one of the type &apos;%1&apos;.</source>
        <translation>The restriction is one of the type &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; itself becomes the type: its own type and facets are not looked at, and no setter takes a type of that name.</source>
        <translation>&apos;%1&apos; itself becomes the type: its own type and facets are not looked at, and no setter takes a type of that name.</translation>
    </message>
    <message>
        <source>Restrict the type of XML Schema that &apos;%1&apos; stands on, and repeat its facets here.</source>
        <translation>Restrict the type of XML Schema that &apos;%1&apos; stands on, and repeat its facets here.</translation>
    </message>
    <message>
        <source>No global element is left for the root: something refers to each of them, or comes in front of an include.</source>
        <translation>No global element is left for the root: something refers to each of them, or comes in front of an include.</translation>
    </message>
    <message>
        <source>The definition that was read last is taken: &apos;%1&apos;.</source>
        <translation>The definition that was read last is taken: &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Declare the element that reports begin with globally, behind all includes, and refer to it nowhere.</source>
        <translation>Declare the element that reports begin with globally, behind all includes, and refer to it nowhere.</translation>
    </message>
    <message>
        <source>%1 global declarations compete for the root of the report: %2.</source>
        <translation>%1 global declarations compete for the root of the report: %2.</translation>
    </message>
    <message>
        <source>Nothing refers to them; &apos;%1&apos; wins, because its name is the greatest.</source>
        <translation>Nothing refers to them; &apos;%1&apos; wins, because its name is the greatest.</translation>
    </message>
    <message>
        <source>Leave out what no report needs, or refer to it, so that only the root is left.</source>
        <translation>Leave out what no report needs, or refer to it, so that only the root is left.</translation>
    </message>
    <message>
        <source>Nothing refers to the global attribute &apos;%1&apos;.</source>
        <translation>Nothing refers to the global attribute &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>It competes for the root of the report, and wins: the report is one element of that name.</source>
        <translation>It competes for the root of the report, and wins: the report is one element of that name.</translation>
    </message>
    <message>
        <source>It competes for the root of the report; a name greater than those of the elements would win.</source>
        <translation>It competes for the root of the report; a name greater than those of the elements would win.</translation>
    </message>
    <message>
        <source>Refer to it with &lt;xs:attribute ref=&quot;%1&quot;/&gt;, or leave it out.</source>
        <translation>Refer to it with &lt;xs:attribute ref=&quot;%1&quot;/&gt;, or leave it out.</translation>
    </message>
    <message>
        <source>%1 more of this kind are left out, the last of them here.</source>
        <translation>%1 more of this kind are left out, the last of them here.</translation>
    </message>
    <message>
        <source>%1 elements are laid out as roots, of which &apos;%2&apos; is the first.</source>
        <translation>%1 elements are laid out as roots, of which &apos;%2&apos; is the first.</translation>
    </message>
    <message>
        <source>The report gets all of them, one behind the other: it is no XML document, and no program reads it.</source>
        <translation>The report gets all of them, one behind the other: it is no XML document, and no program reads it.</translation>
    </message>
    <message>
        <source>Declare one global element around them, behind all includes, and refer to it nowhere.</source>
        <translation>Declare one global element around them, behind all includes, and refer to it nowhere.</translation>
    </message>
    <message>
        <source>xs:simpleContent restricts &apos;%1&apos;.</source>
        <translation>xs:simpleContent restricts &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The name of the base becomes the type, so that no setter takes it, and whatever else is inside becomes an attribute of the report.</source>
        <translation>The name of the base becomes the type, so that no setter takes it, and whatever else is inside becomes an attribute of the report.</translation>
    </message>
    <message>
        <source>Restrict a type of XML Schema in a named xs:simpleType, and extend that by the attributes in xs:simpleContent.</source>
        <translation>Restrict a type of XML Schema in a named xs:simpleType, and extend that by the attributes in xs:simpleContent.</translation>
    </message>
    <message>
        <source>%1 has a simple type written inside of it, two types deep.</source>
        <translation>%1 has a simple type written inside of it, two types deep.</translation>
    </message>
    <message>
        <source>What follows it in the same place moves one level up in the report.</source>
        <translation>What follows it in the same place moves one level up in the report.</translation>
    </message>
    <message>
        <source>Give the simple type a name, at the top of the schema, and refer to it with type.</source>
        <translation>Give the simple type a name, at the top of the schema, and refer to it with type.</translation>
    </message>
    <message>
        <source>%1 may stand for &apos;%2&apos;.</source>
        <translation>%1 may stand for &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It never does: a reference to &apos;%1&apos; lays out only that one. A member that nothing refers to competes for the root of the report.</source>
        <translation>It never does: a reference to &apos;%1&apos; lays out only that one. A member that nothing refers to competes for the root of the report.</translation>
    </message>
    <message>
        <source>Write the members as alternatives of an xs:choice.</source>
        <translation>Write the members as alternatives of an xs:choice.</translation>
    </message>
    <message>
        <source>The schema has the target namespace &apos;%1&apos;.</source>
        <translation>The schema has the target namespace &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Reports are written without a namespace and refer to the schema as one without, so that none is ever valid.</source>
        <translation>Reports are written without a namespace and refer to the schema as one without, so that none is ever valid.</translation>
    </message>
    <message>
        <source>Remove targetNamespace, and the namespace declaration that goes with it.</source>
        <translation>Remove targetNamespace, and the namespace declaration that goes with it.</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nothing)</translation>
    </message>
    <message>
        <source>Write xs:double.</source>
        <translation>Write xs:double.</translation>
    </message>
    <message>
        <source>Write xs:integer, restricted to the range.</source>
        <translation>Write xs:integer, restricted to the range.</translation>
    </message>
    <message>
        <source>Write xs:dateTime, or xs:string.</source>
        <translation>Write xs:dateTime, or xs:string.</translation>
    </message>
    <message>
        <source>Write xs:string.</source>
        <translation>Write xs:string.</translation>
    </message>
    <message>
        <source>Write one of %1, or a named xs:simpleType that restricts one of them.</source>
        <translation>Write one of %1, or a named xs:simpleType that restricts one of them.</translation>
    </message>
    <message>
        <source>Write xs:integer.</source>
        <translation>Write xs:integer.</translation>
    </message>
    <message>
        <source>Write xs:string, and &apos;true&apos; or &apos;false&apos; as its value.</source>
        <translation>Write xs:string, and &apos;true&apos; or &apos;false&apos; as its value.</translation>
    </message>
    <message>
        <source>Write one of %1; for a restricted type, declare the attribute globally with the type inside, and refer to it.</source>
        <translation>Write one of %1; for a restricted type, declare the attribute globally with the type inside, and refer to it.</translation>
    </message>
    <message>
        <source>The facet %1 is &apos;%2&apos;.</source>
        <translation>The facet %1 is &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It is not checked.</source>
        <translation>It is not checked.</translation>
    </message>
    <message>
        <source>It is not checked, and stays in the report as an attribute &apos;%1&apos; that the schema does not allow.</source>
        <translation>It is not checked, and stays in the report as an attribute &apos;%1&apos; that the schema does not allow.</translation>
    </message>
    <message>
        <source>Leave it out; what is checked are enumerations and, for numbers, minInclusive, maxInclusive, minExclusive and maxExclusive.</source>
        <translation>Leave it out; what is checked are enumerations and, for numbers, minInclusive, maxInclusive, minExclusive and maxExclusive.</translation>
    </message>
    <message>
        <source>%1 of &apos;%2&apos; is &apos;%3&apos;.</source>
        <translation>%1 of &apos;%2&apos; is &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>Only numbers have bounds: it is not checked, and stays in the report as an attribute.</source>
        <translation>Only numbers have bounds: it is not checked, and stays in the report as an attribute.</translation>
    </message>
    <message>
        <source>Leave the facet out.</source>
        <translation>Leave the facet out.</translation>
    </message>
    <message>
        <source>It cannot be read as a number of that type and counts as 0.</source>
        <translation>It cannot be read as a number of that type and counts as 0.</translation>
    </message>
    <message>
        <source>Write an integer between -2147483648 and 2147483647.</source>
        <translation>Write an integer between -2147483648 and 2147483647.</translation>
    </message>
    <message>
        <source>Write a number in digits, with a point.</source>
        <translation>Write a number in digits, with a point.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; has no type of its own.</source>
        <translation>The attribute &apos;%1&apos; has no type of its own.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; is of the type &apos;%2&apos;.</source>
        <translation>The attribute &apos;%1&apos; is of the type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>No setter takes it: the attribute can be removed, and otherwise stays and holds &apos;%1&apos;.</source>
        <translation>No setter takes it: the attribute can be removed, and otherwise stays and holds &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>No setter takes it: the element stays empty in every report, with its annotations.</source>
        <translation>No setter takes it: the element stays empty in every report, with its annotations.</translation>
    </message>
    <message>
        <source>No setter takes it.</source>
        <translation>No setter takes it.</translation>
    </message>
    <message>
        <source>No setter takes it: the element is removed from every report, with the container around it.</source>
        <translation>No setter takes it: the element is removed from every report, with the container around it.</translation>
    </message>
    <message>
        <source>No setter takes it: the element is removed from every report.</source>
        <translation>No setter takes it: the element is removed from every report.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; has no type that is understood.</source>
        <translation>The element &apos;%1&apos; has no type that is understood.</translation>
    </message>
    <message>
        <source>It is passed over: what is of this type has none, or that of the last restriction inside, and cannot be filled as the author means it.</source>
        <translation>It is passed over: what is of this type has none, or that of the last restriction inside, and cannot be filled as the author means it.</translation>
    </message>
    <message>
        <source>Use xs:restriction of one type, such as xs:string.</source>
        <translation>Use xs:restriction of one type, such as xs:string.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; may be repeated, but is not known to.</source>
        <translation>The element &apos;%1&apos; may be repeated, but is not known to.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; may be repeated inside of one that may be, too.</source>
        <translation>The element &apos;%1&apos; may be repeated inside of one that may be, too.</translation>
    </message>
    <message>
        <source>Every count is refused: limits are looked for below the first element that is called like the owner, and in a named type the owner is the type.</source>
        <translation>Every count is refused: limits are looked for below the first element that is called like the owner, and in a named type the owner is the type.</translation>
    </message>
    <message>
        <source>Counts are accepted in the first copy only, and refused in the others: limits are looked for below the first element that is called like the owner.</source>
        <translation>Counts are accepted in the first copy only, and refused in the others: limits are looked for below the first element that is called like the owner.</translation>
    </message>
    <message>
        <source>Write the type inside of the element that is of it, or call that element like the type.</source>
        <translation>Write the type inside of the element that is of it, or call that element like the type.</translation>
    </message>
    <message>
        <source>Repeat only one of the two in a report.</source>
        <translation>Repeat only one of the two in a report.</translation>
    </message>
    <message>
        <source>%1 is prohibited.</source>
        <translation>%1 is prohibited.</translation>
    </message>
    <message>
        <source>It is laid out all the same, and stays unless the observer removes it.</source>
        <translation>It is laid out all the same, and stays unless the observer removes it.</translation>
    </message>
    <message>
        <source>Leave the attribute out of the schema.</source>
        <translation>Leave the attribute out of the schema.</translation>
    </message>
    <message>
        <source>%1 is optional.</source>
        <translation>%1 is optional.</translation>
    </message>
    <message>
        <source>The word is passed over: an attribute that is neither set nor removed stays in the report and holds its type.</source>
        <translation>The word is passed over: an attribute that is neither set nor removed stays in the report and holds its type.</translation>
    </message>
    <message>
        <source>Leave the word out, it is what XML Schema assumes; see that the observer sets or removes the attribute.</source>
        <translation>Leave the word out, it is what XML Schema assumes; see that the observer sets or removes the attribute.</translation>
    </message>
    <message>
        <source>%1, choice %2</source>
        <translation>%1, choice %2</translation>
    </message>
    <message>
        <source>Include the schema that defines these names, and refer to them without a namespace.</source>
        <translation>Include the schema that defines these names, and refer to them without a namespace.</translation>
    </message>
    <message>
        <source>the namespace &apos;%1&apos;</source>
        <translation>the namespace &apos;%1&apos;</translation>
    </message>
    <message>
        <source>libxml2 does not accept the schema: %1 The same of %2 other uses.</source>
        <translation>libxml2 does not accept the schema: %1 The same of %2 other uses.</translation>
    </message>
    <message>
        <source>Nothing fills it and nothing removes it: it stays, whether a report is meant to have it or not.</source>
        <translation>Nothing fills it and nothing removes it: it stays, whether a report is meant to have it or not.</translation>
    </message>
    <message>
        <source>Nothing fills it: it stays, whether a report is meant to have it or not, unless a value behind it is unfilled. That one removes it.</source>
        <translation>Nothing fills it: it stays, whether a report is meant to have it or not, unless a value behind it is unfilled. That one removes it.</translation>
    </message>
    <message>
        <source>Give &apos;%1&apos; a type that takes a value, such as xs:boolean, or make it required.</source>
        <translation>Give &apos;%1&apos; a type that takes a value, such as xs:boolean, or make it required.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; itself becomes the type, which setters know by a word in that name: its own type and facets are not looked at.</source>
        <translation>&apos;%1&apos; itself becomes the type, which setters know by a word in that name: its own type and facets are not looked at.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonFindings</name>
    <message>
        <source>the element &apos;%1&apos; of the type &apos;%2&apos;</source>
        <translation>the element &apos;%1&apos; of the type &apos;%2&apos;</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; of &apos;%2&apos;, of the type &apos;%3&apos;</source>
        <translation>the attribute &apos;%1&apos; of &apos;%2&apos;, of the type &apos;%3&apos;</translation>
    </message>
    <message>
        <source>The report button never fills %1.</source>
        <translation>The report button never fills %1.</translation>
    </message>
    <message>
        <source>For the number of an item the button writes 65535.</source>
        <translation>For the number of an item the button writes 65535.</translation>
    </message>
    <message>
        <source>The button may fill another attribute of the element in its place.</source>
        <translation>The button may fill another attribute of the element in its place.</translation>
    </message>
    <message>
        <source>A setter takes it, but the button offers no value of that kind, whatever items there are.</source>
        <translation>A setter takes it, but the button offers no value of that kind, whatever items there are.</translation>
    </message>
    <message>
        <source>Declare it for an element with a value of its own, or fill it by an observer of the report builder.</source>
        <translation>Declare it for an element with a value of its own, or fill it by an observer of the report builder.</translation>
    </message>
    <message>
        <source>Write another type, such as xs:string, or fill it by an observer of the report builder.</source>
        <translation>Write another type, such as xs:string, or fill it by an observer of the report builder.</translation>
    </message>
    <message>
        <source>No item of the report button reaches %1 alone.</source>
        <translation>No item of the report button reaches %1 alone.</translation>
    </message>
    <message>
        <source>An item &apos;%1&apos; fills %2 values of that name, all with the same.</source>
        <translation>An item &apos;%1&apos; fills %2 values of that name, all with the same.</translation>
    </message>
    <message>
        <source>Give it a name of its own, or a parent with a name of its own.</source>
        <translation>Give it a name of its own, or a parent with a name of its own.</translation>
    </message>
    <message>
        <source>The unit of an item fills the attribute &apos;%1&apos;, and an item of a value tree&apos;s node has none.</source>
        <translation>The unit of an item fills the attribute &apos;%1&apos;, and an item of a value tree&apos;s node has none.</translation>
    </message>
    <message>
        <source>For such an item the attribute keeps its type, &apos;%1&apos;, as a text.</source>
        <translation>For such an item the attribute keeps its type, &apos;%1&apos;, as a text.</translation>
    </message>
    <message>
        <source>For such an item the attribute keeps its type, &apos;%1&apos;, which is none of its values: the report is not valid.</source>
        <translation>For such an item the attribute keeps its type, &apos;%1&apos;, which is none of its values: the report is not valid.</translation>
    </message>
    <message>
        <source>Register the item by its name and path, with a unit.</source>
        <translation>Register the item by its name and path, with a unit.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonTrial</name>
    <message>
        <source>What the report button fills was not tried: it would take too long.</source>
        <translation>What the report button fills was not tried: it would take too long.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonWords</name>
    <message>
        <source>As the report button fills it</source>
        <translation>As the report button fills it</translation>
    </message>
    <message>
        <source>container</source>
        <translation>container</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>a number</translation>
    </message>
    <message>
        <source>a number without its fraction</source>
        <translation>a number without its fraction</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>a text</translation>
    </message>
    <message>
        <source>an ISO date and time</source>
        <translation>an ISO date and time</translation>
    </message>
    <message>
        <source>an explicit bool</source>
        <translation>an explicit bool</translation>
    </message>
    <message>
        <source>an explicit long</source>
        <translation>an explicit long</translation>
    </message>
    <message>
        <source>never: no setter takes it</source>
        <translation>never: no setter takes it</translation>
    </message>
    <message>
        <source>never: 65535 is written in place of a number</source>
        <translation>never: 65535 is written in place of a number</translation>
    </message>
    <message>
        <source>never: another attribute may be filled in its place</source>
        <translation>never: another attribute may be filled in its place</translation>
    </message>
    <message>
        <source>never: the button offers no value of its kind</source>
        <translation>never: the button offers no value of its kind</translation>
    </message>
    <message>
        <source>item &apos;%1&apos; with %2</source>
        <translation>item &apos;%1&apos; with %2</translation>
    </message>
    <message>
        <source>which reaches %1 more</source>
        <translation>which reaches %1 more</translation>
    </message>
    <message>
        <source>registered behind that of the element</source>
        <translation>registered behind that of the element</translation>
    </message>
    <message>
        <source>the unit of the element&apos;s item</source>
        <translation>the unit of the element&apos;s item</translation>
    </message>
    <message>
        <source>the current time</source>
        <translation>the current time</translation>
    </message>
</context>
<context>
    <name>schemadoctor::CopiesWords</name>
    <message>
        <source>In every copy but the first</source>
        <translation>In every copy but the first</translation>
    </message>
    <message>
        <source>stays when nothing fills it</source>
        <translation>stays when nothing fills it</translation>
    </message>
    <message>
        <source>stays when nothing fills it, with %1</source>
        <translation>stays when nothing fills it, with %1</translation>
    </message>
    <message>
        <source>%1 and the value &apos;%2&apos;</source>
        <translation>%1 and the value &apos;%2&apos;</translation>
    </message>
    <message>
        <source>no count is accepted</source>
        <translation>no count is accepted</translation>
    </message>
    <message>
        <source>was not tried</source>
        <translation>was not tried</translation>
    </message>
</context>
<context>
    <name>schemadoctor::DoctorWindow</name>
    <message>
        <source>%1 - schema doctor</source>
        <translation>%1 - schema doctor</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>F&amp;ind:</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>&amp;Schema:</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Finding</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Rule</translation>
    </message>
    <message>
        <source>What</source>
        <translation>What</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Reload</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>As it is meant</source>
        <translation>As it is meant</translation>
    </message>
    <message>
        <source>As it is laid out</source>
        <translation>As it is laid out</translation>
    </message>
    <message>
        <source>Open a schema</source>
        <translation>Open a schema</translation>
    </message>
    <message>
        <source>Schemas (*.xsd);;All files (*)</source>
        <translation>Schemas (*.xsd);;All files (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>Elements laid out: %1. Findings: %2.</source>
        <translation>Elements laid out: %1. Findings: %2.</translation>
    </message>
    <message>
        <source>%1

What the library does: %2

Write instead: %3</source>
        <translation>%1

What the library does: %2

Write instead: %3</translation>
    </message>
    <message>
        <source>&amp;Mend...</source>
        <translation>&amp;Mend...</translation>
    </message>
    <message>
        <source>Write the mended schema</source>
        <translation>Write the mended schema</translation>
    </message>
    <message>
        <source>Not mended</source>
        <translation>Not mended</translation>
    </message>
</context>
<context>
    <name>schemadoctor::MendWindow</name>
    <message>
        <source>%1 - mended schema</source>
        <translation>%1 - mended schema</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Before</translation>
    </message>
    <message>
        <source>After</source>
        <translation>After</translation>
    </message>
    <message>
        <source>What it does to reports</source>
        <translation>What it does to reports</translation>
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
        <translation>Type</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limits</translation>
    </message>
    <message>
        <source>Occurs</source>
        <translation>Occurs</translation>
    </message>
    <message>
        <source>Counts taken</source>
        <translation>Counts taken</translation>
    </message>
    <message>
        <source>Unfilled it</source>
        <translation>Unfilled it</translation>
    </message>
    <message>
        <source>Set by</source>
        <translation>Set by</translation>
    </message>
</context>
</TS>
