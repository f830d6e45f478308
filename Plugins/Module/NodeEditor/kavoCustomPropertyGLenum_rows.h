#pragma once

#include <cstddef>

namespace kavoGLenumRows {

// A constant array without its length in the type, so that arrays of different lengths can stand
// in one table.
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

// The constants of the OpenGL 1.1 header in its order, cut into groups, then those of the
// extensions. The values are literals: which constants a platform's header knows must not change
// what the editor offers.
extern const Rows<Rows<Constant>> groups;

}
