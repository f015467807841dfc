// Growable arrays with a zero-based int index: CArray and the two that the host exchanges.
#pragma once

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

#include "platform/text/CString.h"

// Holds its elements by value. An index that names no element is a broken invariant of the caller
// and ends the process with a message on the error stream; SetAtGrow and InsertAt alone accept any
// index from 0 and fill the gap with default elements.
template <class T>
class CArray {
public:
    [[nodiscard]] int GetSize() const noexcept { return static_cast<int>(m_items.size()); }
    [[nodiscard]] bool IsEmpty() const noexcept { return m_items.empty(); }

    [[nodiscard]] const T& GetAt(int nIndex) const { return m_items[Checked(nIndex)]; }
    [[nodiscard]] const T& operator[](int nIndex) const { return m_items[Checked(nIndex)]; }
    [[nodiscard]] T& operator[](int nIndex) { return m_items[Checked(nIndex)]; }
    void SetAt(int nIndex, T item) { m_items[Checked(nIndex)] = std::move(item); }

    // Appends and returns the new element's index.
    int Add(T item)
    {
        m_items.push_back(std::move(item));
        return GetSize() - 1;
    }

    void SetAtGrow(int nIndex, T item)
    {
        if (nIndex == GetSize()) {
            Add(std::move(item));
            return;
        }
        if (nIndex > GetSize()) {
            m_items.resize(Position(nIndex) + 1);
        }
        m_items[Checked(nIndex)] = std::move(item);
    }

    // Puts nCount copies in front of the element at nIndex; a count below 1 does nothing.
    void InsertAt(int nIndex, T item, int nCount = 1)
    {
        if (nCount < 1) {
            return;
        }
        if (nIndex > GetSize()) {
            m_items.resize(Position(nIndex));
        }
        const auto place = m_items.begin() + static_cast<std::ptrdiff_t>(Position(nIndex));
        m_items.insert(place, Position(nCount), item);
    }

    // Removes nCount elements; a count below 1 does nothing.
    void RemoveAt(int nIndex, int nCount = 1)
    {
        if (nCount < 1) {
            return;
        }
        static_cast<void>(Checked(nIndex));
        static_cast<void>(Checked(nIndex + (nCount - 1)));
        m_items.erase(m_items.begin() + nIndex, m_items.begin() + nIndex + nCount);
    }

    void RemoveAll() noexcept { m_items.clear(); }

    // Cuts or fills up with default elements; the growth step is accepted and not needed.
    void SetSize(int nNewSize, int /*nGrowBy*/ = -1) { m_items.resize(Position(nNewSize)); }

    // Room for so many elements without another allocation; the size stays.
    void Reserve(int nSize) { m_items.reserve(Position(nSize)); }

    [[nodiscard]] auto begin() noexcept { return m_items.begin(); }
    [[nodiscard]] auto end() noexcept { return m_items.end(); }
    [[nodiscard]] auto begin() const noexcept { return m_items.begin(); }
    [[nodiscard]] auto end() const noexcept { return m_items.end(); }

private:
    [[noreturn]] void Fail(int nIndex) const
    {
        std::fprintf(stderr, "array index %d is outside 0 to %d\n", nIndex, GetSize() - 1);
        std::abort();
    }
    [[nodiscard]] std::size_t Position(int n) const
    {
        if (n < 0) {
            Fail(n);
        }
        return static_cast<std::size_t>(n);
    }
    [[nodiscard]] std::size_t Checked(int nIndex) const
    {
        if (nIndex < 0 || nIndex >= GetSize()) {
            Fail(nIndex);
        }
        return static_cast<std::size_t>(nIndex);
    }

    std::vector<T> m_items;
};

class CStringArray : public CArray<CString> {};
class CUIntArray : public CArray<unsigned int> {};
