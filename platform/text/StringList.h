// Linked lists walked by POSITION: CList and CStringList.
#pragma once

#include <list>
#include <utility>

#include "platform/text/CString.h"

// Names one node of a list; null is behind the last node.
using POSITION = void*;

// Holds its elements by value; a position stays good until its list goes. The block size is the
// growth step that Windows developers pass and is not needed here.
template <class T>
class CList {
public:
    explicit CList(int /*nBlockSize*/ = 10) {}
    CList(const CList&) = delete;
    CList& operator=(const CList&) = delete;

    [[nodiscard]] int GetCount() const noexcept { return static_cast<int>(m_nodes.size()); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_nodes.empty(); }

    POSITION AddTail(T item)
    {
        Node* const last = m_nodes.empty() ? nullptr : &m_nodes.back();
        m_nodes.push_back({std::move(item), nullptr});
        if (last != nullptr) {
            last->next = &m_nodes.back();
        }
        return &m_nodes.back();
    }

    // Null for an empty list.
    [[nodiscard]] POSITION GetHeadPosition() const noexcept
    {
        return m_nodes.empty() ? nullptr : const_cast<Node*>(&m_nodes.front());
    }
    [[nodiscard]] POSITION GetTailPosition() const noexcept
    {
        return m_nodes.empty() ? nullptr : const_cast<Node*>(&m_nodes.back());
    }

    // The element at a position, which must not be null; the position moves on to the next node.
    [[nodiscard]] const T& GetNext(POSITION& position) const
    {
        const Node* const node = static_cast<const Node*>(position);
        position = node->next;
        return node->item;
    }
    [[nodiscard]] const T& GetAt(POSITION position) const
    {
        return static_cast<const Node*>(position)->item;
    }

    void RemoveAll() noexcept { m_nodes.clear(); }

private:
    struct Node {
        T item;
        Node* next;
    };
    std::list<Node> m_nodes;
};

class CStringList : public CList<CString> {
public:
    using CList::CList;
};
