#pragma once

#include "kavoTable.h"

#include <string>

/// Reads what kavoJsonLinesWriter writes. Of the members only id, path and values count.
class kavoJsonLinesReader
{
public:
    /// \throws kavoTaskError if the text is malformed
    static kavoTable read(const std::string &text);
};
