#pragma once

#include <cstddef>

namespace kavoGLenumRows {

// Refers to a constant array of any length, so that arrays of different lengths fit into one table.
template <class Row> struct Rows
{
    template <std::size_t N>
    constexpr Rows(const Row (&rows)[N])
        : first(rows)
        , last(rows + N)
    {
    }

    constexpr const Row *begin() const { return first; }
    constexpr const Row *end() const { return last; }

    const Row *first;
    const Row *last;
};

struct Constant
{
    unsigned int value;
    const char *name;
};

// The groups of constants: those of the OpenGL 1.1 header in its order, then those of the
// extensions. The values are literals, so that they do not depend on the header of the platform.
extern const Rows<Rows<Constant>> groups;

} // namespace kavoGLenumRows
