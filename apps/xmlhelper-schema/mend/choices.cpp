#include "choices.h"

#include <algorithm>

namespace schemadoctor {

std::map<int, std::set<int>> branchesOf(const MendedContent& content)
{
    std::map<int, std::set<int>> branches;
    for (const MendedElement& element : content) {
        branches[element.choice].insert(element.branch);
    }
    return branches;
}

void settleChoices(MendedContent& content)
{
    std::map<int, std::set<int>> branches = branchesOf(content);
    for (MendedElement& element : content) {
        element.choice = branches[element.choice].size() > 1 ? element.choice : MendedElement::None;
    }
}

void dropBranches(MendedContent& content, const std::set<int>& branches)
{
    content.erase(std::remove_if(content.begin(), content.end(),
                                 [&branches](const MendedElement& element) {
                                     return element.choice != MendedElement::None && branches.count(element.branch) > 0;
                                 }),
                  content.end());
}

} // namespace schemadoctor
