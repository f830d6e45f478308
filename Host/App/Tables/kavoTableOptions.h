#pragma once

#include "Tables/kavoPatterns.h"

/// How the value pairs of a scene are laid out as a table, and which of them.
struct kavoTableOptions
{
    enum Format { Csv, JsonLines };

    /// By the ending of a file's name: .jsonl is JSON Lines.
    static Format formatOf(const QString &fileName);
    /// \param text comma, semicolon or tab, or the delimiter itself: any ASCII character that is
    /// no quote, line end or NUL
    /// \returns false if it is none of these; the delimiter keeps its value then
    bool setDelimiter(const QString &text);

    Format format = Csv;
    // Of CSV only:
    char delimiter = ',';
    char decimalSeparator = '.';
    bool startsWithByteOrderMark = false;
    /// Whether text that a spreadsheet would take for a formula begins with an apostrophe.
    bool guardsFormulas = true;

    // Of export only:
    kavoPatterns keys; ///< the columns
    kavoPatterns nodeNames;
    kavoPatterns coreTypes;
    kavoPatterns nodeKeys; ///< nodes need a key that matches
    bool takesAllNodes = false; ///< also those that are not fully visible
};
