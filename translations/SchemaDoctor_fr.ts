<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Mend</name>
    <message>
        <source>Written otherwise</source>
        <translation>Écrit autrement</translation>
    </message>
    <message>
        <source>Left as it is, because it would change the format</source>
        <translation>Laissé tel quel, car cela changerait le format</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Corrigé</translation>
    </message>
    <message>
        <source>The mended schema</source>
        <translation>Le schéma corrigé</translation>
    </message>
    <message>
        <source>Mended schema</source>
        <translation>Schéma corrigé</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
    <message>
        <source>its attributes</source>
        <translation>ses attributs</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; of another namespace</source>
        <translation>l&apos;attribut &apos;%1&apos; d&apos;un autre espace de noms</translation>
    </message>
    <message>
        <source>the prohibited attribute &apos;%1&apos;</source>
        <translation>l&apos;attribut interdit &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the fixed value &apos;%1&apos;</source>
        <translation>la valeur fixe &apos;%1&apos;</translation>
    </message>
    <message>
        <source>an enumeration of this value</source>
        <translation>une énumération de cette valeur</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos;</source>
        <translation>l&apos;attribut &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the facets of the attribute &apos;%1&apos;, whose name contains that of another</source>
        <translation>les facettes de l&apos;attribut &apos;%1&apos;, dont le nom contient celui d&apos;un autre</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of %1</source>
        <translation>minOccurs et maxOccurs de %1</translation>
    </message>
    <message>
        <source>Written out, the groups and types hold each other more often than is followed.</source>
        <translation>Une fois développés, les groupes et les types s&apos;imbriquent plus souvent que la limite ne le permet.</translation>
    </message>
    <message>
        <source>Written out, the schema has more than %1 elements.</source>
        <translation>Une fois développé, le schéma a plus de %1 éléments.</translation>
    </message>
    <message>
        <source>Definitions contain each other more than %1 levels deep.</source>
        <translation>Des définitions s&apos;imbriquent sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>an element that never occurs</source>
        <translation>un élément qui n&apos;apparaît jamais</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos;, which is declared nowhere</source>
        <translation>l&apos;élément &apos;%1&apos;, qui n&apos;est déclaré nulle part</translation>
    </message>
    <message>
        <source>an alternative that leads deeper</source>
        <translation>une branche qui mène plus en profondeur</translation>
    </message>
    <message>
        <source>xs:choice inside of xs:choice</source>
        <translation>xs:choice dans xs:choice</translation>
    </message>
    <message>
        <source>one choice of all alternatives</source>
        <translation>un seul choix entre toutes les branches</translation>
    </message>
    <message>
        <source>xs:choice inside of an alternative</source>
        <translation>xs:choice dans une branche</translation>
    </message>
    <message>
        <source>its first alternative</source>
        <translation>sa première branche</translation>
    </message>
    <message>
        <source>its alternatives, each optional</source>
        <translation>ses branches, chacune facultative</translation>
    </message>
    <message>
        <source>the group &apos;%1&apos;, which is defined nowhere</source>
        <translation>le groupe &apos;%1&apos;, qui n&apos;est défini nulle part</translation>
    </message>
    <message>
        <source>its elements</source>
        <translation>ses éléments</translation>
    </message>
    <message>
        <source>an xs:any that is required</source>
        <translation>un xs:any obligatoire</translation>
    </message>
    <message>
        <source>the substitution group of &apos;%1&apos;</source>
        <translation>le groupe de substitution de &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a choice of its elements</source>
        <translation>un choix entre ses éléments</translation>
    </message>
    <message>
        <source>a group that never occurs</source>
        <translation>un groupe qui n&apos;apparaît jamais</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of &apos;%1&apos;</source>
        <translation>minOccurs et maxOccurs de &apos;%1&apos;</translation>
    </message>
    <message>
        <source>one choice</source>
        <translation>un seul choix</translation>
    </message>
    <message>
        <source>its alternatives in their order, each optional</source>
        <translation>ses branches dans leur ordre, chacune facultative</translation>
    </message>
    <message>
        <source>minOccurs and maxOccurs of each element inside</source>
        <translation>minOccurs et maxOccurs de chaque élément qu&apos;il contient</translation>
    </message>
    <message>
        <source>the group once</source>
        <translation>le groupe une fois</translation>
    </message>
    <message>
        <source>&apos;%1&apos; a second time</source>
        <translation>&apos;%1&apos; une seconde fois</translation>
    </message>
    <message>
        <source>&apos;%1&apos; inside of itself</source>
        <translation>&apos;%1&apos; dans lui-même</translation>
    </message>
    <message>
        <source>%1 levels</source>
        <translation>%1 niveaux</translation>
    </message>
    <message>
        <source>the complex type &apos;%1&apos;</source>
        <translation>le type complexe &apos;%1&apos;</translation>
    </message>
    <message>
        <source>written inside of the elements that are of it</source>
        <translation>écrit dans les éléments de ce type</translation>
    </message>
    <message>
        <source>an abstract type</source>
        <translation>un type abstrait</translation>
    </message>
    <message>
        <source>the type itself</source>
        <translation>le type lui-même</translation>
    </message>
    <message>
        <source>mixed content</source>
        <translation>contenu mixte</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos;, which is defined nowhere</source>
        <translation>le type &apos;%1&apos;, qui n&apos;est défini nulle part</translation>
    </message>
    <message>
        <source>the content written out</source>
        <translation>le contenu développé</translation>
    </message>
    <message>
        <source>an abstract element</source>
        <translation>un élément abstrait</translation>
    </message>
    <message>
        <source>the element itself</source>
        <translation>l&apos;élément lui-même</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos;</source>
        <translation>l&apos;élément &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; with a type of its own</source>
        <translation>l&apos;attribut &apos;%1&apos; avec un type propre</translation>
    </message>
    <message>
        <source>a global attribute</source>
        <translation>un attribut global</translation>
    </message>
    <message>
        <source>%1, whose name another has</source>
        <translation>%1, dont le nom est déjà pris</translation>
    </message>
    <message>
        <source>an attribute of the type xs:%1</source>
        <translation>un attribut du type xs:%1</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos;</source>
        <translation>le type &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a type without a name</source>
        <translation>un type sans nom</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos; behind its use</source>
        <translation>le type &apos;%1&apos; après son emploi</translation>
    </message>
    <message>
        <source>in front of it</source>
        <translation>placé avant celui-ci</translation>
    </message>
    <message>
        <source>what stands in that file</source>
        <translation>ce qui se trouve dans ce fichier</translation>
    </message>
    <message>
        <source>nothing: it is not read</source>
        <translation>rien : il n&apos;est pas lu</translation>
    </message>
    <message>
        <source>tags without the prefix xs:</source>
        <translation>balises sans le préfixe xs:</translation>
    </message>
    <message>
        <source>the prefix xs:</source>
        <translation>le préfixe xs:</translation>
    </message>
    <message>
        <source>xs:%1 &apos;%2&apos;, to which nothing refers</source>
        <translation>xs:%1 &apos;%2&apos;, auquel rien ne se réfère</translation>
    </message>
    <message>
        <source>nothing: reports begin with &apos;%1&apos;</source>
        <translation>rien : les rapports commencent par &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the alternative &apos;%1&apos;, which holds no value</source>
        <translation>la branche &apos;%1&apos;, qui ne contient aucune valeur</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, which may be missing</source>
        <translation>&apos;%1&apos;, qui peut manquer</translation>
    </message>
    <message>
        <source>required</source>
        <translation>obligatoire</translation>
    </message>
    <message>
        <source>No report is finite with &apos;%1&apos; inside of itself %2 times.</source>
        <translation>Avec &apos;%1&apos; imbriqué %2 fois dans lui-même, aucun rapport n&apos;est fini.</translation>
    </message>
    <message>
        <source>The schema declares no global element.</source>
        <translation>Le schéma ne déclare aucun élément global.</translation>
    </message>
    <message>
        <source>There is no global element &apos;%1&apos;.</source>
        <translation>Il n&apos;y a pas d&apos;élément global &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1 is a file of the schema itself, and is not written over.</source>
        <translation>%1 est un fichier du schéma lui-même et n&apos;est pas écrasé.</translation>
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
        <translation>On peut corriger davantage si le format peut changer.
</translation>
    </message>
    <message>
        <source>Nothing is written otherwise.
</source>
        <translation>Rien n&apos;est écrit autrement.
</translation>
    </message>
    <message>
        <source>Written otherwise:</source>
        <translation>Écrit autrement :</translation>
    </message>
    <message>
        <source>Left as it is, because it would change the format:</source>
        <translation>Laissé tel quel, car cela changerait le format :</translation>
    </message>
    <message>
        <source>
The mended schema:
</source>
        <translation>
Le schéma corrigé :
</translation>
    </message>
    <message>
        <source>reports stay valid by the original</source>
        <translation>les rapports restent valides selon l&apos;original</translation>
    </message>
    <message>
        <source>changes the format</source>
        <translation>change le format</translation>
    </message>
    <message>
        <source>The files are longer than the %1 bytes that are mended.</source>
        <translation>Les fichiers dépassent les %1 octets que l&apos;on corrige.</translation>
    </message>
    <message>
        <source>%1 is no well-formed XML.</source>
        <translation>%1 n&apos;est pas du XML bien formé.</translation>
    </message>
    <message>
        <source>%1 is no XML Schema.</source>
        <translation>%1 n&apos;est pas un schéma XML.</translation>
    </message>
    <message>
        <source>&apos;%1&apos;, required %2 times</source>
        <translation>&apos;%1&apos;, obligatoire %2 fois</translation>
    </message>
    <message>
        <source>required once</source>
        <translation>obligatoire une fois</translation>
    </message>
    <message>
        <source>a reference to &apos;%1&apos;</source>
        <translation>une référence à &apos;%1&apos;</translation>
    </message>
    <message>
        <source>the element in its place</source>
        <translation>l&apos;élément à sa place</translation>
    </message>
    <message>
        <source>a global element in front of a reference to it</source>
        <translation>un élément global placé avant la référence qui y renvoie</translation>
    </message>
    <message>
        <source>the target namespace &apos;%1&apos;</source>
        <translation>l&apos;espace de noms cible &apos;%1&apos;</translation>
    </message>
    <message>
        <source>no namespace</source>
        <translation>aucun espace de noms</translation>
    </message>
    <message>
        <source>a restriction of the type &apos;%1&apos;</source>
        <translation>une restriction du type &apos;%1&apos;</translation>
    </message>
    <message>
        <source>a restriction of xs:%1 with the facets of both</source>
        <translation>une restriction de xs:%1 avec les facettes des deux</translation>
    </message>
    <message>
        <source>a single item</source>
        <translation>un seul élément de liste</translation>
    </message>
    <message>
        <source>xs:string, which holds the items as a text</source>
        <translation>xs:string, qui contient les éléments de liste comme texte</translation>
    </message>
    <message>
        <source>one enumeration of all texts</source>
        <translation>une énumération de tous les textes</translation>
    </message>
    <message>
        <source>its first member, a type on xs:%1</source>
        <translation>son premier membre, un type basé sur xs:%1</translation>
    </message>
    <message>
        <source>an attribute of the type xs:boolean</source>
        <translation>un attribut du type xs:boolean</translation>
    </message>
    <message>
        <source>the texts true and false</source>
        <translation>les textes true et false</translation>
    </message>
    <message>
        <source>an attribute of the type xs:time</source>
        <translation>un attribut du type xs:time</translation>
    </message>
    <message>
        <source>an enumeration of %1</source>
        <translation>une énumération de %1</translation>
    </message>
    <message>
        <source>an enumeration of xs:string</source>
        <translation>une énumération de xs:string</translation>
    </message>
    <message>
        <source>the enumeration alone</source>
        <translation>l&apos;énumération seule</translation>
    </message>
    <message>
        <source>xs:integer with %1</source>
        <translation>xs:integer avec %1</translation>
    </message>
    <message>
        <source>%1 of an attribute</source>
        <translation>%1 d&apos;un attribut</translation>
    </message>
    <message>
        <source>Written otherwise: %1. Left: %2. Findings: %3.</source>
        <translation>Écrit autrement : %1. Laissé tel quel : %2. Constats : %3.</translation>
    </message>
    <message>
        <source>The doctor finds in the mended schema</source>
        <translation>Ce que le docteur trouve dans le schéma corrigé</translation>
    </message>
    <message>
        <source>the element &apos;%1&apos; of a namespace that is not read</source>
        <translation>l&apos;élément &apos;%1&apos; d&apos;un espace de noms qui n&apos;est pas lu</translation>
    </message>
    <message>
        <source>the group &apos;%1&apos; of a namespace that is not read</source>
        <translation>le groupe &apos;%1&apos; d&apos;un espace de noms qui n&apos;est pas lu</translation>
    </message>
    <message>
        <source>the other alternatives</source>
        <translation>les autres branches</translation>
    </message>
    <message>
        <source>the type &apos;%1&apos; of a namespace that is not read</source>
        <translation>le type &apos;%1&apos; d&apos;un espace de noms qui n&apos;est pas lu</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>The mender knows no way of writing without these findings; another root or number of levels may help.
</source>
        <translation>Aucune écriture sans ces constats n&apos;est connue ; une autre racine ou un autre nombre de niveaux peut aider.
</translation>
    </message>
    <message>
        <source>The format is not kept: what changes it cannot be left as it is.
</source>
        <translation>Le format n&apos;est pas conservé : ce qui le change ne peut pas être laissé tel quel.
</translation>
    </message>
    <message>
        <source>the default &apos;%1&apos;</source>
        <translation>la valeur par défaut &apos;%1&apos;</translation>
    </message>
    <message>
        <source>an xs:list that is never a single item</source>
        <translation>une xs:list qui n&apos;est jamais un seul élément de liste</translation>
    </message>
    <message>
        <source>xs:string with %1</source>
        <translation>xs:string avec %1</translation>
    </message>
    <message>
        <source>a single item of %1</source>
        <translation>un seul élément de liste du type %1</translation>
    </message>
    <message>
        <source>an enumeration of its texts</source>
        <translation>une énumération de ses textes</translation>
    </message>
    <message>
        <source>a type without any value</source>
        <translation>un type sans aucune valeur</translation>
    </message>
    <message>
        <source>an enumeration of what it allows</source>
        <translation>une énumération de ce qui reste permis</translation>
    </message>
    <message>
        <source>bounds between which hardly any number is</source>
        <translation>des bornes entre lesquelles il n&apos;y a presque aucun nombre</translation>
    </message>
    <message>
        <source>an enumeration of &apos;%1&apos;</source>
        <translation>une énumération de &apos;%1&apos;</translation>
    </message>
    <message>
        <source>restrictions of xs:%1, one for each pattern that has to hold</source>
        <translation>des restrictions de xs:%1, une pour chaque motif à respecter</translation>
    </message>
    <message>
        <source>%1; setters give no number beyond the bounds of %2</source>
        <translation>%1 ; aucun setter ne donne de nombre au-delà des bornes de %2</translation>
    </message>
</context>
<context>
    <name>SchemaDoctor</name>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Le fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The file is longer than the %1 bytes that are examined.</source>
        <translation>Le fichier dépasse les %1 octets qui sont examinés.</translation>
    </message>
    <message>
        <source>The file holds no XML.</source>
        <translation>Le fichier ne contient pas de XML.</translation>
    </message>
    <message>
        <source>No well-formed XML, %1</source>
        <translation>XML mal formé, %1</translation>
    </message>
    <message>
        <source>The library gives the schema up: a definition that it refers to never comes.</source>
        <translation>La bibliothèque abandonne le schéma : une définition à laquelle il se réfère n&apos;arrive jamais.</translation>
    </message>
    <message>
        <source>The library gives the schema up: definitions wait for each other.</source>
        <translation>La bibliothèque abandonne le schéma : des définitions s&apos;attendent mutuellement.</translation>
    </message>
    <message>
        <source>The library gives the schema up: %1</source>
        <translation>La bibliothèque abandonne le schéma : %1</translation>
    </message>
    <message>
        <source>Too much to be shown: %1</source>
        <translation>Trop d&apos;éléments à afficher : %1</translation>
    </message>
    <message>
        <source>The library lays nothing out.</source>
        <translation>La bibliothèque ne crée rien.</translation>
    </message>
    <message>
        <source>The library cannot read the file, %1</source>
        <translation>La bibliothèque ne peut pas lire le fichier, %1</translation>
    </message>
    <message>
        <source>complaint: %1</source>
        <translation>réclamation : %1</translation>
    </message>
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
        <source>1 element laid out.</source>
        <translation>1 élément créé.</translation>
    </message>
    <message>
        <source>%1 elements laid out.</source>
        <translation>%1 éléments créés.</translation>
    </message>
    <message>
        <source>Skip to the findings</source>
        <translation>Aller directement aux constats</translation>
    </message>
    <message>
        <source>en</source>
        <comment>the language of the page</comment>
        <translation>fr</translation>
    </message>
    <message>
        <source>%1 - schema doctor</source>
        <translation>%1 - docteur des schémas</translation>
    </message>
    <message>
        <source>To the findings</source>
        <translation>Vers les constats</translation>
    </message>
    <message>
        <source>The schema cannot be read: %1</source>
        <translation>Le schéma ne peut pas être lu : %1</translation>
    </message>
    <message>
        <source>No findings.</source>
        <translation>Aucun constat.</translation>
    </message>
    <message>
        <source>Search for a name</source>
        <translation>Chercher un nom</translation>
    </message>
    <message>
        <source>Search for a name (press /)</source>
        <translation>Chercher un nom (touche /)</translation>
    </message>
    <message>
        <source>Unfold all</source>
        <translation>Tout déplier</translation>
    </message>
    <message>
        <source>Fold all</source>
        <translation>Tout replier</translation>
    </message>
    <message>
        <source>%1 in the tree, %2 findings</source>
        <translation>%1 dans l&apos;arbre, %2 constats</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Arbre</translation>
    </message>
    <message>
        <source>What is laid out</source>
        <translation>Ce qui est créé</translation>
    </message>
    <message>
        <source>The first %1 of %2 elements; --tree prints all of them.</source>
        <translation>Les %1 premiers éléments sur %2 ; --tree les affiche tous.</translation>
    </message>
    <message>
        <source>default %1</source>
        <translation>par défaut %1</translation>
    </message>
    <message>
        <source>occurs %1, counts taken: %2</source>
        <translation>occurrences %1, nombres acceptés : %2</translation>
    </message>
    <message>
        <source>alternative of choice %1</source>
        <translation>branche du choix %1</translation>
    </message>
    <message>
        <source>alternative by its name</source>
        <translation>branche d&apos;un choix par son nom</translation>
    </message>
    <message>
        <source>unfilled it %1</source>
        <translation>non rempli : %1</translation>
    </message>
    <message>
        <source>no type</source>
        <translation>sans type</translation>
    </message>
    <message>
        <source>%1 (not checked)</source>
        <translation>%1 (non vérifié)</translation>
    </message>
    <message>
        <source>one of %1</source>
        <translation>parmi %1</translation>
    </message>
    <message>
        <source>nothing can fill it</source>
        <translation>rien ne peut le remplir</translation>
    </message>
    <message>
        <source>set by %1</source>
        <translation>rempli par %1</translation>
    </message>
    <message>
        <source>Who could be the root</source>
        <translation>Candidats pour la racine</translation>
    </message>
    <message>
        <source>(an attribute)</source>
        <translation>(un attribut)</translation>
    </message>
    <message>
        <source>is the root: the greatest name wins</source>
        <translation>est la racine : le plus grand nom l&apos;emporte</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Constats</translation>
    </message>
    <message>
        <source>There are none.</source>
        <translation>Il n&apos;y en a pas.</translation>
    </message>
    <message>
        <source>The first %1 of %2; --json prints all of them.</source>
        <translation>Les %1 premiers sur %2 ; --json les affiche tous.</translation>
    </message>
    <message>
        <source>What the library does:</source>
        <translation>Ce que fait la bibliothèque :</translation>
    </message>
    <message>
        <source>Write instead:</source>
        <translation>Écrire plutôt :</translation>
    </message>
    <message>
        <source>As it is meant</source>
        <translation>Ce qui est voulu</translation>
    </message>
    <message>
        <source>As it is laid out</source>
        <translation>Ce qui est créé</translation>
    </message>
    <message>
        <source>Schema</source>
        <translation>Schéma</translation>
    </message>
    <message>
        <source>Files that are too long for the page are left out.</source>
        <translation>Les fichiers trop longs pour la page sont omis.</translation>
    </message>
    <message>
        <source>Reports filled on trial: %1, of which valid: %2.</source>
        <translation>Rapports remplis à l&apos;essai : %1, dont valides : %2.</translation>
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
        <source>%1: %2 findings</source>
        <translation>%1 : %2 constats</translation>
    </message>
    <message>
        <source>read</source>
        <translation>lu</translation>
    </message>
    <message>
        <source>read again</source>
        <translation>relu</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>malformed</source>
        <translation>mal formé</translation>
    </message>
    <message>
        <source>cyclic, skipped</source>
        <translation>cyclique, ignoré</translation>
    </message>
    <message>
        <source>too deep, skipped</source>
        <translation>trop profond, ignoré</translation>
    </message>
    <message>
        <source>%1, outside of the folder</source>
        <translation>%1, hors du dossier</translation>
    </message>
    <message>
        <source>stays</source>
        <translation>reste</translation>
    </message>
    <message>
        <source>is removed</source>
        <translation>est supprimé</translation>
    </message>
    <message>
        <source>is removed when its first value is unfilled</source>
        <translation>est supprimé si sa première valeur n&apos;est pas remplie</translation>
    </message>
    <message>
        <source>is removed with the container around it</source>
        <translation>est supprimé avec le conteneur qui l&apos;entoure</translation>
    </message>
    <message>
        <source>stays, unless a value behind it is unfilled</source>
        <translation>reste, sauf si une valeur qui le suit n&apos;est pas remplie</translation>
    </message>
    <message>
        <source>was not tried</source>
        <translation>n&apos;a pas été essayé</translation>
    </message>
    <message>
        <source>not tried</source>
        <translation>non essayé</translation>
    </message>
    <message>
        <source>any</source>
        <translation>tous</translation>
    </message>
    <message>
        <source>1 or more</source>
        <translation>1 ou plus</translation>
    </message>
    <message>
        <source>0 only</source>
        <translation>0 seulement</translation>
    </message>
    <message>
        <source>no count</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 in the first copy, the others were not tried</source>
        <translation>%1 (dans la première copie ; les autres n&apos;ont pas été essayées)</translation>
    </message>
    <message>
        <source>%1 in the first copy only</source>
        <translation>%1 (dans la première copie seulement)</translation>
    </message>
    <message>
        <source>A report filled with nothing but what is required is not valid: %1</source>
        <translation>Un rapport où seul le nécessaire est rempli n&apos;est pas valide : %1</translation>
    </message>
    <message>
        <source>A report filled with everything is not valid: %1</source>
        <translation>Un rapport où tout est rempli n&apos;est pas valide : %1</translation>
    </message>
    <message>
        <source>A report filled with everything, and twice what may repeat is not valid: %1</source>
        <translation>Un rapport où tout est rempli, et en double ce qui peut se répéter, n&apos;est pas valide : %1</translation>
    </message>
    <message>
        <source>A report filled with nothing but what is required, and twice what may repeat is not valid: %1</source>
        <translation>Un rapport où seul le nécessaire est rempli, et en double ce qui peut se répéter, n&apos;est pas valide : %1</translation>
    </message>
    <message>
        <source>A report filled with what is required and the optional &apos;%1&apos; is not valid: %2</source>
        <translation>Un rapport où le nécessaire et l&apos;élément facultatif &apos;%1&apos; sont remplis n&apos;est pas valide : %2</translation>
    </message>
    <message>
        <source>The library writes the report all the same and says nothing of it.</source>
        <translation>La bibliothèque écrit quand même le rapport, sans rien en dire.</translation>
    </message>
    <message>
        <source>Compare the declaration with the tree, and write what differs in another way.</source>
        <translation>Comparer la déclaration avec l&apos;arbre et écrire autrement ce qui diffère.</translation>
    </message>
    <message>
        <source>Of %1 reports to be filled on trial, %2 were left out: they would take too long.</source>
        <translation>Sur %1 rapports à remplir à l&apos;essai, %2 ont été omis : ils prendraient trop de temps.</translation>
    </message>
    <message>
        <source>No report was filled on trial: it would take too long.</source>
        <translation>Aucun rapport n&apos;a été rempli à l&apos;essai : cela prendrait trop de temps.</translation>
    </message>
    <message>
        <source>No report was validated: libxml2 does not take the schema.</source>
        <translation>Aucun rapport n&apos;a été validé : libxml2 n&apos;accepte pas le schéma.</translation>
    </message>
    <message>
        <source>The report is no well-formed XML.</source>
        <translation>Le rapport n&apos;est pas du XML bien formé.</translation>
    </message>
    <message>
        <source>libxml2 needs too much time or memory to check the schema.</source>
        <translation>libxml2 a besoin de trop de temps ou de mémoire pour vérifier le schéma.</translation>
    </message>
    <message>
        <source>XML does not allow the name &apos;%1&apos;.</source>
        <translation>XML n&apos;autorise pas le nom &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>%1 | ... (%2 values)</source>
        <translation>%1 | ... (%2 valeurs)</translation>
    </message>
    <message>
        <source>no setter</source>
        <translation>aucun setter</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>container</source>
        <translation>conteneur</translation>
    </message>
    <message>
        <source>occurs %1, counts: %2</source>
        <translation>occurrences %1, nombres : %2</translation>
    </message>
    <message>
        <source>alternative by name</source>
        <translation>branche d&apos;un choix par son nom</translation>
    </message>
    <message>
        <source>unfilled: %1</source>
        <translation>non rempli : %1</translation>
    </message>
    <message>
        <source>as it is meant</source>
        <translation>ce qui est voulu</translation>
    </message>
    <message>
        <source>as it is laid out</source>
        <translation>ce qui est créé</translation>
    </message>
    <message>
        <source>element: %1</source>
        <translation>élément : %1</translation>
    </message>
    <message>
        <source>effect:  %1</source>
        <translation>effet :   %1</translation>
    </message>
    <message>
        <source>instead: %1</source>
        <translation>plutôt :  %1</translation>
    </message>
    <message>
        <source>%1 elements are laid out.</source>
        <translation>Nombre d&apos;éléments créés : %1.</translation>
    </message>
    <message>
        <source>%1 errors, %2 warnings, %3 notes.</source>
        <translation>Erreurs : %1, avertissements : %2, remarques : %3.</translation>
    </message>
    <message>
        <source>%1 is abstract.</source>
        <translation>%1 est abstrait.</translation>
    </message>
    <message>
        <source>It is laid out like any other, and no other takes its place.</source>
        <translation>Il est créé comme tout autre, et aucun autre ne prend sa place.</translation>
    </message>
    <message>
        <source>Name the element or the type that reports are to have.</source>
        <translation>Nommer l&apos;élément ou le type que les rapports doivent avoir.</translation>
    </message>
    <message>
        <source>%1 is written here.</source>
        <translation>%1 est écrit ici.</translation>
    </message>
    <message>
        <source>It is read like xs:sequence: the elements are always laid out in the order in which they are written.</source>
        <translation>Lu comme xs:sequence : les éléments sont toujours créés dans l&apos;ordre où ils sont écrits.</translation>
    </message>
    <message>
        <source>Write xs:sequence, which says the same.</source>
        <translation>Écrire xs:sequence, qui dit la même chose.</translation>
    </message>
    <message>
        <source>An xs:annotation stands inside of a restriction.</source>
        <translation>Un xs:annotation se trouve dans une restriction.</translation>
    </message>
    <message>
        <source>Every tag in there counts as a facet: &apos;annotation&apos; and the tags inside become attributes of the report and stay there.</source>
        <translation>Chaque balise y compte comme facette : &apos;annotation&apos; et les balises qu&apos;il contient deviennent des attributs du rapport et y restent.</translation>
    </message>
    <message>
        <source>Put the annotation in front of the restriction, or write a comment.</source>
        <translation>Mettre l&apos;annotation avant la restriction, ou écrire un commentaire.</translation>
    </message>
    <message>
        <source>An attribute is called &apos;%1&apos;.</source>
        <translation>Un attribut s&apos;appelle &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>That is the name of an annotation: the attribute takes its place, is taken for it, and is removed with it.</source>
        <translation>C&apos;est le nom d&apos;une annotation : l&apos;attribut prend sa place, passe pour elle et est supprimé avec elle.</translation>
    </message>
    <message>
        <source>Give the attribute another name; not type, not default, and nothing that contains &apos;enumeration&apos; or &apos;clusive&apos;.</source>
        <translation>Donner un autre nom à l&apos;attribut ; ni type, ni default, ni rien qui contienne &apos;enumeration&apos; ou &apos;clusive&apos;.</translation>
    </message>
    <message>
        <source>An element is called &apos;%1&apos;.</source>
        <translation>Un élément s&apos;appelle &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>That is how simple types are kept: as first element of a type it is not laid out, and what is of the type gets its annotations and no child.</source>
        <translation>C&apos;est ainsi que sont conservés les types simples : en premier élément d&apos;un type, il n&apos;est pas créé, et ce qui est de ce type reçoit ses annotations et aucun enfant.</translation>
    </message>
    <message>
        <source>Give the element another name.</source>
        <translation>Donner un autre nom à l&apos;élément.</translation>
    </message>
    <message>
        <source>xs:any leaves a place for elements that are not named.</source>
        <translation>xs:any laisse une place à des éléments qui ne sont pas nommés.</translation>
    </message>
    <message>
        <source>It is passed over: nothing is laid out there, though an element is required.</source>
        <translation>Ignoré : rien n&apos;est créé à cet endroit, bien qu&apos;un élément soit obligatoire.</translation>
    </message>
    <message>
        <source>It is passed over: no report has an element there.</source>
        <translation>Ignoré : aucun rapport n&apos;a d&apos;élément à cet endroit.</translation>
    </message>
    <message>
        <source>Declare the elements that a report may have.</source>
        <translation>Déclarer les éléments qu&apos;un rapport peut avoir.</translation>
    </message>
    <message>
        <source>It is passed over: only attributes that are declared by name can be set.</source>
        <translation>Ignoré : seuls les attributs déclarés par leur nom peuvent être remplis.</translation>
    </message>
    <message>
        <source>Declare the attributes that a report may have.</source>
        <translation>Déclarer les attributs qu&apos;un rapport peut avoir.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is of the type &apos;%2&apos;.</source>
        <translation>L&apos;élément &apos;%1&apos; est de type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Every setter takes it: any text, truth or time that is offered is written, whether it is a number or not.</source>
        <translation>Tous les setters l&apos;acceptent : tout texte, tout booléen et toute date ou heure proposés sont écrits, qu&apos;il s&apos;agisse d&apos;un nombre ou non.</translation>
    </message>
    <message>
        <source>Write xs:integer, restricted to the range, or offer it integers only.</source>
        <translation>Écrire xs:integer, restreint à l&apos;intervalle, ou ne lui proposer que des entiers.</translation>
    </message>
    <message>
        <source>%1 asks for attributes.</source>
        <translation>%1 demande des attributs.</translation>
    </message>
    <message>
        <source>It is passed over: the element has none of them.</source>
        <translation>Ignoré : l&apos;élément n&apos;en a aucun.</translation>
    </message>
    <message>
        <source>Write the attributes here, each with xs:attribute.</source>
        <translation>Écrire les attributs ici, chacun avec xs:attribute.</translation>
    </message>
    <message>
        <source>%1 defines attributes.</source>
        <translation>%1 définit des attributs.</translation>
    </message>
    <message>
        <source>It is passed over, and each attribute in it counts as a global declaration, which competes for the root of the report.</source>
        <translation>Ignoré, et chaque attribut qu&apos;il contient compte comme déclaration globale, candidate à la racine du rapport.</translation>
    </message>
    <message>
        <source>Remove it; declare the attributes where they are used.</source>
        <translation>Le supprimer ; déclarer les attributs là où ils servent.</translation>
    </message>
    <message>
        <source>%1 stands inside of a restriction.</source>
        <translation>%1 se trouve dans une restriction.</translation>
    </message>
    <message>
        <source>Every tag in there counts as a facet: the report gets an attribute called &apos;%1&apos;, which stays, and not the one that is declared.</source>
        <translation>Chaque balise y compte comme facette : le rapport reçoit un attribut nommé &apos;%1&apos;, qui reste, et non celui qui est déclaré.</translation>
    </message>
    <message>
        <source>Restrict in a named xs:simpleType, and add the attribute in an xs:extension of it.</source>
        <translation>Restreindre dans un xs:simpleType nommé, et ajouter l&apos;attribut dans une xs:extension de celui-ci.</translation>
    </message>
    <message>
        <source>%1 belongs to the named type &apos;%2&apos;.</source>
        <translation>%1 appartient au type nommé &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It goes to the element that was declared last in the type, and not to the element that is of the type.</source>
        <translation>Il va à l&apos;élément déclaré en dernier dans le type, et non à l&apos;élément qui est de ce type.</translation>
    </message>
    <message>
        <source>The type has no element in front of it to go to: it is lost.</source>
        <translation>Le type n&apos;a pas d&apos;élément avant lui auquel il puisse aller : il est perdu.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: only there attributes are understood, at any depth.</source>
        <translation>Écrire &apos;%1&apos;, et chaque type nommé qui l&apos;utilise, dans l&apos;élément qui est de ce type, jusqu&apos;à l&apos;élément global : c&apos;est là seulement que les attributs sont compris, à toute profondeur.</translation>
    </message>
    <message>
        <source>maxInclusive of an attribute is &apos;%1&apos;, beside a lower bound.</source>
        <translation>maxInclusive d&apos;un attribut est &apos;%1&apos;, à côté d&apos;une borne inférieure.</translation>
    </message>
    <message>
        <source>The value %1 itself is refused.</source>
        <translation>La valeur %1 elle-même est refusée.</translation>
    </message>
    <message>
        <source>Write the next greater integer, or leave the lower bound out.</source>
        <translation>Écrire l&apos;entier immédiatement supérieur, ou omettre la borne inférieure.</translation>
    </message>
    <message>
        <source>xs:complexContent derives a type by extension.</source>
        <translation>xs:complexContent dérive un type par extension.</translation>
    </message>
    <message>
        <source>xs:complexContent derives a type by restriction.</source>
        <translation>xs:complexContent dérive un type par restriction.</translation>
    </message>
    <message>
        <source>Every tag inside the restriction becomes an attribute of the report; no element of it is laid out.</source>
        <translation>Chaque balise dans la restriction devient un attribut du rapport ; aucun de ses éléments n&apos;est créé.</translation>
    </message>
    <message>
        <source>The elements of the base are not laid out, and those of the extension are lost with them: who uses the type gets no child.</source>
        <translation>Les éléments de la base ne sont pas créés, et ceux de l&apos;extension sont perdus avec eux : qui utilise le type n&apos;a aucun enfant.</translation>
    </message>
    <message>
        <source>The elements of the base are not laid out, only those of the extension.</source>
        <translation>Les éléments de la base ne sont pas créés, seulement ceux de l&apos;extension.</translation>
    </message>
    <message>
        <source>Write all elements in one xs:complexType, without a base.</source>
        <translation>Écrire tous les éléments dans un seul xs:complexType, sans base.</translation>
    </message>
    <message>
        <source>The name of the attribute &apos;%1&apos; is part of that of &apos;%2&apos;.</source>
        <translation>Le nom de l&apos;attribut &apos;%1&apos; fait partie de celui de &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Facets and enumeration values are found by parts of names: those of &apos;%2&apos; are applied to &apos;%1&apos;, too.</source>
        <translation>Les facettes et les valeurs d&apos;énumération sont trouvées par des parties de noms : celles de &apos;%2&apos; s&apos;appliquent aussi à &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Choose names of which none is part of another.</source>
        <translation>Choisir des noms dont aucun ne fait partie d&apos;un autre.</translation>
    </message>
    <message>
        <source>%1 is &apos;%2&apos;, and %3 is &apos;%4&apos;.</source>
        <translation>%1 est &apos;%2&apos;, et %3 est &apos;%4&apos;.</translation>
    </message>
    <message>
        <source>No value is accepted.</source>
        <translation>Aucune valeur n&apos;est acceptée.</translation>
    </message>
    <message>
        <source>Write the smaller bound as the lower one.</source>
        <translation>Écrire la plus petite borne comme borne inférieure.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included while it is being read.</source>
        <translation>Le fichier &apos;%1&apos; est inclus pendant qu&apos;il est lu.</translation>
    </message>
    <message>
        <source>The include of &apos;%1&apos; is too deep.</source>
        <translation>L&apos;inclusion de &apos;%1&apos; est trop profonde.</translation>
    </message>
    <message>
        <source>It is skipped.</source>
        <translation>Le fichier est ignoré.</translation>
    </message>
    <message>
        <source>Include all files in the top file, and none in the others.</source>
        <translation>Inclure tous les fichiers dans le fichier principal, et aucun dans les autres.</translation>
    </message>
    <message>
        <source>%1 is declared in front of an xs:include, in line %2.</source>
        <translation>%1 est déclaré avant un xs:include, ligne %2.</translation>
    </message>
    <message>
        <source>%1 is declared in an included file.</source>
        <translation>%1 est déclaré dans un fichier inclus.</translation>
    </message>
    <message>
        <source>The end of the included file marks it as used: it never becomes the root of a report.</source>
        <translation>La fin du fichier inclus le marque comme utilisé : il ne devient jamais la racine d&apos;un rapport.</translation>
    </message>
    <message>
        <source>Write every xs:include in front of all declarations.</source>
        <translation>Écrire chaque xs:include avant toutes les déclarations.</translation>
    </message>
    <message>
        <source>Declare the root in the file that includes the others, or refer to this element there.</source>
        <translation>Déclarer la racine dans le fichier qui inclut les autres, ou y faire référence à cet élément.</translation>
    </message>
    <message>
        <source>The whole schema is given up: the report holds nothing.</source>
        <translation>Tout le schéma est abandonné : le rapport ne contient rien.</translation>
    </message>
    <message>
        <source>Lay out less: lower minOccurs, and split the schema into several.</source>
        <translation>Créer moins : réduire minOccurs et diviser le schéma en plusieurs.</translation>
    </message>
    <message>
        <source>That is more than is shown: there is no tree here, and rules that need the tree are silent. The library goes on, up to limits of its own.</source>
        <translation>C&apos;est plus que ce qui est affiché : il n&apos;y a pas d&apos;arbre ici, et les règles qui en ont besoin se taisent. La bibliothèque continue, jusqu&apos;à ses propres limites.</translation>
    </message>
    <message>
        <source>Lay out less, if reports are to be written quickly.</source>
        <translation>Créer moins, si les rapports doivent être écrits vite.</translation>
    </message>
    <message>
        <source>Any value is taken, and the enumeration stays in the report as attributes that the schema does not allow.</source>
        <translation>Toute valeur est acceptée, et l&apos;énumération reste dans le rapport comme attributs que le schéma n&apos;autorise pas.</translation>
    </message>
    <message>
        <source>Enumerate texts, xs:string, or write bounds: minInclusive and maxInclusive.</source>
        <translation>Énumérer des textes, xs:string, ou écrire des bornes : minInclusive et maxInclusive.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</source>
        <translation>L&apos;élément &apos;%1&apos; énumère des valeurs de type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; enumerates values of the type &apos;%2&apos;.</source>
        <translation>L&apos;attribut &apos;%1&apos; énumère des valeurs de type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>%1 is 65535.</source>
        <translation>%1 est 65535.</translation>
    </message>
    <message>
        <source>That number says that there is no bound: any value is accepted, and the facet stays in the report as an attribute.</source>
        <translation>Ce nombre dit qu&apos;il n&apos;y a pas de borne : toute valeur est acceptée, et la facette reste dans le rapport comme attribut.</translation>
    </message>
    <message>
        <source>Take another bound, such as 65534 or 65535.5, or leave the facet out.</source>
        <translation>Prendre une autre borne, comme 65534 ou 65535.5, ou omettre la facette.</translation>
    </message>
    <message>
        <source>A file called &apos;%1&apos; is looked for.</source>
        <translation>Un fichier nommé &apos;%1&apos; est recherché.</translation>
    </message>
    <message>
        <source>The base is not read: what is derived here has no type.</source>
        <translation>La base n&apos;est pas lue : ce qui est dérivé ici n&apos;a pas de type.</translation>
    </message>
    <message>
        <source>It counts as a named type called &apos;%1&apos;: what is inside belongs to that type and not to the element around it.</source>
        <translation>Il compte comme type nommé &apos;%1&apos; : ce qu&apos;il contient appartient à ce type et non à l&apos;élément qui l&apos;entoure.</translation>
    </message>
    <message>
        <source>It is called &apos;%1&apos;: whoever refers to &apos;%2&apos; does not find it.</source>
        <translation>Il s&apos;appelle &apos;%1&apos; : qui se réfère à &apos;%2&apos; ne le trouve pas.</translation>
    </message>
    <message>
        <source>The value of the facet is taken to be &apos;%1&apos;.</source>
        <translation>La valeur prise pour la facette est &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The first attribute of &lt;%1&gt; is &apos;%2&apos;, not &apos;%3&apos;.</source>
        <translation>Le premier attribut de &lt;%1&gt; est &apos;%2&apos;, et non &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>Write %1 in front of all other attributes.</source>
        <translation>Écrire %1 avant tous les autres attributs.</translation>
    </message>
    <message>
        <source>Leave the attribute out, or give the type a name, written first.</source>
        <translation>Omettre l&apos;attribut, ou donner un nom au type, écrit en premier.</translation>
    </message>
    <message>
        <source>%1 has the fixed value &apos;%2&apos;.</source>
        <translation>%1 a la valeur fixe &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The value is neither written nor checked: any other is accepted.</source>
        <translation>La valeur n&apos;est ni écrite ni vérifiée : toute autre est acceptée.</translation>
    </message>
    <message>
        <source>Restrict xs:string to an enumeration of this one value, and have it set like any other: a default that nobody sets leaves the annotations.</source>
        <translation>Restreindre xs:string à une énumération de cette seule valeur, et la faire remplir comme toute autre : une valeur par défaut que personne ne confirme laisse les annotations.</translation>
    </message>
    <message>
        <source>%1 of an attribute is &apos;%2&apos;.</source>
        <translation>%1 d&apos;un attribut est &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>Bounds of attributes are read as integers: this one counts as 0.</source>
        <translation>Les bornes d&apos;attributs sont lues comme entiers : celle-ci compte pour 0.</translation>
    </message>
    <message>
        <source>Write an integer, or make the attribute an element.</source>
        <translation>Écrire un entier, ou faire de l&apos;attribut un élément.</translation>
    </message>
    <message>
        <source>%1 asks for the elements of a group.</source>
        <translation>%1 demande les éléments d&apos;un groupe.</translation>
    </message>
    <message>
        <source>It is passed over: none of them is laid out here.</source>
        <translation>Ignoré : aucun d&apos;eux n&apos;est créé ici.</translation>
    </message>
    <message>
        <source>Write the elements of the group here, or put them into an element of a named type.</source>
        <translation>Écrire ici les éléments du groupe, ou les mettre dans un élément d&apos;un type nommé.</translation>
    </message>
    <message>
        <source>%1 defines a group.</source>
        <translation>%1 définit un groupe.</translation>
    </message>
    <message>
        <source>It is passed over, and each element in it counts as a global declaration, which competes for the root of the report.</source>
        <translation>Ignoré, et chaque élément qu&apos;il contient compte comme déclaration globale, candidate à la racine du rapport.</translation>
    </message>
    <message>
        <source>Remove it; write its elements where they are used.</source>
        <translation>Le supprimer ; écrire ses éléments là où ils servent.</translation>
    </message>
    <message>
        <source>It is passed over: nothing is compared while a report is filled.</source>
        <translation>Ignoré : rien n&apos;est comparé pendant qu&apos;un rapport est rempli.</translation>
    </message>
    <message>
        <source>Keep it for the validation of finished reports, or leave it out.</source>
        <translation>Le garder pour la validation des rapports terminés, ou l&apos;omettre.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; names the schema &apos;%2&apos;.</source>
        <translation>&lt;%1&gt; nomme le schéma &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It is passed over: nothing of that schema is read.</source>
        <translation>Ignoré : rien de ce schéma n&apos;est lu.</translation>
    </message>
    <message>
        <source>That schema is not read; what stands inside the tag is read as if it stood beside it.</source>
        <translation>Ce schéma n&apos;est pas lu ; ce qui se trouve dans la balise est lu comme si c&apos;était à côté.</translation>
    </message>
    <message>
        <source>Use xs:include, and put what is taken from there under no namespace.</source>
        <translation>Utiliser xs:include, et ne mettre dans aucun espace de noms ce qui en vient.</translation>
    </message>
    <message>
        <source>%1 has a type written inside of it.</source>
        <translation>Un type est écrit à l&apos;intérieur de %1.</translation>
    </message>
    <message>
        <source>The attribute gets no type, so that no setter takes it; the type and its facets go to an element instead.</source>
        <translation>L&apos;attribut ne reçoit pas de type, si bien qu&apos;aucun setter ne l&apos;accepte ; le type et ses facettes vont à un élément.</translation>
    </message>
    <message>
        <source>Declare the attribute globally with this type, and refer to it here with &lt;xs:attribute ref=&quot;%1&quot;/&gt;.</source>
        <translation>Déclarer l&apos;attribut globalement avec ce type, et s&apos;y référer ici par &lt;xs:attribute ref=&quot;%1&quot;/&gt;.</translation>
    </message>
    <message>
        <source>The declaration is left out.</source>
        <translation>La déclaration est omise.</translation>
    </message>
    <message>
        <source>Write a name of letters, digits, &apos;-&apos;, &apos;_&apos; and &apos;.&apos;, without blanks, that begins with a letter or &apos;_&apos;.</source>
        <translation>Écrire un nom de lettres, chiffres, &apos;-&apos;, &apos;_&apos; et &apos;.&apos;, sans espaces, qui commence par une lettre ou &apos;_&apos;.</translation>
    </message>
    <message>
        <source>libxml2 does not accept the schema: %1</source>
        <translation>libxml2 n&apos;accepte pas le schéma : %1</translation>
    </message>
    <message>
        <source>The library does not look at it, but no report can be validated.</source>
        <translation>La bibliothèque n&apos;en tient pas compte, mais aucun rapport ne peut être validé.</translation>
    </message>
    <message>
        <source>Mend the schema.</source>
        <translation>Corriger le schéma.</translation>
    </message>
    <message>
        <source>Declare the prefix: xmlns:%1=&quot;...&quot;.</source>
        <translation>Déclarer le préfixe : xmlns:%1=&quot;...&quot;.</translation>
    </message>
    <message>
        <source>the prefix &apos;%1:&apos;</source>
        <translation>le préfixe &apos;%1:&apos;</translation>
    </message>
    <message>
        <source>It is passed over: what is of this type has no type and cannot be filled.</source>
        <translation>Ignoré : ce qui est de ce type n&apos;a pas de type et ne peut pas être rempli.</translation>
    </message>
    <message>
        <source>Use xs:string and write the list as a text, or repeat the element.</source>
        <translation>Utiliser xs:string et écrire la liste comme texte, ou répéter l&apos;élément.</translation>
    </message>
    <message>
        <source>The included file &apos;%1&apos; is no well-formed XML: %2</source>
        <translation>Le fichier inclus &apos;%1&apos; n&apos;est pas du XML bien formé : %2</translation>
    </message>
    <message>
        <source>What stands behind the fault is not read, without a word.</source>
        <translation>Ce qui suit l&apos;erreur est ignoré sans avertissement.</translation>
    </message>
    <message>
        <source>Mend the file.</source>
        <translation>Corriger le fichier.</translation>
    </message>
    <message>
        <source>Name the schema with its folder, such as ./%1: a name without any counts as a folder. That goes for the path that an application gives to the library, too.</source>
        <translation>Nommer le schéma avec son dossier, comme ./%1 : un nom sans dossier compte comme dossier. Cela vaut aussi pour le chemin qu&apos;une application donne à la bibliothèque.</translation>
    </message>
    <message>
        <source>Write the location as seen from the top file: includes of included files count from there, too.</source>
        <translation>Écrire l&apos;emplacement vu du fichier principal : les inclusions des fichiers inclus partent aussi de là.</translation>
    </message>
    <message>
        <source>Give the location as seen from the folder of the top file.</source>
        <translation>Donner l&apos;emplacement vu du dossier du fichier principal.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included and cannot be read.</source>
        <translation>Le fichier &apos;%1&apos; est inclus et ne peut pas être lu.</translation>
    </message>
    <message>
        <source>It is looked for as &apos;%1&apos;, and passed over without a word.</source>
        <translation>Il est recherché comme &apos;%1&apos;, et ignoré sans avertissement.</translation>
    </message>
    <message>
        <source>%1 refers to &apos;%2&apos;, which is defined nowhere.</source>
        <translation>%1 se réfère à &apos;%2&apos;, qui n&apos;est défini nulle part.</translation>
    </message>
    <message>
        <source>%1 refers to &apos;%2&apos;, which nothing defines that could be read.</source>
        <translation>%1 se réfère à &apos;%2&apos;, que rien de ce qui a pu être lu ne définit.</translation>
    </message>
    <message>
        <source>Define &apos;%1&apos;, include the file that does, or write xs:%1 if it is a type of XML Schema.</source>
        <translation>Définir &apos;%1&apos;, inclure le fichier qui le fait, ou écrire xs:%1 si c&apos;est un type de XML Schema.</translation>
    </message>
    <message>
        <source>An xs:choice stands inside of another.</source>
        <translation>Un xs:choice se trouve dans un autre.</translation>
    </message>
    <message>
        <source>Its end ends the outer one too: the alternatives behind it are mandatory, unless their own minOccurs is 0.</source>
        <translation>Sa fin termine aussi celui qui l&apos;entoure : les branches qui suivent sont obligatoires, sauf si leur propre minOccurs est 0.</translation>
    </message>
    <message>
        <source>Write the alternatives of both as one choice, or put the inner choice last.</source>
        <translation>Écrire les branches des deux en un seul choix, ou mettre le choix intérieur à la fin.</translation>
    </message>
    <message>
        <source>An anonymous complex type stands inside of the named type &apos;%1&apos;.</source>
        <translation>Un type complexe anonyme se trouve dans le type nommé &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Its elements are laid out beside the element that they belong to, and the place for references and attributes moves inside of the global element that was read last.</source>
        <translation>Ses éléments sont créés à côté de l&apos;élément auquel ils appartiennent, et la place des références et des attributs passe dans l&apos;élément global lu en dernier.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos;, and each named type that it is used in, inside of the element that is of it, up to the global element: a type with attributes can have no name.</source>
        <translation>Écrire &apos;%1&apos;, et chaque type nommé qui l&apos;utilise, dans l&apos;élément qui est de ce type, jusqu&apos;à l&apos;élément global : un type avec attributs ne peut pas avoir de nom.</translation>
    </message>
    <message>
        <source>Give the inner type a name, at the top of the schema, and refer to it with type.</source>
        <translation>Donner un nom au type intérieur, au premier niveau du schéma, et s&apos;y référer par type.</translation>
    </message>
    <message>
        <source>%1 is nillable.</source>
        <translation>%1 est nillable.</translation>
    </message>
    <message>
        <source>No report has an xsi:nil: an element without a value stays with its annotations, or is removed when it may be missing.</source>
        <translation>Aucun rapport n&apos;a de xsi:nil : un élément sans valeur reste avec ses annotations, ou est supprimé s&apos;il peut manquer.</translation>
    </message>
    <message>
        <source>Write minOccurs=&quot;0&quot; for what may be without a value.</source>
        <translation>Écrire minOccurs=&quot;0&quot; pour ce qui peut être sans valeur.</translation>
    </message>
    <message>
        <source>%1 has minOccurs or maxOccurs of its own.</source>
        <translation>%1 a son propre minOccurs ou maxOccurs.</translation>
    </message>
    <message>
        <source>They are passed over: what is inside is laid out once, and is optional or repeatable only by its own minOccurs and maxOccurs.</source>
        <translation>Ignorés : ce qui se trouve à l&apos;intérieur est créé une fois, et n&apos;est facultatif ou répétable que par ses propres minOccurs et maxOccurs.</translation>
    </message>
    <message>
        <source>Write minOccurs and maxOccurs at the elements inside, or at an element around them.</source>
        <translation>Écrire minOccurs et maxOccurs aux éléments intérieurs, ou à un élément qui les entoure.</translation>
    </message>
    <message>
        <source>%1 is called like %2 in line %3 of %4.</source>
        <translation>%1 porte le même nom que %2, ligne %3 de %4.</translation>
    </message>
    <message>
        <source>Elements, attributes and types share one space of names: this one takes the place of the earlier one for all that refers to the name from here on.</source>
        <translation>Éléments, attributs et types partagent un même ensemble de noms : celui-ci prend la place du précédent pour tout ce qui se réfère au nom à partir d&apos;ici.</translation>
    </message>
    <message>
        <source>Give each global declaration and each type a name of its own.</source>
        <translation>Donner à chaque déclaration globale et à chaque type un nom qui lui soit propre.</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>non indiqué</translation>
    </message>
    <message>
        <source>minOccurs %1, maxOccurs %2, in a choice</source>
        <translation>minOccurs %1, maxOccurs %2, dans un choix</translation>
    </message>
    <message>
        <source>minOccurs %1, maxOccurs %2</source>
        <translation>minOccurs %1, maxOccurs %2</translation>
    </message>
    <message>
        <source>its own in line %1</source>
        <translation>le sien, ligne %1</translation>
    </message>
    <message>
        <source>%1 has the limits: %2; in line %3 it has: %4.</source>
        <translation>%1 a les limites : %2 ; à la ligne %3 : %4.</translation>
    </message>
    <message>
        <source>Limits are found by name: those of the one may be applied to the other where one of their owners stands inside of the other, and an alternative of any choice may be missing everywhere.</source>
        <translation>Les limites sont trouvées par nom : celles de l&apos;un peuvent s&apos;appliquer à l&apos;autre si l&apos;un de leurs propriétaires se trouve dans l&apos;autre, et une branche d&apos;un choix quelconque peut manquer partout.</translation>
    </message>
    <message>
        <source>Give the two elements different names, or the same limits.</source>
        <translation>Donner aux deux éléments des noms différents, ou les mêmes limites.</translation>
    </message>
    <message>
        <source>%1 is of the type &apos;%2&apos;; in line %3 it is of &apos;%4&apos;.</source>
        <translation>%1 est de type &apos;%2&apos; ; à la ligne %3, de type &apos;%4&apos;.</translation>
    </message>
    <message>
        <source>An observer that knows elements by their name alone offers both the same value.</source>
        <translation>Un observateur qui ne connaît les éléments que par leur nom propose aux deux la même valeur.</translation>
    </message>
    <message>
        <source>Give the two elements different names, or the same type.</source>
        <translation>Donner aux deux éléments des noms différents, ou le même type.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, but not known to be.</source>
        <translation>L&apos;élément &apos;%1&apos; est facultatif, mais n&apos;est pas reconnu comme tel.</translation>
    </message>
    <message>
        <source>When nothing fills it, it stays, with its annotations: what is optional is looked for below the first element that is called like its owner, and in a named type the owner is the type.</source>
        <translation>Si rien ne le remplit, il reste, avec ses annotations : ce qui est facultatif est recherché sous le premier élément qui porte le nom de son propriétaire, et dans un type nommé, le propriétaire est le type.</translation>
    </message>
    <message>
        <source>Write the type inside of the element that is of it, or call that element like the type, or fill &apos;%1&apos; in every report.</source>
        <translation>Écrire le type dans l&apos;élément qui est de ce type, ou donner à cet élément le nom du type, ou remplir &apos;%1&apos; dans chaque rapport.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional inside of one that may be repeated.</source>
        <translation>L&apos;élément &apos;%1&apos; est facultatif dans un élément qui peut se répéter.</translation>
    </message>
    <message>
        <source>When nothing fills it, it is removed from the first copy only, and stays in the others, with its annotations: what is optional is looked for below the first element that is called like its owner.</source>
        <translation>Si rien ne le remplit, il n&apos;est supprimé que de la première copie et reste dans les autres, avec ses annotations : ce qui est facultatif est recherché sous le premier élément qui porte le nom de son propriétaire.</translation>
    </message>
    <message>
        <source>Fill &apos;%1&apos; in every copy but the first, or make it required.</source>
        <translation>Remplir &apos;%1&apos; dans chaque copie sauf la première, ou le rendre obligatoire.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, and stands behind &apos;%2&apos;, which is optional and empty.</source>
        <translation>L&apos;élément &apos;%1&apos; est facultatif et suit &apos;%2&apos;, qui est facultatif et vide.</translation>
    </message>
    <message>
        <source>When nothing fills &apos;%1&apos;, &apos;%2&apos; is removed in its place, and the report goes on where that stood: &apos;%1&apos; stays, with its annotations, and what follows is not asked for.</source>
        <translation>Si rien ne remplit &apos;%1&apos;, c&apos;est &apos;%2&apos; qui est supprimé, et le rapport continue là où il se trouvait : &apos;%1&apos; reste, avec ses annotations, et ce qui suit n&apos;est pas demandé.</translation>
    </message>
    <message>
        <source>Put an element with a value into &apos;%1&apos;, or &apos;%1&apos; in front of one of its siblings.</source>
        <translation>Mettre dans &apos;%1&apos; un élément qui a une valeur, ou &apos;%1&apos; avant l&apos;un de ses frères.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; is optional, and nothing inside of it takes a value.</source>
        <translation>L&apos;élément &apos;%1&apos; est facultatif, et rien à l&apos;intérieur n&apos;accepte de valeur.</translation>
    </message>
    <message>
        <source>Attributes alone do not fill it and do not remove it: it stays, with its annotations, unless a value behind it is unfilled. That one removes it.</source>
        <translation>Les attributs seuls ne le remplissent pas et ne le suppriment pas : il reste, avec ses annotations, sauf si une valeur qui le suit n&apos;est pas remplie. C&apos;est elle qui le supprime.</translation>
    </message>
    <message>
        <source>Put an element with a value into &apos;%1&apos;, or make it required and set its attributes in every report.</source>
        <translation>Mettre dans &apos;%1&apos; un élément qui a une valeur, ou le rendre obligatoire et remplir ses attributs dans chaque rapport.</translation>
    </message>
    <message>
        <source>%1 is optional with maxOccurs=&quot;%2&quot;.</source>
        <translation>%1 est facultatif avec maxOccurs=&quot;%2&quot;.</translation>
    </message>
    <message>
        <source>Counts up to %1 are accepted: more than the schema allows.</source>
        <translation>Jusqu&apos;à %1 sont acceptés : plus que le schéma n&apos;autorise.</translation>
    </message>
    <message>
        <source>Leave maxOccurs out.</source>
        <translation>Omettre maxOccurs.</translation>
    </message>
    <message>
        <source>Write maxOccurs=&quot;unbounded&quot;, or make the element required inside of an optional one.</source>
        <translation>Écrire maxOccurs=&quot;unbounded&quot;, ou rendre l&apos;élément obligatoire dans un élément facultatif.</translation>
    </message>
    <message>
        <source>%1 is optional without maxOccurs, in a group that may occur repeatedly.</source>
        <translation>%1 est facultatif sans maxOccurs, dans un groupe qui peut se répéter.</translation>
    </message>
    <message>
        <source>No count above 0 is accepted for it: a second one is refused.</source>
        <translation>Aucun nombre supérieur à 0 n&apos;est accepté : un second est refusé.</translation>
    </message>
    <message>
        <source>Write maxOccurs=&quot;unbounded&quot; at the element.</source>
        <translation>Écrire maxOccurs=&quot;unbounded&quot; à l&apos;élément.</translation>
    </message>
    <message>
        <source>%1 stands in front of %2.</source>
        <translation>%1 se trouve avant %2.</translation>
    </message>
    <message>
        <source>It is laid out behind it: what is read behind the reference to it comes in at the end, in the order of names.</source>
        <translation>Il est créé après celui-ci : ce qui est lu après la référence vient s&apos;ajouter à la fin, dans l&apos;ordre des noms.</translation>
    </message>
    <message>
        <source>Declare &apos;%1&apos; and &apos;%2&apos; in front of the element that refers to them.</source>
        <translation>Déclarer &apos;%1&apos; et &apos;%2&apos; avant l&apos;élément qui s&apos;y réfère.</translation>
    </message>
    <message>
        <source>The tags of XML Schema are written without the prefix &apos;xs:&apos;: &lt;%1&gt;.</source>
        <translation>Les balises de XML Schema sont écrites sans le préfixe &apos;xs:&apos; : &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>They are passed over without a word: nothing of them is laid out.</source>
        <translation>Elles sont ignorées sans avertissement : rien n&apos;en est créé.</translation>
    </message>
    <message>
        <source>Declare xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot; and write xs: in front of every tag and every type of XML Schema.</source>
        <translation>Déclarer xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot; et écrire xs: devant chaque balise et chaque type de XML Schema.</translation>
    </message>
    <message>
        <source>The file is no XML schema: its root is &lt;%1&gt;.</source>
        <translation>Le fichier n&apos;est pas un schéma XML : sa racine est &lt;%1&gt;.</translation>
    </message>
    <message>
        <source>Nothing of it is laid out.</source>
        <translation>Rien n&apos;en est créé.</translation>
    </message>
    <message>
        <source>Write &lt;xs:schema xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot;&gt; as its root.</source>
        <translation>Écrire &lt;xs:schema xmlns:xs=&quot;http://www.w3.org/2001/XMLSchema&quot;&gt; comme racine.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is not in the folder of the top file.</source>
        <translation>Le fichier &apos;%1&apos; n&apos;est pas dans le dossier du fichier principal.</translation>
    </message>
    <message>
        <source>It is read as &apos;%1&apos;; whoever gets the folder alone does not get it.</source>
        <translation>Il est lu comme &apos;%1&apos; ; qui ne reçoit que le dossier ne le reçoit pas.</translation>
    </message>
    <message>
        <source>Keep the files of a schema in one folder.</source>
        <translation>Garder les fichiers d&apos;un schéma dans un même dossier.</translation>
    </message>
    <message>
        <source>%1=&quot;%2&quot; has a prefix that is not &apos;xs:&apos;.</source>
        <translation>%1=&quot;%2&quot; a un préfixe qui n&apos;est pas &apos;xs:&apos;.</translation>
    </message>
    <message>
        <source>It contains &apos;xs:&apos;, so its first three characters are cut off and the rest counts as a type of XML Schema.</source>
        <translation>Il contient &apos;xs:&apos;, donc ses trois premiers caractères sont coupés et le reste compte comme type de XML Schema.</translation>
    </message>
    <message>
        <source>A definition called &apos;%1&apos; is looked up, prefix included; it never comes, and the whole schema is given up.</source>
        <translation>Une définition nommée &apos;%1&apos; est recherchée, préfixe compris ; elle n&apos;arrive jamais, et tout le schéma est abandonné.</translation>
    </message>
    <message>
        <source>Write &apos;%1&apos; for a definition of the schema, &apos;xs:%1&apos; for a type of XML Schema.</source>
        <translation>Écrire &apos;%1&apos; pour une définition du schéma, &apos;xs:%1&apos; pour un type de XML Schema.</translation>
    </message>
    <message>
        <source>Definitions contain each other: %1.</source>
        <translation>Des définitions se contiennent mutuellement : %1.</translation>
    </message>
    <message>
        <source>They wait for each other, and the whole schema is given up: the report holds nothing.</source>
        <translation>Elles s&apos;attendent mutuellement, et tout le schéma est abandonné : le rapport ne contient rien.</translation>
    </message>
    <message>
        <source>The repetition ends where the library meets it: a report has no more levels than are laid out.</source>
        <translation>La répétition s&apos;arrête là où la bibliothèque la rencontre : un rapport n&apos;a pas plus de niveaux qu&apos;il n&apos;en est créé.</translation>
    </message>
    <message>
        <source>Write as many levels as reports have, each as a type of its own.</source>
        <translation>Écrire autant de niveaux que les rapports en ont, chacun comme un type à part.</translation>
    </message>
    <message>
        <source>%1 stands inside of the named type &apos;%2&apos;.</source>
        <translation>%1 se trouve dans le type nommé &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The element is laid out in the global element that was read last in front of the type, and not where the type is used.</source>
        <translation>L&apos;élément est créé dans l&apos;élément global lu en dernier avant le type, et non là où le type est utilisé.</translation>
    </message>
    <message>
        <source>Declare the element here with name and type, or refer to it inside of an anonymous type of a global element.</source>
        <translation>Déclarer l&apos;élément ici avec name et type, ou s&apos;y référer dans un type anonyme d&apos;un élément global.</translation>
    </message>
    <message>
        <source>%1 is required %2 times, inside of the named type &apos;%3&apos;, and its type &apos;%4&apos; is defined later.</source>
        <translation>%1 est obligatoire %2 fois, dans le type nommé &apos;%3&apos;, et son type &apos;%4&apos; est défini plus loin.</translation>
    </message>
    <message>
        <source>Its copies are lost, and with them all elements of the type that follow it.</source>
        <translation>Ses copies sont perdues, et avec elles tous les éléments du type qui le suivent.</translation>
    </message>
    <message>
        <source>Define &apos;%1&apos; in front of &apos;%2&apos;.</source>
        <translation>Définir &apos;%1&apos; avant &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is included once more.</source>
        <translation>Le fichier &apos;%1&apos; est inclus une fois de plus.</translation>
    </message>
    <message>
        <source>It is read again, and its definitions take the place of those that it gave before.</source>
        <translation>Il est relu, et ses définitions prennent la place de celles qu&apos;il avait données.</translation>
    </message>
    <message>
        <source>Include each file once, in the top file.</source>
        <translation>Inclure chaque fichier une fois, dans le fichier principal.</translation>
    </message>
    <message>
        <source>%1 is required %2 times and has its type written inside of it.</source>
        <translation>%1 est obligatoire %2 fois et son type est écrit à l&apos;intérieur.</translation>
    </message>
    <message>
        <source>Only the last of its copies gets what the type says.</source>
        <translation>Seule la dernière de ses copies reçoit ce que dit le type.</translation>
    </message>
    <message>
        <source>Give the type a name, in front of this one, and refer to it with type.</source>
        <translation>Donner un nom au type, avant celui-ci, et s&apos;y référer par type.</translation>
    </message>
    <message>
        <source>%1 is required %2 times, without maxOccurs.</source>
        <translation>%1 est obligatoire %2 fois, sans maxOccurs.</translation>
    </message>
    <message>
        <source>%1 is required without maxOccurs, in a group that may occur repeatedly.</source>
        <translation>%1 est obligatoire sans maxOccurs, dans un groupe qui peut se répéter.</translation>
    </message>
    <message>
        <source>It has no limits at all: every count is refused, also that of one.</source>
        <translation>Il n&apos;a aucune limite : tout nombre est refusé, même un seul.</translation>
    </message>
    <message>
        <source>Write maxOccurs at the element.</source>
        <translation>Écrire maxOccurs à l&apos;élément.</translation>
    </message>
    <message>
        <source>The restriction is one of the type &apos;%1&apos;.</source>
        <translation>La restriction porte sur le type &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; itself becomes the type: its own type and facets are not looked at, and no setter takes a type of that name.</source>
        <translation>&apos;%1&apos; devient lui-même le type : son propre type et ses facettes ne sont pas regardés, et aucun setter n&apos;accepte un type de ce nom.</translation>
    </message>
    <message>
        <source>Restrict the type of XML Schema that &apos;%1&apos; stands on, and repeat its facets here.</source>
        <translation>Restreindre le type de XML Schema sur lequel repose &apos;%1&apos;, et répéter ici ses facettes.</translation>
    </message>
    <message>
        <source>No global element is left for the root: something refers to each of them, or comes in front of an include.</source>
        <translation>Il ne reste aucun élément global pour la racine : chacun est référencé, ou se trouve devant un include.</translation>
    </message>
    <message>
        <source>The definition that was read last is taken: &apos;%1&apos;.</source>
        <translation>La définition lue en dernier est prise : &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Declare the element that reports begin with globally, behind all includes, and refer to it nowhere.</source>
        <translation>Déclarer globalement l&apos;élément par lequel commencent les rapports, après tous les includes, et ne s&apos;y référer nulle part.</translation>
    </message>
    <message>
        <source>%1 global declarations compete for the root of the report: %2.</source>
        <translation>%1 déclarations globales sont candidates à la racine du rapport : %2.</translation>
    </message>
    <message>
        <source>Nothing refers to them; &apos;%1&apos; wins, because its name is the greatest.</source>
        <translation>Rien ne s&apos;y réfère ; &apos;%1&apos; l&apos;emporte, parce que son nom est le plus grand.</translation>
    </message>
    <message>
        <source>Leave out what no report needs, or refer to it, so that only the root is left.</source>
        <translation>Omettre ce dont aucun rapport n&apos;a besoin, ou s&apos;y référer, pour qu&apos;il ne reste que la racine.</translation>
    </message>
    <message>
        <source>Nothing refers to the global attribute &apos;%1&apos;.</source>
        <translation>Rien ne se réfère à l&apos;attribut global &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>It competes for the root of the report, and wins: the report is one element of that name.</source>
        <translation>Il est candidat à la racine du rapport, et l&apos;emporte : le rapport est un seul élément de ce nom.</translation>
    </message>
    <message>
        <source>It competes for the root of the report; a name greater than those of the elements would win.</source>
        <translation>Il est candidat à la racine du rapport ; un nom plus grand que ceux des éléments l&apos;emporterait.</translation>
    </message>
    <message>
        <source>Refer to it with &lt;xs:attribute ref=&quot;%1&quot;/&gt;, or leave it out.</source>
        <translation>S&apos;y référer par &lt;xs:attribute ref=&quot;%1&quot;/&gt;, ou l&apos;omettre.</translation>
    </message>
    <message>
        <source>%1 more of this kind are left out, the last of them here.</source>
        <translation>%1 autres de ce genre sont omis, le dernier ici.</translation>
    </message>
    <message>
        <source>%1 elements are laid out as roots, of which &apos;%2&apos; is the first.</source>
        <translation>%1 éléments sont créés comme racines, dont &apos;%2&apos; est le premier.</translation>
    </message>
    <message>
        <source>The report gets all of them, one behind the other: it is no XML document, and no program reads it.</source>
        <translation>Le rapport les reçoit tous, l&apos;un après l&apos;autre : ce n&apos;est pas un document XML, et aucun programme ne le lit.</translation>
    </message>
    <message>
        <source>Declare one global element around them, behind all includes, and refer to it nowhere.</source>
        <translation>Déclarer un élément global qui les entoure, après tous les includes, et ne s&apos;y référer nulle part.</translation>
    </message>
    <message>
        <source>xs:simpleContent restricts &apos;%1&apos;.</source>
        <translation>xs:simpleContent restreint &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>The name of the base becomes the type, so that no setter takes it, and whatever else is inside becomes an attribute of the report.</source>
        <translation>Le nom de la base devient le type, si bien qu&apos;aucun setter ne l&apos;accepte, et tout le reste du contenu devient un attribut du rapport.</translation>
    </message>
    <message>
        <source>Restrict a type of XML Schema in a named xs:simpleType, and extend that by the attributes in xs:simpleContent.</source>
        <translation>Restreindre un type de XML Schema dans un xs:simpleType nommé, et l&apos;étendre par les attributs dans xs:simpleContent.</translation>
    </message>
    <message>
        <source>%1 has a simple type written inside of it, two types deep.</source>
        <translation>Un type simple est écrit à l&apos;intérieur de %1, à deux types de profondeur.</translation>
    </message>
    <message>
        <source>What follows it in the same place moves one level up in the report.</source>
        <translation>Ce qui le suit au même endroit monte d&apos;un niveau dans le rapport.</translation>
    </message>
    <message>
        <source>Give the simple type a name, at the top of the schema, and refer to it with type.</source>
        <translation>Donner un nom au type simple, au premier niveau du schéma, et s&apos;y référer par type.</translation>
    </message>
    <message>
        <source>%1 may stand for &apos;%2&apos;.</source>
        <translation>%1 peut remplacer &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It never does: a reference to &apos;%1&apos; lays out only that one. A member that nothing refers to competes for the root of the report.</source>
        <translation>Cela n&apos;arrive jamais : une référence à &apos;%1&apos; ne crée que celui-ci. Un membre auquel rien ne se réfère est candidat à la racine du rapport.</translation>
    </message>
    <message>
        <source>Write the members as alternatives of an xs:choice.</source>
        <translation>Écrire les membres comme branches d&apos;un xs:choice.</translation>
    </message>
    <message>
        <source>The schema has the target namespace &apos;%1&apos;.</source>
        <translation>Le schéma a l&apos;espace de noms cible &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>Reports are written without a namespace and refer to the schema as one without, so that none is ever valid.</source>
        <translation>Les rapports sont écrits sans espace de noms et se réfèrent au schéma comme sans, si bien qu&apos;aucun n&apos;est jamais valide.</translation>
    </message>
    <message>
        <source>Remove targetNamespace, and the namespace declaration that goes with it.</source>
        <translation>Supprimer targetNamespace, et la déclaration d&apos;espace de noms qui l&apos;accompagne.</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(rien)</translation>
    </message>
    <message>
        <source>Write xs:double.</source>
        <translation>Écrire xs:double.</translation>
    </message>
    <message>
        <source>Write xs:integer, restricted to the range.</source>
        <translation>Écrire xs:integer, restreint à l&apos;intervalle.</translation>
    </message>
    <message>
        <source>Write xs:dateTime, or xs:string.</source>
        <translation>Écrire xs:dateTime, ou xs:string.</translation>
    </message>
    <message>
        <source>Write xs:string.</source>
        <translation>Écrire xs:string.</translation>
    </message>
    <message>
        <source>Write one of %1, or a named xs:simpleType that restricts one of them.</source>
        <translation>Écrire l&apos;un des types %1, ou un xs:simpleType nommé qui restreint l&apos;un d&apos;eux.</translation>
    </message>
    <message>
        <source>Write xs:integer.</source>
        <translation>Écrire xs:integer.</translation>
    </message>
    <message>
        <source>Write xs:string, and &apos;true&apos; or &apos;false&apos; as its value.</source>
        <translation>Écrire xs:string, et &apos;true&apos; ou &apos;false&apos; comme valeur.</translation>
    </message>
    <message>
        <source>Write one of %1; for a restricted type, declare the attribute globally with the type inside, and refer to it.</source>
        <translation>Écrire l&apos;un des types %1 ; pour un type restreint, déclarer l&apos;attribut globalement avec le type à l&apos;intérieur, et s&apos;y référer.</translation>
    </message>
    <message>
        <source>The facet %1 is &apos;%2&apos;.</source>
        <translation>La facette %1 est &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>It is not checked.</source>
        <translation>Elle n&apos;est pas vérifiée.</translation>
    </message>
    <message>
        <source>It is not checked, and stays in the report as an attribute &apos;%1&apos; that the schema does not allow.</source>
        <translation>Elle n&apos;est pas vérifiée et reste dans le rapport comme attribut &apos;%1&apos;, que le schéma n&apos;autorise pas.</translation>
    </message>
    <message>
        <source>Leave it out; what is checked are enumerations and, for numbers, minInclusive, maxInclusive, minExclusive and maxExclusive.</source>
        <translation>L&apos;omettre ; sont vérifiées les énumérations et, pour les nombres, minInclusive, maxInclusive, minExclusive et maxExclusive.</translation>
    </message>
    <message>
        <source>%1 of &apos;%2&apos; is &apos;%3&apos;.</source>
        <translation>%1 de &apos;%2&apos; est &apos;%3&apos;.</translation>
    </message>
    <message>
        <source>Only numbers have bounds: it is not checked, and stays in the report as an attribute.</source>
        <translation>Seuls les nombres ont des bornes : celle-ci n&apos;est pas vérifiée et reste dans le rapport comme attribut.</translation>
    </message>
    <message>
        <source>Leave the facet out.</source>
        <translation>Omettre la facette.</translation>
    </message>
    <message>
        <source>It cannot be read as a number of that type and counts as 0.</source>
        <translation>Elle ne peut pas être lue comme nombre de ce type et compte pour 0.</translation>
    </message>
    <message>
        <source>Write an integer between -2147483648 and 2147483647.</source>
        <translation>Écrire un entier entre -2147483648 et 2147483647.</translation>
    </message>
    <message>
        <source>Write a number in digits, with a point.</source>
        <translation>Écrire un nombre en chiffres, avec un point.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; has no type of its own.</source>
        <translation>L&apos;attribut &apos;%1&apos; n&apos;a pas de type propre.</translation>
    </message>
    <message>
        <source>The attribute &apos;%1&apos; is of the type &apos;%2&apos;.</source>
        <translation>L&apos;attribut &apos;%1&apos; est de type &apos;%2&apos;.</translation>
    </message>
    <message>
        <source>No setter takes it: the attribute can be removed, and otherwise stays and holds &apos;%1&apos;.</source>
        <translation>Aucun setter ne l&apos;accepte : l&apos;attribut peut être supprimé, sinon il reste et contient &apos;%1&apos;.</translation>
    </message>
    <message>
        <source>No setter takes it: the element stays empty in every report, with its annotations.</source>
        <translation>Aucun setter ne l&apos;accepte : l&apos;élément reste vide dans chaque rapport, avec ses annotations.</translation>
    </message>
    <message>
        <source>No setter takes it.</source>
        <translation>Aucun setter ne l&apos;accepte.</translation>
    </message>
    <message>
        <source>No setter takes it: the element is removed from every report, with the container around it.</source>
        <translation>Aucun setter ne l&apos;accepte : l&apos;élément est supprimé de chaque rapport, avec le conteneur qui l&apos;entoure.</translation>
    </message>
    <message>
        <source>No setter takes it: the element is removed from every report.</source>
        <translation>Aucun setter ne l&apos;accepte : l&apos;élément est supprimé de chaque rapport.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; has no type that is understood.</source>
        <translation>L&apos;élément &apos;%1&apos; n&apos;a pas de type qui soit compris.</translation>
    </message>
    <message>
        <source>It is passed over: what is of this type has none, or that of the last restriction inside, and cannot be filled as the author means it.</source>
        <translation>Ignoré : ce qui est de ce type n&apos;en a aucun, ou celui de la dernière restriction qu&apos;il contient, et ne peut pas être rempli comme l&apos;auteur l&apos;entend.</translation>
    </message>
    <message>
        <source>Use xs:restriction of one type, such as xs:string.</source>
        <translation>Utiliser xs:restriction d&apos;un seul type, comme xs:string.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; may be repeated, but is not known to.</source>
        <translation>L&apos;élément &apos;%1&apos; peut se répéter, mais n&apos;est pas reconnu comme répétable.</translation>
    </message>
    <message>
        <source>The element &apos;%1&apos; may be repeated inside of one that may be, too.</source>
        <translation>L&apos;élément &apos;%1&apos; peut se répéter dans un élément qui le peut aussi.</translation>
    </message>
    <message>
        <source>Every count is refused: limits are looked for below the first element that is called like the owner, and in a named type the owner is the type.</source>
        <translation>Tout nombre est refusé : les limites sont recherchées sous le premier élément qui porte le nom du propriétaire, et dans un type nommé, le propriétaire est le type.</translation>
    </message>
    <message>
        <source>Counts are accepted in the first copy only, and refused in the others: limits are looked for below the first element that is called like the owner.</source>
        <translation>Un nombre n&apos;est accepté que dans la première copie, et refusé dans les autres : les limites sont recherchées sous le premier élément qui porte le nom du propriétaire.</translation>
    </message>
    <message>
        <source>Write the type inside of the element that is of it, or call that element like the type.</source>
        <translation>Écrire le type dans l&apos;élément qui est de ce type, ou donner à cet élément le nom du type.</translation>
    </message>
    <message>
        <source>Repeat only one of the two in a report.</source>
        <translation>Ne répéter que l&apos;un des deux dans un rapport.</translation>
    </message>
    <message>
        <source>%1 is prohibited.</source>
        <translation>%1 est interdit.</translation>
    </message>
    <message>
        <source>It is laid out all the same, and stays unless the observer removes it.</source>
        <translation>Il est créé quand même, et reste si l&apos;observateur ne le supprime pas.</translation>
    </message>
    <message>
        <source>Leave the attribute out of the schema.</source>
        <translation>Omettre l&apos;attribut dans le schéma.</translation>
    </message>
    <message>
        <source>%1 is optional.</source>
        <translation>%1 est facultatif.</translation>
    </message>
    <message>
        <source>The word is passed over: an attribute that is neither set nor removed stays in the report and holds its type.</source>
        <translation>Le mot est ignoré : un attribut ni rempli ni supprimé reste dans le rapport et contient son type.</translation>
    </message>
    <message>
        <source>Leave the word out, it is what XML Schema assumes; see that the observer sets or removes the attribute.</source>
        <translation>Omettre le mot, XML Schema le suppose ; veiller à ce que l&apos;observateur remplisse ou supprime l&apos;attribut.</translation>
    </message>
    <message>
        <source>%1, choice %2</source>
        <translation>%1, choix %2</translation>
    </message>
    <message>
        <source>Include the schema that defines these names, and refer to them without a namespace.</source>
        <translation>Inclure le schéma qui définit ces noms, et s&apos;y référer sans espace de noms.</translation>
    </message>
    <message>
        <source>the namespace &apos;%1&apos;</source>
        <translation>l&apos;espace de noms &apos;%1&apos;</translation>
    </message>
    <message>
        <source>libxml2 does not accept the schema: %1 The same of %2 other uses.</source>
        <translation>libxml2 n&apos;accepte pas le schéma : %1 Autres emplois concernés : %2.</translation>
    </message>
    <message>
        <source>Nothing fills it and nothing removes it: it stays, whether a report is meant to have it or not.</source>
        <translation>Rien ne le remplit et rien ne le supprime : il reste, que le rapport doive le contenir ou non.</translation>
    </message>
    <message>
        <source>Nothing fills it: it stays, whether a report is meant to have it or not, unless a value behind it is unfilled. That one removes it.</source>
        <translation>Rien ne le remplit : il reste, que le rapport doive le contenir ou non, sauf si une valeur qui le suit n&apos;est pas remplie. C&apos;est elle qui le supprime.</translation>
    </message>
    <message>
        <source>Give &apos;%1&apos; a type that takes a value, such as xs:boolean, or make it required.</source>
        <translation>Donner à &apos;%1&apos; un type qui accepte une valeur, comme xs:boolean, ou le rendre obligatoire.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; itself becomes the type, which setters know by a word in that name: its own type and facets are not looked at.</source>
        <translation>&apos;%1&apos; devient lui-même le type, que les setters reconnaissent à un mot de ce nom : son propre type et ses facettes ne sont pas regardés.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonFindings</name>
    <message>
        <source>the element &apos;%1&apos; of the type &apos;%2&apos;</source>
        <translation>l&apos;élément &apos;%1&apos; du type &apos;%2&apos;</translation>
    </message>
    <message>
        <source>the attribute &apos;%1&apos; of &apos;%2&apos;, of the type &apos;%3&apos;</source>
        <translation>l&apos;attribut &apos;%1&apos; de &apos;%2&apos;, du type &apos;%3&apos;</translation>
    </message>
    <message>
        <source>The report button never fills %1.</source>
        <translation>Le bouton de rapport ne remplit jamais %1.</translation>
    </message>
    <message>
        <source>For the number of an item the button writes 65535.</source>
        <translation>Pour le nombre d&apos;une entrée, le bouton écrit 65535.</translation>
    </message>
    <message>
        <source>The button may fill another attribute of the element in its place.</source>
        <translation>Le bouton peut remplir un autre attribut de l&apos;élément à sa place.</translation>
    </message>
    <message>
        <source>A setter takes it, but the button offers no value of that kind, whatever items there are.</source>
        <translation>Un setter l&apos;accepte, mais le bouton n&apos;offre aucune valeur de cette sorte, quelles que soient les entrées.</translation>
    </message>
    <message>
        <source>Declare it for an element with a value of its own, or fill it by an observer of the report builder.</source>
        <translation>Le déclarer pour un élément qui a sa propre valeur, ou le remplir par un observateur du générateur de rapports.</translation>
    </message>
    <message>
        <source>Write another type, such as xs:string, or fill it by an observer of the report builder.</source>
        <translation>Écrire un autre type, par exemple xs:string, ou remplir par un observateur du générateur de rapports.</translation>
    </message>
    <message>
        <source>No item of the report button reaches %1 alone.</source>
        <translation>Aucune entrée du bouton de rapport n&apos;atteint %1 à lui seul.</translation>
    </message>
    <message>
        <source>An item &apos;%1&apos; fills %2 values of that name, all with the same.</source>
        <translation>Une entrée &apos;%1&apos; remplit %2 valeurs de ce nom, toutes avec la même.</translation>
    </message>
    <message>
        <source>Give it a name of its own, or a parent with a name of its own.</source>
        <translation>Lui donner un nom propre, ou un parent avec un nom propre.</translation>
    </message>
    <message>
        <source>The unit of an item fills the attribute &apos;%1&apos;, and an item of a value tree&apos;s node has none.</source>
        <translation>L&apos;unité d&apos;une entrée remplit l&apos;attribut &apos;%1&apos;, et une entrée issue d&apos;un nœud de l&apos;arbre de valeurs n&apos;en a pas.</translation>
    </message>
    <message>
        <source>For such an item the attribute keeps its type, &apos;%1&apos;, as a text.</source>
        <translation>Pour une telle entrée, l&apos;attribut garde son type, &apos;%1&apos;, comme texte.</translation>
    </message>
    <message>
        <source>For such an item the attribute keeps its type, &apos;%1&apos;, which is none of its values: the report is not valid.</source>
        <translation>Pour une telle entrée, l&apos;attribut garde son type, &apos;%1&apos;, qui n&apos;est aucune de ses valeurs : le rapport n&apos;est pas valide.</translation>
    </message>
    <message>
        <source>Register the item by its name and path, with a unit.</source>
        <translation>Enregistrer l&apos;entrée par son nom et son chemin, avec une unité.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonTrial</name>
    <message>
        <source>What the report button fills was not tried: it would take too long.</source>
        <translation>Ce que remplit le bouton de rapport n&apos;a pas été essayé : cela prendrait trop de temps.</translation>
    </message>
</context>
<context>
    <name>schemadoctor::ButtonWords</name>
    <message>
        <source>As the report button fills it</source>
        <translation>Comme le bouton de rapport le remplit</translation>
    </message>
    <message>
        <source>container</source>
        <translation>conteneur</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>un nombre</translation>
    </message>
    <message>
        <source>a number without its fraction</source>
        <translation>un nombre sans sa partie décimale</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>an ISO date and time</source>
        <translation>une date et heure ISO</translation>
    </message>
    <message>
        <source>an explicit bool</source>
        <translation>un bool explicite</translation>
    </message>
    <message>
        <source>an explicit long</source>
        <translation>un long explicite</translation>
    </message>
    <message>
        <source>never: no setter takes it</source>
        <translation>jamais : aucun setter ne l&apos;accepte</translation>
    </message>
    <message>
        <source>never: 65535 is written in place of a number</source>
        <translation>jamais : 65535 est écrit à la place d&apos;un nombre</translation>
    </message>
    <message>
        <source>never: another attribute may be filled in its place</source>
        <translation>jamais : un autre attribut peut être rempli à sa place</translation>
    </message>
    <message>
        <source>never: the button offers no value of its kind</source>
        <translation>jamais : le bouton n&apos;offre aucune valeur de sa sorte</translation>
    </message>
    <message>
        <source>item &apos;%1&apos; with %2</source>
        <translation>entrée &apos;%1&apos; avec %2</translation>
    </message>
    <message>
        <source>which reaches %1 more</source>
        <translation>qui en atteint %1 de plus</translation>
    </message>
    <message>
        <source>registered behind that of the element</source>
        <translation>enregistrée après celle de l&apos;élément</translation>
    </message>
    <message>
        <source>the unit of the element&apos;s item</source>
        <translation>l&apos;unité de l&apos;entrée de l&apos;élément</translation>
    </message>
    <message>
        <source>the current time</source>
        <translation>l&apos;heure actuelle</translation>
    </message>
</context>
<context>
    <name>schemadoctor::CopiesWords</name>
    <message>
        <source>In every copy but the first</source>
        <translation>Dans chaque copie sauf la première</translation>
    </message>
    <message>
        <source>stays when nothing fills it</source>
        <translation>reste si rien ne le remplit</translation>
    </message>
    <message>
        <source>stays when nothing fills it, with %1</source>
        <translation>reste si rien ne le remplit, avec %1</translation>
    </message>
    <message>
        <source>%1 and the value &apos;%2&apos;</source>
        <translation>%1 et la valeur &apos;%2&apos;</translation>
    </message>
    <message>
        <source>no count is accepted</source>
        <translation>aucun nombre n&apos;est accepté</translation>
    </message>
    <message>
        <source>was not tried</source>
        <translation>n&apos;a pas été essayé</translation>
    </message>
</context>
<context>
    <name>schemadoctor::DoctorWindow</name>
    <message>
        <source>%1 - schema doctor</source>
        <translation>%1 - docteur des schémas</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>C&amp;hercher :</translation>
    </message>
    <message>
        <source>&amp;Schema:</source>
        <translation>&amp;Schéma :</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Constat</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>As it is meant</source>
        <translation>Ce qui est voulu</translation>
    </message>
    <message>
        <source>As it is laid out</source>
        <translation>Ce qui est créé</translation>
    </message>
    <message>
        <source>Open a schema</source>
        <translation>Ouvrir un schéma</translation>
    </message>
    <message>
        <source>Schemas (*.xsd);;All files (*)</source>
        <translation>Schémas (*.xsd);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>Elements laid out: %1. Findings: %2.</source>
        <translation>Éléments créés : %1. Constats : %2.</translation>
    </message>
    <message>
        <source>%1

What the library does: %2

Write instead: %3</source>
        <translation>%1

Ce que fait la bibliothèque : %2

Écrire plutôt : %3</translation>
    </message>
    <message>
        <source>&amp;Mend...</source>
        <translation>&amp;Corriger...</translation>
    </message>
    <message>
        <source>Write the mended schema</source>
        <translation>Écrire le schéma corrigé</translation>
    </message>
    <message>
        <source>Not mended</source>
        <translation>Non corrigé</translation>
    </message>
</context>
<context>
    <name>schemadoctor::MendWindow</name>
    <message>
        <source>%1 - mended schema</source>
        <translation>%1 - schéma corrigé</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>What it does to reports</source>
        <translation>Effet sur les rapports</translation>
    </message>
</context>
<context>
    <name>schemadoctor::SkeletonTreeModel</name>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Occurs</source>
        <translation>Occurrences</translation>
    </message>
    <message>
        <source>Counts taken</source>
        <translation>Nombres acceptés</translation>
    </message>
    <message>
        <source>Unfilled it</source>
        <translation>Non rempli</translation>
    </message>
    <message>
        <source>Set by</source>
        <translation>Rempli par</translation>
    </message>
</context>
</TS>
