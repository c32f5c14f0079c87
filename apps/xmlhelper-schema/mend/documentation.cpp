#include "documentation.h"

namespace schemadoctor {

QStringList documentationOf(const TextNode& declaration)
{
    QStringList texts;
    for (const auto& annotation : declaration.children) {
        if (!annotation->Is("annotation")) {
            continue;
        }
        for (const auto& child : annotation->children) {
            if (child->Is("documentation") && !child->content.trimmed().isEmpty()) {
                texts.append(child->content.trimmed());
            }
        }
    }
    return texts;
}

} // namespace schemadoctor
