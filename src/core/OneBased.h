#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <utility>
#include <vector>

#include "platform/RunTimeError.h"

namespace penwright {

/// A list whose elements are counted from 1. Slot 0 exists in the counting only and holds nothing.
/// A subscript outside 1..size() raises error 9.
template <typename T>
class OneBased {
public:
    OneBased() = default;
    explicit OneBased(int size) { resize(size); }
    OneBased(std::initializer_list<T> elements) : m_elements(elements) {}

    /// The highest subscript, 0 when the list is empty.
    int size() const { return static_cast<int>(m_elements.size()); }
    bool empty() const { return m_elements.empty(); }

    T &operator()(int index) { return m_elements[place(index)]; }
    const T &operator()(int index) const { return m_elements[place(index)]; }

    void append(T element) { m_elements.push_back(std::move(element)); }
    void clear() { m_elements.clear(); }

    /// Changes the size and keeps what still fits; a negative size raises error 9.
    void resize(int size)
    {
        if (size < 0)
            throw subscriptOutOfRange();
        m_elements.resize(static_cast<std::size_t>(size));
    }

    /// Changes the size and sets every element to its default.
    void reset(int size)
    {
        clear();
        resize(size);
    }

    auto begin() { return m_elements.begin(); }
    auto end() { return m_elements.end(); }
    auto begin() const { return m_elements.begin(); }
    auto end() const { return m_elements.end(); }

    bool operator==(const OneBased &) const = default;

private:
    std::size_t place(int index) const
    {
        if (index < 1 || index > size())
            throw subscriptOutOfRange();
        return static_cast<std::size_t>(index) - 1;
    }

    std::vector<T> m_elements;
};

/// A table whose rows and columns are counted from 1, the last subscript running fastest in memory.
/// A subscript outside 1..rows(), 1..columns() raises error 9.
template <typename T>
class OneBasedTable {
public:
    OneBasedTable() = default;
    OneBasedTable(int rows, int columns) { reset(rows, columns); }

    int rows() const { return m_rows; }
    int columns() const { return m_columns; }

    T &operator()(int row, int column) { return m_elements[place(row, column)]; }
    const T &operator()(int row, int column) const { return m_elements[place(row, column)]; }

    /// A row's elements in the order of the columns, for those who walk along them; error 9 for a row that is not
    /// there.
    std::span<const T> row(int row) const
    {
        const std::size_t count = static_cast<std::size_t>(m_columns);
        return count == 0 && row >= 1 && row <= m_rows ? std::span<const T>()
                                                       : std::span(&m_elements[place(row, 1)], count);
    }

    /// Changes both sizes and sets every element to its default; a negative size raises error 9.
    void reset(int rows, int columns)
    {
        if (rows < 0 || columns < 0)
            throw subscriptOutOfRange();
        m_elements.assign(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns), T());
        m_rows = rows;
        m_columns = columns;
    }

    bool operator==(const OneBasedTable &) const = default;

private:
    std::size_t place(int row, int column) const
    {
        if (row < 1 || row > m_rows || column < 1 || column > m_columns)
            throw subscriptOutOfRange();
        return (static_cast<std::size_t>(row) - 1) * static_cast<std::size_t>(m_columns) +
               (static_cast<std::size_t>(column) - 1);
    }

    std::vector<T> m_elements;
    int m_rows = 0;
    int m_columns = 0;
};

}  // namespace penwright
