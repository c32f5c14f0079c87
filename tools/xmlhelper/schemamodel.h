#ifndef XMLHELPER_SCHEMAMODEL_H
#define XMLHELPER_SCHEMAMODEL_H

#include <list>
#include <map>

#include <QString>

class QDomDocumentFragment;
class QDomElement;

/// What a named type, a global element or a global attribute of a schema expands to.
struct TypeDefinition
{
    /// 1 for a named type, and for everything that was cloned for a user; 0 for a global declaration that nothing has
    /// used, which makes it a candidate for the document's root.
    qint32 usedFlag;

    /// How many references inside the definition still wait for their own definitions. 0: usable. Above 0: the fragment
    /// is incomplete, users are deferred. -1: expanded at the end of the document.
    qint32 pendingCount;

    /// The content, in the node space of the document of the handler that read it; owned by the schema handler.
    QDomDocumentFragment* fragment;
};

/// One place of the skeleton that waits for the content of a definition. The elements are handles owned by the schema
/// handler.
struct ElementPathRecord
{
    QDomElement* ownerElement; ///< receives the content
    QDomElement* anchorElement; ///< the child of the owner after which the content goes; null: at the end
    QString definitionName; ///< the definition inside which the reference was read
    bool isAttributeReference; ///< an attribute waits, not an element
};

/// Name referred to -> how often to lay its content out -> the places that wait for it, in reading order.
using UnresolvedTypeMap = std::map<QString, std::map<int, std::list<ElementPathRecord>>>;

/// Element name -> occurs code -> names of the owners under which it was declared so, in reading order.
///
/// The code is maxOccurs ("unbounded" is -1), times 100 when minOccurs is 0, and 0 for minOccurs 0 without maxOccurs.
/// A required element without maxOccurs has no entry.
using OccursMap = std::map<QString, std::map<int, std::list<QString>>>;

/// Name of a named type, global element or global attribute -> its definition.
using TypeDefinitionMap = std::map<QString, TypeDefinition>;

/// Running number -> name of an element declared inside a choice. The numbers have no gaps and run over the whole
/// schema, included files too.
using ChoiceMap = std::map<int, QString>;

#endif
