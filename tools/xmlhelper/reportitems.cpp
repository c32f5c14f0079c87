#include "reportitems_p.h"

#include <algorithm>
#include <utility>

namespace {

const QLatin1Char Separator('/');

bool isQualified(const QString& name)
{
    return name.contains(Separator);
}

} // namespace

ReportItems::ReportItems()
    : m_iNextIndex(0)
    , m_iQualifiedNames(0)
{
}

QString ReportItems::QualifiedName(const QString& parent, const QString& name)
{
    return parent + Separator + name;
}

void ReportItems::Append(Item item)
{
    const QString name = item->GetName();
    m_iQualifiedNames += isQualified(name) ? 1 : 0;
    m_indices[name].push_back(m_iNextIndex);
    m_items.emplace_hint(m_items.end(), m_iNextIndex, std::move(item));
    ++m_iNextIndex;
}

void ReportItems::DeleteFirst(const QString& name)
{
    const auto indices = m_indices.find(name);
    if (indices == m_indices.end()) {
        return;
    }
    m_iQualifiedNames -= isQualified(name) ? 1 : 0;
    m_items.erase(indices->front());
    indices->pop_front();
    if (indices->empty()) {
        m_indices.erase(indices);
    }
}

void ReportItems::Clear()
{
    m_items.clear();
    m_indices.clear();
    m_iNextIndex = 0;
    m_iQualifiedNames = 0;
}

ReportItems::Item ReportItems::At(int index) const
{
    if (index == NO_INDEX) {
        return nullptr;
    }
    const auto found = m_items.find(index);
    return found == m_items.end() ? nullptr : found->second;
}

int ReportItems::First() const
{
    return m_items.empty() ? NO_INDEX : m_items.begin()->first;
}

int ReportItems::First(const QString& name) const
{
    const auto indices = m_indices.constFind(name);
    return indices == m_indices.constEnd() ? NO_INDEX : indices->front();
}

std::vector<ReportItems::Item> ReportItems::Before(int end, const std::vector<QString>& names, int others) const
{
    std::vector<int> ends = indicesBefore(end, names);
    if (ends.empty() && others == 0) {
        return {};
    }
    ends.push_back(end);
    std::vector<Item> found;
    auto next = m_items.cbegin();
    for (const int index : ends) {
        for (int other = 0; other < others && next != m_items.cend() && next->first != index; ++other, ++next) {
            found.push_back(next->second);
        }
        next = m_items.find(index);
        if (index != end) {
            found.push_back(next->second);
            ++next;
        }
    }
    return found;
}

std::vector<int> ReportItems::indicesBefore(int end, const std::vector<QString>& names) const
{
    std::vector<int> found;
    for (const QString& name : names) {
        const auto indices = m_indices.constFind(name);
        if (indices == m_indices.constEnd()) {
            continue;
        }
        for (const int index : *indices) {
            if (end != NO_INDEX && index >= end) {
                break;
            }
            found.push_back(index);
        }
    }
    if (found.size() > 1) {
        std::sort(found.begin(), found.end());
        found.erase(std::unique(found.begin(), found.end()), found.end());
    }
    return found;
}
